#pragma once

#include <excel/border.hpp>
#include <excel/fwd.hpp>

#include <cstdint>
#include <memory>

namespace excel {

// All the borders of a range. Its own properties act on the four edges and the inside lines at
// once (reading answers null when they differ).
class Borders : public Border {
public:
    virtual int32_t Count() = 0;
    virtual std::shared_ptr<excel::Border> Item(int32_t index) = 0;
};

}  // namespace excel
