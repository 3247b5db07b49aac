"""Light pages of the occasions, each for an upright poster and for a wide one: function of (width, height) to a drawing.

What is dark above and below is where a caption stands.
"""
import math
import random

from starter_art.botany import bough, rose_corner, twig_of_leaves
from starter_art.pages import placed
from starter_art.papers import bands, boards, dots, feet, glow_over, paper, petals_in_air, pier, plates, ribbons, sheet
from starter_art.scenery import contours, curve, light, mixed, range_of, rule, sky, wood
from starter_art.svg import circle, closed, drawing, ellipse, path, rectangle

GOLD = "#b8934e"


def wedding(size):
    """Ivory paper, two ribbons of satin, roses in two corners."""
    wide, high = size
    return drawing(*size, paper(size, "#f3ece0", seed=302) + rule(size, 26, GOLD, "0.8", False) + [rose_corner(0, 300, 1, 1, 0.42), rose_corner(wide, high - 300, -1, -1, 0.42)]
                   + ribbons(size, "#374f43", "#d9c79a"))


def baby(size):
    """A pale sky with soft clouds, under a canopy of the night and above its hills."""
    chance, (wide, high) = random.Random(303), size
    parts = sky(size, (0, "#b9d3e6"), (0.55, "#dfeaf1"), (1, "#f3e6dc"))
    for _ in range(16):
        x, y, reach = chance.uniform(-100, wide + 100), chance.uniform(380, high - 420), chance.uniform(50, 110)
        parts += [circle(x + reach * off, y - reach * rise, reach * part, fill="#ffffff", fill_opacity="0.55") for off, rise, part in
                  ((0, 0, 1), (1, 0.25, 0.85), (-1, 0.1, 0.8), (1.9, -0.1, 0.6), (-1.8, -0.1, 0.55))]
    scallops = "M0,0H%d" % wide + "V262" + "".join(f"a100,60 0 0 1 -{wide / round(wide / 200):.1f},0" for _ in range(round(wide / 200))) + "Z"
    parts += [path(scallops, fill="#000000", fill_opacity="0.14", transform="translate(0,16)"), path(scallops, fill="#34507a")]
    parts += [circle(chance.uniform(0, wide), chance.uniform(14, 250), chance.uniform(3, 8), fill="#f6e3a8", fill_opacity="0.55") for _ in range(70)]
    for at, (tone, rise) in enumerate((("#6f8fae", 330), ("#4a6b92", 300), ("#34507a", 270))):
        crest = [(x, high - rise - 34 * math.sin(x / 340 + 1.9 * at)) for x in range(-60, wide + 121, 60)]
        parts.append(path(closed(crest + [(wide + 120, high + 20), (-60, high + 20)]), fill=tone))
    return drawing(*size, parts)


def spring(size):
    """Blossom before a pale morning, between dark boughs above and a meadow below."""
    chance, (wide, high) = random.Random(305), size
    parts = sky(size, (0, "#dcebd8"), (0.6, "#f4f1df"), (1, "#dfe9c9")) + glow_over(size, "#fffdf0", 0.8)
    parts += bands(size, "#2f4a3a")
    for x, y, turn, scale in ((-40, 300, 118, 0.62), (wide + 40, 290, -118, 0.66), (-30, 0.62 * high, 64, 0.6), (wide + 30, 0.7 * high, -66, 0.6)):
        parts.append(placed(bough(chance, ["#f3b8c8", "#ee9fb6", "#f9d9e0"], "#4a342c"), x, y, scale, turn))
    return drawing(*size, parts + petals_in_air(chance, size, ["#f3b8c8", "#ee9fb6"], 60))


def summer(size):
    """A beach from above: the sea, its foam, bright sand and the boards of a pier."""
    chance, (wide, high) = random.Random(306), size
    parts = sky(size, (0, "#efdfbf"), (1, "#e6d0a6"))
    specks = "".join(f"M{chance.uniform(0, wide):.0f},{chance.uniform(260, high):.0f}h5v5h-5Z" for _ in range(1900))
    parts.append(path(specks, fill="#a5875a", fill_opacity="0.4"))

    def shore(level, swing, phase):
        return [(x, level + swing * math.sin(x / 330 + phase) + 0.4 * swing * math.sin(x / 120 + 2 * phase)) for x in range(-60, wide + 121, 40)]
    for level, tone, opacity in ((330, "#cdb488", "0.8"), (312, "#ffffff", "0.9"), (296, "#7fb9bd", "1"), (282, "#ffffff", "0.45"), (272, "#2f8093", "1"), (250, "#14566c", "1")):
        parts.append(path(closed(shore(level, 13, 0.4) + [(wide + 120, -20), (-60, -20)]), fill=tone, fill_opacity=opacity))
    for _ in range(60):
        x, y = chance.uniform(0, wide), chance.uniform(10, 240)
        parts.append(ellipse(x, y, chance.uniform(20, 70), 3, fill="#5fa3b0", fill_opacity="0.35"))
    parts += pier(size, "#6b4c33", "#3a2717", 4, high - 262)
    return drawing(*size, parts)


def winter(size):
    """A slope of snow between a blue evening and a dark wood."""
    chance, (wide, high) = random.Random(307), size
    parts = sky(size, (0, "#27406b"), (255 / high, "#3a5a8c"), (0.16 if high > wide else 0.24, "#9db8d6"), (0.4, "#dfe9f3"), (1, "#f4f8fb"))
    parts.append(range_of(chance, size, 0.17 if high > wide else 0.25, 0.03, "#b9cde2")[0])
    for at in range(6):
        start = high * (0.24 + 0.11 * at)
        crest = [(x, start + 0.09 * high * (x / wide) + 46 * math.sin(x / 420 + 1.3 * at)) for x in range(-60, wide + 121, 60)]
        parts.append(path(closed(crest + [(wide + 120, high), (-60, high)]), fill=mixed("#d5e2ef", "#ffffff", at / 6), fill_opacity="0.8"))
    parts += wood(chance, size, 0.925, 0.085 * high, "#7f9ab5", 46) + wood(chance, size, 0.99, 0.1 * high, "#23405c", 44)
    parts.append(rectangle(0, high - 240, wide, 240, fill="#1d3550"))
    parts += [circle(chance.uniform(0, wide), chance.uniform(0, high), chance.uniform(2, 6), fill="#ffffff", fill_opacity="0.8") for _ in range(260)]
    return drawing(*size, parts)


def travel(size):
    """A bright map between two straps of leather."""
    chance, (wide, high) = random.Random(309), size
    parts = paper(size, "#ece3cf", seed=9) + contours(chance, size, "#a5875a", 40)
    way = [(0.04, 0.86), (0.3, 0.74), (0.2, 0.52), (0.62, 0.44), (0.8, 0.22), (0.97, 0.14)]
    parts.append(curve([(x * wide, y * high) for x, y in way], "#b0503a", 9).replace("/>", ' stroke-dasharray="4 28"/>'))
    return drawing(*size, parts + ribbons(size, "#5a3b28", "#d9b98a"))


def school(size):
    """A page of a notebook below a strip of blackboard."""
    wide, high = size
    lines = "".join(f"M0,{y}H{wide}" for y in range(330, high - 280, 74))
    parts = paper(size, "#f6f3e8", seed=13) + [path(lines, stroke="#7f9fc4", stroke_width="4", stroke_opacity="0.45", fill="none"),
                                               path(f"M150,262V{high - 262}", stroke="#c46a5c", stroke_width="5", stroke_opacity="0.5", fill="none")]
    parts += bands(size, "#2c4a40", "#b98a58")
    parts += [rectangle(0, 262, wide, 18, fill="#9a6f44"), rectangle(0, high - 280, wide, 18, fill="#9a6f44")]
    return drawing(*size, parts)


def pets(size):
    """Cream paper with two tracks of paws between two collars."""
    chance, (wide, high) = random.Random(316), size
    parts = paper(size, "#f1e7d6", seed=16)
    for x, turn in ((0.032, 4), (0.968, 184)):
        for step in range(int((high - 620) / 190)):
            parts.append(placed([path("M0,-10 C52,-10 84,44 70,86 C56,124 26,102 0,102 C-26,102 -56,124 -70,86 C-84,44 -52,-10 0,-10Z"),
                                 *(ellipse(px, py, 26, 36) for px, py in ((-92, -14), (-36, -68), (36, -68), (92, -14)))],
                                x * wide + (30 if step % 2 else -30), 400 + 190 * step, 0.42, turn + chance.uniform(-8, 8), fill="#b08a63", fill_opacity="0.6"))
    parts += ribbons(size, "#8a3a2c", "#e8c79a")
    for (top, bottom), x in zip(feet(size), (0.12 * wide, 0.88 * wide)):
        middle = (top + bottom) / 2
        parts += [rectangle(x - 54, top - 14, 108, bottom - top + 28, fill="none", stroke="#d9c79a", stroke_width="20", rx=22), rectangle(x - 8, middle - 9, 74, 18, fill="#d9c79a", rx=9)]
    return drawing(*size, parts)


def best_wishes(size):
    """A cream card tied with two green ribbons."""
    wide, high = size
    parts = paper(size, "#f5efe2", seed=116) + rule(size, 22, GOLD, "0.9", False)
    for x, y, turn in ((70, 330, 135), (wide - 70, high - 330, 315)):
        for at in range(3):
            parts.append(placed(twig_of_leaves(random.Random(at), "#7d946f"), x, y, 0.42, turn - 40 + 40 * at))
    return drawing(*size, parts + ribbons(size, "#294e40", "#e0d0a0"))


def mothers_day(size):
    """Blush paper with roses in two corners and two dark plates."""
    wide, high = size
    return drawing(*size, paper(size, "#f4e3de", "#7a4a4a", 322) + [rose_corner(wide, 0, -1, 1, 0.5), rose_corner(0, high, 1, -1, 0.5)] + plates(size, "#5c2f3c", "#d9b3a0"))


def easter(size):
    """Pale yellow with boughs of white blossom, dark leaves above and grass below."""
    chance, (wide, high) = random.Random(324), size
    parts = sky(size, (0, "#f3edc9"), (0.5, "#faf6e2"), (1, "#e3ecc0")) + glow_over(size, "#fffef4", 0.8)
    parts += [rectangle(0, 0, wide, 250, fill="#33502f"), rectangle(0, high - 290, wide, 290, fill="#33502f")]
    for x in range(-40, wide + 60, 64):
        parts.append(placed(twig_of_leaves(chance, chance.choice(["#3f6238", "#4b7040", "#33502f"])), x, 205, chance.uniform(0.2, 0.3), 180 + chance.uniform(-30, 30)))
    blades = {tone: "" for tone in ("#33502f", "#4b7040", "#6a8c4e")}
    for _ in range(round(wide / 3)):
        x, reach = chance.uniform(0, wide), chance.uniform(40, 120)
        blades[chance.choice(list(blades))] += f"M{x:.0f},{high - 280}q{chance.uniform(-16, 16):.0f},{-reach / 2:.0f} {chance.uniform(-34, 34):.0f},{-reach:.0f}"
    parts += [path(shape, fill="none", stroke=tone, stroke_width="9", stroke_linecap="round") for tone, shape in blades.items()]
    for x, y, turn, scale in ((-30, 0.42 * high, 70, 0.55), (wide + 30, 0.5 * high, -66, 0.58)):
        parts.append(placed(bough(chance, ["#ffffff", "#fbe9a8", "#fff7df"], "#5a4a38"), x, y, scale, turn))
    return drawing(*size, parts)


def milestone(size):
    """A bright wall with golden confetti at its sides, and two dark plates."""
    chance = random.Random(326)
    return drawing(*size, paper(size, "#f2eee6", seed=326) + dots(chance, size, [GOLD, "#d9bd80", "#8f7240"], 260, 15) + plates(size, "#2b3440", "#c9a867"))


def recipe(size):
    """A recipe card on dark boards: lines to write on beside the photos."""
    wide, high = size
    left, top, right = (190, 1370, 1170) if high > wide else (1270, 390, 2270)
    lines = "".join(f"M{left},{y}H{right}" for y in range(top + 60, (2640 if high > wide else 1680), 92))
    parts = boards(size, "#43362d", "#211812", 9, 331) + sheet(size, "#f7f0de")
    return drawing(*size, parts + [path(lines, stroke="#b08a63", stroke_width="4", stroke_opacity="0.7", fill="none"), path(f"M{left},{top}H{right}", stroke="#a8453a", stroke_width="7", fill="none")])


def book_list(size):
    """Cards on a pale shelf, a line below each for what is written on its back."""
    wide, high = size
    spots = [(190 + 560 * x, 340 + 790 * y, 500, 600) for y in range(3) for x in range(3)] if high > wide else [
        (165 + 545 * x, 330 + 690 * y, 490, 530) for y in range(2) for x in range(5)]
    lines = "".join(f"M{left},{top + tall + gap}h{across}" for left, top, across, tall in spots for gap in (66, 124))
    return drawing(*size, paper(size, "#efe8da", seed=332) + bands(size, "#4a3226", "#c9a06a") + [path(lines, stroke="#8a7358", stroke_width="5", stroke_opacity="0.6", fill="none")])


def cover_story(size):
    """A title's field in deep blue over the head of the page, with nothing in it but two lines."""
    wide, high = size
    head = 900 if high > wide else 540
    parts = paper(size, "#f1ede4", seed=333) + [rectangle(0, 0, wide, head, fill="#1d2b3f"), rectangle(0, high - 262, wide, 262, fill="#1d2b3f")]
    parts += [rectangle(120, head - 150, wide - 240, 6, fill="#d9b877"), rectangle(120, head - 126, wide - 240, 2, fill="#d9b877"), rectangle(120, 330, 180, 26, fill="#c46a4a")]
    return drawing(*size, parts)


def before_after(size):
    """Two tones side by side, the earlier the darker."""
    wide, high = size
    parts = paper(size, "#efe9dd", seed=334)
    for at in range(2 if high > wide else 4):
        if at % 2 == 0:
            across = wide / (2 if high > wide else 4)
            parts.append(rectangle(at * across, 0, across, high, fill="#c9bda6", fill_opacity="0.55"))
    return drawing(*size, parts + bands(size, "#2f3a3c", "#c9a867"))


def our_class(size):
    """Squared paper below a blackboard; on an upright page the board leaves room for the names of the class."""
    wide, high = size
    squares = "".join(f"M{x},0V{high}" for x in range(0, wide, 50)) + "".join(f"M0,{y}H{wide}" for y in range(0, high, 50))
    head = 820 if high > wide else 268
    parts = paper(size, "#f4f2ea", seed=335) + [path(squares, stroke="#8fb0cf", stroke_width="2.5", stroke_opacity="0.45", fill="none"),
                                                rectangle(0, 0, wide, head, fill="#27423a"), rectangle(0, head, wide, 26, fill="#a87848"), rectangle(0, head + 26, wide, 18, fill="#000000", fill_opacity="0.14"),
                                                rectangle(0, high - 262, wide, 262, fill="#27423a"), rectangle(0, high - 280, wide, 18, fill="#a87848")]
    chance = random.Random(335)
    for _ in range(14):
        x, y = chance.uniform(100, wide - 100), chance.uniform(60, head - 60)
        parts.append(ellipse(x, y, chance.uniform(160, 420), chance.uniform(20, 60), fill="#ffffff", fill_opacity="0.02"))
    if high > wide:
        parts += [path("".join(f"M{300 + 720 * at},{y}h680" for at in (0, 1) for y in (420, 540, 660)), stroke="#e8efe6", stroke_width="5", stroke_opacity="0.28", fill="none")]
    return drawing(*size, parts)


def month_sheet(size):
    """The sheet of a month: seven days across, to write in."""
    wide, high = size
    left, top, right, bottom = (120, 1460, 1880, 2690) if high > wide else (1430, 310, 2870, 1700)
    across, down = (right - left) / 7, (bottom - top - 80) / 5
    parts = paper(size, "#f5f2ea", seed=336) + bands(size, "#3a4a5c", "#c9a867") + [rectangle(left, top, right - left, 80, fill="#3a4a5c")]
    parts += [rectangle(left + 5 * across, top + 80, 2 * across, 5 * down, fill="#c9a867", fill_opacity="0.18")]
    lines = "".join(f"M{left + across * at:.0f},{top + 80}V{bottom}" for at in range(8)) + "".join(f"M{left},{top + 80 + down * at:.0f}H{right}" for at in range(6))
    return drawing(*size, parts + [path(lines, stroke="#5c6a78", stroke_width="4", stroke_opacity="0.7", fill="none")])


def year_in_review(size):
    """Warm white, with a thin line of gold and the four tones of the seasons along the head and the foot."""
    wide, high = size
    parts = paper(size, "#f3efe6", seed=337) + bands(size, "#33413a")
    for at, tone in enumerate(("#7fa7c4", "#8fb573", "#e0b14f", "#b8663c")):
        parts += [rectangle(at * wide / 4, 270, wide / 4, 12, fill=tone), rectangle(at * wide / 4, high - 280, wide / 4, 12, fill=tone)]
    return drawing(*size, parts)


def baby_months(size):
    """Pale mint with a line of pennants, and soft dots."""
    chance, (wide, high) = random.Random(338), size
    parts = paper(size, "#e6efe6", "#4a6a5a", 338)
    parts += [circle(chance.uniform(0, wide), chance.uniform(290, high - 290), chance.uniform(8, 26), fill=chance.choice(["#ffffff", "#f3d9c4", "#cfe0ea", "#f2e6b8"]), fill_opacity="0.8")
              for _ in range(90)]
    return drawing(*size, parts + bands(size, "#405763", "#f3d9c4"))


def photo_booth(size):
    """Strips from the booth on its curtain."""
    wide, high = size
    parts = sky(size, (0, "#5a1f26"), (0.5, "#7a2a30"), (1, "#4a161d"))
    for fold in range(0, wide, 150):
        parts += [rectangle(fold, 0, 64, high, fill="#000000", fill_opacity="0.14"), rectangle(fold + 96, 0, 24, high, fill="#ffffff", fill_opacity="0.05")]
    if high > wide:
        strips, bottom = [(200 + 560 * at, 480) for at in range(3)], 2690
    else:
        step = (2740 - 440 * 5) / 6
        strips, bottom = [(130 + step * (at + 1) + 440 * at, 440) for at in range(5)], 1700
    for left, across in strips:
        parts += [rectangle(left - 28 + 10, 320 + 14, across + 56, bottom - 320, fill="#000000", fill_opacity="0.28"), rectangle(left - 28, 320, across + 56, bottom - 320, fill="#f7f3ea")]
    return drawing(*size, parts)


def window(size):
    """A white window: its panes are the photos, between a dark pelmet and a dark sill."""
    wide, high = size
    left, top, right, bottom = (240, 350, 1760, 2650) if high > wide else (250, 350, 2750, 1660)
    parts = paper(size, "#dfe3df", "#3a4a4a", 340)
    parts += [rectangle(left - 110 + 12, top - 80 + 14, right - left + 220, bottom - top + 160, fill="#000000", fill_opacity="0.18"),
              rectangle(left - 110, top - 80, right - left + 220, bottom - top + 160, fill="#f8f7f2"), rectangle(left - 40, top - 36, right - left + 80, bottom - top + 72, fill="none", stroke="#c9c6bb", stroke_width="6")]
    columns, lines = ((2, 3) if high > wide else (3, 2))
    for at in range(1, columns):
        x = left + (right - left + 60) * at / columns - 30
        parts.append(path(f"M{x - 14:.0f},{top - 36}V{bottom + 36}M{x + 14:.0f},{top - 36}V{bottom + 36}", stroke="#c9c6bb", stroke_width="4", fill="none"))
    for at in range(1, lines):
        y = top + (bottom - top + 60) * at / lines - 30
        parts.append(path(f"M{left - 40},{y - 14:.0f}H{right + 40}M{left - 40},{y + 14:.0f}H{right + 40}", stroke="#c9c6bb", stroke_width="4", fill="none"))
    return drawing(*size, parts + bands(size, "#4a3a30", None, 262, 262))


def magazine(size):
    """White pages with a rule and a dark head, as a magazine has them."""
    wide, high = size
    parts = paper(size, "#f7f5f0", seed=341) + bands(size, "#23272b", "#b0503a", 266, 266)
    if wide > high:
        parts += [f'<linearGradient id="gutter" x1="0" y1="0" x2="1" y2="0"><stop offset="0%" stop-color="#000000" stop-opacity="0.22"/><stop offset="100%" stop-color="#000000" stop-opacity="0"/></linearGradient>',
                  rectangle(1460, 266, 120, high - 532, fill="url(#gutter)")]
    return drawing(*size, parts)


def postcards(size):
    """Dark boards, on which the cards have been spread, and a pale cloth between."""
    wide, high = size
    return drawing(*size, boards(size, "#3d3029", "#1d1512", 10, 342) + sheet(size, "#d9cfb8", 60, 266, 260, 42))


def white_space(size):
    """Nothing but paper, one line, and a dark head and foot."""
    wide, high = size
    parts = paper(size, "#f6f4ef", seed=343) + bands(size, "#2b2b2d")
    x = 520 if high > wide else 2420
    return drawing(*size, parts + [rectangle(x, 420, 5, high - 840, fill="#b0503a")])


def light_table(size):
    """Slides on a light table: mounts of card round each photo."""
    wide, high = size
    parts = sky(size, (0, "#e3ebee"), (0.5, "#fbfdfd"), (1, "#dbe5e9")) + bands(size, "#22262a", "#5c656c")
    spots = [(150 + 600 * x, 368 + 605 * y, 500, 450) for y in range(4) for x in range(3)] if high > wide else [
        (120 + 720 * x, 388 + 705 * y, 600, 520) for y in range(2) for x in range(4)]
    for left, top, across, down in spots:
        parts += [rectangle(left - 34 + 8, top - 60 + 10, across + 68, down + 120, rx=18, fill="#000000", fill_opacity="0.14"),
                  rectangle(left - 34, top - 60, across + 68, down + 120, rx=18, fill="#f4efe2", stroke="#cfc7b2", stroke_width="3"),
                  circle(left - 8, top + down + 36, 9, fill="#b0503a")]
    return drawing(*size, parts)


def panorama_page(size):
    """Sand, with the line of a far coast above and below."""
    return drawing(*size, paper(size, "#ebe2d0", seed=346) + bands(size, "#2f4a58", "#d9c39a", 266, 266))


def salon_wall(size):
    """A warm white wall with a dark rail above and below."""
    parts = paper(size, "#efe9dc", "#6a5a40", 347) + bands(size, "#4a5a52", "#7d8f84")
    return drawing(*size, parts)
