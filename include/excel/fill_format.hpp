#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <cstdint>
#include <memory>

namespace excel {

// The fill of a shape. Setting its colour makes it visible, as in Excel.
class FillFormat : public Object {
public:
    virtual std::shared_ptr<excel::ColorFormat> ForeColor() = 0;
    virtual int32_t Visible() = 0;  // an MsoTriState
    virtual void SetVisible(int32_t visible) = 0;
    virtual double Transparency() = 0;  // 0 (opaque) to 1
    virtual void SetTransparency(double transparency) = 0;
};

}  // namespace excel
