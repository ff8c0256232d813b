#include "table/table_layout_fixture.hpp"

#include <excel/comment.hpp>

using TableInitializeTest = TableLayoutTest;

TEST_F(TableInitializeTest, AMissingTableRangeIsRefusedBeforeAnythingIsTouched) {
    FillWithOldContent("B2:D4");
    const auto table = std::make_shared<vos::ReportTable>();
    ExpectRefusedLeaving(
        At("A1:E5"),
        [&] {
            table->InitializeTable(std::dynamic_pointer_cast<vos::ReportWorkbook>(report), nullptr, 1, 1, "Main", "Sub",
                                   9);
        },
        vos::error_code::MissingObject, "TableRange");
    EXPECT_EQ(table->TableRange(), nullptr);
    EXPECT_EQ(table->InteriorRange(), nullptr);
}

TEST_F(TableInitializeTest, WithoutHeaderRowsThereIsNoTopHeaderOrSignature) {
    const auto table = InitializeTable(At("B2:D5"), 0, 1, "Main");
    EXPECT_EQ(LayoutOf(*table), (TableLayout{"B2:D2", "none", "B3:B5", "none", "C3:D5"}));
    EXPECT_EQ(table->TopHeaderRange(true), nullptr);
    EXPECT_EQ(AddressOf(table->LeftHeaderRange(true)), "B3:B5");
    EXPECT_EQ(table->LeftHeaderRange()->Borders(excel::xlEdgeRight)->Weight().ToInt(), excel::xlThin);
}

TEST_F(TableInitializeTest, ABlockWithoutRoomForInteriorRowsHasNoInteriorOrLeftHeader) {
    const auto table = InitializeTable(At("B2:D3"), 1, 1, "Main");
    EXPECT_EQ(LayoutOf(*table), (TableLayout{"B2:D2", "B3", "none", "C3:D3", "none"}));
    EXPECT_EQ(table->TopHeaderRange()->Font()->Bold().ToBool(), true);
}

TEST_F(TableInitializeTest, OldValuesFormatsMergesAndCommentsInsideTheBlockAreCleared) {
    FillWithOldContent("B2:E6");
    const auto table = InitializeTable(At("B2:E6"), 1, 1);
    for (int32_t row = 1; row <= 5; ++row) {
        for (int32_t column = 1; column <= 4; ++column) {
            const auto cell = table->TableRange()->Cells(row, column);
            SCOPED_TRACE(AddressOf(cell));
            EXPECT_TRUE(cell->Value().IsEmpty());
            EXPECT_EQ(cell->NumberFormat().ToString(), "General");
            EXPECT_FALSE(cell->MergeCells().ToBool());
            EXPECT_EQ(cell->Comment(), nullptr);
            EXPECT_EQ(cell->Interior()->ColorIndex().ToInt(), excel::xlColorIndexNone);
        }
    }
    EXPECT_EQ(table->InteriorRange()->Font()->Bold().ToBool(), false);
    EXPECT_EQ(table->InteriorRange()->Borders(excel::xlInsideHorizontal)->LineStyle().ToInt(), excel::xlLineStyleNone);
}

TEST_F(TableInitializeTest, CellsAroundTheBlockAreLeftAlone) {
    FillWithOldContent("A1:F7");
    const auto corners = [&] {
        return std::vector{CellState(At("A1")), CellState(At("F1")), CellState(At("A7")), CellState(At("F7"))};
    };
    const auto before = corners();
    InitializeTable(At("B2:E6"), 1, 1);
    EXPECT_EQ(corners(), before);
    EXPECT_EQ(At("A1")->Comment()->Text(), "old note");
}

TEST_F(TableInitializeTest, TitlesThatLookLikeNumbersOrFormulasStayText) {
    const auto table = InitializeTable(At("B2:D6"), 1, 1, "123", "=1+1");
    const auto main = table->TitleRange()->Cells(1, 1)->Value();
    const auto sub = table->TitleRange()->Cells(2, 1)->Value();
    ASSERT_TRUE(main.IsString());
    EXPECT_EQ(main.ToString(), "123");
    ASSERT_TRUE(sub.IsString());
    EXPECT_EQ(sub.ToString(), "=1+1");
}

TEST_F(TableInitializeTest, ATitleThatLooksLikeADateStaysText) {
    const auto table = AddTableAt("B2", 2, 2, 1, 1, "1/2", "0.5");
    EXPECT_TRUE(At("B2")->Value().IsString());
    EXPECT_EQ(At("B2")->Value().ToString(), "1/2");
    EXPECT_TRUE(At("B3")->Value().IsString());
    EXPECT_EQ(At("B3")->Value().ToString(), "0.5");
    EXPECT_EQ(At("B2")->NumberFormat().ToString(), "General");
}

TEST_F(TableInitializeTest, ASubtitleAloneLandsInTheFirstHeaderRowBelowAnEmptyTitleRow) {
    const auto table = AddTableAt("B2", 2, 2, 1, 1, "", "Sub");
    EXPECT_TRUE(At("B2")->Value().IsEmpty());
    ExpectTitleRow(At("B2"), "B2:D2", 10.0, true, "");
    EXPECT_EQ(AddressOf(table->SignatureRange()), "B3");
    EXPECT_EQ(table->SignatureRange()->Value().ToString(), "Sub");
}

TEST_F(TableInitializeTest, ASubtitleAloneLandsInTheFirstInteriorRowWithoutHeaderRows) {
    const auto table = InitializeTable(At("B2:D4"), 0, 0, "", "Sub");
    EXPECT_TRUE(At("B2")->Value().IsEmpty());
    EXPECT_EQ(AddressOf(table->InteriorRange()), "B3:D4");
    EXPECT_EQ(table->InteriorRange()->Cells(1, 1)->Value().ToString(), "Sub");
}

TEST_F(TableInitializeTest, TheLanguageGivenChoosesTheFontSizes) {
    const auto table = std::make_shared<vos::ReportTable>();
    table->InitializeTable(std::dynamic_pointer_cast<vos::ReportWorkbook>(report), At("B2:E7"), 1, 1, "Main", "Sub", 4);
    ExpectFontSizes(*table, 12.0, 10.0);
}
