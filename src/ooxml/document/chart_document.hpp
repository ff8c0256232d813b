#pragma once

// A chart part (xl/charts/chartN.xml) and the text boxes of its chart drawing, in the file's own
// terms: element values are spelled as the schema spells them ("col", "clustered", "minMax").
// An element a chart holds beyond these types is kept as the file wrote it, in its schema slot
// (CarriedElement); a formatting element the engine did not change keeps the file's markup.

#include "ooxml/document/carried_content.hpp"
#include "ooxml/document/cell_format.hpp"
#include "ooxml/document/drawing_shape.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace ooxml {

// Run properties of chart text (a:defRPr, a:rPr): only what is set is written, the rest is
// inherited from the paragraph, the element or the chart.
struct ChartFont {
    std::optional<std::string> name;       // the latin typeface
    std::optional<double> size;            // points
    std::optional<bool> bold;
    std::optional<bool> italic;
    std::optional<bool> strike;
    std::optional<std::string> underline;  // ST_TextUnderlineType: "none", "sng", "dbl", ...
    std::optional<Color> color;            // Rgb or Theme: the text's solid fill

    friend bool operator==(const ChartFont&, const ChartFont&) = default;
};

struct GradientStop {
    int32_t position = 0;  // 0..100000
    Color color;

    friend bool operator==(const GradientStop&, const GradientStop&) = default;
};

// The fill of a chart element's shape properties.
struct ChartFill {
    enum class Kind : uint8_t { Automatic, None, Solid, Gradient };
    Kind kind = Kind::Automatic;
    Color color;                      // Solid
    std::vector<GradientStop> stops;  // Gradient, by position
    int32_t angle = 0;                // Gradient: a linear gradient's direction, 60,000ths of a degree
    bool scaled = true;
    bool rotateWithShape = true;

    friend bool operator==(const ChartFill&, const ChartFill&) = default;
};

// The outline (a:ln) of a chart element: a series' line, a border, an axis line.
struct ChartLine {
    enum class Kind : uint8_t { Automatic, None, Solid };
    Kind kind = Kind::Automatic;
    Color color;                   // Solid
    std::optional<int64_t> width;  // EMU (12,700 per point); none: automatic
    std::string dash;              // "" (not written) or ST_PresetLineDashVal: "solid", "dash", "sysDot", ...

    friend bool operator==(const ChartLine&, const ChartLine&) = default;
};

// The shape properties (c:spPr) of a chart element. Automatic fill and line with no markup: no
// c:spPr is written.
struct ChartShapeProperties {
    ChartFill fill;
    ChartLine line;
    // The file's c:spPr as written, children only; written instead of fill and line when not empty
    // (effects, 3-D and colour transforms the document does not model stay as they were).
    std::string markup;

    bool Automatic() const {
        return fill.kind == ChartFill::Kind::Automatic && line.kind == ChartLine::Kind::Automatic &&
               !line.width && line.dash.empty() && markup.empty();
    }
    friend bool operator==(const ChartShapeProperties&, const ChartShapeProperties&) = default;
};

// The text properties (c:txPr) of a chart element: its body's rotation and its text's default run
// properties. Nothing set and no markup: no c:txPr is written.
struct ChartTextProperties {
    std::optional<int32_t> rotation;  // 60,000ths of a degree: -5400000 reads bottom to top
    std::string vertical;             // "" (not written) or ST_TextVerticalType: "horz", "vert", ...
    ChartFont font;
    std::string markup;  // the file's c:txPr children as written; written instead of the above when not empty

    bool Empty() const { return !rotation && vertical.empty() && font == ChartFont{} && markup.empty(); }
    friend bool operator==(const ChartTextProperties&, const ChartTextProperties&) = default;
};

// A run of a title's text. A line feed stays inside its run's a:t, as Excel writes a line feed
// typed into a title.
struct ChartTextRun {
    std::string text;
    ChartFont font;

    friend bool operator==(const ChartTextRun&, const ChartTextRun&) = default;
};

// Where a series takes its name, categories or values from, with the values the file caches.
struct ChartData {
    enum class Kind : uint8_t { None, NumberReference, StringReference, NumberLiteral, StringLiteral, Other };
    Kind kind = Kind::None;
    std::string formula;     // references: the reference without "=" ("Sheet1!$A$1:$A$5")
    std::string formatCode;  // numbers: the cache's format code ("General")
    uint32_t pointCount = 0;
    std::vector<std::pair<uint32_t, std::string>> points;  // index, value as written; missing points are blank
    std::string markup;  // Other (a multi-level reference): the element's children as written

    friend bool operator==(const ChartData&, const ChartData&) = default;
};

// A part of a chart placed by hand (c:manualLayout): its top-left corner, and for a plot area its
// size, as fractions of the chart's width and height.
struct ChartManualLayout {
    std::string target;  // a plot area's: "inner" (the area inside the axes) or "outer"; "" not written
    double x = 0.0;
    double y = 0.0;
    std::optional<double> width;
    std::optional<double> height;

    friend bool operator==(const ChartManualLayout&, const ChartManualLayout&) = default;
};

// A title (of the chart or of an axis).
struct ChartTitle {
    // The title's own text: rich text runs (c:tx/c:rich), or a cell reference (c:tx/c:strRef). With
    // neither, Excel shows its automatic title.
    std::vector<ChartTextRun> runs;
    ChartData reference;                // a StringReference, or None
    std::optional<int32_t> rotation;    // of the rich text's body
    std::string vertical;
    ChartFont paragraphFont;            // the paragraphs' default run properties (a:pPr/a:defRPr)
    std::string richMarkup;             // the file's c:rich children, written instead of the runs when not empty
    std::optional<ChartManualLayout> layout;  // none: where Excel puts it (or the file's layout, when carried)
    bool overlay = false;
    ChartShapeProperties shape;
    ChartTextProperties textProperties;  // of an automatic title
    std::vector<CarriedElement> carried;  // layout, extLst

    friend bool operator==(const ChartTitle&, const ChartTitle&) = default;
};

struct ChartMarker {
    std::string symbol;            // ST_MarkerStyle: "none", "diamond", "triangle", "square", "circle", "star", ...; "" not written
    std::optional<uint32_t> size;  // 2..72
    ChartShapeProperties shape;    // fill: the marker's background; line: its foreground

    friend bool operator==(const ChartMarker&, const ChartMarker&) = default;
};

struct ChartSeries {
    uint32_t index = 0;  // unique in the chart
    uint32_t order = 0;  // plotting order
    std::optional<std::string> nameText;  // c:tx/c:v
    ChartData nameReference;              // c:tx/c:strRef
    ChartShapeProperties shape;
    std::optional<ChartMarker> marker;    // line and scatter series; none: no c:marker (automatic)
    bool invertIfNegative = false;        // bar series
    ChartData categories;                 // c:cat, or a scatter series' c:xVal
    ChartData values;                     // c:val, or a scatter series' c:yVal
    bool smooth = false;                  // line and scatter series
    std::vector<CarriedElement> carried;  // dPt, dLbls, trendline, errBars, pictureOptions, shape, extLst

    friend bool operator==(const ChartSeries&, const ChartSeries&) = default;
};

// A chart group of the plot area: the series drawn one way on one pair of axes.
struct ChartGroup {
    std::string type;            // the element: "barChart", "lineChart", "scatterChart", "areaChart", ...
    std::string barDirection;    // barChart: "col", "bar"
    std::string grouping;        // barChart: "clustered", "stacked", "percentStacked", "standard"; lineChart, areaChart: "standard", "stacked", "percentStacked"
    std::string scatterStyle;    // scatterChart: "lineMarker", "marker", "line", "smooth", ...
    bool varyColors = false;
    std::vector<ChartSeries> series;
    std::optional<int32_t> gapWidth;  // barChart: 0..500
    std::optional<int32_t> overlap;   // barChart: -100..100
    bool showMarkers = true;          // lineChart: c:marker
    std::vector<uint32_t> axisIds;    // the category (or X) axis, then the value (or Y) axis
    std::vector<CarriedElement> carried;  // dLbls, dropLines, hiLowLines, upDownBars, serLines, extLst

    friend bool operator==(const ChartGroup&, const ChartGroup&) = default;
};

struct ChartNumberFormat {
    std::string code = "General";
    bool sourceLinked = false;

    friend bool operator==(const ChartNumberFormat&, const ChartNumberFormat&) = default;
};

struct ChartAxis {
    std::string type;  // the element: "catAx", "valAx", "dateAx", "serAx"
    uint32_t id = 0;
    std::optional<double> logBase;
    std::string orientation = "minMax";  // "maxMin": reversed
    std::optional<double> maximum;
    std::optional<double> minimum;
    bool deleted = false;
    std::string position = "b";  // "b", "l", "r", "t"
    std::optional<ChartShapeProperties> majorGridlines;  // present when shown
    std::optional<ChartShapeProperties> minorGridlines;
    std::optional<ChartTitle> title;
    std::optional<ChartNumberFormat> numberFormat;
    std::string majorTickMark = "out";  // "none", "in", "out", "cross"
    std::string minorTickMark = "none";
    std::string tickLabelPosition = "nextTo";  // "high", "low", "nextTo", "none"
    ChartShapeProperties shape;
    ChartTextProperties textProperties;
    uint32_t crossAxisId = 0;
    std::string crosses = "autoZero";  // "autoZero", "min", "max"; ignored when crossesAt is set
    std::optional<double> crossesAt;
    // catAx and dateAx
    bool automatic = true;
    std::string labelAlignment = "ctr";
    uint32_t labelOffset = 100;
    bool noMultiLevelLabels = false;
    // valAx
    std::string crossBetween = "between";  // "between", "midCat"
    std::optional<double> majorUnit;
    std::optional<double> minorUnit;
    std::vector<CarriedElement> carried;  // dispUnits, tickLblSkip, tickMarkSkip, baseTimeUnit, extLst, ...

    friend bool operator==(const ChartAxis&, const ChartAxis&) = default;
};

struct ChartLegend {
    std::string position = "r";  // "b", "tr", "l", "r", "t"
    bool overlay = false;
    ChartShapeProperties shape;
    ChartTextProperties textProperties;
    std::vector<CarriedElement> carried;  // legendEntry, layout, extLst

    friend bool operator==(const ChartLegend&, const ChartLegend&) = default;
};

struct ChartPlotArea {
    std::optional<ChartManualLayout> layout;  // none: automatic (or the file's layout, when carried)
    std::vector<ChartGroup> groups;  // the primary axes' groups first
    std::vector<ChartAxis> axes;     // primary category, primary value, secondary value, secondary category
    ChartShapeProperties shape;
    std::vector<CarriedElement> carried;  // layout, dTable, extLst

    friend bool operator==(const ChartPlotArea&, const ChartPlotArea&) = default;
};

// A text box of the chart's drawing (c:userShapes), placed by fractions of the chart's width and
// height (a relSizeAnchor: it moves and sizes with the chart). The shape's cell anchors are unused;
// its x, y, width and height are EMU from the chart's top-left corner.
struct ChartShape {
    double fromX = 0.0, fromY = 0.0, toX = 0.0, toY = 0.0;  // 0..1
    DrawingShape shape;

    friend bool operator==(const ChartShape&, const ChartShape&) = default;
};

// A chart part: the chart space, its chart and the chart's drawing.
struct ChartDocument {
    bool date1904 = false;
    std::string language = "en-US";
    bool roundedCorners = false;
    int32_t style = 2;  // 1..48
    std::optional<ChartTitle> title;
    bool autoTitleDeleted = false;
    ChartPlotArea plotArea;
    std::optional<ChartLegend> legend;
    bool plotVisibleOnly = true;
    std::string displayBlanksAs = "gap";  // "gap", "span", "zero"
    ChartShapeProperties chartArea;
    ChartTextProperties textProperties;
    std::vector<ChartShape> shapes;  // in z-order, bottom first
    // What an opened chart holds beyond the rest: the chart space's namespace declarations and
    // elements the document does not model (alternate content, printSettings, externalData,
    // extLst, ...) with the relationships they use (style and colour parts, embedded data), and the
    // chart element's own (pivotFmts, view3D, floor, walls, extLst). None for a new chart.
    CarriedMarkup carried;
    std::vector<CarriedElement> chartCarried;
    // The chart drawing's root attributes and its anchors that are not text boxes (pictures,
    // groups), a slot counting the text boxes below.
    CarriedMarkup drawingCarried;
};

}  // namespace ooxml
