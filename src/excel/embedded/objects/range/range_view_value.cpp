#include "excel/embedded/objects/range/range_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/model/cells/cell_content.hpp"
#include "excel/embedded/model/cells/cell_text.hpp"
#include "excel/embedded/objects/range/cell_value.hpp"

#include <excel/automation_error.hpp>
#include <excel/constants.hpp>
#include <excel/safe_array.hpp>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace excel::embedded {

namespace {

// An array's elements as rows x columns: a 1-D array is one row. A single row or column is
// repeated over a larger block, as Excel does; positions beyond the array get #N/A.
class ArrayShape {
public:
    explicit ArrayShape(const SafeArray& array) : array_(array) {
        if (array.Dimensions() == 2) {
            rows_ = array.Count(1);
            columns_ = array.Count(2);
        } else {
            rows_ = 1;
            columns_ = array.Count(1);
        }
    }

    const Variant* At(uint32_t row, uint32_t column) const {
        row = rows_ == 1 ? 0 : row;
        column = columns_ == 1 ? 0 : column;
        if (row >= rows_ || column >= columns_) {
            return nullptr;
        }
        return array_.Dimensions() == 2 ? &array_.At(row, column) : &array_.Elements()[column];
    }

private:
    const SafeArray& array_;
    uint32_t rows_ = 0;
    uint32_t columns_ = 0;
};

void RefuseUnstorable() {
    ThrowRefused("Application-defined or object-defined error");
}

// Every written position becomes a stored cell. A write larger than this (the whole sheet holds
// over 17 billion cells) could not be stored, so it fails, as reading such a block does, before it
// changes anything.
constexpr int64_t MaxCellsPerWrite = int64_t{1} << 27;

void RefuseWritesBeyondMemory(const std::vector<CellBlock>& areas) {
    int64_t cells = 0;
    for (const CellBlock& area : areas) {
        cells += area.CellCount();
    }
    if (cells > MaxCellsPerWrite) {
        ThrowRuntimeError(7);
    }
}

}  // namespace

Variant RangeView::readValues(bool convertDates) {
    const WorkbookModel& owner = book();
    CellValueReader reader(owner, convertDates);
    const CellBlock& block = first();
    const CellStore& store = cells_.Sheet()->Cells();
    if (block.CellCount() == 1) {
        return reader.Read(store.Find(block.top, block.left));
    }
    SafeArray values = SafeArray::Matrix(VarType::Variant, static_cast<uint32_t>(block.Rows()),
                                         static_cast<uint32_t>(block.Columns()));
    const auto [firstRow, lastRow] = store.RowSpan(block.top, block.bottom);
    for (size_t i = firstRow; i < lastRow; ++i) {
        const RowData& row = store.Rows()[i];
        for (const Cell& cell : row.CellsIn(block.left, block.right)) {
            if (cell.HasValue()) {
                values.Put(static_cast<uint32_t>(row.index - block.top),
                           static_cast<uint32_t>(cell.column - block.left), reader.Read(&cell));
            }
        }
    }
    return Variant(std::move(values));
}

// A text kept only by text-formatted cells is written only where every cell of the range is one.
void RangeView::refuseUnlessStorable(Storability storability) const {
    if (storability == Storability::Unstorable) {
        RefuseUnstorable();
    }
    if (storability == Storability::OnlyAsText) {
        const WorkbookModel& owner = cells_.Book();
        for (const uint32_t format : cells_.DistinctFormats()) {
            if (ClassifyNumberFormat(owner.Formats().Get(format).numberFormat) != NumberFormatKind::Text) {
                RefuseUnstorable();
            }
        }
    }
}

void RangeView::writeValues(const Variant& value, bool plain) {
    WorkbookModel& owner = book();
    if (value.IsArray()) {
        const SafeArray& array = value.Array();
        if (array.Dimensions() != 1 && array.Dimensions() != 2) {
            RefuseUnstorable();
        }
        Storability storability = Storability::Storable;
        for (const Variant& element : array.Elements()) {
            storability = std::max(storability, StorabilityOf(element));
        }
        refuseUnlessStorable(storability);
    } else {
        refuseUnlessStorable(StorabilityOf(value));
        if (value.IsEmpty()) {
            // Writing Empty clears the values, touching only the cells that are stored; unlike
            // ClearContents it may cut a merged block.
            clearValues();
            return;
        }
    }
    RefuseWritesBeyondMemory(cells_.Areas());
    CellValueWriter writer(owner);
    const Variant notAvailable(ErrorValue{ErrorValueCode(xlErrNA)});
    for (const CellBlock& area : cells_.Areas()) {
        if (!value.IsArray()) {
            cells_.Sheet()->WriteCells(area, [&](int32_t, int32_t, Cell& cell) {
                plain ? writer.StorePlain(cell, value) : writer.Store(cell, value);
            });
            continue;
        }
        const ArrayShape shape(value.Array());
        cells_.Sheet()->WriteCells(area, [&](int32_t row, int32_t column, Cell& cell) {
            const Variant* element =
                shape.At(static_cast<uint32_t>(row - area.top), static_cast<uint32_t>(column - area.left));
            const Variant& stored = element ? *element : notAvailable;
            plain ? writer.StorePlain(cell, stored) : writer.Store(cell, stored);
        });
    }
    owner.SetSaved(false);
}

Variant RangeView::Value() {
    return readValues(true);
}

void RangeView::SetValue(const Variant& value) {
    writeValues(value, false);
}

Variant RangeView::Value2() {
    return readValues(false);
}

void RangeView::SetValue2(const Variant& value) {
    writeValues(value, true);
}

Variant RangeView::Formula() {
    const WorkbookModel& owner = book();
    CellValueReader reader(owner, false);
    const CellBlock& block = first();
    const CellStore& store = cells_.Sheet()->Cells();
    if (block.CellCount() == 1) {
        return reader.ReadFormula(store.Find(block.top, block.left));
    }
    SafeArray formulas = SafeArray::Matrix(VarType::Variant, static_cast<uint32_t>(block.Rows()),
                                           static_cast<uint32_t>(block.Columns()));
    for (int32_t row = block.top; row <= block.bottom; ++row) {
        const RowData* data = store.FindRow(row);
        for (int32_t column = block.left; column <= block.right; ++column) {
            formulas.Put(static_cast<uint32_t>(row - block.top), static_cast<uint32_t>(column - block.left),
                         reader.ReadFormula(data ? data->Find(column) : nullptr));
        }
    }
    return Variant(std::move(formulas));
}

void RangeView::SetFormula(const Variant& formula) {
    writeValues(formula, false);
}

Variant RangeView::Text() {
    // A position holding no cell shows "" whatever its format, so the stored cells decide the
    // answer and the empty positions of a large range need not be visited one by one.
    const WorkbookModel& owner = book();
    std::optional<std::string> common;
    bool differs = false;
    int64_t positions = 0;
    int64_t stored = 0;
    for (const CellBlock& area : cells_.Areas()) {
        positions += area.CellCount();
        cells_.Sheet()->ForEachStoredCell(area, [&](int32_t row, Cell& cell) {
            ++stored;
            if (differs) {
                return;
            }
            std::string text = DisplayText(
                ContentOf(&cell, owner.Strings(), owner.OpenedFormulas()),
                owner.Formats().Get(cells_.Sheet()->ResolvedFormat(row, cell.column)).numberFormat, owner.Date1904());
            if (!common) {
                common = std::move(text);
            } else if (*common != text) {
                differs = true;
            }
        });
    }
    if (stored < positions) {
        differs = differs || (common && !common->empty());
        common = std::string();
    }
    return differs ? Variant::Null() : Variant(common.value_or(std::string()));
}

void RangeView::clearValues() {
    WorkbookModel& owner = book();
    for (const CellBlock& area : cells_.Areas()) {
        cells_.Sheet()->ClearValues(area);
    }
    owner.SetSaved(false);
}

void RangeView::ClearContents() {
    book();
    for (const CellBlock& area : cells_.Areas()) {
        if (cells_.Sheet()->CutsMerge(area)) {
            ThrowRefused("We can't do that to a merged cell.");
        }
    }
    clearValues();
}

void RangeView::ClearFormats() {
    book();
    for (const CellBlock& area : cells_.Areas()) {
        cells_.Sheet()->Unmerge(area);
    }
    cells_.EditFormats([](CellFormat& format) { format = CellFormat{}; });
}

// Excel's Clear All: contents, formats and comments.
void RangeView::Clear() {
    clearValues();
    ClearFormats();
    ClearComments();
}

}  // namespace excel::embedded
