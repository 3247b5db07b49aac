#!/usr/bin/env python3
"""That the tables of tools/mutations are true of the tree as it stands, and that tools/mutate finds what it runs."""
import importlib.machinery
import importlib.util
import pathlib
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
loader = importlib.machinery.SourceFileLoader("mutate", str(ROOT / "tools" / "mutate"))
mutate = importlib.util.module_from_spec(importlib.util.spec_from_loader("mutate", loader))
loader.exec_module(mutate)
ROWS = mutate.rows.ALL


class tables(unittest.TestCase):
    def test_each_text_stands_in_its_file_once(self):
        for row in ROWS:
            with self.subTest(row.file + ": " + row.breaks):
                self.assertEqual((ROOT / row.file).read_text().count(row.text), 1)

    def test_each_row_changes_something_and_says_what(self):
        for row in ROWS:
            with self.subTest(row.file + ": " + row.breaks):
                self.assertNotEqual(row.text, row.instead)
                self.assertTrue(row.breaks)

    def test_no_row_stands_twice(self):
        self.assertEqual(len({(row.file, row.text, row.instead) for row in ROWS}), len(ROWS))

    def test_every_room_of_the_pictures_is_broken(self):
        rooms = {row.file.split("/")[0] for row in ROWS}
        self.assertEqual(rooms, {"engine", "designs", "quick", "designers", "frames"})


class choice(unittest.TestCase):
    def test_takes_the_suites_of_the_mirrored_folder(self):
        self.assertIn("location_order", mutate.suites_beside("designs/templates/location_order.cpp"))
        self.assertEqual(mutate.suites_beside("nowhere/at_all.cpp"), [])

    def test_takes_the_rows_of_a_room_or_with_a_text(self):
        quick = mutate.chosen(["quick"], [])
        self.assertTrue(quick and all(row.file.startswith("quick/") for row in quick))
        self.assertEqual(mutate.chosen([], [ROWS[0].text]), [ROWS[0]])
        self.assertEqual(mutate.chosen([], []), ROWS)


unittest.main()
