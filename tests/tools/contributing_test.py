#!/usr/bin/env python3
"""Carries out the worked examples of CONTRIBUTING.md, as they stand there, in a copy of the sources:
contributing_test.py CMAKE CXX BUILD. What they add is compiled, checked and tried; the program itself isn't built anew."""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
CMAKE, CXX, BUILD = sys.argv[1], sys.argv[2], pathlib.Path(sys.argv[3]).resolve()
APP, PHOTOS = BUILD / "app", BUILD / "sample_photos"
PAGE = (ROOT / "CONTRIBUTING.md").read_text()
# "`file`, new:" or "`file`, at the end:", which may stand at the end of a sentence, and the block behind it.
STEP = re.compile(r"`([\w/.]+)`,\s(new|at the end):\n\n```\w+\n(.*?)```", re.S)


def part(title):
    return re.search(rf"^## {title}\n(.*?)(?=^## |\Z)", PAGE, re.M | re.S)[1]


class contributing(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        place = tempfile.TemporaryDirectory()
        cls.addClassCleanup(place.cleanup)
        cls.root = pathlib.Path(place.name) / "tessaloom"
        cls.root.mkdir()
        rooms = [path.name for path in ROOT.iterdir() if path.name not in (".git", "build", "out", "docs")]
        for name in rooms:
            if (ROOT / name).is_dir():
                shutil.copytree(ROOT / name, cls.root / name, ignore=shutil.ignore_patterns("__pycache__"))
            else:
                shutil.copy(ROOT / name, cls.root / name)
        for title in ("A design", "A quick style", "A window"):
            cls.follow(part(title))

    @classmethod
    def follow(cls, text):
        steps = STEP.findall(text)
        if len(steps) != len(re.findall(r"^```(?!sh)\w+$", text, re.M)):
            raise AssertionError("a block says nowhere which file it is of")
        for name, kind, lines in steps:
            path = cls.root / name
            if (kind == "new") == path.exists():
                raise AssertionError(f"{name} is said to be {kind}")
            path.parent.mkdir(exist_ok=True)
            with open(path, "a") as file:
                file.write(lines if kind == "new" else "\n\n" + lines)

    def run_it(self, *words):
        environment = dict(os.environ, HOME=str(self.root.parent), PYTHONDONTWRITEBYTECODE="1")
        environment.pop("XDG_DATA_HOME", None)
        told = subprocess.run([str(word) for word in words], cwd=self.root, capture_output=True, text=True, timeout=280,
                              env=environment)
        self.assertEqual(told.returncode, 0, told.stdout + told.stderr)
        return told.stdout + told.stderr

    def seed_of(self, name):
        """The seed with this design alone beside the reserved ones: all of them take long to check."""
        small = self.root.parent / "seed"
        shutil.copytree(self.root / "seed", small)
        for table in ("designs.ini", "design_list", "description_list"):
            sections = re.split(r"(?m)^(?=\[)", (small / table).read_bytes().decode())
            kept = [text for text in sections if f"Name={name}\r" in text or "File=__" in text or "[wide_between]" in text]
            (small / table).write_bytes("".join(kept).encode())
        return small

    def test_the_design_is_written_checked_and_drawn(self):
        self.run_it(sys.executable, "tools/make_starter_designs", "seed")
        self.assertEqual(self.run_it(sys.executable, "tools/check_designs", self.seed_of("Wide between")), "")
        staged = self.root.parent / "app"
        staged.mkdir()
        for path in APP.iterdir():
            table = self.root / "seed" / path.name.replace("designs.seed", "designs.ini")
            is_program = path.name.startswith("tessaloom")
            if is_program or table.is_file():
                shutil.copy(path if is_program else table, staged / path.name)
            else:
                (staged / path.name).symlink_to(path.resolve())
        self.run_it(staged / "tessaloom-batch", "--photos", PHOTOS, "--design", "Wide between", "--preview", "--out", "wide.jpg")
        self.assertGreater((self.root / "wide.jpg").stat().st_size, 10000)

    def test_style_and_window_stand_where_they_should_and_compile(self):
        told = self.run_it(sys.executable, "tools/check_floors", ".")
        self.assertIn("no include", told)
        build = self.root / "build"
        self.run_it(CMAKE, "-S", ".", "-B", build, "-G", "Ninja", f"-DCMAKE_CXX_COMPILER={CXX}", "-DCMAKE_BUILD_TYPE=Debug",
                    "-DTESSALOOM_SEED=OFF", "-DTESSALOOM_TESTS=OFF", "-DCMAKE_CXX_FLAGS_DEBUG=-O0")
        made = ("CMakeFiles/cores.dir/quick/columns/columns_plan.cpp.o",
                "CMakeFiles/procedures.dir/quick/columns/quick_columns.cpp.o",
                "CMakeFiles/handlers.dir/support/windows/frmCounted.cpp.o",
                "CMakeFiles/handlers.dir/windows/session/connect_windows.cpp.o")
        for each in made:
            self.run_it(CMAKE, "--build", build, "--target", each)
        windows = (build / "windows" / "desktop" / "binder" / "windows_made.cpp").read_text()
        self.assertIn("frmCounted", windows)
        self.try_the_core(build / made[0])

    def try_the_core(self, core):
        program = self.root.parent / "columns_test"
        self.run_it(CXX, "-std=c++20", "-I.", "tests/quick/columns_plan_test.cpp", core, BUILD / "libground.a",
                    "-lgtest_main", "-lgtest", "-pthread",
                    "-o", program)
        self.assertIn("[  PASSED  ] 2 tests.", self.run_it(program))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
