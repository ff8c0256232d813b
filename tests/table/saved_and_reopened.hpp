#pragma once

#include <excel/application.hpp>
#include <excel/workbook.hpp>
#include <excel/workbooks.hpp>
#include <excel/worksheet.hpp>

#include <unistd.h>
#include <filesystem>
#include <memory>
#include <string>

// Saves the sheet's workbook under that file name in the temporary folder, closes it and opens the
// file again: the sheet of the same name as it came back. The file is removed once it is open.
inline std::shared_ptr<excel::Worksheet> SavedAndReopened(const std::shared_ptr<excel::Worksheet>& sheet,
                                                          const std::string& fileName) {
    const std::string path =
        (std::filesystem::temp_directory_path() / (std::to_string(::getpid()) + "_" + fileName)).string();
    const std::string sheetName = sheet->Name();
    const auto workbook = sheet->Parent();
    const auto application = workbook->Application();
    workbook->SaveAs(path);
    workbook->Close();
    const auto reopened = application->Workbooks()->Open(path)->Worksheets(sheetName);
    std::filesystem::remove(path);
    return reopened;
}
