#include "excel/embedded/objects/book/window_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/book/application_view.hpp"
#include "excel/embedded/objects/book/workbook_view.hpp"
#include "excel/embedded/objects/book/worksheet_view.hpp"

namespace excel::embedded {

WorksheetModel& WindowView::activeSheet() const {
    if (!model_->Alive() || model_->ActiveSheet() == nullptr) {
        ThrowObjectRequired();
    }
    return *model_->ActiveSheet();
}

std::shared_ptr<excel::Application> WindowView::Application() {
    activeSheet();
    return std::make_shared<ApplicationView>(model_->App().shared_from_this());
}

std::shared_ptr<excel::Workbook> WindowView::Parent() {
    activeSheet();
    return std::make_shared<WorkbookView>(model_);
}

std::shared_ptr<excel::Worksheet> WindowView::ActiveSheet() {
    return std::make_shared<WorksheetView>(activeSheet().shared_from_this());
}

bool WindowView::DisplayGridlines() {
    return activeSheet().Settings().showGridlines;
}

void WindowView::SetDisplayGridlines(bool display) {
    activeSheet().Settings().showGridlines = display;
    model_->SetSaved(false);
}

}  // namespace excel::embedded
