#pragma once

#include "excel/embedded/model/shapes/shape_handle.hpp"

#include <excel/text_frame.hpp>

namespace excel::embedded {

class TextFrameView final : public excel::TextFrame {
public:
    explicit TextFrameView(ShapeHandle shape) : shape_(std::move(shape)) {}

    std::shared_ptr<excel::Characters> Characters(const Variant& start, const Variant& length) override;

    bool AutoMargins() override;
    void SetAutoMargins(bool automatic) override;
    double MarginLeft() override;
    void SetMarginLeft(double points) override;
    double MarginRight() override;
    void SetMarginRight(double points) override;
    double MarginTop() override;
    void SetMarginTop(double points) override;
    double MarginBottom() override;
    void SetMarginBottom(double points) override;

    bool AutoSize() override;
    void SetAutoSize(bool autoSize) override;

    int32_t HorizontalAlignment() override;
    void SetHorizontalAlignment(int32_t alignment) override;
    int32_t VerticalAlignment() override;
    void SetVerticalAlignment(int32_t alignment) override;

private:
    // Sets one margin; the others keep the values shown, automatic margins switch off.
    void setMargin(double TextMargins::*margin, double points);

    ShapeHandle shape_;
};

}  // namespace excel::embedded
