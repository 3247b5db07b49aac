#!/usr/bin/env python3
"""Which sources tools/check_lint takes for touched by a change."""
import importlib.machinery
import importlib.util
import pathlib
import sys
import tempfile
import unittest

TOOLS = pathlib.Path(__file__).resolve().parents[2] / "tools"
sys.path.insert(0, str(TOOLS))
loader = importlib.machinery.SourceFileLoader("check_lint", str(TOOLS / "check_lint"))
check_lint = importlib.util.module_from_spec(importlib.util.spec_from_loader("check_lint", loader))
loader.exec_module(check_lint)



class touched_sources(unittest.TestCase):
    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.root = pathlib.Path(place.name)
        for name, text in (("engine/mask.cpp", '#include "engine/mask.h"\n'), ("engine/mask.h", ""), ("engine/run.cpp", ""),
                           ("session/windows.h.in", '#include "engine/mask.h"\n'),
                           ("tests/mask_test.cpp", '#include "session/windows.h"\n')):
            (self.root / name).parent.mkdir(exist_ok=True)
            (self.root / name).write_text(text)

    def touched_by(self, changed):
        sources = ["engine/mask.cpp", "engine/run.cpp", "tests/mask_test.cpp"]
        return check_lint.touched(sources, {changed}, self.root)

    def test_a_source_touches_itself(self):
        self.assertEqual(self.touched_by("engine/run.cpp"), ["engine/run.cpp"])

    def test_a_header_touches_whatever_includes_it_however_far(self):
        self.assertEqual(self.touched_by("engine/mask.h"), ["engine/mask.cpp", "tests/mask_test.cpp"])

    def test_a_template_touches_whatever_includes_what_is_made_of_it(self):
        self.assertEqual(self.touched_by("session/windows.h.in"), ["tests/mask_test.cpp"])

    def test_what_no_source_includes_touches_none(self):
        self.assertEqual(self.touched_by("README.md"), [])

    def test_the_rules_touch_everything(self):
        for rules in (".clang-tidy", "tools/check_lint"):
            self.assertEqual(len(self.touched_by(rules)), 3)

    def test_each_source_of_those_that_are_compiled_together_has_a_command_of_its_own(self):
        both = self.root / "Unity" / "unity_tests.cxx"
        both.parent.mkdir()
        both.write_text('#include "/house/a_test.cpp"\n\n#include "/house/b_test.cpp"\n')
        entries = [{"file": "/house/mask.cpp", "command": "c++ -c /house/mask.cpp"},
                   {"file": str(both), "command": f"c++ -c {both}"}]
        self.assertEqual(check_lint.apart(entries), [entries[0]] + [
            {"file": f"/house/{name}_test.cpp", "command": f"c++ -c /house/{name}_test.cpp"} for name in "ab"])


if __name__ == "__main__":
    unittest.main()
