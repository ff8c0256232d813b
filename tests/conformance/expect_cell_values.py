#!/usr/bin/python3
"""Reads cell_values.xlsx back with openpyxl and asserts what the writer put in it."""

from expectations import column_width, rich_text_runs, run, run_is_bold, run_rgb


def check_scalars(x, sheet):
    x.values(sheet, {
        "A1": "Kind", "A2": 42, "A3": 3.25, "A4": True, "A5": False, "A6": "#DIV/0!", "A7": "#N/A",
        "A8": "=SUM(A2:A3)", "A9": "00123", "A10": 123.5, "A11": "=A2*2", "A12": "Bold and red",
        "A13": "Gr\u00f6\u00dfe \u2013 \u2713",
    })
    for address, data_type in {"A1": "s", "A2": "n", "A4": "b", "A6": "e", "A8": "f", "A9": "s", "A10": "n"}.items():
        x.equal(f"Values!{address} data type", sheet[address].data_type, data_type)
    x.equal("Values!A9 quote prefix", sheet["A9"].quotePrefix, True)
    x.equal("Values!A1 quote prefix", sheet["A1"].quotePrefix, False)


def check_array_block(x, sheet):
    x.values(sheet, {
        "C1": "North", "D1": 10.5, "E1": True,
        "C2": "South", "D2": -3, "E2": False,
        "C3": "East", "D3": 1e6, "E3": "text",
    })


def check_rich_text(x):
    runs = rich_text_runs(x.path, "Bold and red")
    x.equal("rich text runs", [text for text, _ in runs], ["Bold", " and ", "red"])
    if len(runs) == 3:
        x.equal("rich text bold runs", [run_is_bold(properties) for _, properties in runs], [True, False, False])
        x.equal("rich text colours", [run_rgb(properties) for _, properties in runs], [None, None, "FFC00000"])


def check_shifted(x, sheet):
    x.values(sheet, {"A1": None, "A2": None, "B1": "first", "B2": 1, "B3": 2, "C1": "second", "B5": "merged"})
    x.equal("Shifted!B1 bold", sheet["B1"].font.b, True)
    x.equal("Shifted merges", sorted(str(merged) for merged in sheet.merged_cells.ranges), ["B5:C5"])
    x.equal("Shifted column B width", column_width(sheet, 2), 15.7109375)


def check_names(x, book):
    names = {(name.name, name.localSheetId): (name.attr_text, bool(name.hidden))
             for name in book.defined_names.definedName}
    x.equal("defined names", names, {
        ("ReportTitle", None): ('"Quarterly report"', False),
        ("Amounts", None): ("Values!$A$2:$A$3", False),
        ("ArrayBlock", None): ("Values!$C$1:$E$3", False),
        ("TaxRate", None): ("0.25", True),
        ("HiddenCell", 1): ("Hidden!$A$1", False),
        ("FirstShifted", None): ("Shifted!$B$1", False),
        ("LocalTotal", 0): ("Values!$A$8", False),
    })


def check(x):
    book = x.book
    x.equal("sheet names", book.sheetnames, ["Values", "Hidden", "Shifted"])
    x.equal("sheet states", [sheet.sheet_state for sheet in book.worksheets], ["visible", "hidden", "visible"])
    x.equal("active sheet", book.active.title, "Values")
    x.equal("Hidden!A1 value", book["Hidden"]["A1"].value, "secret")
    x.equal("structure protected", book.security.lockStructure if book.security else None, True)
    check_scalars(x, book["Values"])
    check_array_block(x, book["Values"])
    check_rich_text(x)
    check_shifted(x, book["Shifted"])
    check_names(x, book)


if __name__ == "__main__":
    run(check)
