#!/usr/bin/env python3
"""Which headers tools/check_headers takes for touched by a change."""
import importlib.machinery
import importlib.util
import pathlib
import sys
import tempfile
import unittest

TOOLS = pathlib.Path(__file__).resolve().parents[2] / "tools"
sys.path.insert(0, str(TOOLS))
loader = importlib.machinery.SourceFileLoader("check_headers", str(TOOLS / "check_headers"))
check_headers = importlib.util.module_from_spec(importlib.util.spec_from_loader("check_headers", loader))
loader.exec_module(check_headers)

FOLDER = "CMakeFiles/cores_verify_interface_header_sets.dir"
OBJECT = f"{FOLDER}/cores_verify_interface_header_sets/engine/mask.h.cxx.o"
TARGETS = f"""{OBJECT}: CXX_COMPILER__cores_verify_interface_header_sets_Release
{FOLDER}: phony
CMakeFiles/cores.dir/engine/mask.cpp.o: CXX_COMPILER__cores_Release
"""
TREE = {"engine/mask.h": '#include "engine/bitmap.h"\n', "engine/bitmap.h": "#include <vector>\n",
        "session/all.h": '#pragma once\n#include "session/windows.h"\n', "session/windows.h.in": "",
        "engine/circle.h": '#include "engine/circle.h"\n#include "engine/gone.h"\n'}
HEADERS = ["engine/bitmap.h", "engine/circle.h", "engine/mask.h", "session/all.h", "session/windows.h"]


class touched_headers(unittest.TestCase):
    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.root = pathlib.Path(place.name)
        for name, text in TREE.items():
            (self.root / name).parent.mkdir(exist_ok=True)
            (self.root / name).write_text(text)

    def touched_by(self, *changed):
        return check_headers.touched(HEADERS, set(changed), self.root)

    def test_knows_the_object_of_each_header(self):
        self.assertEqual(check_headers.objects_of(TARGETS), {"engine/mask.h": OBJECT})

    def test_a_header_touches_itself_and_whatever_includes_it(self):
        self.assertEqual(self.touched_by("engine/bitmap.h"), ["engine/bitmap.h", "engine/mask.h"])
        self.assertEqual(self.touched_by("engine/mask.h"), ["engine/mask.h"])

    def test_a_template_touches_what_is_made_of_it(self):
        self.assertEqual(self.touched_by("session/windows.h.in"), ["session/all.h", "session/windows.h"])

    def test_a_source_touches_none(self):
        self.assertEqual(self.touched_by("engine/mask.cpp"), [])

    def test_the_build_s_own_rules_touch_all(self):
        for rules in ("engine/CMakeLists.txt", "CMakeLists.txt", "cmake/Storeys.cmake"):
            self.assertEqual(self.touched_by(rules), HEADERS)


if __name__ == "__main__":
    unittest.main()
