"""Backgrounds from outdoors: spring, summer, winter, garden, travel, space."""
import math
import random

from starter_art.celebrations import line
from starter_art.pages import fir, hills, placed
from starter_art.svg import (circle, closed, down_gradient, drawing, ellipse, glow, group, number, path, rectangle,
                             smooth)


def blossom(x, y, size, color, heart, degrees=0):
    petals = [ellipse(0, -0.62 * size, 0.36 * size, 0.46 * size, transform=f"rotate({72 * at + degrees})") for at in range(5)]
    return placed([group(petals, fill=color), circle(0, 0, 0.26 * size, fill=heart)], x, y, 1)


def branch(chance, points, width):
    """A twig through the points with blossoms along it."""
    parts = [line(smooth(points), "#7b5a48", width)]
    for (x, y), (next_x, next_y) in zip(points[:-1], points[1:]):
        for _ in range(5):
            at = chance.random()
            parts.append(blossom(x + (next_x - x) * at + chance.uniform(-70, 70),
                                 y + (next_y - y) * at + chance.uniform(-60, 60), chance.uniform(34, 62),
                                 chance.choice(["#f7c9d6", "#f4b3c6", "#fde3ea"]), "#d77f98", chance.uniform(0, 72)))
    return parts


def tulip(x, y, height, color):
    top = y - height
    return [line(f"M{number(x)},{number(y)} q{number(height * 0.06)},{number(-height * 0.5)} 0,{number(-height)}", "#4f8a4a", 12),
            path(f"M{number(x)},{number(y)} q{number(-height * 0.34)},{number(-height * 0.3)} {number(-height * 0.3)},"
                 f"{number(-height * 0.72)} q{number(height * 0.26)},{number(height * 0.3)} {number(height * 0.3)},"
                 f"{number(height * 0.72)}Z", fill="#5d9c56"),
            path(f"M{number(x - 52)},{number(top - 40)} l26,34 l26,-52 l26,52 l26,-34 q18,150 -52,150 q-70,0 -52,-150Z",
                 fill=color)]


def spring():
    chance = random.Random(4)
    parts = [down_gradient("sky", (0, "#d7edf6"), (0.6, "#eef6ea"), (1, "#e3f0cf")),
             rectangle(0, 0, 2000, 3000, fill="url(#sky)")]
    parts += branch(chance, [(-40, 330), (180, 230), (420, 210), (700, 110), (900, 60)], 26)
    parts += branch(chance, [(240, 215), (330, 340), (300, 480)], 14)
    parts += branch(chance, [(2040, 250), (1830, 170), (1560, 130), (1300, 40)], 24)
    parts += branch(chance, [(1850, 175), (1760, 300), (1800, 430)], 14)
    for _ in range(46):
        x, y = chance.uniform(0, 2000), chance.uniform(350, 2700)
        parts.append(ellipse(x, y, 20, 12, fill="#f4b3c6", fill_opacity="0.55",
                             transform=f"rotate({number(chance.uniform(0, 180))} {number(x)} {number(y)})"))
    parts.append(path("M0,2760 C500,2690 900,2790 1300,2740 C1600,2700 1800,2740 2000,2720 V3000 H0Z", fill="#a9cf83"))
    for x in range(-20, 2040, 74):
        parts += tulip(x + chance.uniform(-18, 18), 3040, chance.uniform(180, 300),
                       chance.choice(["#e65f6b", "#f2a93b", "#f4d24e", "#d86fa6", "#b07cc6"]))
    return drawing(2000, 3000, parts)


def melon(x, y, scale, degrees):
    seeds = [ellipse(px, py, 8, 13, fill="#3b2320") for px, py in ((-120, 50), (-60, 90), (0, 50), (60, 90), (120, 50), (0, 130))]
    return placed([path("M-240,0 A240,240 0 0 0 240,0Z", fill="#4f9a51"), path("M-218,0 A218,218 0 0 0 218,0Z", fill="#e8f2c8"),
                   path("M-200,0 A200,200 0 0 0 200,0Z", fill="#ef5b5b")] + seeds, x, y, scale, degrees)


def ice(x, y, scale, degrees, one, two):
    return placed([path("M-85,0 L0,250 L85,0Z", fill="#e0a45c"),
                   line("M-60,10 L30,160 M-10,0 L50,100 M60,10 L-30,160 M10,0 L-50,100", "#bf8342", 6),
                   circle(-42, -40, 70, fill=one), circle(46, -44, 70, fill=two), circle(0, -120, 68, fill="#fff3df"),
                   circle(6, -196, 20, fill="#d8323f")], x, y, scale, degrees)


def palm(x, y, scale, degrees, color):
    """A fan of long leaves from a corner."""
    leaves = []
    for at in range(7):
        leaves.append(group([path("M0,0 Q300,-120 720,20 Q320,40 0,0Z"), ], transform=f"rotate({at * 17 - 8})"))
    return placed(leaves, x, y, scale, degrees, fill=color)


def summer():
    parts = [down_gradient("sky", (0, "#7fd0e8"), (0.6, "#bfe9ef"), (1, "#fdf0c4")),
             glow("light", (0, "#fff6c9", 1), (0.5, "#fff0a8", 0.5), (1, "#fff0a8", 0)),
             rectangle(0, 0, 3000, 2000, fill="url(#sky)")]
    for ray in range(0, 360, 15):
        parts.append(path("M0,0 L3900,-190 L3900,190Z", fill="#ffffff", fill_opacity="0.16",
                          transform=f"translate(1500,760) rotate({ray})"))
    parts.append(circle(1500, 760, 1200, fill="url(#light)"))
    parts.append(path("M0,1790 C400,1740 900,1830 1500,1780 C2100,1740 2500,1820 3000,1770 V2000 H0Z", fill="#f5dca0"))
    parts += [palm(-30, -40, 0.85, 0, "#2f9a72"), palm(-30, -40, 0.6, 4, "#43b387"),
              placed([palm(0, 0, 0.85, 0, "#2f9a72"), palm(0, 0, 0.6, 4, "#43b387")], 3030, -40, 1, 90)]
    parts += [melon(330, 1740, 0.85, -12), melon(2640, 1745, 0.8, 14), ice(700, 1700, 0.95, -10, "#f6a5b8", "#a8d8a0"),
              ice(2310, 1700, 0.95, 12, "#8a5a3a", "#f9d56e")]
    return drawing(3000, 2000, parts)


def flake(x, y, size, opacity):
    arm = "M0,0 V-100 M-28,-84 L0,-58 L28,-84 M-22,-52 L0,-32 L22,-52 "
    return placed([group([path(arm)], transform=f"rotate({60 * at})") for at in range(6)], x, y, size / 100, 0, fill="none",
                  stroke="#ffffff", stroke_width="9", stroke_linecap="round", stroke_opacity=opacity)


def snowman(x, y, scale):
    return placed([ellipse(0, 30, 210, 36, fill="#b9cbe0"), circle(0, -110, 150, fill="#ffffff"),
                   circle(0, -330, 105, fill="#ffffff"), circle(-34, -356, 11, fill="#2b2f3a"), circle(34, -356, 11, fill="#2b2f3a"),
                   path("M0,-338 l92,22 l-92,14Z", fill="#ef8a3a"), line("M-36,-286 q36,26 72,0", "#2b2f3a", 8),
                   path("M-104,-262 q104,56 208,0 l8,40 q-110,56 -222,0Z", fill="#c9404a"),
                   path("M60,-236 l60,-8 l20,150 l-64,6Z", fill="#c9404a"),
                   rectangle(-72, -545, 144, 120, fill="#2b2f3a"), rectangle(-112, -435, 224, 24, rx=10, fill="#2b2f3a"),
                   rectangle(-72, -470, 144, 26, fill="#c9404a"), circle(0, -160, 12, fill="#2b2f3a"), circle(0, -90, 12, fill="#2b2f3a"),
                   line("M-130,-150 L-250,-250 M-210,-216 L-216,-270 M130,-150 L250,-240", "#6b4a34", 13)], x, y, scale)


def winter():
    chance = random.Random(12)
    parts = [down_gradient("sky", (0, "#4f7cae"), (0.55, "#9fc1de"), (1, "#dfeaf4")),
             rectangle(0, 0, 2000, 3000, fill="url(#sky)")]
    for _ in range(30):
        parts.append(flake(chance.uniform(0, 2000), chance.uniform(0, 2500), chance.uniform(34, 84), number(chance.uniform(0.4, 0.8))))
    for _ in range(150):
        parts.append(circle(chance.uniform(0, 2000), chance.uniform(0, 2700), chance.uniform(4, 11), fill="#ffffff",
                            fill_opacity="0.75"))
    for base, color, trees in ((2560, "#c4d8ea", "#86a9c4"), (2680, "#dde9f3", "#4f7f8f")):
        shape, crest = hills(chance, base, 40, color, 2000, 3000)
        parts.append(shape)
        for x, y in crest[::2]:
            if chance.random() < 0.6 and not 1400 < x < 1950:
                parts.append(fir(x + chance.uniform(-20, 20), y + 20, chance.uniform(120, 240), trees))
    parts += [path("M0,2830 C400,2760 900,2850 1300,2800 C1600,2770 1800,2790 2000,2780 V3000 H0Z", fill="#f8fbfe"),
              snowman(1690, 2880, 0.8)]
    return drawing(2000, 3000, parts)


def sunflower(x, y, size, stalk):
    petals = [ellipse(0, -size * 0.78, size * 0.17, size * 0.36, transform=f"rotate({24 * at})") for at in range(15)]
    return [line(f"M{x},{y} V{y + stalk}", "#4c7f3f", size * 0.16),
            path(f"M{x},{number(y + stalk * 0.7)} q{number(size * 1.2)},{number(-size * 0.9)} {number(size * 1.5)},{number(-size * 0.1)} "
                 f"q{number(-size * 0.9)},{number(size * 0.5)} {number(-size * 1.5)},{number(size * 0.1)}Z", fill="#5d9c4d"),
            placed([group(petals, fill="#f6bd2c"), circle(0, 0, size * 0.5, fill="#6b4423"), circle(0, 0, size * 0.34, fill="#53331a")], x, y, 1)]


def bee(x, y, scale, degrees):
    return placed([ellipse(-10, -46, 34, 46, fill="#ffffff", fill_opacity="0.8"), ellipse(40, -46, 30, 42, fill="#ffffff", fill_opacity="0.8"),
                   ellipse(0, 0, 78, 50, fill="#f5c12e"), rectangle(-34, -45, 22, 90, fill="#3b2a1a"), rectangle(8, -49, 22, 98, fill="#3b2a1a"),
                   circle(72, -6, 30, fill="#3b2a1a"), line("M88,-30 q20,-34 40,-30 M76,-34 q6,-34 24,-42", "#3b2a1a", 6)], x, y, scale, degrees)


def garden():
    chance = random.Random(9)
    parts = [down_gradient("sky", (0, "#e4f3ef"), (0.7, "#f6f6df"), (1, "#e7efc6")), rectangle(0, 0, 2000, 3000, fill="url(#sky)")]
    for x in range(0, 2000, 96):
        parts += [path(f"M{x + 8},3000 V2560 L{x + 44},2510 L{x + 80},2560 V3000Z", fill="#ffffff", stroke="#d9d6c6", stroke_width="5")]
    parts += [rectangle(0, y, 2000, 40, fill="#ffffff", stroke="#d9d6c6", stroke_width="5") for y in (2640, 2860)]
    for x, y, size in ((130, 2420, 130), (320, 2560, 100), (1870, 2400, 135), (1680, 2570, 100), (1000, 2660, 80)):
        parts += sunflower(x, y, size, 3010 - y)
    for x in range(-10, 2010, 36):
        tall = chance.uniform(60, 150)
        parts.append(path(f"M{x},3000 q{number(chance.uniform(-20, 20))},{number(-tall)} {number(chance.uniform(-40, 40))},{number(-tall)} "
                          f"q{number(8)},{number(tall * 0.5)} 26,{number(tall)}Z", fill=chance.choice(["#6fa857", "#86b866", "#5b9648"])))
    for x, y, scale, turn in ((190, 200, 0.7, -14), (1800, 250, 0.6, 160), (1130, 110, 0.45, 10)):
        parts.append(bee(x, y, scale, turn))
    parts += [path("M20,240 q60,70 110,-20", fill="none", stroke="#b7a98a", stroke_width="5", stroke_dasharray="2 22", stroke_linecap="round"),
              path("M1880,330 q40,90 110,30", fill="none", stroke="#b7a98a", stroke_width="5", stroke_dasharray="2 22", stroke_linecap="round")]
    return drawing(2000, 3000, parts)


def island(chance, x, y, width, height):
    edge, lobes = [], [(chance.uniform(0.05, 0.22), chance.uniform(0, 6.3)) for _ in range(6)]
    for at in range(72):
        angle = 2 * math.pi * at / 72
        reach = 1 + sum(size * math.sin((at_lobe + 2) * angle + phase) / (1 + 0.35 * at_lobe)
                        for at_lobe, (size, phase) in enumerate(lobes))
        edge.append((x + width * reach * math.cos(angle), y + height * reach * math.sin(angle)))
    return path(closed(edge), fill="#dcc894", stroke="#b2935a", stroke_width="7", stroke_linejoin="round")


def travel():
    chance = random.Random(77)
    parts = [down_gradient("sea", (0, "#dfe9e3"), (1, "#cfdfdc")), rectangle(0, 0, 3000, 2000, fill="#efe3c4"),
             rectangle(60, 60, 2880, 1880, fill="url(#sea)")]
    for at in range(1, 12):
        parts.append(line(f"M{60 + at * 240},60 V1940", "#b9c6bd", 3))
    for at in range(1, 8):
        parts.append(line(f"M60,{60 + at * 235} H2940", "#b9c6bd", 3))
    for x, y, width, height in ((520, 520, 330, 260), (760, 1380, 200, 330), (1500, 420, 260, 190), (1560, 1180, 230, 330),
                                (2250, 560, 430, 260), (2500, 1450, 230, 150), (1900, 1700, 90, 60), (1130, 880, 70, 50)):
        parts.append(island(chance, x, y, width, height))
    parts += [path("M210,1780 C700,1500 900,1000 1450,960 S2300,900 2760,330", fill="none", stroke="#b8402f", stroke_width="13",
                   stroke_dasharray="42 30", stroke_linecap="round"),
              circle(210, 1780, 34, fill="#b8402f"), circle(210, 1780, 14, fill="#ffffff"),
              placed([path("M0,-150 C22,-150 26,-90 26,-60 L150,30 V64 L26,26 L20,110 L56,140 V164 L0,148 L-56,164 V140 L-20,110 "
                           "L-26,26 L-150,64 V30 L-26,-60 C-26,-90 -22,-150 0,-150Z", fill="#2f4b66")], 2790, 280, 1.15, 33)]
    rose = [path("M0,-150 L30,-30 L0,0 L-30,-30Z", fill=color, transform=f"rotate({turn}) scale({scale})")
            for turns, color, scale in (((45, 135, 225, 315), "#a98a52", 0.66), ((0, 90, 180, 270), "#8b3a2c", 1)) for turn in turns]
    parts += [placed([circle(0, 0, 118, fill="none", stroke="#8b6d3c", stroke_width="6"),
                      circle(0, 0, 104, fill="none", stroke="#8b6d3c", stroke_width="3")] + rose + [circle(0, 0, 12, fill="#f5ead0")], 2740, 1730, 1),
              rectangle(60, 60, 2880, 1880, fill="none", stroke="#8b6d3c", stroke_width="8"),
              rectangle(34, 34, 2932, 1932, fill="none", stroke="#8b6d3c", stroke_width="4")]
    return drawing(3000, 2000, parts)


def rocket(x, y, scale, degrees):
    return placed([path("M-60,150 C-50,260 -20,320 0,380 C20,320 50,260 60,150Z", fill="#f6a12e"),
                   path("M-34,150 C-28,220 -10,260 0,300 C10,260 28,220 34,150Z", fill="#ffe08a"),
                   path("M-90,40 L-170,170 L-80,150Z", fill="#c93b3b"), path("M90,40 L170,170 L80,150Z", fill="#c93b3b"),
                   path("M0,-300 C110,-190 120,20 84,160 H-84 C-120,20 -110,-190 0,-300Z", fill="#eef0f4"),
                   path("M0,-300 C52,-248 82,-188 96,-122 H-96 C-82,-188 -52,-248 0,-300Z", fill="#c93b3b"),
                   circle(0, -40, 52, fill="#8a97ab"), circle(0, -40, 38, fill="#8fd3f0"), rectangle(-14, 60, 28, 110, rx=10, fill="#c93b3b")],
                  x, y, scale, degrees)


def space():
    chance = random.Random(42)
    parts = [down_gradient("deep", (0, "#0b0f26"), (0.6, "#1a1c48"), (1, "#34235c")),
             glow("pink", (0, "#b05fb8", 0.35), (1, "#b05fb8", 0)), glow("blue", (0, "#3f8fd0", 0.32), (1, "#3f8fd0", 0)),
             rectangle(0, 0, 2000, 3000, fill="url(#deep)"), ellipse(350, 2300, 1100, 900, fill="url(#pink)"),
             ellipse(1700, 700, 1100, 900, fill="url(#blue)")]
    for _ in range(520):
        parts.append(circle(chance.uniform(0, 2000), chance.uniform(0, 3000), 1.5 + 5 * chance.random() ** 6,
                            fill=chance.choice(["#ffffff", "#ffeecf", "#d6e2ff"]), fill_opacity=number(chance.uniform(0.5, 1))))
    parts += [placed([circle(0, 0, 190, fill="#e0a25c"), path("M-188,-30 Q0,30 188,-30 Q190,0 188,30 Q0,90 -188,30Z", fill="#c97f42"),
                      path("M-150,-116 Q0,-76 150,-116 L168,-88 Q0,-44 -168,-88Z", fill="#efc184"),
                      path("M-310,70 C-200,170 200,70 310,-70 C330,-110 250,-110 180,-70 C300,-70 190,50 0,96 C-120,126 -240,120 -180,62 "
                           "C-260,70 -340,30 -310,70Z", fill="#f3dcb0", fill_opacity="0.9")], 1690, 290, 0.95, -8),
              circle(190, 330, 120, fill="#6fa7a0"), circle(150, 300, 30, fill="#5b8f89"), circle(230, 370, 40, fill="#5b8f89"),
              circle(220, 270, 18, fill="#5b8f89"), rocket(1730, 2660, 0.72, 32), circle(150, 3080, 340, fill="#b9bdc9"),
              circle(80, 2860, 54, fill="#9fa4b3"), circle(280, 2900, 40, fill="#9fa4b3"), circle(190, 2960, 26, fill="#9fa4b3")]
    return drawing(2000, 3000, parts)
