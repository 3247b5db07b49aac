"""The pages of the occasions, each drawn for an upright poster and for a wide one: function of (width, height) to a drawing."""
import math
import random

from starter_art.botany import garland_of_leaves, twig_of_leaves
from starter_art.pages import AUTUMN, leaf, leaf_outlines, placed
from starter_art.scenery import bokeh, curve, disk, light, mixed, ranges, rule, sky, stars, water, wood
from starter_art.svg import circle, drawing, ellipse, path, rectangle

HEART = "M0,100 C-40,62 -96,28 -96,-28 C-96,-66 -68,-88 -40,-88 C-20,-88 -6,-76 0,-60 C6,-76 20,-88 40,-88 C68,-88 96,-66 96,-28 C96,28 40,62 0,100Z"
GOLD = "#d9b877"


def confetti(chance, size, colors, count):
    """Paper that falls along the two sides."""
    wide, high = size
    found = []
    for _ in range(count):
        x, y = chance.random() ** 1.6 * 0.16 * wide, chance.uniform(0, high)
        x = x if chance.random() < 0.5 else wide - x
        found.append(placed([ellipse(0, 0, chance.uniform(8, 17), chance.uniform(3, 12))], x, y, 1, chance.uniform(0, 180),
                            fill=chance.choice(colors), fill_opacity=f"{chance.uniform(0.35, 0.9):.2f}"))
    return found


def birthday(size):
    chance = random.Random(301)
    parts = sky(size, (0, "#123b44"), (0.5, "#1a4a52"), (1, "#0d2b33")) + light(size, 0.5, 0.5, 0.9, "#4f8a86", 0.5)
    parts += bokeh(chance, size, ["#f3c46b", "#ef8f6a", "#8fd0c4"], 60, rim=0.3)
    return drawing(*size, parts + confetti(chance, size, ["#f3c46b", "#ef8f6a", "#f2e6cf", "#8fd0c4"], 190))


def graduation(size):
    wide, high = size
    parts = sky(size, (0, "#1b2340"), (1, "#11172c")) + light(size, 0.5, 0.45, 1.0, "#52638f", 0.5) + rule(size, 56, GOLD)
    for side in (1, -1):
        x = 60 if side == 1 else wide - 60
        parts += [placed(garland_of_leaves(random.Random(5), 7, "#b99a5d"), x + side * 40, high - 80, 0.62, side * 14, opacity="0.8"),
                  placed(garland_of_leaves(random.Random(6), 7, "#8f7746"), x + side * 110, high - 60, 0.5, side * 38, opacity="0.7")]
    return drawing(*size, parts)


def christmas(size):
    chance = random.Random(308)
    wide, high = size
    parts = sky(size, (0, "#46141a"), (0.5, "#5e1c22"), (1, "#370f14")) + light(size, 0.5, 0.5, 0.9, "#a5423c", 0.5)
    parts += bokeh(chance, size, ["#f6cf86", "#f2a65e"], 46, 20, 80, rim=0.35, opacity=(0.15, 0.5))
    for x, y, first in ((0, 0, 0), (wide, 0, 90), (wide, high, 180), (0, high, 270)):
        for at in range(7):
            parts.append(placed(fir_twig(chance), x, y, chance.uniform(0.62, 0.86), first + 6 + 13 * at))
    return drawing(*size, parts)


def fir_twig(chance):
    """A twig of fir that reaches to the right, its needles towards the tip."""
    tone, shape = chance.choice(["#24503a", "#2f6146", "#1b3f2d"]), "M0,0 L470,0 "
    for at in range(60):
        x, side = 30 + 7.4 * at, 1 if at % 2 else -1
        reach = (70 - 0.5 * at) * chance.uniform(0.8, 1.1)
        shape += f"M{x:.0f},0 l{reach * 0.75:.0f},{side * reach * 0.66:.0f} "
    return [path(shape, fill="none", stroke=tone, stroke_width="7", stroke_linecap="round")]


def garden(size):
    chance = random.Random(310)
    wide, high = size
    parts = sky(size, (0, "#243c2e"), (1, "#182a20")) + light(size, 0.5, 0.5, 0.9, "#6f9674", 0.5)
    for at in range(44):
        along = at / 44 * 2 * (wide + high)
        x, y, turn = edge_spot(size, along)
        tone = chance.choice(["#3f6a4a", "#557f58", "#2f5540", "#6d9263", "#7fa56f"])
        if 0.15 < x / wide < 0.85:
            tone = mixed(tone, "#1c3024", 0.6)  # behind the caption
        parts.append(placed(twig_of_leaves(chance, tone), x, y, chance.uniform(0.34, 0.55), turn + chance.uniform(-32, 32)))
    return drawing(*size, parts)


def edge_spot(size, along):
    """A spot on the page's edge, so far along it from the top left, and the turn that points into the page (0 is upwards)."""
    wide, high = size
    if along < wide:
        return along, -30, 180
    if along < wide + high:
        return wide + 30, along - wide, 270
    if along < 2 * wide + high:
        return 2 * wide + high - along, high + 30, 0
    return -30, 2 * (wide + high) - along, 90


def sports(size):
    wide, high = size
    parts = sky(size, (0, "#173f2c"), (1, "#12321f")) + light(size, 0.5, 0.5, 1.0, "#4f9a68", 0.35)
    lawn, across = max(wide, high) / 14, wide > high
    for at in range(0, 14, 2):
        parts.append(rectangle(at * lawn, 0, lawn, high, fill="#ffffff", fill_opacity="0.03") if across
                     else rectangle(0, at * lawn, wide, lawn, fill="#ffffff", fill_opacity="0.03"))
    chalk = dict(fill="none", stroke="#ffffff", stroke_width="7", stroke_opacity="0.3")
    parts += [rectangle(50, 50, wide - 100, high - 100, **chalk), circle(wide / 2, high / 2, 0.19 * max(wide, high), **chalk),
              path(f"M{wide / 2},50V{high - 50}" if across else f"M50,{high / 2}H{wide - 50}", **chalk)]
    for first in (0, 1):
        if across:
            parts.append(rectangle(50 if not first else wide - 50 - 380, high / 2 - 480, 380, 960, **chalk))
        else:
            parts.append(rectangle(wide / 2 - 480, 50 if not first else high - 50 - 380, 960, 380, **chalk))
    return drawing(*size, parts)


def music(size):
    chance = random.Random(312)
    wide, high = size
    parts = sky(size, (0, "#26222b"), (1, "#191620")) + light(size, 0.5, 0.5, 0.9, "#7c6a7d", 0.4)
    for base, swing, phase in ((0.3, 0.05, 0.4), (0.72, 0.06, 2.1)):
        for string in range(5):
            wave = [(x, high * (base + swing * math.sin(3.1 * x / wide + phase)) + 44 * (string - 2) * (1 + 0.35 * math.sin(5 * x / wide)))
                    for x in range(-60, wide + 61, 60)]
            parts.append(curve(wave, GOLD, 3.5, "0.5"))
        for _ in range(12):
            x = chance.uniform(60, wide - 60)
            y = high * (base + swing * math.sin(3.1 * x / wide + phase)) + 22 * chance.randrange(-4, 5)
            parts.append(placed([ellipse(0, 0, 30, 22, transform="rotate(-20)"), path("M24,-6 V-150 h8 V0Z")], x, y, 1, fill=GOLD, fill_opacity="0.75"))
    return drawing(*size, parts)


def cinema(size):
    """A velvet curtain, and the black of the two strips of film that the layout lays before it."""
    wide, high = size
    parts = sky(size, (0, "#3a0c14"), (0.5, "#571420"), (1, "#2c0810"))
    for fold in range(0, wide, 160):
        parts += [rectangle(fold, 0, 70, high, fill="#000000", fill_opacity="0.13"), rectangle(fold + 100, 0, 26, high, fill="#ffffff", fill_opacity="0.04")]
    for at in (0.28, 0.72):
        parts += film(size, at)
    return drawing(*size, parts)


def film(size, at):
    """A strip of film, down an upright page or across a wide one, its middle at that share of the shorter side."""
    wide, high = size
    found = []
    if high > wide:
        left = at * wide - 400
        found.append(rectangle(left, 300, 800, high - 600, fill="#120d0b"))
        for y in range(318, high - 330, 66):
            found += [rectangle(x, y, 34, 40, rx=9, fill="#4a1019") for x in (left + 16, left + 750)]
    else:
        top = 260 + (0 if at < 0.5 else 750)
        found.append(rectangle(0, top, wide, 730, fill="#120d0b"))
        for x in range(18, wide, 66):
            found += [rectangle(x, y, 40, 34, rx=9, fill="#4a1019") for y in (top + 14, top + 682)]
    return found


def space(size):
    chance = random.Random(315)
    wide, high = size
    parts = sky(size, (0, "#0d1022"), (0.5, "#1a1a38"), (1, "#0b0d1c"))
    for at in range(16):
        parts += light(size, 0.04 + 0.06 * at, 0.75 - 0.035 * at + 0.05 * math.sin(at), chance.uniform(0.16, 0.3), chance.choice(["#6a5a92", "#3f5f92", "#8a5f7a"]),
                       0.22, f"haze{at}")
    parts += stars(chance, size, 420)
    parts += planet(0.88 * wide, 0.88 * high, 150, "#c08a5c", "#5c3a2a", "a") + planet(0.07 * wide, 0.12 * high, 60, "#8fa3b8", "#39465a", "b")
    return drawing(*size, parts)


def planet(x, y, radius, bright, dark, name):
    """A ball in the light from the upper left."""
    return [f'<radialGradient id="ball{name}" cx="0.32" cy="0.3" r="0.8"><stop offset="0%" stop-color="{bright}"/>'
            f'<stop offset="55%" stop-color="{mixed(bright, dark, 0.55)}"/><stop offset="100%" stop-color="{dark}"/></radialGradient>',
            circle(x, y, radius, fill=f"url(#ball{name})")]


def valentine(size):
    chance = random.Random(318)
    wide, high = size
    parts = sky(size, (0, "#4a1522"), (0.5, "#641f30"), (1, "#390f1a")) + light(size, 0.5, 0.5, 0.9, "#b5566a", 0.5)
    for _ in range(90):
        x, y, reach = chance.uniform(0, wide), chance.uniform(0, high), chance.uniform(0.15, 0.75)
        parts.append(placed([path(HEART)], x, y, reach, chance.uniform(-24, 24), fill=chance.choice(["#f0b7bd", "#d9788a", "#f6d9c9"]),
                            fill_opacity=f"{chance.uniform(0.04, 0.13):.2f}"))
    return drawing(*size, parts + rule(size, 56, "#e9b9a8", "0.6"))


def mountains(size):
    chance = random.Random(319)
    parts = sky(size, (0, "#24365c"), (0.35, "#6b7fa3"), (0.6, "#d9b5a0"), (1, "#d9b5a0")) + light(size, 0.7, 0.52, 0.6, "#ffe1b0", 0.6)
    parts += ranges(chance, size, 0.46, 0.9, "#a99fb4", "#141f33", 7, 0.085, 0.62)
    return drawing(*size, parts + wood(chance, size, 1.0, 0.09 * size[1], "#0d1626", 34))


def pumpkin_night(size):
    chance = random.Random(320)
    wide, high = size
    parts = sky(size, (0, "#1d1530"), (0.55, "#3d2748"), (0.8, "#8a4a3c"), (1, "#8a4a3c")) + stars(chance, size, 120, 0.5)
    parts += light(size, 0.82, 0.2, 0.4, "#ffdf9e", 0.6) + disk(size, 0.82, 0.2, 120, "#fbe7b6")
    parts += ranges(chance, size, 0.74, 0.9, "#5a3340", "#140d1c", 4, 0.04)
    for at in range(9):
        x = wide * (at + 0.5) / 9 + chance.uniform(-60, 60)
        if not 0.12 < x / wide < 0.88:
            parts.append(lantern(x, high * 0.965, chance.uniform(0.5, 0.8)))
    for x, y, scale, turn in ((0.62, 0.12, 0.5, -10), (0.72, 0.27, 0.36, 12), (0.93, 0.3, 0.42, 6), (0.2, 0.13, 0.36, 8)):
        parts.append(placed([path("M0,0 C-20,-46 -70,-60 -130,-40 C-104,-26 -100,-6 -104,14 C-70,-6 -40,4 -22,28 L0,44 L22,28 C40,4 70,-6 104,14 "
                                  "C100,-6 104,-26 130,-40 C70,-60 20,-46 0,0Z")], x * wide, y * high, scale, turn, fill="#140d1c"))
    return drawing(*size, parts)


def lantern(x, y, scale):
    ribs = [ellipse(off, -90, across, 100, fill=tone) for off, across, tone in ((-92, 70, "#a34d1a"), (92, 70, "#a34d1a"), (-46, 76, "#bf5f22"),
                                                                               (46, 76, "#bf5f22"), (0, 70, "#cf7230"))]
    face = [path("M-86,-120 L-36,-128 L-56,-84Z M86,-120 L36,-128 L56,-84Z M-90,-58 Q0,10 90,-58 Q60,-40 40,-44 L30,-24 L10,-38 L-12,-22 L-30,-42 Q-60,-40 -90,-58Z",
                 fill="#ffcf6b")]
    return placed(ribs + [path("M-14,-186 q-6,-44 26,-62 l18,18 q-22,16 -16,46Z", fill="#4a4a2a")] + face, x, y, scale)


def seaside(size):
    chance = random.Random(113)
    wide, high = size
    parts = sky(size, (0, "#123f52"), (0.6, "#1f6474"), (0.8, "#4f8f92"), (0.84, "#a9967a"), (0.9, "#5f4d3b"), (1, "#3f3226"))
    for base in range(6):
        y = high * (0.62 + 0.036 * base)
        crest = [(x, y + 22 * math.sin(x / 260 + base * 1.7) + 9 * math.sin(x / 90 + base)) for x in range(-60, wide + 61, 50)]
        parts.append(curve(crest, "#ffffff", 4 + 2.4 * base, f"{0.1 + 0.07 * base:.2f}"))
    return drawing(*size, parts + water(chance, size, 0.08, "#9fd0d0", "#cfeee6", 150))


def autumn(size):
    chance = random.Random(31)
    wide, high = size
    parts = sky(size, (0, "#3a261c"), (1, "#2a1a13")) + light(size, 0.5, 0.5, 1.0, "#8a6244", 0.4) + [leaf_outlines()]
    for _ in range(230):
        x, y = chance.uniform(-60, wide + 60), chance.uniform(-60, high + 60)
        rim = max(abs(x / wide - 0.5), abs(y / high - 0.5)) * 2
        if chance.random() > rim ** 4 or (0.15 < x / wide < 0.85 and not 0.13 < y / high < 0.87):
            continue
        parts += leaf(chance.randrange(6), mixed(chance.choice(AUTUMN), "#3a261c", chance.uniform(0.1, 0.45)), x, y, chance.uniform(0.24, 0.5),
                      chance.uniform(0, 360))
    return drawing(*size, parts)


def starry_night(size):
    chance = random.Random(115)
    parts = sky(size, (0, "#0f1830"), (0.6, "#273a63"), (0.85, "#5b6a8c"), (1, "#5b6a8c")) + stars(chance, size, 330, 0.8)
    parts += light(size, 0.8, 0.22, 0.3, "#fff1c9", 0.45) + disk(size, 0.8, 0.22, 60, "#fdf2d0")
    parts += ranges(chance, size, 0.78, 0.92, "#42527a", "#0c1324", 4, 0.05)
    return drawing(*size, parts + wood(chance, size, 1.0, 0.1 * size[1], "#080d1a", 30))


def family_tree(size):
    """A bare ground with the lines that lead from the children to their parents and theirs: theirs is the layout's shape."""
    parts = sky(size, (0, "#26332f"), (1, "#1b2522")) + light(size, 0.5, 0.5, 1.0, "#71877a", 0.4) + rule(size, 50, GOLD, "0.5")
    parts += [path(way, fill="none", stroke=GOLD, stroke_width="6", stroke_opacity="0.75") for way in KINSHIP[size]]
    return drawing(*size, parts)


KINSHIP = {(2000, 3000): ["M310,740V820H770V740 M1230,740V820H1690V740 M540,820V900 M1460,820V900 M540,1560V1660H1460V1560 M1000,1660V1760"],
           (3000, 2000): ["M480,730V795H1140V730 M1860,730V795H2520V730 M750,795V860 M2250,795V860 M1110,1260H1160 M1890,1260H1840"]}
