#include "table/header_expectations.hpp"

#include <filesystem>
#include <unistd.h>

using HeaderSaveTest = HeaderTest;

TEST_F(HeaderSaveTest, WrittenHeadersSurviveSavingAndOpening) {
    const auto folder = std::filesystem::temp_directory_path() / ("table_headers_" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    const std::string path = (folder / "headers.xlsx").string();

    // Title A1:E1, signature A2:A4, top header B2:E4, left header A5:A6.
    Place(2, 4, 3, 1, "Risk");
    table->WriteHeaderSummary(VosTopHeader, "All regions");
    table->WriteHeaderPairedItem(VosTopHeader, 2, "Budget", 2024.0);
    table->WriteHeaderIndexNumbers(VosLeftHeader);
    // Top header A7:C8 below it, no left header.
    Place(1, 3, 2, 0);
    table->WriteHeaderMergedItem(VosTopHeader, 1, "Merged");
    table->WriteHeaderIndexNumbers(VosTopHeader, 2, 1, "Run ");
    const std::string sheetName = excelSheet->Name();
    report->ExcelWorkbook()->SaveAs(path);
    report->ExcelWorkbook()->Close();

    excelSheet = app->Workbooks()->Open(path)->Worksheets(sheetName);
    EXPECT_EQ(MergeArea("B2"), "B2:E2");
    EXPECT_EQ(Value("B2"), excel::Variant("All regions"));
    EXPECT_EQ(At("B2")->HorizontalAlignment().ToInt(), excel::xlCenterAcrossSelection);
    EXPECT_EQ(Value("C3"), excel::Variant("Budget"));
    EXPECT_EQ(Value("C4"), excel::Variant(2024.0));
    EXPECT_EQ(Texts("A5:A6"), (std::vector<std::string>{"#1", "#2"}));
    EXPECT_EQ(MergeArea("A8"), "A7:A8");
    EXPECT_EQ(Value("A7"), excel::Variant("Merged"));
    EXPECT_EQ(At("A7")->VerticalAlignment().ToInt(), excel::xlCenter);
    EXPECT_EQ(Texts("B8:C8"), (std::vector<std::string>{"Run 1", ""}));
    std::filesystem::remove_all(folder);
}
