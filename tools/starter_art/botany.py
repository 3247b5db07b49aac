"""Twigs, boughs and flowers for the pages' rims; what grows upwards from (0, 0) is turned and placed by its page."""
import math

from starter_art.roses import corner
from starter_art.svg import circle, ellipse, path


def leaf_shape(x, y, reach, turn):
    """A leaf that begins at (x, y) and points that way; 0 is upwards."""
    c, s = math.cos(math.radians(turn)), math.sin(math.radians(turn))
    def at(across, along):
        return f"{x + across * c + along * s:.0f},{y + across * s - along * c:.0f}"
    return (f"M{x:.0f},{y:.0f}C{at(-0.3 * reach, 0.3 * reach)} {at(-0.24 * reach, 0.75 * reach)} {at(0, reach)}"
            f"C{at(0.24 * reach, 0.75 * reach)} {at(0.3 * reach, 0.3 * reach)} {x:.0f},{y:.0f}Z")


def twig_of_leaves(chance, color):
    """A twig of about five hundred, leaves of many sizes to both sides."""
    shape, bend = "", chance.uniform(-0.2, 0.2)
    for at in range(8):
        y = 60 + 56 * at
        x = bend * y * y / 500
        for side in (-1, 1):
            shape += leaf_shape(x, -y, chance.uniform(95, 150) * (1.05 - 0.07 * at), side * chance.uniform(38, 66))
    shape += leaf_shape(bend * 500, -500, 120, bend * 60)
    return [path(f"M0,0Q{bend * 120:.0f},-260 {bend * 500:.0f},-510", fill="none", stroke=color, stroke_width="9", stroke_linecap="round"),
            path(shape, fill=color)]


def garland_of_leaves(chance, pairs, color):
    """A sprig of laurel: even pairs of slim leaves."""
    shape = ""
    for at in range(pairs):
        y = 70 + 78 * at
        for side in (-1, 1):
            shape += leaf_shape(0, -y, chance.uniform(120, 140) * (1.1 - 0.06 * at), side * 40)
    shape += leaf_shape(0, -70 - 78 * pairs, 120, 0)
    return [path(f"M0,0V{-90 - 78 * pairs}", fill="none", stroke=color, stroke_width="7", stroke_linecap="round"), path(shape, fill=color)]


def bough(chance, tones, bark):
    """A bough in blossom, of about eight hundred."""
    found = [path("M0,0C-30,-220 60,-420 20,-640C0,-740 40,-800 60,-860M18,-420C120,-520 160,-560 190,-680M30,-620C-60,-700 -90,-740 -100,-800",
                  fill="none", stroke=bark, stroke_width="16", stroke_linecap="round")]
    for _ in range(34):
        y = chance.uniform(120, 860)
        spread = 30 + 150 * (y / 860)
        x, size, turn = chance.uniform(-spread, spread) + 30, chance.uniform(24, 44), chance.uniform(0, 72)
        found += [ellipse(x, -y - 0.6 * size, 0.4 * size, 0.52 * size, fill=tones[at % len(tones)], fill_opacity="0.95",
                          transform=f"rotate({turn + 72 * at:.0f} {x:.0f} {-y:.0f})") for at in range(5)]
        found.append(circle(x, -y, 0.2 * size, fill="#c9647c"))
    return found


def petals(chance, size, tones, count):
    """Petals in the air."""
    found = []
    for _ in range(count):
        x, y = chance.uniform(0, size[0]), chance.uniform(0.1 * size[1], 0.9 * size[1])
        found.append(ellipse(x, y, chance.uniform(10, 18), chance.uniform(6, 11), fill=chance.choice(tones), fill_opacity="0.45",
                             transform=f"rotate({chance.uniform(0, 180):.0f} {x:.0f} {y:.0f})"))
    return found


def rose_corner(x, y, across, down, scale):
    """Roses in a corner of the page."""
    return f'<g transform="translate({x},{y}) scale({scale}) translate({-x},{-y})">' + corner(x, y, across, down) + "</g>"
