"""Resaves workbooks that Excel made through the engine and checks every result: schema validation
(validate-xlsx, no FAIL), logical consistency (check-xlsx, no ERROR) and, read back with openpyxl,
the same worksheet names, cell values, formula results, defined names, print areas and print titles
as the original; read from the XML, the same date system, default column widths and column widths
(and whether each was custom).

The workbooks are the EXCEL-classified .xlsx files of one folder of the Excel corpus, as its
INDEX.md lists them; --every N takes every N-th of them in name order. The run ends with a count
of the kinds of content a resaved workbook no longer has.

--changed resaves with resave_workbook --insert-row-and-delete-last: a row is inserted at the top
of the first worksheet and the last sheet deleted before saving. The openpyxl comparison then
expects the first worksheet's values one row down and the last sheet gone, and leaves formulas,
formula results and names to the loss report, which knows where their references should point.

--nothing-lost also requires the round trip to lose nothing, as scripts/resave-losses measures it:
with "parts", every part of the input is in the output, byte for byte unless the engine writes it
itself (workbook, worksheets, styles, shared strings, drawings, comments, VML, properties); with
"all" (the default), no element, attribute, formula, name or column width is lost either. The
checkers then compare each output with its input: an output may have only the findings its input
has.

Usage: excel_corpus_resave.py --resave PROGRAM --corpus DIR --folder NAME [--every N] --out DIR
                              --tools DIR [--changed] [--nothing-lost [parts|all]]
Exit status: 0 when every workbook passes, 1 otherwise.
"""

import argparse
import collections
import math
import os
import re
import subprocess
import sys
import types
import warnings
import zipfile
import xml.etree.ElementTree as ElementTree

import openpyxl

MAIN_NS = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"
RELATIONSHIP_ID = "{http://schemas.openxmlformats.org/officeDocument/2006/relationships}id"
INDEX_FOLDER = re.compile(r"^### (\S+)/")
INDEX_ENTRY = re.compile(r"^\* `([^`]+)` \| \d+ \| [^|]* \| (\S+) \|")
RESAVE_TIMEOUT_SECONDS = 60
CHANGE_OPTION = "--insert-row-and-delete-last"
LOSSES_SCRIPT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts", "resave-losses")


def load_losses():
    """scripts/resave-losses as a module: it has no .py suffix, being a command."""
    module = types.ModuleType("resave_losses")
    module.__file__ = LOSSES_SCRIPT
    sys.path.insert(0, os.path.dirname(LOSSES_SCRIPT))  # for the modules it imports
    with open(LOSSES_SCRIPT, encoding="utf-8") as source:
        exec(compile(source.read(), LOSSES_SCRIPT, "exec"), module.__dict__)
    return module


losses = load_losses()


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


def resave(program, source, target, changed=False):
    if os.path.exists(target):
        os.remove(target)
    command = [program] + ([CHANGE_OPTION] if changed else []) + [source, target]
    try:
        run = subprocess.run(command, capture_output=True, text=True, timeout=RESAVE_TIMEOUT_SECONDS)
    except subprocess.TimeoutExpired:
        return f"resave did not finish in {RESAVE_TIMEOUT_SECONDS} s"
    if run.returncode != 0 or not os.path.exists(target):
        return f"resave failed ({run.returncode}): {(run.stdout + run.stderr).strip()[:300]}"
    return None


def schema_failures(tools, paths):
    """validate-xlsx's findings per package, found as scripts/resave-losses finds them."""
    return {path: ["schema: " + problem for problem in problems]
            for path, problems in losses.schema_results(tools, paths).items()}


def consistency_errors(tools, paths):
    """check-xlsx's ERROR findings per package."""
    return {path: ["consistency: " + problem for problem in problems]
            for path, problems in losses.consistency_results(tools, paths).items()}


def same_value(original, resaved):
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


def changed_content(original_path, original):
    """What the original should read like after resave_workbook --insert-row-and-delete-last: the
    last sheet gone and the first worksheet's values one row down. Formulas, their results, print
    areas and names are left out: the loss report checks where their references point."""
    change = losses.Change(losses.workbook_sheets(losses.Package(original_path)))
    titles, sheets, _ = original
    kept = {}
    for title, (cells, _results, *_printing) in sheets.items():
        if change.is_deleted(title):
            continue
        moved = {}
        for address, value in cells.items():
            if isinstance(value, str) and value.startswith("="):
                continue
            row, column = losses.cell_position(address)
            if change.is_first(title):
                row += 1
            moved[losses.column_letters(column) + str(row)] = value
        kept[title] = (moved, {}, None, None, None)
    return [title for title in titles if not change.is_deleted(title)], kept, None


def without_formulas(content):
    titles, sheets, _ = content
    return titles, {title: ({address: value for address, value in cells.items()
                             if not (isinstance(value, str) and value.startswith("="))}, {}, None, None, None)
                    for title, (cells, *_rest) in sheets.items()}, None


def content_differences(original_path, resaved_path, changed=False):
    try:
        original = workbook_content(original_path)
    except Exception:  # openpyxl cannot read some Excel files; then there is nothing to compare with
        return []
    try:
        resaved = workbook_content(resaved_path)
    except Exception as error:
        return [f"openpyxl cannot read the resaved file: {error!r}"]
    if changed:
        original, resaved = changed_content(original_path, original), without_formulas(resaved)
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
    if changed:
        return differences
    for key in sorted(original[2].keys() | resaved[2].keys(), key=repr):
        before, after = original[2].get(key), resaved[2].get(key)
        if key not in original[2] or key not in resaved[2] or before != after:
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


def settings_differences(original_path, resaved_path, changed=False):
    original_1904, original_sheets = package_settings(original_path)
    resaved_1904, resaved_sheets = package_settings(resaved_path)
    differences = []
    if original_1904 != resaved_1904:
        differences.append(f"date1904 {original_1904} became {resaved_1904}")
    change = losses.Change(losses.workbook_sheets(losses.Package(original_path))) if changed else None
    for title, (default, widths) in original_sheets.items():
        if change is not None and change.is_deleted(title):
            continue  # a row inserted moves no column, the deleted sheet takes its widths along
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


def nothing_lost_problems(source, target, changed, scope):
    """The losses scripts/resave-losses counts against the round trip, one line per kind."""
    findings = losses.analyse((source, target, changed))["losses"]
    counted = [(kind, detail, count) for kind, detail, asserted, count in findings if asserted]
    if scope == "parts":
        counted = [entry for entry in counted if entry[0].startswith(("part ", "content type", "comparison"))]
    by_kind = collections.defaultdict(list)
    for kind, detail, count in counted:
        by_kind[kind].append((detail, count))
    ordered = sorted(by_kind.items(), key=lambda item: (losses.kind_rank(item[0]), item[0]))
    return [f"lost: {kind} ({sum(count for _, count in entries)})" + (f": {entries[0][0]}" if entries[0][0] else "")
            for kind, entries in ordered]


def checker_regressions(tools, pairs):
    """Checker findings of the outputs that their inputs do not have."""
    paths = [path for pair in pairs for path in pair]
    results = losses.run_checkers(tools, paths)
    problems = {}
    for source, target in pairs:
        problems[source] = []
        for checker in ("schema", "consistency"):
            problems[source] += [f"{checker} (not so in the input): {problem}"
                                 for problem in losses.new_checker_problems(results, source, target, checker)]
    return problems


def main():
    parser = argparse.ArgumentParser(description=__doc__.strip().splitlines()[0])
    parser.add_argument("--resave", required=True)
    parser.add_argument("--corpus", required=True)
    parser.add_argument("--folder", required=True)
    parser.add_argument("--every", type=int, default=1)
    parser.add_argument("--out", required=True)
    parser.add_argument("--tools", required=True)
    parser.add_argument("--changed", action="store_true",
                        help="insert a row at the top of the first worksheet and delete the last sheet before saving")
    parser.add_argument("--nothing-lost", nargs="?", const="all", choices=("parts", "all"),
                        help="fail on every loss scripts/resave-losses counts (parts only, or all)")
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
        failure = resave(arguments.resave, source, target, arguments.changed)
        if failure:
            problems[source].append(failure)
        else:
            resaved[source] = target

    if arguments.nothing_lost:
        # An output may have the checker findings of its input: keeping everything keeps them.
        checked = checker_regressions(arguments.tools, list(resaved.items()))
    else:
        targets = list(resaved.values())
        schema = schema_failures(arguments.tools, targets)
        consistency = consistency_errors(arguments.tools, targets)
        checked = {source: schema.get(target, []) + consistency.get(target, []) for source, target in resaved.items()}
    dropped = collections.Counter()
    for source, target in resaved.items():
        problems[source] += checked[source]
        problems[source] += content_differences(source, target, arguments.changed)
        problems[source] += settings_differences(source, target, arguments.changed)
        if arguments.nothing_lost:
            problems[source] += nothing_lost_problems(source, target, arguments.changed, arguments.nothing_lost)
        for kind in content_kinds(source) - content_kinds(target):
            dropped[kind] += 1

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
    variant = " (row inserted, last sheet deleted)" if arguments.changed else ""
    print(f"{arguments.folder}{variant}: {len(sources)} workbooks, {len(sources) - len(failed)} passed, "
          f"{len(failed)} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
