#include "ooxml/worksheet/unresolvable_references.hpp"

#include <algorithm>
#include <cctype>

namespace ooxml {

namespace {

bool IsDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

// Characters of the part after "!": cell and range references, names, and "#REF!" itself.
bool IsReferenceCharacter(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '$' || c == ':' || c == '_' || c == '.' ||
           c == '\\' || c == '?' || static_cast<unsigned char>(c) >= 0x80;
}

// Length of "[n]" at position when n names another workbook (n > 0), else 0; the index goes to
// workbook.
std::size_t WorkbookIndexLength(std::string_view formula, std::size_t position, uint64_t& workbook) {
    if (position >= formula.size() || formula[position] != '[') {
        return 0;
    }
    std::size_t end = position + 1;
    workbook = 0;
    while (end < formula.size() && IsDigit(formula[end])) {
        workbook = std::min<uint64_t>(workbook * 10 + static_cast<uint64_t>(formula[end] - '0'), UINT32_MAX + 1ull);
        ++end;
    }
    return end > position + 1 && end < formula.size() && formula[end] == ']' && workbook != 0 ? end + 1 - position : 0;
}

// End of the text quoted with the quote character at position (a doubled quote stands for one),
// or npos when it is not closed: a quoted sheet name ('...') or a string literal ("...").
std::size_t ClosingQuoteEnd(std::string_view formula, std::size_t position) {
    const char quote = formula[position];
    for (std::size_t i = position + 1; i < formula.size(); ++i) {
        if (formula[i] == quote) {
            if (i + 1 < formula.size() && formula[i + 1] == quote) {
                ++i;
                continue;
            }
            return i + 1;
        }
    }
    return std::string_view::npos;
}

// End of the reference that follows a sheet prefix ending at position (just after the "!").
std::size_t ReferenceEnd(std::string_view formula, std::size_t position) {
    if (formula.substr(position, 5) == "#REF!") {
        return position + 5;
    }
    while (position < formula.size() && IsReferenceCharacter(formula[position])) {
        ++position;
    }
    return position;
}

bool IsNameStart(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0 || c == '_' || c == '\\' ||
           static_cast<unsigned char>(c) >= 0x80;
}

// End of the table reference ("Sales[Amount]", "Sales[[#Headers],[Qty]:[Price]]") starting at position,
// or npos when none starts there; the table's name goes to table. Inside the brackets a quote
// escapes the next character.
std::size_t TableReferenceEnd(std::string_view formula, std::size_t position, std::string_view& table) {
    if (!IsNameStart(formula[position])) {
        return std::string_view::npos;
    }
    std::size_t i = position;
    while (i < formula.size() && formula[i] != '[' && IsReferenceCharacter(formula[i]) && formula[i] != ':') {
        ++i;
    }
    if (i >= formula.size() || formula[i] != '[') {
        return std::string_view::npos;
    }
    table = formula.substr(position, i - position);
    int depth = 0;
    for (; i < formula.size(); ++i) {
        if (formula[i] == '\'') {
            ++i;
        } else if (formula[i] == '[') {
            ++depth;
        } else if (formula[i] == ']' && --depth == 0) {
            return i + 1;
        }
    }
    return std::string_view::npos;
}

// End of the external reference starting at position, or npos when none starts there; the
// workbook's index goes to workbook.
std::size_t ExternalReferenceEnd(std::string_view formula, std::size_t position, uint64_t& workbook) {
    std::size_t prefixEnd = std::string_view::npos;
    if (formula[position] == '\'' && WorkbookIndexLength(formula, position + 1, workbook) != 0) {
        prefixEnd = ClosingQuoteEnd(formula, position);
    } else if (const std::size_t index = WorkbookIndexLength(formula, position, workbook); index != 0) {
        prefixEnd = position + index;
        while (prefixEnd < formula.size() && formula[prefixEnd] != '!' && IsReferenceCharacter(formula[prefixEnd])) {
            ++prefixEnd;
        }
    }
    if (prefixEnd == std::string_view::npos || prefixEnd >= formula.size() || formula[prefixEnd] != '!') {
        return std::string_view::npos;
    }
    return ReferenceEnd(formula, prefixEnd + 1);
}

}  // namespace

bool ReferenceTargets::HasTable(std::string_view name) const {
    const auto sameName = [name](const std::string& table) {
        return table.size() == name.size() && std::equal(table.begin(), table.end(), name.begin(), [](char a, char b) {
                   return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
               });
    };
    return std::any_of(tables.begin(), tables.end(), sameName);
}

std::string WithoutUnresolvableReferences(std::string_view formula, const ReferenceTargets& targets) {
    std::string result;
    result.reserve(formula.size());
    std::size_t i = 0;
    while (i < formula.size()) {
        const char c = formula[i];
        const bool startsOperand = i == 0 || !IsReferenceCharacter(formula[i - 1]);
        if (startsOperand) {
            uint64_t workbook = 0;
            std::string_view table;
            const bool external = c == '[' || c == '\'';
            const std::size_t end =
                external ? ExternalReferenceEnd(formula, i, workbook) : TableReferenceEnd(formula, i, table);
            if (end != std::string_view::npos) {
                const bool resolvable = external ? workbook <= targets.externalWorkbooks : targets.HasTable(table);
                if (resolvable) {
                    result.append(formula.substr(i, end - i));
                } else {
                    result += "#REF!";
                }
                i = end;
                continue;
            }
        }
        // Quoted text (a sheet name of this workbook, a string literal) is copied whole.
        const std::size_t end = c == '"' || c == '\'' ? ClosingQuoteEnd(formula, i) : i + 1;
        const std::size_t stop = std::min(end, formula.size());
        result.append(formula.substr(i, stop - i));
        i = stop;
    }
    return result;
}

}  // namespace ooxml
