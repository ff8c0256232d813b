#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace excel::embedded {

// What typing a string into a cell stores.
struct TextEntry {
    enum class Kind { Empty, Text, Number, Boolean, Error, Formula } kind = Kind::Empty;
    double number = 0;
    bool boolean = false;
    std::string text;                 // Text: the text; Formula: without the "="; Error: "#N/A" etc.
    bool quotePrefix = false;         // the entry began with an apostrophe
    std::string impliedNumberFormat;  // the format Excel applies with the entry ("0%", "$#,##0.00")
};

// "" -> Empty; "'abc" -> Text "abc" with the quote prefix; "=A1+1" -> Formula "A1+1"; "12", " 1.5 ",
// "-3", "1e3", "1,234.5", "(12)" -> Number; "50%" -> 0.5 with "0%"; "$1,234.50" -> Number with
// "$#,##0.00"; "TRUE"/"false" -> Boolean; "#N/A" and the other error texts -> Error; anything else
// is Text. Dates and times are not recognised and stay text.
TextEntry ParseTextEntry(std::string_view input);

// "#NULL!" 2000, "#DIV/0!" 2007, "#VALUE!" 2015, "#REF!" 2023, "#NAME?" 2029, "#NUM!" 2036,
// "#N/A" 2042 (Excel's xlErr values); case-insensitive.
std::optional<int32_t> ErrorNumberFromText(std::string_view text);

// The inverse; an empty string for a number that is no cell error.
std::string ErrorTextFromNumber(int32_t number);

}  // namespace excel::embedded
