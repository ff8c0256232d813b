// Through automation every call is a round trip, so the report library writes a table column with a
// number of calls that does not grow with its rows: one Range.Value of the whole column.

#include "embedded/test_application.hpp"
#include "excel/com/dispatch_caller.hpp"

#include <excel/excel.hpp>
#include <vos/reporting.hpp>

#include <gtest/gtest.h>

#include <vector>

namespace {

// The Invoke calls one WriteDataToColumn makes on a table of the given rows.
uint64_t InvokesToWriteAColumn(int32_t rows) {
    vos::VosExcelReporting reporting;
    const auto report = reporting.NewReportWorkbook(TestApplication(), "InvokeCount");
    const auto table = report->NewReportWorksheet("Table")->AddTable(rows, 2, 1, 1, "Title", "Subtitle");
    const std::vector<double> values(static_cast<size_t>(rows), 1.5);
    const uint64_t before = excel::com::DispatchCaller::InvokeCount();
    table->WriteDataToColumn(2, excel::Variant(values));
    const uint64_t invokes = excel::com::DispatchCaller::InvokeCount() - before;
    EXPECT_EQ(table->InteriorRange()->Cells(rows, 2)->Value(), excel::Variant(1.5));
    return invokes;
}

TEST(ThroughAutomation, WritingATableColumnTakesAsManyCallsForTenThousandRowsAsForTen) {
    const uint64_t few = InvokesToWriteAColumn(10);
    EXPECT_GT(few, 0u);
    EXPECT_LE(few, 10u);
    EXPECT_EQ(InvokesToWriteAColumn(10000), few);
}

}  // namespace
