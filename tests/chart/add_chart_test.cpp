#include "chart/report_chart_fixture.hpp"

#include <cmath>

namespace {

using AddChartTest = ReportChartTest;

TEST_F(AddChartTest, DefaultsTo428By300PointsAtTheCursor) {
    excelSheet->Rows(1)->SetRowHeight(20);
    sheet->SetCurrentCell(At("B2"));
    // Without rounding the frame keeps exactly the requested size.
    sheet->SetRoundToRowBoundaries(false);
    ASSERT_TRUE(sheet->RoundToRowBoundaries());  // the setting cannot be switched off
    const auto chart = sheet->AddChart(vos::VosChartColumn);
    const auto frame = chart->Chart()->Parent();
    EXPECT_DOUBLE_EQ(frame->Left(), At("B2")->Left());
    EXPECT_DOUBLE_EQ(frame->Top(), At("B2")->Top());
    EXPECT_DOUBLE_EQ(frame->Width(), 428.0);
    EXPECT_EQ(chart->AnchorCell()->Address(), "$B$2");
    EXPECT_EQ(excelSheet->ChartObjects()->Count(), 1);
}

TEST_F(AddChartTest, EndsHalfAPointAboveTheRowItEndsIn) {
    // Rows are 15 points: a 300-point chart from A1 ends 300 points down, on the boundary under
    // row 20, so its corner lies in row 21 and it is stretched to end above row 21's bottom edge.
    const auto chart = sheet->AddChart(vos::VosChartColumn);
    const auto frame = chart->Chart()->Parent();
    EXPECT_DOUBLE_EQ(frame->Height(), 21 * 15.0 - 0.5);
    EXPECT_EQ(frame->BottomRightCell()->Row(), 21);
    EXPECT_EQ(Cursor(), "$A$22");
}

TEST_F(AddChartTest, TrimsAChartThatEndsInsideARow) {
    // 100 points from the top of row 3 (30 points down) end at 130, inside row 9 (120 to 135).
    sheet->SetCurrentCell(At("C3"));
    const auto chart = sheet->AddChart(vos::VosChartXYMarkers, 200, 100);
    const auto frame = chart->Chart()->Parent();
    EXPECT_DOUBLE_EQ(frame->Top(), 30.0);
    EXPECT_DOUBLE_EQ(frame->Height(), 135.0 - 30.0 - 0.5);
    EXPECT_DOUBLE_EQ(frame->Width(), 200.0);
    EXPECT_EQ(Cursor(), "$C$10");
}

TEST_F(AddChartTest, MovesTheCursorToTheRowAfterTheCorner) {
    // The corner 130 points down is in row 9; the frame is stretched to the end of that row.
    const auto chart = sheet->AddChart(vos::VosChartLine, 100, 130);
    EXPECT_EQ(Cursor(), "$A$10");
    EXPECT_EQ(chart->Chart()->Parent()->BottomRightCell()->Row(), 9);
}

TEST_F(AddChartTest, HandsTheChartTheSheetsLanguage) {
    UseChartLanguage(4);
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    EXPECT_EQ(chart->AddLegend(false)->Font()->Size().ToDouble(), 10.0);
}

TEST_F(AddChartTest, RefusesAZeroOrNegativeOrMissingSize) {
    ExpectAutomationError([&] { sheet->AddChart(vos::VosChartColumn, 0); }, vos::error_code::OutOfRange, "chartWidth");
    ExpectAutomationError([&] { sheet->AddChart(vos::VosChartColumn, -5); }, vos::error_code::OutOfRange, "chartWidth");
    ExpectAutomationError([&] { sheet->AddChart(vos::VosChartColumn, 428, 0); }, vos::error_code::OutOfRange,
                          "chartHeight");
    ExpectAutomationError([&] { sheet->AddChart(vos::VosChartColumn, 428, std::nan("")); }, vos::error_code::OutOfRange,
                          "chartHeight");
    EXPECT_EQ(excelSheet->ChartObjects()->Count(), 0);
    EXPECT_EQ(Cursor(), "$A$1");
}

TEST_F(AddChartTest, ChecksTheTypeBeforeTheSize) {
    ExpectAutomationError([&] { sheet->AddChart(static_cast<vos::VosChartType>(17), 0, 0); },
                          vos::error_code::OutOfRange, "chartType");
    ExpectAutomationError([&] { sheet->AddChart(vos::VosChartColumn, 0, 0); }, vos::error_code::OutOfRange,
                          "chartWidth");
}

TEST_F(AddChartTest, RefusesAChartWhoseCornerLeavesTheSheet) {
    sheet->SetCurrentCell(At("A1048570"));
    ExpectAutomationError([&] { sheet->AddChart(vos::VosChartColumn); }, vos::error_code::NotAllowedNow,
                          NoRoomForElement);
    EXPECT_EQ(excelSheet->ChartObjects()->Count(), 0);
    EXPECT_EQ(Cursor(), "$A$1048570");
}

TEST_F(AddChartTest, RefusesAChartWithoutACursor) {
    sheet->SetCurrentCell(nullptr);
    ExpectAutomationError([&] { sheet->AddChart(vos::VosChartColumn); }, vos::error_code::NotAllowedNow,
                          NoRoomForElement);
    EXPECT_EQ(excelSheet->ChartObjects()->Count(), 0);
}

TEST_F(AddChartTest, ChartsFollowOneAnotherDownTheSheet) {
    const auto first = sheet->AddChart(vos::VosChartColumn);
    sheet->AddSeparatorRows(1);
    const auto second = sheet->AddChart(vos::VosChartTornado, 428, sheet->RecommendedTornadoChartHeight(12));
    EXPECT_EQ(second->AnchorCell()->Address(), "$A$23");
    EXPECT_LT(first->Chart()->Parent()->Top() + first->Chart()->Parent()->Height(), second->Chart()->Parent()->Top());
    // 348 points from 330 end in row 46 (675 to 690 points).
    EXPECT_DOUBLE_EQ(second->Chart()->Parent()->Height(), 690.0 - 330.0 - 0.5);
    EXPECT_EQ(excelSheet->ChartObjects()->Count(), 2);
}

}  // namespace
