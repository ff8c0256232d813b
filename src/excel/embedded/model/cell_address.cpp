#include "excel/embedded/model/cell_address.hpp"

#include "excel/embedded/model/names/sheet_name_rules.hpp"

#include <array>
#include <charconv>

namespace excel::embedded {

namespace {

bool IsAsciiLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Reads a run of letters at `position` as a column number; nullopt past XFD. Moves `position`
// past the letters; 0 when there were none.
std::optional<int32_t> ReadColumn(std::string_view text, size_t& position) {
    int32_t column = 0;
    const size_t start = position;
    for (; position < text.size() && IsAsciiLetter(text[position]); ++position) {
        if (position - start == 3)
            return std::nullopt;
        column = column * 26 + ((text[position] | 0x20) - 'a' + 1);
    }
    if (column > MaxColumn)
        return std::nullopt;
    return column;
}

// Reads a run of digits at `position` as a number no larger than `limit`; nullopt beyond it.
// Moves `position` past the digits; 0 when there were none.
std::optional<int32_t> ReadNumber(std::string_view text, size_t& position, int32_t limit) {
    int32_t number = 0;
    for (; position < text.size() && IsDigit(text[position]); ++position) {
        number = number * 10 + (text[position] - '0');
        if (number > limit)
            return std::nullopt;
    }
    return number;
}

void AppendNumber(std::string& text, int32_t number) {
    std::array<char, 12> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    text.append(digits.data(), result.ptr);
}

void AppendColumnLetters(std::string& text, int32_t column) {
    std::array<char, 4> letters{};
    size_t start = letters.size();
    for (; column > 0 && start > 0; column = (column - 1) / 26) {
        letters[--start] = static_cast<char>('A' + (column - 1) % 26);
    }
    text.append(letters.data() + start, letters.size() - start);
}

// One end of an area: a cell ("$B$2"), a whole column ("B") or a whole row ("2").
struct ReferencePart {
    enum class Kind { Cell, Column, Row } kind;
    int32_t row = 0;
    int32_t column = 0;
};

std::optional<ReferencePart> ReadPart(std::string_view text, size_t& position) {
    if (position < text.size() && text[position] == '$')
        ++position;
    const auto column = ReadColumn(text, position);
    if (!column)
        return std::nullopt;
    const bool rowMarked = position < text.size() && text[position] == '$';
    if (rowMarked && *column == 0)
        return std::nullopt;
    if (rowMarked)
        ++position;
    const size_t rowStart = position;
    const auto row = ReadNumber(text, position, MaxRow);
    if (!row)
        return std::nullopt;
    const bool hasRow = position != rowStart;
    if (hasRow && *row == 0)
        return std::nullopt;
    if (*column != 0 && hasRow)
        return ReferencePart{ReferencePart::Kind::Cell, *row, *column};
    if (*column != 0 && !rowMarked)
        return ReferencePart{ReferencePart::Kind::Column, 0, *column};
    if (hasRow && *column == 0)
        return ReferencePart{ReferencePart::Kind::Row, *row, 0};
    return std::nullopt;
}

std::optional<CellBlock> ReadArea(std::string_view text, size_t& position) {
    const auto first = ReadPart(text, position);
    if (!first)
        return std::nullopt;
    ReferencePart last = *first;
    if (position < text.size() && text[position] == ':') {
        ++position;
        const auto second = ReadPart(text, position);
        if (!second || second->kind != first->kind)
            return std::nullopt;
        last = *second;
    } else if (first->kind != ReferencePart::Kind::Cell) {
        return std::nullopt;
    }
    switch (first->kind) {
        case ReferencePart::Kind::Column:
            return CellBlock{1, std::min(first->column, last.column), MaxRow, std::max(first->column, last.column)};
        case ReferencePart::Kind::Row:
            return CellBlock{std::min(first->row, last.row), 1, std::max(first->row, last.row), MaxColumn};
        case ReferencePart::Kind::Cell:
            break;
    }
    return CellBlock{std::min(first->row, last.row), std::min(first->column, last.column),
                     std::max(first->row, last.row), std::max(first->column, last.column)};
}

// Reads "Sheet1!" or "'My Sheet'!" at `position` into `sheet`. True when there was none, or one
// that is well formed; `position` is then past the "!".
bool ReadSheetPrefix(std::string_view text, size_t& position, std::string& sheet) {
    sheet.clear();
    if (position < text.size() && text[position] == '\'') {
        for (size_t i = position + 1; i < text.size(); ++i) {
            if (text[i] != '\'') {
                sheet.push_back(text[i]);
            } else if (i + 1 < text.size() && text[i + 1] == '\'') {
                sheet.push_back('\'');
                ++i;
            } else {
                if (sheet.empty() || i + 1 >= text.size() || text[i + 1] != '!')
                    return false;
                position = i + 2;
                return true;
            }
        }
        return false;
    }
    const size_t bang = text.find('!', position);
    const size_t areaEnd = text.find(',', position);
    if (bang == std::string_view::npos || (areaEnd != std::string_view::npos && areaEnd < bang))
        return true;
    const std::string_view name = text.substr(position, bang - position);
    if (name.empty() || SheetNameNeedsQuotes(name))
        return false;
    sheet.assign(name);
    position = bang + 1;
    return true;
}

}  // namespace

std::string ColumnLetters(int32_t column) {
    std::string letters;
    AppendColumnLetters(letters, column);
    return letters;
}

std::optional<int32_t> ParseColumnLetters(std::string_view letters) {
    size_t position = 0;
    const auto column = ReadColumn(letters, position);
    if (!column || *column == 0 || position != letters.size())
        return std::nullopt;
    return column;
}

std::string FormatBlock(const CellBlock& block, bool rowAbsolute, bool columnAbsolute) {
    std::string text;
    text.reserve(24);
    const auto appendRow = [&](int32_t row) {
        if (rowAbsolute)
            text.push_back('$');
        AppendNumber(text, row);
    };
    const auto appendColumn = [&](int32_t column) {
        if (columnAbsolute)
            text.push_back('$');
        AppendColumnLetters(text, column);
    };
    if (block.left == 1 && block.right == MaxColumn) {
        appendRow(block.top);
        text.push_back(':');
        appendRow(block.bottom);
    } else if (block.top == 1 && block.bottom == MaxRow) {
        appendColumn(block.left);
        text.push_back(':');
        appendColumn(block.right);
    } else {
        appendColumn(block.left);
        appendRow(block.top);
        if (block.CellCount() != 1) {
            text.push_back(':');
            appendColumn(block.right);
            appendRow(block.bottom);
        }
    }
    return text;
}

std::string FormatBlockR1C1(const CellBlock& block) {
    std::string text;
    text.reserve(32);
    const auto appendSpan = [&text](char axis, int32_t first, int32_t last) {
        text.push_back(axis);
        AppendNumber(text, first);
        if (last != first) {
            text.push_back(':');
            text.push_back(axis);
            AppendNumber(text, last);
        }
    };
    if (block.left == 1 && block.right == MaxColumn) {
        appendSpan('R', block.top, block.bottom);
    } else if (block.top == 1 && block.bottom == MaxRow) {
        appendSpan('C', block.left, block.right);
    } else {
        const auto appendCell = [&text](int32_t row, int32_t column) {
            text.push_back('R');
            AppendNumber(text, row);
            text.push_back('C');
            AppendNumber(text, column);
        };
        appendCell(block.top, block.left);
        if (block.CellCount() != 1) {
            text.push_back(':');
            appendCell(block.bottom, block.right);
        }
    }
    return text;
}

bool LooksLikeA1Cell(std::string_view text) {
    size_t position = 0;
    const auto part = ReadPart(text, position);
    return part && part->kind == ReferencePart::Kind::Cell && position == text.size() &&
           text.find('$') == std::string_view::npos;
}

bool LooksLikeR1C1Reference(std::string_view text) {
    size_t position = 0;
    const auto readAxis = [&](char axis, int32_t limit) {
        if (position >= text.size() || (text[position] | 0x20) != axis)
            return false;
        ++position;
        const size_t start = position;
        const auto number = ReadNumber(text, position, limit);
        return number && (position == start || *number > 0);
    };
    if (readAxis('r', MaxRow)) {
        if (position == text.size())
            return true;
        return readAxis('c', MaxColumn) && position == text.size();
    }
    return readAxis('c', MaxColumn) && position == text.size();
}

std::optional<ParsedReference> ParseA1Reference(std::string_view text) {
    ParsedReference reference;
    reference.areas.reserve(1);
    std::string areaSheet;
    size_t position = 0;
    do {
        if (!reference.areas.empty())
            ++position;  // past the ","
        const bool first = reference.areas.empty();
        if (!ReadSheetPrefix(text, position, areaSheet))
            return std::nullopt;
        if (first) {
            reference.sheet = areaSheet;
        } else if (!areaSheet.empty() && !SameSheetName(areaSheet, reference.sheet)) {
            return std::nullopt;
        }
        const auto area = ReadArea(text, position);
        if (!area)
            return std::nullopt;
        reference.areas.push_back(*area);
    } while (position < text.size() && text[position] == ',');
    if (position != text.size())
        return std::nullopt;
    return reference;
}

}  // namespace excel::embedded
