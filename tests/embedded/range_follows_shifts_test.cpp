#include "engine_fixture.hpp"

using namespace excel;

TEST_F(EngineTest, NameOverAWholeColumnStaysWholeWhenRowsAreInserted) {
    book->Names()->Add("Column", "=Sheet1!$B:$B");
    sheet->Rows(1)->Insert();
    EXPECT_EQ(book->Names()->Item("Column")->RefersTo(), "=Sheet1!$B:$B");
}
