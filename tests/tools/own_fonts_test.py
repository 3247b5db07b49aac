#!/usr/bin/env python3
"""Renders the frame sets among other fonts and settings than the machine has: own_fonts_test.py SOURCE BUILD. The archive
comes out as the build has it, byte for byte."""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCE, BUILD = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
BUILT = (BUILD / "seed" / "frames.zip").read_bytes()

# Takes a face that has STRANGE in its file name for the italic one of the serif family, which one of the sets asks for, and
# the true one for something else.
STRANGE_IS_ITALIC = """
    <match target="scan">
        <test name="file" compare="contains"><string>DejaVuSerif-Italic</string></test>
        <edit name="family" mode="assign"><string>Something else</string></edit>
    </match>
    <match target="scan">
        <test name="file" compare="contains"><string>STRANGE</string></test>
        <edit name="family" mode="assign"><string>DejaVu Serif</string></edit>
        <edit name="style" mode="assign"><string>Italic</string></edit>
        <edit name="slant" mode="assign"><const>italic</const></edit>
    </match>
"""


class own_fonts(unittest.TestCase):
    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.folder = pathlib.Path(place.name)
        self.fonts = (BUILD / "fonts.conf").read_text()
        mono = re.search(r"<glob>(.*DejaVuSansMono\.ttf)</glob>", self.fonts)[1]
        self.machine = self.folder / "machine"
        self.machine.mkdir()
        shutil.copyfile(mono, self.machine / "STRANGE.ttf")

    def file_of(self, folder=""):
        """A fonts file that takes the strange face for an italic one, with the folder besides. What is kept in its cache has
        been told so too, so it has one of its own."""
        own_cache = re.sub("<cachedir>.*</cachedir>", f"<cachedir>{self.folder}/cache</cachedir>", self.fonts)
        file = self.folder / "fonts.conf"
        file.write_text(own_cache.replace("</fontconfig>", f"{folder}{STRANGE_IS_ITALIC}</fontconfig>"))
        return file

    def rendered(self, fonts, **settings):
        target = self.folder / "frames.zip"
        subprocess.run([BUILD / "bin" / "frame_sets", SOURCE / "seed" / "art" / "frames", BUILD / "seed" / "icons",
                        self.folder / "work", fonts, target], check=True, env=dict(os.environ, **settings))
        return target.read_bytes()

    def test_another_face_of_the_family_is_not_seen(self):
        folder = f"<dir>{self.machine}</dir>"
        without = self.rendered(self.file_of())
        self.assertTrue(self.rendered(self.file_of(folder)) == without)
        # It would be, were it named.
        named = f"<selectfont><acceptfont><glob>{self.machine}/*</glob></acceptfont></selectfont>"
        self.assertFalse(self.rendered(self.file_of(folder + named)) == without)

    def test_fonts_and_settings_of_the_machine_are_not_seen(self):
        machine = f"<fontconfig><dir>{self.machine}</dir><cachedir>{self.folder}/machine_cache</cachedir></fontconfig>"
        (self.folder / "machine.conf").write_text(machine)
        self.assertTrue(self.rendered(BUILD / "fonts.conf", FONTCONFIG_FILE=str(self.folder / "machine.conf"),
                                      FREETYPE_PROPERTIES="truetype:interpreter-version=35") == BUILT)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
