"""The supplied tables, read as the program reads them."""
import re
from dataclasses import dataclass, field

RESERVED_FILES = ("__match", "__quick", "__matrix", "__lettering", "__puzzle", "__frames")
KEYS = {"Name": "", "File": "", "Style": "", "Design": "", "Background": "", "Ratio": "2x3", "Distort": "No", "Sample": "",
        "Help Tip": "No information available", "Description": "", "System": "", "Count": "", "Turn BG": "Yes",
        "BG Image": "Either", "BG Color": "", "Match": "Yes", "Resize": "Crop", "Caption": "", "Frames": "Yes",
        "Shadows": "Yes", "Block": "Choose", "Soft Edge": "Choose", "Caption Color": "", "Caption Clear": "",
        "Frame Color": "", "Shadow Color": "", "Flip": "Yes", "Borders": "", "Quick Shape": ""}
MOST_LINES = 1001


def lines_of(path):
    return path.read_bytes().decode("latin-1").replace("\r\n", "\n").removesuffix("\n").split("\n")


def whole_number(text):
    return re.fullmatch(r"-?\d+", text) is not None


@dataclass
class Design:
    section: str
    values: dict = field(default_factory=dict)
    unknown: list = field(default_factory=list)

    def __getitem__(self, key):
        return self.values.get(key, KEYS[key])

    def title(self):
        return self["Name"] or self.section

    def reserved(self):
        return self["File"] in RESERVED_FILES

    def grid(self):
        return self["Style"] in ("Fill", "Matrix")

    def picture(self):
        return "" if self["BG Image"] in ("Either", "", "None", "Solid") else self["BG Image"]


def read_catalogue(path):
    """The designs in their order; a line without a key that is known is an unknown one, unless it is blank."""
    designs = []
    for line in lines_of(path):
        if line.startswith("[Design"):
            designs.append(Design(line[1:10] if line[10:] == "]" else line.strip("[]")))
            continue
        key, sign, value = line.partition("=")
        if designs and line:
            if sign and key in KEYS:
                designs[-1].values[key] = value
            else:
                designs[-1].unknown.append(line)
    return designs


def read_sections(path):
    """The lines below each header; of headers that stand twice the first counts."""
    sections, lines = {}, []
    for line in lines_of(path):
        if line.startswith("["):
            lines = []
            sections.setdefault(line[1:line.find("]")], lines)
        else:
            lines.append(line)
    return sections


@dataclass(frozen=True)
class Place:
    top: int
    left: int
    height: int
    width: int
    rotation: int
    frame: int
    shadow: int
    spare: int
    file: str = ""

    def shape(self):
        return self.height == 0 or self.width == 0

    def photo(self):
        return self.spare == 0 if self.shape() else not self.file


@dataclass
class Template:
    places: list
    faults: list
    lines: int

    def photos(self, grid):
        if grid:
            return sum(first.height * first.width for first in self.places[::2])
        return sum(place.photo() for place in self.places)


def read_template(sections, name):
    """The locations of a section up to the line that would end it; nothing when there is no such section."""
    if name not in sections:
        return None
    places, faults = [], []
    for at, line in enumerate(sections[name][:MOST_LINES]):
        if line.startswith("#"):
            continue
        fields = line.split(":", 8)
        if len(fields) != 9:
            faults.append(f"line {at + 1} has {len(fields)} fields")
            if len(fields) < 5:
                break
        if not fields[4]:
            faults.append(f"line {at + 1} ends the template")
            break
        fields += [""] * (9 - len(fields))
        for text in fields[:8]:
            if not whole_number(text) or abs(int(text)) > 32767:
                faults.append(f"line {at + 1}: {text!r} is no number of sixteen bits")
        numbers = [int(text) if whole_number(text) else 0 for text in fields[:8]]
        places.append(Place(*numbers, fields[8]))
    return Template(places, faults, len(sections[name]))
