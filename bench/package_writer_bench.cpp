// Writes a sheet of 100,000 rows x 10 numeric columns with a few formats and reports the wall
// time of WritePackage, the file size and the process's peak resident memory.
//   package_writer_bench [output.xlsx] [repetitions]

#include "measure.hpp"
#include "numeric_sheet.hpp"
#include "ooxml/opc/package_writer.hpp"

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>

int main(int argc, char** argv) {
    const std::string path =
        argc > 1 ? argv[1] : (std::filesystem::temp_directory_path() / "package_writer_bench.xlsx").string();
    const int repetitions = argc > 2 ? std::stoi(argv[2]) : 5;
    constexpr uint32_t rows = 100000;
    constexpr uint32_t columns = 10;

    const ooxml::WorkbookDocument document = bench::NumericSheet(rows, columns);
    const double documentMebibytes = bench::PeakResidentMebibytes();
    const double fastest = bench::FastestRunSeconds(repetitions, "write", [&] { ooxml::WritePackage(document, path); });
    std::printf("cells: %u, best wall time: %.3f s, file: %.1f MiB\n", rows * columns, fastest,
                bench::FileMebibytes(path));
    std::printf("peak RSS: %.1f MiB (%.1f MiB after building the document)\n", bench::PeakResidentMebibytes(),
                documentMebibytes);
    return 0;
}
