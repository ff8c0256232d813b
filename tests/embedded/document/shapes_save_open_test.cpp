#include "save_open_fixture.hpp"

using namespace excel;

namespace {

class ShapesSaveOpenTest : public SaveOpenTest {};

TEST_F(ShapesSaveOpenTest, TextBoxKeepsTextFontsAndFormatting) {
    auto box = sheet->Shapes()->AddTextbox(msoTextOrientationHorizontal, 48, 30, 200, 60);
    auto frame = box->TextFrame();
    frame->Characters()->SetText("Quarterly report\nRegion North");
    frame->Characters(1, 16)->Font()->SetBold(true);
    frame->Characters(1, 16)->Font()->SetSize(12);
    frame->Characters(18)->Font()->SetColor(0x0000FF);
    frame->SetMarginLeft(3);
    frame->SetAutoSize(true);
    box->Line()->ForeColor()->SetObjectThemeColor(msoThemeColorAccent1);
    box->Fill()->ForeColor()->SetRGB(0xF0F0F0);
    box->Fill()->SetTransparency(0.4);
    box->SetOnAction("Macro1");
    const double height = box->Height();

    auto reopened = SaveAndReopen("textbox.xlsx")->Worksheets(1);
    ASSERT_EQ(reopened->Shapes()->Count(), 1);
    auto back = reopened->Shapes()->Item(1);
    EXPECT_EQ(back->Name(), "TextBox 1");
    EXPECT_EQ(back->Type(), msoTextBox);
    EXPECT_NEAR(back->Left(), 48, 0.01);
    EXPECT_NEAR(back->Top(), 30, 0.01);
    EXPECT_NEAR(back->Height(), height, 0.01);
    EXPECT_EQ(back->OnAction(), "Macro1");
    EXPECT_EQ(back->Fill()->ForeColor()->RGB(), 0xF0F0F0);
    EXPECT_DOUBLE_EQ(back->Fill()->Transparency(), 0.4);
    EXPECT_EQ(back->Line()->ForeColor()->ObjectThemeColor(), msoThemeColorAccent1);
    auto backFrame = back->TextFrame();
    EXPECT_EQ(backFrame->Characters()->Text(), "Quarterly report\nRegion North");
    EXPECT_EQ(backFrame->Characters(1, 16)->Font()->Bold(), Variant(true));
    EXPECT_EQ(backFrame->Characters(1, 16)->Font()->Size(), Variant(12.0));
    EXPECT_EQ(backFrame->Characters(18)->Font()->Bold(), Variant(false));
    EXPECT_EQ(backFrame->Characters(18)->Font()->Color(), Variant(static_cast<double>(0x0000FF)));
    EXPECT_DOUBLE_EQ(backFrame->MarginLeft(), 3);
    EXPECT_TRUE(backFrame->AutoSize());
}

TEST_F(ShapesSaveOpenTest, CommentsKeepAuthorRichTextAndVisibility) {
    app->SetUserName("Reporter");
    auto comment = At("B2")->AddComment("Source\nfrom the ledger");
    comment->Shape()->TextFrame()->Characters(1, 6)->Font()->SetBold(true);
    comment->Shape()->TextFrame()->Characters(1, 6)->Font()->SetUnderline(xlUnderlineStyleSingle);
    At("D17")->AddComment("Visible")->SetVisible(true);

    auto reopened = SaveAndReopen("comments.xlsx")->Worksheets(1);
    auto back = reopened->Range("B2")->Comment();
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(back->Author(), "Reporter");
    EXPECT_EQ(back->Text(), "Source\nfrom the ledger");
    EXPECT_FALSE(back->Visible());
    auto frame = back->Shape()->TextFrame();
    EXPECT_EQ(frame->Characters(1, 6)->Font()->Bold(), Variant(true));
    EXPECT_EQ(frame->Characters(1, 6)->Font()->Underline(), Variant(xlUnderlineStyleSingle));
    EXPECT_EQ(frame->Characters(8)->Font()->Bold(), Variant(false));
    EXPECT_TRUE(reopened->Range("D17")->Comment()->Visible());
    EXPECT_NEAR(back->Shape()->Left(), 107.25, 0.01);
    EXPECT_NEAR(back->Shape()->Top(), 7.5, 0.01);
    EXPECT_EQ(back->Shape()->Fill()->ForeColor()->RGB(), 0xE1FFFF);
}

TEST_F(ShapesSaveOpenTest, SavedTwiceKeepsEveryShape) {
    sheet->Shapes()->AddTextbox(msoTextOrientationHorizontal, 0, 0, 100, 20)->TextFrame()->Characters()->SetText("A");
    At("C3")->AddComment("B");
    book = SaveAndReopen("first.xlsx");
    sheet = book->Worksheets(1);
    auto again = SaveAndReopen("second.xlsx")->Worksheets(1);
    EXPECT_EQ(again->Shapes()->Count(), 2);
    EXPECT_EQ(again->Shapes()->Item("TextBox 1")->TextFrame()->Characters()->Text(), "A");
    EXPECT_EQ(again->Range("C3")->Comment()->Text(), "B");
}

// An opened text box stays on the cells its anchor names, whatever its transform says (its
// writer measured rows and columns otherwise), and moves with them.
TEST_F(ShapesSaveOpenTest, AnOpenedTextBoxKeepsTheCellsOfItsAnchor) {
    const std::string name = "realworld-excel/poi__45540_form_Footer.xlsx";
    const auto anchorOf = [](const std::string& drawing, const std::string& shapeName) {
        const std::size_t shape = drawing.find("name=\"" + shapeName + "\"");
        const std::size_t anchor = drawing.rfind("<xdr:twoCellAnchor", shape);
        return drawing.substr(anchor, drawing.find("<xdr:sp", anchor) - anchor);
    };
    const std::string input =
        anchorOf(ooxml_test::ReadPackageParts(CorpusPath(name)).at("xl/drawings/drawing1.xml"), "Text Box 35");
    auto workbook = OpenCorpus(name);
    const std::string saved = anchorOf(Saved(workbook, "copy.xlsx").at("xl/drawings/drawing1.xml"), "Text Box 35");
    EXPECT_EQ(saved, input);

    workbook->Worksheets(1)->Range("A1")->EntireRow()->Insert();
    const std::string moved = anchorOf(Saved(workbook, "moved.xlsx").at("xl/drawings/drawing1.xml"), "Text Box 35");
    EXPECT_NE(input.find("<xdr:row>26</xdr:row>"), std::string::npos) << input;
    EXPECT_EQ(moved.find("<xdr:row>26</xdr:row>"), std::string::npos) << moved;
    EXPECT_NE(moved.find("<xdr:row>27</xdr:row>"), std::string::npos) << moved;
}

}  // namespace
