#include "excel/embedded/objects/book/page_setup_view.hpp"

#include "excel/embedded/model/workbook_model.hpp"
#include "excel/embedded/objects/book/worksheet_view.hpp"

namespace excel::embedded {

std::shared_ptr<excel::Worksheet> PageSetupView::Parent() {
    sheet_->Book();
    return std::make_shared<WorksheetView>(sheet_);
}

bool PageSetupView::PrintGridlines() {
    sheet_->Book();
    return sheet_->Settings().printGridlines;
}

void PageSetupView::SetPrintGridlines(bool print) {
    sheet_->Book().SetSaved(false);
    sheet_->Settings().printGridlines = print;
}

}  // namespace excel::embedded
