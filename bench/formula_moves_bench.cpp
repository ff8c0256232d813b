// What inserting cells, and renaming a sheet, cost when the workbook's formulas must follow:
// 100,000 formulas on Sheet1 referring to its own cells ("=B7*2") and 100,000 on Sheet2 referring
// to Sheet1's ("=Sheet1!B7+1"). Beside it, as the reference in the same run, the same inserts in
// a workbook holding values where the formulas were. Prints the fastest of five runs of each step
// and the peak memory.
//
// Usage: formula_moves_bench [ROWS]   (default 100,000 formulas on each sheet)

#include "measure.hpp"

#include <excel/embedded.hpp>
#include <excel/excel.hpp>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

using namespace excel;

constexpr int repetitions = 5;

// Fills column A of the sheet with one formula (or value) per row, made by the given function.
template <class Make>
void FillColumn(Worksheet& sheet, int32_t rows, Make make) {
    SafeArray cells = SafeArray::Matrix(VarType::Variant, static_cast<uint32_t>(rows), 1);
    for (int32_t row = 1; row <= rows; ++row) {
        cells.Put(static_cast<uint32_t>(row - 1), 0, make(row));
    }
    sheet.Range(sheet.Cells(1, 1), sheet.Cells(rows, 1))->SetFormula(Variant(std::move(cells)));
}

void Measure(const char* label, bool formulas, int32_t rows) {
    auto app = embedded::CreateApplication();
    auto book = app->Workbooks()->Add();
    auto first = book->Worksheets(1);
    auto second = book->Worksheets()->Add(Variant(), Variant(first));
    second->SetName("Sheet2");
    FillColumn(*first, rows, [&](int32_t row) {
        return formulas ? Variant("=B" + std::to_string(row) + "*2") : Variant(static_cast<double>(row));
    });
    FillColumn(*second, rows, [&](int32_t row) {
        return formulas ? Variant("=Sheet1!B" + std::to_string(row) + "+1") : Variant(static_cast<double>(row));
    });
    std::printf("%s\n", label);
    const double own = bench::FastestRunSeconds(repetitions, "  insert a row at the top of Sheet1",
                                                [&] { first->Range("A1")->EntireRow()->Insert(); });
    const double other = bench::FastestRunSeconds(repetitions, "  insert a row at the top of Sheet2",
                                                  [&] { second->Range("A1")->EntireRow()->Insert(); });
    int renames = 0;
    const double rename = bench::FastestRunSeconds(repetitions, "  rename Sheet1",
                                                   [&] { first->SetName("Data " + std::to_string(++renames)); });
    std::printf("  fastest: insert on Sheet1 %.2f ms, on Sheet2 %.2f ms, rename %.2f ms; peak %.1f MiB\n", own * 1000,
                other * 1000, rename * 1000, bench::PeakResidentMebibytes());
}

}  // namespace

int main(int argc, char** argv) {
    const int32_t rows = argc > 1 ? std::atoi(argv[1]) : 100000;
    Measure("values (the reference)", false, rows);
    Measure("formulas", true, rows);
    return 0;
}
