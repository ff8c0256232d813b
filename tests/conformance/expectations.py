"""Shared helpers of the openpyxl expectation scripts: a collector of failed expectations and
readers for what openpyxl 3.0 does not expose (rich text runs, the indexed colour palette)."""

import sys
import zipfile
import xml.etree.ElementTree as ElementTree

import openpyxl

MAIN_NS = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"


class Expectations:
    """Loads a workbook and records every expectation that does not hold, so that one run
    reports all differences instead of the first."""

    def __init__(self, path):
        self.path = path
        self.book = openpyxl.load_workbook(path)
        self.checked = 0
        self.failures = []

    def equal(self, what, actual, expected):
        self.checked += 1
        if actual != expected or isinstance(actual, bool) != isinstance(expected, bool):
            self.failures.append(f"{what}: expected {expected!r}, got {actual!r}")

    def near(self, what, actual, expected, tolerance=1e-3):
        self.checked += 1
        if actual is None or abs(actual - expected) > tolerance:
            self.failures.append(f"{what}: expected {expected!r} (within {tolerance}), got {actual!r}")

    def values(self, sheet, expected_by_address):
        for address, expected in expected_by_address.items():
            self.equal(f"{sheet.title}!{address} value", sheet[address].value, expected)

    def color(self, what, color, expected):
        """expected: ("rgb", "FF112233"), ("indexed", n) or ("theme", n, tint)."""
        kind = expected[0]
        self.equal(f"{what} colour kind", color.type if color is not None else None, kind)
        if color is None or color.type != kind:
            return
        if kind == "theme":
            self.equal(f"{what} theme", color.theme, expected[1])
            self.near(f"{what} tint", color.tint, expected[2])
        else:
            self.equal(f"{what} {kind}", getattr(color, kind), expected[1])

    def side(self, sheet, address, side_name, style, color=None):
        side = getattr(sheet[address].border, side_name)
        what = f"{sheet.title}!{address} {side_name} border"
        self.equal(f"{what} style", side.style if side is not None else None, style)
        if side is not None and color is not None:
            self.color(what, side.color, color)

    def finish(self):
        for failure in self.failures:
            print(f"FAIL {failure}")
        print(f"{self.path}: {self.checked} expectations, {len(self.failures)} failed")
        return 1 if self.failures else 0


def run(check):
    """Runs check(expectations) on the workbook named on the command line."""
    if len(sys.argv) != 2:
        print(f"usage: {sys.argv[0]} WORKBOOK.xlsx", file=sys.stderr)
        sys.exit(2)
    expectations = Expectations(sys.argv[1])
    check(expectations)
    sys.exit(expectations.finish())


def column_width(sheet, column):
    """The stored width of a 1-based column, from whichever <col> span covers it."""
    for dimension in sheet.column_dimensions.values():
        if dimension.min is not None and dimension.min <= column <= dimension.max:
            return dimension.width
    return None


def package_part(path, part):
    with zipfile.ZipFile(path) as package:
        return ElementTree.fromstring(package.read(part))


def rich_text_runs(path, text):
    """The runs of the first shared or inline string whose text is `text`, as (text, rPr) pairs."""
    with zipfile.ZipFile(path) as package:
        parts = [name for name in package.namelist()
                 if name == "xl/sharedStrings.xml" or name.startswith("xl/worksheets/sheet")]
        for name in parts:
            root = ElementTree.fromstring(package.read(name))
            for item in list(root.iter(f"{MAIN_NS}si")) + list(root.iter(f"{MAIN_NS}is")):
                runs = item.findall(f"{MAIN_NS}r")
                if runs and "".join(run.findtext(f"{MAIN_NS}t", "") for run in runs) == text:
                    return [(run.findtext(f"{MAIN_NS}t", ""), run.find(f"{MAIN_NS}rPr")) for run in runs]
    return []


def run_is_bold(properties):
    bold = properties.find(f"{MAIN_NS}b") if properties is not None else None
    return bold is not None and bold.get("val", "1") in ("1", "true")


def run_rgb(properties):
    color = properties.find(f"{MAIN_NS}color") if properties is not None else None
    return color.get("rgb") if color is not None else None


def indexed_palette(path):
    """The workbook's own indexed colours (ARGB strings), or [] when it keeps the default palette."""
    root = package_part(path, "xl/styles.xml")
    return [color.get("rgb") for color in root.iterfind(f"{MAIN_NS}colors/{MAIN_NS}indexedColors/{MAIN_NS}rgbColor")]
