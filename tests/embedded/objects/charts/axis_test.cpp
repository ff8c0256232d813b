#include "embedded/objects/charts/chart_fixture.hpp"

using namespace excel;

namespace {

class AxisTest : public ChartTest {
protected:
    void SetUp() override {
        ChartTest::SetUp();
        chart = AddChart();
        AddSeries(chart, "B2:B5");
    }

    std::shared_ptr<Chart> chart;
};

// An axis is there while HasAxis is true; hidden, it keeps its format, as a file keeps a deleted
// axis, and comes back with it.
TEST_F(AxisTest, AnAxisExistsWhileHasAxisIsTrueAndKeepsItsFormat) {
    auto axis = chart->Axes(xlValue, xlPrimary);
    axis->SetMajorTickMark(xlTickMarkCross);
    axis->SetMinimumScale(-5);
    chart->SetHasAxis(xlValue, xlPrimary, false);
    EXPECT_FALSE(chart->HasAxis(xlValue, xlPrimary));
    EXPECT_EQ(ErrorCodeOf([&] { chart->Axes(xlValue, xlPrimary); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { axis->MajorTickMark(); }), kObjectRequired);
    chart->SetHasAxis(xlValue, xlPrimary, true);
    EXPECT_EQ(axis->MajorTickMark(), xlTickMarkCross);
    EXPECT_DOUBLE_EQ(chart->Axes(xlValue)->MinimumScale(), -5);
    chart->Axes(xlValue)->Delete();
    EXPECT_FALSE(chart->HasAxis(xlValue, xlPrimary));
}

TEST_F(AxisTest, ScalesAreAutomaticUntilSetAndAutomaticAgainOnRequest) {
    auto axis = chart->Axes(xlValue, xlPrimary);
    EXPECT_TRUE(axis->MinimumScaleIsAuto());
    EXPECT_TRUE(axis->MaximumScaleIsAuto());
    EXPECT_TRUE(axis->MajorUnitIsAuto());
    EXPECT_DOUBLE_EQ(axis->MinimumScale(), 0);
    EXPECT_GE(axis->MaximumScale(), 50);
    EXPECT_GT(axis->MajorUnit(), 0);
    axis->SetMinimumScale(5);
    axis->SetMaximumScale(5);
    axis->SetMajorUnit(1);
    EXPECT_FALSE(axis->MinimumScaleIsAuto());
    EXPECT_DOUBLE_EQ(axis->MinimumScale(), 5);
    EXPECT_DOUBLE_EQ(axis->MaximumScale(), 5);
    EXPECT_DOUBLE_EQ(axis->MajorUnit(), 1);
    EXPECT_EQ(ErrorCodeOf([&] { axis->SetMajorUnit(0); }), kRefused);
    EXPECT_DOUBLE_EQ(axis->MajorUnit(), 1);
    axis->SetMaximumScaleIsAuto(true);
    EXPECT_TRUE(axis->MaximumScaleIsAuto());
    axis->SetMinorUnitIsAuto(false);
    EXPECT_FALSE(axis->MinorUnitIsAuto());
    EXPECT_GT(axis->MinorUnit(), 0);
    EXPECT_EQ(axis->ScaleType(), xlScaleLinear);
    EXPECT_EQ(ErrorCodeOf([&] { chart->Axes(xlCategory)->MinimumScale(); }), kRefused);
}

TEST_F(AxisTest, ACategoryAxisRefusesReadingAndWritingAScaleInExcelsWords) {
    const auto category = chart->Axes(xlCategory);
    const auto textOf = [](auto&& statement) {
        try {
            statement();
        } catch (const excel::AutomationError& error) {
            return std::string(error.what());
        }
        return std::string("no error");
    };
    EXPECT_EQ(textOf([&] { category->MajorUnitIsAuto(); }),
              "Unable to get the MajorUnitIsAuto property of the Axis class");
    EXPECT_EQ(textOf([&] { category->SetMajorUnitIsAuto(true); }),
              "Unable to set the MajorUnitIsAuto property of the Axis class");
    EXPECT_EQ(textOf([&] { category->SetMaximumScale(5); }),
              "Unable to set the MaximumScale property of the Axis class");
    EXPECT_EQ(textOf([&] { category->SetScaleType(xlScaleLinear); }),
              "Unable to set the ScaleType property of the Axis class");
}

// Crosses and CrossesAt belong to the axis that is crossed: they say where the other axis of the
// group crosses it (the file keeps them on that other axis).
TEST_F(AxisTest, CrossingIsAPropertyOfTheCrossedAxis) {
    auto category = chart->Axes(xlCategory);
    auto value = chart->Axes(xlValue);
    EXPECT_EQ(category->Crosses(), xlAxisCrossesAutomatic);
    category->SetCrosses(xlAxisCrossesMaximum);
    value->SetCrossesAt(-1E+300);
    EXPECT_EQ(category->Crosses(), xlAxisCrossesMaximum);
    EXPECT_EQ(value->Crosses(), xlAxisCrossesCustom);
    EXPECT_DOUBLE_EQ(value->CrossesAt(), -1E+300);
    EXPECT_EQ(ErrorCodeOf([&] { value->SetCrosses(77); }), kRefused);
}

TEST_F(AxisTest, TickMarksLabelsAndCategoryNames) {
    auto category = chart->Axes(xlCategory);
    category->SetMajorTickMark(xlTickMarkNone);
    category->SetTickLabelPosition(xlTickLabelPositionLow);
    category->SetReversePlotOrder(true);
    category->SetCategoryNames(Variant(At("A2:A5")));
    EXPECT_EQ(category->MajorTickMark(), xlTickMarkNone);
    EXPECT_EQ(category->TickLabelPosition(), xlTickLabelPositionLow);
    EXPECT_TRUE(category->ReversePlotOrder());
    const Variant names = category->CategoryNames();
    ASSERT_EQ(names.Array().ElementCount(), 4u);
    EXPECT_EQ(names.Array().Get({1}).ToString(), "Jan");
    EXPECT_EQ(chart->SeriesCollection(1)->Formula(), "=SERIES(,Sheet1!$A$2:$A$5,Sheet1!$B$2:$B$5,1)");
    auto labels = chart->Axes(xlValue)->TickLabels();
    labels->SetAutoScaleFont(false);
    labels->Font()->SetSize(8);
    labels->Font()->SetBold(false);
    labels->SetNumberFormat("0.0%");
    labels->SetOrientation(xlTickLabelOrientationUpward);
    EXPECT_FALSE(labels->AutoScaleFont());
    EXPECT_DOUBLE_EQ(labels->Font()->Size().ToDouble(), 8);
    EXPECT_EQ(labels->NumberFormat(), "0.0%");
    EXPECT_EQ(labels->NumberFormatLocal(), "0.0%");
    EXPECT_FALSE(labels->NumberFormatLinked());
    EXPECT_EQ(labels->Orientation(), xlTickLabelOrientationUpward);
    EXPECT_EQ(ErrorCodeOf([&] { labels->SetOrientation(91); }), kRefused);
}

TEST_F(AxisTest, AxisTitlesComeAndGoWithHasTitle) {
    auto axis = chart->Axes(xlValue);
    EXPECT_EQ(ErrorCodeOf([&] { axis->AxisTitle(); }), kRefused);
    axis->SetHasTitle(true);
    auto title = axis->AxisTitle();
    title->Characters()->SetText("Amount");
    title->Font()->SetSize(8);
    title->Font()->SetBold(false);
    EXPECT_EQ(title->Text(), "Amount");
    EXPECT_DOUBLE_EQ(title->Font()->Size().ToDouble(), 8);
    const double top = title->Top();
    title->SetTop(top + 3);
    EXPECT_DOUBLE_EQ(title->Top(), top + 3);
    axis->SetHasTitle(false);
    EXPECT_EQ(ErrorCodeOf([&] { title->Text(); }), kObjectRequired);
}

// Turning labels upward makes a horizontal axis taller; at 89 degrees it is a little taller still,
// as Excel measures it.
TEST_F(AxisTest, RotatedLabelsMakeAHorizontalAxisTaller) {
    auto axis = chart->Axes(xlCategory);
    const double flat = axis->Height();
    axis->TickLabels()->SetOrientation(89);
    const double steep = axis->Height();
    axis->TickLabels()->SetOrientation(xlTickLabelOrientationUpward);
    const double upward = axis->Height();
    EXPECT_GT(upward, flat);
    EXPECT_GT(steep, upward);
    const double plot = chart->PlotArea()->Height();
    chart->PlotArea()->SetHeight(plot - (steep - upward));
    EXPECT_DOUBLE_EQ(chart->PlotArea()->Height(), plot - (steep - upward));
    EXPECT_LT(chart->PlotArea()->InsideHeight(), chart->PlotArea()->Height());
}

}  // namespace
