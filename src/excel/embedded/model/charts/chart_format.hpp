#pragma once

#include "excel/embedded/format/font_format.hpp"
#include "excel/embedded/format/shape_color.hpp"

#include <excel/constants.hpp>

#include <cstdint>
#include <optional>

namespace excel::embedded {

// The fill of a chart element: Excel's automatic one (the chart style's), none, one colour, or a
// gradient of one colour towards black or white.
struct ChartFill {
    enum class Kind : uint8_t { Automatic, None, Solid, Gradient };
    Kind kind = Kind::Automatic;
    ShapeColor color;
    int32_t gradientStyle = msoGradientHorizontal;  // an MsoGradientStyle
    int32_t gradientVariant = 1;                    // 1..4
    double gradientDegree = 0.0;                    // 0 (towards black) .. 1 (towards white)

    friend bool operator==(const ChartFill&, const ChartFill&) = default;
};

// The line of a chart element (a border, a series' line, an axis): automatic, none or one colour,
// with a weight in points (none: the style's) and an XlLineStyle dash.
struct ChartLine {
    enum class Kind : uint8_t { Automatic, None, Solid };
    Kind kind = Kind::Automatic;
    ShapeColor color;
    std::optional<double> weight;
    int32_t style = xlContinuous;

    friend bool operator==(const ChartLine&, const ChartLine&) = default;
};

// The fill and line of a chart element. While nothing changed them, an opened chart's element keeps
// the file's own formatting (fromFile), which may hold more than fill and line (effects, 3-D).
struct ChartElementFormat {
    ChartFill fill;
    ChartLine line;
    bool fromFile = false;

    friend bool operator==(const ChartElementFormat&, const ChartElementFormat&) = default;
};

// The text format of a chart element: its font once set (none: the chart's automatic text), and
// the orientation of its text (an XlTickLabelOrientation, or degrees -90..90).
struct ChartTextFormat {
    std::optional<FontFormat> font;
    bool autoScaleFont = true;
    int32_t orientation = xlTickLabelOrientationAutomatic;
    bool fromFile = false;

    friend bool operator==(const ChartTextFormat&, const ChartTextFormat&) = default;
};

// The font chart text shows when no element sets one: the theme's body font at 10 points in the
// automatic colour.
FontFormat DefaultChartFont();

}  // namespace excel::embedded
