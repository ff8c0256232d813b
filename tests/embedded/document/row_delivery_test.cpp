// A workbook saved with its rows streamed from the model is the same package as one saved with
// its rows held in the document.

#include "excel/embedded/document/workbook_document_conversion.hpp"
#include "excel/embedded/model/application_model.hpp"
#include "excel/embedded/model/workbook_model.hpp"
#include "ooxml/opc/package_reader.hpp"
#include "ooxml/opc/package_writer.hpp"
#include "ooxml/reader_test_package.hpp"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <memory>
#include <string>

namespace excel::embedded {
namespace {

ooxml_test::PackageParts Saved(const WorkbookModel& book, RowDelivery rows, const std::string& path) {
    ooxml::WorkbookDocument document = ToDocument(book, "test", rows);
    document.properties.created = document.properties.modified = 0;
    ooxml::WritePackage(document, path);
    return ooxml_test::ReadPackageParts(path);
}

TEST(RowDelivery, StreamedRowsMakeTheSamePackageAsHeldOnes) {
    const auto folder = std::filesystem::temp_directory_path() / ("row_delivery_" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    for (const char* name : {"realworld-excel/poi__DataTableCities.xlsx", "realworld-excel/poi__GroupTest.xlsx",
                             "realworld-excel/poi__StructuredRefs-lots-with-lookups.xlsx",
                             "realworld-excel/poi__NumberFormatApproxTests.xlsx"}) {
        SCOPED_TRACE(name);
        auto app = std::make_shared<ApplicationModel>();
        auto book = std::make_shared<WorkbookModel>(*app, "Book.xlsx");
        LoadDocument(*book, ooxml::ReadPackage(std::string(VOS_SHARED_DIR) + "/excel-corpus/" + name));
        const ooxml_test::PackageParts held = Saved(*book, RowDelivery::Held, (folder / "held.xlsx").string());
        const ooxml_test::PackageParts streamed =
            Saved(*book, RowDelivery::Streamed, (folder / "streamed.xlsx").string());
        EXPECT_TRUE(held == streamed);
        EXPECT_FALSE(ToDocument(*book, "test", RowDelivery::Held).sheets.front().rows.empty());
        EXPECT_TRUE(ToDocument(*book, "test", RowDelivery::Streamed).sheets.front().rows.empty());
    }
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace excel::embedded
