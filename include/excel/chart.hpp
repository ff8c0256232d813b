#pragma once

#include <excel/chart_constants.hpp>
#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>

namespace excel {

// A chart: its series in chart groups, its axes, title and legend, the chart area that holds them
// and the plot area they are drawn in, and text boxes of its own.
class Chart : public Object {
public:
    // The ChartObject that holds the chart.
    virtual std::shared_ptr<excel::ChartObject> Parent() = 0;
    virtual int32_t ChartType() = 0;  // an XlChartType
    // Changes the type of every series, as Excel does when the chart's type is set.
    virtual void SetChartType(int32_t type) = 0;

    virtual std::shared_ptr<excel::ChartArea> ChartArea() = 0;
    virtual std::shared_ptr<excel::PlotArea> PlotArea() = 0;

    virtual std::shared_ptr<excel::SeriesCollection> SeriesCollection() = 0;
    // By 1-based position or by name; refused otherwise.
    virtual std::shared_ptr<excel::Series> SeriesCollection(const Variant& index) = 0;
    virtual std::shared_ptr<excel::ChartGroups> ChartGroups() = 0;
    virtual std::shared_ptr<excel::ChartGroup> ChartGroups(const Variant& index) = 0;

    virtual std::shared_ptr<excel::Axes> Axes() = 0;
    // The axis of the type (XlAxisType) in the group (XlAxisGroup); refused when the chart has none.
    virtual std::shared_ptr<excel::Axis> Axes(int32_t type, int32_t group = xlPrimary) = 0;
    virtual bool HasAxis(int32_t type, int32_t group = xlPrimary) = 0;
    virtual void SetHasAxis(int32_t type, int32_t group, bool has) = 0;

    virtual bool HasTitle() = 0;
    virtual void SetHasTitle(bool has) = 0;
    virtual std::shared_ptr<excel::ChartTitle> ChartTitle() = 0;  // refused while HasTitle is false
    virtual bool HasLegend() = 0;
    virtual void SetHasLegend(bool has) = 0;
    virtual std::shared_ptr<excel::Legend> Legend() = 0;  // refused while HasLegend is false

    // The chart's own drawing objects, placed in points from the chart area's top-left corner.
    virtual std::shared_ptr<excel::Shapes> Shapes() = 0;
};

}  // namespace excel
