#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace excel {

// A data series of a chart. Values and XValues take a range, an array of numbers, or a text:
// a reference ("=Sheet1!$B$2:$B$9") or an array constant ("={1,2,3}" or "1,2,3").
class Series : public Object {
public:
    // The series' name: its own text, the text of the cell it refers to, or "Series<n>".
    virtual std::string Name() = 0;
    // A text, or a reference to a cell ("=Sheet1!$A$1").
    virtual void SetName(const std::string& name) = 0;
    // A 1-based array of the values: those of the cells, or the series' own.
    virtual Variant Values() = 0;
    virtual void SetValues(const Variant& values) = 0;
    virtual Variant XValues() = 0;
    virtual void SetXValues(const Variant& values) = 0;
    // "=SERIES(name,categories,values,order)", as Excel shows it.
    virtual std::string Formula() = 0;
    virtual int32_t PlotOrder() = 0;
    virtual int32_t AxisGroup() = 0;  // an XlAxisGroup
    virtual void SetAxisGroup(int32_t group) = 0;
    virtual int32_t ChartType() = 0;  // an XlChartType

    // Back to the automatic format: colours and markers as Excel picks them for the series.
    virtual void ClearFormats() = 0;
    virtual std::shared_ptr<excel::Interior> Interior() = 0;
    virtual std::shared_ptr<excel::ChartFillFormat> Fill() = 0;
    virtual std::shared_ptr<excel::Border> Border() = 0;

    virtual int32_t MarkerStyle() = 0;  // an XlMarkerStyle
    virtual void SetMarkerStyle(int32_t style) = 0;
    virtual int32_t MarkerSize() = 0;  // 2..72 points
    virtual void SetMarkerSize(int32_t points) = 0;
    virtual int32_t MarkerForegroundColor() = 0;  // the outline, an RGB Long
    virtual void SetMarkerForegroundColor(int32_t rgb) = 0;
    virtual int32_t MarkerForegroundColorIndex() = 0;
    virtual void SetMarkerForegroundColorIndex(int32_t index) = 0;
    virtual int32_t MarkerBackgroundColor() = 0;  // the fill, an RGB Long
    virtual void SetMarkerBackgroundColor(int32_t rgb) = 0;
    virtual int32_t MarkerBackgroundColorIndex() = 0;
    virtual void SetMarkerBackgroundColorIndex(int32_t index) = 0;

    virtual void Delete() = 0;
};

}  // namespace excel
