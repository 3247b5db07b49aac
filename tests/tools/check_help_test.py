"""Shows that tools/check_help finds each kind of fault, in three small pages that are clean without it."""
import importlib.machinery
import importlib.util
import pathlib
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.dont_write_bytecode = True
loader = importlib.machinery.SourceFileLoader("check_help", str(ROOT / "tools" / "check_help"))
checker = importlib.util.module_from_spec(importlib.util.spec_from_loader("check_help", loader))
loader.exec_module(checker)

FILES = {
    "help/help_main.htm": '<html><head><title>Help</title><link rel="stylesheet" href="style.css"></head><body>\n'
                          '<a href="matrix.htm#gaps">Gaps</a> <a href="faq.htm">FAQ</a></body></html>',
    "help/matrix.htm": '<html><body><h2 id="gaps">Gaps</h2>\n<img src="pictures/grid.png" alt="A grid">\n'
                       '"Save last Flurn" keeps it, " Matrix flurn" begins.</body></html>',
    "help/faq.htm": '<html><body><a href="#why">Why</a><p id="why">So.</p></body></html>',
    "help/style.css": "p { }",
    "help/pictures/grid.png": "",
    "session/frmMain.ui": "<string>&amp;Save last  Flurn</string>",
    "session/menus.cpp": 'caption(" Matrix &flurn"); show_help(main, "matrix.htm"); address("/faq.htm");',
}


class check_help(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        for room in checker.FOLDERS:
            (self.root / room).mkdir()
        for name, text in FILES.items():
            (self.root / name).parent.mkdir(parents=True, exist_ok=True)
            (self.root / name).write_text(text)

    def faults(self):
        return checker.faults(self.root / "help", self.root)

    def assert_one(self, name, old, new, fault):
        self.assertIn(old, FILES[name])
        (self.root / name).write_text(FILES[name].replace(old, new))
        self.assertEqual(self.faults(), [fault])

    def test_pages_without_a_fault(self):
        self.assertEqual(self.faults(), [])

    def test_a_link_to_a_page_that_is_not_there(self):
        self.assert_one("help/faq.htm", '"#why"', '"whose.htm"', "faq.htm:1: whose.htm leads nowhere")

    def test_a_link_out_of_the_folder(self):
        self.assert_one("help/faq.htm", '"#why"', '"../session/menus.cpp"', "faq.htm:1: ../session/menus.cpp leads out of the folder")

    def test_a_link_that_differs_in_case(self):
        self.assert_one("help/faq.htm", '"#why"', '"Matrix.htm"', "faq.htm:1: Matrix.htm leads nowhere")

    def test_an_anchor_that_is_not_there(self):
        self.assert_one("help/help_main.htm", "#gaps", "#gap", "help_main.htm:2: matrix.htm#gap has no such anchor")

    def test_an_anchor_of_its_own_page_that_is_not_there(self):
        self.assert_one("help/faq.htm", "#why", "#how", "faq.htm:1: #how has no such anchor")

    def test_an_anchor_that_stands_twice(self):
        self.assert_one("help/faq.htm", "<p id", '<p id="why"></p><p id', 'faq.htm: the anchor "why" stands twice')

    def test_a_picture_that_is_not_there(self):
        (self.root / "help/pictures/grid.png").unlink()
        self.assertEqual(self.faults(), ["matrix.htm:2: pictures/grid.png leads nowhere"])

    def test_a_picture_without_words(self):
        self.assert_one("help/matrix.htm", ' alt="A grid"', "", "matrix.htm: pictures/grid.png has no words in its place")

    def test_a_picture_that_no_page_shows(self):
        (self.root / "help/pictures/old.png").touch()
        self.assertEqual(self.faults(), ["pictures/old.png: nothing leads there"])

    def test_a_page_that_only_orphans_lead_to(self):
        for one, other in (("here", "there"), ("there", "here")):
            (self.root / f"help/{one}.htm").write_text(f'<a href="{other}.htm">{other}</a> <a href="faq.htm">FAQ</a>')
        self.assertEqual(self.faults(), ["here.htm: nothing leads there", "there.htm: nothing leads there"])

    def test_a_link_to_the_net(self):
        self.assert_one("help/faq.htm", "#why", "https://tessaloom.example/", "faq.htm:1: https://tessaloom.example/ leads to the net")

    def test_an_element_that_is_not_closed(self):
        self.assert_one("help/faq.htm", "</body></html>", "</body>", "faq.htm: <html> is never closed")

    def test_elements_that_cross(self):
        (self.root / "help/faq.htm").write_text(FILES["help/faq.htm"].replace("So.</p>", "<b>So.</p></b>"))
        self.assertIn("faq.htm: line 1: </p> closes nothing", self.faults())

    def test_a_topic_of_the_program_without_a_page(self):
        self.assert_one("session/menus.cpp", "main, ", 'main, "puzzle.htm", ', "puzzle.htm: the program opens it, and there is no such page")

    def test_a_page_of_the_site_that_is_missing(self):
        self.assert_one("session/menus.cpp", "/faq.htm", "/news.htm", "/news.htm: the program opens it, and there is no such page")

    def test_a_control_that_the_program_does_not_have(self):
        self.assert_one("help/matrix.htm", "Save last", "Save first", 'matrix.htm: "Save first Flurn" is no text of the program')

    def test_pages_without_a_first_one(self):
        (self.root / "help/help_main.htm").unlink()
        self.assertEqual(self.faults(), ["help_main.htm is missing"])


if __name__ == "__main__":
    unittest.main()
