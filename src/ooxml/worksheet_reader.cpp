#include "ooxml/worksheet_reader.hpp"

#include "ooxml/cell_reference_reader.hpp"
#include "ooxml/escaped_text_decoder.hpp"
#include "ooxml/formula_reference_shifter.hpp"
#include "ooxml/iso_date_time_reader.hpp"
#include "ooxml/package_error.hpp"
#include "ooxml/shared_strings_reader.hpp"
#include "ooxml/string_table_builder.hpp"
#include "ooxml/xml_node_access.hpp"
#include "ooxml/xml_part_parser.hpp"

#include <algorithm>
#include <unordered_map>

namespace ooxml {

namespace {

constexpr double MaxRowHeight = 409.5;
constexpr double MaxColumnWidth = 255.0;
constexpr double SecondsPerDay = 86400.0;
constexpr double UnixEpochSerial = 25569.0;  // 1970-01-01 in the 1900 date system

struct SharedFormula {
    std::string text;
    uint32_t row = 0;
    uint32_t column = 0;
};

// Rows or cells other writers left out of order: sorted, the first of equal keys kept.
template <typename Item, typename Key>
void SortUnique(std::vector<Item>& items, Key key) {
    std::stable_sort(items.begin(), items.end(), [&](const Item& a, const Item& b) { return key(a) < key(b); });
    items.erase(std::unique(items.begin(), items.end(), [&](const Item& a, const Item& b) { return key(a) == key(b); }),
                items.end());
}

class WorksheetReader {
public:
    WorksheetReader(std::string_view partName, const WorksheetContext& context, SheetDocument& sheet)
        : partName_(partName), context_(context), sheet_(sheet) {}

    void Read(pugi::xml_node worksheet) {
        for (pugi::xml_node child = worksheet.first_child(); child; child = child.next_sibling()) {
            const std::string_view name = LocalName(child);
            if (name == "sheetViews") {
                ReadSheetView(FirstChild(child, "sheetView"));
            } else if (name == "sheetFormatPr") {
                sheet_.defaultColumnWidth = AttributeDouble(child, "defaultColWidth");
                sheet_.defaultRowHeight = AttributeDouble(child, "defaultRowHeight").value_or(sheet_.defaultRowHeight);
            } else if (name == "cols") {
                ForEachChild(child, "col", [&](pugi::xml_node col) { ReadColumnRange(col); });
            } else if (name == "sheetData") {
                ReadSheetData(child);
            } else if (name == "mergeCells") {
                ForEachChild(child, "mergeCell", [&](pugi::xml_node merge) { ReadMerge(merge); });
            } else if (name == "printOptions") {
                sheet_.printGridLines = AttributeBool(child, "gridLines", false);
            }
        }
        SortUnique(sheet_.columns, [](const ColumnRange& range) { return range.first; });
        RemoveColumnOverlaps();
    }

private:
    [[noreturn]] void ThrowCorrupt(const std::string& what) const {
        throw PackageError(PackageError::Reason::Corrupt, what + " in " + std::string(partName_));
    }

    std::optional<uint32_t> FormatIndex(std::string_view text) const {
        const std::optional<uint32_t> index = ParseUnsigned(text);
        return index && *index < context_.formatCount ? index : std::nullopt;
    }

    void ReadSheetView(pugi::xml_node view) {
        sheet_.showGridLines = AttributeBool(view, "showGridLines", true);
        sheet_.tabSelected = AttributeBool(view, "tabSelected", false);
        // With frozen or split panes each pane has its own selection; the active pane's counts.
        const pugi::xml_node pane = FirstChild(view, "pane");
        std::string_view activePane = AttributeText(pane, "activePane");
        if (activePane.empty()) {
            activePane = "topLeft";
        }
        pugi::xml_node chosen;
        ForEachChild(view, "selection", [&](pugi::xml_node selection) {
            std::string_view selectionPane = AttributeText(selection, "pane");
            if (selectionPane.empty()) {
                selectionPane = "topLeft";
            }
            if (!chosen || selectionPane == activePane) {
                chosen = selection;
            }
        });
        const std::string_view activeCell = AttributeText(chosen, "activeCell");
        if (ParseCellReference(activeCell)) {
            sheet_.activeCell = activeCell;
        }
    }

    void ReadColumnRange(pugi::xml_node col) {
        const std::optional<uint32_t> first = AttributeUnsigned(col, "min");
        const std::optional<uint32_t> last = AttributeUnsigned(col, "max");
        if (!first || !last || *first < 1 || *first > MaxColumnIndex || *last < *first) {
            return;
        }
        ColumnRange range;
        range.first = *first;
        range.last = std::min(*last, MaxColumnIndex);
        range.format = FormatIndex(AttributeText(col, "style"));
        range.hidden = AttributeBool(col, "hidden", false);
        // A width counts when marked custom, or when it is all the element says.
        const std::optional<double> width = AttributeDouble(col, "width");
        if (width && (AttributeBool(col, "customWidth", false) || (!range.format && !range.hidden))) {
            range.width = std::clamp(*width, 0.0, MaxColumnWidth);
        }
        if (range.width || range.format || range.hidden) {
            sheet_.columns.push_back(range);
        }
    }

    void RemoveColumnOverlaps() {
        uint32_t covered = 0;
        std::vector<ColumnRange> kept;
        for (ColumnRange range : sheet_.columns) {
            range.first = std::max(range.first, covered + 1);
            if (range.first <= range.last) {
                covered = range.last;
                kept.push_back(range);
            }
        }
        sheet_.columns = std::move(kept);
    }

    void ReadMerge(pugi::xml_node merge) {
        if (const std::optional<CellBlock> block = ParseCellBlock(AttributeText(merge, "ref"))) {
            sheet_.merges.push_back(*block);
        }
    }

    void ReadSheetData(pugi::xml_node sheetData) {
        bool rowsInOrder = true;
        uint32_t previousRow = 0;
        for (pugi::xml_node rowNode = sheetData.first_child(); rowNode; rowNode = rowNode.next_sibling()) {
            if (rowNode.type() != pugi::node_element || LocalName(rowNode) != "row") {
                continue;
            }
            Row row = ReadRow(rowNode, previousRow + 1);
            rowsInOrder = rowsInOrder && row.index > previousRow;
            previousRow = row.index;
            if (!row.cells.empty() || row.height || row.format || row.hidden) {
                sheet_.rows.push_back(std::move(row));
            }
        }
        if (!rowsInOrder) {
            SortUnique(sheet_.rows, [](const Row& row) { return row.index; });
        }
    }

    Row ReadRow(pugi::xml_node rowNode, uint32_t implicitIndex) {
        Row row;
        row.index = implicitIndex;
        bool customHeight = false;
        bool customFormat = false;
        std::optional<double> height;
        std::optional<uint32_t> format;
        for (pugi::xml_attribute attribute = rowNode.first_attribute(); attribute;
             attribute = attribute.next_attribute()) {
            const std::string_view name = LocalName(attribute.name());
            if (name == "r") {
                const std::optional<uint32_t> index = ParseUnsigned(attribute.value());
                if (!index || *index < 1 || *index > MaxRowIndex) {
                    ThrowCorrupt("Bad row number \"" + std::string(attribute.value()) + "\"");
                }
                row.index = *index;
            } else if (name == "ht") {
                height = ParseDouble(attribute.value());
            } else if (name == "customHeight") {
                customHeight = ParseBoolean(attribute.value()).value_or(false);
            } else if (name == "hidden") {
                row.hidden = ParseBoolean(attribute.value()).value_or(false);
            } else if (name == "s") {
                format = FormatIndex(attribute.value());
            } else if (name == "customFormat") {
                customFormat = ParseBoolean(attribute.value()).value_or(false);
            }
        }
        if (row.index > MaxRowIndex) {
            ThrowCorrupt("Too many rows");
        }
        if (customHeight && height) {
            row.height = std::clamp(*height, 0.0, MaxRowHeight);
        }
        if (customFormat) {
            row.format = format;
        }
        bool cellsInOrder = true;
        uint32_t previousColumn = 0;
        for (pugi::xml_node cellNode = rowNode.first_child(); cellNode; cellNode = cellNode.next_sibling()) {
            if (cellNode.type() != pugi::node_element || LocalName(cellNode) != "c") {
                continue;
            }
            const Cell cell = ReadCell(cellNode, row.index, previousColumn + 1);
            cellsInOrder = cellsInOrder && cell.column > previousColumn;
            previousColumn = cell.column;
            row.cells.push_back(cell);
        }
        if (!cellsInOrder) {
            SortUnique(row.cells, [](const Cell& cell) { return cell.column; });
        }
        return row;
    }

    Cell ReadCell(pugi::xml_node cellNode, uint32_t rowIndex, uint32_t implicitColumn) {
        Cell cell;
        cell.column = implicitColumn;
        std::string_view type;
        for (pugi::xml_attribute attribute = cellNode.first_attribute(); attribute;
             attribute = attribute.next_attribute()) {
            const std::string_view name = LocalName(attribute.name());
            if (name == "r") {
                const std::optional<CellPosition> position = ParseCellReference(attribute.value());
                if (!position) {
                    ThrowCorrupt("Bad cell reference \"" + std::string(attribute.value()) + "\"");
                }
                cell.column = position->column;
            } else if (name == "s") {
                cell.format = FormatIndex(attribute.value()).value_or(0);
            } else if (name == "t") {
                type = attribute.value();
            }
        }
        if (cell.column > MaxColumnIndex) {
            ThrowCorrupt("Too many cells in row " + std::to_string(rowIndex));
        }
        pugi::xml_node value;
        pugi::xml_node formula;
        pugi::xml_node inlineString;
        for (pugi::xml_node child = cellNode.first_child(); child; child = child.next_sibling()) {
            const std::string_view name = LocalName(child);
            if (name == "v") {
                value = child;
            } else if (name == "f") {
                formula = child;
            } else if (name == "is") {
                inlineString = child;
            }
        }
        if (formula) {
            ReadFormula(formula, rowIndex, cell);
        }
        ReadValue(type, value, inlineString, cell);
        return cell;
    }

    void ReadValue(std::string_view type, pugi::xml_node value, pugi::xml_node inlineString, Cell& cell) {
        const std::string_view text = value.child_value();
        if (type == "inlineStr" && inlineString) {
            SetString(cell, CellType::String, context_.strings.Add(ReadStringItem(inlineString)));
            return;
        }
        if (!value) {
            return;
        }
        if (type.empty() || type == "n") {
            SetNumber(cell, CellType::Number, ParseDouble(text));
        } else if (type == "s") {
            const std::optional<uint32_t> index = ParseUnsigned(text);
            if (!index || *index >= context_.sharedStringCount) {
                ThrowCorrupt("Bad shared string index \"" + std::string(text) + "\"");
            }
            SetString(cell, CellType::String, *index);
        } else if (type == "str" || type == "inlineStr") {
            SetString(cell, CellType::String, context_.strings.AddPlain(DecodeEscapedText(text)));
        } else if (type == "b") {
            const std::optional<double> flag = ParseDouble(text);
            SetNumber(cell, CellType::Boolean, flag ? std::optional(*flag != 0.0 ? 1.0 : 0.0) : std::nullopt);
        } else if (type == "e") {
            SetString(cell, CellType::Error, context_.strings.AddPlain(text));
        } else if (type == "d") {
            const std::optional<std::time_t> time = ParseIsoDateTime(text);
            SetNumber(
                cell, CellType::Number,
                time ? std::optional(static_cast<double>(*time) / SecondsPerDay + UnixEpochSerial) : std::nullopt);
        }
    }

    static void SetNumber(Cell& cell, CellType type, std::optional<double> number) {
        if (number) {
            cell.type = type;
            cell.number = *number;
        }
    }

    static void SetString(Cell& cell, CellType type, uint32_t index) {
        cell.type = type;
        cell.string = index;
    }

    // A shared formula is written once, in its first cell; the others name it by its index and
    // take it with their references moved by their distance from that cell.
    void ReadFormula(pugi::xml_node formula, uint32_t rowIndex, Cell& cell) {
        const std::string_view kind = AttributeText(formula, "t");
        if (kind == "dataTable") {
            return;
        }
        std::string_view text = formula.child_value();
        if (!text.empty() && text.front() == '=') {
            text.remove_prefix(1);
        }
        std::string expanded;
        if (kind == "shared") {
            const std::optional<uint32_t> index = AttributeUnsigned(formula, "si");
            if (!text.empty() && index) {
                sharedFormulas_[*index] = SharedFormula{std::string(text), rowIndex, cell.column};
            } else if (index) {
                const auto found = sharedFormulas_.find(*index);
                if (found == sharedFormulas_.end()) {
                    return;
                }
                const SharedFormula& shared = found->second;
                expanded = ShiftFormulaReferences(shared.text, static_cast<int32_t>(rowIndex - shared.row),
                                                  static_cast<int32_t>(cell.column - shared.column));
                text = expanded;
            }
        }
        if (text.empty()) {
            return;
        }
        cell.formula = static_cast<uint32_t>(sheet_.formulas.size());
        sheet_.formulas.emplace_back(text);
    }

    std::string_view partName_;
    const WorksheetContext& context_;
    SheetDocument& sheet_;
    std::unordered_map<uint32_t, SharedFormula> sharedFormulas_;
};

}  // namespace

void ReadWorksheet(std::string& xml, std::string_view partName, const WorksheetContext& context, SheetDocument& sheet) {
    pugi::xml_document document;
    ParseXmlPart(document, xml, partName);
    WorksheetReader(partName, context, sheet).Read(document.document_element());
}

}  // namespace ooxml
