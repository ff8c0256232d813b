#include "excel/embedded/document/workbook_file.hpp"

#include "excel/embedded/document/opened_document_repair.hpp"
#include "excel/embedded/document/workbook_document_conversion.hpp"
#include "excel/embedded/engine_errors.hpp"

#include "ooxml/opc/package_reader.hpp"
#include "ooxml/opc/package_writer.hpp"
#include "ooxml/package_error.hpp"

#include <filesystem>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace excel::embedded {

namespace {

using Reason = ooxml::PackageError::Reason;

// Excel's sentence when memory runs out.
constexpr std::string_view kOutOfMemory =
    "Excel cannot complete this task with available resources. Choose less data or close other applications.";

// A path as a message shows it: a NUL would end the text wherever it is read as a C string, so it
// shows as U+FFFD.
std::string Shown(const std::string& path) {
    std::string shown;
    for (const char c : path) {
        shown += c == '\0' ? std::string("\xEF\xBF\xBD") : std::string(1, c);
    }
    return shown;
}

std::string FileNameOf(const std::string& fullName) {
    return Shown(std::filesystem::path(fullName).filename().string());
}

// Excel's sentence for a file Workbooks.Open could not read.
std::string OpenRefusal(const std::string& fullName, Reason reason) {
    switch (reason) {
        case Reason::FileNotFound:
        case Reason::PathNotFound:
        case Reason::InvalidPath:
            return "Sorry, we couldn't find " + Shown(fullName) + ". Is it possible it was moved, renamed or deleted?";
        case Reason::AccessDenied:
            return "Cannot access '" + FileNameOf(fullName) + "'.";
        default:
            return "Excel cannot open the file '" + FileNameOf(fullName) +
                   "' because the file format or file extension is not valid. Verify that the file has not been "
                   "corrupted and that the file extension matches the format of the file.";
    }
}

// Excel's sentence for a file SaveAs could not write.
std::string SaveRefusal(const std::string& fullName, Reason reason) {
    switch (reason) {
        case Reason::PathNotFound:
        case Reason::InvalidPath:
            return "Microsoft Excel cannot access the file '" + Shown(fullName) +
                   "'. There are several possible reasons:\n\n"
                   "The file name or path does not exist.\n"
                   "The file is being used by another program.\n"
                   "The workbook you are trying to save has the same name as a currently open workbook.";
        case Reason::AccessDenied:
            return "Cannot access '" + FileNameOf(fullName) + "'.";
        case Reason::ReadOnly:
            return "Cannot access read-only document '" + FileNameOf(fullName) + "'.";
        default:
            return "Document not saved.";
    }
}

// Excel's sentence, then in parentheses why: the system's reason for a file that could not be
// opened or written, what is wrong for a malformed package.
[[noreturn]] void Refuse(const std::string& sentence, const ooxml::PackageError& failure) {
    ThrowRefused(sentence + " (" + failure.what() + ")");
}

}  // namespace

std::shared_ptr<WorkbookModel> OpenWorkbookFile(ApplicationModel& app, const std::string& path) {
    std::error_code error;
    const std::string fullName = std::filesystem::absolute(path, error).lexically_normal().string();
    if (auto open = app.WorkbookOpenFrom(fullName)) {
        app.ActivateWorkbook(*open);
        return open;
    }
    try {
        ooxml::WorkbookDocument document;
        try {
            document = ooxml::ReadPackage(fullName);
        } catch (const ooxml::PackageError& failure) {
            Refuse(OpenRefusal(fullName, failure.reason()), failure);
        }
        if (const std::optional<std::string> refusal = RepairOpenedDocument(document)) {
            ThrowRefused(OpenRefusal(fullName, Reason::Corrupt) + " (" + *refusal + ")");
        }
        return app.AddOpenedWorkbook(fullName, [&](WorkbookModel& book) { LoadDocument(book, document); });
    } catch (const std::bad_alloc&) {
        ThrowRefused(std::string(kOutOfMemory) + " (opening the file: out of memory)");
    }
}

void SaveWorkbookFile(const WorkbookModel& book, const std::string& fullName) {
    try {
        ooxml::WritePackage(ToDocument(book, book.App().userName, RowDelivery::Streamed), fullName);
    } catch (const ooxml::PackageError& failure) {
        Refuse(SaveRefusal(fullName, failure.reason()), failure);
    } catch (const std::bad_alloc&) {
        ThrowRefused(std::string(kOutOfMemory) + " (saving the file: out of memory)");
    }
}

}  // namespace excel::embedded
