#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>

namespace excel {

// The charts embedded in a worksheet, in z-order, bottom first.
class ChartObjects : public Object {
public:
    virtual std::shared_ptr<excel::Worksheet> Parent() = 0;
    virtual int32_t Count() = 0;
    // By 1-based position or by name (names compare without regard to case); refused otherwise.
    virtual std::shared_ptr<excel::ChartObject> Item(const Variant& index) = 0;
};

}  // namespace excel
