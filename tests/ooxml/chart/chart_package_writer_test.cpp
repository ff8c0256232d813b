// A workbook with charts written whole: the chart parts, their drawings, content types and
// relationships, checked with the schema validator, the logical checker and openpyxl, and read back.

#include "ooxml/chart/chart_writer_test_support.hpp"
#include "ooxml/opc/package_reader.hpp"
#include "ooxml/opc/package_writer.hpp"
#include "ooxml/package_error.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

namespace {

using namespace ooxml;
using namespace writer_test;
using chart_test::CategoryAxis;
using chart_test::NumberReference;
using chart_test::StringReference;
using chart_test::ValueAxis;
using ::testing::HasSubstr;
using ::testing::Not;

Color Rgb(uint32_t rgb) {
    return Color{Color::Kind::Rgb, 0xFF000000 | rgb, 0, 0.0};
}

ChartFont Font(double size, bool bold) {
    ChartFont font;
    font.size = size;
    font.bold = bold;
    return font;
}

ChartTitle RichTitle(std::vector<ChartTextRun> runs, ChartFont paragraphFont) {
    ChartTitle title;
    title.runs = std::move(runs);
    title.paragraphFont = std::move(paragraphFont);
    return title;
}

// Columns of two series from ranges: a bold title with a smaller subtitle after a line feed, a
// bordered legend, a value axis with a fixed scale and a number format.
ChartDocument ColumnChart() {
    ChartDocument chart;
    chart.title = RichTitle({{"Regional sales", Font(12, true)}, {"\nby quarter ", Font(8, false)}}, Font(12, true));
    chart.autoTitleDeleted = false;
    ChartGroup columns;
    columns.type = "barChart";
    columns.barDirection = "col";
    columns.grouping = "clustered";
    columns.gapWidth = 75;
    columns.overlap = 10;
    for (uint32_t i = 0; i < 2; ++i) {
        const std::string column = i == 0 ? "B" : "C";
        ChartSeries series;
        series.index = series.order = i;
        series.nameReference = StringReference("Data!$" + column + "$1", {i == 0 ? "Sales 2023" : "Sales 2024"});
        series.categories = StringReference("Data!$A$2:$A$5", {"North", "South", "East", "West"});
        series.values = NumberReference("Data!$" + column + "$2:$" + column + "$5",
                                        i == 0 ? std::vector<std::string>{"120", "85", "150", "42.5"}
                                               : std::vector<std::string>{"130", "90", "140", "60"},
                                        "#,##0");
        columns.series.push_back(series);
    }
    columns.series[0].shape.fill = ChartFill{ChartFill::Kind::Solid, Rgb(0x333399), {}, 0, true, true};
    columns.series[1].shape.fill.kind = ChartFill::Kind::Gradient;
    columns.series[1].shape.fill.stops = {{0, Rgb(0x993366)}, {100000, Rgb(0x47182F)}};
    columns.series[1].shape.fill.angle = 8100000;
    columns.axisIds = {500001, 500002};
    chart.plotArea.groups.push_back(columns);

    ChartAxis categories = CategoryAxis(500001, 500002);
    categories.majorTickMark = "none";
    ChartAxis values = ValueAxis(500002, 500001);
    values.minimum = 0;
    values.maximum = 200;
    values.majorUnit = 50;
    values.numberFormat = ChartNumberFormat{"#,##0", false};
    values.title = RichTitle({{"Units", Font(8, false)}}, Font(8, false));
    values.title->rotation = -5400000;
    values.title->vertical = "horz";
    values.textProperties.font.size = 8;
    chart.plotArea.axes = {categories, values};

    ChartLegend legend;
    legend.shape.line = ChartLine{ChartLine::Kind::Solid, Rgb(0xC0C0C0), 12700, "solid"};
    legend.textProperties.font.size = 8;
    chart.legend = legend;
    chart.chartArea.line.width = 25400;
    return chart;
}

ChartShape ChartTextBox(uint32_t id, std::string text, double fromY) {
    ChartShape box;
    box.fromX = 0.1;
    box.fromY = fromY;
    box.toX = 0.9;
    box.toY = fromY + 0.2;
    box.shape.id = id;
    box.shape.name = "TextBox " + std::to_string(id - 1);
    box.shape.x = 457200;
    box.shape.y = 381000;
    box.shape.width = 3657600;
    box.shape.height = 762000;
    box.shape.fill.reset();
    box.shape.line.reset();
    box.shape.alignment = "ctr";
    box.shape.verticalAnchor = "ctr";
    box.shape.macro = "[0]!objClick";
    box.shape.text.text = std::move(text);
    return box;
}

// A line with markers, and a watermark of two text boxes over it.
ChartDocument LineChartWithTextBoxes() {
    ChartDocument chart;
    chart.style = 26;
    ChartGroup lines;
    lines.type = "lineChart";
    lines.grouping = "standard";
    ChartSeries series;
    series.nameText = "Sales 2024";
    series.categories = StringReference("Data!$A$2:$A$5", {"North", "South", "East", "West"});
    series.values = NumberReference("Data!$C$2:$C$5", {"130", "90", "140", "60"});
    series.marker = ChartMarker{"diamond", 7, {}};
    series.shape.line = ChartLine{ChartLine::Kind::Solid, Rgb(0x333399), 25400, "solid"};
    lines.series.push_back(series);
    lines.axisIds = {600001, 600002};
    chart.plotArea.groups.push_back(lines);
    chart.plotArea.axes = {CategoryAxis(600001, 600002), ValueAxis(600002, 600001)};
    chart.shapes = {ChartTextBox(2, "DRAFT\nnot for release", 0.3), ChartTextBox(3, "Second box", 0.6)};
    return chart;
}

DrawingShape Frame(uint32_t id, std::string name, CellAnchor from, CellAnchor to, ChartDocument chart) {
    DrawingShape frame;
    frame.id = id;
    frame.name = std::move(name);
    frame.editAs = "oneCell";
    frame.from = from;
    frame.to = to;
    frame.chart = std::make_shared<const ChartDocument>(std::move(chart));
    return frame;
}

WorkbookDocument ChartWorkbook() {
    WorkbookDocument document;
    for (const char* text : {"Region", "Sales 2023", "Sales 2024", "North", "South", "East", "West"}) {
        document.strings.push_back(SharedString{text, {}});
    }
    SheetDocument sheet;
    sheet.name = "Data";
    sheet.tabSelected = true;
    Row header;
    for (uint32_t column = 1; column <= 3; ++column) {
        header.cells.push_back(Cell{column, 0, column - 1, NoFormula, 0.0, CellType::String});
    }
    sheet.rows.push_back(header);
    const double sales[4][2] = {{120, 130}, {85, 90}, {150, 140}, {42.5, 60}};
    for (uint32_t row = 0; row < 4; ++row) {
        Row values;
        values.index = row + 2;
        values.cells.push_back(Cell{1, 0, 3 + row, NoFormula, 0.0, CellType::String});
        values.cells.push_back(Cell{2, 0, 0, NoFormula, sales[row][0], CellType::Number});
        values.cells.push_back(Cell{3, 0, 0, NoFormula, sales[row][1], CellType::Number});
        sheet.rows.push_back(values);
    }
    DrawingShape note;
    note.id = 2;
    note.name = "TextBox 1";
    note.from = CellAnchor{4, 0, 0, 0};
    note.to = CellAnchor{7, 0, 3, 0};
    note.x = 2438400;
    note.width = 1828800;
    note.height = 571500;
    note.fill = Color{Color::Kind::Theme, 0, 0, 0.0};
    note.text.text = "Sales by region";
    sheet.shapes.push_back(note);
    sheet.shapes.push_back(Frame(3, "Chart 1", {4, 0, 4, 0}, {12, 0, 19, 0}, ColumnChart()));
    sheet.shapes.push_back(Frame(4, "Chart 2", {4, 0, 20, 0}, {12, 0, 35, 0}, LineChartWithTextBoxes()));
    document.sheets.push_back(std::move(sheet));
    return document;
}

class ChartPackageWriterTest : public ::testing::Test {
protected:
    void SetUp() override {
        path_ = folder_.File("charts.xlsx");
        WritePackage(ChartWorkbook(), path_);
    }

    // The target of a part's relationship with that id, checking its type.
    std::string Target(const std::string& rels, const std::string& id, const std::string& type) {
        auto xml = ParsePart(path_, rels);
        const pugi::xml_node relationship =
            xml->child("Relationships").find_child_by_attribute("Relationship", "Id", id.c_str());
        EXPECT_STREQ(relationship.attribute("Type").value(), type.c_str()) << rels << " " << id;
        return relationship.attribute("Target").value();
    }

    ScratchFolder folder_;
    std::string path_;
};

TEST_F(ChartPackageWriterTest, EachChartHasItsPartAndTheChartWithTextBoxesItsDrawing) {
    const std::string chartType = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/chart";
    auto drawing = ParsePart(path_, "xl/drawings/drawing1.xml");
    std::vector<std::string> charts;
    for (const pugi::xpath_node chart : drawing->select_nodes("//c:chart")) {
        charts.push_back(
            Target("xl/drawings/_rels/drawing1.xml.rels", chart.node().attribute("r:id").value(), chartType));
    }
    EXPECT_THAT(charts, ::testing::ElementsAre("../charts/chart1.xml", "../charts/chart2.xml"));
    EXPECT_TRUE(drawing->select_node("/xdr:wsDr/xdr:twoCellAnchor[1]/xdr:sp")) << "the text box stays at the bottom";

    EXPECT_FALSE(ParsePart(path_, "xl/charts/chart1.xml")->select_node("//c:userShapes"));
    EXPECT_FALSE(ZipEntry(path_, "xl/charts/_rels/chart1.xml.rels"));
    auto chart2 = ParsePart(path_, "xl/charts/chart2.xml");
    const std::string userShapes = chart2->select_node("//c:userShapes").node().attribute("r:id").value();
    EXPECT_EQ(Target("xl/charts/_rels/chart2.xml.rels", userShapes,
                     "http://schemas.openxmlformats.org/officeDocument/2006/relationships/chartUserShapes"),
              "../drawings/drawing2.xml");
    EXPECT_EQ(ParsePart(path_, "xl/drawings/drawing2.xml")->select_nodes("/c:userShapes/cdr:relSizeAnchor").size(), 2u);
}

TEST_F(ChartPackageWriterTest, ChartsAndChartDrawingsHaveTheirContentTypes) {
    auto types = ParsePart(path_, "[Content_Types].xml");
    const pugi::xml_node root = types->child("Types");
    const auto contentType = [&](const char* part) {
        return std::string(root.find_child_by_attribute("Override", "PartName", part).attribute("ContentType").value());
    };
    EXPECT_EQ(contentType("/xl/charts/chart1.xml"),
              "application/vnd.openxmlformats-officedocument.drawingml.chart+xml");
    EXPECT_EQ(contentType("/xl/charts/chart2.xml"),
              "application/vnd.openxmlformats-officedocument.drawingml.chart+xml");
    EXPECT_EQ(contentType("/xl/drawings/drawing1.xml"), "application/vnd.openxmlformats-officedocument.drawing+xml");
    EXPECT_EQ(contentType("/xl/drawings/drawing2.xml"),
              "application/vnd.openxmlformats-officedocument.drawingml.chartshapes+xml");
}

TEST_F(ChartPackageWriterTest, PassesSchemaValidation) {
    std::string output;
    const int status = RunCommand(std::string(VOS_SHARED_DIR "/tools/validate-xlsx ") + path_, output, folder_);
    EXPECT_EQ(status, 0) << output;
    EXPECT_THAT(output, Not(HasSubstr("FAIL"))) << output;
    // The style's alternate content is checked through its fallback (PASS*).
    EXPECT_THAT(output, HasSubstr("xl/charts/chart1.xml  [dml-chart.xsd]")) << output;
    EXPECT_THAT(output, HasSubstr("xl/charts/chart2.xml  [dml-chart.xsd]")) << output;
    EXPECT_THAT(output, HasSubstr("PASS  xl/drawings/drawing2.xml  [dml-chart.xsd]")) << output;
}

TEST_F(ChartPackageWriterTest, PassesTheLogicalChecks) {
    std::string output;
    const int status = RunCommand(std::string(VOS_SHARED_DIR "/tools/check-xlsx ") + path_, output, folder_);
    EXPECT_EQ(status, 0) << output;
    EXPECT_THAT(output, Not(HasSubstr("ERROR"))) << output;
}

TEST_F(ChartPackageWriterTest, OpenpyxlReadsTheSeriesAndTitlesBack) {
    const std::string script = folder_.File("check.py");
    std::ofstream(script) << R"PY(
import sys, openpyxl
ws = openpyxl.load_workbook(sys.argv[1])["Data"]
columns, line = ws._charts
assert columns.type == "col" and columns.grouping == "clustered", (columns.type, columns.grouping)
assert columns.gapWidth == 75 and columns.overlap == 10
assert [s.tx.strRef.f for s in columns.series] == ["Data!$B$1", "Data!$C$1"]
assert [s.cat.strRef.f for s in columns.series] == ["Data!$A$2:$A$5"] * 2
assert [s.val.numRef.f for s in columns.series] == ["Data!$B$2:$B$5", "Data!$C$2:$C$5"]
assert [p.v for p in columns.series[0].val.numRef.numCache.pt] == [120, 85, 150, 42.5]
runs = columns.title.tx.rich.p[0].r
assert [r.t for r in runs] == ["Regional sales", "\nby quarter "], [r.t for r in runs]
assert runs[0].rPr.b and runs[0].rPr.sz == 1200 and not runs[1].rPr.b and runs[1].rPr.sz == 800
assert columns.y_axis.scaling.min == 0 and columns.y_axis.scaling.max == 200 and columns.y_axis.majorUnit == 50
assert columns.y_axis.numFmt.formatCode == "#,##0" and not columns.y_axis.numFmt.sourceLinked
assert columns.y_axis.title.tx.rich.p[0].r[0].t == "Units"
assert columns.legend.legendPos == "r" and columns.legend.spPr.ln.w == 12700
assert columns.series[1].spPr.gradFill.lin.ang == 8100000
assert line.series[0].tx.v == "Sales 2024" and line.series[0].val.numRef.f == "Data!$C$2:$C$5"
assert line.series[0].marker.symbol == "diamond" and line.series[0].marker.size == 7
print("ok")
)PY";
    std::string output;
    const int status = RunCommand("/usr/bin/python3 " + script + " " + path_, output, folder_);
    EXPECT_EQ(status, 0) << output;
    EXPECT_THAT(output, HasSubstr("ok")) << output;
}

TEST_F(ChartPackageWriterTest, TheChartReaderReadsTheChartsBack) {
    const WorkbookDocument read = ReadPackage(path_, ReadOptions{true});
    ASSERT_EQ(read.sheets.size(), 1u);
    const std::vector<DrawingShape>& shapes = read.sheets[0].shapes;
    ASSERT_EQ(shapes.size(), 3u);
    EXPECT_FALSE(shapes[0].chart);
    ASSERT_TRUE(shapes[1].chart);
    ASSERT_TRUE(shapes[2].chart);
    EXPECT_EQ(shapes[1].editAs, "oneCell");
    const ChartDocument expected = ColumnChart();
    const ChartDocument& columns = *shapes[1].chart;
    ASSERT_EQ(columns.plotArea.groups.size(), 1u);
    const ChartGroup& group = columns.plotArea.groups[0];
    ASSERT_EQ(group.series.size(), 2u);
    for (std::size_t i = 0; i < 2; ++i) {
        const ChartSeries& wrote = expected.plotArea.groups[0].series[i];
        EXPECT_EQ(group.series[i].nameReference, wrote.nameReference) << i;
        EXPECT_EQ(group.series[i].categories, wrote.categories) << i;
        EXPECT_EQ(group.series[i].values, wrote.values) << i;
        EXPECT_EQ(group.series[i].shape.fill, wrote.shape.fill) << i;
    }
    EXPECT_EQ(group.gapWidth, 75);
    EXPECT_EQ(group.overlap, 10);
    ASSERT_TRUE(columns.title);
    EXPECT_EQ(columns.title->runs, expected.title->runs);
    ASSERT_EQ(columns.plotArea.axes.size(), 2u);
    EXPECT_EQ(columns.plotArea.axes[1].maximum, 200.0);
    EXPECT_EQ(columns.plotArea.axes[1].numberFormat, expected.plotArea.axes[1].numberFormat);
    EXPECT_EQ(columns.legend->shape.line, expected.legend->shape.line);
    const ChartDocument& line = *shapes[2].chart;
    EXPECT_EQ(line.style, 26);
    ASSERT_EQ(line.shapes.size(), 2u);
    EXPECT_EQ(line.shapes[0].shape.text.text, "DRAFT\nnot for release");
    EXPECT_DOUBLE_EQ(line.shapes[1].fromY, 0.6);
}

TEST(ChartPackageWriter, RefusesAChartItCannotWrite) {
    WorkbookDocument document = ChartWorkbook();
    ChartDocument pie = ColumnChart();
    pie.plotArea.groups[0].type = "pieChart";
    document.sheets[0].shapes[1].chart = std::make_shared<const ChartDocument>(pie);
    ScratchFolder folder;
    EXPECT_THROW(WritePackage(document, folder.File("pie.xlsx")), PackageError);
}

}  // namespace
