#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace excel {

// The container of a chart embedded in a worksheet. Geometry is in points from the sheet's
// top-left corner; the chart is anchored to the cells under it, so inserting, deleting or resizing
// rows and columns moves it as its Placement says.
class ChartObject : public Object {
public:
    virtual std::shared_ptr<excel::Worksheet> Parent() = 0;
    virtual std::string Name() = 0;
    virtual void SetName(const std::string& name) = 0;
    virtual std::shared_ptr<excel::Chart> Chart() = 0;

    virtual double Left() = 0;
    virtual void SetLeft(double points) = 0;
    virtual double Top() = 0;
    virtual void SetTop(double points) = 0;
    virtual double Width() = 0;
    virtual void SetWidth(double points) = 0;
    virtual double Height() = 0;
    virtual void SetHeight(double points) = 0;
    virtual int32_t Placement() = 0;  // an XlPlacement
    virtual void SetPlacement(int32_t placement) = 0;

    // The cells under the chart's top-left and bottom-right corners.
    virtual std::shared_ptr<excel::Range> TopLeftCell() = 0;
    virtual std::shared_ptr<excel::Range> BottomRightCell() = 0;

    virtual void Delete() = 0;
};

}  // namespace excel
