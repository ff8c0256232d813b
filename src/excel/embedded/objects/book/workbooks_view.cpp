#include "excel/embedded/objects/book/workbooks_view.hpp"

#include "excel/embedded/document/workbook_file.hpp"
#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/book/application_view.hpp"
#include "excel/embedded/objects/book/workbook_view.hpp"

#include <excel/automation_error.hpp>

namespace excel::embedded {

std::shared_ptr<excel::Application> WorkbooksView::Application() {
    return std::make_shared<ApplicationView>(model_);
}

int32_t WorkbooksView::Count() {
    return static_cast<int32_t>(model_->Workbooks().size());
}

std::shared_ptr<excel::Workbook> WorkbooksView::Item(const Variant& index) {
    std::shared_ptr<WorkbookModel> book;
    if (index.IsString()) {
        book = model_->FindWorkbook(index.ToString());
    } else {
        const int32_t position = index.ToInt();
        if (position >= 1 && position <= Count()) {
            book = model_->Workbooks()[static_cast<size_t>(position - 1)];
        }
    }
    if (!book) {
        ThrowRuntimeError(9);
    }
    return std::make_shared<WorkbookView>(book);
}

std::shared_ptr<excel::Workbook> WorkbooksView::Add(const Variant&) {
    return std::make_shared<WorkbookView>(model_->AddWorkbook());
}

std::shared_ptr<excel::Workbook> WorkbooksView::Open(const std::string& fileName) {
    return std::make_shared<WorkbookView>(OpenWorkbookFile(*model_, fileName));
}

}  // namespace excel::embedded
