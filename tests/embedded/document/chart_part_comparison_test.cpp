#include "embedded/document/chart_part_comparison.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using chart_comparison::AllowedAddition;
using chart_comparison::ChartPartDifferences;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr const char* Declarations = R"(xmlns:c="http://schemas.openxmlformats.org/drawingml/2006/chart" )"
                                     R"(xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main")";

std::string Part(const std::string& content, const std::string& declarations = Declarations) {
    return "<c:chartSpace " + declarations + ">" + content + "</c:chartSpace>";
}

std::string Axes(const char* first, const char* second, const char* maximum) {
    return std::string("<c:chart><c:plotArea><c:barChart><c:axId val=\"") + first + "\"/><c:axId val=\"" + second +
           "\"/></c:barChart><c:catAx><c:axId val=\"" + first + "\"/><c:crossAx val=\"" + second +
           "\"/></c:catAx><c:valAx><c:axId val=\"" + second + "\"/><c:crossAx val=\"" + first +
           "\"/><c:majorUnit val=\"" + maximum + "\"/></c:valAx></c:plotArea></c:chart>";
}

TEST(ChartPartComparison, AxisIdsDeclarationsNumbersStyleChoiceAndPrintSettingsMakeNoDifference) {
    const std::string excel = Part(R"(<c:style val="2"/>)" + Axes("43424000", "43434368", "0.40000000000000002") +
                                   R"(<c:printSettings><c:pageSetup/></c:printSettings>)");
    const std::string ours =
        Part(R"(<mc:AlternateContent xmlns:mc="http://schemas.openxmlformats.org/markup-compatibility/2006">)"
             R"(<mc:Choice Requires="c14"><c14:style val="102"/></mc:Choice>)"
             R"(<mc:Fallback><c:style val="2"/></mc:Fallback></mc:AlternateContent>)" +
                 Axes("500000001", "500000002", "0.4"),
             R"(xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" )"
             R"(xmlns:c="http://schemas.openxmlformats.org/drawingml/2006/chart")");
    EXPECT_THAT(ChartPartDifferences(excel, ours, {}), IsEmpty());
}

TEST(ChartPartComparison, NamesWhatOnlyOnePartHasUnlessItIsAnAllowedDefault) {
    const std::string excel = Part(R"(<c:chart><c:title><a:p><a:r><a:rPr lang="en-US"/><a:t>T</a:t></a:r></a:p>)"
                                   R"(</c:title><c:plotVisOnly val="1"/></c:chart>)");
    const std::string ours =
        Part(R"(<c:chart><c:title><a:p><a:r><a:rPr lang="en-US" i="0" b="1"/><a:t>U</a:t></a:r></a:p></c:title>)"
             R"(<c:autoTitleDeleted val="0"/><c:dispBlanksAs val="zero"/></c:chart>)");
    const AllowedAddition allowed[] = {
        {"c:autoTitleDeleted", "0", "default"}, {"c:dispBlanksAs", "gap", "default"}, {"a:r/*@i", "0", "upright"}};
    EXPECT_THAT(ChartPartDifferences(excel, ours, allowed),
                ElementsAre("c:chart/c:title/a:p/a:r/a:rPr: @b Excel '-', ours '1'",
                            "c:chart/c:title/a:p/a:r/a:t: text Excel 'T', ours 'U'", "c:chart/c:plotVisOnly: missing '1'",
                            "c:chart/c:dispBlanksAs: added 'zero'"));
}

TEST(ChartPartComparison, NumbersRepeatedElementsAndTellsTheirOrder) {
    const std::string excel = Part(R"(<c:chart><c:legend/><c:plotArea><c:ser><c:idx val="0"/></c:ser>)"
                                   R"(<c:ser><c:idx val="1"/></c:ser></c:plotArea></c:chart>)");
    const std::string ours = Part(R"(<c:chart><c:plotArea><c:ser><c:idx val="0"/></c:ser>)"
                                  R"(<c:ser><c:idx val="2"/></c:ser></c:plotArea><c:legend/></c:chart>)");
    EXPECT_THAT(ChartPartDifferences(excel, ours, {}),
                ElementsAre("c:chart/c:plotArea/c:ser[2]/c:idx: @val Excel '1', ours '2'",
                            "c:chart: order Excel (c:legend c:plotArea), ours (c:plotArea c:legend)"));
}

}  // namespace
