#!/usr/bin/env python3
"""That tools/check_ways finds where a drawn way and the sources part."""
import importlib.machinery
import importlib.util
import pathlib
import tempfile
import unittest

TOOL = str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "check_ways")
loader = importlib.machinery.SourceFileLoader("check_ways", TOOL)
check_ways = importlib.util.module_from_spec(importlib.util.spec_from_loader("check_ways", loader))
loader.exec_module(check_ways)

PAGE = """Some text.

| what happens | where | function | how it goes on |
|---|---|---|---|
| a choice | `lists.cpp` | `combo_box::choose` | `fire(on_click)` |
| it was hooked | `hooks.cpp` | `connect` | `[&main] { changed(main); }` |
| it redraws | `hooks.cpp` | `changed` | `draw(main, 1)` |
| pixels | `draw.cpp` | `draw` | |

| a way of its own | `draw.cpp` | `draw` | |
"""
SOURCES = {
    "lists.cpp": "void combo_box::choose(int index)\n{\n    text = entries[index];\n    fire(on_click);\n}\n",
    "hooks.cpp": "namespace {\n\nvoid changed(frmMain & main)\n{\n    if (main.shown) {\n        draw(main,\n             1);\n    }\n}\n\n"
                 "}  // namespace\n\nvoid connect(frmMain & main)\n{\n    main.cmbFrame.on_click = [&main] { changed(main); };\n}\n",
    "draw.cpp": "void draw(frmMain & main, int width)\n{\n    main.canvas = width;\n}\n",
}
CALLS = [("hooks.cpp", "draw.cpp", "draw(frmMain&, int)")]


class ways(unittest.TestCase):
    def faults(self, changes=None, page=PAGE):
        with tempfile.TemporaryDirectory() as root:
            for name, text in (SOURCES | (changes or {})).items():
                (pathlib.Path(root) / name).write_text(text)
            return [fault for way in check_ways.ways_of(page) for fault in check_ways.faults_of(way, pathlib.Path(root))]

    def test_reads_each_table_as_a_way(self):
        self.assertEqual([len(way) for way in check_ways.ways_of(PAGE)], [4, 1])
        self.assertEqual(check_ways.ways_of(PAGE)[1], [("draw.cpp", "draw", None)])

    def test_a_way_that_is_as_it_is_drawn_has_no_fault(self):
        self.assertEqual(self.faults(), [])

    def test_a_function_that_has_moved(self):
        self.assertIn("draw.cpp: defines draw 0 times", self.faults({"draw.cpp": "// void draw(frmMain & main)\n"}))

    def test_a_declaration_or_a_call_is_no_definition(self):
        told = self.faults({"draw.cpp": "void draw(frmMain & main, int width);\n\nvoid other()\n{\n    draw(main, 2);\n}\n"})
        self.assertIn("draw.cpp: defines draw 0 times", told)

    def test_a_file_that_is_gone(self):
        self.assertIn("paint.cpp: defines draw 0 times", self.faults(page=PAGE.replace("`draw.cpp`", "`paint.cpp`")))

    def test_code_that_the_function_no_longer_has(self):
        self.assertEqual(self.faults({"hooks.cpp": SOURCES["hooks.cpp"].replace("             1", "             2")}),
                         ["hooks.cpp: changed: hasn't the code draw(main, 1)"])

    def test_code_that_only_a_comment_has(self):
        self.assertEqual(self.faults({"lists.cpp": SOURCES["lists.cpp"].replace("fire(", "// fire(")}),
                         ["lists.cpp: combo_box::choose: hasn't the code fire(on_click)"])

    def test_code_of_another_function_of_the_file(self):
        moved = SOURCES["lists.cpp"].replace("    fire(on_click);\n", "") + "\nvoid other()\n{\n    fire(on_click);\n}\n"
        self.assertEqual(self.faults({"lists.cpp": moved}), ["lists.cpp: combo_box::choose: hasn't the code fire(on_click)"])

    def test_a_step_that_is_left_out(self):
        page = PAGE.replace("| it redraws | `hooks.cpp` | `changed` | `draw(main, 1)` |\n", "")
        self.assertEqual(self.faults(page=page), ["hooks.cpp: connect: the code [&main] { changed(main); } doesn't lead to draw"])

    def test_a_handler_that_the_next_row_does_not_set(self):
        told = self.faults({"hooks.cpp": SOURCES["hooks.cpp"].replace("on_click", "on_typed")})
        self.assertEqual(told, ["lists.cpp: combo_box::choose: the code fire(on_click) doesn't lead to connect"])

    def test_a_way_that_stops_on_its_way(self):
        told = self.faults(page=PAGE.replace("`draw(main, 1)` |", "|"))
        self.assertEqual(told, ["hooks.cpp: changed: the code None doesn't lead to draw"])

    def test_a_call_that_the_build_does_not_have(self):
        way = check_ways.ways_of(PAGE)[0]
        self.assertEqual(check_ways.built_faults(way, CALLS), [])
        self.assertEqual(check_ways.built_faults(way, [("hooks.cpp", "draw.cpp", "draw_all(frmMain&)")]),
                         ["hooks.cpp: the build has no call of draw in draw.cpp"])


if __name__ == "__main__":
    unittest.main()
