#!/usr/bin/env python3
"""What tools/changes.py takes for landed and for changed since."""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

TOOLS = pathlib.Path(__file__).resolve().parents[2] / "tools"
sys.path.insert(0, str(TOOLS))
import changes


class landed_commit(unittest.TestCase):
    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.addCleanup(setattr, changes, "ROOT", changes.ROOT)
        self.addCleanup(os.environ.pop, "TESSALOOM_LANDED", None)
        os.environ.pop("TESSALOOM_LANDED", None)
        changes.ROOT = pathlib.Path(place.name)
        self.git("init", "-q", "-b", "main")
        self.first = self.commit("first")

    def git(self, *words):
        return subprocess.run(["git", "-c", "user.name=x", "-c", "user.email=x@example.com", *words], check=True,
                              cwd=changes.ROOT, capture_output=True, text=True).stdout.strip()

    def commit(self, name):
        (changes.ROOT / f"{name}.cpp").write_text("")
        self.git("add", "-A")
        self.git("commit", "-q", "-m", name)
        return self.git("rev-parse", "HEAD")

    def test_is_unknown_where_nothing_tells_it(self):
        self.assertEqual(changes.landed(), "")
        os.environ["TESSALOOM_LANDED"] = "0" * 40  # not in a shallow history
        self.assertEqual(changes.landed(), "")

    def test_is_unknown_where_it_is_this_commit(self):
        self.git("update-ref", "refs/remotes/origin/main", self.first)
        self.assertEqual(changes.landed(), "")

    def test_is_what_this_commit_and_the_remote_have_in_common(self):
        self.git("checkout", "-q", "-b", "other")
        self.git("update-ref", "refs/remotes/origin/main", self.commit("landed"))
        self.git("checkout", "-q", "main")
        self.commit("mine")
        self.assertEqual(changes.landed(), self.first)
        (changes.ROOT / "new.cpp").write_text("")
        self.assertEqual(changes.changed_files(self.first), {"mine.cpp", "new.cpp"})

    def test_is_what_was_looked_at_as_a_whole_where_nothing_else_tells_it(self):
        (changes.ROOT / "tools").mkdir()
        (changes.ROOT / "tools" / "all_looked_at").write_text(f"{self.first}\n")
        self.commit("second")
        self.git("update-ref", "refs/remotes/origin/main", self.commit("third"))
        self.assertEqual(changes.landed(), self.first)

    def test_is_what_the_environment_names(self):
        second = self.commit("second")
        self.commit("third")
        os.environ["TESSALOOM_LANDED"] = second
        self.assertEqual(changes.changed_files(changes.landed()), {"third.cpp"})

    def test_touches_what_a_pattern_names_as_a_whole(self):
        changed = {"packaging/man/tessaloom.1", "tests/packaging.cpp"}
        self.assertTrue(changes.touches(["cmake/.*", "packaging/.*"], changed))
        self.assertFalse(changes.touches(["packaging", "cmake/.*"], changed))
        self.assertFalse(changes.touches([], changed))


class touched(unittest.TestCase):
    def test_holds_where_nothing_has_landed_or_a_file_is_of_the_pattern(self):
        with tempfile.TemporaryDirectory() as place:
            root = pathlib.Path(place)
            shutil.copytree(TOOLS, root / "tools", ignore=shutil.ignore_patterns("__pycache__", "[!ct]*"))
            git = ["git", "-C", place, "-c", "user.name=x", "-c", "user.email=x@example.com"]
            own = {**os.environ, "TESSALOOM_LANDED": ""}
            ask = lambda *words: subprocess.run([sys.executable, root / "tools" / "touched", *words], env=own).returncode
            for name in ["first", "second"]:
                (root / name).write_text("")
                for step in [["init", "-q"], ["add", "-A"], ["commit", "-q", "-m", name]]:
                    subprocess.run(git + step, check=True)
                if name == "first":
                    self.assertEqual(ask("packaging/.*"), 0)
                    own["TESSALOOM_LANDED"] = subprocess.run(git + ["rev-parse", "HEAD"], check=True, text=True,
                                                             capture_output=True).stdout.strip()
            self.assertEqual(ask("packaging/.*"), 1)
            self.assertEqual(ask("packaging/.*", "sec.*"), 0)


if __name__ == "__main__":
    unittest.main()
