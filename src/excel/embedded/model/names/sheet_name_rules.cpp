#include "excel/embedded/model/names/sheet_name_rules.hpp"

#include "excel/embedded/model/cell_address.hpp"
#include "excel/embedded/text/utf8_text.hpp"

namespace excel::embedded {

namespace {

constexpr size_t MaxSheetNameLength = 31;

bool IsUnquotedCharacter(char32_t c) {
    return IsNameLetter(c) || (c >= '0' && c <= '9') || c == '_' || c == '.';
}

}  // namespace

bool IsValidSheetName(std::string_view name) {
    if (name.empty() || name.front() == '\'' || name.back() == '\'')
        return false;
    if (name.find_first_of(":\\/?*[]") != std::string_view::npos)
        return false;
    const size_t length = CodePointCount(name);
    return length <= MaxSheetNameLength && !EqualsIgnoringCase(name, "History");
}

bool SameSheetName(std::string_view a, std::string_view b) {
    return EqualsIgnoringCase(a, b);
}

bool SheetNameNeedsQuotes(std::string_view name) {
    if (name.empty() || (name[0] >= '0' && name[0] <= '9'))
        return true;
    for (size_t position = 0; position < name.size();) {
        if (!IsUnquotedCharacter(NextCodePoint(name, position)))
            return true;
    }
    return LooksLikeA1Cell(name) || LooksLikeR1C1Reference(name);
}

std::string QualifiedSheetName(std::string_view name) {
    if (!SheetNameNeedsQuotes(name))
        return std::string(name);
    std::string quoted;
    quoted.reserve(name.size() + 4);
    quoted.push_back('\'');
    for (char c : name) {
        if (c == '\'')
            quoted.push_back('\'');
        quoted.push_back(c);
    }
    quoted.push_back('\'');
    return quoted;
}

}  // namespace excel::embedded
