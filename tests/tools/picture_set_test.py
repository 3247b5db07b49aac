#!/usr/bin/env python3
"""That tools/picture_set tells of pictures that a program didn't make."""
import importlib.machinery
import importlib.util
import os
import pathlib
import tempfile
import unittest

TOOL = pathlib.Path(__file__).resolve().parents[2] / "tools" / "picture_set"
loader = importlib.machinery.SourceFileLoader("picture_set", str(TOOL))
picture_set = importlib.util.module_from_spec(importlib.util.spec_from_loader("picture_set", loader))
loader.exec_module(picture_set)


class PictureSet(unittest.TestCase):
    def rendered(self, script):
        """What is told of two jobs, one for each program, by programs that do this."""
        with tempfile.TemporaryDirectory() as folder:
            program = pathlib.Path(folder) / "program"
            program.write_text("#!/bin/sh\n" + script)
            program.chmod(0o755)
            return picture_set.render(str(program), "data", "photos", os.path.join(folder, "out"), ["a.jpg", "b.jpg"])

    def test_names_the_lines_that_were_not_made(self):
        self.assertEqual(self.rendered('echo "line 2: x.jpg NOT made" >&2; echo "0 made, 0 there before, 1 not made" >&2; exit 1'),
                         ["line 2: x.jpg NOT made"] * 2)

    def test_says_nothing_of_those_that_were(self):
        self.assertEqual(self.rendered('echo "line 2: x.jpg made" >&2; echo "1 made, 0 there before, 0 not made" >&2'), [])

    def test_tells_of_a_program_that_fell(self):
        self.assertEqual([line.split(": ")[-1] for line in self.rendered('echo "no list" >&2; exit 2')], ["no list"] * 2)

    def test_compares_pixels_and_not_what_a_file_tells_of_itself(self):
        def jpeg(note, data):
            return b"\xff\xd8" + b"\xff\xfe" + (2 + len(note)).to_bytes(2, "big") + note + b"\xff\xda" + data
        self.assertEqual(picture_set.without_notes(jpeg(b"one", b"pixels")), picture_set.without_notes(jpeg(b"another", b"pixels")))
        self.assertNotEqual(picture_set.without_notes(jpeg(b"one", b"pixels")), picture_set.without_notes(jpeg(b"one", b"others")))


if __name__ == "__main__":
    unittest.main()
