#!/usr/bin/python3
"""Reads report_charts.xlsx back with openpyxl and asserts what the report library makes of each chart:
series references and names, the fixed series colours, the column gradients, markers and lines, the
title runs, the legend, the axes' scales, number formats, crossings, fonts and label rotation, gap
widths, the tornado's four series of literal values, and each chart's place below the one before it;
and, from the package itself, the watermark text boxes, which openpyxl does not read."""

import os
import sys
import zipfile
import xml.etree.ElementTree as ElementTree

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))

from expectations import run  # noqa: E402

DRAWING_NS = "{http://schemas.openxmlformats.org/drawingml/2006/main}"
CHART_DRAWING_NS = "{http://schemas.openxmlformats.org/drawingml/2006/chartDrawing}"
USER_SHAPES_TYPE = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/chartUserShapes"
CHART_TYPE = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/chart"
DRAWING_TYPE = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/drawing"

ENGLISH = "Charts"
CHINESE = "\u56fe\u8868"

# Series n takes colour (n - 1) mod 15 and marker (n - 1) mod 5.
COLOURS = ["333399", "993366", "339966", "FFCC00", "0000FF", "99CC00", "0066CC", "808080", "000000", "808000",
           "FF0000", "99CCFF", "800080", "008080", "FF00FF"]
MARKERS = ["diamond", "triangle", "square", "circle", "star"]
UPWARD = -5400000
FAR_LOW_END = -1e300
ROW_END = 184150  # 14.5 points: a chart ends half a point above the bottom of a 15-point row

MONTHS = ["Jan", "Feb", "Mar", "Apr", "May", "Jun"]
ENGLISH_TORNADO = ([-48, -35, -12, -30, 4, -18, -9, -6, -22, 2, -14, -8],
                   [52, 41, 30, -5, 16, 12, 11, 7, 10, 19, 17, 9])
CHINESE_TORNADO = ([-20, 5, -15], [35, 25, -3])


def colour(number):
    return COLOURS[(number - 1) % 15]


def darkened(rgb):
    """The gradient's second stop: each channel scaled by 118/255, rounded."""
    return "".join(f"{round(int(rgb[i:i + 2], 16) * 118 / 255):02X}" for i in (0, 2, 4))


def fill_rgb(properties):
    return properties.solidFill.srgbClr if properties is not None and properties.solidFill is not None else None


def runs(title):
    """(text, bold, size) of each run of a title or axis title."""
    if title is None or title.tx is None or title.tx.rich is None:
        return []
    return [(r.t, r.rPr.b if r.rPr else None, r.rPr.sz if r.rPr else None)
            for paragraph in title.tx.rich.p for r in (paragraph.r or [])]


def label_size(axis):
    paragraphs = axis.txPr.p if axis.txPr is not None else []
    return paragraphs[0].pPr.defRPr.sz if paragraphs and paragraphs[0].pPr and paragraphs[0].pPr.defRPr else None


def label_rotation(axis):
    return axis.txPr.bodyPr.rot if axis.txPr is not None and axis.txPr.bodyPr is not None else None


class ChartCheck:
    """Expectations on one chart, each named after it; fonts are larger on the Chinese sheet."""

    def __init__(self, x, what, chart, chinese=False):
        self.x = x
        self.what = what
        self.chart = chart
        self.chinese = chinese

    def size(self, english, chinese):
        return chinese if self.chinese else english

    def equal(self, what, actual, expected):
        self.x.equal(f"{self.what} {what}", actual, expected)

    def kind(self, tagname, **shape):
        self.equal("type", self.chart.tagname, tagname)
        for name, value in shape.items():
            self.equal(name, getattr(self.chart, name), value)

    def series(self, expected, chart=None):
        """expected: (name or None, values, categories or x values or None) per series; values a
        reference, or the numbers of a literal."""
        found = (chart or self.chart).series
        self.equal("series count", len(found), len(expected))
        for number, (series, (name, values, other)) in enumerate(zip(found, expected), start=1):
            where = f"series {number}"
            self.equal(f"{where} name", series.tx.v if series.tx else None, name)
            data = series.yVal if series.yVal is not None else series.val
            if isinstance(values, str):
                self.equal(f"{where} values", data.numRef.f if data and data.numRef else None, values)
            else:
                literal = data.numLit if data else None
                self.equal(f"{where} literal values", [p.v for p in literal.pt] if literal else None, values)
            if series.xVal is not None:
                self.equal(f"{where} x values", series.xVal.numRef.f if series.xVal.numRef else None, other)
            else:
                category = series.cat
                reference = category.strRef or category.numRef if category is not None else None
                self.equal(f"{where} categories", reference.f if reference else None, other)
        return found

    def gradients(self, first=1):
        for number, series in enumerate(self.chart.series, start=first):
            gradient = series.spPr.gradFill if series.spPr else None
            where = f"series {number} gradient"
            self.equal(where, [(s.pos, s.srgbClr) for s in gradient.gsLst] if gradient else None,
                       [(0, colour(number)), (100000, darkened(colour(number)))])
            self.equal(f"{where} diagonal down", gradient.lin.ang if gradient and gradient.lin else None, 8100000)

    def markers(self, series, number):
        marker = series.marker
        where = f"series {number} marker"
        self.equal(where, (marker.symbol, marker.size) if marker else None, (MARKERS[(number - 1) % 5], 5))
        properties = marker.spPr if marker else None
        if MARKERS[(number - 1) % 5] == "star":
            self.equal(f"{where} without fill", properties.noFill if properties else None, True)
        else:
            self.equal(f"{where} fill", fill_rgb(properties), colour(number))
        self.equal(f"{where} outline", fill_rgb(properties.ln) if properties else None,
                   "000000" if 6 <= number <= 9 else colour(number))

    def line(self, series, number, drawn):
        line = series.spPr.ln if series.spPr else None
        where = f"series {number} line"
        if drawn:
            self.equal(where, (line.w, fill_rgb(line), line.prstDash) if line else None,
                       (25400, colour(number), "solid"))
        else:
            self.equal(f"{where} not drawn", line.noFill if line else None, True)

    def title(self, head, subtitles=""):
        """The head bold in the title size; the subtitles, each after a line feed, plain and smaller;
        the whole text ending in a space."""
        expected = [(head + ("" if subtitles else " "), True, self.size(1200, 1400))]
        if subtitles:
            expected.append((subtitles + " ", False, self.size(800, 1000)))
        self.equal("title runs", runs(self.chart.title), expected)
        paragraph = self.chart.title.tx.rich.p[0] if self.chart.title else None
        default = paragraph.pPr.defRPr if paragraph and paragraph.pPr else None
        self.equal("title paragraph font", (default.sz, default.b) if default else None, (self.size(1200, 1400), True))
        self.equal("title over the plot", self.chart.title.overlay if self.chart.title else None, False)

    def legend(self, framed):
        legend = self.chart.legend
        self.equal("legend position", legend.legendPos if legend else None, "r")
        if legend is None:
            return
        default = legend.txPr.p[0].pPr.defRPr if legend.txPr else None
        self.equal("legend font", default.sz if default else None, self.size(800, 1000))
        line = legend.spPr.ln if legend.spPr else None
        if framed:
            self.equal("legend frame", (line.w, fill_rgb(line)) if line else None, (12700, "C0C0C0"))
        else:
            self.equal("legend without frame", line.noFill if line else None, True)

    def axis_title(self, what, axis, text):
        expected = [(text, False, self.size(800, 1000))] if text else []
        self.equal(f"{what} title", runs(axis.title), expected)

    def value_axis(self, what, axis, title, scale, number_format, rotation=None, position=None):
        """scale: (minimum, maximum, unit), or None for automatic."""
        what = f"{what} axis"
        self.equal(f"{what} shown", axis.delete, False)
        if position:
            self.equal(f"{what} position", axis.axPos, position)
        self.axis_title(what, axis, title)
        found = (axis.scaling.min, axis.scaling.max, axis.majorUnit)
        self.equal(f"{what} scale", found, scale or (None, None, None))
        self.equal(f"{what} number format", (axis.numFmt.formatCode, axis.numFmt.sourceLinked) if axis.numFmt
                   else None, (number_format, False))
        self.equal(f"{what} tick marks", (axis.majorTickMark, axis.minorTickMark), ("out", None))
        self.equal(f"{what} labels", (label_size(axis), label_rotation(axis)), (self.size(800, 1000), rotation))

    def category_axis(self, axis, title, rotation=None):
        self.equal("category axis shown", axis.delete, False)
        self.axis_title("category axis", axis, title)
        self.equal("category axis labels low", axis.tickLblPos, "low")
        self.equal("category axis without tick marks", (axis.majorTickMark, axis.minorTickMark), (None, None))
        self.equal("category axis labels", (label_size(axis), label_rotation(axis)), (self.size(800, 1000), rotation))

    def crossed_at_low_end(self, what, axis):
        """The value axis' crossing written on the axis that crosses it."""
        self.equal(f"{what} crosses its value axis at", (axis.crossesAt, axis.crosses), (FAR_LOW_END, None))


def check_places(x, sheet, first_row):
    """Each chart moves with its cells, stands in column A one separator row below the one before it
    and ends half a point above a row's bottom."""
    row = first_row
    for number, chart in enumerate(sheet._charts, start=1):
        anchor = chart.anchor
        where = f"{sheet.title} chart {number}"
        x.equal(f"{where} moves with cells", anchor.editAs, "oneCell")
        x.equal(f"{where} corner", (anchor._from.col, anchor._from.row, anchor._from.colOff, anchor._from.rowOff),
                (0, row, 0, 0))
        x.equal(f"{where} end in its row", anchor.to.rowOff, ROW_END)
        row = anchor.to.row + 2


def check_sales(x, chart):
    c = ChartCheck(x, f"{ENGLISH} column chart", chart)
    c.kind("barChart", type="col", grouping="clustered", gapWidth=75, overlap=10)
    months = f"{ENGLISH}!$K$11:$K$16"
    c.series([(region, f"{ENGLISH}!${column}$11:${column}$16", months)
              for region, column in (("North", "L"), ("South", "M"), ("West", "N"))])
    c.gradients()
    c.title("Sales by region", "\nThousands of units\nFirst half year")
    c.legend(True)
    c.category_axis(chart.x_axis, "Month")
    c.crossed_at_low_end("category axis", chart.x_axis)
    c.value_axis("value", chart.y_axis, "Units", (0, 600, 100), "#,##0", position="l")
    c.equal("value axis crosses the categories", chart.y_axis.crosses, "autoZero")


def check_curves(x, chart):
    c = ChartCheck(x, f"{ENGLISH} XY chart", chart)
    c.kind("scatterChart", scatterStyle="lineMarker")
    years = f"{ENGLISH}!$K$20:$K$25"
    found = c.series([("Gross", f"{ENGLISH}!$L$20:$L$25", years), ("Net", f"{ENGLISH}!$M$20:$M$25", years)])
    for number, series in enumerate(found, start=1):
        c.markers(series, number)
        c.line(series, number, True)
    c.title("Exceedance curves", "\nGross and net of reinsurance")
    c.legend(False)
    # Round ticks: 10 to 500 with room above on 0 to 600, 0 to 3,070 with room above on 0 to 3,500.
    c.value_axis("X", chart.x_axis, "Return period (years)", (0, 600, 100), "0", UPWARD, "b")
    c.value_axis("Y", chart.y_axis, "Loss (USD m)", (0, 3500, 500), "#,##0", position="l")
    c.crossed_at_low_end("X axis", chart.x_axis)
    c.crossed_at_low_end("Y axis", chart.y_axis)


def check_trend(x, chart, sheet, first_row, texts, ratio_format, rotation, chinese):
    """texts: the title, the two series' names, the year axis' and the premium axis' titles."""
    title, premium, ratio, year_axis, premium_axis = texts
    c = ChartCheck(x, f"{sheet} line chart", chart, chinese)
    c.kind("lineChart", grouping="standard")
    column = [f"{sheet}!${letter}${first_row}:${letter}${first_row + 7}" for letter in "KLM"]
    c.series([(premium, column[1], column[0])])
    c.equal("chart groups", len(chart._charts), 2)
    c.title(title)
    c.legend(True)
    c.category_axis(chart.x_axis, year_axis, rotation)
    c.crossed_at_low_end("category axis", chart.x_axis)
    c.value_axis("value", chart.y_axis, premium_axis, (0, 600, 100), "#,##0", position="l")
    if len(chart._charts) != 2:
        return
    secondary = chart._charts[1]
    c.equal("secondary group", (secondary.tagname, secondary.grouping), ("lineChart", "standard"))
    # The year names went to the primary axis after the ratio had moved to the secondary one.
    found = c.series([(ratio, column[2], None)], secondary)
    for number, series in enumerate(chart.series + found, start=1):
        c.markers(series, number)
        c.line(series, number, True)
    c.value_axis("secondary value", secondary.y_axis, ratio, (0, 1, 0.25), ratio_format, position="r")
    c.equal("secondary value axis crosses its categories at their maximum", secondary.y_axis.crosses, "max")
    c.equal("secondary category axis hidden", secondary.x_axis.delete, True)
    c.crossed_at_low_end("secondary category axis", secondary.x_axis)


def tornado_pieces(low, high):
    """The zero, invisible base, negative and positive pieces of the bars."""
    pieces = [[0.0] * len(low) for _ in range(4)]
    for i, (lo, hi) in enumerate(zip(low, high)):
        if lo < 0 and hi < 0:
            pieces[1][i], pieces[2][i] = hi, lo - hi
        elif lo <= 0:
            pieces[2][i], pieces[3][i] = lo, hi
        else:
            pieces[1][i], pieces[3][i] = lo, hi - lo
    return pieces


def check_tornado(x, chart, sheet, labels, bars, titles, axis_title, scale, gap_width, chinese):
    c = ChartCheck(x, f"{sheet} tornado", chart, chinese)
    c.kind("barChart", type="bar", grouping="stacked", gapWidth=gap_width, overlap=100)
    pieces = tornado_pieces(*bars)
    c.equal("first series all zeros", set(pieces[0]), {0})
    found = c.series([(None, piece, labels) for piece in pieces])
    for number, series in enumerate(found, start=1):
        properties = series.spPr
        where = f"series {number}"
        if number <= 2:
            c.equal(f"{where} invisible", properties.noFill if properties else None, True)
        else:
            c.equal(f"{where} fill", fill_rgb(properties), colour(1))
        c.equal(f"{where} without border", properties.ln.noFill if properties and properties.ln else None, True)
    c.title(*titles)
    c.equal("legend", chart.legend, None)
    bar_axis = chart.x_axis
    c.equal("bar labels at the left", (bar_axis.axPos, bar_axis.delete), ("l", False))
    c.equal("bar 1 at the top", bar_axis.scaling.orientation, "maxMin")
    c.equal("bar labels low", bar_axis.tickLblPos, "low")
    c.equal("bar labels without tick marks", (bar_axis.majorTickMark, bar_axis.minorTickMark), (None, None))
    c.equal("bar labels horizontal", (label_size(bar_axis), label_rotation(bar_axis)), (c.size(800, 1000), 0))
    c.crossed_at_low_end("bar label axis", bar_axis)
    c.value_axis("value", chart.y_axis, axis_title, scale, "#,##0", position="b")
    c.equal("value axis below the bars", chart.y_axis.crosses, "max")


def check_runs(x, chart):
    c = ChartCheck(x, f"{ENGLISH} markers chart", chart)
    c.kind("scatterChart", scatterStyle="lineMarker")
    runs_x = f"{ENGLISH}!$K$54:$K$58"
    columns = "LMNOPQRSTU"
    found = c.series([(f"Run {run}", f"{ENGLISH}!${columns[run - 1]}$54:${columns[run - 1]}$58", runs_x)
                      for run in range(1, 11)])
    for number, series in enumerate(found, start=1):
        c.markers(series, number)
        c.line(series, number, False)
    c.title("Ten runs")
    c.legend(True)
    c.value_axis("X", chart.x_axis, "", (0, 6, 1), "0", position="b")
    c.value_axis("Y", chart.y_axis, "", None, "General", position="l")
    c.crossed_at_low_end("X axis", chart.x_axis)
    c.crossed_at_low_end("Y axis", chart.y_axis)


def check_colours(x, chart):
    c = ChartCheck(x, f"{CHINESE} column chart", chart, True)
    c.kind("barChart", type="col", grouping="clustered", gapWidth=75, overlap=10)
    categories = f"{CHINESE}!$K$11:$K$13"
    columns = ["L", "M", "N", "O", "P", "Q", "R", "S", "T", "U", "V", "W", "X", "Y", "Z", "AA"]
    c.series([(f"\u7cfb\u5217{number}", f"{CHINESE}!${column}$11:${column}$13", categories)
              for number, column in enumerate(columns, start=1)])
    c.gradients()
    c.title("\u5404\u7cfb\u5217\u989c\u8272", "\n\u5341\u516d\u4e2a\u7cfb\u5217")
    c.legend(False)
    c.category_axis(chart.x_axis, "")
    c.value_axis("value", chart.y_axis, "", (0, 20, 5), "0", position="l")


def watermarks(path):
    """For each chart with user shapes, in the order of the sheets' drawings: each box's name, macro,
    anchor fractions, alignment and (text, size, colour, typeface) of its runs by paragraph."""
    found = []
    with zipfile.ZipFile(path) as package:
        names = package.namelist()

        def related(part, kind):
            rels = os.path.join(os.path.dirname(part), "_rels", os.path.basename(part) + ".rels")
            if rels not in names:
                return []
            return [os.path.normpath(os.path.join(os.path.dirname(part), r.get("Target")))
                    for r in ElementTree.fromstring(package.read(rels)) if r.get("Type") == kind]

        for sheet in sorted(n for n in names if n.startswith("xl/worksheets/sheet") and n.endswith(".xml")):
            for drawing in related(sheet, DRAWING_TYPE):
                for chart in related(drawing, CHART_TYPE):
                    for shapes in related(chart, USER_SHAPES_TYPE):
                        found.append(boxes(ElementTree.fromstring(package.read(shapes))))
    return found


def boxes(root):
    result = []
    for anchor in root.iter(f"{CHART_DRAWING_NS}relSizeAnchor"):
        corners = [float(anchor.find(f"{CHART_DRAWING_NS}{corner}/{CHART_DRAWING_NS}{axis}").text)
                   for corner in ("from", "to") for axis in ("x", "y")]
        shape = anchor.find(f"{CHART_DRAWING_NS}sp")
        properties = shape.find(f"{CHART_DRAWING_NS}nvSpPr/{CHART_DRAWING_NS}cNvPr")
        body = shape.find(f"{CHART_DRAWING_NS}txBody")
        paragraphs = []
        for p in body.iter(f"{DRAWING_NS}p"):
            alignment = p.find(f"{DRAWING_NS}pPr")
            for r in p.iter(f"{DRAWING_NS}r"):
                font = r.find(f"{DRAWING_NS}rPr")
                fill = font.find(f"{DRAWING_NS}solidFill/{DRAWING_NS}srgbClr")
                latin = font.find(f"{DRAWING_NS}latin")
                paragraphs.append((r.find(f"{DRAWING_NS}t").text, font.get("sz"), fill.get("val") if fill is not None
                                   else None, latin.get("typeface") if latin is not None else None,
                                   alignment.get("algn") if alignment is not None else None))
        result.append({"name": properties.get("name"), "macro": shape.get("macro"), "corners": corners,
                       "anchor": body.find(f"{DRAWING_NS}bodyPr").get("anchor"), "runs": paragraphs})
    return result


def check_watermark(x, what, found, primary, secondary, chart_width):
    x.equal(f"{what} watermark boxes", len(found), 5)
    if not found:
        return
    base = found[0]["name"].rstrip(" ")
    number = base[len("gwm_"):]
    x.equal(f"{what} watermark named gwm_ and a number from 100 to 32767",
            base.startswith("gwm_") and number.isdigit() and 100 <= int(number) <= 32767, True)
    for index, box in enumerate(found, start=1):
        where = f"{what} watermark box {index}"
        x.equal(f"{where} name", box["name"], base + " " * (11 - index))
        x.equal(f"{where} macro", box["macro"], "[0]!objClick")  # a procedure of the workbook itself
        x.equal(f"{where} runs", box["runs"], [(primary, "1400", "C0C0C0", "Arial", "ctr"),
                                               (secondary, "1000", "C0C0C0", "Arial", "ctr")])
        x.equal(f"{where} centred vertically", box["anchor"], "ctr")
        left, top, right, bottom = box["corners"]
        x.near(f"{where} left", left, 20 / chart_width, 1e-4)
        x.near(f"{where} right", right, 1 - 20 / chart_width, 1e-4)
        x.near(f"{where} middle", (top + bottom) / 2, 0.5, 1e-4)


def check(x):
    book = x.book
    x.equal("sheets", book.sheetnames, [ENGLISH, CHINESE])
    english = book[ENGLISH]
    x.values(english, {"K11": "Jan", "L11": 412.5, "K39": "Wind speed", "U58": 110})
    x.equal(f"{ENGLISH} charts", len(english._charts), 5)
    if len(english._charts) == 5:
        check_places(x, english, 5)
        sales, curves, trend, tornado, markers = english._charts
        check_sales(x, sales)
        check_curves(x, curves)
        check_trend(x, trend, ENGLISH, 29, ("Premium and loss ratio", "Premium", "Loss ratio", "Underwriting year",
                                            "Premium (USD m)"), "0.0%", UPWARD, False)
        check_tornado(x, tornado, ENGLISH, f"{ENGLISH}!$K$39:$K$50", ENGLISH_TORNADO,
                      ("Sensitivity of the mean loss",), "Change (USD m)", (-60, 60, 20), 20, False)
        check_runs(x, markers)
    chinese = book[CHINESE]
    x.values(chinese, {"K11": "\u7532", "AA13": 17.5})
    x.equal(f"{CHINESE} charts", len(chinese._charts), 3)
    if len(chinese._charts) == 3:
        check_places(x, chinese, 4)
        colours, trend, tornado = chinese._charts
        check_colours(x, colours)
        check_trend(x, trend, CHINESE, 17, ("\u4fdd\u8d39\u4e0e\u8d54\u4ed8\u7387", "\u4fdd\u8d39",
                                            "\u8d54\u4ed8\u7387", "\u5e74\u5ea6", "\u4fdd\u8d39"), "0%", None, True)
        check_tornado(x, tornado, CHINESE, f"{CHINESE}!$K$27:$K$29", CHINESE_TORNADO,
                      ("\u654f\u611f\u6027", "\n\u767e\u4e07\u7f8e\u5143"), "\u53d8\u5316", (-30, 40, 10), 50, True)
    found = watermarks(x.path)
    x.equal("charts with a watermark", len(found), 2)
    if len(found) == 2:
        check_watermark(x, f"{ENGLISH} column chart", found[0], "DRAFT", "not for distribution", 428)
        check_watermark(x, f"{CHINESE} column chart", found[1], "\u8349\u7a3f", "\u8bf7\u52ff\u5206\u53d1", 500)


run(check)
