#pragma once

#include "excel/embedded/model/worksheet_model.hpp"

#include <excel/shapes.hpp>

namespace excel::embedded {

class ShapesView final : public excel::Shapes {
public:
    explicit ShapesView(std::shared_ptr<WorksheetModel> sheet) : sheet_(std::move(sheet)) {}

    std::shared_ptr<excel::Worksheet> Parent() override;
    int32_t Count() override;
    std::shared_ptr<excel::Shape> Item(const Variant& index) override;
    // A text box as Excel makes one: white fill (lt1), a thin outline of lt1 darkened by half,
    // text in the theme's minor font at 11 points, moved and sized with cells.
    std::shared_ptr<excel::Shape> AddTextbox(int32_t orientation, double left, double top, double width,
                                             double height) override;

private:
    WorksheetModel& sheet() const;

    std::shared_ptr<WorksheetModel> sheet_;
};

}  // namespace excel::embedded
