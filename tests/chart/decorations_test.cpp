#include "chart/report_chart_fixture.hpp"

#include <algorithm>
#include <set>

namespace {

using DecorationsTest = ReportChartTest;

TEST_F(DecorationsTest, ResettingThePlotAreaLeavesOnlyTheData) {
    const auto chart = NewChart(vos::VosChartColumn);
    chart->Chart()->SeriesCollection()->NewSeries()->SetValues(At("I1:I5"));
    chart->Chart()->PlotArea()->Interior()->SetColor(255);
    chart->Chart()->SetHasTitle(true);
    ASSERT_TRUE(chart->Chart()->HasLegend());
    ASSERT_TRUE(chart->Chart()->Axes(excel::xlValue)->HasMajorGridlines());
    chart->ResetPlotArea();
    const auto excelChart = chart->Chart();
    EXPECT_NE(excelChart->PlotArea()->Interior()->Color().ToInt(), 255);
    EXPECT_FALSE(excelChart->HasAxis(excel::xlCategory));
    EXPECT_FALSE(excelChart->HasAxis(excel::xlValue));
    EXPECT_FALSE(excelChart->HasLegend());
    EXPECT_FALSE(excelChart->HasTitle());
    // Axes added back have no gridlines.
    excelChart->SetHasAxis(excel::xlValue, excel::xlPrimary, true);
    EXPECT_FALSE(excelChart->Axes(excel::xlValue)->HasMajorGridlines());
    EXPECT_FALSE(excelChart->Axes(excel::xlValue)->HasMinorGridlines());
}

TEST_F(DecorationsTest, ResettingTwiceSkipsWhatIsAlreadyGone) {
    const auto chart = ChartWithSeries(vos::VosChartXYMarkers);
    chart->ResetPlotArea();
    EXPECT_FALSE(chart->Chart()->HasAxis(excel::xlValue));
}

TEST_F(DecorationsTest, EveryDecorationNeedsASeries) {
    const auto chart = NewChart(vos::VosChartColumn);
    ExpectAutomationError([&] { chart->ResetPlotArea(); }, vos::error_code::NotAllowedNow, NoDataSeries);
    ExpectAutomationError([&] { chart->AddTitle(""); }, vos::error_code::NotAllowedNow, NoDataSeries);
    ExpectAutomationError([&] { chart->AddSubTitle(""); }, vos::error_code::NotAllowedNow, NoDataSeries);
    ExpectAutomationError([&] { chart->AddLegend(true); }, vos::error_code::NotAllowedNow, NoDataSeries);
    ExpectAutomationError([&] { chart->AddWatermark("Draft"); }, vos::error_code::NotAllowedNow, NoDataSeries);
    EXPECT_TRUE(chart->Chart()->HasLegend());
    EXPECT_EQ(chart->Chart()->Shapes()->Count(), 0);
}

TEST_F(DecorationsTest, TheTitleEndsInASpaceInBold) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    const auto title = chart->AddTitle("  Loss by region ");
    EXPECT_TRUE(chart->Chart()->HasTitle());
    EXPECT_EQ(title->Text(), "Loss by region ");
    EXPECT_FALSE(title->AutoScaleFont());
    EXPECT_EQ(title->Font()->Size().ToDouble(), 12.0);
    EXPECT_TRUE(title->Font()->Bold().ToBool());
}

TEST_F(DecorationsTest, TheTitleIsLargerInChinese) {
    UseChartLanguage(4);
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    EXPECT_EQ(chart->AddTitle("损失")->Font()->Size().ToDouble(), 14.0);
    const auto title = chart->AddSubTitle("按地区");
    EXPECT_EQ(title->Characters(1, 2)->Font()->Size().ToDouble(), 14.0);
    EXPECT_EQ(title->Characters(3, 5)->Font()->Size().ToDouble(), 10.0);
}

TEST_F(DecorationsTest, SubtitlesStackOneALineUnderTheTitle) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    chart->AddTitle("Losses");
    chart->AddSubTitle("Gross");
    const auto title = chart->AddSubTitle(" USD m ");
    EXPECT_EQ(title->Text(), "Losses\nGross\nUSD m ");
    const auto titleRun = title->Characters(1, 6)->Font();
    EXPECT_TRUE(titleRun->Bold().ToBool());
    EXPECT_EQ(titleRun->Size().ToDouble(), 12.0);
    for (const int32_t start : {7, 13}) {
        const auto subtitle = title->Characters(start, 6)->Font();
        EXPECT_FALSE(subtitle->Bold().ToBool()) << start;
        EXPECT_EQ(subtitle->Size().ToDouble(), 8.0) << start;
    }
}

TEST_F(DecorationsTest, ANewTitleReplacesTitleAndSubtitles) {
    const auto chart = ChartWithSeries(vos::VosChartLine);
    chart->AddTitle("Old");
    chart->AddSubTitle("Sub");
    EXPECT_EQ(chart->AddTitle("New")->Text(), "New ");
}

TEST_F(DecorationsTest, ASubtitleNeedsATitleAndAText) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    ExpectAutomationError([&] { chart->AddSubTitle("Sub"); }, vos::error_code::NotAllowedNow,
                          "The chart must have a ChartTitle to call this method.");
    EXPECT_FALSE(chart->Chart()->HasTitle());
    chart->AddTitle("Title");
    ExpectAutomationError([&] { chart->AddSubTitle("   "); }, vos::error_code::EmptyArgument, "titleText");
    EXPECT_EQ(chart->Chart()->ChartTitle()->Text(), "Title ");
    ExpectAutomationError([&] { chart->AddTitle(" "); }, vos::error_code::EmptyArgument, "titleText");
    EXPECT_EQ(chart->Chart()->ChartTitle()->Text(), "Title ");
}

TEST_F(DecorationsTest, ASubtitleUnderATitleWithoutTextStartsAfterASpace) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    chart->Chart()->SetHasTitle(true);
    chart->Chart()->ChartTitle()->SetText("");
    EXPECT_EQ(chart->AddSubTitle("Only")->Text(), "\nOnly ");
}

TEST_F(DecorationsTest, TheLegendStandsAtTheRightInSmallType) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    const auto legend = chart->AddLegend(false);
    EXPECT_TRUE(chart->Chart()->HasLegend());
    EXPECT_EQ(legend->Position(), excel::xlLegendPositionRight);
    EXPECT_FALSE(legend->AutoScaleFont());
    EXPECT_EQ(legend->Font()->Size().ToDouble(), 8.0);
    EXPECT_EQ(legend->Border()->LineStyle().ToInt(), excel::xlLineStyleNone);
}

TEST_F(DecorationsTest, AFramedLegendHasAThinGreyLine) {
    const auto chart = ChartWithSeries(vos::VosChartXYLine);
    const auto legend = chart->AddLegend(true);
    const auto frame = legend->Border();
    EXPECT_EQ(frame->LineStyle().ToInt(), excel::xlContinuous);
    EXPECT_EQ(frame->ColorIndex().ToInt(), 15);
    EXPECT_EQ(frame->Weight().ToInt(), excel::xlThin);
    // A second legend replaces the first, frame and all.
    EXPECT_EQ(chart->AddLegend(false)->Border()->LineStyle().ToInt(), excel::xlLineStyleNone);
}

TEST_F(DecorationsTest, TheLegendIsLargerInChinese) {
    UseChartLanguage(4);
    EXPECT_EQ(ChartWithSeries(vos::VosChartLine)->AddLegend(true)->Font()->Size().ToDouble(), 10.0);
}

// The names of the chart's shapes, in order.
std::vector<std::string> ShapeNames(vos::VosExcelChart& chart) {
    std::vector<std::string> names;
    const auto shapes = chart.Chart()->Shapes();
    for (int32_t i = 1; i <= shapes->Count(); ++i)
        names.push_back(shapes->Item(i)->Name());
    return names;
}

TEST_F(DecorationsTest, AWatermarkIsFiveGreyBoxesOfOneRandomName) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    chart->AddWatermark(" Draft ");
    const std::vector<std::string> names = ShapeNames(*chart);
    ASSERT_EQ(names.size(), 5u);
    const std::string base = names[0].substr(0, names[0].find(' '));
    ASSERT_EQ(base.rfind("gwm_", 0), 0u);
    const int number = std::stoi(base.substr(4));
    EXPECT_GE(number, 100);
    EXPECT_LE(number, 32767);
    for (size_t i = 0; i < 5; ++i)
        EXPECT_EQ(names[i], base + std::string(10 - i, ' ')) << i;

    const auto area = chart->Chart()->ChartArea();
    for (int32_t i = 1; i <= 5; ++i) {
        const auto box = chart->Chart()->Shapes()->Item(i);
        EXPECT_EQ(box->TextFrame()->Characters()->Text(), "Draft");
        EXPECT_DOUBLE_EQ(box->Left(), static_cast<float>(area->Left() + 20));
        EXPECT_DOUBLE_EQ(box->Top(), static_cast<float>(area->Height() * 0.5 - 25));
        EXPECT_DOUBLE_EQ(box->Width(), static_cast<float>(area->Width() - 40));
        EXPECT_DOUBLE_EQ(box->Height(), 50.0);
        EXPECT_EQ(box->Placement(), excel::xlMoveAndSize);
        EXPECT_EQ(box->OnAction(), "objClick");
        const auto font = box->TextFrame()->Characters()->Font();
        EXPECT_EQ(font->Name().ToString(), "Arial");
        EXPECT_EQ(font->FontStyle().ToString(), "Regular");
        EXPECT_EQ(font->Size().ToDouble(), 14.0);
        EXPECT_EQ(font->Color().ToInt(), 12632256);
        EXPECT_EQ(box->TextFrame()->HorizontalAlignment(), excel::xlCenter);
        EXPECT_EQ(box->TextFrame()->VerticalAlignment(), excel::xlCenter);
        EXPECT_FALSE(box->TextFrame()->AutoSize());
    }
}

TEST_F(DecorationsTest, AWatermarksSecondLineIsSmaller) {
    const auto chart = ChartWithSeries(vos::VosChartLine);
    chart->AddWatermark("Draft", " not final ", "ShowSource");
    const auto box = chart->Chart()->Shapes()->Item(1);
    EXPECT_EQ(box->TextFrame()->Characters()->Text(), "Draft\nnot final");
    EXPECT_EQ(box->TextFrame()->Characters(1, 5)->Font()->Size().ToDouble(), 14.0);
    EXPECT_EQ(box->TextFrame()->Characters(7, 9)->Font()->Size().ToDouble(), 10.0);
    EXPECT_EQ(box->OnAction(), "ShowSource");
}

TEST_F(DecorationsTest, AWatermarkSplitsItsTextAtTheFirstLineFeed) {
    const auto chart = ChartWithSeries(vos::VosChartXYMarkers);
    chart->AddWatermark("A\nB");
    const auto frame = chart->Chart()->Shapes()->Item(5)->TextFrame();
    EXPECT_EQ(frame->Characters()->Text(), "A\nB");
    EXPECT_EQ(frame->Characters(1, 1)->Font()->Size().ToDouble(), 14.0);
    EXPECT_EQ(frame->Characters(3, 1)->Font()->Size().ToDouble(), 10.0);
}

TEST_F(DecorationsTest, AWatermarkWithASecondaryTextKeepsLineFeedsInThePrimary) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    chart->AddWatermark("A\nB", "C");
    const auto frame = chart->Chart()->Shapes()->Item(1)->TextFrame();
    EXPECT_EQ(frame->Characters()->Text(), "A\nB\nC");
    EXPECT_EQ(frame->Characters(3, 1)->Font()->Size().ToDouble(), 14.0);
    EXPECT_EQ(frame->Characters(5, 1)->Font()->Size().ToDouble(), 10.0);
}

TEST_F(DecorationsTest, AWatermarkNeedsAPrimaryText) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    ExpectAutomationError([&] { chart->AddWatermark("   "); }, vos::error_code::EmptyArgument, "primaryText");
    ExpectAutomationError([&] { chart->AddWatermark("  ", "secondary"); }, vos::error_code::EmptyArgument,
                          "primaryText");
    EXPECT_EQ(chart->Chart()->Shapes()->Count(), 0);
}

TEST_F(DecorationsTest, EachWatermarkAddsFiveMoreBoxes) {
    const auto chart = ChartWithSeries(vos::VosChartColumn);
    chart->AddWatermark("One");
    chart->AddWatermark("Two");
    const std::vector<std::string> names = ShapeNames(*chart);
    ASSERT_EQ(names.size(), 10u);
    EXPECT_EQ(std::set<std::string>(names.begin(), names.begin() + 5).size(), 5u);
    EXPECT_EQ(chart->Chart()->Shapes()->Item(6)->TextFrame()->Characters()->Text(), "Two");
}

}  // namespace
