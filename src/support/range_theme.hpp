#pragma once

#include <excel/fwd.hpp>

#include <cstdint>
#include <memory>

namespace vos {

// Theme colouring of a table's ranges. Colours are Excel theme-colour indexes, tints run from -1
// (darker) to 1 (lighter); every procedure leaves a missing range alone. An inside border type
// outside VosTableInsideBorderType leaves the inside lines as they are.

// Title: the interior in the title colour, the bottom edge in the border colour, the font in the
// title-font colour.
void ApplyTitleRangeTheme(const std::shared_ptr<excel::Range>& range, int32_t titleColor, float titleTint,
                          int32_t titleFontColor, float titleFontTint, int32_t borderColor, float borderTint);
// Interior: the bottom edge and the inside lines of the border type in the border colour;
// VosBorderNone removes both kinds of inside line, the other types leave the lines they do not
// draw as they are.
void ApplyInteriorRangeTheme(const std::shared_ptr<excel::Range>& range, int32_t borderColor, float borderTint,
                             int32_t insideBorderType);
// Top header: the bottom edge in the border colour, the interior in the header colour, the inside
// lines of the border type in the border colour and the other inside lines removed.
void ApplyTopHeaderRangeTheme(const std::shared_ptr<excel::Range>& range, int32_t headerColor, float headerTint,
                              int32_t borderColor, float borderTint, int32_t insideBorderType);
// Left header: as the top header with the right edge instead of the bottom one, except that
// VosBorderHorizontalAndVertical draws only the vertical inside lines and leaves the horizontal
// ones as they are.
void ApplyLeftHeaderRangeTheme(const std::shared_ptr<excel::Range>& range, int32_t headerColor, float headerTint,
                               int32_t borderColor, float borderTint, int32_t insideBorderType);
// The interior in that theme colour and tint; nothing else changes.
void ApplyInteriorThemeColor(const std::shared_ptr<excel::Range>& range, int32_t color, float tint);
// A table's signature corner takes the header colour over its interior.
void ApplySignatureRangeTheme(const std::shared_ptr<excel::Range>& range, int32_t headerColor, float headerTint);

}  // namespace vos
