#include "ooxml/external_workbook_references.hpp"

#include <gtest/gtest.h>

namespace ooxml {
namespace {

TEST(ExternalWorkbookReferences, ReplacesReferencesIntoOtherWorkbooksWithRef) {
    EXPECT_EQ(WithoutExternalWorkbookReferences("[1]Sheet1!$A$4:$A$432"), "#REF!");
    EXPECT_EQ(WithoutExternalWorkbookReferences("'[2]SAP Download 31Dec07'!$B$2"), "#REF!");
    EXPECT_EQ(WithoutExternalWorkbookReferences("'[12]SAP ITD'!#REF!"), "#REF!");
    EXPECT_EQ(WithoutExternalWorkbookReferences("[3]!Total*2"), "#REF!*2");
    EXPECT_EQ(WithoutExternalWorkbookReferences("SUM([1]Data!A1:B2,Sheet1!C3)"), "SUM(#REF!,Sheet1!C3)");
    EXPECT_EQ(WithoutExternalWorkbookReferences("'It''s [1]'!A1+'[4]Bob''s'!B1"), "'It''s [1]'!A1+#REF!");
}

TEST(ExternalWorkbookReferences, KeepsEverythingElse) {
    for (const char* formula : {"Sheet1!$A$1", "'Data [1]'!A1", "\"[1]Sheet1!A1\"&B2", "[0]!Total",
                                "Table1[[#This Row],[Amount]]", "{1,2;3,4}", "\"unclosed [1]x!A1"}) {
        EXPECT_EQ(WithoutExternalWorkbookReferences(formula), formula);
    }
}

}  // namespace
}  // namespace ooxml
