#include "excel/embedded/workbook_document_conversion.hpp"
#include "excel/embedded/application_model.hpp"
#include "excel/embedded/workbook_model.hpp"

#include <gtest/gtest.h>

#include <memory>

namespace excel::embedded {
namespace {

ooxml::WorkbookDocument TwoSheetDocument() {
    ooxml::WorkbookDocument document;
    document.sheets.resize(2);
    document.sheets[0].name = "Data";
    document.sheets[1].name = "Users";
    return document;
}

TEST(WorkbookDocumentConversion, NameDefinedTwiceInOneScopeKeepsItsFirstDefinition) {
    ooxml::WorkbookDocument document = TwoSheetDocument();
    document.names = {{"_xlnm._FilterDatabase", "Users!$A$1:$E$32", 1u, true},
                      {"_XLNM._filterdatabase", "Users!$A$1:$E$9", 1u, false},
                      {"_xlnm._FilterDatabase", "Data!$A$1:$B$2", 0u, true},
                      {"Total", "Data!$B$2", std::nullopt, false},
                      {"TOTAL", "Data!$B$3", std::nullopt, false}};
    auto app = std::make_shared<ApplicationModel>();
    auto book = std::make_shared<WorkbookModel>(*app, "Names.xlsx");
    LoadDocument(*book, document);

    const ooxml::WorkbookDocument saved = ToDocument(*book, "test");
    ASSERT_EQ(saved.names.size(), 3u);
    for (const ooxml::DefinedName& name : saved.names) {
        if (name.name == "Total") {
            EXPECT_EQ(name.formula, "Data!$B$2");
        } else if (name.localSheet == 1u) {
            EXPECT_EQ(name.formula, "Users!$A$1:$E$32");
        } else {
            EXPECT_EQ(name.formula, "Data!$A$1:$B$2");
        }
    }
}

}  // namespace
}  // namespace excel::embedded
