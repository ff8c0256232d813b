#!/usr/bin/python3
"""Reads report_table.xlsx back with openpyxl and asserts the report tables: titles kept as text in
merged title rows, header captions, data values, the table lines (medium outline, medium line under
the titles, thin lines under the top header and right of the left header, divider lines), number
formats, column settings, fonts, fills (silver by colour index, or theme colours) and comments."""

import os
import sys

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))

from expectations import column_width, indexed_palette, run  # noqa: E402

# Colour index n is stored as indexed colour n + 7; the default palette has C0C0C0 at 22.
AUTOMATIC = ("indexed", 64)
SILVER = ("indexed", 22)
RED = ("indexed", 10)
TITLE_FILL = ("theme", 2, -0.25)
TITLE_FONT = ("theme", 0, 0.0)
HEADER_FILL = ("theme", 2, 0.0)
TABLE_BORDER = ("theme", 0, -0.25)
STORED_WIDTH_PADDING = 0.7109375

CHINESE = {
    "title": "\u635f\u5931\u6c47\u603b", "subtitle": "\u6309\u5e74\u4efd", "upper": "\u635f\u5931",
    "unit": "\u7f8e\u5143", "count": "\u6b21\u6570", "row": "2024 \u5e74",
    "comment": "\u590d\u6838\n\u5df2\u6838\u5bf9\u3002",
}
ENGLISH = {
    "title": "Themed title", "subtitle": "Themed subtitle", "upper": "Loss", "unit": "USD", "count": "Count",
    "row": "One", "comment": "Reviewer\nChecked.",
}


def merged(x, sheet, expected):
    x.equal(f"{sheet.title} merged ranges", sorted(str(r) for r in sheet.merged_cells.ranges), sorted(expected))


def fonts(x, sheet, expected):
    for address, (size, bold) in expected.items():
        font = sheet[address].font
        x.equal(f"{sheet.title}!{address} font size", font.sz, size)
        x.equal(f"{sheet.title}!{address} bold", bool(font.b), bold)


def sides(x, sheet, expected, color):
    """expected: (address, side, style) triples, all in one colour."""
    for address, side, style in expected:
        x.side(sheet, address, side, style, color)


def formats(x, sheet, expected):
    for address, number_format in expected.items():
        x.equal(f"{sheet.title}!{address} number format", sheet[address].number_format, number_format)


def comments(x, sheet, expected):
    for address, text in expected.items():
        comment = sheet[address].comment
        x.equal(f"{sheet.title}!{address} comment", comment.text if comment is not None else None, text)


def check_table_without_titles(x, sheet):
    x.values(sheet, {"A1": None, "B1": "#1", "C1": "#2", "D1": "Notes", "A2": "North", "A3": "South", "A4": "West",
                     "B2": 1, "B4": 3, "C2": 0.125, "C4": 0.75, "D2": "first note",
                     "D4": "a note long enough to wrap in its cell", "E2": None})
    formats(x, sheet, {"B2": "#,##0", "B4": "#,##0", "C3": "0.0%", "D2": "General"})
    sides(x, sheet, [("A1", "top", "medium"), ("A1", "left", "medium"), ("D1", "top", "medium"),
                     ("D4", "right", "medium"), ("D4", "bottom", "medium"), ("A4", "bottom", "medium"),
                     ("A1", "bottom", "thin"), ("B1", "bottom", "thin"), ("D1", "bottom", "thin"),
                     ("A1", "right", "thin"), ("A2", "right", "thin"), ("A4", "right", "thin")], AUTOMATIC)
    x.side(sheet, "B2", "bottom", None)
    fonts(x, sheet, {"A1": (8.0, True), "B1": (8.0, True), "A2": (8.0, True), "B2": (8.0, False)})
    x.equal("Plain!B2 alignment", sheet["B2"].alignment.horizontal, "right")
    x.equal("Plain!B1 follows the column's alignment", sheet["B1"].alignment.horizontal, "right")
    x.equal("Plain!C2 alignment", sheet["C2"].alignment.horizontal, "center")
    x.equal("Plain!C2 aligned to the top", sheet["C2"].alignment.vertical, "top")
    x.equal("Plain!D3 alignment", sheet["D3"].alignment.horizontal, "left")
    x.equal("Plain!D1 own alignment", sheet["D1"].alignment.horizontal, "center")
    x.equal("Plain!D4 wraps", sheet["D4"].alignment.wrap_text, True)
    x.equal("Plain!C4 does not wrap", bool(sheet["C4"].alignment.wrap_text), False)
    x.equal("Plain!A2 alignment", sheet["A2"].alignment.horizontal, "left")
    x.equal("Plain column B width", column_width(sheet, 2), 12 + STORED_WIDTH_PADDING)
    x.equal("Plain column D width", column_width(sheet, 4), 30 + STORED_WIDTH_PADDING)


def check_table_with_summary(x, sheet):
    x.values(sheet, {"A6": "Loss summary", "A7": "Two years, in USD", "B8": "Modelled losses", "B9": "Loss",
                     "B10": "USD", "C9": "Gain", "C10": "EUR", "D9": None, "D10": "Count", "E10": "Local",
                     "A10": "Year", "A11": 2024, "A12": 2025, "B11": 1234567.5, "C12": 0.5, "D11": 3,
                     "E11": 1234.5, "E12": 99.75})
    for address in ("A6", "A7"):
        x.equal(f"Plain!{address} kept as text", sheet[address].quotePrefix, True)
    x.equal("Plain!B8 centred across the header", sheet["B8"].alignment.horizontal, "centerContinuous")
    formats(x, sheet, {"B11": "#,##0", "C12": "0.0%", "D11": "General", "E11": "#,##0.00", "E12": "#,##0.00"})
    fonts(x, sheet, {"A6": (10.0, True), "A7": (8.0, False), "B8": (8.0, True), "B10": (8.0, True),
                     "B11": (8.0, False)})
    for address in ("A6", "A7"):
        x.color(f"Plain!{address} fill", sheet[address].fill.fgColor, SILVER)
    x.equal("Plain!A8 fill", sheet["A8"].fill.fill_type, None)
    sides(x, sheet, [("A6", "top", "medium"), ("E7", "right", "medium"), ("A7", "bottom", "medium"),
                     ("E7", "bottom", "medium"), ("A10", "bottom", "thin"), ("E10", "bottom", "thin"),
                     ("A9", "right", "thin"), ("A12", "right", "thin"), ("B12", "bottom", "medium")], AUTOMATIC)
    sides(x, sheet, [("A11", "bottom", "thin"), ("B11", "bottom", "thin"), ("E11", "bottom", "thin"),
                     ("C9", "right", "thin"), ("C10", "right", "thin"), ("C11", "right", "thin"),
                     ("C12", "right", "thin")], SILVER)
    x.side(sheet, "B9", "right", None)


def check_table_with_comments(x, sheet):
    x.values(sheet, {"A14": "Merged and paired", "C15": "Merged", "D15": "Upper", "D16": "Lower", "E15": None,
                     "E16": "Item", "A17": "Group", "A18": None, "B17": "Row 1", "B18": "Row 2", "C17": "x",
                     "C18": "y", "D17": 5, "D18": 6, "E17": None, "E18": 7})
    x.equal("Plain!C15 centred vertically", sheet["C15"].alignment.vertical, "center")
    comments(x, sheet, {"C17": "Reviewer\nInterior note.", "D16": "Header\nTop header note.",
                        "B16": "Source\nSignature note.", "C18": None, "A15": None})
    sides(x, sheet, [("A14", "bottom", "medium"), ("A16", "bottom", "thin"), ("B16", "bottom", "thin"),
                     ("E16", "bottom", "thin"), ("B15", "right", "thin"), ("B18", "right", "thin")], AUTOMATIC)
    x.side(sheet, "A17", "right", None)
    sides(x, sheet, [("C17", "bottom", "mediumDashed"), ("E17", "bottom", "mediumDashed")], RED)
    fonts(x, sheet, {"A14": (10.0, True), "C15": (8.0, True), "B17": (8.0, True), "C17": (8.0, False)})


def check_table_with_subtitle_only(x, sheet):
    x.values(sheet, {"A20": None, "A21": "Subtitle only", "B21": "Second", "A22": 42, "B22": None})
    x.equal("Plain!A21 kept as text", sheet["A21"].quotePrefix, True)
    fonts(x, sheet, {"A20": (10.0, True), "A21": (8.0, True)})
    x.color("Plain!A20 fill", sheet["A20"].fill.fgColor, SILVER)
    sides(x, sheet, [("A20", "bottom", "medium"), ("A21", "bottom", "thin"), ("B22", "right", "medium")],
          AUTOMATIC)


def check_titled_table(x, sheet, texts, title_size, body_size):
    """The table at A1:C6 of the themed and Chinese sheets."""
    merged(x, sheet, ["A1:C1", "A2:C2"])
    x.values(sheet, {"A1": texts["title"], "A2": texts["subtitle"], "B3": texts["upper"], "B4": texts["unit"],
                     "C4": texts["count"], "A5": texts["row"], "B5": 1500.5, "C6": 15})
    formats(x, sheet, {"C5": "#,##0", "B5": "General"})
    fonts(x, sheet, {"A1": (title_size, True), "A2": (body_size, False), "B4": (body_size, True),
                     "A5": (body_size, True), "B5": (body_size, False)})
    x.equal(f"{sheet.title}!C4 follows the column's alignment", sheet["C4"].alignment.horizontal, "right")
    comments(x, sheet, {"B5": texts["comment"]})


def check_plain_titled_table(x, sheet):
    for address in ("A1", "A2"):
        x.color(f"{sheet.title}!{address} fill", sheet[address].fill.fgColor, SILVER)
    sides(x, sheet, [("A1", "top", "medium"), ("A2", "bottom", "medium"), ("A4", "bottom", "thin"),
                     ("C4", "bottom", "thin"), ("A6", "right", "thin"), ("C6", "right", "medium")], AUTOMATIC)
    sides(x, sheet, [("A5", "bottom", "medium"), ("C5", "bottom", "medium")], RED)


def check_themed_titled_table(x, sheet):
    for address in ("A1", "A2"):
        x.color(f"{sheet.title}!{address} fill", sheet[address].fill.fgColor, TITLE_FILL)
        x.color(f"{sheet.title}!{address} font colour", sheet[address].font.color, TITLE_FONT)
    for address in ("A3", "A4", "B3", "C4", "A5", "A6"):
        x.color(f"{sheet.title}!{address} fill", sheet[address].fill.fgColor, HEADER_FILL)
    x.equal(f"{sheet.title}!B5 fill", sheet["B5"].fill.fill_type, None)
    # The theme draws no outline; its lines come in the table-border colour.
    x.side(sheet, "A1", "top", None)
    x.side(sheet, "C6", "right", None)
    sides(x, sheet, [("A2", "bottom", "thin"), ("B4", "bottom", "thin"), ("C4", "bottom", "thin"),
                     ("A6", "right", "thin"), ("B6", "bottom", "thin"), ("A5", "bottom", "medium"),
                     ("C5", "bottom", "medium")], TABLE_BORDER)


def check(x):
    book = x.book
    x.equal("sheets", book.sheetnames, ["Plain", "Themed", "Chinese", "Chinese themed"])
    x.equal("default colour palette", indexed_palette(x.path), [])

    plain = book["Plain"]
    merged(x, plain, ["A6:E6", "A7:E7", "B8:E8", "A14:E14", "C15:C16", "A20:B20"])
    check_table_without_titles(x, plain)
    check_table_with_summary(x, plain)
    check_table_with_comments(x, plain)
    check_table_with_subtitle_only(x, plain)

    check_titled_table(x, book["Themed"], ENGLISH, 10.0, 8.0)
    check_themed_titled_table(x, book["Themed"])
    check_titled_table(x, book["Chinese"], CHINESE, 12.0, 10.0)
    check_plain_titled_table(x, book["Chinese"])
    check_titled_table(x, book["Chinese themed"], CHINESE, 12.0, 10.0)
    check_themed_titled_table(x, book["Chinese themed"])


run(check)
