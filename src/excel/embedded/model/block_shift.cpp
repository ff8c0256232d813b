#include "excel/embedded/model/block_shift.hpp"

namespace excel::embedded {

namespace {

struct Span {
    int32_t first;
    int32_t last;
};

Span AlongAxis(const CellBlock& block, bool vertical) {
    return vertical ? Span{block.top, block.bottom} : Span{block.left, block.right};
}

Span AcrossAxis(const CellBlock& block, bool vertical) {
    return vertical ? Span{block.left, block.right} : Span{block.top, block.bottom};
}

}  // namespace

std::optional<CellBlock> ShiftBlock(const CellBlock& block, const BlockShift& shift) {
    const Span across = AcrossAxis(block, shift.vertical);
    if (across.first < shift.bandFirst || across.last > shift.bandLast) {
        return block;
    }
    const int32_t limit = shift.vertical ? MaxRow : MaxColumn;
    Span along = AlongAxis(block, shift.vertical);
    // Whole columns stay whole when rows come and go, and whole rows when columns do.
    if (along.first == 1 && along.last == limit) {
        return block;
    }
    if (shift.insert) {
        if (along.first >= shift.at) {
            along.first += shift.count;
            along.last += shift.count;
        } else if (along.last >= shift.at) {
            along.last += shift.count;
        }
        if (along.first > limit) {
            return std::nullopt;
        }
        along.last = along.last > limit ? limit : along.last;
    } else {
        const int32_t lastDeleted = shift.at + shift.count - 1;
        if (along.first > lastDeleted) {
            along.first -= shift.count;
            along.last -= shift.count;
        } else if (along.last >= shift.at) {
            const int32_t first = along.first < shift.at ? along.first : shift.at;
            const int32_t last = along.last > lastDeleted ? along.last - shift.count : shift.at - 1;
            if (last < first) {
                return std::nullopt;
            }
            along = {first, last};
        }
    }
    CellBlock result = block;
    if (shift.vertical) {
        result.top = along.first;
        result.bottom = along.last;
    } else {
        result.left = along.first;
        result.right = along.last;
    }
    return result;
}

ooxml::CellBlockMove FileBlockMove(std::vector<BlockShift> shifts) {
    return [shifts = std::move(shifts)](const ooxml::CellBlock& block) -> std::optional<ooxml::CellBlock> {
        std::optional<CellBlock> moved =
            CellBlock{static_cast<int32_t>(block.firstRow), static_cast<int32_t>(block.firstColumn),
                      static_cast<int32_t>(block.lastRow), static_cast<int32_t>(block.lastColumn)};
        for (const BlockShift& shift : shifts) {
            moved = ShiftBlock(*moved, shift);
            if (!moved) {
                return std::nullopt;
            }
        }
        return ooxml::CellBlock{static_cast<uint32_t>(moved->top), static_cast<uint32_t>(moved->left),
                                static_cast<uint32_t>(moved->bottom), static_cast<uint32_t>(moved->right)};
    };
}

bool ShiftCutsBlock(const CellBlock& block, const BlockShift& shift) {
    const Span across = AcrossAxis(block, shift.vertical);
    const Span along = AlongAxis(block, shift.vertical);
    const bool overlapsBand = across.last >= shift.bandFirst && across.first <= shift.bandLast;
    const bool withinBand = across.first >= shift.bandFirst && across.last <= shift.bandLast;
    return overlapsBand && !withinBand && along.last >= shift.at;
}

}  // namespace excel::embedded
