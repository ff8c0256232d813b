#!/usr/bin/python3
"""Tests of scripts/generate-com-bindings: on small headers, how C++ members become Excel's members
both ways (names, gets and puts, indexed puts, omitted and spread arguments, default members, the
most derived interface first); on the real headers, that every member of every interface is there."""

import glob
import os
import re
import subprocess
import sys
import tempfile
import unittest

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
GENERATOR = os.path.join(ROOT, "scripts", "generate-com-bindings")

HEADERS = {
    "range.hpp": """
class Range : public Object {
public:
    virtual std::shared_ptr<excel::Range> Cells() = 0;
    virtual std::shared_ptr<excel::Range> Cells(int32_t row, int32_t column) = 0;
    virtual std::shared_ptr<excel::Range> Item(int32_t row, int32_t column) = 0;
    // Range.Range: C++ cannot name a member after its class.
    virtual std::shared_ptr<excel::Range> GetRange(const std::string& address) = 0;
    virtual Variant Value() = 0;
    virtual void SetValue(const Variant& value) = 0;
    virtual std::shared_ptr<excel::Range> Resize(const Variant& rowSize = {}, const Variant& columnSize = {}) = 0;
    virtual void BorderAround(const Variant& lineStyle = {}, int32_t weight = xlThin) = 0;
    virtual int64_t CountLarge() = 0;
};
""",
    "chart.hpp": """
class Chart : public Object {
public:
    virtual bool HasAxis(int32_t type, int32_t group = xlPrimary) = 0;
    virtual void SetHasAxis(int32_t type, int32_t group, bool has) = 0;
    virtual std::shared_ptr<excel::Range> Union(const std::shared_ptr<excel::Range>& arg1,
                                                const std::vector<std::shared_ptr<excel::Range>>& more = {}) = 0;
    virtual void SetSourceData(const std::shared_ptr<excel::Range>& source) = 0;
};
""",
    "name.hpp": """
class Name : public Object {
public:
    virtual std::string GetName() = 0;
    virtual void SetName(const std::string& name) = 0;
};
""",
    "border.hpp": """
class Border : public Object {
public:
    virtual int32_t LineStyle() = 0;
    virtual void SetLineStyle(int32_t style) = 0;
};
""",
    "borders.hpp": """
class Borders : public Border {
public:
    virtual std::shared_ptr<excel::Border> Item(int32_t index) = 0;
};
""",
}


def read(path):
    with open(path, encoding="utf-8") as text:
        return text.read()


def generate(headers, *outputs):
    """Runs the generator over the headers (name -> text); the generated files' texts, in order."""
    with tempfile.TemporaryDirectory() as folder:
        os.makedirs(os.path.join(folder, "excel"))
        for name, text in headers.items():
            with open(os.path.join(folder, "excel", name), "w", encoding="utf-8") as out:
                out.write(text)
        command = [sys.executable, GENERATOR, "--headers", os.path.join(folder, "excel")]
        for option in outputs:
            command += [f"--{option}", os.path.join(folder, option + ".cpp")]
        result = subprocess.run(command, capture_output=True, text=True)
        if result.returncode != 0:
            return result.returncode, result.stderr
        return 0, [read(os.path.join(folder, option + ".cpp")) for option in outputs]


def function(text, name):
    """The text of the generated function or method that starts with name."""
    start = text.index(name)
    return text[start:text.index("\n}", start) if text[start - 1] == "\n" else text.index("\n    }", start)]


class Client(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        status, texts = generate(HEADERS, "client")
        assert status == 0, texts
        cls.text = texts[0]

    def test_a_class_per_interface_over_its_dispatch_pointer(self):
        for name in ("Range", "Chart", "Name", "Border", "Borders"):
            self.assertIn(f"class Com{name} final : public excel::{name}, public DispatchHolder", self.text)

    def test_a_getter_gets_and_a_setter_puts_the_member_of_its_name(self):
        self.assertIn('return Caller().Get("Value");', function(self.text, "Variant Value()"))
        self.assertIn('Caller().Put("Value", Variant(value));', function(self.text, "void SetValue("))

    def test_members_cpp_cannot_name_go_by_excels_names(self):
        self.assertIn('Caller().Get("Range", arguments)', function(self.text, "std::shared_ptr<excel::Range> GetRange("))
        self.assertIn('Caller().Get("Name")', function(self.text, "std::string GetName()"))
        self.assertIn('Caller().Put("Name", Variant(name))', function(self.text, "void SetName("))

    def test_an_indexed_put_passes_its_indices_and_puts_the_last_argument(self):
        body = function(self.text, "void SetHasAxis(")
        self.assertIn("const Argument arguments[] = {Variant(type), Variant(group)};", body)
        self.assertIn('Caller().Put("HasAxis", Variant(has), arguments);', body)

    def test_a_setter_without_a_getter_is_a_method(self):
        self.assertIn('Caller().Call("SetSourceData", arguments);', function(self.text, "void SetSourceData("))

    def test_empty_optional_variants_are_left_out_and_defaulted_numbers_are_passed(self):
        self.assertIn("{Optional(rowSize), Optional(columnSize)}", function(self.text, "Resize("))
        self.assertIn("{Optional(lineStyle), Variant(weight)}", function(self.text, "void BorderAround("))

    def test_a_list_of_objects_is_spread_over_the_arguments(self):
        body = function(self.text, "std::shared_ptr<excel::Range> Union(")
        self.assertIn("for (const auto& each : more) {", body)
        self.assertIn("arguments.emplace_back(Variant(std::shared_ptr<Object>(each)));", body)

    def test_objects_come_typed_and_wide_integers_through_double(self):
        self.assertIn("return TypedObject<excel::Range, ComRange>(", function(self.text, "std::shared_ptr<excel::Range> Cells()"))
        self.assertIn("static_cast<int64_t>(", function(self.text, "int64_t CountLarge()"))

    def test_a_derived_interface_has_its_bases_members(self):
        borders = self.text[self.text.index("class ComBorders final"):]
        self.assertIn("int32_t LineStyle() override", borders[:borders.index("\n};")])

    def test_objects_are_typed_by_their_interfaces_name(self):
        self.assertIn('if (type.name == "Borders") {\n        return std::make_shared<ComBorders>(dispatch, type);', self.text)


class Server(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        status, texts = generate(HEADERS, "server")
        assert status == 0, texts
        cls.text = texts[0]

    def test_overloads_are_chosen_by_the_number_of_arguments(self):
        body = function(self.text, "Variant Range_Cells(")
        self.assertIn("if (arguments.Count() == 0) {\n        return Variant(std::shared_ptr<Object>(self.Cells()));", body)
        self.assertIn("if (arguments.Count() == 2) {\n        return Variant(std::shared_ptr<Object>("
                      "self.Cells(arguments.Int(0), arguments.Int(1))));", body)

    def test_arguments_a_member_does_not_take_go_to_the_default_member_of_its_object(self):
        self.assertIn("return arguments.ToDefaultMember(Range_Cells(object, false, CallArguments()));",
                      function(self.text, "Variant Range_Cells("))
        self.assertIn("return WrongArgumentCount();", function(self.text, "Variant Range_Value("))

    def test_a_put_assigns_the_put_value_after_the_indices(self):
        body = function(self.text, "Variant Chart_HasAxis(")
        self.assertIn("self.SetHasAxis(arguments.Int(0), arguments.Int(1), arguments.Bool(CallArguments::PutValue));",
                      body)
        self.assertIn("self.HasAxis(arguments.Int(0), arguments.Int(1, xlPrimary))", body)

    def test_a_member_without_a_setter_refuses_a_put_unless_its_object_takes_it(self):
        self.assertIn("if (put) {\n        return NotAProperty();", function(self.text, "Variant Range_Item("))
        self.assertIn("if (put) {\n        return arguments.ToDefaultMember(Range_Cells(object, false, CallArguments()));",
                      function(self.text, "Variant Range_Cells("))

    def test_left_out_arguments_take_the_headers_defaults(self):
        self.assertIn("self.BorderAround(arguments.Value(0), arguments.Int(1, xlThin));",
                      function(self.text, "Variant Range_BorderAround("))
        self.assertIn("arguments.Objects<excel::Range>(1)", function(self.text, "Variant Chart_Union("))

    def test_the_default_member_is_item_where_there_is_one(self):
        self.assertIn('RangeMembers, "Item");', self.text)
        self.assertIn('NameMembers, "");', self.text)

    def test_an_object_is_served_as_the_most_derived_interface_it_implements(self):
        self.assertLess(self.text.index("dynamic_cast<excel::Borders*>"), self.text.index("dynamic_cast<excel::Border*>"))

    def test_interface_ids_stay_the_same_from_run_to_run(self):
        status, texts = generate(HEADERS, "server")
        self.assertEqual(status, 0)
        self.assertEqual(texts[0], self.text)


class Failures(unittest.TestCase):
    def test_a_type_automation_cannot_carry_stops_the_generator(self):
        status, message = generate({"odd.hpp": "class Odd : public Object {\n"
                                               "public:\n    virtual void Take(const std::wstring& text) = 0;\n};\n"},
                                   "client")
        self.assertEqual(status, 1)
        self.assertIn("no automation type for std::wstring", message)


class RealHeaders(unittest.TestCase):
    def test_every_member_of_every_interface_is_generated_both_ways(self):
        headers = {os.path.basename(path): read(path)
                   for path in glob.glob(os.path.join(ROOT, "include", "excel", "*.hpp"))}
        status, (client, server) = generate(headers, "client", "server")
        self.assertEqual(status, 0)
        declared = 0
        for text in headers.values():
            for match in re.finditer(r"class (\w+) : public (?:excel::)?(?:Object|Border) \{(.*?)\n\};", text, re.S):
                name, body = match.groups()
                members = re.findall(r"virtual\s+[^;]*?\s(\w+)\s*\([^)]*\)\s*=\s*0;", body, re.S)
                declared += len(members)
                self.assertIn(f"class Com{name} final", client)
                self.assertIn(f"ServedInterfaceOf<excel::{name}>()", server)
                for member in set(members):
                    self.assertIn(f" {member}(", client, f"{name}.{member} over automation")
                    self.assertIn(f"self.{member}(", server, f"{name}.{member} served")
        self.assertGreater(declared, 500)


if __name__ == "__main__":
    unittest.main()
