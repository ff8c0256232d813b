#include "ooxml/worksheet/formula_reference_shifter.hpp"

#include "ooxml/worksheet/cell_reference_reader.hpp"

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

// One part of a reference: a column ("$AB") or a row ("12"), with its absolute marker.
struct ReferencePart {
    bool absolute = false;
    int64_t value = 0;
};

std::optional<ReferencePart> ParseColumnPart(std::string_view text) {
    ReferencePart part;
    if (!text.empty() && text.front() == '$') {
        part.absolute = true;
        text.remove_prefix(1);
    }
    if (text.empty() || text.size() > 3) {
        return std::nullopt;
    }
    for (char c : text) {
        if (!IsLetter(c)) {
            return std::nullopt;
        }
        part.value = part.value * 26 + ((c | 0x20) - 'a' + 1);
    }
    return part.value <= MaxColumnIndex ? std::optional(part) : std::nullopt;
}

std::optional<ReferencePart> ParseRowPart(std::string_view text) {
    ReferencePart part;
    if (!text.empty() && text.front() == '$') {
        part.absolute = true;
        text.remove_prefix(1);
    }
    if (text.empty() || text.size() > 7) {
        return std::nullopt;
    }
    for (char c : text) {
        if (!IsDigit(c)) {
            return std::nullopt;
        }
        part.value = part.value * 10 + (c - '0');
    }
    return part.value >= 1 && part.value <= MaxRowIndex ? std::optional(part) : std::nullopt;
}

std::string ColumnLetters(int64_t column) {
    std::string letters;
    for (; column > 0; column = (column - 1) / 26) {
        letters.insert(letters.begin(), static_cast<char>('A' + (column - 1) % 26));
    }
    return letters;
}

// Appends the shifted part; false when it leaves the sheet.
bool AppendShifted(std::string& out, ReferencePart part, int32_t offset, bool isColumn) {
    const int64_t value = part.absolute ? part.value : part.value + offset;
    if (value < 1 || value > (isColumn ? MaxColumnIndex : MaxRowIndex)) {
        return false;
    }
    if (part.absolute) {
        out += '$';
    }
    out += isColumn ? ColumnLetters(value) : std::to_string(value);
    return true;
}

class Shifter {
public:
    Shifter(std::string_view formula, int32_t rowOffset, int32_t columnOffset)
        : formula_(formula), rowOffset_(rowOffset), columnOffset_(columnOffset) {}

    std::string Run() {
        while (at_ < formula_.size()) {
            const char c = formula_[at_];
            if (c == '"' || c == '\'') {
                CopyQuoted(c);
            } else if (c == '[') {
                CopyBracketed();
            } else if (IsNameCharacter(c)) {
                ShiftToken();
            } else {
                out_ += c;
                ++at_;
            }
        }
        return std::move(out_);
    }

private:
    // A string literal or a quoted sheet name; a doubled quote stands for itself.
    void CopyQuoted(char quote) {
        const std::size_t start = at_++;
        while (at_ < formula_.size()) {
            if (formula_[at_++] == quote) {
                if (at_ < formula_.size() && formula_[at_] == quote) {
                    ++at_;
                } else {
                    break;
                }
            }
        }
        out_.append(formula_.substr(start, at_ - start));
    }

    // A table reference ("Table1[[#This Row],[Qty]]") or an external book index ("[1]").
    void CopyBracketed() {
        const std::size_t start = at_;
        int depth = 0;
        do {
            if (formula_[at_] == '[') {
                ++depth;
            } else if (formula_[at_] == ']') {
                --depth;
            }
            ++at_;
        } while (at_ < formula_.size() && depth > 0);
        out_.append(formula_.substr(start, at_ - start));
    }

    std::string_view NextToken() {
        const std::size_t start = at_;
        while (at_ < formula_.size() && IsNameCharacter(formula_[at_])) {
            ++at_;
        }
        return formula_.substr(start, at_ - start);
    }

    char Peek() const { return at_ < formula_.size() ? formula_[at_] : '\0'; }

    void ShiftToken() {
        const std::string_view token = NextToken();
        const char next = Peek();
        if (next == '(' || next == '!') {  // a function or a sheet name
            out_.append(token);
            return;
        }
        if (AppendCellReference(token)) {
            return;
        }
        if (next == ':' && AppendWholeRange(token)) {
            return;
        }
        out_.append(token);
    }

    bool AppendCellReference(std::string_view token) {
        std::size_t split = token.front() == '$' ? 1 : 0;
        while (split < token.size() && IsLetter(token[split])) {
            ++split;
        }
        const std::optional<ReferencePart> column = ParseColumnPart(token.substr(0, split));
        const std::optional<ReferencePart> row = ParseRowPart(token.substr(split));
        if (!column || !row) {
            return false;
        }
        std::string shifted;
        if (!AppendShifted(shifted, *column, columnOffset_, true) || !AppendShifted(shifted, *row, rowOffset_, false)) {
            shifted = "#REF!";
        }
        out_ += shifted;
        return true;
    }

    // "A:C" or "3:5": whole columns or whole rows.
    bool AppendWholeRange(std::string_view first) {
        const std::size_t colon = at_;
        ++at_;
        const std::string_view second = NextToken();
        const bool columns = ParseColumnPart(first) && ParseColumnPart(second);
        const bool rows = !columns && ParseRowPart(first) && ParseRowPart(second);
        if (!columns && !rows) {
            at_ = colon;
            return false;
        }
        const auto parse = columns ? ParseColumnPart : ParseRowPart;
        const int32_t offset = columns ? columnOffset_ : rowOffset_;
        std::string shifted;
        if (AppendShifted(shifted, *parse(first), offset, columns)) {
            shifted += ':';
            if (!AppendShifted(shifted, *parse(second), offset, columns)) {
                shifted = "#REF!";
            }
        } else {
            shifted = "#REF!";
        }
        out_ += shifted;
        return true;
    }

    std::string_view formula_;
    int32_t rowOffset_;
    int32_t columnOffset_;
    std::size_t at_ = 0;
    std::string out_;
};

}  // namespace

std::string ShiftFormulaReferences(std::string_view formula, int32_t rowOffset, int32_t columnOffset) {
    return Shifter(formula, rowOffset, columnOffset).Run();
}

}  // namespace ooxml
