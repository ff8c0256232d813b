#include "excel/embedded/objects/book/workbook_view.hpp"

#include "excel/embedded/document/workbook_file.hpp"
#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/format/palette.hpp"
#include "excel/embedded/objects/book/application_view.hpp"
#include "excel/embedded/objects/book/names_view.hpp"
#include "excel/embedded/objects/book/sheets_view.hpp"
#include "excel/embedded/objects/book/window_view.hpp"
#include "excel/embedded/objects/book/windows_view.hpp"
#include "excel/embedded/objects/book/worksheet_view.hpp"

#include <excel/automation_error.hpp>
#include <excel/constants.hpp>
#include <excel/safe_array.hpp>

#include <filesystem>

namespace excel::embedded {

namespace {

int32_t PaletteIndex(const Variant& index) {
    const int32_t position = index.ToInt();
    if (position < 1 || position > 56) {
        ThrowRefused("Unable to get the Colors property of the Workbook class");
    }
    return position;
}

}  // namespace

WorkbookModel& WorkbookView::model() const {
    if (!model_->Alive()) {
        ThrowObjectRequired();
    }
    return *model_;
}

std::shared_ptr<excel::Application> WorkbookView::Application() {
    return std::make_shared<ApplicationView>(model().App().shared_from_this());
}

std::string WorkbookView::Name() {
    return model().Name();
}

std::string WorkbookView::FullName() {
    return model().HasFile() ? model_->FullName() : model_->Name();
}

std::string WorkbookView::Path() {
    return model().HasFile() ? std::filesystem::path(model_->FullName()).parent_path().string() : std::string();
}

std::shared_ptr<excel::Sheets> WorkbookView::Worksheets() {
    model();
    return std::make_shared<SheetsView>(model_, SheetsView::Listing::Worksheets);
}

std::shared_ptr<excel::Worksheet> WorkbookView::Worksheets(const Variant& index) {
    return Worksheets()->Item(index);
}

std::shared_ptr<excel::Sheets> WorkbookView::Sheets() {
    model();
    return std::make_shared<SheetsView>(model_, SheetsView::Listing::AllSheets);
}

std::shared_ptr<excel::Worksheet> WorkbookView::Sheets(const Variant& index) {
    return Sheets()->Item(index);
}

std::shared_ptr<excel::Worksheet> WorkbookView::ActiveSheet() {
    WorksheetModel* sheet = model().ActiveSheet();
    return sheet ? std::make_shared<WorksheetView>(sheet->shared_from_this()) : nullptr;
}

std::shared_ptr<excel::Names> WorkbookView::Names() {
    model();
    return std::make_shared<NamesView>(model_, nullptr);
}

std::shared_ptr<excel::Windows> WorkbookView::Windows() {
    model();
    return std::make_shared<WindowsView>(model_);
}

std::shared_ptr<excel::Window> WorkbookView::Windows(const Variant& index) {
    return Windows()->Item(index);
}

Variant WorkbookView::Colors(const Variant& index) {
    const auto& palette = model().Palette();
    if (index.IsEmpty()) {
        SafeArray colors(VarType::Variant, {SafeArrayBound{1, 56}});
        for (int32_t i = 1; i <= 56; ++i) {
            colors.Set({i}, Variant(static_cast<int32_t>(palette[static_cast<size_t>(i - 1)])));
        }
        return Variant(std::move(colors));
    }
    return Variant(static_cast<int32_t>(palette[static_cast<size_t>(PaletteIndex(index) - 1)]));
}

void WorkbookView::SetColors(const Variant& index, const Variant& rgb) {
    WorkbookModel& book = model();
    const int32_t position = PaletteIndex(index);
    const int32_t color = rgb.ToInt();
    if (color < 0 || color > 0xFFFFFF) {
        ThrowRefused("Unable to set the Colors property of the Workbook class");
    }
    book.Palette()[static_cast<size_t>(position - 1)] = static_cast<uint32_t>(color);
    book.SetSaved(false);
}

void WorkbookView::ResetColors() {
    model().Palette() = DefaultPalette();
    model_->SetSaved(false);
}

void WorkbookView::Protect(const Variant& password, const Variant& structure, const Variant& windows) {
    const std::string text = password.IsEmpty() ? std::string() : password.ToString();
    const bool lockStructure = structure.IsEmpty() ? true : structure.ToBool();
    const bool lockWindows = windows.IsEmpty() ? false : windows.ToBool();
    model().Protect(text, lockStructure, lockWindows);
}

void WorkbookView::Unprotect(const Variant& password) {
    model().Unprotect(password.IsEmpty() ? std::string() : password.ToString());
}

bool WorkbookView::ProtectStructure() {
    return model().ProtectStructure();
}

bool WorkbookView::ProtectWindows() {
    return model().ProtectWindows();
}

bool WorkbookView::Date1904() {
    return model().Date1904();
}

void WorkbookView::SetDate1904(bool date1904) {
    WorkbookModel& book = model();
    book.SetDate1904(date1904);
    book.SetSaved(false);
}

bool WorkbookView::ReadOnly() {
    model();
    return false;
}

bool WorkbookView::Saved() {
    return model().Saved();
}

void WorkbookView::Activate() {
    model().App().ActivateWorkbook(*model_);
}

void WorkbookView::SaveAs(const std::string& fileName, const Variant& fileFormat) {
    WorkbookModel& book = model();
    if (!fileFormat.IsEmpty() && fileFormat.ToInt() != xlOpenXMLWorkbook) {
        ThrowRefused("This extension can not be used with the selected file type.");
    }
    std::error_code error;
    const std::filesystem::path target = std::filesystem::absolute(fileName, error).lexically_normal();
    const std::string fullName = target.string();
    if (fileName.empty() || target.filename().empty()) {
        ThrowRefused("Microsoft Excel cannot access the file '" + fullName + "'.");
    }
    if (auto other = book.App().FindWorkbook(target.filename().string()); other && other.get() != &book) {
        ThrowRefused(
            "You cannot save this workbook with the same name as another open workbook or add-in. Choose a "
            "different name, or close the other workbook or add-in before saving.");
    }
    SaveWorkbookFile(book, fullName);
    book.SetFile(fullName);
    book.SetSaved(true);
}

void WorkbookView::Save() {
    WorkbookModel& book = model();
    if (!book.HasFile()) {
        ThrowRefused("Document not saved. The workbook has never been saved; use SaveAs to give it a file name.");
    }
    SaveAs(book.FullName(), {});
}

void WorkbookView::Close(const Variant& saveChanges, const Variant& fileName) {
    WorkbookModel& book = model();
    if (!saveChanges.IsEmpty() && saveChanges.ToBool()) {
        if (!fileName.IsEmpty()) {
            SaveAs(fileName.ToString(), {});
        } else {
            Save();
        }
    }
    book.App().CloseWorkbook(book);
}

}  // namespace excel::embedded
