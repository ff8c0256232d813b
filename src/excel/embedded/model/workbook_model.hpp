#pragma once

#include "excel/embedded/format/format_table.hpp"
#include "excel/embedded/format/workbook_colors.hpp"
#include "excel/embedded/model/block_shift.hpp"
#include "excel/embedded/model/cells/opened_formula_table.hpp"
#include "excel/embedded/model/names/defined_name_model.hpp"
#include "excel/embedded/model/other_sheet.hpp"
#include "excel/embedded/model/string_pool.hpp"
#include "excel/embedded/model/worksheet_model.hpp"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ooxml {
struct CarriedWorkbook;
}  // namespace ooxml

namespace excel::embedded {

class ApplicationModel;

// A workbook's content and state. Owned by the application while open; views hold it by
// shared_ptr and find it detached once closed.
class WorkbookModel : public std::enable_shared_from_this<WorkbookModel> {
public:
    WorkbookModel(ApplicationModel& app, std::string name);
    ~WorkbookModel();
    WorkbookModel(const WorkbookModel&) = delete;
    WorkbookModel& operator=(const WorkbookModel&) = delete;

    bool Alive() const { return app_ != nullptr; }
    // Closes: the sheets and every view of them stop working.
    void Detach();
    ApplicationModel& App() const;

    const std::string& Name() const { return name_; }
    const std::string& FullName() const { return fullName_; }
    // The workbook now lives at path (absolute): its name becomes the file name.
    void SetFile(const std::string& path);
    bool HasFile() const { return !fullName_.empty(); }

    // Sheets. The workbook's sheets are its worksheets and, in a workbook opened from a file, the
    // other sheets the file had (chart sheets and the like), in one order, as Excel's Sheets
    // collection lists them; Worksheets lists the worksheets alone.
    //
    // One place in that order: a worksheet, or else another sheet.
    struct SheetSlot {
        std::shared_ptr<WorksheetModel> worksheet;  // none for another sheet
        OtherSheet other;                           // when worksheet is none

        const std::string& Name() const { return worksheet ? worksheet->Name() : other.name; }
    };
    const std::vector<SheetSlot>& AllSheets() const { return allSheets_; }
    // The worksheets, in their order.
    const std::vector<std::shared_ptr<WorksheetModel>>& Sheets() const { return sheets_; }
    int32_t SheetPosition(const WorksheetModel& sheet) const;  // among the worksheets, 0-based, -1 when absent
    int32_t PlaceOf(const WorksheetModel& sheet) const;        // among all the sheets, 0-based, -1 when absent
    std::shared_ptr<WorksheetModel> FindSheet(std::string_view name) const;  // a worksheet
    const SheetSlot* FindAnySheet(std::string_view name) const;              // a sheet of any kind
    // Inserts count new worksheets at place (0-based, among all the sheets), named SheetN with the
    // next free numbers; the last one becomes active and is returned.
    std::shared_ptr<WorksheetModel> AddSheets(size_t place, int32_t count);
    // Appends a worksheet with a given name (opening a file); no checks.
    std::shared_ptr<WorksheetModel> AppendSheet(const std::string& name);
    // Inserts another sheet of an opened file at place (among all the sheets, at most their
    // count); no checks.
    void InsertOtherSheet(size_t place, OtherSheet sheet);
    void DeleteSheet(WorksheetModel& sheet);
    void RenameSheet(WorksheetModel& sheet, const std::string& name);
    void SetSheetVisibility(WorksheetModel& sheet, int32_t visibility);
    WorksheetModel* ActiveSheet() const { return activeSheet_; }
    void ActivateSheet(WorksheetModel& sheet);
    int32_t VisibleSheetCount() const;  // of the worksheets

    // Defined names, kept in Excel's order (alphabetical, case-insensitive).
    const std::vector<std::shared_ptr<DefinedNameModel>>& Names() const { return names_; }
    std::shared_ptr<DefinedNameModel> FindName(std::string_view name, const WorksheetModel* localSheet) const;
    // Adds or replaces a name; "Sheet1!Total" or a localSheet makes it local.
    std::shared_ptr<DefinedNameModel> AddName(const std::string& name, const std::string& formula, bool visible,
                                              const std::shared_ptr<WorksheetModel>& localSheet);
    // Takes the names of an opened file as they are, unchecked, so they are saved again unchanged.
    void AddOpenedNames(std::vector<std::shared_ptr<DefinedNameModel>> names);
    void DeleteName(DefinedNameModel& name);
    void RenameName(DefinedNameModel& name, const std::string& newName);
    // The name as Name.Name reads it: "Total" or "Sheet1!Total".
    static std::string ScopedName(const DefinedNameModel& name);

    // Inserts or deletes cells of a sheet: the cells move, and names referring to them follow.
    void ShiftCells(WorksheetModel& sheet, const BlockShift& shift);

    FormatTable& Formats() { return formats_; }
    const FormatTable& Formats() const { return formats_; }
    StringPool& Strings() { return strings_; }
    const StringPool& Strings() const { return strings_; }
    OpenedFormulaTable& OpenedFormulas() { return openedFormulas_; }
    const OpenedFormulaTable& OpenedFormulas() const { return openedFormulas_; }
    // The colours colour references show: the palette Workbook.Colors edits, and the theme's.
    const WorkbookColors& Colors() const { return colors_; }
    excel::embedded::Palette& Palette() { return colors_.palette; }
    const excel::embedded::Palette& Palette() const { return colors_.palette; }
    const excel::embedded::ThemeColors& ThemeColors() const { return colors_.theme; }
    void SetThemeColors(const excel::embedded::ThemeColors& colors) { colors_.theme = colors; }

    bool ProtectStructure() const { return protectStructure_; }
    bool ProtectWindows() const { return protectWindows_; }
    void Protect(const std::string& password, bool structure, bool windows);
    // Protection an opened file locked with a password it keeps only the hash of: the password
    // stays until the protection changes, and unprotecting takes the password whose legacy hash
    // (verifier) the file gave; with none (a SHA-512 hash alone) unprotecting is refused.
    void ProtectWithFilePassword(bool structure, bool windows, const std::string& verifier);
    bool PasswordFromFile() const { return passwordFromFile_; }
    const std::string& Password() const { return password_; }
    void Unprotect(const std::string& password);
    void RefuseWhenStructureProtected() const;

    // What the opened file held that the engine does not model (its theme, pivot caches, links,
    // macros, chart sheets, ...), kept to be saved again. The engine holds it and never looks
    // inside: only the document conversion does.
    const std::shared_ptr<const ooxml::CarriedWorkbook>& Carried() const { return carried_; }
    void SetCarried(std::shared_ptr<const ooxml::CarriedWorkbook> carried) { carried_ = std::move(carried); }

    // Whether date serials count from 1904-01-01 (see date_system.hpp). Changing it keeps the
    // stored serials.
    bool Date1904() const { return date1904_; }
    void SetDate1904(bool date1904) { date1904_ = date1904; }

    bool Saved() const { return saved_; }
    void SetSaved(bool saved) { saved_ = saved; }

private:
    static bool NameListedBefore(const std::shared_ptr<DefinedNameModel>& a,
                                 const std::shared_ptr<DefinedNameModel>& b);
    void sortNames();
    // Rewrites the workbook's formulas (of cells and names) that may refer to a sheet: those that
    // name a sheet, and every formula on ownReferences, whose references without a sheet name are
    // to it. A cell formula is given with the sheet it is on, a name's with none.
    void rewriteFormulas(
        const std::function<std::string(std::string_view formula, const WorksheetModel* sheet)>& rewrite,
        const WorksheetModel* ownReferences = nullptr);
    // Lists the worksheets of allSheets_ again in sheets_, after a sheet came or went.
    void listWorksheets();

    ApplicationModel* app_;
    std::string name_;
    std::string fullName_;
    std::vector<SheetSlot> allSheets_;
    std::vector<std::shared_ptr<WorksheetModel>> sheets_;  // the worksheets of allSheets_
    WorksheetModel* activeSheet_ = nullptr;
    std::vector<std::shared_ptr<DefinedNameModel>> names_;
    FormatTable formats_;
    StringPool strings_;
    OpenedFormulaTable openedFormulas_;
    WorkbookColors colors_;
    bool protectStructure_ = false;
    bool protectWindows_ = false;
    std::string password_;
    bool passwordFromFile_ = false;
    std::string fileVerifier_;
    bool date1904_ = false;
    bool saved_ = true;
    std::shared_ptr<const ooxml::CarriedWorkbook> carried_;
};

}  // namespace excel::embedded
