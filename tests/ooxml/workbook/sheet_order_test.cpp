#include "ooxml/workbook/sheet_order.hpp"

#include <gtest/gtest.h>

namespace ooxml {
namespace {

WorkbookDocument WithSheets(std::size_t worksheets, std::vector<uint32_t> carriedPositions) {
    WorkbookDocument document;
    document.sheets.resize(worksheets);
    auto carried = std::make_shared<CarriedWorkbook>();
    for (uint32_t position : carriedPositions) {
        carried->sheets.push_back({"Chart", "visible", position, {}});
    }
    document.carried = carried;
    return document;
}

std::string Order(const SheetOrder& order) {
    std::string text;
    for (const SheetOrder::Entry& entry : order.entries) {
        text += (entry.carried ? "c" : "w") + std::to_string(entry.index) + " ";
    }
    return text;
}

TEST(SheetOrder, CarriedSheetsReturnToTheirPositions) {
    const SheetOrder order = OrderSheets(WithSheets(3, {3, 0, 2}));
    EXPECT_EQ(Order(order), "c1 w0 c2 c0 w1 w2 ");
    EXPECT_EQ(order.worksheetPositions, (std::vector<uint32_t>{1, 4, 5}));
    EXPECT_EQ(order.carriedPositions, (std::vector<uint32_t>{3, 0, 2}));
}

TEST(SheetOrder, CarriedSheetsFollowTheLastWorksheetWhenSheetsWereDeleted) {
    const SheetOrder order = OrderSheets(WithSheets(1, {4}));
    EXPECT_EQ(Order(order), "w0 c0 ");
}

TEST(SheetOrder, AWorkbookWithoutCarriedSheetsListsItsWorksheets) {
    WorkbookDocument document;
    document.sheets.resize(2);
    EXPECT_EQ(Order(OrderSheets(document)), "w0 w1 ");
}

}  // namespace
}  // namespace ooxml
