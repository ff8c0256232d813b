// The boundary's tests in this program must reach the engine through automation, not in-process.

#include "embedded/test_application.hpp"
#include "excel/com/dispatch_caller.hpp"

#include <excel/excel.hpp>

#include <gtest/gtest.h>

TEST(ThroughAutomation, EveryCallOfTheTestsIsAnInvokeOnTheEnginesAutomationObject) {
    const uint64_t before = excel::com::DispatchCaller::InvokeCount();
    const auto app = TestApplication();
    const auto sheet = app->Workbooks()->Add()->Worksheets(1);
    sheet->Range("A1")->SetValue(excel::Variant(7.0));
    EXPECT_EQ(sheet->Range("A1")->Value(), excel::Variant(7.0));
    // Workbooks, Add, Worksheets, Range and SetValue, then Range and Value.
    EXPECT_EQ(excel::com::DispatchCaller::InvokeCount() - before, 7u);
}
