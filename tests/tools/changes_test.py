#!/usr/bin/env python3
"""What tools/changes.py takes for landed and for changed since."""
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
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


if __name__ == "__main__":
    unittest.main()
