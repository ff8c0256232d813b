// The report table through automation: a 10,000 x 10 report table (two header rows, one header
// column, a title and a subtitle, each interior column one WriteDataToColumn) built by the report
// library on the engine in-process, and again on the engine's automation object
// (VosExcelEngine.Application) through the object model over IDispatch, in the same run. Prints,
// for each, the fastest of three builds, the IDispatch::Invoke calls the build made (counted by the
// boundary over automation) and the time of the save. Windows only; under Wine, run it with the
// engine's server registered (tests/windows/run_with_servers).
//
// Usage: com_table_bench [ROWS]   (default 10,000 interior rows)

#include "measure.hpp"
#include "report_table_workload.hpp"

#include "excel/com/dispatch_caller.hpp"

#include <excel/com.hpp>
#include <excel/embedded.hpp>
#include <vos/reporting.hpp>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace {

struct BuildFigures {
    double buildSeconds = 0.0;
    double dataSeconds = 0.0;
    double saveSeconds = 0.0;
    uint64_t buildInvokes = 0;
    uint64_t dataInvokes = 0;
};

BuildFigures BuildAndSave(const std::shared_ptr<excel::Application>& app, int32_t rows,
                          const std::vector<excel::Variant>& columns, const std::filesystem::path& target) {
    using excel::com::DispatchCaller;
    BuildFigures figures;
    vos::VosExcelReporting reporting;
    const uint64_t invokesAtStart = DispatchCaller::InvokeCount();
    const auto start = std::chrono::steady_clock::now();
    auto report = reporting.NewReportWorkbook(app, "BenchApp");
    auto sheet = report->NewReportWorksheet("Table");
    auto table = bench::AddBenchTable(*sheet, rows);
    const uint64_t invokesBeforeData = DispatchCaller::InvokeCount();
    const auto dataStart = std::chrono::steady_clock::now();
    for (int32_t column = 1; column <= bench::tableColumnCount; ++column)
        table->WriteDataToColumn(column, columns[static_cast<size_t>(column - 1)]);
    figures.dataSeconds = bench::SecondsSince(dataStart);
    figures.dataInvokes = DispatchCaller::InvokeCount() - invokesBeforeData;
    figures.buildSeconds = bench::SecondsSince(start);
    figures.buildInvokes = DispatchCaller::InvokeCount() - invokesAtStart;

    const auto saveStart = std::chrono::steady_clock::now();
    report->ExcelWorkbook()->SaveAs(target.string());
    figures.saveSeconds = bench::SecondsSince(saveStart);
    report->ExcelWorkbook()->Close(excel::Variant(false));
    return figures;
}

void Report(const char* label, const std::function<std::shared_ptr<excel::Application>()>& newApplication, int32_t rows,
            const std::vector<excel::Variant>& columns, const std::filesystem::path& target) {
    BuildFigures fastest;
    for (int run = 1; run <= 3; ++run) {
        const BuildFigures figures = BuildAndSave(newApplication(), rows, columns, target);
        std::printf("%s build %d: %.3f s (data %.3f s), save %.3f s\n", label, run, figures.buildSeconds,
                    figures.dataSeconds, figures.saveSeconds);
        if (run == 1 || figures.buildSeconds < fastest.buildSeconds)
            fastest = figures;
    }
    std::printf("%s fastest:  build %.3f s (data %.3f s), save %.3f s, %llu Invoke calls (%llu for the data)\n", label,
                fastest.buildSeconds, fastest.dataSeconds, fastest.saveSeconds,
                static_cast<unsigned long long>(fastest.buildInvokes),
                static_cast<unsigned long long>(fastest.dataInvokes));
}

}  // namespace

int main(int argc, char** argv) {
    const int32_t rows = argc > 1 ? std::stoi(argv[1]) : 10000;
    std::vector<excel::Variant> columns;
    for (int32_t column = 1; column <= bench::tableColumnCount; ++column)
        columns.push_back(bench::TableColumnValues(column, rows));
    const auto folder = std::filesystem::temp_directory_path();
    std::printf("table: %d x %d interior cells\n", rows, bench::tableColumnCount);
    try {
        Report("in-process ", excel::embedded::CreateApplication, rows, columns, folder / "com_table_bench_in.xlsx");
        Report(
            "automation ", [] { return excel::com::CreateApplication("VosExcelEngine.Application"); }, rows, columns,
            folder / "com_table_bench_com.xlsx");
    } catch (const std::exception& error) {
        std::fprintf(stderr, "error: %s\n", error.what());
        return 1;
    }
    std::printf("peak working set: %.1f MiB\n", bench::PeakResidentMebibytes());
    return 0;
}
