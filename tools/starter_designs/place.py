"""Places of a template: the nine fields of a line, and the geometry of a tilted photo.

A photo turns about its own top-left corner, which stays where it is; positive is clockwise as seen.
"""
import math
from dataclasses import dataclass, replace

PORTRAIT = (2000, 3000)
LANDSCAPE = (3000, 2000)


AT_ENDS, AT_SIDES = 300, 245  # what a caption's place takes of an upright page, and of the page when it is turned


@dataclass(frozen=True)
class Place:
    top: int
    left: int
    height: int
    width: int
    rotation: int = 0
    frame: int = -1
    shadow: int = -1
    spare: int = 0
    file: str = ""

    def line(self):
        numbers = (self.top, self.left, self.height, self.width, self.rotation, self.frame, self.shadow, self.spare)
        return ":".join(str(number) for number in numbers) + ":" + self.file

    def corners(self):
        """The four corners as (x, y), clockwise from the top left."""
        c, s = math.cos(math.radians(self.rotation)), math.sin(math.radians(self.rotation))
        flat = [(0, 0), (self.width, 0), (self.width, self.height), (0, self.height)]
        return [(self.left + x * c - y * s, self.top + x * s + y * c) for x, y in flat]


def box(left, top, width, height, rotation=0):
    """A photo in the settings of the window, given as people say it: across before down."""
    return Place(round(top), round(left), round(height), round(width), rotation)


def centred(x, y, width, height, rotation):
    """A tilted photo whose middle is at (x, y)."""
    c, s = math.cos(math.radians(rotation)), math.sin(math.radians(rotation))
    left = x - (width / 2 * c - height / 2 * s)
    top = y - (width / 2 * s + height / 2 * c)
    return box(left, top, width, height, rotation)


def picture(left, top, width, height, file, rotation=0):
    """A fixed picture without frame and shadow."""
    return replace(box(left, top, width, height, rotation), frame=0, shadow=0, file=file)


TAPES = ("images/tape_cream.jpg", "images/tape_sage.jpg", "images/tape_clay.jpg")
STUCK_ON = (0, 5, -5)  # by how much more or less than its photo a strip is tilted


def taped(places, length, tapes=TAPES):
    """The same photos, each with a strip of tape over the middle of its upper edge, in the given kinds in turn. The strips come last,
    so that they lie on the photos. Not for a design that fixes the size of
    frames (its strips would wear them), that may be flipped or that is a scatter, whose photos may turn: they would leave their strips."""
    strips = []
    for at, place in enumerate(places):
        (left, top), (right, lower) = place.corners()[:2]
        tilt = place.rotation + STUCK_ON[at % len(STUCK_ON)]
        strip = centred((left + right) / 2, (top + lower) / 2, length, round(length * 2 / 7), max(-35, min(35, tilt)))
        strips.append(replace(strip, frame=0, shadow=4, file=tapes[at % len(tapes)]))
    return places + strips


def shape(x, y, size, mask, color=0):
    """A shape around (x, y): its height is 0, its width the size. Colour 0 takes a photo."""
    return Place(round(y - size / 2), round(x - size / 2), 0, size, 0, 0, -1, color, mask)


def grid(top, left, rows, columns, row_gap, column_gap, height, width, both=0, rotate=0, resize=0):
    """The two lines of one layer of a grid. The three switches count in the style "Matrix" alone."""
    return [Place(top, left, rows, columns, both, rotate, resize), Place(row_gap, column_gap, height, width)]


def rows(size, margin, gap, widths_of_rows):
    """Photos in rows that all end at the same margin: a list of (height, [share of the width])."""
    places, top = [], margin
    for height, shares in widths_of_rows:
        room = size[0] - 2 * margin - gap * (len(shares) - 1)
        total, left, used = sum(shares), margin, 0
        for index, share in enumerate(shares):
            width = room - used if index == len(shares) - 1 else round(room * share / total)
            places.append(box(left, top, width, height))
            left, used = left + width + gap, used + width
        top += height + gap
    assert top - gap + margin == size[1], (top - gap + margin, size[1])
    return places


def roomy(size, places):
    """The same layout about the middle of the page, so much smaller that a caption finds room on either side of it, turned as well."""
    right = max(place.left + place.width for place in places)
    bottom = max(place.top + (place.height or place.width) for place in places)
    across, down = max(right - size[0] / 2, size[0] / 2 - min(place.left for place in places)), max(bottom - size[1] / 2, size[1] / 2 - min(place.top for place in places))
    ends, sides = (AT_SIDES, AT_ENDS) if size[0] > size[1] else (AT_ENDS, AT_SIDES)
    part = min(1, (size[0] / 2 - sides) / across, (size[1] / 2 - ends) / down)

    def nearer(value, middle):
        return round(middle + (value - middle) * part)
    found = []
    for place in places:
        left, top = nearer(place.left, size[0] / 2), nearer(place.top, size[1] / 2)
        found.append(replace(place, left=left, top=top, width=nearer(place.left + place.width, size[0] / 2) - left,
                             height=nearer(place.top + place.height, size[1] / 2) - top if place.height else 0))
    return found
