#pragma once

#include "excel/embedded/model/cell_address.hpp"
#include "ooxml/reference/formula_reference_mover.hpp"

#include <cstdint>
#include <optional>
#include <vector>

namespace excel::embedded {

// Cells inserted or deleted along one axis within a band of the other: inserting rows t..t+n-1 in
// columns l..r moves everything of those columns from row t down by n. Whole rows or columns
// have a band covering the whole sheet.
struct BlockShift {
    bool vertical = true;   // rows move (down on insert, up on delete)
    int32_t bandFirst = 1;  // columns (vertical) or rows (horizontal) that move
    int32_t bandLast = MaxColumn;
    int32_t at = 1;  // first inserted or deleted row (vertical) or column
    int32_t count = 1;
    bool insert = true;
    // Inserted cells take the formats of the cells after them (right or below), not before.
    bool formatFromAfter = false;
};

// Where a block ends up: moved, grown, shrunk, or nullopt when all of it was deleted. A block not
// within the band, or spanning the whole sheet along the shift, is unchanged.
std::optional<CellBlock> ShiftBlock(const CellBlock& block, const BlockShift& shift);

// Where the shifts, applied in turn, take a block of cells as formulas and the file count them.
ooxml::CellBlockMove FileBlockMove(std::vector<BlockShift> shifts);

// Whether a block lies partly inside the band and partly outside it where cells move, so shifting
// would cut it (Excel refuses to shift part of a merged block).
bool ShiftCutsBlock(const CellBlock& block, const BlockShift& shift);

}  // namespace excel::embedded
