#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <cstdint>
#include <memory>

namespace excel {

// The outline of a shape. Setting its colour or weight makes it visible, as in Excel.
class LineFormat : public Object {
public:
    virtual std::shared_ptr<excel::ColorFormat> ForeColor() = 0;
    virtual double Weight() = 0;  // points
    virtual void SetWeight(double points) = 0;
    virtual int32_t Visible() = 0;  // an MsoTriState
    virtual void SetVisible(int32_t visible) = 0;
};

}  // namespace excel
