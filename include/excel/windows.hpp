#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>

namespace excel {

class Windows : public Object {
public:
    virtual int32_t Count() = 0;
    virtual std::shared_ptr<excel::Window> Item(const Variant& index) = 0;
};

}  // namespace excel
