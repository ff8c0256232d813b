#!/usr/bin/python3
"""Tests of scripts/check-layering on small trees: each include that crosses the layers the wrong
way is reported with its file, line and rule, and the check fails; allowed ones pass."""

import os
import subprocess
import sys
import tempfile
import unittest

CHECKER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts", "check-layering")


class LayeringCheck(unittest.TestCase):
    def check(self, files):
        """Writes the files (path -> text) into a new tree and runs the check over it."""
        with tempfile.TemporaryDirectory() as root:
            for path, text in files.items():
                os.makedirs(os.path.dirname(os.path.join(root, path)), exist_ok=True)
                with open(os.path.join(root, path), "w", encoding="utf-8") as out:
                    out.write(text)
            result = subprocess.run([sys.executable, CHECKER, "--root", root], capture_output=True, text=True)
        return result.returncode, result.stdout.splitlines()

    def assert_refused(self, files, expected):
        status, lines = self.check(files)
        self.assertEqual(status, 1, lines)
        self.assertIn(expected, lines)

    def test_allowed_includes_pass(self):
        status, lines = self.check({
            "include/excel/range.hpp": "#pragma once\n",
            "include/vos/reporting.hpp": "#include <excel/range.hpp>\n#include <memory>\n",
            "src/support/trim.hpp": "#include <vos/reporting.hpp>\n",
            "src/table/report_table.cpp": '#include "support/trim.hpp"\n#include "table/report_table.cpp"\n',
            "src/excel/embedded/engine_errors.hpp": "#include <excel/range.hpp>\n",
            "src/excel/embedded/model/cells/cell.hpp": '#include "excel/embedded/engine_errors.hpp"\n',
            "src/excel/embedded/document/save.cpp": '#include "excel/embedded/model/cells/cell.hpp"\n'
                                                    '#include "ooxml/opc/writer.hpp"\n',
            "src/ooxml/opc/writer.hpp": '#include "ooxml/styles/styles.hpp"\n#include <zip.h>\n',
            "src/ooxml/styles/styles.hpp": '#include "ooxml/document/format.hpp"\n#include <pugixml.hpp>\n',
            "src/ooxml/document/format.hpp": "#include <string>\n",
        })
        self.assertEqual((status, lines), (0, []))

    def test_a_table_may_not_include_the_workbook(self):
        self.assert_refused({
            "src/workbook/report_workbook.hpp": "#pragma once\n",
            "src/table/report_table.cpp": '\n#include "workbook/report_workbook.hpp"\n',
        }, "src/table/report_table.cpp:2: includes workbook/report_workbook.hpp: "
           "src/table/ may not include from src/workbook/")

    def test_the_report_library_may_not_see_the_engine(self):
        self.assert_refused({
            "src/excel/embedded/objects/range_view.hpp": "#pragma once\n",
            "src/worksheet/report_worksheet.cpp": '#include "excel/embedded/objects/range_view.hpp"\n',
        }, "src/worksheet/report_worksheet.cpp:1: includes excel/embedded/objects/range_view.hpp: "
           "src/worksheet/ may not include from src/excel/embedded/objects/")

    def test_the_report_library_may_not_create_the_engine(self):
        self.assert_refused({
            "include/excel/embedded.hpp": "#pragma once\n",
            "src/entry/vos_excel_reporting.cpp": "#include <excel/embedded.hpp>\n",
        }, "src/entry/vos_excel_reporting.cpp:1: includes excel/embedded.hpp: "
           "src/entry/ may not include from include/excel/")

    def test_only_the_engines_document_folder_sees_the_package(self):
        self.assert_refused({
            "src/ooxml/document/format.hpp": "#pragma once\n",
            "src/excel/embedded/format/format_table.hpp": '#include "ooxml/document/format.hpp"\n',
        }, "src/excel/embedded/format/format_table.hpp:1: includes ooxml/document/format.hpp: "
           "src/excel/embedded/format/ may not include from src/ooxml/document/")

    def test_the_engine_model_may_not_include_the_objects(self):
        self.assert_refused({
            "src/excel/embedded/objects/book/workbook_view.hpp": "#pragma once\n",
            "src/excel/embedded/model/workbook_model.cpp": '#include "excel/embedded/objects/book/workbook_view.hpp"\n',
        }, "src/excel/embedded/model/workbook_model.cpp:1: includes excel/embedded/objects/book/workbook_view.hpp: "
           "src/excel/embedded/model/ may not include from src/excel/embedded/objects/book/")

    def test_the_package_may_not_include_the_engine(self):
        self.assert_refused({
            "src/excel/embedded/model/cells/cell.hpp": "#pragma once\n",
            "src/ooxml/worksheet/worksheet_part.cpp": '#include "excel/embedded/model/cells/cell.hpp"\n',
        }, "src/ooxml/worksheet/worksheet_part.cpp:1: includes excel/embedded/model/cells/cell.hpp: "
           "src/ooxml/worksheet/ may not include from src/excel/embedded/model/cells/")

    def test_a_part_family_may_not_include_the_package_writer(self):
        self.assert_refused({
            "src/ooxml/opc/package_writer.hpp": "#pragma once\n",
            "src/ooxml/styles/styles_part.cpp": '#include "ooxml/opc/package_writer.hpp"\n',
        }, "src/ooxml/styles/styles_part.cpp:1: includes ooxml/opc/package_writer.hpp: "
           "src/ooxml/styles/ may not include from src/ooxml/opc/")

    def test_only_the_package_uses_the_file_formats_libraries(self):
        self.assert_refused({"src/excel/embedded/model/string_pool.cpp": "#include <pugixml.hpp>\n"},
                            "src/excel/embedded/model/string_pool.cpp:1: includes pugixml.hpp: "
                            "only src/ooxml/ uses the file format's libraries")

    def test_a_new_folder_must_take_its_place(self):
        self.assert_refused({"src/tools/main.cpp": "#include <string>\n"},
                            "src/tools/main.cpp:1: includes string: src/tools/ has no place among the layers")

    def test_a_missing_file_is_reported(self):
        self.assert_refused({"src/support/trim.cpp": '#include "support/gone.hpp"\n'},
                            "src/support/trim.cpp:1: includes support/gone.hpp: no such file of the project")


if __name__ == "__main__":
    unittest.main()
