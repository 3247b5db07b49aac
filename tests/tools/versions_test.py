#!/usr/bin/env python3
"""The version stands in one place: versions_test.py CMAKE PROGRAM..., where each program tells its own."""
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
CMAKE, PROGRAMS = sys.argv[1], sys.argv[2:]
VERSION = re.search(r"^project\(tessaloom VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text(), re.M)[1]
NUMBER = r"\d+\.\d+(\.\d+)*"


class versions(unittest.TestCase):
    def test_each_program_tells_version_commit_and_libraries(self):
        for program in PROGRAMS:
            told = subprocess.run([program, "--version"], capture_output=True, text=True, check=True).stdout
            name = pathlib.Path(program).name
            self.assertRegex(told, rf"^{name} {re.escape(VERSION)}( \([0-9a-f]{{7,}}\+?\))?\nwith .*libarchive {NUMBER}")
            if name == "tessaloom-batch":
                self.assertRegex(told, rf"with Qt {NUMBER}, FreeImage {NUMBER}, libjpeg-turbo {NUMBER}, ")
                self.assertRegex(told, rf", libtiff {NUMBER}, qpdf {NUMBER}\n$")

    def test_the_newest_release_of_the_changelog_is_this_version(self):
        releases = re.findall(rf"^## ({NUMBER}), (unreleased|\d{{4}}-\d\d-\d\d)$", (ROOT / "CHANGELOG.md").read_text(), re.M)
        self.assertEqual(len(releases), len(re.findall(r"^## ", (ROOT / "CHANGELOG.md").read_text(), re.M)))
        self.assertEqual(releases[0][0], VERSION)
        numbers = [[int(part) for part in release[0].split(".")] for release in releases]
        self.assertEqual(numbers, sorted(numbers, reverse=True))

    def commit_of(self, source):
        noted = source / "commit.cpp"
        subprocess.run([CMAKE, "-D", f"SOURCE={source}", "-D", f"TO={noted}", "-P", ROOT / "versions" / "commit.cmake"],
                       check=True)
        return re.search(r'return "(.*)";', noted.read_text())[1]

    def test_the_commit_comes_from_git_or_from_an_archive_of_the_sources(self):
        with tempfile.TemporaryDirectory() as place:
            source = pathlib.Path(place)
            (source / "versions").mkdir()
            text = source / "versions" / "commit.txt"
            text.write_bytes((ROOT / "versions" / "commit.txt").read_bytes())
            unfilled = text.read_text().startswith("$")
            self.assertEqual(self.commit_of(source), "" if unfilled else text.read_text().strip()[:12])
            text.write_text("0123456789abcdef\n")
            self.assertEqual(self.commit_of(source), "0123456789ab")
            (source / ".git").mkdir()  # no repository, in the folder of one that may lie further up
            self.assertEqual(self.commit_of(source), "")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
