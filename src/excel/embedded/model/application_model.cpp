#include "excel/embedded/model/application_model.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/model/names/sheet_name_rules.hpp"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

namespace excel::embedded {

ApplicationModel::ApplicationModel() {
    // The login name: USER on POSIX systems, USERNAME on Windows.
    const char* user = std::getenv("USER");
    if (user == nullptr || *user == '\0') {
        user = std::getenv("USERNAME");
    }
    userName = user != nullptr && *user != '\0' ? user : "User";
}

ApplicationModel::~ApplicationModel() {
    for (auto& book : workbooks_) {
        book->Detach();
    }
}

std::shared_ptr<WorkbookModel> ApplicationModel::FindWorkbook(std::string_view name) const {
    for (const auto& book : workbooks_) {
        if (SameSheetName(book->Name(), name)) {
            return book;
        }
    }
    return nullptr;
}

std::shared_ptr<WorkbookModel> ApplicationModel::AddWorkbook() {
    auto book = std::make_shared<WorkbookModel>(*this, "Book" + std::to_string(nextBookNumber_++));
    for (int32_t i = 1; i <= sheetsInNewWorkbook_; ++i) {
        book->AppendSheet("Sheet" + std::to_string(i));
    }
    book->SetSaved(true);
    workbooks_.push_back(book);
    activeWorkbook_ = book.get();
    return book;
}

std::shared_ptr<WorkbookModel> ApplicationModel::WorkbookOpenFrom(const std::string& fullName) const {
    for (const auto& book : workbooks_) {
        if (book->FullName() == fullName) {
            return book;
        }
    }
    return nullptr;
}

std::shared_ptr<WorkbookModel> ApplicationModel::AddOpenedWorkbook(const std::string& fullName,
                                                                   const std::function<void(WorkbookModel&)>& load) {
    const std::string fileName = std::filesystem::path(fullName).filename().string();
    if (FindWorkbook(fileName)) {
        ThrowRefused("Sorry, Excel can't open two workbooks with the same name at the same time.");
    }
    auto book = std::make_shared<WorkbookModel>(*this, fileName);
    load(*book);
    book->SetFile(fullName);
    book->SetSaved(true);
    workbooks_.push_back(book);
    activeWorkbook_ = book.get();
    return book;
}

void ApplicationModel::CloseWorkbook(WorkbookModel& book) {
    const auto keep = book.shared_from_this();
    std::erase_if(workbooks_, [&](const auto& candidate) { return candidate.get() == &book; });
    book.Detach();
    if (activeWorkbook_ == &book) {
        activeWorkbook_ = workbooks_.empty() ? nullptr : workbooks_.back().get();
    }
}

void ApplicationModel::SetSheetsInNewWorkbook(int32_t count) {
    if (count < 1 || count > 255) {
        ThrowRefused("The number must be between 1 and 255.");
    }
    sheetsInNewWorkbook_ = count;
}

}  // namespace excel::embedded
