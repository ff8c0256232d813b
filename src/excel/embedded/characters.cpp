#include "excel/embedded/characters.hpp"

#include "excel/embedded/cell_value.hpp"
#include "excel/embedded/font.hpp"
#include "excel/embedded/rich_text.hpp"
#include "excel/embedded/workbook_model.hpp"

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
    CharactersFontTarget(std::shared_ptr<WorksheetModel> sheet, int32_t row, int32_t column, int32_t start,
                         int32_t length)
        : sheet_(std::move(sheet)), row_(row), column_(column), start_(start), length_(length) {}

    std::vector<ooxml::Font> Fonts() override {
        const WorkbookModel& book = sheet_->Book();
        const ooxml::Font& cellFont = book.Formats().Get(sheet_->ResolvedFormat(row_, column_)).font;
        const Cell* cell = sheet_->Cells().Find(row_, column_);
        const ooxml::SharedString text = CellText(book, cell);
        const Span span = SpanOf(text, start_, length_);
        return FontsOf(text, span.start, span.count, cellFont);
    }

    void EditFonts(const std::function<void(ooxml::Font&)>& edit) override {
        WorkbookModel& book = sheet_->Book();
        const Cell* cell = sheet_->Cells().Find(row_, column_);
        if (cell == nullptr || cell->kind != CellKind::Text) {
            // Only text holds runs; for anything else Excel formats the whole cell.
            FormatChange change(book.Formats(), [&](ooxml::CellFormat& format) { edit(format.font); });
            sheet_->ApplyFormat(CellBlock{row_, column_, row_, column_}, change);
            return;
        }
        const ooxml::Font cellFont = book.Formats().Get(cell->format).font;
        const ooxml::SharedString text = book.Strings().Get(cell->text);
        const Span span = SpanOf(text, start_, length_);
        const uint32_t id = book.Strings().Add(WithFont(text, span.start, span.count, edit, cellFont));
        sheet_->Cells().Find(row_, column_)->text = id;
        book.SetSaved(false);
    }

    const Palette& Colors() override { return sheet_->Book().Palette(); }

private:
    std::shared_ptr<WorksheetModel> sheet_;
    int32_t row_;
    int32_t column_;
    int32_t start_;
    int32_t length_;
};

}  // namespace

std::string CharactersView::Text() {
    const ooxml::SharedString text = CellText(sheet_->Book(), sheet_->Cells().Find(row_, column_));
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
    const ooxml::SharedString text = CellText(sheet_->Book(), sheet_->Cells().Find(row_, column_));
    return static_cast<int32_t>(SpanOf(text, start_, length_).count);
}

std::shared_ptr<excel::Font> CharactersView::Font() {
    sheet_->Book();
    return std::make_shared<FontView>(std::make_shared<CharactersFontTarget>(sheet_, row_, column_, start_, length_));
}

void CharactersView::Insert(const std::string& text) {
    WorkbookModel& book = sheet_->Book();
    const ooxml::SharedString current = CellText(book, sheet_->Cells().Find(row_, column_));
    const Span span = SpanOf(current, start_, length_);
    const uint32_t id = book.Strings().Add(WithReplaced(current, span.start, span.count, text));
    sheet_->WriteCells(CellBlock{row_, column_, row_, column_}, [&](int32_t, int32_t, Cell& cell) {
        cell.kind = CellKind::Text;
        cell.text = id;
    });
    book.SetSaved(false);
}

void CharactersView::Delete() {
    Insert("");
}

}  // namespace excel::embedded
