#include "ooxml/styles/styles_part.hpp"
#include "ooxml/styles/builtin_number_formats.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gtest/gtest.h>

#include <iterator>
#include <string>

namespace {

using namespace ooxml;
using writer_test::ParseXml;
using writer_test::WriteToString;

std::unique_ptr<pugi::xml_document> Styles(const WorkbookDocument& document) {
    return ParseXml(WriteToString([&document](XmlWriter& xml) { WriteStylesPart(xml, document); }));
}

pugi::xml_node Xf(const pugi::xml_document& styles, std::size_t index) {
    pugi::xml_node xf = styles.child("styleSheet").child("cellXfs").first_child();
    for (std::size_t i = 0; i < index; ++i) {
        xf = xf.next_sibling();
    }
    return xf;
}

TEST(StylesPart, SharesEqualFontsFillsAndBordersBetweenFormats) {
    WorkbookDocument document;
    CellFormat bold;
    bold.font.bold = true;
    bold.fill = Fill{"solid", Color{Color::Kind::Rgb, 0xFFFFFF00, 0, 0.0}, {}, {}, false};
    CellFormat boldBordered = bold;
    boldBordered.border.bottom = BorderLine{"thin", {}};
    boldBordered.numberFormat = "0.0";
    document.formats = {CellFormat{}, bold, boldBordered};
    auto styles = Styles(document);
    const pugi::xml_node sheet = styles->child("styleSheet");
    EXPECT_EQ(sheet.child("fonts").attribute("count").as_int(), 2);
    EXPECT_EQ(sheet.child("fills").attribute("count").as_int(), 3);
    EXPECT_EQ(sheet.child("borders").attribute("count").as_int(), 2);
    EXPECT_EQ(sheet.child("cellXfs").attribute("count").as_int(), 3);
    EXPECT_EQ(Xf(*styles, 1).attribute("fontId").as_int(), Xf(*styles, 2).attribute("fontId").as_int());
    EXPECT_EQ(Xf(*styles, 1).attribute("fillId").as_int(), 2);
    EXPECT_EQ(Xf(*styles, 2).attribute("fillId").as_int(), 2);
    EXPECT_EQ(Xf(*styles, 1).attribute("borderId").as_int(), 0);
    EXPECT_EQ(Xf(*styles, 2).attribute("borderId").as_int(), 1);
    EXPECT_TRUE(Xf(*styles, 2).attribute("applyBorder").as_bool());
    EXPECT_FALSE(Xf(*styles, 1).attribute("applyBorder"));
}

TEST(StylesPart, ReservesTheFirstTwoFills) {
    WorkbookDocument document;
    CellFormat gray;
    gray.fill.patternType = "gray125";
    document.formats = {CellFormat{}, gray};
    auto styles = Styles(document);
    const pugi::xml_node fills = styles->child("styleSheet").child("fills");
    EXPECT_STREQ(fills.first_child().child("patternFill").attribute("patternType").value(), "none");
    EXPECT_STREQ(fills.first_child().next_sibling().child("patternFill").attribute("patternType").value(), "gray125");
    EXPECT_EQ(fills.attribute("count").as_int(), 2);
    EXPECT_EQ(Xf(*styles, 1).attribute("fillId").as_int(), 1);
}

TEST(StylesPart, ReusesBuiltInNumberFormatsAndNumbersCustomOnesFrom164) {
    WorkbookDocument document;
    const char* codes[] = {"General", "0.00", "@", "m/d/yyyy", "0.0000", "[Blue]0;[Red]-0", "0.0000"};
    document.formats.clear();
    for (const char* code : codes) {
        CellFormat format;
        format.numberFormat = code;
        document.formats.push_back(format);
    }
    auto styles = Styles(document);
    const int expected[] = {0, 2, 49, 14, 164, 165, 164};
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(Xf(*styles, i).attribute("numFmtId").as_int(), expected[i]) << codes[i];
    }
    const pugi::xml_node numFmts = styles->child("styleSheet").child("numFmts");
    EXPECT_EQ(numFmts.attribute("count").as_int(), 2);
    EXPECT_STREQ(numFmts.find_child_by_attribute("numFmt", "numFmtId", "165").attribute("formatCode").value(),
                 "[Blue]0;[Red]-0");
}

TEST(StylesPart, WritesAGradientFillAsTheFileGaveIt) {
    WorkbookDocument document;
    CellFormat gradient;
    gradient.fill.gradient = R"(<gradientFill type="path" left="0.5" right="0.5"><stop position="0"><color theme="0"/>)"
                             R"(</stop><stop position="1"><color theme="4"/></stop></gradientFill>)";
    gradient.fill.pathGradient = true;
    CellFormat sameGradient = gradient;
    sameGradient.font.bold = true;
    document.formats = {CellFormat{}, gradient, sameGradient};
    auto styles = Styles(document);
    const pugi::xml_node fills = styles->child("styleSheet").child("fills");
    EXPECT_EQ(fills.attribute("count").as_int(), 3);
    const pugi::xml_node written = fills.last_child().child("gradientFill");
    EXPECT_STREQ(written.attribute("type").value(), "path");
    EXPECT_EQ(std::distance(written.children("stop").begin(), written.children("stop").end()), 2);
    EXPECT_FALSE(fills.last_child().child("patternFill"));
    EXPECT_EQ(Xf(*styles, 1).attribute("fillId").as_int(), 2);
    EXPECT_EQ(Xf(*styles, 2).attribute("fillId").as_int(), 2);
}

TEST(StylesPart, OmitsOptionalListsWhenUnused) {
    WorkbookDocument document;
    auto styles = Styles(document);
    const pugi::xml_node sheet = styles->child("styleSheet");
    EXPECT_FALSE(sheet.child("numFmts"));
    EXPECT_FALSE(sheet.child("colors"));
    EXPECT_STREQ(sheet.child("cellStyles").child("cellStyle").attribute("name").value(), "Normal");
    EXPECT_FALSE(Xf(*styles, 0).first_child());
}

TEST(StylesPart, WritesTheIndexedColoursInOrder) {
    WorkbookDocument document;
    document.palette = {0x000000, 0xFFFFFF, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0x00FFFF};
    document.palette.resize(64, 0x336699);
    document.palette[8] = 0x123456;
    auto styles = Styles(document);
    const pugi::xml_node colors = styles->child("styleSheet").child("colors").child("indexedColors");
    std::vector<std::string> rgb;
    for (const pugi::xml_node entry : colors.children("rgbColor")) {
        rgb.push_back(entry.attribute("rgb").value());
    }
    ASSERT_EQ(rgb.size(), 64u);
    EXPECT_EQ(rgb[0], "FF000000");
    EXPECT_EQ(rgb[7], "FF00FFFF");
    EXPECT_EQ(rgb[8], "FF123456");
    EXPECT_EQ(rgb[63], "FF336699");
}

TEST(BuiltinNumberFormats, CodesAndIdsCorrespond) {
    int builtins = 0;
    for (uint32_t id = 0; id < kFirstCustomNumberFormatId; ++id) {
        const std::string_view code = BuiltinNumberFormatCode(id);
        if (!code.empty()) {
            ++builtins;
            EXPECT_EQ(BuiltinNumberFormatId(code), id) << code;
        }
    }
    EXPECT_EQ(builtins, 32);
    EXPECT_EQ(BuiltinNumberFormatId("mm-dd-yy"), 14u);
    EXPECT_EQ(BuiltinNumberFormatId("#,##0 ;(#,##0)"), 37u);
    EXPECT_EQ(BuiltinNumberFormatId("0.000"), std::nullopt);
    EXPECT_TRUE(BuiltinNumberFormatCode(5).empty());
    EXPECT_TRUE(BuiltinNumberFormatCode(50).empty());
}

}  // namespace
