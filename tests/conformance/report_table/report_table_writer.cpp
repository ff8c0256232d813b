// Writes report tables through the library: tables with and without titles, a summary over paired
// captions, merged and single header items, index numbers, data columns, configured columns (a
// "[LOCAL]" number format among them), comments and divider lines, plainly and with theme colours,
// in English and in Chinese; or opens the saved file and checks what the library wrote.
//
// Usage: report_table_writer write|check FILE.xlsx

#include "report_writer_main.hpp"

#include <excel/embedded.hpp>
#include <vos/reporting.hpp>

#include <filesystem>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace {

const std::string kApplication = "MyApp";
constexpr int32_t kKeep = -12345;
constexpr int16_t kRed = 3;
constexpr int32_t kSilverIndex = 15;

excel::Variant Texts(const std::vector<std::string>& texts) {
    return excel::Variant(texts);
}

excel::Variant Numbers(const std::vector<double>& numbers) {
    return excel::Variant(numbers);
}

// Plain sheet, table at A1:D4: no titles, index numbers and a caption on the top header, labels
// down the left header, three data columns configured in width, alignment, format and wrapping.
void WriteTableWithoutTitles(vos::VosExcelReportWorksheet& sheet) {
    auto table = sheet.AddTable(3, 3, 1, 1);
    table->WriteHeaderIndexNumbers(vos::VosTopHeader);
    table->WriteHeaderArray(vos::VosLeftHeader, 1, Texts({"North", "South", "West"}));
    table->WriteDataToColumn(1, Numbers({1, 2, 3}));
    table->WriteDataToColumn(2, Numbers({0.125, 0.5, 0.75}));
    table->WriteDataToColumn(3, Texts({"first note", "second note", "a note long enough to wrap in its cell"}));
    table->ConfigureColumn(1, "", excel::xlRight, kKeep, 12, "#,##0");
    table->ConfigureColumn(2, "", kKeep, kKeep, -1, "0.0%");
    table->ConfigureColumn(3, "Notes", excel::xlLeft, excel::xlCenter, 30, "", true);
}

// Plain sheet, table at A6:E12: two titles, a summary over three header rows, paired captions, a
// single item and a caption, a "[LOCAL]" format, a row divider and a column divider run on
// through the headers.
void WriteTableWithSummary(vos::VosExcelReportWorksheet& sheet) {
    auto table = sheet.AddTable(2, 4, 3, 1, "Loss summary", "Two years, in USD");
    table->WriteHeaderSummary(vos::VosTopHeader, "Modelled losses");
    table->WriteHeaderPairedItem(vos::VosTopHeader, 1, "Loss", "USD");
    table->WriteHeaderPairedItem(vos::VosTopHeader, 2, "Gain", "EUR");
    table->WriteHeaderItem(vos::VosTopHeader, 3, "Count");
    table->SignatureRange()->Cells(3, 1)->SetValue("Year");
    table->WriteHeaderArray(vos::VosLeftHeader, 1, Texts({"2024", "2025"}));
    table->WriteDataToColumn(1, Numbers({1234567.5, 2345678.25}));
    table->WriteDataToColumn(2, Numbers({0.125, 0.5}));
    table->WriteDataToColumn(3, Numbers({3, 4}));
    table->WriteDataToColumn(4, Numbers({1234.5, 99.75}));
    table->ConfigureColumn(1, "", kKeep, kKeep, -1, "#,##0");
    table->ConfigureColumn(2, "", kKeep, kKeep, -1, "0.0%");
    table->ConfigureColumn(4, "Local", excel::xlRight, kKeep, -1, "[LOCAL]#,##0.00");
    table->AddRowDividerLine(1, true);
    table->AddColumnDividerLine(2, true);
}

// Plain sheet, table at A14:E18: a main title only, two header rows and two header columns, a
// merged item, a pair and an item on top, index numbers down the left, a shorter data column,
// comments on an interior cell, a top-header cell and the signature, and a custom divider.
void WriteTableWithComments(vos::VosExcelReportWorksheet& sheet) {
    auto table = sheet.AddTable(2, 3, 2, 2, "Merged and paired");
    table->WriteHeaderMergedItem(vos::VosTopHeader, 1, "Merged");
    table->WriteHeaderPairedItem(vos::VosTopHeader, 2, "Upper", "Lower");
    table->WriteHeaderItem(vos::VosTopHeader, 3, "Item");
    table->WriteHeaderIndexNumbers(vos::VosLeftHeader, 1, 0, "Row ");
    table->LeftHeaderRange()->Cells(1, 1)->SetValue("Group");
    table->WriteDataToColumn(1, Texts({"x", "y"}));
    table->WriteDataToColumn(2, Numbers({5, 6}));
    table->WriteDataToColumn(3, Numbers({7}), 2);
    table->AddComment(1, 1, "Reviewer", "Interior note.");
    table->AddComment(0, 2, "Header", "Top header note.");
    table->AddComment(0, 0, "Source", "Signature note.");
    table->AddCustomDivider(table->InteriorRange()->Rows(1)->Borders(excel::xlEdgeBottom), excel::xlDash,
                            excel::xlMedium, kRed);
}

// Plain sheet, table at A20:B22: a subtitle without a main title lands in the first header row.
void WriteTableWithSubtitleOnly(vos::VosExcelReportWorksheet& sheet) {
    auto table = sheet.AddTable(1, 2, 1, 0, "", "Subtitle only");
    table->WriteHeaderItem(vos::VosTopHeader, 2, "Second");
    table->WriteDataToColumn(1, Numbers({42}));
}

struct TitledTableTexts {
    std::string title;
    std::string subtitle;
    std::string upper;
    std::string unit;
    std::string count;
    std::vector<std::string> rows;
    std::string commentHeader;
    std::string commentText;
};

const TitledTableTexts kEnglishTexts{"Themed title", "Themed subtitle", "Loss",     "USD",
                                     "Count",        {"One", "Two"},    "Reviewer", "Checked."};
const TitledTableTexts kChineseTexts{"\u635f\u5931\u6c47\u603b",
                                     "\u6309\u5e74\u4efd",
                                     "\u635f\u5931",
                                     "\u7f8e\u5143",
                                     "\u6b21\u6570",
                                     {"2024 \u5e74", "2025 \u5e74"},
                                     "\u590d\u6838",
                                     "\u5df2\u6838\u5bf9\u3002"};

// A table at A1:C6 with both titles, a pair and a caption on two header rows, a red medium row
// divider (theme-coloured with themes) and a comment on the first data cell.
void WriteTitledTable(vos::VosExcelReportWorkbook& report, const std::string& sheetName,
                      const TitledTableTexts& texts) {
    auto sheet = report.NewReportWorksheet(sheetName);
    auto table = sheet->AddTable(2, 2, 2, 1, texts.title, texts.subtitle);
    table->WriteHeaderPairedItem(vos::VosTopHeader, 1, texts.upper, texts.unit);
    table->ConfigureColumn(2, texts.count, excel::xlRight, kKeep, -1, "#,##0");
    table->WriteHeaderArray(vos::VosLeftHeader, 1, Texts(texts.rows));
    table->WriteDataToColumn(1, Numbers({1500.5, 2500}));
    table->WriteDataToColumn(2, Numbers({12, 15}));
    table->AddRowDividerLine(1, true, excel::xlContinuous, excel::xlMedium, kRed);
    table->AddComment(1, 1, texts.commentHeader, texts.commentText);
}

// Sheets: "Plain" (four tables, fixed colours), "Themed" (theme colours), "Chinese" (language 4,
// fixed colours) and "Chinese themed" (language 4, theme colours).
void WriteTableWorkbook(vos::VosExcelReporting& reporting, const std::shared_ptr<excel::Application>& app,
                        const std::filesystem::path& file) {
    auto english = reporting.NewReportWorkbook(app, kApplication);
    auto plain = english->NewReportWorksheet("Plain");
    WriteTableWithoutTitles(*plain);
    plain->AddSeparatorRows(1);
    WriteTableWithSummary(*plain);
    plain->AddSeparatorRows(1);
    WriteTableWithComments(*plain);
    plain->AddSeparatorRows(1);
    WriteTableWithSubtitleOnly(*plain);

    english->SetUseThemes(true);
    WriteTitledTable(*english, "Themed", kEnglishTexts);

    auto chinese = reporting.NewReportWorkbook(app, kApplication, english->ExcelWorkbook(), false, 4);
    WriteTitledTable(*chinese, "Chinese", kChineseTexts);
    chinese->SetUseThemes(true);
    WriteTitledTable(*chinese, "Chinese themed", kChineseTexts);

    auto book = english->ExcelWorkbook();
    book->SaveAs(file.string());
    book->Close(false);
}

// Expectations on the cells of one sheet, named by address.
class SheetExpectations {
public:
    SheetExpectations(conformance::Failures& failures, std::shared_ptr<excel::Worksheet> sheet)
        : failures_(failures), sheet_(std::move(sheet)) {}

    void Value(const std::string& address, const std::string& expected) {
        const std::string found = Cell(address)->Value().ToString();
        Expect(found == expected, address + " value '" + expected + "', found '" + found + "'");
    }

    // Values by address, as text.
    void Values(std::initializer_list<std::pair<const char*, const char*>> expected) {
        for (const auto& [address, value] : expected)
            Value(address, value);
    }

    void Merged(const std::string& address, const std::string& area) {
        const std::string found = Cell(address)->MergeArea()->Address(false, false);
        Expect(found == area, address + " merged over " + area + ", found " + found);
    }

    void NumberFormat(const std::string& address, const std::string& format) {
        const std::string found = Cell(address)->NumberFormat().ToString();
        Expect(found == format, address + " number format '" + format + "', found '" + found + "'");
    }

    void Font(const std::string& address, double size, bool bold) {
        const auto font = Cell(address)->Font();
        Expect(font->Size().ToDouble() == size && font->Bold().ToBool() == bold,
               address + " font " + std::to_string(size) + (bold ? " bold" : " regular"));
    }

    struct EdgeAt {
        const char* address;
        int32_t edge;
        int32_t weight;
    };

    // Lines of one colour.
    void Edges(std::initializer_list<EdgeAt> edges, int32_t colorIndex) {
        for (const auto& [address, edge, weight] : edges)
            Edge(address, edge, weight, colorIndex);
    }

    void Edge(const std::string& address, int32_t edge, int32_t weight, int32_t colorIndex) {
        const auto border = Cell(address)->Borders(edge);
        Expect(border->LineStyle().ToInt() != excel::xlLineStyleNone && border->Weight().ToInt() == weight &&
                   border->ColorIndex().ToInt() == colorIndex,
               address + " edge " + std::to_string(edge) + " weight " + std::to_string(weight) + " colour index " +
                   std::to_string(colorIndex) + ", found weight " + border->Weight().ToString() + " index " +
                   border->ColorIndex().ToString());
    }

    void Fill(const std::string& address, int32_t colorIndex) {
        const std::string found = Cell(address)->Interior()->ColorIndex().ToString();
        Expect(found == std::to_string(colorIndex),
               address + " fill index " + std::to_string(colorIndex) + ", found " + found);
    }

    void Comment(const std::string& address, const std::string& text) {
        const auto comment = Cell(address)->Comment();
        Expect(comment && comment->Text() == text && !comment->Visible(),
               address + " hidden comment '" + text + "'" + (comment ? ", found '" + comment->Text() + "'" : ""));
    }

private:
    std::shared_ptr<excel::Range> Cell(const std::string& address) { return sheet_->Range(address); }
    void Expect(bool holds, const std::string& what) { failures_.Expect(holds, sheet_->Name() + "!" + what); }

    conformance::Failures& failures_;
    std::shared_ptr<excel::Worksheet> sheet_;
};

void CheckTableWithoutTitles(SheetExpectations& cells) {
    cells.Values({{"B1", "#1"},
                  {"C1", "#2"},
                  {"D1", "Notes"},
                  {"A2", "North"},
                  {"A4", "West"},
                  {"B2", "1"},
                  {"C3", "0.5"},
                  {"D2", "first note"}});
    cells.NumberFormat("B2", "#,##0");
    cells.NumberFormat("C4", "0.0%");
    cells.NumberFormat("D2", "General");
    cells.Edges({{"A1", excel::xlEdgeTop, excel::xlMedium},
                 {"D4", excel::xlEdgeRight, excel::xlMedium},
                 {"A1", excel::xlEdgeBottom, excel::xlThin},
                 {"C1", excel::xlEdgeBottom, excel::xlThin},
                 {"A3", excel::xlEdgeRight, excel::xlThin}},
                excel::xlColorIndexAutomatic);
    cells.Font("B1", 8, true);
    cells.Font("A2", 8, true);
    cells.Font("B2", 8, false);
}

void CheckTableWithSummary(SheetExpectations& cells) {
    cells.Values({{"A6", "Loss summary"},
                  {"A7", "Two years, in USD"},
                  {"B8", "Modelled losses"},
                  {"B9", "Loss"},
                  {"B10", "USD"},
                  {"C9", "Gain"},
                  {"C10", "EUR"},
                  {"D10", "Count"},
                  {"E10", "Local"},
                  {"A10", "Year"},
                  {"A11", "2024"},
                  {"B11", "1234567.5"},
                  {"C12", "0.5"},
                  {"D11", "3"},
                  {"E12", "99.75"}});
    cells.Merged("A6", "A6:E6");
    cells.Merged("A7", "A7:E7");
    cells.Merged("B8", "B8:E8");
    cells.NumberFormat("B11", "#,##0");
    cells.NumberFormat("C11", "0.0%");
    cells.NumberFormat("E11", "#,##0.00");
    cells.Fill("A6", kSilverIndex);
    cells.Edges({{"A7", excel::xlEdgeBottom, excel::xlMedium}, {"A10", excel::xlEdgeBottom, excel::xlThin}},
                excel::xlColorIndexAutomatic);
    cells.Edges({{"A11", excel::xlEdgeBottom, excel::xlThin},
                 {"E11", excel::xlEdgeBottom, excel::xlThin},
                 {"C9", excel::xlEdgeRight, excel::xlThin},
                 {"C12", excel::xlEdgeRight, excel::xlThin}},
                kSilverIndex);
    cells.Font("A6", 10, true);
    cells.Font("A7", 8, false);
}

void CheckTableWithComments(SheetExpectations& cells) {
    cells.Values({{"A14", "Merged and paired"},
                  {"C15", "Merged"},
                  {"D15", "Upper"},
                  {"D16", "Lower"},
                  {"E16", "Item"},
                  {"A17", "Group"},
                  {"B17", "Row 1"},
                  {"B18", "Row 2"},
                  {"C18", "y"},
                  {"D17", "5"},
                  {"E17", ""},
                  {"E18", "7"}});
    cells.Merged("A14", "A14:E14");
    cells.Merged("C15", "C15:C16");
    cells.Comment("C17", "Reviewer\nInterior note.");
    cells.Comment("D16", "Header\nTop header note.");
    cells.Comment("B16", "Source\nSignature note.");
    cells.Edge("D17", excel::xlEdgeBottom, excel::xlMedium, kRed);
    cells.Edge("B17", excel::xlEdgeRight, excel::xlThin, excel::xlColorIndexAutomatic);
}

void CheckTableWithSubtitleOnly(SheetExpectations& cells) {
    cells.Values({{"A20", ""}, {"A21", "Subtitle only"}, {"B21", "Second"}, {"A22", "42"}});
    cells.Merged("A20", "A20:B20");
    cells.Font("A20", 10, true);
}

void CheckTitledTable(SheetExpectations& cells, const TitledTableTexts& texts, double titleSize, double bodySize) {
    cells.Value("A1", texts.title);
    cells.Value("A2", texts.subtitle);
    cells.Merged("A1", "A1:C1");
    cells.Merged("A2", "A2:C2");
    cells.Value("B3", texts.upper);
    cells.Value("B4", texts.unit);
    cells.Value("C4", texts.count);
    cells.Value("A5", texts.rows[0]);
    cells.Value("B5", "1500.5");
    cells.NumberFormat("C6", "#,##0");
    cells.Font("A1", titleSize, true);
    cells.Font("A2", bodySize, false);
    cells.Font("B4", bodySize, true);
    cells.Font("B5", bodySize, false);
    cells.Comment("B5", texts.commentHeader + "\n" + texts.commentText);
}

void CheckWorkbook(conformance::Failures& failures, excel::Workbook& book) {
    SheetExpectations plain(failures, book.Worksheets("Plain"));
    CheckTableWithoutTitles(plain);
    CheckTableWithSummary(plain);
    CheckTableWithComments(plain);
    CheckTableWithSubtitleOnly(plain);

    SheetExpectations themed(failures, book.Worksheets("Themed"));
    CheckTitledTable(themed, kEnglishTexts, 10, 8);
    SheetExpectations chinese(failures, book.Worksheets("Chinese"));
    CheckTitledTable(chinese, kChineseTexts, 12, 10);
    chinese.Fill("A1", kSilverIndex);
    chinese.Edge("C5", excel::xlEdgeBottom, excel::xlMedium, kRed);
    SheetExpectations chineseThemed(failures, book.Worksheets("Chinese themed"));
    CheckTitledTable(chineseThemed, kChineseTexts, 12, 10);
}

void CheckAfterReopening(vos::VosExcelReporting&, excel::Application& app, const std::filesystem::path& file) {
    conformance::Failures failures;
    auto book = app.Workbooks()->Open(file.string());
    CheckWorkbook(failures, *book);
    book->Close(false);
    failures.ThrowIfAny();
}

}  // namespace

int main(int argc, char** argv) {
    return conformance::RunReportWriter(argc, argv, WriteTableWorkbook, CheckAfterReopening);
}
