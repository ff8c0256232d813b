#include "excel/embedded/objects/book/sheets_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/book/application_view.hpp"
#include "excel/embedded/objects/book/workbook_view.hpp"
#include "excel/embedded/objects/book/worksheet_view.hpp"

#include <excel/automation_error.hpp>

namespace excel::embedded {

namespace {

// The place among all the workbook's sheets of a sheet given as Before or After, which must be a
// sheet of this workbook: new sheets go next to it whatever sheets are around it.
size_t PlaceOf(const WorkbookModel& book, const Variant& sheet) {
    const auto view = sheet.As<WorksheetView>();
    const int32_t place = view ? book.PlaceOf(view->Model()) : -1;
    if (place < 0) {
        ThrowRefused("Method 'Add' of object 'Sheets' failed");
    }
    return static_cast<size_t>(place);
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
    const WorkbookModel& book = model();
    return static_cast<int32_t>(listing_ == Listing::AllSheets ? book.AllSheets().size() : book.Sheets().size());
}

// Worksheets finds worksheets only. Sheets finds every sheet, but a chart sheet or another sheet
// that is not a worksheet cannot be given as a Worksheet: asking for one is a type mismatch.
std::shared_ptr<excel::Worksheet> SheetsView::Item(const Variant& index) {
    WorkbookModel& book = model();
    const WorkbookModel::SheetSlot* slot = nullptr;
    std::shared_ptr<WorksheetModel> sheet;
    if (index.IsString()) {
        if (listing_ == Listing::AllSheets) {
            slot = book.FindAnySheet(index.ToString());
        } else {
            sheet = book.FindSheet(index.ToString());
        }
    } else {
        const int32_t position = index.ToInt();
        if (position >= 1 && position <= Count()) {
            const auto at = static_cast<size_t>(position - 1);
            if (listing_ == Listing::AllSheets) {
                slot = &book.AllSheets()[at];
            } else {
                sheet = book.Sheets()[at];
            }
        }
    }
    if (slot != nullptr) {
        if (!slot->worksheet) {
            ThrowTypeMismatch();
        }
        sheet = slot->worksheet;
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
    size_t place = 0;
    if (!before.IsEmpty()) {
        place = PlaceOf(book, before);
    } else if (!after.IsEmpty()) {
        place = PlaceOf(book, after) + 1;
    } else if (book.ActiveSheet() != nullptr) {
        place = static_cast<size_t>(book.PlaceOf(*book.ActiveSheet()));
    }
    auto added = book.AddSheets(place, sheets);
    book.App().ActivateWorkbook(book);
    return std::make_shared<WorksheetView>(added);
}

}  // namespace excel::embedded
