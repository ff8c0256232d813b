#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>

namespace excel {

// The drawing objects of a worksheet in z-order, bottom first: text boxes and the shapes of the
// sheet's cell comments, as in Excel.
class Shapes : public Object {
public:
    virtual std::shared_ptr<excel::Worksheet> Parent() = 0;
    virtual int32_t Count() = 0;
    // By 1-based position or by name (names compare without regard to case); refused otherwise.
    virtual std::shared_ptr<excel::Shape> Item(const Variant& index) = 0;
    // A new text box; geometry in points from the sheet's top-left corner.
    virtual std::shared_ptr<excel::Shape> AddTextbox(int32_t orientation, double left, double top, double width,
                                                     double height) = 0;
};

}  // namespace excel
