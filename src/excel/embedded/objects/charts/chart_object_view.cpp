#include "excel/embedded/objects/charts/chart_object_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/book/worksheet_view.hpp"
#include "excel/embedded/text/utf8_text.hpp"

namespace excel::embedded {

namespace {

[[noreturn]] void RefuseIndex() {
    ThrowRefused("Unable to get the ChartObjects property of the Worksheet class");
}

}  // namespace

std::vector<std::shared_ptr<ShapeModel>> ChartObjectsView::charts() const {
    sheet_->Book();
    std::vector<std::shared_ptr<ShapeModel>> found;
    for (const auto& shape : sheet_->Shapes().All()) {
        if (shape->chart != nullptr) {
            found.push_back(shape);
        }
    }
    return found;
}

std::shared_ptr<excel::Worksheet> ChartObjectsView::Parent() {
    sheet_->Book();
    return std::make_shared<WorksheetView>(sheet_);
}

int32_t ChartObjectsView::Count() {
    return static_cast<int32_t>(charts().size());
}

std::shared_ptr<excel::ChartObject> ChartObjectsView::Item(const Variant& index) {
    const auto all = charts();
    if (index.Type() == VarType::String) {
        const std::string name = index.ToString();
        for (const auto& shape : all) {
            if (EqualsIgnoringCase(shape->name, name)) {
                return std::make_shared<ChartObjectView>(ShapeHandle{sheet_, shape});
            }
        }
        RefuseIndex();
    }
    const int32_t position = index.IsEmpty() ? 0 : index.ToInt();
    if (position < 1 || position > static_cast<int32_t>(all.size())) {
        RefuseIndex();
    }
    return std::make_shared<ChartObjectView>(ShapeHandle{sheet_, all[static_cast<size_t>(position - 1)]});
}

}  // namespace excel::embedded
