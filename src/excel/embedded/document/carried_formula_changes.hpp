#pragma once

#include "excel/embedded/model/workbook_model.hpp"
#include "ooxml/document/workbook_document.hpp"

namespace excel::embedded {

// The formulas of what an opened workbook carries (conditional formats, data validation,
// hyperlinks, charts, pivot caches) in the saved workbook's terms: each worksheet of the file has
// had its cells moved by the insertions and deletions since it was opened, has been renamed, or
// has gone, leaving #REF! where formulas named it.
void ChangeCarriedFormulas(const WorkbookModel& book, ooxml::WorkbookDocument& document);

}  // namespace excel::embedded
