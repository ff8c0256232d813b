#!/usr/bin/python3
"""Reads report_workbook.xlsx back with openpyxl and asserts the creation tags, the sheet order,
the values laid down at the layout cursor, the column widths of report sheets and their gridline
settings."""

import os
import sys

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))

from expectations import column_width, run  # noqa: E402

WORKBOOK_TAG = "VostrandReportWorkbookCreatedBy"
WORKSHEET_TAG = "VostrandReportWorksheetCreatedBy"
TAG_VALUE = '"MyApp"'
REPORT_SHEETS = ("Summary", "Q1 Data")

# Excel stores a width of n characters as the pixel-rounded width plus padding, in 1/256ths; the
# 0.17-character spacing column is 2 pixels wide, stored as 2/7 of a digit.
STORED_WIDTH_8_45 = 9.140625
STORED_WIDTH_0_17 = 0.28515625


def defined_names(book):
    """Every defined name keyed by (scope, name); scope is a sheet title, or None for the workbook."""
    if hasattr(book.worksheets[0], "defined_names"):
        # openpyxl 3.1 and later keep sheet-local names on their sheet.
        names = {(None, name): definition for name, definition in book.defined_names.items()}
        for sheet in book.worksheets:
            names.update({(sheet.title, name): definition for name, definition in sheet.defined_names.items()})
        return names
    return {(None if definition.localSheetId is None else book.sheetnames[definition.localSheetId], definition.name):
            definition for definition in book.defined_names.definedName}


def check_tag(x, names, scope, name):
    what = f"{scope or 'workbook'} name {name}"
    definition = names.get((scope, name))
    x.equal(f"{what} present", definition is not None, True)
    if definition is not None:
        x.equal(f"{what} value", definition.value, TAG_VALUE)
        x.equal(f"{what} hidden", bool(definition.hidden), False)


def check_tags(x, book):
    names = defined_names(book)
    x.equal("defined names", sorted(names, key=lambda key: (key[0] or "", key[1])),
            [(None, WORKBOOK_TAG), ("Q1 Data", WORKSHEET_TAG), ("Summary", WORKSHEET_TAG)])
    check_tag(x, names, None, WORKBOOK_TAG)
    for title in REPORT_SHEETS:
        check_tag(x, names, title, WORKSHEET_TAG)
    x.equal("Notes name present", ("Notes", WORKSHEET_TAG) in names, False)


def check_report_view(x, sheet):
    x.equal(f"{sheet.title} gridlines shown", sheet.sheet_view.showGridLines, False)
    x.equal(f"{sheet.title} gridlines printed", bool(sheet.print_options.gridLines), False)


def check_report_widths(x, sheet, columns):
    for column in columns:
        x.equal(f"{sheet.title} column {column} width", column_width(sheet, column), STORED_WIDTH_8_45)


# Values two rows apart, moved one column right by the spacing column, which itself stays empty.
def check_summary(x, sheet):
    x.values(sheet, {"A1": None, "A3": None, "B1": "Summary", "B2": None, "B3": 1284, "B4": None,
                     "B5": "end of summary", "B7": "after the spacing column"})
    x.equal("Summary column 1 width", column_width(sheet, 1), STORED_WIDTH_0_17)
    check_report_widths(x, sheet, (2, 3, 100, 16384))
    check_report_view(x, sheet)


def check_quarter(x, sheet):
    x.values(sheet, {"A1": "Q1", "A2": None, "A3": 412.5, "A4": None, "A5": 298})
    check_report_widths(x, sheet, (1, 2, 100, 16384))
    check_report_view(x, sheet)


# The sheet the report library did not make keeps Excel's defaults.
def check_notes(x, sheet):
    x.values(sheet, {"A1": "untagged"})
    x.equal("Notes column 1 width", column_width(sheet, 1), None)
    x.equal("Notes gridlines shown", sheet.sheet_view.showGridLines is not False, True)


def check(x):
    book = x.book
    x.equal("sheet names", book.sheetnames, ["Summary", "Notes", "Q1 Data"])
    check_tags(x, book)
    check_summary(x, book["Summary"])
    check_quarter(x, book["Q1 Data"])
    check_notes(x, book["Notes"])


if __name__ == "__main__":
    run(check)
