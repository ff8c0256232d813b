#include "excel/embedded/model/geometry/row_geometry.hpp"

#include "excel/embedded/model/cell_address.hpp"

#include <algorithm>
#include <cmath>

namespace excel::embedded {

void RowGeometry::build(const CellStore& cells) const {
    rows_.clear();
    heights_.clear();
    heightsBefore_.assign(1, 0.0);
    for (const RowData& row : cells.Rows()) {
        if (row.hidden || row.HasCustomHeight()) {
            rows_.push_back(row.index);
            heights_.push_back(row.hidden ? 0.0 : row.height);
            heightsBefore_.push_back(heightsBefore_.back() + heights_.back());
        }
    }
    valid_ = true;
}

double RowGeometry::topOf(size_t k, double standard) const {
    return static_cast<double>(rows_[k] - 1 - static_cast<int32_t>(k)) * standard + heightsBefore_[k];
}

double RowGeometry::Points(const CellStore& cells, int32_t top, int32_t bottom, double standard) const {
    if (bottom < top) {
        return 0.0;
    }
    if (!valid_) {
        build(cells);
    }
    const auto first = static_cast<size_t>(std::lower_bound(rows_.begin(), rows_.end(), top) - rows_.begin());
    const auto last = static_cast<size_t>(std::upper_bound(rows_.begin(), rows_.end(), bottom) - rows_.begin());
    const auto irregular = static_cast<int32_t>(last - first);
    return static_cast<double>(bottom - top + 1 - irregular) * standard + heightsBefore_[last] - heightsBefore_[first];
}

RowPoint RowGeometry::RowAt(const CellStore& cells, double y, double standard) const {
    if (!valid_) {
        build(cells);
    }
    // The last irregular row starting at or above y.
    size_t low = 0;
    size_t high = rows_.size();
    while (low < high) {
        const size_t middle = low + (high - low) / 2;
        if (topOf(middle, standard) <= y) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    int32_t nextRow = 1;
    double start = 0.0;
    if (low > 0) {
        const size_t k = low - 1;
        const double top = topOf(k, standard);
        if (y < top + heights_[k]) {
            return RowPoint{rows_[k], y - top};
        }
        nextRow = rows_[k] + 1;
        start = top + heights_[k];
    }
    // Rows of the standard height follow up to the next irregular row, which starts below y.
    if (standard > 0.0) {
        const double steps = std::floor((y - start) / standard);
        const double row = static_cast<double>(nextRow) + steps;
        if (row <= static_cast<double>(MaxRow)) {
            return RowPoint{static_cast<int32_t>(row), y - start - steps * standard};
        }
    }
    return RowPoint{MaxRow, Points(cells, MaxRow, MaxRow, standard)};
}

}  // namespace excel::embedded
