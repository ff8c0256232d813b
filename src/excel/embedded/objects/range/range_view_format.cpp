#include "excel/embedded/objects/range/range_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/format/enum_table.hpp"
#include "excel/embedded/objects/common_value.hpp"

#include <excel/constants.hpp>

#include <optional>
#include <set>

namespace excel::embedded {

namespace {

constexpr int32_t verticalTextRotation = 255;

// Excel's XlHAlign and XlVAlign values, in the order of the alignments.
constexpr EnumTable<HorizontalAlignment, int32_t, 8> horizontalAlignments{
    {xlGeneral, xlLeft, xlCenter, xlRight, xlFill, xlJustify, xlCenterAcrossSelection, xlDistributed}};
constexpr EnumTable<VerticalAlignment, int32_t, 5> verticalAlignments{
    {xlTop, xlCenter, xlBottom, xlJustify, xlDistributed}};

bool WholeRows(const CellBlock& block) {
    return block.left == 1 && block.right == MaxColumn;
}
bool WholeColumns(const CellBlock& block) {
    return block.top == 1 && block.bottom == MaxRow;
}

}  // namespace

template <class Project>
Variant RangeView::readFormat(Project&& project) {
    const WorkbookModel& owner = book();
    const auto ids = cells_.DistinctFormats();
    return CommonValue(ids, [&](uint32_t id) { return project(owner.Formats().Get(id)); });
}

Variant RangeView::NumberFormat() {
    return readFormat([](const CellFormat& format) { return Variant(format.numberFormat); });
}

void RangeView::SetNumberFormat(const std::string& format) {
    book();
    const std::string numberFormat = format.empty() ? "General" : format;
    cells_.EditFormats([&](CellFormat& cellFormat) { cellFormat.numberFormat = numberFormat; });
}

// The engine works in locale 1033 (English, United States), where both spellings agree.
Variant RangeView::NumberFormatLocal() {
    return NumberFormat();
}

void RangeView::SetNumberFormatLocal(const std::string& format) {
    SetNumberFormat(format);
}

Variant RangeView::HorizontalAlignment() {
    return readFormat(
        [](const CellFormat& format) { return Variant(horizontalAlignments[format.alignment.horizontal]); });
}

void RangeView::SetHorizontalAlignment(int32_t alignment) {
    book();
    const std::optional<embedded::HorizontalAlignment> found = horizontalAlignments.Find(alignment);
    if (!found) {
        ThrowRefused("Unable to set the HorizontalAlignment property of the Range class");
    }
    cells_.EditFormats([&](CellFormat& format) { format.alignment.horizontal = *found; });
}

Variant RangeView::VerticalAlignment() {
    return readFormat([](const CellFormat& format) { return Variant(verticalAlignments[format.alignment.vertical]); });
}

void RangeView::SetVerticalAlignment(int32_t alignment) {
    book();
    const std::optional<embedded::VerticalAlignment> found = verticalAlignments.Find(alignment);
    if (!found) {
        ThrowRefused("Unable to set the VerticalAlignment property of the Range class");
    }
    cells_.EditFormats([&](CellFormat& format) { format.alignment.vertical = *found; });
}

Variant RangeView::WrapText() {
    return readFormat([](const CellFormat& format) { return Variant(format.alignment.wrapText); });
}

void RangeView::SetWrapText(bool wrap) {
    book();
    cells_.EditFormats([&](CellFormat& format) { format.alignment.wrapText = wrap; });
}

Variant RangeView::IndentLevel() {
    return readFormat([](const CellFormat& format) { return Variant(format.alignment.indent); });
}

void RangeView::SetIndentLevel(int32_t level) {
    book();
    if (level < 0 || level > 250) {
        ThrowRefused("Unable to set the IndentLevel property of the Range class");
    }
    cells_.EditFormats([&](CellFormat& format) {
        format.alignment.indent = level;
        // An indent needs an alignment that honours it; Excel switches General to left.
        if (level > 0 && format.alignment.horizontal == embedded::HorizontalAlignment::General) {
            format.alignment.horizontal = embedded::HorizontalAlignment::Left;
        }
    });
}

Variant RangeView::Orientation() {
    return readFormat([](const CellFormat& format) {
        const int32_t rotation = format.alignment.textRotation;
        if (rotation == 0) {
            return Variant(xlHorizontal);
        }
        if (rotation == verticalTextRotation) {
            return Variant(xlVertical);
        }
        return Variant(rotation <= 90 ? rotation : 90 - rotation);
    });
}

void RangeView::SetOrientation(int32_t degrees) {
    book();
    int32_t rotation = 0;
    if (degrees == xlHorizontal) {
        rotation = 0;
    } else if (degrees == xlVertical) {
        rotation = verticalTextRotation;
    } else if (degrees == xlUpward) {
        rotation = 90;
    } else if (degrees == xlDownward) {
        rotation = 180;
    } else if (degrees >= -90 && degrees <= 90) {
        rotation = degrees >= 0 ? degrees : 90 - degrees;
    } else {
        ThrowRefused("Unable to set the Orientation property of the Range class");
    }
    cells_.EditFormats([&](CellFormat& format) { format.alignment.textRotation = rotation; });
}

Variant RangeView::MergeCells() {
    book();
    int64_t merged = 0;
    int64_t total = 0;
    for (const CellBlock& area : cells_.Areas()) {
        total += area.CellCount();
        for (const CellBlock& merge : cells_.Sheet()->Merges()) {
            if (merge.Intersects(area)) {
                const CellBlock overlap{std::max(merge.top, area.top), std::max(merge.left, area.left),
                                        std::min(merge.bottom, area.bottom), std::min(merge.right, area.right)};
                merged += overlap.CellCount();
            }
        }
    }
    if (merged == 0) {
        return Variant(false);
    }
    return merged == total ? Variant(true) : Variant::Null();
}

void RangeView::SetMergeCells(bool merge) {
    if (merge) {
        Merge(false);
    } else {
        UnMerge();
    }
}

void RangeView::Merge(bool across) {
    WorkbookModel& owner = book();
    for (const CellBlock& area : cells_.Areas()) {
        if (!across) {
            cells_.Sheet()->Merge(area);
            continue;
        }
        for (int32_t row = area.top; row <= area.bottom; ++row) {
            cells_.Sheet()->Merge(CellBlock{row, area.left, row, area.right});
        }
    }
    owner.SetSaved(false);
}

void RangeView::UnMerge() {
    WorkbookModel& owner = book();
    for (const CellBlock& area : cells_.Areas()) {
        cells_.Sheet()->Unmerge(area);
    }
    owner.SetSaved(false);
}

Variant RangeView::ColumnWidth() {
    book();
    std::set<double> widths;
    for (const CellBlock& area : cells_.Areas()) {
        cells_.Sheet()->Columns().ForEachSpan(area.left, area.right, [&](int32_t first, int32_t, const ColumnInfo&) {
            widths.insert(cells_.Sheet()->ColumnWidthChars(first));
        });
    }
    return widths.size() == 1 ? Variant(*widths.begin()) : Variant::Null();
}

void RangeView::SetColumnWidth(double width) {
    WorkbookModel& owner = book();
    if (!(width >= 0.0 && width <= 255.0)) {
        ThrowRefused("Unable to set the ColumnWidth property of the Range class");
    }
    for (const CellBlock& area : cells_.Areas()) {
        cells_.Sheet()->Columns().Update(area.left, area.right, [&](ColumnInfo& info) { info.SetWidth(width); });
    }
    owner.SetSaved(false);
}

Variant RangeView::RowHeight() {
    book();
    const double standard = cells_.Sheet()->Settings().defaultRowHeight;
    std::set<double> heights;
    for (const CellBlock& area : cells_.Areas()) {
        const auto [firstRow, lastRow] = cells_.Sheet()->Cells().RowSpan(area.top, area.bottom);
        int64_t custom = 0;
        for (size_t i = firstRow; i < lastRow; ++i) {
            const RowData& row = cells_.Sheet()->Cells().Rows()[i];
            if (row.hidden || row.HasCustomHeight()) {
                heights.insert(row.hidden ? 0.0 : row.height);
                ++custom;
            }
        }
        if (custom < area.Rows()) {
            heights.insert(standard);
        }
    }
    return heights.size() == 1 ? Variant(*heights.begin()) : Variant::Null();
}

void RangeView::SetRowHeight(double height) {
    WorkbookModel& owner = book();
    if (!(height >= 0.0 && height <= 409.5)) {
        ThrowRefused("Unable to set the RowHeight property of the Range class");
    }
    WorksheetModel& sheet = *cells_.Sheet();
    for (const CellBlock& area : cells_.Areas()) {
        if (WholeColumns(area)) {
            // Every row: the sheet's default height changes and no row keeps its own.
            sheet.Settings().defaultRowHeight = height;
            for (RowData& row : sheet.Cells().Rows()) {
                row.height = -1.0;
                row.fittedHeight = false;
            }
            continue;
        }
        const size_t firstRow = sheet.Cells().EnsureRows(area.top, area.bottom);
        for (size_t i = firstRow; i < firstRow + static_cast<size_t>(area.Rows()); ++i) {
            sheet.Cells().Rows()[i].height = height;
            sheet.Cells().Rows()[i].fittedHeight = false;
        }
    }
    sheet.RowHeightsChanged();
    owner.SetSaved(false);
}

Variant RangeView::Hidden() {
    book();
    std::set<bool> states;
    for (const CellBlock& area : cells_.Areas()) {
        if (WholeRows(area)) {
            for (int32_t row = area.top; row <= area.bottom && states.size() < 2; ++row) {
                const RowData* data = cells_.Sheet()->Cells().FindRow(row);
                states.insert(data != nullptr && data->hidden);
            }
        } else if (WholeColumns(area)) {
            cells_.Sheet()->Columns().ForEachSpan(
                area.left, area.right, [&](int32_t, int32_t, const ColumnInfo& info) { states.insert(info.hidden); });
        } else {
            ThrowRefused("Unable to get the Hidden property of the Range class");
        }
    }
    return states.size() == 1 ? Variant(*states.begin()) : Variant::Null();
}

void RangeView::SetHidden(bool hidden) {
    WorkbookModel& owner = book();
    for (const CellBlock& area : cells_.Areas()) {
        if (!WholeRows(area) && !WholeColumns(area)) {
            ThrowRefused("Unable to set the Hidden property of the Range class");
        }
    }
    for (const CellBlock& area : cells_.Areas()) {
        if (WholeColumns(area)) {
            cells_.Sheet()->Columns().Update(area.left, area.right, [&](ColumnInfo& info) { info.hidden = hidden; });
            continue;
        }
        const size_t firstRow = cells_.Sheet()->Cells().EnsureRows(area.top, area.bottom);
        for (size_t i = firstRow; i < firstRow + static_cast<size_t>(area.Rows()); ++i) {
            cells_.Sheet()->Cells().Rows()[i].hidden = hidden;
        }
        cells_.Sheet()->RowHeightsChanged();
    }
    owner.SetSaved(false);
}

}  // namespace excel::embedded
