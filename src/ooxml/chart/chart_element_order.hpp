#pragma once

// The children of each chart element in the order the chart schema requires them, by local name.
// Readers give the elements they keep without reading them the slot of their name here; writers
// put them back among their own elements by that slot.

#include "ooxml/carried/element_order.hpp"

#include <array>
#include <string_view>

namespace ooxml {

inline constexpr std::array<std::string_view, 14> ChartSpaceElementNames{
    "date1904", "lang",        "roundedCorners", "style",        "clrMapOvr", "pivotSource", "protection",
    "chart",    "spPr",        "txPr",           "externalData", "printSettings", "userShapes", "extLst",
};
inline constexpr ElementOrder ChartSpaceElementOrder{ChartSpaceElementNames};

inline constexpr std::array<std::string_view, 13> ChartElementNames{
    "title", "autoTitleDeleted", "pivotFmts", "view3D",       "floor",        "sideWall",         "backWall",
    "plotArea", "legend",        "plotVisOnly", "dispBlanksAs", "showDLblsOverMax", "extLst",
};
inline constexpr ElementOrder ChartElementOrder{ChartElementNames};

// The chart groups may come in any order, then the axes in any order.
inline constexpr std::array<std::string_view, 24> PlotAreaElementNames{
    "layout",        "areaChart",    "area3DChart", "lineChart",    "line3DChart",    "stockChart",
    "radarChart",    "scatterChart", "pieChart",    "pie3DChart",   "doughnutChart",  "barChart",
    "bar3DChart",    "ofPieChart",   "surfaceChart", "surface3DChart", "bubbleChart", "valAx",
    "catAx",         "dateAx",       "serAx",       "dTable",       "spPr",           "extLst",
};
inline constexpr ElementOrder PlotAreaElementOrder{PlotAreaElementNames};

inline constexpr std::array<std::string_view, 10> BarChartElementNames{
    "barDir", "grouping", "varyColors", "ser", "dLbls", "gapWidth", "overlap", "serLines", "axId", "extLst",
};
inline constexpr ElementOrder BarChartElementOrder{BarChartElementNames};

inline constexpr std::array<std::string_view, 11> LineChartElementNames{
    "grouping", "varyColors", "ser", "dLbls", "dropLines", "hiLowLines", "upDownBars", "marker", "smooth", "axId", "extLst",
};
inline constexpr ElementOrder LineChartElementOrder{LineChartElementNames};

inline constexpr std::array<std::string_view, 6> ScatterChartElementNames{
    "scatterStyle", "varyColors", "ser", "dLbls", "axId", "extLst",
};
inline constexpr ElementOrder ScatterChartElementOrder{ScatterChartElementNames};

inline constexpr std::array<std::string_view, 7> AreaChartElementNames{
    "grouping", "varyColors", "ser", "dLbls", "dropLines", "axId", "extLst",
};
inline constexpr ElementOrder AreaChartElementOrder{AreaChartElementNames};

inline constexpr std::array<std::string_view, 14> BarSeriesElementNames{
    "idx",  "order",   "tx",        "spPr", "invertIfNegative", "pictureOptions", "dPt",
    "dLbls", "trendline", "errBars", "cat",  "val",              "shape",          "extLst",
};
inline constexpr ElementOrder BarSeriesElementOrder{BarSeriesElementNames};

inline constexpr std::array<std::string_view, 13> LineSeriesElementNames{
    "idx", "order", "tx", "spPr", "marker", "dPt", "dLbls", "trendline", "errBars", "cat", "val", "smooth", "extLst",
};
inline constexpr ElementOrder LineSeriesElementOrder{LineSeriesElementNames};

inline constexpr std::array<std::string_view, 13> ScatterSeriesElementNames{
    "idx", "order", "tx", "spPr", "marker", "dPt", "dLbls", "trendline", "errBars", "xVal", "yVal", "smooth", "extLst",
};
inline constexpr ElementOrder ScatterSeriesElementOrder{ScatterSeriesElementNames};

inline constexpr std::array<std::string_view, 12> AreaSeriesElementNames{
    "idx", "order", "tx", "spPr", "pictureOptions", "dPt", "dLbls", "trendline", "errBars", "cat", "val", "extLst",
};
inline constexpr ElementOrder AreaSeriesElementOrder{AreaSeriesElementNames};

inline constexpr std::array<std::string_view, 23> CategoryAxisElementNames{
    "axId",     "scaling",  "delete",      "axPos",   "majorGridlines", "minorGridlines", "title",   "numFmt",
    "majorTickMark", "minorTickMark", "tickLblPos", "spPr", "txPr",      "crossAx",        "crosses", "crossesAt",
    "auto",     "lblAlgn",  "lblOffset",   "tickLblSkip", "tickMarkSkip", "noMultiLvlLbl", "extLst",
};
inline constexpr ElementOrder CategoryAxisElementOrder{CategoryAxisElementNames};

inline constexpr std::array<std::string_view, 21> ValueAxisElementNames{
    "axId",          "scaling",       "delete",     "axPos", "majorGridlines", "minorGridlines", "title",
    "numFmt",        "majorTickMark", "minorTickMark", "tickLblPos", "spPr",   "txPr",           "crossAx",
    "crosses",       "crossesAt",     "crossBetween", "majorUnit", "minorUnit", "dispUnits",     "extLst",
};
inline constexpr ElementOrder ValueAxisElementOrder{ValueAxisElementNames};

inline constexpr std::array<std::string_view, 24> DateAxisElementNames{
    "axId",      "scaling",   "delete",        "axPos",        "majorGridlines", "minorGridlines",
    "title",     "numFmt",    "majorTickMark", "minorTickMark", "tickLblPos",    "spPr",
    "txPr",      "crossAx",   "crosses",       "crossesAt",    "auto",           "lblOffset",
    "baseTimeUnit", "majorUnit", "majorTimeUnit", "minorUnit", "minorTimeUnit",  "extLst",
};
inline constexpr ElementOrder DateAxisElementOrder{DateAxisElementNames};

inline constexpr std::array<std::string_view, 19> SeriesAxisElementNames{
    "axId",       "scaling", "delete", "axPos",   "majorGridlines", "minorGridlines", "title",
    "numFmt",     "majorTickMark", "minorTickMark", "tickLblPos", "spPr", "txPr",    "crossAx",
    "crosses",    "crossesAt", "tickLblSkip", "tickMarkSkip", "extLst",
};
inline constexpr ElementOrder SeriesAxisElementOrder{SeriesAxisElementNames};

inline constexpr std::array<std::string_view, 6> TitleElementNames{"tx", "layout", "overlay", "spPr", "txPr", "extLst"};
inline constexpr ElementOrder TitleElementOrder{TitleElementNames};

inline constexpr std::array<std::string_view, 7> LegendElementNames{
    "legendPos", "legendEntry", "layout", "overlay", "spPr", "txPr", "extLst",
};
inline constexpr ElementOrder LegendElementOrder{LegendElementNames};

}  // namespace ooxml
