#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <pugixml.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

// A string item: the <si> of the shared string table or the <is> of an inline string cell. Plain
// text from <t>, or rich text from <r> runs with their <rPr> fonts; phonetic runs are left out.
SharedString ReadStringItem(pugi::xml_node item);

// The shared string table. Throws PackageError(Corrupt).
std::vector<SharedString> ReadSharedStrings(std::string& xml, std::string_view partName);

}  // namespace ooxml
