// Charts of workbooks written by Excel, read into chart documents with what their parts say.

#include "ooxml/chart/chart_reader.hpp"
#include "ooxml/document/chart_document.hpp"
#include "ooxml/opc/package_reader.hpp"
#include "ooxml/package_error.hpp"
#include "ooxml/reader_test_package.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>

namespace {

using ooxml::ChartData;
using ooxml::ChartDocument;
using ooxml::ChartFill;
using ooxml::ChartLine;
using ooxml::Color;

const std::string CorpusDir = VOS_SHARED_DIR "/excel-corpus/";

ooxml::WorkbookDocument ReadWithCharts(const std::string& path) {
    return ooxml::ReadPackage(path, ooxml::ReadOptions{.readCharts = true});
}

// The charts of every sheet's drawing, sheet by sheet, in z-order.
std::vector<std::shared_ptr<const ChartDocument>> Charts(const ooxml::WorkbookDocument& workbook) {
    std::vector<std::shared_ptr<const ChartDocument>> charts;
    for (const ooxml::SheetDocument& sheet : workbook.sheets) {
        for (const ooxml::DrawingShape& shape : sheet.shapes) {
            if (shape.chart) {
                charts.push_back(shape.chart);
            }
        }
    }
    return charts;
}

// The only chart of a corpus file.
ChartDocument OnlyChart(const std::string& relativePath) {
    const auto charts = Charts(ReadWithCharts(CorpusDir + relativePath));
    EXPECT_EQ(charts.size(), 1u) << relativePath;
    return charts.empty() ? ChartDocument{} : *charts.front();
}

ChartDocument XlsxWriterChart(const std::string& name) {
    return OnlyChart("charts-xlsxwriter/xw__" + name + ".xlsx");
}

Color Rgb(uint32_t rgb) {
    return Color{Color::Kind::Rgb, 0xFF000000u | rgb, 0, 0.0};
}

std::string RunsText(const std::vector<ooxml::ChartTextRun>& runs) {
    std::string text;
    for (const ooxml::ChartTextRun& run : runs) {
        text += run.text;
    }
    return text;
}

TEST(ExcelCorpusChartReaderTest, ClusteredColumnOfExcel2007TakesExcelsDefaultsForWhatItLeavesOut) {
    const ChartDocument chart = XlsxWriterChart("chart_column01");
    EXPECT_FALSE(chart.date1904);
    EXPECT_EQ(chart.language, "en-US");
    EXPECT_FALSE(chart.roundedCorners);
    EXPECT_EQ(chart.style, 2);
    EXPECT_FALSE(chart.title);
    EXPECT_FALSE(chart.autoTitleDeleted);
    ASSERT_EQ(chart.plotArea.groups.size(), 1u);
    const ooxml::ChartGroup& group = chart.plotArea.groups[0];
    EXPECT_EQ(group.type, "barChart");
    EXPECT_EQ(group.barDirection, "col");
    EXPECT_EQ(group.grouping, "clustered");
    EXPECT_FALSE(group.varyColors);
    EXPECT_EQ(group.gapWidth, 150);
    EXPECT_EQ(group.overlap, 0);
    EXPECT_EQ(group.axisIds, (std::vector<uint32_t>{43424000, 43434368}));
    ASSERT_EQ(group.series.size(), 3u);
    const ooxml::ChartSeries& second = group.series[1];
    EXPECT_EQ(second.index, 1u);
    EXPECT_EQ(second.order, 1u);
    EXPECT_FALSE(second.nameText);
    EXPECT_EQ(second.nameReference.kind, ChartData::Kind::None);
    EXPECT_FALSE(second.invertIfNegative);
    EXPECT_TRUE(second.shape.Automatic());
    EXPECT_EQ(second.categories.kind, ChartData::Kind::None);
    EXPECT_EQ(second.values.kind, ChartData::Kind::NumberReference);
    EXPECT_EQ(second.values.formula, "Sheet1!$B$1:$B$5");
    EXPECT_EQ(second.values.formatCode, "General");
    EXPECT_EQ(second.values.pointCount, 5u);
    EXPECT_EQ(second.values.points,
              (std::vector<std::pair<uint32_t, std::string>>{{0, "2"}, {1, "4"}, {2, "6"}, {3, "8"}, {4, "10"}}));

    ASSERT_EQ(chart.plotArea.axes.size(), 2u);
    const ooxml::ChartAxis& category = chart.plotArea.axes[0];
    EXPECT_EQ(category.type, "catAx");
    EXPECT_EQ(category.id, 43424000u);
    EXPECT_EQ(category.crossAxisId, 43434368u);
    EXPECT_FALSE(category.deleted);
    EXPECT_EQ(category.position, "b");
    EXPECT_EQ(category.majorTickMark, "out") << "Excel 2007 leaves out its default, not the schema's cross";
    EXPECT_EQ(category.minorTickMark, "none");
    EXPECT_EQ(category.tickLabelPosition, "nextTo");
    EXPECT_EQ(category.crosses, "autoZero");
    EXPECT_TRUE(category.automatic);
    EXPECT_EQ(category.labelAlignment, "ctr");
    EXPECT_EQ(category.labelOffset, 100u);
    EXPECT_FALSE(category.numberFormat);
    const ooxml::ChartAxis& value = chart.plotArea.axes[1];
    EXPECT_EQ(value.type, "valAx");
    EXPECT_EQ(value.position, "l");
    ASSERT_TRUE(value.majorGridlines);
    EXPECT_TRUE(value.majorGridlines->Automatic());
    EXPECT_FALSE(value.minorGridlines);
    EXPECT_EQ(value.numberFormat, (ooxml::ChartNumberFormat{"General", true}));
    EXPECT_EQ(value.crossBetween, "between");

    ASSERT_TRUE(chart.legend);
    EXPECT_EQ(chart.legend->position, "r");
    EXPECT_FALSE(chart.legend->overlay);
    ASSERT_EQ(chart.legend->carried.size(), 1u);
    EXPECT_EQ(chart.legend->carried[0].name, "layout");
    EXPECT_TRUE(chart.plotVisibleOnly);
    EXPECT_EQ(chart.displayBlanksAs, "gap");
    // The plot area's layout and the print settings are kept as written.
    ASSERT_EQ(chart.plotArea.carried.size(), 1u);
    EXPECT_EQ(chart.plotArea.carried[0].xml, "<c:layout/>");
    ASSERT_EQ(chart.carried.elements.size(), 1u);
    EXPECT_EQ(chart.carried.elements[0].name, "printSettings");
    EXPECT_TRUE(chart.carried.rootAttributes.empty()) << "the c, a and r declarations are the writer's";
}

TEST(ExcelCorpusChartReaderTest, GapOverlapStackedBarsAndCrossing) {
    const ChartDocument gap = XlsxWriterChart("chart_gap01");
    EXPECT_EQ(gap.plotArea.groups.at(0).gapWidth, 157);
    EXPECT_EQ(gap.plotArea.groups.at(0).overlap, 5);

    const ChartDocument stacked = XlsxWriterChart("chart_bar09");
    EXPECT_EQ(stacked.plotArea.groups.at(0).barDirection, "bar");
    EXPECT_EQ(stacked.plotArea.groups.at(0).grouping, "stacked");
    EXPECT_EQ(stacked.plotArea.groups.at(0).overlap, 100);

    const ChartDocument crossing = XlsxWriterChart("chart_crossing02");
    ASSERT_EQ(crossing.plotArea.axes.size(), 2u);
    EXPECT_EQ(crossing.plotArea.axes[0].crossesAt, 8.0);
    const ChartDocument maximum = XlsxWriterChart("chart_crossing01");
    EXPECT_EQ(maximum.plotArea.axes.at(0).crosses, "max");
}

TEST(ExcelCorpusChartReaderTest, AxisScalingFormatsRotationAndDeletion) {
    const ChartDocument reversed = XlsxWriterChart("chart_axis09");
    EXPECT_EQ(reversed.plotArea.axes.at(0).orientation, "maxMin");
    const ChartDocument bounded = XlsxWriterChart("chart_axis12");
    EXPECT_TRUE(bounded.plotArea.axes.at(1).maximum || bounded.plotArea.axes.at(1).minimum);
    const ChartDocument rotated = XlsxWriterChart("chart_axis29");
    EXPECT_EQ(rotated.plotArea.axes.at(0).textProperties.rotation, -5400000);
    EXPECT_EQ(rotated.plotArea.axes.at(0).textProperties.vertical, "horz");
    EXPECT_FALSE(rotated.plotArea.axes.at(0).textProperties.markup.empty());
    const ChartDocument low = XlsxWriterChart("chart_axis19");
    bool lowLabels = false;
    for (const ooxml::ChartAxis& axis : low.plotArea.axes) {
        lowLabels |= axis.tickLabelPosition == "low";
    }
    EXPECT_TRUE(lowLabels);
    const ChartDocument deleted = XlsxWriterChart("chart_axis50");
    EXPECT_TRUE(deleted.plotArea.axes.at(1).deleted);
}

TEST(ExcelCorpusChartReaderTest, SecondaryAxesOfExcel2013WithTheirFormatting) {
    const ChartDocument chart = OnlyChart("realworld-excel/poi__57362.xlsx");
    EXPECT_FALSE(chart.roundedCorners);
    EXPECT_EQ(chart.style, 2) << "the fallback of the 2010 style";
    ASSERT_FALSE(chart.carried.elements.empty());
    EXPECT_EQ(chart.carried.elements[0].name, "AlternateContent");
    ASSERT_TRUE(chart.title);
    EXPECT_TRUE(chart.title->runs.empty()) << "an automatic title";
    EXPECT_EQ(chart.title->textProperties.rotation, 0);
    EXPECT_EQ(chart.title->textProperties.font.size, 14.0);
    EXPECT_EQ(chart.title->textProperties.font.bold, false);
    EXPECT_EQ(chart.title->textProperties.font.name, "+mn-lt");
    EXPECT_EQ(chart.title->textProperties.font.color, (Color{Color::Kind::Theme, 0, 1, 0.35}));
    EXPECT_EQ(chart.title->shape.fill.kind, ChartFill::Kind::None);
    EXPECT_EQ(chart.title->shape.line.kind, ChartLine::Kind::None);
    EXPECT_NE(chart.title->shape.markup.find("<a:effectLst/>"), std::string::npos);

    ASSERT_EQ(chart.plotArea.groups.size(), 2u);
    const ooxml::ChartGroup& bars = chart.plotArea.groups[0];
    EXPECT_EQ(bars.gapWidth, 219);
    EXPECT_EQ(bars.overlap, -27);
    ASSERT_EQ(bars.carried.size(), 1u);
    EXPECT_EQ(bars.carried[0].name, "dLbls");
    const ooxml::ChartSeries& bar = bars.series.at(0);
    EXPECT_EQ(bar.shape.fill.kind, ChartFill::Kind::Solid);
    EXPECT_EQ(bar.shape.fill.color, (Color{Color::Kind::Theme, 0, 4, 0.0}));
    EXPECT_EQ(bar.categories.kind, ChartData::Kind::StringReference);
    EXPECT_EQ(bar.categories.formula, "Sheet1!$A$1:$B$1");
    EXPECT_EQ(bar.categories.points, (std::vector<std::pair<uint32_t, std::string>>{{0, "Column1"}, {1, "Column 2"}}));

    const ooxml::ChartGroup& lines = chart.plotArea.groups[1];
    EXPECT_EQ(lines.type, "lineChart");
    EXPECT_EQ(lines.grouping, "standard");
    EXPECT_TRUE(lines.showMarkers);
    const ooxml::ChartSeries& line = lines.series.at(0);
    ASSERT_TRUE(line.marker);
    EXPECT_EQ(line.marker->symbol, "none");
    EXPECT_EQ(line.shape.line.kind, ChartLine::Kind::Solid);
    EXPECT_EQ(line.shape.line.width, 28575);
    EXPECT_EQ(line.shape.line.color, (Color{Color::Kind::Theme, 0, 5, 0.0}));
    EXPECT_FALSE(line.smooth);

    ASSERT_EQ(chart.plotArea.axes.size(), 4u);
    EXPECT_EQ(chart.plotArea.axes[0].majorTickMark, "none");
    EXPECT_EQ(chart.plotArea.axes[0].textProperties.rotation, -60000000);
    EXPECT_EQ(chart.plotArea.axes[0].textProperties.font.size, 9.0);
    ASSERT_TRUE(chart.plotArea.axes[1].title);
    EXPECT_EQ(chart.plotArea.axes[1].title->textProperties.rotation, -5400000);
    const ooxml::ChartAxis& secondaryValue = chart.plotArea.axes[2];
    EXPECT_EQ(secondaryValue.type, "valAx");
    EXPECT_EQ(secondaryValue.id, 332150872u);
    EXPECT_EQ(secondaryValue.position, "r");
    EXPECT_EQ(secondaryValue.crosses, "max");
    EXPECT_EQ(secondaryValue.majorTickMark, "out");
    const ooxml::ChartAxis& secondaryCategory = chart.plotArea.axes[3];
    EXPECT_EQ(secondaryCategory.type, "catAx");
    EXPECT_TRUE(secondaryCategory.deleted);
    EXPECT_EQ(secondaryCategory.crossAxisId, 332150872u);
}

TEST(ExcelCorpusChartReaderTest, ScatterWithBoundsUnitsAndFormatsOnBothValueAxes) {
    const ChartDocument chart = OnlyChart("realworld-excel/poi__DataTableCities.xlsx");
    const ooxml::ChartGroup& group = chart.plotArea.groups.at(0);
    EXPECT_EQ(group.type, "scatterChart");
    EXPECT_EQ(group.scatterStyle, "lineMarker");
    const ooxml::ChartSeries& cities = group.series.at(0);
    EXPECT_EQ(cities.nameReference.kind, ChartData::Kind::StringReference);
    EXPECT_EQ(cities.nameReference.formula, "Table!$C$1");
    EXPECT_EQ(cities.nameReference.points, (std::vector<std::pair<uint32_t, std::string>>{{0, "Big Cities"}}));
    EXPECT_EQ(cities.shape.line.kind, ChartLine::Kind::None);
    EXPECT_EQ(cities.shape.line.width, 25400);
    ASSERT_TRUE(cities.marker);
    EXPECT_EQ(cities.marker->symbol, "circle");
    EXPECT_EQ(cities.marker->size, 5u);
    EXPECT_EQ(cities.categories.kind, ChartData::Kind::NumberReference) << "the X values";
    EXPECT_EQ(cities.values.kind, ChartData::Kind::NumberReference);

    ASSERT_EQ(chart.plotArea.axes.size(), 2u);
    const ooxml::ChartAxis& x = chart.plotArea.axes[0];
    EXPECT_EQ(x.maximum, 180.0);
    EXPECT_EQ(x.minimum, -180.0);
    EXPECT_EQ(x.majorUnit, 60.0);
    EXPECT_EQ(x.numberFormat, (ooxml::ChartNumberFormat{"0\"°\"", false}));
    const ooxml::ChartAxis& y = chart.plotArea.axes[1];
    EXPECT_EQ(y.maximum, 90.0);
    EXPECT_EQ(y.minimum, -90.0);
    EXPECT_EQ(y.majorUnit, 30.0);
    EXPECT_EQ(y.crossesAt, -180.0);
}

TEST(ExcelCorpusChartReaderTest, NoTitleNoLegendAndAnAutomaticPlotAreaOfExcel2013) {
    const ChartDocument chart = OnlyChart("realworld-excel/poi__chartTitle_noTitle.xlsx");
    EXPECT_FALSE(chart.title);
    EXPECT_TRUE(chart.autoTitleDeleted);
    EXPECT_FALSE(chart.legend);
    EXPECT_EQ(chart.plotArea.shape.fill.kind, ChartFill::Kind::None);
    EXPECT_EQ(chart.plotArea.shape.line.kind, ChartLine::Kind::None);
    EXPECT_EQ(chart.displayBlanksAs, "gap");
    ASSERT_FALSE(chart.chartCarried.empty());
    EXPECT_EQ(chart.chartCarried.back().name, "showDLblsOverMax");
}

TEST(ExcelCorpusChartReaderTest, LegacyFormattingOfExcel2007Gradients) {
    const ChartDocument chart = OnlyChart("realworld-excel/oxsdk__NOV.xlsx");
    const ooxml::ChartGroup& group = chart.plotArea.groups.at(0);
    EXPECT_EQ(group.barDirection, "bar");
    EXPECT_EQ(group.grouping, "stacked");
    const ooxml::ChartSeries& series = group.series.at(0);
    EXPECT_EQ(series.nameReference.formula, "Sheet1!$A$1");
    const ChartFill& fill = series.shape.fill;
    EXPECT_EQ(fill.kind, ChartFill::Kind::Gradient);
    EXPECT_FALSE(fill.rotateWithShape);
    ASSERT_EQ(fill.stops.size(), 3u);
    EXPECT_EQ(fill.stops[1].position, 35001);
    EXPECT_EQ(fill.stops[1].color, Rgb(0xBFD5FF));
    EXPECT_EQ(fill.angle, 16200000);
    EXPECT_TRUE(fill.scaled);
    EXPECT_EQ(series.shape.line.kind, ChartLine::Kind::Solid);
    EXPECT_EQ(series.shape.line.width, 3175);
    EXPECT_EQ(series.shape.line.color, Rgb(0x666699));
    EXPECT_EQ(series.shape.line.dash, "solid");
    EXPECT_NE(series.shape.markup.find("outerShdw"), std::string::npos) << "the shadow is kept in the markup";

    const ooxml::ChartAxis& category = chart.plotArea.axes.at(0);
    EXPECT_EQ(category.majorTickMark, "out");
    EXPECT_EQ(category.textProperties.rotation, 0);
    EXPECT_EQ(category.textProperties.font.bold, true);
    EXPECT_EQ(category.textProperties.font.name, "Calibri");
    EXPECT_EQ(category.textProperties.font.color, Rgb(0x333333));
    ASSERT_TRUE(chart.legend);
    EXPECT_EQ(chart.legend->shape.line.kind, ChartLine::Kind::None);
    EXPECT_EQ(chart.legend->shape.line.width, 25400);
    EXPECT_EQ(chart.legend->textProperties.font.size, 10.1);
}

TEST(ExcelCorpusChartReaderTest, ExplicitMarkersOfALegacyLineChart) {
    const auto charts = Charts(ReadWithCharts(CorpusDir + "realworld-excel/oxsdk__ForTestCase__Bug539654_529755.xlsm"));
    bool diamond = false;
    for (const auto& chart : charts) {
        for (const ooxml::ChartGroup& group : chart->plotArea.groups) {
            for (const ooxml::ChartSeries& series : group.series) {
                if (series.marker && series.marker->symbol == "diamond") {
                    diamond = true;
                    EXPECT_EQ(series.marker->size, 5u);
                    EXPECT_EQ(series.marker->shape.fill.kind, ChartFill::Kind::Solid);
                    EXPECT_EQ(series.marker->shape.line.kind, ChartLine::Kind::Solid);
                    EXPECT_EQ(series.shape.line.width, 12700);
                }
            }
        }
    }
    EXPECT_TRUE(diamond);
}

// The chart is on a chart sheet, which stays carried: its part is read alone.
TEST(ExcelCorpusChartReaderTest, TwoRunTitleWithALineFeedInsideTheSecondRun) {
    const ooxml_test::PackageParts parts = ooxml_test::ReadPackageParts(CorpusDir + "realworld-excel/poi__57181.xlsm");
    const std::optional<ChartDocument> chart = ooxml::ReadChart(parts.at("xl/charts/chart1.xml"), {});
    ASSERT_TRUE(chart);
    ASSERT_TRUE(chart->title);
    const ooxml::ChartTitle& title = *chart->title;
    EXPECT_TRUE(RunsText(title.runs).starts_with("Aufgliederung"));
    ASSERT_EQ(title.runs.size(), 2u);
    EXPECT_EQ(title.runs[0].font.size, 11.0);
    EXPECT_EQ(title.runs[0].font.bold, true);
    EXPECT_EQ(title.runs[0].font.name, "Arial");
    EXPECT_EQ(title.runs[1].font.bold, false);
    EXPECT_TRUE(title.runs[1].text.starts_with("\n7:00 bis 22:00")) << "the line feed stays in its run";
    // The empty paragraph Excel ends the title with becomes a line feed after the text.
    EXPECT_TRUE(title.runs[1].text.ends_with("2015\n"));
    EXPECT_EQ(title.paragraphFont.size, 10.0);
    EXPECT_EQ(title.paragraphFont.bold, false);
    EXPECT_FALSE(title.richMarkup.empty());
    EXPECT_FALSE(title.overlay);
    ASSERT_EQ(title.carried.size(), 1u);
    EXPECT_EQ(title.carried[0].name, "layout");
    EXPECT_FALSE(chart->autoTitleDeleted);
}

// Every chart part of the corpus reads, into a document or, when it cannot be, kept as it is.
TEST(ExcelCorpusChartReaderTest, EveryChartOfTheCorpusReadsOrStaysCarried) {
    std::size_t read = 0;
    std::size_t carried = 0;
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(CorpusDir)) {
        const std::string extension = entry.path().extension().string();
        if (!entry.is_regular_file() || extension.size() != 5 || !extension.starts_with(".xl")) {
            continue;
        }
        ooxml::WorkbookDocument workbook;
        try {
            workbook = ReadWithCharts(entry.path().string());
        } catch (const ooxml::PackageError&) {
            continue;  // the corpus's broken packages, refused as without charts
        }
        ++files;
        read += Charts(workbook).size();
        for (const auto& [name, part] : workbook.carried->parts) {
            carried += part.contentType == "application/vnd.openxmlformats-officedocument.drawingml.chart+xml";
        }
    }
    std::cout << "[ corpus   ] " << files << " workbooks: " << read << " chart frames read into documents, " << carried
              << " chart parts carried\n";
    EXPECT_GT(read, 200u);
}

}  // namespace
