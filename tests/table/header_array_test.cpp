#include "table/header_expectations.hpp"

namespace {

constexpr const char* NoRoom = "Not enough room in header to display values.";

// A one-dimensional array of variants whose first index is lowerBound.
excel::Variant ArrayFrom(int32_t lowerBound, const std::vector<excel::Variant>& values) {
    excel::SafeArray array(excel::VarType::Variant, {{lowerBound, static_cast<uint32_t>(values.size())}});
    for (size_t i = 0; i < values.size(); ++i)
        array.Set({lowerBound + static_cast<int32_t>(i)}, values[i]);
    return excel::Variant(std::move(array));
}

// Signature A1:B2, top header C1:G2, left header A3:B6, interior C3:G6.
class HeaderArrayTest : public HeaderTest {
protected:
    void SetUp() override {
        HeaderTest::SetUp();
        Place(4, 5, 2, 2);
    }
};

}  // namespace

TEST_F(HeaderArrayTest, AZeroBasedArrayRunsAlongTheTopHeadersInnermostRow) {
    table->WriteHeaderArray(VosTopHeader, 2, ArrayFrom(0, {"Q1", "Q2", 3.0}));
    EXPECT_EQ(Texts("C2:G2"), (std::vector<std::string>{"", "Q1", "Q2", "3", ""}));
    EXPECT_EQ(Value("F2"), excel::Variant(3.0));
    EXPECT_EQ(Texts("C1:G1"), (std::vector<std::string>(5, "")));
}

TEST_F(HeaderArrayTest, AOneBasedArrayRunsDownTheLeftHeadersInnermostColumn) {
    table->WriteHeaderArray(VosLeftHeader, 1, ArrayFrom(1, {"North", "South"}));
    EXPECT_EQ(Texts("B3:B6"), (std::vector<std::string>{"North", "South", "", ""}));
    EXPECT_EQ(Texts("A3:A6"), (std::vector<std::string>(4, "")));
}

TEST_F(HeaderArrayTest, AnyLowerBoundIsHonoured) {
    table->WriteHeaderArray(VosTopHeader, 1, ArrayFrom(-3, {"a", "b"}));
    EXPECT_EQ(Texts("C2:D2"), (std::vector<std::string>{"a", "b"}));
}

TEST_F(HeaderArrayTest, TheConvenienceArraysOfCallersWork) {
    table->WriteHeaderArray(VosTopHeader, 4, excel::Variant(std::vector<double>{1.5, 2.5}));
    EXPECT_EQ(Value("F2"), excel::Variant(1.5));
    EXPECT_EQ(Value("G2"), excel::Variant(2.5));
}

TEST_F(HeaderArrayTest, AnArrayThatExactlyFillsTheRestOfTheHeaderIsWritten) {
    table->WriteHeaderArray(VosTopHeader, 3, ArrayFrom(0, {"c", "d", "e"}));
    table->WriteHeaderArray(VosLeftHeader, 2, ArrayFrom(1, {"x", "y", "z"}));
    EXPECT_EQ(Texts("C2:G2"), (std::vector<std::string>{"", "", "c", "d", "e"}));
    EXPECT_EQ(Texts("B3:B6"), (std::vector<std::string>{"", "x", "y", "z"}));
}

TEST_F(HeaderArrayTest, OneValueMoreThanFitsWritesNothing) {
    ExpectRefused([&] { table->WriteHeaderArray(VosTopHeader, 3, ArrayFrom(0, {"c", "d", "e", "f"})); },
                  NotAllowedNow, NoRoom);
    ExpectRefused([&] { table->WriteHeaderArray(VosLeftHeader, 2, ArrayFrom(1, {"x", "y", "z", "w"})); },
                  NotAllowedNow, NoRoom);
}

TEST_F(HeaderArrayTest, AnArrayWithoutElementsHasNoValuesToWrite) {
    const excel::Variant unallocated(excel::SafeArray(excel::VarType::Variant, {}));
    const excel::Variant empty(excel::SafeArray(excel::VarType::Variant, {{0, 0}}));
    ExpectRefused([&] { table->WriteHeaderArray(VosTopHeader, 1, unallocated); }, InvalidArgument,
                  "No values to write.");
    ExpectRefused([&] { table->WriteHeaderArray(VosLeftHeader, 1, empty); }, InvalidArgument,
                  "No values to write.");
}

TEST_F(HeaderArrayTest, AValueThatIsNotAnArrayHasNoValuesToWrite) {
    ExpectRefused([&] { table->WriteHeaderArray(VosTopHeader, 1, "Q1"); }, InvalidArgument, "No values to write.");
    ExpectRefused([&] { table->WriteHeaderArray(VosTopHeader, 1, excel::Variant()); }, InvalidArgument,
                  "No values to write.");
}

TEST_F(HeaderArrayTest, ABadStartIsNamedPosition) {
    const auto values = ArrayFrom(0, {"a"});
    ExpectRefused([&] { table->WriteHeaderArray(VosTopHeader, 0, values); }, OutOfRange, "position");
    ExpectRefused([&] { table->WriteHeaderArray(VosTopHeader, 6, values); }, OutOfRange, "position");
    ExpectRefused([&] { table->WriteHeaderArray(VosLeftHeader, 5, values); }, OutOfRange, "position");
}

TEST_F(HeaderArrayTest, TheStartIsCheckedBeforeTheValues) {
    ExpectRefused([&] { table->WriteHeaderArray(VosLeftHeader, 0, excel::Variant()); }, OutOfRange, "position");
}
