#include "excel/embedded/objects/range/interior_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/format/color_model.hpp"
#include "excel/embedded/format/enum_table.hpp"
#include "excel/embedded/objects/common_value.hpp"

#include <excel/constants.hpp>

#include <optional>
#include <utility>

namespace excel::embedded {

namespace {

constexpr uint32_t white = 0xFFFFFF;

// Excel's XlPattern values, in the order of the fill patterns.
constexpr EnumTable<FillPattern, int32_t, 19> patterns{{
    xlPatternNone,       xlPatternSolid,           xlPatternGray50,        xlPatternGray75,    xlPatternGray25,
    xlPatternHorizontal, xlPatternVertical,        xlPatternDown,          xlPatternUp,        xlPatternChecker,
    xlPatternSemiGray75, xlPatternLightHorizontal, xlPatternLightVertical, xlPatternLightDown, xlPatternLightUp,
    xlPatternGrid,       xlPatternCrissCross,      xlPatternGray16,        xlPatternGray8,
}};

bool HasFill(const CellFill& fill) {
    return fill.pattern != FillPattern::None;
}

// A colour or pattern given to a cell replaces the gradient it had.
void ReplaceGradient(CellFill& fill) {
    if (!fill.gradient.empty()) {
        fill = CellFill{};
    }
}

// A solid fill shows its foreground; a patterned one draws the foreground's lines over the
// background. Interior.Color is the cell's colour, PatternColor the lines', as Excel files them.
bool IsSolid(const CellFill& fill) {
    return fill.pattern == FillPattern::Solid;
}
FormatColor& CellColor(CellFill& fill) {
    return IsSolid(fill) ? fill.foreground : fill.background;
}
const FormatColor& CellColor(const CellFill& fill) {
    return IsSolid(fill) ? fill.foreground : fill.background;
}
FormatColor& LineColor(CellFill& fill) {
    return IsSolid(fill) ? fill.background : fill.foreground;
}
const FormatColor& LineColor(const CellFill& fill) {
    return IsSolid(fill) ? fill.background : fill.foreground;
}

// The automatic pattern colour (system foreground), as Excel writes it for a solid fill.
const FormatColor automaticLines{FormatColor::Kind::Indexed, 0, 64, 0.0};
const FormatColor windowBackground{FormatColor::Kind::Indexed, 0, 65, 0.0};

}  // namespace

template <class Project>
Variant InteriorView::read(Project&& project) {
    const WorkbookModel& book = cells_.Book();
    const auto ids = cells_.DistinctFormats();
    return CommonValue(ids, [&](uint32_t id) { return project(book.Formats().Get(id).fill, book.Colors()); });
}

void InteriorView::setCellColor(const FormatColor& color) {
    cells_.EditFormats([&](CellFormat& format) {
        ReplaceGradient(format.fill);
        if (!HasFill(format.fill)) {
            format.fill.pattern = FillPattern::Solid;
            format.fill.background = automaticLines;
        }
        CellColor(format.fill) = color;
    });
}

void InteriorView::setLineColor(const FormatColor& color) {
    cells_.EditFormats([&](CellFormat& format) {
        ReplaceGradient(format.fill);
        if (!HasFill(format.fill)) {
            format.fill.pattern = FillPattern::Solid;
            CellColor(format.fill) = windowBackground;
        }
        LineColor(format.fill) = color;
    });
}

Variant InteriorView::Color() {
    return read([](const CellFill& fill, const WorkbookColors& colors) {
        return Variant(static_cast<double>(HasFill(fill) ? RgbOf(CellColor(fill), colors, white) : white));
    });
}

void InteriorView::SetColor(int32_t rgb) {
    setCellColor(ColorFromRgb(rgb));
}

Variant InteriorView::ColorIndex() {
    return read([](const CellFill& fill, const WorkbookColors& colors) {
        return Variant(HasFill(fill) ? ColorIndexOf(CellColor(fill), colors, xlColorIndexAutomatic) : xlColorIndexNone);
    });
}

void InteriorView::SetColorIndex(int32_t index) {
    if (index == xlColorIndexNone) {
        SetPattern(xlPatternNone);
        return;
    }
    if (index == xlColorIndexAutomatic) {
        setCellColor(automaticLines);
        return;
    }
    setCellColor(ColorFromIndex(index));
}

Variant InteriorView::ThemeColor() {
    return read([](const CellFill& fill, const WorkbookColors&) {
        return HasFill(fill) ? Variant(ThemeColorOf(CellColor(fill))) : Variant(xlColorIndexNone);
    });
}

void InteriorView::SetThemeColor(int32_t themeColor) {
    setCellColor(ColorFromTheme(themeColor));
}

Variant InteriorView::TintAndShade() {
    return read([](const CellFill& fill, const WorkbookColors&) {
        return Variant(HasFill(fill) ? TintOf(CellColor(fill)) : 0.0);
    });
}

void InteriorView::SetTintAndShade(double tint) {
    WithTint({}, tint);
    cells_.EditFormats([&](CellFormat& format) {
        if (HasFill(format.fill)) {
            CellColor(format.fill) = WithTint(CellColor(format.fill), tint);
        }
    });
}

Variant InteriorView::Pattern() {
    return read([](const CellFill& fill, const WorkbookColors&) {
        if (!fill.gradient.empty()) {
            return Variant(fill.pathGradient ? xlPatternRectangularGradient : xlPatternLinearGradient);
        }
        return Variant(patterns[fill.pattern]);
    });
}

void InteriorView::SetPattern(int32_t pattern) {
    const std::optional<FillPattern> type = pattern == xlPatternAutomatic ? FillPattern::Solid : patterns.Find(pattern);
    if (!type) {
        ThrowRefused("Unable to set the Pattern property of the Interior class");
    }
    cells_.EditFormats([&](CellFormat& format) {
        ReplaceGradient(format.fill);
        if (*type == FillPattern::None) {
            format.fill = CellFill{};
            return;
        }
        if (!HasFill(format.fill)) {
            // No fill yet: automatic lines on the window's background colour.
            format.fill.pattern = FillPattern::Solid;
            CellColor(format.fill) = windowBackground;
            LineColor(format.fill) = automaticLines;
        }
        const bool wasSolid = IsSolid(format.fill);
        format.fill.pattern = *type;
        if (wasSolid != IsSolid(format.fill)) {
            // The cell keeps its colour and the lines theirs, whichever slot now holds them.
            std::swap(format.fill.foreground, format.fill.background);
        }
    });
}

Variant InteriorView::PatternColor() {
    return read([](const CellFill& fill, const WorkbookColors& colors) {
        return Variant(static_cast<double>(RgbOf(LineColor(fill), colors, 0)));
    });
}

void InteriorView::SetPatternColor(int32_t rgb) {
    setLineColor(ColorFromRgb(rgb));
}

Variant InteriorView::PatternColorIndex() {
    return read([](const CellFill& fill, const WorkbookColors& colors) {
        return Variant(ColorIndexOf(LineColor(fill), colors, xlColorIndexAutomatic));
    });
}

void InteriorView::SetPatternColorIndex(int32_t index) {
    setLineColor(index == xlColorIndexAutomatic ? automaticLines : ColorFromIndex(index));
}

}  // namespace excel::embedded
