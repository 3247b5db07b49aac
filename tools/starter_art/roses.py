"""Lines, and sprays of roses for the corners of a page."""
import math

from starter_art.pages import placed
from starter_art.svg import circle, group, number, path


def line(shape, color, width, **style):
    return path(shape, fill="none", stroke=color, stroke_width=number(width), stroke_linecap="round",
                stroke_linejoin="round", **style)


def petal(size, broad):
    """One petal that opens upwards from (0, 0), its rim a little waved."""
    wide = size * broad
    return (f"M0,0C{number(-wide)},{number(-0.1 * size)} {number(-1.05 * wide)},{number(-0.9 * size)} {number(-0.3 * wide)},{number(-size)}"
            f"Q0,{number(-1.06 * size)} {number(0.3 * wide)},{number(-0.98 * size)}"
            f"C{number(1.05 * wide)},{number(-0.86 * size)} {number(wide)},{number(-0.1 * size)} 0,0Z")


def rose(x, y, size, colors):
    """Petals round a dark heart, each ring smaller and turned against the last, each petal dark where it comes out of the flower
    and with a bright rim; the light comes from the upper left."""
    parts = [circle(x + size * 0.1, y + size * 0.14, size * 1.04, fill="#000000", fill_opacity="0.16")]
    for ring, (reach, petals, color, dark) in enumerate(((1.08, 7, colors[0], colors[2]), (0.84, 6, colors[1], colors[2]), (0.62, 5, colors[0], colors[2]),
                                                         (0.42, 4, colors[1], colors[3]), (0.25, 3, colors[2], colors[3]))):
        for at in range(petals):
            turn = 360 * at / petals + 33 * ring
            lit = 0.5 - 0.5 * math.cos(math.radians(turn + 45))  # 0 where the petal looks to the light
            parts.append(group([path(petal(size * reach, 0.62), fill=color), path(petal(size * reach, 0.62), fill="#000000", fill_opacity=f"{0.12 * lit:.2f}"),
                                path(petal(size * reach * 0.72, 0.6), fill=dark, fill_opacity="0.4"),
                                line(f"M{number(-0.3 * size * reach * 0.62)},{number(-size * reach)}Q0,{number(-1.06 * size * reach)} "
                                     f"{number(0.3 * size * reach * 0.62)},{number(-0.98 * size * reach)}", "#ffffff", size * 0.022, stroke_opacity="0.45")],
                               transform=f"translate({number(x)},{number(y)}) rotate({number(turn)})"))
    swirl = f"M{number(x - 0.1 * size)},{number(y)}a{number(0.1 * size)},{number(0.1 * size)} 0 1 1 {number(0.14 * size)},{number(0.08 * size)}"
    return parts + [circle(x, y, size * 0.13, fill=colors[3]), line(swirl, colors[1], size * 0.03, stroke_opacity="0.7")]


def twig(x, y, length, degrees, color):
    """A stalk with leaves in pairs, each with its fold."""
    parts = [line(f"M0,0 L{number(length)},0", color, 6)]
    for at in range(1, 6):
        away, leaf = length * at / 5.6, length * (0.26 - 0.02 * at)
        for side in (-1, 1):
            first = f"M{number(away)},0 q{number(leaf * 0.2)},{number(side * leaf * 0.75)} {number(leaf)},{number(side * leaf * 0.8)}"
            parts += [path(first + f" q{number(-leaf * 0.25)},{number(-side * leaf * 0.72)} {number(-leaf)},{number(-side * leaf * 0.8)}Z", fill=color),
                      path(first + " Z", fill="#000000", fill_opacity="0.14"), line(f"M{number(away)},0 l{number(leaf)},{number(side * leaf * 0.8)}", "#ffffff", 1.6, stroke_opacity="0.2")]
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
