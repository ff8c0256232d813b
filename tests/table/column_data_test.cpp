#include "table/interior_fixture.hpp"

#include <vos/error_code.hpp>

using ColumnDataTest = InteriorTest;
using excel::VarType;

namespace {

constexpr const char* NotEnoughRows = "Not enough rows to write dataArray.";
constexpr const char* NotAnArray = "dataArray must be an array.";
constexpr const char* NotOneDimension = "dataArray must be a 1-dimensional array.";
constexpr const char* InvalidType = "Invalid dataArray type.";

excel::Variant Doubles(int32_t lowerBound, const std::vector<excel::Variant>& values) {
    return ArrayOf(VarType::Double, lowerBound, values);
}

}  // namespace

TEST_F(ColumnDataTest, AZeroBasedArrayFillsAColumnOfAsManyRows) {
    const auto table = PlaceTable();
    table->WriteDataToColumn(2, Doubles(0, {1.5, 2.5, 3.5, 4.5}));
    EXPECT_EQ(ValuesOf(At("E4:E7")), (std::vector<std::string>{"1.5", "2.5", "3.5", "4.5"}));
    EXPECT_EQ(ValuesOf(At("D4:D7")), std::vector<std::string>(4, ""));
    EXPECT_EQ(ValuesOf(At("F4:F7")), std::vector<std::string>(4, ""));
    EXPECT_EQ(ValuesOf(At("E3")), std::vector<std::string>{""});
}

TEST_F(ColumnDataTest, TheSameArrayFromTheSecondRowDoesNotFitAndWritesNothing) {
    const auto table = PlaceTable();
    At("E4")->SetValue("kept");
    ExpectRefusalLeavesCells(table->TableRange(),
                             [&] { table->WriteDataToColumn(2, Doubles(0, {1.5, 2.5, 3.5, 4.5}), 2); },
                             vos::error_code::NotAllowedNow, NotEnoughRows);
}

TEST_F(ColumnDataTest, ElementsAreWrittenFromTheLowerBoundWhateverItIs) {
    const auto table = PlaceTable();
    table->WriteDataToColumn(1, ArrayOf(VarType::Long, 1, {10, 20, 30}));
    table->WriteDataToColumn(2, ArrayOf(VarType::Long, -2, {-1, -2, -3, -4}));
    table->WriteDataToColumn(3, ArrayOf(VarType::Long, 7, {70, 80}));
    EXPECT_EQ(ValuesOf(At("D4:D7")), (std::vector<std::string>{"10", "20", "30", ""}));
    EXPECT_EQ(ValuesOf(At("E4:E7")), (std::vector<std::string>{"-1", "-2", "-3", "-4"}));
    EXPECT_EQ(ValuesOf(At("F4:F7")), (std::vector<std::string>{"70", "80", "", ""}));
}

TEST_F(ColumnDataTest, AStartInTheMiddleLeavesTheCellsAboveAndBelowAndTheFormats) {
    // Interior C3:D8 under a header row, beside a header column.
    const auto table = PlaceTable(6, 2, 1, 1);
    const auto column = At("C3:C8");
    for (int32_t row = 1; row <= 6; ++row)
        column->Cells(row, 1)->SetValue("old " + std::to_string(row));
    column->SetNumberFormat("0.00");
    table->WriteDataToColumn(1, Doubles(0, {7.0, 8.0}), 3);
    EXPECT_EQ(ValuesOf(column), (std::vector<std::string>{"old 1", "old 2", "7", "8", "old 5", "old 6"}));
    for (int32_t row = 1; row <= 6; ++row) {
        EXPECT_EQ(TextOf(column->Cells(row, 1)->NumberFormat()), "0.00") << "row " << row;
        EXPECT_EQ(column->Cells(row, 1)->HorizontalAlignment().ToInt(), excel::xlCenter) << "row " << row;
    }
    EXPECT_EQ(ValuesOf(At("D3:D8")), std::vector<std::string>(6, ""));
}

TEST_F(ColumnDataTest, OneElementFitsIntoTheLastRow) {
    const auto table = PlaceTable();
    table->WriteDataToColumn(3, Doubles(0, {9.0}), 4);
    EXPECT_EQ(ValuesOf(At("F4:F8")), (std::vector<std::string>{"", "", "", "9", ""}));
}

TEST_F(ColumnDataTest, NumericElementTypesAreWrittenAsNumbers) {
    const auto table = PlaceTable();
    table->WriteDataToColumn(1, ArrayOf(VarType::Integer, 0, {int16_t{7}, int16_t{-3}}));
    table->WriteDataToColumn(2, ArrayOf(VarType::Long, 0, {70000, -70000}));
    table->WriteDataToColumn(3, ArrayOf(VarType::Single, 0, {1.5f, -0.25f}), 3);
    EXPECT_EQ(ValuesOf(At("D4:D5")), (std::vector<std::string>{"7", "-3"}));
    EXPECT_EQ(ValuesOf(At("E4:E5")), (std::vector<std::string>{"70000", "-70000"}));
    EXPECT_EQ(ValuesOf(At("F6:F7")), (std::vector<std::string>{"1.5", "-0.25"}));
    for (const char* address : {"D4", "E5", "F6"})
        EXPECT_TRUE(At(address)->Value().IsNumeric()) << address;
}

TEST_F(ColumnDataTest, TextsAreWrittenAsExcelTakesThem) {
    const auto table = PlaceTable();
    table->WriteDataToColumn(1, ArrayOf(VarType::String, 0, {"North", "#1", "12", ""}));
    EXPECT_EQ(At("D4")->Value(), excel::Variant("North"));
    EXPECT_EQ(At("D5")->Value(), excel::Variant("#1"));
    EXPECT_EQ(At("D6")->Value().ToDouble(), 12.0);
    EXPECT_TRUE(At("D6")->Value().IsNumeric());
    EXPECT_TRUE(At("D7")->Value().IsEmpty());
}

TEST_F(ColumnDataTest, BooleansAndVariantsAreWritten) {
    const auto table = PlaceTable();
    table->WriteDataToColumn(1, ArrayOf(VarType::Boolean, 0, {true, false}));
    table->WriteDataToColumn(2, ArrayOf(VarType::Variant, 0, {int32_t{3}, "x", true, 2.5}));
    EXPECT_EQ(At("D4")->Value(), excel::Variant(true));
    EXPECT_EQ(At("D5")->Value(), excel::Variant(false));
    EXPECT_EQ(At("E4")->Value().ToDouble(), 3.0);
    EXPECT_EQ(At("E5")->Value(), excel::Variant("x"));
    EXPECT_EQ(At("E6")->Value(), excel::Variant(true));
    EXPECT_EQ(At("E7")->Value().ToDouble(), 2.5);
}

TEST_F(ColumnDataTest, OtherElementTypesAreRefused) {
    const auto table = PlaceTable();
    for (const VarType refused : {VarType::Date, VarType::Currency, VarType::Byte, VarType::Object}) {
        const excel::Variant data{excel::SafeArray(refused, {{0, 2}})};
        ExpectRefusalLeavesCells(table->TableRange(), [&] { table->WriteDataToColumn(1, data); },
                                 vos::error_code::InvalidArgument, InvalidType);
    }
}

TEST_F(ColumnDataTest, ADatesArrayIsRefusedEvenWithValues) {
    const auto table = PlaceTable();
    const auto dates = ArrayOf(VarType::Date, 0, {excel::Date{45000.0}, excel::Date{45001.0}});
    ExpectRefusalLeavesCells(table->TableRange(), [&] { table->WriteDataToColumn(1, dates); },
                             vos::error_code::InvalidArgument, InvalidType);
}

TEST_F(ColumnDataTest, AValueThatIsNoArrayIsRefused) {
    const auto table = PlaceTable();
    for (const excel::Variant& notAnArray : {excel::Variant(2.5), excel::Variant("1,2,3"), excel::Variant()})
        ExpectRefusalLeavesCells(table->TableRange(), [&] { table->WriteDataToColumn(1, notAnArray); },
                                 vos::error_code::InvalidArgument, NotAnArray);
}

TEST_F(ColumnDataTest, ATwoDimensionalOrUnallocatedArrayIsRefused) {
    const auto table = PlaceTable();
    for (const excel::Variant& notOneDimension : {excel::Variant(excel::SafeArray::Matrix(VarType::Double, 4, 1)),
                                                  excel::Variant(excel::SafeArray(VarType::Double, {}))})
        ExpectRefusalLeavesCells(table->TableRange(), [&] { table->WriteDataToColumn(1, notOneDimension); },
                                 vos::error_code::InvalidArgument, NotOneDimension);
}

TEST_F(ColumnDataTest, PositionsOutsideTheInteriorAreRefused) {
    const auto table = PlaceTable();
    for (const int32_t column : {0, -1, 4})
        ExpectRefusalLeavesCells(table->TableRange(), [&] { table->WriteDataToColumn(column, Doubles(0, {1.0})); },
                                 vos::error_code::OutOfRange, "columnPosition");
    for (const int32_t start : {0, -1, 5})
        ExpectRefusalLeavesCells(table->TableRange(),
                                 [&] { table->WriteDataToColumn(1, Doubles(0, {1.0}), start); },
                                 vos::error_code::OutOfRange, "startingRowPosition");
}

TEST_F(ColumnDataTest, TheColumnIsCheckedFirstThenTheArrayThenTheStartThenTheRoom) {
    const auto table = PlaceTable();
    const auto before = CellStatesOf(table->TableRange());
    const excel::Variant matrixOfDates{excel::SafeArray::Matrix(VarType::Date, 2, 2)};
    const excel::Variant datesList{excel::SafeArray(VarType::Date, {{0, 9}})};
    const auto tooLong = Doubles(0, {1.0, 2.0, 3.0, 4.0, 5.0});
    ExpectAutomationError([&] { table->WriteDataToColumn(0, excel::Variant("x"), 0); }, vos::error_code::OutOfRange,
                          "columnPosition");
    ExpectAutomationError([&] { table->WriteDataToColumn(1, excel::Variant("x"), 0); },
                          vos::error_code::InvalidArgument, NotAnArray);
    ExpectAutomationError([&] { table->WriteDataToColumn(1, matrixOfDates, 0); }, vos::error_code::InvalidArgument,
                          NotOneDimension);
    ExpectAutomationError([&] { table->WriteDataToColumn(1, datesList, 0); }, vos::error_code::InvalidArgument,
                          InvalidType);
    ExpectAutomationError([&] { table->WriteDataToColumn(1, tooLong, 0); }, vos::error_code::OutOfRange,
                          "startingRowPosition");
    ExpectAutomationError([&] { table->WriteDataToColumn(1, tooLong, 1); }, vos::error_code::NotAllowedNow,
                          NotEnoughRows);
    EXPECT_EQ(CellStatesOf(table->TableRange()), before);
}

TEST_F(ColumnDataTest, AHundredThousandRowsAreWrittenInOneGo) {
    constexpr int32_t rows = 100000;
    // One header row at B2 and no header column: the interior runs from B3 to B100002.
    const auto table = PlaceTable(rows, 1, 1, 0);
    excel::SafeArray data(VarType::Double, {{0, static_cast<uint32_t>(rows)}});
    for (int32_t i = 0; i < rows; ++i)
        data.Set({i}, excel::Variant(static_cast<double>(i + 1)));
    table->WriteDataToColumn(1, excel::Variant(std::move(data)));
    EXPECT_EQ(At("B3")->Value().ToDouble(), 1.0);
    EXPECT_EQ(At("B50002")->Value().ToDouble(), 50000.0);
    EXPECT_EQ(At("B100002")->Value().ToDouble(), 100000.0);
    EXPECT_TRUE(At("B100003")->Value().IsEmpty());
}

// An array without elements has nothing to write: the call succeeds and the column stays as it was.
TEST_F(ColumnDataTest, AnArrayWithoutElementsWritesNothing) {
    const auto table = PlaceTable();
    At("E4")->SetValue("kept");
    const auto before = CellStatesOf(table->TableRange());
    table->WriteDataToColumn(2, Doubles(0, {}));
    table->WriteDataToColumn(2, Doubles(0, {}), 4);
    EXPECT_EQ(CellStatesOf(table->TableRange()), before);
}
