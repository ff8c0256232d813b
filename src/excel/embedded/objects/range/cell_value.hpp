#pragma once

#include "excel/embedded/model/cells/cell.hpp"
#include "excel/embedded/model/workbook_model.hpp"
#include "excel/embedded/text/number_format_kind.hpp"

#include <excel/variant.hpp>

#include <string_view>
#include <vector>

namespace excel::embedded {

// Whether Range.Value can store the value in a cell: no objects, arrays, unknown error codes,
// NaN or infinities, nor texts beyond what Excel lets a cell hold. A text starting with "=" that
// Excel would refuse as a formula (too long, or not closed) is stored only by a cell formatted as
// text, which keeps it as it is.
// In growing strictness, so that the strictest of several values is their maximum.
enum class Storability { Storable, OnlyAsText, Unstorable };
Storability StorabilityOf(const Variant& value);

// Stores values in cells as assigning Range.Value does: strings follow the text entry rules, and
// dates and currency give a General cell their number format.
class CellValueWriter {
public:
    explicit CellValueWriter(WorkbookModel& book) : book_(book) {}

    void Store(Cell& cell, const Variant& value);
    // Stores as Range.Value2 does: dates and currency become plain numbers.
    void StorePlain(Cell& cell, const Variant& value);

private:
    void storeText(Cell& cell, std::string_view text);
    void setNumberFormatIfGeneral(Cell& cell, std::string_view numberFormat);
    void setQuotePrefix(Cell& cell, bool quotePrefix);

    WorkbookModel& book_;
};

// Reads cells as Range.Value (dates and currency converted) or Value2 does.
class CellValueReader {
public:
    CellValueReader(const WorkbookModel& book, bool convertDates) : book_(book), convertDates_(convertDates) {}

    Variant Read(const Cell* cell);
    // Range.Formula: "=..." for a formula, else the value as entered text ("" when empty).
    Variant ReadFormula(const Cell* cell);

private:
    NumberFormatKind kindOf(uint32_t format);
    Variant readNumber(uint32_t format, double number);

    const WorkbookModel& book_;
    bool convertDates_;
    std::vector<int8_t> kinds_;
};

// Excel's cell error numbers (xlErrNA...) and the error values Variants hold.
int32_t ErrorValueCode(int32_t errorNumber);

}  // namespace excel::embedded
