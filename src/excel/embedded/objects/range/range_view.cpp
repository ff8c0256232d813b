#include "excel/embedded/objects/range/range_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/model/application_model.hpp"
#include "excel/embedded/model/names/sheet_name_rules.hpp"
#include "excel/embedded/model/shapes/cell_comments.hpp"
#include "excel/embedded/objects/book/application_view.hpp"
#include "excel/embedded/objects/book/worksheet_view.hpp"
#include "excel/embedded/objects/range/areas_view.hpp"
#include "excel/embedded/objects/range/borders_view.hpp"
#include "excel/embedded/objects/range/cell_rich_text.hpp"
#include "excel/embedded/objects/range/characters_view.hpp"
#include "excel/embedded/objects/range/font_view.hpp"
#include "excel/embedded/objects/range/interior_view.hpp"
#include "excel/embedded/objects/shapes/comment_view.hpp"

#include <excel/automation_error.hpp>
#include <excel/constants.hpp>

#include <limits>

namespace excel::embedded {

namespace {

bool InSheet(const CellBlock& block) {
    return block.top >= 1 && block.left >= 1 && block.bottom <= MaxRow && block.right <= MaxColumn &&
           block.top <= block.bottom && block.left <= block.right;
}

class RangeFontTarget final : public FontTarget {
public:
    explicit RangeFontTarget(RangeCells cells) : cells_(std::move(cells)) {}

    std::vector<FontFormat> Fonts() override {
        const WorkbookModel& book = cells_.Book();
        std::vector<FontFormat> fonts;
        for (uint32_t id : cells_.DistinctFormats()) {
            fonts.push_back(book.Formats().Get(id).font);
        }
        return fonts;
    }
    void EditFonts(const std::function<void(FontFormat&)>& edit) override {
        cells_.EditFormats([&](CellFormat& format) { edit(format.font); });
    }
    const WorkbookColors& Colors() override { return cells_.Book().Colors(); }

private:
    RangeCells cells_;
};

}  // namespace

std::shared_ptr<RangeView> RangeView::Make(const std::shared_ptr<WorksheetModel>& sheet, std::vector<CellBlock> areas,
                                           Listing listing) {
    for (const CellBlock& area : areas) {
        if (!InSheet(area)) {
            ThrowRefused();
        }
    }
    return std::make_shared<RangeView>(RangeCells{sheet, std::move(areas)}, listing);
}

std::shared_ptr<RangeView> RangeView::relative(int32_t top, int32_t left, int32_t bottom, int32_t right) const {
    book();
    return Make(cells_.Sheet(), {CellBlock{top, left, bottom, right}});
}

std::shared_ptr<excel::Application> RangeView::Application() {
    return std::make_shared<ApplicationView>(book().App().shared_from_this());
}

std::shared_ptr<excel::Worksheet> RangeView::Parent() {
    return Worksheet();
}

std::shared_ptr<excel::Worksheet> RangeView::Worksheet() {
    book();
    return std::make_shared<WorksheetView>(cells_.Sheet());
}

std::shared_ptr<excel::Range> RangeView::Cells() {
    book();
    return std::make_shared<RangeView>(cells_);
}

std::shared_ptr<excel::Range> RangeView::Cells(int32_t row, int32_t column) {
    const int32_t top = first().top + row - 1;
    const int32_t left = first().left + column - 1;
    return relative(top, left, top, left);
}

std::shared_ptr<excel::Range> RangeView::Cells(int32_t index) {
    if (index < 1) {
        book();
        ThrowRefused();
    }
    const int32_t columns = first().Columns();
    const int32_t offset = index - 1;
    return Cells(offset / columns + 1, offset % columns + 1);
}

std::shared_ptr<excel::Range> RangeView::Item(int32_t row, int32_t column) {
    return Cells(row, column);
}

std::shared_ptr<excel::Range> RangeView::Rows() {
    book();
    return std::make_shared<RangeView>(cells_, Listing::Rows);
}

std::shared_ptr<excel::Range> RangeView::Rows(int32_t index) {
    const int32_t row = first().top + index - 1;
    return relative(row, first().left, row, first().right);
}

std::shared_ptr<excel::Range> RangeView::Columns() {
    book();
    return std::make_shared<RangeView>(cells_, Listing::Columns);
}

std::shared_ptr<excel::Range> RangeView::Columns(int32_t index) {
    const int32_t column = first().left + index - 1;
    return relative(first().top, column, first().bottom, column);
}

std::shared_ptr<excel::Range> RangeView::GetRange(const std::string& address) {
    book();
    const auto parsed = ParseA1Reference(address);
    if (!parsed || !parsed->sheet.empty()) {
        ThrowRefused("Method 'Range' of object 'Range' failed");
    }
    std::vector<CellBlock> areas;
    for (const CellBlock& area : parsed->areas) {
        areas.push_back(CellBlock{area.top + first().top - 1, area.left + first().left - 1,
                                  area.bottom + first().top - 1, area.right + first().left - 1});
    }
    return Make(cells_.Sheet(), std::move(areas));
}

std::shared_ptr<excel::Areas> RangeView::Areas() {
    book();
    return std::make_shared<AreasView>(cells_);
}

std::shared_ptr<excel::Range> RangeView::EntireRow() {
    book();
    std::vector<CellBlock> areas;
    for (const CellBlock& area : cells_.Areas()) {
        areas.push_back(CellBlock{area.top, 1, area.bottom, MaxColumn});
    }
    return Make(cells_.Sheet(), std::move(areas), Listing::Rows);
}

std::shared_ptr<excel::Range> RangeView::EntireColumn() {
    book();
    std::vector<CellBlock> areas;
    for (const CellBlock& area : cells_.Areas()) {
        areas.push_back(CellBlock{1, area.left, MaxRow, area.right});
    }
    return Make(cells_.Sheet(), std::move(areas), Listing::Columns);
}

std::shared_ptr<excel::Range> RangeView::Resize(const Variant& rowSize, const Variant& columnSize) {
    book();
    const int32_t rows = rowSize.IsEmpty() ? first().Rows() : rowSize.ToInt();
    const int32_t columns = columnSize.IsEmpty() ? first().Columns() : columnSize.ToInt();
    if (rows < 1 || columns < 1) {
        ThrowRefused();
    }
    return relative(first().top, first().left, first().top + rows - 1, first().left + columns - 1);
}

std::shared_ptr<excel::Range> RangeView::Offset(int32_t rowOffset, int32_t columnOffset) {
    book();
    std::vector<CellBlock> areas;
    for (const CellBlock& area : cells_.Areas()) {
        areas.push_back(CellBlock{area.top + rowOffset, area.left + columnOffset, area.bottom + rowOffset,
                                  area.right + columnOffset});
    }
    return Make(cells_.Sheet(), std::move(areas));
}

std::shared_ptr<excel::Range> RangeView::MergeArea() {
    book();
    const auto merge = cells_.Sheet()->MergeAt(first().top, first().left);
    return Make(cells_.Sheet(), {merge.value_or(CellBlock{first().top, first().left, first().top, first().left})});
}

int64_t RangeView::CountLarge() {
    book();
    if (listing_ == Listing::Rows) {
        return first().Rows();
    }
    if (listing_ == Listing::Columns) {
        return first().Columns();
    }
    int64_t count = 0;
    for (const CellBlock& area : cells_.Areas()) {
        count += area.CellCount();
    }
    return count;
}

int32_t RangeView::Count() {
    const int64_t count = CountLarge();
    if (count > std::numeric_limits<int32_t>::max()) {
        ThrowRuntimeError(6);
    }
    return static_cast<int32_t>(count);
}

int32_t RangeView::Row() {
    book();
    return first().top;
}

int32_t RangeView::Column() {
    book();
    return first().left;
}

std::string RangeView::Address(bool rowAbsolute, bool columnAbsolute, int32_t referenceStyle, bool external) {
    WorkbookModel& owner = book();
    std::string prefix;
    if (external) {
        const std::string qualified = "[" + owner.Name() + "]" + cells_.Sheet()->Name();
        prefix = (SheetNameNeedsQuotes(cells_.Sheet()->Name()) || owner.Name().find(' ') != std::string::npos
                      ? QualifiedSheetName(qualified)
                      : qualified) +
                 "!";
    }
    std::string address;
    for (const CellBlock& area : cells_.Areas()) {
        if (!address.empty()) {
            address += ',';
        }
        address += prefix +
                   (referenceStyle == xlR1C1 ? FormatBlockR1C1(area) : FormatBlock(area, rowAbsolute, columnAbsolute));
    }
    return address;
}

double RangeView::Left() {
    book();
    return cells_.Sheet()->ColumnsPoints(1, first().left - 1);
}

double RangeView::Top() {
    book();
    return cells_.Sheet()->RowsPoints(1, first().top - 1);
}

double RangeView::Width() {
    book();
    return cells_.Sheet()->ColumnsPoints(first().left, first().right);
}

double RangeView::Height() {
    book();
    return cells_.Sheet()->RowsPoints(first().top, first().bottom);
}

std::shared_ptr<excel::Interior> RangeView::Interior() {
    book();
    return std::make_shared<InteriorView>(cells_);
}

std::shared_ptr<excel::Font> RangeView::Font() {
    book();
    return std::make_shared<FontView>(std::make_shared<RangeFontTarget>(cells_));
}

std::shared_ptr<excel::Borders> RangeView::Borders() {
    book();
    return BordersView::Collection(cells_);
}

std::shared_ptr<excel::Border> RangeView::Borders(int32_t index) {
    book();
    return BordersView::Single(cells_, index);
}

void RangeView::BorderAround(const Variant& lineStyle, int32_t weight, int32_t colorIndex, const Variant& color,
                             const Variant& themeColor) {
    book();
    const int32_t style = lineStyle.IsEmpty() ? xlContinuous : lineStyle.ToInt();
    std::optional<FormatColor> lineColor;
    if (!color.IsEmpty()) {
        lineColor = ColorFromRgb(color.ToInt());
    } else if (!themeColor.IsEmpty()) {
        lineColor = ColorFromTheme(themeColor.ToInt());
    } else if (colorIndex != xlColorIndexAutomatic) {
        lineColor = ColorFromIndex(colorIndex);
    }
    BordersView edges(cells_, {xlEdgeLeft, xlEdgeTop, xlEdgeBottom, xlEdgeRight});
    edges.SetLine(style, weight, lineColor ? &*lineColor : nullptr);
}

std::shared_ptr<excel::Characters> RangeView::Characters(const Variant& start, const Variant& length) {
    book();
    const CellBlock cell{first().top, first().left, first().top, first().left};
    return CharactersView::Make(std::make_shared<CellRichText>(RangeCells{cells_.Sheet(), {cell}}), start, length,
                                "Range");
}

std::shared_ptr<excel::Comment> RangeView::AddComment(const Variant& text) {
    WorkbookModel& owner = book();
    WorksheetModel& sheet = *cells_.Sheet();
    if (sheet.Shapes().CommentAt(first().top, first().left)) {
        ThrowRefused();
    }
    auto shape = AddCellComment(sheet, first().top, first().left, owner.App().userName,
                                text.IsEmpty() ? std::string() : text.ToString());
    owner.SetSaved(false);
    return std::make_shared<CommentView>(ShapeHandle{cells_.Sheet(), shape});
}

std::shared_ptr<excel::Comment> RangeView::Comment() {
    book();
    auto shape = cells_.Sheet()->Shapes().CommentAt(first().top, first().left);
    if (!shape) {
        return nullptr;
    }
    return std::make_shared<CommentView>(ShapeHandle{cells_.Sheet(), shape});
}

void RangeView::ClearComments() {
    WorkbookModel& owner = book();
    for (const CellBlock& area : cells_.Areas()) {
        RemoveCellComments(*cells_.Sheet(), area);
    }
    owner.SetSaved(false);
}

void RangeView::shift(const Variant& direction, bool insert, bool formatFromAfter) {
    WorkbookModel& owner = book();
    if (cells_.Areas().size() != 1) {
        ThrowRefused("This action won't work on multiple selections.");
    }
    bool vertical = first().Rows() <= first().Columns();
    if (!direction.IsEmpty()) {
        const int32_t value = direction.ToInt();
        const int32_t down = insert ? xlShiftDown : xlShiftUp;
        const int32_t across = insert ? xlShiftToRight : xlShiftToLeft;
        if (value != down && value != across) {
            ThrowRefused(insert ? "Insert method of Range class failed" : "Delete method of Range class failed");
        }
        vertical = value == down;
    }
    BlockShift blockShift = WorksheetModel::ShiftFor(first(), vertical, insert);
    blockShift.formatFromAfter = formatFromAfter;
    owner.ShiftCells(*cells_.Sheet(), blockShift);
}

void RangeView::Insert(const Variant& shiftDirection, const Variant& copyOrigin) {
    const bool fromAfter = !copyOrigin.IsEmpty() && copyOrigin.ToInt() == xlFormatFromRightOrBelow;
    shift(shiftDirection, true, fromAfter);
}

void RangeView::Delete(const Variant& shiftDirection) {
    shift(shiftDirection, false, false);
}

void RangeView::Select() {
    WorkbookModel& owner = book();
    owner.ActivateSheet(*cells_.Sheet());
    cells_.Sheet()->Settings().activeCell =
        FormatBlock({first().top, first().left, first().top, first().left}, false, false);
}

void RangeView::Activate() {
    Select();
}

}  // namespace excel::embedded
