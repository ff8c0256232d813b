#include "ooxml/opc/part_names.hpp"
#include "ooxml/opc/relationships_part.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gtest/gtest.h>

namespace ooxml {
namespace {

TEST(RelativeTarget, ClimbsOutOfTheSourceFolderAsFarAsTheyDiffer) {
    EXPECT_EQ(RelativeTarget("xl/workbook.xml", "xl/worksheets/sheet1.xml"), "worksheets/sheet1.xml");
    EXPECT_EQ(RelativeTarget("xl/worksheets/sheet1.xml", "xl/media/image1.png"), "../media/image1.png");
    EXPECT_EQ(RelativeTarget("xl/worksheets/sheet1.xml", "xl/worksheets/sheet2.xml"), "sheet2.xml");
    EXPECT_EQ(RelativeTarget("xl/charts/chart1.xml", "customXml/item1.xml"), "../../customXml/item1.xml");
    EXPECT_EQ(RelativeTarget("", "docProps/core.xml"), "docProps/core.xml");
    // A folder whose name starts like the other's is still another folder.
    EXPECT_EQ(RelativeTarget("xl/drawings/drawing1.xml", "xl/drawingsOld/a.xml"), "../drawingsOld/a.xml");
}

TEST(Relationships, NewIdsTakeTheNumbersTheKeptOnesLeaveFreeAndAllAreListedByNumber) {
    Relationships relationships;
    relationships.Keep({"rId1", "http://x/printerSettings", "xl/printerSettings/printerSettings1.bin", false},
                       "xl/worksheets/sheet1.xml");
    relationships.Keep({"rId3", "http://x/hyperlink", "https://example.com/a?b&c", true}, "xl/worksheets/sheet1.xml");
    relationships.Keep({"rId10", "http://x/table", "xl/tables/table1.xml", false}, "xl/worksheets/sheet1.xml");
    EXPECT_EQ(relationships.Add("http://x/drawing", "../drawings/drawing1.xml"), "rId2");
    EXPECT_EQ(relationships.Add("http://x/comments", "../comments1.xml"), "rId4");
    const std::string xml = writer_test::WriteToString([&](XmlWriter& writer) { relationships.Write(writer); });
    std::vector<std::string> ids;
    for (std::size_t at = xml.find("Id=\""); at != std::string::npos; at = xml.find("Id=\"", at + 1)) {
        ids.push_back(xml.substr(at + 4, xml.find('"', at + 4) - at - 4));
    }
    EXPECT_EQ(ids, (std::vector<std::string>{"rId1", "rId2", "rId3", "rId4", "rId10"}));
    EXPECT_NE(xml.find(R"(Id="rId1" Type="http://x/printerSettings" Target="../printerSettings/printerSettings1.bin")"),
              std::string::npos);
    EXPECT_NE(xml.find(R"(Target="https://example.com/a?b&amp;c" TargetMode="External")"), std::string::npos);
}

TEST(PartNames, NamesPassTheTakenOnesWhateverTheCase) {
    PartNames names;
    names.Take("xl/drawings/Drawing1.xml");
    names.Take("xl/drawings/drawing3.xml");
    uint32_t count = 0;
    EXPECT_EQ(names.Next("xl/drawings/drawing", count, ".xml"), "xl/drawings/drawing2.xml");
    EXPECT_EQ(names.Next("xl/drawings/drawing", count, ".xml"), "xl/drawings/drawing4.xml");
    EXPECT_EQ(count, 4u);
}

}  // namespace
}  // namespace ooxml
