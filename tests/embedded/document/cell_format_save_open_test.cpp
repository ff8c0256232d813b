// What an opened file's cell formats hold beyond the engine's own settings comes back when it is
// saved: the named styles cells are based on (and every named style of the workbook), gradient
// fills, and the character sets of legacy fonts, until a change makes them wrong.

#include "embedded/document/save_open_fixture.hpp"
#include "ooxml/reader_test_package.hpp"

#include <excel/constants.hpp>
#include <pugixml.hpp>

#include <iterator>
#include <set>
#include <string>

using namespace excel;

namespace {

constexpr const char* Spreadsheet = "realworld-excel/oxsdk__TestFiles__basicspreadsheet.xlsx";

// The saved styles part and first sheet, read the way Excel resolves a cell's named style.
class SavedStyles {
public:
    explicit SavedStyles(const ooxml_test::PackageParts& parts,
                         const std::string& sheetPart = "xl/worksheets/sheet1.xml") {
        styles_.load_string(parts.at("xl/styles.xml").c_str());
        sheet_.load_string(parts.at(sheetPart).c_str());
    }

    pugi::xml_node Sheet() const { return styles_.child("styleSheet"); }

    pugi::xml_node CellXf(const std::string& address) const {
        const pugi::xml_node cell = sheet_.select_node(("//c[@r='" + address + "']").c_str()).node();
        return Nth(Sheet().child("cellXfs"), cell.attribute("s").as_uint());
    }

    std::string StyleOf(const std::string& address) const {
        const unsigned xfId = CellXf(address).attribute("xfId").as_uint();
        for (const pugi::xml_node style : Sheet().child("cellStyles").children("cellStyle")) {
            if (style.attribute("xfId").as_uint() == xfId) {
                return style.attribute("name").value();
            }
        }
        return "style " + std::to_string(xfId);
    }

    std::set<std::string> StyleNames() const {
        std::set<std::string> names;
        for (const pugi::xml_node style : Sheet().child("cellStyles").children("cellStyle")) {
            names.insert(style.attribute("name").value());
        }
        return names;
    }

    pugi::xml_node FontOf(pugi::xml_node xf) const {
        return Nth(Sheet().child("fonts"), xf.attribute("fontId").as_uint());
    }

    pugi::xml_node FillOf(pugi::xml_node xf) const {
        return Nth(Sheet().child("fills"), xf.attribute("fillId").as_uint());
    }

    pugi::xml_node StyleXfOf(const std::string& address) const {
        return Nth(Sheet().child("cellStyleXfs"), CellXf(address).attribute("xfId").as_uint());
    }

private:
    static pugi::xml_node Nth(pugi::xml_node list, unsigned index) {
        pugi::xml_node entry = list.first_child();
        for (unsigned i = 0; i < index && entry; ++i) {
            entry = entry.next_sibling();
        }
        return entry;
    }

    pugi::xml_document styles_;
    pugi::xml_document sheet_;
};

TEST_F(SaveOpenTest, CellsKeepTheirNamedStylesThroughAResave) {
    auto workbook = OpenCorpus(Spreadsheet);
    const SavedStyles saved(Saved(workbook, "copy.xlsx"));
    EXPECT_EQ(saved.StyleNames(), (std::set<std::string>{"Heading 1", "Normal", "Style 1", "Title"}));
    EXPECT_EQ(saved.StyleOf("A6"), "Heading 1");
    EXPECT_EQ(saved.StyleOf("A7"), "Title");
    EXPECT_EQ(saved.StyleOf("A8"), "Style 1");
    EXPECT_EQ(saved.StyleOf("A2"), "Normal");
    // Heading 1's own font: bold 15-point, in the file's second theme dark colour.
    const pugi::xml_node headingFont = saved.FontOf(saved.StyleXfOf("A6"));
    EXPECT_TRUE(headingFont.child("b"));
    EXPECT_EQ(headingFont.child("sz").attribute("val").as_double(), 15.0);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("copy.xlsx")), 0);
}

TEST_F(SaveOpenTest, FormattingACellKeepsItsNamedStyleAndClearingFormatsReturnsItToNormal) {
    auto workbook = OpenCorpus(Spreadsheet);
    auto sheet = workbook->Worksheets(1);
    sheet->Range("A6")->Interior()->SetColor(0x00FFFF);  // yellow, as BGR
    sheet->Range("A6")->Font()->SetItalic(true);
    sheet->Range("A7")->ClearFormats();
    const SavedStyles saved(Saved(workbook, "formatted.xlsx"));
    EXPECT_EQ(saved.StyleOf("A6"), "Heading 1");
    const pugi::xml_node xf = saved.CellXf("A6");
    EXPECT_TRUE(xf.attribute("applyFill").as_bool());
    EXPECT_TRUE(xf.attribute("applyFont").as_bool());
    EXPECT_FALSE(xf.attribute("applyBorder"));  // still the style's border
    EXPECT_TRUE(saved.FontOf(xf).child("i"));
    EXPECT_EQ(saved.StyleOf("A7"), "Normal");
    EXPECT_EQ(saved.StyleNames().size(), 4u);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("formatted.xlsx")), 0);
}

TEST_F(SaveOpenTest, AFontChosenByNameDropsTheCharacterSetOfTheOldOne) {
    constexpr const char* Japanese = "realworld-excel/poi__50299.xlsx";  // fonts with the Shift-JIS character set
    const SavedStyles before(ooxml_test::ReadPackageParts(CorpusPath(Japanese)), "xl/worksheets/sheet4.xml");
    ASSERT_EQ(before.FontOf(before.CellXf("A1")).child("charset").attribute("val").as_int(), 128);
    auto workbook = OpenCorpus(Japanese);
    workbook->Worksheets(4)->Range("A1")->Font()->SetName("Arial");
    workbook->Worksheets(4)->Range("A2")->Font()->SetBold(true);
    const SavedStyles saved(Saved(workbook, "renamed.xlsx"), "xl/worksheets/sheet4.xml");
    const pugi::xml_node renamed = saved.FontOf(saved.CellXf("A1"));
    EXPECT_STREQ(renamed.child("name").attribute("val").value(), "Arial");
    EXPECT_FALSE(renamed.child("charset"));
    const pugi::xml_node emboldened = saved.FontOf(saved.CellXf("A2"));
    EXPECT_TRUE(emboldened.child("b"));
    EXPECT_EQ(emboldened.child("charset").attribute("val").as_int(), 128);
}

TEST_F(SaveOpenTest, AGradientFillIsKeptUntilAColourReplacesIt) {
    auto workbook = OpenCorpus(Spreadsheet);
    auto sheet = workbook->Worksheets(1);
    EXPECT_EQ(sheet->Range("D1")->Interior()->Pattern(), Variant(xlPatternLinearGradient));
    EXPECT_EQ(sheet->Range("A8")->Interior()->Pattern(), Variant(xlPatternLinearGradient));
    sheet->Range("A8")->Interior()->SetColor(0x00FFFF);
    EXPECT_EQ(sheet->Range("A8")->Interior()->Pattern(), Variant(xlPatternSolid));
    const SavedStyles saved(Saved(workbook, "gradient.xlsx"));
    const pugi::xml_node kept = saved.FillOf(saved.CellXf("D1"));
    EXPECT_STREQ(kept.child("gradientFill").attribute("degree").value(), "90");
    EXPECT_EQ(std::distance(kept.child("gradientFill").children("stop").begin(),
                            kept.child("gradientFill").children("stop").end()),
              2);
    const pugi::xml_node replaced = saved.FillOf(saved.CellXf("A8"));
    EXPECT_FALSE(replaced.child("gradientFill"));
    EXPECT_STREQ(replaced.child("patternFill").attribute("patternType").value(), "solid");
    EXPECT_EQ(RunTool("check-xlsx", PathOf("gradient.xlsx")), 0);
}

}  // namespace
