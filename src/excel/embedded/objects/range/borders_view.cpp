#include "excel/embedded/objects/range/borders_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/format/color_model.hpp"
#include "excel/embedded/objects/common_value.hpp"

#include <excel/constants.hpp>

#include <algorithm>
#include <optional>
#include <string_view>
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

const ooxml::Color automaticLineColor{ooxml::Color::Kind::Indexed, 0, 64, 0.0};

int32_t LineStyleOf(std::string_view style) {
    if (style.empty()) {
        return xlLineStyleNone;
    }
    if (style == "dashed" || style == "mediumDashed") {
        return xlDash;
    }
    if (style == "dotted") {
        return xlDot;
    }
    if (style == "double") {
        return xlDouble;
    }
    if (style == "dashDot" || style == "mediumDashDot") {
        return xlDashDot;
    }
    if (style == "dashDotDot" || style == "mediumDashDotDot") {
        return xlDashDotDot;
    }
    if (style == "slantDashDot") {
        return xlSlantDashDot;
    }
    return xlContinuous;
}

int32_t WeightOf(std::string_view style) {
    if (style == "hair") {
        return xlHairline;
    }
    if (style == "thick" || style == "double") {
        return xlThick;
    }
    if (style.starts_with("medium") || style == "slantDashDot") {
        return xlMedium;
    }
    return xlThin;
}

// The file's style for an Excel line style and weight.
std::string StyleFor(int32_t lineStyle, int32_t weight) {
    const bool heavy = weight == xlMedium || weight == xlThick;
    switch (lineStyle) {
        case xlContinuous:
            return weight == xlHairline ? "hair" : weight == xlMedium ? "medium" : weight == xlThick ? "thick" : "thin";
        case xlDash:
            return heavy ? "mediumDashed" : "dashed";
        case xlDot:
            return weight == xlHairline ? "hair" : "dotted";
        case xlDouble:
            return "double";
        case xlDashDot:
            return heavy ? "mediumDashDot" : "dashDot";
        case xlDashDotDot:
            return heavy ? "mediumDashDotDot" : "dashDotDot";
        case xlSlantDashDot:
            return "slantDashDot";
        default:
            break;
    }
    return "";
}

bool ValidLineStyle(int32_t style) {
    return style == xlLineStyleNone || !StyleFor(style, xlThin).empty();
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
    std::vector<ooxml::BorderLine> lines;
    for (const CellBlock& area : cells_.Areas()) {
        for (int32_t index : indices_) {
            const BorderPlacement placement = Place(area, index);
            if (placement.outside) {
                // An edge shows the block's own side, else the touching side of the cell outside.
                const SidePart& own = placement.read.front();
                for (const auto& [ownId, touchingId] :
                     FacingFormats(*cells_.Sheet(), own.block, placement.outside->block)) {
                    const ooxml::BorderLine& line = LineOf(formats.Get(ownId).border, own.side);
                    lines.push_back(line.style.empty() ? LineOf(formats.Get(touchingId).border, placement.outside->side)
                                                       : line);
                }
                continue;
            }
            for (const SidePart& part : placement.read) {
                for (uint32_t id : cells_.Sheet()->DistinctFormats(part.block)) {
                    const ooxml::Border& border = formats.Get(id).border;
                    const bool diagonalShown = index == diagonalDown ? border.diagonalDown : border.diagonalUp;
                    lines.push_back(part.side == Side::Diagonal && !diagonalShown ? ooxml::BorderLine{}
                                                                                  : LineOf(border, part.side));
                }
            }
        }
    }
    return CommonValue(lines, [&](const ooxml::BorderLine& line) { return project(line, book.Palette()); });
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
    std::vector<ooxml::BorderLine> lines;
    std::vector<Adopted> adopted;
    const int32_t rowStep = own.block.top - outside.block.top;
    const int32_t columnStep = own.block.left - outside.block.left;
    sheet.ForEachStoredCell(outside.block, [&](int32_t row, Cell& cell) {
        const ooxml::BorderLine& line = LineOf(formats.Get(cell.format).border, outside.side);
        if (line.style.empty()) {
            return;
        }
        auto found = std::find(lines.begin(), lines.end(), line);
        if (found == lines.end()) {
            found = lines.insert(lines.end(), line);
        }
        adopted.push_back({row + rowStep, cell.column + columnStep, static_cast<size_t>(found - lines.begin())});
    });
    std::vector<FormatChange> adoptions;
    for (const ooxml::BorderLine& line : lines) {
        adoptions.emplace_back(formats, [&line, side = own.side](ooxml::CellFormat& format) {
            ooxml::BorderLine& ownLine = LineOf(format.border, side);
            if (ownLine.style.empty()) {
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
    FormatChange clear(formats, [&](ooxml::CellFormat& format) { LineOf(format.border, outside.side) = {}; });
    sheet.ForEachStoredCell(outside.block, [&](int32_t, Cell& cell) { cell.format = clear.Apply(cell.format); });
}

}  // namespace

void BordersView::edit(const std::function<void(ooxml::BorderLine&)>& editLine) {
    WorkbookModel& book = cells_.Book();
    for (int32_t index : indices_) {
        std::vector<FormatChange> changes;
        for (Side side : {Side::Left, Side::Right, Side::Top, Side::Bottom, Side::Diagonal}) {
            changes.emplace_back(book.Formats(), [&, side](ooxml::CellFormat& format) {
                editLine(LineOf(format.border, side));
                if (side == Side::Diagonal) {
                    const bool shown = !format.border.diagonal.style.empty();
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
    return read([](const ooxml::BorderLine& line, const Palette&) { return Variant(LineStyleOf(line.style)); });
}

void BordersView::SetLineStyle(int32_t style) {
    if (!ValidLineStyle(style)) {
        ThrowRefused("Unable to set the LineStyle property of the Border class");
    }
    edit([&](ooxml::BorderLine& line) {
        if (style == xlLineStyleNone) {
            line = ooxml::BorderLine{};
            return;
        }
        const int32_t weight = line.style.empty() ? xlThin : WeightOf(line.style);
        line.style = StyleFor(style, weight);
        if (line.color.kind == ooxml::Color::Kind::None) {
            line.color = automaticLineColor;
        }
    });
}

Variant BordersView::Weight() {
    return read([](const ooxml::BorderLine& line, const Palette&) { return Variant(WeightOf(line.style)); });
}

void BordersView::SetWeight(int32_t weight) {
    if (!ValidWeight(weight)) {
        ThrowRefused("Unable to set the Weight property of the Border class");
    }
    edit([&](ooxml::BorderLine& line) {
        const int32_t style = line.style.empty() ? xlContinuous : LineStyleOf(line.style);
        line.style = StyleFor(style, weight);
        if (line.color.kind == ooxml::Color::Kind::None) {
            line.color = automaticLineColor;
        }
    });
}

void BordersView::SetLine(int32_t lineStyle, int32_t weight, const ooxml::Color* color) {
    if (!ValidLineStyle(lineStyle) || !ValidWeight(weight)) {
        ThrowRefused("BorderAround method of Range class failed");
    }
    edit([&](ooxml::BorderLine& line) {
        if (lineStyle == xlLineStyleNone) {
            line = ooxml::BorderLine{};
            return;
        }
        line.style = StyleFor(lineStyle, weight);
        line.color = color ? *color : automaticLineColor;
    });
}

namespace {

// Colouring a border without a line draws a thin continuous one, as Excel does.
void Colour(ooxml::BorderLine& line, const ooxml::Color& color) {
    if (line.style.empty()) {
        line.style = "thin";
    }
    line.color = color;
}

}  // namespace

Variant BordersView::Color() {
    return read([](const ooxml::BorderLine& line, const Palette& palette) {
        return Variant(static_cast<double>(RgbOf(line.color, palette, 0)));
    });
}

void BordersView::SetColor(int32_t rgb) {
    const ooxml::Color color = ColorFromRgb(rgb);
    edit([&](ooxml::BorderLine& line) { Colour(line, color); });
}

Variant BordersView::ColorIndex() {
    return read([](const ooxml::BorderLine& line, const Palette& palette) {
        return Variant(line.style.empty() ? xlColorIndexNone
                                          : ColorIndexOf(line.color, palette, xlColorIndexAutomatic));
    });
}

void BordersView::SetColorIndex(int32_t index) {
    const ooxml::Color color = index == xlColorIndexAutomatic ? automaticLineColor : ColorFromIndex(index);
    edit([&](ooxml::BorderLine& line) { Colour(line, color); });
}

Variant BordersView::ThemeColor() {
    return read([](const ooxml::BorderLine& line, const Palette&) { return Variant(ThemeColorOf(line.color)); });
}

void BordersView::SetThemeColor(int32_t themeColor) {
    const ooxml::Color color = ColorFromTheme(themeColor);
    edit([&](ooxml::BorderLine& line) { Colour(line, color); });
}

Variant BordersView::TintAndShade() {
    return read([](const ooxml::BorderLine& line, const Palette&) { return Variant(TintOf(line.color)); });
}

void BordersView::SetTintAndShade(double tint) {
    WithTint({}, tint);
    edit([&](ooxml::BorderLine& line) {
        if (!line.style.empty()) {
            line.color = WithTint(line.color, tint);
        }
    });
}

}  // namespace excel::embedded
