"""Resaves workbooks that Excel made through the engine and checks every result: schema validation
(validate-xlsx, no FAIL), logical consistency (check-xlsx, no ERROR) and, read back with openpyxl,
the same worksheet names, cell values, formula results, defined names, print areas and print titles
as the original; read from the XML, the same date system, default column widths and column widths
(and whether each was custom).

The workbooks are the EXCEL-classified .xlsx files of one folder of the Excel corpus, as its
INDEX.md lists them; --every N takes every N-th of them in name order. Content the engine does not
model is dropped on saving; the run ends with a count of what was dropped, by kind.

Usage: excel_corpus_resave.py --resave PROGRAM --corpus DIR --folder NAME [--every N] --out DIR
                              --tools DIR
Exit status: 0 when every workbook passes, 1 otherwise.
"""

import argparse
import collections
import math
import os
import re
import subprocess
import sys
import warnings
import zipfile
import xml.etree.ElementTree as ElementTree

import openpyxl

MAIN_NS = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"
RELATIONSHIP_ID = "{http://schemas.openxmlformats.org/officeDocument/2006/relationships}id"
INDEX_FOLDER = re.compile(r"^### (\S+)/")
INDEX_ENTRY = re.compile(r"^\* `([^`]+)` \| \d+ \| [^|]* \| (\S+) \|")
# References the saved package cannot resolve, as neither links to other workbooks nor tables are
# saved: "[1]Data!A1", "'[2]Rates'!B2", "Sales[Amount]". The engine writes them as #REF!.
UNRESOLVABLE = re.compile(r"(^|[^\w.\]])'?\[[1-9][0-9]*\]|(^|[^\w.\\\]'!\"])[A-Za-z_\\][\w.\\?]*\[")
BATCH_SIZE = 20
RESAVE_TIMEOUT_SECONDS = 60


def excel_made_workbooks(corpus, folder, every):
    current, names = None, []
    with open(os.path.join(corpus, "INDEX.md"), encoding="utf-8") as index:
        for line in index:
            heading = INDEX_FOLDER.match(line)
            if heading:
                current = heading.group(1)
                continue
            entry = INDEX_ENTRY.match(line)
            if entry and current == folder and entry.group(2) == "EXCEL" and entry.group(1).endswith(".xlsx"):
                names.append(entry.group(1))
    return [os.path.join(corpus, folder, name) for name in sorted(names)[::every]]


def resave(program, source, target):
    if os.path.exists(target):
        os.remove(target)
    try:
        run = subprocess.run([program, source, target], capture_output=True, text=True,
                             timeout=RESAVE_TIMEOUT_SECONDS)
    except subprocess.TimeoutExpired:
        return f"resave did not finish in {RESAVE_TIMEOUT_SECONDS} s"
    if run.returncode != 0 or not os.path.exists(target):
        return f"resave failed ({run.returncode}): {(run.stdout + run.stderr).strip()[:300]}"
    return None


def batches(items):
    for start in range(0, len(items), BATCH_SIZE):
        yield items[start:start + BATCH_SIZE]


def schema_failures(tools, paths):
    """validate-xlsx prints the parts that did not pass, then one SUMMARY line per package; a
    package without its SUMMARY line was not validated, which counts as a failure too."""
    failures = {path: ["schema: validate-xlsx did not report on this file"] for path in paths}
    for batch in batches(paths):
        run = subprocess.run(["bash", os.path.join(tools, "validate-xlsx"), "-q", *batch],
                             capture_output=True, text=True)
        pending = []
        for line in (run.stdout + run.stderr).splitlines():
            summary = re.match(r"^SUMMARY (.+\.xlsx): (\S+)", line)
            if summary:
                failures[summary.group(1)] = [] if summary.group(2) == "PASS" else pending or ["schema: FAIL"]
                pending = []
            elif line.startswith("FAIL") or (pending and line.startswith(" ")):
                pending.append("schema: " + line.strip())
    return failures


def consistency_errors(tools, paths):
    """check-xlsx prints its ERROR findings, then one OK or FAIL line per package."""
    errors = {path: ["consistency: check-xlsx did not report on this file"] for path in paths}
    for batch in batches(paths):
        run = subprocess.run([sys.executable, os.path.join(tools, "check-xlsx"), "-q", *batch],
                             capture_output=True, text=True)
        findings = collections.defaultdict(list)
        for line in (run.stdout + run.stderr).splitlines():
            finding = re.match(r"^(.+\.xlsx): ERROR (.*)$", line)
            summary = re.match(r"^(.+\.xlsx): (OK|FAIL) \(", line)
            if finding:
                findings[finding.group(1)].append("consistency: " + finding.group(2))
            elif summary:
                errors[summary.group(1)] = findings[summary.group(1)] or (
                    ["consistency: FAIL"] if summary.group(2) == "FAIL" else [])
    return errors


STRING_LITERAL = re.compile(r'"(?:[^"]|"")*"')


def refers_to_unresolvable(formula):
    return UNRESOLVABLE.search(STRING_LITERAL.sub('""', formula)) is not None


def unresolvable_replaced(original, resaved):
    """A formula or name that referred to another workbook or a table now refers to #REF! instead."""
    return (isinstance(original, str) and isinstance(resaved, str) and refers_to_unresolvable(original)
            and "#REF!" in resaved and not refers_to_unresolvable(resaved))


def same_value(original, resaved):
    if isinstance(original, str) and original.startswith("=") and refers_to_unresolvable(original):
        return unresolvable_replaced(original, resaved)
    if isinstance(original, float) and isinstance(resaved, float) and math.isnan(original):
        return math.isnan(resaved)
    return original == resaved and type(original) is type(resaved)


def workbook_content(path):
    """Per sheet: its cells' values (a formula as its text), the results cached for its formula
    cells, its print area and print titles; then the sheet names and the defined names."""
    with warnings.catch_warnings():
        warnings.simplefilter("ignore")
        book = openpyxl.load_workbook(path)
        cached = openpyxl.load_workbook(path, data_only=True)
    sheets = {}
    for sheet in book.worksheets:
        cells, results = {}, {}
        for row in sheet.iter_rows():
            for cell in row:
                if cell.value is not None:
                    cells[cell.coordinate] = cell.value
                if cell.data_type == "f":
                    results[cell.coordinate] = cached[sheet.title][cell.coordinate].value
        sheets[sheet.title] = (cells, results, sheet.print_area, sheet.print_title_rows, sheet.print_title_cols)
    all_sheets = book.sheetnames
    names = {}
    for name in book.defined_names.definedName:
        scope = all_sheets[name.localSheetId] if name.localSheetId is not None else None
        names[(name.name, scope)] = name.attr_text
    return [sheet.title for sheet in book.worksheets], sheets, names


def content_differences(original_path, resaved_path):
    try:
        original = workbook_content(original_path)
    except Exception:  # openpyxl cannot read some Excel files; then there is nothing to compare with
        return []
    try:
        resaved = workbook_content(resaved_path)
    except Exception as error:
        return [f"openpyxl cannot read the resaved file: {error!r}"]
    differences = []
    if original[0] != resaved[0]:
        return [f"worksheet names {original[0]} became {resaved[0]}"]
    for title, (cells, results, *printing) in original[1].items():
        resaved_cells, resaved_results, *resaved_printing = resaved[1][title]
        for address in sorted(set(cells) | set(resaved_cells)):
            before, after = cells.get(address), resaved_cells.get(address)
            if not same_value(before, after):
                differences.append(f"{title}!{address}: {before!r} became {after!r}")
        for address in sorted(set(results) | set(resaved_results)):
            before, after = results.get(address), resaved_results.get(address)
            if not same_value(before, after):
                differences.append(f"{title}!{address}: result {before!r} became {after!r}")
        if printing != resaved_printing:
            differences.append(f"{title}: print area/titles {printing} became {resaved_printing}")
    for key in sorted(original[2].keys() | resaved[2].keys(), key=repr):
        before, after = original[2].get(key), resaved[2].get(key)
        unchanged = before == after or unresolvable_replaced(before, after)
        if key not in original[2] or key not in resaved[2] or not unchanged:
            differences.append(f"defined name {key}: {before!r} became {after!r}")
    return differences


def worksheet_part_names(package):
    """Worksheet title -> its part name, through the workbook's relationships."""
    workbook = ElementTree.fromstring(package.read("xl/workbook.xml"))
    relationships = ElementTree.fromstring(package.read("xl/_rels/workbook.xml.rels"))
    targets = {element.get("Id"): element.get("Target", "") for element in relationships}
    parts = {}
    for sheet in workbook.iter(MAIN_NS + "sheet"):
        target = targets.get(sheet.get(RELATIONSHIP_ID), "")
        part = target.lstrip("/") if target.startswith("/") else os.path.normpath("xl/" + target)
        if part in package.namelist() and "worksheets/" in part:
            parts[sheet.get("name")] = part
    return parts


def column_widths(package, part):
    """A worksheet's default column width and, per column, its width and whether it is custom."""
    root = ElementTree.fromstring(package.read(part))
    sheet_format = root.find(MAIN_NS + "sheetFormatPr")
    default = sheet_format.get("defaultColWidth") if sheet_format is not None else None
    widths = {}
    for column in root.iter(MAIN_NS + "col"):
        if column.get("width") is None:
            continue
        width = (float(column.get("width")), column.get("customWidth") in ("1", "true"))
        for index in range(int(column.get("min")), min(int(column.get("max")), 16384) + 1):
            widths[index] = width
    return (float(default) if default else None), widths


def package_settings(path):
    """The date system, and per worksheet its column widths, as the XML states them."""
    with zipfile.ZipFile(path) as package:
        workbook = ElementTree.fromstring(package.read("xl/workbook.xml"))
        properties = workbook.find(MAIN_NS + "workbookPr")
        date1904 = properties is not None and properties.get("date1904") in ("1", "true")
        sheets = {title: column_widths(package, part) for title, part in worksheet_part_names(package).items()}
    return date1904, sheets


def settings_differences(original_path, resaved_path):
    original_1904, original_sheets = package_settings(original_path)
    resaved_1904, resaved_sheets = package_settings(resaved_path)
    differences = []
    if original_1904 != resaved_1904:
        differences.append(f"date1904 {original_1904} became {resaved_1904}")
    for title, (default, widths) in original_sheets.items():
        resaved_default, resaved_widths = resaved_sheets.get(title, (None, {}))
        if default != resaved_default:
            differences.append(f"{title}: defaultColWidth {default} became {resaved_default}")
        changed = [index for index, width in widths.items() if resaved_widths.get(index) != width]
        if changed:
            differences.append(f"{title}: {len(changed)} column widths changed, the first column {changed[0]}: "
                               f"(width, custom) {widths[changed[0]]} became {resaved_widths.get(changed[0])}")
    return differences


def worksheet_element_kinds(package, part):
    root = ElementTree.fromstring(package.read(part))
    return {"worksheet <" + child.tag.split("}")[-1] + ">" for child in root}


def defined_name_formulas(path):
    with zipfile.ZipFile(path) as package:
        workbook = ElementTree.fromstring(package.read("xl/workbook.xml"))
    return [name.text for name in workbook.iter(MAIN_NS + "definedName")]


def content_kinds(path):
    """What a package holds, by kind: the parts' content types and the worksheets' elements."""
    kinds = set()
    with zipfile.ZipFile(path) as package:
        types = ElementTree.fromstring(package.read("[Content_Types].xml"))
        defaults = {element.get("Extension", "").lower(): element.get("ContentType")
                    for element in types if element.tag.endswith("Default")}
        overrides = {element.get("PartName", "").lstrip("/"): element.get("ContentType")
                     for element in types if element.tag.endswith("Override")}
        for part in package.namelist():
            if part.endswith("/"):
                continue
            content_type = overrides.get(part) or defaults.get(part.rsplit(".", 1)[-1].lower(), "?")
            kinds.add("part " + content_type.replace("+xml", "").split("/")[-1].split(".")[-1])
            if content_type.endswith("spreadsheetml.worksheet+xml"):
                kinds |= worksheet_element_kinds(package, part)
    return kinds


def main():
    parser = argparse.ArgumentParser(description=__doc__.strip().splitlines()[0])
    parser.add_argument("--resave", required=True)
    parser.add_argument("--corpus", required=True)
    parser.add_argument("--folder", required=True)
    parser.add_argument("--every", type=int, default=1)
    parser.add_argument("--out", required=True)
    parser.add_argument("--tools", required=True)
    arguments = parser.parse_args()

    sources = excel_made_workbooks(arguments.corpus, arguments.folder, arguments.every)
    if not sources:
        print(f"no Excel-made .xlsx files listed for {arguments.folder}")
        return 1
    os.makedirs(arguments.out, exist_ok=True)
    problems = collections.defaultdict(list)
    resaved = {}
    for source in sources:
        target = os.path.join(os.path.abspath(arguments.out), os.path.basename(source))
        failure = resave(arguments.resave, source, target)
        if failure:
            problems[source].append(failure)
        else:
            resaved[source] = target

    targets = list(resaved.values())
    schema = schema_failures(arguments.tools, targets)
    consistency = consistency_errors(arguments.tools, targets)
    dropped = collections.Counter()
    for source, target in resaved.items():
        problems[source] += schema.get(target, []) + consistency.get(target, [])
        problems[source] += content_differences(source, target)
        problems[source] += settings_differences(source, target)
        for kind in content_kinds(source) - content_kinds(target):
            dropped[kind] += 1
        if any(refers_to_unresolvable(formula or "") for formula in defined_name_formulas(source)):
            dropped["defined names referring to other workbooks or tables (now #REF!)"] += 1

    failed = [source for source in sources if problems[source]]
    for source in failed:
        print(f"FAIL {os.path.basename(source)}")
        for problem in problems[source][:12]:
            print(f"    {problem}")
        if len(problems[source]) > 12:
            print(f"    ... {len(problems[source]) - 12} more")
    print("dropped on resave (files):")
    for kind, count in sorted(dropped.items(), key=lambda item: (-item[1], item[0])):
        print(f"    {count:4d}  {kind}")
    print(f"{arguments.folder}: {len(sources)} workbooks, {len(sources) - len(failed)} passed, {len(failed)} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
