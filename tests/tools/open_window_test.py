#!/usr/bin/env python3
"""Asks tools/open_window for the window where there is no display that answers: open_window_test.py PROGRAM."""
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

PROGRAM = pathlib.Path(sys.argv.pop(1)).resolve()
OPEN_WINDOW = pathlib.Path(__file__).resolve().parents[2] / "tools" / "open_window"
NOWHERE = ":63999"  # no server has a number that large


class dead_display(unittest.TestCase):
    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.folder = pathlib.Path(place.name)

    def told(self, *words, **display):
        environment = dict(os.environ, HOME=str(self.folder), XDG_DATA_HOME=str(self.folder / "data"))
        for name in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_SESSION_TYPE"):
            environment.pop(name, None)
        return subprocess.run([str(word) for word in words], env={**environment, **display}, capture_output=True,
                              text=True, timeout=100)

    def test_says_that_there_is_none(self):
        told = self.told(OPEN_WINDOW, PROGRAM)
        self.assertEqual((told.returncode, told.stderr), (0, ""))
        self.assertEqual(told.stdout, f"There is no display, so the window stays closed. With one, start {PROGRAM}.\n")

    def test_says_which_one_does_not_answer(self):
        told = self.told(OPEN_WINDOW, PROGRAM, DISPLAY=NOWHERE)
        self.assertEqual(told.returncode, 0)
        self.assertEqual(told.stderr, f"Tessaloom can't open its window: could not connect to display {NOWHERE}.\n")
        self.assertEqual(told.stdout, "The window stays closed. With a display that can be reached, "
                                      f"start {PROGRAM}.\n")

    def test_ends_well_without_the_compositor_that_is_named(self):
        told = self.told(OPEN_WINDOW, PROGRAM, WAYLAND_DISPLAY="wayland-63999", XDG_RUNTIME_DIR=str(self.folder))
        self.assertEqual(told.returncode, 0)
        self.assertRegex(told.stderr, r"\ATessaloom can't open its window: .+\.\n\Z")

    def test_the_program_itself_ends_with_a_status_of_its_own(self):
        told = self.told(PROGRAM, DISPLAY=NOWHERE)
        self.assertEqual((told.returncode, told.stdout), (3, ""))

    def test_hands_on_how_the_program_ended(self):
        for status in (0, 1):
            program = self.folder / "program"
            program.write_text(f"#!/bin/sh\nexit {status}\n")
            program.chmod(0o755)
            self.assertEqual(self.told(OPEN_WINDOW, program, DISPLAY=NOWHERE).returncode, status)


if __name__ == "__main__":
    unittest.main()
