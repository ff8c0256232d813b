#include "worksheet/report_sheet_fixture.hpp"

namespace {

class HeaderTextBoxTest : public ReportHeaderTest {
protected:
    static std::string TextOf(const std::shared_ptr<excel::Shape>& box) {
        return box->TextFrame()->Characters()->Text();
    }
    static std::shared_ptr<excel::Font> FontOf(const std::shared_ptr<excel::Shape>& box, int32_t start,
                                               int32_t length) {
        return box->TextFrame()->Characters(start, length)->Font();
    }
    int32_t ShapeCount() { return excelSheet->Shapes()->Count(); }
};

}  // namespace

TEST_F(HeaderTextBoxTest, WithoutExtraLinesTheBoxHoldsTitleUserAndDate) {
    const auto box = sheet->AddHeader("Quarterly Risk", excel::Variant());
    EXPECT_EQ(TextOf(box), "Quarterly Risk\n Performed By: UnitTester\n Date: <<Date>> <<Time>> ");
    EXPECT_EQ(box->Type(), excel::msoTextBox);
    EXPECT_EQ(ShapeCount(), 1);
}

TEST_F(HeaderTextBoxTest, ExtraLinesHaveTrimmedLabelsWithoutAColon) {
    const auto box = sheet->AddHeader("Quarterly Risk", ModelAndRuns);
    EXPECT_EQ(TextOf(box),
              "Quarterly Risk\n Performed By: UnitTester\n Date: <<Date>> <<Time>>\n Model Risk A\n Runs 1000 ");
}

TEST_F(HeaderTextBoxTest, TheTitleIsTheOnlyUnderlinedRunAndLabelsAreBold) {
    const auto box = sheet->AddHeader("Title", excel::Variant(std::vector<std::string>{"Model\tRisk A"}));
    // "Title" | "\n Performed By:" | " UnitTester" | "\n Date:" | " <<Date>> <<Time>>" | "\n Model" | " Risk A "
    const auto title = FontOf(box, 1, 5);
    EXPECT_DOUBLE_EQ(title->Size().ToDouble(), 12.0);
    EXPECT_TRUE(title->Bold().ToBool());
    EXPECT_EQ(title->Underline().ToInt(), excel::xlUnderlineStyleSingle);
    const auto userLabel = FontOf(box, 6, 15);
    EXPECT_DOUBLE_EQ(userLabel->Size().ToDouble(), 8.0);
    EXPECT_TRUE(userLabel->Bold().ToBool());
    EXPECT_EQ(userLabel->Underline().ToInt(), excel::xlUnderlineStyleNone);
    const auto userValue = FontOf(box, 21, 11);
    EXPECT_DOUBLE_EQ(userValue->Size().ToDouble(), 8.0);
    EXPECT_FALSE(userValue->Bold().ToBool());
    EXPECT_EQ(userValue->Underline().ToInt(), excel::xlUnderlineStyleNone);
    EXPECT_TRUE(FontOf(box, 32, 7)->Bold().ToBool());
    EXPECT_FALSE(FontOf(box, 39, 18)->Bold().ToBool());
    EXPECT_TRUE(FontOf(box, 57, 7)->Bold().ToBool());
    EXPECT_FALSE(FontOf(box, 64, 8)->Bold().ToBool());
    EXPECT_EQ(FontOf(box, 6, 66)->Underline().ToInt(), excel::xlUnderlineStyleNone);
}

TEST_F(HeaderTextBoxTest, TheBoxSitsFourPointsBelowTheCursorsTopLeftCorner) {
    sheet->SetCurrentCell(excelSheet->Range("C5"));
    const auto box = sheet->AddHeader("T", excel::Variant());
    EXPECT_DOUBLE_EQ(box->Left(), excelSheet->Range("C5")->Left());
    EXPECT_DOUBLE_EQ(box->Top(), excelSheet->Range("C5")->Top() + 4.0);
    EXPECT_EQ(box->Placement(), excel::xlMove);
}

TEST_F(HeaderTextBoxTest, TheBoxIsFilledWithPaletteColourFifteenAndOutlinedInBlack) {
    const auto box = sheet->AddHeader("T", excel::Variant());
    EXPECT_EQ(box->Fill()->ForeColor()->RGB(), report->ExcelWorkbook()->Colors(15).ToInt());
    EXPECT_EQ(box->Line()->ForeColor()->RGB(), 0);
    EXPECT_DOUBLE_EQ(box->Line()->Weight(), 1.5);
}

TEST_F(HeaderTextBoxTest, TheBoxFollowsAChangedPalette) {
    report->ExcelWorkbook()->SetColors(15, 0x123456);
    const auto box = sheet->AddHeader("T", excel::Variant());
    EXPECT_EQ(box->Fill()->ForeColor()->RGB(), 0x123456);
}

TEST_F(HeaderTextBoxTest, TheTextHasSevenPointMarginsAndDoesNotWrap) {
    const auto box = sheet->AddHeader("T", excel::Variant());
    const auto frame = box->TextFrame();
    EXPECT_FALSE(frame->AutoMargins());
    EXPECT_DOUBLE_EQ(frame->MarginLeft(), 7.0);
    EXPECT_DOUBLE_EQ(frame->MarginRight(), 7.0);
    EXPECT_DOUBLE_EQ(frame->MarginTop(), 7.0);
    EXPECT_DOUBLE_EQ(frame->MarginBottom(), 7.0);
    EXPECT_EQ(box->TextFrame2()->WordWrap(), excel::msoFalse);
}

TEST_F(HeaderTextBoxTest, TheBoxIs428PointsWideAndEndsHalfAPointAboveARowBoundary) {
    const auto box = sheet->AddHeader("T", ModelAndRuns);
    EXPECT_DOUBLE_EQ(box->Width(), 428.0);
    EXPECT_TRUE(box->TextFrame()->AutoSize());
    const auto lastCell = box->BottomRightCell();
    EXPECT_DOUBLE_EQ(box->Top() + box->Height(), lastCell->Top() + lastCell->Height() - 0.5);
    EXPECT_GT(lastCell->Row(), 1);
}

TEST_F(HeaderTextBoxTest, TheCursorMovesToTheRowAfterTheBoxInItsOwnColumn) {
    sheet->SetCurrentCell(excelSheet->Range("B3"));
    const auto box = sheet->AddHeader("T", ModelAndRuns);
    const auto expected = excelSheet->Cells(box->BottomRightCell()->Row() + 1, 2);
    EXPECT_EQ(Cursor(), expected->Address());
    EXPECT_GT(sheet->CurrentCell()->Top(), box->Top() + box->Height());
}

TEST_F(HeaderTextBoxTest, MoreLinesMakeATallerBox) {
    const auto shortBox = sheet->AddHeader("T", excel::Variant());
    const double shortHeight = shortBox->Height();
    std::vector<std::string> manyLines(12, "Label\tValue");
    const auto tallBox = sheet->AddHeader("T", excel::Variant(manyLines));
    EXPECT_GT(tallBox->Height(), shortHeight + 50.0);
}

TEST_F(HeaderTextBoxTest, ABlankTitleIsRefusedBeforeAnythingElse) {
    ExpectAutomationError([&] { sheet->AddHeader("", excel::Variant()); }, vos::error_code::EmptyArgument, "mainTitle");
    ExpectAutomationError([&] { sheet->AddHeader("   ", ModelAndRuns); }, vos::error_code::EmptyArgument, "mainTitle");
    sheet->SetCurrentCell(nullptr);
    ExpectAutomationError([&] { sheet->AddHeader("", excel::Variant()); }, vos::error_code::EmptyArgument, "mainTitle");
    EXPECT_EQ(ShapeCount(), 0);
}

TEST_F(HeaderTextBoxTest, TheTitleIsTrimmed) {
    const auto box = sheet->AddHeader("  Risk  ", excel::Variant());
    EXPECT_EQ(TextOf(box).substr(0, 5), "Risk\n");
}

TEST_F(HeaderTextBoxTest, TheBoxNeedsThreeRowsAndThreeColumnsWhateverItsLines) {
    sheet->SetCurrentCell(excelSheet->Cells(LastSheetRow - 2, 1));
    ExpectAutomationError([&] { sheet->AddHeader("T", excel::Variant()); }, vos::error_code::NotAllowedNow, NoRoomForElement);
    sheet->SetCurrentCell(excelSheet->Cells(1, LastSheetColumn - 2));
    ExpectAutomationError([&] { sheet->AddHeader("T", excel::Variant()); }, vos::error_code::NotAllowedNow, NoRoomForElement);
    EXPECT_EQ(Cursor(), "$XFB$1");
    sheet->SetCurrentCell(nullptr);
    ExpectAutomationError([&] { sheet->AddHeader("T", excel::Variant()); }, vos::error_code::NotAllowedNow, NoRoomForElement);
    EXPECT_EQ(ShapeCount(), 0);
    sheet->SetCurrentCell(excelSheet->Cells(LastSheetRow - 1000, 1));
    EXPECT_NO_THROW(sheet->AddHeader("T", excel::Variant(std::vector<std::string>(5, "Label\tValue"))));
}

TEST_F(HeaderTextBoxTest, FrenchAndChineseLabelsTakeAColonWithoutASpace) {
    UseLanguage(12);
    EXPECT_EQ(TextOf(sheet->AddHeader("T", excel::Variant())),
              "T\n Effectué par: UnitTester\n Date: <<Date>> <<Time>> ");
    UseLanguage(4);
    const auto box = sheet->AddHeader("T", excel::Variant());
    EXPECT_EQ(TextOf(box), "T\n 执行人: UnitTester\n 日期: <<Date>> <<Time>> ");
    EXPECT_DOUBLE_EQ(FontOf(box, 3, 20)->Size().ToDouble(), 8.0);
}

TEST_F(HeaderTextBoxTest, ThemesDoNotChangeTheBox) {
    report->SetUseThemes(true);
    const auto box = sheet->AddHeader("T", excel::Variant());
    EXPECT_EQ(box->Fill()->ForeColor()->RGB(), report->ExcelWorkbook()->Colors(15).ToInt());
    EXPECT_EQ(box->Line()->ForeColor()->RGB(), 0);
}

TEST_F(HeaderTextBoxTest, OutsideUnitTestingModeTheUserNameIsShown) {
    reporting.SetUnitTestingMode(false);
    app->SetUserName("Grace Hopper");
    const std::string text = TextOf(sheet->AddHeader("T", excel::Variant()));
    EXPECT_NE(text.find("\n Performed By: Grace Hopper\n Date: "), std::string::npos) << text;
    EXPECT_EQ(text.find("<<Date>>"), std::string::npos);
}

TEST_F(HeaderTextBoxTest, ItalianHeadersFailWithoutLeavingABox) {
    UseLanguage(16);
    ExpectFailureCode([&] { sheet->AddHeader("T", excel::Variant()); }, excel::hresult::ResourceNotFound);
    EXPECT_EQ(ShapeCount(), 0);
    EXPECT_EQ(Cursor(), "$A$1");
}
