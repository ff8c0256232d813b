#pragma once

#include "table/table_fixture.hpp"

#include "table/report_table.hpp"
#include "workbook/report_workbook.hpp"

#include <excel/excel.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

// A report sheet with one table placed at B2 and the helpers the interior tests read it back with.
// The usual table has two header rows, two header columns, four interior rows and three interior
// columns and no titles: signature B2:C3, top header D2:F3, left header B4:C7, interior D4:F7.
class InteriorTest : public TableTest {
protected:
    std::shared_ptr<vos::VosExcelTable> PlaceTable(int32_t interiorRows = 4, int32_t interiorColumns = 3,
                                                   int16_t headerRows = 2, int16_t headerColumns = 2) {
        sheet->SetCurrentCell(At("B2"));
        return sheet->AddTable(interiorRows, interiorColumns, headerRows, headerColumns);
    }

    // A table on the block B2:D5 with no header rows, which only the library itself can make: the
    // report sheet always gives a table a top header.
    std::shared_ptr<vos::ReportTable> PlaceTableWithoutTopHeader(int16_t headerColumns = 1) {
        auto table = std::make_shared<vos::ReportTable>();
        table->InitializeTable(ReportWorkbookBehind(), At("B2:D5"), 0, headerColumns, "", "", 9);
        return table;
    }

    std::shared_ptr<vos::ReportWorkbook> ReportWorkbookBehind() {
        return std::dynamic_pointer_cast<vos::ReportWorkbook>(report);
    }
};

// A one-dimensional array of that element type from lowerBound on, holding the values in order.
inline excel::Variant ArrayOf(excel::VarType elementType, int32_t lowerBound,
                              const std::vector<excel::Variant>& values) {
    excel::SafeArray array(elementType, {{lowerBound, static_cast<uint32_t>(values.size())}});
    for (size_t i = 0; i < values.size(); ++i)
        array.Set({lowerBound + static_cast<int32_t>(i)}, values[i]);
    return excel::Variant(std::move(array));
}

// A variant's value as text for comparisons: "" when empty, "null" for a mixed property.
inline std::string TextOf(const excel::Variant& value) {
    return value.IsNull() ? "null" : value.ToString();
}

// The texts of the range's cell values in reading order.
inline std::vector<std::string> ValuesOf(const std::shared_ptr<excel::Range>& range) {
    std::vector<std::string> values;
    for (int32_t row = 1; row <= range->Rows()->Count(); ++row)
        for (int32_t column = 1; column <= range->Columns()->Count(); ++column)
            values.push_back(TextOf(range->Cells(row, column)->Value()));
    return values;
}

// Line style, weight and colour index of one border, "style/weight/colour".
inline std::string LineOf(const std::shared_ptr<excel::Border>& border) {
    return TextOf(border->LineStyle()) + "/" + TextOf(border->Weight()) + "/" + TextOf(border->ColorIndex());
}

// Everything the interior members may change about each cell of the range, one text per cell: the
// value, number format, alignment, wrapping, merge state, column width, comment and four edges.
inline std::vector<std::string> CellStatesOf(const std::shared_ptr<excel::Range>& range) {
    std::vector<std::string> states;
    for (int32_t row = 1; row <= range->Rows()->Count(); ++row) {
        for (int32_t column = 1; column <= range->Columns()->Count(); ++column) {
            const auto cell = range->Cells(row, column);
            std::string state = cell->Address(false, false) + ": " + TextOf(cell->Value()) + " | " +
                                TextOf(cell->NumberFormat()) + " | " + TextOf(cell->HorizontalAlignment()) + " | " +
                                TextOf(cell->WrapText()) + " | " + TextOf(cell->MergeCells()) + " | " +
                                TextOf(cell->ColumnWidth()) + " | " + (cell->Comment() ? "comment" : "-");
            for (const int32_t edge : {excel::xlEdgeLeft, excel::xlEdgeTop, excel::xlEdgeBottom, excel::xlEdgeRight})
                state += " | " + LineOf(cell->Borders(edge));
            states.push_back(state);
        }
    }
    return states;
}

// The line of that edge of each cell of the range, in reading order.
inline std::vector<std::string> EdgesOf(const std::shared_ptr<excel::Range>& range, int32_t edge) {
    std::vector<std::string> lines;
    for (int32_t row = 1; row <= range->Rows()->Count(); ++row)
        for (int32_t column = 1; column <= range->Columns()->Count(); ++column)
            lines.push_back(LineOf(range->Cells(row, column)->Borders(edge)));
    return lines;
}

// Runs the call and checks that it fails with exactly this code and text, leaving every cell of the
// range as it was.
template <class Call>
void ExpectRefusalLeavesCells(const std::shared_ptr<excel::Range>& cells, Call&& call, int32_t code,
                              const std::string& text) {
    const auto before = CellStatesOf(cells);
    ExpectAutomationError(std::forward<Call>(call), code, text);
    EXPECT_EQ(CellStatesOf(cells), before);
}
