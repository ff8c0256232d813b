#include "excel/embedded/objects/shapes/shapes_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/model/charts/chart_model.hpp"
#include "excel/embedded/model/shapes/shape_placement.hpp"
#include "excel/embedded/model/workbook_model.hpp"
#include "excel/embedded/objects/book/worksheet_view.hpp"
#include "excel/embedded/objects/shapes/shape_view.hpp"
#include "excel/embedded/text/utf8_text.hpp"

namespace excel::embedded {

namespace {

constexpr int32_t lastTextOrientation = 6;  // msoTextOrientationHorizontalRotatedFarEast
constexpr int32_t themeLight1 = 0;          // the file's theme index of lt1
constexpr double outlineShade = -0.5;

[[noreturn]] void RefuseIndex() {
    ThrowRefused("The index into the specified collection is out of bounds.");
}

}  // namespace

WorksheetModel& ShapesView::sheet() const {
    sheet_->Book();
    if (chartFrame_ != nullptr && chartFrame_->deleted) {
        ThrowObjectRequired();
    }
    return *sheet_;
}

ShapeList& ShapesView::list() const {
    WorksheetModel& model = sheet();
    return chartFrame_ != nullptr ? chartFrame_->chart->shapes : model.Shapes();
}

ShapeHandle ShapesView::handle(std::shared_ptr<ShapeModel> shape) const {
    return ShapeHandle{sheet_, std::move(shape), chartFrame_};
}

std::shared_ptr<excel::Worksheet> ShapesView::Parent() {
    sheet();
    return std::make_shared<WorksheetView>(sheet_);
}

int32_t ShapesView::Count() {
    return static_cast<int32_t>(list().All().size());
}

std::shared_ptr<excel::Shape> ShapesView::Item(const Variant& index) {
    const auto& shapes = list().All();
    if (index.Type() == VarType::String) {
        const std::string name = index.ToString();
        for (const auto& shape : shapes) {
            if (EqualsIgnoringCase(shape->name, name)) {
                return std::make_shared<ShapeView>(handle(shape));
            }
        }
        RefuseIndex();
    }
    if (index.IsEmpty()) {
        RefuseIndex();
    }
    const int32_t position = index.ToInt();
    if (position < 1 || position > static_cast<int32_t>(shapes.size())) {
        RefuseIndex();
    }
    return std::make_shared<ShapeView>(handle(shapes[static_cast<size_t>(position - 1)]));
}

std::shared_ptr<excel::Shape> ShapesView::AddTextbox(int32_t orientation, double left, double top, double width,
                                                     double height) {
    WorksheetModel& model = sheet();
    if (orientation < msoTextOrientationHorizontal || orientation > lastTextOrientation || !(width >= 0.0) ||
        !(height >= 0.0)) {
        ThrowRefused("The specified value is out of range.");
    }
    auto shape = list().Add(msoTextBox);
    if (chartFrame_ != nullptr) {
        shape->inChart = true;
        shape->fill.visible = false;
        shape->line.visible = false;
    } else {
        shape->fill.color = ShapeColorFromThemeIndex(themeLight1, 0.0);
        shape->line.color = ShapeColorFromThemeIndex(themeLight1, outlineShade);
    }
    Place(model, *shape, ShapeBounds{left, top, width, height});
    model.Book().SetSaved(false);
    return std::make_shared<ShapeView>(handle(shape));
}

std::shared_ptr<excel::Shape> ShapesView::AddChart(int32_t type, double left, double top, double width,
                                                   double height) {
    WorksheetModel& model = sheet();
    if (chartFrame_ != nullptr || !(width >= 0.0) || !(height >= 0.0)) {
        ThrowRefused("The specified value is out of range.");
    }
    auto chart = std::make_shared<ChartModel>(type);
    auto shape = model.Shapes().Add(msoChart);
    shape->chart = std::move(chart);
    Place(model, *shape, ShapeBounds{left, top, width, height});
    model.Book().SetSaved(false);
    return std::make_shared<ShapeView>(ShapeHandle{sheet_, shape});
}

}  // namespace excel::embedded
