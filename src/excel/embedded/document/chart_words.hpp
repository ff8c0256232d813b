#pragma once

#include "excel/embedded/document/word_table.hpp"

#include <excel/constants.hpp>

namespace excel::embedded {

// How a chart part spells Excel's chart constants.
inline constexpr WordTable<11> MarkerSymbols{{{xlMarkerStyleAutomatic, ""},
                                              {xlMarkerStyleNone, "none"},
                                              {xlMarkerStyleSquare, "square"},
                                              {xlMarkerStyleDiamond, "diamond"},
                                              {xlMarkerStyleTriangle, "triangle"},
                                              {xlMarkerStyleStar, "star"},
                                              {xlMarkerStyleCircle, "circle"},
                                              {xlMarkerStylePlus, "plus"},
                                              {xlMarkerStyleX, "x"},
                                              {xlMarkerStyleDot, "dot"},
                                              {xlMarkerStyleDash, "dash"}}};
inline constexpr WordTable<4> TickMarks{
    {{xlTickMarkOutside, "out"}, {xlTickMarkNone, "none"}, {xlTickMarkInside, "in"}, {xlTickMarkCross, "cross"}}};
inline constexpr WordTable<4> TickLabelPositions{{{xlTickLabelPositionNextToAxis, "nextTo"},
                                                  {xlTickLabelPositionHigh, "high"},
                                                  {xlTickLabelPositionLow, "low"},
                                                  {xlTickLabelPositionNone, "none"}}};
inline constexpr WordTable<5> LegendPositions{{{xlLegendPositionRight, "r"},
                                               {xlLegendPositionBottom, "b"},
                                               {xlLegendPositionCorner, "tr"},
                                               {xlLegendPositionLeft, "l"},
                                               {xlLegendPositionTop, "t"}}};
// A line's XlLineStyle as its DrawingML dash.
inline constexpr WordTable<6> LineDashes{{{xlContinuous, "solid"},
                                          {xlDash, "dash"},
                                          {xlDot, "sysDot"},
                                          {xlDashDot, "dashDot"},
                                          {xlDashDotDot, "lgDashDotDot"},
                                          {xlSlantDashDot, "lgDashDot"}}};
// Where the other axis crosses an axis, as the crossing axis' element says.
inline constexpr WordTable<3> Crossings{
    {{xlAxisCrossesAutomatic, "autoZero"}, {xlAxisCrossesMaximum, "max"}, {xlAxisCrossesMinimum, "min"}}};

// The direction of a one-colour gradient's style, variant 1 (colour one to colour two), as a
// linear gradient's angle in 60,000ths of a degree.
inline constexpr WordTable<4> GradientAngles{{{msoGradientHorizontal, "5400000"},
                                              {msoGradientVertical, "0"},
                                              {msoGradientDiagonalUp, "2700000"},
                                              {msoGradientDiagonalDown, "8100000"}}};

}  // namespace excel::embedded
