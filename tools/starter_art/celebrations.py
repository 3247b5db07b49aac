"""Backgrounds for feasts: birthday, wedding, baby, graduation, Christmas. The middle stays calm for the photos."""
import math
import random

from starter_art.pages import fir, placed
from starter_art.svg import (circle, closed, down_gradient, drawing, ellipse, glow, group, number, path, rectangle,
                             smooth)

PARTY = ["#e8556d", "#f4a63a", "#4fb3a9", "#5b8fd9", "#b078c9", "#f2cf4a"]


def line(shape, color, width, **style):
    return path(shape, fill="none", stroke=color, stroke_width=number(width), stroke_linecap="round",
                stroke_linejoin="round", **style)


def ribbon(x, y, length, color, swing=30):
    """A string that hangs down in a lazy wave."""
    steps = [(x + swing * math.sin(at * 1.3), y + length * at / 8) for at in range(9)]
    return line(smooth(steps), color, 5, stroke_opacity="0.7")


def balloon(x, y, size, color):
    return [ribbon(x, y + size * 1.3, size * 2.6, "#8a6d5a", size * 0.12),
            path(closed([(x, y + size * 1.16), (x - size * 0.13, y + size * 1.36), (x + size * 0.13, y + size * 1.36)]),
                 fill=color),
            ellipse(x, y, size, size * 1.2, fill=color),
            ellipse(x - size * 0.35, y - size * 0.45, size * 0.2, size * 0.34, fill="#ffffff", fill_opacity="0.45",
                    transform=f"rotate(25 {number(x - size * 0.35)} {number(y - size * 0.45)})")]


def bunting(width, y, dip, flags, colors):
    """Triangular flags on a line that sags between the two edges."""
    def height(x):
        return y + dip * (1 - ((x - width / 2) / (width / 2)) ** 2)
    parts = [line(smooth([(width * at / 16, height(width * at / 16)) for at in range(17)]), "#8a6d5a", 6)]
    step = width / flags
    for flag in range(flags):
        left, right = flag * step + step * 0.08, (flag + 1) * step - step * 0.08
        tip = ((left + right) / 2, height((left + right) / 2) + step * 1.05)
        parts.append(path(closed([(left, height(left)), (right, height(right)), tip]), fill=colors[flag % len(colors)]))
    return parts


def confetti(chance, count, area, colors, opacity="0.75"):
    left, top, right, bottom = area
    found = []
    for _ in range(count):
        x, y, turn = chance.uniform(left, right), chance.uniform(top, bottom), chance.uniform(0, 180)
        color = chance.choice(colors)
        if chance.random() < 0.5:
            found.append(circle(x, y, chance.uniform(7, 15), fill=color, fill_opacity=opacity))
        else:
            found.append(rectangle(x - 14, y - 6, 28, 12, fill=color, fill_opacity=opacity,
                                   transform=f"rotate({number(turn)} {number(x)} {number(y)})"))
    return found


def birthday():
    chance = random.Random(5)
    parts = [down_gradient("paper", (0, "#fff7ea"), (0.6, "#fdeadb"), (1, "#f9d8d3")),
             rectangle(0, 0, 2000, 3000, fill="url(#paper)")]
    parts += confetti(chance, 230, (0, 250, 2000, 3000), PARTY, "0.5")
    parts += bunting(2000, 40, 190, 13, PARTY) + bunting(2000, -60, 120, 17, PARTY[::-1])
    for x, y, size, color in ((190, 2330, 120, 3), (90, 2560, 125, 0), (290, 2600, 110, 5), (1820, 2350, 125, 4),
                              (1920, 2590, 115, 1), (1710, 2620, 110, 2)):
        parts += balloon(x, y, size, PARTY[color])
    return drawing(2000, 3000, parts)


# ---- wedding

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


def wedding():
    gold = "#c9a45c"
    parts = [down_gradient("paper", (0, "#fffdf8"), (1, "#f8f0e4")), glow("light", (0, "#ffffff", 1), (1, "#ffffff", 0)),
             rectangle(0, 0, 2000, 3000, fill="url(#paper)"), ellipse(1000, 1450, 1100, 1500, fill="url(#light)"),
             rectangle(60, 60, 1880, 2880, fill="none", stroke=gold, stroke_width="7"),
             rectangle(84, 84, 1832, 2832, fill="none", stroke=gold, stroke_width="3"),
             corner(0, 0, 1, 1), corner(2000, 3000, -1, -1)]
    for x in (955, 1065):
        parts += [circle(x, 2800, 76, fill="none", stroke="#a8823c", stroke_width="20"),
                  circle(x, 2797, 76, fill="none", stroke="#e2c178", stroke_width="13")]
    parts.append(path("M1065,2672 l34,26 l-34,36 l-34,-36Z", fill="#dff1f7", stroke="#9bbcc9", stroke_width="4"))
    return drawing(2000, 3000, parts)


# ---- baby

def cloud(x, y, scale, color="#ffffff", opacity="0.9"):
    return placed([ellipse(-120, 20, 95, 70), ellipse(-20, -25, 115, 95), ellipse(105, 5, 100, 78), ellipse(0, 45, 200, 52)],
                  x, y, scale, fill=color, fill_opacity=opacity)


def five_star(x, y, size, color, tilt=0):
    corners = [(x + (size if at % 2 == 0 else size * 0.52) * math.sin(math.pi * at / 5 + tilt),
                y - (size if at % 2 == 0 else size * 0.52) * math.cos(math.pi * at / 5 + tilt)) for at in range(10)]
    return path(closed(corners), fill=color, stroke=color, stroke_width=number(size * 0.22), stroke_linejoin="round")


def duck(x, y, scale):
    return placed([path("M-150,0 C-190,-60 -150,-60 -95,-50 C-60,-66 -20,-66 10,-58 C30,-64 30,-100 32,-112 "
                        "C40,-190 150,-190 150,-110 C150,-60 120,-50 118,-30 C130,60 60,95 -20,95 C-100,95 -140,60 -150,0Z",
                        fill="#ffd75e"), path("M140,-128 q60,8 66,26 q-30,22 -72,10Z", fill="#f39b3c"),
                   circle(102, -128, 11, fill="#4a3a2a"),
                   path("M-90,10 C-60,-30 20,-30 40,6 C20,50 -60,56 -90,10Z", fill="#f6c23e")], x, y, scale)


def block(x, y, size, color, degrees, sign):
    marks = {"heart": "M0,40 C-70,-10 -50,-60 -18,-52 C-6,-50 0,-40 0,-32 C0,-40 6,-50 18,-52 C50,-60 70,-10 0,40Z",
             "moon": "M14,-52 A54,54 0 1 0 46,30 A46,46 0 0 1 14,-52Z", "drop": "M0,-56 C40,0 44,20 30,40 A42,42 0 0 1 -30,40 C-44,20 -40,0 0,-56Z"}
    return placed([rectangle(-90, -90, 180, 180, rx=20, fill=color),
                   rectangle(-70, -70, 140, 140, rx=12, fill="#ffffff", fill_opacity="0.6"),
                   path(marks[sign], fill=color)], x, y, size, degrees)


def baby():
    chance = random.Random(3)
    parts = [down_gradient("sky", (0, "#cfe7f5"), (0.6, "#e6f3f4"), (1, "#fdf3e3")),
             rectangle(0, 0, 3000, 2000, fill="url(#sky)")]
    for _ in range(70):
        parts.append(circle(chance.uniform(0, 3000), chance.uniform(0, 1500), chance.uniform(5, 10), fill="#ffffff",
                            fill_opacity="0.8"))
    for x, y, scale in ((330, 250, 1.3), (2650, 230, 1.5), (1500, 130, 1.0), (120, 1150, 1.1), (2930, 1080, 1.2),
                        (900, 1930, 1.7), (2100, 1950, 1.9), (1500, 1980, 1.5), (300, 1960, 1.8), (2750, 1970, 1.8)):
        parts.append(cloud(x, y, scale))
    for x, length, color, tilt in ((230, 520, "#f6c8cf", 0.1), (700, 170, "#f9dd9a", -0.1), (1120, 250, "#bfdcc6", 0.2),
                                   (1890, 240, "#f6c8cf", -0.2), (2310, 160, "#c5d3f0", 0.1), (2780, 540, "#f9dd9a", 0)):
        parts += [line(f"M{x},0 V{length - 40}", "#b9c4c9", 4), five_star(x, length, 62, color, tilt)]
    parts += [duck(1270, 1830, 0.95), duck(1600, 1850, 0.62), block(420, 1820, 1.05, "#f0a8b0", -6, "heart"),
              block(625, 1835, 0.95, "#8fc1a9", 5, "drop"), block(2560, 1830, 1.0, "#8fb0dd", 7, "moon"),
              block(2360, 1838, 0.9, "#f0c25e", -4, "heart")]
    return drawing(3000, 2000, parts)


# ---- graduation

def mortarboard(x, y, scale, degrees):
    return placed([path("M-150,20 V120 C-80,190 80,190 150,120 V20", fill="#141a3a"),
                   path("M0,-110 L300,0 L0,110 L-300,0Z", fill="#0e1330", stroke="#c9a24a", stroke_width="7",
                        stroke_linejoin="round"),
                   line("M0,0 L225,42 V170", "#e0b44c", 12), circle(225, 180, 20, fill="#e0b44c"),
                   path("M207,190 L200,285 H250 L243,190Z", fill="#e0b44c")], x, y, scale, degrees)


def diploma(x, y, scale, degrees):
    return placed([rectangle(-260, -60, 520, 120, rx=14, fill="#f7ecd2"), ellipse(260, 0, 26, 60, fill="#e4d2a8"),
                   ellipse(260, 0, 12, 30, fill="#c9b27f"), rectangle(-40, -64, 80, 128, fill="#b8322a"),
                   path("M-30,60 L-60,190 L-5,150 L30,200 L30,60Z", fill="#9c271f"), circle(0, 20, 62, fill="#cf3f35"),
                   circle(0, 20, 40, fill="#e0b44c")], x, y, scale, degrees)


def graduation():
    chance = random.Random(11)
    gold = ["#e0b44c", "#f3d98c", "#ffffff", "#b9892b"]
    parts = [down_gradient("night", (0, "#151b40"), (0.55, "#27316b"), (1, "#3a4790")),
             glow("light", (0, "#7d8fe0", 0.5), (1, "#7d8fe0", 0)), rectangle(0, 0, 3000, 2000, fill="url(#night)"),
             ellipse(1500, 900, 1700, 1100, fill="url(#light)")]
    parts += confetti(chance, 260, (0, 0, 3000, 2000), gold, "0.55")
    for _ in range(24):
        parts.append(five_star(chance.uniform(50, 2950), chance.uniform(40, 1960), chance.uniform(14, 26), "#f3d98c"))
    parts += [mortarboard(330, 250, 0.95, -14), mortarboard(2650, 260, 0.9, 12), mortarboard(1500, 180, 0.6, 4),
              diploma(400, 1780, 0.95, -16), diploma(2600, 1790, 0.95, 14)]
    return drawing(3000, 2000, parts)


# ---- Christmas

def bauble(x, y, size, color, string):
    return [line(f"M{number(x)},{number(y - string)} V{number(y - size)}", "#d8b45a", 4),
            rectangle(x - size * 0.2, y - size * 1.2, size * 0.4, size * 0.3, rx=4, fill="#d8b45a"),
            circle(x, y, size, fill=color),
            path(f"M{number(x - size)},{number(y)} q{number(size)},{number(size * 0.5)} {number(2 * size)},0 "
                 f"q{number(-size)},{number(size * 0.9)} {number(-2 * size)},0Z", fill="#ffffff", fill_opacity="0.25"),
            circle(x - size * 0.35, y - size * 0.4, size * 0.17, fill="#ffffff", fill_opacity="0.7")]


def needles(chance, x, y, reach, color):
    """A bough: needles that hang in all directions from one place."""
    shape = ""
    for _ in range(26):
        angle = math.radians(chance.uniform(-10, 190))
        away = reach * chance.uniform(0.6, 1)
        shape += f"M{number(x)},{number(y)} l{number(away * math.cos(angle))},{number(away * math.sin(angle))} "
    return line(shape, color, 9)


def parcel(x, y, width, height, color, band):
    middle = x + width / 2
    return [rectangle(x, y - height, width, height, rx=6, fill=color),
            rectangle(x - 12, y - height, width + 24, height * 0.2, rx=6, fill=color),
            rectangle(x - 12, y - height, width + 24, height * 0.2, rx=6, fill="#000000", fill_opacity="0.12"),
            rectangle(middle - 22, y - height, 44, height, fill=band),
            path(f"M{number(middle)},{number(y - height)} c-120,-10 -130,-120 -60,-100 c40,12 60,60 60,100 "
                 f"c0,-40 20,-88 60,-100 c70,-20 60,90 -60,100Z", fill=band)]


def christmas():
    chance = random.Random(24)
    parts = [down_gradient("wall", (0, "#8c1f28"), (0.6, "#a52a30"), (1, "#7a1820")),
             glow("light", (0, "#ffd9a0", 0.35), (1, "#ffd9a0", 0)), rectangle(0, 0, 2000, 3000, fill="url(#wall)")]
    for row in range(24):
        for column in range(14):
            parts.append(circle(column * 150 + (row % 2) * 75, row * 130 + 40, 6, fill="#ffffff", fill_opacity="0.16"))
    parts.append(ellipse(1000, 1500, 1100, 1500, fill="url(#light)"))
    for x in range(-20, 2060, 42):
        sag = 50 * math.sin(x / 2000 * math.pi * 3) ** 2
        parts.append(needles(chance, x, 20 + sag, chance.uniform(90, 150), chance.choice(["#1f5b38", "#2c7347", "#174a2d"])))
    for x, y, size, color in ((150, 270, 62, "#d8b45a"), (420, 215, 48, "#e9e4da"), (720, 290, 58, "#c7373f"),
                              (1010, 225, 50, "#d8b45a"), (1300, 290, 60, "#e9e4da"), (1590, 220, 50, "#c7373f"),
                              (1860, 275, 62, "#d8b45a")):
        parts += bauble(x, y, size, color, size + 150)
    parts.append(path("M0,2830 C300,2770 600,2860 1000,2810 C1400,2760 1700,2860 2000,2800 V3000 H0Z", fill="#f4f1ec"))
    parts += parcel(110, 2890, 300, 230, "#2c7347", "#d8b45a") + parcel(350, 2930, 200, 150, "#d8b45a", "#8c1f28")
    parts += parcel(1560, 2900, 330, 250, "#e9e4da", "#a52a30") + parcel(1420, 2940, 190, 160, "#2c7347", "#e9e4da")
    for x, height in ((960, 200), (1080, 270), (860, 150)):
        parts.append(fir(x, 2880, height, "#1f5b38"))
    return drawing(2000, 3000, parts)
