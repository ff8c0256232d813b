#!/usr/bin/python3
"""Tests of scripts/compile-type-library: floating-point defaults taken out of the IDL for widl and
written into the compiled type library, read back here the way an automation runtime reads them."""

import os
import struct
import subprocess
import tempfile
import unittest

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
COMPILER = os.path.join(ROOT, "scripts", "compile-type-library")
WIDL = os.environ.get("WIDL", "/usr/lib/wine/widl")

LIBRARY = """import "oaidl.idl";
[uuid(6a0e3c10-2b1d-4f5e-9a8b-1c2d3e4f5a60), version(1.0)]
library Sample {
    importlib("stdole2.tlb");
    [uuid(6a0e3c10-2b1d-4f5e-9a8b-1c2d3e4f5a61), dual, oleautomation]
    interface First : IDispatch {
        [id(1)] HRESULT Before([in, optional, defaultvalue(7)] long count);
        [id(2)] HRESULT %s;
        [id(3)] HRESULT After([in, optional, defaultvalue("after")] BSTR text, [out, retval] long* result);
    };
    [uuid(6a0e3c10-2b1d-4f5e-9a8b-1c2d3e4f5a62), dual, oleautomation]
    interface Second : IDispatch {
        [id(1)] HRESULT Scale([in, optional, defaultvalue("")] BSTR title,
                              [in, optional, defaultvalue(1.01E+300)] double minimum,
                              [in, optional, defaultvalue(1.01E+300)] VARIANT maximum,
                              [in, optional, defaultvalue(-0.5)] double unit);
    };
}
"""

SIZED = "Size([in] long kind, [in, optional, defaultvalue(428.0)] double width, " \
        "[in, optional, defaultvalue(300.0)] double height, [out, retval] long* result)"


def without_floating_defaults(idl):
    return idl.replace(", defaultvalue(1.01E+300)", "").replace(", defaultvalue(-0.5)", "")


VT_I4, VT_R8, VT_BSTR, VT_VARIANT = 3, 5, 8, 12
PARAMFLAG_FIN, PARAMFLAG_FOPT, PARAMFLAG_FHASDEFAULT = 0x1, 0x10, 0x20


class Reader:
    """Reads functions and their arguments out of an MSFT type library, record by record."""

    def __init__(self, data):
        self.data = data
        self.count = self.int(0x20)
        offsets = 0x54 + (4 if self.int(0x14) & 0x100 else 0)
        self.offsets = offsets
        self.directory = offsets + 4 * self.count

    def int(self, offset):
        return struct.unpack_from("<i", self.data, offset)[0]

    def segment(self, index):
        return self.int(self.directory + 16 * index), self.int(self.directory + 16 * index + 4)

    def name(self, offset):
        start = self.segment(7)[0] + offset
        return self.data[start + 12: start + 12 + self.data[start + 8]].decode()

    def value(self, encoded):
        if encoded < 0:
            return ((encoded & 0x7C000000) >> 26, encoded & 0x3FFFFFF)
        start = self.segment(11)[0] + encoded
        kind = struct.unpack_from("<H", self.data, start)[0]
        if kind == VT_R8:
            return (kind, struct.unpack_from("<d", self.data, start + 2)[0])
        if kind == VT_BSTR:
            length = self.int(start + 2)
            return (kind, self.data[start + 6: start + 6 + length].decode())
        return (kind, self.int(start + 2))

    def functions(self):
        """{interface: {member: (record size, description size, [(argument, type, flags, default)])}}"""
        interfaces = {}
        for index in range(self.count):
            info = self.segment(0)[0] + self.int(self.offsets + 4 * index)
            block, elements = self.int(info + 4), self.int(info + 0x18)
            count = elements & 0xFFFF
            if count == 0:
                continue
            names = block + 4 + self.int(block) + 4 * count
            record_offsets = names + 4 * count
            members = {}
            record = block + 4
            for function in range(count):
                assert self.int(record_offsets + 4 * function) == record - block - 4, "a record's offset"
                size = self.int(record) & 0xFFFF
                arguments = self.int(record + 20) & 0xFFFF
                parameters = record + size - 12 * arguments
                has_defaults = self.int(record + 16) & 0x1000
                described = []
                for argument in range(arguments):
                    parameter = parameters + 12 * argument
                    flags = self.int(parameter + 8)
                    default = None
                    if has_defaults and flags & PARAMFLAG_FHASDEFAULT:
                        default = self.value(self.int(parameters - 4 * arguments + 4 * argument))
                    kind = self.int(parameter) & 0xFFFF if self.int(parameter) < 0 else None
                    described.append((self.name(self.int(parameter + 4)), kind, flags, default))
                description_size = struct.unpack_from("<H", self.data, record + 14)[0]
                members[self.name(self.int(names + 4 * function))] = (size, description_size, described)
                record += size
            assert record == block + 4 + self.int(block), "the records fill the block"
            interfaces[self.name(self.int(info + 0x34))] = members
        return interfaces


def write_idl(directory, idl):
    source = os.path.join(directory, "Sample.idl")
    with open(source, "w", encoding="utf-8") as out:
        out.write(idl)
    return source


def read(path, raw):
    with open(path, "rb") as library:
        data = library.read()
    return data if raw else Reader(data).functions()


class CompileTypeLibraryTest(unittest.TestCase):
    def compile(self, idl, raw=False):
        """The type library compile-type-library makes of the IDL: its bytes, or its functions."""
        with tempfile.TemporaryDirectory() as directory:
            output = os.path.join(directory, "out")
            run = subprocess.run([COMPILER, WIDL, write_idl(directory, idl), output], capture_output=True, text=True)
            self.assertEqual(run.returncode, 0, run.stderr)
            self.assertNotIn("warning", run.stderr)
            self.assertTrue(os.path.exists(os.path.join(output, "Sample.h")))
            self.assertTrue(os.path.exists(os.path.join(output, "Sample_i.c")))
            return read(os.path.join(output, "Sample.tlb"), raw)

    def widl_alone(self, idl, raw=False):
        """The type library widl makes of the IDL by itself."""
        with tempfile.TemporaryDirectory() as directory:
            library = os.path.join(directory, "Sample.tlb")
            subprocess.run([WIDL, "--win64", "-t", "-o", library, write_idl(directory, idl)], check=True,
                           capture_output=True)
            return read(library, raw)

    def test_doubles_get_their_defaults_in_a_member_that_had_none(self):
        size = self.compile(LIBRARY % SIZED)["First"]["Size"]
        self.assertEqual(size[2], [
            ("kind", VT_I4, PARAMFLAG_FIN, None),
            ("width", VT_R8, PARAMFLAG_FIN | PARAMFLAG_FOPT | PARAMFLAG_FHASDEFAULT, (VT_R8, 428.0)),
            ("height", VT_R8, PARAMFLAG_FIN | PARAMFLAG_FOPT | PARAMFLAG_FHASDEFAULT, (VT_R8, 300.0)),
            ("result", None, 0xA, None),
        ])

    def test_the_record_is_laid_out_as_widl_lays_out_a_default_it_can_write(self):
        ours = self.compile(LIBRARY % SIZED)["First"]["Size"]
        variant = SIZED.replace("428.0)] double", "428)] VARIANT").replace("300.0)] double", "300)] VARIANT")
        widls = self.widl_alone(without_floating_defaults(LIBRARY) % variant)["First"]["Size"]
        self.assertEqual(ours[:2], widls[:2])
        self.assertEqual([(name, flags) for name, _, flags, _ in ours[2]],
                         [(name, flags) for name, _, flags, _ in widls[2]])

    def test_other_members_and_interfaces_read_back_unchanged(self):
        library = self.compile(LIBRARY % SIZED)
        self.assertEqual(library["First"]["Before"][2], [("count", VT_I4, 0x31, (VT_I4, 7))])
        self.assertEqual(library["First"]["After"][2],
                         [("text", VT_BSTR, 0x31, (VT_BSTR, "after")), ("result", None, 0xA, None)])
        self.assertEqual(library["Second"]["Scale"][2], [
            ("title", VT_BSTR, 0x31, (VT_BSTR, "")),
            ("minimum", VT_R8, 0x31, (VT_R8, 1.01e300)),
            ("maximum", VT_VARIANT, 0x31, (VT_R8, 1.01e300)),
            ("unit", VT_R8, 0x31, (VT_R8, -0.5)),
        ])

    def test_an_idl_without_floating_defaults_compiles_as_widl_compiles_it(self):
        plain = without_floating_defaults(LIBRARY) % "Plain([in, optional, defaultvalue(3)] long value)"
        ours, widls = self.compile(plain, raw=True), self.widl_alone(plain, raw=True)
        # widl stamps the time of compiling into the custom data; everything around it must match.
        start, length = Reader(ours).segment(11)
        self.assertEqual(Reader(widls).segment(11), (start, length))
        self.assertEqual(ours[:start] + ours[start + length:], widls[:start] + widls[start + length:])

    def test_a_floating_default_outside_a_method_is_refused(self):
        with tempfile.TemporaryDirectory() as directory:
            source = write_idl(directory,
                               "[uuid(6a0e3c10-2b1d-4f5e-9a8b-1c2d3e4f5a60), defaultvalue(1.5)] library Sample {}\n")
            run = subprocess.run([COMPILER, WIDL, source, os.path.join(directory, "out")], capture_output=True,
                                 text=True)
            self.assertNotEqual(run.returncode, 0)
            self.assertIn("a floating-point default outside a method's argument", run.stderr)


if __name__ == "__main__":
    unittest.main()
