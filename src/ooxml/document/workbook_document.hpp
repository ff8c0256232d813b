#pragma once

// The workbook as an .xlsx package stores it: plain values, no behaviour. The engine fills one to
// save and receives one from opening; the package writer and reader know nothing else of it.

#include <array>
#include <cstdint>
#include <ctime>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ooxml {

// A colour as styles and runs store it.
struct Color {
    enum class Kind : uint8_t { None, Auto, Rgb, Indexed, Theme };
    Kind kind = Kind::None;
    uint32_t argb = 0;   // Rgb: 0xAARRGGBB
    int32_t index = 0;   // Indexed: palette index (0..63, 64 = system foreground); Theme: 0..11
    double tint = 0.0;   // -1..1, Rgb/Indexed/Theme

    friend bool operator==(const Color&, const Color&) = default;
};

struct Font {
    std::string name = "Calibri";
    double size = 11.0;
    bool bold = false;
    bool italic = false;
    bool strike = false;
    std::string underline;   // "" (none), "single", "double", "singleAccounting", "doubleAccounting"
    std::string vertAlign;   // "" (baseline), "superscript", "subscript"
    Color color{Color::Kind::Theme, 0, 1, 0.0};  // Text 1
    int32_t family = 2;      // 0 = not written
    std::string scheme = "minor";  // "", "minor", "major"

    friend bool operator==(const Font&, const Font&) = default;
};

struct Fill {
    std::string patternType = "none";  // the ST_PatternType value: "none", "solid", "gray125", ...
    Color foreground;
    Color background;

    friend bool operator==(const Fill&, const Fill&) = default;
};

struct BorderLine {
    std::string style;  // "" (none) or the ST_BorderStyle value: "thin", "medium", "thick", "hair", ...
    Color color;

    friend bool operator==(const BorderLine&, const BorderLine&) = default;
};

struct Border {
    BorderLine left, right, top, bottom, diagonal;
    bool diagonalUp = false;
    bool diagonalDown = false;

    friend bool operator==(const Border&, const Border&) = default;
};

struct Alignment {
    std::string horizontal;  // "" (general) or the ST_HorizontalAlignment value
    std::string vertical;    // "" (bottom) or the ST_VerticalAlignment value
    bool wrapText = false;
    bool shrinkToFit = false;
    int32_t indent = 0;
    int32_t textRotation = 0;  // 0..180, or 255 for vertical text

    friend bool operator==(const Alignment&, const Alignment&) = default;
};

// One complete cell format. The writer splits these into the package's fonts, fills, borders,
// number formats and cellXfs, sharing equal pieces.
struct CellFormat {
    std::string numberFormat = "General";
    Font font;
    Fill fill;
    Border border;
    Alignment alignment;
    bool quotePrefix = false;
    bool locked = true;
    bool hidden = false;

    friend bool operator==(const CellFormat&, const CellFormat&) = default;
};

// A run of rich text; a run without a font takes the cell's font.
struct TextRun {
    std::string text;
    std::optional<Font> font;

    friend bool operator==(const TextRun&, const TextRun&) = default;
};

// An entry of the shared string table: plain text, or rich text when runs is not empty (then
// text is the runs' concatenation).
struct SharedString {
    std::string text;
    std::vector<TextRun> runs;

    friend bool operator==(const SharedString&, const SharedString&) = default;
};

enum class CellType : uint8_t {
    Blank,    // formatted only
    Number,   // number
    String,   // string: index into WorkbookDocument::strings
    Boolean,  // number is 0 or 1
    Error,    // string: index into WorkbookDocument::strings holding "#N/A", "#NAME?", ...
};

inline constexpr uint32_t NoFormula = UINT32_MAX;

struct Cell {
    uint32_t column = 1;            // 1-based
    uint32_t format = 0;            // index into WorkbookDocument::formats
    uint32_t string = 0;            // for String and Error
    uint32_t formula = NoFormula;   // index into SheetDocument::formulas; the value is then cached
    double number = 0.0;            // for Number and Boolean
    CellType type = CellType::Blank;
};

struct Row {
    uint32_t index = 1;  // 1-based
    std::optional<double> height;  // points; set = custom height
    std::optional<uint32_t> format;  // row format (customFormat)
    bool hidden = false;
    std::vector<Cell> cells;  // ascending columns
};

struct ColumnRange {
    uint32_t first = 1;  // 1-based, inclusive
    uint32_t last = 1;
    std::optional<double> width;  // characters; set = custom width
    std::optional<uint32_t> format;
    bool hidden = false;

    friend bool operator==(const ColumnRange&, const ColumnRange&) = default;
};

struct CellBlock {
    uint32_t firstRow = 1, firstColumn = 1, lastRow = 1, lastColumn = 1;

    friend bool operator==(const CellBlock&, const CellBlock&) = default;
};

// A corner of a drawing object as anchors store it: a cell (0-based) and an offset into it in EMU
// (12,700 per point).
struct CellAnchor {
    uint32_t column = 0;
    int64_t columnOffset = 0;
    uint32_t row = 0;
    int64_t rowOffset = 0;

    friend bool operator==(const CellAnchor&, const CellAnchor&) = default;
};

// A text box of a sheet's drawing. Colours use the cell colour model: Theme colours carry the
// file's theme index (0 lt1, 1 dk1, 2 lt2, 3 dk2, 4..9 accent1..6, 10 hlink, 11 folHlink) and their
// tint, which the drawing stores as luminance modulation and offset.
struct TextBoxShape {
    uint32_t id = 2;     // unique among the drawing's objects
    std::string name;    // "TextBox 1"
    std::string editAs = "twoCell";  // "twoCell" (move and size), "oneCell" (move), "absolute"
    CellAnchor from;
    CellAnchor to;
    int64_t x = 0, y = 0, width = 0, height = 0;  // EMU from the sheet's top-left corner
    std::optional<Color> fill;      // none: no fill
    double fillTransparency = 0.0;  // 0 (opaque) to 1: the fill colour's alpha is 1 - transparency
    std::optional<Color> line;      // none: no outline
    int64_t lineWidth = 9525;       // EMU
    int64_t insetLeft = 91440, insetTop = 45720, insetRight = 91440, insetBottom = 45720;  // EMU
    bool wrap = true;
    bool autoFit = false;               // the shape is sized to its text
    std::string verticalAnchor = "t";   // "t", "ctr", "b", "just", "dist"
    std::string alignment = "l";        // of every paragraph: "l", "ctr", "r", "just", "dist"
    std::string macro;                  // run on click; "" for none
    bool hidden = false;
    // The text; a line feed separates paragraphs. A run without a font takes the default
    // (the theme's minor font, 11 points, Text 1).
    SharedString text;
};

// The legacy (VML) anchor of a comment's shape: cells 0-based, offsets in pixels.
struct LegacyAnchor {
    uint32_t leftColumn = 0, leftOffset = 0, topRow = 0, topOffset = 0;
    uint32_t rightColumn = 0, rightOffset = 0, bottomRow = 0, bottomOffset = 0;

    friend bool operator==(const LegacyAnchor&, const LegacyAnchor&) = default;
};

// A cell comment: its text in the comments part, its shape in the legacy VML drawing.
struct CellComment {
    uint32_t row = 1, column = 1;  // 1-based
    std::string author;
    SharedString text;             // runs with their fonts
    bool visible = false;
    // Whether the legacy drawing gave the shape below; a comment read without one is placed where
    // Excel places a new comment.
    bool hasShape = true;
    double left = 0, top = 0, width = 96, height = 55.5;  // points from the sheet's top-left corner
    LegacyAnchor anchor;
    bool moveWithCells = true;
    bool sizeWithCells = true;
    uint32_t fillRgb = 0xFFFFE1;   // 0x00RRGGBB
    uint32_t lineRgb = 0x000000;
    double lineWeight = 0.75;      // points
    std::optional<std::array<double, 4>> insets;  // left, top, right, bottom in points; none = automatic
};

struct SheetDocument {
    std::string name;
    std::string state = "visible";  // "visible", "hidden", "veryHidden"
    bool showGridLines = true;
    bool printGridLines = false;
    bool tabSelected = false;
    bool showPageBreaks = false;  // the view shows automatic page breaks
    std::optional<double> defaultColumnWidth;  // characters, when the sheet's standard width changed
    double defaultRowHeight = 15.0;
    std::string activeCell = "A1";
    std::vector<ColumnRange> columns;  // ascending, not overlapping
    std::vector<Row> rows;             // ascending
    std::vector<std::string> formulas;  // without the leading "="
    std::map<uint32_t, CellBlock> arrayFormulas;  // formula index -> the block an array formula fills
    std::vector<CellBlock> merges;
    std::vector<TextBoxShape> textBoxes;  // in z-order, bottom first
    std::vector<CellComment> comments;    // in row, then column order
};

struct DefinedName {
    std::string name;
    std::string formula;  // without the leading "="
    std::optional<uint32_t> localSheet;  // 0-based sheet position for a sheet-level name
    bool hidden = false;

    friend bool operator==(const DefinedName&, const DefinedName&) = default;
};

struct DocumentProperties {
    std::string creator;
    std::string lastModifiedBy;
    std::optional<std::time_t> created;
    std::optional<std::time_t> modified;
};

struct WorkbookDocument {
    std::vector<SheetDocument> sheets;
    std::vector<DefinedName> names;
    std::vector<CellFormat> formats{CellFormat{}};  // formats[0] is the default format
    std::vector<SharedString> strings;
    std::vector<uint32_t> palette;  // 56 RGB entries (0x00RRGGBB) when the palette was changed
    uint32_t activeSheet = 0;       // 0-based
    bool lockStructure = false;
    bool lockWindows = false;
    DocumentProperties properties;
};

}  // namespace ooxml
