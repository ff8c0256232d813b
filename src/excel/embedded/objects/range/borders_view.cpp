#include "excel/embedded/objects/range/borders_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/format/color_model.hpp"
#include "excel/embedded/format/enum_table.hpp"
#include "excel/embedded/objects/common_value.hpp"

#include <excel/constants.hpp>

#include <algorithm>
#include <optional>
#include <utility>

namespace excel::embedded {

namespace {

enum class Side { Left, Right, Top, Bottom, Diagonal };

template <class Border>
auto& LineOf(Border& border, Side side) {
    switch (side) {
        case Side::Left:
            return border.left;
        case Side::Right:
            return border.right;
        case Side::Top:
            return border.top;
        case Side::Bottom:
            return border.bottom;
        case Side::Diagonal:
            break;
    }
    return border.diagonal;
}

// One side of the cells of a block.
struct SidePart {
    CellBlock block;
    Side side;
};

// Where a border index lives in the cells. An edge is stored in the block's own cells only, as
// Excel files it; the touching sides of the neighbours outside the block show the same line where
// the block's own side is unset, and lose theirs when the edge is set or cleared.
struct BorderPlacement {
    std::vector<SidePart> read;
    std::vector<SidePart> write;
    std::optional<SidePart> outside;
};

BorderPlacement Place(const CellBlock& b, int32_t index) {
    BorderPlacement placement;
    auto add = [&](CellBlock block, Side side, bool readToo) {
        if (block.top > block.bottom || block.left > block.right) {
            return;
        }
        placement.write.push_back({block, side});
        if (readToo) {
            placement.read.push_back({block, side});
        }
    };
    auto edge = [&](CellBlock own, Side side, bool neighbourInSheet, CellBlock neighbours, Side touching) {
        add(own, side, true);
        if (neighbourInSheet) {
            placement.outside = SidePart{neighbours, touching};
        }
    };
    // Inside lines of a block spanning the whole sheet in that direction stay whole rows/columns.
    const bool allRows = b.top == 1 && b.bottom == MaxRow;
    const bool allColumns = b.left == 1 && b.right == MaxColumn;
    switch (index) {
        case xlEdgeTop:
            edge({b.top, b.left, b.top, b.right}, Side::Top, b.top > 1, {b.top - 1, b.left, b.top - 1, b.right},
                 Side::Bottom);
            break;
        case xlEdgeBottom:
            edge({b.bottom, b.left, b.bottom, b.right}, Side::Bottom, b.bottom < MaxRow,
                 {b.bottom + 1, b.left, b.bottom + 1, b.right}, Side::Top);
            break;
        case xlEdgeLeft:
            edge({b.top, b.left, b.bottom, b.left}, Side::Left, b.left > 1, {b.top, b.left - 1, b.bottom, b.left - 1},
                 Side::Right);
            break;
        case xlEdgeRight:
            edge({b.top, b.right, b.bottom, b.right}, Side::Right, b.right < MaxColumn,
                 {b.top, b.right + 1, b.bottom, b.right + 1}, Side::Left);
            break;
        case xlInsideHorizontal:
            if (b.Rows() > 1) {
                add(allRows ? b : CellBlock{b.top, b.left, b.bottom - 1, b.right}, Side::Bottom, true);
                add(allRows ? b : CellBlock{b.top + 1, b.left, b.bottom, b.right}, Side::Top, false);
            }
            break;
        case xlInsideVertical:
            if (b.Columns() > 1) {
                add(allColumns ? b : CellBlock{b.top, b.left, b.bottom, b.right - 1}, Side::Right, true);
                add(allColumns ? b : CellBlock{b.top, b.left + 1, b.bottom, b.right}, Side::Left, false);
            }
            break;
        default:
            add(b, Side::Diagonal, true);
            break;
    }
    return placement;
}

// The distinct pairs of formats shown by a line of cells (one row or one column) and the parallel
// line of cells it touches, found without visiting the empty rows of a column.
std::vector<std::pair<uint32_t, uint32_t>> FacingFormats(const WorksheetModel& sheet, const CellBlock& line,
                                                         const CellBlock& facing) {
    std::vector<std::pair<uint32_t, uint32_t>> found;
    auto add = [&](uint32_t own, uint32_t touching) {
        const std::pair<uint32_t, uint32_t> pair{own, touching};
        if (std::find(found.begin(), found.end(), pair) == found.end()) {
            found.push_back(pair);
        }
    };
    const int32_t columnStep = facing.left - line.left;
    if (line.Rows() == 1) {
        for (int32_t column = line.left; column <= line.right; ++column) {
            add(sheet.ResolvedFormat(line.top, column), sheet.ResolvedFormat(facing.top, column + columnStep));
        }
        return found;
    }
    const auto [first, last] = sheet.Cells().RowSpan(line.top, line.bottom);
    if (static_cast<int64_t>(last - first) < line.Rows()) {
        add(sheet.Columns().Get(line.left).format, sheet.Columns().Get(facing.left).format);
    }
    for (size_t i = first; i < last; ++i) {
        const int32_t row = sheet.Cells().Rows()[i].index;
        add(sheet.ResolvedFormat(row, line.left), sheet.ResolvedFormat(row, facing.left));
    }
    return found;
}

constexpr int32_t diagonalDown = xlDiagonalDown;

const FormatColor automaticLineColor{FormatColor::Kind::Indexed, 0, 64, 0.0};

// Excel's XlLineStyle and XlBorderWeight of each border style.
constexpr EnumTable<BorderStyle, int32_t, 14> lineStyles{{
    xlLineStyleNone, xlContinuous, xlContinuous, xlDash, xlDot, xlContinuous, xlDouble, xlContinuous, xlDash,
    xlDashDot, xlDashDot, xlDashDotDot, xlDashDotDot, xlSlantDashDot}};
constexpr EnumTable<BorderStyle, int32_t, 14> weights{{
    xlThin, xlThin, xlMedium, xlThin, xlThin, xlThick, xlThick, xlHairline, xlMedium, xlThin, xlMedium, xlThin,
    xlMedium, xlMedium}};

// The border style that draws an Excel line style at a weight; none for a line style Excel does
// not have. Styles without a heavier or lighter variant keep their one weight.
std::optional<BorderStyle> StyleFor(int32_t lineStyle, int32_t weight) {
    const bool heavy = weight == xlMedium || weight == xlThick;
    switch (lineStyle) {
        case xlContinuous:
            return weight == xlHairline ? BorderStyle::Hair
                   : weight == xlMedium ? BorderStyle::Medium
                   : weight == xlThick  ? BorderStyle::Thick
                                        : BorderStyle::Thin;
        case xlDash:
            return heavy ? BorderStyle::MediumDashed : BorderStyle::Dashed;
        case xlDot:
            return weight == xlHairline ? BorderStyle::Hair : BorderStyle::Dotted;
        case xlDouble:
            return BorderStyle::Double;
        case xlDashDot:
            return heavy ? BorderStyle::MediumDashDot : BorderStyle::DashDot;
        case xlDashDotDot:
            return heavy ? BorderStyle::MediumDashDotDot : BorderStyle::DashDotDot;
        case xlSlantDashDot:
            return BorderStyle::SlantDashDot;
        default:
            break;
    }
    return std::nullopt;
}

bool ValidLineStyle(int32_t style) {
    return style == xlLineStyleNone || StyleFor(style, xlThin).has_value();
}

bool ValidWeight(int32_t weight) {
    return weight == xlHairline || weight == xlThin || weight == xlMedium || weight == xlThick;
}

}  // namespace

std::shared_ptr<BordersView> BordersView::Collection(RangeCells cells) {
    return std::make_shared<BordersView>(
        std::move(cells),
        std::vector<int32_t>{xlEdgeLeft, xlEdgeTop, xlEdgeBottom, xlEdgeRight, xlInsideVertical, xlInsideHorizontal});
}

std::shared_ptr<BordersView> BordersView::Single(RangeCells cells, int32_t index) {
    if (index < xlDiagonalDown || index > xlInsideHorizontal) {
        ThrowRefused("Unable to get the Item property of the Borders class");
    }
    return std::make_shared<BordersView>(std::move(cells), std::vector<int32_t>{index});
}

int32_t BordersView::Count() {
    cells_.Book();
    return 6;
}

std::shared_ptr<excel::Border> BordersView::Item(int32_t index) {
    return Single(cells_, index);
}

template <class Project>
Variant BordersView::read(Project&& project) {
    WorkbookModel& book = cells_.Book();
    const FormatTable& formats = book.Formats();
    std::vector<BorderLine> lines;
    for (const CellBlock& area : cells_.Areas()) {
        for (int32_t index : indices_) {
            const BorderPlacement placement = Place(area, index);
            if (placement.outside) {
                // An edge shows the block's own side, else the touching side of the cell outside.
                const SidePart& own = placement.read.front();
                for (const auto& [ownId, touchingId] :
                     FacingFormats(*cells_.Sheet(), own.block, placement.outside->block)) {
                    const BorderLine& line = LineOf(formats.Get(ownId).border, own.side);
                    lines.push_back(line.Drawn() ? line
                                                 : LineOf(formats.Get(touchingId).border, placement.outside->side));
                }
                continue;
            }
            for (const SidePart& part : placement.read) {
                for (uint32_t id : cells_.Sheet()->DistinctFormats(part.block)) {
                    const CellBorder& border = formats.Get(id).border;
                    const bool diagonalShown = index == diagonalDown ? border.diagonalDown : border.diagonalUp;
                    lines.push_back(part.side == Side::Diagonal && !diagonalShown ? BorderLine{}
                                                                                  : LineOf(border, part.side));
                }
            }
        }
    }
    return CommonValue(lines, [&](const BorderLine& line) { return project(line, book.Colors()); });
}

namespace {

// Where an edge's own side is unset and the stored cell outside shows the line, the edge starts
// from that line, so changing only its colour keeps the style and weight it showed. A long edge
// shows few distinct lines: each gets one memoised change.
void AdoptTouchingLines(WorksheetModel& sheet, FormatTable& formats, const SidePart& own, const SidePart& outside) {
    struct Adopted {
        int32_t row;
        int32_t column;
        size_t line;
    };
    std::vector<BorderLine> lines;
    std::vector<Adopted> adopted;
    const int32_t rowStep = own.block.top - outside.block.top;
    const int32_t columnStep = own.block.left - outside.block.left;
    sheet.ForEachStoredCell(outside.block, [&](int32_t row, Cell& cell) {
        const BorderLine& line = LineOf(formats.Get(cell.format).border, outside.side);
        if (!line.Drawn()) {
            return;
        }
        auto found = std::find(lines.begin(), lines.end(), line);
        if (found == lines.end()) {
            found = lines.insert(lines.end(), line);
        }
        adopted.push_back({row + rowStep, cell.column + columnStep, static_cast<size_t>(found - lines.begin())});
    });
    std::vector<FormatChange> adoptions;
    for (const BorderLine& line : lines) {
        adoptions.emplace_back(formats, [&line, side = own.side](CellFormat& format) {
            BorderLine& ownLine = LineOf(format.border, side);
            if (!ownLine.Drawn()) {
                ownLine = line;
            }
        });
    }
    for (const Adopted& position : adopted) {
        sheet.ApplyFormat({position.row, position.column, position.row, position.column}, adoptions[position.line]);
    }
}

// The last write wins on a shared line: the stored cells outside lose their touching side. A side
// that only a row or column format of theirs carries stays, because clearing it would turn every
// such position into a cell of its own.
void ClearTouchingSides(WorksheetModel& sheet, FormatTable& formats, const SidePart& outside) {
    FormatChange clear(formats, [&](CellFormat& format) { LineOf(format.border, outside.side) = {}; });
    sheet.ForEachStoredCell(outside.block, [&](int32_t, Cell& cell) { cell.format = clear.Apply(cell.format); });
}

}  // namespace

void BordersView::edit(const std::function<void(BorderLine&)>& editLine) {
    WorkbookModel& book = cells_.Book();
    for (int32_t index : indices_) {
        std::vector<FormatChange> changes;
        for (Side side : {Side::Left, Side::Right, Side::Top, Side::Bottom, Side::Diagonal}) {
            changes.emplace_back(book.Formats(), [&, side](CellFormat& format) {
                editLine(LineOf(format.border, side));
                if (side == Side::Diagonal) {
                    const bool shown = format.border.diagonal.Drawn();
                    (index == xlDiagonalDown ? format.border.diagonalDown : format.border.diagonalUp) = shown;
                }
            });
        }
        for (const CellBlock& area : cells_.Areas()) {
            const BorderPlacement placement = Place(area, index);
            if (placement.outside) {
                AdoptTouchingLines(*cells_.Sheet(), book.Formats(), placement.write.front(), *placement.outside);
            }
            for (const SidePart& part : placement.write) {
                cells_.Sheet()->ApplyFormat(part.block, changes[static_cast<size_t>(part.side)]);
            }
            if (placement.outside) {
                ClearTouchingSides(*cells_.Sheet(), book.Formats(), *placement.outside);
            }
        }
    }
    book.SetSaved(false);
}

Variant BordersView::LineStyle() {
    return read([](const BorderLine& line, const WorkbookColors&) { return Variant(lineStyles[line.style]); });
}

void BordersView::SetLineStyle(int32_t style) {
    if (!ValidLineStyle(style)) {
        ThrowRefused("Unable to set the LineStyle property of the Border class");
    }
    edit([&](BorderLine& line) {
        if (style == xlLineStyleNone) {
            line = BorderLine{};
            return;
        }
        line.style = *StyleFor(style, weights[line.style]);
        if (line.color.kind == FormatColor::Kind::None) {
            line.color = automaticLineColor;
        }
    });
}

Variant BordersView::Weight() {
    return read([](const BorderLine& line, const WorkbookColors&) { return Variant(weights[line.style]); });
}

void BordersView::SetWeight(int32_t weight) {
    if (!ValidWeight(weight)) {
        ThrowRefused("Unable to set the Weight property of the Border class");
    }
    edit([&](BorderLine& line) {
        line.style = *StyleFor(line.Drawn() ? lineStyles[line.style] : xlContinuous, weight);
        if (line.color.kind == FormatColor::Kind::None) {
            line.color = automaticLineColor;
        }
    });
}

void BordersView::SetLine(int32_t lineStyle, int32_t weight, const FormatColor* color) {
    if (!ValidLineStyle(lineStyle) || !ValidWeight(weight)) {
        ThrowRefused("BorderAround method of Range class failed");
    }
    edit([&](BorderLine& line) {
        if (lineStyle == xlLineStyleNone) {
            line = BorderLine{};
            return;
        }
        line.style = *StyleFor(lineStyle, weight);
        line.color = color ? *color : automaticLineColor;
    });
}

namespace {

// Colouring a border without a line draws a thin continuous one, as Excel does.
void Colour(BorderLine& line, const FormatColor& color) {
    if (!line.Drawn()) {
        line.style = BorderStyle::Thin;
    }
    line.color = color;
}

}  // namespace

Variant BordersView::Color() {
    return read([](const BorderLine& line, const WorkbookColors& colors) {
        return Variant(static_cast<double>(RgbOf(line.color, colors, 0)));
    });
}

void BordersView::SetColor(int32_t rgb) {
    const FormatColor color = ColorFromRgb(rgb);
    edit([&](BorderLine& line) { Colour(line, color); });
}

Variant BordersView::ColorIndex() {
    return read([](const BorderLine& line, const WorkbookColors& colors) {
        return Variant(!line.Drawn() ? xlColorIndexNone : ColorIndexOf(line.color, colors, xlColorIndexAutomatic));
    });
}

void BordersView::SetColorIndex(int32_t index) {
    const FormatColor color = index == xlColorIndexAutomatic ? automaticLineColor : ColorFromIndex(index);
    edit([&](BorderLine& line) { Colour(line, color); });
}

Variant BordersView::ThemeColor() {
    return read([](const BorderLine& line, const WorkbookColors&) { return Variant(ThemeColorOf(line.color)); });
}

void BordersView::SetThemeColor(int32_t themeColor) {
    const FormatColor color = ColorFromTheme(themeColor);
    edit([&](BorderLine& line) { Colour(line, color); });
}

Variant BordersView::TintAndShade() {
    return read([](const BorderLine& line, const WorkbookColors&) { return Variant(TintOf(line.color)); });
}

void BordersView::SetTintAndShade(double tint) {
    WithTint({}, tint);
    edit([&](BorderLine& line) {
        if (line.Drawn()) {
            line.color = WithTint(line.color, tint);
        }
    });
}

}  // namespace excel::embedded
