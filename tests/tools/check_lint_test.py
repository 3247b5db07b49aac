#!/usr/bin/env python3
"""Which sources tools/check_lint takes for touched by a change."""
import importlib.machinery
import importlib.util
import pathlib
import sys
import unittest

TOOLS = pathlib.Path(__file__).resolve().parents[2] / "tools"
sys.path.insert(0, str(TOOLS))
loader = importlib.machinery.SourceFileLoader("check_lint", str(TOOLS / "check_lint"))
check_lint = importlib.util.module_from_spec(importlib.util.spec_from_loader("check_lint", loader))
loader.exec_module(check_lint)

DEPS = """CMakeFiles/cores.dir/engine/mask.cpp.o: #deps 3, deps mtime 1 (VALID)
    ../../engine/mask.cpp
    /usr/include/stdc-predef.h
    ../../engine/mask.h

tests/CMakeFiles/house_tests.dir/engine/mask_test.cpp.o: #deps 2, deps mtime 1 (VALID)
    /house/tests/engine/mask_test.cpp
    /house/engine/mask.h
    windows/session/windows.h

"""
PARTS = {"engine/mask.cpp": {"engine/mask.cpp", "engine/mask.h"},
         "tests/engine/mask_test.cpp": {"tests/engine/mask_test.cpp", "engine/mask.h", "session/windows.h.in"}}
SOURCES = ["engine/mask.cpp", "tests/engine/mask_test.cpp", "bench/quick_bench.cpp"]


class touched_sources(unittest.TestCase):
    def test_reads_what_each_source_was_compiled_from(self):
        self.assertEqual(check_lint.parts_of_sources(DEPS, "/house/build/release", "/house"), PARTS)

    def test_a_source_touches_itself(self):
        self.assertEqual(check_lint.touched(SOURCES[:2], {"engine/mask.cpp"}, PARTS), ["engine/mask.cpp"])

    def test_a_header_touches_whatever_includes_it(self):
        self.assertEqual(check_lint.touched(SOURCES[:2], {"engine/mask.h"}, PARTS), SOURCES[:2])

    def test_a_template_touches_whatever_includes_what_is_made_of_it(self):
        self.assertEqual(check_lint.touched(SOURCES[:2], {"session/windows.h.in"}, PARTS), SOURCES[1:2])

    def test_a_source_that_was_never_compiled_is_touched(self):
        self.assertEqual(check_lint.touched(SOURCES, {"README.md"}, PARTS), ["bench/quick_bench.cpp"])

    def test_the_rules_touch_everything(self):
        for rules in (".clang-tidy", "tools/check_lint"):
            self.assertEqual(check_lint.touched(SOURCES, {rules}, PARTS), SOURCES)


if __name__ == "__main__":
    unittest.main()
