#include "support/range_theme.hpp"

#include <vos/table_inside_border_type.hpp>

#include <excel/border.hpp>
#include <excel/constants.hpp>
#include <excel/font.hpp>
#include <excel/interior.hpp>
#include <excel/range.hpp>

namespace vos {

namespace {

// What a procedure does to one kind of inside line.
enum class InsideLine { Untouched, Removed, Themed };

struct InsideLines {
    InsideLine horizontal;
    InsideLine vertical;
};

struct ThemeColorAndTint {
    int32_t color;
    float tint;
};

template <class Target>
void SetThemeColor(const std::shared_ptr<Target>& target, ThemeColorAndTint colorAndTint) {
    target->SetThemeColor(colorAndTint.color);
    target->SetTintAndShade(colorAndTint.tint);
}

void SetInsideLine(const std::shared_ptr<excel::Range>& range, int32_t borderIndex, InsideLine line,
                   ThemeColorAndTint border) {
    switch (line) {
        case InsideLine::Untouched:
            break;
        case InsideLine::Removed:
            range->Borders(borderIndex)->SetLineStyle(excel::xlLineStyleNone);
            break;
        case InsideLine::Themed:
            SetThemeColor(range->Borders(borderIndex), border);
            break;
    }
}

void SetInsideLines(const std::shared_ptr<excel::Range>& range, InsideLines lines, ThemeColorAndTint border) {
    SetInsideLine(range, excel::xlInsideHorizontal, lines.horizontal, border);
    SetInsideLine(range, excel::xlInsideVertical, lines.vertical, border);
}

// The interior leaves alone the inside lines its border type does not draw.
InsideLines InteriorInsideLines(int32_t insideBorderType) {
    using enum InsideLine;
    switch (insideBorderType) {
        case VosBorderNone:
            return {Removed, Removed};
        case VosBorderHorizontal:
            return {Themed, Untouched};
        case VosBorderVertical:
            return {Untouched, Themed};
        case VosBorderHorizontalAndVertical:
            return {Themed, Themed};
        default:
            return {Untouched, Untouched};
    }
}

// Headers remove the inside lines their border type does not draw; the left header draws only the
// vertical lines for both kinds.
InsideLines HeaderInsideLines(int32_t insideBorderType, bool leftHeader) {
    using enum InsideLine;
    switch (insideBorderType) {
        case VosBorderNone:
            return {Removed, Removed};
        case VosBorderHorizontal:
            return {Themed, Removed};
        case VosBorderVertical:
            return {Removed, Themed};
        case VosBorderHorizontalAndVertical:
            return leftHeader ? InsideLines{Untouched, Themed} : InsideLines{Themed, Themed};
        default:
            return {Untouched, Untouched};
    }
}

void ApplyHeaderRangeTheme(const std::shared_ptr<excel::Range>& range, int32_t outerEdge, ThemeColorAndTint header,
                           ThemeColorAndTint border, int32_t insideBorderType) {
    if (!range)
        return;
    SetThemeColor(range->Borders(outerEdge), border);
    SetThemeColor(range->Interior(), header);
    SetInsideLines(range, HeaderInsideLines(insideBorderType, outerEdge == excel::xlEdgeRight), border);
}

}  // namespace

void ApplyTitleRangeTheme(const std::shared_ptr<excel::Range>& range, int32_t titleColor, float titleTint,
                          int32_t titleFontColor, float titleFontTint, int32_t borderColor, float borderTint) {
    if (!range)
        return;
    SetThemeColor(range->Interior(), {titleColor, titleTint});
    SetThemeColor(range->Borders(excel::xlEdgeBottom), {borderColor, borderTint});
    SetThemeColor(range->Font(), {titleFontColor, titleFontTint});
}

void ApplyInteriorRangeTheme(const std::shared_ptr<excel::Range>& range, int32_t borderColor, float borderTint,
                             int32_t insideBorderType) {
    if (!range)
        return;
    SetThemeColor(range->Borders(excel::xlEdgeBottom), {borderColor, borderTint});
    SetInsideLines(range, InteriorInsideLines(insideBorderType), {borderColor, borderTint});
}

void ApplyTopHeaderRangeTheme(const std::shared_ptr<excel::Range>& range, int32_t headerColor, float headerTint,
                              int32_t borderColor, float borderTint, int32_t insideBorderType) {
    ApplyHeaderRangeTheme(range, excel::xlEdgeBottom, {headerColor, headerTint}, {borderColor, borderTint},
                          insideBorderType);
}

void ApplyLeftHeaderRangeTheme(const std::shared_ptr<excel::Range>& range, int32_t headerColor, float headerTint,
                               int32_t borderColor, float borderTint, int32_t insideBorderType) {
    ApplyHeaderRangeTheme(range, excel::xlEdgeRight, {headerColor, headerTint}, {borderColor, borderTint},
                          insideBorderType);
}

void ApplyInteriorThemeColor(const std::shared_ptr<excel::Range>& range, int32_t color, float tint) {
    if (!range)
        return;
    SetThemeColor(range->Interior(), {color, tint});
}

void ApplySignatureRangeTheme(const std::shared_ptr<excel::Range>& range, int32_t headerColor, float headerTint) {
    ApplyInteriorThemeColor(range, headerColor, headerTint);
}

}  // namespace vos
