#!/usr/bin/env python3
"""What desktops and shells are told of the programs: desktop_files_test.py APP FILES, the staged program folder and the build's
folder of packaging. Man pages and completions know what --help knows; completions play in the shells that are there."""
import gzip
import os
import pathlib
import re
import shlex
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
APP, FILES = (pathlib.Path(word).resolve() for word in sys.argv[1:3])
SIZES = [16, 22, 24, 32, 48, 64, 128, 256, 512]
# In a terminal one types such a line and presses Tab.
BASH = """source {script}
compopt() {{ :; }}
COMP_WORDS=({words}); COMP_CWORD=$((${{#COMP_WORDS[@]}} - 1))
{function} "${{COMP_WORDS[0]}}"
printf '%s\\n' "${{COMPREPLY[@]}}"
"""


def output_of(*command, **more):
    return subprocess.run([str(word) for word in command], capture_output=True, text=True, check=True, timeout=120, **more).stdout


def options_of_help(program):
    """The option lines of --help, as it writes them, its values included."""
    lines = output_of(APP / program, "--help").splitlines()
    return [re.split(r"   +", line.strip())[0] for line in lines if re.match(r"  -", line)]


def names_of(rows):
    return {name for row in rows for name in re.findall(r"(?<![\w-])-{1,2}[a-z]+", row)}


def options_of_page(program):
    """The option lines of the man page, without what only its looks need."""
    text = gzip.decompress((FILES / f"{program}.1.gz").read_bytes()).decode()
    return [re.sub(r"\\f[BIR]|\\&", "", line).replace("\\-", "-")
            for line in re.findall(r"^\.TP\n(\\fB\\-.*)$", text, re.M)]


class desktop_files(unittest.TestCase):
    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.home = pathlib.Path(place.name)
        self.environment = {"PATH": f"{APP}:{os.environ['PATH']}", "HOME": str(self.home), "LANG": "C.UTF-8"}
        self.data = self.home / ".local" / "share" / "tessaloom4"

    def need(self, tool):
        if not shutil.which(tool):
            self.skipTest(f"no {tool}")

    def need_zsh_in_a_terminal(self):
        self.need("zsh")
        try:
            for end in os.openpty():
                os.close(end)
        except OSError:
            self.skipTest("no terminal can be opened here")

    def keep_a_design(self):
        output_of("tessaloom-batch", "--list", env=self.environment)
        with open(self.data / "designs.ini", "ab") as catalogue:
            catalogue.write(b"[Design600]\r\nName=Zebra's stripes\r\nFamily=Block\r\n")

    def test_man_pages_tell_every_option_as_the_help_does(self):
        for program in ("tessaloom-batch", "tessaloom-intake", "tessaloom-pack"):
            self.assertTrue(options_of_help(program))
            self.assertEqual(options_of_page(program), options_of_help(program))

    def test_man_pages_are_clean(self):
        self.need("groff")
        for page in sorted(FILES.glob("man/*.1")):
            told = subprocess.run(["groff", "-man", "-Tutf8", "-ww", "-z", "-rCHECKSTYLE=3", str(page)], capture_output=True, text=True)
            self.assertEqual((told.returncode, told.stderr), (0, ""), page.name)

    def test_every_shell_knows_every_option(self):
        bash = (FILES / "tessaloom.bash").read_text()
        zsh = (FILES / "_tessaloom").read_text()
        for program in ("batch", "intake", "pack"):
            fish = ((FILES / "tessaloom-batch.fish") if program == "batch" else
                    (ROOT / "packaging" / "completions" / f"tessaloom-{program}.fish")).read_text()
            wanted = names_of(options_of_help(f"tessaloom-{program}"))
            in_bash = re.search(rf"_tessaloom_{program}\(\) {{.*?\n}}", bash, re.S)[0]
            self.assertEqual(set(re.search(r'"(--[a-z]+ --.*)"', in_bash)[1].split()), wanted - {"-h"})
            in_zsh = re.search(rf"_tessaloom_{program}\(\) {{\n.*?\n}}", zsh, re.S)[0]
            self.assertEqual(set(re.findall(r"""['"*){,](-h|--[a-z]+)(?=[\[,}])""", in_zsh)), wanted)
            fish = "\n".join(re.findall(r"^complete .*", fish, re.M))
            named = {f"--{name}" for name in re.findall(r" -l (\w+)", fish)} | {f"-{name}" for name in re.findall(r" -s (\w)", fish)}
            self.assertEqual(named, wanted)

    def test_controls_are_those_that_can_be_set(self):
        refused = subprocess.run([APP / "tessaloom-batch", "--photos", self.home, "--design", "Mosaic wall", "--out", self.home / "x.jpg",
                                  "--set", "rubbish=1"], capture_output=True, text=True, env=self.environment).stderr
        known = set(re.findall(r"\w+", refused.partition("there are ")[2]))
        offered = set(self.bash("tessaloom-batch --set ''"))
        self.assertEqual({name.rstrip("=") for name in offered} - known, set())
        self.assertEqual({name for name in known if re.match(r"chk|cmb|opt|txtCaption", name)} -
                         {name.rstrip("=") for name in offered}, set())

    def bash(self, words):
        program = words.split()[0]
        script = BASH.format(script=FILES / "tessaloom.bash", words=words, function=f"_tessaloom_{program.rpartition('-')[2]}")
        return output_of("bash", "-c", script, env=self.environment, cwd=self.home).splitlines()

    def fish(self, words):
        script = f"source {FILES / 'tessaloom-batch.fish'}; complete -C '{words}'"
        told = output_of("fish", "--no-config", "-c", script, env=self.environment, cwd=self.home)
        return [line.split("\t")[0] for line in told.splitlines()]

    def test_bash_offers_what_can_follow(self):
        self.assertEqual(self.bash("tessaloom-batch --orientation l"), ["landscape"])
        self.assertEqual(self.bash("tessaloom-batch --pre"), ["--preview"])
        self.assertEqual(self.bash("tessaloom-batch --set cmbFr"), ["cmbFrame="])
        self.assertEqual(self.bash("tessaloom-batch --design Mosaic\\ w"), ["Mosaic\\ wall"])
        self.assertEqual(self.bash("tessaloom-batch --design = Mosaic\\ w"), ["Mosaic\\ wall"])
        self.assertEqual(self.bash("tessaloom-intake --li"), ["--list", "--limit"])
        self.assertEqual(self.bash("tessaloom-batch --random 5 --ag"), ["--again"])
        (self.home / "my photos").mkdir()
        self.assertEqual(self.bash("tessaloom-batch --photos a.jpg my"), ["my photos"])
        self.assertFalse(self.data.exists())

    def test_bash_offers_what_the_user_keeps(self):
        self.keep_a_design()
        self.assertEqual(self.bash("tessaloom-batch --design Zeb"), ["Zebra\\'s\\ stripes"])
        self.assertEqual(self.bash("tessaloom-pack --data ~/.local/share/tessaloom4 --design ''"), ["Zebra\\'s\\ stripes"])
        self.assertEqual(self.bash("tessaloom-pack --frame co"), ["colts"])
        self.assertEqual(self.bash("tessaloom-batch --frames co"), ["colts"])
        self.assertEqual(self.bash("tessaloom-pack --icon He"), ["Heart"])

    def test_bash_runs_nothing_that_stands_on_the_line(self):
        script = (FILES / "tessaloom.bash").read_text()
        self.assertNotIn("eval", script)
        words = "tessaloom-pack --data '$(touch ran)' --design '`touch ran`'"
        self.bash(words)
        self.assertFalse((self.home / "ran").exists())

    def test_fish_offers_what_can_follow(self):
        self.need("fish")
        self.assertEqual(self.fish("tessaloom-batch --orientation l"), ["landscape"])
        self.assertEqual(self.fish("tessaloom-batch --set cmbFr"), ["cmbFrame="])
        self.assertEqual(self.fish("tessaloom-batch --design Mosaic"), ["Mosaic wall"])
        self.assertFalse(self.data.exists())
        self.keep_a_design()
        self.assertEqual(self.fish("tessaloom-batch --design Zebra"), ["Zebra's stripes"])

    def zsh(self, typed):
        """What the line becomes when it is typed and Tab is pressed, in a terminal of its own."""
        (self.home / "zpty.zsh").write_text(f"""fpath=({FILES} $fpath); autoload -Uz compinit; compinit -u -d {self.home}/dump
complete_and_show() {{ zle complete-word; print -r -- "LINE<$BUFFER>"; exit }}
zle -N complete_and_show; bindkey '^I' complete_and_show; PS1=
""")
        script = f"""zmodload zsh/zpty; zpty play zsh -f -i; zpty -w play 'source {self.home}/zpty.zsh; print READY'
zpty -r play told '*READY*READY*'; zpty -n -w play {shlex.quote(typed)}$'\\t'; zpty -r play told '*LINE<*>*'; print -r -- $told"""
        return re.findall(r"LINE<(.*?)>", output_of("zsh", "-f", "-c", script, env=dict(self.environment, TERM="dumb"), cwd=self.home))[-1]

    def test_zsh_completes_designs_and_controls(self):
        self.need_zsh_in_a_terminal()
        self.assertEqual(self.zsh("tessaloom-batch --orientation l"), "tessaloom-batch --orientation landscape ")
        self.assertEqual(self.zsh("tessaloom-batch --set cmbFr"), "tessaloom-batch --set cmbFrame=")
        self.assertEqual(self.zsh("tessaloom-batch --design Mosaic"), "tessaloom-batch --design Mosaic\\ wall ")

    def test_zsh_reads_its_completion(self):
        self.need_zsh_in_a_terminal()
        script = f"""autoload -Uz compinit; fpath=({FILES} $fpath); compinit -u -d {self.home}/dump
whence -w _tessaloom; print -r -- $_comps[tessaloom-batch] $_comps[tessaloom-pack] $_comps[tessaloom-intake]; zsh -n {FILES}/_tessaloom"""
        self.assertEqual(output_of("zsh", "-f", "-c", script, env=self.environment).split(),
                         ["_tessaloom:", "function", "_tessaloom", "_tessaloom", "_tessaloom"])

    def test_icons_have_their_sizes_and_are_no_blank(self):
        for size in SIZES:
            icon = (FILES / "icons" / str(size) / "tessaloom.png").read_bytes()
            self.assertEqual(struct.unpack(">II", icon[16:24]), (size, size))
            self.assertGreater(len(icon), 10 * size)

    def test_the_desktop_takes_entry_and_metainfo(self):
        entry = ROOT / "packaging" / "tessaloom.desktop"
        metainfo = FILES / "example.tessaloom.tessaloom.metainfo.xml"
        if shutil.which("desktop-file-validate"):
            self.assertEqual(output_of("desktop-file-validate", entry), "")
        if shutil.which("appstreamcli"):
            self.assertIn("Validation was successful", output_of("appstreamcli", "validate", "--no-net", "--no-color", metainfo))
        for name in re.findall(r"/screens/(\S+?)<", metainfo.read_text()):
            self.assertTrue((ROOT / "docs" / "screens" / name).exists(), name)
        # .pls is known as a list of music, so it isn't named.
        self.assertEqual(re.findall(r"^MimeType=(.*)$", entry.read_text(), re.M), ["application/x-tessaloom-flurn;"])
        self.assertIn("Exec=tessaloom %f\n", entry.read_text())

    def test_a_flurn_is_known_by_its_name_and_its_first_line(self):
        kinds = ROOT / "packaging" / "tessaloom-flurn.xml"
        self.assertIn("application/x-tessaloom-flurn", (FILES / "example.tessaloom.tessaloom.metainfo.xml").read_text())
        known = xml.etree.ElementTree.parse(kinds).getroot()
        space = {"m": "http://www.freedesktop.org/standards/shared-mime-info"}
        self.assertEqual(known.find("m:mime-type", space).get("type"), "application/x-tessaloom-flurn")
        self.assertEqual(known.find(".//m:glob", space).get("pattern"), "*.flurn")
        first = (ROOT / "recipes" / "recipe_rows.h").read_text()
        begins = known.find(".//m:match", space).get("value").replace("\\t", "")
        self.assertIn(f'heading = "{begins}"', first)
        if shutil.which("update-mime-database") and shutil.which("gio"):
            place = self.home / "share" / "mime" / "packages"
            place.mkdir(parents=True)
            shutil.copy(kinds, place)
            output_of("update-mime-database", place.parent)
            flurn = self.home / "x.flurn"
            flurn.write_text("Tessaloom flurn\t1\r\nend\r\n")
            told = output_of("gio", "info", "-a", "standard::content-type", flurn,
                             env=dict(self.environment, XDG_DATA_HOME=str(self.home / "share")))
            self.assertIn("application/x-tessaloom-flurn", told)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
