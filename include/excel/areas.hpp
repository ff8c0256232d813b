#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <cstdint>
#include <memory>

namespace excel {

// The rectangular blocks of a (possibly multi-area) range, in the order they were given.
class Areas : public Object {
public:
    virtual int32_t Count() = 0;
    virtual std::shared_ptr<excel::Range> Item(int32_t index) = 0;
};

}  // namespace excel
