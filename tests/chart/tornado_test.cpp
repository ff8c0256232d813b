#include "chart/report_chart_fixture.hpp"

#include "chart/tornado_pieces.hpp"

#include <excel/interior.hpp>

namespace {

using TornadoTest = ReportChartTest;

excel::SafeArray Numbers(const std::vector<double>& values, int32_t lowerBound = 1) {
    return excel::SafeArray::Doubles(values, lowerBound);
}

std::vector<double> ValuesOf(const std::shared_ptr<excel::Series>& series) {
    std::vector<double> values;
    const excel::Variant held = series->Values();
    for (const excel::Variant& value : held.Array().Elements())
        values.push_back(value.ToDouble());
    return values;
}

TEST(TornadoPieces, StackEachBarFromItsInvisibleBase) {
    const vos::TornadoPieces pieces = vos::TornadoPiecesOf({-5, 2, -7, 0, -3}, {3, 7, -2, 4, 0});
    EXPECT_EQ(pieces.zero, (std::vector<double>{0, 0, 0, 0, 0}));
    EXPECT_EQ(pieces.base, (std::vector<double>{0, 2, -2, 0, 0}));
    EXPECT_EQ(pieces.negative, (std::vector<double>{-5, 0, -5, 0, -3}));
    EXPECT_EQ(pieces.positive, (std::vector<double>{3, 5, 0, 4, 0}));
}

TEST_F(TornadoTest, BuildsFourSeriesTheFirstAllZeros) {
    const auto chart = NewChart(vos::VosChartTornado);
    chart->AddTornadoData(3, Numbers({-5, 2, -7}), Numbers({3, 7, -2}));
    ASSERT_EQ(SeriesCount(*chart), 4);
    EXPECT_EQ(ValuesOf(SeriesOf(*chart, 1)), (std::vector<double>{0, 0, 0}));
    EXPECT_EQ(ValuesOf(SeriesOf(*chart, 2)), (std::vector<double>{0, 2, -2}));
    EXPECT_EQ(ValuesOf(SeriesOf(*chart, 3)), (std::vector<double>{-5, 0, -5}));
    EXPECT_EQ(ValuesOf(SeriesOf(*chart, 4)), (std::vector<double>{3, 5, 0}));
    for (int32_t i = 1; i <= 4; ++i) {
        const auto series = SeriesOf(*chart, i);
        EXPECT_EQ(series->Name(), "Series" + std::to_string(i));
        EXPECT_EQ(series->Border()->LineStyle().ToInt(), excel::xlLineStyleNone) << i;
        if (i <= 2)
            EXPECT_EQ(series->Interior()->ColorIndex().ToInt(), excel::xlColorIndexNone) << i;
        else
            EXPECT_EQ(series->Interior()->Color().ToInt(), 10040115) << i;
    }
}

TEST_F(TornadoTest, PutsBarOneAtTheTopWithTheValueAxisBelow) {
    const auto chart = NewChart(vos::VosChartTornado);
    chart->AddTornadoData(1, Numbers({1}), Numbers({2}));
    EXPECT_FALSE(chart->Chart()->HasLegend());
    EXPECT_FALSE(chart->Chart()->HasAxis(excel::xlValue));
    ASSERT_TRUE(chart->Chart()->HasAxis(excel::xlCategory));
    const auto bars = chart->Chart()->Axes(excel::xlCategory);
    EXPECT_TRUE(bars->ReversePlotOrder());
    EXPECT_EQ(bars->Crosses(), excel::xlAxisCrossesMaximum);
}

TEST_F(TornadoTest, FewerBarsStandWiderApart) {
    const std::pair<int16_t, int32_t> gaps[] = {{1, 150}, {2, 100}, {3, 50}, {4, 30}, {5, 20}, {32, 20}};
    for (const auto& [bars, gap] : gaps) {
        const auto chart = NewChart(vos::VosChartTornado);
        chart->AddTornadoData(bars, Numbers(std::vector<double>(bars, 1.0)), Numbers(std::vector<double>(bars, 2.0)));
        EXPECT_EQ(chart->Chart()->ChartGroups(1)->GapWidth(), gap) << bars;
    }
}

TEST_F(TornadoTest, AcceptsOneToThirtyTwoBars) {
    const auto chart = NewChart(vos::VosChartTornado);
    for (const int16_t bars : {int16_t{0}, int16_t{33}, int16_t{-1}})
        ExpectAutomationError([&] { chart->AddTornadoData(bars, Numbers({1}), Numbers({2})); },
                              vos::error_code::OutOfRange, "numBars");
    EXPECT_EQ(SeriesCount(*chart), 0);
    chart->AddTornadoData(32, Numbers(std::vector<double>(32, -1.0)), Numbers(std::vector<double>(32, 1.0)));
    EXPECT_EQ(SeriesOf(*chart, 4)->Values().Array().ElementCount(), 32u);
}

TEST_F(TornadoTest, AcceptsABarWhoseEndsAreEqual) {
    const auto chart = NewChart(vos::VosChartTornado);
    chart->AddTornadoData(2, Numbers({4, -1}), Numbers({4, 1}));
    EXPECT_EQ(ValuesOf(SeriesOf(*chart, 2)), (std::vector<double>{4, 0}));
    EXPECT_EQ(ValuesOf(SeriesOf(*chart, 4)), (std::vector<double>{0, 1}));
}

TEST_F(TornadoTest, RefusesAMaximumBelowItsMinimum) {
    const auto chart = NewChart(vos::VosChartTornado);
    ExpectAutomationError(
        [&] {
            chart->AddTornadoData(2, Numbers({1, 5}), Numbers({2, 4.999}));
        },
        vos::error_code::InvalidArgument, "maxValue must be greater than minValue.");
    EXPECT_EQ(SeriesCount(*chart), 0);
}

TEST_F(TornadoTest, ChecksTheMinimumsBeforeTheMaximumsAndSizeBeforeLowerBound) {
    const auto chart = NewChart(vos::VosChartTornado);
    const excel::SafeArray unallocated(excel::VarType::Double, {});
    const excel::SafeArray matrix = excel::SafeArray::Matrix(excel::VarType::Double, 1, 2);
    const auto expect = [&](const excel::SafeArray& minimums, const excel::SafeArray& maximums,
                            const std::string& text) {
        ExpectAutomationError([&] { chart->AddTornadoData(2, minimums, maximums); }, vos::error_code::InvalidArgument,
                              text);
    };
    expect(unallocated, unallocated, "minValues is empty.");
    expect(matrix, unallocated, "minValue has the wrong number of dimensions.");
    expect(Numbers({1, 2, 3}), unallocated, "minValue array does not have the correct size.");
    expect(Numbers({1, 2, 3}, 0), unallocated, "minValue array does not have the correct size.");
    expect(Numbers({1, 2}, 0), unallocated, "minValues array must have a lower bound of 1.");
    expect(Numbers({1, 2}), unallocated, "maxValues is empty.");
    expect(Numbers({1, 2}), matrix, "maxValue has the wrong number of dimensions.");
    expect(Numbers({1, 2}), Numbers({3}), "maxValue array does not have the correct size.");
    expect(Numbers({1, 2}), Numbers({3, 4}, 2), "maxValues array must have a lower bound of 1.");
    EXPECT_EQ(SeriesCount(*chart), 0);
}

TEST_F(TornadoTest, TakesItsDataOnceAndOnlyOnATornado) {
    const auto column = NewChart(vos::VosChartColumn);
    ExpectAutomationError([&] { column->AddTornadoData(0, Numbers({}), Numbers({})); }, vos::error_code::NotAllowedNow,
                          WrongDataForType);
    const auto chart = NewChart(vos::VosChartTornado);
    chart->AddTornadoData(1, Numbers({1}), Numbers({2}));
    ExpectAutomationError([&] { chart->AddTornadoData(0, Numbers({}), Numbers({})); }, vos::error_code::NotAllowedNow,
                          "Chart already has a data series.");
    EXPECT_EQ(SeriesCount(*chart), 4);
    // The other data members refuse a tornado too.
    ExpectAutomationError([&] { chart->AddColumnData(At("I1:I5")); }, vos::error_code::NotAllowedNow, WrongDataForType);
}

TEST_F(TornadoTest, LabelsTheBarsAtTheLeftEdge) {
    const auto chart = NewChart(vos::VosChartTornado);
    chart->AddTornadoData(3, Numbers({-1, -2, -3}), Numbers({1, 2, 3}));
    const auto axis = chart->AddTornadoYAxis(At("K1:K3"));
    EXPECT_EQ(axis->Type(), excel::xlCategory);
    EXPECT_TRUE(axis->ReversePlotOrder());  // a deleted axis keeps its scale when it comes back
    EXPECT_EQ(axis->MajorTickMark(), excel::xlTickMarkNone);
    EXPECT_EQ(axis->MinorTickMark(), excel::xlTickMarkNone);
    EXPECT_EQ(axis->TickLabelPosition(), excel::xlTickLabelPositionLow);
    EXPECT_EQ(axis->TickLabels()->Orientation(), excel::xlHorizontal);
    EXPECT_FALSE(axis->TickLabels()->AutoScaleFont());
    EXPECT_EQ(axis->TickLabels()->Font()->Size().ToDouble(), 8.0);
    const excel::Variant names = axis->CategoryNames();
    EXPECT_EQ(names.Array().Get({1}).ToString(), "Label 1");
    EXPECT_EQ(names.Array().Get({3}).ToString(), "Label 3");
    EXPECT_EQ(SeriesOf(*chart, 4)->Formula(), "=SERIES(,Report!$K$1:$K$3,{1,2,3},4)");
}

TEST_F(TornadoTest, LabelsAreLargerInChinese) {
    UseChartLanguage(4);
    const auto chart = NewChart(vos::VosChartTornado);
    chart->AddTornadoData(1, Numbers({-1}), Numbers({1}));
    EXPECT_EQ(chart->AddTornadoYAxis(At("K1"))->TickLabels()->Font()->Size().ToDouble(), 10.0);
}

TEST_F(TornadoTest, LabelsCanBeReplaced) {
    const auto chart = NewChart(vos::VosChartTornado);
    chart->AddTornadoData(2, Numbers({-1, -2}), Numbers({1, 2}));
    chart->AddTornadoYAxis(At("K1:K2"));
    const auto axis = chart->AddTornadoYAxis(At("K4:K5"));
    EXPECT_EQ(axis->CategoryNames().Array().Get({1}).ToString(), "Label 4");
    EXPECT_EQ(chart->Chart()->Axes()->Count(), 1);
}

TEST_F(TornadoTest, TheLabelAxisNeedsBarsATornadoAndARange) {
    const auto chart = NewChart(vos::VosChartTornado);
    ExpectAutomationError([&] { chart->AddTornadoYAxis(nullptr); }, vos::error_code::NotAllowedNow, NoDataSeries);
    const auto line = ChartWithSeries(vos::VosChartLine);
    ExpectAutomationError([&] { line->AddTornadoYAxis(nullptr); }, vos::error_code::NotAllowedNow, WrongAxisForType);
    chart->AddTornadoData(1, Numbers({1}), Numbers({2}));
    ExpectAutomationError([&] { chart->AddTornadoYAxis(nullptr); }, vos::error_code::MissingObject, "barLabelRange");
    EXPECT_TRUE(chart->Chart()->Axes(excel::xlCategory)->ReversePlotOrder());  // the axis was not replaced
}

}  // namespace
