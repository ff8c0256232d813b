#pragma once

#include "excel/embedded/objects/shapes/shape_view.hpp"

#include <excel/chart_object.hpp>
#include <excel/chart_objects.hpp>

namespace excel::embedded {

// The container of a chart on a sheet: the chart's shape seen as Excel's ChartObject.
class ChartObjectView final : public excel::ChartObject {
public:
    explicit ChartObjectView(ShapeHandle frame) : frame_(frame), shape_(std::move(frame)) {}

    std::shared_ptr<excel::Worksheet> Parent() override { return shape_.Parent(); }
    std::string Name() override { return shape_.Name(); }
    void SetName(const std::string& name) override { shape_.SetName(name); }
    std::shared_ptr<excel::Chart> Chart() override { return shape_.Chart(); }

    double Left() override { return shape_.Left(); }
    void SetLeft(double points) override { shape_.SetLeft(points); }
    double Top() override { return shape_.Top(); }
    void SetTop(double points) override { shape_.SetTop(points); }
    double Width() override { return shape_.Width(); }
    void SetWidth(double points) override { shape_.SetWidth(points); }
    double Height() override { return shape_.Height(); }
    void SetHeight(double points) override { shape_.SetHeight(points); }
    int32_t Placement() override { return shape_.Placement(); }
    void SetPlacement(int32_t placement) override { shape_.SetPlacement(placement); }

    std::shared_ptr<excel::Range> TopLeftCell() override { return shape_.TopLeftCell(); }
    std::shared_ptr<excel::Range> BottomRightCell() override { return shape_.BottomRightCell(); }

    void Delete() override { shape_.Delete(); }

    const void* Identity() const override { return frame_.Identity(); }

private:
    ShapeHandle frame_;
    ShapeView shape_;
};

// The charts of a sheet, in z-order.
class ChartObjectsView final : public excel::ChartObjects {
public:
    explicit ChartObjectsView(std::shared_ptr<WorksheetModel> sheet) : sheet_(std::move(sheet)) {}

    std::shared_ptr<excel::Worksheet> Parent() override;
    int32_t Count() override;
    std::shared_ptr<excel::ChartObject> Item(const Variant& index) override;

private:
    std::vector<std::shared_ptr<ShapeModel>> charts() const;

    std::shared_ptr<WorksheetModel> sheet_;
};

}  // namespace excel::embedded
