#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <optional>
#include <string>

namespace excel::embedded {

// A file another program wrote may hold what Excel does not allow and would repair on opening.
// What can be repaired without changing what the workbook means is repaired here, as Excel
// repairs it: a sheet or defined name that is no valid UTF-8 takes U+FFFD for its stray bytes,
// as it will be saved; a workbook whose sheets are all hidden shows its first; of merged blocks that
// overlap, the first is kept; a rich text's empty runs are dropped; a defined name Excel would not
// accept is dropped. What cannot be is answered as the reason to refuse the file: a sheet name
// Excel does not allow or one used twice, a formula of over 8,192 characters, a text of over
// 32,767. Nothing is answered when the document is fit to open.
std::optional<std::string> RepairOpenedDocument(ooxml::WorkbookDocument& document);

}  // namespace excel::embedded
