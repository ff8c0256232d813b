#include "ooxml/shared_strings/shared_strings_reader.hpp"

#include "ooxml/styles/font_reader.hpp"
#include "ooxml/xml/escaped_text_decoder.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"

namespace ooxml {

namespace {

std::string TextOf(pugi::xml_node t) {
    return DecodeEscapedText(t.child_value());
}

}  // namespace

SharedString ReadStringItem(pugi::xml_node item) {
    SharedString string;
    for (pugi::xml_node child = item.first_child(); child; child = child.next_sibling()) {
        const std::string_view name = LocalName(child);
        if (name == "t") {
            string.text += TextOf(child);
        } else if (name == "r") {
            TextRun run;
            run.text = TextOf(FirstChild(child, "t"));
            if (const pugi::xml_node properties = FirstChild(child, "rPr")) {
                run.font = ReadFont(properties);
            }
            string.text += run.text;
            string.runs.push_back(std::move(run));
        }
    }
    return string;
}

std::vector<SharedString> ReadSharedStrings(std::string& xml, std::string_view partName) {
    pugi::xml_document document;
    ParseXmlPart(document, xml, partName);
    std::vector<SharedString> strings;
    ForEachChild(document.document_element(), "si",
                 [&](pugi::xml_node item) { strings.push_back(ReadStringItem(item)); });
    return strings;
}

}  // namespace ooxml
