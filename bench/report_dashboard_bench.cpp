// Report dashboards at scale: a workbook of 50 report sheets built through the report library, each
// with a header text box, two tables of 20 x 5 interior cells, a clustered column chart of three of
// the first table's columns (title, legend, category and value axes), an XY chart of two of the
// second table's columns against its first on round ticks, a comment and two names (one for the
// workbook, one local to the sheet). The dashboard is built, saved and opened again, and what came
// back is counted. Beside it, as the reference in the same run, the same dashboard without its two
// charts, so that the charts' cost shows. Each variant runs in a child process of its own so that
// its peak memory is its own; in it every step runs five times and the fastest run counts.
//
// Usage: report_dashboard_bench [OUTPUT_FOLDER] [SHEETS]   (default build/bench, 50 sheets)

#include "measure.hpp"

#include <excel/embedded.hpp>
#include <vos/reporting.hpp>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr int repetitions = 5;
constexpr int32_t rowCount = 20;
constexpr int32_t columnCount = 5;
constexpr int32_t columnSeries = 3;

// What one variant measured, handed from its child process to the parent through a pipe.
struct Figures {
    double buildSeconds = 0.0;
    double saveSeconds = 0.0;
    double openSeconds = 0.0;
    double peakFirstBuild = 0.0;
    double peakBuilt = 0.0;
    double peakSaved = 0.0;
    double peakOpened = 0.0;
    double fileMebibytes = 0.0;
    int32_t sheets = 0;
    int32_t charts = 0;
    int32_t names = 0;
    int32_t comments = 0;
};

std::string WorkbookName(int32_t sheet) {
    return "Results_" + std::to_string(sheet);
}

// The first table's interior column: steady growth down the rows, a step from column to column.
std::vector<double> ResultColumn(int32_t sheet, int32_t column) {
    std::vector<double> values(static_cast<size_t>(rowCount));
    for (int32_t row = 0; row < rowCount; ++row)
        values[static_cast<size_t>(row)] = 100.0 + 12.5 * column + row * (1.5 + (sheet + column) % 7);
    return values;
}

// The second table's interior column: the first column runs evenly (the XY chart's x), the others
// curve over it.
std::vector<double> MeasurementColumn(int32_t sheet, int32_t column) {
    std::vector<double> values(static_cast<size_t>(rowCount));
    for (int32_t row = 0; row < rowCount; ++row) {
        const double x = 2.5 * (row + 1);
        values[static_cast<size_t>(row)] = column == 1 ? x : 0.04 * x * x * column + x * 0.3 * (sheet % 5) - 8.0;
    }
    return values;
}

std::vector<std::string> Captions(const std::string& stem) {
    std::vector<std::string> captions;
    for (int32_t column = 1; column <= columnCount; ++column)
        captions.push_back(stem + " " + std::to_string(column));
    return captions;
}

// A table of rowCount x columnCount interior cells with one header row and one header column,
// each interior column written in one assignment.
std::shared_ptr<vos::VosExcelTable> AddDataTable(vos::VosExcelReportWorksheet& sheet, const std::string& title,
                                                 const std::string& captionStem, int32_t sheetNumber,
                                                 std::vector<double> (*column)(int32_t, int32_t)) {
    auto table = sheet.AddTable(rowCount, columnCount, 1, 1, title);
    table->WriteHeaderArray(vos::VosTopHeader, 1, excel::Variant(Captions(captionStem)));
    table->WriteHeaderIndexNumbers(vos::VosLeftHeader);
    for (int32_t position = 1; position <= columnCount; ++position)
        table->WriteDataToColumn(position, excel::Variant(column(sheetNumber, position)));
    return table;
}

// Clustered columns of the first three interior columns over the rows' index numbers.
void AddResultColumns(vos::VosExcelReportWorksheet& sheet, vos::VosExcelTable& table) {
    const auto chart = sheet.AddChart(vos::VosChartColumn);
    const auto interior = table.InteriorRange();
    for (int32_t position = 1; position <= columnSeries; ++position)
        chart->AddColumnData(interior->Columns(position), "Result " + std::to_string(position));
    chart->AddTitle("Results by case");
    chart->AddLegend(true);
    chart->AddCategoryXAxis("Case", table.LeftHeaderRange());
    chart->AddValueYAxis("Value", 0, 400.0, 50, "#,##0");
}

// Two curves of the second table against its first column, on round ticks fitted to the data.
void AddMeasurementCurves(vos::VosExcelReportWorksheet& sheet, vos::VosExcelTable& table, int32_t sheetNumber) {
    const auto chart = sheet.AddChart(vos::VosChartXYMarkers);
    const auto interior = table.InteriorRange();
    double low = 0.0;
    double high = 0.0;
    for (int32_t position = 2; position <= 3; ++position) {
        chart->AddXYData(interior->Columns(1), interior->Columns(position), "Measure " + std::to_string(position));
        const auto values = MeasurementColumn(sheetNumber, position);
        const auto [least, most] = std::minmax_element(values.begin(), values.end());
        low = position == 2 ? *least : std::min(low, *least);
        high = position == 2 ? *most : std::max(high, *most);
    }
    const auto xs = MeasurementColumn(sheetNumber, 1);
    chart->AddTitle("Measures against load");
    chart->AddLegend(false);
    chart->AddValueXAxisWithNiceTicks(xs.front(), xs.back(), false, false, "Load", "0", false);
    chart->AddValueYAxisWithNiceTicks(low, high, true, true, "Measure", "#,##0.0");
}

void AddDashboardSheet(vos::VosExcelReportWorkbook& report, int32_t sheetNumber, bool charts) {
    const auto sheet = report.NewReportWorksheet("Dashboard " + std::to_string(sheetNumber));
    sheet->AddHeader("Dashboard " + std::to_string(sheetNumber),
                     excel::Variant(std::vector<std::string>{"Portfolio\tBench " + std::to_string(sheetNumber),
                                                             "Cases\t" + std::to_string(rowCount)}));
    sheet->AddSeparatorRows(1);
    const auto results = AddDataTable(*sheet, "Results", "Result", sheetNumber, ResultColumn);
    sheet->AddSeparatorRows(1);
    const auto measurements = AddDataTable(*sheet, "Measurements", "Measure", sheetNumber, MeasurementColumn);
    sheet->AddSeparatorRows(1);
    if (charts) {
        AddResultColumns(*sheet, *results);
        sheet->AddSeparatorRows(1);
        AddMeasurementCurves(*sheet, *measurements, sheetNumber);
    }
    sheet->AddComment(results->InteriorRange()->Cells(1, 1), "Source", "Simulated for the benchmark");
    report.ExcelWorkbook()->Names()->Add(WorkbookName(sheetNumber), excel::Variant(results->InteriorRange()));
    sheet->ExcelWorksheet()->Names()->Add("Measurements", excel::Variant(measurements->InteriorRange()));
}

std::shared_ptr<vos::VosExcelReportWorkbook> Build(vos::VosExcelReporting& reporting,
                                                   const std::shared_ptr<excel::Application>& app, int32_t sheetCount,
                                                   bool charts) {
    auto report = reporting.NewReportWorkbook(app, "BenchApp");
    for (int32_t sheet = 1; sheet <= sheetCount; ++sheet)
        AddDashboardSheet(*report, sheet, charts);
    report->ActivateFirstWorksheetCreated();
    return report;
}

// Counts what the opened file holds: report sheets, charts, the dashboard's names, and the comment
// each sheet's workbook name leads to.
void CountOpened(excel::Workbook& book, int32_t sheetCount, Figures& figures) {
    const auto sheets = book.Worksheets();
    figures.sheets = 0;
    figures.charts = 0;
    figures.comments = 0;
    for (int32_t index = 1; index <= sheets->Count(); ++index) {
        const auto sheet = book.Worksheets(index);
        if (sheet->Name().rfind("Dashboard ", 0) == 0)
            ++figures.sheets;
        figures.charts += sheet->ChartObjects()->Count();
    }
    // The report library tags the workbook and each sheet with names of its own; only ours count.
    const auto names = book.Names();
    figures.names = 0;
    for (int32_t index = 1; index <= names->Count(); ++index) {
        const std::string name = names->Item(index)->GetName();
        if (name.rfind("Results_", 0) == 0 || name.ends_with("!Measurements"))
            ++figures.names;
    }
    for (int32_t sheet = 1; sheet <= sheetCount; ++sheet) {
        if (book.Names()->Item(WorkbookName(sheet))->RefersToRange()->Cells(1, 1)->Comment())
            ++figures.comments;
    }
}

Figures Measure(bool charts, int32_t sheetCount, const std::filesystem::path& path) {
    Figures figures;
    const auto app = excel::embedded::CreateApplication();
    vos::VosExcelReporting reporting;
    std::shared_ptr<vos::VosExcelReportWorkbook> report;
    figures.buildSeconds = bench::FastestRunSeconds(repetitions, "  build", [&] {
        if (report) {
            report->ExcelWorkbook()->Close(false);
            report.reset();
        }
        report = Build(reporting, app, sheetCount, charts);
        if (figures.peakFirstBuild == 0.0)
            figures.peakFirstBuild = bench::PeakResidentMebibytes();
    });
    figures.peakBuilt = bench::PeakResidentMebibytes();
    const auto book = report->ExcelWorkbook();
    figures.saveSeconds = bench::FastestRunSeconds(repetitions, "  save", [&] { book->SaveAs(path.string()); });
    figures.peakSaved = bench::PeakResidentMebibytes();
    figures.fileMebibytes = bench::FileMebibytes(path);
    book->Close(false);
    report.reset();

    figures.openSeconds = bench::FastestRunSeconds(repetitions, "  open", [&] {
        const auto reopened = app->Workbooks()->Open(path.string());
        CountOpened(*reopened, sheetCount, figures);
        reopened->Close(false);
    });
    figures.peakOpened = bench::PeakResidentMebibytes();

    const int32_t expectedCharts = charts ? 2 * sheetCount : 0;
    if (figures.sheets != sheetCount || figures.charts != expectedCharts || figures.names != 2 * sheetCount ||
        figures.comments != sheetCount) {
        throw std::runtime_error("the saved dashboard opened with " + std::to_string(figures.sheets) + " sheets, " +
                                 std::to_string(figures.charts) + " charts, " + std::to_string(figures.names) +
                                 " names and " + std::to_string(figures.comments) + " comments");
    }
    return figures;
}

bool WriteAll(int descriptor, const void* data, size_t size) {
    const auto* bytes = static_cast<const char*>(data);
    while (size > 0) {
        const ssize_t written = write(descriptor, bytes, size);
        if (written <= 0)
            return false;
        bytes += written;
        size -= static_cast<size_t>(written);
    }
    return true;
}

bool ReadAll(int descriptor, void* data, size_t size) {
    auto* bytes = static_cast<char*>(data);
    while (size > 0) {
        const ssize_t got = read(descriptor, bytes, size);
        if (got <= 0)
            return false;
        bytes += got;
        size -= static_cast<size_t>(got);
    }
    return true;
}

// Measures one variant in a child process, so that the peak memory it reports is that variant's
// alone; the child prints its runs and hands its figures back through a pipe.
bool MeasureInChild(const char* label, bool charts, int32_t sheetCount, const std::filesystem::path& path,
                    Figures& figures) {
    std::printf("%s\n", label);
    std::fflush(stdout);
    int channel[2];
    if (pipe(channel) != 0)
        return false;
    const pid_t child = fork();
    if (child < 0) {
        close(channel[0]);
        close(channel[1]);
        return false;
    }
    if (child == 0) {
        close(channel[0]);
        int status = 0;
        try {
            const Figures measured = Measure(charts, sheetCount, path);
            if (!WriteAll(channel[1], &measured, sizeof measured))
                status = 1;
        } catch (const std::exception& error) {
            std::fprintf(stderr, "error: %s\n", error.what());
            status = 1;
        }
        std::fflush(stdout);
        std::fflush(stderr);
        std::_Exit(status);
    }
    close(channel[1]);
    const bool received = ReadAll(channel[0], &figures, sizeof figures);
    close(channel[0]);
    int status = 0;
    if (waitpid(child, &status, 0) != child)
        return false;
    if (!received || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return false;

    std::printf("  fastest: build %.1f ms, save %.1f ms, open %.1f ms; %d sheets, %d charts, %d names, %d comments\n",
                figures.buildSeconds * 1000, figures.saveSeconds * 1000, figures.openSeconds * 1000, figures.sheets,
                figures.charts, figures.names, figures.comments);
    std::printf("  file: %s (%.2f MiB)\n", path.c_str(), figures.fileMebibytes);
    std::printf(
        "  peak RSS: %.1f MiB after the first build, %.1f MiB after %d builds, %.1f MiB once saved, %.1f MiB once "
        "opened\n",
        figures.peakFirstBuild, figures.peakBuilt, repetitions, figures.peakSaved, figures.peakOpened);
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    const std::filesystem::path folder = std::filesystem::absolute(argc > 1 ? argv[1] : "build/bench");
    const int32_t sheetCount = argc > 2 ? std::atoi(argv[2]) : 50;
    std::filesystem::create_directories(folder);

    Figures reference;
    Figures dashboard;
    if (!MeasureInChild("dashboard without charts (the reference)", false, sheetCount,
                        folder / "report_dashboard_bench.tables.xlsx", reference) ||
        !MeasureInChild("dashboard with charts", true, sheetCount, folder / "report_dashboard_bench.xlsx", dashboard)) {
        std::fprintf(stderr, "error: a measurement did not finish\n");
        return 1;
    }
    std::printf("charts' share: build %+.1f ms, save %+.1f ms, open %+.1f ms, peak RSS %+.1f MiB, file %+.2f MiB\n",
                (dashboard.buildSeconds - reference.buildSeconds) * 1000,
                (dashboard.saveSeconds - reference.saveSeconds) * 1000,
                (dashboard.openSeconds - reference.openSeconds) * 1000, dashboard.peakSaved - reference.peakSaved,
                dashboard.fileMebibytes - reference.fileMebibytes);
    return 0;
}
