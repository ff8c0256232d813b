#include "excel/embedded/borders.hpp"

#include "excel/embedded/color_model.hpp"
#include "excel/embedded/common_value.hpp"
#include "excel/embedded/engine_errors.hpp"

#include <excel/constants.hpp>

#include <string_view>

namespace excel::embedded {

namespace {

enum class Side { Left, Right, Top, Bottom, Diagonal };

ooxml::BorderLine& LineOf(ooxml::Border& border, Side side) {
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

// Where a border index lives in the cells: what is read, and what is written (the block's own
// sides plus the touching sides of neighbouring cells, so every viewer draws the line).
struct BorderPlacement {
    std::vector<SidePart> read;
    std::vector<SidePart> write;
};

BorderPlacement Place(const CellBlock& b, int32_t index) {
    BorderPlacement placement;
    auto add = [&](bool valid, CellBlock block, Side side, bool readToo) {
        if (!valid || block.top > block.bottom || block.left > block.right) {
            return;
        }
        placement.write.push_back({block, side});
        if (readToo) {
            placement.read.push_back({block, side});
        }
    };
    // Inside lines of a block spanning the whole sheet in that direction stay whole rows/columns.
    const bool allRows = b.top == 1 && b.bottom == MaxRow;
    const bool allColumns = b.left == 1 && b.right == MaxColumn;
    switch (index) {
        case xlEdgeTop:
            add(true, {b.top, b.left, b.top, b.right}, Side::Top, true);
            add(b.top > 1, {b.top - 1, b.left, b.top - 1, b.right}, Side::Bottom, false);
            break;
        case xlEdgeBottom:
            add(true, {b.bottom, b.left, b.bottom, b.right}, Side::Bottom, true);
            add(b.bottom < MaxRow, {b.bottom + 1, b.left, b.bottom + 1, b.right}, Side::Top, false);
            break;
        case xlEdgeLeft:
            add(true, {b.top, b.left, b.bottom, b.left}, Side::Left, true);
            add(b.left > 1, {b.top, b.left - 1, b.bottom, b.left - 1}, Side::Right, false);
            break;
        case xlEdgeRight:
            add(true, {b.top, b.right, b.bottom, b.right}, Side::Right, true);
            add(b.right < MaxColumn, {b.top, b.right + 1, b.bottom, b.right + 1}, Side::Left, false);
            break;
        case xlInsideHorizontal:
            if (b.Rows() > 1) {
                add(true, allRows ? b : CellBlock{b.top, b.left, b.bottom - 1, b.right}, Side::Bottom, true);
                add(true, allRows ? b : CellBlock{b.top + 1, b.left, b.bottom, b.right}, Side::Top, false);
            }
            break;
        case xlInsideVertical:
            if (b.Columns() > 1) {
                add(true, allColumns ? b : CellBlock{b.top, b.left, b.bottom, b.right - 1}, Side::Right, true);
                add(true, allColumns ? b : CellBlock{b.top, b.left + 1, b.bottom, b.right}, Side::Left, false);
            }
            break;
        default:
            add(true, b, Side::Diagonal, true);
            break;
    }
    return placement;
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
    std::vector<ooxml::BorderLine> lines;
    for (const CellBlock& area : cells_.areas) {
        for (int32_t index : indices_) {
            for (const SidePart& part : Place(area, index).read) {
                for (uint32_t id : cells_.sheet->DistinctFormats(part.block)) {
                    ooxml::Border border = book.Formats().Get(id).border;
                    const bool diagonalShown = index == diagonalDown ? border.diagonalDown : border.diagonalUp;
                    lines.push_back(part.side == Side::Diagonal && !diagonalShown ? ooxml::BorderLine{}
                                                                                  : LineOf(border, part.side));
                }
            }
        }
    }
    return CommonValue(lines, [&](const ooxml::BorderLine& line) { return project(line, book.Palette()); });
}

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
        for (const CellBlock& area : cells_.areas) {
            for (const SidePart& part : Place(area, index).write) {
                cells_.sheet->ApplyFormat(part.block, changes[static_cast<size_t>(part.side)]);
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
