"""What a build's object files say: which function is defined where, and which source calls it.

The compiler has resolved every overload, template and macro, so nothing is guessed from the text; any build will do,
optimised or with sanitizers, as calls between sources stay symbols in all of them.
"""
import json
import os
import pathlib
import re
import subprocess

# What the compiler makes of its own accord: tables of classes, guards, the sanitizers' marks.
MADE_BY_COMPILER = re.compile(r"(non-virtual thunk to |virtual thunk to |(vtable|typeinfo|typeinfo name|VTT|guard variable|"
                              r"construction vtable|TLS \w+ function) for |__|_GLOBAL_|DW\.ref\.)")
DEFINED = set("TDBR")  # code and data that other objects see; what several may define, as inline functions are, is left


def objects_of(root, build):
    """The object of each source below `root`, by the build's own list of commands; of a template's by its own name."""
    found, made = {}, os.path.relpath(build / "windows", root) + os.sep
    for entry in json.loads((build / "compile_commands.json").read_text()):
        source = os.path.relpath(entry["file"], root).removeprefix(made)
        output = re.search(r" -o (\S+\.o)\b", entry["command"])
        if not source.startswith("..") and output:
            path = pathlib.Path(entry["directory"]) / output[1]
            if path.exists():
                found.setdefault(source, path)
    return found


def symbols_of(objects):
    """Two tables by source: the symbols it defines for others, and those it needs."""
    source_of = {str(path): source for source, path in objects.items()}
    if not objects:
        return {}, {}
    told = subprocess.run(["nm", "--extern-only", "--print-file-name", *source_of], capture_output=True, text=True, check=True)
    defines, needs = {}, {}
    for line in told.stdout.splitlines():
        path, kind, symbol = re.fullmatch(r"(.+?\.o):\s*[0-9a-f]*\s+(\S) (\S+)", line).groups()
        if kind in DEFINED:
            defines.setdefault(source_of[path], set()).add(symbol)
        elif kind == "U":
            needs.setdefault(source_of[path], set()).add(symbol)
    return defines, needs


def readable(symbols):
    """The names of symbols as the sources write them."""
    symbols = sorted(symbols)
    told = subprocess.run(["c++filt"], input="\n".join(symbols), capture_output=True, text=True, check=True)
    return dict(zip(symbols, told.stdout.splitlines()))


def bare_name(signature):
    """`form::find(std::string_view) const` -> `find`, `bitmap::operator bool() const` -> `operator bool`."""
    plain = re.sub(r"\[abi:\w+\]", "", signature)
    operator = re.search(r"\boperator\s*(\(\)|\[\]|[^\w\s(]+|[\w:<> ]+)", plain)
    return operator[0] if operator else plain.split("(")[0].split("::")[-1]


class call_graph:
    """The functions that each source defines for others, and the arrows from the sources that need them."""

    def __init__(self, root, build, sources):
        self.objects = {source: path for source, path in objects_of(root, build).items() if source in sources}
        self.defines, self.needs = symbols_of(self.objects)
        self.names = readable({symbol for each in self.defines.values() for symbol in each})
        self.homes = {}
        for source, each in self.defines.items():
            for symbol in each:
                self.homes.setdefault(symbol, []).append(source)

    def home_of(self, symbol, source):
        """Where the symbol that a source needs is defined: of two programs that have the same, in its own folder."""
        folder = os.path.dirname(source)
        homes = self.homes.get(symbol, [])
        return next((home for home in homes if os.path.dirname(home) == folder), homes[0] if homes else source)

    def functions(self, source):
        """What it defines for others, as text, without what the compiler adds."""
        return sorted({self.names[symbol] for symbol in self.defines.get(source, ())
                       if not MADE_BY_COMPILER.match(self.names[symbol])})

    def every_call(self):
        """(source, source whose function it needs, name of that function)"""
        found = []
        for source, symbols in sorted(self.needs.items()):
            for symbol in sorted(symbols):
                home = self.home_of(symbol, source)
                if home != source:
                    found.append((source, home, self.names[symbol]))
        return found

    def arrows(self):
        """The same with one function for each two sources."""
        return list({call[:2]: call for call in reversed(self.every_call())}.values())[::-1]
