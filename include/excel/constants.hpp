#pragma once

#include <excel/chart_constants.hpp>

#include <cstdint>

// Excel's enumeration constants, with Excel's own names and values. They are plain int32_t
// constants, not C++ enums, because Excel reuses names across its enumerations (xlCenter is both a
// horizontal and a vertical alignment) and because properties take and return them as Longs.
namespace excel {

// Shared by several enumerations.
inline constexpr int32_t xlNone = -4142;
inline constexpr int32_t xlAutomatic = -4105;
inline constexpr int32_t xlSolid = 1;

// XlHAlign / XlVAlign
inline constexpr int32_t xlGeneral = 1;
inline constexpr int32_t xlLeft = -4131;
inline constexpr int32_t xlCenter = -4108;
inline constexpr int32_t xlRight = -4152;
inline constexpr int32_t xlFill = 5;
inline constexpr int32_t xlJustify = -4130;
inline constexpr int32_t xlCenterAcrossSelection = 7;
inline constexpr int32_t xlDistributed = -4117;
inline constexpr int32_t xlTop = -4160;
inline constexpr int32_t xlBottom = -4107;

// XlOrientation
inline constexpr int32_t xlHorizontal = -4128;
inline constexpr int32_t xlVertical = -4166;
inline constexpr int32_t xlUpward = -4171;
inline constexpr int32_t xlDownward = -4170;

// XlBordersIndex
inline constexpr int32_t xlDiagonalDown = 5;
inline constexpr int32_t xlDiagonalUp = 6;
inline constexpr int32_t xlEdgeLeft = 7;
inline constexpr int32_t xlEdgeTop = 8;
inline constexpr int32_t xlEdgeBottom = 9;
inline constexpr int32_t xlEdgeRight = 10;
inline constexpr int32_t xlInsideVertical = 11;
inline constexpr int32_t xlInsideHorizontal = 12;

// XlLineStyle
inline constexpr int32_t xlContinuous = 1;
inline constexpr int32_t xlDash = -4115;
inline constexpr int32_t xlDashDot = 4;
inline constexpr int32_t xlDashDotDot = 5;
inline constexpr int32_t xlDot = -4118;
inline constexpr int32_t xlDouble = -4119;
inline constexpr int32_t xlSlantDashDot = 13;
inline constexpr int32_t xlLineStyleNone = -4142;

// XlBorderWeight
inline constexpr int32_t xlHairline = 1;
inline constexpr int32_t xlThin = 2;
inline constexpr int32_t xlMedium = -4138;
inline constexpr int32_t xlThick = 4;

// XlColorIndex
inline constexpr int32_t xlColorIndexAutomatic = -4105;
inline constexpr int32_t xlColorIndexNone = -4142;

// XlPattern
inline constexpr int32_t xlPatternAutomatic = -4105;
inline constexpr int32_t xlPatternNone = -4142;
inline constexpr int32_t xlPatternSolid = 1;
inline constexpr int32_t xlPatternGray50 = -4125;
inline constexpr int32_t xlPatternGray75 = -4126;
inline constexpr int32_t xlPatternGray25 = -4124;
inline constexpr int32_t xlPatternGray16 = 17;
inline constexpr int32_t xlPatternGray8 = 18;
inline constexpr int32_t xlPatternLinearGradient = 4000;
inline constexpr int32_t xlPatternRectangularGradient = 4001;
inline constexpr int32_t xlPatternHorizontal = -4128;
inline constexpr int32_t xlPatternVertical = -4166;
inline constexpr int32_t xlPatternDown = -4121;
inline constexpr int32_t xlPatternUp = -4162;
inline constexpr int32_t xlPatternChecker = 9;
inline constexpr int32_t xlPatternSemiGray75 = 10;
inline constexpr int32_t xlPatternLightHorizontal = 11;
inline constexpr int32_t xlPatternLightVertical = 12;
inline constexpr int32_t xlPatternLightDown = 13;
inline constexpr int32_t xlPatternLightUp = 14;
inline constexpr int32_t xlPatternGrid = 15;
inline constexpr int32_t xlPatternCrissCross = 16;

// XlThemeColor
inline constexpr int32_t xlThemeColorDark1 = 1;
inline constexpr int32_t xlThemeColorLight1 = 2;
inline constexpr int32_t xlThemeColorDark2 = 3;
inline constexpr int32_t xlThemeColorLight2 = 4;
inline constexpr int32_t xlThemeColorAccent1 = 5;
inline constexpr int32_t xlThemeColorAccent2 = 6;
inline constexpr int32_t xlThemeColorAccent3 = 7;
inline constexpr int32_t xlThemeColorAccent4 = 8;
inline constexpr int32_t xlThemeColorAccent5 = 9;
inline constexpr int32_t xlThemeColorAccent6 = 10;
inline constexpr int32_t xlThemeColorHyperlink = 11;
inline constexpr int32_t xlThemeColorFollowedHyperlink = 12;

// XlUnderlineStyle
inline constexpr int32_t xlUnderlineStyleNone = -4142;
inline constexpr int32_t xlUnderlineStyleSingle = 2;
inline constexpr int32_t xlUnderlineStyleDouble = -4119;
inline constexpr int32_t xlUnderlineStyleSingleAccounting = 4;
inline constexpr int32_t xlUnderlineStyleDoubleAccounting = 5;

// XlInsertShiftDirection / XlDeleteShiftDirection / XlInsertFormatOrigin
inline constexpr int32_t xlShiftDown = -4121;
inline constexpr int32_t xlShiftToRight = -4161;
inline constexpr int32_t xlShiftUp = -4162;
inline constexpr int32_t xlShiftToLeft = -4159;
inline constexpr int32_t xlFormatFromLeftOrAbove = 0;
inline constexpr int32_t xlFormatFromRightOrBelow = 1;

// XlReferenceStyle
inline constexpr int32_t xlA1 = 1;
inline constexpr int32_t xlR1C1 = -4150;

// XlFileFormat
inline constexpr int32_t xlOpenXMLWorkbook = 51;
inline constexpr int32_t xlWorkbookDefault = 51;

// XlSheetVisibility
inline constexpr int32_t xlSheetVisible = -1;
inline constexpr int32_t xlSheetHidden = 0;
inline constexpr int32_t xlSheetVeryHidden = 2;

// XlCVError: cell error values, held in a Variant as ErrorValue{0x800A0000 + n}.
inline constexpr int32_t xlErrNull = 2000;
inline constexpr int32_t xlErrDiv0 = 2007;
inline constexpr int32_t xlErrValue = 2015;
inline constexpr int32_t xlErrRef = 2023;
inline constexpr int32_t xlErrName = 2029;
inline constexpr int32_t xlErrNum = 2036;
inline constexpr int32_t xlErrNA = 2042;

// MsoTriState
inline constexpr int32_t msoTrue = -1;
inline constexpr int32_t msoFalse = 0;

// MsoTextOrientation
inline constexpr int32_t msoTextOrientationHorizontal = 1;

// XlPlacement: how a shape follows the cells beneath it
inline constexpr int32_t xlMoveAndSize = 1;
inline constexpr int32_t xlMove = 2;
inline constexpr int32_t xlFreeFloating = 3;

// MsoShapeType
inline constexpr int32_t msoComment = 4;
inline constexpr int32_t msoTextBox = 17;

// MsoThemeColorIndex: the theme's scheme colours as drawing objects name them
inline constexpr int32_t msoNotThemeColor = 0;
inline constexpr int32_t msoThemeColorDark1 = 1;
inline constexpr int32_t msoThemeColorLight1 = 2;
inline constexpr int32_t msoThemeColorDark2 = 3;
inline constexpr int32_t msoThemeColorLight2 = 4;
inline constexpr int32_t msoThemeColorAccent1 = 5;
inline constexpr int32_t msoThemeColorAccent2 = 6;
inline constexpr int32_t msoThemeColorAccent3 = 7;
inline constexpr int32_t msoThemeColorAccent4 = 8;
inline constexpr int32_t msoThemeColorAccent5 = 9;
inline constexpr int32_t msoThemeColorAccent6 = 10;
inline constexpr int32_t msoThemeColorHyperlink = 11;
inline constexpr int32_t msoThemeColorFollowedHyperlink = 12;
inline constexpr int32_t msoThemeColorText1 = 13;
inline constexpr int32_t msoThemeColorBackground1 = 14;
inline constexpr int32_t msoThemeColorText2 = 15;
inline constexpr int32_t msoThemeColorBackground2 = 16;

// XlHAlign / XlVAlign of a shape's text
inline constexpr int32_t xlHAlignLeft = -4131;
inline constexpr int32_t xlHAlignCenter = -4108;
inline constexpr int32_t xlHAlignRight = -4152;
inline constexpr int32_t xlHAlignJustify = -4130;
inline constexpr int32_t xlHAlignDistributed = -4117;
inline constexpr int32_t xlVAlignTop = -4160;
inline constexpr int32_t xlVAlignCenter = -4108;
inline constexpr int32_t xlVAlignBottom = -4107;
inline constexpr int32_t xlVAlignJustify = -4130;
inline constexpr int32_t xlVAlignDistributed = -4117;

}  // namespace excel
