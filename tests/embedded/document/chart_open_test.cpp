#include "embedded/document/save_open_fixture.hpp"

using namespace excel;

namespace {

class ChartOpenTest : public SaveOpenTest {};

std::vector<double> Numbers(const Variant& values) {
    std::vector<double> numbers;
    for (const Variant& element : values.Array().Elements()) {
        numbers.push_back(element.ToDouble());
    }
    return numbers;
}

// A chart the engine saved opens into the same chart: type, series and their references, title
// runs, legend, axes and their scales, crossing and labels, the chart's text boxes and its place.
TEST_F(ChartOpenTest, AChartSavedByTheEngineOpensAsItWasMade) {
    At("A2")->SetValue(Variant(1.0));
    At("B2")->SetValue(Variant(2.0));
    At("A3")->SetValue(Variant(3.0));
    At("B3")->SetValue(Variant(4.0));
    auto shape = sheet->Shapes()->AddChart(xlXYScatterLines, 150, 30, 300, 200);
    shape->Chart()->Parent()->SetPlacement(xlMove);
    auto chart = shape->Chart();
    auto series = chart->SeriesCollection()->NewSeries();
    series->SetXValues(Variant(At("A2:A3")));
    series->SetValues(Variant(At("B2:B3")));
    series->SetName("Trend");
    series->SetMarkerStyle(xlMarkerStyleTriangle);
    series->Border()->SetColor(255);
    chart->SetHasTitle(true);
    chart->ChartTitle()->Characters()->SetText("Title ");
    chart->ChartTitle()->Characters(6)->Insert("\nsub ");
    chart->ChartTitle()->Characters(6)->Font()->SetSize(8);
    auto y = chart->Axes(xlValue);
    y->SetMinimumScale(0);
    y->SetMaximumScale(10);
    y->SetMajorUnit(2);
    y->TickLabels()->SetNumberFormat("0.0");
    chart->Axes(xlCategory)->SetCrosses(xlAxisCrossesMaximum);
    chart->Legend()->SetPosition(xlLegendPositionBottom);
    chart->Shapes()
        ->AddTextbox(msoTextOrientationHorizontal, 20, 40, 100, 30)
        ->TextFrame()
        ->Characters()
        ->SetText("Note");

    auto reopened = SaveAndReopen("chart.xlsx");
    auto openedSheet = reopened->Worksheets(1);
    ASSERT_EQ(openedSheet->ChartObjects()->Count(), 1);
    auto object = openedSheet->ChartObjects(1);
    EXPECT_EQ(object->Name(), "Chart 1");
    EXPECT_EQ(object->Placement(), xlMove);
    EXPECT_NEAR(object->Left(), 150, 0.01);
    EXPECT_NEAR(object->Width(), 300, 0.01);
    auto opened = object->Chart();
    EXPECT_EQ(opened->ChartType(), xlXYScatterLines);
    ASSERT_EQ(opened->SeriesCollection()->Count(), 1);
    auto openedSeries = opened->SeriesCollection(1);
    EXPECT_EQ(openedSeries->Name(), "Trend");
    EXPECT_EQ(openedSeries->Formula(), "=SERIES(\"Trend\",Sheet1!$A$2:$A$3,Sheet1!$B$2:$B$3,1)");
    EXPECT_EQ(Numbers(openedSeries->Values()), (std::vector<double>{2, 4}));
    EXPECT_EQ(openedSeries->MarkerStyle(), xlMarkerStyleTriangle);
    EXPECT_EQ(openedSeries->Border()->Color().ToInt(), 255);
    EXPECT_EQ(opened->ChartTitle()->Text(), "Title\nsub ");
    EXPECT_DOUBLE_EQ(opened->ChartTitle()->Characters(6)->Font()->Size().ToDouble(), 8);
    EXPECT_EQ(opened->Legend()->Position(), xlLegendPositionBottom);
    auto openedY = opened->Axes(xlValue);
    EXPECT_FALSE(openedY->MaximumScaleIsAuto());
    EXPECT_DOUBLE_EQ(openedY->MaximumScale(), 10);
    EXPECT_DOUBLE_EQ(openedY->MajorUnit(), 2);
    EXPECT_EQ(openedY->TickLabels()->NumberFormat(), "0.0");
    EXPECT_TRUE(openedY->MinorUnitIsAuto());
    EXPECT_EQ(opened->Axes(xlCategory)->Crosses(), xlAxisCrossesMaximum);
    EXPECT_EQ(opened->Axes(xlValue)->Crosses(), xlAxisCrossesAutomatic);
    ASSERT_EQ(opened->Shapes()->Count(), 1);
    EXPECT_EQ(opened->Shapes()->Item(1)->TextFrame()->Characters()->Text(), "Note");
    EXPECT_NEAR(opened->Shapes()->Item(1)->Top(), 40, 0.01);
}

// A one-colour gradient opens as the gradient it was made: its style, variant and degree come back
// from its angle and its two stops.
TEST_F(ChartOpenTest, AOneColourGradientOpensWithItsStyleAndDegree) {
    At("A1:A3")->SetValue(Variant(std::vector<double>{1, 2, 3}));
    auto chart = sheet->Shapes()->AddChart(xlColumnClustered, 0, 0, 300, 200)->Chart();
    auto series = chart->SeriesCollection()->NewSeries();
    series->SetValues(Variant(At("A1:A3")));
    series->Interior()->SetColor(10040115);
    series->Fill()->OneColorGradient(msoGradientDiagonalDown, 1, 0.231372549019608);
    auto reopened = SaveAndReopen("gradient.xlsx");
    auto fill = reopened->Worksheets(1)->ChartObjects(1)->Chart()->SeriesCollection(1)->Fill();
    EXPECT_EQ(fill->Type(), msoFillGradient);
    EXPECT_EQ(fill->GradientStyle(), msoGradientDiagonalDown);
    EXPECT_EQ(fill->GradientVariant(), 1);
    EXPECT_NEAR(fill->GradientDegree(), 0.231372549019608, 0.01);
    EXPECT_EQ(fill->ForeColor()->RGB(), 10040115);
}

// Every orientation of tick labels and titles opens as it was set: horizontal stays horizontal
// rather than 0 degrees, stacked letters stay vertical.
TEST_F(ChartOpenTest, TextOrientationsOpenAsTheyWereSet) {
    At("A1:A3")->SetValue(Variant(std::vector<double>{1, 2, 3}));
    const int32_t orientations[] = {xlHorizontal, xlVertical, xlUpward, xlDownward, 45, -30, xlAutomatic};
    for (const int32_t orientation : orientations) {
        auto chart = sheet->Shapes()->AddChart(xlColumnClustered, 0, 0, 300, 200)->Chart();
        chart->SeriesCollection()->NewSeries()->SetValues(Variant(At("A1:A3")));
        chart->Axes(xlCategory)->TickLabels()->SetOrientation(orientation);
        chart->SetHasTitle(true);
        chart->ChartTitle()->SetText("Title");
        if (orientation != xlAutomatic) {
            chart->ChartTitle()->SetOrientation(orientation);
        }
    }
    auto reopened = SaveAndReopen("orientations.xlsx")->Worksheets(1);
    for (int32_t i = 1; i <= 7; ++i) {
        const int32_t orientation = orientations[i - 1];
        auto chart = reopened->ChartObjects(i)->Chart();
        EXPECT_EQ(chart->Axes(xlCategory)->TickLabels()->Orientation(), orientation) << orientation;
        EXPECT_EQ(chart->ChartTitle()->Orientation(), orientation == xlAutomatic ? xlHorizontal : orientation)
            << orientation;
    }
}

// Charts Excel wrote open into the model; changed and saved again they pass the checkers.
TEST_F(ChartOpenTest, ChartsExcelWroteOpenIntoTheModel) {
    auto column = OpenCorpus("charts-xlsxwriter/xw__chart_column01.xlsx");
    auto chart = column->Worksheets(1)->ChartObjects(1)->Chart();
    EXPECT_EQ(chart->ChartType(), xlColumnClustered);
    ASSERT_EQ(chart->SeriesCollection()->Count(), 3);
    EXPECT_EQ(chart->SeriesCollection(1)->Formula(), "=SERIES(,,Sheet1!$A$1:$A$5,1)");
    EXPECT_EQ(Numbers(chart->SeriesCollection(1)->Values()), (std::vector<double>{1, 2, 3, 4, 5}));
    chart->SeriesCollection(1)->Interior()->SetColor(255);
    chart->SetHasTitle(true);
    chart->ChartTitle()->SetText("Changed");
    column->SaveAs(PathOf("column.xlsx"));
    EXPECT_EQ(RunTool("validate-xlsx", PathOf("column.xlsx")), 0);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("column.xlsx")), 0);
    column->Close(false);

    auto secondary = app->Workbooks()->Open(CorpusPath("realworld-excel/poi__57362.xlsx"));
    bool found = false;
    for (int32_t i = 1; i <= secondary->Worksheets()->Count() && !found; ++i) {
        auto charts = secondary->Worksheets(i)->ChartObjects();
        for (int32_t j = 1; j <= charts->Count(); ++j) {
            auto candidate = charts->Item(Variant(j))->Chart();
            if (candidate->HasAxis(xlValue, xlSecondary)) {
                found = true;
                EXPECT_FALSE(candidate->HasAxis(xlCategory, xlSecondary));
                EXPECT_EQ(candidate->Axes(xlCategory, xlPrimary)->Type(), xlCategory);
                EXPECT_GE(candidate->ChartGroups()->Count(), 2);
            }
        }
    }
    EXPECT_TRUE(found);
}

}  // namespace
