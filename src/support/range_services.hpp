#pragma once

#include <excel/fwd.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <limits>
#include <memory>

namespace vos {

// Range helpers that the report elements compute their blocks with.
class RangeServices {
public:
    // A count that keeps the range's own number of rows or columns in RangeResize.
    static constexpr int32_t KeepCount = std::numeric_limits<int32_t>::min();

    // Whether the two references are the same worksheet; never for a missing one.
    bool IsSameWorksheet(const std::shared_ptr<excel::Worksheet>& first, const std::shared_ptr<excel::Worksheet>& second) const;
    // Whether every cell of the inner range lies in the outer range, both on one sheet.
    bool IsRangeWithinRange(const std::shared_ptr<excel::Range>& inner, const std::shared_ptr<excel::Range>& outer) const;
    // The worksheet row and column of the range's last row and column, over all its areas.
    int32_t LastRowOfRange(const std::shared_ptr<excel::Range>& range) const;
    int32_t LastColumnOfRange(const std::shared_ptr<excel::Range>& range) const;
    // The same-sized block moved down and right (up and left for negative offsets); none stays none.
    std::shared_ptr<excel::Range> RangeOffset(const std::shared_ptr<excel::Range>& range, int32_t rowOffset,
                                              int32_t columnOffset) const;
    // The block of that many rows and columns at the range's top-left cell; KeepCount keeps the
    // range's own count, and a count of 0 yields none (an area that does not exist).
    std::shared_ptr<excel::Range> RangeResize(const std::shared_ptr<excel::Range>& range, int32_t rowCount,
                                              int32_t columnCount) const;
    // The cell under the point (x, y), in points from the sheet's top-left corner; none for a
    // point left of or above the sheet, or beyond its last column or row.
    std::shared_ptr<excel::Range> CellAtPoint(const std::shared_ptr<excel::Worksheet>& sheet, double x, double y) const;
    // Draws an outline around the range.
    void RangeBorderAround(const std::shared_ptr<excel::Range>& range, const excel::Variant& lineStyle, int32_t weight,
                           int32_t colorIndex) const;
};

}  // namespace vos
