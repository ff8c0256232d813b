#pragma once

#include "excel/embedded/model/workbook_model.hpp"

#include "ooxml/document/workbook_document.hpp"

#include <string>

namespace excel::embedded {

// The workbook as the package writer takes it; author names the creator and last editor.
ooxml::WorkbookDocument ToDocument(const WorkbookModel& book, const std::string& author);

// Fills an empty workbook from an opened package.
void LoadDocument(WorkbookModel& book, const ooxml::WorkbookDocument& document);

}  // namespace excel::embedded
