"""The shape masks, 500 by 500: a white ground, black where the photo shows, a grey rim round it.

The grey stands between the two limits by which a shape is drawn: darker than 145, so that it doesn't count as ground,
and lighter than 40, so that it counts as rim.
"""
import math

from starter_art.leaves import ALL as LEAVES
from starter_art.svg import circle, closed, drawing, ellipse, group, path, rectangle

RIM = "#6e6e6e"
LIT = 2.5  # the rim brightens the photo: it is so much broader at the upper left, where the light comes from, and narrower across


def mask(parts, rim=16):
    """The parts as one shape: their rims lie under all of their insides."""
    ground = rectangle(0, 0, 500, 500, fill="#ffffff")
    outline = group(parts, fill=RIM, stroke=RIM, stroke_width=rim, stroke_linejoin="round")
    return drawing(500, 500, [ground, outline, group(parts, fill="#000000", transform=f"translate({LIT},{LIT})")])


def plain(parts):
    """A pattern without a rim."""
    return drawing(500, 500, [rectangle(0, 0, 500, 500, fill="#ffffff"), group(parts, fill="#000000")])


def star():
    corners = []
    for corner in range(10):
        reach = 244 if corner % 2 == 0 else 124
        angle = math.radians(-90 + 36 * corner)
        corners.append((250 + reach * math.cos(angle), 266 + reach * math.sin(angle)))
    return mask([path(closed(corners))])


def heart():
    return mask([path("M250,480 C150,390 16,300 16,165 C16,75 85,22 150,22 C198,22 233,52 250,92 "
                      "C267,52 302,22 350,22 C415,22 484,75 484,165 C484,300 350,390 250,480Z")])


def flower():
    petals = [circle(250 + 158 * math.cos(math.radians(45 * i)), 250 + 158 * math.sin(math.radians(45 * i)), 80)
              for i in range(8)]
    return mask(petals + [circle(250, 250, 150)], rim=14)


def cloud():
    return mask([circle(122, 310, 112), circle(215, 185, 140), circle(350, 205, 120), circle(392, 325, 98),
                 circle(185, 360, 95), circle(300, 365, 100), circle(250, 280, 120)])


def stamp():
    """A square with a row of round holes along each side."""
    side, holes = 460, 9
    step = side / holes
    hole = step * 0.3
    edge = []
    for _ in range(4):
        top = []
        for start in (i * step for i in range(holes)):
            top.append((start, 0))
            top += [(start + step / 2 - hole * math.cos(math.pi * k / 8), hole * math.sin(math.pi * k / 8))
                    for k in range(9)]
        edge = top + [(side - y, x) for x, y in edge]
    return mask([path(closed([(20 + x, 20 + y) for x, y in edge]))], rim=12)


BODY, START = 376, 14  # the side of a piece's body and where it begins: the tabs stand over at the right and below


def knob(radius, wide=1.0, lean=0.0, steps=26):
    """Half a side of a piece with its knob, along x with the knob upwards: a neck that curls into a round head."""
    middle, high = BODY / 2, radius * 1.02
    angles = [math.radians(215 - 250 * step / steps) for step in range(steps + 1)]
    head = [(middle + lean * radius + wide * radius * math.cos(a), high + radius * math.sin(a)) for a in angles]

    def neck(start, end, out):
        """From the side to the head: sets off along the side and arrives along the head."""
        one = (start[0] + out * 0.8 * radius, start[1])
        two = (end[0] + out * 0.25 * radius, end[1] - 0.36 * radius)
        return [tuple((1 - t) ** 3 * p + 3 * (1 - t) ** 2 * t * q + 3 * (1 - t) * t ** 2 * r + t ** 3 * e
                      for p, q, r, e in zip(start, one, two, end)) for t in (at / 10 for at in range(10))]

    left = neck((middle - 1.5 * radius, 0), head[0], 1)
    right = neck((middle + 1.5 * radius, 0), head[-1], -1)
    return left + head + right[::-1]


def piece(wide, lean):
    """A piece of a jigsaw: tabs at the right and below, holes at the left and above, all in the middle of their sides.
    So each piece fits each other one, whichever are dealt, and they join where the shapes overlap by a fifth."""
    tab, hole = knob(45, wide, lean), knob(50)
    low, high = START, START + BODY
    edge = [(low, low)] + [(low + x, low + y) for x, y in hole]
    edge += [(high, low)] + [(high + y, low + x) for x, y in tab]
    edge += [(high, high)] + [(high - x, high + y) for x, y in tab]
    edge += [(low, high)] + [(low + y, high - x) for x, y in hole]
    return mask([path(closed(edge))], rim=14)


def pieces():
    kinds = [(1, 0), (1.06, 0.05), (0.96, -0.06), (1.03, -0.06), (0.94, 0.06), (1.08, 0)]
    return {f"puzzle_{index + 1}": piece(*kind) for index, kind in enumerate(kinds)}


def target():
    rings = [circle(250, 250, radius, fill=color)
             for radius, color in ((244, "#000000"), (202, "#ffffff"), (162, "#000000"), (112, "#ffffff"), (70, "#000000"))]
    return plain(rings)


def polka_dots():
    spots = [(x, y, 58) for y in (75, 250, 425) for x in (75, 250, 425)]
    spots += [(x, y, 42) for y in (162, 338) for x in (162, 338)]
    return plain([circle(*spot) for spot in spots])


def stripes():
    return plain([rectangle(14 + 98 * column, 10, 80, 480) for column in range(5)])


def all_masks():
    masks = {"circle": mask([circle(250, 250, 238)]), "oval": mask([ellipse(250, 250, 170, 238)]), "star": star(),
             "heart": heart(), "flower": flower(), "cloud": cloud(), "stamp": stamp(), "target": target(),
             "polka_dots": polka_dots(), "stripes": stripes(), **pieces()}
    for index, leaf in enumerate(LEAVES):
        masks[f"leaf_{index + 1}"] = mask([path(closed(leaf))], rim=14)
    return masks
