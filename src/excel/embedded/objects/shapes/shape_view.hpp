#pragma once

#include "excel/embedded/model/shapes/shape_handle.hpp"

#include <excel/shape.hpp>

namespace excel::embedded {

class ShapeView final : public excel::Shape {
public:
    explicit ShapeView(ShapeHandle shape) : shape_(std::move(shape)) {}

    std::shared_ptr<excel::Worksheet> Parent() override;
    std::string Name() override;
    void SetName(const std::string& name) override;
    int32_t Type() override;
    int32_t ID() override;

    double Left() override;
    void SetLeft(double points) override;
    double Top() override;
    void SetTop(double points) override;
    double Width() override;
    void SetWidth(double points) override;
    double Height() override;
    void SetHeight(double points) override;
    int32_t Placement() override;
    void SetPlacement(int32_t placement) override;
    int32_t Visible() override;
    void SetVisible(int32_t visible) override;

    std::shared_ptr<excel::FillFormat> Fill() override;
    std::shared_ptr<excel::LineFormat> Line() override;
    std::shared_ptr<excel::TextFrame> TextFrame() override;
    std::shared_ptr<excel::TextFrame2> TextFrame2() override;
    std::shared_ptr<excel::Chart> Chart() override;

    std::shared_ptr<excel::Range> TopLeftCell() override;
    std::shared_ptr<excel::Range> BottomRightCell() override;

    std::string OnAction() override;
    void SetOnAction(const std::string& macro) override;

    void Delete() override;

    const void* Identity() const override { return shape_.Identity(); }

private:
    // Changes the bounds; sizes are refused below zero.
    void reshape(double ShapeBounds::*member, double points, bool isSize);
    std::shared_ptr<excel::Range> cellAt(double x, double y);

    ShapeHandle shape_;
};

}  // namespace excel::embedded
