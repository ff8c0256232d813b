#include "excel/embedded/model/names/name_reference.hpp"

#include "excel/embedded/model/names/sheet_name_rules.hpp"

namespace excel::embedded {

std::optional<ParsedReference> ReadSheetReference(std::string_view formula) {
    // Each area carries its sheet ("Sheet1!$A$1,Sheet1!$C$3"); commas inside quotes belong to names.
    ParsedReference result;
    bool quoted = false;
    size_t start = 0;
    for (size_t i = 0; i <= formula.size(); ++i) {
        if (i < formula.size() && formula[i] == '\'') {
            quoted = !quoted;
        }
        if (i < formula.size() && (quoted || formula[i] != ',')) {
            continue;
        }
        auto part = ParseA1Reference(formula.substr(start, i - start));
        if (!part || part->sheet.empty() || (!result.sheet.empty() && !SameSheetName(result.sheet, part->sheet))) {
            return std::nullopt;
        }
        result.sheet = part->sheet;
        result.areas.insert(result.areas.end(), part->areas.begin(), part->areas.end());
        start = i + 1;
    }
    return result;
}

std::string WriteSheetReference(std::string_view sheet, const std::vector<CellBlock>& areas) {
    const std::string prefix = QualifiedSheetName(sheet) + "!";
    std::string formula;
    for (const CellBlock& area : areas) {
        if (!formula.empty()) {
            formula += ',';
        }
        formula += prefix + FormatBlock(area, true, true);
    }
    return formula;
}

}  // namespace excel::embedded
