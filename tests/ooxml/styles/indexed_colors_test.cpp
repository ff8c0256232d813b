// An opened workbook's <colors> comes back as the file wrote it while its palette stays; a changed
// palette is written anew beside the file's most recently used colours.

#include "ooxml/opc/package_reader.hpp"
#include "ooxml/reader_test_package.hpp"
#include "ooxml/styles/styles_part.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace ooxml;

// Excel writes the indexed colours with an alpha of 00 as often as FF; it keeps either.
constexpr const char* Colors =
    R"(<colors><indexedColors><rgbColor rgb="00000000"/><rgbColor rgb="00FFFFFF"/><rgbColor rgb="00123456"/>)"
    R"(</indexedColors><mruColors><color rgb="FF99CC00"/></mruColors></colors>)";

WorkbookDocument ReadWithColors() {
    const std::string styles = R"(<styleSheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main">)"
                               R"(<cellXfs count="1"><xf/></cellXfs>)" +
                               std::string(Colors) + "</styleSheet>";
    const ooxml_test::TemporaryPackage package(ooxml_test::MinimalPackageWithStyles("<sheetData/>", styles));
    return ReadPackage(package.Path());
}

std::string Written(const WorkbookDocument& document) {
    return writer_test::WriteToString([&document](XmlWriter& xml) { WriteStylesPart(xml, document); });
}

TEST(IndexedColors, StayAsTheFileWroteThemWhileThePaletteStays) {
    const WorkbookDocument document = ReadWithColors();
    ASSERT_EQ(document.palette.size(), 3u);
    EXPECT_NE(Written(document).find(Colors), std::string::npos) << Written(document);
}

TEST(IndexedColors, AChangedPaletteIsWrittenAnewBesideTheRecentColours) {
    WorkbookDocument document = ReadWithColors();
    document.palette[2] = 0x654321;
    const std::string styles = Written(document);
    EXPECT_NE(
        styles.find(R"(<indexedColors><rgbColor rgb="FF000000"/><rgbColor rgb="FFFFFFFF"/>)"
                    R"(<rgbColor rgb="FF654321"/></indexedColors><mruColors><color rgb="FF99CC00"/></mruColors>)"),
        std::string::npos)
        << styles;
    EXPECT_EQ(styles.find("00123456"), std::string::npos);
}

}  // namespace
