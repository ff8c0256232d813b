#include "ooxml/reader_test_package.hpp"

#include "ooxml/opc/package_reader.hpp"

#include <gtest/gtest.h>

namespace {

using ooxml::Color;
using ooxml_test::MinimalPackage;
using ooxml_test::PackageParts;
using ooxml_test::TemporaryPackage;

constexpr const char* StyledSheet =
    R"(<sheetData><row r="1"><c r="A1" s="1"><v>1</v></c><c r="B1" s="2"><v>2</v></c><c r="C1" s="3"><v>3</v></c>)"
    R"(</row></sheetData>)";

constexpr const char* Styles =
    R"(<styleSheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main">)"
    R"(<numFmts count="1"><numFmt numFmtId="164" formatCode="0.0&quot; kg&quot;"/></numFmts>)"
    R"(<fonts count="2"><font><sz val="11"/><color theme="1"/><name val="Calibri"/><family val="2"/><scheme val="minor"/></font>)"
    R"(<font><b/><i val="0"/><strike val="1"/><u val="double"/><vertAlign val="superscript"/><sz val="14.5"/>)"
    R"(<color rgb="FF1F497D"/><name val="Cambria"/><family val="1"/></font></fonts>)"
    R"(<fills count="4"><fill><patternFill patternType="none"/></fill><fill><patternFill patternType="gray125"/></fill>)"
    R"(<fill><patternFill patternType="solid"><fgColor theme="4" tint="0.79998168889431442"/><bgColor indexed="64"/></patternFill></fill>)"
    R"(<fill><gradientFill degree="90"><stop position="0"><color rgb="FFFFFFFF"/></stop></gradientFill></fill></fills>)"
    R"(<borders count="2"><border><left/><right/><top/><bottom/><diagonal/></border>)"
    R"(<border diagonalUp="1"><start style="thin"><color auto="1"/></start><end style="medium"><color indexed="10"/></end>)"
    R"(<top style="none"/><bottom style="double"><color theme="5" tint="-0.5"/></bottom><diagonal style="hair"/></border></borders>)"
    R"(<cellStyleXfs count="1"><xf numFmtId="0" fontId="0" fillId="0" borderId="0"/></cellStyleXfs>)"
    R"(<cellXfs count="4"><xf numFmtId="0" fontId="0" fillId="0" borderId="0" xfId="0"/>)"
    R"(<xf numFmtId="164" fontId="1" fillId="2" borderId="1" xfId="0" applyFont="1" quotePrefix="1">)"
    R"(<alignment horizontal="center" vertical="top" wrapText="1" indent="2" textRotation="255"/>)"
    R"(<protection locked="0" hidden="1"/></xf>)"
    R"(<xf numFmtId="44" fontId="7" fillId="3" borderId="0" xfId="0"/>)"
    R"(<xf numFmtId="14" fontId="0" fillId="1" borderId="0" xfId="0"><alignment horizontal="general" vertical="bottom"/></xf>)"
    R"(</cellXfs><colors><indexedColors>)"
    R"(<rgbColor rgb="00000000"/><rgbColor rgb="00FFFFFF"/><rgbColor rgb="00FF0000"/><rgbColor rgb="0000FF00"/>)"
    R"(<rgbColor rgb="000000FF"/><rgbColor rgb="00FFFF00"/><rgbColor rgb="00FF00FF"/><rgbColor rgb="0000FFFF"/>)"
    R"(<rgbColor rgb="00123456"/><rgbColor rgb="00FFFFFF"/><rgbColor rgb="00ABCDEF"/>)"
    R"(</indexedColors></colors></styleSheet>)";

ooxml::WorkbookDocument ReadStyled() {
    const TemporaryPackage package(ooxml_test::MinimalPackageWithStyles(StyledSheet, Styles));
    return ooxml::ReadPackage(package.Path());
}

TEST(StylesReaderTest, EveryCellFormatIsResolvedIntoACompleteFormat) {
    const auto document = ReadStyled();
    ASSERT_EQ(document.formats.size(), 4u);
    EXPECT_EQ(document.sheets.at(0).rows.at(0).cells.at(1).format, 2u);

    const ooxml::CellFormat& plain = document.formats[0];
    EXPECT_EQ(plain, ooxml::CellFormat{});

    const ooxml::CellFormat& rich = document.formats[1];
    EXPECT_EQ(rich.numberFormat, "0.0\" kg\"");
    ooxml::Font font;
    font.name = "Cambria";
    font.size = 14.5;
    font.bold = true;
    font.strike = true;
    font.underline = "double";
    font.vertAlign = "superscript";
    font.color = Color{Color::Kind::Rgb, 0xFF1F497D, 0, 0.0};
    font.family = 1;
    font.scheme = "";
    EXPECT_EQ(rich.font, font);
    EXPECT_EQ(rich.fill.patternType, "solid");
    EXPECT_EQ(rich.fill.foreground, (Color{Color::Kind::Theme, 0, 4, 0.79998168889431442}));
    EXPECT_EQ(rich.fill.background, (Color{Color::Kind::Indexed, 0, 64, 0.0}));
    EXPECT_EQ(rich.border.left, (ooxml::BorderLine{"thin", Color{Color::Kind::Auto, 0, 0, 0.0}}));
    EXPECT_EQ(rich.border.right, (ooxml::BorderLine{"medium", Color{Color::Kind::Indexed, 0, 10, 0.0}}));
    EXPECT_EQ(rich.border.top, ooxml::BorderLine{});
    EXPECT_EQ(rich.border.bottom, (ooxml::BorderLine{"double", Color{Color::Kind::Theme, 0, 5, -0.5}}));
    EXPECT_EQ(rich.border.diagonal, (ooxml::BorderLine{"hair", Color{}}));
    EXPECT_TRUE(rich.border.diagonalUp);
    EXPECT_FALSE(rich.border.diagonalDown);
    EXPECT_EQ(rich.alignment, (ooxml::Alignment{"center", "top", true, false, 2, 255}));
    EXPECT_TRUE(rich.quotePrefix);
    EXPECT_FALSE(rich.locked);
    EXPECT_TRUE(rich.hidden);
}

TEST(StylesReaderTest, BuiltinNumberFormatsAndMissingPiecesFallBackToDefaults) {
    const auto document = ReadStyled();
    const ooxml::CellFormat& accounting = document.formats.at(2);
    EXPECT_EQ(accounting.numberFormat, R"(_("$"* #,##0.00_);_("$"* \(#,##0.00\);_("$"* "-"??_);_(@_))");
    EXPECT_EQ(accounting.font, ooxml::Font{});  // font 7 does not exist
    // A gradient is kept as the file wrote it.
    EXPECT_EQ(accounting.fill.patternType, "none");
    EXPECT_EQ(accounting.fill.gradient,
              R"(<gradientFill degree="90"><stop position="0"><color rgb="FFFFFFFF"/></stop></gradientFill>)");
    EXPECT_FALSE(accounting.fill.pathGradient);
    const ooxml::CellFormat& date = document.formats.at(3);
    EXPECT_EQ(date.numberFormat, "m/d/yyyy");
    EXPECT_EQ(date.fill.patternType, "gray125");
    EXPECT_EQ(date.alignment, ooxml::Alignment{});
}

TEST(StylesReaderTest, ChangedPaletteListsTheIndexedColoursTheFileGives) {
    const auto document = ReadStyled();
    ASSERT_EQ(document.palette.size(), 11u);
    EXPECT_EQ(document.palette[0], 0x000000u);
    EXPECT_EQ(document.palette[7], 0x00FFFFu);
    EXPECT_EQ(document.palette[8], 0x123456u);  // indexed 8, ColorIndex 1
    EXPECT_EQ(document.palette[9], 0xFFFFFFu);
    EXPECT_EQ(document.palette[10], 0xABCDEFu);
}

TEST(StylesReaderTest, RichTextRunsCarryTheirFonts) {
    PackageParts parts = MinimalPackage(R"(<sheetData><row r="1"><c r="A1" t="s"><v>0</v></c><c r="B1" t="inlineStr">)"
                                        R"(<is><r><t>in</t></r><r><rPr><i/><sz val="9"/><rFont val="Arial"/></rPr>)"
                                        R"(<t>line</t></r></is></c></row></sheetData>)");
    parts["xl/sharedStrings.xml"] =
        R"(<sst xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" count="1" uniqueCount="1"><si>)"
        R"(<r><rPr><b/><sz val="11"/><color theme="1" tint="0.25"/><rFont val="Calibri"/><family val="2"/><scheme val="minor"/></rPr>)"
        R"(<t xml:space="preserve">Bold </t></r><r><t>plain</t></r><rPh sb="0" eb="1"><t>ふ</t></rPh></si></sst>)";
    parts["xl/_rels/workbook.xml.rels"] =
        R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
        R"(<Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/worksheet" Target="worksheets/sheet1.xml"/>)"
        R"(<Relationship Id="rId2" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/sharedStrings" Target="sharedStrings.xml"/>)"
        R"(</Relationships>)";
    const TemporaryPackage package(parts);
    const auto document = ooxml::ReadPackage(package.Path());
    ASSERT_EQ(document.strings.size(), 2u);
    const ooxml::SharedString& shared = document.strings[0];
    EXPECT_EQ(shared.text, "Bold plain");
    ASSERT_EQ(shared.runs.size(), 2u);
    ooxml::Font bold;
    bold.bold = true;
    bold.color.tint = 0.25;
    EXPECT_EQ(shared.runs[0], (ooxml::TextRun{"Bold ", bold}));
    EXPECT_EQ(shared.runs[1], (ooxml::TextRun{"plain", std::nullopt}));
    const ooxml::SharedString& inlined = document.strings[1];
    EXPECT_EQ(inlined.text, "inline");
    ASSERT_EQ(inlined.runs.size(), 2u);
    ASSERT_TRUE(inlined.runs[1].font.has_value());
    EXPECT_TRUE(inlined.runs[1].font->italic);
    EXPECT_EQ(inlined.runs[1].font->name, "Arial");
    EXPECT_EQ(inlined.runs[1].font->size, 9.0);
    EXPECT_EQ(inlined.runs[1].font->color, Color{});
}

TEST(StylesReaderTest, AnEntryWrappedInAlternateContentCountsAsItsFallback) {
    const std::string styles =
        R"(<x:styleSheet xmlns:x="http://schemas.openxmlformats.org/spreadsheetml/2006/main">)"
        R"(<x:fonts count="3"><x:font><x:sz val="11"/><x:name val="Arial"/></x:font>)"
        R"(<mc:AlternateContent xmlns:mc="http://schemas.openxmlformats.org/markup-compatibility/2006">)"
        R"(<mc:Choice xmlns:hs="urn:example:extension" Requires="hs"><x:font><x:sz val="9"/><x:name val="Arial"/>)"
        R"(<hs:ratio val="100"/></x:font></mc:Choice>)"
        R"(<mc:Fallback><x:font><x:sz val="9"/><x:name val="Arial"/></x:font></mc:Fallback></mc:AlternateContent>)"
        R"(<x:font><x:b/><x:sz val="12"/><x:name val="Arial"/></x:font></x:fonts>)"
        R"(<x:cellXfs count="3"><x:xf fontId="0"/><x:xf fontId="1"/><x:xf fontId="2"/></x:cellXfs></x:styleSheet>)";
    const TemporaryPackage package(ooxml_test::MinimalPackageWithStyles(StyledSheet, styles));
    const auto document = ooxml::ReadPackage(package.Path());
    ASSERT_EQ(document.formats.size(), 3u);
    EXPECT_EQ(document.formats[1].font.size, 9.0);
    EXPECT_EQ(document.formats[2].font.size, 12.0);
    EXPECT_TRUE(document.formats[2].font.bold);
}

}  // namespace
