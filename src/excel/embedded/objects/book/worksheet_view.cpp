#include "excel/embedded/objects/book/worksheet_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/charts/chart_object_view.hpp"
#include "excel/embedded/objects/book/application_view.hpp"
#include "excel/embedded/objects/book/expression_evaluator.hpp"
#include "excel/embedded/objects/book/names_view.hpp"
#include "excel/embedded/objects/book/page_setup_view.hpp"
#include "excel/embedded/objects/book/workbook_view.hpp"
#include "excel/embedded/objects/range/range_view.hpp"
#include "excel/embedded/objects/shapes/shapes_view.hpp"

#include <algorithm>

namespace excel::embedded {

WorksheetModel& WorksheetView::Model() const {
    model_->Book();
    return *model_;
}

std::shared_ptr<excel::Application> WorksheetView::Application() {
    return std::make_shared<ApplicationView>(model_->Book().App().shared_from_this());
}

std::shared_ptr<excel::Workbook> WorksheetView::Parent() {
    return std::make_shared<WorkbookView>(model_->Book().shared_from_this());
}

std::string WorksheetView::Name() {
    return Model().Name();
}

void WorksheetView::SetName(const std::string& name) {
    model_->Book().RenameSheet(*model_, name);
}

// The place among all the workbook's sheets, chart sheets included, as Excel counts it.
int32_t WorksheetView::Index() {
    return model_->Book().PlaceOf(*model_) + 1;
}

int32_t WorksheetView::Visible() {
    return Model().Settings().visibility;
}

void WorksheetView::SetVisible(int32_t visibility) {
    model_->Book().SetSheetVisibility(*model_, visibility);
}

std::shared_ptr<excel::Range> WorksheetView::Cells() {
    Model();
    return RangeView::Make(model_, {CellBlock{1, 1, MaxRow, MaxColumn}});
}

std::shared_ptr<excel::Range> WorksheetView::Cells(int32_t row, int32_t column) {
    Model();
    return RangeView::Make(model_, {CellBlock{row, column, row, column}});
}

std::shared_ptr<excel::Range> WorksheetView::Rows() {
    Model();
    return RangeView::Make(model_, {CellBlock{1, 1, MaxRow, MaxColumn}}, RangeView::Listing::Rows);
}

std::shared_ptr<excel::Range> WorksheetView::Rows(int32_t index) {
    Model();
    return RangeView::Make(model_, {CellBlock{index, 1, index, MaxColumn}}, RangeView::Listing::Rows);
}

std::shared_ptr<excel::Range> WorksheetView::Columns() {
    Model();
    return RangeView::Make(model_, {CellBlock{1, 1, MaxRow, MaxColumn}}, RangeView::Listing::Columns);
}

std::shared_ptr<excel::Range> WorksheetView::Columns(int32_t index) {
    Model();
    return RangeView::Make(model_, {CellBlock{1, index, MaxRow, index}}, RangeView::Listing::Columns);
}

std::shared_ptr<excel::Range> WorksheetView::Range(const std::string& address) {
    WorkbookModel& book = model_->Book();
    if (auto parsed = ParseA1Reference(address)) {
        if (!parsed->sheet.empty() && book.FindSheet(parsed->sheet).get() != model_.get()) {
            ThrowRefused("Method 'Range' of object '_Worksheet' failed");
        }
        return RangeView::Make(model_, std::move(parsed->areas));
    }
    // A defined name referring to cells of this sheet.
    const Variant evaluated = EvaluateExpression(model_, address);
    if (evaluated.IsObject()) {
        if (auto range = evaluated.As<RangeView>(); range && range->Target().Sheet() == model_) {
            return range;
        }
    }
    ThrowRefused("Method 'Range' of object '_Worksheet' failed");
}

std::shared_ptr<excel::Range> WorksheetView::Range(const std::shared_ptr<excel::Range>& cell1,
                                                   const std::shared_ptr<excel::Range>& cell2) {
    Model();
    const auto* first = dynamic_cast<const RangeView*>(cell1.get());
    const auto* second = dynamic_cast<const RangeView*>(cell2.get());
    if (!first || !second || first->Target().Sheet() != model_ || second->Target().Sheet() != model_) {
        ThrowRefused("Method 'Range' of object '_Worksheet' failed");
    }
    CellBlock box = first->Target().Areas().front();
    for (const auto* part : {first, second}) {
        for (const CellBlock& area : part->Target().Areas()) {
            box = CellBlock{std::min(box.top, area.top), std::min(box.left, area.left),
                            std::max(box.bottom, area.bottom), std::max(box.right, area.right)};
        }
    }
    return RangeView::Make(model_, {box});
}

std::shared_ptr<excel::Range> WorksheetView::UsedRange() {
    const WorksheetModel& sheet = Model();
    std::optional<CellBlock> used;
    auto include = [&](int32_t row, int32_t column) {
        used = used ? CellBlock{std::min(used->top, row), std::min(used->left, column), std::max(used->bottom, row),
                                std::max(used->right, column)}
                    : CellBlock{row, column, row, column};
    };
    for (const RowData& row : sheet.Cells().Rows()) {
        if (!row.cells.empty()) {
            include(row.index, row.cells.front().column);
            include(row.index, row.cells.back().column);
        }
    }
    for (const CellBlock& merge : sheet.Merges()) {
        include(merge.top, merge.left);
        include(merge.bottom, merge.right);
    }
    return RangeView::Make(model_, {used.value_or(CellBlock{1, 1, 1, 1})});
}

std::shared_ptr<excel::Names> WorksheetView::Names() {
    return std::make_shared<NamesView>(model_->Book().shared_from_this(), model_);
}

Variant WorksheetView::Evaluate(const std::string& expression) {
    Model();
    return EvaluateExpression(model_, expression);
}

std::shared_ptr<excel::Shapes> WorksheetView::Shapes() {
    Model();
    return std::make_shared<ShapesView>(model_);
}

std::shared_ptr<excel::ChartObjects> WorksheetView::ChartObjects() {
    Model();
    return std::make_shared<ChartObjectsView>(model_);
}

std::shared_ptr<excel::ChartObject> WorksheetView::ChartObjects(const Variant& index) {
    return ChartObjects()->Item(index);
}

std::shared_ptr<excel::PageSetup> WorksheetView::PageSetup() {
    Model();
    return std::make_shared<PageSetupView>(model_);
}

bool WorksheetView::DisplayPageBreaks() {
    return Model().Settings().showPageBreaks;
}

void WorksheetView::SetDisplayPageBreaks(bool display) {
    Model().Settings().showPageBreaks = display;
}

double WorksheetView::StandardWidth() {
    return Model().Settings().standardWidth;
}

double WorksheetView::StandardHeight() {
    return Model().Settings().defaultRowHeight;
}

void WorksheetView::Activate() {
    WorkbookModel& book = model_->Book();
    book.ActivateSheet(*model_);
    book.App().ActivateWorkbook(book);
}

void WorksheetView::Select() {
    Activate();
}

void WorksheetView::Delete() {
    model_->Book().DeleteSheet(*model_);
}

}  // namespace excel::embedded
