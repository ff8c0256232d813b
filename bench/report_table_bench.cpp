// A large report table: 100,000 interior rows by 10 columns with two header rows, one header
// column, a title and a subtitle, each interior column filled with one WriteDataToColumn, saved and
// opened again. Built once plain and once with themes (themed tables draw inside lines over the
// whole interior); each build runs in a child process of its own so that its peak memory is its
// own. Prints the time of each step, the file size and the peak memory.
//
// Usage: report_table_bench [ROWS]   (default 100,000 interior rows)

#include "measure.hpp"
#include "report_table_workload.hpp"

#include <excel/embedded.hpp>
#include <vos/reporting.hpp>

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace {

void BuildSaveAndOpen(const char* label, bool useThemes, int32_t rows, const std::filesystem::path& target) {
    auto app = excel::embedded::CreateApplication();
    double addSeconds = 0.0;
    double dataSeconds = 0.0;
    double saveSeconds = 0.0;
    double peakBeforeSave = 0.0;
    double peakAfterSave = 0.0;
    {
        // The report objects go with this block, so the closed workbook is gone before the open.
        vos::VosExcelReporting reporting;
        auto report = reporting.NewReportWorkbook(app, "BenchApp");
        report->SetUseThemes(useThemes);
        auto sheet = report->NewReportWorksheet("Table");

        auto start = std::chrono::steady_clock::now();
        auto table = bench::AddBenchTable(*sheet, rows);
        addSeconds = bench::SecondsSince(start);

        // Only the writes are timed, not the making of the client's arrays.
        for (int32_t column = 1; column <= bench::tableColumnCount; ++column) {
            const excel::Variant values = bench::TableColumnValues(column, rows);
            start = std::chrono::steady_clock::now();
            table->WriteDataToColumn(column, values);
            dataSeconds += bench::SecondsSince(start);
        }
        peakBeforeSave = bench::PeakResidentMebibytes();

        start = std::chrono::steady_clock::now();
        report->ExcelWorkbook()->SaveAs(target.string());
        saveSeconds = bench::SecondsSince(start);
        peakAfterSave = bench::PeakResidentMebibytes();
        report->ExcelWorkbook()->Close();
    }

    const auto start = std::chrono::steady_clock::now();
    auto reopened = app->Workbooks()->Open(target.string());
    const double openSeconds = bench::SecondsSince(start);

    std::printf("%s table:     %d x %d interior cells\n", label, rows, bench::tableColumnCount);
    std::printf("%s add table: %.3f s (with its title and headers)\n", label, addSeconds);
    std::printf("%s data:      %.3f s\n", label, dataSeconds);
    std::printf("%s save:      %.3f s\n", label, saveSeconds);
    std::printf("%s open:      %.3f s (%d sheets)\n", label, openSeconds, reopened->Worksheets()->Count());
    std::printf("%s file:      %s (%.1f MiB)\n", label, target.c_str(), bench::FileMebibytes(target));
    std::printf("%s peak RSS:  %.1f MiB (%.1f MiB before the save, %.1f MiB after it)\n", label,
                bench::PeakResidentMebibytes(), peakBeforeSave, peakAfterSave);
}

// Runs one build in a child process, so the peak memory it reports is that build's alone.
bool RunInChild(const char* label, bool useThemes, int32_t rows, const std::filesystem::path& target) {
    std::fflush(stdout);
    const pid_t child = fork();
    if (child < 0)
        return false;
    if (child == 0) {
        BuildSaveAndOpen(label, useThemes, rows, target);
        std::fflush(stdout);
        std::_Exit(0);
    }
    int status = 0;
    if (waitpid(child, &status, 0) != child)
        return false;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace

int main(int argc, char** argv) {
    const int32_t rows = argc > 1 ? std::stoi(argv[1]) : 100000;
    const auto directory = std::filesystem::temp_directory_path();
    const bool plain = RunInChild("plain ", false, rows, directory / "report_table_bench_plain.xlsx");
    const bool themed = RunInChild("themed", true, rows, directory / "report_table_bench_themed.xlsx");
    return plain && themed ? 0 : 1;
}
