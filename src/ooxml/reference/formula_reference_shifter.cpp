#include "ooxml/reference/formula_reference_shifter.hpp"

#include "ooxml/reference/formula_reference_scanner.hpp"

#include <cstdint>
#include <optional>

namespace ooxml {

namespace {

// The part moved by the offset unless absolute; nothing when it leaves the sheet.
std::optional<uint32_t> Shifted(uint32_t value, bool absolute, int32_t offset, uint32_t limit) {
    const int64_t moved = absolute ? value : static_cast<int64_t>(value) + offset;
    return moved >= 1 && moved <= limit ? std::optional(static_cast<uint32_t>(moved)) : std::nullopt;
}

}  // namespace

std::string ShiftFormulaReferences(std::string_view formula, int32_t rowOffset, int32_t columnOffset) {
    return RewriteFormulaReferences(formula, [&](const FormulaReference& reference) -> std::optional<std::string> {
        const CellBlock block = reference.Block();
        const bool rows = reference.kind != FormulaReference::Kind::Columns;
        const bool columns = reference.kind != FormulaReference::Kind::Rows;
        const std::optional<uint32_t> firstRow =
            rows ? Shifted(block.firstRow, reference.first.rowAbsolute, rowOffset, MaxRowIndex) : block.firstRow;
        const std::optional<uint32_t> lastRow =
            rows ? Shifted(block.lastRow, reference.last.rowAbsolute, rowOffset, MaxRowIndex) : block.lastRow;
        const std::optional<uint32_t> firstColumn =
            columns ? Shifted(block.firstColumn, reference.first.columnAbsolute, columnOffset, MaxColumnIndex)
                    : block.firstColumn;
        const std::optional<uint32_t> lastColumn =
            columns ? Shifted(block.lastColumn, reference.last.columnAbsolute, columnOffset, MaxColumnIndex)
                    : block.lastColumn;
        const std::string prefix = reference.sheets.empty() ? std::string() : std::string(reference.sheets) + "!";
        if (!firstRow || !lastRow || !firstColumn || !lastColumn) {
            return prefix + "#REF!";
        }
        return prefix + ReferenceText(reference, CellBlock{*firstRow, *firstColumn, *lastRow, *lastColumn});
    });
}

}  // namespace ooxml
