#include "ooxml/drawingml/drawing_color_element.hpp"

#include "ooxml/drawingml/theme_color_names.hpp"
#include "ooxml/styles/default_palette.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <fmt/format.h>

namespace ooxml {

namespace {

constexpr int32_t FirstPaletteIndex = 8;  // 0..7 are fixed: the standard palette's first eight
constexpr int32_t SystemBackgroundIndex = 65;
constexpr double Percent = 100000.0;  // DrawingML percentages are thousandths of a percent

uint32_t IndexedRgb(int32_t index, const std::vector<uint32_t>& palette) {
    const std::array<uint32_t, 56>& standard = DefaultPalette();
    if (index >= 0 && index < FirstPaletteIndex) {
        return standard[static_cast<std::size_t>(index)];
    }
    const std::size_t position = static_cast<std::size_t>(index - FirstPaletteIndex);
    if (index >= FirstPaletteIndex && position < standard.size()) {
        return position < palette.size() ? palette[position] : standard[position];
    }
    return index == SystemBackgroundIndex ? 0xFFFFFF : 0x000000;
}

void PercentElement(XmlWriter& xml, std::string_view element, double fraction) {
    xml.StartElement(element);
    xml.Attribute("val", static_cast<int64_t>(std::lround(fraction * Percent)));
    xml.EndElement();
}

}  // namespace

void WriteSolidFill(XmlWriter& xml, const Color& color, const std::vector<uint32_t>& palette, double transparency) {
    xml.StartElement("a:solidFill");
    if (color.kind == Color::Kind::Theme) {
        xml.StartElement("a:schemeClr");
        xml.Attribute("val", ThemeColorName(color.index));
    } else {
        uint32_t rgb = 0;
        if (color.kind == Color::Kind::Rgb) {
            rgb = color.argb & 0xFFFFFFu;
        } else if (color.kind == Color::Kind::Indexed) {
            rgb = IndexedRgb(color.index, palette);
        }
        xml.StartElement("a:srgbClr");
        xml.Attribute("val", fmt::format("{:06X}", rgb));
    }
    if (color.tint < 0.0) {
        PercentElement(xml, "a:lumMod", 1.0 + color.tint);
    } else if (color.tint > 0.0) {
        PercentElement(xml, "a:lumMod", 1.0 - color.tint);
        PercentElement(xml, "a:lumOff", color.tint);
    }
    if (transparency > 0.0) {
        PercentElement(xml, "a:alpha", 1.0 - std::min(transparency, 1.0));
    }
    xml.EndElement();
    xml.EndElement();
}

}  // namespace ooxml
