"""Backgrounds for a family, for lovers, for hikers and for the night of the pumpkins."""
import math
import random

from starter_art.celebrations import line
from starter_art.pages import fir, placed
from starter_art.scenes import HEART
from starter_art.surfaces import TALL, WIDE, washed
from starter_art.svg import (circle, closed, down_gradient, drawing, ellipse, glow, group, number, path, rectangle, smooth)

LEAF = "M0,40 C-30,14 -30,-18 0,-44 C30,-18 30,14 0,40Z"


def bough(start, end, width, lift=-60):
    (x, y), (far_x, far_y) = start, end
    middle = ((x + far_x) / 2, (y + far_y) / 2 + lift)
    return line(f"M{number(x)},{number(y)} Q{number(middle[0])},{number(middle[1])} {number(far_x)},{number(far_y)}", "#7a5636", width)


def family_tree():
    """A tree whose crown holds the photos; its leaves grow thickest at the rim."""
    chance = random.Random(91)
    wide, high = TALL
    parts = [down_gradient("sky", (0, "#dcecf2"), (0.7, "#f3f2e2"), (1, "#e6ecd0")), rectangle(0, 0, wide, high, fill="url(#sky)"),
             path("M0,2700 C500,2600 1500,2600 2000,2700 V3000 H0Z", fill="#a9c67f"),
             path("M0,2820 C600,2740 1500,2760 2000,2830 V3000 H0Z", fill="#8fb268"),
             ellipse(1000, 1140, 880, 930, fill="#b4cf8c", fill_opacity="0.75"),
             path("M880,2740 C930,2400 930,2200 900,1900 L860,1500 L1140,1500 L1100,1900 C1070,2200 1070,2400 1120,2740 "
                  "C1160,2790 1230,2810 1290,2816 L710,2816 C770,2810 840,2790 880,2740Z", fill="#7a5636")]
    for step in range(5):
        parts.append(line(f"M{930 + 36 * step},{2720 - 20 * abs(2 - step)} C{940 + 30 * step},2400 {935 + 32 * step},2150 {905 + 46 * step},1800",
                          "#5f4127", 8, stroke_opacity="0.5"))
    for start, end, width in (((960, 1950), (300, 1180), 84), ((1040, 1950), (1700, 1180), 84), ((980, 1700), (520, 640), 70),
                              ((1020, 1700), (1480, 640), 70), ((1000, 1650), (1000, 520), 74), ((950, 2080), (330, 1800), 56),
                              ((1050, 2080), (1670, 1800), 56)):
        parts.append(bough(start, end, width))
    leaves = []
    for _ in range(1100):
        turn, reach = chance.uniform(0, 2 * math.pi), chance.uniform(0.28, 1) ** 0.5
        edge = 1 + 0.05 * math.sin(9 * turn) + 0.04 * math.sin(5 * turn + 1)
        x, y = 1000 + 960 * edge * reach * math.cos(turn), 1140 + 1010 * edge * reach * math.sin(turn)
        if y > 1700 and abs(x - 1000) < 250:
            continue
        tone = chance.choice(["#7fa653", "#94b964", "#6b9447", "#a9c977", "#86ad5b"])
        leaves.append(f'<use xlink:href="#leaf" transform="translate({x:.0f},{y:.0f}) rotate({chance.uniform(0, 360):.0f}) '
                      f'scale({chance.uniform(0.9, 1.7):.1f})" fill="{tone}" opacity="{chance.uniform(0.6, 0.95):.2f}"/>')
    parts += [f'<defs><path id="leaf" d="{LEAF}"/></defs>'] + leaves
    for x, y, scale in ((250, 2880, 1), (1780, 2880, 1.1), (1560, 2930, 0.8), (420, 2940, 0.8)):
        for at in range(7):
            parts.append(placed([line("M0,0 Q-6,-40 0,-80", "#5f8a43", 7), circle(0, -86, 17, fill="#f4d35e"),
                                 circle(0, -86, 7, fill="#d9862f")], x + 34 * (at - 3), y + 10 * (at % 2), scale, 8 * (at - 3)))
    return drawing(wide, high, parts)


def valentine():
    """A large heart behind the photo in the middle, and strings of small ones."""
    chance = random.Random(93)
    wide, high = WIDE
    below, above = washed(WIDE, "#fbe6e4", light="#ffffff", shine=0.6, shade=0.14, at=(0.5, 0.45))
    parts = [placed([path(HEART)], chance.uniform(0, wide), chance.uniform(0, high), chance.uniform(0.2, 0.5), chance.uniform(-25, 25),
                    fill="#f3bdbb", fill_opacity="0.5") for _ in range(70)]
    for y, sign in ((150, 1), (1850, -1)):
        string = [(x, y + sign * 70 * math.sin(math.pi * (x % 750) / 750)) for x in range(0, wide + 1, 50)]
        parts.append(line(smooth(string), "#b9525d", 6))
        for at in range(1, 24):
            x = at * 125
            parts.append(placed([path(HEART, fill=("#d2404f", "#e8838c", "#ffffff", "#f2a9a6")[at % 4])], x,
                                y + sign * 70 * math.sin(math.pi * (x % 750) / 750) + 34, 0.42, 8 * (-1) ** at))
    parts += [placed([path(HEART)], 1520, 1030, 7.1, 0, fill="#8f2433", fill_opacity="0.25"),
              placed([path(HEART)], 1500, 1000, 7.1, 0, fill="#d2404f"),
              placed([path(HEART)], 1500, 1000, 6.7, 0, fill="none", stroke="#fbe6e4", stroke_width="1.6", stroke_dasharray="5 4")]
    return drawing(wide, high, below + parts + above)


def ridge(chance, base, swing, tone, wide, high, steps):
    peaks = [(-60, base)]
    for at in range(steps + 1):
        peaks.append((wide * at / steps, base - (swing if at % 2 else swing * 0.35) * chance.uniform(0.6, 1.1)))
    return path(closed(peaks + [(wide + 60, base), (wide + 60, high), (-60, high)]), fill=tone), peaks[1:]


def mountains():
    """Ranges one behind the other, snow on the farthest, a trail that winds to a signpost."""
    chance = random.Random(95)
    wide, high = WIDE
    parts = [down_gradient("sky", (0, "#8fc3e3"), (0.5, "#cfe5ee"), (0.8, "#f8e6cd"), (1, "#f8e6cd")), rectangle(0, 0, wide, high, fill="url(#sky)"),
             glow("sun", (0, "#fff6d0", 1), (0.3, "#ffefb5", 0.7), (1, "#ffefb5", 0)), circle(2600, 300, 520, fill="url(#sun)"),
             circle(2600, 300, 100, fill="#fffbe6")]
    far, peaks = ridge(chance, 1500, 620, "#8fa5c0", wide, high, 10)
    parts.append(far)
    for at, (x, y) in enumerate(peaks):
        if at % 2:
            parts.append(path(closed([(x, y), (x + 74, y + 130), (x + 36, y + 108), (x + 6, y + 150), (x - 30, y + 112), (x - 70, y + 136)]),
                              fill="#ffffff", fill_opacity="0.9"))
    for base, swing, tone, steps in ((1640, 300, "#6f8fa0", 14), (1760, 210, "#5a8275", 18)):
        parts.append(ridge(chance, base, swing, tone, wide, high, steps)[0])
    parts.append(path("M0,1720 C600,1640 1200,1780 1800,1700 C2300,1640 2700,1700 3000,1660 V2000 H0Z", fill="#6fa05a"))
    parts.append(path("M0,1860 C700,1780 1500,1880 2200,1800 C2600,1770 2900,1800 3000,1790 V2000 H0Z", fill="#5b8c4a"))
    parts += [line("M1300,2020 C1380,1900 1780,1900 1720,1830 C1670,1780 1460,1790 1500,1750 C1530,1726 1640,1730 1650,1704", "#e8d6a8", 34),
              line("M1300,2020 C1380,1900 1780,1900 1720,1830 C1670,1780 1460,1790 1500,1750", "#f2e4bf", 16)]
    for _ in range(42):
        x = chance.uniform(0, wide)
        if 1150 < x < 1850:
            continue
        y = 1790 + chance.uniform(0, 190)
        parts.append(fir(x, y, chance.uniform(120, 210), chance.choice(["#2f5d3a", "#3a6b42", "#274f33"])))
    parts.append(placed([rectangle(-12, -240, 24, 250, fill="#7a5636"), path("M-120,-220 h200 l44,38 l-44,38 h-200Z", fill="#a97c4e"),
                         path("M130,-130 h-190 l-40,34 l40,34 h190Z", fill="#b98a58"),
                         rectangle(-84, -190, 120, 10, fill="#6b4a2b"), rectangle(-30, -102, 120, 10, fill="#6b4a2b")], 1120, 1930, 0.9, -2))
    parts.append(placed([path("M-190,0 L0,-230 L190,0Z", fill="#e2674a"), path("M-60,0 L0,-230 L60,0Z", fill="#8f3324"),
                         path("M0,-230 L190,0 L120,0Z", fill="#c9503a")], 2010, 1950, 0.72))
    return drawing(wide, high, parts)


def pumpkin(x, y, scale, lit):
    ribs = [ellipse(0, 0, 150, 110, fill="#d9701e")] + [ellipse(off, 0, 62, 112, fill=tone) for off, tone in (
        (-92, "#e07c22"), (92, "#e07c22"), (-46, "#ec8b2c"), (46, "#ec8b2c"), (0, "#f29a3b"))]
    stalk = path("M-16,-100 C-20,-140 -40,-150 -30,-172 L8,-176 C4,-150 18,-130 18,-100Z", fill="#6f7f3a")
    face = [path("M-84,-26 l52,-34 l10,44Z"), path("M84,-26 l-52,-34 l-10,44Z"), path("M-14,12 l14,-26 l14,26Z"),
            path("M-92,28 C-50,52 50,52 92,28 L72,62 L46,48 L26,74 L0,54 L-26,74 L-46,48 L-72,62Z")]
    return placed(ribs + [stalk] + ([group(face, fill="#ffe27a")] if lit else []), x, y, scale)


def bat(x, y, scale, degrees):
    return placed([path("M0,-14 L14,-34 L20,-10 C60,-50 110,-50 160,-20 C130,-20 120,0 122,20 C100,4 80,10 70,30 C50,14 24,20 0,44 "
                        "C-24,20 -50,14 -70,30 C-80,10 -100,4 -122,20 C-120,0 -130,-20 -160,-20 C-110,-50 -60,-50 -20,-10 L-14,-34Z",
                        fill="#1c1030")], x, y, scale, degrees)


def pumpkin_night():
    """A moon with bats, bare trees and lanterns of pumpkins."""
    chance = random.Random(97)
    wide, high = TALL
    parts = [down_gradient("night", (0, "#2a1746"), (0.5, "#5b2a63"), (0.8, "#b5523f"), (1, "#e8933f")),
             rectangle(0, 0, wide, high, fill="url(#night)"), glow("moon", (0, "#fff3c4", 0.8), (0.4, "#ffe9a0", 0.25), (1, "#ffe9a0", 0)),
             circle(1560, 330, 620, fill="url(#moon)"), circle(1560, 330, 230, fill="#fdf0c2"),
             circle(1490, 280, 44, fill="#f0dda0"), circle(1620, 400, 60, fill="#f0dda0"), circle(1640, 250, 26, fill="#f0dda0")]
    for _ in range(150):
        parts.append(circle(chance.uniform(0, wide), chance.uniform(0, 1500), chance.uniform(1.5, 4.5), fill="#fff4d8",
                            fill_opacity=number(chance.uniform(0.4, 1))))
    parts += [bat(560, 230, 1.1, -8), bat(900, 130, 0.7, 10), bat(1280, 420, 0.8, -14), bat(250, 400, 0.6, 12), bat(1860, 160, 0.55, 6)]
    parts.append(path("M0,2640 C400,2520 800,2600 1200,2560 C1600,2520 1800,2560 2000,2540 V3000 H0Z", fill="#2b1636"))
    for x, sign in ((70, 1), (1935, -1)):
        for at, (far, rise, width) in enumerate(((150, 520, 30), (60, 700, 40), (210, 330, 22))):
            parts.append(line(f"M{x},2700 C{x},{2500 - rise // 3} {x + sign * far // 3},{2560 - rise} {x + sign * far},{2480 - rise}",
                              "#1c1030", width))
    parts.append(path("M0,2790 C500,2700 900,2770 1400,2720 C1700,2690 1900,2720 2000,2710 V3000 H0Z", fill="#1c1030"))
    lights = [(300, 2760, 1.05, True), (610, 2840, 0.75, False), (1010, 2800, 0.95, True), (1400, 2850, 0.7, True), (1720, 2750, 1.1, True)]
    for x, y, scale, lit in lights:
        if lit:
            parts.append(circle(x, y, 330 * scale, fill="url(#moon)", fill_opacity="0.6"))
        parts.append(pumpkin(x, y, scale, lit))
    return drawing(wide, high, parts)


SHARED = {"family_tree": family_tree(), "valentine": valentine(), "mountains": mountains(), "pumpkin_night": pumpkin_night()}
