#include "excel/embedded/objects/shapes/text_frame_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/range/characters_view.hpp"
#include "excel/embedded/objects/shapes/shape_rich_text.hpp"

#include <excel/constants.hpp>

#include <initializer_list>

namespace excel::embedded {

namespace {

void RefuseUnless(int32_t value, std::initializer_list<int32_t> allowed) {
    for (int32_t candidate : allowed) {
        if (value == candidate) {
            return;
        }
    }
    ThrowRefused("The specified value is out of range.");
}

}  // namespace

std::shared_ptr<excel::Characters> TextFrameView::Characters(const Variant& start, const Variant& length) {
    shape_.Shape();
    return CharactersView::Make(std::make_shared<ShapeRichText>(shape_), start, length, "TextFrame");
}

bool TextFrameView::AutoMargins() {
    return shape_.Shape().text.autoMargins;
}

void TextFrameView::SetAutoMargins(bool automatic) {
    ShapeText& text = shape_.Shape().text;
    text.margins = text.Margins();
    text.autoMargins = automatic;
    shape_.Changed();
}

void TextFrameView::setMargin(double TextMargins::*margin, double points) {
    if (!(points >= 0.0)) {
        ThrowRefused("The specified value is out of range.");
    }
    ShapeText& text = shape_.Shape().text;
    text.margins = text.Margins();
    text.margins.*margin = points;
    text.autoMargins = false;
    shape_.Changed();
}

double TextFrameView::MarginLeft() {
    return shape_.Shape().text.Margins().left;
}

void TextFrameView::SetMarginLeft(double points) {
    setMargin(&TextMargins::left, points);
}

double TextFrameView::MarginRight() {
    return shape_.Shape().text.Margins().right;
}

void TextFrameView::SetMarginRight(double points) {
    setMargin(&TextMargins::right, points);
}

double TextFrameView::MarginTop() {
    return shape_.Shape().text.Margins().top;
}

void TextFrameView::SetMarginTop(double points) {
    setMargin(&TextMargins::top, points);
}

double TextFrameView::MarginBottom() {
    return shape_.Shape().text.Margins().bottom;
}

void TextFrameView::SetMarginBottom(double points) {
    setMargin(&TextMargins::bottom, points);
}

bool TextFrameView::AutoSize() {
    return shape_.Shape().text.autoSize;
}

void TextFrameView::SetAutoSize(bool autoSize) {
    shape_.Shape().text.autoSize = autoSize;
    shape_.Changed();
}

int32_t TextFrameView::HorizontalAlignment() {
    return shape_.Shape().text.horizontalAlignment;
}

void TextFrameView::SetHorizontalAlignment(int32_t alignment) {
    RefuseUnless(alignment,
                 {xlHAlignLeft, xlHAlignCenter, xlHAlignRight, xlHAlignJustify, xlHAlignDistributed});
    shape_.Shape().text.horizontalAlignment = alignment;
    shape_.Changed();
}

int32_t TextFrameView::VerticalAlignment() {
    return shape_.Shape().text.verticalAlignment;
}

void TextFrameView::SetVerticalAlignment(int32_t alignment) {
    RefuseUnless(alignment, {xlVAlignTop, xlVAlignCenter, xlVAlignBottom, xlVAlignJustify, xlVAlignDistributed});
    shape_.Shape().text.verticalAlignment = alignment;
    shape_.Changed();
}

}  // namespace excel::embedded
