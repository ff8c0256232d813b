#include "excel/embedded/text_frame2.hpp"

#include "excel/embedded/tri_state.hpp"

namespace excel::embedded {

int32_t TextFrame2View::WordWrap() {
    return TriStateOf(shape_.Shape().text.wordWrap);
}

void TextFrame2View::SetWordWrap(int32_t wrap) {
    shape_.Shape().text.wordWrap = BoolFromTriState(wrap);
    shape_.Changed();
}

}  // namespace excel::embedded
