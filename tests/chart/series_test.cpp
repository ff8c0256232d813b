#include "chart/report_chart_fixture.hpp"

#include "chart/report_chart.hpp"

#include <excel/chart_fill_format.hpp>

namespace {

using SeriesTest = ReportChartTest;

constexpr int32_t FirstColor = 10040115;

TEST_F(SeriesTest, AColumnSeriesTakesItsRangeNameAndGradient) {
    const auto chart = NewChart(vos::VosChartColumn);
    const auto series = chart->AddColumnData(At("I1:I5"), "North");
    EXPECT_EQ(series->Name(), "North");
    EXPECT_EQ(series->Formula(), "=SERIES(\"North\",,Report!$I$1:$I$5,1)");
    EXPECT_EQ(series->Interior()->Color().ToInt(), FirstColor);
    const auto fill = series->Fill();
    EXPECT_EQ(fill->Type(), excel::msoFillGradient);
    EXPECT_EQ(fill->GradientStyle(), excel::msoGradientDiagonalDown);
    EXPECT_EQ(fill->GradientVariant(), 1);
    EXPECT_DOUBLE_EQ(fill->GradientDegree(), 0.231372549019608);
    EXPECT_EQ(fill->ForeColor()->RGB(), FirstColor);
}

TEST_F(SeriesTest, AnUnnamedSeriesKeepsExcelsName) {
    const auto chart = NewChart(vos::VosChartLine);
    EXPECT_EQ(chart->AddLineData(At("I1:I5"))->Name(), "Series1");
    EXPECT_EQ(chart->AddLineData(At("J1:J5"), "")->Name(), "Series2");
}

TEST_F(SeriesTest, ASingleCellIsARowAndAColumn) {
    const auto column = NewChart(vos::VosChartColumn);
    EXPECT_EQ(column->AddColumnData(At("I2"))->Formula(), "=SERIES(,,Report!$I$2,1)");
    const auto xy = NewChart(vos::VosChartXYMarkers);
    EXPECT_EQ(xy->AddXYData(At("H2"), At("I2"))->Formula(), "=SERIES(,Report!$H$2,Report!$I$2,1)");
}

TEST_F(SeriesTest, TheFirstColumnSeriesSetsGapAndOverlapAndTheSecondLeavesThem) {
    const auto chart = NewChart(vos::VosChartColumn);
    chart->AddColumnData(At("I1:I5"));
    const auto columns = chart->Chart()->ChartGroups(1);
    EXPECT_EQ(columns->GapWidth(), 75);
    EXPECT_EQ(columns->Overlap(), 10);
    columns->SetGapWidth(200);
    columns->SetOverlap(-20);
    chart->AddColumnData(At("J1:J5"));
    EXPECT_EQ(columns->GapWidth(), 200);
    EXPECT_EQ(columns->Overlap(), -20);
    EXPECT_EQ(SeriesOf(*chart, 2)->Interior()->Color().ToInt(), 6697881);
}

TEST_F(SeriesTest, TheFirstSeriesClearsAxesLegendAndTitleAndLaterOnesDoNot) {
    const auto chart = NewChart(vos::VosChartLine);
    chart->AddLineData(At("I1:I5"));
    EXPECT_FALSE(chart->Chart()->HasLegend());
    EXPECT_FALSE(chart->Chart()->HasAxis(excel::xlValue));
    chart->AddLegend(false);
    chart->AddLineData(At("J1:J5"));
    EXPECT_TRUE(chart->Chart()->HasLegend());
}

TEST_F(SeriesTest, ARangeOfRowsAndColumnsIsRefused) {
    const auto chart = NewChart(vos::VosChartColumn);
    ExpectAutomationError([&] { chart->AddColumnData(At("H1:J2")); }, vos::error_code::InvalidArgument,
                          "sourceDataRange must be a single Excel row or column.");
    const auto lines = NewChart(vos::VosChartLine);
    ExpectAutomationError([&] { lines->AddLineData(At("H1:J2")); }, vos::error_code::InvalidArgument,
                          "sourceDataRange must be a single Excel row or column.");
    EXPECT_EQ(SeriesCount(*chart) + SeriesCount(*lines), 0);
    EXPECT_TRUE(chart->Chart()->HasLegend());  // nothing was reset either
}

TEST_F(SeriesTest, SeveralAreasAreRefusedBeforeTheirShapeIsLookedAt) {
    const auto cells = app->Union(At("H1"), At("J2"));
    const auto chart = NewChart(vos::VosChartColumn);
    ExpectAutomationError([&] { chart->AddColumnData(cells); }, vos::error_code::InvalidArgument,
                          "sourceDataRange can not have multiple areas.");
    const auto lines = NewChart(vos::VosChartLine);
    ExpectAutomationError([&] { lines->AddLineData(app->Union(At("H1:J2"), At("K5"))); },
                          vos::error_code::InvalidArgument, "sourceDataRange must have a single area.");
    EXPECT_EQ(SeriesCount(*chart) + SeriesCount(*lines), 0);
}

TEST_F(SeriesTest, TheChartFamilyIsCheckedBeforeTheRange) {
    const auto xy = NewChart(vos::VosChartXYLine);
    ExpectAutomationError([&] { xy->AddColumnData(nullptr); }, vos::error_code::NotAllowedNow, WrongDataForType);
    ExpectAutomationError([&] { xy->AddLineData(nullptr); }, vos::error_code::NotAllowedNow, WrongDataForType);
    const auto column = NewChart(vos::VosChartColumn);
    ExpectAutomationError([&] { column->AddXYData(nullptr, nullptr); }, vos::error_code::NotAllowedNow,
                          WrongDataForType);
    ExpectAutomationError([&] { column->AddColumnData(nullptr); }, vos::error_code::MissingObject, "sourceDataRange");
    const auto line = NewChart(vos::VosChartLineWithMarkers);
    ExpectAutomationError([&] { line->AddLineData(nullptr); }, vos::error_code::MissingObject, "sourceDataRange");
}

TEST_F(SeriesTest, XYRangesAreCheckedXFirstThenY) {
    const auto chart = NewChart(vos::VosChartXYMarkers);
    const auto split = app->Union(At("H1"), At("H3"));
    ExpectAutomationError([&] { chart->AddXYData(nullptr, nullptr); }, vos::error_code::MissingObject, "xDataRange");
    ExpectAutomationError([&] { chart->AddXYData(At("H1:H5"), nullptr); }, vos::error_code::MissingObject,
                          "yDataRange");
    ExpectAutomationError([&] { chart->AddXYData(split, split); }, vos::error_code::InvalidArgument,
                          "xDataRange must have a single area.");
    ExpectAutomationError([&] { chart->AddXYData(At("H1:H5"), split); }, vos::error_code::InvalidArgument,
                          "yDataRange must have a single area.");
    ExpectAutomationError([&] { chart->AddXYData(At("H1:I5"), split); }, vos::error_code::InvalidArgument,
                          "yDataRange must have a single area.");
    ExpectAutomationError([&] { chart->AddXYData(At("H1:I5"), At("H1:I5")); }, vos::error_code::InvalidArgument,
                          "xDataRange must be a single Excel row or column.");
    ExpectAutomationError([&] { chart->AddXYData(At("H1:H5"), At("H1:I5")); }, vos::error_code::InvalidArgument,
                          "yDataRange must be a single Excel row or column.");
    EXPECT_EQ(SeriesCount(*chart), 0);
}

TEST_F(SeriesTest, XAndYMustHaveOneSizeAndOrientation) {
    const auto chart = NewChart(vos::VosChartXYMarkers);
    ExpectAutomationError([&] { chart->AddXYData(At("A1:A5"), At("B1:F1")); }, vos::error_code::InvalidArgument,
                          "The x and y data ranges must be the same size.");
    ExpectAutomationError([&] { chart->AddXYData(At("H1:H5"), At("I1:I4")); }, vos::error_code::InvalidArgument,
                          "The x and y data ranges must be the same size.");
    EXPECT_EQ(SeriesCount(*chart), 0);
    EXPECT_EQ(chart->AddXYData(At("A1:E1"), At("A2:E2"), "Row")->Formula(),
              "=SERIES(\"Row\",Report!$A$1:$E$1,Report!$A$2:$E$2,1)");
}

TEST_F(SeriesTest, XYMarkersAreUnjoinedAndColouredBySeriesNumber) {
    const auto chart = NewChart(vos::VosChartXYMarkers);
    for (int32_t i = 1; i <= 10; ++i)
        chart->AddXYData(At("H1:H5"), At("I1:I5"));
    const int32_t styles[] = {excel::xlMarkerStyleDiamond, excel::xlMarkerStyleTriangle, excel::xlMarkerStyleSquare,
                              excel::xlMarkerStyleCircle, excel::xlMarkerStyleStar};
    for (int32_t i = 1; i <= 10; ++i) {
        const auto series = SeriesOf(*chart, i);
        const int32_t color = chart->DefaultSeriesColor(static_cast<int16_t>(i));
        EXPECT_EQ(series->MarkerStyle(), styles[(i - 1) % 5]) << i;
        EXPECT_EQ(series->MarkerSize(), 5);
        EXPECT_EQ(series->Border()->LineStyle().ToInt(), excel::xlLineStyleNone) << i;
        // Series 6 to 9 are outlined in black; the rest in their own colour.
        EXPECT_EQ(series->MarkerForegroundColor(), (i >= 6 && i <= 9) ? 0 : color) << i;
        if (i % 5 == 0)
            EXPECT_EQ(series->MarkerBackgroundColorIndex(), excel::xlColorIndexNone) << i;  // stars stay open
        else
            EXPECT_EQ(series->MarkerBackgroundColor(), color) << i;
    }
}

TEST_F(SeriesTest, TheBlackOutlineIsForSeriesSixToNineOnly) {
    const auto chart = NewChart(vos::VosChartLineWithMarkers);
    for (int32_t i = 1; i <= 24; ++i)
        chart->AddLineData(At("I1:I5"));
    EXPECT_EQ(SeriesOf(*chart, 21)->MarkerForegroundColor(), chart->DefaultSeriesColor(21));
    EXPECT_EQ(SeriesOf(*chart, 24)->MarkerForegroundColor(), chart->DefaultSeriesColor(24));
    EXPECT_EQ(SeriesOf(*chart, 9)->MarkerForegroundColor(), 0);
}

TEST_F(SeriesTest, XYLinesHaveMediumLinesInTheSeriesColour) {
    const auto lines = NewChart(vos::VosChartXYLine);
    const auto line = lines->AddXYData(At("H1:H5"), At("I1:I5"));
    EXPECT_EQ(line->MarkerStyle(), excel::xlMarkerStyleNone);
    EXPECT_EQ(line->Border()->Color().ToInt(), FirstColor);
    EXPECT_EQ(line->Border()->Weight().ToInt(), excel::xlMedium);
    EXPECT_EQ(line->Border()->LineStyle().ToInt(), excel::xlContinuous);

    const auto both = NewChart(vos::VosChartXYMarkersAndLine);
    both->AddXYData(At("H1:H5"), At("I1:I5"));
    const auto second = both->AddXYData(At("H1:H5"), At("J1:J5"));
    EXPECT_EQ(second->MarkerStyle(), excel::xlMarkerStyleTriangle);
    EXPECT_EQ(second->Border()->Color().ToInt(), 6697881);
    EXPECT_EQ(second->Border()->LineStyle().ToInt(), excel::xlContinuous);
}

TEST_F(SeriesTest, LineSeriesHaveMediumLinesAndMarkersOnlyWhenAsked) {
    const auto plain = NewChart(vos::VosChartLine);
    const auto line = plain->AddLineData(At("I1:I5"));
    EXPECT_EQ(line->MarkerStyle(), excel::xlMarkerStyleNone);
    EXPECT_EQ(line->Border()->Color().ToInt(), FirstColor);
    EXPECT_EQ(line->Border()->Weight().ToInt(), excel::xlMedium);
    const auto marked = NewChart(vos::VosChartLineWithMarkers)->AddLineData(At("I1:I5"));
    EXPECT_EQ(marked->MarkerStyle(), excel::xlMarkerStyleDiamond);
    EXPECT_EQ(marked->MarkerBackgroundColor(), FirstColor);
}

TEST_F(SeriesTest, DefaultSeriesColorsRepeatEveryFifteen) {
    const auto chart = NewChart(vos::VosChartColumn);
    const int32_t colors[] = {10040115, 6697881, 6723891, 52479,    16711680, 52377,   13395456, 8421504,
                              0,        32896,   255,     16764057, 8388736,  8421376, 16711935};
    for (int16_t i = 1; i <= 15; ++i)
        EXPECT_EQ(chart->DefaultSeriesColor(i), colors[i - 1]) << i;
    EXPECT_EQ(chart->DefaultSeriesColor(15), 16711935);
    EXPECT_EQ(chart->DefaultSeriesColor(16), chart->DefaultSeriesColor(1));
    EXPECT_EQ(chart->DefaultSeriesColor(32767), chart->DefaultSeriesColor(7));
    ExpectAutomationError([&] { chart->DefaultSeriesColor(0); }, vos::error_code::OutOfRange, "formattingIndex");
    ExpectAutomationError([&] { chart->DefaultSeriesColor(-3); }, vos::error_code::OutOfRange, "formattingIndex");
}

// The formatter behind every series, as the report library's own members call it.
class FormatSeriesTest : public ReportChartTest {
protected:
    std::shared_ptr<vos::ReportChart> NewReportChart(vos::VosChartType type) {
        auto chart = std::make_shared<vos::ReportChart>();
        chart->InitializeChart(report, 9, type, At("A1"), 300, 200);
        return chart;
    }
};

TEST_F(FormatSeriesTest, RefusesCustomChartsMissingSeriesAndIndexesOutsideTheSeries) {
    const auto custom = NewReportChart(vos::VosChartCustom);
    ExpectAutomationError([&] { custom->FormatSeries(nullptr, 0); }, vos::error_code::NotAllowedNow,
                          "Method can not be used with custom graph types.");
    const auto chart = NewReportChart(vos::VosChartColumn);
    chart->AddColumnData(At("I1:I5"));
    const auto series = SeriesOf(*chart, 1);
    ExpectAutomationError([&] { chart->FormatSeries(nullptr, 0); }, vos::error_code::MissingObject, "theSeries");
    ExpectAutomationError([&] { chart->FormatSeries(series, 0); }, vos::error_code::OutOfRange, "formattingIndex");
    ExpectAutomationError([&] { chart->FormatSeries(series, 2); }, vos::error_code::OutOfRange, "formattingIndex");
    EXPECT_EQ(series->Interior()->Color().ToInt(), FirstColor);  // left as it was
}

TEST_F(FormatSeriesTest, ClearsWhatWasThereBeforeFormatting) {
    const auto chart = NewReportChart(vos::VosChartLine);
    const auto series = chart->AddLineData(At("I1:I5"));
    series->SetMarkerStyle(excel::xlMarkerStyleCircle);
    series->Border()->SetColor(255);
    chart->FormatSeries(series, 1);
    EXPECT_EQ(series->MarkerStyle(), excel::xlMarkerStyleNone);
    EXPECT_EQ(series->Border()->Color().ToInt(), FirstColor);
}

TEST_F(FormatSeriesTest, MarkersNeedASeriesAndAPositiveIndex) {
    const auto chart = NewReportChart(vos::VosChartXYMarkers);
    const auto series = chart->AddXYData(At("H1:H5"), At("I1:I5"));
    ExpectAutomationError([&] { chart->FormatSeriesMarkers(nullptr, 1); }, vos::error_code::MissingObject, "theSeries");
    ExpectAutomationError([&] { chart->FormatSeriesMarkers(series, 0); }, vos::error_code::OutOfRange,
                          "formattingIndex");
    chart->FormatSeriesMarkers(series, 40);  // no upper bound: the fifth shape, the tenth colour
    EXPECT_EQ(series->MarkerStyle(), excel::xlMarkerStyleStar);
    EXPECT_EQ(series->MarkerForegroundColor(), 32896);
}

}  // namespace
