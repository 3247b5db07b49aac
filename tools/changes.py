"""What a change is: the files that aren't as they were in the commit landed last."""
import os
import pathlib
import re
import subprocess

INCLUDED = re.compile(r'^#include "([^"]+)"', re.M)
ROOT = pathlib.Path(__file__).resolve().parent.parent


def git(*words):
    """What git says, or nothing where it fails."""
    told = subprocess.run(["git", *words], cwd=ROOT, capture_output=True, text=True)
    return told.stdout.strip() if told.returncode == 0 else ""


def landed():
    """The last commit that this one and what has landed have in common: TESSALOOM_LANDED or the head of the remote's
    main branch. Where these tell nothing, the last one at which every source and header was looked at, which
    tools/all_looked_at names. Nothing where that isn't known either."""
    noted = ROOT / "tools" / "all_looked_at"
    names = [os.environ.get("TESSALOOM_LANDED"), "origin/HEAD", "origin/main", noted.is_file() and noted.read_text().strip()]
    for name in names:
        base = git("merge-base", "HEAD", name) if name else ""
        if base and base != git("rev-parse", "HEAD"):
            return base
    return ""


def changed_files(base):
    return set(git("diff", "--name-only", base).splitlines()) | set(
        git("ls-files", "--others", "--exclude-standard").splitlines())


def touches(patterns, changed):
    """Whether one of the changed files is of those patterns, as a whole name."""
    return any(re.fullmatch(pattern, name) for pattern in patterns for name in changed)


def parts_of(file, root):
    """The file and what it includes of the house, however far; a made header counts as its template."""
    found, left = set(), [file]
    while left:
        name = next((each for each in (left[-1], f"{left[-1]}.in") if (root / each).is_file()), None)
        left.pop()
        if name and name not in found:
            found.add(name)
            left += INCLUDED.findall((root / name).read_text())
    return found
