// Writes report sheets with header blocks in both forms and commented cells through the report
// library; or opens the saved file, checks that the header text box and the comments came back
// with their texts and formatting, saves it again and checks the second file the same way.
//
// Usage: report_header_writer write|check FILE.xlsx
//        (check also writes FILE.resaved.xlsx beside FILE)

#include "report_writer_main.hpp"

#include <excel/embedded.hpp>
#include <vos/reporting.hpp>

#include <filesystem>
#include <iostream>
#include <string>

namespace {

const std::string kApplication = "MyApp";
const std::string kTitle = "Risk Analysis Report";
const excel::Variant kHeaderLines = std::vector<std::string>{"Model\tRisk A", "  Runs \t1000"};
const std::string kBoxText = "Risk Analysis Report\n Performed By: UnitTester\n Date: <<Date>> <<Time>>"
                             "\n Model Risk A\n Runs 1000 ";
constexpr int32_t kNavy = 0x800000;
constexpr int32_t kWhite = 0xFFFFFF;

// Sheets: "Cells" (header in cells, themes off, commented cells), "Box" (header text box),
// "Themed" (header in cells with theme colours), "Rapport" (French labels, both forms).
void WriteHeaderWorkbook(vos::VosExcelReporting& reporting, const std::shared_ptr<excel::Application>& app,
                         const std::filesystem::path& file) {
    reporting.SetUnitTestingMode(true);
    auto report = reporting.NewReportWorkbook(app, kApplication);

    auto cells = report->NewReportWorksheet("Cells");
    cells->AddHeaderRange(kTitle, kHeaderLines);
    cells->AddSeparatorRows(1);
    auto reviewed = cells->CurrentCell();
    reviewed->SetValue(1284);
    cells->AddComment(reviewed, "Reviewer", "Check the inputs.");
    auto noted = reviewed->Offset(0, 1);
    noted->SetValue("noted");
    reporting.AddComment(noted, "  Note ", " Second line of the note. ");

    auto box = report->NewReportWorksheet("Box");
    box->AddHeader(kTitle, kHeaderLines);
    box->CurrentCell()->SetValue("below the header");

    report->SetUseThemes(true);
    auto themed = report->NewReportWorksheet("Themed");
    themed->AddHeaderRange(kTitle, kHeaderLines);

    auto french = reporting.NewReportWorkbook(app, kApplication, report->ExcelWorkbook(), false, 12);
    auto rapport = french->NewReportWorksheet("Rapport");
    rapport->AddHeaderRange("Rapport d'analyse", excel::Variant(std::vector<std::string>{}));
    rapport->AddSeparatorRows(1);
    rapport->AddHeader("Rapport d'analyse", excel::Variant(std::vector<std::string>{}));

    auto book = report->ExcelWorkbook();
    book->SaveAs(file.string());
    book->Close(false);
}

void CheckComment(conformance::Failures& failures, excel::Worksheet& sheet, const std::string& address,
                  const std::string& header, const std::string& text) {
    const std::string where = sheet.Name() + "!" + address;
    const auto comment = sheet.Range(address)->Comment();
    failures.Expect(comment != nullptr, where + " has a comment");
    if (!comment)
        return;
    failures.Expect(comment->Text() == text, where + " comment text, found '" + comment->Text() + "'");
    failures.Expect(!comment->Visible(), where + " comment hidden");
    const auto shape = comment->Shape();
    failures.Expect(shape->Width() == 216 && shape->Height() == 90, where + " comment 216 x 90 points");
    failures.Expect(shape->Fill()->ForeColor()->RGB() == kWhite, where + " comment white");
    failures.Expect(shape->Line()->ForeColor()->RGB() == kNavy, where + " comment outline navy");
    failures.Expect(shape->Line()->Weight() == 2.5, where + " comment outline 2.5 points");
    const auto headerFont = shape->TextFrame()->Characters(1, static_cast<int32_t>(header.size()))->Font();
    failures.Expect(headerFont->Bold().ToBool() && headerFont->Underline().ToInt() == excel::xlUnderlineStyleSingle,
                    where + " comment header bold and underlined");
    const auto mainFont = shape->TextFrame()->Characters(static_cast<int32_t>(header.size()) + 2, 4)->Font();
    failures.Expect(!mainFont->Bold().ToBool(), where + " comment main text not bold");
}

void CheckHeaderBox(conformance::Failures& failures, excel::Worksheet& sheet) {
    const auto shapes = sheet.Shapes();
    failures.Expect(shapes->Count() == 1, "Box has one shape, found " + std::to_string(shapes->Count()));
    if (shapes->Count() != 1)
        return;
    const auto box = shapes->Item(1);
    const auto frame = box->TextFrame();
    failures.Expect(frame->Characters()->Text() == kBoxText, "header box text, found '" + frame->Characters()->Text() + "'");
    const auto title = frame->Characters(1, static_cast<int32_t>(kTitle.size()))->Font();
    failures.Expect(title->Size().ToDouble() == 12 && title->Bold().ToBool() &&
                        title->Underline().ToInt() == excel::xlUnderlineStyleSingle,
                    "header box title 12 points, bold, underlined");
    const auto label = frame->Characters(static_cast<int32_t>(kTitle.size()) + 3, 13)->Font();
    failures.Expect(label->Size().ToDouble() == 8 && label->Bold().ToBool() &&
                        label->Underline().ToInt() == excel::xlUnderlineStyleNone,
                    "header box label 8 points, bold, not underlined");
    failures.Expect(box->Width() == 428, "header box 428 points wide");
    failures.Expect(box->Placement() == excel::xlMove, "header box moves with cells but is not sized");
    failures.Expect(box->Line()->ForeColor()->RGB() == 0 && box->Line()->Weight() == 1.5,
                    "header box black 1.5-point outline");
    failures.Expect(frame->MarginLeft() == 7 && frame->MarginTop() == 7, "header box margins 7 points");
    failures.Expect(box->TextFrame2()->WordWrap() == excel::msoFalse, "header box does not wrap");
    const auto bottom = box->BottomRightCell();
    failures.Expect(box->Top() + box->Height() == bottom->Top() + bottom->Height() - 0.5,
                    "header box ends half a point above its last row's bottom");
    failures.Expect(sheet.Cells(bottom->Row() + 1, 1)->Value().ToString() == "below the header",
                    "the next element stands on the row after the header box");
}

void CheckWorkbook(conformance::Failures& failures, excel::Workbook& book) {
    auto cells = book.Worksheets("Cells");
    CheckComment(failures, *cells, "A7", "Reviewer", "Reviewer\nCheck the inputs.");
    CheckComment(failures, *cells, "B7", "Note", "Note\nSecond line of the note.");
    failures.Expect(cells->Shapes()->Count() == 2, "Cells lists its two comment shapes");
    CheckHeaderBox(failures, *book.Worksheets("Box"));
    failures.Expect(book.Worksheets("Rapport")->Shapes()->Count() == 1, "Rapport has its header box");
}

void CheckAfterReopening(vos::VosExcelReporting&, excel::Application& app, const std::filesystem::path& file) {
    conformance::CheckReopenedAndResaved(app, file, CheckWorkbook);
}

}  // namespace

int main(int argc, char** argv) {
    return conformance::RunReportWriter(argc, argv, WriteHeaderWorkbook, CheckAfterReopening);
}
