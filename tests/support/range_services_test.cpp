#include "report_fixture.hpp"

#include "support/support_services.hpp"

namespace {

class RangeServicesTest : public ReportTest {
protected:
    void SetUp() override {
        ReportTest::SetUp();
        book = app->Workbooks()->Add();
        sheet = book->Worksheets(1);
    }

    std::shared_ptr<excel::Range> At(const char* address) { return sheet->Range(address); }
    static std::string AddressOf(const std::shared_ptr<excel::Range>& range) { return range ? range->Address() : "none"; }

    const vos::RangeServices& ranges = vos::Support().Ranges();
    std::shared_ptr<excel::Workbook> book;
    std::shared_ptr<excel::Worksheet> sheet;
};

}  // namespace

TEST_F(RangeServicesTest, RangeResizeWithAZeroCountYieldsNone) {
    EXPECT_EQ(ranges.RangeResize(At("B2:D4"), 0, 3), nullptr);
    EXPECT_EQ(ranges.RangeResize(At("B2:D4"), 2, 0), nullptr);
    EXPECT_EQ(ranges.RangeResize(At("B2:D4"), 0, vos::RangeServices::KeepCount), nullptr);
}

TEST_F(RangeServicesTest, RangeResizeAnchorsAtTheTopLeftCell) {
    EXPECT_EQ(AddressOf(ranges.RangeResize(At("B2:D4"), 1, 2)), "$B$2:$C$2");
    EXPECT_EQ(AddressOf(ranges.RangeResize(At("B2"), 3, 4)), "$B$2:$E$4");
}

TEST_F(RangeServicesTest, RangeResizeKeepsTheRangesOwnCountForTheSentinel) {
    EXPECT_EQ(AddressOf(ranges.RangeResize(At("B2:D4"), 1, vos::RangeServices::KeepCount)), "$B$2:$D$2");
    EXPECT_EQ(AddressOf(ranges.RangeResize(At("B2:D4"), vos::RangeServices::KeepCount, 1)), "$B$2:$B$4");
}

TEST_F(RangeServicesTest, RangeOffsetMovesTheBlock) {
    EXPECT_EQ(AddressOf(ranges.RangeOffset(At("B2:C3"), 2, 1)), "$C$4:$D$5");
    EXPECT_EQ(AddressOf(ranges.RangeOffset(At("B2:C3"), -1, -1)), "$A$1:$B$2");
}

TEST_F(RangeServicesTest, LastRowAndColumnCoverEveryArea) {
    EXPECT_EQ(ranges.LastRowOfRange(At("B2:D7")), 7);
    EXPECT_EQ(ranges.LastColumnOfRange(At("B2:D7")), 4);
    EXPECT_EQ(ranges.LastRowOfRange(At("A9,B2:C3")), 9);
    EXPECT_EQ(ranges.LastColumnOfRange(At("A9,B2:C3")), 3);
    EXPECT_EQ(ranges.LastRowOfRange(sheet->Cells()), 1048576);
    EXPECT_EQ(ranges.LastColumnOfRange(sheet->Cells()), 16384);
}

TEST_F(RangeServicesTest, IsSameWorksheetComparesSheetsNotViews) {
    auto other = book->Worksheets()->Add();
    EXPECT_TRUE(ranges.IsSameWorksheet(At("A1")->Parent(), sheet));
    EXPECT_FALSE(ranges.IsSameWorksheet(other, sheet));
    EXPECT_FALSE(ranges.IsSameWorksheet(nullptr, sheet));
}

TEST_F(RangeServicesTest, IsRangeWithinRange) {
    EXPECT_TRUE(ranges.IsRangeWithinRange(At("C3"), At("B2:D4")));
    EXPECT_TRUE(ranges.IsRangeWithinRange(At("B2:D4"), At("B2:D4")));
    EXPECT_FALSE(ranges.IsRangeWithinRange(At("C3:E3"), At("B2:D4")));
    EXPECT_TRUE(ranges.IsRangeWithinRange(At("XFD1048576"), sheet->Cells()));
}

TEST_F(RangeServicesTest, IsRangeWithinRangeAcceptsABlockCoveredByTwoAreasTogether) {
    EXPECT_TRUE(ranges.IsRangeWithinRange(At("B2:E2"), At("A1:C3,D1:F3")));
    EXPECT_FALSE(ranges.IsRangeWithinRange(At("B2:G2"), At("A1:C3,D1:F3")));
    EXPECT_TRUE(ranges.IsRangeWithinRange(At("B2,E3"), At("A1:C3,D1:F3")));
}

TEST_F(RangeServicesTest, IsRangeWithinRangeIsFalseAcrossSheets) {
    auto other = book->Worksheets()->Add();
    EXPECT_FALSE(ranges.IsRangeWithinRange(other->Range("A1"), sheet->Cells()));
}

TEST_F(RangeServicesTest, CellAtPointFindsTheCellUnderThePoint) {
    // Default geometry: columns 48 pt wide, rows 15 pt high.
    EXPECT_EQ(AddressOf(ranges.CellAtPoint(sheet, 0, 0)), "$A$1");
    EXPECT_EQ(AddressOf(ranges.CellAtPoint(sheet, 47.9, 14.9)), "$A$1");
    EXPECT_EQ(AddressOf(ranges.CellAtPoint(sheet, 48, 15)), "$B$2");
    EXPECT_EQ(AddressOf(ranges.CellAtPoint(sheet, 100, 31)), "$C$3");
}

TEST_F(RangeServicesTest, CellAtPointFollowsCustomWidthsAndHeights) {
    sheet->Columns(1)->SetColumnWidth(20);
    sheet->Rows(1)->SetRowHeight(40);
    const double aWidth = sheet->Columns(1)->Width();
    EXPECT_EQ(AddressOf(ranges.CellAtPoint(sheet, aWidth - 0.5, 39)), "$A$1");
    EXPECT_EQ(AddressOf(ranges.CellAtPoint(sheet, aWidth + 0.5, 40)), "$B$2");
}

TEST_F(RangeServicesTest, CellAtPointSkipsHiddenColumns) {
    sheet->Columns(2)->SetHidden(true);
    EXPECT_EQ(AddressOf(ranges.CellAtPoint(sheet, 48, 0)), "$C$1");
}

TEST_F(RangeServicesTest, CellAtPointOutsideTheSheetIsNone) {
    EXPECT_EQ(ranges.CellAtPoint(sheet, -1, 0), nullptr);
    EXPECT_EQ(ranges.CellAtPoint(sheet, 0, -1), nullptr);
    const auto lastCell = sheet->Cells(1048576, 16384);
    EXPECT_EQ(AddressOf(ranges.CellAtPoint(sheet, lastCell->Left() + 1, lastCell->Top() + 1)), "$XFD$1048576");
    EXPECT_EQ(ranges.CellAtPoint(sheet, lastCell->Left() + lastCell->Width(), 0), nullptr);
    EXPECT_EQ(ranges.CellAtPoint(sheet, 0, lastCell->Top() + lastCell->Height()), nullptr);
}

TEST_F(RangeServicesTest, RangeBorderAroundOutlinesTheRange) {
    ranges.RangeBorderAround(At("B2:C3"), excel::xlContinuous, excel::xlMedium, excel::xlColorIndexAutomatic);
    EXPECT_EQ(At("B2")->Borders(excel::xlEdgeTop)->Weight().ToInt(), excel::xlMedium);
    EXPECT_EQ(At("C3")->Borders(excel::xlEdgeRight)->LineStyle().ToInt(), excel::xlContinuous);
    EXPECT_EQ(At("B2")->Borders(excel::xlEdgeRight)->LineStyle().ToInt(), excel::xlLineStyleNone);
}
