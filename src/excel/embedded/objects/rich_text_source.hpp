#pragma once

#include "excel/embedded/format/color_model.hpp"
#include "excel/embedded/text/rich_text.hpp"

#include <cstddef>
#include <functional>

namespace excel::embedded {

// Text that Characters views read and format run by run: a cell's or a shape's. Every member
// answers Object required once the cell or shape is gone.
class RichTextSource {
public:
    virtual ~RichTextSource() = default;

    virtual RichText Text() = 0;
    // The font of characters whose run has none.
    virtual FontFormat BaseFont() = 0;
    virtual void SetText(const RichText& text) = 0;
    // Applies the edit to the fonts of count characters from start (0-based).
    virtual void EditFonts(size_t start, size_t count, const std::function<void(FontFormat&)>& edit) = 0;
    virtual const WorkbookColors& Colors() = 0;
};

}  // namespace excel::embedded
