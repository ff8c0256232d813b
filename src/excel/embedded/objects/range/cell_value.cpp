#include "excel/embedded/objects/range/cell_value.hpp"

#include "excel/embedded/model/cells/cell_content.hpp"
#include "excel/embedded/model/cells/cell_limits.hpp"
#include "excel/embedded/model/date_system.hpp"
#include "excel/embedded/text/general_format.hpp"
#include "excel/embedded/text/text_entry.hpp"
#include "excel/embedded/text/utf8_text.hpp"

#include <excel/constants.hpp>
#include <excel/safe_array.hpp>

#include <cmath>
#include <string>
#include <string_view>
#include <variant>

namespace excel::embedded {

namespace {

constexpr uint32_t errorBase = 0x800A0000u;

std::optional<int32_t> ErrorNumberOf(const Variant& value) {
    const int32_t number = static_cast<int32_t>(static_cast<uint32_t>(value.ErrorCode()) - errorBase);
    if (ErrorTextFromNumber(number).empty()) {
        return std::nullopt;
    }
    return number;
}

// The format a General cell takes for an automation Date: a day, a time of day (a Date on day 0), or both.
std::string DateFormatFor(double date) {
    if (date == std::floor(date)) {
        return "m/d/yyyy";
    }
    return date < 1.0 ? "h:mm:ss" : "m/d/yyyy h:mm";
}

void SetNumber(Cell& cell, double number) {
    cell.kind = CellKind::Number;
    cell.number = number;
}

// Excel's limits on what a cell holds: text of 32,767 characters, and a formula of 8,192 whose
// parentheses, brackets, quoted texts and quoted sheet names all close.
bool IsBalancedFormula(std::string_view formula) {
    int parentheses = 0;
    int brackets = 0;
    char quote = 0;  // the quote a quoted text or sheet name is open with; a doubled one reopens it
    for (const char c : formula) {
        if (quote != 0) {
            quote = c == quote ? 0 : quote;
        } else if (c == '"' || c == '\'') {
            quote = c;
        } else if (c == '(' || c == ')') {
            parentheses += c == '(' ? 1 : -1;
        } else if (c == '[' || c == ']') {
            brackets += c == '[' ? 1 : -1;
        }
        if (parentheses < 0 || brackets < 0) {
            return false;
        }
    }
    return quote == 0 && parentheses == 0 && brackets == 0;
}

Storability TextStorability(std::string_view text) {
    const size_t length = Utf16Length(text);
    if (length > kMaxCellCharacters) {
        return Storability::Unstorable;
    }
    if (!text.starts_with('=') || (length - 1 <= kMaxFormulaCharacters && IsBalancedFormula(text.substr(1)))) {
        return Storability::Storable;
    }
    return Storability::OnlyAsText;
}

}  // namespace

int32_t ErrorValueCode(int32_t errorNumber) {
    return static_cast<int32_t>(errorBase + static_cast<uint32_t>(errorNumber));
}

Storability StorabilityOf(const Variant& value) {
    const auto storableIf = [](bool storable) { return storable ? Storability::Storable : Storability::Unstorable; };
    if (value.IsArray() || value.IsObject()) {
        return Storability::Unstorable;
    }
    switch (value.Type()) {
        case VarType::Single:
        case VarType::Double:
        case VarType::Date:
            return storableIf(std::isfinite(value.ToDouble()));
        case VarType::String:
            return TextStorability(value.ToString());
        case VarType::Error:
            return storableIf(ErrorNumberOf(value).has_value());
        default:
            return Storability::Storable;
    }
}

void CellValueWriter::Store(Cell& cell, const Variant& value) {
    switch (value.Type()) {
        case VarType::Date: {
            // The cell stores the serial of the workbook's date system.
            const double date = value.ToDouble();
            StorePlain(cell, Variant(SerialFromDate(date, book_.Date1904())));
            setNumberFormatIfGeneral(cell, DateFormatFor(date));
            return;
        }
        case VarType::Currency:
            StorePlain(cell, value);
            setNumberFormatIfGeneral(cell, "$#,##0.00");
            return;
        default:
            StorePlain(cell, value);
    }
}

void CellValueWriter::StorePlain(Cell& cell, const Variant& value) {
    switch (value.Type()) {
        case VarType::Empty:
        case VarType::Null:
            cell.ClearValue();
            return;
        case VarType::Boolean:
            cell.kind = CellKind::Boolean;
            cell.number = value.ToBool() ? 1.0 : 0.0;
            break;
        case VarType::String:
            storeText(cell, value.ToString());
            return;
        case VarType::Error:
            cell.kind = CellKind::Error;
            cell.error = ErrorNumberOf(value).value_or(xlErrNA);
            break;
        default:
            SetNumber(cell, value.ToDouble());
            break;
    }
    setQuotePrefix(cell, false);
}

void CellValueWriter::storeText(Cell& cell, std::string_view text) {
    if (ClassifyNumberFormat(book_.Formats().Get(cell.format).numberFormat) == NumberFormatKind::Text) {
        cell.kind = CellKind::Text;
        cell.text = book_.Strings().Intern(text);
        return;
    }
    TextEntry entry = ParseTextEntry(text);
    switch (entry.kind) {
        case TextEntry::Kind::Empty:
            cell.ClearValue();
            break;
        case TextEntry::Kind::Text:
            cell.kind = CellKind::Text;
            cell.text = book_.Strings().Intern(entry.text);
            break;
        case TextEntry::Kind::Number:
            SetNumber(cell, entry.number);
            break;
        case TextEntry::Kind::Boolean:
            cell.kind = CellKind::Boolean;
            cell.number = entry.boolean ? 1.0 : 0.0;
            break;
        case TextEntry::Kind::Error:
            cell.kind = CellKind::Error;
            cell.error = ErrorNumberFromText(entry.text).value_or(xlErrNA);
            break;
        case TextEntry::Kind::Formula:
            // The engine does not calculate: the formula is kept with no cached value.
            cell.kind = CellKind::Formula;
            cell.text = book_.Strings().Intern(entry.text);
            break;
    }
    setQuotePrefix(cell, entry.quotePrefix);
    if (!entry.impliedNumberFormat.empty()) {
        setNumberFormatIfGeneral(cell, entry.impliedNumberFormat);
    }
}

void CellValueWriter::setNumberFormatIfGeneral(Cell& cell, std::string_view numberFormat) {
    const CellFormat& format = book_.Formats().Get(cell.format);
    if (format.numberFormat != "General") {
        return;
    }
    CellFormat changed = format;
    changed.numberFormat = std::string(numberFormat);
    cell.format = book_.Formats().Intern(changed);
}

void CellValueWriter::setQuotePrefix(Cell& cell, bool quotePrefix) {
    const CellFormat& format = book_.Formats().Get(cell.format);
    if (format.quotePrefix == quotePrefix) {
        return;
    }
    CellFormat changed = format;
    changed.quotePrefix = quotePrefix;
    cell.format = book_.Formats().Intern(changed);
}

NumberFormatKind CellValueReader::kindOf(uint32_t format) {
    if (format >= kinds_.size()) {
        kinds_.resize(format + 1, -1);
    }
    if (kinds_[format] < 0) {
        kinds_[format] = static_cast<int8_t>(ClassifyNumberFormat(book_.Formats().Get(format).numberFormat));
    }
    return static_cast<NumberFormatKind>(kinds_[format]);
}

Variant CellValueReader::Read(const Cell* cell) {
    return std::visit(ContentVisitor{
                          [](std::monostate) { return Variant(); },
                          [](bool value) { return Variant(value); },
                          [](std::string_view text) { return Variant(std::string(text)); },
                          [](CellError error) { return Variant(ErrorValue{ErrorValueCode(error.number)}); },
                          [&](double number) { return readNumber(cell->format, number); },
                      },
                      ContentOf(cell, book_.Strings(), book_.OpenedFormulas()));
}

// A number as Range.Value reads it: under a date or currency format, converted.
Variant CellValueReader::readNumber(uint32_t format, double number) {
    if (convertDates_) {
        const NumberFormatKind kind = kindOf(format);
        if (kind == NumberFormatKind::Date) {
            return Variant(Date{DateFromSerial(number, book_.Date1904())});
        }
        if (kind == NumberFormatKind::Currency) {
            return Variant(Currency{static_cast<int64_t>(std::llround(number * 10000.0))});
        }
    }
    return Variant(number);
}

Variant CellValueReader::ReadFormula(const Cell* cell) {
    if (cell == nullptr) {
        return Variant(std::string());
    }
    switch (cell->kind) {
        case CellKind::Blank:
            return Variant(std::string());
        case CellKind::Formula:
            return Variant("=" + book_.Strings().Get(cell->text).text);
        case CellKind::OpenedFormula:
            return Variant("=" + book_.Strings().Get(book_.OpenedFormulas().Get(cell->text).text).text);
        case CellKind::Number:
            return Variant(FormatGeneral(cell->number));
        case CellKind::Boolean:
            return Variant(std::string(cell->number != 0.0 ? "TRUE" : "FALSE"));
        case CellKind::Text:
            return Variant(book_.Strings().Get(cell->text).text);
        case CellKind::Error:
            return Variant(ErrorTextFromNumber(cell->error));
    }
    return Variant(std::string());
}

}  // namespace excel::embedded
