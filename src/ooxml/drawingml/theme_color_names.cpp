#include "ooxml/drawingml/theme_color_names.hpp"

#include <array>

namespace ooxml {

namespace {

constexpr std::array<std::string_view, 12> Names{"lt1",     "dk1",     "lt2",     "dk2",   "accent1", "accent2",
                                                 "accent3", "accent4", "accent5", "accent6", "hlink", "folHlink"};
constexpr std::array<std::string_view, 4> MappedNames{"bg1", "tx1", "bg2", "tx2"};

}  // namespace

std::string_view ThemeColorName(int32_t index) {
    return index >= 0 && static_cast<std::size_t>(index) < Names.size() ? Names[static_cast<std::size_t>(index)]
                                                                         : Names[1];
}

std::optional<int32_t> ThemeColorIndex(std::string_view name) {
    for (std::size_t i = 0; i < Names.size(); ++i) {
        if (Names[i] == name) {
            return static_cast<int32_t>(i);
        }
    }
    for (std::size_t i = 0; i < MappedNames.size(); ++i) {
        if (MappedNames[i] == name) {
            return static_cast<int32_t>(i);
        }
    }
    return std::nullopt;
}

}  // namespace ooxml
