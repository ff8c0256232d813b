// What Excel lets a cell hold, enforced when a value or formula is written: text of up to 32,767
// characters, formulas of up to 8,192 whose parentheses and quotes close, and finite numbers.
// Anything else is refused as Excel refuses it, before any cell changes, so a saved file never
// holds what Excel would repair.

#include "embedded/engine_fixture.hpp"

#include <excel/safe_array.hpp>

#include <cmath>
#include <limits>
#include <string>

using namespace excel;

namespace {

class CellLimitsTest : public EngineTest {
protected:
    // Writes the value into A1 and answers the code of the refusal (0 when written); a refused
    // write leaves A1 as it was.
    int32_t Written(const Variant& value) {
        At("A1")->SetValue("before");
        const int32_t code = ErrorCodeOf([&] { At("A1")->SetValue(value); });
        if (code != 0) {
            EXPECT_EQ(At("A1")->Value(), Variant("before"));
        }
        return code;
    }
};

TEST_F(CellLimitsTest, TextUpTo32767CharactersIsStoredAndLongerTextIsRefused) {
    EXPECT_EQ(Written(std::string(32767, 'a')), 0);
    EXPECT_EQ(At("A1")->Value().ToString().size(), 32767u);
    EXPECT_EQ(Written(std::string(32768, 'a')), kRefused);
}

TEST_F(CellLimitsTest, CharactersAreCountedAsExcelCountsThem) {
    const std::string euro = "\xE2\x82\xAC";      // one UTF-16 unit in three bytes
    const std::string clef = "\xF0\x9D\x84\x9E";  // beyond the Basic Multilingual Plane: two units
    std::string euros;
    for (int i = 0; i < 32767; ++i) {
        euros += euro;
    }
    EXPECT_EQ(Written(euros), 0);
    std::string clefs;
    for (int i = 0; i < 16384; ++i) {
        clefs += clef;
    }
    EXPECT_EQ(Written(clefs), kRefused);  // 32,768 units
    EXPECT_EQ(Written(clefs.substr(clef.size())), 0);
}

TEST_F(CellLimitsTest, FormulasUpTo8192CharactersAreKeptAndLongerOnesAreRefused) {
    const std::string longest = "=" + std::string(8190, '1') + "+1";  // 8,192 after the "="
    EXPECT_EQ(ErrorCodeOf([&] { At("A1")->SetFormula(longest); }), 0);
    EXPECT_EQ(At("A1")->Formula(), Variant(longest));
    EXPECT_EQ(Written("=" + std::string(8191, '1') + "+1"), kRefused);
}

TEST_F(CellLimitsTest, UnbalancedFormulasAreRefused) {
    for (const char* formula :
         {"=SUM(1,2", "=SUM(1,2))", "=1+)(", "=\"open", "='Sheet 1!A1", "=Table1[Column", "=Table1]Column["}) {
        SCOPED_TRACE(formula);
        EXPECT_EQ(Written(formula), kRefused);
    }
    for (const char* formula : {"=SUM(1,2)", "=\"a)\"\"b(\"", "='It''s (1)'!A1", "=Table1[[#Totals],[Latitude]]"}) {
        SCOPED_TRACE(formula);
        EXPECT_EQ(Written(formula), 0);
        EXPECT_EQ(At("A1")->Formula(), Variant(formula));
    }
}

// A cell formatted as text keeps what is written as text, so what would be a formula Excel refuses
// is stored there as written, and read back as text; a range with any other cell refuses it.
TEST_F(CellLimitsTest, TextFormattedCellsKeepWhatWouldBeARefusedFormulaAsText) {
    const std::string tooLong = "=" + std::string(8191, '1') + "+1";
    At("A1:B1")->SetNumberFormat("@");
    for (const std::string& text : {std::string("=SUM(1,2"), std::string("=\"open"), tooLong}) {
        EXPECT_EQ(ErrorCodeOf([&] { At("A1")->SetValue(text); }), 0);
        EXPECT_EQ(At("A1")->Value(), Variant(text));
        EXPECT_EQ(At("A1")->Formula(), Variant(text));
        EXPECT_EQ(ErrorCodeOf([&] { At("A1:B1")->SetFormula(text); }), 0);
        EXPECT_EQ(At("B1")->Value(), Variant(text));
    }
    At("A1:C1")->SetValue("before");
    EXPECT_EQ(ErrorCodeOf([&] { At("A1:C1")->SetValue("=SUM(1,2"); }), kRefused);
    EXPECT_EQ(At("A1")->Value(), Variant("before"));
    EXPECT_EQ(At("C1")->Value(), Variant("before"));
    EXPECT_EQ(Written(std::string(32768, '=')), kRefused);  // text over 32,767 characters fits no cell
}

TEST_F(CellLimitsTest, NaNAndInfinitiesAreRefused) {
    EXPECT_EQ(Written(std::numeric_limits<double>::quiet_NaN()), kRefused);
    EXPECT_EQ(Written(std::numeric_limits<double>::infinity()), kRefused);
    EXPECT_EQ(Written(-std::numeric_limits<double>::infinity()), kRefused);
    EXPECT_EQ(Written(Variant(std::numeric_limits<float>::infinity())), kRefused);
    EXPECT_EQ(Written(std::numeric_limits<double>::max()), 0);
}

TEST_F(CellLimitsTest, AnArrayWithOneValueBeyondTheLimitsChangesNoCell) {
    At("B1")->SetValue("kept");
    SafeArray values = SafeArray::Matrix(VarType::Variant, 1, 2);
    values.Put(0, 0, Variant(1.0));
    values.Put(0, 1, Variant(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_EQ(ErrorCodeOf([&] { At("A1:B1")->SetValue(Variant(std::move(values))); }), kRefused);
    EXPECT_TRUE(At("A1")->Value().IsEmpty());
    EXPECT_EQ(At("B1")->Value(), Variant("kept"));
}

}  // namespace
