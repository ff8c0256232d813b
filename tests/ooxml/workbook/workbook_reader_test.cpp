#include "ooxml/workbook/workbook_reader.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using ooxml::ReadWorkbook;

// A workbook part with the given workbookPr element (none when empty) and one sheet.
std::string WorkbookXml(const std::string& properties) {
    return R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main")"
           R"( xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)" +
           properties + R"(<bookViews><workbookView/></bookViews>)" +
           R"(<sheets><sheet name="Data" sheetId="1" r:id="rId1"/></sheets></workbook>)";
}

bool Reads1904(const std::string& properties) {
    std::string xml = WorkbookXml(properties);
    ooxml::CarriedWorkbook carried;
    return ReadWorkbook(xml, "xl/workbook.xml", carried).date1904;
}

TEST(WorkbookReader, ReadsThe1904DateSystem) {
    EXPECT_TRUE(Reads1904(R"(<workbookPr date1904="1" showInkAnnotation="0"/>)"));
    EXPECT_TRUE(Reads1904(R"(<workbookPr date1904="true"/>)"));
}

TEST(WorkbookReader, The1900DateSystemUnlessTheWorkbookSaysOtherwise) {
    EXPECT_FALSE(Reads1904(""));
    EXPECT_FALSE(Reads1904(R"(<workbookPr defaultThemeVersion="124226"/>)"));
    EXPECT_FALSE(Reads1904(R"(<workbookPr date1904="0"/>)"));
    EXPECT_FALSE(Reads1904(R"(<workbookPr date1904="false"/>)"));
}

}  // namespace
