#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>

namespace excel {

// The chart groups of a chart: those of the primary axes first.
class ChartGroups : public Object {
public:
    virtual int32_t Count() = 0;
    // By 1-based position; refused otherwise.
    virtual std::shared_ptr<excel::ChartGroup> Item(const Variant& index) = 0;
};

}  // namespace excel
