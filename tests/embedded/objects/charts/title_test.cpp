#include "embedded/objects/charts/chart_fixture.hpp"

using namespace excel;

namespace {

class TitleTest : public ChartTest {
protected:
    void SetUp() override {
        ChartTest::SetUp();
        chart = AddChart();
        AddSeries(chart, "B2:B5");
    }

    std::shared_ptr<Chart> chart;
};

TEST_F(TitleTest, HasTitleMakesATitleWhoseTextAndFontAreSet) {
    chart->SetHasTitle(true);
    auto title = chart->ChartTitle();
    title->SetAutoScaleFont(false);
    title->Characters()->SetText("Results ");
    title->Font()->SetSize(12);
    title->Font()->SetBold(true);
    EXPECT_EQ(title->Text(), "Results ");
    EXPECT_EQ(title->Characters()->Count(), 8);
    EXPECT_DOUBLE_EQ(title->Font()->Size().ToDouble(), 12);
    EXPECT_TRUE(title->Font()->Bold().ToBool());
    EXPECT_FALSE(title->AutoScaleFont());
    title->Delete();
    EXPECT_FALSE(chart->HasTitle());
    EXPECT_EQ(ErrorCodeOf([&] { title->Text(); }), kObjectRequired);
}

// A line feed typed into a title's characters stays inside the run it is typed into: the
// subtitle that follows it takes its own font from the line feed on.
TEST_F(TitleTest, ALineFeedTypedIntoTheCharactersStaysInItsRun) {
    chart->SetHasTitle(true);
    auto title = chart->ChartTitle();
    title->Characters()->SetText("Results ");
    title->Font()->SetSize(12);
    title->Font()->SetBold(true);
    const int32_t last = title->Characters()->Count();
    title->Characters(last)->Insert("\nNorth only ");
    auto subtitle = title->Characters(last);
    subtitle->Font()->SetBold(false);
    subtitle->Font()->SetSize(8);
    EXPECT_EQ(title->Text(), "Results\nNorth only ");
    EXPECT_TRUE(title->Characters(1, 7)->Font()->Bold().ToBool());
    EXPECT_DOUBLE_EQ(title->Characters(1, 7)->Font()->Size().ToDouble(), 12);
    EXPECT_FALSE(title->Characters(8, 1)->Font()->Bold().ToBool());
    EXPECT_DOUBLE_EQ(title->Characters(9)->Font()->Size().ToDouble(), 8);
    EXPECT_TRUE(title->Font()->Bold().IsNull());
}

TEST_F(TitleTest, ALegendIsPlacedFormattedAndDeleted) {
    auto legend = chart->Legend();
    legend->SetAutoScaleFont(false);
    legend->Font()->SetSize(8);
    legend->SetPosition(xlLegendPositionRight);
    legend->Border()->SetLineStyle(xlContinuous);
    legend->Border()->SetColorIndex(15);
    legend->Border()->SetWeight(xlThin);
    EXPECT_EQ(legend->Border()->ColorIndex().ToInt(), 15);
    EXPECT_EQ(legend->Border()->Weight().ToInt(), xlThin);
    EXPECT_EQ(legend->Border()->LineStyle().ToInt(), xlContinuous);
    EXPECT_GT(legend->Left(), chart->PlotArea()->Left());
    EXPECT_EQ(ErrorCodeOf([&] { legend->SetPosition(5); }), kRefused);
    legend->Delete();
    EXPECT_FALSE(chart->HasLegend());
    EXPECT_EQ(ErrorCodeOf([&] { legend->Position(); }), kObjectRequired);
    chart->SetHasLegend(true);
    EXPECT_EQ(chart->Legend()->Border()->LineStyle().ToInt(), xlLineStyleNone);
}

TEST_F(TitleTest, TheChartAreaBorderAndThePlotAreaFormats) {
    auto border = chart->ChartArea()->Border();
    border->SetColorIndex(xlColorIndexAutomatic);
    border->SetWeight(xlMedium);
    EXPECT_EQ(border->ColorIndex().ToInt(), xlColorIndexAutomatic);
    EXPECT_EQ(border->Weight().ToInt(), xlMedium);
    auto plot = chart->PlotArea();
    plot->Interior()->SetColor(RgbLong(0xEEEEEE));
    plot->ClearFormats();
    EXPECT_EQ(plot->Interior()->ColorIndex().ToInt(), xlColorIndexAutomatic);
}

// The plot area takes in the axes' tick labels but not their titles, which stand beside it; its
// inside leaves room for the labels.
TEST_F(TitleTest, AxisTitlesStandOutsideThePlotArea) {
    auto value = chart->Axes(xlValue);
    auto category = chart->Axes(xlCategory);
    value->SetHasTitle(true);
    value->AxisTitle()->SetText("Amount");
    category->SetHasTitle(true);
    category->AxisTitle()->SetText("Month");
    auto plot = chart->PlotArea();
    const auto valueTitle = value->AxisTitle();
    const auto categoryTitle = category->AxisTitle();
    EXPECT_LE(valueTitle->Left() + valueTitle->Width(), plot->Left() + 0.001);
    EXPECT_GE(categoryTitle->Top(), plot->Top() + plot->Height() - 0.001);
    EXPECT_GT(plot->InsideLeft(), plot->Left());
    EXPECT_LT(plot->InsideTop() + plot->InsideHeight(), plot->Top() + plot->Height());
    // A plot area set by hand keeps the titles beside it.
    plot->SetHeight(plot->Height() - 30);
    EXPECT_GE(category->AxisTitle()->Top(), plot->Top() + plot->Height() - 0.001);
    // With no room left beside it, a title stays inside the chart area.
    plot->SetLeft(0);
    EXPECT_GE(value->AxisTitle()->Left(), 0.0);
    EXPECT_LE(value->AxisTitle()->Left() + value->AxisTitle()->Width(), chart->ChartArea()->Width());
}

// A chart's text boxes are its own shapes, placed from its chart area's corner; they are not
// shapes of the sheet.
TEST_F(TitleTest, AChartsTextBoxesLiveInTheChart) {
    auto box = chart->Shapes()->AddTextbox(msoTextOrientationHorizontal, 20, 83, 320, 50);
    box->SetName("gwm_123          ");
    box->SetPlacement(xlMoveAndSize);
    box->TextFrame()->Characters()->SetText("Draft");
    box->SetOnAction("objClick");
    EXPECT_EQ(chart->Shapes()->Count(), 1);
    EXPECT_EQ(sheet->Shapes()->Count(), 1);
    EXPECT_EQ(chart->Shapes()->Item(1)->Name(), "gwm_123          ");
    EXPECT_DOUBLE_EQ(box->Left(), 20);
    EXPECT_DOUBLE_EQ(box->Top(), 83);
    EXPECT_EQ(box->Fill()->Visible(), msoFalse);
    EXPECT_EQ(box->Line()->Visible(), msoFalse);
    chart->Parent()->SetTop(300);
    EXPECT_DOUBLE_EQ(box->Top(), 83);
    chart->Parent()->Delete();
    EXPECT_EQ(ErrorCodeOf([&] { box->Name(); }), kObjectRequired);
}

}  // namespace
