#include "excel/embedded/objects/shapes/shape_rich_text.hpp"

#include "excel/embedded/model/workbook_model.hpp"
#include "excel/embedded/text/rich_text.hpp"

#include <algorithm>

namespace excel::embedded {

RichText ShapeRichText::Text() {
    return shape_.Shape().text.text;
}

FontFormat ShapeRichText::BaseFont() {
    return shape_.Shape().text.font;
}

void ShapeRichText::SetText(const RichText& text) {
    shape_.Shape().text.text = text;
    shape_.Changed();
}

void ShapeRichText::EditFonts(size_t start, size_t count, const std::function<void(FontFormat&)>& edit) {
    ShapeText& frame = shape_.Shape().text;
    const FontFormat oldFont = frame.font;
    RichText edited = WithFont(frame.text, start, count, edit, oldFont);
    if (start == 0 && count == CharacterCount(frame.text)) {
        edit(frame.font);
        const bool allFrameFont = std::all_of(edited.runs.begin(), edited.runs.end(),
                                              [&](const TextRun& run) { return run.font == frame.font; });
        if (allFrameFont) {
            edited.runs.clear();
        }
    }
    frame.text = std::move(edited);
    shape_.Changed();
}

const WorkbookColors& ShapeRichText::Colors() {
    return shape_.Sheet().Book().Colors();
}

}  // namespace excel::embedded
