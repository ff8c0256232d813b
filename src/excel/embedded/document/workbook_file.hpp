#pragma once

#include "excel/embedded/model/application_model.hpp"
#include "excel/embedded/model/workbook_model.hpp"

#include <memory>
#include <string>

namespace excel::embedded {

// Opens the .xlsx at path as Workbooks.Open does: a workbook already open from that file is
// activated and answered; a missing file, or one that is no workbook, is refused with Excel's text.
std::shared_ptr<WorkbookModel> OpenWorkbookFile(ApplicationModel& app, const std::string& path);

// Writes the workbook to the .xlsx at fullName, replacing the file whole or leaving it as it was;
// a folder that does not exist or a file that cannot be written is refused with Excel's text.
void SaveWorkbookFile(const WorkbookModel& book, const std::string& fullName);

}  // namespace excel::embedded
