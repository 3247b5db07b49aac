#!/usr/bin/env python3
"""That tools/check_floors finds each of the faults it is there for, in small houses that are compiled for the purpose.

    check_floors_test.py COMPILER
"""
import contextlib
import importlib.machinery
import importlib.util
import io
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOL = str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "check_floors")
loader = importlib.machinery.SourceFileLoader("check_floors", TOOL)
check_floors = importlib.util.module_from_spec(importlib.util.spec_from_loader("check_floors", loader))
loader.exec_module(check_floors)
compiler = sys.argv.pop() if len(sys.argv) > 1 else "c++"

SOUND = {
    "support/CMakeLists.txt": "storey(ground words)\n",
    "support/words.h": "int words();\n",
    "support/words.cpp": '#include "support/words.h"\nint words() { return 1; }\n',
    "engine/CMakeLists.txt": "storey(procedures lay plan)\n",
    "engine/plan.h": "int plan();\n",
    "engine/plan.cpp": '#include "engine/plan.h"\n#include "support/words.h"\nint plan() { return words(); }\n',
    "engine/lay.h": "int lay();\n",
    "engine/lay.cpp": '#include "engine/lay.h"\n#include "engine/plan.h"\nint lay() { return plan(); }\n',
    "session/main.cpp": '#include "engine/lay.h"\nint main() { return lay(); }\n',
}


class house:
    """A house of few files: the sound one, changed."""

    def __init__(self, root, changes):
        self.root = pathlib.Path(root)
        files = {f"{room}/CMakeLists.txt": "" for room in check_floors.ROOMS} | SOUND | changes
        for name, text in files.items():
            path = self.root / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)

    def build(self):
        """Compiles all sources and writes down how, as a build does."""
        entries = []
        (self.root / "build").mkdir()
        for number, source in enumerate(sorted(self.root.rglob("*.cpp"))):
            command = f"{compiler} -O1 -I{self.root} -o {number}.o -c {source}"
            subprocess.run(command.split(), cwd=self.root / "build", check=True)
            entries.append({"directory": str(self.root / "build"), "command": command, "file": str(source)})
        (self.root / "build" / "compile_commands.json").write_text(json.dumps(entries))

    def told(self, *more):
        said = io.StringIO()
        with contextlib.redirect_stdout(said):
            status = check_floors.main([str(self.root), *more])
        return status, said.getvalue()


def told_of_includes(changes):
    with tempfile.TemporaryDirectory() as root:
        return house(root, changes).told()


def told_of_calls(changes, change=lambda root: None):
    """What is told after a build; `change` touches the house behind it."""
    with tempfile.TemporaryDirectory() as root:
        small = house(root, changes)
        small.build()
        change(small.root)
        return small.told("--build", str(small.root / "build"))


class floors(unittest.TestCase):
    def assert_fault(self, told, *words):
        status, text = told
        self.assertEqual(status, 1, text)
        for each in words:
            self.assertIn(each, text)
        self.assertEqual(len(text.splitlines()), 1, text)

    def test_a_sound_house_has_no_fault(self):
        self.assertEqual(told_of_includes({})[0], 0)
        self.assertEqual(told_of_calls({}), (0, "7 files, no include and no call goes up\n"))

    def test_an_include_that_goes_up(self):
        self.assert_fault(told_of_includes({"support/words.h": '#include "engine/plan.h"\nint words();\n',
                                            "engine/plan.cpp": '#include "engine/plan.h"\nint plan() { return 1; }\n'}),
                          "support/words.h: engine/plan.h: goes up from ground to procedures")

    def test_a_file_that_stands_nowhere(self):
        self.assert_fault(told_of_includes({"engine/lost.h": ""}), "engine/lost.h: stands on no storey")

    def test_a_circle_of_includes(self):
        self.assert_fault(told_of_includes({"engine/plan.h": '#include "engine/lay.h"\nint plan();\n'}),
                          "circle: engine/lay -> engine/plan (an include), engine/plan -> engine/lay (an include)")

    def test_a_call_that_goes_up_past_the_includes(self):
        self.assert_fault(told_of_calls({"support/words.cpp": '#include "support/words.h"\nint plan();\n'
                                                              "int words() { return plan(); }\n",
                                         "engine/plan.cpp": '#include "engine/plan.h"\nint plan() { return 1; }\n'}),
                          "support/words.cpp: plan() of engine/plan.cpp: goes up from ground to procedures")

    def test_a_circle_that_only_calls_close(self):
        self.assert_fault(told_of_calls({"engine/plan.cpp": '#include "engine/plan.h"\nint lay();\n'
                                                            "int plan() { return lay(); }\n"}),
                          "circle: engine/lay -> engine/plan (an include), engine/plan -> engine/lay (a call of lay())")

    def test_a_function_that_another_header_declares(self):
        self.assert_fault(told_of_calls({"engine/lay.h": "int lay();\nint stray(int);\n",
                                         "engine/plan.cpp": '#include "engine/plan.h"\nint stray(int i) { return i; }\n'
                                                            "int plan() { return stray(1); }\n"}),
                          "engine/plan.cpp: stray(int): is seen by others and not declared in engine/plan.h")

    def test_a_source_whose_functions_no_header_declares(self):
        self.assert_fault(told_of_calls({"engine/CMakeLists.txt": "storey(procedures lay plan bare)\n",
                                         "engine/plan.cpp": "",
                                         "engine/bare.cpp": '#include "engine/plan.h"\nint plan() { return 1; }\n'}),
                          "engine/bare.cpp: plan(): is seen by others and not declared in engine/bare.h")

    def test_a_method_or_an_operator_defined_elsewhere(self):
        header = "struct sheet { int lines() const; bool operator==(const sheet &) const; };\n"
        status, text = told_of_calls({"engine/plan.h": header + "int plan();\n",
                                      "engine/lay.cpp": '#include "engine/lay.h"\n#include "engine/plan.h"\n'
                                                        "int sheet::lines() const { return 1; }\n"
                                                        "bool sheet::operator==(const sheet &) const { return true; }\n"
                                                        "int lay() { return plan(); }\n"})
        self.assertEqual(status, 1)
        self.assertIn("engine/lay.cpp: sheet::lines() const: is seen by others", text)
        self.assertIn("engine/lay.cpp: sheet::operator==(sheet const&) const: is seen by others", text)

    def test_a_template_counts_with_what_is_made_of_it(self):
        window = {"engine/CMakeLists.txt": "storey(procedures lay plan)\nwindow(frmShow show)\n",
                  "engine/frmShow.h": "void connect_frmShow();\n",
                  "engine/frmShow.cpp": '#include "engine/frmShow.h"\nvoid connect_frmShow() {}\n',
                  "session/CMakeLists.txt": "storey(records windows)\n",
                  "session/windows.h.in": '#include "@path@.h"\n'}
        self.assertEqual(told_of_includes(window)[0], 0)
        self.assert_fault(told_of_includes(window | {"session/CMakeLists.txt": "storey(ground windows)\n"}),
                          "session/windows.h: engine/frmShow.h: goes up from ground to records")
        self.assert_fault(told_of_includes(window | {"session/CMakeLists.txt": ""}),
                          "session/windows.h: stands on no storey")

    def test_the_two_halves_of_a_window_are_two_pairs(self):
        window = {"engine/CMakeLists.txt": "storey(procedures lay plan)\nstorey(records frmShow.h)\n"
                                           "storey(handlers frmShow.cpp)\n",
                  "engine/frmShow.h": "struct frmShow { int shown = 0; };\n",
                  "engine/plan.h": '#include "engine/frmShow.h"\nint plan();\n',
                  "engine/frmShow.cpp": '#include "engine/plan.h"\nstatic int show() { return plan(); }\n'
                                        "static int kept = show();\n"}
        self.assertEqual(told_of_calls(window)[0], 0)

    def test_the_engine_does_not_see_who_makes_its_templates(self):
        self.assert_fault(told_of_includes({"quick/CMakeLists.txt": "storey(procedures style)\n", "quick/style.h": "",
                                            "engine/plan.h": '#include "quick/style.h"\nint plan();\n'}),
                          "engine/plan.h: quick/style.h: goes against the order of the folders")

    def test_a_build_that_is_behind_its_sources(self):
        def touch(root):
            later = (root / "engine" / "plan.cpp").stat().st_mtime + 60
            os.utime(root / "engine" / "plan.cpp", (later, later))
        self.assert_fault(told_of_calls({}, touch), "engine/plan.cpp: the build has no object of it as it is now")


if __name__ == "__main__":
    unittest.main()
