#include "chart/report_chart_fixture.hpp"

#include "chart/report_chart.hpp"

namespace {

using InitializeChartTest = ReportChartTest;

struct TypeCase {
    vos::VosChartType type;
    int32_t excelType;
};

TEST_F(InitializeChartTest, SetsTheExcelTypeOfEachReportType) {
    const TypeCase cases[] = {
        {vos::VosChartColumn, excel::xlColumnClustered},
        {vos::VosChartXYMarkers, excel::xlXYScatter},
        {vos::VosChartXYLine, excel::xlXYScatterLinesNoMarkers},
        {vos::VosChartXYMarkersAndLine, excel::xlXYScatterLines},
        {vos::VosChartLine, excel::xlLine},
        {vos::VosChartLineWithMarkers, excel::xlLineMarkers},
        {vos::VosChartTornado, excel::xlBarStacked},
    };
    for (const TypeCase& typeCase : cases) {
        const auto chart = NewChart(typeCase.type);
        EXPECT_EQ(chart->ChartType(), typeCase.type);
        EXPECT_EQ(chart->Chart()->ChartType(), typeCase.excelType) << typeCase.type;
        EXPECT_EQ(SeriesCount(*chart), 0);
    }
}

TEST_F(InitializeChartTest, MovesWithItsCellsInAMediumAutomaticFrame) {
    const auto chart = NewChart(vos::VosChartLine);
    EXPECT_EQ(chart->Chart()->Parent()->Placement(), excel::xlMove);
    const auto frame = chart->Chart()->ChartArea()->Border();
    EXPECT_EQ(frame->Weight().ToInt(), excel::xlMedium);
    EXPECT_EQ(frame->ColorIndex().ToInt(), excel::xlColorIndexAutomatic);
}

TEST_F(InitializeChartTest, ACustomChartKeepsClusteredColumnsAndTakesNoData) {
    const auto chart = NewChart(vos::VosChartCustom);
    EXPECT_EQ(chart->ChartType(), vos::VosChartCustom);
    EXPECT_EQ(chart->Chart()->ChartType(), excel::xlColumnClustered);
    ExpectAutomationError([&] { chart->AddColumnData(At("I1:I5")); }, vos::error_code::NotAllowedNow, WrongDataForType);
    ExpectAutomationError([&] { chart->AddXYData(At("H1:H5"), At("I1:I5")); }, vos::error_code::NotAllowedNow,
                          WrongDataForType);
    ExpectAutomationError([&] { chart->AddLineData(At("I1:I5")); }, vos::error_code::NotAllowedNow, WrongDataForType);
    ExpectAutomationError(
        [&] {
            chart->AddTornadoData(1, excel::SafeArray::Doubles(std::vector<double>{1}),
                                  excel::SafeArray::Doubles(std::vector<double>{2}));
        },
        vos::error_code::NotAllowedNow, WrongDataForType);
    EXPECT_EQ(SeriesCount(*chart), 0);
}

TEST_F(InitializeChartTest, TheAnchorCellFollowsTheChart) {
    sheet->SetCurrentCell(At("C4"));
    const auto chart = NewChart(vos::VosChartColumn);
    EXPECT_EQ(chart->AnchorCell()->Address(), "$C$4");
    excelSheet->Rows(1)->Insert();
    EXPECT_EQ(chart->AnchorCell()->Address(), "$C$5");
}

TEST_F(InitializeChartTest, ChecksTypeAnchorAndSizeInThatOrder) {
    vos::ReportChart chart;
    const auto anchor = At("A1");
    ExpectAutomationError([&] { chart.InitializeChart(report, 9, static_cast<vos::VosChartType>(65), nullptr, 0, 0); },
                          vos::error_code::OutOfRange, "p_ChartType");
    ExpectAutomationError([&] { chart.InitializeChart(report, 9, vos::VosChartLine, nullptr, 0, 0); },
                          vos::error_code::MissingObject, "AnchorCell");
    ExpectAutomationError([&] { chart.InitializeChart(report, 9, vos::VosChartLine, anchor, 0, 0); },
                          vos::error_code::OutOfRange, "chartWidth");
    ExpectAutomationError([&] { chart.InitializeChart(report, 9, vos::VosChartLine, anchor, 10, -1); },
                          vos::error_code::OutOfRange, "chartHeight");
    EXPECT_EQ(excelSheet->ChartObjects()->Count(), 0);
    chart.InitializeChart(report, 9, vos::VosChartLine, anchor, 10, 20);
    EXPECT_EQ(excelSheet->ChartObjects()->Count(), 1);
    EXPECT_DOUBLE_EQ(chart.Chart()->Parent()->Height(), 20.0);  // placed as given: only the sheet rounds
}

}  // namespace
