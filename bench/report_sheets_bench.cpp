// Report sheets at scale: a workbook of many report sheets that all ask for the same name (each
// new one must find the next free number), saved, reopened, found again by its tag and emptied of
// its report sheets. Prints the time of each step and the peak memory.

#include "measure.hpp"

#include <excel/embedded.hpp>
#include <vos/reporting.hpp>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>

int main(int argc, char** argv) {
    const std::filesystem::path target =
        std::filesystem::absolute(argc > 1 ? argv[1] : "build/bench/report_sheets_bench.xlsx");
    const int sheetCount = argc > 2 ? std::stoi(argv[2]) : 500;
    std::filesystem::create_directories(target.parent_path());

    auto app = excel::embedded::CreateApplication();
    vos::VosExcelReporting reporting;
    auto report = reporting.NewReportWorkbook(app, "BenchApp");

    auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < sheetCount; ++i) {
        auto sheet = report->NewReportWorksheet("Data");
        sheet->CurrentCell()->SetValue(static_cast<double>(i));
        sheet->AddSeparatorRows(2);
    }
    std::printf("report sheets:   %d\n", sheetCount);
    std::printf("add sheets:      %.3f s\n", bench::SecondsSince(start));

    start = std::chrono::steady_clock::now();
    report->ExcelWorkbook()->SaveAs(target.string());
    report->ExcelWorkbook()->Close();
    std::printf("save:            %.3f s\n", bench::SecondsSince(start));

    start = std::chrono::steady_clock::now();
    app->Workbooks()->Open(target.string());
    auto reopened = reporting.NewReportWorkbook(app, "BenchApp", nullptr, true);
    std::printf("open and find:   %.3f s\n", bench::SecondsSince(start));

    start = std::chrono::steady_clock::now();
    reopened->DeleteReportWorksheets();
    std::printf("delete sheets:   %.3f s (%d left)\n", bench::SecondsSince(start),
                reopened->ExcelWorkbook()->Worksheets()->Count());
    std::printf("peak RSS:        %.1f MiB\n", bench::PeakResidentMebibytes());
    return 0;
}
