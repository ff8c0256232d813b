#pragma once

#include "excel/embedded/range_cells.hpp"
#include "ooxml/workbook_document.hpp"

#include <excel/characters.hpp>

#include <memory>

namespace excel::embedded {

// Characters start..start+length-1 of one cell's text (length -1: to the end), following the cell
// wherever inserts and deletes move it.
class CharactersView final : public excel::Characters {
public:
    CharactersView(RangeCells cell, int32_t start, int32_t length)
        : cell_(std::move(cell)), start_(start), length_(length) {}

    std::string Text() override;
    void SetText(const std::string& text) override;
    std::string Caption() override;
    void SetCaption(const std::string& text) override;
    int32_t Count() override;
    std::shared_ptr<excel::Font> Font() override;
    void Insert(const std::string& text) override;
    void Delete() override;

private:
    // The cell's text as rich text; Object required once the cell was deleted.
    ooxml::SharedString currentText() const;

    RangeCells cell_;
    int32_t start_;
    int32_t length_;
};

}  // namespace excel::embedded
