// Builds a 100,000 x 10 table through the embedded engine's object model, formats it, saves it,
// and prints the time of each step and the peak resident memory.

#include "measure.hpp"

#include <excel/embedded.hpp>
#include <excel/excel.hpp>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>

namespace {

constexpr uint32_t rowCount = 100000;
constexpr int32_t columnCount = 10;

}  // namespace

int main(int argc, char** argv) {
    using namespace excel;
    const std::string path =
        argc > 1 ? argv[1] : (std::filesystem::temp_directory_path() / "engine_bench.xlsx").string();
    const auto start = std::chrono::steady_clock::now();

    auto app = embedded::CreateApplication();
    auto book = app->Workbooks()->Add();
    auto sheet = book->Worksheets(1);

    const auto writing = std::chrono::steady_clock::now();
    for (int32_t column = 1; column <= columnCount; ++column) {
        SafeArray values = SafeArray::Matrix(VarType::Double, rowCount, 1);
        for (uint32_t row = 0; row < rowCount; ++row) {
            values.Put(row, 0, static_cast<double>(row) * column + 0.25);
        }
        sheet->Range(sheet->Cells(3, column), sheet->Cells(2 + rowCount, column))->SetValue(Variant(std::move(values)));
    }
    const double writeSeconds = bench::SecondsSince(writing);
    const double peakAfterValues = bench::PeakResidentMebibytes();

    const auto formatting = std::chrono::steady_clock::now();
    auto title = sheet->Range(sheet->Cells(1, 1), sheet->Cells(1, columnCount));
    title->Merge();
    title->Cells(1, 1)->SetValue("Benchmark table");
    title->Font()->SetSize(14);
    title->Font()->SetBold(true);
    title->Interior()->SetThemeColor(xlThemeColorAccent1);
    title->SetHorizontalAlignment(xlCenter);
    auto body = sheet->Range(sheet->Cells(3, 1), sheet->Cells(2 + rowCount, columnCount));
    body->Font()->SetName("Arial");
    body->Font()->SetSize(10);
    body->SetHorizontalAlignment(xlRight);
    body->SetVerticalAlignment(xlCenter);
    body->SetNumberFormat("#,##0.00");
    for (int32_t edge : {xlEdgeLeft, xlEdgeTop, xlEdgeBottom, xlEdgeRight}) {
        body->Borders(edge)->SetLineStyle(xlContinuous);
        body->Borders(edge)->SetWeight(xlMedium);
    }
    body->Borders(xlInsideVertical)->SetLineStyle(xlContinuous);
    sheet->Columns()->SetColumnWidth(12);
    const double formatSeconds = bench::SecondsSince(formatting);

    const auto saving = std::chrono::steady_clock::now();
    book->SaveAs(path);
    const double saveSeconds = bench::SecondsSince(saving);

    std::printf("cells: %u x %d\n", rowCount, columnCount);
    std::printf("write values: %.3f s\n", writeSeconds);
    std::printf("format:       %.3f s\n", formatSeconds);
    std::printf("save:         %.3f s\n", saveSeconds);
    std::printf("total:        %.3f s\n", bench::SecondsSince(start));
    std::printf("peak RSS:     %.1f MiB (%.1f MiB once the values were written)\n", bench::PeakResidentMebibytes(),
                peakAfterValues);
    std::printf("file:         %s (%.1f MiB)\n", path.c_str(), bench::FileMebibytes(path));
    return 0;
}
