#include "save_open_fixture.hpp"

#include <string>

using namespace excel;

namespace {

// A report table laid out as the table class lays it out: two merged title rows, a two-row top
// header over the interior, a one-column left header, the signature cell block in the corner,
// a box around everything, then the interior written column by column.
class TableLayoutTest : public SaveOpenTest {
protected:
    static constexpr int32_t interiorRows = 6;
    static constexpr int32_t interiorColumns = 3;
    static constexpr int32_t bottom = 4 + interiorRows;
    static constexpr int32_t right = 1 + interiorColumns;

    std::shared_ptr<Range> Block(int32_t top, int32_t left, int32_t lastRow, int32_t lastColumn) {
        return sheet->Range(sheet->Cells(top, left), sheet->Cells(lastRow, lastColumn));
    }

    void LayOut(bool themed) {
        auto table = Block(1, 1, bottom, right);
        table->SetMergeCells(false);
        table->Clear();
        table->SetNumberFormat("General");
        table->BorderAround(xlContinuous, xlMedium, xlColorIndexAutomatic);

        auto title = Block(1, 1, 2, right);
        title->SetHorizontalAlignment(xlCenter);
        Fill(title, themed);
        title->Borders(xlEdgeBottom)->SetWeight(xlMedium);
        title->Rows(1)->SetMergeCells(true);
        title->Rows(1)->SetValue("Main");
        title->Rows(1)->Font()->SetSize(10);
        title->Rows(1)->Font()->SetBold(true);
        title->Rows(2)->SetMergeCells(true);
        title->Rows(2)->SetValue("Sub");
        title->Rows(2)->Font()->SetSize(8);

        auto interior = Block(5, 2, bottom, right);
        interior->SetHorizontalAlignment(xlCenter);
        interior->Font()->SetSize(8);
        interior->SetVerticalAlignment(xlTop);
        if (themed) {
            auto inside = interior->Borders(xlInsideHorizontal);
            inside->SetWeight(xlHairline);
            inside->SetLineStyle(xlContinuous);
            inside->SetThemeColor(xlThemeColorDark1);
            inside->SetTintAndShade(-0.25);
        }

        auto topHeader = Block(3, 2, 4, right);
        auto leftHeader = Block(5, 1, bottom, 1);
        auto signature = Block(3, 1, 4, 1);
        Line(app->Union(topHeader, signature)->Borders(xlEdgeBottom));
        Line(app->Union(leftHeader, signature)->Borders(xlEdgeRight));
        for (const auto& header : {topHeader, leftHeader, signature}) {
            header->SetWrapText(true);
            header->Font()->SetBold(true);
            Fill(header, themed);
        }
        auto summary = topHeader->Rows(1);
        summary->ClearContents();
        summary->SetMergeCells(true);
        summary->SetHorizontalAlignment(xlCenterAcrossSelection);
        summary->SetValue("Summary");

        SafeArray labels = SafeArray::Matrix(VarType::Variant, interiorRows, 1);
        for (uint32_t row = 0; row < interiorRows; ++row) {
            labels.Put(row, 0, Variant("Row " + std::to_string(row + 1)));
        }
        leftHeader->SetValue(Variant(std::move(labels)));
        for (int32_t column = 1; column <= interiorColumns; ++column) {
            SafeArray values = SafeArray::Matrix(VarType::Variant, interiorRows, 1);
            for (uint32_t row = 0; row < interiorRows; ++row) {
                values.Put(row, 0, Variant(row * 0.5 + column));
            }
            interior->Columns(column)->SetValue(Variant(std::move(values)));
            topHeader->Columns(column)->EntireColumn()->SetColumnWidth(12);
        }
    }

    static void Fill(const std::shared_ptr<Range>& range, bool themed) {
        if (themed) {
            range->Interior()->SetThemeColor(xlThemeColorAccent1);
            range->Interior()->SetTintAndShade(0.6);
        } else {
            range->Interior()->SetColorIndex(15);
        }
    }

    static void Line(const std::shared_ptr<Border>& border) {
        border->SetWeight(xlThin);
        border->SetLineStyle(xlContinuous);
        border->SetColorIndex(xlColorIndexAutomatic);
    }

    // Saves, has both file checkers pass the file, and opens it again.
    std::shared_ptr<Worksheet> SaveCheckedAndReopen(const std::string& name) {
        const std::string path = PathOf(name);
        book->SaveAs(path);
        EXPECT_EQ(RunTool("validate-xlsx", path), 0);
        EXPECT_EQ(RunTool("check-xlsx", path), 0);
        book->Close();
        return app->Workbooks()->Open(path)->Worksheets(1);
    }

    // What either layout shows, in this sheet or in one read back from the file.
    static void ExpectLayout(const std::shared_ptr<Worksheet>& s) {
        EXPECT_EQ(s->Range("C1")->MergeArea()->Address(), "$A$1:$D$1");
        EXPECT_EQ(s->Range("A2")->MergeArea()->Address(), "$A$2:$D$2");
        EXPECT_EQ(s->Range("C3")->MergeArea()->Address(), "$B$3:$D$3");
        EXPECT_EQ(s->Range("A1")->Value(), Variant("Main"));
        EXPECT_EQ(s->Range("A1")->Font()->Bold(), Variant(true));
        EXPECT_EQ(s->Range("A2")->Font()->Size(), Variant(8.0));
        EXPECT_EQ(s->Range("B3")->Value(), Variant("Summary"));
        EXPECT_EQ(s->Range("B3:D3")->HorizontalAlignment(), Variant(xlCenterAcrossSelection));
        EXPECT_EQ(s->Range("A1:D10")->Borders(xlEdgeLeft)->Weight(), Variant(xlMedium));
        EXPECT_EQ(s->Range("A1:D10")->Borders(xlEdgeBottom)->Weight(), Variant(xlMedium));
        EXPECT_EQ(s->Range("A2:D2")->Borders(xlEdgeBottom)->Weight(), Variant(xlMedium));
        EXPECT_EQ(s->Range("A4:D4")->Borders(xlEdgeBottom)->Weight(), Variant(xlThin));
        EXPECT_EQ(s->Range("A3:A10")->Borders(xlEdgeRight)->Weight(), Variant(xlThin));
        EXPECT_EQ(s->Range("D3:D10")->Borders(xlEdgeRight)->Weight(), Variant(xlMedium));
        EXPECT_EQ(s->Range("B5:D10")->HorizontalAlignment(), Variant(xlCenter));
        EXPECT_EQ(s->Range("B5:D10")->VerticalAlignment(), Variant(xlTop));
        EXPECT_EQ(s->Range("B5:D10")->Font()->Size(), Variant(8.0));
        EXPECT_EQ(s->Range("A5")->Value(), Variant("Row 1"));
        EXPECT_EQ(s->Range("D10")->Value(), Variant(5.5));
        EXPECT_EQ(s->Range("C1")->ColumnWidth(), Variant(12.0));
    }
};

}  // namespace

TEST_F(TableLayoutTest, TableWithIndexedColoursIsSavedValidAndReadBack) {
    LayOut(false);
    ExpectLayout(sheet);
    auto reopened = SaveCheckedAndReopen("table.xlsx");
    ExpectLayout(reopened);
    EXPECT_EQ(reopened->Range("A3:D4")->Interior()->ColorIndex(), Variant(15));
}

TEST_F(TableLayoutTest, TableWithThemeColoursIsSavedValidAndReadBack) {
    LayOut(true);
    ExpectLayout(sheet);
    auto reopened = SaveCheckedAndReopen("themed_table.xlsx");
    ExpectLayout(reopened);
    EXPECT_EQ(reopened->Range("A3:D4")->Interior()->ThemeColor(), Variant(xlThemeColorAccent1));
    EXPECT_NEAR(reopened->Range("A3:D4")->Interior()->TintAndShade().ToDouble(), 0.6, 1e-9);
    auto inside = reopened->Range("B5:D10")->Borders(xlInsideHorizontal);
    EXPECT_EQ(inside->Weight(), Variant(xlHairline));
    EXPECT_EQ(inside->ThemeColor(), Variant(xlThemeColorDark1));
    EXPECT_NEAR(inside->TintAndShade().ToDouble(), -0.25, 1e-9);
}
