#include "chart/report_chart_fixture.hpp"

#include "chart/report_chart.hpp"

#include <excel/axis_title.hpp>
#include <excel/tick_labels.hpp>

#include <bit>
#include <cmath>

namespace {

using AxesTest = ReportChartTest;

constexpr const char* PartlyAutomatic =
    "axisMinimum, axisMaximum, and axisUnit must either all be specified or all be automatic.";
constexpr double Auto = vos::AutomaticAxisScale;

TEST(AutomaticAxisScale, IsTheDoubleOfItsBits) {
    EXPECT_EQ(std::bit_cast<uint64_t>(vos::AutomaticAxisScale), 0x7E38216618B8C8B4u);
}

TEST_F(AxesTest, AFixedValueAxisIsFormattedTheReportWay) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    const auto axis = chart->AddValueYAxis("Loss", 0, 60.0, 10, "#,##0");
    EXPECT_TRUE(chart->Chart()->HasAxis(excel::xlValue));
    EXPECT_EQ(axis->Type(), excel::xlValue);
    EXPECT_EQ(axis->AxisGroup(), excel::xlPrimary);
    ASSERT_TRUE(axis->HasTitle());
    EXPECT_EQ(axis->AxisTitle()->Text(), "Loss");
    EXPECT_EQ(axis->AxisTitle()->Font()->Size().ToDouble(), 8.0);
    EXPECT_FALSE(axis->AxisTitle()->Font()->Bold().ToBool());
    EXPECT_EQ(axis->MajorTickMark(), excel::xlTickMarkOutside);
    EXPECT_EQ(axis->MinorTickMark(), excel::xlTickMarkNone);
    EXPECT_FALSE(axis->MinimumScaleIsAuto());
    EXPECT_EQ(axis->MinimumScale(), 0.0);
    EXPECT_EQ(axis->MaximumScale(), 60.0);
    EXPECT_EQ(axis->MajorUnit(), 10.0);
    EXPECT_EQ(axis->Crosses(), excel::xlAxisCrossesCustom);
    EXPECT_EQ(axis->CrossesAt(), -1E+300);
    EXPECT_FALSE(axis->TickLabels()->AutoScaleFont());
    EXPECT_EQ(axis->TickLabels()->Font()->Size().ToDouble(), 8.0);
    EXPECT_FALSE(axis->TickLabels()->Font()->Bold().ToBool());
    EXPECT_EQ(axis->TickLabels()->NumberFormat(), "#,##0");
    EXPECT_EQ(axis->ScaleType(), excel::xlScaleLinear);
    EXPECT_FALSE(axis->HasMajorGridlines());
}

TEST_F(AxesTest, AllThreeScaleValuesOmittedGiveAnAutomaticAxis) {
    const auto chart = ChartWithSeries(vos::VosChartLine);
    const auto axis = chart->AddValueYAxis();
    EXPECT_TRUE(axis->MinimumScaleIsAuto());
    EXPECT_TRUE(axis->MaximumScaleIsAuto());
    EXPECT_TRUE(axis->MajorUnitIsAuto());
    EXPECT_FALSE(axis->HasTitle());
    EXPECT_EQ(axis->TickLabels()->NumberFormat(), "General");
    EXPECT_EQ(axis->MaximumScale(), 60.0);  // Excel's own scale over 10 to 50
}

TEST_F(AxesTest, AScaleAboveTheDataIsKeptAsGiven) {
    // The data run from 10 to 50; Excel's own scale would end at 60, below the minimum given.
    const auto axis = ChartWithSeries(vos::VosChartColumn)->AddValueYAxis("", 100, 200.0, 20);
    EXPECT_EQ(axis->MinimumScale(), 100.0);
    EXPECT_EQ(axis->MaximumScale(), 200.0);
    EXPECT_EQ(axis->MajorUnit(), 20.0);
    const auto below = ChartWithSeries(vos::VosChartColumn)->AddValueYAxis("", -200, -100.0, 25);
    EXPECT_EQ(below->MinimumScale(), -200.0);
    EXPECT_EQ(below->MaximumScale(), -100.0);
}

TEST_F(AxesTest, EqualEndsAreAccepted) {
    const auto axis = ChartWithSeries(vos::VosChartXYMarkers)->AddValueYAxis("", 5, 5.0, 1);
    EXPECT_FALSE(axis->MinimumScaleIsAuto());
    EXPECT_EQ(axis->MinimumScale(), 5.0);
}

TEST_F(AxesTest, AScaleIsGivenWholeOrNotAtAll) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    ExpectAutomationError([&] { chart->AddValueYAxis("", 0); }, vos::error_code::InvalidArgument, PartlyAutomatic);
    ExpectAutomationError([&] { chart->AddValueYAxis("", 0, 10.0); }, vos::error_code::InvalidArgument,
                          PartlyAutomatic);
    ExpectAutomationError([&] { chart->AddValueYAxis("", Auto, Auto, 5); }, vos::error_code::InvalidArgument,
                          PartlyAutomatic);
    ExpectAutomationError([&] { chart->AddValueYAxis("", 10, 5.0, 0); }, vos::error_code::InvalidArgument,
                          "axisMaximum must be greater than axisMinimum.");
    ExpectAutomationError([&] { chart->AddValueYAxis("", 0, 10.0, 0); }, vos::error_code::OutOfRange, "axisUnit");
    ExpectAutomationError([&] { chart->AddValueYAxis("", 0, 10.0, -2); }, vos::error_code::OutOfRange, "axisUnit");
    ExpectAutomationError([&] { chart->AddValueYAxis("", 0, 10.0, std::nan("")); }, vos::error_code::OutOfRange,
                          "axisUnit");
    EXPECT_FALSE(chart->Chart()->HasAxis(excel::xlValue));  // no axis was made
}

TEST_F(AxesTest, ANumberNearTheSentinelIsNotAutomatic) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    const double near = std::nextafter(Auto, 0.0);
    ExpectAutomationError([&] { chart->AddValueYAxis("", near, Auto, Auto); }, vos::error_code::InvalidArgument,
                          PartlyAutomatic);
}

TEST_F(AxesTest, TheMaximumOfAYAxisIsConvertedFromAVariant) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    EXPECT_EQ(chart->AddValueYAxis("", 0, excel::Variant("80"), 20)->MaximumScale(), 80.0);
    EXPECT_EQ(chart->AddValueYAxis("", 0, excel::Variant(int16_t{90}), 30)->MaximumScale(), 90.0);
    ExpectFailureCode([&] { chart->AddValueYAxis("", 0, excel::Variant("lots"), 20); },
                      static_cast<int32_t>(0x800A000D));
}

TEST_F(AxesTest, AddingAnAxisTwiceLeavesOneFormattedByTheSecond) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    chart->AddValueYAxis("First", 0, 100.0, 25, "0.0");
    const auto axis = chart->AddValueYAxis("Second");
    EXPECT_EQ(chart->Chart()->Axes()->Count(), 1);
    EXPECT_EQ(axis->AxisTitle()->Text(), "Second");
    EXPECT_TRUE(axis->MaximumScaleIsAuto());
    EXPECT_EQ(axis->TickLabels()->NumberFormat(), "General");
}

TEST_F(AxesTest, AllAxisFontsAreLargerInChineseOnly) {
    for (const auto& [language, size] : {std::pair{4, 10.0}, std::pair{17, 8.0}, std::pair{9, 8.0}}) {
        UseChartLanguage(language);
        const auto chart = ChartWithSeries(vos::VosChartLine);
        const auto category = chart->AddCategoryXAxis("Month", At("K1:K5"));
        const auto value = chart->AddValueYAxis("Value");
        for (const auto& axis : {category, value}) {
            EXPECT_EQ(axis->AxisTitle()->Font()->Size().ToDouble(), size) << language;
            EXPECT_EQ(axis->TickLabels()->Font()->Size().ToDouble(), size) << language;
        }
    }
}

TEST_F(AxesTest, ALocalNumberFormatIsSetInTheUsersLocale) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    const auto local = chart->AddValueYAxis("", Auto, Auto, Auto, "[LOCAL]0,00");
    EXPECT_EQ(local->TickLabels()->NumberFormatLocal(), "0,00");
    const auto direct = chart->AddValueYAxis("", Auto, Auto, Auto, "0.00");
    EXPECT_EQ(direct->TickLabels()->NumberFormat(), "0.00");
}

TEST_F(AxesTest, TheCategoryAxisTakesNamesAndLowLabels) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    const auto axis = chart->AddCategoryXAxis("Month", At("K1:K5"));
    EXPECT_EQ(axis->Type(), excel::xlCategory);
    EXPECT_EQ(axis->AxisTitle()->Text(), "Month");
    EXPECT_EQ(axis->MajorTickMark(), excel::xlTickMarkNone);
    EXPECT_EQ(axis->MinorTickMark(), excel::xlTickMarkNone);
    EXPECT_EQ(axis->TickLabelPosition(), excel::xlTickLabelPositionLow);
    EXPECT_EQ(axis->TickLabels()->Orientation(), excel::xlAutomatic);
    EXPECT_EQ(axis->CategoryNames().Array().Get({2}).ToString(), "Label 2");
    EXPECT_EQ(SeriesOf(*chart, 1)->Formula(), "=SERIES(,Report!$K$1:$K$5,Report!$I$1:$I$5,1)");
    EXPECT_EQ(chart->AddCategoryXAxis("", nullptr, true)->TickLabels()->Orientation(), excel::xlUpward);
    EXPECT_FALSE(chart->Chart()->Axes(excel::xlCategory)->HasTitle());
}

TEST_F(AxesTest, EachAxisRefusesTheChartsItDoesNotSuit) {
    const auto xy = ChartWithSeries(vos::VosChartXYMarkers);
    const auto tornado = ChartWithSeries(vos::VosChartTornado);
    const auto column = ChartWithSeries(vos::VosChartColumn);
    const auto refused = [](auto&& call) {
        ExpectAutomationError(call, vos::error_code::NotAllowedNow, WrongAxisForType);
    };
    refused([&] { xy->AddCategoryXAxis(); });
    refused([&] { tornado->AddCategoryXAxis(); });
    refused([&] { column->AddValueXAxis(); });
    refused([&] { tornado->AddValueYAxis(); });
    refused([&] { tornado->AddSecondaryValueYAxis(); });
    EXPECT_FALSE(xy->Chart()->HasAxis(excel::xlCategory));
}

TEST_F(AxesTest, ChecksSeriesThenFamilyThenScale) {
    const auto empty = NewChart(vos::VosChartColumn);
    ExpectAutomationError([&] { empty->AddValueXAxis("", 0); }, vos::error_code::NotAllowedNow, NoDataSeries);
    ExpectAutomationError([&] { empty->AddCategoryXAxis(); }, vos::error_code::NotAllowedNow, NoDataSeries);
    ExpectAutomationError([&] { empty->AddSecondaryValueYAxis(); }, vos::error_code::NotAllowedNow, NoDataSeries);
    const auto column = ChartWithSeries(vos::VosChartColumn);
    ExpectAutomationError([&] { column->AddValueXAxis("", 0); }, vos::error_code::NotAllowedNow, WrongAxisForType);
}

TEST_F(AxesTest, AValueXAxisIsTheCategoryAxisOfAnXYChart) {
    const auto chart = ChartWithSeries(vos::VosChartXYMarkers);
    const auto axis = chart->AddValueXAxis("Year", 0, 6, 1, "0", false);
    EXPECT_EQ(axis->Type(), excel::xlCategory);
    EXPECT_EQ(axis->MaximumScale(), 6.0);
    EXPECT_EQ(axis->Crosses(), excel::xlAxisCrossesCustom);
    EXPECT_EQ(axis->TickLabels()->Orientation(), excel::xlAutomatic);
    EXPECT_EQ(axis->TickLabels()->NumberFormat(), "0");
}

TEST_F(AxesTest, ALineChartsCategoryAxisRefusesAValueScaleAsExcelDoes) {
    const auto chart = ChartWithSeries(vos::VosChartLine);
    ExpectAutomationError([&] { chart->AddValueXAxis("Year"); }, static_cast<int32_t>(0x800A03EC),
                          "Unable to set the MinimumScaleIsAuto property of the Axis class");
}

TEST_F(AxesTest, VerticalValueLabelsEndUpward) {
    const auto chart = ChartWithSeries(vos::VosChartXYMarkersAndLine);
    const auto plotHeight = chart->Chart()->PlotArea()->Height();
    const auto axis = chart->AddValueXAxis("Year");
    EXPECT_EQ(axis->TickLabels()->Orientation(), excel::xlUpward);
    EXPECT_LE(chart->Chart()->PlotArea()->Height(), plotHeight);
}

TEST_F(AxesTest, ATornadosValueAxisIsFittedToItsBars) {
    const auto chart = NewChart(vos::VosChartTornado);
    chart->AddTornadoData(2, excel::SafeArray::Doubles(std::vector<double>{-48, 3}),
                          excel::SafeArray::Doubles(std::vector<double>{12, 52}));
    const auto axis = chart->AddValueXAxis("Change");
    EXPECT_EQ(axis->Type(), excel::xlValue);
    // Round ticks with room beyond both ends of the bars.
    EXPECT_EQ(axis->MinimumScale(), -60.0);
    EXPECT_EQ(axis->MaximumScale(), 60.0);
    EXPECT_EQ(axis->MajorUnit(), 20.0);
    // A scale given is kept.
    EXPECT_EQ(chart->AddValueXAxis("", -100, 100, 50)->MajorUnit(), 50.0);
}

TEST_F(AxesTest, TheSecondaryAxisNeedsASeriesOnTheSecondaryGroup) {
    const auto chart = ChartWithSeries(vos::VosChartLineWithMarkers);
    ExpectFailureCode([&] { chart->AddSecondaryValueYAxis("Ratio"); }, static_cast<int32_t>(0x800A03EC));
    chart->AddLineData(At("J1:J5"))->SetAxisGroup(excel::xlSecondary);
    const auto axis = chart->AddSecondaryValueYAxis("Ratio", 0, 1.0, 0.25, "0%");
    EXPECT_EQ(axis->AxisGroup(), excel::xlSecondary);
    EXPECT_EQ(axis->MajorUnit(), 0.25);
    EXPECT_EQ(axis->TickLabels()->NumberFormat(), "0%");
    EXPECT_TRUE(chart->Chart()->HasAxis(excel::xlValue, excel::xlSecondary));
}

// The value axis formatter, as the axis members call it.
TEST_F(AxesTest, FormattingNeedsAnAxis) {
    vos::ReportChart chart;
    chart.InitializeChart(report, 9, vos::VosChartColumn, At("A1"), 300, 200);
    ExpectAutomationError([&] { chart.FormatValueAxis(nullptr, "", Auto, Auto, Auto, ""); },
                          vos::error_code::MissingObject, "theAxis");
}

}  // namespace
