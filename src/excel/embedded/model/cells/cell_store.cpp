#include "excel/embedded/model/cells/cell_store.hpp"

#include <algorithm>

namespace excel::embedded {

namespace {

template <class Rows>
auto RowLowerBound(Rows& rows, int32_t row) {
    return std::lower_bound(rows.begin(), rows.end(), row,
                            [](const RowData& data, int32_t index) { return data.index < index; });
}

RowData NewRow(int32_t index) {
    RowData row;
    row.index = index;
    return row;
}

}  // namespace

RowData* CellStore::FindRow(int32_t row) {
    auto it = RowLowerBound(rows_, row);
    return it != rows_.end() && it->index == row ? &*it : nullptr;
}

const RowData* CellStore::FindRow(int32_t row) const {
    auto it = RowLowerBound(rows_, row);
    return it != rows_.end() && it->index == row ? &*it : nullptr;
}

RowData& CellStore::EnsureRow(int32_t row) {
    if (rows_.empty() || rows_.back().index < row) {
        rows_.push_back(NewRow(row));
        return rows_.back();
    }
    auto it = RowLowerBound(rows_, row);
    if (it == rows_.end() || it->index != row) {
        it = rows_.insert(it, NewRow(row));
    }
    return *it;
}

size_t CellStore::EnsureRows(int32_t top, int32_t bottom) {
    auto [first, last] = RowSpan(top, bottom);
    const auto wanted = static_cast<size_t>(bottom - top + 1);
    if (last - first == wanted) {
        return first;
    }
    if (first == rows_.size()) {
        // Grow geometrically: rows written one at a time must not reallocate on every row.
        if (rows_.capacity() < rows_.size() + wanted) {
            rows_.reserve(std::max(rows_.size() + wanted, rows_.capacity() * 2));
        }
        for (int32_t row = top; row <= bottom; ++row) {
            rows_.push_back(NewRow(row));
        }
        return first;
    }
    std::vector<RowData> merged;
    merged.reserve(rows_.size() + wanted - (last - first));
    std::move(rows_.begin(), rows_.begin() + static_cast<std::ptrdiff_t>(first), std::back_inserter(merged));
    size_t existing = first;
    for (int32_t row = top; row <= bottom; ++row) {
        if (existing < last && rows_[existing].index == row) {
            merged.push_back(std::move(rows_[existing++]));
        } else {
            merged.push_back(NewRow(row));
        }
    }
    std::move(rows_.begin() + static_cast<std::ptrdiff_t>(last), rows_.end(), std::back_inserter(merged));
    rows_ = std::move(merged);
    return first;
}

std::pair<size_t, size_t> CellStore::RowSpan(int32_t top, int32_t bottom) const {
    auto first = RowLowerBound(rows_, top);
    auto last = RowLowerBound(rows_, bottom + 1);
    return {static_cast<size_t>(first - rows_.begin()), static_cast<size_t>(last - rows_.begin())};
}

const Cell* CellStore::Find(int32_t row, int32_t column) const {
    const RowData* data = FindRow(row);
    return data ? data->Find(column) : nullptr;
}

Cell* CellStore::Find(int32_t row, int32_t column) {
    RowData* data = FindRow(row);
    return data ? data->Find(column) : nullptr;
}

void CellStore::DropBareRows() {
    std::erase_if(rows_, [](const RowData& row) { return row.IsBare(); });
}

}  // namespace excel::embedded
