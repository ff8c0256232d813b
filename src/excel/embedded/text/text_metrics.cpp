#include "excel/embedded/text/text_metrics.hpp"

#include "excel/embedded/text/font_metrics_table.hpp"
#include "excel/embedded/text/utf8_text.hpp"

#include <algorithm>
#include <array>
#include <cstdint>

namespace excel::embedded {

namespace {

struct FontFamily {
    std::string_view name;
    const FontFaceMetrics& regular;
    const FontFaceMetrics& bold;
};

// The families measured from tables, under their own names and those of their metric-compatible
// stand-ins. Any other name measures as Calibri, the default font of workbooks and text boxes.
const std::array<FontFamily, 6> MeasuredFamilies{{
    {"Calibri", CalibriRegular, CalibriBold},
    {"Carlito", CalibriRegular, CalibriBold},
    {"Tahoma", TahomaRegular, TahomaBold},
    {"Arial", ArialRegular, ArialBold},
    {"Liberation Sans", ArialRegular, ArialBold},
    {"Helvetica", ArialRegular, ArialBold},
}};

struct CodePointRange {
    char32_t first;
    char32_t last;
};

// Combining marks and invisible format characters (zero-width space and joiners, direction
// marks, variation selectors, byte order mark, tags): drawn over or between their neighbours.
constexpr std::array<CodePointRange, 14> ZeroWidthRanges{{
    {0x0300, 0x036F}, {0x0483, 0x0489}, {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF},
    {0x200B, 0x200F}, {0x202A, 0x202E}, {0x2060, 0x206F}, {0x20D0, 0x20FF},
    {0x3099, 0x309A}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0xFEFF, 0xFEFF},
    {0xE0000, 0xE007F}, {0xE0100, 0xE01EF},
}};

// East Asian wide and full-width characters, set one em wide: Hangul, CJK radicals, symbols
// and punctuation, kana, CJK ideographs, Yi, full-width forms and the pictographs shown wide.
constexpr std::array<CodePointRange, 17> FullWidthRanges{{
    {0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0x33FF},   {0x3400, 0x4DBF},
    {0x4E00, 0x9FFF},   {0xA000, 0xA4CF},   {0xA960, 0xA97F},   {0xAC00, 0xD7A3},
    {0xF900, 0xFAFF},   {0xFE10, 0xFE19},   {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},
    {0xFFE0, 0xFFE6},   {0x1F300, 0x1F64F}, {0x1F900, 0x1F9FF}, {0x20000, 0x2FFFD},
    {0x30000, 0x3FFFD},
}};

bool InAnyRange(char32_t codePoint, const auto& ranges) {
    return std::any_of(ranges.begin(), ranges.end(), [codePoint](const CodePointRange& range) {
        return codePoint >= range.first && codePoint <= range.last;
    });
}

const FontFaceMetrics& FaceOf(const FontFormat& font) {
    const auto family = std::find_if(MeasuredFamilies.begin(), MeasuredFamilies.end(),
                                     [&font](const FontFamily& f) { return EqualsIgnoringCase(f.name, font.name); });
    const FontFamily& measured = family != MeasuredFamilies.end() ? *family : MeasuredFamilies.front();
    return font.bold ? measured.bold : measured.regular;
}

int32_t AdvanceUnits(char32_t codePoint, const FontFaceMetrics& face) {
    constexpr char32_t FirstTabulated = 0x20;
    if (codePoint < FirstTabulated) {
        return 0;
    }
    if (codePoint < FirstTabulated + face.latinAdvances.size()) {
        return face.latinAdvances[codePoint - FirstTabulated];
    }
    if (InAnyRange(codePoint, ZeroWidthRanges)) {
        return 0;
    }
    if (InAnyRange(codePoint, FullWidthRanges)) {
        return face.unitsPerEm;
    }
    return face.averageAdvance;
}

}  // namespace

double TextAdvance(std::string_view text, const FontFormat& font) {
    const FontFaceMetrics& face = FaceOf(font);
    int64_t units = 0;
    for (size_t position = 0; position < text.size();) {
        units += AdvanceUnits(NextCodePoint(text, position), face);
    }
    return static_cast<double>(units) * font.size / face.unitsPerEm;
}

double LineHeight(const FontFormat& font) {
    const FontFaceMetrics& face = FaceOf(font);
    return static_cast<double>(face.ascender + face.descender + face.lineGap) * font.size / face.unitsPerEm;
}

}  // namespace excel::embedded
