#include "chart/series_style.hpp"

#include <excel/chart_constants.hpp>

#include <array>
#include <cstddef>

namespace vos {

namespace {

// Indexed by the series number modulo 15, so the fifteenth colour comes first.
constexpr std::array<int32_t, 15> Colors{
    16711935,  // 15, 30, ...: magenta
    10040115,  // dark blue
    6697881,   // plum
    6723891,   // sea green
    52479,     // gold
    16711680,  // blue
    52377,     // lime
    13395456,  // ocean blue
    8421504,   // grey
    0,         // black
    32896,     // olive
    255,       // red
    16764057,  // light blue
    8388736,   // purple
    8421376,   // teal
};

// Indexed by the series number modulo 5, so the fifth shape comes first.
constexpr std::array<int32_t, 5> MarkerStyles{
    excel::xlMarkerStyleStar,   excel::xlMarkerStyleDiamond, excel::xlMarkerStyleTriangle,
    excel::xlMarkerStyleSquare, excel::xlMarkerStyleCircle,
};

}  // namespace

int32_t SeriesColor(int16_t formattingIndex) {
    return Colors[static_cast<size_t>(formattingIndex % Colors.size())];
}

int32_t SeriesMarkerStyle(int16_t formattingIndex) {
    return MarkerStyles[static_cast<size_t>(formattingIndex % MarkerStyles.size())];
}

}  // namespace vos
