#pragma once

#include "excel/embedded/objects/range/range_cells.hpp"

#include <excel/borders.hpp>

#include <vector>

namespace excel::embedded {

// One border index of a range (xlEdgeTop...), or with no index the Borders collection, whose
// properties act on the four edges and the inside lines together.
class BordersView final : public excel::Borders {
public:
    BordersView(RangeCells cells, std::vector<int32_t> indices)
        : cells_(std::move(cells)), indices_(std::move(indices)) {}

    // The collection of a range: edges and inside lines.
    static std::shared_ptr<BordersView> Collection(RangeCells cells);
    // One border; refused for an index that is no XlBordersIndex.
    static std::shared_ptr<BordersView> Single(RangeCells cells, int32_t index);

    int32_t Count() override;
    std::shared_ptr<excel::Border> Item(int32_t index) override;

    Variant LineStyle() override;
    void SetLineStyle(int32_t style) override;
    Variant Weight() override;
    void SetWeight(int32_t weight) override;
    Variant Color() override;
    void SetColor(int32_t rgb) override;
    Variant ColorIndex() override;
    void SetColorIndex(int32_t index) override;
    Variant ThemeColor() override;
    void SetThemeColor(int32_t themeColor) override;
    Variant TintAndShade() override;
    void SetTintAndShade(double tint) override;

    // Sets style, weight and colour of these borders in one go (BorderAround).
    void SetLine(int32_t lineStyle, int32_t weight, const FormatColor* color);

private:
    template <class Project>
    Variant read(Project&& project);
    void edit(const std::function<void(BorderLine&)>& editLine);

    RangeCells cells_;
    std::vector<int32_t> indices_;
};

}  // namespace excel::embedded
