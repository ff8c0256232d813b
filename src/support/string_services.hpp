#pragma once

#include <string>
#include <string_view>

namespace vos {

// String helpers for markers and delimited entries; comparisons are exact (case-sensitive).
class StringServices {
public:
    // Answers the text before the first delimiter and leaves what follows it in text. A text
    // without the delimiter is answered whole and leaves text empty.
    std::string SplitFirstToken(std::string& text, std::string_view delimiter) const;
    bool BeginsWith(std::string_view text, std::string_view prefix) const;
    // The text without the prefix; a text that does not begin with it comes back unchanged.
    std::string StripPrefix(std::string_view text, std::string_view prefix) const;
    bool EndsWith(std::string_view text, std::string_view suffix) const;
    // Whether the texts are equal once both are in upper case; letters outside ASCII compare exactly.
    bool EqualIgnoringCase(std::string_view first, std::string_view second) const;
    // The text between two quote characters, each quote inside it doubled, as formulas quote
    // texts ("say ""hi""") and sheet names ('it''s').
    std::string Quoted(std::string_view text, char quote) const;
};

}  // namespace vos
