#pragma once

#include "excel/embedded/model/shapes/shape_handle.hpp"
#include "excel/embedded/model/worksheet_model.hpp"

#include <excel/shapes.hpp>

namespace excel::embedded {

// The shapes of a sheet, or of a chart on it (placed from the chart area's corner).
class ShapesView final : public excel::Shapes {
public:
    explicit ShapesView(std::shared_ptr<WorksheetModel> sheet, std::shared_ptr<ShapeModel> chartFrame = nullptr)
        : sheet_(std::move(sheet)), chartFrame_(std::move(chartFrame)) {}

    std::shared_ptr<excel::Worksheet> Parent() override;
    int32_t Count() override;
    std::shared_ptr<excel::Shape> Item(const Variant& index) override;
    // A text box as Excel makes one: white fill (lt1), a thin outline of lt1 darkened by half,
    // text in the theme's minor font at 11 points, moved and sized with cells.
    // In a chart, a text box as Excel adds one there: no fill and no outline, sized with the chart.
    std::shared_ptr<excel::Shape> AddTextbox(int32_t orientation, double left, double top, double width,
                                             double height) override;
    // Excel's new chart of the type (refused for a type the engine does not draw, and in a chart):
    // moved and sized with cells, named "Chart n".
    std::shared_ptr<excel::Shape> AddChart(int32_t type, double left, double top, double width,
                                           double height) override;

private:
    WorksheetModel& sheet() const;
    ShapeList& list() const;
    ShapeHandle handle(std::shared_ptr<ShapeModel> shape) const;

    std::shared_ptr<WorksheetModel> sheet_;
    std::shared_ptr<ShapeModel> chartFrame_;
};

}  // namespace excel::embedded
