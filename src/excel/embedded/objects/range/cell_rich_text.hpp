#pragma once

#include "excel/embedded/objects/range/range_cells.hpp"
#include "excel/embedded/objects/rich_text_source.hpp"

namespace excel::embedded {

// A cell's text as Characters see it: a text cell's own runs, any other value as its entered
// text, following the cell wherever inserts and deletes move it.
class CellRichText final : public RichTextSource {
public:
    explicit CellRichText(RangeCells cell) : cell_(std::move(cell)) {}

    RichText Text() override;
    FontFormat BaseFont() override;
    // The cell becomes a text cell holding the text.
    void SetText(const RichText& text) override;
    // Only text holds runs; for any other value Excel formats the whole cell.
    void EditFonts(size_t start, size_t count, const std::function<void(FontFormat&)>& edit) override;
    const WorkbookColors& Colors() override;

private:
    RangeCells cell_;
};

}  // namespace excel::embedded
