#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <string>

namespace excel {

// The font of a range or of some characters. Getters answer null where the cells differ.
// Colors are RGB Longs (0x00BBGGRR).
class Font : public Object {
public:
    virtual Variant Name() = 0;
    virtual void SetName(const std::string& name) = 0;
    virtual Variant Size() = 0;
    virtual void SetSize(double points) = 0;
    virtual Variant Bold() = 0;
    virtual void SetBold(bool bold) = 0;
    virtual Variant Italic() = 0;
    virtual void SetItalic(bool italic) = 0;
    virtual Variant Underline() = 0;
    virtual void SetUnderline(int32_t style) = 0;  // an xlUnderlineStyle
    virtual Variant Strikethrough() = 0;
    virtual void SetStrikethrough(bool strike) = 0;
    virtual Variant Superscript() = 0;
    virtual void SetSuperscript(bool superscript) = 0;
    virtual Variant Subscript() = 0;
    virtual void SetSubscript(bool subscript) = 0;
    virtual Variant FontStyle() = 0;  // "Regular", "Bold", "Italic", "Bold Italic"
    virtual void SetFontStyle(const std::string& style) = 0;
    virtual Variant Color() = 0;
    virtual void SetColor(int32_t rgb) = 0;
    virtual Variant ColorIndex() = 0;
    virtual void SetColorIndex(int32_t index) = 0;
    virtual Variant ThemeColor() = 0;
    virtual void SetThemeColor(int32_t themeColor) = 0;
    virtual Variant TintAndShade() = 0;
    virtual void SetTintAndShade(double tint) = 0;
};

}  // namespace excel
