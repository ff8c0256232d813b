#include "table/saved_and_reopened.hpp"
#include "table/table_layout_fixture.hpp"

#include <vos/theme_property_type.hpp>

namespace {

// A plain table at A1:C5 and, after one empty row, a themed one at A7:C10, saved and opened
// again.
class TableSaveOpenTest : public TableLayoutTest {
protected:
    void SetUp() override {
        TableLayoutTest::SetUp();
        sheet->AddTable(2, 2, 1, 1, "2024", "Sub");
        sheet->AddSeparatorRows(1);
        report->SetUseThemes(true);
        sheet->AddTable(2, 2, 1, 1, "Themed");
    }

    std::shared_ptr<excel::Worksheet> SavedAndOpened() { return SavedAndReopened(excelSheet, "tables.xlsx"); }
};

}  // namespace

TEST_F(TableSaveOpenTest, EveryCellOfBothTablesComesBackAsItWasSaved) {
    const auto before = BlockState(At("A1:D11"));
    EXPECT_EQ(BlockState(SavedAndOpened()->Range("A1:D11")), before);
}

TEST_F(TableSaveOpenTest, ThePlainTableKeepsItsTextTitlesMergesFillAndLines) {
    const auto opened = SavedAndOpened();
    const auto title = opened->Range("A1");
    ASSERT_TRUE(title->Value().IsString());
    EXPECT_EQ(title->Value().ToString(), "2024");
    EXPECT_EQ(opened->Range("A2")->Value().ToString(), "Sub");
    EXPECT_EQ(opened->Range("A1")->MergeArea()->Address(false, false), "A1:C1");
    EXPECT_EQ(opened->Range("A2")->MergeArea()->Address(false, false), "A2:C2");
    EXPECT_EQ(title->Interior()->ColorIndex().ToInt(), 15);
    EXPECT_TRUE(title->Font()->Bold().ToBool());
    EXPECT_EQ(title->Font()->Size().ToDouble(), 10.0);
    EXPECT_EQ(opened->Range("A2")->Font()->Size().ToDouble(), 8.0);
    EXPECT_EQ(opened->Range("A2:C2")->Borders(excel::xlEdgeBottom)->Weight().ToInt(), excel::xlMedium);
    EXPECT_EQ(opened->Range("A1:A5")->Borders(excel::xlEdgeLeft)->Weight().ToInt(), excel::xlMedium);
    EXPECT_EQ(opened->Range("A3:C3")->Borders(excel::xlEdgeBottom)->Weight().ToInt(), excel::xlThin);
    EXPECT_EQ(opened->Range("A3:A5")->Borders(excel::xlEdgeRight)->Weight().ToInt(), excel::xlThin);
    EXPECT_EQ(opened->Range("B4:C5")->VerticalAlignment().ToInt(), excel::xlTop);
}

TEST_F(TableSaveOpenTest, TheThemedTableKeepsItsThemeColours) {
    const int32_t titleColour = sheet->ThemeColor(vos::VosTableTitle);
    const int32_t titleFontColour = sheet->ThemeColor(vos::VosTableTitleFont);
    const int32_t headerColour = sheet->ThemeColor(vos::VosTableHeader);
    const int32_t borderColour = sheet->ThemeColor(vos::VosTableBorders);
    const auto opened = SavedAndOpened();
    const auto title = opened->Range("A7:C7");
    EXPECT_EQ(opened->Range("A7")->Value().ToString(), "Themed");
    EXPECT_EQ(opened->Range("A7")->MergeArea()->Address(false, false), "A7:C7");
    EXPECT_EQ(title->Interior()->ThemeColor().ToInt(), titleColour);
    EXPECT_EQ(title->Font()->ThemeColor().ToInt(), titleFontColour);
    EXPECT_EQ(title->Borders(excel::xlEdgeBottom)->ThemeColor().ToInt(), borderColour);
    EXPECT_EQ(opened->Range("A8:C8")->Interior()->ThemeColor().ToInt(), headerColour);
    EXPECT_EQ(opened->Range("A9:A10")->Interior()->ThemeColor().ToInt(), headerColour);
    EXPECT_EQ(opened->Range("B9:C10")->Borders(excel::xlInsideHorizontal)->ThemeColor().ToInt(), borderColour);
    EXPECT_EQ(opened->Range("A7:A10")->Borders(excel::xlEdgeLeft)->LineStyle().ToInt(), excel::xlLineStyleNone);
}
