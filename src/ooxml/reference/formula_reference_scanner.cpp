#include "ooxml/reference/formula_reference_scanner.hpp"

#include <array>
#include <optional>
#include <utility>

namespace ooxml {

namespace {

bool IsLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsNameCharacter(char c) {
    return IsLetter(c) || IsDigit(c) || c == '_' || c == '.' || c == '$' || c == '\\' || c == '?' ||
           static_cast<unsigned char>(c) >= 0x80;
}

// One coordinate of a reference with its "$" marker: a column in letters ("$AB"), counted in base
// 26, or a row in digits ("7"); nothing when the text is no coordinate within the sheet.
struct Coordinate {
    uint32_t value = 0;
    bool absolute = false;
};

std::optional<Coordinate> ParseCoordinate(std::string_view text, bool column) {
    Coordinate coordinate;
    if (!text.empty() && text.front() == '$') {
        coordinate.absolute = true;
        text.remove_prefix(1);
    }
    if (text.empty() || text.size() > (column ? 3u : 7u)) {
        return std::nullopt;
    }
    for (const char c : text) {
        if (column ? !IsLetter(c) : !IsDigit(c)) {
            return std::nullopt;
        }
        coordinate.value = column ? coordinate.value * 26 + static_cast<uint32_t>((c | 0x20) - 'a' + 1)
                                  : coordinate.value * 10 + static_cast<uint32_t>(c - '0');
    }
    const uint32_t limit = column ? MaxColumnIndex : MaxRowIndex;
    return coordinate.value >= 1 && coordinate.value <= limit ? std::optional(coordinate) : std::nullopt;
}

std::optional<ReferenceCorner> ParseColumn(std::string_view text) {
    const std::optional<Coordinate> column = ParseCoordinate(text, true);
    return column ? std::optional(ReferenceCorner{0, column->value, false, column->absolute}) : std::nullopt;
}

std::optional<ReferenceCorner> ParseRow(std::string_view text) {
    const std::optional<Coordinate> row = ParseCoordinate(text, false);
    return row ? std::optional(ReferenceCorner{row->value, 0, row->absolute, false}) : std::nullopt;
}

// "$B$7": both.
std::optional<ReferenceCorner> ParseCell(std::string_view text) {
    std::size_t split = !text.empty() && text.front() == '$' ? 1 : 0;
    while (split < text.size() && IsLetter(text[split])) {
        ++split;
    }
    const std::optional<ReferenceCorner> column = ParseColumn(text.substr(0, split));
    const std::optional<ReferenceCorner> row = ParseRow(text.substr(split));
    if (!column || !row) {
        return std::nullopt;
    }
    return ReferenceCorner{row->row, column->column, row->rowAbsolute, column->columnAbsolute};
}

class Scanner {
public:
    Scanner(std::string_view formula, const ReferenceRewrite& rewrite) : formula_(formula), rewrite_(rewrite) {}

    std::string Run() {
        while (at_ < formula_.size()) {
            const char c = formula_[at_];
            if (c == '"') {
                Copy(QuotedEnd(at_, '"'));
            } else if (c == '#') {
                CopyErrorValue();
            } else if (c == '\'' || c == '[' || IsNameCharacter(c)) {
                TakeReferenceOrName();
            } else {
                out_ += c;
                ++at_;
            }
        }
        return std::move(out_);
    }

private:
    char At(std::size_t position) const { return position < formula_.size() ? formula_[position] : '\0'; }

    void Copy(std::size_t end) {
        out_.append(formula_.substr(at_, end - at_));
        at_ = end;
    }

    // Past the closing quote; a doubled quote stands for itself.
    std::size_t QuotedEnd(std::size_t start, char quote) const {
        std::size_t position = start + 1;
        while (position < formula_.size()) {
            if (formula_[position++] == quote) {
                if (At(position) != quote) {
                    break;
                }
                ++position;
            }
        }
        return position;
    }

    // Past the matching "]": a workbook index ("[1]") or a table's column list.
    std::size_t BracketedEnd(std::size_t start) const {
        std::size_t position = start;
        int depth = 0;
        do {
            if (formula_[position] == '[') {
                ++depth;
            } else if (formula_[position] == ']') {
                --depth;
            }
            ++position;
        } while (position < formula_.size() && depth > 0);
        return position;
    }

    std::size_t TokenEnd(std::size_t start) const {
        std::size_t position = start;
        while (position < formula_.size() && IsNameCharacter(formula_[position])) {
            ++position;
        }
        return position;
    }

    // The end of a sheet prefix starting here, past its "!": 'Q1 2024'!, Data!, Jan:Mar!, [1]Rates!, [1]!
    std::optional<std::size_t> SheetPrefixEnd(std::size_t start) const {
        std::size_t position = start;
        if (formula_[position] == '\'') {
            position = QuotedEnd(position, '\'');
        } else {
            if (formula_[position] == '[') {
                position = BracketedEnd(position);
            }
            position = TokenEnd(position);
            if (At(position) == ':' && position > start) {
                position = TokenEnd(position + 1);
            }
        }
        return position > start && At(position) == '!' ? std::optional(position + 1) : std::nullopt;
    }

    // A reference starting here, and its end.
    std::optional<std::pair<FormulaReference, std::size_t>> ReferenceAt(std::size_t start) const {
        const std::size_t firstEnd = TokenEnd(start);
        const std::string_view firstText = formula_.substr(start, firstEnd - start);
        if (firstText.empty() || At(firstEnd) == '(' || At(firstEnd) == '[' || At(firstEnd) == '!') {
            return std::nullopt;
        }
        std::optional<std::string_view> secondText;
        std::size_t secondEnd = firstEnd;
        if (At(firstEnd) == ':') {
            secondEnd = TokenEnd(firstEnd + 1);
            const char after = At(secondEnd);
            if (secondEnd > firstEnd + 1 && after != '(' && after != '[' && after != '!') {
                secondText = formula_.substr(firstEnd + 1, secondEnd - firstEnd - 1);
            }
        }
        FormulaReference reference;
        if (const std::optional<ReferenceCorner> cell = ParseCell(firstText)) {
            reference.first = reference.last = *cell;
            if (secondText) {
                if (const std::optional<ReferenceCorner> other = ParseCell(*secondText)) {
                    reference.kind = FormulaReference::Kind::Area;
                    reference.last = *other;
                    return std::pair(reference, secondEnd);
                }
            }
            return std::pair(reference, firstEnd);
        }
        if (!secondText) {
            return std::nullopt;
        }
        // "B:C" or "3:5".
        using Parse = std::optional<ReferenceCorner> (*)(std::string_view);
        const std::array<std::pair<FormulaReference::Kind, Parse>, 2> wholeLines{
            {{FormulaReference::Kind::Columns, &ParseColumn}, {FormulaReference::Kind::Rows, &ParseRow}}};
        for (const auto& [kind, parse] : wholeLines) {
            const std::optional<ReferenceCorner> first = parse(firstText);
            const std::optional<ReferenceCorner> last = parse(*secondText);
            if (first && last) {
                reference.kind = kind;
                reference.first = *first;
                reference.last = *last;
                return std::pair(reference, secondEnd);
            }
        }
        return std::nullopt;
    }

    // "#DIV/0!", "#N/A", "#NAME?". What Excel left of a reference to a deleted sheet ("#REF!A1")
    // stays as it is.
    void CopyErrorValue() {
        std::size_t end = at_ + 1;
        while (end < formula_.size() && (IsNameCharacter(formula_[end]) || formula_[end] == '/')) {
            ++end;
        }
        if (At(end) == '!' || At(end) == '?') {
            ++end;
        }
        if (formula_.substr(at_, end - at_) == "#REF!" && end < formula_.size() && IsNameCharacter(formula_[end])) {
            if (const auto reference = ReferenceAt(end)) {
                end = reference->second;
            }
        }
        Copy(end);
    }

    void TakeReferenceOrName() {
        const std::size_t start = at_;
        std::string_view sheets;
        std::size_t referenceStart = at_;
        if (const std::optional<std::size_t> prefixEnd = SheetPrefixEnd(at_)) {
            sheets = formula_.substr(at_, *prefixEnd - 1 - at_);
            referenceStart = *prefixEnd;
        }
        if (referenceStart < formula_.size() && IsNameCharacter(formula_[referenceStart])) {
            if (auto found = ReferenceAt(referenceStart)) {
                found->first.sheets = sheets;
                const std::size_t end = found->second;
                if (std::optional<std::string> replacement = rewrite_(found->first)) {
                    out_ += *replacement;
                    at_ = end;
                } else {
                    Copy(end);
                }
                return;
            }
        }
        // A name, a function, a table reference, an error value or a sheet prefix before one.
        if (referenceStart != start) {
            Copy(referenceStart);
        } else if (formula_[at_] == '\'') {
            Copy(QuotedEnd(at_, '\''));
        } else if (formula_[at_] == '[') {
            Copy(BracketedEnd(at_));
        } else {
            Copy(TokenEnd(at_));
        }
    }

    std::string_view formula_;
    const ReferenceRewrite& rewrite_;
    std::size_t at_ = 0;
    std::string out_;
};

}  // namespace

std::string RewriteFormulaReferences(std::string_view formula, const ReferenceRewrite& rewrite) {
    return Scanner(formula, rewrite).Run();
}

}  // namespace ooxml
