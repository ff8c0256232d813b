#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <string_view>
#include <vector>

namespace ooxml {

// A paragraph of a text box's text: the pieces of runs between two line feeds. A run without a
// font (nullptr) takes the text box's default font.
struct TextParagraph {
    struct Run {
        std::string_view text;
        const Font* font = nullptr;
    };
    std::vector<Run> runs;          // none for an empty paragraph
    const Font* endFont = nullptr;  // the font of the run the paragraph ends in
};

// Splits text (plain, or its runs) at line feeds. The paragraphs refer into text.
std::vector<TextParagraph> SplitIntoParagraphs(const SharedString& text);

}  // namespace ooxml
