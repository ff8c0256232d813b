#include "excel/embedded/objects/range/font_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/common_value.hpp"

#include <excel/constants.hpp>

#include <algorithm>
#include <cctype>

namespace excel::embedded {

namespace {

std::string Lowercase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

int32_t UnderlineStyle(const std::string& underline) {
    if (underline == "single") {
        return xlUnderlineStyleSingle;
    }
    if (underline == "double") {
        return xlUnderlineStyleDouble;
    }
    if (underline == "singleAccounting") {
        return xlUnderlineStyleSingleAccounting;
    }
    if (underline == "doubleAccounting") {
        return xlUnderlineStyleDoubleAccounting;
    }
    return xlUnderlineStyleNone;
}

}  // namespace

template <class Project>
Variant FontView::read(Project&& project) {
    return CommonValue(target_->Fonts(), project);
}

Variant FontView::Name() {
    return read([](const ooxml::Font& font) { return Variant(font.name); });
}

void FontView::SetName(const std::string& name) {
    if (name.empty()) {
        ThrowRefused("Unable to set the Name property of the Font class");
    }
    target_->EditFonts([&](ooxml::Font& font) {
        font.name = name;
        // Only the theme's body font keeps the theme scheme.
        font.scheme = name == "Calibri" ? "minor" : "";
    });
}

Variant FontView::Size() {
    return read([](const ooxml::Font& font) { return Variant(font.size); });
}

void FontView::SetSize(double points) {
    if (!(points >= 1.0 && points <= 409.0)) {
        ThrowRefused("Unable to set the Size property of the Font class");
    }
    target_->EditFonts([&](ooxml::Font& font) { font.size = points; });
}

Variant FontView::Bold() {
    return read([](const ooxml::Font& font) { return Variant(font.bold); });
}

void FontView::SetBold(bool bold) {
    target_->EditFonts([&](ooxml::Font& font) { font.bold = bold; });
}

Variant FontView::Italic() {
    return read([](const ooxml::Font& font) { return Variant(font.italic); });
}

void FontView::SetItalic(bool italic) {
    target_->EditFonts([&](ooxml::Font& font) { font.italic = italic; });
}

Variant FontView::Underline() {
    return read([](const ooxml::Font& font) { return Variant(UnderlineStyle(font.underline)); });
}

void FontView::SetUnderline(int32_t style) {
    std::string underline;
    switch (style) {
        case xlUnderlineStyleNone:
            break;
        case xlUnderlineStyleSingle:
            underline = "single";
            break;
        case xlUnderlineStyleDouble:
            underline = "double";
            break;
        case xlUnderlineStyleSingleAccounting:
            underline = "singleAccounting";
            break;
        case xlUnderlineStyleDoubleAccounting:
            underline = "doubleAccounting";
            break;
        default:
            ThrowRefused("Unable to set the Underline property of the Font class");
    }
    target_->EditFonts([&](ooxml::Font& font) { font.underline = underline; });
}

Variant FontView::Strikethrough() {
    return read([](const ooxml::Font& font) { return Variant(font.strike); });
}

void FontView::SetStrikethrough(bool strike) {
    target_->EditFonts([&](ooxml::Font& font) { font.strike = strike; });
}

Variant FontView::Superscript() {
    return read([](const ooxml::Font& font) { return Variant(font.vertAlign == "superscript"); });
}

void FontView::SetSuperscript(bool superscript) {
    target_->EditFonts([&](ooxml::Font& font) {
        if (superscript) {
            font.vertAlign = "superscript";
        } else if (font.vertAlign == "superscript") {
            font.vertAlign.clear();
        }
    });
}

Variant FontView::Subscript() {
    return read([](const ooxml::Font& font) { return Variant(font.vertAlign == "subscript"); });
}

void FontView::SetSubscript(bool subscript) {
    target_->EditFonts([&](ooxml::Font& font) {
        if (subscript) {
            font.vertAlign = "subscript";
        } else if (font.vertAlign == "subscript") {
            font.vertAlign.clear();
        }
    });
}

Variant FontView::FontStyle() {
    return read([](const ooxml::Font& font) {
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
    target_->EditFonts([&](ooxml::Font& font) {
        font.bold = bold;
        font.italic = italic;
    });
}

Variant FontView::Color() {
    const Palette& palette = target_->Colors();
    return read([&](const ooxml::Font& font) { return Variant(static_cast<double>(RgbOf(font.color, palette, 0))); });
}

void FontView::SetColor(int32_t rgb) {
    const ooxml::Color color = ColorFromRgb(rgb);
    target_->EditFonts([&](ooxml::Font& font) { font.color = color; });
}

Variant FontView::ColorIndex() {
    const Palette& palette = target_->Colors();
    return read(
        [&](const ooxml::Font& font) { return Variant(ColorIndexOf(font.color, palette, xlColorIndexAutomatic)); });
}

void FontView::SetColorIndex(int32_t index) {
    const ooxml::Color color = index == xlColorIndexAutomatic || index == xlColorIndexNone
                                   ? ooxml::Color{ooxml::Color::Kind::Auto, 0, 0, 0.0}
                                   : ColorFromIndex(index);
    target_->EditFonts([&](ooxml::Font& font) { font.color = color; });
}

Variant FontView::ThemeColor() {
    return read([](const ooxml::Font& font) { return Variant(ThemeColorOf(font.color)); });
}

void FontView::SetThemeColor(int32_t themeColor) {
    const ooxml::Color color = ColorFromTheme(themeColor);
    target_->EditFonts([&](ooxml::Font& font) { font.color = color; });
}

Variant FontView::TintAndShade() {
    return read([](const ooxml::Font& font) { return Variant(TintOf(font.color)); });
}

void FontView::SetTintAndShade(double tint) {
    WithTint({}, tint);
    target_->EditFonts([&](ooxml::Font& font) { font.color = WithTint(font.color, tint); });
}

}  // namespace excel::embedded
