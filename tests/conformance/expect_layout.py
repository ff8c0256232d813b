#!/usr/bin/python3
"""Reads layout.xlsx back with openpyxl and asserts merges, widths, heights, whole-row and
whole-column formats and the gridline settings."""

from expectations import column_width, run

# Excel stores a width of n characters as the pixel-rounded width plus padding, in 1/256ths.
STORED_WIDTH_8_43 = 9.140625
STORED_WIDTH_12 = 12.7109375
STORED_WIDTH_20 = 20.7109375


def check_grid(x, sheet):
    x.equal("Grid merges", sorted(str(merged) for merged in sheet.merged_cells.ranges),
            ["A1:D1", "A7:C7", "A8:C8", "B3:C5"])
    x.values(sheet, {"A1": "Merged title", "B3": "Block", "A7": "Across 1", "A8": "Across 2"})
    for column in (1, 4, 100, 16384):
        x.equal(f"Grid column {column} width", column_width(sheet, column), STORED_WIDTH_8_43)
    x.equal("Grid gridlines shown", sheet.sheet_view.showGridLines, False)
    x.equal("Grid gridlines printed", bool(sheet.print_options.gridLines), False)


def check_columns(x, sheet):
    x.equal("Columns column A width", column_width(sheet, 1), STORED_WIDTH_20)
    x.equal("Columns column C width", column_width(sheet, 3), STORED_WIDTH_12)
    x.equal("Columns gridlines shown", sheet.sheet_view.showGridLines is not False, True)
    x.equal("Columns gridlines printed", sheet.print_options.gridLines, True)
    column_e = sheet.column_dimensions["E"]
    x.equal("Columns column E number format", column_e.number_format, "0.00")
    x.equal("Columns column E italic", column_e.font.i, True)
    x.equal("Columns!E2 number format", sheet["E2"].number_format, "0.00")
    x.equal("Columns!E2 italic", sheet["E2"].font.i, True)
    x.equal("Columns!A1 italic", sheet["A1"].font.i, False)


def check_rows(x, sheet):
    x.equal("Rows row 2 height", sheet.row_dimensions[2].height, 30)
    x.equal("Rows row 4 height", sheet.row_dimensions[4].height, 24.75)
    x.equal("Rows row 6 custom format", sheet.row_dimensions[6].customFormat, True)
    x.equal("Rows row 6 fill", sheet.row_dimensions[6].fill.fill_type, "solid")
    x.color("Rows row 6 fill", sheet.row_dimensions[6].fill.fgColor, ("rgb", "FFD9E1F2"))
    x.color("Rows!A6 fill", sheet["A6"].fill.fgColor, ("rgb", "FFD9E1F2"))
    x.equal("Rows row 8 bold", sheet.row_dimensions[8].font.b, True)
    x.equal("Rows!C8 bold", sheet["C8"].font.b, True)
    x.equal("Rows!A2 bold", sheet["A2"].font.b, False)


def check(x):
    book = x.book
    x.equal("sheet names", book.sheetnames, ["Grid", "Columns", "Rows"])
    x.equal("active sheet", book.active.title, "Grid")
    check_grid(x, book["Grid"])
    check_columns(x, book["Columns"])
    check_rows(x, book["Rows"])


if __name__ == "__main__":
    run(check)
