#!/usr/bin/env python3
"""Each line of covered.txt names sources that this build compiles: one that is moved would be fuzzed blindly.

    covered_test.py BUILD
"""
import fnmatch
import json
import pathlib
import sys

compiled = {entry["file"] for entry in json.loads((pathlib.Path(sys.argv[1]) / "compile_commands.json").read_text())}
lines = (pathlib.Path(__file__).parent / "covered.txt").read_text().splitlines()
patterns = [line.removeprefix("src:") for line in lines if line.startswith("src:")]
idle = [pattern for pattern in patterns if not fnmatch.filter(compiled, pattern)]
print("\n".join(f"{pattern}: no source is called so" for pattern in idle) or f"{len(patterns)} lines name sources of this build")
sys.exit(bool(idle or not patterns))
