// A package read and written again keeps what the document does not model: the parts it does not
// rewrite byte for byte, the elements of the parts it rewrites in their places, and the
// relationships between them.

#include "ooxml/opc/package_reader.hpp"
#include "ooxml/opc/package_writer.hpp"
#include "ooxml/reader_test_package.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include <string>
#include <vector>

using ooxml_test::PackageParts;

namespace {

constexpr const char* Declaration = ooxml_test::XmlDeclaration;
constexpr const char* MainNamespaces =
    R"(xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" )"
    R"(xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships")";
const std::string Type = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";

using ooxml_test::Relationship;

std::string Relationships(const std::vector<std::string>& relationships) {
    return ooxml_test::RelationshipsPart(relationships);
}

// A workbook of two worksheets around a chart sheet, the first with a table, a picture beside a
// text box, a hyperlink, printer settings, conditional formats and page set-up; links to another
// workbook; the workbook's own theme, and styles holding the conditional format's formatting.
PackageParts RichPackage() {
    PackageParts parts;
    parts["[Content_Types].xml"] = ooxml_test::ContentTypesPart(
        R"(<Default Extension="png" ContentType="image/png"/>)"
        R"(<Default Extension="bin" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.printerSettings"/>)"
        R"(<Override PartName="/xl/workbook.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/>)"
        R"(<Override PartName="/xl/worksheets/sheet1.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml"/>)"
        R"(<Override PartName="/xl/worksheets/sheet2.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml"/>)"
        R"(<Override PartName="/xl/chartsheets/sheet1.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.chartsheet+xml"/>)"
        R"(<Override PartName="/xl/tables/table1.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.table+xml"/>)"
        R"(<Override PartName="/xl/drawings/drawing1.xml" ContentType="application/vnd.openxmlformats-officedocument.drawing+xml"/>)"
        R"(<Override PartName="/xl/externalLinks/externalLink1.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.externalLink+xml"/>)"
        R"(<Override PartName="/xl/theme/theme1.xml" ContentType="application/vnd.openxmlformats-officedocument.theme+xml"/>)"
        R"(<Override PartName="/xl/styles.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.styles+xml"/>)");
    parts["_rels/.rels"] = Relationships({Relationship("rId1", "officeDocument", "xl/workbook.xml")});
    parts["xl/workbook.xml"] =
        std::string(Declaration) + "<workbook " + MainNamespaces +
        R"( xmlns:mc="http://schemas.openxmlformats.org/markup-compatibility/2006" mc:Ignorable="x15" )"
        R"(xmlns:x15="http://schemas.microsoft.com/office/spreadsheetml/2010/11/main">)"
        R"(<fileVersion appName="xl" lastEdited="7"/><workbookPr codeName="ThisWorkbook" defaultThemeVersion="166925"/>)"
        R"(<workbookProtection workbookAlgorithmName="SHA-512" workbookHashValue="aGFzaA==" workbookSaltValue="c2FsdA==" workbookSpinCount="100000" lockStructure="1"/>)"
        R"(<bookViews><workbookView xWindow="240" yWindow="105" windowWidth="14805" windowHeight="8010" activeTab="2"/></bookViews>)"
        R"(<sheets><sheet name="Data" sheetId="1" r:id="rId1"/><sheet name="Chart" sheetId="2" r:id="rId2"/>)"
        R"(<sheet name="Notes" sheetId="3" r:id="rId3"/></sheets>)"
        R"(<externalReferences><externalReference r:id="rId4"/></externalReferences>)"
        R"(<definedNames><definedName name="Rate">[1]Rates!$A$1</definedName>)"
        R"(<definedName name="_xlnm.Print_Area" localSheetId="1">Chart!$A$1</definedName></definedNames>)"
        R"(<calcPr calcId="191029" iterate="1"/><extLst><ext uri="{X}" xmlns:x15="http://schemas.microsoft.com/office/spreadsheetml/2010/11/main"><x15:workbookPr chartTrackingRefBase="1"/></ext></extLst></workbook>)";
    parts["xl/_rels/workbook.xml.rels"] =
        Relationships({Relationship("rId1", "worksheet", "worksheets/sheet1.xml"),
                       Relationship("rId2", "chartsheet", "chartsheets/sheet1.xml"),
                       Relationship("rId3", "worksheet", "worksheets/sheet2.xml"),
                       Relationship("rId4", "externalLink", "externalLinks/externalLink1.xml"),
                       Relationship("rId5", "theme", "theme/theme1.xml"),
                       Relationship("rId6", "styles", "styles.xml")});
    parts["xl/styles.xml"] = std::string(Declaration) + "<styleSheet " + MainNamespaces +
                             R"(><dxfs count="1"><dxf><font><b/></font></dxf></dxfs></styleSheet>)";
    parts["xl/worksheets/sheet1.xml"] =
        std::string(Declaration) + "<worksheet " + MainNamespaces +
        R"( xmlns:x14ac="http://schemas.microsoft.com/office/spreadsheetml/2009/9/ac">)"
        R"(<sheetPr codeName="Sheet1"><tabColor rgb="FFFF0000"/></sheetPr><dimension ref="A1:B3"/>)"
        R"(<sheetViews><sheetView tabSelected="1" zoomScale="85" workbookViewId="0"><pane ySplit="1" topLeftCell="A2" activePane="bottomLeft" state="frozen"/>)"
        R"(<selection pane="bottomLeft" activeCell="B3" sqref="B3 A5:A6"/></sheetView></sheetViews>)"
        R"(<sheetFormatPr defaultRowHeight="15" x14ac:dyDescent="0.25" outlineLevelRow="1"/>)"
        R"(<sheetData><row r="1"><c r="A1" t="inlineStr"><is><t>Item</t></is></c><c r="B1" t="inlineStr"><is><t>Qty</t></is></c></row>)"
        R"(<row r="2"><c r="A2" t="inlineStr"><is><t>Pen</t></is></c><c r="B2"><v>3</v></c></row>)"
        R"(<row r="3"><c r="B3"><f>SUM(Sales[Qty])+[1]Rates!$A$1+Gone[Qty]</f><v>3</v></c></row></sheetData>)"
        R"(<conditionalFormatting sqref="B2:B3"><cfRule type="cellIs" dxfId="0" priority="1" operator="greaterThan"><formula>2</formula></cfRule></conditionalFormatting>)"
        R"(<hyperlinks><hyperlink ref="A2" r:id="rId3"/></hyperlinks>)"
        R"(<pageMargins left="0.25" right="0.25" top="0.75" bottom="0.75" header="0.3" footer="0.3"/>)"
        R"(<pageSetup paperSize="9" orientation="landscape" r:id="rId1"/><headerFooter><oddHeader>&amp;CReport</oddHeader></headerFooter>)"
        R"(<drawing r:id="rId4"/><tableParts count="1"><tablePart r:id="rId2"/></tableParts></worksheet>)";
    parts["xl/worksheets/_rels/sheet1.xml.rels"] =
        Relationships({Relationship("rId1", "printerSettings", "../printerSettings/printerSettings1.bin"),
                       Relationship("rId2", "table", "../tables/table1.xml"),
                       Relationship("rId3", "hyperlink", "https://example.com/pens", true),
                       Relationship("rId4", "drawing", "../drawings/drawing1.xml")});
    parts["xl/printerSettings/printerSettings1.bin"] = std::string("\x01\x00\x02printer", 10);
    parts["xl/tables/table1.xml"] =
        std::string(Declaration) +
        R"(<table xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" id="1" name="Sales" displayName="Sales" ref="A1:B2">)"
        R"(<autoFilter ref="A1:B2"/><tableColumns count="2"><tableColumn id="1" name="Item"/><tableColumn id="2" name="Qty"/></tableColumns>)"
        R"(<tableStyleInfo name="TableStyleMedium2" showRowStripes="1"/></table>)";
    parts["xl/drawings/drawing1.xml"] =
        std::string(Declaration) +
        R"(<xdr:wsDr xmlns:xdr="http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing" )"
        R"(xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main">)"
        R"(<xdr:oneCellAnchor><xdr:from><xdr:col>3</xdr:col><xdr:colOff>0</xdr:colOff><xdr:row>1</xdr:row><xdr:rowOff>0</xdr:rowOff></xdr:from>)"
        R"(<xdr:ext cx="952500" cy="952500"/><xdr:pic><xdr:nvPicPr><xdr:cNvPr id="2" name="Picture 1"/><xdr:cNvPicPr/></xdr:nvPicPr>)"
        R"(<xdr:blipFill><a:blip xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships" r:embed="rId1"/><a:stretch><a:fillRect/></a:stretch></xdr:blipFill>)"
        R"(<xdr:spPr><a:prstGeom prst="rect"><a:avLst/></a:prstGeom></xdr:spPr></xdr:pic><xdr:clientData/></xdr:oneCellAnchor>)"
        R"(<xdr:twoCellAnchor><xdr:from><xdr:col>5</xdr:col><xdr:colOff>0</xdr:colOff><xdr:row>1</xdr:row><xdr:rowOff>0</xdr:rowOff></xdr:from>)"
        R"(<xdr:to><xdr:col>7</xdr:col><xdr:colOff>0</xdr:colOff><xdr:row>4</xdr:row><xdr:rowOff>0</xdr:rowOff></xdr:to>)"
        R"(<xdr:sp macro="" textlink=""><xdr:nvSpPr><xdr:cNvPr id="3" name="TextBox 2"/><xdr:cNvSpPr txBox="1"/></xdr:nvSpPr>)"
        R"(<xdr:spPr><a:xfrm><a:off x="0" y="0"/><a:ext cx="1000" cy="1000"/></a:xfrm></xdr:spPr>)"
        R"(<xdr:txBody><a:bodyPr/><a:lstStyle/><a:p><a:r><a:t>Note</a:t></a:r></a:p></xdr:txBody></xdr:sp><xdr:clientData/></xdr:twoCellAnchor></xdr:wsDr>)";
    parts["xl/drawings/_rels/drawing1.xml.rels"] =
        Relationships({Relationship("rId1", "image", "../media/image1.png")});
    parts["xl/media/image1.png"] = std::string("\x89PNG\r\n\x1a\n\0\0fake", 14);
    parts["xl/chartsheets/sheet1.xml"] =
        std::string(Declaration) +
        R"(<chartsheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><sheetViews><sheetView workbookViewId="0"/></sheetViews></chartsheet>)";
    parts["xl/worksheets/sheet2.xml"] =
        std::string(Declaration) + "<worksheet " + MainNamespaces + R"(><sheetData/></worksheet>)";
    parts["xl/externalLinks/externalLink1.xml"] =
        std::string(Declaration) +
        R"(<externalLink xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><externalBook xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships" r:id="rId1"/></externalLink>)";
    parts["xl/externalLinks/_rels/externalLink1.xml.rels"] =
        Relationships({"<Relationship Id=\"rId1\" Type=\"http://schemas.openxmlformats.org/officeDocument/2006/"
                       "relationships/externalLinkPath\" Target=\"rates.xlsx\" TargetMode=\"External\"/>"});
    parts["xl/theme/theme1.xml"] =
        std::string(Declaration) +
        R"(<a:theme xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" name="Own Theme"><a:themeElements/></a:theme>)";
    return parts;
}

// The package read and written again, as its parts.
PackageParts Resaved(const PackageParts& parts, const std::string& fileName = "resaved.xlsx") {
    const ooxml_test::TemporaryPackage input(parts);
    const writer_test::ScratchFolder folder;
    const std::string output = (folder.Path() / fileName).string();
    ooxml::WritePackage(ooxml::ReadPackage(input.Path()), output);
    return ooxml_test::ReadPackageParts(output);
}

std::vector<std::string> ChildNames(const std::string& xml) {
    pugi::xml_document document;
    EXPECT_TRUE(document.load_string(xml.c_str()));
    std::vector<std::string> names;
    for (pugi::xml_node child : document.document_element().children()) {
        names.emplace_back(child.name());
    }
    return names;
}

// The relationship of a relationships part with that id, as "type target [External]".
std::string RelationshipOf(const std::string& relationshipsXml, const std::string& id) {
    pugi::xml_document document;
    EXPECT_TRUE(document.load_string(relationshipsXml.c_str()));
    const pugi::xml_node relationship = document.document_element().find_child_by_attribute("Id", id.c_str());
    std::string type = relationship.attribute("Type").value();
    type = type.substr(type.rfind('/') + 1);
    return type + " " + relationship.attribute("Target").value() +
           (relationship.attribute("TargetMode") ? " External" : "");
}

TEST(CarriedContentRoundTrip, PartsTheEngineDoesNotRewriteAreKeptByteForByte) {
    const PackageParts input = RichPackage();
    const PackageParts output = Resaved(input);
    for (const char* name : {"xl/printerSettings/printerSettings1.bin", "xl/tables/table1.xml", "xl/media/image1.png",
                             "xl/chartsheets/sheet1.xml", "xl/externalLinks/externalLink1.xml",
                             "xl/externalLinks/_rels/externalLink1.xml.rels", "xl/theme/theme1.xml"}) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(output.count(name));
        EXPECT_EQ(output.at(name), input.at(name));
    }
}

TEST(CarriedContentRoundTrip, TheWorksheetKeepsItsElementsInSchemaOrderWithTheirRelationships) {
    const PackageParts output = Resaved(RichPackage());
    const std::string& sheet = output.at("xl/worksheets/sheet1.xml");
    EXPECT_EQ(ChildNames(sheet),
              (std::vector<std::string>{"sheetPr", "dimension", "sheetViews", "sheetFormatPr", "sheetData",
                                        "conditionalFormatting", "hyperlinks", "pageMargins", "pageSetup",
                                        "headerFooter", "drawing", "tableParts"}));
    pugi::xml_document document;
    ASSERT_TRUE(document.load_string(sheet.c_str()));
    const pugi::xml_node worksheet = document.child("worksheet");
    EXPECT_STREQ(worksheet.child("sheetPr").child("tabColor").attribute("rgb").value(), "FFFF0000");
    EXPECT_STREQ(worksheet.child("pageMargins").attribute("left").value(), "0.25");
    EXPECT_STREQ(worksheet.child("sheetFormatPr").attribute("outlineLevelRow").value(), "1");
    const pugi::xml_node view = worksheet.child("sheetViews").child("sheetView");
    EXPECT_STREQ(view.attribute("zoomScale").value(), "85");
    EXPECT_STREQ(view.child("pane").attribute("state").value(), "frozen");
    EXPECT_STREQ(view.child("selection").attribute("sqref").value(), "B3 A5:A6");
    const std::string& relationships = output.at("xl/worksheets/_rels/sheet1.xml.rels");
    EXPECT_EQ(RelationshipOf(relationships, "rId1"), "printerSettings ../printerSettings/printerSettings1.bin");
    EXPECT_EQ(RelationshipOf(relationships, "rId2"), "table ../tables/table1.xml");
    EXPECT_EQ(RelationshipOf(relationships, "rId3"), "hyperlink https://example.com/pens External");
    // The rewritten drawing takes an id the kept ones left free.
    EXPECT_EQ(RelationshipOf(relationships, worksheet.child("drawing").attribute("r:id").value()).substr(0, 8),
              "drawing ");
}

TEST(CarriedContentRoundTrip, FormulasKeepTheTablesAndLinksThePackageHolds) {
    const PackageParts output = Resaved(RichPackage());
    pugi::xml_document document;
    ASSERT_TRUE(document.load_string(output.at("xl/worksheets/sheet1.xml").c_str()));
    const pugi::xml_node formula =
        document.child("worksheet").child("sheetData").find_child_by_attribute("row", "r", "3").child("c").child("f");
    EXPECT_STREQ(formula.child_value(), "SUM(Sales[Qty])+[1]Rates!$A$1+#REF!");
    ASSERT_TRUE(document.load_string(output.at("xl/workbook.xml").c_str()));
    EXPECT_STREQ(document.child("workbook").child("definedNames").first_child().child_value(), "[1]Rates!$A$1");
}

TEST(CarriedContentRoundTrip, TheWorkbookKeepsItsSheetOrderProtectionLinksAndExtensions) {
    const PackageParts output = Resaved(RichPackage());
    const std::string& workbookXml = output.at("xl/workbook.xml");
    EXPECT_EQ(ChildNames(workbookXml),
              (std::vector<std::string>{"fileVersion", "workbookPr", "workbookProtection", "bookViews", "sheets",
                                        "externalReferences", "definedNames", "calcPr", "extLst"}));
    pugi::xml_document document;
    ASSERT_TRUE(document.load_string(workbookXml.c_str()));
    const pugi::xml_node workbook = document.child("workbook");
    EXPECT_STREQ(workbook.attribute("mc:Ignorable").value(), "x15");
    EXPECT_STREQ(workbook.child("workbookPr").attribute("codeName").value(), "ThisWorkbook");
    EXPECT_STREQ(workbook.child("workbookProtection").attribute("workbookHashValue").value(), "aGFzaA==");
    EXPECT_STREQ(workbook.child("workbookProtection").attribute("lockStructure").value(), "1");
    EXPECT_STREQ(workbook.child("bookViews").child("workbookView").attribute("windowWidth").value(), "14805");
    EXPECT_STREQ(workbook.child("bookViews").child("workbookView").attribute("activeTab").value(), "2");
    EXPECT_STREQ(workbook.child("calcPr").attribute("iterate").value(), "1");
    std::vector<std::string> sheets;
    for (pugi::xml_node sheet : workbook.child("sheets").children("sheet")) {
        sheets.emplace_back(sheet.attribute("name").value());
    }
    EXPECT_EQ(sheets, (std::vector<std::string>{"Data", "Chart", "Notes"}));
    const pugi::xml_node chart = workbook.child("sheets").find_child_by_attribute("sheet", "name", "Chart");
    const std::string& relationships = output.at("xl/_rels/workbook.xml.rels");
    EXPECT_EQ(RelationshipOf(relationships, chart.attribute("r:id").value()), "chartsheet chartsheets/sheet1.xml");
    EXPECT_EQ(RelationshipOf(relationships, "rId4"), "externalLink externalLinks/externalLink1.xml");
    // The print area of the chart sheet is still scoped to it, in its place.
    const pugi::xml_node printArea =
        workbook.child("definedNames").find_child_by_attribute("definedName", "name", "_xlnm.Print_Area");
    EXPECT_STREQ(printArea.attribute("localSheetId").value(), "1");
    // The workbook's own theme is kept, and no second one is written.
    EXPECT_EQ(RelationshipOf(relationships, "rId5"), "theme theme/theme1.xml");
    EXPECT_EQ(std::count_if(output.begin(), output.end(),
                            [](const auto& part) { return part.first.starts_with("xl/theme/"); }),
              1);
}

TEST(CarriedContentRoundTrip, TheDrawingKeepsItsPictureBelowTheTextBox) {
    const PackageParts output = Resaved(RichPackage());
    std::string drawingName;
    for (const auto& [name, bytes] : output) {
        if (name.starts_with("xl/drawings/drawing")) {
            drawingName = name;
        }
    }
    ASSERT_FALSE(drawingName.empty());
    EXPECT_EQ(ChildNames(output.at(drawingName)), (std::vector<std::string>{"xdr:oneCellAnchor", "xdr:twoCellAnchor"}));
    EXPECT_NE(output.at(drawingName).find("r:embed=\"rId1\""), std::string::npos);
    const std::string relationships = output.at("xl/drawings/_rels/" + drawingName.substr(12) + ".rels");
    EXPECT_EQ(RelationshipOf(relationships, "rId1"), "image ../media/image1.png");
}

TEST(CarriedContentRoundTrip, ContentTypesCoverEveryKeptPart) {
    const PackageParts output = Resaved(RichPackage());
    const std::string& types = output.at("[Content_Types].xml");
    EXPECT_NE(types.find(R"(<Default Extension="png" ContentType="image/png"/>)"), std::string::npos);
    EXPECT_NE(
        types.find(
            R"(Extension="bin" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.printerSettings")"),
        std::string::npos);
    EXPECT_NE(
        types.find(
            R"(<Override PartName="/xl/chartsheets/sheet1.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.chartsheet+xml"/>)"),
        std::string::npos);
}

TEST(CarriedContentRoundTrip, TheCalculationChainIsLeftForExcelToRebuild) {
    PackageParts input = RichPackage();
    input["xl/calcChain.xml"] =
        std::string(Declaration) +
        R"(<calcChain xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><c r="B3" i="1"/></calcChain>)";
    input["xl/_rels/workbook.xml.rels"].insert(input["xl/_rels/workbook.xml.rels"].find("</Relationships>"),
                                               Relationship("rId9", "calcChain", "calcChain.xml"));
    const PackageParts output = Resaved(input);
    EXPECT_EQ(output.count("xl/calcChain.xml"), 0u);
    EXPECT_EQ(output.at("xl/_rels/workbook.xml.rels").find("calcChain"), std::string::npos);
}

TEST(CarriedContentRoundTrip, ARelationshipToAMissingPartIsLeftOut) {
    PackageParts input = RichPackage();
    input.erase("xl/printerSettings/printerSettings1.bin");
    const PackageParts output = Resaved(input);
    EXPECT_EQ(output.at("xl/worksheets/_rels/sheet1.xml.rels").find("printerSettings"), std::string::npos);
}

}  // namespace

namespace {

TEST(CarriedContentRoundTrip, DefinedNamesKeepWhatTheFileSaidOfThem) {
    PackageParts input = RichPackage();
    std::string& workbook = input["xl/workbook.xml"];
    workbook.replace(workbook.find(R"(<definedName name="Rate">)"), 25,
                     R"(<definedName name="Rate" comment="from rates.xlsx" function="1" vbProcedure="1">)");
    const PackageParts output = Resaved(input);
    EXPECT_NE(output.at("xl/workbook.xml").find(R"(comment="from rates.xlsx" function="1" vbProcedure="1")"),
              std::string::npos);
}

}  // namespace

namespace {

TEST(CarriedContentRoundTrip, DocumentPropertiesKeepWhatTheWriterDoesNotSet) {
    PackageParts input = RichPackage();
    input["docProps/core.xml"] =
        std::string(Declaration) +
        R"(<cp:coreProperties xmlns:cp="http://schemas.openxmlformats.org/package/2006/metadata/core-properties" )"
        R"(xmlns:dc="http://purl.org/dc/elements/1.1/" xmlns:dcterms="http://purl.org/dc/terms/" )"
        R"(xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance"><dc:title>Budget</dc:title><dc:creator>Ann</dc:creator>)"
        R"(<cp:lastModifiedBy>Bob</cp:lastModifiedBy><dcterms:created xsi:type="dcterms:W3CDTF">2020-01-02T03:04:05Z</dcterms:created>)"
        R"(<dcterms:modified xsi:type="dcterms:W3CDTF">2021-01-02T03:04:05Z</dcterms:modified></cp:coreProperties>)";
    input["docProps/app.xml"] =
        std::string(Declaration) +
        R"(<Properties xmlns="http://schemas.openxmlformats.org/officeDocument/2006/extended-properties" )"
        R"(xmlns:vt="http://schemas.openxmlformats.org/officeDocument/2006/docPropsVTypes"><Application>Microsoft Excel</Application>)"
        R"(<Company>Acme</Company><Manager>Carol</Manager><AppVersion>16.0300</AppVersion></Properties>)";
    std::string& relationships = input["_rels/.rels"];
    relationships.insert(
        relationships.find("</Relationships>"),
        R"(<Relationship Id="rId2" Type="http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties" Target="docProps/core.xml"/>)"
        R"(<Relationship Id="rId3" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/extended-properties" Target="docProps/app.xml"/>)");
    const PackageParts output = Resaved(input);
    const std::string& core = output.at("docProps/core.xml");
    for (const char* kept : {"<dc:title>Budget</dc:title>", "<dc:creator>Ann</dc:creator>",
                             ">2020-01-02T03:04:05Z</dcterms:created>", "<cp:lastModifiedBy>Bob</cp:lastModifiedBy>"}) {
        EXPECT_NE(core.find(kept), std::string::npos) << kept;
    }
    EXPECT_EQ(core.find("<dc:creator>", core.find("<dc:creator>") + 1), std::string::npos);
    const std::string& app = output.at("docProps/app.xml");
    EXPECT_NE(app.find("<Company>Acme</Company><Manager>Carol</Manager>"), std::string::npos);
    EXPECT_EQ(app.find("Microsoft Excel"), std::string::npos);
    EXPECT_EQ(app.find("AppVersion"), std::string::npos);
}

}  // namespace
