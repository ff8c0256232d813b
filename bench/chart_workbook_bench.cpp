// Charts at scale: a workbook of 50 sheets, each with two tables of 100 rows x 4 columns and two
// charts of 3 series x 100 points made from them (a clustered column chart of the first table, an
// XY scatter of the second), built, saved and opened again. Beside it, as the reference in the
// same run, the same workbook without its charts. Prints the fastest of five runs of each step
// and the process's peak memory after each step (the reference runs first, so the charts' figures
// are its own peaks once they pass the reference's).
//
// Usage: chart_workbook_bench [OUTPUT_FOLDER] [SHEETS]   (default build/bench, 50 sheets)

#include "measure.hpp"

#include <excel/embedded.hpp>
#include <excel/excel.hpp>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace {

using namespace excel;

constexpr int repetitions = 5;
constexpr int32_t rowCount = 100;
constexpr int32_t columnCount = 4;
constexpr int32_t seriesCount = columnCount - 1;

// A table at column `first`: a header row, then rowCount rows of numbers; the first column runs
// 1, 2, 3... (categories or X values), the others hold the series.
void FillTable(Worksheet& sheet, int32_t first, int32_t seed) {
    SafeArray header = SafeArray::Matrix(VarType::Variant, 1, columnCount);
    header.Put(0, 0, Variant("X"));
    SafeArray values = SafeArray::Matrix(VarType::Double, rowCount, columnCount);
    for (int32_t column = 0; column < columnCount; ++column) {
        if (column > 0) {
            header.Put(0, static_cast<uint32_t>(column), Variant("Series " + std::to_string(column)));
        }
        for (int32_t row = 0; row < rowCount; ++row) {
            const double number = column == 0 ? row + 1 : (row + 1) * 1.37 + (column + seed) / 7.0;
            values.Put(static_cast<uint32_t>(row), static_cast<uint32_t>(column), number);
        }
    }
    const int32_t last = first + columnCount - 1;
    sheet.Range(sheet.Cells(1, first), sheet.Cells(1, last))->SetValue(Variant(std::move(header)));
    sheet.Range(sheet.Cells(2, first), sheet.Cells(rowCount + 1, last))->SetValue(Variant(std::move(values)));
}

// The A1 reference of a table column's numbers on the sheet, as a series takes it.
std::string ColumnReference(Worksheet& sheet, int32_t column) {
    return "='" + sheet.Name() + "'!" +
           sheet.Range(sheet.Cells(2, column), sheet.Cells(rowCount + 1, column))->Address();
}

// One series for each of the table's value columns, named by its header.
void AddSeries(Chart& chart, Worksheet& sheet, int32_t first, bool scatter) {
    for (int32_t column = first + 1; column < first + columnCount; ++column) {
        auto series = chart.SeriesCollection()->NewSeries();
        series->SetValues(Variant(ColumnReference(sheet, column)));
        if (scatter) {
            series->SetXValues(Variant(ColumnReference(sheet, first)));
        }
        series->SetName("='" + sheet.Name() + "'!" + sheet.Cells(1, column)->Address());
    }
}

void AddCharts(Worksheet& sheet) {
    auto column = sheet.Shapes()->AddChart(xlColumnClustered, 500, 10, 420, 250)->Chart();
    AddSeries(*column, sheet, 1, false);
    column->Axes(xlCategory)->SetCategoryNames(Variant(sheet.Range(sheet.Cells(2, 1), sheet.Cells(rowCount + 1, 1))));
    column->SetHasTitle(true);
    column->ChartTitle()->SetText("Columns of " + sheet.Name());
    auto scatter = sheet.Shapes()->AddChart(xlXYScatter, 500, 280, 420, 250)->Chart();
    AddSeries(*scatter, sheet, columnCount + 2, true);
    scatter->Axes(xlValue)->SetMinimumScale(0);
}

std::shared_ptr<Workbook> Build(Application& app, int sheetCount, bool charts) {
    auto book = app.Workbooks()->Add();
    auto sheet = book->Worksheets(1);
    for (int i = 1; i <= sheetCount; ++i) {
        if (i > 1) {
            sheet = book->Worksheets()->Add(Variant(), Variant(sheet));
        }
        sheet->SetName("Data " + std::to_string(i));
        FillTable(*sheet, 1, i);
        FillTable(*sheet, columnCount + 2, i + 1);
        if (charts) {
            AddCharts(*sheet);
        }
    }
    return book;
}

int32_t ChartCount(Workbook& book) {
    int32_t count = 0;
    for (int32_t i = 1; i <= book.Worksheets()->Count(); ++i) {
        count += book.Worksheets(i)->ChartObjects()->Count();
    }
    return count;
}

void Measure(const char* label, bool charts, int sheetCount, const std::filesystem::path& path) {
    std::printf("%s\n", label);
    auto app = embedded::CreateApplication();
    std::shared_ptr<Workbook> book;
    const double build = bench::FastestRunSeconds(repetitions, "  build", [&] {
        if (book) {
            book->Close(false);
        }
        book = Build(*app, sheetCount, charts);
    });
    const double peakBuilt = bench::PeakResidentMebibytes();
    const double save = bench::FastestRunSeconds(repetitions, "  save", [&] { book->SaveAs(path.string()); });
    const double peakSaved = bench::PeakResidentMebibytes();
    book->Close(false);
    book.reset();
    int32_t opened = 0;
    const double open = bench::FastestRunSeconds(repetitions, "  open", [&] {
        auto reopened = app->Workbooks()->Open(path.string());
        opened = ChartCount(*reopened);
        reopened->Close(false);
    });
    if (opened != (charts ? 2 * sheetCount : 0)) {
        throw std::runtime_error("the saved workbook opened with " + std::to_string(opened) + " charts");
    }
    std::printf("  fastest: build %.1f ms, save %.1f ms, open %.1f ms; %d sheets, %d charts, file %.2f MiB\n",
                build * 1000, save * 1000, open * 1000, sheetCount, opened, bench::FileMebibytes(path));
    std::printf("  peak RSS: %.1f MiB once built, %.1f MiB once saved, %.1f MiB once opened\n", peakBuilt, peakSaved,
                bench::PeakResidentMebibytes());
}

}  // namespace

int main(int argc, char** argv) {
    const std::filesystem::path folder = std::filesystem::absolute(argc > 1 ? argv[1] : "build/bench");
    const int sheetCount = argc > 2 ? std::atoi(argv[2]) : 50;
    std::filesystem::create_directories(folder);
    try {
        Measure("tables only (the reference)", false, sheetCount, folder / "chart_workbook_bench.tables.xlsx");
        Measure("tables and charts", true, sheetCount, folder / "chart_workbook_bench.xlsx");
    } catch (const std::exception& error) {
        std::fprintf(stderr, "error: %s\n", error.what());
        return 1;
    }
    return 0;
}
