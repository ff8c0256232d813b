#pragma once

#include "excel/embedded/model/cells/cell_store.hpp"

#include <cstdint>
#include <vector>

namespace excel::embedded {

// A row and a distance into it, in points.
struct RowPoint {
    int32_t row;
    double offset;
};

// The vertical geometry of a sheet from the few rows whose height is not the sheet's default
// (custom heights, hidden rows), with running sums of their heights, so that the height of a run of
// rows and the row under a point are found by bisection instead of by walking every stored row.
// Built on first use after a change; whoever changes a row's height, hides or moves rows calls
// Invalidate.
class RowGeometry {
public:
    void Invalidate() { valid_ = false; }
    double Points(const CellStore& cells, int32_t top, int32_t bottom, double standard) const;
    // The row under y points from the sheet's top (y >= 0); a point on a boundary belongs to the row
    // below it. Beyond the last row: the last row, at its bottom.
    RowPoint RowAt(const CellStore& cells, double y, double standard) const;

private:
    void build(const CellStore& cells) const;
    // The top of the k-th irregular row.
    double topOf(size_t k, double standard) const;

    mutable std::vector<int32_t> rows_;          // ascending
    mutable std::vector<double> heights_;        // their heights, 0 when hidden
    mutable std::vector<double> heightsBefore_;  // heightsBefore_[k]: sum of heights_[0..k-1]
    mutable bool valid_ = false;
};

}  // namespace excel::embedded
