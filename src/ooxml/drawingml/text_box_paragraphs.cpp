#include "ooxml/drawingml/text_box_paragraphs.hpp"

namespace ooxml {

std::vector<TextParagraph> SplitIntoParagraphs(const SharedString& text) {
    std::vector<TextParagraph> paragraphs(1);
    const auto add = [&paragraphs](std::string_view runText, const Font* font) {
        for (std::size_t start = 0;;) {
            const std::size_t lineFeed = runText.find('\n', start);
            const std::string_view piece = runText.substr(start, lineFeed - start);
            if (!piece.empty()) {
                paragraphs.back().runs.push_back({piece, font});
            }
            paragraphs.back().endFont = font;
            if (lineFeed == std::string_view::npos) {
                return;
            }
            paragraphs.emplace_back();
            start = lineFeed + 1;
        }
    };
    if (text.runs.empty()) {
        add(text.text, nullptr);
    }
    for (const TextRun& run : text.runs) {
        add(run.text, run.font ? &*run.font : nullptr);
    }
    return paragraphs;
}

}  // namespace ooxml
