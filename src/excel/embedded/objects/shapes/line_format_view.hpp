#pragma once

#include "excel/embedded/model/shapes/shape_handle.hpp"

#include <excel/line_format.hpp>

namespace excel::embedded {

class LineFormatView final : public excel::LineFormat {
public:
    explicit LineFormatView(ShapeHandle shape) : shape_(std::move(shape)) {}

    std::shared_ptr<excel::ColorFormat> ForeColor() override;
    double Weight() override;
    void SetWeight(double points) override;
    int32_t Visible() override;
    void SetVisible(int32_t visible) override;

private:
    ShapeHandle shape_;
};

}  // namespace excel::embedded
