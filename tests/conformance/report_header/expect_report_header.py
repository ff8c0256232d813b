#!/usr/bin/python3
"""Reads report_header.xlsx back with openpyxl and asserts the header blocks written into cells
(texts, bold label runs, fonts, fills, the line under the block), the comments with their texts,
and the header text box in the sheet's drawing, which openpyxl itself does not read."""

import os
import sys
import zipfile
import xml.etree.ElementTree as ElementTree

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))

from expectations import rich_text_runs, run, run_is_bold  # noqa: E402

DRAWING_NS = "{http://schemas.openxmlformats.org/drawingml/2006/main}"
SILVER = ("rgb", "FFC0C0C0")
BACKGROUND_1 = ("theme", 0, 0.0)


def check_cell_header(x, sheet, lines, fill, line_under):
    rows = len(lines)
    for row, text in enumerate(lines, start=1):
        x.equal(f"{sheet.title}!A{row} value", sheet[f"A{row}"].value, text)
        font = sheet[f"A{row}"].font
        x.equal(f"{sheet.title}!A{row} font", font.name, "Tahoma")
        x.equal(f"{sheet.title}!A{row} size", font.sz, 14.0 if row == 1 else 8.0)
        x.color(f"{sheet.title}!A{row} fill", sheet[f"A{row}"].fill.fgColor, fill)
    x.equal(f"{sheet.title}!A1 bold", sheet["A1"].font.b, True)
    x.equal(f"{sheet.title}!A1 kept as text", sheet["A1"].quotePrefix, True)
    x.side(sheet, f"A{rows}", "bottom", "thin" if line_under else None)
    x.side(sheet, f"A{rows + 1}", "bottom", None)


def check_label_runs(x, label, value):
    runs = rich_text_runs(x.path, f"{label}: {value}")
    x.equal(f"runs of '{label}: {value}'", [text for text, _ in runs], [f"{label}:", f" {value}"])
    if len(runs) == 2:
        x.equal(f"'{label}:' bold", run_is_bold(runs[0][1]), True)
        x.equal(f"'{value}' bold", run_is_bold(runs[1][1]), False)


def drawing_texts(path):
    """The text of every text box of every drawing part, paragraphs joined by line feeds."""
    texts = []
    with zipfile.ZipFile(path) as package:
        for name in sorted(package.namelist()):
            if name.startswith("xl/drawings/drawing") and name.endswith(".xml"):
                root = ElementTree.fromstring(package.read(name))
                for body in root.iter("{http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing}txBody"):
                    paragraphs = ["".join(t.text or "" for t in p.iter(f"{DRAWING_NS}t"))
                                  for p in body.iter(f"{DRAWING_NS}p")]
                    texts.append("\n".join(paragraphs))
    return texts


def check(x):
    book = x.book
    x.equal("sheets", book.sheetnames, ["Cells", "Box", "Themed", "Rapport"])
    english = ["Risk Analysis Report", "Performed By: UnitTester", "Date: <<Date>> <<Time>>",
               "Model: Risk A", "Runs: 1000"]
    check_cell_header(x, book["Cells"], english, SILVER, True)
    check_cell_header(x, book["Themed"], english, BACKGROUND_1, False)
    x.color("Themed!I1 fill", book["Themed"]["I1"].fill.fgColor, BACKGROUND_1)
    x.equal("Themed!J1 fill", book["Themed"]["J1"].fill.fill_type, None)
    check_label_runs(x, "Performed By", "UnitTester")
    check_label_runs(x, "Model", "Risk A")

    french = ["Rapport d'analyse", "Effectu\u00e9 par : UnitTester", "Date : <<Date>> <<Time>>"]
    check_cell_header(x, book["Rapport"], french, SILVER, True)

    cells = book["Cells"]
    x.equal("Cells!A7 value", cells["A7"].value, 1284)
    for address, text in (("A7", "Reviewer\nCheck the inputs."), ("B7", "Note\nSecond line of the note.")):
        comment = cells[address].comment
        x.equal(f"Cells!{address} has a comment", comment is not None, True)
        if comment is not None:
            x.equal(f"Cells!{address} comment text", comment.text, text)
    x.equal("Cells!A1 has no comment", cells["A1"].comment, None)

    texts = drawing_texts(x.path)
    x.equal("text boxes", len(texts), 2)
    x.equal("English header box", "Risk Analysis Report\n Performed By: UnitTester\n Date: <<Date>> <<Time>>"
            "\n Model Risk A\n Runs 1000 " in texts, True)
    x.equal("French header box", "Rapport d'analyse\n Effectu\u00e9 par: UnitTester\n Date: <<Date>> <<Time>> "
            in texts, True)


run(check)
