#include "excel/embedded/objects/range/font_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/format/enum_table.hpp"
#include "excel/embedded/objects/common_value.hpp"

#include <excel/constants.hpp>

#include <algorithm>
#include <cctype>
#include <optional>

namespace excel::embedded {

namespace {

std::string Lowercase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

constexpr EnumTable<embedded::Underline, int32_t, 5> underlineStyles{
    {xlUnderlineStyleNone, xlUnderlineStyleSingle, xlUnderlineStyleDouble, xlUnderlineStyleSingleAccounting,
     xlUnderlineStyleDoubleAccounting}};

}  // namespace

template <class Project>
Variant FontView::read(Project&& project) {
    return CommonValue(target_->Fonts(), project);
}

Variant FontView::Name() {
    return read([](const FontFormat& font) { return Variant(font.name); });
}

void FontView::SetName(const std::string& name) {
    if (name.empty()) {
        ThrowRefused("Unable to set the Name property of the Font class");
    }
    target_->EditFonts([&](FontFormat& font) {
        font.name = name;
        // Only the theme's body font keeps the theme scheme; the character set was the old name's.
        font.scheme = name == "Calibri" ? FontScheme::Minor : FontScheme::None;
        font.charset.reset();
    });
}

Variant FontView::Size() {
    return read([](const FontFormat& font) { return Variant(font.size); });
}

void FontView::SetSize(double points) {
    if (!(points >= 1.0 && points <= 409.0)) {
        ThrowRefused("Unable to set the Size property of the Font class");
    }
    target_->EditFonts([&](FontFormat& font) { font.size = points; });
}

Variant FontView::Bold() {
    return read([](const FontFormat& font) { return Variant(font.bold); });
}

void FontView::SetBold(bool bold) {
    target_->EditFonts([&](FontFormat& font) { font.bold = bold; });
}

Variant FontView::Italic() {
    return read([](const FontFormat& font) { return Variant(font.italic); });
}

void FontView::SetItalic(bool italic) {
    target_->EditFonts([&](FontFormat& font) { font.italic = italic; });
}

Variant FontView::Underline() {
    return read([](const FontFormat& font) { return Variant(underlineStyles[font.underline]); });
}

void FontView::SetUnderline(int32_t style) {
    const std::optional<embedded::Underline> underline = underlineStyles.Find(style);
    if (!underline) {
        ThrowRefused("Unable to set the Underline property of the Font class");
    }
    target_->EditFonts([&](FontFormat& font) { font.underline = *underline; });
}

Variant FontView::Strikethrough() {
    return read([](const FontFormat& font) { return Variant(font.strikethrough); });
}

void FontView::SetStrikethrough(bool strike) {
    target_->EditFonts([&](FontFormat& font) { font.strikethrough = strike; });
}

Variant FontView::Superscript() {
    return read([](const FontFormat& font) { return Variant(font.script == Script::Superscript); });
}

void FontView::SetSuperscript(bool superscript) {
    target_->EditFonts([&](FontFormat& font) {
        if (superscript) {
            font.script = Script::Superscript;
        } else if (font.script == Script::Superscript) {
            font.script = Script::Baseline;
        }
    });
}

Variant FontView::Subscript() {
    return read([](const FontFormat& font) { return Variant(font.script == Script::Subscript); });
}

void FontView::SetSubscript(bool subscript) {
    target_->EditFonts([&](FontFormat& font) {
        if (subscript) {
            font.script = Script::Subscript;
        } else if (font.script == Script::Subscript) {
            font.script = Script::Baseline;
        }
    });
}

Variant FontView::FontStyle() {
    return read([](const FontFormat& font) {
        if (font.bold && font.italic) {
            return Variant("Bold Italic");
        }
        return Variant(font.bold ? "Bold" : font.italic ? "Italic" : "Regular");
    });
}

void FontView::SetFontStyle(const std::string& style) {
    const std::string lower = Lowercase(style);
    const bool bold = lower.find("bold") != std::string::npos;
    const bool italic = lower.find("italic") != std::string::npos || lower.find("oblique") != std::string::npos;
    target_->EditFonts([&](FontFormat& font) {
        font.bold = bold;
        font.italic = italic;
    });
}

Variant FontView::Color() {
    const WorkbookColors& colors = target_->Colors();
    return read([&](const FontFormat& font) { return Variant(static_cast<double>(RgbOf(font.color, colors, 0))); });
}

void FontView::SetColor(int32_t rgb) {
    const FormatColor color = ColorFromRgb(rgb);
    target_->EditFonts([&](FontFormat& font) { font.color = color; });
}

Variant FontView::ColorIndex() {
    const WorkbookColors& colors = target_->Colors();
    return read(
        [&](const FontFormat& font) { return Variant(ColorIndexOf(font.color, colors, xlColorIndexAutomatic)); });
}

void FontView::SetColorIndex(int32_t index) {
    const FormatColor color = index == xlColorIndexAutomatic || index == xlColorIndexNone
                                  ? FormatColor{FormatColor::Kind::Automatic, 0, 0, 0.0}
                                  : ColorFromIndex(index);
    target_->EditFonts([&](FontFormat& font) { font.color = color; });
}

Variant FontView::ThemeColor() {
    return read([](const FontFormat& font) { return Variant(ThemeColorOf(font.color)); });
}

void FontView::SetThemeColor(int32_t themeColor) {
    const FormatColor color = ColorFromTheme(themeColor);
    target_->EditFonts([&](FontFormat& font) { font.color = color; });
}

Variant FontView::TintAndShade() {
    return read([](const FontFormat& font) { return Variant(TintOf(font.color)); });
}

void FontView::SetTintAndShade(double tint) {
    WithTint({}, tint);
    target_->EditFonts([&](FontFormat& font) { font.color = WithTint(font.color, tint); });
}

}  // namespace excel::embedded
