// Reads a sheet of 100,000 rows x 10 numeric columns (written first by the package writer) and
// reports the wall time of ReadPackage and the process's peak resident memory.
//   package_reader_bench [workbook.xlsx] [repetitions]
// Given a workbook that exists, it reads that one instead.

#include "ooxml/package_reader.hpp"
#include "ooxml/package_writer.hpp"

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>

namespace {

constexpr uint32_t Rows = 100000;
constexpr uint32_t Columns = 10;

ooxml::WorkbookDocument NumericSheet() {
    ooxml::WorkbookDocument document;
    ooxml::CellFormat twoDecimals;
    twoDecimals.numberFormat = "0.00";
    document.formats.push_back(twoDecimals);
    ooxml::SheetDocument& sheet = document.sheets.emplace_back();
    sheet.name = "Numbers";
    sheet.rows.reserve(Rows);
    for (uint32_t r = 1; r <= Rows; ++r) {
        ooxml::Row& row = sheet.rows.emplace_back();
        row.index = r;
        for (uint32_t c = 1; c <= Columns; ++c) {
            row.cells.push_back(
                ooxml::Cell{c, c % 2, 0, ooxml::NoFormula, r * 1.37 + c / 7.0, ooxml::CellType::Number});
        }
    }
    return document;
}

long PeakResidentKilobytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string path =
        argc > 1 ? argv[1] : (std::filesystem::temp_directory_path() / "package_reader_bench.xlsx").string();
    const int repetitions = argc > 2 ? std::stoi(argv[2]) : 5;
    if (!std::filesystem::exists(path)) {
        ooxml::WritePackage(NumericSheet(), path);
    }
    const long beforeKilobytes = PeakResidentKilobytes();
    double best = 1e9;
    std::size_t cells = 0;
    for (int i = 0; i < repetitions; ++i) {
        const auto start = std::chrono::steady_clock::now();
        const ooxml::WorkbookDocument document = ooxml::ReadPackage(path);
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
        best = std::min(best, elapsed.count());
        cells = 0;
        for (const ooxml::SheetDocument& sheet : document.sheets) {
            for (const ooxml::Row& row : sheet.rows) {
                cells += row.cells.size();
            }
        }
        std::printf("read %d: %.3f s\n", i + 1, elapsed.count());
    }
    std::printf("cells: %zu, best wall time: %.3f s (%.1f M cells/s), file: %.1f MB\n", cells, best,
                static_cast<double>(cells) / best / 1e6, static_cast<double>(std::filesystem::file_size(path)) / 1e6);
    std::printf("peak RSS: %.1f MB (%.1f MB before reading)\n", PeakResidentKilobytes() / 1024.0,
                beforeKilobytes / 1024.0);
    return 0;
}
