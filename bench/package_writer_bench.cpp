// Writes a sheet of 100,000 rows x 10 numeric columns with a few formats and reports the wall
// time of WritePackage, the file size and the process's peak resident memory.
//   package_writer_bench [output.xlsx] [repetitions]

#include "ooxml/package_writer.hpp"

#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>

namespace {

ooxml::WorkbookDocument NumericSheet(uint32_t rows, uint32_t columns) {
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

long PeakResidentKilobytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string path = argc > 1 ? argv[1] : (std::filesystem::temp_directory_path() / "package_writer_bench.xlsx").string();
    const int repetitions = argc > 2 ? std::stoi(argv[2]) : 5;
    constexpr uint32_t kRows = 100000;
    constexpr uint32_t kColumns = 10;

    const ooxml::WorkbookDocument document = NumericSheet(kRows, kColumns);
    const long documentKilobytes = PeakResidentKilobytes();
    double best = 1e9;
    for (int i = 0; i < repetitions; ++i) {
        const auto start = std::chrono::steady_clock::now();
        ooxml::WritePackage(document, path);
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
        best = std::min(best, elapsed.count());
        std::printf("write %d: %.3f s\n", i + 1, elapsed.count());
    }
    std::printf("cells: %u, best wall time: %.3f s, file: %.1f MB\n", kRows * kColumns, best,
                static_cast<double>(std::filesystem::file_size(path)) / 1e6);
    std::printf("peak RSS: %.1f MB (%.1f MB after building the document)\n", PeakResidentKilobytes() / 1024.0,
                documentKilobytes / 1024.0);
    return 0;
}
