#include "excel/embedded/interior.hpp"

#include "excel/embedded/color_model.hpp"
#include "excel/embedded/common_value.hpp"
#include "excel/embedded/engine_errors.hpp"

#include <excel/constants.hpp>

#include <array>
#include <string_view>
#include <utility>

namespace excel::embedded {

namespace {

constexpr uint32_t white = 0xFFFFFF;

// Excel's XlPattern values and the file's pattern types.
constexpr std::array<std::pair<int32_t, std::string_view>, 18> patterns{{
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

bool HasFill(const ooxml::Fill& fill) { return !fill.patternType.empty() && fill.patternType != "none"; }

// A solid fill's background is the automatic colour, as Excel writes it.
const ooxml::Color automaticBackground{ooxml::Color::Kind::Indexed, 0, 64, 0.0};

}  // namespace

template <class Project>
Variant InteriorView::read(Project&& project) {
    const WorkbookModel& book = cells_.Book();
    const auto ids = cells_.DistinctFormats();
    return CommonValue(ids, [&](uint32_t id) { return project(book.Formats().Get(id).fill, book.Palette()); });
}

void InteriorView::setForeground(const ooxml::Color& color) {
    cells_.EditFormats([&](ooxml::CellFormat& format) {
        if (!HasFill(format.fill)) {
            format.fill.patternType = "solid";
            format.fill.background = automaticBackground;
        }
        format.fill.foreground = color;
    });
}

void InteriorView::setBackground(const ooxml::Color& color) {
    cells_.EditFormats([&](ooxml::CellFormat& format) {
        if (!HasFill(format.fill)) {
            format.fill.patternType = "solid";
        }
        format.fill.background = color;
    });
}

Variant InteriorView::Color() {
    return read([](const ooxml::Fill& fill, const Palette& palette) {
        return Variant(static_cast<double>(HasFill(fill) ? RgbOf(fill.foreground, palette, white) : white));
    });
}

void InteriorView::SetColor(int32_t rgb) { setForeground(ColorFromRgb(rgb)); }

Variant InteriorView::ColorIndex() {
    return read([](const ooxml::Fill& fill, const Palette& palette) {
        return Variant(HasFill(fill) ? ColorIndexOf(fill.foreground, palette, xlColorIndexAutomatic) : xlColorIndexNone);
    });
}

void InteriorView::SetColorIndex(int32_t index) {
    if (index == xlColorIndexNone) {
        SetPattern(xlPatternNone);
        return;
    }
    if (index == xlColorIndexAutomatic) {
        setForeground(ooxml::Color{ooxml::Color::Kind::Indexed, 0, 64, 0.0});
        return;
    }
    setForeground(ColorFromIndex(index));
}

Variant InteriorView::ThemeColor() {
    return read([](const ooxml::Fill& fill, const Palette&) {
        return HasFill(fill) ? Variant(ThemeColorOf(fill.foreground)) : Variant(xlColorIndexNone);
    });
}

void InteriorView::SetThemeColor(int32_t themeColor) { setForeground(ColorFromTheme(themeColor)); }

Variant InteriorView::TintAndShade() {
    return read([](const ooxml::Fill& fill, const Palette&) {
        return Variant(HasFill(fill) ? TintOf(fill.foreground) : 0.0);
    });
}

void InteriorView::SetTintAndShade(double tint) {
    WithTint({}, tint);
    cells_.EditFormats([&](ooxml::CellFormat& format) {
        if (HasFill(format.fill)) {
            format.fill.foreground = WithTint(format.fill.foreground, tint);
        }
    });
}

Variant InteriorView::Pattern() {
    return read([](const ooxml::Fill& fill, const Palette&) {
        for (const auto& [pattern, type] : patterns) {
            if (fill.patternType == type) {
                return Variant(pattern);
            }
        }
        return Variant(xlPatternNone);
    });
}

void InteriorView::SetPattern(int32_t pattern) {
    std::string_view type;
    if (pattern == xlPatternNone) {
        type = "none";
    } else if (pattern == xlPatternAutomatic) {
        type = "solid";
    }
    for (const auto& [value, name] : patterns) {
        if (value == pattern) {
            type = name;
        }
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
            format.fill.foreground = ooxml::Color{ooxml::Color::Kind::Indexed, 0, 64, 0.0};
            format.fill.background = automaticBackground;
        }
        format.fill.patternType = std::string(type);
    });
}

Variant InteriorView::PatternColor() {
    return read([](const ooxml::Fill& fill, const Palette& palette) {
        return Variant(static_cast<double>(RgbOf(fill.background, palette, 0)));
    });
}

void InteriorView::SetPatternColor(int32_t rgb) { setBackground(ColorFromRgb(rgb)); }

Variant InteriorView::PatternColorIndex() {
    return read([](const ooxml::Fill& fill, const Palette& palette) {
        return Variant(ColorIndexOf(fill.background, palette, xlColorIndexAutomatic));
    });
}

void InteriorView::SetPatternColorIndex(int32_t index) {
    setBackground(index == xlColorIndexAutomatic ? automaticBackground : ColorFromIndex(index));
}

}  // namespace excel::embedded
