#pragma once

#include "excel/embedded/model/cells/cell.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace excel::embedded {

// One stored row: its own format and height when set, and its cells in ascending columns.
struct RowData {
    int32_t index = 1;
    uint32_t format = 0;
    double height = -1.0;  // points; negative = the sheet's default height
    // The height is the one an opened file gave a row Excel fitted to its content, not one set.
    bool fittedHeight = false;
    bool hasFormat = false;
    bool hidden = false;
    uint8_t outlineLevel = 0;  // 0 (not grouped) .. 7
    bool collapsed = false;    // the group the row closes is collapsed
    std::vector<Cell> cells;

    bool HasCustomHeight() const { return height >= 0.0; }
    bool IsBare() const {
        return cells.empty() && !hasFormat && !HasCustomHeight() && !hidden && outlineLevel == 0 && !collapsed;
    }

    // The first cell at or right of column, and the end of the cells at or left of right.
    std::vector<Cell>::iterator LowerBound(int32_t column) {
        return std::lower_bound(cells.begin(), cells.end(), column,
                                [](const Cell& cell, int32_t c) { return cell.column < c; });
    }
    std::vector<Cell>::const_iterator LowerBound(int32_t column) const {
        return std::lower_bound(cells.begin(), cells.end(), column,
                                [](const Cell& cell, int32_t c) { return cell.column < c; });
    }
    std::span<Cell> CellsIn(int32_t left, int32_t right) {
        auto first = LowerBound(left);
        auto last = LowerBound(right + 1);
        return {first, last};
    }
    std::span<const Cell> CellsIn(int32_t left, int32_t right) const {
        auto first = LowerBound(left);
        auto last = LowerBound(right + 1);
        return {first, last};
    }
    Cell* Find(int32_t column) {
        auto it = LowerBound(column);
        return it != cells.end() && it->column == column ? &*it : nullptr;
    }
    const Cell* Find(int32_t column) const {
        auto it = LowerBound(column);
        return it != cells.end() && it->column == column ? &*it : nullptr;
    }

    // Rewrites the positions left..right: update(column, existing or nullptr, result) fills result
    // and answers whether a cell is to be stored there. Cells outside left..right are untouched.
    template <class Update>
    void UpdateRange(int32_t left, int32_t right, Update&& update) {
        auto first = LowerBound(left);
        auto last = LowerBound(right + 1);
        const auto present = last - first;
        if (present == right - left + 1) {
            size_t kept = 0;
            for (auto it = first; it != last; ++it) {
                Cell result = *it;
                if (update(static_cast<int32_t>(it->column), &*it, result)) {
                    *(first + static_cast<std::ptrdiff_t>(kept++)) = result;
                }
            }
            cells.erase(first + static_cast<std::ptrdiff_t>(kept), last);
            return;
        }
        std::vector<Cell> segment;
        segment.reserve(static_cast<size_t>(right - left + 1));
        auto it = first;
        for (int32_t column = left; column <= right; ++column) {
            const Cell* existing = (it != last && it->column == column) ? &*it : nullptr;
            Cell result = existing ? *existing : Cell::Blank(column, 0);
            if (update(column, existing, result)) {
                segment.push_back(result);
            }
            if (existing) {
                ++it;
            }
        }
        const auto offset = first - cells.begin();
        cells.erase(first, last);
        cells.insert(cells.begin() + offset, segment.begin(), segment.end());
    }
};

// The cells of a sheet: rows in ascending order, only the ones holding something.
class CellStore {
public:
    std::vector<RowData>& Rows() { return rows_; }
    const std::vector<RowData>& Rows() const { return rows_; }

    RowData* FindRow(int32_t row);
    const RowData* FindRow(int32_t row) const;
    RowData& EnsureRow(int32_t row);
    // Makes every row of top..bottom exist; answers the position of row top in Rows().
    size_t EnsureRows(int32_t top, int32_t bottom);
    // The positions [first, last) in Rows() of the stored rows within top..bottom.
    std::pair<size_t, size_t> RowSpan(int32_t top, int32_t bottom) const;

    const Cell* Find(int32_t row, int32_t column) const;
    Cell* Find(int32_t row, int32_t column);

    // Drops rows holding nothing (after clearing or shifting).
    void DropBareRows();

private:
    std::vector<RowData> rows_;
};

}  // namespace excel::embedded
