#include "excel/embedded/document/carried_formula_changes.hpp"

#include "excel/embedded/model/names/sheet_name_rules.hpp"
#include "ooxml/opc/carried_formula_rewrite.hpp"
#include "ooxml/reference/formula_reference_mover.hpp"

#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace excel::embedded {

void ChangeCarriedFormulas(const WorkbookModel& book, ooxml::WorkbookDocument& document) {
    if (!document.carried) {
        return;
    }
    const auto& sheets = book.Sheets();
    std::vector<ooxml::SheetChange> changes;
    std::vector<std::optional<std::size_t>> changeOfSheet(sheets.size());
    // Each sheet by the name the file gave it, so that a workbook of many sheets saves in linear time.
    std::unordered_map<std::string_view, std::size_t> sheetOfFileName;
    for (std::size_t index = 0; index < sheets.size(); ++index) {
        if (sheets[index]->Carried()) {
            sheetOfFileName.emplace(sheets[index]->Carried()->name, index);
        }
    }
    for (const std::string& fileName : document.carried->worksheetNames) {
        ooxml::SheetChange change;
        change.isSheet = [fileName](std::string_view name) { return SameSheetName(name, fileName); };
        const auto found = sheetOfFileName.find(fileName);
        if (found == sheetOfFileName.end()) {
            change.deleted = true;
        } else {
            const WorksheetModel& sheet = *sheets[found->second];
            if (!sheet.ShiftsApplied().empty()) {
                change.move = FileBlockMove(sheet.ShiftsApplied());
            }
            if (sheet.Name() != fileName) {
                change.prefix = QualifiedSheetName(sheet.Name());
            }
            if (!change.move && change.prefix.empty()) {
                continue;
            }
            changeOfSheet[found->second] = changes.size();
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
