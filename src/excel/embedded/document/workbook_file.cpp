#include "excel/embedded/document/workbook_file.hpp"

#include "excel/embedded/document/workbook_document_conversion.hpp"
#include "excel/embedded/engine_errors.hpp"

#include "ooxml/opc/package_reader.hpp"
#include "ooxml/opc/package_writer.hpp"
#include "ooxml/package_error.hpp"

#include <filesystem>
#include <system_error>

namespace excel::embedded {

std::shared_ptr<WorkbookModel> OpenWorkbookFile(ApplicationModel& app, const std::string& path) {
    std::error_code error;
    const std::string fullName = std::filesystem::absolute(path, error).lexically_normal().string();
    if (auto open = app.WorkbookOpenFrom(fullName)) {
        app.ActivateWorkbook(*open);
        return open;
    }
    ooxml::WorkbookDocument document;
    try {
        document = ooxml::ReadPackage(fullName);
    } catch (const ooxml::PackageError& failure) {
        if (failure.reason() == ooxml::PackageError::Reason::FileNotFound ||
            failure.reason() == ooxml::PackageError::Reason::PathNotFound) {
            ThrowRefused("Sorry, we couldn't find " + fullName + ". Is it possible it was moved, renamed or deleted?");
        }
        ThrowRefused("Excel cannot open the file '" + std::filesystem::path(fullName).filename().string() +
                     "' because the file format or file extension is not valid. Verify that the file has not been "
                     "corrupted and that the file extension matches the format of the file.");
    }
    return app.AddOpenedWorkbook(fullName, [&](WorkbookModel& book) { LoadDocument(book, document); });
}

void SaveWorkbookFile(const WorkbookModel& book, const std::string& fullName) {
    try {
        ooxml::WritePackage(ToDocument(book, book.App().userName, RowDelivery::Streamed), fullName);
    } catch (const ooxml::PackageError& failure) {
        switch (failure.reason()) {
            case ooxml::PackageError::Reason::PathNotFound:
                ThrowRefused("Microsoft Excel cannot access the file '" + fullName +
                             "'. There are several possible reasons:\n\n"
                             "The file name or path does not exist.\n"
                             "The file is being used by another program.\n"
                             "The workbook you are trying to save has the same name as a currently open workbook.");
            case ooxml::PackageError::Reason::AccessDenied:
                ThrowRefused("Cannot access '" + std::filesystem::path(fullName).filename().string() + "'.");
            default:
                ThrowRefused("Document not saved.");
        }
    }
}

}  // namespace excel::embedded
