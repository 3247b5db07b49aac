"""What a change is: the files that aren't as they were in the commit landed last."""
import os
import pathlib
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent


def git(*words):
    """What git says, or nothing where it fails."""
    told = subprocess.run(["git", *words], cwd=ROOT, capture_output=True, text=True)
    return told.stdout.strip() if told.returncode == 0 else ""


def landed():
    """The last commit that this one and what has landed have in common: TESSALOOM_LANDED or the head of the remote's
    main branch. Nothing where that isn't known."""
    for name in (os.environ.get("TESSALOOM_LANDED"), "origin/HEAD", "origin/main"):
        base = git("merge-base", "HEAD", name) if name else ""
        if base and base != git("rev-parse", "HEAD"):
            return base
    return ""


def changed_files(base):
    return set(git("diff", "--name-only", base).splitlines()) | set(
        git("ls-files", "--others", "--exclude-standard").splitlines())
