"""Lines, and sprays of roses for the corners of a page."""
import math

from starter_art.pages import placed
from starter_art.svg import circle, group, number, path


def line(shape, color, width, **style):
    return path(shape, fill="none", stroke=color, stroke_width=number(width), stroke_linecap="round",
                stroke_linejoin="round", **style)


def rose(x, y, size, colors):
    """Petals round a dark heart, each ring turned against the last."""
    parts = []
    for ring, (reach, petals, color) in enumerate(((0.74, 7, colors[0]), (0.5, 6, colors[1]), (0.27, 5, colors[2]))):
        for petal in range(petals):
            angle = math.radians(360 * petal / petals + 27 * ring)
            parts.append(circle(x + size * reach * math.cos(angle), y + size * reach * math.sin(angle), size * 0.36,
                                fill=color, stroke=colors[2], stroke_width=number(size * 0.018), stroke_opacity="0.6"))
    return parts + [circle(x, y, size * 0.2, fill=colors[3])]


def twig(x, y, length, degrees, color):
    """A stalk with leaves in pairs."""
    parts = [line(f"M0,0 L{number(length)},0", color, 6)]
    for at in range(1, 6):
        away, leaf = length * at / 5.6, length * (0.26 - 0.02 * at)
        for side in (-1, 1):
            parts.append(path(f"M{number(away)},0 q{number(leaf * 0.2)},{number(side * leaf * 0.75)} {number(leaf)},"
                              f"{number(side * leaf * 0.8)} q{number(-leaf * 0.25)},{number(-side * leaf * 0.72)} "
                              f"{number(-leaf)},{number(-side * leaf * 0.8)}Z", fill=color))
    return placed(parts, x, y, 1, degrees)


CREAM, BLUSH = ("#fff4e6", "#fbe3cf", "#f1cdb0", "#d9a47e"), ("#f8d3d0", "#f0b6b6", "#df9399", "#bd6c78")


def corner(x, y, across, down):
    """A spray of roses in a corner; `across` and `down` are 1 or -1, into the page."""
    parts = []
    for length, degrees in ((520, 8), (430, 28), (380, 47), (430, 64), (520, 82), (300, 18), (300, 72)):
        parts.append(twig(60, 60, length, degrees, "#9db08a" if length > 400 else "#b9c7a5"))
    for at_x, at_y, size, colors in ((150, 150, 130, BLUSH), (340, 110, 92, CREAM), (110, 345, 92, CREAM),
                                     (480, 95, 60, BLUSH), (95, 490, 60, BLUSH), (275, 270, 66, BLUSH)):
        parts += rose(at_x, at_y, size, colors)
    return group(parts, transform=f"translate({x},{y}) scale({across},{down})")
