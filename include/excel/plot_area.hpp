#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <memory>

namespace excel {

// The area of a chart the series are drawn in, with its axes' labels; in points from the chart
// area's top-left corner. The inside is the area bounded by the axes.
class PlotArea : public Object {
public:
    virtual double Left() = 0;
    virtual void SetLeft(double points) = 0;
    virtual double Top() = 0;
    virtual void SetTop(double points) = 0;
    virtual double Width() = 0;
    virtual void SetWidth(double points) = 0;
    virtual double Height() = 0;
    virtual void SetHeight(double points) = 0;
    virtual double InsideLeft() = 0;
    virtual double InsideTop() = 0;
    virtual double InsideWidth() = 0;
    virtual double InsideHeight() = 0;
    virtual std::shared_ptr<excel::Border> Border() = 0;
    virtual std::shared_ptr<excel::Interior> Interior() = 0;
    // Back to the automatic format: no border or fill of its own.
    virtual void ClearFormats() = 0;
};

}  // namespace excel
