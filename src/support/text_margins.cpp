#include "support/text_margins.hpp"

#include <excel/text_frame.hpp>

namespace vos {

void SetTextMargins(excel::TextFrame& frame, double leftAndRight, double topAndBottom) {
    frame.SetAutoMargins(false);
    frame.SetMarginLeft(leftAndRight);
    frame.SetMarginRight(leftAndRight);
    frame.SetMarginTop(topAndBottom);
    frame.SetMarginBottom(topAndBottom);
}

}  // namespace vos
