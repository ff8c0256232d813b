#include "report_fixture.hpp"

#include "support/support_services.hpp"
#include "support/unit_testing_mode.hpp"

#include <array>
#include <atomic>
#include <barrier>
#include <thread>

namespace {

// Leaves the flag off for the next test, whatever this one did.
class UnitTestingModeTest : public ReportTest {
protected:
    void TearDown() override { reporting.SetUnitTestingMode(false); }
};

}  // namespace

TEST_F(UnitTestingModeTest, IsOffAtFirst) {
    EXPECT_FALSE(reporting.UnitTestingMode());
}

TEST_F(UnitTestingModeTest, SwitchingItThroughOneEntryObjectSwitchesItForAll) {
    vos::VosExcelReporting other;
    reporting.SetUnitTestingMode(true);
    EXPECT_TRUE(other.UnitTestingMode());
    EXPECT_TRUE(vos::IsUnitTestingModeOn());
    other.SetUnitTestingMode(false);
    EXPECT_FALSE(reporting.UnitTestingMode());
}

TEST_F(UnitTestingModeTest, EachThreadHasItsOwnFlag) {
    reporting.SetUnitTestingMode(true);
    bool seenOnNewThread = true;
    std::thread([&] { seenOnNewThread = vos::VosExcelReporting().UnitTestingMode(); }).join();
    EXPECT_FALSE(seenOnNewThread);
    EXPECT_TRUE(reporting.UnitTestingMode());
}

TEST_F(UnitTestingModeTest, TwoThreadsBuildTwoWorkbooksAtOnceEachWithItsOwnMode) {
    // Both threads switch their mode, then wait for each other before reading it back, so the
    // two flags, and the two threads' support services, are live at the same time.
    std::barrier bothSwitched(2);
    std::atomic<int> failures{0};
    std::array<const vos::SupportServices*, 2> supportInstances{};
    const vos::SupportServices* mainInstance = &vos::Support();
    auto build = [&](bool mode, const std::string& identifier) {
        try {
            supportInstances[mode ? 0 : 1] = &vos::Support();
            vos::VosExcelReporting entry;
            entry.SetUnitTestingMode(mode);
            auto application = excel::embedded::CreateApplication();
            auto report = entry.NewReportWorkbook(application, identifier);
            auto sheet = report->NewReportWorksheet("Data");
            bothSwitched.arrive_and_wait();
            sheet->AddSeparatorRows(3);
            if (entry.UnitTestingMode() != mode || sheet->CurrentCell()->Address() != "$A$4" ||
                !entry.WorksheetHasCreationTag(sheet->ExcelWorksheet(), identifier) ||
                entry.WorksheetHasCreationTag(sheet->ExcelWorksheet(), identifier == "First" ? "Second" : "First"))
                ++failures;
        } catch (const std::exception&) {
            ++failures;
        }
    };
    std::thread first(build, true, "First");
    std::thread second(build, false, "Second");
    first.join();
    second.join();
    EXPECT_EQ(failures.load(), 0);
    EXPECT_NE(supportInstances[0], supportInstances[1]);
    EXPECT_NE(supportInstances[0], mainInstance);
    EXPECT_NE(supportInstances[1], mainInstance);
    EXPECT_FALSE(reporting.UnitTestingMode());
}
