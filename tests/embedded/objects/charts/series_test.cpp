#include "embedded/objects/charts/chart_fixture.hpp"

using namespace excel;

namespace {

using SeriesTest = ChartTest;

constexpr int32_t Accent1 = RgbLong(0x4472C4);
constexpr int32_t Accent2 = RgbLong(0xED7D31);

std::vector<double> Numbers(const Variant& values) {
    std::vector<double> numbers;
    for (const Variant& element : values.Array().Elements()) {
        numbers.push_back(element.IsEmpty() ? -1 : element.ToDouble());
    }
    return numbers;
}

TEST_F(SeriesTest, ValuesComeFromARangeAndFollowItsCells) {
    auto chart = AddChart();
    auto series = AddSeries(chart, "B2:B5");
    EXPECT_EQ(chart->SeriesCollection()->Count(), 1);
    EXPECT_EQ(Numbers(series->Values()), (std::vector<double>{20, 30, 40, 50}));
    EXPECT_EQ(series->Values().Array().LowerBound(), 1);
    At("B3")->SetValue(Variant(7.0));
    EXPECT_EQ(Numbers(series->Values()), (std::vector<double>{20, 7, 40, 50}));
    EXPECT_EQ(series->Formula(), "=SERIES(,,Sheet1!$B$2:$B$5,1)");
}

TEST_F(SeriesTest, ValuesTakeArraysAndExcelsTextForms) {
    auto chart = AddChart();
    auto series = chart->SeriesCollection()->NewSeries();
    series->SetValues(Variant(std::vector<double>{1.5, 2, 3}));
    EXPECT_EQ(Numbers(series->Values()), (std::vector<double>{1.5, 2, 3}));
    series->SetValues(Variant("={4,5}"));
    EXPECT_EQ(Numbers(series->Values()), (std::vector<double>{4, 5}));
    series->SetValues(Variant("6,7.25,-8E+2"));
    EXPECT_EQ(Numbers(series->Values()), (std::vector<double>{6, 7.25, -800}));
    series->SetValues(Variant("=Sheet1!$C$2:$C$3"));
    EXPECT_EQ(Numbers(series->Values()), (std::vector<double>{6, 9}));
    EXPECT_EQ(series->Formula(), "=SERIES(,,Sheet1!$C$2:$C$3,1)");
    EXPECT_EQ(ErrorCodeOf([&] { series->SetValues(Variant("not a list")); }), kRefused);
    EXPECT_EQ(Numbers(series->Values()), (std::vector<double>{6, 9}));
}

TEST_F(SeriesTest, NamesAreTextsOrCellsAndSeriesNByDefault) {
    auto chart = AddChart();
    auto first = AddSeries(chart, "B2:B5");
    auto second = AddSeries(chart, "C2:C5");
    EXPECT_EQ(first->Name(), "Series1");
    first->SetName("Sales");
    EXPECT_EQ(first->Name(), "Sales");
    second->SetName("=Sheet1!$C$1");
    EXPECT_EQ(second->Name(), "South");
    At("C1")->SetValue(Variant("West"));
    EXPECT_EQ(second->Name(), "West");
    EXPECT_TRUE(IsSameObject(chart->SeriesCollection("sales"), first));
    EXPECT_EQ(second->Formula(), "=SERIES(Sheet1!$C$1,,Sheet1!$C$2:$C$5,2)");
    EXPECT_EQ(ErrorCodeOf([&] { chart->SeriesCollection(3); }), kRefused);
}

// A new series is formatted automatically: the theme's accents in turn, as Excel's default style
// picks them.
TEST_F(SeriesTest, NewSeriesTakeTheAccentsInTurn) {
    auto chart = AddChart();
    auto first = AddSeries(chart, "B2:B5");
    auto second = AddSeries(chart, "C2:C5");
    EXPECT_EQ(first->Interior()->ColorIndex().ToInt(), xlColorIndexAutomatic);
    EXPECT_EQ(first->Interior()->Color().ToInt(), Accent1);
    EXPECT_EQ(second->Interior()->Color().ToInt(), Accent2);
    EXPECT_EQ(first->Border()->LineStyle().ToInt(), xlLineStyleNone);
    EXPECT_EQ(first->Fill()->Type(), msoFillSolid);
}

TEST_F(SeriesTest, AColumnSeriesTakesAColourAndAOneColourGradient) {
    auto chart = AddChart();
    auto series = AddSeries(chart, "B2:B5");
    series->Interior()->SetColor(10040115);
    EXPECT_EQ(series->Interior()->Color().ToInt(), 10040115);
    series->Fill()->OneColorGradient(msoGradientDiagonalDown, 1, 0.231372549019608);
    EXPECT_EQ(series->Fill()->Type(), msoFillGradient);
    EXPECT_EQ(series->Fill()->GradientStyle(), msoGradientDiagonalDown);
    EXPECT_EQ(series->Fill()->GradientVariant(), 1);
    EXPECT_DOUBLE_EQ(series->Fill()->GradientDegree(), 0.231372549019608);
    EXPECT_EQ(series->Interior()->Color().ToInt(), 10040115);
    EXPECT_EQ(ErrorCodeOf([&] { series->Fill()->OneColorGradient(9, 1, 0.5); }), kRefused);
    series->ClearFormats();
    EXPECT_EQ(series->Interior()->ColorIndex().ToInt(), xlColorIndexAutomatic);
    EXPECT_EQ(series->Fill()->Type(), msoFillSolid);
}

TEST_F(SeriesTest, InvisibleBarsHaveNoFillAndNoLine) {
    auto chart = AddChart(xlBarStacked);
    auto series = AddSeries(chart, "B2:B5");
    series->Border()->SetLineStyle(xlLineStyleNone);
    series->Interior()->SetColorIndex(xlColorIndexNone);
    EXPECT_EQ(series->Interior()->ColorIndex().ToInt(), xlColorIndexNone);
    EXPECT_EQ(series->Fill()->Visible(), msoFalse);
    EXPECT_EQ(series->Border()->LineStyle().ToInt(), xlLineStyleNone);
}

TEST_F(SeriesTest, ScatterSeriesTakeXValuesMarkersAndLines) {
    auto chart = AddChart(xlXYScatter);
    auto series = chart->SeriesCollection()->NewSeries();
    series->SetXValues(Variant(At("B2:B5")));
    series->SetValues(Variant(At("C2:C5")));
    EXPECT_EQ(Numbers(series->XValues()), (std::vector<double>{20, 30, 40, 50}));
    EXPECT_EQ(series->MarkerStyle(), xlMarkerStyleAutomatic);
    EXPECT_EQ(series->Border()->LineStyle().ToInt(), xlLineStyleNone);
    series->SetMarkerStyle(xlMarkerStyleDiamond);
    series->SetMarkerSize(5);
    series->SetMarkerForegroundColor(0);
    series->SetMarkerBackgroundColor(10040115);
    EXPECT_EQ(series->MarkerStyle(), xlMarkerStyleDiamond);
    EXPECT_EQ(series->MarkerSize(), 5);
    EXPECT_EQ(series->MarkerForegroundColor(), 0);
    EXPECT_EQ(series->MarkerBackgroundColor(), 10040115);
    series->SetMarkerBackgroundColorIndex(xlColorIndexNone);
    EXPECT_EQ(series->MarkerBackgroundColorIndex(), xlColorIndexNone);
    EXPECT_EQ(ErrorCodeOf([&] { series->SetMarkerSize(1); }), kRefused);
    series->Border()->SetColor(10040115);
    series->Border()->SetWeight(xlMedium);
    series->Border()->SetLineStyle(xlContinuous);
    EXPECT_EQ(series->Border()->Weight().ToInt(), xlMedium);
    EXPECT_EQ(series->Border()->LineStyle().ToInt(), xlContinuous);
    EXPECT_EQ(series->Formula(), "=SERIES(,Sheet1!$B$2:$B$5,Sheet1!$C$2:$C$5,1)");
}

TEST_F(SeriesTest, LineSeriesWithoutMarkersAndBarsWithoutMarkerMembers) {
    auto line = AddChart(xlLine);
    EXPECT_EQ(AddSeries(line, "B2:B5")->MarkerStyle(), xlMarkerStyleNone);
    auto markers = AddChart(xlLineMarkers);
    EXPECT_EQ(AddSeries(markers, "B2:B5")->MarkerStyle(), xlMarkerStyleAutomatic);
    auto column = AddChart();
    auto bar = AddSeries(column, "B2:B5");
    EXPECT_EQ(ErrorCodeOf([&] { bar->SetMarkerStyle(xlMarkerStyleCircle); }), kRefused);
}

TEST_F(SeriesTest, TheChartTypeFollowsTheFirstSeriesLook) {
    auto chart = AddChart(xlXYScatterLines);
    auto series = AddSeries(chart, "B2:B5");
    EXPECT_EQ(chart->ChartType(), xlXYScatterLines);
    series->SetMarkerStyle(xlMarkerStyleNone);
    EXPECT_EQ(chart->ChartType(), xlXYScatterLinesNoMarkers);
    series->Border()->SetLineStyle(xlLineStyleNone);
    series->SetMarkerStyle(xlMarkerStyleSquare);
    EXPECT_EQ(chart->ChartType(), xlXYScatter);
}

// A series on the secondary axes brings a secondary value axis at the right (its hidden category
// axis is crossed at its maximum); the secondary axes go with the last series on them.
TEST_F(SeriesTest, TheSecondaryAxesComeAndGoWithTheirSeries) {
    auto chart = AddChart(xlLineMarkers);
    AddSeries(chart, "B2:B5");
    auto second = AddSeries(chart, "C2:C5");
    EXPECT_EQ(ErrorCodeOf([&] { chart->SetHasAxis(xlValue, xlSecondary, true); }), kRefused);
    second->SetAxisGroup(xlSecondary);
    EXPECT_EQ(second->AxisGroup(), xlSecondary);
    EXPECT_EQ(chart->ChartGroups()->Count(), 2);
    EXPECT_TRUE(chart->HasAxis(xlValue, xlSecondary));
    EXPECT_FALSE(chart->HasAxis(xlCategory, xlSecondary));
    EXPECT_EQ(chart->SeriesCollection()->Count(), 2);
    EXPECT_EQ(second->PlotOrder(), 2);
    second->SetAxisGroup(xlPrimary);
    EXPECT_EQ(chart->ChartGroups()->Count(), 1);
    EXPECT_FALSE(chart->HasAxis(xlValue, xlSecondary));
}

TEST_F(SeriesTest, ADeletedSeriesAnswersObjectRequired) {
    auto chart = AddChart();
    auto series = AddSeries(chart, "B2:B5");
    series->Delete();
    EXPECT_EQ(chart->SeriesCollection()->Count(), 0);
    EXPECT_EQ(ErrorCodeOf([&] { series->Values(); }), kObjectRequired);
}

}  // namespace

namespace {

// A series' references follow their cells, as formulas do: through inserted and deleted rows,
// a renamed sheet and a deleted one.
TEST_F(SeriesTest, ReferencesFollowCellsAndSheets) {
    auto chart = AddChart();
    auto series = AddSeries(chart, "B2:B5");
    series->SetName("=Sheet1!$B$1");
    chart->Axes(xlCategory)->SetCategoryNames(Variant(At("A2:A5")));
    sheet->Rows(1)->EntireRow()->Insert();
    EXPECT_EQ(series->Formula(), "=SERIES(Sheet1!$B$2,Sheet1!$A$3:$A$6,Sheet1!$B$3:$B$6,1)");
    EXPECT_EQ(Numbers(series->Values()), (std::vector<double>{20, 30, 40, 50}));
    sheet->Rows(4)->EntireRow()->Delete();
    EXPECT_EQ(series->Formula(), "=SERIES(Sheet1!$B$2,Sheet1!$A$3:$A$5,Sheet1!$B$3:$B$5,1)");
    sheet->SetName("Data Sheet");
    EXPECT_EQ(series->Formula(), "=SERIES('Data Sheet'!$B$2,'Data Sheet'!$A$3:$A$5,'Data Sheet'!$B$3:$B$5,1)");
    EXPECT_EQ(series->Name(), "North");
    auto other = book->Worksheets()->Add();
    auto elsewhere = other->Shapes()->AddChart(xlLine, 0, 0, 100, 100)->Chart()->SeriesCollection()->NewSeries();
    elsewhere->SetValues(Variant("='Data Sheet'!$C$3:$C$4"));
    sheet->Delete();
    EXPECT_EQ(elsewhere->Formula(), "=SERIES(,,#REF!$C$3:$C$4,1)");
}

}  // namespace

namespace {

// When the last series of the primary axes goes, the secondary series and their axes take their
// place, as Excel moves them.
TEST_F(SeriesTest, TheSecondaryAxesBecomePrimaryWhenThePrimarySeriesGo) {
    auto chart = AddChart(xlLine);
    auto first = AddSeries(chart, "B2:B5");
    auto second = AddSeries(chart, "C2:C5");
    second->SetAxisGroup(xlSecondary);
    chart->Axes(xlValue, xlSecondary)->SetMaximumScale(99);
    first->Delete();
    EXPECT_EQ(second->AxisGroup(), xlPrimary);
    EXPECT_EQ(chart->ChartGroups()->Count(), 1);
    EXPECT_TRUE(chart->HasAxis(xlCategory, xlPrimary));
    EXPECT_FALSE(chart->HasAxis(xlValue, xlSecondary));
    EXPECT_DOUBLE_EQ(chart->Axes(xlValue, xlPrimary)->MaximumScale(), 99);
    EXPECT_EQ(chart->Axes(xlValue, xlPrimary)->AxisGroup(), xlPrimary);
}

}  // namespace
