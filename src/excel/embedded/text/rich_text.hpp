#pragma once

#include "excel/embedded/format/font_format.hpp"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace excel::embedded {

// A run of rich text; a run without a font shows the font of its cell or text frame.
struct TextRun {
    std::string text;
    std::optional<FontFormat> font;

    friend bool operator==(const TextRun&, const TextRun&) = default;
};

// The text of a cell, comment or shape: plain, or in runs of their own fonts when runs is not
// empty (text is then the runs' concatenation).
struct RichText {
    std::string text;
    std::vector<TextRun> runs;

    friend bool operator==(const RichText&, const RichText&) = default;
};

// Edits of a text as runs, positions in characters (code points). Results have equal neighbouring
// runs joined, and no runs at all when nothing differs from the base font.
size_t CharacterCount(const RichText& text);
std::string CharactersOf(const RichText& text, size_t start, size_t count);
std::vector<FontFormat> FontsOf(const RichText& text, size_t start, size_t count, const FontFormat& cellFont);
RichText WithFont(const RichText& text, size_t start, size_t count, const std::function<void(FontFormat&)>& edit,
                  const FontFormat& cellFont);
// Edits the fonts of count characters from start of a text shown over a base font. An edit of
// the whole text edits the base font too, so that text typed later takes it.
void EditTextFonts(RichText& text, FontFormat& base, size_t start, size_t count,
                   const std::function<void(FontFormat&)>& edit);
// Replaces the characters; the new text takes the font of the first replaced character (or of
// the one before when none is replaced).
RichText WithReplaced(const RichText& text, size_t start, size_t count, std::string_view replacement);

}  // namespace excel::embedded
