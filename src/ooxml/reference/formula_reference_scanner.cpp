#include "ooxml/reference/formula_reference_scanner.hpp"

#include <optional>

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

// "$AB" or "C": a column with its marker; nothing when the text is no column of the sheet.
std::optional<ReferenceCorner> ParseColumn(std::string_view text) {
    ReferenceCorner corner;
    if (!text.empty() && text.front() == '$') {
        corner.columnAbsolute = true;
        text.remove_prefix(1);
    }
    if (text.empty() || text.size() > 3) {
        return std::nullopt;
    }
    for (const char c : text) {
        if (!IsLetter(c)) {
            return std::nullopt;
        }
        corner.column = corner.column * 26 + static_cast<uint32_t>((c | 0x20) - 'a' + 1);
    }
    return corner.column <= MaxColumnIndex ? std::optional(corner) : std::nullopt;
}

// "$12" or "7": a row with its marker.
std::optional<ReferenceCorner> ParseRow(std::string_view text) {
    ReferenceCorner corner;
    if (!text.empty() && text.front() == '$') {
        corner.rowAbsolute = true;
        text.remove_prefix(1);
    }
    if (text.empty() || text.size() > 7) {
        return std::nullopt;
    }
    for (const char c : text) {
        if (!IsDigit(c)) {
            return std::nullopt;
        }
        corner.row = corner.row * 10 + static_cast<uint32_t>(c - '0');
    }
    return corner.row >= 1 && corner.row <= MaxRowIndex ? std::optional(corner) : std::nullopt;
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
        const auto columns = std::pair(ParseColumn(firstText), ParseColumn(*secondText));
        if (columns.first && columns.second) {
            reference.kind = FormulaReference::Kind::Columns;
            reference.first = *columns.first;
            reference.last = *columns.second;
            return std::pair(reference, secondEnd);
        }
        const auto rows = std::pair(ParseRow(firstText), ParseRow(*secondText));
        if (rows.first && rows.second) {
            reference.kind = FormulaReference::Kind::Rows;
            reference.first = *rows.first;
            reference.last = *rows.second;
            return std::pair(reference, secondEnd);
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
