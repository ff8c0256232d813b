#include "table/header_expectations.hpp"

namespace {

class HeaderCheckTest : public HeaderTest {
protected:
    // Every header writer, given that header and a position none of them accepts, fails alike.
    void ExpectEveryWriterRefused(vos::VosTableHeaderType whichHeader, int32_t code, const std::string& text) {
        ExpectRefused([&] { table->WriteHeaderItem(whichHeader, 0, "x"); }, code, text);
        ExpectRefused([&] { table->WriteHeaderMergedItem(whichHeader, 0, "x"); }, code, text);
        ExpectRefused([&] { table->WriteHeaderPairedItem(whichHeader, 0, "x", "y"); }, code, text);
        ExpectRefused([&] { table->WriteHeaderArray(whichHeader, 0, excel::Variant()); }, code, text);
        ExpectRefused([&] { table->WriteHeaderSummary(whichHeader, "x"); }, code, text);
        ExpectRefused([&] { table->WriteHeaderIndexNumbers(whichHeader, 0, -1); }, code, text);
    }
};

}  // namespace

TEST_F(HeaderCheckTest, HeadersTheTableHasPassWithoutChangingTheSheet) {
    Place(4, 5, 2, 1);
    const auto before = SheetState();
    table->CheckHeaderVariable(VosTopHeader);
    table->CheckHeaderVariable(VosLeftHeader, "side");
    EXPECT_EQ(SheetState(), before);
}

TEST_F(HeaderCheckTest, AMissingTopHeaderIsRefused) {
    PlaceWithoutTopHeader("B2:E5", 1);
    ASSERT_EQ(table->TopHeaderRange(), nullptr);
    ExpectRefused([&] { table->CheckHeaderVariable(VosTopHeader); }, InvalidArgument, NoTopHeader);
    table->CheckHeaderVariable(VosLeftHeader);
}

TEST_F(HeaderCheckTest, AMissingLeftHeaderIsRefused) {
    Place(3, 3, 1, 0);
    ExpectRefused([&] { table->CheckHeaderVariable(VosLeftHeader); }, InvalidArgument, NoLeftHeader);
    table->CheckHeaderVariable(VosTopHeader);
}

TEST_F(HeaderCheckTest, AValueOutsideTheHeaderTypesIsNamedByTheDefaultArgumentName) {
    Place(4, 5, 2, 1);
    ExpectRefused([&] { table->CheckHeaderVariable(NotAHeader); }, OutOfRange, "whichHeader");
    ExpectRefused([&] { table->CheckHeaderVariable(static_cast<vos::VosTableHeaderType>(-1)); }, OutOfRange,
                  "whichHeader");
}

TEST_F(HeaderCheckTest, AValueOutsideTheHeaderTypesIsNamedByTheCallersArgumentName) {
    Place(4, 5, 2, 1);
    ExpectRefused([&] { table->CheckHeaderVariable(NotAHeader, "headerSide"); }, OutOfRange, "headerSide");
}

TEST_F(HeaderCheckTest, EveryWriterReportsAMissingTopHeaderBeforeItsPosition) {
    PlaceWithoutTopHeader("B2:E5", 1);
    ExpectEveryWriterRefused(VosTopHeader, InvalidArgument, NoTopHeader);
}

TEST_F(HeaderCheckTest, EveryWriterReportsAMissingLeftHeaderBeforeItsPosition) {
    Place(3, 3, 2, 0);
    ExpectEveryWriterRefused(VosLeftHeader, InvalidArgument, NoLeftHeader);
}

TEST_F(HeaderCheckTest, EveryWriterNamesAValueOutsideTheHeaderTypesBeforeItsPosition) {
    Place(4, 5, 2, 1);
    ExpectEveryWriterRefused(NotAHeader, OutOfRange, "whichHeader");
}
