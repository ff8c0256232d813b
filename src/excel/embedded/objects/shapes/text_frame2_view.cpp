#include "excel/embedded/objects/shapes/text_frame2_view.hpp"

#include "excel/embedded/objects/shapes/tri_state.hpp"

namespace excel::embedded {

int32_t TextFrame2View::WordWrap() {
    return TriStateOf(shape_.Shape().text.wordWrap);
}

void TextFrame2View::SetWordWrap(int32_t wrap) {
    shape_.Shape().text.wordWrap = BoolFromTriState(wrap);
    shape_.Changed();
}

}  // namespace excel::embedded
