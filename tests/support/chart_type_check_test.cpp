#include "report_fixture.hpp"

#include "support/chart_type_check.hpp"

TEST(CheckChartType, AcceptsEveryChartType) {
    for (int32_t type :
         {vos::VosChartCustom, vos::VosChartColumn, vos::VosChartXYMarkers, vos::VosChartXYLine,
          vos::VosChartXYMarkersAndLine, vos::VosChartLine, vos::VosChartLineWithMarkers, vos::VosChartTornado})
        EXPECT_NO_THROW(vos::CheckChartType(type, "chartType")) << type;
}

TEST(CheckChartType, RejectsOtherValuesNamingTheArgument) {
    for (int32_t type : {1, 17, 65, -1, 35})
        ExpectAutomationError([&] { vos::CheckChartType(type, "chartType"); }, vos::error_code::OutOfRange,
                              "chartType");
    ExpectAutomationError([] { vos::CheckChartType(17, "p_ChartType"); }, vos::error_code::OutOfRange, "p_ChartType");
}

TEST(Enumerations, KeepTheirFixedValues) {
    EXPECT_EQ(vos::VosChartXYMarkersAndLine, 34);
    EXPECT_EQ(vos::VosChartLineWithMarkers, 49);
    EXPECT_EQ(vos::VosBorderIgnore, 4);
    EXPECT_EQ(vos::VosSpecialFont, 8);
    EXPECT_EQ(vos::VosLeftHeader, 1);
    EXPECT_EQ(vos::VosColumnDivider, 1);
    EXPECT_EQ(vos::VosColumnSeriesFormatStandard, 0);
    EXPECT_EQ(sizeof(vos::VosChartType), sizeof(int32_t));
}
