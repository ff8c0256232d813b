// A program outside the repository, built against an installed VosExcelReporting: it writes a report
// workbook with one sheet and a header block to the path it is given.

#include <excel/embedded.hpp>
#include <excel/workbook.hpp>
#include <vos/reporting.hpp>

#include <iostream>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: " << argv[0] << " WORKBOOK.xlsx\n";
        return 2;
    }
    auto app = excel::embedded::CreateApplication();
    vos::VosExcelReporting reporting;
    auto report = reporting.NewReportWorkbook(app, "PackageConsumer");
    auto sheet = report->NewReportWorksheet("Results");
    sheet->AddHeader("Package consumer", std::vector<std::string>{"Library\tVosExcelReporting"});
    report->ExcelWorkbook()->SaveAs(argv[1]);
    return 0;
}
