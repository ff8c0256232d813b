#include "chart/report_chart_fixture.hpp"

#include "chart/nice_axis_scale.hpp"

#include <cmath>

namespace {

using NiceTicksTest = ReportChartTest;

TEST(AxisScaleOf, DividesTheEndsIntoOneStepFewerThanTheTicks) {
    const vos::AxisScale scale = vos::AxisScaleOf({0.0, 100.0, 6});
    EXPECT_EQ(scale.minimum, 0.0);
    EXPECT_EQ(scale.maximum, 100.0);
    EXPECT_EQ(scale.unit, 20.0);
}

TEST(AxisScaleOf, OneTickIsADivisionByZero) {
    ExpectFailureCode([] { vos::AxisScaleOf({0.0, 100.0, 1}); }, static_cast<int32_t>(0x800A000B));
}

TEST(AxisScaleOf, ATickCountThatWrapsIsAnOverflow) {
    ExpectFailureCode([] { vos::AxisScaleOf({0.0, 100.0, INT16_MIN}); }, static_cast<int32_t>(0x800A0006));
    ExpectFailureCode([] { vos::AxisScaleOf({-1e308, 1e308, 2}); }, static_cast<int32_t>(0x800A0006));
}

TEST_F(NiceTicksTest, AYAxisOnRoundTicks) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    const auto axis = chart->AddValueYAxisWithNiceTicks(3, 97, false, false, "Loss", "0");
    EXPECT_EQ(axis->MinimumScale(), 0.0);
    EXPECT_EQ(axis->MaximumScale(), 100.0);
    EXPECT_EQ(axis->MajorUnit(), 10.0);
    EXPECT_EQ(axis->AxisTitle()->Text(), "Loss");
    EXPECT_EQ(axis->TickLabels()->NumberFormat(), "0");
}

TEST_F(NiceTicksTest, AGapAskedForLeavesRoomBeyondTheData) {
    const auto chart = ChartWithSeries(vos::VosChartXYMarkers);
    const auto axis = chart->AddValueXAxisWithNiceTicks(0, 100, true, true);
    EXPECT_LT(axis->MinimumScale(), 0.0);
    EXPECT_GT(axis->MaximumScale(), 100.0);
    EXPECT_EQ(axis->Type(), excel::xlCategory);
    EXPECT_EQ(axis->TickLabels()->Orientation(), excel::xlUpward);
    const double steps = (axis->MaximumScale() - axis->MinimumScale()) / axis->MajorUnit();
    EXPECT_DOUBLE_EQ(steps, std::round(steps));
}

TEST_F(NiceTicksTest, ASecondaryYAxisOnRoundTicks) {
    const auto chart = ChartWithSeries(vos::VosChartLine);
    chart->AddLineData(At("J1:J5"))->SetAxisGroup(excel::xlSecondary);
    const auto axis = chart->AddSecondaryValueYAxisWithNiceTicks(0.04, 0.92, false, true, "", "0%");
    EXPECT_EQ(axis->AxisGroup(), excel::xlSecondary);
    EXPECT_EQ(axis->MinimumScale(), 0.0);
    EXPECT_EQ(axis->MaximumScale(), 1.0);
    EXPECT_EQ(axis->MajorUnit(), 0.1);
}

TEST_F(NiceTicksTest, ReversedDataArePassedOnAsTheyCome) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    const auto reversed = chart->AddValueYAxisWithNiceTicks(97, 3, false, false);
    EXPECT_EQ(reversed->MinimumScale(), 0.0);
    EXPECT_EQ(reversed->MaximumScale(), 100.0);
}

TEST_F(NiceTicksTest, TheAxisMembersChecksStillApply) {
    const auto empty = NewChart(vos::VosChartColumn);
    ExpectAutomationError([&] { empty->AddValueYAxisWithNiceTicks(0, 1, false, false); },
                          vos::error_code::NotAllowedNow, NoDataSeries);
    const auto column = ChartWithSeries(vos::VosChartColumn);
    ExpectAutomationError([&] { column->AddValueXAxisWithNiceTicks(0, 1, false, false); },
                          vos::error_code::NotAllowedNow, WrongAxisForType);
    const auto tornado = ChartWithSeries(vos::VosChartTornado);
    ExpectAutomationError([&] { tornado->AddSecondaryValueYAxisWithNiceTicks(0, 1, false, false); },
                          vos::error_code::NotAllowedNow, WrongAxisForType);
}

}  // namespace
