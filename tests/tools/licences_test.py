#!/usr/bin/env python3
"""What docs/licences.md and .reuse/dep5 say is so: licences_test.py PROGRAM..., the programs as they are linked."""
import fnmatch
import pathlib
import re
import subprocess
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
PROGRAMS = []
LOADER = re.compile(r"ld-linux.*\.so\..*|linux-vdso.*")


def told_libraries():
    """The files that the table of docs/licences.md names."""
    rows = [line.split("|")[2] for line in (ROOT / "docs" / "licences.md").read_text().splitlines() if line.startswith("| ")]
    return [name for row in rows for name in re.findall(r"`([^`]+)`", row)]


def needed_libraries(program):
    told = subprocess.run(["readelf", "-d", program], capture_output=True, text=True, check=True).stdout
    return set(re.findall(r"\(NEEDED\).*\[(.+)\]", told))


class licences(unittest.TestCase):
    def test_every_library_that_a_program_needs_is_told_of_and_no_other(self):
        needed = set().union(*map(needed_libraries, PROGRAMS))
        self.assertTrue(needed)
        needed = {name for name in needed if not LOADER.fullmatch(name)}
        told = told_libraries()
        self.assertEqual([name for name in sorted(needed) if not any(fnmatch.fnmatchcase(name, each) for each in told)], [])
        self.assertEqual([each for each in told if not fnmatch.filter(needed, each)], [])

    def test_each_licence_that_a_file_has_is_there_as_a_text(self):
        named = set(re.findall(r"^License: (\S+)$", (ROOT / ".reuse" / "dep5").read_text(), re.M))
        self.assertEqual(named, {path.stem for path in (ROOT / "LICENSES").iterdir()})
        self.assertEqual((ROOT / "LICENSE").read_bytes(), (ROOT / "LICENSES" / "GPL-3.0-or-later.txt").read_bytes())

    def test_art_and_designs_ask_nothing_of_anybody(self):
        paragraphs = (ROOT / ".reuse" / "dep5").read_text().split("\n\n")
        licence = dict(re.findall(r"^Files: (seed/\*|\*)\n(?:.*\n)*?License: (\S+)$", "\n\n".join(paragraphs), re.M))
        self.assertEqual(licence, {"*": "GPL-3.0-or-later", "seed/*": "CC0-1.0"})


if __name__ == "__main__":
    PROGRAMS += sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
