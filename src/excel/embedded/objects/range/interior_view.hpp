#pragma once

#include "excel/embedded/objects/range/range_cells.hpp"

#include <excel/interior.hpp>

namespace excel::embedded {

class InteriorView final : public excel::Interior {
public:
    explicit InteriorView(RangeCells cells) : cells_(std::move(cells)) {}

    Variant Color() override;
    void SetColor(int32_t rgb) override;
    Variant ColorIndex() override;
    void SetColorIndex(int32_t index) override;
    Variant ThemeColor() override;
    void SetThemeColor(int32_t themeColor) override;
    Variant TintAndShade() override;
    void SetTintAndShade(double tint) override;
    Variant Pattern() override;
    void SetPattern(int32_t pattern) override;
    Variant PatternColor() override;
    void SetPatternColor(int32_t rgb) override;
    Variant PatternColorIndex() override;
    void SetPatternColorIndex(int32_t index) override;

private:
    template <class Project>
    Variant read(Project&& project);
    void setCellColor(const FormatColor& color);
    void setLineColor(const FormatColor& color);

    RangeCells cells_;
};

}  // namespace excel::embedded
