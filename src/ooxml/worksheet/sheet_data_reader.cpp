#include "ooxml/worksheet/sheet_data_reader.hpp"

#include "ooxml/package_error.hpp"
#include "ooxml/properties/iso_date_time_reader.hpp"
#include "ooxml/reference/cell_reference_reader.hpp"
#include "ooxml/reference/formula_reference_shifter.hpp"
#include "ooxml/shared_strings/string_table_builder.hpp"
#include "ooxml/styles/font_reader.hpp"
#include "ooxml/worksheet/outline_level.hpp"
#include "ooxml/xml/escaped_text_decoder.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"

#include <unordered_map>

namespace ooxml {

namespace {

constexpr double MaxRowHeight = 409.5;
constexpr double SecondsPerDay = 86400.0;
constexpr double UnixEpochSerial = 25569.0;  // 1970-01-01 in the 1900 date system

// What a cell's t attribute says its <v> holds.
enum class ValueKind : uint8_t { Number, SharedString, FormulaString, InlineString, Boolean, Error, Date, Unknown };

ValueKind ValueKindOf(std::string_view type) {
    if (type.empty() || type == "n") {
        return ValueKind::Number;
    }
    if (type == "s") {
        return ValueKind::SharedString;
    }
    if (type == "str") {
        return ValueKind::FormulaString;
    }
    if (type == "inlineStr") {
        return ValueKind::InlineString;
    }
    if (type == "b") {
        return ValueKind::Boolean;
    }
    if (type == "e") {
        return ValueKind::Error;
    }
    return type == "d" ? ValueKind::Date : ValueKind::Unknown;
}

struct SharedFormula {
    std::string text;
    uint32_t row = 0;
    uint32_t column = 0;
};

// A cell's <f>: its kind ("shared", "array", "dataTable", ...), the index of a shared formula, the
// block it covers, its text.
struct FormulaElement {
    std::string kind;
    std::optional<uint32_t> sharedIndex;
    std::string ref;
    std::string text;
};

class SheetDataReader {
public:
    SheetDataReader(XmlPullScanner& scanner, std::string_view partName, const WorksheetContext& context,
                    SheetDocument& sheet)
        : scanner_(scanner), partName_(partName), context_(context), sheet_(sheet) {}

    void Read() {
        const std::size_t depth = scanner_.Depth();
        bool rowsInOrder = true;
        uint32_t previousRow = 0;
        while (scanner_.NextChild(depth)) {
            if (scanner_.LocalName() != "row") {
                scanner_.SkipElement();
                continue;
            }
            Row row = ReadRow(previousRow + 1);
            rowsInOrder = rowsInOrder && row.index > previousRow;
            previousRow = row.index;
            if (!row.cells.empty() || row.HasSettings()) {
                sheet_.rows.push_back(std::move(row));
            }
        }
        if (!rowsInOrder) {
            SortUnique(sheet_.rows, [](const Row& row) { return row.index; });
        }
    }

private:
    [[noreturn]] void ThrowCorrupt(const std::string& what) const {
        throw PackageError(PackageError::Reason::Corrupt, what + " in " + std::string(partName_));
    }

    Row ReadRow(uint32_t implicitIndex) {
        Row row;
        row.index = implicitIndex;
        bool customHeight = false;
        bool customFormat = false;
        std::optional<double> height;
        std::optional<uint32_t> format;
        for (const XmlAttribute& attribute : scanner_.Attributes()) {
            const std::string_view name = attribute.localName;
            if (name == "r") {
                const std::optional<uint32_t> index = ParseUnsigned(attribute.value);
                if (!index || *index < 1 || *index > MaxRowIndex) {
                    ThrowCorrupt("Bad row number \"" + std::string(attribute.value) + "\"");
                }
                row.index = *index;
            } else if (name == "ht") {
                height = ParseDouble(attribute.value);
            } else if (name == "customHeight") {
                customHeight = ParseBoolean(attribute.value).value_or(false);
            } else if (name == "hidden") {
                row.hidden = ParseBoolean(attribute.value).value_or(false);
            } else if (name == "s") {
                format = context_.FormatIndex(attribute.value);
            } else if (name == "customFormat") {
                customFormat = ParseBoolean(attribute.value).value_or(false);
            } else if (name == "outlineLevel") {
                row.outlineLevel = ParseOutlineLevel(attribute.value);
            } else if (name == "collapsed") {
                row.collapsed = ParseBoolean(attribute.value).value_or(false);
            }
        }
        if (row.index > MaxRowIndex) {
            ThrowCorrupt("Too many rows");
        }
        if (height) {
            row.height = std::clamp(*height, 0.0, MaxRowHeight);
            row.customHeight = customHeight;
        }
        if (customFormat) {
            row.format = format;
        }
        // Cells gather in a vector kept from row to row, so each row then holds exactly its own.
        cells_.clear();
        bool cellsInOrder = true;
        uint32_t previousColumn = 0;
        const std::size_t depth = scanner_.Depth();
        while (scanner_.NextChild(depth)) {
            if (scanner_.LocalName() != "c") {
                scanner_.SkipElement();
                continue;
            }
            const Cell cell = ReadCell(row.index, previousColumn + 1);
            cellsInOrder = cellsInOrder && cell.column > previousColumn;
            previousColumn = cell.column;
            cells_.push_back(cell);
        }
        if (!cellsInOrder) {
            SortUnique(cells_, [](const Cell& cell) { return cell.column; });
        }
        row.cells.assign(cells_.begin(), cells_.end());
        return row;
    }

    Cell ReadCell(uint32_t rowIndex, uint32_t implicitColumn) {
        Cell cell;
        cell.column = implicitColumn;
        ValueKind kind = ValueKind::Number;
        for (const XmlAttribute& attribute : scanner_.Attributes()) {
            const std::string_view name = attribute.localName;
            if (name == "r") {
                const std::optional<CellPosition> position = ParseCellReference(attribute.value);
                if (!position) {
                    ThrowCorrupt("Bad cell reference \"" + std::string(attribute.value) + "\"");
                }
                cell.column = position->column;
            } else if (name == "s") {
                cell.format = context_.FormatIndex(attribute.value).value_or(0);
            } else if (name == "t") {
                kind = ValueKindOf(attribute.value);
            }
        }
        if (cell.column > MaxColumnIndex) {
            ThrowCorrupt("Too many cells in row " + std::to_string(rowIndex));
        }
        bool hasValue = false;
        bool hasFormula = false;
        std::optional<SharedString> inlineString;
        const std::size_t depth = scanner_.Depth();
        while (scanner_.NextChild(depth)) {
            const std::string_view name = scanner_.LocalName();
            if (name == "v") {
                scanner_.ReadText(value_);
                hasValue = true;
            } else if (name == "f") {
                ReadFormulaElement();
                hasFormula = true;
            } else if (name == "is") {
                inlineString = ReadStringItem();
            } else {
                scanner_.SkipElement();
            }
        }
        if (hasFormula) {
            ReadFormula(rowIndex, cell);
        }
        if (kind == ValueKind::InlineString && inlineString) {
            SetString(cell, CellType::String, context_.strings.Add(std::move(*inlineString)));
        } else if (hasValue) {
            ReadValue(kind, value_, cell);
        }
        return cell;
    }

    void ReadValue(ValueKind kind, std::string_view text, Cell& cell) {
        switch (kind) {
            case ValueKind::Number:
                SetNumber(cell, CellType::Number, ParseDouble(text));
                break;
            case ValueKind::SharedString: {
                const std::optional<uint32_t> index = ParseUnsigned(text);
                if (!index || *index >= context_.sharedStringCount) {
                    ThrowCorrupt("Bad shared string index \"" + std::string(text) + "\"");
                }
                SetString(cell, CellType::String, *index);
                break;
            }
            case ValueKind::FormulaString:
            case ValueKind::InlineString:
                SetString(cell, CellType::String, context_.strings.AddPlain(DecodeEscapedText(text)));
                break;
            case ValueKind::Boolean: {
                const std::optional<double> flag = ParseDouble(text);
                SetNumber(cell, CellType::Boolean, flag ? std::optional(*flag != 0.0 ? 1.0 : 0.0) : std::nullopt);
                break;
            }
            case ValueKind::Error:
                SetString(cell, CellType::Error, context_.strings.AddPlain(text));
                break;
            case ValueKind::Date: {
                const std::optional<std::time_t> time = ParseIsoDateTime(text);
                SetNumber(
                    cell, CellType::Number,
                    time ? std::optional(static_cast<double>(*time) / SecondsPerDay + UnixEpochSerial) : std::nullopt);
                break;
            }
            case ValueKind::Unknown:
                break;
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

    // An inline string's <is>: plain text from <t>, or rich text from <r> runs with their <rPr>
    // fonts; phonetic runs are left out.
    SharedString ReadStringItem() {
        SharedString string;
        const std::size_t depth = scanner_.Depth();
        while (scanner_.NextChild(depth)) {
            const std::string_view name = scanner_.LocalName();
            if (name == "t") {
                scanner_.ReadText(itemText_);
                string.text += DecodeEscapedText(itemText_);
            } else if (name == "r") {
                TextRun run = ReadTextRun();
                string.text += run.text;
                string.runs.push_back(std::move(run));
            } else {
                scanner_.SkipElement();
            }
        }
        return string;
    }

    // A run's font is read from its own small tree: rich inline strings are rare, and the font
    // reader is the one the styles part uses.
    TextRun ReadTextRun() {
        TextRun run;
        const std::size_t depth = scanner_.Depth();
        while (scanner_.NextChild(depth)) {
            const std::string_view name = scanner_.LocalName();
            if (name == "t") {
                scanner_.ReadText(itemText_);
                run.text += DecodeEscapedText(itemText_);
            } else if (name == "rPr") {
                std::string xml;
                scanner_.CopyElement(xml);
                pugi::xml_document properties;
                ParseXmlPart(properties, xml, partName_);
                run.font = ReadFont(properties.document_element());
            } else {
                scanner_.SkipElement();
            }
        }
        return run;
    }

    void ReadFormulaElement() {
        formula_.kind.clear();
        formula_.sharedIndex.reset();
        formula_.ref.clear();
        for (const XmlAttribute& attribute : scanner_.Attributes()) {
            if (attribute.localName == "t") {
                formula_.kind = attribute.value;
            } else if (attribute.localName == "si") {
                formula_.sharedIndex = ParseUnsigned(attribute.value);
            } else if (attribute.localName == "ref") {
                formula_.ref = attribute.value;
            }
        }
        scanner_.ReadText(formula_.text);
    }

    // A shared formula is written once, in its first cell; the others name it by its index and
    // take it with their references moved by their distance from that cell.
    void ReadFormula(uint32_t rowIndex, Cell& cell) {
        if (formula_.kind == "dataTable") {
            return;
        }
        std::string_view text = formula_.text;
        if (!text.empty() && text.front() == '=') {
            text.remove_prefix(1);
        }
        std::string expanded;
        if (formula_.kind == "shared" && formula_.sharedIndex) {
            const uint32_t index = *formula_.sharedIndex;
            if (!text.empty()) {
                sharedFormulas_[index] = SharedFormula{std::string(text), rowIndex, cell.column};
            } else {
                const auto found = sharedFormulas_.find(index);
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
        if (formula_.kind == "array") {
            if (const std::optional<CellBlock> block = ParseCellBlock(formula_.ref)) {
                sheet_.arrayFormulas.emplace(cell.formula, *block);
            }
        }
    }

    XmlPullScanner& scanner_;
    std::string_view partName_;
    const WorksheetContext& context_;
    SheetDocument& sheet_;
    std::unordered_map<uint32_t, SharedFormula> sharedFormulas_;
    std::vector<Cell> cells_;
    std::string value_;     // of the cell's <v>
    std::string itemText_;  // of a <t> in the cell's inline string
    FormulaElement formula_;
};

}  // namespace

void ReadSheetData(XmlPullScanner& scanner, std::string_view partName, const WorksheetContext& context,
                   SheetDocument& sheet) {
    SheetDataReader(scanner, partName, context, sheet).Read();
}

}  // namespace ooxml
