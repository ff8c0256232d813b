#include "ooxml/theme/theme_reader.hpp"

#include "ooxml/drawingml/theme_color_names.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"

#include <charconv>

namespace ooxml {

namespace {

std::optional<uint32_t> ParseRrggbb(std::string_view text) {
    uint32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    if (text.size() != 6 || error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

// The colour a scheme entry (<a:dk1>, <a:accent1>, ...) holds. A system colour saved without its
// last colour is the window's, white, or the window text's, black.
std::optional<uint32_t> SchemeColor(pugi::xml_node entry) {
    if (const pugi::xml_node rgb = FirstChild(entry, "srgbClr")) {
        return ParseRrggbb(AttributeText(rgb, "val"));
    }
    if (const pugi::xml_node system = FirstChild(entry, "sysClr")) {
        if (Attribute(system, "lastClr")) {
            return ParseRrggbb(AttributeText(system, "lastClr"));
        }
        const std::string_view name = AttributeText(system, "val");
        if (name == "window") {
            return 0xFFFFFFu;
        }
        if (name == "windowText") {
            return 0x000000u;
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::array<uint32_t, 12>> ReadThemeColors(std::string_view xml) {
    pugi::xml_document document;
    if (!HoldsNoNul(xml) || !document.load_buffer(xml.data(), xml.size(), XmlPartParseOptions)) {
        return std::nullopt;
    }
    const pugi::xml_node theme = document.document_element();
    if (LocalName(theme) != "theme") {
        return std::nullopt;
    }
    const pugi::xml_node scheme = FirstChild(FirstChild(theme, "themeElements"), "clrScheme");
    std::array<uint32_t, 12> colors{};
    for (std::size_t index = 0; index < colors.size(); ++index) {
        const std::optional<uint32_t> color =
            SchemeColor(FirstChild(scheme, ThemeColorName(static_cast<int32_t>(index))));
        if (!color) {
            return std::nullopt;
        }
        colors[index] = *color;
    }
    return colors;
}

}  // namespace ooxml
