#include "ooxml/shared_strings_part.hpp"

#include "ooxml/font_element.hpp"

#include <cstdint>

namespace ooxml {

namespace {

bool IsXmlWhitespace(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool NeedsPreservedSpace(std::string_view text) {
    return !text.empty() && (IsXmlWhitespace(text.front()) || IsXmlWhitespace(text.back()) ||
                             text.find_first_of("\t\n") != std::string_view::npos);
}

// How many cells refer to a shared string: the table's count attribute. Formula results are
// written in their cells, not as references.
uint64_t CountReferences(const WorkbookDocument& document) {
    uint64_t references = 0;
    for (const SheetDocument& sheet : document.sheets) {
        for (const Row& row : sheet.rows) {
            for (const Cell& cell : row.cells) {
                references += cell.type == CellType::String && cell.formula == NoFormula ? 1 : 0;
            }
        }
    }
    return references;
}

}  // namespace

void WriteTextElement(XmlWriter& xml, std::string_view text) {
    xml.StartElement("t");
    if (NeedsPreservedSpace(text)) {
        xml.Attribute("xml:space", "preserve");
    }
    xml.Text(text);
    xml.EndElement();
}

void WriteSharedStringsPart(XmlWriter& xml, const WorkbookDocument& document) {
    xml.Declaration();
    xml.StartElement("sst");
    xml.Attribute("xmlns", "http://schemas.openxmlformats.org/spreadsheetml/2006/main");
    xml.Attribute("count", CountReferences(document));
    xml.Attribute("uniqueCount", document.strings.size());
    for (const SharedString& string : document.strings) {
        xml.StartElement("si");
        if (string.runs.empty()) {
            WriteTextElement(xml, string.text);
        }
        for (const TextRun& run : string.runs) {
            xml.StartElement("r");
            if (run.font) {
                WriteFont(xml, "rPr", "rFont", *run.font);
            }
            WriteTextElement(xml, run.text);
            xml.EndElement();
        }
        xml.EndElement();
    }
    xml.EndElement();
}

}  // namespace ooxml
