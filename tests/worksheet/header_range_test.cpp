#include "worksheet/report_sheet_fixture.hpp"

#include <regex>

namespace {

constexpr int32_t Silver = 0xC0C0C0;

class HeaderRangeTest : public ReportHeaderTest {
protected:
    std::string Text(const std::string& address) { return excelSheet->Range(address)->Value().ToString(); }
    bool Bold(const std::string& address, int32_t start, int32_t length) {
        return excelSheet->Range(address)->Characters(start, length)->Font()->Bold().ToBool();
    }
};

}  // namespace

TEST_F(HeaderRangeTest, WithoutExtraLinesTheBlockIsTitleUserAndDate) {
    const auto block = sheet->AddHeaderRange("Quarterly Risk", excel::Variant());
    EXPECT_EQ(block->Address(), "$1:$3");
    EXPECT_EQ(Text("A1"), "Quarterly Risk");
    EXPECT_EQ(Text("A2"), "Performed By: UnitTester");
    EXPECT_EQ(Text("A3"), "Date: <<Date>> <<Time>>");
    EXPECT_EQ(Cursor(), "$A$4");
}

TEST_F(HeaderRangeTest, AnEmptyOrUnallocatedArrayAddsNoLines) {
    const excel::Variant unallocated(excel::SafeArray(excel::VarType::Variant, {}));
    EXPECT_EQ(sheet->AddHeaderRange("A", unallocated)->Rows()->Count(), 3);
    const excel::Variant noEntries(excel::SafeArray(excel::VarType::Variant, {{0, 0}}));
    EXPECT_EQ(sheet->AddHeaderRange("B", noEntries)->Rows()->Count(), 3);
    EXPECT_EQ(sheet->AddHeaderRange("C", excel::Variant("not an array"))->Rows()->Count(), 3);
    EXPECT_EQ(Cursor(), "$A$10");
}

TEST_F(HeaderRangeTest, ExtraLinesHaveTrimmedBoldLabelsAndPlainValues) {
    const auto block = sheet->AddHeaderRange("Quarterly Risk", ModelAndRuns);
    EXPECT_EQ(block->Address(), "$1:$5");
    EXPECT_EQ(Text("A4"), "Model: Risk A");
    EXPECT_EQ(Text("A5"), "Runs: 1000");
    EXPECT_TRUE(Bold("A4", 1, 6));
    EXPECT_FALSE(Bold("A4", 7, 7));
    EXPECT_TRUE(Bold("A5", 1, 5));
    EXPECT_FALSE(Bold("A5", 6, 5));
    EXPECT_TRUE(Bold("A2", 1, 13));
    EXPECT_FALSE(Bold("A2", 14, 11));
    EXPECT_EQ(Cursor(), "$A$6");
}

TEST_F(HeaderRangeTest, EntriesAreReadFromTheArraysLowerBound) {
    excel::SafeArray entries(excel::VarType::Variant, {{5, 2}});
    entries.Set({5}, excel::Variant("First\tone"));
    entries.Set({6}, excel::Variant("Second\ttwo"));
    sheet->AddHeaderRange("T", excel::Variant(std::move(entries)));
    EXPECT_EQ(Text("A4"), "First: one");
    EXPECT_EQ(Text("A5"), "Second: two");
}

TEST_F(HeaderRangeTest, AnEntryWithoutATabIsAllLabel) {
    sheet->AddHeaderRange("T", excel::Variant(std::vector<std::string>{"  Reviewed  "}));
    EXPECT_EQ(Text("A4"), "Reviewed: ");
    EXPECT_TRUE(Bold("A4", 1, 9));
}

TEST_F(HeaderRangeTest, AnEntryThatIsNotTextIsConvertedToText) {
    excel::SafeArray entries(excel::VarType::Variant, {{0, 1}});
    entries.Set({0}, excel::Variant(42));
    sheet->AddHeaderRange("T", excel::Variant(std::move(entries)));
    EXPECT_EQ(Text("A4"), "42: ");
}

TEST_F(HeaderRangeTest, OnlyTheFirstTabSplitsAnEntry) {
    sheet->AddHeaderRange("T", excel::Variant(std::vector<std::string>{"Range\t1\t2"}));
    EXPECT_EQ(Text("A4"), "Range: 1\t2");
}

TEST_F(HeaderRangeTest, OutsideUnitTestingModeTheUserAndTheCurrentTimeAreShown) {
    reporting.SetUnitTestingMode(false);
    app->SetUserName("Ada Lovelace");
    sheet->AddHeaderRange("T", excel::Variant());
    EXPECT_EQ(Text("A2"), "Performed By: Ada Lovelace");
    const std::regex longDateTime(
        "Date: (Sunday|Monday|Tuesday|Wednesday|Thursday|Friday|Saturday), "
        "(January|February|March|April|May|June|July|August|September|October|November|December) "
        "[1-9][0-9]?, [0-9]{4} (1[0-2]|[1-9]):[0-5][0-9]:[0-5][0-9] (AM|PM)");
    EXPECT_TRUE(std::regex_match(Text("A3"), longDateTime)) << Text("A3");
}

TEST_F(HeaderRangeTest, TheTitleIsKeptAsText) {
    sheet->AddHeaderRange("2024", excel::Variant());
    EXPECT_TRUE(excelSheet->Range("A1")->Value().IsString());
    EXPECT_EQ(Text("A1"), "2024");
}

TEST_F(HeaderRangeTest, AnEmptyTitleLeavesOnlyTheApostrophe) {
    const auto block = sheet->AddHeaderRange("", excel::Variant());
    EXPECT_EQ(block->Rows()->Count(), 3);
    const auto title = excelSheet->Range("A1")->Value();
    EXPECT_TRUE(title.IsString());
    EXPECT_EQ(title.ToString(), "");
}

TEST_F(HeaderRangeTest, TheBlockIsTahomaWithABoldLargeTitleRow) {
    const auto block = sheet->AddHeaderRange("T", ModelAndRuns);
    EXPECT_EQ(block->Font()->Name().ToString(), "Tahoma");
    EXPECT_DOUBLE_EQ(excelSheet->Range("A1")->Font()->Size().ToDouble(), 14.0);
    EXPECT_DOUBLE_EQ(excelSheet->Range("Z1")->Font()->Size().ToDouble(), 14.0);
    EXPECT_TRUE(excelSheet->Range("Z1")->Font()->Bold().ToBool());
    EXPECT_DOUBLE_EQ(block->Rows(2)->Font()->Size().ToDouble(), 8.0);
    EXPECT_DOUBLE_EQ(excelSheet->Range("Z5")->Font()->Size().ToDouble(), 8.0);
    EXPECT_FALSE(excelSheet->Range("Z5")->Font()->Bold().ToBool());
    EXPECT_NE(excelSheet->Range("A6")->Font()->Name().ToString(), "Tahoma");
}

// Without themes the block is whole rows, so its lines start in column A whatever the cursor's column.
TEST_F(HeaderRangeTest, WithoutThemesWholeRowsAreSilverWithAThinBlackLineBelow) {
    sheet->SetCurrentCell(excelSheet->Range("C3"));
    const auto block = sheet->AddHeaderRange("T", excel::Variant());
    EXPECT_EQ(block->Address(), "$3:$5");
    EXPECT_EQ(block->Interior()->Color().ToInt(), Silver);
    EXPECT_EQ(excelSheet->Range("XFD4")->Interior()->Color().ToInt(), Silver);
    EXPECT_EQ(excelSheet->Range("A6")->Interior()->ColorIndex().ToInt(), excel::xlColorIndexNone);
    const auto line = excelSheet->Range("K5")->Borders(excel::xlEdgeBottom);
    EXPECT_EQ(line->LineStyle().ToInt(), excel::xlContinuous);
    EXPECT_EQ(line->Weight().ToInt(), excel::xlThin);
    EXPECT_EQ(line->Color().ToInt(), 0);
    EXPECT_EQ(excelSheet->Range("K4")->Borders(excel::xlEdgeBottom)->LineStyle().ToInt(), excel::xlLineStyleNone);
    EXPECT_EQ(Text("A3"), "T");
    EXPECT_EQ(Text("A4"), "Performed By: UnitTester");
    EXPECT_TRUE(excelSheet->Range("C3")->Value().IsEmpty());
    EXPECT_EQ(Cursor(), "$C$6");
}

TEST_F(HeaderRangeTest, WithThemesNineColumnsTakeTheReportHeaderColourAndNoLine) {
    report->SetUseThemes(true);
    sheet->SetCurrentCell(excelSheet->Range("B2"));
    const auto block = sheet->AddHeaderRange("T", ModelAndRuns);
    EXPECT_EQ(block->Address(), "$B$2:$J$6");
    EXPECT_EQ(block->Interior()->ThemeColor().ToInt(), sheet->ThemeColor(vos::VosReportHeader));
    EXPECT_DOUBLE_EQ(block->Interior()->TintAndShade().ToDouble(), sheet->ThemeTintAndShade(vos::VosReportHeader));
    EXPECT_EQ(excelSheet->Range("K2")->Interior()->ColorIndex().ToInt(), excel::xlColorIndexNone);
    EXPECT_EQ(excelSheet->Range("A2")->Interior()->ColorIndex().ToInt(), excel::xlColorIndexNone);
    EXPECT_EQ(block->Borders(excel::xlEdgeBottom)->LineStyle().ToInt(), excel::xlLineStyleNone);
    EXPECT_EQ(block->Font()->Name().ToString(), "Tahoma");
    EXPECT_EQ(Text("B6"), "Runs: 1000");
    EXPECT_EQ(Cursor(), "$B$7");
}

TEST_F(HeaderRangeTest, FrenchLabelsHaveASpaceBeforeTheColon) {
    UseLanguage(12);
    sheet->AddHeaderRange("T", ModelAndRuns);
    EXPECT_EQ(Text("A2"), "Effectué par : UnitTester");
    EXPECT_EQ(Text("A3"), "Date : <<Date>> <<Time>>");
    EXPECT_EQ(Text("A4"), "Model : Risk A");
    EXPECT_TRUE(Bold("A2", 1, 14));
    EXPECT_FALSE(Bold("A2", 15, 11));
}

TEST_F(HeaderRangeTest, ChineseHeadersUseTenPointLines) {
    UseLanguage(4);
    const auto block = sheet->AddHeaderRange("T", excel::Variant());
    EXPECT_EQ(Text("A2"), "执行人: UnitTester");
    EXPECT_TRUE(Bold("A2", 1, 4));
    EXPECT_FALSE(Bold("A2", 5, 11));
    EXPECT_DOUBLE_EQ(block->Rows(3)->Font()->Size().ToDouble(), 10.0);
    EXPECT_DOUBLE_EQ(block->Rows(1)->Font()->Size().ToDouble(), 14.0);
}

TEST_F(HeaderRangeTest, ABlockThatLeavesNoRowForTheCursorFailsAndWritesNothing) {
    sheet->SetCurrentCell(excelSheet->Cells(LastSheetRow - 3, 1));
    sheet->AddHeaderRange("Fits", excel::Variant());
    EXPECT_EQ(Cursor(), "$A$1048576");
    sheet->SetCurrentCell(excelSheet->Cells(LastSheetRow - 4, 1));
    ExpectAutomationError([&] { sheet->AddHeaderRange("Too long", ModelAndRuns); }, vos::error_code::NotAllowedNow,
                          NoRoomForElement);
    EXPECT_EQ(Cursor(), "$A$1048572");
    EXPECT_TRUE(excelSheet->Cells(LastSheetRow - 4, 1)->Value().IsEmpty());
    EXPECT_EQ(excelSheet->Cells(LastSheetRow - 4, 1)->Interior()->ColorIndex().ToInt(), excel::xlColorIndexNone);
}

TEST_F(HeaderRangeTest, AnEmptyCursorHasNoRoomForElement) {
    sheet->SetCurrentCell(nullptr);
    ExpectAutomationError([&] { sheet->AddHeaderRange("T", excel::Variant()); }, vos::error_code::NotAllowedNow,
                          NoRoomForElement);
    EXPECT_TRUE(excelSheet->Range("A1")->Value().IsEmpty());
}

TEST_F(HeaderRangeTest, ItalianHeadersFailWithoutWritingAnything) {
    UseLanguage(16);
    ExpectFailureCode([&] { sheet->AddHeaderRange("T", excel::Variant()); }, excel::hresult::ResourceNotFound);
    EXPECT_TRUE(excelSheet->Range("A1")->Value().IsEmpty());
    EXPECT_EQ(excelSheet->Range("A1")->Interior()->ColorIndex().ToInt(), excel::xlColorIndexNone);
    EXPECT_EQ(Cursor(), "$A$1");
}

TEST_F(HeaderRangeTest, TheSpaceTestComesBeforeTheLabels) {
    UseLanguage(16);
    sheet->SetCurrentCell(excelSheet->Cells(LastSheetRow, 1));
    ExpectAutomationError([&] { sheet->AddHeaderRange("T", excel::Variant()); }, vos::error_code::NotAllowedNow,
                          NoRoomForElement);
}
