#include "ooxml/styles/font_reader.hpp"

#include "ooxml/styles/color_reader.hpp"
#include "ooxml/xml/xml_node_access.hpp"

#include <algorithm>
#include <cstdint>

namespace ooxml {

namespace {

constexpr uint32_t MaxFontFamily = 14;
constexpr uint32_t MaxCharset = 255;

// <b/>, <b val="1"/> and <b val="true"/> are on; <b val="0"/> is off.
bool FlagValue(pugi::xml_node element) {
    return AttributeBool(element, "val", true);
}

std::string UnderlineValue(pugi::xml_node element) {
    const std::string_view value = AttributeText(element, "val");
    if (value.empty()) {
        return "single";
    }
    return value == "none" ? std::string() : std::string(value);
}

}  // namespace

Font ReadFont(pugi::xml_node node) {
    Font font;
    font.color = Color{};
    font.family = 0;
    font.scheme.clear();
    for (pugi::xml_node child = node.first_child(); child; child = child.next_sibling()) {
        const std::string_view name = LocalName(child);
        if (name == "name" || name == "rFont") {
            font.name = AttributeText(child, "val");
        } else if (name == "sz") {
            font.size = AttributeDouble(child, "val").value_or(font.size);
        } else if (name == "b") {
            font.bold = FlagValue(child);
        } else if (name == "i") {
            font.italic = FlagValue(child);
        } else if (name == "strike") {
            font.strike = FlagValue(child);
        } else if (name == "u") {
            font.underline = UnderlineValue(child);
        } else if (name == "vertAlign") {
            const std::string_view value = AttributeText(child, "val");
            font.vertAlign = value == "baseline" ? std::string_view() : value;
        } else if (name == "color") {
            font.color = ReadColor(child);
        } else if (name == "family") {
            font.family =
                static_cast<int32_t>(std::min<uint32_t>(AttributeUnsigned(child, "val").value_or(0), MaxFontFamily));
        } else if (name == "charset") {
            font.charset =
                static_cast<int32_t>(std::min<uint32_t>(AttributeUnsigned(child, "val").value_or(0), MaxCharset));
        } else if (name == "scheme") {
            const std::string_view value = AttributeText(child, "val");
            font.scheme = value == "none" ? std::string_view() : value;
        }
    }
    return font;
}

}  // namespace ooxml
