#!/usr/bin/python3
"""Reads engine_charts.xlsx back with openpyxl and asserts each chart's type, its series' references
or literal values and names, the title runs, the axes' scales, number formats, crossings and label
positions, the legend, the gradient and the markers; and, from the package itself, the chart's text
box, which openpyxl does not read."""

import os
import sys
import zipfile
import xml.etree.ElementTree as ElementTree

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))

from expectations import run  # noqa: E402

DRAWING_NS = "{http://schemas.openxmlformats.org/drawingml/2006/main}"
CHART_DRAWING_NS = "{http://schemas.openxmlformats.org/drawingml/2006/chartDrawing}"
USER_SHAPES_TYPE = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/chartUserShapes"


def charts(x, sheet, count):
    found = sheet._charts
    x.equal(f"{sheet.title} charts", len(found), count)
    return found if len(found) == count else None


def series(x, what, chart, references):
    """references: one (name, values) pair per series; name is a cell reference ("Sales!$B$1") or,
    quoted, a text ('"Target"'); values the reference of the numbers, or (x reference, y reference)."""
    x.equal(f"{what} series count", len(chart.series), len(references))
    for number, (found, (name, values)) in enumerate(zip(chart.series, references), start=1):
        where = f"{what} series {number}"
        if name.startswith('"'):
            x.equal(f"{where} name", found.tx.v if found.tx else None, name.strip('"'))
        else:
            x.equal(f"{where} name reference", found.tx.strRef.f if found.tx and found.tx.strRef else None, name)
        if isinstance(values, tuple):
            x.equal(f"{where} x values", found.xVal.numRef.f if found.xVal and found.xVal.numRef else None, values[0])
            x.equal(f"{where} y values", found.yVal.numRef.f if found.yVal and found.yVal.numRef else None, values[1])
        else:
            x.equal(f"{where} values", found.val.numRef.f if found.val and found.val.numRef else None, values)


def categories(x, what, chart, reference):
    for number, found in enumerate(chart.series, start=1):
        x.equal(f"{what} series {number} categories",
                found.cat.strRef.f if found.cat and found.cat.strRef else None, reference)


def bar_chart(x, what, chart, shape, references, category_reference):
    """shape: (bar direction, grouping); references as series() takes them."""
    x.equal(f"{what} type", (chart.tagname, chart.type, chart.grouping), ("barChart",) + shape)
    series(x, what, chart, references)
    categories(x, what, chart, category_reference)


def scale(x, what, axis, minimum, maximum, major):
    x.equal(f"{what} minimum", axis.scaling.min, minimum)
    x.equal(f"{what} maximum", axis.scaling.max, maximum)
    x.equal(f"{what} major unit", axis.majorUnit, major)


def number_format(x, what, axis, code):
    x.equal(f"{what} number format", axis.numFmt.formatCode if axis.numFmt else None, code)
    x.equal(f"{what} number format not linked", axis.numFmt.sourceLinked if axis.numFmt else None, False)


def title_runs(chart):
    """(text, bold, size in hundredths of a point) of each run of the chart title."""
    if chart.title is None or chart.title.tx is None or chart.title.tx.rich is None:
        return []
    return [(r.t, r.rPr.b if r.rPr else None, r.rPr.sz if r.rPr else None)
            for paragraph in chart.title.tx.rich.p for r in (paragraph.r or [])]


def fill_rgb(properties):
    return properties.solidFill.srgbClr if properties is not None and properties.solidFill is not None else None


def check_column(x, chart):
    what = "Sales column chart"
    bar_chart(x, what, chart, ("col", "clustered"), [("Sales!$B$1", "Sales!$B$2:$B$7"),
              ("Sales!$C$1", "Sales!$C$2:$C$7"), ("Sales!$D$1", "Sales!$D$2:$D$7")], "Sales!$A$2:$A$7")
    x.equal(f"{what} gap width and overlap", (chart.gapWidth, chart.overlap), (75, 10))
    gradient = chart.series[0].spPr.gradFill if chart.series and chart.series[0].spPr else None
    x.equal(f"{what} North gradient", gradient is not None, True)
    if gradient is not None:
        x.equal(f"{what} North gradient stops", [(stop.pos, stop.srgbClr) for stop in gradient.gsLst],
                [(0, "333399"), (100000, "181847")])
        x.equal(f"{what} North gradient angle", gradient.lin.ang if gradient.lin else None, 8100000)
    x.equal(f"{what} title runs", title_runs(chart),
            [("Sales by region", True, 1200), ("\nthousands, first half ", False, 800)])
    scale(x, f"{what} value axis", chart.y_axis, 0, 600, 100)
    number_format(x, f"{what} value axis", chart.y_axis, "#,##0")
    x.equal(f"{what} legend position", chart.legend.legendPos if chart.legend else None, "r")
    line = chart.legend.spPr.ln if chart.legend and chart.legend.spPr else None
    x.equal(f"{what} legend border width", line.w if line else None, 12700)
    x.equal(f"{what} legend border colour", fill_rgb(line), "C0C0C0")
    x.equal(f"{what} anchored to move with cells", chart.anchor.editAs, "oneCell")


def check_tornado(x, chart):
    what = "Sales stacked bar chart"
    bar_chart(x, what, chart, ("bar", "stacked"), [("Sales!$B$10", "Sales!$B$11:$B$15"),
              ("Sales!$C$10", "Sales!$C$11:$C$15"), ("Sales!$D$10", "Sales!$D$11:$D$15")], "Sales!$A$11:$A$15")
    x.equal(f"{what} gap width and overlap", (chart.gapWidth, chart.overlap), (40, 100))
    if chart.series:
        base = chart.series[0].spPr
        x.equal(f"{what} Base without fill", base.noFill if base else None, True)
        x.equal(f"{what} Base without line", base.ln.noFill if base and base.ln else None, True)
        x.equal(f"{what} Down navy", fill_rgb(chart.series[1].spPr), "333399")
    x.equal(f"{what} categories reversed", chart.x_axis.scaling.orientation, "maxMin")
    x.equal(f"{what} category labels low", chart.x_axis.tickLblPos, "low")
    x.equal(f"{what} value axis crosses the categories at their maximum", chart.y_axis.crosses, "max")
    x.equal(f"{what} category axis crosses the values automatically", chart.x_axis.crosses, "autoZero")
    scale(x, f"{what} value axis", chart.y_axis, 50, 150, 25)
    x.equal(f"{what} legend", chart.legend, None)
    x.equal(f"{what} title", chart.title, None)


def check_scatter(x, chart):
    what = "Sales XY scatter"
    x.equal(f"{what} type", chart.tagname, "scatterChart")
    series(x, what, chart, [('"South against North"', ("Sales!$B$2:$B$7", "Sales!$C$2:$C$7")),
                            ("Sales!$D$1", ("Sales!$B$2:$B$7", "Sales!$D$2:$D$7"))])
    if len(chart.series) == 2:
        south, west = (found.marker for found in chart.series)
        x.equal(f"{what} South marker", (south.symbol, south.size) if south else None, ("diamond", 7))
        x.equal(f"{what} South marker fill", fill_rgb(south.spPr) if south else None, "9999CC")
        x.equal(f"{what} South marker outline", fill_rgb(south.spPr.ln) if south and south.spPr else None, "333399")
        x.equal(f"{what} West marker", (west.symbol, west.size) if west else None, ("star", 9))
        x.equal(f"{what} West marker without fill", west.spPr.noFill if west and west.spPr else None, True)
        x.equal(f"{what} West marker outline", fill_rgb(west.spPr.ln) if west and west.spPr else None, "FF0000")
        x.equal(f"{what} South without line", chart.series[0].spPr.ln.noFill if chart.series[0].spPr else None, True)
    scale(x, f"{what} X axis", chart.x_axis, 400, 550, 50)
    scale(x, f"{what} Y axis", chart.y_axis, 200, 400, 50)
    body = chart.x_axis.txPr.bodyPr if chart.x_axis.txPr else None
    x.equal(f"{what} X labels read upward", body.rot if body else None, -5400000)
    x.equal(f"{what} labels next to the axes", (chart.x_axis.tickLblPos, chart.y_axis.tickLblPos), ("nextTo", "nextTo"))


def check_line(x, chart):
    what = "Sales line chart"
    x.equal(f"{what} type", (chart.tagname, chart.grouping), ("lineChart", "standard"))
    x.equal(f"{what} chart groups", len(chart._charts), 2)
    series(x, what, chart, [("Sales!$B$1", "Sales!$B$2:$B$7")])
    categories(x, what, chart, "Sales!$A$2:$A$7")
    x.equal(f"{what} legend position", chart.legend.legendPos if chart.legend else None, "b")
    if len(chart._charts) != 2:
        return
    secondary = chart._charts[1]
    x.equal(f"{what} secondary group", secondary.tagname, "lineChart")
    series(x, f"{what} secondary", secondary, [("Sales!$E$1", "Sales!$E$2:$E$7")])
    right = secondary.y_axis
    x.equal(f"{what} secondary value axis at the right", (right.axPos, right.delete), ("r", False))
    x.equal(f"{what} secondary value axis crosses its category axis at the maximum", right.crosses, "max")
    scale(x, f"{what} secondary value axis", right, 10, 16, None)
    number_format(x, f"{what} secondary value axis", right, '0.0"%"')
    runs = [r.t for paragraph in right.title.tx.rich.p for r in (paragraph.r or [])] if right.title else []
    x.equal(f"{what} secondary value axis title", "".join(runs), "Share")
    x.equal(f"{what} secondary category axis hidden", secondary.x_axis.delete, True)
    x.equal(f"{what} primary value axis automatic", (chart.y_axis.scaling.min, chart.y_axis.scaling.max), (None, None))


def check_literal(x, chart):
    what = "Plan literal chart"
    x.equal(f"{what} type", (chart.tagname, chart.type, chart.grouping), ("barChart", "col", "clustered"))
    expected = [("Target", [120, 135.5, 150, 162.25]), ("Floor", [100, 100, 110, 110])]
    x.equal(f"{what} series count", len(chart.series), len(expected))
    for found, (name, values) in zip(chart.series, expected):
        x.equal(f"{what} {name} name", found.tx.v if found.tx else None, name)
        literal = found.val.numLit if found.val else None
        x.equal(f"{what} {name} values", [point.v for point in literal.pt] if literal else None, values)
        names = found.cat.strLit if found.cat else None
        x.equal(f"{what} {name} categories", [point.v for point in names.pt] if names else None,
                ["Q1", "Q2", "Q3", "Q4"])
    x.equal(f"{what} title runs", [text for text, _, _ in title_runs(chart)], ["Targets"])


def check_variance(x, chart):
    what = "Plan variance chart"
    bar_chart(x, what, chart, ("col", "clustered"), [("Plan!$B$1", "Plan!$B$2:$B$5"),
              ("Sales!$E$1", "Sales!$E$2:$E$5")], "Plan!$A$2:$A$5")
    x.equal(f"{what} category axis crosses the values at", chart.x_axis.crossesAt, -1e300)
    x.equal(f"{what} category axis has no automatic crossing", chart.x_axis.crosses, None)


def chart_text_boxes(path):
    """The text of every text box in the charts' own drawings, by chart part."""
    texts = {}
    with zipfile.ZipFile(path) as package:
        for name in sorted(package.namelist()):
            if not (name.startswith("xl/charts/_rels/") and name.endswith(".rels")):
                continue
            chart = "xl/charts/" + os.path.basename(name)[:-len(".rels")]
            for relationship in ElementTree.fromstring(package.read(name)):
                if relationship.get("Type") != USER_SHAPES_TYPE:
                    continue
                target = os.path.normpath(os.path.join("xl/charts", relationship.get("Target")))
                root = ElementTree.fromstring(package.read(target))
                for body in root.iter(f"{CHART_DRAWING_NS}txBody"):
                    paragraphs = ["".join(t.text or "" for t in p.iter(f"{DRAWING_NS}t"))
                                  for p in body.iter(f"{DRAWING_NS}p")]
                    texts.setdefault(chart, []).append("\n".join(paragraphs))
    return texts


def check(x):
    book = x.book
    x.equal("sheets", book.sheetnames, ["Sales", "Plan"])
    sales = book["Sales"]
    x.equal("Sales!B1", sales["B1"].value, "North")
    x.equal("Sales!E7", sales["E7"].value, 15.3)
    found = charts(x, sales, 4)
    if found:
        check_column(x, found[0])
        check_tornado(x, found[1])
        check_scatter(x, found[2])
        check_line(x, found[3])
    found = charts(x, book["Plan"], 2)
    if found:
        check_literal(x, found[0])
        check_variance(x, found[1])
    x.equal("chart text boxes", list(chart_text_boxes(x.path).values()), [["Draft figures"]])


run(check)
