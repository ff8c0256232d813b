#include "embedded/engine_fixture.hpp"

#include <excel/embedded.hpp>

#include <filesystem>
#include <string>
#include <vector>

using namespace excel;

namespace {

std::vector<std::filesystem::path> ExcelMadeWorkbooks() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::string(VOS_SHARED_DIR) + "/excel-corpus/realworld-excel")) {
        const std::string extension = entry.path().extension().string();
        if (extension == ".xlsx" || extension == ".xlsm") {
            files.push_back(entry.path());
        }
    }
    return files;
}

}  // namespace

// Workbooks made by Excel open with their sheets, read back through the object model, and save
// again into files that open once more with the same sheets and values.
TEST(WorkbooksOpenTest, ExcelMadeWorkbooksOpenReadAndSaveAgain) {
    const auto files = ExcelMadeWorkbooks();
    ASSERT_FALSE(files.empty());
    const auto folder = std::filesystem::temp_directory_path() / ("engine_open_" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    auto app = embedded::CreateApplication();
    int opened = 0;
    for (const auto& file : files) {
        SCOPED_TRACE(file.filename().string());
        std::shared_ptr<Workbook> book;
        try {
            book = app->Workbooks()->Open(file.string());
        } catch (const AutomationError&) {
            continue;  // not every corpus file is a package this engine reads (encrypted, strict)
        }
        ++opened;
        EXPECT_EQ(book->Name(), file.filename().string());
        ASSERT_GE(book->Worksheets()->Count(), 1);
        auto first = book->Worksheets(1);
        const std::string firstName = first->Name();
        const Variant used = first->UsedRange()->Value();
        const std::string copy = (folder / ("copy_" + file.stem().string() + ".xlsx")).string();
        book->SaveAs(copy);
        book->Close();
        auto reopened = app->Workbooks()->Open(copy);
        EXPECT_EQ(reopened->Worksheets(1)->Name(), firstName);
        EXPECT_EQ(reopened->Worksheets(1)->UsedRange()->Value(), used);
        reopened->Close();
    }
    std::filesystem::remove_all(folder);
    EXPECT_GE(opened, static_cast<int>(files.size()) * 9 / 10);
}
