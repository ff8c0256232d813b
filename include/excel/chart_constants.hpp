#pragma once

#include <cstdint>

// Excel's enumeration constants of charts, with Excel's own names and values (see constants.hpp).

namespace excel {

// XlChartType: the types the engine draws
inline constexpr int32_t xlColumnClustered = 51;
inline constexpr int32_t xlColumnStacked = 52;
inline constexpr int32_t xlColumnStacked100 = 53;
inline constexpr int32_t xlBarClustered = 57;
inline constexpr int32_t xlBarStacked = 58;
inline constexpr int32_t xlBarStacked100 = 59;
inline constexpr int32_t xlLine = 4;
inline constexpr int32_t xlLineStacked = 63;
inline constexpr int32_t xlLineStacked100 = 64;
inline constexpr int32_t xlLineMarkers = 65;
inline constexpr int32_t xlLineMarkersStacked = 66;
inline constexpr int32_t xlLineMarkersStacked100 = 67;
inline constexpr int32_t xlXYScatter = -4169;
inline constexpr int32_t xlXYScatterSmooth = 72;
inline constexpr int32_t xlXYScatterSmoothNoMarkers = 73;
inline constexpr int32_t xlXYScatterLines = 74;
inline constexpr int32_t xlXYScatterLinesNoMarkers = 75;
inline constexpr int32_t xlArea = 1;
inline constexpr int32_t xlAreaStacked = 76;
inline constexpr int32_t xlAreaStacked100 = 77;

// XlAxisType
inline constexpr int32_t xlCategory = 1;
inline constexpr int32_t xlValue = 2;
inline constexpr int32_t xlSeriesAxis = 3;

// XlAxisGroup
inline constexpr int32_t xlPrimary = 1;
inline constexpr int32_t xlSecondary = 2;

// XlTickMark
inline constexpr int32_t xlTickMarkNone = -4142;
inline constexpr int32_t xlTickMarkInside = 2;
inline constexpr int32_t xlTickMarkOutside = 3;
inline constexpr int32_t xlTickMarkCross = 4;

// XlTickLabelPosition
inline constexpr int32_t xlTickLabelPositionHigh = -4127;
inline constexpr int32_t xlTickLabelPositionLow = -4134;
inline constexpr int32_t xlTickLabelPositionNextToAxis = 4;
inline constexpr int32_t xlTickLabelPositionNone = -4142;

// XlTickLabelOrientation (a whole number of degrees, -90..90, is an orientation too)
inline constexpr int32_t xlTickLabelOrientationAutomatic = -4105;
inline constexpr int32_t xlTickLabelOrientationDownward = -4170;
inline constexpr int32_t xlTickLabelOrientationHorizontal = -4128;
inline constexpr int32_t xlTickLabelOrientationUpward = -4171;
inline constexpr int32_t xlTickLabelOrientationVertical = -4166;

// XlAxisCrosses
inline constexpr int32_t xlAxisCrossesAutomatic = -4105;
inline constexpr int32_t xlAxisCrossesCustom = -4114;
inline constexpr int32_t xlAxisCrossesMaximum = 2;
inline constexpr int32_t xlAxisCrossesMinimum = 4;

// XlScaleType
inline constexpr int32_t xlScaleLinear = -4132;
inline constexpr int32_t xlScaleLogarithmic = -4133;

// XlLegendPosition
inline constexpr int32_t xlLegendPositionBottom = -4107;
inline constexpr int32_t xlLegendPositionCorner = 2;
inline constexpr int32_t xlLegendPositionLeft = -4131;
inline constexpr int32_t xlLegendPositionRight = -4152;
inline constexpr int32_t xlLegendPositionTop = -4160;

// XlMarkerStyle
inline constexpr int32_t xlMarkerStyleAutomatic = -4105;
inline constexpr int32_t xlMarkerStyleNone = -4142;
inline constexpr int32_t xlMarkerStyleSquare = 1;
inline constexpr int32_t xlMarkerStyleDiamond = 2;
inline constexpr int32_t xlMarkerStyleTriangle = 3;
inline constexpr int32_t xlMarkerStyleStar = 5;
inline constexpr int32_t xlMarkerStyleCircle = 8;
inline constexpr int32_t xlMarkerStylePlus = 9;
inline constexpr int32_t xlMarkerStyleX = -4168;
inline constexpr int32_t xlMarkerStyleDot = -4118;
inline constexpr int32_t xlMarkerStyleDash = -4115;

// MsoShapeType of a chart
inline constexpr int32_t msoChart = 3;

// MsoFillType
inline constexpr int32_t msoFillMixed = -2;
inline constexpr int32_t msoFillSolid = 1;
inline constexpr int32_t msoFillPatterned = 2;
inline constexpr int32_t msoFillGradient = 3;
inline constexpr int32_t msoFillBackground = 5;

// MsoGradientStyle
inline constexpr int32_t msoGradientHorizontal = 1;
inline constexpr int32_t msoGradientVertical = 2;
inline constexpr int32_t msoGradientDiagonalUp = 3;
inline constexpr int32_t msoGradientDiagonalDown = 4;
inline constexpr int32_t msoGradientFromCorner = 5;
inline constexpr int32_t msoGradientFromCenter = 7;

}  // namespace excel
