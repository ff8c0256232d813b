#pragma once

#include "excel/embedded/model/application_model.hpp"
#include "excel/embedded/model/workbook_model.hpp"

#include <memory>
#include <string>

namespace excel::embedded {

// Opens the .xlsx at path as Workbooks.Open does: a workbook already open from that file is
// activated and answered; a missing or unreadable file, a folder, pipe or device, or one that is no
// workbook, is refused with Excel's text followed by the reason in parentheses.
std::shared_ptr<WorkbookModel> OpenWorkbookFile(ApplicationModel& app, const std::string& path);

// Writes the workbook to the .xlsx at fullName, replacing the file whole or leaving it as it was;
// a folder that does not exist, a read-only file or one that cannot be written is refused with
// Excel's text followed by the reason in parentheses.
void SaveWorkbookFile(const WorkbookModel& book, const std::string& fullName);

}  // namespace excel::embedded
