#include "excel/embedded/objects/range/interior_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/format/color_model.hpp"
#include "excel/embedded/objects/common_value.hpp"
#include "excel/embedded/objects/constant_names.hpp"

#include <excel/constants.hpp>

#include <string_view>
#include <utility>

namespace excel::embedded {

namespace {

constexpr uint32_t white = 0xFFFFFF;

// Excel's XlPattern values and the file's pattern types.
constexpr ConstantNames<18> patterns{{
    {xlPatternSolid, "solid"},
    {xlPatternGray50, "mediumGray"},
    {xlPatternGray75, "darkGray"},
    {xlPatternGray25, "lightGray"},
    {xlPatternGray16, "gray125"},
    {xlPatternGray8, "gray0625"},
    {xlPatternHorizontal, "darkHorizontal"},
    {xlPatternVertical, "darkVertical"},
    {xlPatternDown, "darkDown"},
    {xlPatternUp, "darkUp"},
    {xlPatternChecker, "darkGrid"},
    {xlPatternSemiGray75, "darkTrellis"},
    {xlPatternLightHorizontal, "lightHorizontal"},
    {xlPatternLightVertical, "lightVertical"},
    {xlPatternLightDown, "lightDown"},
    {xlPatternLightUp, "lightUp"},
    {xlPatternGrid, "lightGrid"},
    {xlPatternCrissCross, "lightTrellis"},
}};

bool HasFill(const ooxml::Fill& fill) {
    return !fill.patternType.empty() && fill.patternType != "none";
}

// A solid fill shows its foreground; a patterned one draws the foreground's lines over the
// background. Interior.Color is the cell's colour, PatternColor the lines', as Excel files them.
bool IsSolid(const ooxml::Fill& fill) {
    return fill.patternType == "solid";
}
ooxml::Color& CellColor(ooxml::Fill& fill) {
    return IsSolid(fill) ? fill.foreground : fill.background;
}
const ooxml::Color& CellColor(const ooxml::Fill& fill) {
    return IsSolid(fill) ? fill.foreground : fill.background;
}
ooxml::Color& LineColor(ooxml::Fill& fill) {
    return IsSolid(fill) ? fill.background : fill.foreground;
}
const ooxml::Color& LineColor(const ooxml::Fill& fill) {
    return IsSolid(fill) ? fill.background : fill.foreground;
}

// The automatic pattern colour (system foreground), as Excel writes it for a solid fill.
const ooxml::Color automaticLines{ooxml::Color::Kind::Indexed, 0, 64, 0.0};
const ooxml::Color windowBackground{ooxml::Color::Kind::Indexed, 0, 65, 0.0};

}  // namespace

template <class Project>
Variant InteriorView::read(Project&& project) {
    const WorkbookModel& book = cells_.Book();
    const auto ids = cells_.DistinctFormats();
    return CommonValue(ids, [&](uint32_t id) { return project(book.Formats().Get(id).fill, book.Palette()); });
}

void InteriorView::setCellColor(const ooxml::Color& color) {
    cells_.EditFormats([&](ooxml::CellFormat& format) {
        if (!HasFill(format.fill)) {
            format.fill.patternType = "solid";
            format.fill.background = automaticLines;
        }
        CellColor(format.fill) = color;
    });
}

void InteriorView::setLineColor(const ooxml::Color& color) {
    cells_.EditFormats([&](ooxml::CellFormat& format) {
        if (!HasFill(format.fill)) {
            format.fill.patternType = "solid";
            CellColor(format.fill) = windowBackground;
        }
        LineColor(format.fill) = color;
    });
}

Variant InteriorView::Color() {
    return read([](const ooxml::Fill& fill, const Palette& palette) {
        return Variant(static_cast<double>(HasFill(fill) ? RgbOf(CellColor(fill), palette, white) : white));
    });
}

void InteriorView::SetColor(int32_t rgb) {
    setCellColor(ColorFromRgb(rgb));
}

Variant InteriorView::ColorIndex() {
    return read([](const ooxml::Fill& fill, const Palette& palette) {
        return Variant(HasFill(fill) ? ColorIndexOf(CellColor(fill), palette, xlColorIndexAutomatic)
                                     : xlColorIndexNone);
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
    return read([](const ooxml::Fill& fill, const Palette&) {
        return HasFill(fill) ? Variant(ThemeColorOf(CellColor(fill))) : Variant(xlColorIndexNone);
    });
}

void InteriorView::SetThemeColor(int32_t themeColor) {
    setCellColor(ColorFromTheme(themeColor));
}

Variant InteriorView::TintAndShade() {
    return read(
        [](const ooxml::Fill& fill, const Palette&) { return Variant(HasFill(fill) ? TintOf(CellColor(fill)) : 0.0); });
}

void InteriorView::SetTintAndShade(double tint) {
    WithTint({}, tint);
    cells_.EditFormats([&](ooxml::CellFormat& format) {
        if (HasFill(format.fill)) {
            CellColor(format.fill) = WithTint(CellColor(format.fill), tint);
        }
    });
}

Variant InteriorView::Pattern() {
    return read([](const ooxml::Fill& fill, const Palette&) {
        return Variant(ConstantOf(patterns, fill.patternType, xlPatternNone));
    });
}

void InteriorView::SetPattern(int32_t pattern) {
    std::string_view type;
    if (pattern == xlPatternNone) {
        type = "none";
    } else if (pattern == xlPatternAutomatic) {
        type = "solid";
    } else if (const std::string_view* name = NameOf(patterns, pattern)) {
        type = *name;
    }
    if (type.empty()) {
        ThrowRefused("Unable to set the Pattern property of the Interior class");
    }
    cells_.EditFormats([&](ooxml::CellFormat& format) {
        if (type == "none") {
            format.fill = ooxml::Fill{};
            return;
        }
        if (!HasFill(format.fill)) {
            // No fill yet: automatic lines on the window's background colour.
            format.fill.patternType = "solid";
            CellColor(format.fill) = windowBackground;
            LineColor(format.fill) = automaticLines;
        }
        const bool wasSolid = IsSolid(format.fill);
        format.fill.patternType = std::string(type);
        if (wasSolid != IsSolid(format.fill)) {
            // The cell keeps its colour and the lines theirs, whichever slot now holds them.
            std::swap(format.fill.foreground, format.fill.background);
        }
    });
}

Variant InteriorView::PatternColor() {
    return read([](const ooxml::Fill& fill, const Palette& palette) {
        return Variant(static_cast<double>(RgbOf(LineColor(fill), palette, 0)));
    });
}

void InteriorView::SetPatternColor(int32_t rgb) {
    setLineColor(ColorFromRgb(rgb));
}

Variant InteriorView::PatternColorIndex() {
    return read([](const ooxml::Fill& fill, const Palette& palette) {
        return Variant(ColorIndexOf(LineColor(fill), palette, xlColorIndexAutomatic));
    });
}

void InteriorView::SetPatternColorIndex(int32_t index) {
    setLineColor(index == xlColorIndexAutomatic ? automaticLines : ColorFromIndex(index));
}

}  // namespace excel::embedded
