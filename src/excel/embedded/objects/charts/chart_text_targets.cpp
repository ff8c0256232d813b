#include "excel/embedded/objects/charts/chart_text_targets.hpp"

namespace excel::embedded {

RichText TitleRichText::Text() {
    return title().text;
}

FontFormat TitleRichText::BaseFont() {
    return title().font;
}

void TitleRichText::SetText(const RichText& text) {
    ChartTitleModel& edited = title();
    edited.text = text;
    edited.textFromFile = false;
    chart_.Changed();
}

void TitleRichText::EditFonts(size_t start, size_t count, const std::function<void(FontFormat&)>& edit) {
    ChartTitleModel& edited = title();
    EditTextFonts(edited.text, edited.font, start, count, edit);
    edited.textFromFile = false;
    chart_.Changed();
}

const WorkbookColors& TitleRichText::Colors() {
    return chart_.Colors();
}

std::vector<FontFormat> ChartTextFontTarget::Fonts() {
    const ChartTextFormat& text = find_(chart_.Chart());
    return {text.font.value_or(DefaultChartFont())};
}

void ChartTextFontTarget::EditFonts(const std::function<void(FontFormat&)>& edit) {
    ChartTextFormat& text = find_(chart_.Chart());
    FontFormat font = text.font.value_or(DefaultChartFont());
    edit(font);
    text.font = font;
    text.fromFile = false;
    chart_.Changed();
}

}  // namespace excel::embedded
