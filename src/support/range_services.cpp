#include "support/range_services.hpp"

#include <excel/areas.hpp>
#include <excel/object.hpp>
#include <excel/range.hpp>
#include <excel/worksheet.hpp>

#include <algorithm>
#include <vector>

namespace vos {

namespace {

// One rectangular block of cells in worksheet rows and columns, all bounds included.
struct Block {
    int32_t top;
    int32_t left;
    int32_t bottom;
    int32_t right;
};

Block BlockOf(const std::shared_ptr<excel::Range>& area) {
    const int32_t top = area->Row();
    const int32_t left = area->Column();
    return {top, left, top + area->Rows()->Count() - 1, left + area->Columns()->Count() - 1};
}

std::vector<Block> BlocksOf(const std::shared_ptr<excel::Range>& range) {
    const auto areas = range->Areas();
    std::vector<Block> blocks;
    for (int32_t i = 1; i <= areas->Count(); ++i)
        blocks.push_back(BlockOf(areas->Item(i)));
    return blocks;
}

// What is left of the block once the cut is taken away, as up to four blocks.
std::vector<Block> Subtract(const Block& block, const Block& cut) {
    if (cut.bottom < block.top || cut.top > block.bottom || cut.right < block.left || cut.left > block.right)
        return {block};
    std::vector<Block> rest;
    if (block.top < cut.top)
        rest.push_back({block.top, block.left, cut.top - 1, block.right});
    if (cut.bottom < block.bottom)
        rest.push_back({cut.bottom + 1, block.left, block.bottom, block.right});
    const int32_t top = std::max(block.top, cut.top);
    const int32_t bottom = std::min(block.bottom, cut.bottom);
    if (block.left < cut.left)
        rest.push_back({top, block.left, bottom, cut.left - 1});
    if (cut.right < block.right)
        rest.push_back({top, cut.right + 1, bottom, block.right});
    return rest;
}

// The first index in [1, count] whose start lies beyond the position, found by bisection over
// the ascending starts of rows or columns.
template <class StartOf>
int32_t FirstStartingBeyond(double position, int32_t count, StartOf startOf) {
    int32_t low = 1;
    int32_t high = count + 1;
    while (low < high) {
        const int32_t middle = low + (high - low) / 2;
        if (startOf(middle) > position)
            high = middle;
        else
            low = middle + 1;
    }
    return low;
}

}  // namespace

bool RangeServices::IsSameWorksheet(const std::shared_ptr<excel::Worksheet>& first,
                                    const std::shared_ptr<excel::Worksheet>& second) const {
    return first && second && excel::IsSameObject(first, second);
}

bool RangeServices::IsRangeWithinRange(const std::shared_ptr<excel::Range>& inner,
                                       const std::shared_ptr<excel::Range>& outer) const {
    if (!inner || !outer || !IsSameWorksheet(inner->Worksheet(), outer->Worksheet()))
        return false;
    std::vector<Block> uncovered = BlocksOf(inner);
    for (const Block& cut : BlocksOf(outer)) {
        std::vector<Block> remaining;
        for (const Block& block : uncovered) {
            const auto rest = Subtract(block, cut);
            remaining.insert(remaining.end(), rest.begin(), rest.end());
        }
        uncovered = std::move(remaining);
    }
    return uncovered.empty();
}

int32_t RangeServices::LastRowOfRange(const std::shared_ptr<excel::Range>& range) const {
    int32_t last = 0;
    for (const Block& block : BlocksOf(range))
        last = std::max(last, block.bottom);
    return last;
}

int32_t RangeServices::LastColumnOfRange(const std::shared_ptr<excel::Range>& range) const {
    int32_t last = 0;
    for (const Block& block : BlocksOf(range))
        last = std::max(last, block.right);
    return last;
}

std::shared_ptr<excel::Range> RangeServices::RangeOffset(const std::shared_ptr<excel::Range>& range, int32_t rowOffset,
                                                         int32_t columnOffset) const {
    if (!range)
        return nullptr;
    return range->Offset(rowOffset, columnOffset);
}

std::shared_ptr<excel::Range> RangeServices::RangeResize(const std::shared_ptr<excel::Range>& range, int32_t rowCount,
                                                         int32_t columnCount) const {
    if (rowCount == 0 || columnCount == 0)
        return nullptr;
    const excel::Variant rows = rowCount == KeepCount ? excel::Variant() : excel::Variant(rowCount);
    const excel::Variant columns = columnCount == KeepCount ? excel::Variant() : excel::Variant(columnCount);
    return range->Resize(rows, columns);
}

std::shared_ptr<excel::Range> RangeServices::CellAtPoint(const std::shared_ptr<excel::Worksheet>& sheet, double x,
                                                         double y) const {
    if (x < 0 || y < 0)
        return nullptr;
    const int32_t rowCount = sheet->Rows()->Count();
    const int32_t columnCount = sheet->Columns()->Count();
    const int32_t row = FirstStartingBeyond(y, rowCount, [&](int32_t r) { return sheet->Rows(r)->Top(); }) - 1;
    const int32_t column =
        FirstStartingBeyond(x, columnCount, [&](int32_t c) { return sheet->Columns(c)->Left(); }) - 1;
    const auto lastRow = sheet->Rows(rowCount);
    const auto lastColumn = sheet->Columns(columnCount);
    if (y >= lastRow->Top() + lastRow->Height() || x >= lastColumn->Left() + lastColumn->Width())
        return nullptr;
    return sheet->Cells(row, column);
}

void RangeServices::RangeBorderAround(const std::shared_ptr<excel::Range>& range, const excel::Variant& lineStyle,
                                      int32_t weight, int32_t colorIndex) const {
    range->BorderAround(lineStyle, weight, colorIndex);
}

}  // namespace vos
