#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

namespace excel::embedded {

// Edits of a cell's text as runs, positions in characters (code points). A run without a font
// shows the cell's font. Results have equal neighbouring runs joined, and no runs at all when
// nothing differs from the cell's font.
size_t CharacterCount(const ooxml::SharedString& text);
std::string CharactersOf(const ooxml::SharedString& text, size_t start, size_t count);
std::vector<ooxml::Font> FontsOf(const ooxml::SharedString& text, size_t start, size_t count,
                                 const ooxml::Font& cellFont);
ooxml::SharedString WithFont(const ooxml::SharedString& text, size_t start, size_t count,
                             const std::function<void(ooxml::Font&)>& edit, const ooxml::Font& cellFont);
// Replaces the characters; the new text takes the font of the first replaced character (or of
// the one before when none is replaced).
ooxml::SharedString WithReplaced(const ooxml::SharedString& text, size_t start, size_t count,
                                 std::string_view replacement);

}  // namespace excel::embedded
