#include "table/interior_fixture.hpp"

#include <vos/error_code.hpp>

using ConfigureColumnTest = InteriorTest;

namespace {

constexpr int32_t KeepAlignment = -12345;
constexpr const char* NoHeaderForProperties = "Header properties have been set for a non-existent header.";

// The horizontal alignment of each cell of the range, in reading order.
std::vector<int32_t> AlignmentsOf(const std::shared_ptr<excel::Range>& range) {
    std::vector<int32_t> alignments;
    for (int32_t row = 1; row <= range->Rows()->Count(); ++row)
        for (int32_t column = 1; column <= range->Columns()->Count(); ++column)
            alignments.push_back(range->Cells(row, column)->HorizontalAlignment().ToInt());
    return alignments;
}

std::vector<int32_t> Times(size_t count, int32_t alignment) {
    return std::vector<int32_t>(count, alignment);
}

}  // namespace

TEST_F(ConfigureColumnTest, PositionsOutsideTheInteriorAreRefused) {
    const auto table = PlaceTable();
    for (const int32_t position : {0, -1, 4})
        ExpectRefusalLeavesCells(At("A1:H8"), [&] { table->ConfigureColumn(position, "Caption", excel::xlRight); },
                                 vos::error_code::OutOfRange, "position");
}

TEST_F(ConfigureColumnTest, HeaderPropertiesWithoutTopHeaderAreRefusedBeforeAnythingChanges) {
    // Left header B2:B5 beside the interior C2:D5, no header rows.
    const auto table = PlaceTableWithoutTopHeader();
    ExpectRefusalLeavesCells(
        At("A1:E6"), [&] { table->ConfigureColumn(1, "Caption", excel::xlRight, KeepAlignment, 20.0, "0.00", true); },
        vos::error_code::NotAllowedNow, NoHeaderForProperties);
    ExpectRefusalLeavesCells(
        At("A1:E6"), [&] { table->ConfigureColumn(2, "", excel::xlRight, excel::xlLeft, 20.0, "0.00", true); },
        vos::error_code::NotAllowedNow, NoHeaderForProperties);
}

TEST_F(ConfigureColumnTest, ThePositionIsCheckedBeforeTheHeader) {
    const auto table = PlaceTableWithoutTopHeader();
    ExpectAutomationError([&] { table->ConfigureColumn(3, "Caption"); }, vos::error_code::OutOfRange, "position");
}

TEST_F(ConfigureColumnTest, WithoutTopHeaderTheInteriorSettingsStillApply) {
    const auto table = PlaceTableWithoutTopHeader();
    table->ConfigureColumn(1, "", excel::xlRight, KeepAlignment, 20.0, "0.00", true);
    EXPECT_EQ(AlignmentsOf(At("C2:C5")), Times(4, excel::xlRight));
    EXPECT_DOUBLE_EQ(At("C1")->ColumnWidth().ToDouble(), 20.0);
    EXPECT_EQ(TextOf(At("C2:C5")->NumberFormat()), "0.00");
    EXPECT_TRUE(At("C2:C5")->WrapText().ToBool());
    EXPECT_EQ(AlignmentsOf(At("D2:D5")), Times(4, excel::xlCenter));
}

TEST_F(ConfigureColumnTest, TheCaptionGoesIntoTheInnermostHeaderCell) {
    const auto table = PlaceTable();
    const auto interiorBefore = CellStatesOf(table->InteriorRange());
    table->ConfigureColumn(2, "Revenue");
    EXPECT_EQ(ValuesOf(At("D2:F3")), (std::vector<std::string>{"", "", "", "", "Revenue", ""}));
    EXPECT_EQ(At("E3")->HorizontalAlignment().ToInt(), excel::xlCenter);
    EXPECT_EQ(CellStatesOf(table->InteriorRange()), interiorBefore);
}

TEST_F(ConfigureColumnTest, TheInteriorAlignmentAlsoAlignsTheInnermostHeaderCell) {
    const auto table = PlaceTable();
    table->ConfigureColumn(2, "", excel::xlRight);
    EXPECT_EQ(AlignmentsOf(At("E4:E7")), Times(4, excel::xlRight));
    EXPECT_EQ(At("E3")->HorizontalAlignment().ToInt(), excel::xlRight);
    EXPECT_EQ(At("E2")->HorizontalAlignment().ToInt(), excel::xlCenter);
    EXPECT_EQ(AlignmentsOf(At("D3:D7")), Times(5, excel::xlCenter));
    EXPECT_EQ(AlignmentsOf(At("F3:F7")), Times(5, excel::xlCenter));
}

TEST_F(ConfigureColumnTest, AHeaderAlignmentAlignsTheHeaderCellAlone) {
    const auto table = PlaceTable();
    table->ConfigureColumn(2, "", KeepAlignment, excel::xlLeft);
    EXPECT_EQ(At("E3")->HorizontalAlignment().ToInt(), excel::xlLeft);
    EXPECT_EQ(At("E2")->HorizontalAlignment().ToInt(), excel::xlCenter);
    EXPECT_EQ(AlignmentsOf(At("E4:E7")), Times(4, excel::xlCenter));
}

TEST_F(ConfigureColumnTest, AHeaderAlignmentWinsOverTheInteriorOne) {
    const auto table = PlaceTable();
    table->ConfigureColumn(2, "Revenue", excel::xlRight, excel::xlLeft);
    EXPECT_EQ(At("E3")->HorizontalAlignment().ToInt(), excel::xlLeft);
    EXPECT_EQ(AlignmentsOf(At("E4:E7")), Times(4, excel::xlRight));
    EXPECT_EQ(At("E3")->Value(), excel::Variant("Revenue"));
}

TEST_F(ConfigureColumnTest, AWidthOfZeroOrLessLeavesTheWidth) {
    const auto table = PlaceTable();
    At("E1")->EntireColumn()->SetColumnWidth(11.5);
    table->ConfigureColumn(2, "", KeepAlignment, KeepAlignment, 0.0);
    EXPECT_DOUBLE_EQ(At("E1")->ColumnWidth().ToDouble(), 11.5);
    table->ConfigureColumn(2, "", KeepAlignment, KeepAlignment, -3.0);
    EXPECT_DOUBLE_EQ(At("E1")->ColumnWidth().ToDouble(), 11.5);
}

TEST_F(ConfigureColumnTest, APositiveWidthSetsTheWholeSheetColumn) {
    const auto table = PlaceTable();
    const double neighbourWidth = At("F1")->ColumnWidth().ToDouble();
    table->ConfigureColumn(2, "", KeepAlignment, KeepAlignment, 24.0);
    EXPECT_DOUBLE_EQ(At("E1")->ColumnWidth().ToDouble(), 24.0);
    EXPECT_DOUBLE_EQ(At("E1000")->ColumnWidth().ToDouble(), 24.0);
    EXPECT_DOUBLE_EQ(At("F1")->ColumnWidth().ToDouble(), neighbourWidth);
}

TEST_F(ConfigureColumnTest, ANumberFormatGoesOnTheInteriorColumnOnly) {
    const auto table = PlaceTable();
    table->ConfigureColumn(2, "", KeepAlignment, KeepAlignment, -1.0, "#,##0.00");
    EXPECT_EQ(TextOf(At("E4:E7")->NumberFormat()), "#,##0.00");
    EXPECT_EQ(TextOf(At("E3")->NumberFormat()), "General");
    EXPECT_EQ(TextOf(At("D4:D7")->NumberFormat()), "General");
}

TEST_F(ConfigureColumnTest, AMarkedNumberFormatIsTakenInTheUsersLocale) {
    const auto table = PlaceTable();
    table->ConfigureColumn(1, "", KeepAlignment, KeepAlignment, -1.0, "[LOCAL]#,##0.00");
    table->ConfigureColumn(2, "", KeepAlignment, KeepAlignment, -1.0, "[LOCAL]m/d/yyyy");
    EXPECT_EQ(TextOf(At("D4:D7")->NumberFormat()), "#,##0.00");
    EXPECT_EQ(TextOf(At("D4:D7")->NumberFormatLocal()), "#,##0.00");
    EXPECT_EQ(TextOf(At("E4:E7")->NumberFormat()), "m/d/yyyy");
}

TEST_F(ConfigureColumnTest, WrappingIsSwitchedOnButNeverOff) {
    const auto table = PlaceTable();
    table->ConfigureColumn(1, "", KeepAlignment, KeepAlignment, -1.0, "", true);
    EXPECT_TRUE(At("D4:D7")->WrapText().ToBool());
    EXPECT_FALSE(At("D3")->WrapText().ToBool());
    table->ConfigureColumn(1, "", KeepAlignment, KeepAlignment, -1.0, "", false);
    EXPECT_TRUE(At("D4:D7")->WrapText().ToBool());
    table->ConfigureColumn(2, "", KeepAlignment, KeepAlignment, -1.0, "", false);
    EXPECT_FALSE(At("E4:E7")->WrapText().ToBool());
}

TEST_F(ConfigureColumnTest, NothingGivenChangesNothing) {
    const auto table = PlaceTable();
    const auto before = CellStatesOf(At("A1:H8"));
    table->ConfigureColumn(2);
    EXPECT_EQ(CellStatesOf(At("A1:H8")), before);
}
