#include "ooxml/reference/formula_reference_mover.hpp"

#include "ooxml/reference/formula_reference_scanner.hpp"

#include <algorithm>

namespace ooxml {

namespace {

CellBlock Ordered(const CellBlock& block) {
    return CellBlock{std::min(block.firstRow, block.lastRow), std::min(block.firstColumn, block.lastColumn),
                     std::max(block.firstRow, block.lastRow), std::max(block.firstColumn, block.lastColumn)};
}

// The change of the sheet a reference names, if it names a changed one.
const SheetChange* ChangeOf(const FormulaReference& reference, std::span<const SheetChange> changes,
                            const SheetChange* ownSheet) {
    if (reference.sheets.empty()) {
        return ownSheet;
    }
    const std::optional<std::string> sheet = reference.LocalSheet();
    if (!sheet) {
        return nullptr;
    }
    const auto found = std::find_if(changes.begin(), changes.end(),
                                    [&sheet](const SheetChange& change) { return change.isSheet(*sheet); });
    return found == changes.end() ? nullptr : &*found;
}

}  // namespace

std::string ChangeSheetReferences(std::string_view formula, std::span<const SheetChange> changes,
                                  const SheetChange* ownSheet) {
    return RewriteFormulaReferences(formula, [&](const FormulaReference& reference) -> std::optional<std::string> {
        const SheetChange* change = ChangeOf(reference, changes, ownSheet);
        if (change == nullptr) {
            return std::nullopt;
        }
        const CellBlock block = Ordered(reference.Block());
        if (change->deleted) {
            return reference.sheets.empty() ? std::nullopt : std::optional("#REF!" + ReferenceText(reference, block));
        }
        const std::optional<CellBlock> moved = change->move ? change->move(block) : block;
        if (moved == block && (change->prefix.empty() || reference.sheets.empty())) {
            return std::nullopt;
        }
        std::string text;
        if (!reference.sheets.empty()) {
            text = (change->prefix.empty() ? std::string(reference.sheets) : change->prefix) + "!";
        }
        return text + (moved ? ReferenceText(reference, *moved) : std::string("#REF!"));
    });
}

}  // namespace ooxml
