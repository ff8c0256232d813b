#include "ooxml/worksheet/worksheet_part.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/carried/carried_element_writer.hpp"
#include "ooxml/document/sheet_rows.hpp"
#include "ooxml/package_error.hpp"
#include "ooxml/reference/column_name.hpp"
#include "ooxml/worksheet/unresolvable_references.hpp"
#include "ooxml/worksheet/worksheet_element_order.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <vector>

namespace ooxml {

namespace {

constexpr uint32_t kMaxRows = 1048576;
constexpr uint32_t kMaxColumns = 16384;
// Excel's standard column width in the file's units for the Calibri 11 Normal font (8.43 characters
// plus cell padding). A col element must carry a width (Excel reads a missing one as 0, hiding the
// columns), so ranges that set only a format or visibility get the sheet's standard width.
constexpr double kStandardColumnWidth = 9.140625;

// Column names ("A" .. "XFD") by column number, made once per column.
class ColumnNames {
public:
    std::string_view Name(uint32_t column) {
        while (names_.size() <= column) {
            names_.push_back(ColumnName(static_cast<uint32_t>(names_.size())));
        }
        return names_[column];
    }

private:
    std::vector<std::string> names_;
};

// A cell reference ("B12") composed in place.
class CellReference {
public:
    std::string_view Compose(std::string_view column, uint32_t row) {
        std::copy(column.begin(), column.end(), text_);
        char* end = std::to_chars(text_ + column.size(), text_ + sizeof text_, row).ptr;
        return std::string_view(text_, static_cast<std::size_t>(end - text_));
    }

private:
    char text_[16];
};

[[noreturn]] void Malformed(const SheetDocument& sheet, const std::string& problem) {
    throw PackageError(PackageError::Reason::WriteFailed, "sheet \"" + sheet.name + "\": " + problem);
}

class WorksheetWriter {
public:
    WorksheetWriter(XmlWriter& xml, const WorkbookDocument& document, const SheetDocument& sheet,
                    const SharedStringTable& sharedStrings, const SheetDrawingReferences& drawings,
                    const ReferenceTargets& targets)
        : xml_(xml),
          document_(document),
          sheet_(sheet),
          carried_(sheet.carried.get()),
          sharedStrings_(sharedStrings),
          drawings_(drawings),
          targets_(targets) {}

    // The elements in the order the worksheet schema requires, the ones the opened sheet had
    // beyond the model among them.
    void Write() {
        xml_.Declaration();
        xml_.StartElement("worksheet");
        xml_.Attribute("xmlns", "http://schemas.openxmlformats.org/spreadsheetml/2006/main");
        xml_.Attribute("xmlns:r", "http://schemas.openxmlformats.org/officeDocument/2006/relationships");
        if (carried_ != nullptr) {
            WriteCarriedAttributes(xml_, carried_->worksheet.rootAttributes);
        }
        CarriedElementWriter carried(xml_, carried_ != nullptr ? &carried_->worksheet.elements : nullptr);
        if (!drawings_.legacyDrawing.empty()) {
            carried.Drop("legacyDrawing");
        }
        const auto before = [&carried](std::string_view name) { carried.Before(WorksheetElementOrder.Slot(name)); };
        before("dimension");
        WriteDimension();
        before("sheetViews");
        WriteSheetViews();
        before("sheetFormatPr");
        WriteSheetFormat();
        before("cols");
        WriteColumns();
        before("sheetData");
        WriteSheetData();
        before("mergeCells");
        WriteMerges();
        before("printOptions");
        WritePrintOptions();
        before("pageMargins");
        if (!carried.Carries("pageMargins")) {
            WritePageMargins();
        }
        before("drawing");
        WriteReference("drawing", drawings_.drawing);
        before("legacyDrawing");
        WriteReference("legacyDrawing", drawings_.legacyDrawing);
        carried.Rest();
        xml_.EndElement();
    }

private:
    void CheckFormat(uint32_t format) const {
        if (format >= document_.formats.size()) {
            Malformed(sheet_, "format " + std::to_string(format) + " does not exist");
        }
    }

    void WriteDimension() {
        uint32_t firstRow = 0, lastRow = 0, firstColumn = kMaxColumns, lastColumn = 0;
        ForEachRow(sheet_, [&](const RowView& view) {
            const Row& row = view.row;
            if (row.cells.empty()) {
                return;
            }
            firstRow = firstRow == 0 ? row.index : firstRow;
            lastRow = row.index;
            firstColumn = std::min(firstColumn, row.cells.front().column);
            lastColumn = std::max(lastColumn, row.cells.back().column);
        });
        xml_.StartElement("dimension");
        if (firstRow == 0) {
            xml_.AttributeVerbatim("ref", "A1");
        } else {
            xml_.Attribute("ref", BlockReference(CellBlock{firstRow, firstColumn, lastRow, lastColumn}));
        }
        xml_.EndElement();
    }

    void WriteSheetViews() {
        xml_.StartElement("sheetViews");
        xml_.StartElement("sheetView");
        if (!sheet_.showGridLines) {
            xml_.Attribute("showGridLines", "0");
        }
        if (sheet_.tabSelected) {
            xml_.Attribute("tabSelected", "1");
        }
        if (carried_ != nullptr) {
            WriteCarriedAttributes(xml_, carried_->sheetViewAttributes);
        }
        xml_.Attribute("workbookViewId", 0);
        if (carried_ == nullptr) {
            WriteSelection("");
        } else {
            WriteCarriedViewChildren(*carried_);
        }
        xml_.EndElement();
        xml_.EndElement();
    }

    // The opened view's pane and selections; the active pane's selection as it was while the
    // active cell stays, the engine's own once it moved.
    void WriteCarriedViewChildren(const CarriedWorksheet& carried) {
        xml_.Raw(carried.pane);
        const bool moved = sheet_.activeCell != carried.activeCell;
        if (!carried.activeSelection) {
            WriteSelection(carried.activePane);
        }
        for (std::size_t i = 0; i < carried.viewChildren.size(); ++i) {
            if (i == carried.activeSelection && moved) {
                WriteSelection(carried.activePane);
            } else {
                xml_.Raw(carried.viewChildren[i]);
            }
        }
    }

    void WriteSelection(std::string_view pane) {
        if (sheet_.activeCell.empty() || (sheet_.activeCell == "A1" && pane.empty())) {
            return;
        }
        xml_.StartElement("selection");
        if (!pane.empty()) {
            xml_.Attribute("pane", pane);
        }
        xml_.Attribute("activeCell", sheet_.activeCell);
        xml_.Attribute("sqref", sheet_.activeCell);
        xml_.EndElement();
    }

    void WriteSheetFormat() {
        xml_.StartElement("sheetFormatPr");
        if (sheet_.defaultColumnWidth) {
            xml_.Attribute("defaultColWidth", *sheet_.defaultColumnWidth);
        }
        xml_.Attribute("defaultRowHeight", sheet_.defaultRowHeight);
        if (carried_ != nullptr) {
            WriteCarriedAttributes(xml_, carried_->sheetFormatAttributes);
        }
        xml_.EndElement();
    }

    void WriteColumns() {
        if (sheet_.columns.empty()) {
            return;
        }
        xml_.StartElement("cols");
        for (const ColumnRange& range : sheet_.columns) {
            if (range.first < 1 || range.first > range.last || range.last > kMaxColumns) {
                Malformed(sheet_, "column range " + std::to_string(range.first) + ":" + std::to_string(range.last) +
                                      " is not valid");
            }
            xml_.StartElement("col");
            xml_.Attribute("min", range.first);
            xml_.Attribute("max", range.last);
            xml_.Attribute("width", range.width.value_or(sheet_.defaultColumnWidth.value_or(kStandardColumnWidth)));
            if (range.format) {
                CheckFormat(*range.format);
                xml_.Attribute("style", *range.format);
            }
            if (range.hidden) {
                xml_.Attribute("hidden", "1");
            }
            if (range.width && range.customWidth) {
                xml_.Attribute("customWidth", "1");
            }
            WriteOutline(range.outlineLevel, range.collapsed);
            xml_.EndElement();
        }
        xml_.EndElement();
    }

    void WriteSheetData() {
        xml_.StartElement("sheetData");
        uint32_t previousRow = 0;
        ForEachRow(sheet_, [&](const RowView& view) {
            const Row& row = view.row;
            if (row.index <= previousRow || row.index > kMaxRows) {
                Malformed(sheet_, "row " + std::to_string(row.index) + " is out of order or range");
            }
            previousRow = row.index;
            if (!row.cells.empty() || row.HasSettings()) {
                WriteRow(view);
            }
        });
        xml_.EndElement();
    }

    void WriteRow(const RowView& view) {
        const Row& row = view.row;
        char digits[12];
        const std::string_view rowNumber(
            digits, static_cast<std::size_t>(std::to_chars(digits, digits + sizeof digits, row.index).ptr - digits));
        xml_.StartElement("row");
        xml_.AttributeVerbatim("r", rowNumber);
        if (row.format) {
            CheckFormat(*row.format);
            xml_.Attribute("s", *row.format);
            xml_.Attribute("customFormat", "1");
        }
        if (row.height) {
            xml_.Attribute("ht", *row.height);
            if (row.customHeight) {
                xml_.Attribute("customHeight", "1");
            }
        }
        if (row.hidden) {
            xml_.Attribute("hidden", "1");
        }
        WriteOutline(row.outlineLevel, row.collapsed);
        uint32_t previousColumn = 0;
        for (const Cell& cell : row.cells) {
            if (cell.column <= previousColumn || cell.column > kMaxColumns) {
                Malformed(sheet_, "cell in column " + std::to_string(cell.column) + " of row " +
                                      std::to_string(row.index) + " is out of order or range");
            }
            previousColumn = cell.column;
            WriteCell(cell, Reference(row.index, cell.column), view);
        }
        xml_.EndElement();
    }

    void WriteOutline(uint8_t level, bool collapsed) {
        if (level != 0) {
            xml_.Attribute("outlineLevel", static_cast<uint32_t>(level));
        }
        if (collapsed) {
            xml_.Attribute("collapsed", "1");
        }
    }

    void CheckString(const Cell& cell, std::string_view reference) const {
        if (cell.string >= document_.strings.size()) {
            Malformed(sheet_, "cell " + std::string(reference) + " refers to a missing string");
        }
    }

    const SharedString& StringOf(const Cell& cell, std::string_view reference) const {
        CheckString(cell, reference);
        return document_.strings[cell.string];
    }

    void WriteCell(const Cell& cell, std::string_view reference, const RowView& view) {
        CheckFormat(cell.format);
        const bool hasFormula = cell.formula != NoFormula;
        if (hasFormula && cell.formula >= view.formulas.size()) {
            Malformed(sheet_, "cell " + std::string(reference) + " refers to a missing formula");
        }
        // A number the file cannot hold (NaN, infinity) is stored as Excel would show it.
        const bool unrepresentable = cell.type == CellType::Number && !std::isfinite(cell.number);
        xml_.StartElement("c");
        xml_.AttributeVerbatim("r", reference);
        if (cell.format != 0) {
            xml_.Attribute("s", cell.format);
        }
        if (cell.type == CellType::String) {
            xml_.AttributeVerbatim("t", hasFormula ? "str" : "s");
        } else if (cell.type == CellType::Boolean) {
            xml_.AttributeVerbatim("t", "b");
        } else if (cell.type == CellType::Error || unrepresentable) {
            xml_.AttributeVerbatim("t", "e");
        }
        if (hasFormula) {
            WriteFormula(cell.formula, view);
        }
        switch (cell.type) {
            case CellType::Blank:
                break;
            case CellType::Number:
                xml_.StartElement("v");
                if (unrepresentable) {
                    xml_.Text("#NUM!");
                } else {
                    xml_.Number(cell.number);
                }
                xml_.EndElement();
                break;
            case CellType::Boolean:
                xml_.Element("v", cell.number != 0.0 ? "1" : "0");
                break;
            case CellType::String:
                if (hasFormula) {
                    xml_.Element("v", StringOf(cell, reference).text);
                } else {
                    CheckString(cell, reference);
                    xml_.StartElement("v");
                    xml_.Number(sharedStrings_.positions[cell.string]);
                    xml_.EndElement();
                }
                break;
            case CellType::Error:
                xml_.Element("v", StringOf(cell, reference).text);
                break;
        }
        xml_.EndElement();
    }

    void WriteFormula(uint32_t index, const RowView& view) {
        const std::string& formula = view.formulas[index];
        xml_.StartElement("f");
        if (const auto array = view.arrayFormulas.find(index); array != view.arrayFormulas.end()) {
            xml_.AttributeVerbatim("t", "array");
            xml_.Attribute("ref", BlockReference(array->second));
        }
        // Only a formula with a bracket can refer to another workbook; the rest are written as they are.
        if (formula.find('[') == std::string::npos) {
            xml_.Text(formula);
        } else {
            xml_.Text(WithoutUnresolvableReferences(formula, targets_));
        }
        xml_.EndElement();
    }

    void WriteMerges() {
        if (sheet_.merges.empty()) {
            return;
        }
        xml_.StartElement("mergeCells");
        xml_.Attribute("count", sheet_.merges.size());
        for (const CellBlock& block : sheet_.merges) {
            if (block.firstRow < 1 || block.firstRow > block.lastRow || block.lastRow > kMaxRows ||
                block.firstColumn < 1 || block.firstColumn > block.lastColumn || block.lastColumn > kMaxColumns) {
                Malformed(sheet_, "a merged area is not a valid range");
            }
            xml_.StartElement("mergeCell");
            xml_.Attribute("ref", BlockReference(block));
            xml_.EndElement();
        }
        xml_.EndElement();
    }

    void WritePrintOptions() {
        const std::vector<CarriedAttribute>* others = carried_ != nullptr ? &carried_->printOptionsAttributes : nullptr;
        if (!sheet_.printGridLines && (others == nullptr || others->empty())) {
            return;
        }
        xml_.StartElement("printOptions");
        if (sheet_.printGridLines) {
            xml_.Attribute("gridLines", "1");
        }
        if (others != nullptr) {
            WriteCarriedAttributes(xml_, *others);
        }
        xml_.EndElement();
    }

    // Excel's default margins (inches).
    void WritePageMargins() {
        xml_.StartElement("pageMargins");
        xml_.Attribute("left", 0.7);
        xml_.Attribute("right", 0.7);
        xml_.Attribute("top", 0.75);
        xml_.Attribute("bottom", 0.75);
        xml_.Attribute("header", 0.3);
        xml_.Attribute("footer", 0.3);
        xml_.EndElement();
    }

    void WriteReference(std::string_view element, const std::string& relationshipId) {
        if (!relationshipId.empty()) {
            xml_.StartElement(element);
            xml_.Attribute("r:id", relationshipId);
            xml_.EndElement();
        }
    }

    std::string_view Reference(uint32_t row, uint32_t column) {
        return reference_.Compose(columnNames_.Name(column), row);
    }

    // "B2:C4", or "B2" for a single cell.
    std::string BlockReference(const CellBlock& block) {
        std::string text(Reference(block.firstRow, block.firstColumn));
        if (block.lastRow == block.firstRow && block.lastColumn == block.firstColumn) {
            return text;
        }
        text += ':';
        text += Reference(block.lastRow, block.lastColumn);
        return text;
    }

    XmlWriter& xml_;
    const WorkbookDocument& document_;
    const SheetDocument& sheet_;
    const CarriedWorksheet* carried_;  // null for a sheet the engine made
    const SharedStringTable& sharedStrings_;
    const SheetDrawingReferences& drawings_;
    const ReferenceTargets& targets_;
    ColumnNames columnNames_;
    CellReference reference_;
};

}  // namespace

void WriteWorksheetPart(XmlWriter& xml, const WorkbookDocument& document, const SheetDocument& sheet,
                        const SharedStringTable& sharedStrings, const SheetDrawingReferences& drawings,
                        const ReferenceTargets& targets) {
    WorksheetWriter(xml, document, sheet, sharedStrings, drawings, targets).Write();
}

}  // namespace ooxml
