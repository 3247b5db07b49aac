#!/usr/bin/env python3
"""Looks at what tools/judge_designs asks of the program, in whose place a script answers."""
import importlib.machinery
import importlib.util
import os
import pathlib
import sys
import tempfile
import unittest
from unittest import mock

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.dont_write_bytecode = True
loader = importlib.machinery.SourceFileLoader("judge_designs", str(ROOT / "tools" / "judge_designs"))
judge = importlib.util.module_from_spec(importlib.util.spec_from_loader("judge_designs", loader))
sys.modules["judge_designs"] = judge
loader.exec_module(judge)

# Stands for the program: notes which fonts it would see, and every word, in place of a poster.
STAND_IN = """#!/bin/sh
for word; do out=$word; done
printf '%s\\n' "$FONTCONFIG_FILE" "$@" > "$out"
"""


class judge_designs_test(unittest.TestCase):
    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.folder = pathlib.Path(place.name).resolve()
        program = self.folder / "tessaloom-batch"
        program.write_text(STAND_IN)
        program.chmod(0o755)

    def asked(self, caption):
        build = judge.sample_drawer().Build(self.folder / "build")
        studio = judge.Studio(self.folder, ["a.jpg", "b.jpg"], caption, build.environment)
        judge.draw(studio, 0, judge.posters(["Gallery wall"])[0], self.folder / "poster.jpg")
        return (self.folder / "poster.jpg").read_text().splitlines()

    def test_letters_are_drawn_with_the_faces_of_the_build(self):
        with mock.patch.dict(os.environ, FONTCONFIG_FILE="of/this/machine"):
            self.assertEqual(self.asked("Anna and Tom")[0], str(self.folder / "build" / "fonts.conf"))

    def test_each_poster_shows_the_photos_and_the_caption(self):
        words = self.asked("Anna and Tom")
        self.assertIn("a.jpg", words)
        self.assertEqual(words[words.index("--caption") + 1], "Anna and Tom")
        self.assertEqual(words[words.index("--design") + 1], "Gallery wall")
        self.assertNotIn("--caption", self.asked(""))


if __name__ == "__main__":
    unittest.main()
