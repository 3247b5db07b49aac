#!/usr/bin/env python3
"""Looks at programs as they are shipped: shipped_test.py SOURCE BUILD PROGRAM... They are hardened against what files from
anywhere might do, and tell nothing of the folder that they were built in."""
import pathlib
import re
import subprocess
import sys
import unittest

SOURCE, BUILD, PROGRAMS = sys.argv[1], sys.argv[2], sys.argv[3:]


def told_by(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


class shipped(unittest.TestCase):
    def test_is_laid_anywhere_in_memory(self):
        for program in PROGRAMS:
            self.assertRegex(told_by("readelf", "-hW", program), r"Type:\s+DYN")
            self.assertRegex(told_by("readelf", "-dW", program), r"FLAGS_1.*\bPIE\b")

    def test_links_are_settled_and_locked_at_the_start(self):
        for program in PROGRAMS:
            self.assertIn("GNU_RELRO", told_by("readelf", "-lW", program))
            self.assertRegex(told_by("readelf", "-dW", program), r"FLAGS_1.*\bNOW\b")

    def test_the_stack_holds_no_program(self):
        for program in PROGRAMS:
            self.assertRegex(told_by("readelf", "-lW", program), r"GNU_STACK.* RW +0x")

    def test_the_stack_and_the_library_are_guarded(self):
        for program in PROGRAMS:
            symbols = told_by("readelf", "--dyn-syms", "-W", program)
            self.assertIn("__stack_chk_fail", symbols)
            if not program.endswith("-decode"):  # which calls none of the functions that have a guarded twin
                self.assertRegex(symbols, r"__\w+_chk\b(?<!__stack_chk)")

    def test_the_folders_of_the_build_are_not_in_it(self):
        for program in PROGRAMS:
            data = pathlib.Path(program).read_bytes()
            for folder in (SOURCE, BUILD):
                found = re.findall(rb"[\x20-\x7e]*" + re.escape(folder.encode()) + rb"[\x20-\x7e]*", data)
                self.assertEqual(found, [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
