#include "excel/embedded/characters.hpp"

#include "excel/embedded/cell_value.hpp"
#include "excel/embedded/font.hpp"
#include "excel/embedded/rich_text.hpp"
#include "excel/embedded/workbook_model.hpp"

#include <algorithm>

namespace excel::embedded {

namespace {

// The cell's text as rich text: a text cell's own, any other value as its entered text.
ooxml::SharedString CellText(const WorkbookModel& book, const Cell* cell) {
    if (cell != nullptr && cell->kind == CellKind::Text) {
        return book.Strings().Get(cell->text);
    }
    CellValueReader reader(book, false);
    return ooxml::SharedString{reader.ReadFormula(cell).ToString(), {}};
}

struct Span {
    size_t start;
    size_t count;
};

Span SpanOf(const ooxml::SharedString& text, int32_t start, int32_t length) {
    const size_t total = CharacterCount(text);
    const size_t first = std::min(static_cast<size_t>(start - 1), total);
    const size_t count = length < 0 ? total - first : std::min(static_cast<size_t>(length), total - first);
    return {first, count};
}

class CharactersFontTarget final : public FontTarget {
public:
    CharactersFontTarget(RangeCells cell, int32_t start, int32_t length)
        : cell_(std::move(cell)), start_(start), length_(length) {}

    std::vector<ooxml::Font> Fonts() override {
        const WorkbookModel& book = cell_.Book();
        const CellBlock& at = cell_.Areas().front();
        WorksheetModel& sheet = *cell_.Sheet();
        const ooxml::Font& cellFont = book.Formats().Get(sheet.ResolvedFormat(at.top, at.left)).font;
        const ooxml::SharedString text = CellText(book, sheet.Cells().Find(at.top, at.left));
        const Span span = SpanOf(text, start_, length_);
        return FontsOf(text, span.start, span.count, cellFont);
    }

    void EditFonts(const std::function<void(ooxml::Font&)>& edit) override {
        WorkbookModel& book = cell_.Book();
        const CellBlock& at = cell_.Areas().front();
        WorksheetModel& sheet = *cell_.Sheet();
        Cell* cell = sheet.Cells().Find(at.top, at.left);
        if (cell == nullptr || cell->kind != CellKind::Text) {
            // Only text holds runs; for anything else Excel formats the whole cell.
            cell_.EditFormats([&](ooxml::CellFormat& format) { edit(format.font); });
            return;
        }
        const ooxml::Font cellFont = book.Formats().Get(cell->format).font;
        const ooxml::SharedString text = book.Strings().Get(cell->text);
        const Span span = SpanOf(text, start_, length_);
        cell->text = book.Strings().Add(WithFont(text, span.start, span.count, edit, cellFont));
        book.SetSaved(false);
    }

    const Palette& Colors() override { return cell_.Book().Palette(); }

private:
    RangeCells cell_;
    int32_t start_;
    int32_t length_;
};

}  // namespace

std::string CharactersView::Text() {
    const ooxml::SharedString text = currentText();
    const Span span = SpanOf(text, start_, length_);
    return CharactersOf(text, span.start, span.count);
}

void CharactersView::SetText(const std::string& text) {
    Insert(text);
}

std::string CharactersView::Caption() {
    return Text();
}

void CharactersView::SetCaption(const std::string& text) {
    Insert(text);
}

int32_t CharactersView::Count() {
    return static_cast<int32_t>(SpanOf(currentText(), start_, length_).count);
}

std::shared_ptr<excel::Font> CharactersView::Font() {
    cell_.Book();
    return std::make_shared<FontView>(std::make_shared<CharactersFontTarget>(cell_, start_, length_));
}

void CharactersView::Insert(const std::string& text) {
    WorkbookModel& book = cell_.Book();
    const ooxml::SharedString current = currentText();
    const Span span = SpanOf(current, start_, length_);
    const uint32_t id = book.Strings().Add(WithReplaced(current, span.start, span.count, text));
    cell_.Sheet()->WriteCells(cell_.Areas().front(), [&](int32_t, int32_t, Cell& cell) {
        cell.kind = CellKind::Text;
        cell.text = id;
    });
    book.SetSaved(false);
}

void CharactersView::Delete() {
    Insert("");
}

ooxml::SharedString CharactersView::currentText() const {
    const WorkbookModel& book = cell_.Book();
    const CellBlock& at = cell_.Areas().front();
    return CellText(book, cell_.Sheet()->Cells().Find(at.top, at.left));
}

}  // namespace excel::embedded
