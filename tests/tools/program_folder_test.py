#!/usr/bin/env python3
"""Stages and installs the program over what a user has, with the steps that ./run and an installation take:
program_folder_test.py CMAKE BUILD, where BUILD is a whole release build. Nothing of the user's may change by a byte."""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

CMAKE, BUILD = sys.argv.pop(1), pathlib.Path(sys.argv.pop(1)).resolve()
BRING = pathlib.Path(__file__).resolve().parent.parent.parent / "cmake" / "app" / "bring.cmake"

# What a user makes or changes, beside what the program supplies.
USERS = {
    "designs.ini": b"[Design600]\r\nName=Mine\r\n", "designs/saved600": b"1:2:3:4:0:0:0:0:\r\n",
    "descriptions/saved600": b"kept\r\n", "samples/saved600.jpg": b"sample", "samples/not_yet.jpg": b"redrawn",
    "piclists/holiday.pls": b"P /photos/one.jpg\r\n", "user_images/custom_shape.gif": b"shape",
    "frames/Our summer/design.ini": b"[Frame Design]\r\n", "frames/Our summer/pframe00.jpg": b"frame",
    "icons/icons": b"glow glow.bmp\r\n", "icons/glow.bmp": b"icon", "icons/boat.bmp": b"another boat",
    "alpha/char_a.gif": b"letter", "puzzle/puzzle4.gif": b"piece", "tmp/finished.jpg": b"the last Flurn",
    "designs/__quick": b"work", "designs.supplied": b"noted", "3_1_install": b"", "4_2_install": b"",
}


def write(folder, files):
    for name, content in files.items():
        path = folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)


def contents(folder):
    return {path.relative_to(folder).as_posix(): path.read_bytes() for path in folder.rglob("*") if path.is_file()}


def times(folder):
    return {path.relative_to(folder).as_posix(): path.stat().st_mtime_ns for path in folder.rglob("*") if path.is_file()}


class program_folder(unittest.TestCase):
    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.folder = pathlib.Path(place.name)
        self.home = self.folder / "home"
        write(self.home / "tessaloom4", USERS)
        self.before = contents(self.home)
        self.addCleanup(lambda: self.assertEqual(contents(self.home), self.before))

    def run_it(self, *words):
        told = subprocess.run([str(word) for word in words], capture_output=True, text=True, timeout=250,
                              env=dict(os.environ, XDG_DATA_HOME=str(self.home), HOME=str(self.folder)))
        self.assertEqual(told.returncode, 0, told.stdout + told.stderr)
        return told.stdout + told.stderr

    def install(self, prefix):
        told = self.run_it(CMAKE, "--install", BUILD, "--prefix", prefix)
        return told, next(prefix.glob("lib*/**/tessaloom/tessaloom-batch")).parent

    def bring(self, seed, to):
        return self.run_it(CMAKE, "-D", f"FROM={seed}", "-D", f"TO={to}", "-P", BRING)

    def test_staging_again_writes_nothing(self):
        self.run_it(CMAKE, "--build", BUILD, "--target", "app")
        staged = times(BUILD / "app")
        self.run_it(CMAKE, "--build", BUILD, "--target", "app")
        self.assertEqual(times(BUILD / "app"), staged)

    def test_installing_again_writes_nothing(self):
        _, home = self.install(self.folder / "prefix")
        first = times(home)
        self.install(self.folder / "prefix")
        self.assertEqual(times(home), first)
        links = self.folder / "prefix" / "bin"
        self.assertEqual(sorted(path.name for path in links.iterdir()), ["tessaloom", "tessaloom-batch", "tessaloom-intake", "tessaloom-pack"])
        for link in links.iterdir():
            self.assertEqual(link.resolve(), home / link.name)

    def test_an_installed_program_writes_nothing_beside_itself(self):
        _, home = self.install(self.folder / "prefix")
        whole = contents(home)
        for data in ("fresh", "fresh"):
            told = self.run_it(home / "tessaloom-batch", "--list", "--data", self.folder / data)
            self.assertIn("Mosaic wall", told)
        self.assertEqual(contents(home), whole)
        self.assertEqual({path.name for path in home.iterdir() if path.is_dir()},
                         {name.split("/")[0] for name in whole if "/" in name})

    def test_a_portable_program_is_its_own_data_folder(self):
        _, home = self.install(self.folder / "prefix")
        (home / "portable").touch()
        self.assertIn("Mosaic wall", self.run_it(home / "tessaloom-batch", "--list"))
        self.assertTrue((home / "3_1_install").exists())

    def test_an_upgrade_replaces_the_program_and_supplies_what_is_new(self):
        _, home = self.install(self.folder / "prefix")
        whole = contents(home)
        write(home, {"quick_block.ini": b"older", "designs.ini": b"older", "tessaloom-pack": b"older"})
        for name in ("images/white.jpg", "samples/not_yet.jpg", "icons/boat.bmp"):
            (home / name).unlink()
        self.install(self.folder / "prefix")
        self.assertEqual(contents(home), whole)

    def test_an_upgrade_leaves_a_portable_folder_its_data(self):
        _, home = self.install(self.folder / "prefix")
        whole = contents(home)
        write(home, {"portable": b"", **USERS, "design_list": b"older", "designs.seed": b"older"})
        (home / "alpha/char_b.gif").unlink()
        for _ in range(2):
            self.install(self.folder / "prefix")
            self.assertEqual(contents(home), {**whole, **USERS, "portable": b""})

    def test_a_newer_seed_leaves_a_portable_folder_its_data(self):
        seed, app = self.folder / "seed", self.folder / "app"
        write(seed, {"designs.ini": b"one", "designs.seed": b"one", "icons/boat.bmp": b"boat", "images/white.jpg": b"white"})
        self.bring(seed, app)
        (app / "portable").touch()
        users = {"designs.ini": b"mine", "icons/boat.bmp": b"my boat", "frames/colts/captions": b"mine"}
        write(app, users)
        newer = {"designs.ini": b"one two", "designs.seed": b"one two", "icons/boat.bmp": b"ship",
                 "icons/star.bmp": b"star", "images/white.jpg": b"whiter", "frames/colts/captions": b"theirs"}
        write(seed, newer)
        self.bring(seed, app)
        self.assertEqual(contents(app), {**newer, **users, "portable": b""})

    def test_what_an_earlier_version_kept_beside_the_program_is_put_aside_whole(self):
        _, home = self.install(self.folder / "prefix")
        whole = contents(home)
        write(home, USERS)
        told, _ = self.install(self.folder / "prefix")
        kept = next(home.parent.glob("tessaloom_data_*"))
        self.assertIn(f"What an earlier version kept in {home} is in {kept} now.", told)
        found = contents(kept)
        self.assertEqual({name: found.get(name) for name in USERS}, USERS)
        self.assertEqual(contents(home), whole)

    def test_an_installation_for_a_package_goes_under_its_own_root(self):
        root = self.folder / "root"
        os.environ["DESTDIR"] = str(root)
        self.addCleanup(os.environ.pop, "DESTDIR")
        self.run_it(CMAKE, "--install", BUILD, "--prefix", "/usr")
        found = contents(root)
        self.assertEqual({name for name in found if not name.startswith("usr/")}, set())
        self.assertTrue(any(name.endswith("tessaloom/designs.ini") for name in found))
        shutil.rmtree(root)


if __name__ == "__main__":
    unittest.main()
