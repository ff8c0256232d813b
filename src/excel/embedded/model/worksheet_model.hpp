#pragma once

#include "excel/embedded/format/format_change.hpp"
#include "excel/embedded/model/block_shift.hpp"
#include "excel/embedded/model/cell_address.hpp"
#include "excel/embedded/model/cells/cell_store.hpp"
#include "excel/embedded/model/cells/column_store.hpp"
#include "excel/embedded/model/geometry/row_geometry.hpp"
#include "excel/embedded/model/shapes/shape_list.hpp"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ooxml {
struct CarriedWorksheet;
}  // namespace ooxml

namespace excel::embedded {

class WorkbookModel;

// View and print settings of a sheet.
struct SheetSettings {
    std::string name;
    int32_t visibility = -1;  // xlSheetVisible
    bool showGridlines = true;
    bool printGridlines = false;
    bool showPageBreaks = false;
    double defaultRowHeight = 15.0;
    double standardWidth = 8.43;  // characters
    // The default column width an opened file gave, in the file's units, saved again unchanged.
    std::optional<double> fileStandardWidth;
    std::string activeCell = "A1";
};

// A worksheet's content: cells, row and column formats and sizes, merged blocks, drawing objects,
// settings.
// Owned by its workbook; views hold it by shared_ptr and ask Alive() first, because a deleted
// sheet or a closed workbook leaves them holding a detached model.
// Defined in worksheet_model.cpp and worksheet_model_shift.cpp (inserting and deleting cells).
class WorksheetModel : public std::enable_shared_from_this<WorksheetModel> {
public:
    WorksheetModel(WorkbookModel& book, std::string name);

    bool Alive() const { return book_ != nullptr; }
    void Detach() { book_ = nullptr; }
    // The owning workbook; throws Object required once detached.
    WorkbookModel& Book() const;

    SheetSettings& Settings() { return settings_; }
    const SheetSettings& Settings() const { return settings_; }
    const std::string& Name() const { return settings_.name; }
    CellStore& Cells() { return cells_; }
    const CellStore& Cells() const { return cells_; }
    ColumnStore& Columns() { return columns_; }
    const ColumnStore& Columns() const { return columns_; }
    ShapeList& Shapes() { return shapes_; }
    const ShapeList& Shapes() const { return shapes_; }
    std::vector<CellBlock>& Merges() { return merges_; }
    const std::vector<CellBlock>& Merges() const { return merges_; }

    // The format a position shows: its cell's, else its row's, else its column's, else default.
    uint32_t ResolvedFormat(int32_t row, int32_t column) const;
    // Applies the change to every position of the block; whole rows, columns and the whole sheet
    // change row and column formats plus the cells already stored, never creating the others.
    void ApplyFormat(const CellBlock& block, FormatChange& change);
    // The distinct formats shown over the block, found without visiting empty positions.
    std::vector<uint32_t> DistinctFormats(const CellBlock& block) const;

    // Visits every position of the block (creating cells) so write can set its content; the cell
    // comes with its stored content or blank with the format the position shows.
    void WriteCells(const CellBlock& block, const std::function<void(int32_t row, int32_t column, Cell& cell)>& write);
    // Clears the values of the block; the cells left blank with the format of their row or column
    // are no longer stored.
    void ClearValues(const CellBlock& block);
    // Visits the stored cells of the block.
    void ForEachStoredCell(const CellBlock& block, const std::function<void(int32_t row, Cell& cell)>& visit);

    // The merged block holding the position, if any.
    std::optional<CellBlock> MergeAt(int32_t row, int32_t column) const;
    // Merges the block, absorbing merges it overlaps; the first value in reading order is kept,
    // in the top-left cell.
    void Merge(const CellBlock& block);
    void Unmerge(const CellBlock& block);
    // Whether the block holds part of a merged block but not all of it.
    bool CutsMerge(const CellBlock& block) const;

    // Geometry in points.
    double ColumnWidthChars(int32_t column) const;
    double ColumnPoints(int32_t column) const;
    double ColumnsPoints(int32_t left, int32_t right) const;
    double RowsPoints(int32_t top, int32_t bottom) const;
    RowPoint RowAt(double y) const;
    // To be called after row heights change or rows are hidden, shown or moved.
    void RowHeightsChanged() { rowGeometry_.Invalidate(); }

    // How inserting or deleting the block moves cells: whole rows always shift vertically, whole
    // columns horizontally, other blocks as asked.
    static BlockShift ShiftFor(const CellBlock& block, bool vertical, bool insert);
    // Insert and Delete; each validates before changing anything and throws Refused when nonblank
    // cells would leave the sheet or a merged block would be cut.
    void ShiftCells(const BlockShift& shift);
    // Every shift applied so far, oldest first; views replay the ones newer than they are.
    const std::vector<BlockShift>& ShiftsApplied() const { return shiftsApplied_; }

    // What the opened sheet held that the engine does not model (conditional formats, page setup,
    // tables, pictures, ...), kept to be saved again. The engine holds it and never looks inside:
    // only the document conversion does.
    const std::shared_ptr<const ooxml::CarriedWorksheet>& Carried() const { return carried_; }
    void SetCarried(std::shared_ptr<const ooxml::CarriedWorksheet> carried) { carried_ = std::move(carried); }

private:
    // The format a cell of the row shows when it is not stored: the row's own, else its column's.
    uint32_t formatUnderneath(const RowData& row, int32_t column) const {
        return row.hasFormat ? row.format : columns_.Get(column).format;
    }
    void applyToWholeRows(int32_t top, int32_t bottom, FormatChange& change);
    void applyToWholeColumns(int32_t left, int32_t right, FormatChange& change);
    void applyToWholeSheet(FormatChange& change);
    double widthChars(const ColumnInfo& info) const;
    double points(const ColumnInfo& info) const;
    void moveCells(const BlockShift& shift);
    void moveCellsAcross(const BlockShift& shift);
    void moveCellsAlongColumns(const BlockShift& shift);
    void shiftMerges(const BlockShift& shift);
    void copyFormatsIntoInserted(const BlockShift& shift);

    WorkbookModel* book_;
    SheetSettings settings_;
    CellStore cells_;
    ColumnStore columns_;
    std::vector<CellBlock> merges_;
    ShapeList shapes_;
    std::vector<BlockShift> shiftsApplied_;
    RowGeometry rowGeometry_;
    std::shared_ptr<const ooxml::CarriedWorksheet> carried_;
};

}  // namespace excel::embedded
