"""More pages of the occasions: days of the year, and the roads, cities and seas of journeys."""
import math
import random

from starter_art.botany import garland_of_leaves
from starter_art.occasions import GOLD, HEART
from starter_art.pages import placed
from starter_art.scenery import bokeh, disk, light, ranges, rule, sky, stars, water, wood
from starter_art.svg import circle, closed, drawing, path, rectangle


def anniversary(size):
    chance = random.Random(321)
    wide, high = size
    parts = sky(size, (0, "#2e2030"), (1, "#1f1521")) + light(size, 0.5, 0.5, 1.0, "#8a6a86", 0.4) + bokeh(chance, size, [GOLD], 34, 14, 60, rim=0.2)
    parts += rule(size, 56, GOLD)
    for x, y, turn in ((90, high - 90, 45), (wide - 90, high - 90, -45), (90, 90, 135), (wide - 90, 90, -135)):
        parts.append(placed(garland_of_leaves(random.Random(4), 5, GOLD), x, y, 0.34, turn, opacity="0.8"))
    return drawing(*size, parts)


def fathers_day(size):
    """A herringbone cloth of two blues."""
    wide, high = size
    parts = sky(size, (0, "#27323f"), (1, "#1c242e"))
    shape = "".join(f"M{x},{y}l50,50M{x + 100},{y}l-50,50" for x in range(-50, wide + 50, 100) for y in range(-50, high + 50, 16))
    parts.append(path(shape, fill="none", stroke="#6d8299", stroke_width="4", stroke_opacity="0.2"))
    return drawing(*size, parts + light(size, 0.5, 0.45, 1.0, "#7f97b0", 0.22) + rule(size, 56, "#b58a5a", "0.8", False))


def new_year(size):
    chance = random.Random(325)
    wide, high = size
    parts = sky(size, (0, "#10142a"), (0.6, "#1f2748"), (1, "#0d1122")) + stars(chance, size, 160)
    for x, y, reach, tone in ((0.07, 0.17, 300, "#f3d08a"), (0.93, 0.3, 340, "#e8a0a0"), (0.06, 0.66, 280, "#9fc4e8"), (0.95, 0.8, 300, "#f3d08a"),
                              (0.14, 0.92, 200, "#e8c8a0")):
        parts += rocket(chance, x * wide, y * high, reach, tone)
    return drawing(*size, parts)


def rocket(chance, x, y, reach, tone):
    """A burst: sparks that fall a little as they fly."""
    found = []
    for at in range(46):
        angle, far = 2 * math.pi * at / 46 + chance.uniform(-0.05, 0.05), reach * chance.uniform(0.55, 1)
        tip = (x + far * math.cos(angle), y + far * math.sin(angle) + 0.12 * far)
        found += [path(f"M{x + 0.25 * far * math.cos(angle):.0f},{y + 0.25 * far * math.sin(angle):.0f}Q{x + 0.7 * far * math.cos(angle):.0f},"
                       f"{y + 0.7 * far * math.sin(angle):.0f} {tip[0]:.0f},{tip[1]:.0f}", fill="none", stroke=tone, stroke_width="3",
                       stroke_opacity=f"{chance.uniform(0.25, 0.6):.2f}", stroke_linecap="round"),
                  circle(*tip, chance.uniform(3, 6), fill="#fff6df", fill_opacity="0.85")]
    return found


def memorial(size):
    """A lake in the morning, woods beyond it."""
    chance = random.Random(327)
    parts = sky(size, (0, "#2b333b"), (0.4, "#6d7880"), (0.58, "#b0b0a8"), (0.6, "#7f8a8e"), (0.85, "#353f45"), (1, "#1c2328"))
    parts += light(size, 0.5, 0.55, 0.6, "#efe9d6", 0.4)
    for at, (tone, high) in enumerate((("#98a2a4", 0.05), ("#7d888c", 0.04), ("#5c676c", 0.03))):
        parts += [part.replace("</g>", "") for part in wood(chance, size, 0.6 + 0.004 * at, high * size[1], tone, 90 - 14 * at)]
    return drawing(*size, parts + water(chance, size, 0.61, "#9aa2a4", "#b9b8ae", 120))


def road_trip(size):
    chance = random.Random(328)
    wide, high = size
    horizon = 0.6 if high > wide else 0.56
    parts = sky(size, (0, "#3a4470"), (0.2, "#6b6a94"), (horizon - 0.06, "#f0b98e"), (1, "#f0b98e")) + light(size, 0.5, horizon - 0.02, 0.6, "#ffe6b4", 0.8)
    parts += ranges(chance, size, horizon - 0.1, horizon, "#b98a94", "#7c6068", 4, 0.05)
    parts += sky(size, (0, "#b08d5c"), (horizon, "#b08d5c"), (0.8, "#5c4636"), (1, "#241d1c"), name="plain")[:1]
    parts.append(rectangle(0, horizon * high, wide, (1 - horizon) * high, fill="url(#plain)"))
    parts += sky(size, (0, "#77707a"), (horizon, "#77707a"), (0.85, "#3a3640"), (1, "#232027"), name="asphalt")[:1]
    # A pale edge, which fades before the place of a caption, and the road on it.
    parts += sky(size, (0, "#e8d3a0"), (horizon, "#e8d3a0"), (0.8, "#8c7a5c"), (0.89, "#3a3230"), (1, "#232027"), name="edge")[:1]
    for reach, fill in ((0.375, "url(#edge)"), (0.36, "url(#asphalt)")):
        parts.append(path(closed([((0.5 - reach / 36) * wide, horizon * high), ((0.5 + reach / 36) * wide, horizon * high),
                                  ((0.5 + reach) * wide, high), ((0.5 - reach) * wide, high)]), fill=fill))
    for at in range(8 if high > wide else 7):
        near, far = (at / 9) ** 2.2, ((at + 0.45) / 9) ** 2.2
        y, below = high * (horizon + (1 - horizon) * near), high * (horizon + (1 - horizon) * far)
        parts.append(path(closed([(wide / 2 - 2 - 14 * near, y), (wide / 2 + 2 + 14 * near, y), (wide / 2 + 2 + 14 * far, below),
                                  (wide / 2 - 2 - 14 * far, below)]), fill="#f0d48c", fill_opacity="0.85"))
    return drawing(*size, parts)


def city(size):
    """Rows of houses with lights in their windows, the nearest the darkest."""
    chance = random.Random(329)
    wide, high = size
    parts = sky(size, (0, "#171c36"), (0.5, "#3f4468"), (0.78, "#a0706c"), (1, "#a0706c")) + light(size, 0.5, 0.75, 0.8, "#f0b48a", 0.4)
    for row, (base, tone, lit) in enumerate(((0.62, "#4a4566", 0.12), (0.72, "#2f2f4c", 0.22), (0.83, "#171a2e", 0.3))):
        x = -20
        while x < wide:
            across, top = chance.uniform(70, 170) * (1 + 0.2 * row), high * (base - chance.random() ** 2 * 0.16)
            parts.append(rectangle(round(x), round(top), round(across) + 1, high - top, fill=tone))
            if chance.random() < 0.25:
                parts.append(rectangle(round(x + across / 2) - 3, round(top) - 60, 6, 62, fill=tone))
            parts.append(path(windows(chance, x, top, across, high, lit), fill="#f3cf8f", fill_opacity=f"{0.35 + 0.15 * row:.2f}"))
            x += across + chance.choice((0, 0, 14))
    parts += [rectangle(0, 0.88 * high, wide, 0.12 * high, fill="#0f1120", fill_opacity="0.75")]
    return drawing(*size, parts)


def windows(chance, x, top, across, high, lit):
    shape = ""
    for y in range(int(top) + 24, int(0.9 * high), 34):
        for at in range(int(x) + 14, int(x + across) - 16, 26):
            if chance.random() < lit:
                shape += f"M{at},{y}h10v14h-10Z"
    return shape or "M0,0Z"


def open_sea(size):
    chance = random.Random(330)
    parts = sky(size, (0, "#13233c"), (0.3, "#2f4a6b"), (0.42, "#7f93a3"), (0.421, "#3f5f74"), (1, "#0d1c2c"))
    parts += stars(chance, size, 90, 0.3) + light(size, 0.78, 0.24, 0.4, "#f6ecd0", 0.45) + disk(size, 0.78, 0.24, 62, "#fbf3dc")
    parts += water(chance, size, 0.43, "#9fb8c4", "#f6ecd0", 260, 0.78)
    return drawing(*size, parts)


def heart_paper(size):
    """Deep red paper with hearts of many sizes, hardly lighter than the paper."""
    chance = random.Random(61)
    parts = sky(size, (0, "#551a29"), (1, "#3d111c")) + light(size, 0.5, 0.45, 1.0, "#b5566a", 0.4)
    for _ in range(130):
        parts.append(placed([path(HEART)], chance.uniform(0, size[0]), chance.uniform(0, size[1]), chance.uniform(0.15, 0.65), chance.uniform(-28, 28),
                            fill="#f0b7bd", fill_opacity=f"{chance.uniform(0.03, 0.1):.2f}"))
    return drawing(*size, parts)
