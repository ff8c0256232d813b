#include "excel/embedded/model/names/defined_name_rules.hpp"

#include "excel/embedded/model/cell_address.hpp"
#include "excel/embedded/text/utf8_text.hpp"

namespace excel::embedded {

namespace {

constexpr size_t MaxDefinedNameLength = 255;

bool CanStartName(char32_t c) {
    return IsNameLetter(c) || c == '_' || c == '\\';
}

bool CanContinueName(char32_t c) {
    return CanStartName(c) || (c >= '0' && c <= '9') || c == '.' || c == '?';
}

}  // namespace

bool IsValidDefinedName(std::string_view name) {
    if (name.empty())
        return false;
    size_t position = 0;
    size_t length = 0;
    for (; position < name.size(); ++length) {
        const char32_t c = NextCodePoint(name, position);
        if (!(length == 0 ? CanStartName(c) : CanContinueName(c)))
            return false;
    }
    return length <= MaxDefinedNameLength && !LooksLikeA1Cell(name) && !LooksLikeR1C1Reference(name);
}

bool SameDefinedName(std::string_view a, std::string_view b) {
    return EqualsIgnoringCase(a, b);
}

}  // namespace excel::embedded
