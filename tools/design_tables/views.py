"""A design as it lies on the poster: upright, and turned where the browser offers that."""
import math
from dataclasses import dataclass, replace

PORTRAIT, LANDSCAPE = (2000, 3000), (3000, 2000)
SAMPLES = 14  # points of a photo, each way


@dataclass
class View:
    name: str
    size: tuple
    places: list


def cells_of(places):
    """The photos of a grid, layer by layer."""
    found = []
    for first, cell in zip(places[::2], places[1::2]):
        for row in range(first.height):
            for column in range(first.width):
                found.append(replace(cell, top=first.top + row * (cell.top + cell.height),
                                     left=first.left + column * (cell.left + cell.width), rotation=0))
    return found


def turned(place, edge):
    """As the program turns a location: the corner of a tilted one moves by a rounded share of its height."""
    top = round(place.left - place.height * place.rotation * 0.0174)
    return replace(place, top=top, left=edge - (place.top + place.height), height=place.width, width=place.height)


def views(design, places):
    """The design's own orientation, and the other one if it may be turned."""
    wide = design["Background"] == "Landscape"
    size = LANDSCAPE if wide else PORTRAIT
    found = [View("landscape" if wide else "portrait", size, cells_of(places) if design.grid() else places)]
    if design["Turn BG"] == "Yes" and not design.grid():
        found.append(View("portrait" if wide else "landscape", size[::-1], [turned(place, size[1]) for place in places]))
    return found


def size_of(place):
    """Height and width; a shape is a square, drawn from its corner whichever of the two is given."""
    return (place.height or place.width, place.width or place.height)


def corner_of(place, wide):
    """Where a shape begins: on a wide poster one width further left than its numbers say."""
    return (place.left - size_of(place)[1] if place.shape() and wide else place.left), place.top


def corners(place, wide=False):
    height, width = size_of(place)
    left, top = corner_of(place, wide)
    c, s = axes(place)
    return [(left + x * c - y * s, top + x * s + y * c) for x, y in ((0, 0), (width, 0), (width, height), (0, height))]


def overhang(place, size):
    """By how much it leaves the poster at the top or left, and at the right or bottom."""
    xs, ys = zip(*corners(place, size[0] > size[1]))
    return max(0, -min(xs), -min(ys)), max(0, max(xs) - size[0], max(ys) - size[1])


def in_disk(across, down):
    """Whether a point of a shape's square, both from 0 to 1, is taken for a part of the shape."""
    return (across - 0.5) ** 2 + (down - 0.5) ** 2 < 0.2


def axes(place):
    return math.cos(math.radians(place.rotation)), math.sin(math.radians(place.rotation))


def covers(place, x, y, wide):
    height, width = size_of(place)
    left, top = corner_of(place, wide)
    c, s = axes(place)
    across, down = (x - left) * c + (y - top) * s, (y - top) * c - (x - left) * s
    if place.shape():
        return in_disk(across / width, down / height)
    return 0 <= across < width and 0 <= down < height


def points_of(place, wide, part):
    """Points of a photo, or of the part of it from `part` to 1 - `part` each way."""
    height, width = size_of(place)
    left, top = corner_of(place, wide)
    c, s = axes(place)
    steps = [part + (1 - 2 * part) * (at + 0.5) / SAMPLES for at in range(SAMPLES)]
    for down in steps:
        for across in steps:
            if not place.shape() or in_disk(across, down):
                x, y = across * width, down * height
                yield left + x * c - y * s, top + x * s + y * c


def covered_shares(view, part=0.0):
    """For each photo that something may hide, its index and the share that can't be seen, of all of it or of its middle."""
    width, height = view.size
    wide = width > height
    for at, place in enumerate(view.places):
        if not place.photo():
            continue
        later = [other for other in view.places[at + 1:] if near(place, other, wide)]
        seen = hidden = 0
        for x, y in points_of(place, wide, part):
            seen += 1
            hidden += not (0 <= x < width and 0 <= y < height) or any(covers(other, x, y, wide) for other in later)
        yield at, hidden / max(1, seen)


def near(one, other, wide):
    first, second = corners(one, wide), corners(other, wide)
    return all(min(p[axis] for p in second) < max(p[axis] for p in first)
               and max(p[axis] for p in second) > min(p[axis] for p in first) for axis in (0, 1))
