#pragma once

#include "excel/embedded/model/shapes/shape_handle.hpp"
#include "excel/embedded/objects/rich_text_source.hpp"

namespace excel::embedded {

// A shape's text as Characters see it. A font edit of the whole text also sets the frame's font,
// so that text typed later, or into an empty frame, takes it.
class ShapeRichText final : public RichTextSource {
public:
    explicit ShapeRichText(ShapeHandle shape) : shape_(std::move(shape)) {}

    RichText Text() override;
    FontFormat BaseFont() override;
    void SetText(const RichText& text) override;
    void EditFonts(size_t start, size_t count, const std::function<void(FontFormat&)>& edit) override;
    const WorkbookColors& Colors() override;

private:
    ShapeHandle shape_;
};

}  // namespace excel::embedded
