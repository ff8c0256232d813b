#include "ooxml/shared_strings/shared_strings_part.hpp"

#include "ooxml/document/sheet_rows.hpp"
#include "ooxml/styles/font_element.hpp"

#include <algorithm>
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

}  // namespace

SharedStringTable BuildSharedStringTable(const WorkbookDocument& document) {
    SharedStringTable table;
    table.positions.assign(document.strings.size(), SharedStringTable::kNotShared);
    // Formula results are written in their cells, not as references. Indices out of range are
    // skipped here and refused by the worksheet writer.
    for (const SheetDocument& sheet : document.sheets) {
        ForEachRow(sheet, [&table](const RowView& view) {
            for (const Cell& cell : view.row.cells) {
                if (cell.type == CellType::String && cell.formula == NoFormula && cell.string < table.positions.size()) {
                    table.positions[cell.string] = 0;
                    ++table.references;
                }
            }
        });
    }
    for (uint32_t index = 0; index < table.positions.size(); ++index) {
        if (table.positions[index] != SharedStringTable::kNotShared) {
            table.positions[index] = static_cast<uint32_t>(table.strings.size());
            table.strings.push_back(index);
        }
    }
    return table;
}

void WriteTextElement(XmlWriter& xml, std::string_view text) {
    xml.StartElement("t");
    if (NeedsPreservedSpace(text)) {
        xml.Attribute("xml:space", "preserve");
    }
    xml.Text(text);
    xml.EndElement();
}

// A run without text is left out: Excel repairs a comment that has one.
void WriteStringItem(XmlWriter& xml, std::string_view element, const SharedString& string) {
    xml.StartElement(element);
    const auto hasText = [](const TextRun& run) { return !run.text.empty(); };
    if (std::none_of(string.runs.begin(), string.runs.end(), hasText)) {
        WriteTextElement(xml, string.text);
    }
    for (const TextRun& run : string.runs) {
        if (!hasText(run)) {
            continue;
        }
        xml.StartElement("r");
        if (run.font) {
            WriteFont(xml, "rPr", "rFont", *run.font);
        }
        WriteTextElement(xml, run.text);
        xml.EndElement();
    }
    xml.EndElement();
}

void WriteSharedStringsPart(XmlWriter& xml, const WorkbookDocument& document, const SharedStringTable& table) {
    xml.Declaration();
    xml.StartElement("sst");
    xml.Attribute("xmlns", "http://schemas.openxmlformats.org/spreadsheetml/2006/main");
    xml.Attribute("count", table.references);
    xml.Attribute("uniqueCount", table.strings.size());
    for (uint32_t index : table.strings) {
        WriteStringItem(xml, "si", document.strings[index]);
    }
    xml.EndElement();
}

}  // namespace ooxml
