#pragma once

#include "failure_report.hpp"

#include <excel/embedded.hpp>
#include <vos/reporting.hpp>

#include <filesystem>
#include <iostream>
#include <string>

namespace conformance {

// The command line of a report writer: "write FILE" makes the workbook through the report library,
// "check FILE" opens the saved file with the engine and checks what the library wrote. The steps
// run apart so that a failed check does not keep the file from the other checkers.
template <class Write, class Check>
int RunReportWriter(int argc, char** argv, Write&& write, Check&& check) {
    const std::string step = argc == 3 ? argv[1] : "";
    if (step != "write" && step != "check") {
        std::cerr << "usage: " << argv[0] << " write|check FILE.xlsx\n";
        return 2;
    }
    return RunReportingFailure([&] {
        const std::filesystem::path file = std::filesystem::absolute(argv[2]);
        vos::VosExcelReporting reporting;
        auto app = excel::embedded::CreateApplication();
        if (step == "check") {
            check(reporting, *app, file);
            return;
        }
        std::filesystem::create_directories(file.parent_path());
        write(reporting, app, file);
        std::cout << "wrote " << file.string() << '\n';
    });
}

// Opens the saved file and checks it with checkWorkbook(failures, book), saves it again as
// FILE.resaved.xlsx beside it and checks that file the same way: what the engine opened it must
// write again unchanged.
template <class CheckWorkbook>
void CheckReopenedAndResaved(excel::Application& app, const std::filesystem::path& file,
                             CheckWorkbook&& checkWorkbook) {
    Failures failures;
    std::filesystem::path resaved = file;
    resaved.replace_extension(".resaved.xlsx");
    {
        auto book = app.Workbooks()->Open(file.string());
        checkWorkbook(failures, *book);
        book->SaveAs(resaved.string());
        book->Close(false);
    }
    auto again = app.Workbooks()->Open(resaved.string());
    checkWorkbook(failures, *again);
    again->Close(false);
    failures.ThrowIfAny();
}

}  // namespace conformance
