#pragma once

#include "ooxml/document/workbook_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <cstdint>
#include <string_view>
#include <vector>

namespace ooxml {

inline constexpr std::string_view kSharedStringsContentType =
    "application/vnd.openxmlformats-officedocument.spreadsheetml.sharedStrings+xml";
inline constexpr std::string_view kSharedStringsRelationshipType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/sharedStrings";

// Which of the document's strings the package's shared string table holds, and at which position.
// Cells refer to strings by document index, the file by table position; strings no cell shows as a
// shared string (error values, formula results, strings no longer used) are left out.
struct SharedStringTable {
    static constexpr uint32_t kNotShared = UINT32_MAX;

    std::vector<uint32_t> positions;  // per document string: its table position, or kNotShared
    std::vector<uint32_t> strings;    // the document indices of the table's strings, in table order
    uint64_t references = 0;          // how many cells refer to the table
};

SharedStringTable BuildSharedStringTable(const WorkbookDocument& document);

// Writes xl/sharedStrings.xml: the table's strings, rich text as runs with their fonts.
void WriteSharedStringsPart(XmlWriter& xml, const WorkbookDocument& document, const SharedStringTable& table);

// Writes a string item (<si> of the shared string table, <text> of a comment): plain text in <t>,
// rich text as runs with their fonts.
void WriteStringItem(XmlWriter& xml, std::string_view element, const SharedString& string);

// Writes <t> with text, marking it space-preserving when a reader could otherwise trim it.
void WriteTextElement(XmlWriter& xml, std::string_view text);

}  // namespace ooxml
