#include "chart/mock_series.hpp"
#include "chart/report_chart_fixture.hpp"

#include "chart/report_chart.hpp"
#include "chart/series_values_text.hpp"

#include <excel/automation_error.hpp>

namespace {

using ::testing::_;
using ::testing::Throw;

class SeriesValuesTest : public ReportChartTest {
protected:
    void SetUp() override {
        ReportChartTest::SetUp();
        chart = std::make_shared<vos::ReportChart>();
        chart->InitializeChart(report, 9, vos::VosChartTornado, At("A1"), 300, 200);
        series = chart->Chart()->SeriesCollection()->NewSeries();
    }

    static excel::SafeArray Numbers(const std::vector<double>& values, int32_t lowerBound = 1) {
        return excel::SafeArray::Doubles(values, lowerBound);
    }

    std::shared_ptr<vos::ReportChart> chart;
    std::shared_ptr<excel::Series> series;
};

TEST_F(SeriesValuesTest, LoadsTheNumbersIntoTheSeries) {
    chart->SetSeriesValues(series, Numbers({1.5, -2, 0}));
    EXPECT_EQ(series->Formula(), "=SERIES(,,{1.5,-2,0},1)");
}

TEST_F(SeriesValuesTest, TakesUpToThirtyTwoNumbers) {
    chart->SetSeriesValues(series, Numbers(std::vector<double>(32, 1.0)));
    EXPECT_EQ(series->Values().Array().ElementCount(), 32u);
    ExpectAutomationError([&] { chart->SetSeriesValues(series, Numbers(std::vector<double>(33, 2.0))); },
                          vos::error_code::InvalidArgument, "theData");
    EXPECT_EQ(series->Values().Array().Get({1}).ToDouble(), 1.0);  // left as it was
}

TEST_F(SeriesValuesTest, RefusesAMissingSeriesAndEmptyOrManyDimensionalArrays) {
    ExpectAutomationError([&] { chart->SetSeriesValues(nullptr, excel::SafeArray(excel::VarType::Double, {})); },
                          vos::error_code::MissingObject, "theSeries");
    ExpectAutomationError([&] { chart->SetSeriesValues(series, excel::SafeArray(excel::VarType::Double, {})); },
                          vos::error_code::InvalidArgument, "theData");
    ExpectAutomationError([&] { chart->SetSeriesValues(series, Numbers({})); }, vos::error_code::InvalidArgument,
                          "theData");
    ExpectAutomationError(
        [&] { chart->SetSeriesValues(series, excel::SafeArray::Matrix(excel::VarType::Double, 2, 2)); },
        vos::error_code::InvalidArgument, "theData");
}

TEST(ShortestNumberText, TakesTheShorterOfThePlainAndTheExponentForm) {
    EXPECT_EQ(vos::ShortestNumberText(5), "5");
    EXPECT_EQ(vos::ShortestNumberText(-12.5), "-12.5");
    EXPECT_EQ(vos::ShortestNumberText(0), "0");
    EXPECT_EQ(vos::ShortestNumberText(1250000), "1.25E+6");
    EXPECT_EQ(vos::ShortestNumberText(0.000125), "1.25E-4");
    // Nine significant digits fit the exponent form's eight decimals; more are rounded away there,
    // and the plain form is shorter anyway.
    EXPECT_EQ(vos::ShortestNumberText(123456789), "123456789");
    EXPECT_EQ(vos::ShortestNumberText(1.0 / 3.0), "3.33333333E-1");
    // A tie goes to the exponent form.
    EXPECT_EQ(vos::ShortestNumberText(10000), "1.E+4");
    EXPECT_EQ(vos::ShortestNumberText(-1e300), "-1E+300");
}

TEST(SeriesValuesText, JoinsTheNumbersWithCommas) {
    EXPECT_EQ(vos::SeriesValuesText(excel::SafeArray::Doubles(std::vector<double>{1, 2000000, -0.5})), "1,2.E+6,-0.5");
}

TEST(SeriesValuesText, ASeparatorGoesOnlyBeforeIndexesAboveOne) {
    // A 0-based array runs its first two numbers together: tornado arrays are always 1-based.
    EXPECT_EQ(vos::SeriesValuesText(excel::SafeArray::Doubles(std::vector<double>{7, 8, 9}, 0)), "78,9");
}

TEST_F(SeriesValuesTest, TheTextFormIsOneASeriesTakes) {
    series->SetValues(vos::SeriesValuesText(Numbers({1250000, 30000, 0.5})));
    const excel::Variant values = series->Values();
    EXPECT_EQ(values.Array().Get({1}).ToDouble(), 1250000.0);
    EXPECT_EQ(values.Array().Get({2}).ToDouble(), 30000.0);
    EXPECT_EQ(values.Array().Get({3}).ToDouble(), 0.5);
}

// An Excel that refuses arrays in a series' values, as older ones did for long lists.
TEST_F(SeriesValuesTest, FallsBackToATextOfTheNumbersWhenExcelRefusesTheArray) {
    const auto refusing = std::make_shared<MockSeries>();
    std::vector<excel::Variant> assigned;
    EXPECT_CALL(*refusing, SetValues(_))
        .WillOnce(Throw(excel::AutomationError(static_cast<int32_t>(0x800A03EC), "Unable to set the Values property")))
        .WillOnce([&](const excel::Variant& values) { assigned.push_back(values); });
    chart->SetSeriesValues(refusing, Numbers({1, 30000, 0.25}, 0));
    ASSERT_EQ(assigned.size(), 1u);
    EXPECT_EQ(assigned[0].ToString(), "13.E+4,0.25");
}

}  // namespace
