#include "failure_report.hpp"
#include "sample_workbooks.hpp"

#include <excel/embedded.hpp>

#include <filesystem>
#include <iostream>

// Writes the conformance sample workbooks into the folder given as the only argument.
int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: " << argv[0] << " OUTPUT_DIR\n";
        return 2;
    }
    return conformance::RunReportingFailure([&] {
        const std::filesystem::path folder = std::filesystem::absolute(argv[1]);
        std::filesystem::create_directories(folder);
        auto app = excel::embedded::CreateApplication();
        conformance::WriteCellValuesWorkbook(*app, folder / "cell_values.xlsx");
        conformance::WriteFormattingWorkbook(*app, folder / "formatting.xlsx");
        conformance::WriteLayoutWorkbook(*app, folder / "layout.xlsx");
        std::cout << "wrote the sample workbooks to " << folder.string() << '\n';
    });
}
