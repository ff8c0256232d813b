#pragma once

#include "ooxml/document/carried_content.hpp"
#include "ooxml/document/cell_comment.hpp"
#include "ooxml/document/drawing_shape.hpp"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ooxml {

enum class CellType : uint8_t {
    Blank,    // formatted only
    Number,   // number
    String,   // string: index into WorkbookDocument::strings
    Boolean,  // number is 0 or 1
    Error,    // string: index into WorkbookDocument::strings holding "#N/A", "#NAME?", ...
};

inline constexpr uint32_t NoFormula = UINT32_MAX;

struct Cell {
    uint32_t column = 1;           // 1-based
    uint32_t format = 0;           // index into WorkbookDocument::formats
    uint32_t string = 0;           // for String and Error
    uint32_t formula = NoFormula;  // index into SheetDocument::formulas; the value is then cached
    double number = 0.0;           // for Number and Boolean
    CellType type = CellType::Blank;
};

struct Row {
    uint32_t index = 1;              // 1-based
    std::optional<double> height;    // points; none = the sheet's default height
    std::optional<uint32_t> format;  // row format (customFormat)
    bool hidden = false;
    std::vector<Cell> cells;    // ascending columns
    uint8_t outlineLevel = 0;   // 0 (not grouped) .. 7
    bool collapsed = false;     // the group the row closes is collapsed
    bool customHeight = false;  // the height was set rather than fitted to the row's content

    bool HasSettings() const { return height || format || hidden || outlineLevel != 0 || collapsed; }
};

struct ColumnRange {
    uint32_t first = 1;  // 1-based, inclusive
    uint32_t last = 1;
    std::optional<double> width;  // characters, padding included; none = the sheet's default width
    std::optional<uint32_t> format;
    bool hidden = false;
    bool customWidth = false;  // the width was set rather than fitted or taken from the default
    uint8_t outlineLevel = 0;  // 0 (not grouped) .. 7
    bool collapsed = false;    // the group the column closes is collapsed

    friend bool operator==(const ColumnRange&, const ColumnRange&) = default;
};

// The sheet's bounds: its last row and column.
inline constexpr uint32_t MaxRowIndex = 1048576;
inline constexpr uint32_t MaxColumnIndex = 16384;

struct CellBlock {
    uint32_t firstRow = 1, firstColumn = 1, lastRow = 1, lastColumn = 1;

    friend bool operator==(const CellBlock&, const CellBlock&) = default;
};

// A row as the writer takes it, with the formulas its cells' formula indices name.
struct RowView {
    const Row& row;
    const std::vector<std::string>& formulas;
    const std::map<uint32_t, CellBlock>& arrayFormulas;  // formula index -> the block it fills
};

using RowVisitor = std::function<void(const RowView&)>;
// Gives a sheet's rows to the visitor one at a time, in ascending order, each valid during its
// call; it may be asked more than once. A sheet saved from a model streams its rows so that they
// are never all held a second time.
using RowStream = std::function<void(const RowVisitor&)>;

struct SheetDocument {
    std::string name;
    std::string state = "visible";  // "visible", "hidden", "veryHidden"
    bool showGridLines = true;
    bool printGridLines = false;
    bool tabSelected = false;
    bool showPageBreaks = false;               // the view shows automatic page breaks
    std::optional<double> defaultColumnWidth;  // characters, padding included, when the sheet gives one
    double defaultRowHeight = 15.0;
    std::string activeCell = "A1";
    std::vector<ColumnRange> columns;             // ascending, not overlapping
    std::vector<Row> rows;                        // ascending; none when rowStream gives them
    std::vector<std::string> formulas;            // without the leading "="
    std::map<uint32_t, CellBlock> arrayFormulas;  // formula index -> the block an array formula fills
    std::vector<CellBlock> merges;
    std::vector<DrawingShape> shapes;  // in z-order, bottom first
    std::vector<CellComment> comments;    // in row, then column order
    RowStream rowStream;                  // when set, the rows instead of rows and formulas
    bool streamedFormulas = false;        // a streamed row has a cell with a formula
    // What the opened sheet held beyond the rest of the document; none for a new sheet.
    std::shared_ptr<const CarriedWorksheet> carried;
};

}  // namespace ooxml
