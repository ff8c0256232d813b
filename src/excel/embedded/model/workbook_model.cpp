#include "excel/embedded/model/workbook_model.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/model/charts/chart_model.hpp"
#include "excel/embedded/model/names/defined_name_rules.hpp"
#include "excel/embedded/model/names/sheet_name_rules.hpp"
#include "excel/embedded/model/password_verifier.hpp"
#include "excel/embedded/text/utf8_text.hpp"
#include "ooxml/reference/formula_reference_mover.hpp"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <span>
#include <unordered_map>

namespace excel::embedded {

namespace {

constexpr int32_t sheetVisible = -1;

std::string Lowercase(std::string_view text) {
    std::string result(text);
    for (char& c : result) {
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return result;
}

// The N of a name "SheetN" (any case), or 0.
int32_t SheetNumber(std::string_view name) {
    if (name.size() <= 5 || Lowercase(name.substr(0, 5)) != "sheet" || name.size() > 14) {
        return 0;
    }
    int32_t number = 0;
    for (char c : name.substr(5)) {
        if (c < '0' || c > '9') {
            return 0;
        }
        number = number * 10 + (c - '0');
    }
    return number;
}

}  // namespace

WorkbookModel::WorkbookModel(ApplicationModel& app, std::string name) : app_(&app), name_(std::move(name)) {}

WorkbookModel::~WorkbookModel() {
    Detach();
}

void WorkbookModel::Detach() {
    app_ = nullptr;
    for (auto& sheet : sheets_) {
        sheet->Detach();
    }
}

ApplicationModel& WorkbookModel::App() const {
    if (app_ == nullptr) {
        ThrowObjectRequired();
    }
    return *app_;
}

void WorkbookModel::SetFile(const std::string& path) {
    fullName_ = path;
    name_ = std::filesystem::path(path).filename().string();
}

int32_t WorkbookModel::SheetPosition(const WorksheetModel& sheet) const {
    for (size_t i = 0; i < sheets_.size(); ++i) {
        if (sheets_[i].get() == &sheet) {
            return static_cast<int32_t>(i);
        }
    }
    return -1;
}

int32_t WorkbookModel::PlaceOf(const WorksheetModel& sheet) const {
    for (size_t i = 0; i < allSheets_.size(); ++i) {
        if (allSheets_[i].worksheet.get() == &sheet) {
            return static_cast<int32_t>(i);
        }
    }
    return -1;
}

std::shared_ptr<WorksheetModel> WorkbookModel::FindSheet(std::string_view name) const {
    for (const auto& sheet : sheets_) {
        if (SameSheetName(sheet->Name(), name)) {
            return sheet;
        }
    }
    return nullptr;
}

const WorkbookModel::SheetSlot* WorkbookModel::FindAnySheet(std::string_view name) const {
    for (const SheetSlot& slot : allSheets_) {
        if (SameSheetName(slot.Name(), name)) {
            return &slot;
        }
    }
    return nullptr;
}

std::shared_ptr<WorksheetModel> WorkbookModel::AddSheets(size_t place, int32_t count) {
    RefuseWhenStructureProtected();
    // The numbers go on from the highest SheetN of any sheet, so a new name is never a chart
    // sheet's either.
    int32_t number = 0;
    for (const SheetSlot& slot : allSheets_) {
        number = std::max(number, SheetNumber(slot.Name()));
    }
    std::shared_ptr<WorksheetModel> added;
    place = std::min(place, allSheets_.size());
    for (int32_t i = 0; i < count; ++i) {
        added = std::make_shared<WorksheetModel>(*this, "Sheet" + std::to_string(++number));
        allSheets_.insert(allSheets_.begin() + static_cast<std::ptrdiff_t>(place + static_cast<size_t>(i)),
                          SheetSlot{added, {}});
    }
    listWorksheets();
    activeSheet_ = added.get();
    saved_ = false;
    return added;
}

std::shared_ptr<WorksheetModel> WorkbookModel::AppendSheet(const std::string& name) {
    auto sheet = std::make_shared<WorksheetModel>(*this, name);
    allSheets_.push_back(SheetSlot{sheet, {}});
    sheets_.push_back(sheet);
    if (activeSheet_ == nullptr) {
        activeSheet_ = sheet.get();
    }
    return sheet;
}

void WorkbookModel::InsertOtherSheet(size_t place, OtherSheet sheet) {
    place = std::min(place, allSheets_.size());
    allSheets_.insert(allSheets_.begin() + static_cast<std::ptrdiff_t>(place), SheetSlot{nullptr, std::move(sheet)});
}

void WorkbookModel::listWorksheets() {
    sheets_.clear();
    for (const SheetSlot& slot : allSheets_) {
        if (slot.worksheet) {
            sheets_.push_back(slot.worksheet);
        }
    }
}

int32_t WorkbookModel::VisibleSheetCount() const {
    return static_cast<int32_t>(std::count_if(sheets_.begin(), sheets_.end(), [](const auto& sheet) {
        return sheet->Settings().visibility == sheetVisible;
    }));
}

void WorkbookModel::DeleteSheet(WorksheetModel& sheet) {
    RefuseWhenStructureProtected();
    // A workbook keeps a worksheet, and a visible one. Excel would let a visible chart sheet be the
    // only visible sheet, but the engine's active sheet is always a worksheet.
    if ((sheet.Settings().visibility == sheetVisible && VisibleSheetCount() <= 1) || sheets_.size() <= 1) {
        ThrowRefused("A workbook must contain at least one visible worksheet.");
    }
    const int32_t position = SheetPosition(sheet);
    const std::string sheetName = sheet.Name();
    std::erase_if(names_, [&](const auto& name) {
        if (name->localSheet.get() == &sheet) {
            name->deleted = true;
            return true;
        }
        return false;
    });
    ooxml::SheetChange deleted;
    deleted.isSheet = [&](std::string_view name) { return SameSheetName(name, sheetName); };
    deleted.deleted = true;
    rewriteFormulas([&](std::string_view formula, const WorksheetModel*) {
        return ooxml::ChangeSheetReferences(formula, std::span(&deleted, 1), nullptr);
    });
    const auto keep = sheets_[static_cast<size_t>(position)];
    allSheets_.erase(allSheets_.begin() + PlaceOf(sheet));
    sheets_.erase(sheets_.begin() + position);
    if (activeSheet_ == &sheet) {
        // The next visible sheet becomes active, else the previous one.
        activeSheet_ = nullptr;
        for (size_t i = static_cast<size_t>(position); i < sheets_.size() && !activeSheet_; ++i) {
            if (sheets_[i]->Settings().visibility == sheetVisible) {
                activeSheet_ = sheets_[i].get();
            }
        }
        for (size_t i = static_cast<size_t>(position); i-- > 0 && !activeSheet_;) {
            if (sheets_[i]->Settings().visibility == sheetVisible) {
                activeSheet_ = sheets_[i].get();
            }
        }
    }
    keep->Detach();
    saved_ = false;
}

void WorkbookModel::RenameSheet(WorksheetModel& sheet, const std::string& name) {
    if (sheet.Name() == name) {
        return;
    }
    if (!IsValidSheetName(name)) {
        ThrowRefused("You typed an invalid name for a sheet or chart.");
    }
    if (const SheetSlot* other = FindAnySheet(name); other && other->worksheet.get() != &sheet) {
        ThrowRefused(
            "Cannot rename a sheet to the same name as another sheet, a referenced object library or a "
            "workbook referenced by Visual Basic.");
    }
    RefuseWhenStructureProtected();
    const std::string oldName = sheet.Name();
    ooxml::SheetChange renamed;
    renamed.isSheet = [&](std::string_view sheetName) { return SameSheetName(sheetName, oldName); };
    renamed.prefix = QualifiedSheetName(name);
    rewriteFormulas([&](std::string_view formula, const WorksheetModel*) {
        return ooxml::ChangeSheetReferences(formula, std::span(&renamed, 1), nullptr);
    });
    sheet.Settings().name = name;
    saved_ = false;
}

void WorkbookModel::SetSheetVisibility(WorksheetModel& sheet, int32_t visibility) {
    if (visibility != sheetVisible && visibility != 0 && visibility != 2) {
        ThrowRefused("Unable to set the Visible property of the Worksheet class");
    }
    if (visibility != sheetVisible && sheet.Settings().visibility == sheetVisible && VisibleSheetCount() <= 1) {
        ThrowRefused("A workbook must contain at least one visible worksheet.");
    }
    if (visibility != sheet.Settings().visibility) {
        RefuseWhenStructureProtected();
    }
    sheet.Settings().visibility = visibility;
    if (visibility != sheetVisible && activeSheet_ == &sheet) {
        for (const auto& other : sheets_) {
            if (other->Settings().visibility == sheetVisible) {
                activeSheet_ = other.get();
                break;
            }
        }
    }
    saved_ = false;
}

void WorkbookModel::ActivateSheet(WorksheetModel& sheet) {
    if (sheet.Settings().visibility != sheetVisible) {
        ThrowRefused("Activate method of Worksheet class failed");
    }
    activeSheet_ = &sheet;
}

std::shared_ptr<DefinedNameModel> WorkbookModel::FindName(std::string_view name,
                                                          const WorksheetModel* localSheet) const {
    for (const auto& candidate : names_) {
        if (candidate->localSheet.get() == localSheet && SameDefinedName(candidate->name, name)) {
            return candidate;
        }
    }
    return nullptr;
}

std::shared_ptr<DefinedNameModel> WorkbookModel::AddName(const std::string& name, const std::string& formula,
                                                         bool visible,
                                                         const std::shared_ptr<WorksheetModel>& localSheet) {
    std::shared_ptr<WorksheetModel> scope = localSheet;
    std::string bare = name;
    if (const auto bang = name.rfind('!'); bang != std::string::npos) {
        std::string sheetName = name.substr(0, bang);
        if (sheetName.size() >= 2 && sheetName.front() == '\'' && sheetName.back() == '\'') {
            sheetName = sheetName.substr(1, sheetName.size() - 2);
            for (size_t at = sheetName.find("''"); at != std::string::npos; at = sheetName.find("''", at + 1)) {
                sheetName.erase(at, 1);
            }
        }
        scope = FindSheet(sheetName);
        if (!scope || (localSheet && scope != localSheet)) {
            ThrowRefused("The name that you entered is not valid.");
        }
        bare = name.substr(bang + 1);
    }
    if (!IsValidDefinedName(bare)) {
        ThrowRefused("The name that you entered is not valid.");
    }
    if (auto existing = FindName(bare, scope.get())) {
        existing->formula = formula;
        existing->visible = visible;
        saved_ = false;
        return existing;
    }
    auto added = std::make_shared<DefinedNameModel>(DefinedNameModel{bare, formula, scope, visible, false});
    names_.insert(std::upper_bound(names_.begin(), names_.end(), added, NameListedBefore), added);
    saved_ = false;
    return added;
}

void WorkbookModel::AddOpenedNames(std::vector<std::shared_ptr<DefinedNameModel>> names) {
    names_.insert(names_.end(), names.begin(), names.end());
    sortNames();
}

void WorkbookModel::DeleteName(DefinedNameModel& name) {
    std::erase_if(names_, [&](const auto& candidate) { return candidate.get() == &name; });
    name.deleted = true;
    saved_ = false;
}

void WorkbookModel::RenameName(DefinedNameModel& name, const std::string& newName) {
    if (!IsValidDefinedName(newName)) {
        ThrowRefused("The name that you entered is not valid.");
    }
    if (auto existing = FindName(newName, name.localSheet.get()); existing && existing.get() != &name) {
        ThrowRefused("The name that you entered already exists. Enter a unique name.");
    }
    name.name = newName;
    sortNames();
    saved_ = false;
}

std::string WorkbookModel::ScopedName(const DefinedNameModel& name) {
    return name.localSheet ? QualifiedSheetName(name.localSheet->Name()) + "!" + name.name : name.name;
}

// Names are listed as Excel lists them: by name without regard to case, a workbook-level name
// before sheet-level ones of the same name, and otherwise in the order they came.
bool WorkbookModel::NameListedBefore(const std::shared_ptr<DefinedNameModel>& a,
                                     const std::shared_ptr<DefinedNameModel>& b) {
    const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
    const auto [left, right] = std::mismatch(a->name.begin(), a->name.end(), b->name.begin(), b->name.end(),
                                             [&](char x, char y) { return lower(x) == lower(y); });
    if (left != a->name.end() || right != b->name.end()) {
        if (left == a->name.end() || right == b->name.end()) {
            return left == a->name.end();
        }
        return lower(*left) < lower(*right);
    }
    return a->localSheet == nullptr && b->localSheet != nullptr;
}

void WorkbookModel::sortNames() {
    std::stable_sort(names_.begin(), names_.end(), NameListedBefore);
}

void WorkbookModel::ShiftCells(WorksheetModel& sheet, const BlockShift& shift) {
    sheet.ShiftCells(shift);
    ooxml::SheetChange moved;
    moved.isSheet = [&](std::string_view name) { return SameSheetName(name, sheet.Name()); };
    moved.move = FileBlockMove({shift});
    rewriteFormulas(
        [&](std::string_view formula, const WorksheetModel* owner) {
            return ooxml::ChangeSheetReferences(formula, std::span(&moved, 1), owner == &sheet ? &moved : nullptr);
        },
        &sheet);
    saved_ = false;
}

void WorkbookModel::rewriteFormulas(
    const std::function<std::string(std::string_view formula, const WorksheetModel* sheet)>& rewrite,
    const WorksheetModel* ownReferences) {
    // Only a formula that names a sheet can refer to another one.
    const auto mayRefer = [](std::string_view formula) { return formula.find('!') != std::string_view::npos; };
    for (const auto& sheet : sheets_) {
        const bool every = sheet.get() == ownReferences;
        // Cells may share a formula's text or an opened formula; each is rewritten once per sheet,
        // as a formula's references without a sheet name are to the sheet it is on.
        std::unordered_map<uint32_t, uint32_t> texts;
        std::unordered_map<uint32_t, uint32_t> openedFormulas;
        const auto rewritten = [&](uint32_t text) {
            auto [entry, added] = texts.try_emplace(text, text);
            if (added) {
                const std::string& formula = strings_.Get(text).text;
                if (!every && !mayRefer(formula)) {
                    return text;
                }
                if (std::string changed = rewrite(formula, sheet.get()); changed != formula) {
                    entry->second = strings_.Intern(changed);
                }
            }
            return entry->second;
        };
        for (RowData& row : sheet->Cells().Rows()) {
            for (Cell& cell : row.cells) {
                if (cell.kind == CellKind::Formula) {
                    cell.text = rewritten(cell.text);
                } else if (cell.kind == CellKind::OpenedFormula) {
                    auto [entry, added] = openedFormulas.try_emplace(cell.text, cell.text);
                    if (added) {
                        OpenedFormula formula = openedFormulas_.Get(cell.text);
                        if (const uint32_t text = rewritten(formula.text); text != formula.text) {
                            formula.text = text;
                            entry->second = openedFormulas_.Add(formula);
                        }
                    }
                    cell.text = entry->second;
                }
            }
        }
    }
    for (auto& name : names_) {
        if (mayRefer(name->formula)) {
            name->formula = rewrite(name->formula, nullptr);
        }
    }
    // Charts name their cells with the sheet, wherever the chart is.
    for (const auto& sheet : sheets_) {
        for (const auto& shape : sheet->Shapes().All()) {
            if (shape->chart != nullptr) {
                shape->chart->RewriteReferences([&](std::string_view reference) { return rewrite(reference, nullptr); });
            }
        }
    }
}

void WorkbookModel::Protect(const std::string& password, bool structure, bool windows) {
    protectStructure_ = structure;
    protectWindows_ = windows;
    password_ = password;
    passwordFromFile_ = false;
    fileVerifier_.clear();
}

void WorkbookModel::ProtectWithFilePassword(bool structure, bool windows, const std::string& verifier) {
    Protect("", structure, windows);
    passwordFromFile_ = true;
    fileVerifier_ = verifier;
}

void WorkbookModel::Unprotect(const std::string& password) {
    const bool accepted = passwordFromFile_ ? !fileVerifier_.empty() &&
                                                  EqualsIgnoringCase(LegacyPasswordVerifier(password), fileVerifier_)
                                            : password == password_;
    if ((protectStructure_ || protectWindows_) && !accepted) {
        ThrowRefused(
            "The password you supplied is not correct. Verify that the CAPS LOCK key is off and be sure to "
            "use the correct capitalization.");
    }
    protectStructure_ = false;
    protectWindows_ = false;
    password_.clear();
    passwordFromFile_ = false;
    fileVerifier_.clear();
}

void WorkbookModel::RefuseWhenStructureProtected() const {
    if (protectStructure_) {
        ThrowRefused("Workbook is protected and cannot be changed.");
    }
}

}  // namespace excel::embedded
