#include "excel/embedded/objects/book/sheets_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/book/application_view.hpp"
#include "excel/embedded/objects/book/workbook_view.hpp"
#include "excel/embedded/objects/book/worksheet_view.hpp"

#include <excel/automation_error.hpp>

namespace excel::embedded {

namespace {

// The position of a sheet given as Before or After, which must be a sheet of this workbook.
size_t PositionOf(const WorkbookModel& book, const Variant& sheet) {
    const auto view = sheet.As<WorksheetView>();
    const int32_t position = view ? book.SheetPosition(view->Model()) : -1;
    if (position < 0) {
        ThrowRefused("Method 'Add' of object 'Sheets' failed");
    }
    return static_cast<size_t>(position);
}

}  // namespace

WorkbookModel& SheetsView::model() const {
    if (!model_->Alive()) {
        ThrowObjectRequired();
    }
    return *model_;
}

std::shared_ptr<excel::Application> SheetsView::Application() {
    return std::make_shared<ApplicationView>(model().App().shared_from_this());
}

std::shared_ptr<excel::Workbook> SheetsView::Parent() {
    model();
    return std::make_shared<WorkbookView>(model_);
}

int32_t SheetsView::Count() {
    return static_cast<int32_t>(model().Sheets().size());
}

std::shared_ptr<excel::Worksheet> SheetsView::Item(const Variant& index) {
    WorkbookModel& book = model();
    std::shared_ptr<WorksheetModel> sheet;
    if (index.IsString()) {
        sheet = book.FindSheet(index.ToString());
    } else {
        const int32_t position = index.ToInt();
        if (position >= 1 && position <= Count()) {
            sheet = book.Sheets()[static_cast<size_t>(position - 1)];
        }
    }
    if (!sheet) {
        ThrowRuntimeError(9);
    }
    return std::make_shared<WorksheetView>(sheet);
}

std::shared_ptr<excel::Worksheet> SheetsView::Add(const Variant& before, const Variant& after, const Variant& count) {
    WorkbookModel& book = model();
    const int32_t sheets = count.IsEmpty() ? 1 : count.ToInt();
    if (sheets < 1 || (!before.IsEmpty() && !after.IsEmpty())) {
        ThrowRefused("Method 'Add' of object 'Sheets' failed");
    }
    size_t position = 0;
    if (!before.IsEmpty()) {
        position = PositionOf(book, before);
    } else if (!after.IsEmpty()) {
        position = PositionOf(book, after) + 1;
    } else if (book.ActiveSheet() != nullptr) {
        position = static_cast<size_t>(book.SheetPosition(*book.ActiveSheet()));
    }
    auto added = book.AddSheets(position, sheets);
    book.App().ActivateWorkbook(book);
    return std::make_shared<WorksheetView>(added);
}

}  // namespace excel::embedded
