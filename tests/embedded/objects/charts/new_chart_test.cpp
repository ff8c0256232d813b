#include "embedded/objects/charts/chart_fixture.hpp"

using namespace excel;

namespace {

using NewChartTest = ChartTest;

TEST_F(NewChartTest, AddChartMakesAChartShapeNamedWithTheSheetsShapeCounter) {
    sheet->Shapes()->AddTextbox(msoTextOrientationHorizontal, 0, 0, 50, 20);
    auto shape = sheet->Shapes()->AddChart(xlColumnClustered, 100, 50, 360, 216);
    EXPECT_EQ(shape->Type(), msoChart);
    EXPECT_EQ(shape->Name(), "Chart 2");
    EXPECT_EQ(sheet->Shapes()->Count(), 2);
    EXPECT_EQ(sheet->ChartObjects()->Count(), 1);
    EXPECT_EQ(sheet->ChartObjects(1)->Name(), "Chart 2");
    EXPECT_TRUE(IsSameObject(sheet->ChartObjects("chart 2")->Chart(), shape->Chart()));
    EXPECT_EQ(ErrorCodeOf([&] { sheet->Shapes()->Item(1)->Chart(); }), kRefused);
}

// Excel's new chart from AddChart on an empty selection: no series, a legend at the right, no
// title, both primary axes with major gridlines on the value axis, and no secondary axes.
TEST_F(NewChartTest, ANewChartHoldsAxesAndALegendButNoSeriesOrTitle) {
    auto chart = AddChart();
    EXPECT_EQ(chart->ChartType(), xlColumnClustered);
    EXPECT_EQ(chart->SeriesCollection()->Count(), 0);
    EXPECT_FALSE(chart->HasTitle());
    ASSERT_TRUE(chart->HasLegend());
    EXPECT_EQ(chart->Legend()->Position(), xlLegendPositionRight);
    EXPECT_TRUE(chart->HasAxis(xlCategory, xlPrimary));
    EXPECT_TRUE(chart->HasAxis(xlValue, xlPrimary));
    EXPECT_FALSE(chart->HasAxis(xlValue, xlSecondary));
    EXPECT_TRUE(chart->Axes(xlValue, xlPrimary)->HasMajorGridlines());
    EXPECT_FALSE(chart->Axes(xlCategory, xlPrimary)->HasMajorGridlines());
    EXPECT_EQ(chart->Axes()->Count(), 2);
    EXPECT_EQ(chart->ChartGroups()->Count(), 1);
    EXPECT_EQ(chart->ChartGroups(1)->GapWidth(), 150);
    EXPECT_EQ(chart->ChartGroups(1)->Overlap(), 0);
    EXPECT_EQ(ErrorCodeOf([&] { chart->ChartTitle(); }), kRefused);
}

TEST_F(NewChartTest, TheContainerHasTheGeometryGivenAndItsCells) {
    auto chart = AddChart(xlColumnClustered, 96, 45, 360, 216);
    auto object = chart->Parent();
    EXPECT_DOUBLE_EQ(object->Left(), 96);
    EXPECT_DOUBLE_EQ(object->Top(), 45);
    EXPECT_DOUBLE_EQ(object->Width(), 360);
    EXPECT_DOUBLE_EQ(object->Height(), 216);
    EXPECT_EQ(object->TopLeftCell()->Address(true, true, xlA1, false), "$C$4");
    EXPECT_EQ(object->Placement(), xlMoveAndSize);
    EXPECT_DOUBLE_EQ(chart->ChartArea()->Width(), 360);
    EXPECT_DOUBLE_EQ(chart->ChartArea()->Height(), 216);
}

TEST_F(NewChartTest, EveryDrawnTypeIsKeptAndOthersAreRefused) {
    for (const int32_t type : {xlColumnClustered, xlColumnStacked, xlBarClustered, xlBarStacked, xlLine, xlLineMarkers,
                               xlXYScatter, xlXYScatterLines, xlXYScatterLinesNoMarkers, xlArea}) {
        EXPECT_EQ(AddChart(type)->ChartType(), type) << type;
    }
    EXPECT_EQ(ErrorCodeOf([&] { AddChart(-4102); }), kRefused);  // xl3DPie
    auto chart = AddChart();
    chart->SetChartType(xlXYScatterLines);
    EXPECT_EQ(chart->ChartType(), xlXYScatterLines);
    EXPECT_EQ(ErrorCodeOf([&] { chart->SetChartType(12345); }), kRefused);
}

TEST_F(NewChartTest, StackedBarsOverlapFully) {
    auto chart = AddChart(xlBarStacked);
    EXPECT_EQ(chart->ChartGroups(1)->Overlap(), 100);
}

TEST_F(NewChartTest, ADeletedChartAnswersObjectRequired) {
    auto chart = AddChart();
    chart->Parent()->Delete();
    EXPECT_EQ(sheet->ChartObjects()->Count(), 0);
    EXPECT_EQ(ErrorCodeOf([&] { chart->ChartType(); }), kObjectRequired);
}

// The chart is anchored to the cells under it: with Placement xlMove it moves with its top-left
// cell through inserted and deleted rows and columns, and keeps its size.
TEST_F(NewChartTest, AChartMovesWithItsAnchorCellThroughInsertsAndDeletes) {
    auto chart = AddChart(xlColumnClustered, 0, 0, 200, 100);
    auto object = chart->Parent();
    object->SetTop(At("A4")->Top());
    object->SetLeft(At("C1")->Left());
    object->SetPlacement(xlMove);
    sheet->Rows(2)->EntireRow()->Insert();
    EXPECT_EQ(object->TopLeftCell()->Address(true, true, xlA1, false), "$C$5");
    sheet->Columns(1)->EntireColumn()->Delete();
    EXPECT_EQ(object->TopLeftCell()->Address(true, true, xlA1, false), "$B$5");
    EXPECT_DOUBLE_EQ(object->Width(), 200);
    EXPECT_DOUBLE_EQ(object->Height(), 100);
}

}  // namespace
