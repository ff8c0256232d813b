#pragma once

#include "excel/embedded/model/workbook_model.hpp"

#include "ooxml/document/workbook_document.hpp"

#include <cstdint>
#include <string>

namespace excel::embedded {

// How the document gives the sheets' rows: held in it, or made one at a time while the package is
// written (the model must then stay unchanged until the document is written).
enum class RowDelivery : uint8_t { Held, Streamed };

// The workbook as the package writer takes it; author names the creator and last editor.
ooxml::WorkbookDocument ToDocument(const WorkbookModel& book, const std::string& author,
                                   RowDelivery rows = RowDelivery::Held);

// Fills an empty workbook from an opened package.
void LoadDocument(WorkbookModel& book, const ooxml::WorkbookDocument& document);

}  // namespace excel::embedded
