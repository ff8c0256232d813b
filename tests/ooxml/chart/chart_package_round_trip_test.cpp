// Excel-made workbooks with charts, read with their charts read into documents and written again:
// the charts come back as Excel wrote them, keeping the parts their relationships lead to (chart
// styles and colours) under their ids, and the package passes the conformance tools.

#include "ooxml/chart/chart_writer_test_support.hpp"
#include "ooxml/opc/package_reader.hpp"
#include "ooxml/opc/package_writer.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <set>

namespace {

using namespace ooxml;
using namespace writer_test;
using ::testing::HasSubstr;
using ::testing::Not;

struct ExcelChart {
    const char* file;
    // What the written chart holds beyond Excel's: the defaults Excel 2010 spells out, for a chart
    // of Excel 2007, and the crossing the reader gives an axis that has none.
    std::set<std::string> beyondExcels;
};

void PrintTo(const ExcelChart& chart, std::ostream* out) {
    *out << chart.file;
}

class ChartPackageRoundTripTest : public ::testing::TestWithParam<ExcelChart> {
protected:
    void SetUp() override {
        original_ = std::string(VOS_SHARED_DIR "/excel-corpus/") + GetParam().file;
        path_ = folder_.File("round-trip.xlsx");
        const WorkbookDocument document = ReadPackage(original_, ReadOptions{true});
        bool readChart = false;
        for (const SheetDocument& sheet : document.sheets) {
            for (const DrawingShape& shape : sheet.shapes) {
                readChart = readChart || shape.chart != nullptr;
            }
        }
        ASSERT_TRUE(readChart) << "no chart was read";
        WritePackage(document, path_);
    }

    ScratchFolder folder_;
    std::string original_;
    std::string path_;
};

TEST_P(ChartPackageRoundTripTest, TheChartIsWrittenAsExcelWroteIt) {
    auto excel = ParsePart(original_, "xl/charts/chart1.xml");
    auto ours = ParsePart(path_, "xl/charts/chart1.xml");
    EXPECT_TRUE(
        chart_test::EmbedsAllowing(excel->child("c:chartSpace"), ours->child("c:chartSpace"), GetParam().beyondExcels));
}

TEST_P(ChartPackageRoundTripTest, TheChartKeepsItsRelationshipsAndThePartsTheyLeadTo) {
    const std::string rels = "xl/charts/_rels/chart1.xml.rels";
    if (!ZipEntry(original_, rels)) {
        EXPECT_FALSE(ZipEntry(path_, rels));
        return;
    }
    auto excel = ParsePart(original_, rels);
    auto ours = ParsePart(path_, rels);
    for (const pugi::xml_node relationship : excel->child("Relationships").children("Relationship")) {
        const pugi::xml_node kept =
            ours->child("Relationships")
                .find_child_by_attribute("Relationship", "Id", relationship.attribute("Id").value());
        EXPECT_STREQ(kept.attribute("Type").value(), relationship.attribute("Type").value());
        EXPECT_STREQ(kept.attribute("Target").value(), relationship.attribute("Target").value());
        const std::string part = std::string("xl/charts/") + relationship.attribute("Target").value();
        EXPECT_EQ(ZipEntry(path_, part), ZipEntry(original_, part)) << part;
    }
}

TEST_P(ChartPackageRoundTripTest, PassesSchemaValidation) {
    std::string output;
    const int status = RunCommand(std::string(VOS_SHARED_DIR "/tools/validate-xlsx ") + path_, output, folder_);
    EXPECT_EQ(status, 0) << output;
    EXPECT_THAT(output, Not(HasSubstr("FAIL"))) << output;
}

TEST_P(ChartPackageRoundTripTest, PassesTheLogicalChecks) {
    std::string output;
    const int status = RunCommand(std::string(VOS_SHARED_DIR "/tools/check-xlsx ") + path_, output, folder_);
    EXPECT_EQ(status, 0) << output;
    EXPECT_THAT(output, Not(HasSubstr("ERROR"))) << output;
}

INSTANTIATE_TEST_SUITE_P(
    ExcelCharts, ChartPackageRoundTripTest,
    ::testing::Values(ExcelChart{"realworld-excel/poi__57362.xlsx", {"c:crosses"}},
                      ExcelChart{"realworld-excel/poi__chartTitle_noTitle.xlsx", {}},
                      ExcelChart{"realworld-excel/oxsdk__OFCAT__00D4EE78301DA16F3BF92631CA9B68E6.xlsx", {}},
                      ExcelChart{"charts-xlsxwriter/xw__chart_column01.xlsx", chart_test::DefaultsSpelledOut()},
                      ExcelChart{"charts-xlsxwriter/xw__chart_font03.xlsx", chart_test::DefaultsSpelledOut()},
                      ExcelChart{"charts-xlsxwriter/xw__chart_scatter03.xlsx", chart_test::DefaultsSpelledOut()},
                      ExcelChart{"charts-xlsxwriter/xw__chart_crossing02.xlsx", chart_test::DefaultsSpelledOut()},
                      ExcelChart{"charts-xlsxwriter/xw__chart_format07.xlsx", chart_test::DefaultsSpelledOut()}));

// The chart sheet of the opened file stays a carried part with its drawing and chart; a chart
// added on the worksheet takes the next free names.
TEST(ChartPackageRoundTrip, ANewChartTakesNamesBesideTheCarriedParts) {
    const std::string original = VOS_SHARED_DIR "/excel-corpus/realworld-excel/poi__WithChartSheet.xlsx";
    WorkbookDocument document = ReadPackage(original, ReadOptions{true});
    ASSERT_FALSE(document.sheets.empty());
    ChartDocument chart = chart_test::ChartOf(chart_test::GroupOfColumns("barChart", {"Sheet1!$A$1:$A$5"}, 1, 2),
                                              chart_test::CategoryAxis(1, 2), chart_test::ValueAxis(2, 1));
    chart.shapes.push_back(ChartShape{0.1, 0.1, 0.5, 0.3, DrawingShape{}});
    DrawingShape frame;
    frame.name = "Chart 1";
    frame.to = CellAnchor{8, 0, 15, 0};
    frame.chart = std::make_shared<const ChartDocument>(std::move(chart));
    document.sheets[0].shapes.push_back(frame);
    ScratchFolder folder;
    const std::string path = folder.File("added.xlsx");
    WritePackage(document, path);

    for (const char* kept : {"xl/charts/chart1.xml", "xl/drawings/drawing1.xml", "xl/chartsheets/sheet1.xml"}) {
        EXPECT_EQ(ZipEntry(path, kept), ZipEntry(original, kept)) << kept;
    }
    auto rels = ParsePart(path, "xl/drawings/_rels/drawing2.xml.rels");
    EXPECT_STREQ(rels->child("Relationships").child("Relationship").attribute("Target").value(),
                 "../charts/chart2.xml");
    auto chartRels = ParsePart(path, "xl/charts/_rels/chart2.xml.rels");
    EXPECT_STREQ(chartRels->child("Relationships").child("Relationship").attribute("Target").value(),
                 "../drawings/drawing3.xml");
    std::string output;
    EXPECT_EQ(RunCommand(std::string(VOS_SHARED_DIR "/tools/validate-xlsx ") + path, output, folder), 0) << output;
    EXPECT_EQ(RunCommand(std::string(VOS_SHARED_DIR "/tools/check-xlsx ") + path, output, folder), 0) << output;
}

}  // namespace
