#include "excel/embedded/objects/range/characters_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/range/font_view.hpp"
#include "excel/embedded/text/rich_text.hpp"

#include <algorithm>

namespace excel::embedded {

namespace {

struct Span {
    size_t start;
    size_t count;
};

Span SpanOf(const RichText& text, int32_t start, int32_t length) {
    const size_t total = CharacterCount(text);
    const size_t first = std::min(static_cast<size_t>(start - 1), total);
    const size_t count = length < 0 ? total - first : std::min(static_cast<size_t>(length), total - first);
    return {first, count};
}

class CharactersFontTarget final : public FontTarget {
public:
    CharactersFontTarget(std::shared_ptr<RichTextSource> source, int32_t start, int32_t length)
        : source_(std::move(source)), start_(start), length_(length) {}

    std::vector<FontFormat> Fonts() override {
        const RichText text = source_->Text();
        const Span span = SpanOf(text, start_, length_);
        return FontsOf(text, span.start, span.count, source_->BaseFont());
    }

    void EditFonts(const std::function<void(FontFormat&)>& edit) override {
        const Span span = SpanOf(source_->Text(), start_, length_);
        source_->EditFonts(span.start, span.count, edit);
    }

    const WorkbookColors& Colors() override { return source_->Colors(); }

private:
    std::shared_ptr<RichTextSource> source_;
    int32_t start_;
    int32_t length_;
};

}  // namespace

std::shared_ptr<excel::Characters> CharactersView::Make(std::shared_ptr<RichTextSource> source, const Variant& start,
                                                        const Variant& length, const std::string& ownerClass) {
    const int32_t from = start.IsEmpty() ? 1 : start.ToInt();
    const int32_t count = length.IsEmpty() ? -1 : length.ToInt();
    if (from < 1 || (!length.IsEmpty() && count < 0)) {
        ThrowRefused("Unable to get the Characters property of the " + ownerClass + " class");
    }
    return std::make_shared<CharactersView>(std::move(source), from, count);
}

std::string CharactersView::Text() {
    const RichText text = source_->Text();
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
    return static_cast<int32_t>(SpanOf(source_->Text(), start_, length_).count);
}

std::shared_ptr<excel::Font> CharactersView::Font() {
    source_->Text();
    return std::make_shared<FontView>(std::make_shared<CharactersFontTarget>(source_, start_, length_));
}

void CharactersView::Insert(const std::string& text) {
    const RichText current = source_->Text();
    const Span span = SpanOf(current, start_, length_);
    source_->SetText(WithReplaced(current, span.start, span.count, text));
}

void CharactersView::Delete() {
    Insert("");
}

}  // namespace excel::embedded
