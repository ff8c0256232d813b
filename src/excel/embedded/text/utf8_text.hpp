#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace excel::embedded {

// The code point starting at `position`, which moves past it. A malformed sequence reads as
// U+FFFD and moves one byte on.
char32_t NextCodePoint(std::string_view text, size_t& position);

// The number of code points in UTF-8 text, as Excel counts characters (malformed bytes count one each).
size_t CodePointCount(std::string_view text);

// The number of UTF-16 code units the text takes, in which Excel states its limits on text (a
// character beyond the Basic Multilingual Plane counts two).
size_t Utf16Length(std::string_view text);

// The lower-case form of a letter in the Latin, Greek and Cyrillic scripts; other code points
// unchanged. Enough for the case-insensitive comparisons of sheet and defined names.
char32_t FoldCase(char32_t codePoint);

// Whether a code point counts as a letter in a name: ASCII letters, and beyond ASCII everything
// but the Latin-1, general and CJK punctuation blocks (names may use letters of any script).
bool IsNameLetter(char32_t codePoint);

// UTF-8 strings equal once case is folded.
bool EqualsIgnoringCase(std::string_view a, std::string_view b);

// The text with each malformed byte replaced by U+FFFD, as a saved file spells it.
std::string WithMalformedBytesReplaced(std::string_view text);

// The text's code points with case folded: equal for the texts EqualsIgnoringCase finds equal, so
// it keys a hash lookup of names.
std::u32string FoldedCodePoints(std::string_view text);

// The text without its leading and trailing spaces (U+0020 only, as the automation runtime's Trim).
std::string_view TrimSpaces(std::string_view text);

}  // namespace excel::embedded
