#include "excel/embedded/window.hpp"

#include "excel/embedded/application.hpp"
#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/workbook.hpp"
#include "excel/embedded/worksheet.hpp"

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
