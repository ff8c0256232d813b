#include "excel/embedded/model/charts/series_colors.hpp"

#include <array>

namespace excel::embedded {

namespace {

constexpr int32_t FirstAccent = 4;  // the file's theme index of accent1
constexpr uint32_t Accents = 6;
// The shade or tint of each round of six series after the first, as the style's colour
// variations give them.
constexpr std::array<double, 9> Rounds{0.0, -0.4, 0.2, -0.2, 0.4, -0.5, 0.3, -0.3, 0.5};

}  // namespace

ShapeColor AutomaticSeriesColor(uint32_t index) {
    const double tint = Rounds[(index / Accents) % Rounds.size()];
    return ShapeColorFromThemeIndex(FirstAccent + static_cast<int32_t>(index % Accents), tint);
}

}  // namespace excel::embedded
