#pragma once

#include "excel/embedded/format/format_color.hpp"

#include <cstdint>
#include <optional>
#include <string>

namespace excel::embedded {

enum class Underline : uint8_t { None, Single, Double, SingleAccounting, DoubleAccounting };
enum class Script : uint8_t { Baseline, Superscript, Subscript };
// Which of the theme's fonts the name stands for, so that a theme change would follow it.
enum class FontScheme : uint8_t { None, Major, Minor };

// A font of cells, text runs and shapes: by default the theme's body font, Calibri 11 in Text 1.
struct FontFormat {
    std::string name = "Calibri";
    double size = 11.0;
    bool bold = false;
    bool italic = false;
    bool strikethrough = false;
    Underline underline = Underline::None;
    Script script = Script::Baseline;
    FormatColor color{FormatColor::Kind::Theme, 0, 1, 0.0};
    int32_t family = 2;  // 1 Roman, 2 Swiss, 3 Modern, 4 Script, 5 Decorative; 0 none
    FontScheme scheme = FontScheme::Minor;
    // The character set a legacy font name stands for, as the opened file gave it.
    std::optional<int32_t> charset;

    friend bool operator==(const FontFormat&, const FontFormat&) = default;
};

}  // namespace excel::embedded
