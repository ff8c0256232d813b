#include "embedded/engine_fixture.hpp"

// Range.Value, Value2 and Text of dates in a workbook's two date systems: in the 1900 system a
// serial and an automation Date count the same days (after February 1900); in the 1904 system
// serial 0 is 1904-01-01, the Date 1462.

using namespace excel;

namespace {

constexpr double March15of2023 = 45000.0;  // as an automation Date (days since 1899-12-30)
constexpr double Offset1904 = 1462.0;

}  // namespace

TEST_F(EngineTest, NewWorkbookCountsDatesIn1900System) {
    EXPECT_FALSE(book->Date1904());
}

TEST_F(EngineTest, DateIn1900SystemStoresItsOwnDayCount) {
    At("A1")->SetValue(Date{March15of2023});
    EXPECT_EQ(At("A1")->Value2(), Variant(March15of2023));
    EXPECT_EQ(At("A1")->Value(), Variant(Date{March15of2023}));
    EXPECT_EQ(At("A1")->Text(), Variant("3/15/2023"));
}

TEST_F(EngineTest, DateIn1904SystemStoresTheSerialCountedFrom1904) {
    book->SetDate1904(true);
    At("A1")->SetValue(Date{March15of2023});
    EXPECT_EQ(At("A1")->Value2(), Variant(March15of2023 - Offset1904));
    EXPECT_EQ(At("A1")->Value(), Variant(Date{March15of2023}));
    EXPECT_EQ(At("A1")->NumberFormat(), Variant("m/d/yyyy"));
    EXPECT_EQ(At("A1")->Text(), Variant("3/15/2023"));
}

TEST_F(EngineTest, SerialZeroIsTheFirstDayOf1904In1904System) {
    book->SetDate1904(true);
    At("A1")->SetNumberFormat("yyyy-mm-dd hh:mm");
    At("A1")->SetValue2(0.25);
    EXPECT_EQ(At("A1")->Value(), Variant(Date{Offset1904 + 0.25}));
    EXPECT_EQ(At("A1")->Text(), Variant("1904-01-01 06:00"));
}

TEST_F(EngineTest, Value2SetsTheSerialAsItIsIn1904System) {
    book->SetDate1904(true);
    At("A1")->SetNumberFormat("m/d/yyyy");
    At("A1")->SetValue2(Date{March15of2023});  // Value2 takes a Date as a plain number
    EXPECT_EQ(At("A1")->Value2(), Variant(March15of2023));
    EXPECT_EQ(At("A1")->Value(), Variant(Date{March15of2023 + Offset1904}));
    EXPECT_EQ(At("A1")->Text(), Variant("3/16/2027"));
}

TEST_F(EngineTest, DatesInAnArrayAreStoredIn1904System) {
    book->SetDate1904(true);
    SafeArray dates = SafeArray::Matrix(VarType::Variant, 1, 2);
    dates.Put(0, 0, Date{March15of2023});
    dates.Put(0, 1, Date{Offset1904 + 1.5});
    At("A1:B1")->SetValue(Variant(std::move(dates)));
    EXPECT_EQ(At("A1")->Value2(), Variant(March15of2023 - Offset1904));
    EXPECT_EQ(At("B1")->Value2(), Variant(1.5));
    EXPECT_EQ(At("B1")->Text(), Variant("1/2/1904 12:00"));
    const Variant values = At("A1:B1")->Value();
    EXPECT_EQ(values.Array().At(0, 1), Variant(Date{Offset1904 + 1.5}));
}

TEST_F(EngineTest, NumbersOutsideDateFormatsReadTheSameInBothSystems) {
    book->SetDate1904(true);
    At("A1")->SetValue(45000.0);
    EXPECT_EQ(At("A1")->Value(), Variant(45000.0));
    EXPECT_EQ(At("A1")->Text(), Variant("45000"));
}
