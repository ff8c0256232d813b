#pragma once

#include "excel/embedded/model/shapes/shape_handle.hpp"

#include <excel/text_frame2.hpp>

namespace excel::embedded {

class TextFrame2View final : public excel::TextFrame2 {
public:
    explicit TextFrame2View(ShapeHandle shape) : shape_(std::move(shape)) {}

    int32_t WordWrap() override;
    void SetWordWrap(int32_t wrap) override;

private:
    ShapeHandle shape_;
};

}  // namespace excel::embedded
