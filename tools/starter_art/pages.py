"""The large pages: two backgrounds, the two halves of the seaside, and the picture for a missing sample."""
import math
import random

from starter_art.leaves import ALL as LEAVES
from starter_art.svg import (circle, closed, down_gradient, drawing, ellipse, glow, group, number, path, rectangle,
                             smooth, turned)


def placed(parts, x, y, scale, degrees=0, **style):
    return group(parts, transform=f"translate({number(x)},{number(y)}) rotate({number(degrees)}) scale({scale:.3f})",
                 **style)


# ---- autumn

AUTUMN = ["#c0392b", "#d35400", "#e67e22", "#f1a93b", "#e8c13c", "#a8402a", "#8f5a2a", "#b8891f"]


VEINS = "M0,220 L0,-190 M0,120 L-95,40 M0,120 L95,40 M0,20 L-90,-60 M0,20 L90,-60 M0,-70 L-55,-125 M0,-70 L55,-125"


def leaf_outlines():
    """The six leaves and their veins, defined once for all that have fallen."""
    tilts = (18, 0, -14, -28, 0, 10)
    parts = [path(closed([(x - 250, y - 250) for x, y in outline]), id=f"leaf{kind}") for kind, outline in enumerate(LEAVES)]
    parts += [path(VEINS, id=f"veins{kind}", transform=f"rotate({tilt})") for kind, tilt in enumerate(tilts)]
    return "<defs>\n" + "\n".join(parts) + "\n</defs>"


def leaf(kind, color, x, y, scale, degrees):
    """A fallen leaf, its shadow below it and lighter veins on it."""
    outline, veins = f'<use xlink:href="#leaf{kind}"/>', f'<use xlink:href="#veins{kind}"/>'
    lines = dict(fill="none", stroke="#fff3d0", stroke_opacity="0.4", stroke_width="6")
    return [placed([outline], x + 14 * scale + 4, y + 20 * scale + 6, scale, degrees, fill="#4a2c12", fill_opacity="0.28"),
            placed([group([outline], fill=color), group([veins], **lines)], x, y, scale, degrees)]


def autumn():
    chance = random.Random(31)
    parts = [down_gradient("paper", (0, "#fbf1dc"), (0.5, "#f4dfb4"), (1, "#e3bd80")),
             glow("light", (0, "#fffaf0", 0.9), (1, "#fffaf0", 0)), leaf_outlines(),
             rectangle(0, 0, 2000, 3000, fill="url(#paper)"),
             ellipse(700, 900, 1300, 1500, fill="url(#light)")]
    for _ in range(300):
        x, y = chance.uniform(-60, 2060), chance.uniform(-60, 3060)
        rim = max(abs(x / 2000 - 0.5), abs(y / 3000 - 0.5)) * 2
        if chance.random() > rim ** 3 + 0.06:
            continue
        scale = chance.uniform(0.22, 0.5) * (0.75 + 0.5 * y / 3000)
        parts += leaf(chance.randrange(6), chance.choice(AUTUMN), x, y, scale, chance.uniform(0, 360))
    return drawing(2000, 3000, parts)


# ---- night

def fir(x, y, height, color):
    tiers = [(0, -1), (0.2, -0.62), (0.1, -0.62), (0.29, -0.33), (0.15, -0.33), (0.38, -0.05), (0.05, -0.05), (0.05, 0)]
    right = [(x + a * height, y + b * height) for a, b in tiers]
    return path(closed(right + [(2 * x - px, py) for px, py in reversed(right)]), fill=color)


def hills(chance, base, swing, color, width, height):
    phases = [chance.uniform(0, 6.3) for _ in range(3)]
    crest = [(x, base + swing * (math.sin(x / 430 + phases[0]) + 0.5 * math.sin(x / 190 + phases[1])
                                 + 0.15 * math.sin(x / 60 + phases[2]))) for x in range(-50, width + 51, 50)]
    return path(smooth(crest) + f" L{width + 50},{height} L-50,{height}Z", fill=color), crest


def starry_night():
    chance = random.Random(8)
    parts = [down_gradient("night", (0, "#070b22"), (0.45, "#142048"), (0.75, "#33407a"), (1, "#6d5f95")),
             glow("milk", (0, "#b9c6ff", 0.17), (1, "#b9c6ff", 0)),
             glow("halo", (0, "#fff2b8", 0.75), (0.35, "#ffe9a0", 0.22), (1, "#ffe9a0", 0)),
             rectangle(0, 0, 3000, 2000, fill="url(#night)")]
    for step in range(16):
        parts.append(ellipse(step * 210 - 60, 1050 - step * 62 + chance.uniform(-60, 60), 420, 230, fill="url(#milk)"))
    for _ in range(900):
        x, y = chance.uniform(0, 3000), chance.uniform(0, 1700)
        size = 1.2 + 4.2 * chance.random() ** 6
        parts.append(circle(x, y, size, fill=chance.choice(["#ffffff", "#fff4d8", "#dce6ff"]),
                            fill_opacity=number(chance.uniform(0.4, 1))))
    parts += [circle(2790, 1120, 420, fill="url(#halo)"), circle(2790, 1120, 120, fill="#fff3c4"),
              circle(2750, 1085, 24, fill="#f0dfa0"), circle(2830, 1150, 34, fill="#f0dfa0"),
              circle(2785, 1185, 16, fill="#f0dfa0")]
    for base, swing, color in ((1640, 42, "#2a3160"), (1730, 36, "#1b2146"), (1830, 26, "#0d1128")):
        shape, crest = hills(chance, base, swing, color, 3000, 2000)
        parts.append(shape)
        for x, y in crest[::1 if base > 1700 else 2]:
            if chance.random() < 0.45:
                parts.append(fir(x + chance.uniform(-20, 20), y + 14, chance.uniform(60, 150) * (base / 1750), color))
    parts += [path("M2230,1850 l0,-90 l75,-62 l75,62 l0,90Z", fill="#0a0d1e"),
              rectangle(2268, 1776, 30, 34, fill="#ffd97a"), rectangle(2314, 1776, 30, 34, fill="#ffd97a"),
              rectangle(2345, 1712, 18, 40, fill="#0a0d1e")]
    return drawing(3000, 2000, parts)


# ---- seaside

def boat(x, y, scale, hull, sail):
    return placed([path("M-110,0 L110,0 L80,46 L-78,46Z", fill=hull), path("M-6,-10 L-6,-260 L-100,-10Z", fill=sail),
                   path("M8,-10 L8,-235 L96,-10Z", fill="#ffffff"), rectangle(-5, -265, 8, 268, fill="#6b4a2b"),
                   ellipse(0, 56, 130, 9, fill="#ffffff", fill_opacity="0.55")], x, y, scale)


def gull(x, y, scale):
    return placed([path("M-60,-14 Q-30,-40 0,0 Q30,-40 60,-14", fill="none", stroke="#4c5a66", stroke_width="8",
                        stroke_linecap="round")], x, y, scale)


def puff(chance, x, y, scale):
    blobs = [ellipse(chance.uniform(-150, 150), chance.uniform(-30, 20), chance.uniform(70, 120), chance.uniform(40, 65))
             for _ in range(9)]
    return placed(blobs + [ellipse(0, 30, 220, 38)], x, y, scale, fill="#ffffff", fill_opacity="0.5")


def ripple(chance, y, width, color, opacity):
    x = chance.uniform(-100, 2000)
    return path(smooth([(x + width * k / 6, y + 5 * (-1) ** k) for k in range(7)]), fill="none", stroke=color,
                stroke_opacity=number(opacity), stroke_width=number(2 + (y - 600) / 220), stroke_linecap="round")


def sea_top():
    chance = random.Random(4)
    parts = [down_gradient("sky", (0, "#5fb4e0"), (0.7, "#b9e2f2"), (1, "#fdf3dc")),
             down_gradient("sea", (0, "#2f8db8"), (0.35, "#3fa9c6"), (1, "#63cbd2")),
             glow("sun", (0, "#fffbe6", 1), (0.25, "#fff4c0", 0.75), (1, "#fff4c0", 0)),
             rectangle(0, 0, 2000, 610, fill="url(#sky)"), circle(1560, 190, 420, fill="url(#sun)"),
             circle(1560, 190, 78, fill="#fffdf0")]
    parts += [puff(chance, 330, 190, 1.1), puff(chance, 900, 110, 0.8), puff(chance, 1850, 330, 0.7),
              puff(chance, 680, 360, 0.6)]
    parts.append(rectangle(0, 600, 2000, 900, fill="url(#sea)"))
    for _ in range(240):
        y = 606 + 890 * chance.random() ** 1.4
        parts.append(ripple(chance, y, 60 + (y - 600) / 4, chance.choice(["#ffffff", "#1f7fa6", "#d8f6f4"]),
                            chance.uniform(0.12, 0.45)))
    parts += [boat(1090, 560, 0.85, "#b23a2e", "#f4c95d"), boat(250, 588, 0.5, "#27496d", "#e86a5c"),
              boat(1830, 592, 0.36, "#5a3c28", "#ffffff")]
    parts += [gull(480, 330, 1), gull(590, 280, 0.7), gull(1230, 210, 0.8), gull(760, 470, 0.5)]
    return drawing(2000, 1500, parts)


def star_fish(x, y, scale, degrees):
    arms = []
    for corner in range(10):
        reach, angle = (110 if corner % 2 == 0 else 46), math.radians(36 * corner - 90)
        arms.append((reach * math.cos(angle), reach * math.sin(angle)))
    dots = [circle(45 * math.cos(math.radians(72 * k - 90)), 45 * math.sin(math.radians(72 * k - 90)), 7) for k in range(5)]
    shape = path(closed(arms), stroke_linejoin="round", stroke_width="26")
    return [placed([shape], x + 8, y + 12, scale, degrees, fill="#7a5a30", stroke="#7a5a30", fill_opacity="0.35",
                   stroke_opacity="0.35"),
            placed([group([shape], fill="#e8703a", stroke="#e8703a"), group(dots, fill="#f7b07a")], x, y, scale, degrees)]


def shell(x, y, scale, degrees, color):
    ribs = "".join(f"M0,60 L{number(92 * math.sin(math.radians(a)))},{number(60 - 125 * math.cos(math.radians(a)))} "
                   for a in range(-50, 51, 20))
    fan = [(0, 70)] + [(105 * math.sin(math.radians(a)), 60 - (138 + 5 * math.cos(a)) * math.cos(math.radians(a)))
                       for a in range(-62, 63, 4)]
    return [placed([path(closed(fan))], x + 6, y + 10, scale, degrees, fill="#7a5a30", fill_opacity="0.35"),
            placed([path(closed(fan), fill=color), path(ribs, stroke="#ffffff", stroke_opacity="0.7", stroke_width="6",
                                                        fill="none")], x, y, scale, degrees)]


def surf(chance, base, thickness, opacity):
    """A line of foam that runs up the beach."""
    upper = [(x, base + 26 * math.sin(x / 260 + base) + 14 * math.sin(x / 97)) for x in range(-40, 2081, 40)]
    lower = [(x, y + thickness + chance.uniform(-7, 7)) for x, y in reversed(upper)]
    return path(smooth(upper) + " L" + smooth(lower)[1:] + "Z", fill="#ffffff", fill_opacity=number(opacity))


def sea_sand():
    chance = random.Random(12)
    parts = [down_gradient("shore", (0, "#63cbd2"), (0.22, "#8fdcd9"), (0.3, "#c9e6d2"), (0.36, "#d8bd88"),
                           (0.5, "#eed7a2"), (1, "#e4c68a")),
             rectangle(0, 0, 2000, 1500, fill="url(#shore)")]
    for _ in range(60):
        parts.append(ripple(chance, 640 + chance.uniform(0, 60), 190, "#ffffff", chance.uniform(0.1, 0.35)).replace(
            "<path", f'<path transform="translate(0,{number(chance.uniform(-640, -330))})"'))
    parts += [surf(chance, 330, 46, 0.5), surf(chance, 420, 30, 0.85), surf(chance, 505, 16, 0.6)]
    for _ in range(1100):
        y = 620 + 880 * chance.random()
        parts.append(circle(chance.uniform(0, 2000), y, chance.uniform(1.2, 3.4),
                            fill=chance.choice(["#b8935a", "#fff3d2", "#c9a66a"]), fill_opacity="0.6"))
    for step in range(9):
        x, y = 90 + step * 128, 1420 - step * 34 + (24 if step % 2 else -24)
        parts.append(placed([ellipse(0, 0, 26, 46), circle(-20, -62, 8), circle(-6, -68, 9), circle(10, -66, 8)], x, y, 0.8,
                            70, fill="#b08a50", fill_opacity="0.45"))
    parts += star_fish(1760, 1160, 1, 14) + star_fish(330, 1090, 0.7, -20)
    parts += shell(150, 1250, 0.8, -25, "#f4b8a8") + shell(980, 1060, 0.6, 18, "#f7d9a8") + shell(1880, 1400, 0.75, 30, "#e9a7b5")
    return drawing(2000, 1500, parts)


def postcard():
    stripes = [path(f"M{x},0 l36,0 l-36,60 l-36,0Z", fill="#c8402f" if (x // 90) % 2 else "#2f5f9e")
               for x in range(0, 1300, 90)]
    waves = "".join(f"M880,{y} q30,-16 60,0 q30,16 60,0 q30,-16 60,0 " for y in (330, 352, 374))
    writing = smooth([(90 + 13 * k, 250 + 12 * (-1) ** k + 8 * math.sin(k)) for k in range(34)])
    more = [path(writing, transform=f"translate(0,{number(70 * row)})") for row in range(5)]
    parts = [rectangle(0, 0, 1200, 800, fill="#fbf4e2"), group(stripes),
             group(stripes, transform="translate(0,740)"), rectangle(596, 120, 5, 560, fill="#d9c9a5"),
             group(more, fill="none", stroke="#3a4a78", stroke_width="6", stroke_linecap="round")]
    parts += [rectangle(660, 430 + 80 * row, 460, 4, fill="#b9a67f") for row in range(4)]
    parts += [rectangle(940, 110, 190, 230, fill="#ffffff", stroke="#d0c3a0", stroke_width="4"),
              rectangle(956, 126, 158, 198, fill="#bfe3f0"), rectangle(956, 250, 158, 74, fill="#3fa0c4"),
              boat(1035, 246, 0.42, "#b23a2e", "#f4c95d"),
              circle(900, 240, 78, fill="none", stroke="#555555", stroke_opacity="0.7", stroke_width="6"),
              circle(900, 240, 50, fill="none", stroke="#555555", stroke_opacity="0.7", stroke_width="4"),
              path(waves, fill="none", stroke="#555555", stroke_opacity="0.6", stroke_width="5")]
    return drawing(1200, 800, parts)


def not_yet():
    """An empty frame on an easel."""
    wood = dict(stroke="#8a6a45", stroke_width="12", stroke_linecap="round")
    frame = turned([(-88, -66), (88, -66), (88, 66), (-88, 66)], 0)
    return drawing(300, 450, [
        down_gradient("wall", (0, "#f1efe9"), (1, "#d9d5ca")), rectangle(0, 0, 300, 450, fill="url(#wall)"),
        path("M150,95 L95,360 M150,95 L205,360 M150,110 L150,345 M92,265 L208,265", fill="none", **wood),
        placed([path(closed(frame), fill="#ffffff", stroke="#a98452", stroke_width="14", stroke_linejoin="round"),
                circle(-42, -22, 13, fill="#eadfc4"), path("M-78,52 L-30,-4 L8,36 L34,12 L78,52Z", fill="#e3e3df")],
               150, 200, 1),
        ellipse(150, 372, 110, 10, fill="#000000", fill_opacity="0.12")])
