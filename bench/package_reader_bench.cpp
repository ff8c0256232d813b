// Reads a sheet of 100,000 rows x 10 numeric columns (written first by the package writer) and
// reports the wall time of ReadPackage and the process's peak resident memory.
//   package_reader_bench [workbook.xlsx] [repetitions]
// Given a workbook that exists, it reads that one instead.

#include "measure.hpp"
#include "numeric_sheet.hpp"
#include "ooxml/opc/package_reader.hpp"
#include "ooxml/opc/package_writer.hpp"

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <string>

namespace {

std::size_t CellCount(const ooxml::WorkbookDocument& document) {
    std::size_t cells = 0;
    for (const ooxml::SheetDocument& sheet : document.sheets) {
        for (const ooxml::Row& row : sheet.rows) {
            cells += row.cells.size();
        }
    }
    return cells;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string path =
        argc > 1 ? argv[1] : (std::filesystem::temp_directory_path() / "package_reader_bench.xlsx").string();
    const int repetitions = argc > 2 ? std::stoi(argv[2]) : 5;
    if (!std::filesystem::exists(path)) {
        ooxml::WritePackage(bench::NumericSheet(100000, 10), path);
    }
    const double beforeMebibytes = bench::PeakResidentMebibytes();
    std::size_t cells = 0;
    const double fastest =
        bench::FastestRunSeconds(repetitions, "read", [&] { cells = CellCount(ooxml::ReadPackage(path)); });
    std::printf("cells: %zu, best wall time: %.3f s (%.1f M cells/s), file: %.1f MiB\n", cells, fastest,
                static_cast<double>(cells) / fastest / 1e6, bench::FileMebibytes(path));
    std::printf("peak RSS: %.1f MiB (%.1f MiB before reading)\n", bench::PeakResidentMebibytes(), beforeMebibytes);
    return 0;
}
