#include "excel/embedded/objects/range/cell_rich_text.hpp"

#include "excel/embedded/model/workbook_model.hpp"
#include "excel/embedded/objects/range/cell_value.hpp"
#include "excel/embedded/text/rich_text.hpp"

namespace excel::embedded {

RichText CellRichText::Text() {
    const WorkbookModel& book = cell_.Book();
    const CellBlock& at = cell_.Areas().front();
    const Cell* cell = cell_.Sheet()->Cells().Find(at.top, at.left);
    if (cell != nullptr && cell->kind == CellKind::Text) {
        return book.Strings().Get(cell->text);
    }
    CellValueReader reader(book, false);
    return RichText{reader.ReadFormula(cell).ToString(), {}};
}

FontFormat CellRichText::BaseFont() {
    const WorkbookModel& book = cell_.Book();
    const CellBlock& at = cell_.Areas().front();
    return book.Formats().Get(cell_.Sheet()->ResolvedFormat(at.top, at.left)).font;
}

void CellRichText::SetText(const RichText& text) {
    WorkbookModel& book = cell_.Book();
    const uint32_t id = book.Strings().Add(text);
    cell_.Sheet()->WriteCells(cell_.Areas().front(), [&](int32_t, int32_t, Cell& cell) {
        cell.kind = CellKind::Text;
        cell.text = id;
    });
    book.SetSaved(false);
}

void CellRichText::EditFonts(size_t start, size_t count, const std::function<void(FontFormat&)>& edit) {
    WorkbookModel& book = cell_.Book();
    const CellBlock& at = cell_.Areas().front();
    Cell* cell = cell_.Sheet()->Cells().Find(at.top, at.left);
    if (cell == nullptr || cell->kind != CellKind::Text) {
        cell_.EditFormats([&](CellFormat& format) { edit(format.font); });
        return;
    }
    const FontFormat cellFont = book.Formats().Get(cell->format).font;
    cell->text = book.Strings().Add(WithFont(book.Strings().Get(cell->text), start, count, edit, cellFont));
    book.SetSaved(false);
}

const WorkbookColors& CellRichText::Colors() {
    return cell_.Book().Colors();
}

}  // namespace excel::embedded
