#pragma once

#include "excel/embedded/format/color_model.hpp"
#include "ooxml/document/workbook_document.hpp"

#include <cstddef>
#include <functional>

namespace excel::embedded {

// Text that Characters views read and format run by run: a cell's or a shape's. Every member
// answers Object required once the cell or shape is gone.
class RichTextSource {
public:
    virtual ~RichTextSource() = default;

    virtual ooxml::SharedString Text() = 0;
    // The font of characters whose run has none.
    virtual ooxml::Font BaseFont() = 0;
    virtual void SetText(const ooxml::SharedString& text) = 0;
    // Applies the edit to the fonts of count characters from start (0-based).
    virtual void EditFonts(size_t start, size_t count, const std::function<void(ooxml::Font&)>& edit) = 0;
    virtual const Palette& Colors() = 0;
};

}  // namespace excel::embedded
