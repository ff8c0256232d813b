#include "table/interior_fixture.hpp"
#include "table/saved_and_reopened.hpp"

namespace {

constexpr int32_t KeepAlignment = -12345;

// The usual table filled with data, comments, dividers and column settings, for saving and opening.
class InteriorSaveOpenTest : public InteriorTest {
protected:
    void SetUp() override {
        InteriorTest::SetUp();
        const auto table = PlaceTable();
        table->WriteDataToColumn(1, ArrayOf(excel::VarType::Variant, 0, {"North", "South", "#1", true}));
        table->WriteDataToColumn(2, ArrayOf(excel::VarType::Double, 1, {1250.5, 980.25, 47.0}), 2);
        table->AddComment(2, 2, "Source", "ledger");
        table->AddComment(0, 1, "Region", "as booked");
        table->AddComment(0, 0, "Table", "all figures in USD");
        table->AddRowDividerLine(0, true, excel::xlDash, excel::xlMedium, 3);
        table->AddColumnDividerLine(1, true);
        table->ConfigureColumn(2, "Revenue", excel::xlRight, KeepAlignment, 18.0, "#,##0.00");
        table->ConfigureColumn(3, "", KeepAlignment, excel::xlLeft, -1.0, "[LOCAL]0.0%", true);
    }
};

}  // namespace

TEST_F(InteriorSaveOpenTest, ColumnDataSurvives) {
    excelSheet = SavedAndReopened(excelSheet, "interior.xlsx");
    EXPECT_EQ(ValuesOf(At("D4:E7")),
              (std::vector<std::string>{"North", "", "South", "1250.5", "#1", "980.25", "True", "47"}));
    EXPECT_EQ(At("D6")->Value(), excel::Variant("#1"));
    EXPECT_EQ(At("D7")->Value(), excel::Variant(true));
}

TEST_F(InteriorSaveOpenTest, CommentsOnInteriorHeaderAndSignatureCellsSurvive) {
    excelSheet = SavedAndReopened(excelSheet, "interior.xlsx");
    EXPECT_EQ(excelSheet->Shapes()->Count(), 3);
    const std::vector<std::pair<std::string, std::string>> expected{
        {"E5", "Source\nledger"}, {"D3", "Region\nas booked"}, {"C3", "Table\nall figures in USD"}};
    for (const auto& [address, text] : expected) {
        const auto comment = At(address)->Comment();
        ASSERT_NE(comment, nullptr) << address;
        EXPECT_EQ(comment->Text(), text) << address;
        EXPECT_FALSE(comment->Visible()) << address;
        EXPECT_EQ(comment->Shape()->Line()->ForeColor()->RGB(), 0x800000) << address;
    }
}

TEST_F(InteriorSaveOpenTest, DividersSurvive) {
    excelSheet = SavedAndReopened(excelSheet, "interior.xlsx");
    EXPECT_EQ(EdgesOf(At("B3:F3"), excel::xlEdgeBottom), std::vector<std::string>(5, "-4115/-4138/3"));
    EXPECT_EQ(EdgesOf(At("D2:D7"), excel::xlEdgeRight), std::vector<std::string>(6, "1/2/15"));
}

TEST_F(InteriorSaveOpenTest, ColumnSettingsSurvive) {
    excelSheet = SavedAndReopened(excelSheet, "interior.xlsx");
    EXPECT_EQ(At("E3")->Value(), excel::Variant("Revenue"));
    EXPECT_DOUBLE_EQ(At("E1")->ColumnWidth().ToDouble(), 18.0);
    EXPECT_EQ(TextOf(At("E4:E7")->NumberFormat()), "#,##0.00");
    EXPECT_EQ(At("E4:E7")->HorizontalAlignment().ToInt(), excel::xlRight);
    EXPECT_EQ(At("E3")->HorizontalAlignment().ToInt(), excel::xlRight);
    EXPECT_EQ(TextOf(At("F4:F7")->NumberFormat()), "0.0%");
    EXPECT_TRUE(At("F4:F7")->WrapText().ToBool());
    EXPECT_EQ(At("F3")->HorizontalAlignment().ToInt(), excel::xlLeft);
    EXPECT_EQ(At("F4:F7")->HorizontalAlignment().ToInt(), excel::xlCenter);
}
