#pragma once

#include <excel/application.hpp>
#include <excel/workbook.hpp>
#include <excel/workbooks.hpp>
#include <excel/worksheet.hpp>

#include <unistd.h>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

// A folder of the test's own in the temporary directory; it goes, with whatever was saved in it,
// when the test ends.
class ScratchFolder {
public:
    explicit ScratchFolder(const std::string& name)
        : path_(std::filesystem::temp_directory_path() / (name + "_" + std::to_string(::getpid()))) {
        std::filesystem::create_directories(path_);
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    std::string File(const std::string& fileName) const { return (path_ / fileName).string(); }

private:
    std::filesystem::path path_;
};

// Saves the sheet's workbook as that file, closes it and opens the file again: the sheet of the same
// name as it came back.
inline std::shared_ptr<excel::Worksheet> SavedAndReopened(const std::shared_ptr<excel::Worksheet>& sheet,
                                                          const std::string& path) {
    const std::string sheetName = sheet->Name();
    const auto workbook = sheet->Parent();
    const auto application = workbook->Application();
    workbook->SaveAs(path);
    workbook->Close();
    return application->Workbooks()->Open(path)->Worksheets(sheetName);
}
