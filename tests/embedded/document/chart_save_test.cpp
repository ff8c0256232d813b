#include "embedded/document/save_open_fixture.hpp"

#include <pugixml.hpp>

using namespace excel;

namespace {

class ChartSaveTest : public SaveOpenTest {
protected:
    void SetUp() override {
        SaveOpenTest::SetUp();
        At("A1:C1")->SetValue(Variant(std::vector<std::string>{"Month", "North", "South"}));
        const char* months[] = {"Jan", "Feb", "Mar", "Apr"};
        for (int32_t row = 2; row <= 5; ++row) {
            sheet->Cells(row, 1)->SetValue(Variant(months[row - 2]));
            sheet->Cells(row, 2)->SetValue(Variant(row * 10.5));
            sheet->Cells(row, 3)->SetValue(Variant(row * 3.0));
        }
    }

    std::shared_ptr<Chart> ColumnChart() {
        auto chart = sheet->Shapes()->AddChart(xlColumnClustered, 200, 20, 360, 216)->Chart();
        for (const char* values : {"B2:B5", "C2:C5"}) {
            auto series = chart->SeriesCollection()->NewSeries();
            series->SetValues(Variant(At(values)));
        }
        chart->SeriesCollection(1)->SetName("=Sheet1!$B$1");
        chart->SeriesCollection(2)->SetName("South");
        chart->Axes(xlCategory)->SetCategoryNames(Variant(At("A2:A5")));
        return chart;
    }

    pugi::xml_document ChartPart(const std::string& file, const std::string& part = "xl/charts/chart1.xml") {
        const auto parts = ooxml_test::ReadPackageParts(PathOf(file));
        pugi::xml_document xml;
        const auto found = parts.find(part);
        EXPECT_NE(found, parts.end()) << part;
        if (found != parts.end()) {
            xml.load_string(found->second.c_str());
        }
        return xml;
    }
};

TEST_F(ChartSaveTest, AColumnChartIsSavedAsAChartPartThatPassesTheCheckers) {
    auto chart = ColumnChart();
    chart->Parent()->SetPlacement(xlMove);
    chart->SetHasTitle(true);
    chart->ChartTitle()->Characters()->SetText("Sales ");
    chart->ChartTitle()->Characters(6)->Insert("\nBy month ");
    chart->ChartTitle()->Characters(6)->Font()->SetBold(false);
    chart->ChartGroups(1)->SetGapWidth(75);
    chart->ChartGroups(1)->SetOverlap(10);
    auto series = chart->SeriesCollection(1);
    series->Interior()->SetColor(10040115);
    series->Fill()->OneColorGradient(msoGradientDiagonalDown, 1, 0.231372549019608);
    chart->Axes(xlValue)->SetMinimumScale(0);
    chart->Axes(xlValue)->SetMaximumScale(60);
    chart->Axes(xlValue)->SetMajorUnit(20);
    chart->Axes(xlValue)->TickLabels()->SetNumberFormat("0.0");
    chart->Axes(xlValue)->SetCrossesAt(-1E+300);
    chart->ChartArea()->Border()->SetWeight(xlMedium);
    book->SaveAs(PathOf("column.xlsx"));
    EXPECT_EQ(RunTool("validate-xlsx", PathOf("column.xlsx")), 0);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("column.xlsx")), 0);

    const auto parts = ooxml_test::ReadPackageParts(PathOf("column.xlsx"));
    ASSERT_NE(parts.find("xl/drawings/drawing1.xml"), parts.end());
    pugi::xml_document drawing;
    drawing.load_string(parts.at("xl/drawings/drawing1.xml").c_str());
    const auto anchor = drawing.child("xdr:wsDr").child("xdr:twoCellAnchor");
    EXPECT_STREQ(anchor.attribute("editAs").value(), "oneCell");
    EXPECT_STREQ(
        anchor.child("xdr:graphicFrame").child("xdr:nvGraphicFramePr").child("xdr:cNvPr").attribute("name").value(),
        "Chart 1");

    const pugi::xml_document xml = ChartPart("column.xlsx");
    const auto plot = xml.child("c:chartSpace").child("c:chart").child("c:plotArea");
    const auto bar = plot.child("c:barChart");
    EXPECT_STREQ(bar.child("c:barDir").attribute("val").value(), "col");
    EXPECT_STREQ(bar.child("c:grouping").attribute("val").value(), "clustered");
    EXPECT_STREQ(bar.child("c:gapWidth").attribute("val").value(), "75");
    EXPECT_STREQ(bar.child("c:overlap").attribute("val").value(), "10");
    const auto first = bar.child("c:ser");
    EXPECT_STREQ(first.child("c:tx").child("c:strRef").child_value("c:f"), "Sheet1!$B$1");
    EXPECT_STREQ(first.child("c:cat").child("c:strRef").child_value("c:f"), "Sheet1!$A$2:$A$5");
    EXPECT_STREQ(first.child("c:val").child("c:numRef").child_value("c:f"), "Sheet1!$B$2:$B$5");
    EXPECT_STREQ(first.child("c:val").child("c:numRef").child("c:numCache").child("c:pt").child_value("c:v"), "21");
    const auto stops = first.child("c:spPr").child("a:gradFill").child("a:gsLst");
    EXPECT_STREQ(stops.first_child().child("a:srgbClr").attribute("val").value(), "333399");
    EXPECT_STREQ(stops.last_child().child("a:srgbClr").attribute("val").value(), "181847");
    EXPECT_STREQ(first.next_sibling("c:ser").child("c:tx").child_value("c:v"), "South");
    // The value axis' crossing is kept on the category axis, which crosses it.
    const auto category = plot.child("c:catAx");
    const auto value = plot.child("c:valAx");
    EXPECT_DOUBLE_EQ(category.child("c:crossesAt").attribute("val").as_double(), -1E+300);
    EXPECT_STREQ(value.child("c:scaling").child("c:max").attribute("val").value(), "60");
    EXPECT_STREQ(value.child("c:majorUnit").attribute("val").value(), "20");
    EXPECT_STREQ(value.child("c:numFmt").attribute("formatCode").value(), "0.0");
    const auto runs =
        xml.child("c:chartSpace").child("c:chart").child("c:title").child("c:tx").child("c:rich").child("a:p");
    const auto second = runs.child("a:r").next_sibling("a:r");
    EXPECT_STREQ(second.child_value("a:t"), "\nBy month ");
    EXPECT_STREQ(second.child("a:rPr").attribute("b").value(), "0");
    EXPECT_STREQ(xml.child("c:chartSpace").child("c:spPr").child("a:ln").attribute("w").value(), "25400");
}

TEST_F(ChartSaveTest, ScatterLineAndSecondaryAxisChartsPassTheCheckers) {
    auto scatter = sheet->Shapes()->AddChart(xlXYScatter, 10, 250, 300, 200)->Chart();
    auto points = scatter->SeriesCollection()->NewSeries();
    points->SetXValues(Variant(At("B2:B5")));
    points->SetValues(Variant(At("C2:C5")));
    points->SetMarkerStyle(xlMarkerStyleStar);
    points->SetMarkerBackgroundColorIndex(xlColorIndexNone);
    scatter->Axes(xlCategory)->TickLabels()->SetOrientation(xlTickLabelOrientationUpward);
    auto line = sheet->Shapes()->AddChart(xlLineMarkers, 320, 250, 300, 200)->Chart();
    line->SeriesCollection()->NewSeries()->SetValues(Variant(At("B2:B5")));
    auto right = line->SeriesCollection()->NewSeries();
    right->SetValues(Variant(std::vector<double>{1, 2.5, 3, 4}));
    right->SetAxisGroup(xlSecondary);
    line->Axes(xlValue, xlSecondary)->SetHasTitle(true);
    line->Shapes()
        ->AddTextbox(msoTextOrientationHorizontal, 20, 75, 260, 50)
        ->TextFrame()
        ->Characters()
        ->SetText("Draft");
    book->SaveAs(PathOf("charts.xlsx"));
    EXPECT_EQ(RunTool("validate-xlsx", PathOf("charts.xlsx")), 0);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("charts.xlsx")), 0);

    const pugi::xml_document xml = ChartPart("charts.xlsx", "xl/charts/chart2.xml");
    const auto plot = xml.child("c:chartSpace").child("c:chart").child("c:plotArea");
    int lineGroups = 0;
    for (auto group = plot.child("c:lineChart"); group; group = group.next_sibling("c:lineChart")) {
        ++lineGroups;
    }
    EXPECT_EQ(lineGroups, 2);
    EXPECT_STREQ(
        plot.child("c:lineChart").next_sibling("c:lineChart").child("c:ser").child("c:val").first_child().name(),
        "c:numLit");
    EXPECT_TRUE(xml.child("c:chartSpace").child("c:userShapes"));
}

// A plot area or an axis title placed by hand keeps its place in the file: a manual layout of
// fractions of the chart's size.
TEST_F(ChartSaveTest, PlacesSetByHandAreSavedAsManualLayouts) {
    auto chart = ColumnChart();
    chart->Axes(xlValue)->SetHasTitle(true);
    auto title = chart->Axes(xlValue)->AxisTitle();
    const double left = title->Left();
    title->SetTop(54);
    chart->PlotArea()->SetHeight(150);
    const double plotTop = chart->PlotArea()->Top();
    book->SaveAs(PathOf("layout.xlsx"));
    EXPECT_EQ(RunTool("validate-xlsx", PathOf("layout.xlsx")), 0);
    const pugi::xml_document xml = ChartPart("layout.xlsx");
    const auto plot = xml.child("c:chartSpace").child("c:chart").child("c:plotArea");
    const auto manual = plot.child("c:layout").child("c:manualLayout");
    EXPECT_STREQ(manual.child("c:layoutTarget").attribute("val").value(), "outer");
    EXPECT_NEAR(manual.child("c:h").attribute("val").as_double(), 150.0 / 216.0, 1e-9);
    EXPECT_NEAR(manual.child("c:y").attribute("val").as_double(), plotTop / 216.0, 1e-9);
    const auto titleLayout = plot.child("c:valAx").child("c:title").child("c:layout").child("c:manualLayout");
    EXPECT_NEAR(titleLayout.child("c:y").attribute("val").as_double(), 54.0 / 216.0, 1e-9);
    EXPECT_NEAR(titleLayout.child("c:x").attribute("val").as_double(), left / 360.0, 1e-9);
    EXPECT_FALSE(titleLayout.child("c:w"));
}

}  // namespace
