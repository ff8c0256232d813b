#include "ooxml/reference/formula_reference_mover.hpp"

#include "ooxml/reference/formula_reference_scanner.hpp"

#include <algorithm>

namespace ooxml {

namespace {

bool NamesSheet(const FormulaReference& reference, const std::function<bool(std::string_view)>& isSheet) {
    const std::optional<std::string> sheet = reference.LocalSheet();
    return sheet && isSheet(*sheet);
}

CellBlock Ordered(const CellBlock& block) {
    return CellBlock{std::min(block.firstRow, block.lastRow), std::min(block.firstColumn, block.lastColumn),
                     std::max(block.firstRow, block.lastRow), std::max(block.firstColumn, block.lastColumn)};
}

std::string Prefix(const FormulaReference& reference) {
    return reference.sheets.empty() ? std::string() : std::string(reference.sheets) + "!";
}

}  // namespace

std::string MoveFormulaReferences(std::string_view formula, const SheetCellMove& move) {
    return RewriteFormulaReferences(formula, [&](const FormulaReference& reference) -> std::optional<std::string> {
        const bool onMovedSheet =
            reference.sheets.empty() ? move.onMovedSheet : NamesSheet(reference, move.isMovedSheet);
        if (!onMovedSheet) {
            return std::nullopt;
        }
        const CellBlock block = Ordered(reference.Block());
        const std::optional<CellBlock> moved = move.move(block);
        if (!moved) {
            return Prefix(reference) + "#REF!";
        }
        if (*moved == block) {
            return std::nullopt;
        }
        return Prefix(reference) + ReferenceText(reference, *moved);
    });
}

std::string RenameSheetReferences(std::string_view formula, const std::function<bool(std::string_view)>& isRenamedSheet,
                                  std::string_view newPrefix) {
    return RewriteFormulaReferences(formula, [&](const FormulaReference& reference) -> std::optional<std::string> {
        if (reference.sheets.empty() || !NamesSheet(reference, isRenamedSheet)) {
            return std::nullopt;
        }
        return std::string(newPrefix) + "!" + ReferenceText(reference, reference.Block());
    });
}

std::string WithoutSheetReferences(std::string_view formula,
                                   const std::function<bool(std::string_view)>& isDeletedSheet) {
    return RewriteFormulaReferences(formula, [&](const FormulaReference& reference) -> std::optional<std::string> {
        if (reference.sheets.empty() || !NamesSheet(reference, isDeletedSheet)) {
            return std::nullopt;
        }
        return "#REF!" + ReferenceText(reference, reference.Block());
    });
}

}  // namespace ooxml
