"""Shows that tools/check_designs finds each kind of fault, in a small catalogue that is clean without it."""
import importlib.machinery
import importlib.util
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.dont_write_bytecode = True
loader = importlib.machinery.SourceFileLoader("check_designs", str(ROOT / "tools" / "check_designs"))
checker = importlib.util.module_from_spec(importlib.util.spec_from_loader("check_designs", loader))
loader.exec_module(checker)

CATALOGUE = """[Design001]
Name=Match
File=__match
Style=Place
Design=Block
Background=Portrait
System=Yes

[Design101]
Name=Plain
File=plain
Style=Place
Design=Block
Background=Portrait
System=Yes
Count=3
Sample=plain.jpg
Description=plain
Match=No
Caption Clear=Yes
Turn BG=Yes

[Design102]
Name=Tilted
File=tilted
Style=Place
Design=Scatter
Background=Landscape
System=Yes
Count=3
Sample=tilted.jpg
Description=tilted
BG Image=sky.jpg
Match=No
Turn BG=No

[Design103]
Name=Rows
File=rows
Style=Fill
Design=Block
Background=Portrait
System=Yes
Count=12
Sample=rows.jpg
Description=rows
Match=No
Caption Clear=Yes
Turn BG=No

[Design104]
Name=Framed
File=framed
Style=Place
Design=Frame
Background=Portrait
System=Yes
Count=2
Sample=framed.jpg
Description=framed
Match=No
Turn BG=No
"""
TEMPLATES = """[plain]
100:100:900:600:0:-1:-1:0:
100:800:900:600:0:-1:-1:0:
1100:100:600:900:0:-1:-1:0:
[tilted]
300:300:400:600:-5:-1:-1:0:
300:1300:400:600:5:-1:-1:0:
# a comment
1000:300:400:600:0:-1:-1:0:
1000:1300:400:600:0:0:0:0:images/card.jpg
[rows]
100:100:4:3:0:0:0:0:
40:40:500:500:0:-1:-1:0:
[framed]
300:100:690:460:0:0:0:0:@/pframe
340:130:540:400:0:0:0:0:
300:900:690:460:0:0:0:0:@/pframe
340:930:540:400:0:0:0:0:
"""
DESCRIPTIONS = "".join(f"[{name}]\nA description.\n" for name in ("plain", "tilted", "rows", "framed"))
PICTURES = ("samples/plain.jpg", "samples/plain.jpg_", "samples/tilted.jpg", "samples/rows.jpg", "samples/framed.jpg",
            "images/sky.jpg", "images/preview/p_sky.jpg", "images/card.jpg")


class CheckDesigns(unittest.TestCase):
    def setUp(self):
        self.seed = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.seed)
        for name, text in (("designs.ini", CATALOGUE), ("design_list", TEMPLATES), ("description_list", DESCRIPTIONS),
                           ("rotate.ini", "[L-05]\n[P-05]\n[L05]\n[P05]\n")):
            (self.seed / name).write_bytes(text.replace("\n", "\r\n").encode())
        for name in PICTURES:
            (self.seed / name).parent.mkdir(parents=True, exist_ok=True)
            (self.seed / name).touch()
        self.paint_sky(60)

    def paint_sky(self, level, band=None):
        """A sky of one grey, and of another one in its upper part."""
        rows = [bytes([band if band is not None and y < 20 else level] * 3 * 150) for y in range(100)]
        subprocess.run(["cjpeg", "-quality", "95", "-outfile", str(self.seed / "images/sky.jpg")], check=True,
                       input=b"P6 150 100 255\n" + b"".join(rows))

    def change(self, name, old, new):
        path = self.seed / name
        text = path.read_bytes().decode()
        old, new = old.replace("\n", "\r\n"), new.replace("\n", "\r\n")
        self.assertIn(old, text)
        path.write_bytes(text.replace(old, new, 1).encode())

    def problems(self):
        return checker.problems(self.seed, self.seed)

    def assert_found(self, pattern):
        found = self.problems()
        self.assertTrue(any(re.search(pattern, problem) for problem in found), found)

    def assert_one(self, name, old, new, pattern):
        self.change(name, old, new)
        self.assert_found(pattern)

    def test_a_clean_catalogue_has_no_problem(self):
        self.assertEqual(self.problems(), [])

    def test_the_supplied_tables_are_clean(self):
        self.assertEqual(checker.problems(ROOT / "seed"), [])

    def test_status_is_1_with_a_problem(self):
        self.assertEqual(checker.main([str(self.seed)]), 0)
        self.change("designs.ini", "Count=3", "Count=4")
        self.assertEqual(checker.main([str(self.seed)]), 1)

    def test_a_count_that_differs(self):
        self.assert_one("designs.ini", "Count=12", "Count=11", "Rows: Count is 11, but it takes 12 photos")

    def test_a_frame_or_a_colour_out_of_range(self):
        self.assert_one("design_list", "900:600:0:-1:-1:0:", "900:600:0:99:-1:0:", "location 1: frame, shadow or colour")

    def test_a_colour_out_of_range(self):
        self.assert_one("design_list", "900:600:0:-1:-1:0:", "900:600:0:-1:-1:8:", "location 1: frame, shadow or colour")

    def test_a_tilt_that_is_no_multiple_of_five(self):
        self.assert_one("design_list", "600:5:", "600:7:", "location 2: a tilt of 7")

    def test_a_tilt_without_its_section(self):
        self.assert_one("rotate.ini", "[P-05]\n", "", "Tilted: rotate.ini has no section P-05")

    def test_a_number_of_more_than_sixteen_bits(self):
        self.assert_one("design_list", "100:100:900", "40000:100:900", "'40000' is no number")

    def test_a_line_with_too_few_fields(self):
        self.assert_one("design_list", "100:800:900:600:0:-1:-1:0:", "100:800:900:600", "line 2 has 4 fields")

    def test_a_blank_line_in_a_section(self):
        self.assert_one("design_list", "[tilted]", "\n[tilted]", "design_list: a blank line in .plain")

    def test_a_location_off_the_poster(self):
        self.assert_one("design_list", "100:100:900", "100:-141:900", "portrait: location 1 leaves the poster")

    def test_what_hangs_over_at_the_right_may_be_more(self):
        self.change("design_list", "1100:100:600:900", "1100:1400:600:900")
        self.assertEqual([problem for problem in self.problems() if "leaves" in problem and "portrait" in problem], [])
        self.change("design_list", "1100:1400:600:900", "1100:1500:600:900")
        self.assert_found("portrait: location 3 leaves the poster")

    def test_a_turned_design_that_leaves_the_poster(self):
        # On its own poster it hangs over below by 300, turned at the left.
        self.change("design_list", "1100:100:600:900", "2700:100:600:900")
        found = [problem for problem in self.problems() if "leaves" in problem]
        self.assertEqual(found, ["Plain: landscape: location 3 leaves the poster"])

    def test_a_photo_hidden_by_another(self):
        self.assert_one("design_list", "100:800:900:600", "150:150:900:600", r"portrait: location 1 is hidden by \d+%")

    def test_a_photo_hidden_by_a_fixed_picture(self):
        self.assert_one("design_list", "1000:1300:400:600:0:0", "980:290:440:640:0:0", "landscape: location 3 is hidden by 100%")

    def test_a_photo_hidden_by_a_third_is_none(self):
        self.change("design_list", "100:800:900:600", "100:510:900:600")
        self.assertEqual(self.problems(), [])

    def test_a_photo_whose_middle_is_hidden(self):
        self.change("design_list", "100:800:900:600", "400:100:300:600")
        self.assertEqual([problem for problem in self.problems() if problem.startswith("Plain: portrait: the")],
                         ["Plain: portrait: the middle of location 1 is hidden by 100%"])

    def test_a_strip(self):
        self.change("design_list", "1100:100:600:900", "1100:100:581:900")
        self.assertEqual(self.problems(), [])
        self.change("design_list", "1100:100:581:900", "1100:100:449:900")
        self.assert_found("portrait: location 3 is a strip of 900 by 449")

    def test_a_place_for_any_photo_that_bears_one_kind_alone(self):
        self.assert_one("design_list", "1100:100:600:900", "1100:100:580:900", "portrait: location 3 takes any photo, but is a strip of 900 by 580")

    def test_a_panorama_may_be_longer(self):
        self.change("designs.ini", "File=plain", "File=panorama")
        for name in ("design_list", "description_list"):
            self.change(name, "[plain]", "[panorama]")
        self.change("designs.ini", "Description=plain", "Description=panorama")
        self.change("design_list", "1100:100:600:900", "1100:100:300:900")
        self.assertEqual(self.problems(), [])

    def test_missing_pictures(self):
        for name in PICTURES:
            (self.seed / name).unlink()
            self.assert_found("missing: " + name + "$")
            (self.seed / name).touch()
            self.paint_sky(60)

    def test_a_missing_description(self):
        self.assert_one("description_list", "[rows]", "[row]", "Rows: no description")

    def test_a_missing_template(self):
        self.assert_one("designs.ini", "File=rows", "File=lines", "Rows: no template: lines")

    def test_a_name_or_a_file_that_stands_twice(self):
        self.change("designs.ini", "Name=Rows", "Name=Plain")
        self.assert_found("Plain: Name stands twice: Plain")
        self.change("designs.ini", "File=tilted", "File=plain")
        self.assert_found("Tilted: File stands twice: plain")

    def test_a_number_that_stands_twice(self):
        self.change("designs.ini", "[Design103]", "[Design102]")
        self.assert_found("Rows: Design102 stands twice")

    def test_a_key_in_the_wrong_case_or_with_blanks(self):
        self.change("designs.ini", "Count=12", "count=12")
        self.assert_found("Rows: no such key: count=12")
        self.change("designs.ini", "Design=Scatter", "Design =Scatter")
        self.assert_found("Tilted: no such key: Design =Scatter")

    def test_a_grid_that_would_turn(self):
        self.assert_one("designs.ini", "Match=No\nCaption Clear=Yes\nTurn BG=No", "Match=No\nCaption Clear=Yes\nTurn BG=Yes", "Rows: a grid can't turn")

    def test_a_cell_of_a_grid_off_the_poster(self):
        self.assert_one("design_list", "100:100:4:3:", "100:100:4:5:", "Rows: portrait: location 5 leaves the poster")

    def test_a_user_s_design_or_number(self):
        self.change("designs.ini", "Background=Landscape\nSystem=Yes", "Background=Landscape\nSystem=No")
        self.assert_found("Tilted: System is not Yes")
        self.change("designs.ini", "[Design103]", "[Design603]")
        self.assert_found("Rows: Design603 is no number")

    def test_a_fixed_shadow_unlike_the_frame(self):
        self.assert_one("designs.ini", "BG Image=sky.jpg", "BG Image=sky.jpg\nFrames=10\nShadows=15", "Tilted: a fixed shadow")

    def test_a_fixed_frame_about_a_fixed_picture(self):
        self.assert_one("designs.ini", "BG Image=sky.jpg", "BG Image=sky.jpg\nFrames=10\nShadows=10", "Tilted: a fixed frame would go round")

    def test_photos_that_leave_their_tape(self):
        self.change("design_list", "images/card.jpg", "images/tape_cream.jpg")
        self.assert_found("Tilted: photos of a scatter may turn away")
        self.assert_found("Tilted: tape would lie on the lower edges")
        self.change("designs.ini", "Design=Scatter", "Design=Theme")
        self.change("designs.ini", "BG Image=sky.jpg", "BG Image=sky.jpg\nFlip=No")
        self.assertFalse([problem for problem in self.problems() if "tape" in problem and "missing" not in problem])

    def test_a_caption_that_would_be_printed(self):
        self.assert_one("designs.ini", "BG Image=sky.jpg", "BG Image=sky.jpg\nCaption=None", "Tilted: the caption would be printed")

    def test_a_design_behind_those_of_custom_frames(self):
        self.assert_one("designs.ini", "Design=Scatter", "Design=Frame", "Rows: stands behind the designs of custom frames")

    def test_a_design_for_one_kind_of_photos_that_asks_to_match(self):
        self.change("designs.ini", "BG Image=sky.jpg\nMatch=No", "BG Image=sky.jpg\nMatch=Yes")
        self.assert_found(r"Tilted: landscape: \d+ of 20 mixes of photos show one twice while another stays out")

    def test_a_design_of_both_kinds_that_asks_to_match(self):
        # With as many photos as places it shows all of them only if their mix happens to be its own.
        self.change("designs.ini", "Match=No\nCaption Clear=Yes\nTurn BG=Yes", "Match=Yes\nCaption Clear=Yes\nTurn BG=Yes")
        self.assert_found(r"Plain: portrait: \d+ of 20 mixes of photos show one twice while another stays out")

    def test_a_grid_that_parts_its_cells_takes_every_mix(self):
        self.change("designs.ini", "Style=Fill", "Style=Matrix")
        self.change("designs.ini", "Match=No\nCaption Clear=Yes\nTurn BG=No", "Match=Yes\nCaption Clear=Yes\nTurn BG=No")
        self.assert_found("Rows: portrait: .* mixes")
        self.change("design_list", "100:100:4:3:0:", "100:100:4:3:1:")
        self.assertEqual(self.problems(), [])

    def test_photos_in_the_place_of_the_caption(self):
        self.change("designs.ini", "Caption Clear=Yes\nTurn BG=Yes", "Turn BG=Yes")
        self.assert_found(r"Plain: portrait: photos take \d+% of the caption's place at the top")
        self.assert_found(r"Plain: landscape: photos take \d+% of the caption's place at the top")

    def test_a_page_of_an_occasion_keeps_the_place_without_clearing_it(self):
        self.change("designs.ini", "Design=Block\nBackground=Portrait\nSystem=Yes\nCount=3", "Design=Theme\nBackground=Portrait\nSystem=Yes\nCount=3")
        self.assert_found("Plain: portrait: photos take .* at the top")

    def test_a_block_with_a_ground_of_its_own_keeps_the_place_as_well(self):
        self.change("designs.ini", "Caption Clear=Yes\nTurn BG=Yes", "Caption Clear=Yes\nBG Image=sky.jpg\nTurn BG=Yes")
        self.assert_found("Plain: portrait: photos take .* at the top")

    def test_photos_that_stay_in_the_place_of_a_cleared_caption(self):
        self.change("design_list", "1100:100:600:900", "2000:100:600:1300")
        self.assertEqual([problem for problem in self.problems() if "caption" in problem], [])
        self.change("design_list", "2000:100:600:1300", "2900:100:800:1200")
        self.assert_found("Plain: portrait: photos take .* at the bottom")

    def test_a_ground_too_light_for_the_caption(self):
        self.paint_sky(60, 150)
        found = [problem for problem in self.problems() if "contrast" in problem]
        self.assertEqual(found, ["Tilted: landscape: a caption at the top has a contrast of 3.0 to sky.jpg"])

    def test_a_ground_too_light_all_over(self):
        self.paint_sky(200)
        self.assert_found("a caption at the bottom has a contrast of 1.7 to sky.jpg")

    def test_a_frame_that_would_be_enlarged(self):
        self.assert_one("design_list", "300:100:690:460", "300:100:701:460", "Framed: location 1: a frame would be enlarged to 701 pixels")

    def test_too_few_or_too_many_lines(self):
        self.change("design_list", "1100:100:600:900:0:-1:-1:0:\n", "")
        self.assert_found("Plain: 2 locations")
        self.change("design_list", "[rows]", "# more\n" * 1000 + "[rows]")
        self.assert_found("Tilted: 1005 lines, of which 1001 are read")


if __name__ == "__main__":
    unittest.main()
