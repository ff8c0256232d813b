#pragma once

#include "excel/embedded/model/workbook_model.hpp"

#include "ooxml/document/carried_content.hpp"

#include <cstdint>
#include <memory>
#include <string>

namespace excel::embedded {

// The workbook's sheet list in the file's terms and back: each sheet's state, and the places of
// the sheets the engine carries (chart sheets and the like) among the worksheets.

// A sheet's state in the file ("visible", "hidden", "veryHidden") as the object model's
// visibility (xlSheetVisible, xlSheetHidden, xlSheetVeryHidden), and back.
int32_t VisibilityFromSheetState(const std::string& state);
std::string SheetStateFromVisibility(int32_t visibility);

// Puts the carried sheets of an opened file into the workbook's sheet order, at the places the file
// gave them; the worksheets are in the workbook already.
void LoadOtherSheets(WorkbookModel& book, const ooxml::CarriedWorkbook& carried);

// The workbook's carried content with each carried sheet at its place in the sheet order now, which
// moved as worksheets were added or deleted before it. The content is copied only when one moved.
std::shared_ptr<const ooxml::CarriedWorkbook> CarriedInSheetOrder(const WorkbookModel& book);

}  // namespace excel::embedded
