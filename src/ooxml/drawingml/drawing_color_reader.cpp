#include "ooxml/drawingml/drawing_color_reader.hpp"

#include "ooxml/drawingml/theme_color_names.hpp"
#include "ooxml/xml/xml_node_access.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace ooxml {

namespace {

constexpr double Percent = 100000.0;

std::optional<uint32_t> ParseRgb(std::string_view text) {
    uint32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    if (text.size() != 6 || error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

// scRGB components are linear; the sRGB curve brings them back to the 0..255 scale.
uint32_t ScRgbComponent(pugi::xml_node color, std::string_view name) {
    const double linear = std::clamp(AttributeDouble(color, name).value_or(0.0) / Percent, 0.0, 1.0);
    const double gamma = linear <= 0.0031308 ? linear * 12.92 : 1.055 * std::pow(linear, 1.0 / 2.4) - 0.055;
    return static_cast<uint32_t>(std::lround(gamma * 255.0));
}

std::optional<Color> ReadColorChoice(pugi::xml_node color) {
    const std::string_view kind = LocalName(color);
    std::optional<uint32_t> rgb;
    if (kind == "srgbClr") {
        rgb = ParseRgb(AttributeText(color, "val"));
    } else if (kind == "sysClr") {
        rgb = ParseRgb(AttributeText(color, "lastClr"));
    } else if (kind == "scrgbClr") {
        rgb = ScRgbComponent(color, "r") << 16 | ScRgbComponent(color, "g") << 8 | ScRgbComponent(color, "b");
    } else if (kind == "schemeClr") {
        const std::optional<int32_t> index = ThemeColorIndex(AttributeText(color, "val"));
        if (!index) {
            return std::nullopt;
        }
        return Color{Color::Kind::Theme, 0, *index, 0.0};
    }
    if (!rgb) {
        return std::nullopt;
    }
    return Color{Color::Kind::Rgb, 0xFF000000u | *rgb, 0, 0.0};
}

std::optional<double> Fraction(pugi::xml_node color, std::string_view transform) {
    const std::optional<double> value = AttributeDouble(FirstChild(color, transform), "val");
    return value ? std::optional<double>(*value / Percent) : std::nullopt;
}

double TintOf(pugi::xml_node color) {
    double tint = 0.0;
    if (const std::optional<double> offset = Fraction(color, "lumOff")) {
        tint = *offset;
    } else if (const std::optional<double> modulation = Fraction(color, "lumMod")) {
        tint = *modulation - 1.0;
    } else if (const std::optional<double> shade = Fraction(color, "shade")) {
        tint = *shade - 1.0;
    } else if (const std::optional<double> lighter = Fraction(color, "tint")) {
        tint = 1.0 - *lighter;
    }
    return std::clamp(tint, -1.0, 1.0);
}

// The colour element of a fill (of a gradient, its first stop's); none when it holds no colour.
pugi::xml_node ColorElement(pugi::xml_node fill) {
    pugi::xml_node holder = fill;
    if (LocalName(fill) == "gradFill") {
        holder = FirstChild(FirstChild(fill, "gsLst"), "gs");
    }
    for (pugi::xml_node child = holder.first_child(); child; child = child.next_sibling()) {
        if (child.type() == pugi::node_element && ReadColorChoice(child)) {
            return child;
        }
    }
    return {};
}

}  // namespace

std::optional<Color> ReadDrawingFillColor(pugi::xml_node fill) {
    const pugi::xml_node element = ColorElement(fill);
    std::optional<Color> color = ReadColorChoice(element);
    if (color) {
        color->tint = TintOf(element);
    }
    return color;
}

double ReadDrawingFillTransparency(pugi::xml_node fill) {
    const std::optional<double> alpha = Fraction(ColorElement(fill), "alpha");
    return alpha ? 1.0 - std::clamp(*alpha, 0.0, 1.0) : 0.0;
}

}  // namespace ooxml
