#include "excel/embedded/document/rich_text_document_conversion.hpp"

#include "excel/embedded/document/format_document_conversion.hpp"

namespace excel::embedded {

ooxml::SharedString DocumentText(const RichText& text) {
    ooxml::SharedString out{text.text, {}};
    out.runs.reserve(text.runs.size());
    for (const TextRun& run : text.runs) {
        out.runs.push_back(ooxml::TextRun{run.text, run.font ? std::optional(DocumentFont(*run.font)) : std::nullopt});
    }
    return out;
}

RichText TextFromDocument(const ooxml::SharedString& text) {
    RichText out{text.text, {}};
    out.runs.reserve(text.runs.size());
    for (const ooxml::TextRun& run : text.runs) {
        out.runs.push_back(TextRun{run.text, run.font ? std::optional(FontFromDocument(*run.font)) : std::nullopt});
    }
    return out;
}

}  // namespace excel::embedded
