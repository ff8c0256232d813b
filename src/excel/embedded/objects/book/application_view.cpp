#include "excel/embedded/objects/book/application_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/book/window_view.hpp"
#include "excel/embedded/objects/book/workbook_view.hpp"
#include "excel/embedded/objects/book/workbooks_view.hpp"
#include "excel/embedded/objects/book/worksheet_view.hpp"
#include "excel/embedded/objects/range/range_view.hpp"

#include <excel/embedded.hpp>

namespace excel::embedded {

std::shared_ptr<excel::Application> CreateApplication() {
    return std::make_shared<ApplicationView>(std::make_shared<ApplicationModel>());
}

std::shared_ptr<excel::Workbooks> ApplicationView::Workbooks() {
    return std::make_shared<WorkbooksView>(model_);
}

std::shared_ptr<excel::Workbook> ApplicationView::Workbooks(const Variant& index) {
    return Workbooks()->Item(index);
}

std::shared_ptr<excel::Workbook> ApplicationView::ActiveWorkbook() {
    WorkbookModel* book = model_->ActiveWorkbook();
    return book ? std::make_shared<WorkbookView>(book->shared_from_this()) : nullptr;
}

std::shared_ptr<excel::Worksheet> ApplicationView::ActiveSheet() {
    WorkbookModel* book = model_->ActiveWorkbook();
    WorksheetModel* sheet = book ? book->ActiveSheet() : nullptr;
    return sheet ? std::make_shared<WorksheetView>(sheet->shared_from_this()) : nullptr;
}

std::shared_ptr<excel::Window> ApplicationView::ActiveWindow() {
    WorkbookModel* book = model_->ActiveWorkbook();
    return book ? std::make_shared<WindowView>(book->shared_from_this()) : nullptr;
}

int32_t ApplicationView::SheetsInNewWorkbook() {
    return model_->SheetsInNewWorkbook();
}

void ApplicationView::SetSheetsInNewWorkbook(int32_t count) {
    model_->SetSheetsInNewWorkbook(count);
}

std::string ApplicationView::UserName() {
    return model_->userName;
}

void ApplicationView::SetUserName(const std::string& name) {
    model_->userName = name;
}

bool ApplicationView::DisplayAlerts() {
    return model_->displayAlerts;
}

void ApplicationView::SetDisplayAlerts(bool display) {
    model_->displayAlerts = display;
}

std::string ApplicationView::Version() {
    return "16.0";
}

std::shared_ptr<excel::Range> ApplicationView::Union(const std::shared_ptr<excel::Range>& arg1,
                                                     const std::shared_ptr<excel::Range>& arg2,
                                                     const std::vector<std::shared_ptr<excel::Range>>& more) {
    std::vector<std::shared_ptr<excel::Range>> ranges{arg1, arg2};
    ranges.insert(ranges.end(), more.begin(), more.end());
    std::shared_ptr<WorksheetModel> sheet;
    std::vector<CellBlock> areas;
    for (const auto& range : ranges) {
        const auto* view = dynamic_cast<const RangeView*>(range.get());
        if (view == nullptr) {
            ThrowRefused("Method 'Union' of object '_Application' failed");
        }
        view->Target().Book();
        if (sheet && view->Target().Sheet() != sheet) {
            ThrowRefused("Method 'Union' of object '_Application' failed");
        }
        sheet = view->Target().Sheet();
        const std::vector<CellBlock>& viewAreas = view->Target().Areas();
        areas.insert(areas.end(), viewAreas.begin(), viewAreas.end());
    }
    return std::make_shared<RangeView>(RangeCells{sheet, std::move(areas)});
}

}  // namespace excel::embedded
