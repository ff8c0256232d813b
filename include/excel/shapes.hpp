#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>

namespace excel {

// The drawing objects of a worksheet in z-order, bottom first: text boxes, charts and the shapes of
// the sheet's cell comments, as in Excel; or those of a chart, placed from its chart area's corner.
class Shapes : public Object {
public:
    virtual std::shared_ptr<excel::Worksheet> Parent() = 0;
    virtual int32_t Count() = 0;
    // By 1-based position or by name (names compare without regard to case); refused otherwise.
    virtual std::shared_ptr<excel::Shape> Item(const Variant& index) = 0;
    // A new text box; geometry in points from the sheet's top-left corner.
    virtual std::shared_ptr<excel::Shape> AddTextbox(int32_t orientation, double left, double top, double width,
                                                     double height) = 0;
    // A new chart of the XlChartType in its ChartObject, without series; geometry as above.
    virtual std::shared_ptr<excel::Shape> AddChart(int32_t type, double left, double top, double width,
                                                   double height) = 0;
};

}  // namespace excel
