#include "ooxml/reference/formula_reference_mover.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

namespace {

using ooxml::CellBlock;
using ooxml::SheetChange;

std::function<bool(std::string_view)> Named(std::string name) {
    return [name = std::move(name)](std::string_view other) {
        return other.size() == name.size() && std::equal(other.begin(), other.end(), name.begin(), [](char x, char y) {
                   return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
               });
    };
}

// Whole rows inserted (count > 0) or deleted (count < 0) at row `at`.
ooxml::CellBlockMove RowsMoved(uint32_t at, int32_t count) {
    return [=](const CellBlock& block) -> std::optional<CellBlock> {
        if (block.firstRow == 1 && block.lastRow == ooxml::MaxRowIndex) {
            return block;
        }
        CellBlock result = block;
        if (count > 0) {
            result.firstRow += block.firstRow >= at ? count : 0;
            result.lastRow += block.lastRow >= at ? count : 0;
            return result;
        }
        const uint32_t end = at - count;  // the first row after the deleted ones
        if (block.firstRow >= at && block.lastRow < end) {
            return std::nullopt;
        }
        const auto moved = [&](uint32_t row, uint32_t inside) {
            return row < at ? row : row >= end ? row + count : inside;
        };
        result.firstRow = moved(block.firstRow, at);
        result.lastRow = moved(block.lastRow, at - 1);
        return result;
    };
}

SheetChange Moved(std::string name, ooxml::CellBlockMove move) {
    SheetChange change;
    change.isSheet = Named(std::move(name));
    change.move = std::move(move);
    return change;
}

std::string Changed(std::string_view formula, const std::vector<SheetChange>& changes, const SheetChange* own) {
    return ooxml::ChangeSheetReferences(formula, changes, own);
}

TEST(FormulaReferenceMover, ReferencesFollowInsertedRows) {
    const std::vector<SheetChange> data{Moved("Data", RowsMoved(5, 1))};
    EXPECT_EQ(Changed("SUM(B2:B9)+B1", data, &data[0]), "SUM(B2:B10)+B1");
    const std::vector<SheetChange> top{Moved("Data", RowsMoved(1, 2))};
    EXPECT_EQ(Changed("SUM($B$2:B9)*C$5", top, &top[0]), "SUM($B$4:B11)*C$7");
    EXPECT_EQ(Changed("COUNT(3:5)+SUM(B:C)", data, &data[0]), "COUNT(3:6)+SUM(B:C)");
}

TEST(FormulaReferenceMover, OnlyReferencesToTheChangedSheetMove) {
    const std::vector<SheetChange> data{Moved("Data", RowsMoved(1, 1))};
    // On another sheet: its own cells stay, those named by the moved sheet's name move.
    EXPECT_EQ(Changed("A5+data!A5+'Data'!A5+Other!A5", data, nullptr), "A5+data!A6+'Data'!A6+Other!A5");
    // Ranges of sheets and other workbooks' sheets are not this sheet.
    EXPECT_EQ(Changed("SUM(Data:Other!A5)+[1]Data!A5", data, &data[0]), "SUM(Data:Other!A5)+[1]Data!A5");
}

TEST(FormulaReferenceMover, DeletedCellsLeaveRefErrors) {
    const std::vector<SheetChange> data{Moved("Data", RowsMoved(2, -2))};
    EXPECT_EQ(Changed("A2+Data!A3+SUM(A1:A4)+A5", data, &data[0]), "#REF!+Data!#REF!+SUM(A1:A2)+A3");
}

TEST(FormulaReferenceMover, ARenamedSheetIsNamedAnew) {
    SheetChange renamed;
    renamed.isSheet = Named("Data");
    renamed.prefix = "'Q1 2024'";
    EXPECT_EQ(Changed("Data!B2+'data'!$C$3:D4+Other!C3+B2+[1]Data!A1", {renamed}, nullptr),
              "'Q1 2024'!B2+'Q1 2024'!$C$3:D4+Other!C3+B2+[1]Data!A1");
}

TEST(FormulaReferenceMover, ADeletedSheetLeavesRefErrorsInItsPlace) {
    SheetChange deleted;
    deleted.isSheet = Named("Data");
    deleted.deleted = true;
    EXPECT_EQ(Changed("Data!B2+'DATA'!C3:D4+Other!C3+B2", {deleted}, nullptr), "#REF!B2+#REF!C3:D4+Other!C3+B2");
}

TEST(FormulaReferenceMover, SheetsThatSwappedNamesAndMovedChangeInOnePass) {
    SheetChange first = Moved("A", RowsMoved(1, 1));
    first.prefix = "B";
    SheetChange second;
    second.isSheet = Named("B");
    second.prefix = "A";
    EXPECT_EQ(Changed("A!C3+B!C3+C3", {first, second}, &first), "B!C4+A!C3+C4");
}

}  // namespace
