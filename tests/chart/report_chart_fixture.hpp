#pragma once

#include "worksheet/report_sheet_fixture.hpp"

#include <excel/chart_constants.hpp>
#include <excel/excel.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// A report sheet with numbers to chart in columns H to K (rows 1 to 5), away from the charts that
// the cursor places from A1 on.
class ReportChartTest : public ReportSheetTest {
protected:
    void SetUp() override {
        ReportSheetTest::SetUp();
        FillData();
    }

    // Starts again on a sheet of a new report workbook in that language, with the data.
    void UseChartLanguage(int32_t language) {
        UseLanguage(language);
        FillData();
    }

    std::shared_ptr<excel::Range> At(const std::string& address) { return excelSheet->Range(address); }

    std::shared_ptr<vos::VosExcelChart> NewChart(vos::VosChartType type) { return sheet->AddChart(type); }

    // A chart of that type with one series: one column (or line) of values, or x and y columns.
    std::shared_ptr<vos::VosExcelChart> ChartWithSeries(vos::VosChartType type) {
        auto chart = NewChart(type);
        AddSeriesTo(*chart);
        return chart;
    }

    void AddSeriesTo(vos::VosExcelChart& chart) {
        switch (chart.ChartType()) {
            case vos::VosChartColumn:
                chart.AddColumnData(At("I1:I5"));
                break;
            case vos::VosChartLine:
            case vos::VosChartLineWithMarkers:
                chart.AddLineData(At("I1:I5"));
                break;
            case vos::VosChartTornado:
                chart.AddTornadoData(2, excel::SafeArray::Doubles(std::vector<double>{-1, 2}),
                                     excel::SafeArray::Doubles(std::vector<double>{3, 4}));
                break;
            default:
                chart.AddXYData(At("H1:H5"), At("I1:I5"));
                break;
        }
    }

    static int32_t SeriesCount(vos::VosExcelChart& chart) { return chart.Chart()->SeriesCollection()->Count(); }
    static std::shared_ptr<excel::Series> SeriesOf(vos::VosExcelChart& chart, int32_t index) {
        return chart.Chart()->SeriesCollection(index);
    }

private:
    void FillData() {
        for (int32_t row = 1; row <= 5; ++row) {
            excelSheet->Cells(row, 8)->SetValue(static_cast<double>(row));
            excelSheet->Cells(row, 9)->SetValue(static_cast<double>(row * 10));
            excelSheet->Cells(row, 10)->SetValue(static_cast<double>(row * 7));
            excelSheet->Cells(row, 11)->SetValue("'Label " + std::to_string(row));
        }
    }
};

inline constexpr const char* WrongDataForType = "Invalid type of data for chart's type.";
inline constexpr const char* WrongAxisForType = "This type of axis can not be added to this chart type.";
inline constexpr const char* NoDataSeries =
    "Operation can not be performed until the chart has at least one data series.";
