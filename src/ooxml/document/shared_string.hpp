#pragma once

#include "ooxml/document/cell_format.hpp"

#include <optional>
#include <string>
#include <vector>

namespace ooxml {

// A run of rich text; a run without a font takes the cell's font.
struct TextRun {
    std::string text;
    std::optional<Font> font;

    friend bool operator==(const TextRun&, const TextRun&) = default;
};

// An entry of the shared string table: plain text, or rich text when runs is not empty (then
// text is the runs' concatenation).
struct SharedString {
    std::string text;
    std::vector<TextRun> runs;

    friend bool operator==(const SharedString&, const SharedString&) = default;
};

}  // namespace ooxml
