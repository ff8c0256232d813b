#include "ooxml/worksheet/unresolvable_references.hpp"

#include <gtest/gtest.h>

namespace ooxml {
namespace {

TEST(UnresolvableReferences, ReplacesReferencesIntoOtherWorkbooksWithRef) {
    EXPECT_EQ(WithoutUnresolvableReferences("[1]Sheet1!$A$4:$A$432", {}), "#REF!");
    EXPECT_EQ(WithoutUnresolvableReferences("'[2]SAP Download 31Dec07'!$B$2", {}), "#REF!");
    EXPECT_EQ(WithoutUnresolvableReferences("'[12]SAP ITD'!#REF!", {}), "#REF!");
    EXPECT_EQ(WithoutUnresolvableReferences("[3]!Total*2", {}), "#REF!*2");
    EXPECT_EQ(WithoutUnresolvableReferences("SUM([1]Data!A1:B2,Sheet1!C3)", {}), "SUM(#REF!,Sheet1!C3)");
    EXPECT_EQ(WithoutUnresolvableReferences("'It''s [1]'!A1+'[4]Bob''s'!B1", {}), "'It''s [1]'!A1+#REF!");
}

TEST(UnresolvableReferences, ReplacesTableReferencesWithRef) {
    EXPECT_EQ(WithoutUnresolvableReferences("SUM(Sales[Amount])/2", {}), "SUM(#REF!)/2");
    EXPECT_EQ(WithoutUnresolvableReferences("_xll.DSSData(Query_2[[#This Row],[Code]],\"ytm\",date)/100", {}),
              "_xll.DSSData(#REF!,\"ytm\",date)/100");
    EXPECT_EQ(WithoutUnresolvableReferences("Sales[[#Headers],['[Qty']]:[Price]]+1", {}), "#REF!+1");
}

TEST(UnresolvableReferences, KeepsReferencesToTheLinksAndTablesThePackageHolds) {
    const ReferenceTargets targets{2, {"Sales", "Query_2"}};
    for (const char* formula : {"[1]Sheet1!$A$4:$A$432", "'[2]SAP Download 31Dec07'!$B$2", "SUM(Sales[Amount])/2",
                                "sales[[#Headers],['[Qty']]:[Price]]+1", "_xll.DSSData(Query_2[[#This Row],[Code]])"}) {
        EXPECT_EQ(WithoutUnresolvableReferences(formula, targets), formula);
    }
    EXPECT_EQ(WithoutUnresolvableReferences("[3]Sheet1!A1+Costs[Amount]+[2]Sheet1!A1", targets),
              "#REF!+#REF!+[2]Sheet1!A1");
}

TEST(UnresolvableReferences, KeepsEverythingElse) {
    for (const char* formula : {"Sheet1!$A$1", "'Data [1]'!A1", "\"[1]Sheet1!A1\"&B2", "[0]!Total", "\"Sales[Amount]\"",
                                "SUM(A1:B2)*Rate", "{1,2;3,4}", "\"unclosed [1]x!A1"}) {
        EXPECT_EQ(WithoutUnresolvableReferences(formula, {}), formula);
    }
}

}  // namespace
}  // namespace ooxml
