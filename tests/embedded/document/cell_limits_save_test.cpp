// The longest text and formula Excel lets a cell hold, a quoted sheet name with parentheses, and an
// unclosed formula kept as text by a text-formatted cell save into a file the checkers pass.

#include "embedded/document/save_open_fixture.hpp"

#include <string>

namespace {

class CellLimitsSaveTest : public SaveOpenTest {};

TEST_F(CellLimitsSaveTest, WhatTheLimitsLetThroughSavesIntoAFileTheCheckersPass) {
    At("A1")->SetValue(std::string(32767, 'x'));
    At("A2")->SetFormula("=" + std::string(8190, '1') + "+1");
    At("A3")->SetFormula("='It''s (1)'!A1");
    At("A4")->SetNumberFormat("@");
    At("A4")->SetValue("=SUM(1,2");
    book->SaveAs(PathOf("limits.xlsx"));
    EXPECT_EQ(RunTool("check-xlsx", PathOf("limits.xlsx")), 0);
    EXPECT_EQ(RunTool("validate-xlsx", PathOf("limits.xlsx")), 0);
    auto reopened = app->Workbooks()->Open(PathOf("limits.xlsx"));
    EXPECT_EQ(reopened->Worksheets(1)->Range("A1")->Value().ToString().size(), 32767u);
    EXPECT_EQ(reopened->Worksheets(1)->Range("A3")->Formula(), excel::Variant("='It''s (1)'!A1"));
    EXPECT_EQ(reopened->Worksheets(1)->Range("A4")->Value(), excel::Variant("=SUM(1,2"));
}

}  // namespace
