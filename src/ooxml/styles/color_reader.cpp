#include "ooxml/styles/color_reader.hpp"

#include "ooxml/xml/xml_node_access.hpp"

#include <algorithm>
#include <charconv>

namespace ooxml {

namespace {

constexpr int32_t MaxIndexedColor = 65;  // 64 system foreground, 65 system background
constexpr int32_t MaxThemeColor = 11;

// "FF1F497D", or "1F497D" taken as opaque.
std::optional<uint32_t> ParseArgb(std::string_view text) {
    if (text.size() != 8 && text.size() != 6) {
        return std::nullopt;
    }
    uint32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    if (error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return text.size() == 6 ? value | 0xFF000000u : value;
}

}  // namespace

Color ReadColor(pugi::xml_node node) {
    Color color;
    if (!node) {
        return color;
    }
    const double tint = std::clamp(AttributeDouble(node, "tint").value_or(0.0), -1.0, 1.0);
    if (const std::optional<uint32_t> argb = ParseArgb(AttributeText(node, "rgb"))) {
        color = Color{Color::Kind::Rgb, *argb, 0, tint};
    } else if (const std::optional<uint32_t> theme = AttributeUnsigned(node, "theme")) {
        color = Color{Color::Kind::Theme, 0, static_cast<int32_t>(std::min<uint32_t>(*theme, MaxThemeColor)), tint};
    } else if (const std::optional<uint32_t> indexed = AttributeUnsigned(node, "indexed")) {
        color =
            Color{Color::Kind::Indexed, 0, static_cast<int32_t>(std::min<uint32_t>(*indexed, MaxIndexedColor)), tint};
    } else if (AttributeBool(node, "auto", false)) {
        color.kind = Color::Kind::Auto;
    }
    return color;
}

std::vector<std::optional<uint32_t>> ReadIndexedColors(pugi::xml_node colors) {
    constexpr std::size_t indexedColorCount = 64;
    std::vector<std::optional<uint32_t>> palette;
    ForEachChild(FirstChild(colors, "indexedColors"), "rgbColor", [&](pugi::xml_node node) {
        if (palette.size() < indexedColorCount) {
            const Color color = ReadColor(node);
            palette.push_back(color.kind == Color::Kind::Rgb ? std::optional(color.argb & 0x00FFFFFFu) : std::nullopt);
        }
    });
    return palette;
}

}  // namespace ooxml
