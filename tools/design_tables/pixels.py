"""Pixels of a JPEG, by djpeg of libjpeg-turbo, and what is measured in them."""
import shutil
import subprocess
from dataclasses import dataclass

WHITE = 1.0
LIGHTEST = 0.02  # of a band: what is lighter than the rest are specks
FLAT, STEP, FAR = 14, 3, 16  # a run of one level, a step to the next that shows as a ring, rows from one looked at to the next


@dataclass
class Picture:
    width: int
    height: int
    data: bytes  # three bytes a pixel, from the top left

    def rows(self, top, bottom, left, right):
        for y in range(max(0, top), min(self.height, bottom)):
            start = (y * self.width + max(0, left)) * 3
            yield self.data[start:(y * self.width + min(self.width, right)) * 3]


def can_read():
    return shutil.which("djpeg") is not None


def read(path, part=1):
    """The picture, or with `part` of 2, 4 or 8 that part of its width and height."""
    done = subprocess.run(["djpeg", "-pnm", "-rgb", "-scale", f"1/{part}", str(path)], capture_output=True, check=True)
    kind, width, height, _ = done.stdout[:30].split(maxsplit=3)
    if kind != b"P6":
        raise ValueError(f"{path}: no colours")
    width, height = int(width), int(height)
    return Picture(width, height, done.stdout[-3 * width * height:])


def linear(level):
    share = level / 255
    return share / 12.92 if share <= 0.03928 else ((share + 0.055) / 1.055) ** 2.4


LINEAR = [linear(level) for level in range(256)]


def luminance(red, green, blue):
    return 0.2126 * LINEAR[red] + 0.7152 * LINEAR[green] + 0.0722 * LINEAR[blue]


def contrast(one, other):
    light, dark = max(one, other), min(one, other)
    return (light + 0.05) / (dark + 0.05)


def white_over(picture, area):
    """The contrast of white letters to the lightest of what lies below them; `area` in shares of width and height."""
    left, top, right, bottom = area
    found = []
    for row in picture.rows(round(top * picture.height), round(bottom * picture.height), round(left * picture.width),
                            round(right * picture.width)):
        found += [luminance(*row[at:at + 3]) for at in range(0, len(row), 3)]
    found.sort()
    return contrast(WHITE, found[max(0, int(len(found) * (1 - LIGHTEST)) - 1)]) if found else 0.0


def ringed(picture):
    """The share of the picture that lies in flat runs which end in a small step: rings in a gradient."""
    seen = inside = 0
    for y in range(FAR // 2, picture.height, FAR):
        row = picture.data[y * picture.width * 3:(y + 1) * picture.width * 3]
        levels = [row[at] + row[at + 1] + row[at + 2] for at in range(0, len(row), 3)]
        runs, start = [], 0
        for at in range(1, len(levels) + 1):
            if at == len(levels) or levels[at] != levels[start]:
                runs.append((at - start, levels[start]))
                start = at
        for (length, level), (following, other) in zip(runs, runs[1:]):
            if length >= FLAT and following >= FLAT and abs(level - other) <= STEP:
                inside += length
        seen += len(levels)
    return inside / max(1, seen)
