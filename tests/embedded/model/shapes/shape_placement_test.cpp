#include "embedded/engine_fixture.hpp"

using namespace excel;

namespace {

// Default sheet: columns 48 points wide, rows 15 points high.
class ShapePlacementTest : public EngineTest {
protected:
    std::shared_ptr<Shape> AddBox(double left, double top, double width, double height) {
        return sheet->Shapes()->AddTextbox(msoTextOrientationHorizontal, left, top, width, height);
    }
};

TEST_F(ShapePlacementTest, GeometryIsKeptInPoints) {
    auto box = AddBox(10.5, 20.25, 100, 50);
    EXPECT_DOUBLE_EQ(box->Left(), 10.5);
    EXPECT_DOUBLE_EQ(box->Top(), 20.25);
    EXPECT_DOUBLE_EQ(box->Width(), 100);
    EXPECT_DOUBLE_EQ(box->Height(), 50);
    box->SetLeft(0);
    box->SetHeight(30);
    EXPECT_DOUBLE_EQ(box->Left(), 0);
    EXPECT_DOUBLE_EQ(box->Width(), 100);
    EXPECT_DOUBLE_EQ(box->Height(), 30);
    EXPECT_EQ(ErrorCodeOf([&] { box->SetWidth(-5); }), kRefused);
}

TEST_F(ShapePlacementTest, CornerCellsAreTheCellsUnderTheCorners) {
    auto box = AddBox(50, 20, 90, 20);
    EXPECT_EQ(box->TopLeftCell()->Address(true, true, xlA1, false), "$B$2");
    EXPECT_EQ(box->BottomRightCell()->Address(true, true, xlA1, false), "$C$3");
}

// A corner exactly on a boundary lies in the cell that starts there, as drawings anchor it.
TEST_F(ShapePlacementTest, CornerOnBoundaryLiesInTheCellStartingThere) {
    auto box = AddBox(48, 15, 96, 30);
    EXPECT_EQ(box->TopLeftCell()->Address(true, true, xlA1, false), "$B$2");
    EXPECT_EQ(box->BottomRightCell()->Address(true, true, xlA1, false), "$D$4");
}

TEST_F(ShapePlacementTest, CornerCellsFollowCustomSizesAndSkipHiddenRows) {
    sheet->Columns(1)->SetColumnWidth(20);  // 145 pixels
    sheet->Rows(2)->SetHidden(true);
    auto box = AddBox(100, 15, 50, 10);
    EXPECT_EQ(box->TopLeftCell()->Address(true, true, xlA1, false), "$A$3");
    EXPECT_EQ(box->BottomRightCell()->Address(true, true, xlA1, false), "$B$3");
}

TEST_F(ShapePlacementTest, InsertingRowsAboveMovesEveryPlacementButFreeFloating) {
    auto sized = AddBox(0, 30, 40, 30);
    auto moved = AddBox(0, 30, 40, 30);
    moved->SetPlacement(xlMove);
    auto floating = AddBox(0, 30, 40, 30);
    floating->SetPlacement(xlFreeFloating);
    sheet->Rows(1)->Insert();
    EXPECT_DOUBLE_EQ(sized->Top(), 45);
    EXPECT_DOUBLE_EQ(moved->Top(), 45);
    EXPECT_DOUBLE_EQ(floating->Top(), 30);
    EXPECT_DOUBLE_EQ(sized->Height(), 30);
}

TEST_F(ShapePlacementTest, InsertingRowsThroughAShapeStretchesOnlyMoveAndSize) {
    auto sized = AddBox(0, 15, 40, 45);  // rows 2..4
    auto moved = AddBox(0, 15, 40, 45);
    moved->SetPlacement(xlMove);
    At("A3:A4")->EntireRow()->Insert();
    EXPECT_DOUBLE_EQ(sized->Top(), 15);
    EXPECT_DOUBLE_EQ(sized->Height(), 75);
    EXPECT_DOUBLE_EQ(moved->Height(), 45);
    EXPECT_EQ(sized->BottomRightCell()->Row(), 7);
}

TEST_F(ShapePlacementTest, InsertingRightBelowAShapeDoesNotStretchIt) {
    auto box = AddBox(0, 15, 40, 30);  // bottom edge on the top of row 4
    sheet->Rows(4)->Insert();
    EXPECT_DOUBLE_EQ(box->Height(), 30);
    EXPECT_DOUBLE_EQ(box->Top(), 15);
}

TEST_F(ShapePlacementTest, DeletingRowsMovesAndShrinks) {
    auto box = AddBox(0, 30, 40, 45);  // rows 3..5
    sheet->Rows(1)->Delete();
    EXPECT_DOUBLE_EQ(box->Top(), 15);
    EXPECT_DOUBLE_EQ(box->Height(), 45);
    At("A3")->EntireRow()->Delete();
    EXPECT_DOUBLE_EQ(box->Height(), 30);
    // Deleting the rows under its top edge puts that edge where they were.
    At("A1:A2")->EntireRow()->Delete();
    EXPECT_DOUBLE_EQ(box->Top(), 0);
    EXPECT_DOUBLE_EQ(box->Height(), 15);
}

TEST_F(ShapePlacementTest, RowHeightChangesMoveAndSizeAsPlacementSays) {
    auto sized = AddBox(0, 15, 40, 30);  // rows 2..3
    auto moved = AddBox(0, 15, 40, 30);
    moved->SetPlacement(xlMove);
    auto floating = AddBox(0, 15, 40, 30);
    floating->SetPlacement(xlFreeFloating);
    sheet->Rows(1)->SetRowHeight(30);
    sheet->Rows(2)->SetRowHeight(30);
    EXPECT_DOUBLE_EQ(sized->Top(), 30);
    EXPECT_DOUBLE_EQ(sized->Height(), 45);
    EXPECT_DOUBLE_EQ(moved->Top(), 30);
    EXPECT_DOUBLE_EQ(moved->Height(), 30);
    EXPECT_DOUBLE_EQ(floating->Top(), 15);
    EXPECT_DOUBLE_EQ(floating->Height(), 30);
}

TEST_F(ShapePlacementTest, ColumnsInsertedAndWidenedMoveShapes) {
    auto box = AddBox(48, 0, 48, 15);  // column B
    sheet->Columns(1)->Insert();
    EXPECT_DOUBLE_EQ(box->Left(), 96);
    sheet->Columns(3)->SetColumnWidth(17.43);  // 127 pixels
    EXPECT_DOUBLE_EQ(box->Width(), 95.25);
}

TEST_F(ShapePlacementTest, InsertingCellsInAFewColumnsLeavesShapes) {
    auto box = AddBox(0, 15, 40, 15);
    At("A1:C1")->Insert(xlShiftDown);
    EXPECT_DOUBLE_EQ(box->Top(), 15);
}

TEST_F(ShapePlacementTest, PlacementRefusesUnknownValues) {
    auto box = AddBox(0, 0, 10, 10);
    EXPECT_EQ(ErrorCodeOf([&] { box->SetPlacement(7); }), kRefused);
    box->SetPlacement(xlFreeFloating);
    EXPECT_EQ(box->Placement(), xlFreeFloating);
}

}  // namespace
