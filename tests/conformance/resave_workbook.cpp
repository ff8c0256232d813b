#include "failure_report.hpp"

#include <excel/embedded.hpp>
#include <excel/excel.hpp>

#include <filesystem>
#include <iostream>

// Opens a workbook with the embedded engine and saves it under another name, unchanged.
int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: " << argv[0] << " SOURCE.xlsx TARGET.xlsx\n";
        return 2;
    }
    return conformance::RunReportingFailure([&] {
        auto app = excel::embedded::CreateApplication();
        auto book = app->Workbooks()->Open(std::filesystem::absolute(argv[1]).string());
        book->SaveAs(std::filesystem::absolute(argv[2]).string());
        book->Close(false);
    });
}
