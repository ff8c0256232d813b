#pragma once

#include <excel/chart_constants.hpp>
#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <cstdint>
#include <memory>

namespace excel {

// The axes a chart shows.
class Axes : public Object {
public:
    virtual int32_t Count() = 0;
    // The axis of the type (XlAxisType) in the group (XlAxisGroup); refused when the chart has none.
    virtual std::shared_ptr<excel::Axis> Item(int32_t type, int32_t group = xlPrimary) = 0;
};

}  // namespace excel
