#include "excel/embedded/model/worksheet_model.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/model/geometry/geometry.hpp"

#include <algorithm>

namespace excel::embedded {

WorksheetModel::WorksheetModel(WorkbookModel& book, std::string name) : book_(&book) {
    settings_.name = std::move(name);
}

WorkbookModel& WorksheetModel::Book() const {
    if (book_ == nullptr) {
        ThrowObjectRequired();
    }
    return *book_;
}

uint32_t WorksheetModel::ResolvedFormat(int32_t row, int32_t column) const {
    if (const RowData* data = cells_.FindRow(row)) {
        if (const Cell* cell = data->Find(column)) {
            return cell->format;
        }
        if (data->hasFormat) {
            return data->format;
        }
    }
    return columns_.Get(column).format;
}

void WorksheetModel::ApplyFormat(const CellBlock& block, FormatChange& change) {
    const bool allRows = block.top == 1 && block.bottom == MaxRow;
    const bool allColumns = block.left == 1 && block.right == MaxColumn;
    if (allRows && allColumns) {
        applyToWholeSheet(change);
    } else if (allColumns) {
        applyToWholeRows(block.top, block.bottom, change);
    } else if (allRows) {
        applyToWholeColumns(block.left, block.right, change);
    } else {
        const size_t first = cells_.EnsureRows(block.top, block.bottom);
        auto& rows = cells_.Rows();
        for (size_t i = first; i < first + static_cast<size_t>(block.Rows()); ++i) {
            RowData& row = rows[i];
            row.UpdateRange(block.left, block.right, [&](int32_t column, const Cell* existing, Cell& result) {
                const uint32_t underneath = formatUnderneath(row, column);
                result.format = change.Apply(existing ? existing->format : underneath);
                // A blank cell is kept only for a format its row or column does not give it.
                return (existing && existing->HasValue()) || result.format != underneath;
            });
        }
    }
}

void WorksheetModel::applyToWholeSheet(FormatChange& change) {
    columns_.Update(1, MaxColumn, [&](ColumnInfo& info) { info.format = change.Apply(info.format); });
    for (RowData& row : cells_.Rows()) {
        if (row.hasFormat) {
            row.format = change.Apply(row.format);
        }
        for (Cell& cell : row.cells) {
            cell.format = change.Apply(cell.format);
        }
    }
}

void WorksheetModel::applyToWholeRows(int32_t top, int32_t bottom, FormatChange& change) {
    // A row without its own format shows its columns' formats. It takes the change of the most
    // common column format; positions under columns whose change differs become cells.
    // Few distinct column formats in practice: count them in a small list.
    std::vector<std::pair<uint32_t, int32_t>> counts;
    columns_.ForEachSpan(1, MaxColumn, [&](int32_t first, int32_t last, const ColumnInfo& info) {
        auto it =
            std::find_if(counts.begin(), counts.end(), [&](const auto& entry) { return entry.first == info.format; });
        if (it == counts.end()) {
            counts.emplace_back(info.format, last - first + 1);
        } else {
            it->second += last - first + 1;
        }
    });
    const uint32_t base = std::max_element(counts.begin(), counts.end(), [](const auto& a, const auto& b) {
                              return a.second < b.second;
                          })->first;
    std::vector<ColumnRun> exceptions;
    columns_.ForEachSpan(1, MaxColumn, [&](int32_t first, int32_t last, const ColumnInfo& info) {
        if (info.format != base && change.Apply(info.format) != change.Apply(base)) {
            exceptions.push_back(ColumnRun{first, last, ColumnInfo{.format = change.Apply(info.format)}});
        }
    });
    const uint32_t changedBase = change.Apply(base);
    const size_t first = cells_.EnsureRows(top, bottom);
    auto& rows = cells_.Rows();
    for (size_t i = first; i < first + static_cast<size_t>(bottom - top + 1); ++i) {
        RowData& row = rows[i];
        for (Cell& cell : row.cells) {
            cell.format = change.Apply(cell.format);
        }
        if (row.hasFormat) {
            row.format = change.Apply(row.format);
            continue;
        }
        row.hasFormat = true;
        row.format = changedBase;
        for (const ColumnRun& exception : exceptions) {
            for (int32_t column = exception.first; column <= exception.last; ++column) {
                auto it = row.LowerBound(column);
                if (it == row.cells.end() || it->column != column) {
                    row.cells.insert(it, Cell::Blank(column, exception.info.format));
                }
            }
        }
    }
}

void WorksheetModel::applyToWholeColumns(int32_t left, int32_t right, FormatChange& change) {
    columns_.Update(left, right, [&](ColumnInfo& info) { info.format = change.Apply(info.format); });
    for (RowData& row : cells_.Rows()) {
        if (!row.hasFormat) {
            for (Cell& cell : row.CellsIn(left, right)) {
                cell.format = change.Apply(cell.format);
            }
            continue;
        }
        // A row format covers these columns in this row: the positions become cells.
        row.UpdateRange(left, right, [&](int32_t, const Cell* existing, Cell& result) {
            result.format = change.Apply(existing ? existing->format : row.format);
            return true;
        });
    }
}

std::vector<uint32_t> WorksheetModel::DistinctFormats(const CellBlock& block) const {
    std::vector<uint32_t> found;
    std::vector<char> seen;
    auto add = [&](uint32_t id) {
        if (id >= seen.size()) {
            seen.resize(id + 1, 0);
        }
        if (!seen[id]) {
            seen[id] = 1;
            found.push_back(id);
        }
    };
    bool columnFormatsAdded = false;
    auto addColumnFormats = [&] {
        if (columnFormatsAdded) {
            return;
        }
        columnFormatsAdded = true;
        columns_.ForEachSpan(block.left, block.right,
                             [&](int32_t, int32_t, const ColumnInfo& info) { add(info.format); });
    };
    const auto [first, last] = cells_.RowSpan(block.top, block.bottom);
    if (static_cast<int64_t>(last - first) < block.Rows()) {
        addColumnFormats();
    }
    const auto& rows = cells_.Rows();
    for (size_t i = first; i < last; ++i) {
        const RowData& row = rows[i];
        const auto cells = row.CellsIn(block.left, block.right);
        for (const Cell& cell : cells) {
            add(cell.format);
        }
        if (static_cast<int32_t>(cells.size()) < block.Columns()) {
            if (row.hasFormat) {
                add(row.format);
            } else {
                addColumnFormats();
            }
        }
    }
    return found;
}

void WorksheetModel::WriteCells(const CellBlock& block,
                                const std::function<void(int32_t row, int32_t column, Cell& cell)>& write) {
    const size_t first = cells_.EnsureRows(block.top, block.bottom);
    auto& rows = cells_.Rows();
    for (size_t i = first; i < first + static_cast<size_t>(block.Rows()); ++i) {
        RowData& row = rows[i];
        if (block.left == block.right) {
            const int32_t column = block.left;
            auto it = row.LowerBound(column);
            if (it == row.cells.end() || it->column != column) {
                it =
                    row.cells.insert(it, Cell::Blank(column, formatUnderneath(row, column)));
            }
            write(row.index, column, *it);
            continue;
        }
        row.UpdateRange(block.left, block.right, [&](int32_t column, const Cell* existing, Cell& result) {
            if (!existing) {
                result.format = formatUnderneath(row, column);
            }
            write(row.index, column, result);
            return true;
        });
    }
}

void WorksheetModel::ClearValues(const CellBlock& block) {
    const auto [first, last] = cells_.RowSpan(block.top, block.bottom);
    auto& rows = cells_.Rows();
    for (size_t i = first; i < last; ++i) {
        RowData& row = rows[i];
        const auto end = row.LowerBound(block.right + 1);
        const auto kept = std::remove_if(row.LowerBound(block.left), end, [&](Cell& cell) {
            cell.ClearValue();
            return cell.format == formatUnderneath(row, cell.column);
        });
        row.cells.erase(kept, end);
    }
}

void WorksheetModel::ForEachStoredCell(const CellBlock& block,
                                       const std::function<void(int32_t row, Cell& cell)>& visit) {
    const auto [first, last] = cells_.RowSpan(block.top, block.bottom);
    auto& rows = cells_.Rows();
    for (size_t i = first; i < last; ++i) {
        for (Cell& cell : rows[i].CellsIn(block.left, block.right)) {
            visit(rows[i].index, cell);
        }
    }
}

std::optional<CellBlock> WorksheetModel::MergeAt(int32_t row, int32_t column) const {
    for (const CellBlock& merge : merges_) {
        if (merge.Contains(row, column)) {
            return merge;
        }
    }
    return std::nullopt;
}

void WorksheetModel::Merge(const CellBlock& block) {
    CellBlock merged = block;
    for (bool grown = true; grown;) {
        grown = false;
        for (const CellBlock& merge : merges_) {
            if (merge.Intersects(merged) && !merged.Contains(merge)) {
                merged = CellBlock{std::min(merged.top, merge.top), std::min(merged.left, merge.left),
                                   std::max(merged.bottom, merge.bottom), std::max(merged.right, merge.right)};
                grown = true;
            }
        }
    }
    std::erase_if(merges_, [&](const CellBlock& merge) { return merged.Contains(merge); });
    if (merged.CellCount() > 1) {
        merges_.push_back(merged);
    }
    // Excel keeps the first value in reading order and moves it into the top-left cell.
    std::optional<Cell> kept;
    ForEachStoredCell(merged, [&](int32_t, Cell& cell) {
        if (cell.HasValue()) {
            if (!kept) {
                kept = cell;
            }
            cell.ClearValue();
        }
    });
    if (kept) {
        WriteCells({merged.top, merged.left, merged.top, merged.left}, [&](int32_t, int32_t, Cell& cell) {
            Cell value = *kept;
            value.column = cell.column;
            value.format = cell.format;
            cell = value;
        });
    }
}

bool WorksheetModel::CutsMerge(const CellBlock& block) const {
    return std::any_of(merges_.begin(), merges_.end(),
                       [&](const CellBlock& merge) { return merge.Intersects(block) && !block.Contains(merge); });
}

void WorksheetModel::Unmerge(const CellBlock& block) {
    std::erase_if(merges_, [&](const CellBlock& merge) { return merge.Intersects(block); });
}

double WorksheetModel::ColumnWidthChars(int32_t column) const {
    return widthChars(columns_.Get(column));
}

double WorksheetModel::ColumnPoints(int32_t column) const {
    return points(columns_.Get(column));
}

double WorksheetModel::ColumnsPoints(int32_t left, int32_t right) const {
    double sum = 0.0;
    columns_.ForEachSpan(left, right, [&](int32_t first, int32_t last, const ColumnInfo& info) {
        sum += (last - first + 1) * points(info);
    });
    return sum;
}

double WorksheetModel::widthChars(const ColumnInfo& info) const {
    return info.HasWidth() ? info.width : settings_.standardWidth;
}

double WorksheetModel::points(const ColumnInfo& info) const {
    return info.hidden ? 0.0 : ColumnWidthToPoints(widthChars(info));
}

double WorksheetModel::RowsPoints(int32_t top, int32_t bottom) const {
    return rowGeometry_.Points(cells_, top, bottom, settings_.defaultRowHeight);
}

RowPoint WorksheetModel::RowAt(double y) const {
    return rowGeometry_.RowAt(cells_, y, settings_.defaultRowHeight);
}

}  // namespace excel::embedded
