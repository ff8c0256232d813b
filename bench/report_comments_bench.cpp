// Headers and comments at scale: a report sheet with a header box and a formatted comment on each
// of many cells, saved and opened again. Prints the time of each step and the peak memory.
//
// Usage: report_comments_bench [OUTPUT.xlsx] [COMMENTS]   (default 10,000 comments)

#include "measure.hpp"

#include <excel/embedded.hpp>
#include <vos/reporting.hpp>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>

int main(int argc, char** argv) {
    const std::filesystem::path target =
        std::filesystem::absolute(argc > 1 ? argv[1] : "build/bench/report_comments_bench.xlsx");
    const int commentCount = argc > 2 ? std::stoi(argv[2]) : 10000;
    std::filesystem::create_directories(target.parent_path());

    auto app = excel::embedded::CreateApplication();
    vos::VosExcelReporting reporting;
    auto report = reporting.NewReportWorkbook(app, "BenchApp");
    auto sheet = report->NewReportWorksheet("Comments");

    auto start = std::chrono::steady_clock::now();
    sheet->AddHeader("Commented results", excel::Variant(std::vector<std::string>{"Cells\tone comment each"}));
    const auto first = sheet->CurrentCell();
    for (int i = 0; i < commentCount; ++i) {
        const auto cell = first->Offset(i, 0);
        cell->SetValue(static_cast<double>(i));
        sheet->AddComment(cell, "Row " + std::to_string(i + 1), "Simulated result, checked against the model.");
    }
    std::printf("comments:        %d\n", commentCount);
    std::printf("add:             %.3f s\n", bench::SecondsSince(start));

    start = std::chrono::steady_clock::now();
    report->ExcelWorkbook()->SaveAs(target.string());
    report->ExcelWorkbook()->Close();
    std::printf("save:            %.3f s (%.1f MiB)\n", bench::SecondsSince(start),
                static_cast<double>(std::filesystem::file_size(target)) / (1024.0 * 1024.0));

    start = std::chrono::steady_clock::now();
    auto reopened = app->Workbooks()->Open(target.string());
    std::printf("open:            %.3f s (%d shapes)\n", bench::SecondsSince(start),
                reopened->Worksheets("Comments")->Shapes()->Count());
    std::printf("peak RSS:        %.1f MiB\n", bench::PeakResidentMebibytes());
    return 0;
}
