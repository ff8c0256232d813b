#include "excel/embedded/text/text_fit.hpp"

#include "excel/embedded/text/text_metrics.hpp"
#include "excel/embedded/text/utf8_text.hpp"

#include <algorithm>
#include <string>
#include <vector>

namespace excel::embedded {

namespace {

struct StyledCharacter {
    std::string text;  // one code point
    const FontFormat* font;
};

struct Paragraph {
    std::vector<StyledCharacter> characters;
    double lineHeight = 0.0;  // of the largest font in the paragraph
};

// The text cut into paragraphs of characters with their fonts. An empty paragraph is as high as
// the font at its place.
// The characters keep pointers to the fonts of the frame's own runs, which outlive the paragraphs.
std::vector<Paragraph> ParagraphsOf(const ShapeText& frame) {
    std::vector<Paragraph> paragraphs(1);
    const FontFormat* lastFont = &frame.font;
    const auto addRun = [&](const std::string& text, const FontFormat* font) {
        lastFont = font;
        for (size_t position = 0; position < text.size();) {
            const size_t start = position;
            const char32_t codePoint = NextCodePoint(text, position);
            Paragraph& paragraph = paragraphs.back();
            paragraph.lineHeight = std::max(paragraph.lineHeight, LineHeight(*font));
            if (codePoint == U'\n') {
                paragraphs.emplace_back();
                continue;
            }
            paragraph.characters.push_back(StyledCharacter{text.substr(start, position - start), font});
        }
    };
    if (frame.text.runs.empty()) {
        addRun(frame.text.text, &frame.font);
    }
    for (const TextRun& run : frame.text.runs) {
        addRun(run.text, run.font ? &*run.font : &frame.font);
    }
    if (paragraphs.back().lineHeight == 0.0) {
        paragraphs.back().lineHeight = LineHeight(*lastFont);
    }
    return paragraphs;
}

double Advance(const StyledCharacter& character) {
    return TextAdvance(character.text, *character.font);
}

double ParagraphWidth(const Paragraph& paragraph) {
    double width = 0.0;
    for (const StyledCharacter& character : paragraph.characters) {
        width += Advance(character);
    }
    return width;
}

// Lines the paragraph takes when wrapped at word boundaries into the width. Spaces after a word
// hang past the line's end, as they do in text boxes.
int32_t WrappedLines(const Paragraph& paragraph, double width) {
    int32_t lines = 1;
    double lineWidth = 0.0;
    const auto& characters = paragraph.characters;
    for (size_t index = 0; index < characters.size();) {
        size_t wordEnd = index;
        double wordWidth = 0.0;
        while (wordEnd < characters.size() && characters[wordEnd].text != " ") {
            wordWidth += Advance(characters[wordEnd++]);
        }
        double spacesWidth = 0.0;
        size_t next = wordEnd;
        while (next < characters.size() && characters[next].text == " ") {
            spacesWidth += Advance(characters[next++]);
        }
        if (lineWidth > 0.0 && lineWidth + wordWidth > width) {
            ++lines;
            lineWidth = 0.0;
        }
        if (wordWidth > width) {
            // A word wider than the line breaks between its characters.
            for (size_t inWord = index; inWord < wordEnd; ++inWord) {
                const double advance = Advance(characters[inWord]);
                if (lineWidth > 0.0 && lineWidth + advance > width) {
                    ++lines;
                    lineWidth = 0.0;
                }
                lineWidth += advance;
            }
        } else {
            lineWidth += wordWidth;
        }
        lineWidth += spacesWidth;
        index = next;
    }
    return lines;
}

}  // namespace

TextExtent FitToText(const ShapeText& text, double currentWidth) {
    const TextMargins margins = text.Margins();
    const double textWidth = std::max(currentWidth - margins.left - margins.right, 0.0);
    double width = 0.0;
    double height = margins.top + margins.bottom;
    for (const Paragraph& paragraph : ParagraphsOf(text)) {
        if (text.wordWrap) {
            height += WrappedLines(paragraph, textWidth) * paragraph.lineHeight;
        } else {
            height += paragraph.lineHeight;
            width = std::max(width, ParagraphWidth(paragraph));
        }
    }
    return TextExtent{text.wordWrap ? currentWidth : width + margins.left + margins.right, height};
}

}  // namespace excel::embedded
