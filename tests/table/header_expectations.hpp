#pragma once

#include "table/table_fixture.hpp"

#include "table/report_table.hpp"
#include "workbook/report_workbook.hpp"

#include <excel/constants.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

using vos::VosLeftHeader;
using vos::VosTopHeader;
using namespace vos::error_code;

inline constexpr const char* NotForLeftHeader =
    "This method can not be used for this combintation of table format and header.";
inline constexpr const char* NoTopHeader = "Table does not have a top header.";
inline constexpr const char* NoLeftHeader = "Table does not have a left header.";
inline constexpr auto NotAHeader = static_cast<vos::VosTableHeaderType>(7);

// A table placed at the top-left cell of a new report sheet, whose headers are then written.
class HeaderTest : public TableTest {
protected:
    // Places the table at the cursor (A1 on the new sheet).
    void Place(int32_t interiorRows, int32_t interiorColumns, int16_t headerRows, int16_t headerColumns,
               const std::string& mainTitle = "", const std::string& subTitle = "") {
        table = sheet->AddTable(interiorRows, interiorColumns, headerRows, headerColumns, mainTitle, subTitle);
    }

    // A table on the given block with no header rows, which AddTable never makes.
    void PlaceWithoutTopHeader(const std::string& address, int16_t headerColumns) {
        auto direct = std::make_shared<vos::ReportTable>();
        direct->InitializeTable(std::dynamic_pointer_cast<vos::ReportWorkbook>(report), At(address), 0,
                                headerColumns, "", "", 9);
        table = direct;
    }

    excel::Variant Value(const std::string& address) { return At(address)->Value(); }
    std::string Text(const std::string& address) { return At(address)->Text().ToString(); }
    std::string MergeArea(const std::string& address) { return AddressOf(At(address)->MergeArea()); }

    // The texts the cells of the range show, in reading order.
    std::vector<std::string> Texts(const std::string& address) {
        std::vector<std::string> texts;
        const auto range = At(address);
        for (int32_t i = 1; i <= range->Count(); ++i)
            texts.push_back(range->Cells(i)->Text().ToString());
        return texts;
    }

    // What a reader sees of each cell of the table and of a margin of two rows and columns around
    // it: value type, text, merge area, alignments, number format and font.
    std::vector<std::string> SheetState() {
        std::vector<std::string> cells;
        const auto whole = table->TableRange();
        const auto area = whole->Resize(whole->Rows()->Count() + 2, whole->Columns()->Count() + 2);
        for (int32_t i = 1; i <= area->Count(); ++i) {
            const auto cell = area->Cells(i);
            const auto font = cell->Font();
            cells.push_back(AddressOf(cell) + " type " + std::to_string(static_cast<int>(cell->Value().Type())) +
                            " text '" + cell->Text().ToString() + "' merged " + AddressOf(cell->MergeArea()) +
                            " h " + cell->HorizontalAlignment().ToString() + " v " +
                            cell->VerticalAlignment().ToString() + " format " + cell->NumberFormat().ToString() +
                            " bold " + font->Bold().ToString() + " size " + font->Size().ToString());
        }
        return cells;
    }

    // The call fails with exactly this code and text and leaves every cell as it was.
    template <class Call>
    void ExpectRefused(Call&& call, int32_t code, const std::string& text) {
        const auto before = SheetState();
        ExpectAutomationError(call, code, text);
        EXPECT_EQ(SheetState(), before);
    }

    std::shared_ptr<vos::VosExcelTable> table;
};
