#pragma once

#include "excel/embedded/model/shapes/shape_handle.hpp"

#include <excel/fill_format.hpp>

namespace excel::embedded {

class FillFormatView final : public excel::FillFormat {
public:
    explicit FillFormatView(ShapeHandle shape) : shape_(std::move(shape)) {}

    std::shared_ptr<excel::ColorFormat> ForeColor() override;
    int32_t Visible() override;
    void SetVisible(int32_t visible) override;
    double Transparency() override;
    void SetTransparency(double transparency) override;

private:
    ShapeHandle shape_;
};

}  // namespace excel::embedded
