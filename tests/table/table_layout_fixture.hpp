#pragma once

#include "table/table_fixture.hpp"

#include "table/report_table.hpp"
#include "workbook/report_workbook.hpp"

#include <excel/border.hpp>
#include <excel/font.hpp>
#include <excel/interior.hpp>

#include <ostream>
#include <sstream>
#include <vector>

// The addresses of a table's ranges, "none" for a missing one.
struct TableLayout {
    std::string title;
    std::string signature;
    std::string leftHeader;
    std::string topHeader;
    std::string interior;

    bool operator==(const TableLayout&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const TableLayout& layout) {
    return out << "title " << layout.title << ", signature " << layout.signature << ", left header "
               << layout.leftHeader << ", top header " << layout.topHeader << ", interior " << layout.interior;
}

// A property read back as text; "error" where reading it fails, "mixed" where the cells differ.
template <class Read>
std::string Shown(Read&& read) {
    try {
        const excel::Variant value = read();
        if (value.IsNull())
            return "mixed";
        return value.IsEmpty() ? "" : value.ToString();
    } catch (const excel::AutomationError&) {
        return "error";
    }
}

// The cell's fill, font colour and four edges, each as theme colour, tint and index.
inline std::string ColourState(const std::shared_ptr<excel::Range>& cell) {
    std::ostringstream state;
    const auto fill = cell->Interior();
    const auto font = cell->Font();
    state << "fill " << Shown([&] { return fill->ColorIndex(); }) << '/' << Shown([&] { return fill->ThemeColor(); })
          << '/' << Shown([&] { return fill->TintAndShade(); }) << " font " << Shown([&] { return font->ThemeColor(); })
          << '/' << Shown([&] { return font->TintAndShade(); });
    for (const int32_t edge : {excel::xlEdgeLeft, excel::xlEdgeTop, excel::xlEdgeBottom, excel::xlEdgeRight}) {
        const auto border = cell->Borders(edge);
        state << " edge" << edge << ' ' << Shown([&] { return border->LineStyle(); }) << '/'
              << Shown([&] { return border->Weight(); }) << '/' << Shown([&] { return border->ColorIndex(); }) << '/'
              << Shown([&] { return border->ThemeColor(); }) << '/' << Shown([&] { return border->TintAndShade(); });
    }
    return state.str();
}

// Everything about a cell that placing or formatting a table could change.
inline std::string CellState(const std::shared_ptr<excel::Range>& cell) {
    std::ostringstream state;
    state << cell->Address(false, false) << ": value " << Shown([&] { return cell->Formula(); }) << " format "
          << Shown([&] { return cell->NumberFormat(); }) << " merged " << cell->MergeArea()->Address(false, false)
          << " align " << Shown([&] { return cell->HorizontalAlignment(); }) << '/'
          << Shown([&] { return cell->VerticalAlignment(); }) << " size " << Shown([&] { return cell->Font()->Size(); })
          << " bold " << Shown([&] { return cell->Font()->Bold(); }) << " comment " << (cell->Comment() ? "yes" : "no")
          << ' ' << ColourState(cell);
    return state.str();
}

// One state per cell of the range, row by row.
template <class Describe>
std::vector<std::string> CellStates(const std::shared_ptr<excel::Range>& range, Describe&& describe) {
    std::vector<std::string> states;
    for (int32_t row = 1; row <= range->Rows()->Count(); ++row)
        for (int32_t column = 1; column <= range->Columns()->Count(); ++column)
            states.push_back(describe(range->Cells(row, column)));
    return states;
}

inline std::vector<std::string> BlockState(const std::shared_ptr<excel::Range>& range) {
    return CellStates(range, CellState);
}

// Tables placed by the report sheet, and tables made and initialised directly as the sheet does.
class TableLayoutTest : public TableTest {
protected:
    std::shared_ptr<vos::VosExcelTable> AddTableAt(const std::string& cursor, int32_t interiorRows,
                                                   int32_t interiorColumns, int16_t headerRows, int16_t headerColumns,
                                                   const std::string& mainTitle = "",
                                                   const std::string& subTitle = "") {
        sheet->SetCurrentCell(At(cursor));
        return sheet->AddTable(interiorRows, interiorColumns, headerRows, headerColumns, mainTitle, subTitle);
    }

    // B2:F8 with every part: title B2:F3, signature B4:C5, left header B6:C8, top header D4:F5,
    // interior D6:F8.
    std::shared_ptr<vos::VosExcelTable> AddTableWithEveryPart() { return AddTableAt("B2", 3, 3, 2, 2, "Main", "Sub"); }

    std::shared_ptr<vos::ReportTable> InitializeTable(const std::shared_ptr<excel::Range>& block, int16_t headerRows,
                                                      int16_t headerColumns, const std::string& mainTitle = "",
                                                      const std::string& subTitle = "") {
        auto table = std::make_shared<vos::ReportTable>();
        table->InitializeTable(std::dynamic_pointer_cast<vos::ReportWorkbook>(report), block, headerRows, headerColumns,
                               mainTitle, subTitle, sheet->DefaultLanguage());
        return table;
    }

    static TableLayout LayoutOf(vos::VosExcelTable& table) {
        return {AddressOf(table.TitleRange()), AddressOf(table.SignatureRange()), AddressOf(table.LeftHeaderRange()),
                AddressOf(table.TopHeaderRange()), AddressOf(table.InteriorRange())};
    }

    // Checks that the call fails with this code and text and leaves every cell of the block as it was.
    template <class Call>
    void ExpectRefusedLeaving(const std::shared_ptr<excel::Range>& block, Call&& call, int32_t code,
                              const std::string& text) {
        const auto before = BlockState(block);
        ExpectAutomationError(call, code, text);
        EXPECT_EQ(BlockState(block), before);
    }

    // Puts a value, a number format, a fill, bold type, a line, a merge and a comment into the block.
    void FillWithOldContent(const std::string& block) {
        const auto range = At(block);
        range->SetValue(excel::Variant(0.25));
        range->SetNumberFormat("0.00%");
        range->Interior()->SetColorIndex(6);
        range->Font()->SetBold(true);
        range->Borders(excel::xlInsideHorizontal)->SetLineStyle(excel::xlDash);
        range->Cells(2, 2)->Resize(2, 2)->SetMergeCells(true);
        range->Cells(1, 1)->AddComment(excel::Variant("old note"));
    }
};

// A merged title row: the merge it belongs to, its font and its text.
inline void ExpectTitleRow(const std::shared_ptr<excel::Range>& firstCell, const std::string& mergeArea, double size,
                           bool bold, const std::string& text) {
    EXPECT_EQ(firstCell->MergeArea()->Address(false, false), mergeArea);
    EXPECT_EQ(firstCell->Font()->Size().ToDouble(), size);
    EXPECT_EQ(firstCell->Font()->Bold().ToBool(), bold);
    EXPECT_EQ(firstCell->Value().ToString(), text);
}

// How a part's text is set: its alignments, size and weight.
inline void ExpectTextSetting(const std::shared_ptr<excel::Range>& part, int32_t horizontal, int32_t vertical,
                              double size, bool bold) {
    EXPECT_EQ(part->HorizontalAlignment().ToInt(), horizontal);
    EXPECT_EQ(part->VerticalAlignment().ToInt(), vertical);
    EXPECT_EQ(part->Font()->Size().ToDouble(), size);
    EXPECT_EQ(part->Font()->Bold().ToBool(), bold);
}

// The title rows in the large size, the first bold and the second plain; every other part small.
inline void ExpectFontSizes(vos::VosExcelTable& table, double large, double small) {
    const auto title = table.TitleRange();
    EXPECT_EQ(title->Rows(1)->Font()->Size().ToDouble(), large);
    EXPECT_EQ(title->Rows(2)->Font()->Size().ToDouble(), small);
    EXPECT_EQ(table.InteriorRange()->Font()->Size().ToDouble(), small);
    EXPECT_EQ(table.TopHeaderRange()->Font()->Size().ToDouble(), small);
    EXPECT_EQ(table.LeftHeaderRange()->Font()->Size().ToDouble(), small);
    EXPECT_EQ(table.SignatureRange()->Font()->Size().ToDouble(), small);
}
