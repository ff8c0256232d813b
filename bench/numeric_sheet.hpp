#pragma once

// The workbook the package benchmarks write and read: one sheet of numbers in a few number
// formats, one of them bold.

#include "ooxml/document/workbook_document.hpp"

#include <cstdint>
#include <utility>

namespace bench {

inline ooxml::WorkbookDocument NumericSheet(uint32_t rows, uint32_t columns) {
    ooxml::WorkbookDocument document;
    for (const char* code : {"0.00", "#,##0.000", "0.00%"}) {
        ooxml::CellFormat format;
        format.numberFormat = code;
        document.formats.push_back(format);
    }
    document.formats[1].font.bold = true;
    ooxml::SheetDocument sheet;
    sheet.name = "Numbers";
    sheet.tabSelected = true;
    sheet.rows.reserve(rows);
    for (uint32_t r = 1; r <= rows; ++r) {
        ooxml::Row row;
        row.index = r;
        row.cells.reserve(columns);
        for (uint32_t c = 1; c <= columns; ++c) {
            ooxml::Cell cell;
            cell.column = c;
            cell.type = ooxml::CellType::Number;
            cell.number = r * 1.37 + c / 7.0;
            cell.format = c % 4;
            row.cells.push_back(cell);
        }
        sheet.rows.push_back(std::move(row));
    }
    document.sheets.push_back(std::move(sheet));
    return document;
}

}  // namespace bench
