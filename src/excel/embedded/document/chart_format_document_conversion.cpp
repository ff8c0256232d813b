#include "excel/embedded/document/chart_format_document_conversion.hpp"

#include "excel/embedded/document/chart_text_direction.hpp"
#include "excel/embedded/document/chart_words.hpp"
#include "excel/embedded/document/format_document_conversion.hpp"
#include "excel/embedded/format/color_conversion.hpp"
#include "excel/embedded/format/color_model.hpp"

#include <charconv>
#include <cmath>

namespace excel::embedded {

namespace {

constexpr double EmuPerPoint = 12700.0;
constexpr int32_t FullStop = 100000;
// A one-colour gradient's second stop: the colour darkened towards black below the middle of the
// degree scale and lightened towards white above it, as Excel works it out.
constexpr double GradientScale = 510.0;

uint32_t Channel(uint32_t rgb, int shift) {
    return (rgb >> shift) & 0xFF;
}

// The second stop of a one-colour gradient over rrggbb.
uint32_t SecondStop(uint32_t rrggbb, double degree) {
    const bool darken = degree < 0.5;
    const double amount = std::round(GradientScale * (darken ? degree : 1.0 - degree));
    uint32_t result = 0;
    for (const int shift : {16, 8, 0}) {
        const double channel = Channel(rrggbb, shift);
        const double mixed = darken ? channel * amount / 255.0 : 255.0 - (255.0 - channel) * amount / 255.0;
        result |= static_cast<uint32_t>(std::lround(mixed)) << shift;
    }
    return result;
}

ooxml::ChartFill DocumentFill(const ChartFill& fill, const WorkbookColors& colors) {
    ooxml::ChartFill out;
    switch (fill.kind) {
        case ChartFill::Kind::Automatic:
            break;
        case ChartFill::Kind::None:
            out.kind = ooxml::ChartFill::Kind::None;
            break;
        case ChartFill::Kind::Solid:
            out.kind = ooxml::ChartFill::Kind::Solid;
            out.color = DocumentShapeColor(fill.color, colors);
            break;
        case ChartFill::Kind::Gradient: {
            out.kind = ooxml::ChartFill::Kind::Gradient;
            const uint32_t first = ArgbFromRgbLong(RgbOf(fill.color.color, colors, 0)) & 0xFFFFFF;
            const ooxml::Color one{ooxml::Color::Kind::Rgb, 0xFF000000 | first, 0, 0.0};
            const ooxml::Color two{ooxml::Color::Kind::Rgb, 0xFF000000 | SecondStop(first, fill.gradientDegree), 0,
                                   0.0};
            // Variants 2 and 4 run the other way; 3 and 4 mirror from the middle.
            const bool reversed = fill.gradientVariant == 2 || fill.gradientVariant == 4;
            const ooxml::Color& start = reversed ? two : one;
            const ooxml::Color& end = reversed ? one : two;
            if (fill.gradientVariant >= 3) {
                out.stops = {{0, start}, {FullStop / 2, end}, {FullStop, start}};
            } else {
                out.stops = {{0, start}, {FullStop, end}};
            }
            const std::string_view angle = WordOf(GradientAngles, fill.gradientStyle);
            std::from_chars(angle.data(), angle.data() + angle.size(), out.angle);
            out.scaled = true;
            out.rotateWithShape = true;
            break;
        }
    }
    return out;
}

ooxml::ChartLine DocumentLine(const ChartLine& line, const WorkbookColors& colors) {
    ooxml::ChartLine out;
    if (line.weight) {
        out.width = std::llround(*line.weight * EmuPerPoint);
    }
    switch (line.kind) {
        case ChartLine::Kind::Automatic:
            break;
        case ChartLine::Kind::None:
            out.kind = ooxml::ChartLine::Kind::None;
            break;
        case ChartLine::Kind::Solid:
            out.kind = ooxml::ChartLine::Kind::Solid;
            out.color = DocumentShapeColor(line.color, colors);
            out.dash = WordOf(LineDashes, line.style);
            break;
    }
    return out;
}

}  // namespace

ooxml::Color DocumentShapeColor(const ShapeColor& color, const WorkbookColors& colors) {
    if (color.color.kind == FormatColor::Kind::Theme) {
        return DocumentColor(color.color);
    }
    // DrawingML has no palette and no automatic colour: those are written as the RGB they show.
    const uint32_t rgb = ArgbFromRgbLong(RgbOf(color.color, colors, 0)) & 0xFFFFFF;
    return ooxml::Color{ooxml::Color::Kind::Rgb, 0xFF000000 | rgb, 0, 0.0};
}

ooxml::ChartShapeProperties DocumentShapeProperties(const ChartElementFormat& format, const WorkbookColors& colors,
                                                    const ooxml::ChartShapeProperties* opened) {
    if (format.fromFile && opened != nullptr) {
        return *opened;
    }
    ooxml::ChartShapeProperties out;
    out.fill = DocumentFill(format.fill, colors);
    out.line = DocumentLine(format.line, colors);
    return out;
}

ooxml::ChartFont DocumentChartFont(const FontFormat& font, const WorkbookColors& colors) {
    ooxml::ChartFont out;
    out.size = font.size;
    out.bold = font.bold;
    out.italic = font.italic;
    if (font.strikethrough) {
        out.strike = true;
    }
    if (font.underline != Underline::None) {
        out.underline = font.underline == Underline::Double ? "dbl" : "sng";
    }
    if (font.name != DefaultChartFont().name) {
        out.name = font.name;
    }
    if (font.color.kind != FormatColor::Kind::Automatic) {
        out.color = DocumentShapeColor(ShapeColor{font.color, msoNotThemeColor}, colors);
    }
    return out;
}

ooxml::ChartTextProperties DocumentTextProperties(const ChartTextFormat& text,
                                                  const ooxml::ChartTextProperties* opened) {
    if (text.fromFile && opened != nullptr) {
        return *opened;
    }
    ooxml::ChartTextProperties out;
    ChartTextDirection direction = DirectionOfOrientation(text.orientation, xlTickLabelOrientationAutomatic);
    out.rotation = direction.rotation;
    out.vertical = std::move(direction.vertical);
    if (text.font) {
        // Text properties name only size, weight and slant, unless the font was changed otherwise.
        out.font.size = text.font->size;
        out.font.bold = text.font->bold;
        if (text.font->italic) {
            out.font.italic = true;
        }
        if (text.font->name != DefaultChartFont().name) {
            out.font.name = text.font->name;
        }
    }
    return out;
}

ooxml::ChartTitle DocumentTitle(const ChartTitleModel& title, const WorkbookColors& colors) {
    if (title.textFromFile && title.opened != nullptr) {
        ooxml::ChartTitle kept = *title.opened;
        kept.shape = DocumentShapeProperties(title.format, colors, &title.opened->shape);
        return kept;
    }
    ooxml::ChartTitle out;
    out.paragraphFont = DocumentChartFont(title.font, colors);
    if (!title.text.text.empty()) {
        if (title.text.runs.empty()) {
            out.runs.push_back(ooxml::ChartTextRun{title.text.text, out.paragraphFont});
        }
        for (const TextRun& run : title.text.runs) {
            out.runs.push_back(ooxml::ChartTextRun{run.text, DocumentChartFont(run.font.value_or(title.font), colors)});
        }
    } else {
        out.textProperties.font = out.paragraphFont;
    }
    ChartTextDirection direction = DirectionOfOrientation(title.orientation, xlHorizontal);
    out.rotation = direction.rotation;
    out.vertical = std::move(direction.vertical);
    out.shape = DocumentShapeProperties(title.format, colors, title.opened ? &title.opened->shape : nullptr);
    if (title.opened != nullptr) {
        out.carried = title.opened->carried;
    }
    return out;
}

}  // namespace excel::embedded
