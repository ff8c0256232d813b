#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace ooxml {

// A colour as styles and runs store it.
struct Color {
    enum class Kind : uint8_t { None, Auto, Rgb, Indexed, Theme };
    Kind kind = Kind::None;
    uint32_t argb = 0;  // Rgb: 0xAARRGGBB
    int32_t index = 0;  // Indexed: palette index (0..63, 64 = system foreground); Theme: 0..11
    double tint = 0.0;  // -1..1, Rgb/Indexed/Theme

    friend bool operator==(const Color&, const Color&) = default;
};

struct Font {
    std::string name = "Calibri";
    double size = 11.0;
    bool bold = false;
    bool italic = false;
    bool strike = false;
    std::string underline;  // "" (none), "single", "double", "singleAccounting", "doubleAccounting"
    std::string vertAlign;  // "" (baseline), "superscript", "subscript"
    Color color{Color::Kind::Theme, 0, 1, 0.0};  // Text 1
    int32_t family = 2;                          // 0 = not written
    std::string scheme = "minor";                // "", "minor", "major"
    std::optional<int32_t> charset;              // the character set a legacy font name stands for; none: not written

    friend bool operator==(const Font&, const Font&) = default;
};

struct Fill {
    std::string patternType = "none";  // the ST_PatternType value: "none", "solid", "gray125", ...
    Color foreground;
    Color background;
    // A gradient instead of a pattern: its <gradientFill> as the file wrote it, and whether it runs
    // from a rectangle out (type "path") rather than along a line.
    std::string gradient;
    bool pathGradient = false;

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
    bool pivotButton = false;  // the cell shows a pivot table field's drop-down button
    // The named style the format is based on: its index among the workbook's style formats
    // (cellStyleXfs). 0 is the Normal style.
    uint32_t style = 0;

    friend bool operator==(const CellFormat&, const CellFormat&) = default;
};

}  // namespace ooxml
