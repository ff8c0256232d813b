#include "report_fixture.hpp"

#include "support/library_error.hpp"
#include "support/support_services.hpp"

#include <thread>

namespace {

struct ThreadObservation {
    bool existedBefore = true;
    bool existsAfter = false;
    const vos::SupportServices* instance = nullptr;
    const vos::SupportServices* secondCall = nullptr;
};

// What a fresh thread sees: no instance until its first service call raises an error, then the
// same instance on every call.
ThreadObservation ObserveFreshThread() {
    ThreadObservation seen;
    std::thread thread([&seen] {
        seen.existedBefore = vos::SupportServices::InstanceExists();
        try {
            vos::RaiseLibraryError(vos::error_code::EmptyArgument, "name");
        } catch (const excel::AutomationError&) {
        }
        seen.existsAfter = vos::SupportServices::InstanceExists();
        seen.instance = &vos::Support();
        seen.secondCall = &vos::SupportServices::Instance();
    });
    thread.join();
    return seen;
}

}  // namespace

TEST(SupportServices, TheFirstCallOnAThreadCreatesTheInstance) {
    const ThreadObservation seen = ObserveFreshThread();
    EXPECT_FALSE(seen.existedBefore);
    EXPECT_TRUE(seen.existsAfter);
    EXPECT_EQ(seen.instance, seen.secondCall);
}

TEST(SupportServices, LaterCallsFromAnyClassReachTheSameInstance) {
    vos::VosExcelReporting reporting;
    auto app = excel::embedded::CreateApplication();
    auto sheet = reporting.NewReportWorkbook(app, "MyApp")->NewReportWorksheet("Data");
    const vos::SupportServices* afterWorkbook = &vos::Support();
    try {
        sheet->AddSeparatorRows(0);
    } catch (const excel::AutomationError&) {
    }
    EXPECT_EQ(&vos::Support(), afterWorkbook);
    EXPECT_EQ(&vos::SupportServices::Instance(), afterWorkbook);
}

TEST(SupportServices, EachThreadHasItsOwnInstance) {
    const vos::SupportServices* mine = &vos::Support();
    const ThreadObservation other = ObserveFreshThread();
    EXPECT_NE(other.instance, mine);
    EXPECT_EQ(&vos::Support(), mine);
}

TEST(SupportServices, TheErrorRaiserThrowsTheCodeAndTextAsGiven) {
    ExpectAutomationError([] { vos::Support().Errors().Raise(static_cast<int32_t>(0x80040001), "Some sentence."); },
                          static_cast<int32_t>(0x80040001), "Some sentence.");
}
