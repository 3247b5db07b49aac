#!/usr/bin/env python3
"""Runs tools/install_packages among stand-ins for dpkg-query, apt-get, sudo and id, and looks at what it asks of them."""
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
TOOLS = ["bash", "dirname", "grep", "awk", "cat"]

# Knows the packages of the file `there`: name, a tab, and what the package provides.
DPKG_QUERY = """#!{python}
import sys
words = sys.argv[sys.argv.index("-f") + 2:]
told = sys.argv[sys.argv.index("-f") + 1].replace("\\\\n", "\\n")
rows = dict(line.rstrip("\\n").split("\\t") for line in open("{folder}/there"))
for name in words or rows:
    if name not in rows:
        sys.exit("no packages found matching " + name)
    fields = {{"${{Status}}": "install ok installed", "${{db:Status-Status}}": "installed", "${{Package}}": name,
              "${{Provides}}": rows[name]}}
    line = told
    for field, value in fields.items():
        line = line.replace(field, value)
    sys.stdout.write(line)
"""
# Each writes down how it was called; apt-get fails where the file `offline` lies.
APT_GET = """#!/bin/bash
echo "apt-get $*" >> {folder}/calls
[ ! -e {folder}/offline ] || {{ echo "Could not resolve host" >&2; exit 100; }}
"""
SUDO = """#!/bin/bash
echo "sudo" >> {folder}/calls
exec "$@"
"""
ID = """#!/bin/bash
cat {folder}/user
"""


def names_of(listing):
    lines = (ROOT / "tools" / listing).read_text().splitlines()
    return [line for line in lines if line and not line.startswith("#")]


class installing(unittest.TestCase):
    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.folder = pathlib.Path(place.name)
        self.bin = self.folder / "bin"
        self.bin.mkdir()
        for tool in TOOLS:
            path = subprocess.run(["which", tool], capture_output=True, text=True, check=True).stdout.strip()
            (self.bin / tool).symlink_to(os.path.realpath(path) if tool != "awk" else path)
        for name, text in (("dpkg-query", DPKG_QUERY), ("apt-get", APT_GET), ("sudo", SUDO), ("id", ID)):
            self.stand_in(name, text)
        self.user(1000)
        self.there(names_of("packages.txt"))

    def stand_in(self, name, text):
        (self.bin / name).write_text(text.format(folder=self.folder, python=sys.executable))
        (self.bin / name).chmod(0o755)

    def user(self, number):
        (self.folder / "user").write_text(f"{number}\n")

    def there(self, packages, **provided):
        rows = [f"{name}\t{provided.get(name.replace('-', '_'), '')}\n" for name in packages]
        (self.folder / "there").write_text("".join(rows))

    def run_it(self, *lists):
        return subprocess.run([str(ROOT / "tools" / "install_packages"), *lists], capture_output=True, text=True,
                              env={"PATH": str(self.bin)}, timeout=60)

    def calls(self):
        path = self.folder / "calls"
        return path.read_text().splitlines() if path.exists() else []

    def all_is_quiet(self, told):
        self.assertEqual((told.returncode, told.stdout, told.stderr, self.calls()), (0, "", "", []))

    def test_is_quiet_when_all_is_there(self):
        (self.folder / "offline").touch()
        (self.bin / "sudo").unlink()
        self.all_is_quiet(self.run_it())

    def test_takes_a_package_that_another_provides_as_there(self):
        packages = [name for name in names_of("packages.txt") if name not in ("qt6-svg-dev", "cmake")]
        self.there(packages + ["other-svg", "other-cmake"], other_svg="svg (= 6.4.2-2), qt6-svg-dev (= 6.4.2-2)",
                   other_cmake="cmake")
        self.all_is_quiet(self.run_it())

    def test_names_only_packages_that_are_no_others_name(self):
        for listing in ("packages.txt", "packages_desktop.txt", "packages_test.txt", "packages_check.txt",
                        "packages_llvm.txt"):
            self.assertNotIn("libqt6svg6-dev", names_of(listing))

    def test_installs_what_is_missing_of_the_lists_asked_for(self):
        self.assertEqual(self.run_it("test").returncode, 0)
        self.assertEqual(self.calls(), ["sudo", "apt-get update -qq", "sudo",
                                        "apt-get install -y -qq --no-install-recommends "
                                        + " ".join(names_of("packages_test.txt"))])

    def test_needs_nothing_of_the_tests_or_checks_to_run(self):
        self.assertFalse(set(names_of("packages.txt")) & {"clang", "clang-format", "clang-tidy", "git", "libgtest-dev",
                                                          "libbenchmark-dev", "libclang-rt-dev", "xdotool", "xvfb"})

    def test_asks_for_no_rights_as_root(self):
        self.user(0)
        self.run_it("test")
        self.assertNotIn("sudo", self.calls())

    def test_names_what_is_missing_where_nobody_can_install(self):
        (self.bin / "sudo").unlink()
        self.there(names_of("packages.txt")[1:])
        told = self.run_it()
        self.assertEqual((told.returncode, self.calls()), (1, []))
        self.assertEqual(told.stderr, f"Missing: {names_of('packages.txt')[0]}. Run this as root, or install sudo.\n")

    def test_says_what_it_could_not_install(self):
        (self.folder / "offline").touch()
        self.there(names_of("packages.txt")[1:])
        told = self.run_it()
        self.assertEqual(told.returncode, 1)
        self.assertIn(f"Could not install {names_of('packages.txt')[0]}: see above.\n", told.stderr)

    def test_goes_on_where_there_are_no_debian_packages(self):
        (self.bin / "dpkg-query").unlink()
        told = self.run_it()
        self.assertEqual((told.returncode, self.calls()), (0, []))
        self.assertIn("This is no Debian.", told.stderr)


if __name__ == "__main__":
    unittest.main()
