#pragma once

// The report table the table benchmarks build: ten interior columns under two header rows and one
// header column, each interior column written with one WriteDataToColumn.

#include <excel/excel.hpp>
#include <vos/reporting.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace bench {

constexpr int32_t tableColumnCount = 10;

// The values of one interior column: text in column 3, 32-bit integers in column 6, doubles in the
// rest.
inline excel::Variant TableColumnValues(int32_t column, int32_t rows) {
    constexpr int32_t textColumn = 3;
    constexpr int32_t integerColumn = 6;
    if (column == textColumn) {
        std::vector<std::string> names;
        names.reserve(static_cast<size_t>(rows));
        for (int32_t row = 1; row <= rows; ++row)
            names.push_back("Case " + std::to_string(row));
        return excel::Variant(names);
    }
    if (column == integerColumn) {
        excel::SafeArray counts(excel::VarType::Long, {excel::SafeArrayBound{0, static_cast<uint32_t>(rows)}});
        for (int32_t row = 0; row < rows; ++row)
            counts.Put(static_cast<uint32_t>(row), 0, excel::Variant(row * 7 % 1000));
        return excel::Variant(std::move(counts));
    }
    std::vector<double> values(static_cast<size_t>(rows));
    for (int32_t row = 0; row < rows; ++row)
        values[static_cast<size_t>(row)] = row * 1.37 + column / 7.0;
    return excel::Variant(values);
}

// A new table of the given interior rows on the sheet, with its title, subtitle and headers written.
inline std::shared_ptr<vos::VosExcelTable> AddBenchTable(vos::VosExcelReportWorksheet& sheet, int32_t rows) {
    auto table = sheet.AddTable(rows, tableColumnCount, 2, 1, "Simulated results", "One row per case");
    table->WriteHeaderSummary(vos::VosTopHeader, "Results by measure");
    std::vector<std::string> captions;
    for (int32_t column = 1; column < tableColumnCount; ++column)
        captions.push_back("Measure " + std::to_string(column));
    table->WriteHeaderArray(vos::VosTopHeader, 1, excel::Variant(captions));
    table->WriteHeaderItem(vos::VosTopHeader, tableColumnCount, "Total");
    table->WriteHeaderIndexNumbers(vos::VosLeftHeader);
    return table;
}

}  // namespace bench
