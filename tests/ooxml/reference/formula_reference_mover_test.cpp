#include "ooxml/reference/formula_reference_mover.hpp"

#include <gtest/gtest.h>

#include <cctype>
#include <string>

namespace {

using ooxml::CellBlock;

bool SameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
           });
}

// Whole rows inserted (count > 0) or deleted (count < 0) at row `at` of the sheet "Data".
ooxml::SheetCellMove RowsMoved(uint32_t at, int32_t count, bool onData) {
    ooxml::SheetCellMove move;
    move.onMovedSheet = onData;
    move.isMovedSheet = [](std::string_view name) { return SameName(name, "Data"); };
    move.move = [=](const CellBlock& block) -> std::optional<CellBlock> {
        if (block.firstRow == 1 && block.lastRow == ooxml::MaxRowIndex) {
            return block;
        }
        const auto moved = [&](uint32_t row) -> int64_t {
            if (row < at) {
                return row;
            }
            return count > 0 ? row + count : (row < at - count ? -1 : static_cast<int64_t>(row) + count);
        };
        CellBlock result = block;
        const int64_t first = moved(block.firstRow);
        const int64_t last = moved(block.lastRow);
        if (count < 0) {
            if (first < 0 && last < 0) {
                return std::nullopt;
            }
            result.firstRow = static_cast<uint32_t>(first < 0 ? at : first);
            result.lastRow = static_cast<uint32_t>(last < 0 ? at - 1 : last);
            return result;
        }
        result.firstRow = static_cast<uint32_t>(first);
        result.lastRow = static_cast<uint32_t>(last);
        return result;
    };
    return move;
}

TEST(FormulaReferenceMover, ReferencesFollowInsertedRows) {
    EXPECT_EQ(ooxml::MoveFormulaReferences("SUM(B2:B9)+B1", RowsMoved(5, 1, true)), "SUM(B2:B10)+B1");
    EXPECT_EQ(ooxml::MoveFormulaReferences("SUM($B$2:B9)*C$5", RowsMoved(1, 2, true)), "SUM($B$4:B11)*C$7");
    EXPECT_EQ(ooxml::MoveFormulaReferences("COUNT(3:5)+SUM(B:C)", RowsMoved(4, 1, true)), "COUNT(3:6)+SUM(B:C)");
}

TEST(FormulaReferenceMover, OnlyReferencesToTheMovedSheetMove) {
    // On another sheet: its own cells stay, those named by the moved sheet's name move.
    EXPECT_EQ(ooxml::MoveFormulaReferences("A5+data!A5+'Data'!A5+Other!A5", RowsMoved(1, 1, false)),
              "A5+data!A6+'Data'!A6+Other!A5");
    // Ranges of sheets and other workbooks' sheets are not this sheet.
    EXPECT_EQ(ooxml::MoveFormulaReferences("SUM(Data:Other!A5)+[1]Data!A5", RowsMoved(1, 1, true)),
              "SUM(Data:Other!A5)+[1]Data!A5");
}

TEST(FormulaReferenceMover, DeletedCellsLeaveRefErrors) {
    EXPECT_EQ(ooxml::MoveFormulaReferences("A2+Data!A3+SUM(A1:A4)", RowsMoved(2, -2, true)),
              "#REF!+Data!#REF!+SUM(A1:A2)");
    EXPECT_EQ(ooxml::MoveFormulaReferences("A5", RowsMoved(2, -2, true)), "A3");
}

TEST(FormulaReferenceMover, ADeletedSheetLeavesRefErrorsInItsPlace) {
    const auto isData = [](std::string_view name) { return SameName(name, "Data"); };
    EXPECT_EQ(ooxml::WithoutSheetReferences("Data!B2+'DATA'!C3:D4+Other!C3+B2", isData),
              "#REF!B2+#REF!C3:D4+Other!C3+B2");
}

TEST(FormulaReferenceMover, ARenamedSheetIsNamedAnew) {
    const auto isData = [](std::string_view name) { return SameName(name, "Data"); };
    EXPECT_EQ(ooxml::RenameSheetReferences("Data!B2+'data'!$C$3:D4+Other!C3+B2+[1]Data!A1", isData, "'Q1 2024'"),
              "'Q1 2024'!B2+'Q1 2024'!$C$3:D4+Other!C3+B2+[1]Data!A1");
}

}  // namespace
