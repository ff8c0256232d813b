#include "table/interior_fixture.hpp"

#include <vos/error_code.hpp>
#include <vos/theme_property_type.hpp>

using TableDividersTest = InteriorTest;

namespace {

// A medium dashed line in colour index 3, as these tests draw their dividers.
const std::string DashedRed = "-4115/-4138/3";

std::vector<std::string> Times(size_t count, const std::string& line) {
    return std::vector<std::string>(count, line);
}

}  // namespace

TEST_F(TableDividersTest, RowZeroDrawsTheLineBetweenHeaderAndInterior) {
    const auto table = PlaceTable();
    const auto signatureEdge = LineOf(At("C3")->Borders(excel::xlEdgeBottom));
    table->AddRowDividerLine(0, false, excel::xlDash, excel::xlMedium, 3);
    EXPECT_EQ(EdgesOf(At("D3:F3"), excel::xlEdgeBottom), Times(3, DashedRed));
    EXPECT_EQ(EdgesOf(At("D4:F4"), excel::xlEdgeTop), Times(3, DashedRed));
    EXPECT_EQ(LineOf(At("C3")->Borders(excel::xlEdgeBottom)), signatureEdge);
    EXPECT_EQ(LineOf(At("G3")->Borders(excel::xlEdgeBottom)), LineOf(At("H3")->Borders(excel::xlEdgeBottom)));
}

TEST_F(TableDividersTest, ARowLineRunsOnThroughBothLeftHeaderColumns) {
    const auto table = PlaceTable();
    const auto beyondTheTable = LineOf(At("A3")->Borders(excel::xlEdgeBottom));
    table->AddRowDividerLine(0, true, excel::xlDash, excel::xlMedium, 3);
    EXPECT_EQ(EdgesOf(At("B3:F3"), excel::xlEdgeBottom), Times(5, DashedRed));
    EXPECT_EQ(LineOf(At("A3")->Borders(excel::xlEdgeBottom)), beyondTheTable);
}

TEST_F(TableDividersTest, ALineUnderAMiddleRowStaysUnderThatRow) {
    const auto table = PlaceTable();
    const auto before = CellStatesOf(At("A1:H8"));
    table->AddRowDividerLine(2, false, excel::xlDash, excel::xlMedium, 3);
    EXPECT_EQ(EdgesOf(At("D5:F5"), excel::xlEdgeBottom), Times(3, DashedRed));
    // Only the line under row 2 and the matching top edges of row 3 changed.
    const auto after = CellStatesOf(At("A1:H8"));
    size_t changedCells = 0;
    for (size_t i = 0; i < before.size(); ++i)
        changedCells += before[i] != after[i] ? 1 : 0;
    EXPECT_EQ(changedCells, 6u);
    EXPECT_EQ(LineOf(At("C5")->Borders(excel::xlEdgeBottom)), LineOf(At("C4")->Borders(excel::xlEdgeBottom)));
}

TEST_F(TableDividersTest, AMiddleRowLineRunsOnThroughTheLeftHeader) {
    const auto table = PlaceTable();
    table->AddRowDividerLine(2, true, excel::xlDash, excel::xlMedium, 3);
    EXPECT_EQ(EdgesOf(At("B5:F5"), excel::xlEdgeBottom), Times(5, DashedRed));
}

TEST_F(TableDividersTest, WithoutLeftHeaderTheRowLineHasNothingToRunOnThrough) {
    const auto table = PlaceTable(4, 3, 2, 0);  // interior B4:D7
    const auto beyondTheTable = LineOf(At("A4")->Borders(excel::xlEdgeBottom));
    table->AddRowDividerLine(1, true, excel::xlDash, excel::xlMedium, 3);
    EXPECT_EQ(EdgesOf(At("B4:D4"), excel::xlEdgeBottom), Times(3, DashedRed));
    EXPECT_EQ(LineOf(At("A4")->Borders(excel::xlEdgeBottom)), beyondTheTable);
}

TEST_F(TableDividersTest, ByDefaultADividerIsAThinContinuousLineInColourIndexFifteen) {
    const auto table = PlaceTable();
    table->AddRowDividerLine(1, false);
    table->AddColumnDividerLine(1, false);
    table->AddCustomDivider(At("H10")->Borders(excel::xlEdgeTop));
    EXPECT_EQ(EdgesOf(At("D4:F4"), excel::xlEdgeBottom), Times(3, "1/2/15"));
    EXPECT_EQ(EdgesOf(At("D4:D7"), excel::xlEdgeRight), Times(4, "1/2/15"));
    EXPECT_EQ(LineOf(At("H10")->Borders(excel::xlEdgeTop)), "1/2/15");
}

TEST_F(TableDividersTest, TheWeightIsSetBeforeTheStyleAndTheColourLast) {
    // Style "none" after the weight removes the line; the colour set last brings back a plain thin
    // line. Any other order would leave a medium line or no line at all.
    const auto table = PlaceTable();
    table->AddRowDividerLine(1, false, excel::xlLineStyleNone, excel::xlMedium, 3);
    EXPECT_EQ(EdgesOf(At("D4:F4"), excel::xlEdgeBottom), Times(3, "1/2/3"));
}

TEST_F(TableDividersTest, PositionsOutsideTheInteriorAreRefused) {
    const auto table = PlaceTable();
    for (const int32_t row : {-1, 5})
        ExpectRefusalLeavesCells(At("A1:H8"), [&] { table->AddRowDividerLine(row, true); },
                                 vos::error_code::OutOfRange, "position");
    for (const int32_t column : {-1, 4})
        ExpectRefusalLeavesCells(At("A1:H8"), [&] { table->AddColumnDividerLine(column, true); },
                                 vos::error_code::OutOfRange, "position");
}

TEST_F(TableDividersTest, ColumnZeroDrawsTheLineBetweenLeftHeaderAndInterior) {
    const auto table = PlaceTable();
    const auto headerEdges = EdgesOf(At("C2:C3"), excel::xlEdgeRight);
    table->AddColumnDividerLine(0, false, excel::xlDash, excel::xlMedium, 3);
    EXPECT_EQ(EdgesOf(At("C4:C7"), excel::xlEdgeRight), Times(4, DashedRed));
    EXPECT_EQ(EdgesOf(At("D4:D7"), excel::xlEdgeLeft), Times(4, DashedRed));
    EXPECT_EQ(EdgesOf(At("C2:C3"), excel::xlEdgeRight), headerEdges);
}

TEST_F(TableDividersTest, AColumnLineRunsOnUpThroughBothTopHeaderRows) {
    const auto table = PlaceTable();
    const auto beyondTheTable = LineOf(At("C1")->Borders(excel::xlEdgeRight));
    table->AddColumnDividerLine(0, true, excel::xlDash, excel::xlMedium, 3);
    EXPECT_EQ(EdgesOf(At("C2:C7"), excel::xlEdgeRight), Times(6, DashedRed));
    EXPECT_EQ(LineOf(At("C1")->Borders(excel::xlEdgeRight)), beyondTheTable);
}

TEST_F(TableDividersTest, AMiddleColumnLineStaysBesideThatColumnUnlessRunOn) {
    const auto table = PlaceTable();
    const auto headerEdges = EdgesOf(At("E2:E3"), excel::xlEdgeRight);
    table->AddColumnDividerLine(2, false, excel::xlDash, excel::xlMedium, 3);
    EXPECT_EQ(EdgesOf(At("E4:E7"), excel::xlEdgeRight), Times(4, DashedRed));
    EXPECT_EQ(EdgesOf(At("E2:E3"), excel::xlEdgeRight), headerEdges);
    EXPECT_EQ(LineOf(At("E8")->Borders(excel::xlEdgeRight)), LineOf(At("H8")->Borders(excel::xlEdgeRight)));
    table->AddColumnDividerLine(2, true, excel::xlDash, excel::xlMedium, 3);
    EXPECT_EQ(EdgesOf(At("E2:E7"), excel::xlEdgeRight), Times(6, DashedRed));
}

TEST_F(TableDividersTest, ACustomDividerMayGoOnAnyBorderOutsideTheTable) {
    const auto table = PlaceTable();
    table->AddCustomDivider(At("H10:J10")->Borders(excel::xlEdgeBottom), excel::xlContinuous, excel::xlThick, 5);
    EXPECT_EQ(EdgesOf(At("H10:J10"), excel::xlEdgeBottom), Times(3, "1/4/5"));
    EXPECT_EQ(EdgesOf(At("H11:J11"), excel::xlEdgeTop), Times(3, "1/4/5"));
}

TEST_F(TableDividersTest, ACustomDividerNeedsABorder) {
    const auto table = PlaceTable();
    ExpectRefusalLeavesCells(At("A1:H8"), [&] { table->AddCustomDivider(nullptr); }, vos::error_code::MissingObject,
                             "borderObject");
}

TEST_F(TableDividersTest, WithThemesEveryDividerTakesTheTableBorderThemeColour) {
    UseThemes();
    const auto table = PlaceTable();
    const auto workbook = ReportWorkbookBehind();
    const int32_t themeColor = workbook->ThemeColorFor(vos::VosTableBorders, false);
    const double tint = workbook->ThemeTintAndShadeFor(vos::VosTableBorders);
    table->AddRowDividerLine(1, false, excel::xlContinuous, excel::xlMedium, 3);
    table->AddRowDividerLine(2, false, excel::xlContinuous, excel::xlMedium, 40);
    table->AddColumnDividerLine(1, true, excel::xlContinuous, excel::xlMedium, 3);
    table->AddCustomDivider(At("H10")->Borders(excel::xlEdgeBottom), excel::xlContinuous, excel::xlMedium, 3);
    for (const auto& border :
         {At("E4")->Borders(excel::xlEdgeBottom), At("E5")->Borders(excel::xlEdgeBottom),
          At("D2")->Borders(excel::xlEdgeRight), At("H10")->Borders(excel::xlEdgeBottom)}) {
        EXPECT_EQ(border->ThemeColor().ToInt(), themeColor);
        EXPECT_NEAR(border->TintAndShade().ToDouble(), tint, 1e-6);
        EXPECT_NE(border->ColorIndex().ToInt(), 3);
        EXPECT_EQ(border->Weight().ToInt(), excel::xlMedium);
    }
    // The colour index given makes no difference.
    EXPECT_EQ(At("E4")->Borders(excel::xlEdgeBottom)->Color().ToDouble(),
              At("E5")->Borders(excel::xlEdgeBottom)->Color().ToDouble());
}
