// A sheet drawing with charts, a text box and a picture, read with charts read into documents and
// without: what is read and what stays carried.

#include "ooxml/document/chart_document.hpp"
#include "ooxml/opc/package_reader.hpp"
#include "ooxml/reader_test_package.hpp"

#include <gtest/gtest.h>

namespace {

using ooxml_test::Relationship;
using ooxml_test::RelationshipsPart;

constexpr const char* Xdr = R"(xmlns:xdr="http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing" )"
                            R"(xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" )"
                            R"(xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships")";
constexpr const char* Corners = "<xdr:from><xdr:col>1</xdr:col><xdr:colOff>0</xdr:colOff><xdr:row>2</xdr:row>"
                                "<xdr:rowOff>0</xdr:rowOff></xdr:from><xdr:to><xdr:col>8</xdr:col><xdr:colOff>0</xdr:colOff>"
                                "<xdr:row>16</xdr:row><xdr:rowOff>0</xdr:rowOff></xdr:to>";

std::string ChartFrame(const std::string& anchor, const std::string& corners, int id, const std::string& relationshipId) {
    return "<xdr:" + anchor + R"( editAs="oneCell">)" + corners + R"(<xdr:graphicFrame macro=""><xdr:nvGraphicFramePr>)"
           R"(<xdr:cNvPr id=")" + std::to_string(id) + R"(" name="Chart )" + std::to_string(id - 1) +
           R"("/><xdr:cNvGraphicFramePr/></xdr:nvGraphicFramePr><xdr:xfrm><a:off x="0" y="0"/><a:ext cx="0" cy="0"/>)"
           R"(</xdr:xfrm><a:graphic><a:graphicData uri="http://schemas.openxmlformats.org/drawingml/2006/chart">)"
           R"(<c:chart xmlns:c="http://schemas.openxmlformats.org/drawingml/2006/chart" r:id=")" + relationshipId +
           R"("/></a:graphicData></a:graphic></xdr:graphicFrame><xdr:clientData/></xdr:)" + anchor + ">";
}

const std::string TextBox =
    std::string("<xdr:twoCellAnchor>") + Corners +
    R"(<xdr:sp macro="" textlink=""><xdr:nvSpPr><xdr:cNvPr id="3" name="TextBox 2"/><xdr:cNvSpPr txBox="1"/></xdr:nvSpPr>)"
    R"(<xdr:spPr/><xdr:txBody><a:bodyPr/><a:p><a:r><a:t>Note</a:t></a:r></a:p></xdr:txBody></xdr:sp><xdr:clientData/>)"
    "</xdr:twoCellAnchor>";

const std::string Picture = std::string("<xdr:twoCellAnchor>") + Corners +
                            R"(<xdr:pic><xdr:nvPicPr><xdr:cNvPr id="4" name="Picture 3"/><xdr:cNvPicPr/></xdr:nvPicPr>)"
                            R"(<xdr:blipFill><a:blip r:embed="rId2"/></xdr:blipFill><xdr:spPr/></xdr:pic>)"
                            "<xdr:clientData/></xdr:twoCellAnchor>";

const std::string ChartXml = R"(<c:chartSpace xmlns:c="http://schemas.openxmlformats.org/drawingml/2006/chart" )"
                             R"(xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" )"
                             R"(xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)"
                             R"(<c:chart><c:plotArea><c:layout/><c:barChart><c:barDir val="col"/><c:axId val="1"/><c:axId val="2"/></c:barChart>)"
                             R"(<c:catAx><c:axId val="1"/><c:scaling/><c:axPos val="b"/><c:crossAx val="2"/></c:catAx>)"
                             R"(<c:valAx><c:axId val="2"/><c:scaling/><c:axPos val="l"/><c:crossAx val="1"/></c:valAx>)"
                             R"(</c:plotArea></c:chart><c:userShapes r:id="rId2"/></c:chartSpace>)";

const std::string ChartShapes =
    R"(<c:userShapes xmlns:c="http://schemas.openxmlformats.org/drawingml/2006/chart" )"
    R"(xmlns:cdr="http://schemas.openxmlformats.org/drawingml/2006/chartDrawing" xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main">)"
    R"(<cdr:relSizeAnchor><cdr:from><cdr:x>0.1</cdr:x><cdr:y>0.2</cdr:y></cdr:from><cdr:to><cdr:x>0.3</cdr:x>)"
    R"(<cdr:y>0.4</cdr:y></cdr:to><cdr:sp macro="" textlink=""><cdr:nvSpPr><cdr:cNvPr id="2" name="TextBox 1"/>)"
    R"(<cdr:cNvSpPr txBox="1"/></cdr:nvSpPr><cdr:spPr/><cdr:txBody><a:bodyPr/><a:p><a:r><a:t>Inside</a:t></a:r></a:p>)"
    R"(</cdr:txBody></cdr:sp></cdr:relSizeAnchor></c:userShapes>)";

ooxml_test::PackageParts ChartPackage() {
    ooxml_test::PackageParts parts = ooxml_test::MinimalPackage(R"(<sheetData/><drawing r:id="rId1"/>)");
    parts["[Content_Types].xml"] = ooxml_test::ContentTypesPart(
        R"(<Default Extension="png" ContentType="image/png"/>)"
        R"(<Override PartName="/xl/workbook.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/>)"
        R"(<Override PartName="/xl/worksheets/sheet1.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml"/>)"
        R"(<Override PartName="/xl/drawings/drawing1.xml" ContentType="application/vnd.openxmlformats-officedocument.drawing+xml"/>)"
        R"(<Override PartName="/xl/drawings/drawing2.xml" ContentType="application/vnd.openxmlformats-officedocument.drawingml.chartshapes+xml"/>)"
        R"(<Override PartName="/xl/charts/chart1.xml" ContentType="application/vnd.openxmlformats-officedocument.drawingml.chart+xml"/>)"
        R"(<Override PartName="/xl/charts/chart2.xml" ContentType="application/vnd.openxmlformats-officedocument.drawingml.chart+xml"/>)"
        R"(<Override PartName="/xl/charts/style1.xml" ContentType="application/vnd.ms-office.chartstyle+xml"/>)");
    parts["xl/worksheets/_rels/sheet1.xml.rels"] = RelationshipsPart({Relationship("rId1", "drawing", "../drawings/drawing1.xml")});
    parts["xl/drawings/drawing1.xml"] = std::string("<xdr:wsDr ") + Xdr + ">" + ChartFrame("twoCellAnchor", Corners, 2, "rId1") +
                                        TextBox + Picture +
                                        ChartFrame("oneCellAnchor", "<xdr:from><xdr:col>1</xdr:col><xdr:colOff>0</xdr:colOff>"
                                                                    "<xdr:row>20</xdr:row><xdr:rowOff>0</xdr:rowOff></xdr:from>"
                                                                    R"(<xdr:ext cx="100" cy="100"/>)",
                                                   5, "rId3") +
                                        "</xdr:wsDr>";
    parts["xl/drawings/_rels/drawing1.xml.rels"] =
        RelationshipsPart({Relationship("rId1", "chart", "../charts/chart1.xml"), Relationship("rId2", "image", "../media/image1.png"),
                           Relationship("rId3", "chart", "../charts/chart2.xml")});
    parts["xl/media/image1.png"] = "png";
    parts["xl/charts/chart1.xml"] = ChartXml;
    parts["xl/charts/chart2.xml"] = ChartXml.substr(0, ChartXml.find("<c:userShapes")) + "</c:chartSpace>";
    const std::string style = Relationship("rId1", "http://schemas.microsoft.com/office/2011/relationships/chartStyle", "style1.xml");
    parts["xl/charts/_rels/chart1.xml.rels"] =
        RelationshipsPart({style, Relationship("rId2", "chartUserShapes", "../drawings/drawing2.xml")});
    parts["xl/charts/_rels/chart2.xml.rels"] = RelationshipsPart({style});
    parts["xl/charts/style1.xml"] = R"(<cs:chartStyle xmlns:cs="http://schemas.microsoft.com/office/drawing/2012/chartStyle"/>)";
    parts["xl/drawings/drawing2.xml"] = ChartShapes;
    return parts;
}

std::vector<std::string> CarriedAnchors(const ooxml::CarriedWorksheet& carried) {
    std::vector<std::string> anchors;
    for (const ooxml::CarriedElement& element : carried.drawing.elements) {
        anchors.push_back(element.name + "@" + std::to_string(element.slot));
    }
    return anchors;
}

std::vector<std::string> RelationshipIds(const std::vector<ooxml::Relationship>& relationships) {
    std::vector<std::string> ids;
    for (const ooxml::Relationship& relationship : relationships) {
        ids.push_back(relationship.id);
    }
    return ids;
}

TEST(PackageReaderChartTest, AChartFrameAndATextBoxAreTwoShapesInZOrderAndTheRestStaysCarried) {
    const ooxml_test::TemporaryPackage package(ChartPackage());
    const ooxml::WorkbookDocument workbook = ooxml::ReadPackage(package.Path(), ooxml::ReadOptions{.readCharts = true});
    const ooxml::SheetDocument& sheet = workbook.sheets.at(0);
    ASSERT_EQ(sheet.shapes.size(), 2u);
    const ooxml::DrawingShape& frame = sheet.shapes[0];
    ASSERT_TRUE(frame.chart);
    EXPECT_EQ(frame.id, 2u);
    EXPECT_EQ(frame.name, "Chart 1");
    EXPECT_EQ(frame.editAs, "oneCell");
    EXPECT_EQ(frame.from, (ooxml::CellAnchor{1, 0, 2, 0}));
    EXPECT_EQ(frame.to, (ooxml::CellAnchor{8, 0, 16, 0}));
    EXPECT_EQ(frame.macro, "");
    EXPECT_FALSE(frame.hidden);
    EXPECT_FALSE(sheet.shapes[1].chart);
    EXPECT_EQ(sheet.shapes[1].text.text, "Note");

    // The chart's drawing is read; its style part stays carried under the chart's relationship.
    const ooxml::ChartDocument& chart = *frame.chart;
    ASSERT_EQ(chart.shapes.size(), 1u);
    EXPECT_EQ(chart.shapes[0].shape.text.text, "Inside");
    EXPECT_EQ(chart.shapes[0].toY, 0.4);
    EXPECT_TRUE(chart.carried.elements.empty()) << "the userShapes element is the writer's";
    EXPECT_EQ(RelationshipIds(chart.carried.relationships), (std::vector<std::string>{"rId1"}));

    // The picture and the chart in a one-cell anchor stay carried above both shapes.
    const ooxml::CarriedWorksheet& carried = *sheet.carried;
    EXPECT_EQ(CarriedAnchors(carried), (std::vector<std::string>{"twoCellAnchor@2", "oneCellAnchor@2"}));
    EXPECT_EQ(RelationshipIds(carried.drawing.relationships), (std::vector<std::string>{"rId2", "rId3"}));
    const auto& parts = workbook.carried->parts;
    EXPECT_EQ(parts.count("xl/charts/chart1.xml"), 0u);
    EXPECT_EQ(parts.count("xl/charts/chart2.xml"), 1u);
    EXPECT_EQ(parts.count("xl/charts/style1.xml"), 1u);
    EXPECT_EQ(parts.count("xl/media/image1.png"), 1u);
    EXPECT_EQ(parts.count("xl/drawings/drawing2.xml"), 0u);
}

TEST(PackageReaderChartTest, ChartsLeftUnreadStayCarriedAsTheFileHasThem) {
    const ooxml_test::TemporaryPackage package(ChartPackage());
    const ooxml::WorkbookDocument workbook = ooxml::ReadPackage(package.Path(), ooxml::ReadOptions{.readCharts = false});
    const ooxml::SheetDocument& sheet = workbook.sheets.at(0);
    ASSERT_EQ(sheet.shapes.size(), 1u);
    EXPECT_EQ(sheet.shapes[0].name, "TextBox 2");
    EXPECT_EQ(CarriedAnchors(*sheet.carried),
              (std::vector<std::string>{"twoCellAnchor@0", "twoCellAnchor@1", "oneCellAnchor@1"}));
    EXPECT_EQ(RelationshipIds(sheet.carried->drawing.relationships), (std::vector<std::string>{"rId1", "rId2", "rId3"}));
    const auto& parts = workbook.carried->parts;
    EXPECT_EQ(parts.count("xl/charts/chart1.xml"), 1u);
    EXPECT_EQ(parts.count("xl/drawings/drawing2.xml"), 1u);
}

// A chart whose groups the document does not model (here: none at all) is kept as the file has it.
TEST(PackageReaderChartTest, AChartWithoutAModelledGroupStaysCarried) {
    ooxml_test::PackageParts parts = ChartPackage();
    parts["xl/charts/chart1.xml"] = ChartXml.substr(0, ChartXml.find("<c:barChart")) + "</c:plotArea></c:chart></c:chartSpace>";
    const ooxml_test::TemporaryPackage package(parts);
    const ooxml::WorkbookDocument workbook = ooxml::ReadPackage(package.Path());
    const ooxml::SheetDocument& sheet = workbook.sheets.at(0);
    ASSERT_EQ(sheet.shapes.size(), 1u);
    EXPECT_FALSE(sheet.shapes[0].chart);
    EXPECT_EQ(workbook.carried->parts.count("xl/charts/chart1.xml"), 1u);
}

TEST(PackageReaderChartTest, AChartPartThatCannotBeReadLeavesItsFrameCarried) {
    ooxml_test::PackageParts parts = ChartPackage();
    parts["xl/charts/chart1.xml"] = "<c:chartSpace";
    const ooxml_test::TemporaryPackage package(parts);
    const ooxml::WorkbookDocument workbook = ooxml::ReadPackage(package.Path(), ooxml::ReadOptions{.readCharts = true});
    const ooxml::SheetDocument& sheet = workbook.sheets.at(0);
    ASSERT_EQ(sheet.shapes.size(), 1u);
    EXPECT_FALSE(sheet.shapes[0].chart);
    EXPECT_EQ(RelationshipIds(sheet.carried->drawing.relationships), (std::vector<std::string>{"rId1", "rId2", "rId3"}));
    EXPECT_EQ(workbook.carried->parts.at("xl/charts/chart1.xml").bytes, "<c:chartSpace");
}

}  // namespace
