#include "excel/embedded/document/carried_formula_changes.hpp"

#include "excel/embedded/model/names/sheet_name_rules.hpp"
#include "ooxml/opc/carried_formula_rewrite.hpp"
#include "ooxml/reference/formula_reference_mover.hpp"

#include <algorithm>
#include <optional>
#include <vector>

namespace excel::embedded {

void ChangeCarriedFormulas(const WorkbookModel& book, ooxml::WorkbookDocument& document) {
    if (!document.carried) {
        return;
    }
    const auto& sheets = book.Sheets();
    std::vector<ooxml::SheetChange> changes;
    std::vector<std::optional<std::size_t>> changeOfSheet(sheets.size());
    for (const std::string& fileName : document.carried->worksheetNames) {
        ooxml::SheetChange change;
        change.isSheet = [fileName](std::string_view name) { return SameSheetName(name, fileName); };
        const auto found = std::find_if(sheets.begin(), sheets.end(), [&fileName](const auto& sheet) {
            return sheet->Carried() && sheet->Carried()->name == fileName;
        });
        if (found == sheets.end()) {
            change.deleted = true;
        } else {
            const WorksheetModel& sheet = **found;
            if (!sheet.ShiftsApplied().empty()) {
                change.move = FileBlockMove(sheet.ShiftsApplied());
            }
            if (sheet.Name() != fileName) {
                change.prefix = QualifiedSheetName(sheet.Name());
            }
            if (!change.move && change.prefix.empty()) {
                continue;
            }
            changeOfSheet[static_cast<std::size_t>(found - sheets.begin())] = changes.size();
        }
        changes.push_back(std::move(change));
    }
    if (changes.empty()) {
        return;
    }
    ooxml::RewriteCarriedFormulas(document, [&](std::string_view formula, std::optional<std::size_t> sheet) {
        const std::optional<std::size_t> own = sheet ? changeOfSheet[*sheet] : std::nullopt;
        return ooxml::ChangeSheetReferences(formula, changes, own ? &changes[*own] : nullptr);
    });
}

}  // namespace excel::embedded
