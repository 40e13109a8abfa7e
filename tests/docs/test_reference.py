"""Builds the reference as the target "docs" does and checks that it tells everything.

Called with the path of doxygen and of the configured Doxyfile.
"""

import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree

DOXYGEN, DOXYFILE = sys.argv[1:3]

BROKEN_HEADER = """#pragma once
/// A class.
class WyNothing
{
public:
    /// Told, and its getter with it.
    void setTold();
    void told();
    void untold();
};
"""


def run_doxygen(output, *settings):
    text = pathlib.Path(DOXYFILE).read_text(encoding="utf-8")
    settings = (f'OUTPUT_DIRECTORY = "{output}"', "GENERATE_XML = YES", *settings)
    return subprocess.run([DOXYGEN, "-"], input="\n".join((text, *settings)), text=True, capture_output=True, check=False)


def headers():
    paths = re.findall(r'"([^"]+\.h)"', pathlib.Path(DOXYFILE).read_text(encoding="utf-8"))
    return [pathlib.Path(path) for path in paths]


class Reference(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(scratch.cleanup)
        cls.folder = pathlib.Path(scratch.name)
        cls.result = run_doxygen(cls.folder)
        cls.compounds = [xml.etree.ElementTree.parse(path).getroot() for path in (cls.folder / "xml").glob("*.xml")]

    def members(self, kind):
        for compound in self.compounds:
            for member in compound.iter(kind):
                if member.get("prot", "public") != "private":
                    yield member

    def test_there_is_no_warning(self):
        self.assertEqual(self.result.stderr, "")
        self.assertEqual(self.result.returncode, 0)

    def test_every_header_has_its_class(self):
        self.assertGreater(len(headers()), 40)
        classes = {name.text for compound in self.compounds for name in compound.iter("compoundname")}
        self.assertEqual([h.stem for h in headers() if f"WyWidgets::{h.stem}" not in classes], [])

    def test_every_enumerator_and_property_says_what_it_means(self):
        public_enums = [member for member in self.members("memberdef") if member.get("kind") == "enum"]
        enumerators = [value for enum in public_enums for value in enum.iter("enumvalue")]
        properties = [member for member in self.members("memberdef") if member.get("kind") == "property"]
        self.assertGreater(len(enumerators), 40)
        self.assertGreater(len(properties), 10)
        silent = [member.findtext("name") for member in enumerators + properties
                  if not "".join(member.find("briefdescription").itertext()).strip()]
        self.assertEqual(silent, [])

    def test_private_members_and_handlers_stay_out(self):
        pages = "".join(path.read_text(encoding="utf-8") for path in (self.folder / "html").glob("class*.html"))
        self.assertIn("SignalPosChanged", pages)
        hidden = re.findall(r"\bm_(?!contentWidget\b)\w+|paintEvent|mousePressEvent|createView", pages)
        self.assertEqual(set(hidden), set())

    def test_an_undocumented_function_is_an_error(self):
        header = self.folder / "WyNothing.h"
        header.write_text(BROKEN_HEADER, encoding="utf-8")
        result = run_doxygen(self.folder / "broken", f'INPUT = "{header}"', "USE_MDFILE_AS_MAINPAGE =")
        self.assertNotEqual(result.returncode, 0)
        self.assertIn("untold", result.stderr)
        self.assertNotIn("told()", result.stderr.replace("untold()", "").lower())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
