#include "excel/embedded/model/worksheet_model.hpp"

#include "excel/embedded/engine_errors.hpp"

#include <algorithm>
#include <utility>

namespace excel::embedded {

namespace {

bool WholeBand(const BlockShift& shift) {
    return shift.bandFirst == 1 && shift.bandLast == (shift.vertical ? MaxColumn : MaxRow);
}

// Moves the cells of one row at or right of shift.at, dropping deleted ones and those pushed off.
void ShiftRowCells(RowData& row, const BlockShift& shift) {
    auto first = row.LowerBound(shift.at);
    if (shift.insert) {
        for (auto it = first; it != row.cells.end(); ++it) {
            it->column = static_cast<uint16_t>(std::min<int32_t>(it->column + shift.count, MaxColumn + 1));
        }
        std::erase_if(row.cells, [](const Cell& cell) { return cell.column > MaxColumn; });
        return;
    }
    auto afterDeleted = row.LowerBound(shift.at + shift.count);
    for (auto it = afterDeleted; it != row.cells.end(); ++it) {
        it->column = static_cast<uint16_t>(it->column - shift.count);
    }
    row.cells.erase(first, afterDeleted);
}

}  // namespace

BlockShift WorksheetModel::ShiftFor(const CellBlock& block, bool vertical, bool insert) {
    const bool wholeRows = block.left == 1 && block.right == MaxColumn;
    const bool wholeColumns = block.top == 1 && block.bottom == MaxRow;
    if (wholeRows != wholeColumns) {
        vertical = wholeRows;
    }
    BlockShift shift;
    shift.vertical = vertical;
    shift.insert = insert;
    shift.bandFirst = vertical ? block.left : block.top;
    shift.bandLast = vertical ? block.right : block.bottom;
    shift.at = vertical ? block.top : block.left;
    shift.count = vertical ? block.Rows() : block.Columns();
    return shift;
}

void WorksheetModel::ShiftCells(const BlockShift& shift) {
    if (shift.insert) {
        // Nonblank cells in the last rows or columns of the band would be pushed off the sheet.
        const CellBlock edge = shift.vertical
                                   ? CellBlock{MaxRow - shift.count + 1, shift.bandFirst, MaxRow, shift.bandLast}
                                   : CellBlock{shift.bandFirst, MaxColumn - shift.count + 1, shift.bandLast, MaxColumn};
        bool nonblank = false;
        ForEachStoredCell(edge, [&](int32_t, Cell& cell) { nonblank = nonblank || cell.HasValue(); });
        if (nonblank) {
            ThrowRefused("To prevent possible loss of data, Excel cannot shift nonblank cells off of the worksheet.");
        }
    }
    for (const CellBlock& merge : merges_) {
        if (ShiftCutsBlock(merge, shift)) {
            ThrowRefused("Cannot change part of a merged cell.");
        }
    }
    moveCells(shift);
    RowHeightsChanged();
    shiftMerges(shift);
    shapes_.Shift(shift);
    if (shift.insert) {
        copyFormatsIntoInserted(shift);
        RowHeightsChanged();
    }
    shiftsApplied_.push_back(shift);
}

void WorksheetModel::moveCells(const BlockShift& shift) {
    if (!shift.vertical) {
        moveCellsAcross(shift);
        return;
    }
    if (!WholeBand(shift)) {
        moveCellsAlongColumns(shift);
        return;
    }
    auto& rows = cells_.Rows();
    if (shift.insert) {
        for (RowData& row : rows) {
            if (row.index >= shift.at) {
                row.index = std::min(row.index + shift.count, MaxRow + 1);
            }
        }
        std::erase_if(rows, [](const RowData& row) { return row.index > MaxRow; });
        return;
    }
    const auto [first, last] = cells_.RowSpan(shift.at, shift.at + shift.count - 1);
    rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(first), rows.begin() + static_cast<std::ptrdiff_t>(last));
    for (RowData& row : rows) {
        if (row.index >= shift.at) {
            row.index -= shift.count;
        }
    }
}

void WorksheetModel::moveCellsAcross(const BlockShift& shift) {
    const auto [first, last] = cells_.RowSpan(shift.bandFirst, shift.bandLast);
    auto& rows = cells_.Rows();
    for (size_t i = first; i < last; ++i) {
        ShiftRowCells(rows[i], shift);
    }
    if (WholeBand(shift)) {
        if (shift.insert) {
            columns_.Insert(shift.at, shift.count, shift.formatFromAfter ? shift.at : shift.at - 1);
        } else {
            columns_.Remove(shift.at, shift.count);
        }
    }
}

void WorksheetModel::moveCellsAlongColumns(const BlockShift& shift) {
    // Takes the band's cells out from shift.at down and puts them back at their new rows.
    std::vector<std::pair<int32_t, Cell>> moved;
    const int32_t lastDeleted = shift.at + shift.count - 1;
    const auto [first, last] = cells_.RowSpan(shift.at, MaxRow);
    auto& rows = cells_.Rows();
    for (size_t i = first; i < last; ++i) {
        RowData& row = rows[i];
        const auto cells = row.CellsIn(shift.bandFirst, shift.bandLast);
        for (const Cell& cell : cells) {
            if (shift.insert) {
                moved.emplace_back(row.index + shift.count, cell);
            } else if (row.index > lastDeleted) {
                moved.emplace_back(row.index - shift.count, cell);
            }
        }
        row.cells.erase(
            row.cells.begin() + (cells.data() - row.cells.data()),
            row.cells.begin() + (cells.data() - row.cells.data()) + static_cast<std::ptrdiff_t>(cells.size()));
    }
    for (const auto& [rowIndex, cell] : moved) {
        if (rowIndex > MaxRow) {
            continue;
        }
        RowData& row = cells_.EnsureRow(rowIndex);
        row.cells.insert(row.LowerBound(cell.column), cell);
    }
    cells_.DropBareRows();
}

void WorksheetModel::shiftMerges(const BlockShift& shift) {
    std::vector<CellBlock> shifted;
    for (const CellBlock& merge : merges_) {
        if (auto moved = ShiftBlock(merge, shift); moved && moved->CellCount() > 1) {
            shifted.push_back(*moved);
        }
    }
    merges_ = std::move(shifted);
}

void WorksheetModel::copyFormatsIntoInserted(const BlockShift& shift) {
    // Inserted cells take the formats of the row above or the column to the left, or of the
    // cells that moved out of the way.
    const int32_t source = shift.formatFromAfter ? shift.at + shift.count : shift.at - 1;
    if (source < 1 || source > (shift.vertical ? MaxRow : MaxColumn)) {
        return;
    }
    const int32_t lastInserted = std::min(shift.at + shift.count - 1, shift.vertical ? MaxRow : MaxColumn);
    if (shift.vertical) {
        const RowData* above = cells_.FindRow(source);
        if (above == nullptr) {
            return;
        }
        const RowData copy = *above;
        const bool wholeRows = WholeBand(shift);
        for (int32_t index = shift.at; index <= lastInserted; ++index) {
            RowData& row = cells_.EnsureRow(index);
            if (wholeRows) {
                row.hasFormat = copy.hasFormat;
                row.format = copy.format;
                row.height = copy.height;
                row.fittedHeight = copy.fittedHeight;
            }
            for (const Cell& cell : copy.CellsIn(shift.bandFirst, shift.bandLast)) {
                const uint32_t shown = formatUnderneath(row, cell.column);
                if (cell.format != shown) {
                    row.cells.insert(row.LowerBound(cell.column), Cell::Blank(cell.column, cell.format));
                }
            }
        }
        return;
    }
    const auto [first, last] = cells_.RowSpan(shift.bandFirst, shift.bandLast);
    auto& rows = cells_.Rows();
    for (size_t i = first; i < last; ++i) {
        RowData& row = rows[i];
        const Cell* left = row.Find(source);
        if (left == nullptr) {
            continue;
        }
        const uint32_t format = left->format;
        row.UpdateRange(shift.at, lastInserted, [&](int32_t column, const Cell*, Cell& result) {
            const uint32_t shown = formatUnderneath(row, column);
            result.format = format;
            return format != shown;
        });
    }
}

}  // namespace excel::embedded
