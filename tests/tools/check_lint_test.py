#!/usr/bin/env python3
"""Which sources tools/check_lint takes for touched by a change."""
import importlib.machinery
import importlib.util
import os
import pathlib
import subprocess
import tempfile
import unittest

TOOL = str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "check_lint")
loader = importlib.machinery.SourceFileLoader("check_lint", TOOL)
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


class landed_commit(unittest.TestCase):
    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.addCleanup(setattr, check_lint, "ROOT", check_lint.ROOT)
        self.addCleanup(os.environ.pop, "TESSALOOM_LANDED", None)
        os.environ.pop("TESSALOOM_LANDED", None)
        check_lint.ROOT = pathlib.Path(place.name)
        self.git("init", "-q", "-b", "main")
        self.first = self.commit("first")

    def git(self, *words):
        return subprocess.run(["git", "-c", "user.name=x", "-c", "user.email=x@example.com", *words], check=True,
                              cwd=check_lint.ROOT, capture_output=True, text=True).stdout.strip()

    def commit(self, name):
        (check_lint.ROOT / f"{name}.cpp").write_text("")
        self.git("add", "-A")
        self.git("commit", "-q", "-m", name)
        return self.git("rev-parse", "HEAD")

    def test_is_unknown_where_nothing_tells_it(self):
        self.assertEqual(check_lint.landed(), "")
        os.environ["TESSALOOM_LANDED"] = "0" * 40  # not in a shallow history
        self.assertEqual(check_lint.landed(), "")

    def test_is_unknown_where_it_is_this_commit(self):
        self.git("update-ref", "refs/remotes/origin/main", self.first)
        self.assertEqual(check_lint.landed(), "")

    def test_is_what_this_commit_and_the_remote_have_in_common(self):
        self.git("checkout", "-q", "-b", "other")
        self.git("update-ref", "refs/remotes/origin/main", self.commit("landed"))
        self.git("checkout", "-q", "main")
        self.commit("mine")
        self.assertEqual(check_lint.landed(), self.first)
        (check_lint.ROOT / "new.cpp").write_text("")
        self.assertEqual(check_lint.changed_files(self.first), {"mine.cpp", "new.cpp"})

    def test_is_what_the_environment_names(self):
        second = self.commit("second")
        self.commit("third")
        os.environ["TESSALOOM_LANDED"] = second
        self.assertEqual(check_lint.changed_files(check_lint.landed()), {"third.cpp"})


if __name__ == "__main__":
    unittest.main()
