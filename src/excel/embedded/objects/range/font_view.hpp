#pragma once

#include "excel/embedded/format/color_model.hpp"
#include "excel/embedded/format/font_format.hpp"

#include <excel/font.hpp>

#include <functional>
#include <memory>
#include <vector>

namespace excel::embedded {

// What a Font view formats: the cells of a range, or characters of a cell's text.
class FontTarget {
public:
    virtual ~FontTarget() = default;
    virtual std::vector<FontFormat> Fonts() = 0;  // the distinct fonts shown
    virtual void EditFonts(const std::function<void(FontFormat&)>& edit) = 0;
    virtual const WorkbookColors& Colors() = 0;
};

class FontView final : public excel::Font {
public:
    explicit FontView(std::shared_ptr<FontTarget> target) : target_(std::move(target)) {}

    Variant Name() override;
    void SetName(const std::string& name) override;
    Variant Size() override;
    void SetSize(double points) override;
    Variant Bold() override;
    void SetBold(bool bold) override;
    Variant Italic() override;
    void SetItalic(bool italic) override;
    Variant Underline() override;
    void SetUnderline(int32_t style) override;
    Variant Strikethrough() override;
    void SetStrikethrough(bool strike) override;
    Variant Superscript() override;
    void SetSuperscript(bool superscript) override;
    Variant Subscript() override;
    void SetSubscript(bool subscript) override;
    Variant FontStyle() override;
    void SetFontStyle(const std::string& style) override;
    Variant Color() override;
    void SetColor(int32_t rgb) override;
    Variant ColorIndex() override;
    void SetColorIndex(int32_t index) override;
    Variant ThemeColor() override;
    void SetThemeColor(int32_t themeColor) override;
    Variant TintAndShade() override;
    void SetTintAndShade(double tint) override;

private:
    template <class Project>
    Variant read(Project&& project);

    std::shared_ptr<FontTarget> target_;
};

}  // namespace excel::embedded
