#include "excel/embedded/objects/shapes/shape_rich_text.hpp"

#include "excel/embedded/model/workbook_model.hpp"
#include "excel/embedded/text/rich_text.hpp"

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
    EditTextFonts(frame.text, frame.font, start, count, edit);
    shape_.Changed();
}

const WorkbookColors& ShapeRichText::Colors() {
    return shape_.Sheet().Book().Colors();
}

}  // namespace excel::embedded
