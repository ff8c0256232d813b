#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>

namespace excel {

// The series of a chart (or of one of its chart groups) in plotting order.
class SeriesCollection : public Object {
public:
    virtual int32_t Count() = 0;
    // By 1-based position or by name; refused otherwise.
    virtual std::shared_ptr<excel::Series> Item(const Variant& index) = 0;
    // A new series without values, of the chart's type, formatted automatically.
    virtual std::shared_ptr<excel::Series> NewSeries() = 0;
};

}  // namespace excel
