// Reading a package gives the colour scheme of the workbook's own theme, which theme colours in
// styles and drawings refer to; the theme part itself is kept as it is.

#include "ooxml/reader_test_package.hpp"

#include "ooxml/opc/package_reader.hpp"
#include "ooxml/opc/package_writer.hpp"
#include "ooxml/package_error.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>

namespace {

using ooxml::ReadPackage;
using ooxml_test::MinimalPackage;
using ooxml_test::PackageParts;
using ooxml_test::TemporaryPackage;

using ThemeColors = std::array<uint32_t, 12>;

const std::string CorpusDir = VOS_SHARED_DIR "/excel-corpus/";

constexpr const char* OwnTheme =
    R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
    R"(<a:theme xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" name="Own"><a:themeElements>)"
    R"(<a:clrScheme name="Own"><a:dk1><a:sysClr val="windowText" lastClr="000000"/></a:dk1>)"
    R"(<a:lt1><a:sysClr val="window" lastClr="FFFFFF"/></a:lt1><a:dk2><a:srgbClr val="69676D"/></a:dk2>)"
    R"(<a:lt2><a:srgbClr val="C9C2D1"/></a:lt2><a:accent1><a:srgbClr val="CEB966"/></a:accent1>)"
    R"(<a:accent2><a:srgbClr val="9CB084"/></a:accent2><a:accent3><a:srgbClr val="6BB1C9"/></a:accent3>)"
    R"(<a:accent4><a:srgbClr val="6585CF"/></a:accent4><a:accent5><a:srgbClr val="7E6BC9"/></a:accent5>)"
    R"(<a:accent6><a:srgbClr val="A379BB"/></a:accent6><a:hlink><a:srgbClr val="B333FF"/></a:hlink>)"
    R"(<a:folHlink><a:srgbClr val="5300A6"/></a:folHlink></a:clrScheme>)"
    R"(<a:fontScheme name="Own"/><a:fmtScheme name="Own"/></a:themeElements></a:theme>)";

constexpr ThemeColors OwnThemeColors{0xFFFFFF, 0x000000, 0xC9C2D1, 0x69676D, 0xCEB966, 0x9CB084,
                                     0x6BB1C9, 0x6585CF, 0x7E6BC9, 0xA379BB, 0xB333FF, 0x5300A6};

// The one-sheet package with a theme part at the given name, related to the workbook.
PackageParts WithTheme(const std::string& partName, const std::string& xml) {
    PackageParts parts = MinimalPackage("<sheetData/>");
    std::string& types = parts["[Content_Types].xml"];
    types.insert(types.rfind("</Types>"),
                 R"(<Override PartName="/)" + partName +
                     R"(" ContentType="application/vnd.openxmlformats-officedocument.theme+xml"/>)");
    std::string& relationships = parts["xl/_rels/workbook.xml.rels"];
    relationships.insert(
        relationships.rfind("</Relationships>"),
        R"(<Relationship Id="rId9" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/theme" Target=")" +
            partName.substr(3) + R"("/>)");
    parts[partName] = xml;
    return parts;
}

ooxml::WorkbookDocument Read(const PackageParts& parts) {
    const TemporaryPackage package(parts);
    return ReadPackage(package.Path());
}

TEST(ThemeColorsReaderTest, TheWorkbooksOwnThemeGivesTheThemeColours) {
    const ooxml::WorkbookDocument document = Read(WithTheme("xl/theme/theme1.xml", OwnTheme));
    EXPECT_TRUE(document.themeFromFile);
    EXPECT_EQ(document.themeColors, OwnThemeColors);
    ASSERT_TRUE(document.carried);
    ASSERT_EQ(document.carried->parts.count("xl/theme/theme1.xml"), 1u);
    EXPECT_EQ(document.carried->parts.at("xl/theme/theme1.xml").bytes, OwnTheme);
}

TEST(ThemeColorsReaderTest, TheThemeIsFoundByItsRelationshipWhateverItsName) {
    const ooxml::WorkbookDocument document = Read(WithTheme("xl/looks/house.xml", OwnTheme));
    EXPECT_TRUE(document.themeFromFile);
    EXPECT_EQ(document.themeColors, OwnThemeColors);
}

TEST(ThemeColorsReaderTest, AWorkbookWithoutThemeOrItsColoursLeavesThemToTheCaller) {
    const ooxml::WorkbookDocument withoutTheme = Read(MinimalPackage("<sheetData/>"));
    EXPECT_FALSE(withoutTheme.themeFromFile);
    EXPECT_EQ(withoutTheme.themeColors, ThemeColors{});

    const std::string noScheme = R"(<a:theme xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" )"
                                 R"(name="Bare"><a:themeElements/></a:theme>)";
    const ooxml::WorkbookDocument bare = Read(WithTheme("xl/theme/theme1.xml", noScheme));
    EXPECT_FALSE(bare.themeFromFile);
    ASSERT_EQ(bare.carried->parts.count("xl/theme/theme1.xml"), 1u);
    EXPECT_EQ(bare.carried->parts.at("xl/theme/theme1.xml").bytes, noScheme);

    // Malformed: the workbook opens all the same, with its theme kept as it was.
    const ooxml::WorkbookDocument broken = Read(WithTheme("xl/theme/theme1.xml", "<a:theme><a:themeElements>"));
    EXPECT_FALSE(broken.themeFromFile);
    EXPECT_EQ(broken.carried->parts.count("xl/theme/theme1.xml"), 1u);

    PackageParts missing = WithTheme("xl/theme/theme1.xml", OwnTheme);
    missing.erase("xl/theme/theme1.xml");
    EXPECT_FALSE(Read(missing).themeFromFile);
}

TEST(ThemeColorsReaderTest, TheThemeTheWriterWritesReadsBackWithItsColours) {
    ooxml::WorkbookDocument written;
    written.sheets.emplace_back().name = "Sheet1";
    written.themeColors = OwnThemeColors;
    const std::string path = ::testing::TempDir() + "theme_colors_reader_test.xlsx";
    ooxml::WritePackage(written, path);
    const ooxml::WorkbookDocument read = ReadPackage(path);
    std::remove(path.c_str());
    EXPECT_TRUE(read.themeFromFile);
    EXPECT_EQ(read.themeColors, OwnThemeColors);
}

TEST(ThemeColorsReaderTest, ExcelWorkbooksWithThemesOtherThanTheDefault) {
    // Apex, from an Excel 2007 template.
    const ooxml::WorkbookDocument apex =
        ReadPackage(CorpusDir + "realworld-excel/oxsdk__O12tpl__EventBudget_TP10194064.xltx");
    EXPECT_TRUE(apex.themeFromFile);
    EXPECT_EQ(apex.themeColors, OwnThemeColors);

    // The Office theme of 2023.
    const ooxml::WorkbookDocument office2023 =
        ReadPackage(CorpusDir + "realworld-excel/calamine__table_with_insertrow_attribute.xlsx");
    EXPECT_TRUE(office2023.themeFromFile);
    EXPECT_EQ(office2023.themeColors, (ThemeColors{0xFFFFFF, 0x000000, 0xE8E8E8, 0x0E2841, 0x145F82, 0xE87331, 0x186C24,
                                                   0x0F9ED5, 0xA02B93, 0x4EA72E, 0x467886, 0x96607D}));

    // A theme whose text and background colours are plain RGB colours.
    const ooxml::WorkbookDocument libre = ReadPackage(CorpusDir + "realworld-excel/calamine__issue_553.xlsx");
    EXPECT_TRUE(libre.themeFromFile);
    EXPECT_EQ(libre.themeColors, (ThemeColors{0xFFFFFF, 0x000000, 0xFFFFFF, 0x000000, 0x18A303, 0x0369A3, 0xA33E03,
                                              0x8E03A3, 0xC99C00, 0xC9211E, 0x0000EE, 0x551A8B}));

    // The Office theme of 2007, which most of the corpus keeps.
    const ooxml::WorkbookDocument office2007 =
        ReadPackage(CorpusDir + "cells-drawings-xlsxwriter/xw__theme_color02.xlsx");
    EXPECT_TRUE(office2007.themeFromFile);
    EXPECT_EQ(office2007.themeColors, (ThemeColors{0xFFFFFF, 0x000000, 0xEEECE1, 0x1F497D, 0x4F81BD, 0xC0504D, 0x9BBB59,
                                                   0x8064A2, 0x4BACC6, 0xF79646, 0x0000FF, 0x800080}));
}

TEST(ThemeColorsReaderTest, EveryExcelMadeWorkbookGivesItsThemesColours) {
    int read = 0;
    for (const auto& entry : std::filesystem::directory_iterator(CorpusDir + "realworld-excel")) {
        SCOPED_TRACE(entry.path().filename().string());
        ooxml::WorkbookDocument document;
        try {
            document = ReadPackage(entry.path().string());
        } catch (const ooxml::PackageError&) {
            continue;  // not every corpus file is a package this reader reads (encrypted, strict)
        }
        ++read;
        EXPECT_TRUE(document.themeFromFile);
    }
    EXPECT_GT(read, 0);
}

}  // namespace
