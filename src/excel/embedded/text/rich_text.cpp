#include "excel/embedded/text/rich_text.hpp"

#include "excel/embedded/text/utf8_text.hpp"

#include <algorithm>

namespace excel::embedded {

namespace {

size_t ByteOffset(std::string_view text, size_t characters) {
    size_t position = 0;
    for (size_t i = 0; i < characters && position < text.size(); ++i) {
        NextCodePoint(text, position);
    }
    return position;
}

std::vector<TextRun> RunsOf(const RichText& text) {
    if (text.runs.empty()) {
        return {TextRun{text.text, std::nullopt}};
    }
    return text.runs;
}

// The runs with boundaries at the characters start and end.
std::vector<TextRun> SplitRuns(const RichText& text, size_t start, size_t end) {
    std::vector<TextRun> result;
    size_t offset = 0;
    for (TextRun& run : RunsOf(text)) {
        const size_t length = CodePointCount(run.text);
        size_t cut = 0;
        for (size_t boundary : {start, end}) {
            if (boundary > offset + cut && boundary < offset + length) {
                const size_t bytes = ByteOffset(run.text, boundary - offset - cut);
                result.push_back(TextRun{run.text.substr(0, bytes), run.font});
                run.text.erase(0, bytes);
                cut = boundary - offset;
            }
        }
        result.push_back(std::move(run));
        offset += length;
    }
    return result;
}

RichText Joined(std::vector<TextRun> runs) {
    RichText result;
    for (TextRun& run : runs) {
        if (run.text.empty()) {
            continue;
        }
        result.text += run.text;
        if (!result.runs.empty() && result.runs.back().font == run.font) {
            result.runs.back().text += run.text;
        } else {
            result.runs.push_back(std::move(run));
        }
    }
    if (result.runs.size() == 1 && !result.runs.front().font) {
        result.runs.clear();
    }
    return result;
}

}  // namespace

size_t CharacterCount(const RichText& text) {
    return CodePointCount(text.text);
}

std::string CharactersOf(const RichText& text, size_t start, size_t count) {
    const size_t first = ByteOffset(text.text, start);
    const size_t last = ByteOffset(text.text, start + count);
    return text.text.substr(first, last - first);
}

std::vector<FontFormat> FontsOf(const RichText& text, size_t start, size_t count,
                                 const FontFormat& cellFont) {
    std::vector<FontFormat> fonts;
    size_t offset = 0;
    for (const TextRun& run : SplitRuns(text, start, start + count)) {
        const size_t length = CodePointCount(run.text);
        if (offset >= start && offset < start + count) {
            fonts.push_back(run.font.value_or(cellFont));
        }
        offset += length;
    }
    if (fonts.empty()) {
        fonts.push_back(cellFont);
    }
    return fonts;
}

RichText WithFont(const RichText& text, size_t start, size_t count,
                             const std::function<void(FontFormat&)>& edit, const FontFormat& cellFont) {
    std::vector<TextRun> runs = SplitRuns(text, start, start + count);
    size_t offset = 0;
    for (TextRun& run : runs) {
        const size_t length = CodePointCount(run.text);
        if (offset >= start && offset < start + count) {
            FontFormat font = run.font.value_or(cellFont);
            edit(font);
            run.font = font;
        }
        offset += length;
    }
    // Runs left on the cell's font get it spelled out, so every run of a rich text has one.
    for (TextRun& run : runs) {
        if (!run.font) {
            run.font = cellFont;
        }
    }
    RichText result = Joined(std::move(runs));
    if (result.runs.size() == 1 && result.runs.front().font == cellFont) {
        result.runs.clear();
    }
    return result;
}

RichText WithReplaced(const RichText& text, size_t start, size_t count,
                                 std::string_view replacement) {
    std::vector<TextRun> runs = SplitRuns(text, start, start + count);
    std::vector<TextRun> result;
    std::optional<FontFormat> font;
    bool fontChosen = false;
    bool inserted = false;
    size_t offset = 0;
    for (TextRun& run : runs) {
        const size_t length = CodePointCount(run.text);
        const bool replaced = offset >= start && offset < start + count;
        if (replaced && !fontChosen) {
            font = run.font;
            fontChosen = true;
        }
        if (!fontChosen && offset + length <= start) {
            font = run.font;
        }
        if (!inserted && offset >= start) {
            result.push_back(TextRun{std::string(replacement), font});
            inserted = true;
        }
        if (!replaced) {
            result.push_back(std::move(run));
        }
        offset += length;
    }
    if (!inserted) {
        result.push_back(TextRun{std::string(replacement), font});
    }
    return Joined(std::move(result));
}

void EditTextFonts(RichText& text, FontFormat& base, size_t start, size_t count,
                   const std::function<void(FontFormat&)>& edit) {
    RichText edited = WithFont(text, start, count, edit, base);
    if (start == 0 && count == CharacterCount(text)) {
        edit(base);
        const bool allBase = std::all_of(edited.runs.begin(), edited.runs.end(),
                                         [&](const TextRun& run) { return run.font == base; });
        if (allBase) {
            edited.runs.clear();
        }
    }
    text = std::move(edited);
}

}  // namespace excel::embedded
