#pragma once

#include "excel/embedded/format/font_format.hpp"
#include "excel/embedded/format/format_color.hpp"

#include <cstdint>
#include <string>

namespace excel::embedded {

// The patterns a cell's fill can have, in Excel's own numbering of them.
enum class FillPattern : uint8_t {
    None,
    Solid,
    MediumGray,
    DarkGray,
    LightGray,
    DarkHorizontal,
    DarkVertical,
    DarkDown,
    DarkUp,
    DarkGrid,
    DarkTrellis,
    LightHorizontal,
    LightVertical,
    LightDown,
    LightUp,
    LightGrid,
    LightTrellis,
    Gray125,
    Gray0625,
};

// A solid fill shows its foreground; a pattern draws the foreground over the background.
struct CellFill {
    FillPattern pattern = FillPattern::None;
    FormatColor foreground;
    FormatColor background;
    // An opened file's gradient, kept as the file wrote it until a pattern or colour replaces it.
    std::string gradient;
    bool pathGradient = false;  // from a rectangle out, else along a line

    friend bool operator==(const CellFill&, const CellFill&) = default;
};

// The lines a cell's side can have: each a line style at one weight, as Excel keeps them.
enum class BorderStyle : uint8_t {
    None,
    Thin,
    Medium,
    Dashed,
    Dotted,
    Thick,
    Double,
    Hair,
    MediumDashed,
    DashDot,
    MediumDashDot,
    DashDotDot,
    MediumDashDotDot,
    SlantDashDot,
};

struct BorderLine {
    BorderStyle style = BorderStyle::None;
    FormatColor color;

    bool Drawn() const { return style != BorderStyle::None; }
    friend bool operator==(const BorderLine&, const BorderLine&) = default;
};

struct CellBorder {
    BorderLine left, right, top, bottom, diagonal;
    bool diagonalUp = false;
    bool diagonalDown = false;

    friend bool operator==(const CellBorder&, const CellBorder&) = default;
};

enum class HorizontalAlignment : uint8_t { General, Left, Center, Right, Fill, Justify, CenterContinuous, Distributed };
enum class VerticalAlignment : uint8_t { Top, Center, Bottom, Justify, Distributed };

struct CellAlignment {
    HorizontalAlignment horizontal = HorizontalAlignment::General;
    VerticalAlignment vertical = VerticalAlignment::Bottom;
    bool wrapText = false;
    bool shrinkToFit = false;
    int32_t indent = 0;
    int32_t textRotation = 0;  // 0..180, or 255 for vertical text

    friend bool operator==(const CellAlignment&, const CellAlignment&) = default;
};

// The complete format of a cell, row or column; the workbook keeps each distinct one once.
struct CellFormat {
    std::string numberFormat = "General";
    FontFormat font;
    CellFill fill;
    CellBorder border;
    CellAlignment alignment;
    bool quotePrefix = false;
    bool locked = true;
    bool hidden = false;
    bool pivotButton = false;  // kept for the pivot tables the opened file holds
    // The named style the format is based on, by its index in the opened file (0 is Normal). The
    // engine keeps it through changes of the format's parts, as Excel does.
    uint32_t style = 0;

    friend bool operator==(const CellFormat&, const CellFormat&) = default;
};

}  // namespace excel::embedded
