#include "worksheet/shape_text.hpp"

#include "support/library_error.hpp"

#include <excel/characters.hpp>
#include <excel/constants.hpp>
#include <excel/font.hpp>
#include <excel/shape.hpp>
#include <excel/text_frame.hpp>
#include <excel/variant.hpp>

namespace vos {

namespace {

constexpr const char* TrailingSpace = " ";

}  // namespace

void AppendShapeText(const std::shared_ptr<excel::Shape>& theShape, const std::string& text, double size, bool bold,
                     bool underline) {
    if (!theShape)
        RaiseLibraryError(error_code::MissingObject, "theShape");
    if (text.empty())
        return;
    const auto frame = theShape->TextFrame();
    if (frame->Characters()->Text().empty())
        frame->Characters()->SetText(TrailingSpace);
    // The position is a 16-bit count: a text past 32,767 characters overflows, as it always has.
    const int16_t last = excel::Variant(frame->Characters()->Count()).ToShort();
    frame->Characters(last)->Insert(text + TrailingSpace);
    const auto font = frame->Characters(last)->Font();
    font->SetBold(bold);
    font->SetUnderline(underline ? excel::xlUnderlineStyleSingle : excel::xlUnderlineStyleNone);
    font->SetSize(size);
}

}  // namespace vos
