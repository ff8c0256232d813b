// An opened workbook's named styles, the formats based on them and the number formats it declared
// come back when its styles part is written again.

#include "ooxml/opc/package_reader.hpp"
#include "ooxml/reader_test_package.hpp"
#include "ooxml/styles/styles_part.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace ooxml;
using ooxml_test::TemporaryPackage;

// Two named styles besides Normal: "Heading 1" (font 1, a bottom border, without number format,
// fill, alignment or protection of its own) and "Centred" (number format 165, centred).
// Format 1 is a Heading 1 cell made bold; format 2 a plain Heading 1 cell; format 3 a Centred cell
// of a pivot table; format 4 names a style that does not exist.
constexpr const char* NamedStyles =
    R"(<styleSheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" )"
    R"(xmlns:x14ac="http://schemas.microsoft.com/office/spreadsheetml/2009/9/ac" )"
    R"(xmlns:mc="http://schemas.openxmlformats.org/markup-compatibility/2006" mc:Ignorable="x14ac">)"
    R"(<numFmts count="4"><numFmt numFmtId="7" formatCode="&quot;kr&quot;#,##0.00"/><numFmt numFmtId="14" formatCode="dd/mm/yyyy"/>)"
    R"(<numFmt numFmtId="164" formatCode="0.000"/><numFmt numFmtId="165" formatCode="0.0%"/></numFmts>)"
    R"(<fonts count="3"><font><sz val="10"/><name val="Arial"/><family val="2"/></font>)"
    R"(<font><b/><sz val="15"/><color theme="3"/><name val="Arial"/><family val="2"/><charset val="238"/></font>)"
    R"(<font><b/><i/><sz val="15"/><color theme="3"/><name val="Arial"/><family val="2"/><charset val="238"/></font></fonts>)"
    R"(<fills count="2"><fill><patternFill patternType="none"/></fill><fill><patternFill patternType="gray125"/></fill></fills>)"
    R"(<borders count="2"><border><left/><right/><top/><bottom/><diagonal/></border>)"
    R"(<border><left/><right/><top/><bottom style="thick"><color theme="4"/></bottom><diagonal/></border></borders>)"
    R"(<cellStyleXfs count="3"><xf numFmtId="0" fontId="0" fillId="0" borderId="0"/>)"
    R"(<xf numFmtId="0" fontId="1" fillId="0" borderId="1" applyNumberFormat="0" applyFill="0" applyAlignment="0" applyProtection="0"/>)"
    R"(<xf numFmtId="165" fontId="0" fillId="0" borderId="0"><alignment horizontal="center" readingOrder="2"/></xf>)"
    R"(</cellStyleXfs>)"
    R"(<cellXfs count="5"><xf numFmtId="0" fontId="0" fillId="0" borderId="0" xfId="0"/>)"
    R"(<xf numFmtId="0" fontId="2" fillId="0" borderId="1" xfId="1" applyFont="1"/>)"
    R"(<xf numFmtId="0" fontId="1" fillId="0" borderId="1" xfId="1"/>)"
    R"(<xf numFmtId="165" fontId="0" fillId="0" borderId="0" xfId="2" pivotButton="1"><alignment horizontal="center"/></xf>)"
    R"(<xf numFmtId="0" fontId="0" fillId="0" borderId="0" xfId="9"/></cellXfs>)"
    R"(<cellStyles count="3"><cellStyle name="Centred" xfId="2"/>)"
    R"(<cellStyle name="Heading 1" xfId="1" builtinId="16"/><cellStyle name="Normal" xfId="0" builtinId="0"/></cellStyles>)"
    R"(<dxfs count="0"/></styleSheet>)";

WorkbookDocument ReadNamedStyles() {
    const TemporaryPackage package(ooxml_test::MinimalPackageWithStyles("<sheetData/>", NamedStyles));
    return ReadPackage(package.Path());
}

std::unique_ptr<pugi::xml_document> Written(const WorkbookDocument& document) {
    return writer_test::ParseXml(
        writer_test::WriteToString([&document](XmlWriter& xml) { WriteStylesPart(xml, document); }));
}

pugi::xml_node Entry(pugi::xml_node list, std::size_t index) {
    pugi::xml_node entry = list.first_child();
    for (std::size_t i = 0; i < index && entry; ++i) {
        entry = entry.next_sibling();
    }
    return entry;
}

TEST(NamedStyles, CellFormatsKnowTheStyleTheyAreBasedOn) {
    const WorkbookDocument document = ReadNamedStyles();
    ASSERT_EQ(document.formats.size(), 5u);
    EXPECT_EQ(document.formats[0].style, 0u);
    EXPECT_EQ(document.formats[1].style, 1u);
    EXPECT_EQ(document.formats[2].style, 1u);
    EXPECT_EQ(document.formats[3].style, 2u);
    EXPECT_TRUE(document.formats[3].pivotButton);
    EXPECT_FALSE(document.formats[2].pivotButton);
    EXPECT_EQ(document.formats[1].font.charset, 238);
    EXPECT_EQ(document.formats[0].font.charset, std::nullopt);
}

TEST(NamedStyles, TheStylesFormatsAreKeptResolved) {
    const WorkbookDocument document = ReadNamedStyles();
    ASSERT_TRUE(document.carried);
    const std::vector<CarriedStyleFormat>& styles = document.carried->styles.styleFormats;
    ASSERT_EQ(styles.size(), 3u);
    EXPECT_EQ(styles[1].format.font.size, 15.0);
    EXPECT_TRUE(styles[1].format.font.bold);
    EXPECT_EQ(styles[1].format.border.bottom.style, "thick");
    EXPECT_EQ(styles[1].attributes.size(), 4u);
    EXPECT_EQ(styles[1].attributes[0], (CarriedAttribute{"applyNumberFormat", "0"}));
    EXPECT_EQ(styles[2].format.numberFormat, "0.0%");
    EXPECT_EQ(styles[2].format.alignment.horizontal, "center");
    EXPECT_EQ(styles[2].children, R"(<alignment horizontal="center" readingOrder="2"/>)");
    const std::map<uint32_t, std::string> declared{
        {7, "\"kr\"#,##0.00"}, {14, "dd/mm/yyyy"}, {164, "0.000"}, {165, "0.0%"}};
    EXPECT_EQ(document.carried->styles.numberFormats, declared);
}

TEST(NamedStyles, AreWrittenAgainWithTheirPiecesRenumbered) {
    const auto styles = Written(ReadNamedStyles());
    const pugi::xml_node sheet = styles->child("styleSheet");
    // The Normal style's font is the first font.
    const pugi::xml_node fonts = sheet.child("fonts");
    EXPECT_STREQ(fonts.first_child().child("name").attribute("val").value(), "Arial");
    EXPECT_EQ(fonts.first_child().child("sz").attribute("val").as_double(), 10.0);

    const pugi::xml_node styleXfs = sheet.child("cellStyleXfs");
    ASSERT_EQ(styleXfs.attribute("count").as_int(), 3);
    const pugi::xml_node heading = Entry(styleXfs, 1);
    const pugi::xml_node headingFont = Entry(fonts, heading.attribute("fontId").as_uint());
    EXPECT_TRUE(headingFont.child("b"));
    EXPECT_EQ(headingFont.child("sz").attribute("val").as_double(), 15.0);
    EXPECT_EQ(headingFont.child("charset").attribute("val").as_int(), 238);
    const pugi::xml_node headingBorder = Entry(sheet.child("borders"), heading.attribute("borderId").as_uint());
    EXPECT_STREQ(headingBorder.child("bottom").attribute("style").value(), "thick");
    EXPECT_STREQ(heading.attribute("applyNumberFormat").value(), "0");
    EXPECT_STREQ(heading.attribute("applyProtection").value(), "0");
    const pugi::xml_node centred = Entry(styleXfs, 2);
    EXPECT_EQ(centred.attribute("numFmtId").as_uint(), 165u);
    EXPECT_STREQ(centred.child("alignment").attribute("readingOrder").value(), "2");

    // The named styles themselves come back as the file wrote them.
    const pugi::xml_node cellStyles = sheet.child("cellStyles");
    ASSERT_EQ(cellStyles.attribute("count").as_int(), 3);
    EXPECT_STREQ(Entry(cellStyles, 0).attribute("name").value(), "Centred");
    EXPECT_EQ(Entry(cellStyles, 0).attribute("xfId").as_int(), 2);
    EXPECT_STREQ(Entry(cellStyles, 1).attribute("builtinId").value(), "16");
    EXPECT_STREQ(sheet.attribute("mc:Ignorable").value(), "x14ac");
}

TEST(NamedStyles, ACellFormatSaysWhatItOverridesOfItsStyle) {
    const auto styles = Written(ReadNamedStyles());
    const pugi::xml_node sheet = styles->child("styleSheet");
    const pugi::xml_node cellXfs = sheet.child("cellXfs");
    const pugi::xml_node boldItalic = Entry(cellXfs, 1);
    EXPECT_EQ(boldItalic.attribute("xfId").as_int(), 1);
    EXPECT_TRUE(boldItalic.attribute("applyFont").as_bool());
    EXPECT_FALSE(boldItalic.attribute("applyBorder"));
    EXPECT_TRUE(Entry(sheet.child("fonts"), boldItalic.attribute("fontId").as_uint()).child("i"));

    const pugi::xml_node plainHeading = Entry(cellXfs, 2);
    EXPECT_EQ(plainHeading.attribute("xfId").as_int(), 1);
    EXPECT_EQ(plainHeading.attribute("fontId").as_uint(),
              Entry(sheet.child("cellStyleXfs"), 1).attribute("fontId").as_uint());
    EXPECT_FALSE(plainHeading.attribute("applyFont"));
    EXPECT_FALSE(plainHeading.attribute("applyBorder"));

    const pugi::xml_node pivotCell = Entry(cellXfs, 3);
    EXPECT_EQ(pivotCell.attribute("xfId").as_int(), 2);
    EXPECT_TRUE(pivotCell.attribute("pivotButton").as_bool());
    EXPECT_FALSE(pivotCell.attribute("applyNumberFormat"));
    EXPECT_FALSE(pivotCell.attribute("applyAlignment"));
    EXPECT_STREQ(pivotCell.child("alignment").attribute("horizontal").value(), "center");

    // A format based on a style the workbook does not have is based on Normal.
    EXPECT_EQ(Entry(cellXfs, 4).attribute("xfId").as_int(), 0);
}

TEST(NamedStyles, DeclaredNumberFormatsKeepTheirIdsUsedOrNot) {
    WorkbookDocument document = ReadNamedStyles();
    CellFormat newOnes;
    newOnes.numberFormat = "0.0000";  // new: after the highest id the file declared
    document.formats.push_back(newOnes);
    newOnes.numberFormat = "#,##0.00";  // built in, id 4, which the file did not redefine
    document.formats.push_back(newOnes);
    const auto styles = Written(document);
    const pugi::xml_node sheet = styles->child("styleSheet");
    std::map<uint32_t, std::string> written;
    for (const pugi::xml_node numFmt : sheet.child("numFmts").children("numFmt")) {
        written[numFmt.attribute("numFmtId").as_uint()] = numFmt.attribute("formatCode").value();
    }
    const std::map<uint32_t, std::string> expected{
        {7, "\"kr\"#,##0.00"}, {14, "dd/mm/yyyy"}, {164, "0.000"}, {165, "0.0%"}, {166, "0.0000"}};
    EXPECT_EQ(written, expected);
    EXPECT_EQ(sheet.child("numFmts").attribute("count").as_int(), 5);
    EXPECT_EQ(Entry(sheet.child("cellXfs"), 5).attribute("numFmtId").as_uint(), 166u);
    EXPECT_EQ(Entry(sheet.child("cellXfs"), 6).attribute("numFmtId").as_uint(), 4u);
}

TEST(NamedStyles, ABuiltInCodeWhoseIdTheFileRedefinedTakesAnIdOfItsOwn) {
    WorkbookDocument document = ReadNamedStyles();
    CellFormat date;
    date.numberFormat = "m/d/yyyy";  // built in as id 14, which this file declared as dd/mm/yyyy
    document.formats.push_back(date);
    const auto styles = Written(document);
    const pugi::xml_node sheet = styles->child("styleSheet");
    const pugi::xml_node xf = Entry(sheet.child("cellXfs"), 5);
    EXPECT_EQ(xf.attribute("numFmtId").as_uint(), 166u);
    EXPECT_STREQ(sheet.child("numFmts").last_child().attribute("formatCode").value(), "m/d/yyyy");
}

TEST(NamedStyles, ANewWorkbookHasTheNormalStyleAlone) {
    WorkbookDocument document;
    document.formats[0].font.name = "Arial";
    const auto styles = Written(document);
    const pugi::xml_node sheet = styles->child("styleSheet");
    EXPECT_EQ(sheet.child("cellStyleXfs").attribute("count").as_int(), 1);
    EXPECT_FALSE(sheet.child("cellStyleXfs").first_child().attribute("applyFont"));
    EXPECT_STREQ(sheet.child("fonts").first_child().child("name").attribute("val").value(), "Arial");
    EXPECT_EQ(sheet.child("cellStyles").attribute("count").as_int(), 1);
    EXPECT_STREQ(sheet.child("cellStyles").first_child().attribute("name").value(), "Normal");
}

}  // namespace
