#!/usr/bin/python3
"""Reads formatting.xlsx back with openpyxl and asserts every font, fill, border, alignment and
number format the writer set."""

import datetime

from expectations import indexed_palette, run

NAVY_EDGE = ("rgb", "FF1F3864")
GREY_INDEX_16 = ("indexed", 23)
ACCENT2 = ("theme", 5, 0.0)


def check_fonts(x, sheet):
    def font(row):
        return sheet.cell(row, 1).font

    x.equal("Fonts!A1 name", font(1).name, "Arial")
    x.equal("Fonts!A1 size", font(1).sz, 14)
    x.equal("Fonts!A2 name", font(2).name, "Calibri")
    x.equal("Fonts!A2 size", font(2).sz, 11)
    x.equal("Fonts!A2 bold", font(2).b, True)
    x.equal("Fonts!A3 bold", font(3).b, False)
    x.equal("Fonts!A3 italic", font(3).i, True)
    for row, underline in {4: "single", 5: "double", 6: "singleAccounting", 7: "doubleAccounting"}.items():
        x.equal(f"Fonts!A{row} underline", font(row).u, underline)
    x.equal("Fonts!A2 underline", font(2).u, None)
    x.equal("Fonts!A8 strikethrough", font(8).strike, True)
    x.color("Fonts!A9 font", font(9).color, ("rgb", "FF1F4E79"))
    x.color("Fonts!A10 font", font(10).color, ("indexed", 10))
    x.color("Fonts!A11 font", font(11).color, ("theme", 4, 0.4))
    x.color("Fonts!A12 font", font(12).color, ("theme", 2, -0.25))


def check_fills(x, sheet):
    def fill(address):
        return sheet[address].fill

    for address in ("A1", "A2", "A3", "A5"):
        x.equal(f"Fills!{address} pattern", fill(address).fill_type, "solid")
    x.color("Fills!A1 fill", fill("A1").fgColor, ("rgb", "FFFFF2CC"))
    x.color("Fills!A2 fill", fill("A2").fgColor, ("indexed", 13))
    x.color("Fills!A3 fill", fill("A3").fgColor, ("theme", 9, 0.6))
    x.equal("Fills!A4 pattern", fill("A4").fill_type, "mediumGray")
    x.color("Fills!A4 pattern", fill("A4").fgColor, ("rgb", "FF000080"))
    x.color("Fills!A4 background", fill("A4").bgColor, ("rgb", "FFDDEEFF"))
    x.color("Fills!A5 fill", fill("A5").fgColor, ("indexed", 27))
    palette = indexed_palette(x.path)
    x.equal("palette size", len(palette), 64)
    if len(palette) == 64:
        # Excel writes the palette with alpha 00 and others with FF: only the RGB digits count.
        x.equal("changed palette colour 20", palette[27][-6:], "336699")
        x.equal("unchanged palette colour 3", palette[10][-6:], "FF0000")


def check_borders(x, sheet):
    dashed = ("dashed", GREY_INDEX_16)
    dotted = ("dotted", ACCENT2)
    medium = ("medium", NAVY_EDGE)
    expected = {
        "B2": {"left": medium, "top": medium, "right": dotted, "bottom": dashed},
        "C2": {"left": dotted, "top": medium, "right": dotted, "bottom": dashed},
        "C3": {"left": dotted, "top": dashed, "right": dotted, "bottom": dashed},
        "D4": {"left": dotted, "top": dashed, "right": medium, "bottom": medium},
        "B4": {"left": medium, "top": dashed, "right": dotted, "bottom": medium},
    }
    for address, sides in expected.items():
        for side_name, (style, color) in sides.items():
            x.side(sheet, address, side_name, style, color)
    x.side(sheet, "F2", "bottom", "double", ("rgb", "FFFF0000"))
    x.side(sheet, "F2", "top", None)
    # An edge is stored in the block's own cells only, as Excel files it.
    for address, side_name in (("E3", "left"), ("C5", "top"), ("A3", "right"), ("C1", "bottom"), ("F3", "top"),
                               ("G8", "left")):
        x.side(sheet, address, side_name, None)
    x.side(sheet, "F4", "left", "thick")
    x.side(sheet, "F6", "top", "hair")
    x.side(sheet, "F8", "right", "mediumDashDot")
    for address in ("H2", "I2", "H3", "I3"):
        for side_name in ("left", "top", "right", "bottom"):
            x.side(sheet, address, side_name, "thin")


def check_alignment(x, sheet):
    def alignment(address):
        return sheet[address].alignment

    horizontal = {"A1": "center", "A2": "right", "A3": "left", "A4": "centerContinuous", "B4": "centerContinuous",
                  "C4": "centerContinuous", "A8": "justify", "A9": "distributed", "A5": None}
    for address, expected in horizontal.items():
        x.equal(f"Alignment!{address} horizontal", alignment(address).horizontal, expected)
    x.equal("Alignment!A3 indent", alignment("A3").indent, 2)
    x.equal("Alignment!A5 vertical", alignment("A5").vertical, "top")
    x.equal("Alignment!A6 vertical", alignment("A6").vertical, "center")
    x.equal("Alignment!A7 wrap", alignment("A7").wrap_text, True)
    x.equal("Alignment!A6 wrap", bool(alignment("A6").wrap_text), False)


def check_number_formats(x, sheet):
    formats = {"A1": "#,##0.00", "A2": "0.0%", "A3": "yyyy-mm-dd", "A4": '"$"#,##0;[Red]-"$"#,##0',
               "A5": "0.00E+00", "A6": "@"}
    for address, expected in formats.items():
        x.equal(f"Numbers!{address} number format", sheet[address].number_format, expected)
    x.values(sheet, {"A1": 1234.5, "A2": 0.256, "A3": datetime.datetime(2023, 3, 15), "A4": -12, "A5": 0.000123,
                     "A6": "007"})
    x.equal("Numbers!A6 data type", sheet["A6"].data_type, "s")


def check(x):
    book = x.book
    x.equal("sheet names", book.sheetnames, ["Fonts", "Fills", "Borders", "Alignment", "Numbers"])
    check_fonts(x, book["Fonts"])
    check_fills(x, book["Fills"])
    check_borders(x, book["Borders"])
    check_alignment(x, book["Alignment"])
    check_number_formats(x, book["Numbers"])


if __name__ == "__main__":
    run(check)
