"""Grounds drawn for one design or two: what its photos lie on takes up how they lie."""
import math
import random

from starter_art.celebrations import line
from starter_art.pages import placed
from starter_art.surfaces import SQUARE, TALL, WIDE, washed
from starter_art.svg import (circle, closed, down_gradient, drawing, ellipse, glow, number, path, rectangle, smooth)

HEART = "M0,100 C-40,62 -96,28 -96,-28 C-96,-66 -68,-88 -40,-88 C-20,-88 -6,-76 0,-60 C6,-76 20,-88 40,-88 C68,-88 96,-66 96,-28 C96,28 40,62 0,100Z"


def scattered_spots(chance, size, count, apart):
    """Spots that keep their distance."""
    found = []
    for _ in range(count * 40):
        spot = (chance.uniform(0, size[0]), chance.uniform(0, size[1]))
        if len(found) < count and all(math.dist(spot, other) > apart for other in found):
            found.append(spot)
    return found


def rose(size):
    """Pink paper with hearts of many sizes, hardly darker than the paper."""
    chance = random.Random(61)
    below, above = washed(size, "#f6cdd0", light="#fff7f4", shine=0.6, shade=0.16, at=(0.5, 0.4))
    hearts = []
    for x, y in scattered_spots(chance, size, 130, 130):
        hearts.append(placed([path(HEART)], x, y, chance.uniform(0.18, 0.75), chance.uniform(-28, 28),
                             fill=chance.choice(["#e88a94", "#ffffff", "#f2a9a6", "#d9707f"]),
                             fill_opacity=number(chance.uniform(0.18, 0.5))))
    return drawing(*size, below + hearts + above)


def party(size):
    """A dark room full of soft lights."""
    chance = random.Random(63)
    below, above = washed(size, "#2d1b4a", light="#8a55c8", shine=0.55, shade=0.5, at=(0.5, 0.45))
    lights = [glow(f"light{at}", (0, color, 0.5), (0.72, color, 0.34), (0.86, color, 0.42), (1, color, 0))
              for at, color in enumerate(("#ffb45e", "#ff6f91", "#7fd4ff", "#c79bff", "#ffe29a"))]
    for x, y in scattered_spots(chance, size, 90, 120):
        lights.append(circle(x, y, chance.uniform(30, 130), fill=f"url(#light{chance.randrange(5)})",
                             opacity=number(chance.uniform(0.2, 0.6))))
    return drawing(*size, below + lights + above)


def day_sky(size):
    """A summer sky with the sun at its edge and a few birds."""
    chance = random.Random(65)
    wide, high = size
    parts = [down_gradient("sky", (0, "#3f8fd4"), (0.55, "#8cc6ee"), (1, "#e3f3fb")), rectangle(0, 0, wide, high, fill="url(#sky)"),
             glow("sun", (0, "#fffbe0", 1), (0.2, "#fff3b8", 0.8), (1, "#fff3b8", 0)), circle(60, 60, 900, fill="url(#sun)"),
             circle(60, 60, 190, fill="#fffbe6")]
    for turn in range(0, 91, 15):
        c, s = math.cos(math.radians(turn)), math.sin(math.radians(turn))
        parts.append(line(f"M{number(60 + 240 * c)},{number(60 + 240 * s)}L{number(60 + 340 * c)},{number(60 + 340 * s)}",
                          "#fff6c8", 16, stroke_opacity="0.7"))
    for _ in range(46):
        x, y, reach = chance.uniform(-200, wide), chance.uniform(0, high), chance.uniform(200, 620)
        parts.append(ellipse(x, y, reach, reach * 0.07, fill="#ffffff", fill_opacity=number(chance.uniform(0.08, 0.24))))
    for x, y, scale in ((820, 2840, 1), (900, 2800, 0.7), (1180, 1250, 0.6), (1240, 180, 0.8), (60, 2130, 0.7), (1960, 1230, 0.6)):
        parts.append(placed([path("M-60,-14 Q-30,-40 0,0 Q30,-40 60,-14", fill="none", stroke="#2f5f8c", stroke_width="9",
                                  stroke_linecap="round")], x, y, scale))
    return drawing(wide, high, parts)


def open_album(size):
    """An album that lies open: two pages of cream, the gutter between them."""
    wide, high = size
    middle = 1355
    below, _ = washed(size, "#5b3d2e")
    parts = [f'<linearGradient id="left" x1="0" y1="0" x2="1" y2="0">'
             '<stop offset="0%" stop-color="#f4ecdc"/><stop offset="86%" stop-color="#f1e7d4"/>'
             '<stop offset="100%" stop-color="#b9a98e"/></linearGradient>',
             f'<linearGradient id="right" x1="0" y1="0" x2="1" y2="0">'
             '<stop offset="0%" stop-color="#a5947a"/><stop offset="9%" stop-color="#ece1cc"/>'
             '<stop offset="100%" stop-color="#f6efe1"/></linearGradient>']
    parts += [rectangle(26 + 8 * leaf, 40 + 3 * leaf, wide - 52 - 16 * leaf, high - 80 + 2 * leaf, fill=tone, rx=16)
              for leaf, tone in enumerate(("#d8cbb2", "#e6dbc5", "#cfc1a6"))]
    parts += [rectangle(60, 44, middle - 60, high - 88, fill="url(#left)", rx=10),
              rectangle(middle, 44, wide - 60 - middle, high - 88, fill="url(#right)", rx=10),
              rectangle(middle - 2, 44, 4, high - 88, fill="#7a6a50", fill_opacity="0.7")]
    for left, right in ((100, middle - 50), (middle + 40, wide - 100)):
        parts.append(rectangle(left, 90, right - left, high - 180, fill="none", stroke="#c4b08a", stroke_width="3",
                               stroke_dasharray="2 16", stroke_linecap="round"))
    return drawing(wide, high, below + parts)


def high_sea(size):
    """Bands of waves, from pale to deep, as the four rows of photos run."""
    wide, high = size
    parts = [down_gradient("sky", (0, "#e9f6f6"), (1, "#bfe4ea")), rectangle(0, 0, wide, high, fill="url(#sky)")]
    tones = ["#a9dbe2", "#7fc6d4", "#57aec4", "#3a93b0", "#2a789a", "#1f5f83", "#174b6c", "#113a57"]
    for at, tone in enumerate(tones):
        base = 300 + at * 350
        crest = [(x, base + 120 * math.sin(2 * math.pi * x / 1540 + at * 0.6) + 16 * math.sin(x / 90 + at))
                 for x in range(-60, wide + 61, 60)]
        shape = smooth(crest)
        parts += [path(shape + f" L{wide + 60},{high} L-60,{high}Z", fill=tone, fill_opacity="0.88"),
                  line(shape, "#ffffff", 9, stroke_opacity="0.55"),
                  line(shape, "#ffffff", 5, stroke_opacity="0.3", transform="translate(0,34)")]
    return drawing(wide, high, parts)


def rays(size, one, other, count=24, at=(0.5, 0.5)):
    """A page of rays about a point, in two colours."""
    wide, high = size
    x, y, reach = at[0] * wide, at[1] * high, math.hypot(wide, high)
    parts = [rectangle(0, 0, wide, high, fill=one)]
    for ray in range(count):
        start, end = (2 * math.pi * (ray + share) / count for share in (-0.25, 0.25))
        parts.append(path(closed([(x, y), (x + reach * math.cos(start), y + reach * math.sin(start)),
                                  (x + reach * math.cos(end), y + reach * math.sin(end))]), fill=other))
    return parts


def dance_floor(size):
    """Soft rays with rings of lights on them."""
    wide, high = size
    parts = rays(size, "#f7e3c8", "#f3d3b0") + [glow("middle", (0, "#fffaf0", 0.95), (1, "#fffaf0", 0)),
                                                ellipse(wide / 2, high / 2, wide * 0.75, high * 0.6, fill="url(#middle)")]
    for ring, (count, color) in enumerate(((48, "#e2795b"), (60, "#e9b44c"), (72, "#6aa69a"))):
        for step in range(count):
            turn = 2 * math.pi * (step + ring / 2) / count
            parts.append(circle(wide / 2 + (0.46 + 0.1 * ring) * wide * math.cos(turn),
                                high / 2 - (0.45 + 0.065 * ring) * high * math.sin(turn), 11 if ring != 1 else 8, fill=color,
                                fill_opacity="0.75"))
    return drawing(wide, high, parts)


def carousel_roof(size):
    """The roof of a carousel seen from below, with bulbs along its edge."""
    wide, high = size
    parts = rays(size, "#fbf1de", "#d2584b", 28) + [
        glow("dome", (0, "#fff8e6", 0.85), (0.6, "#fff3d8", 0.3), (1, "#7a1f1a", 0.35)),
        rectangle(0, 0, wide, high, fill="url(#dome)")]
    bulbs = [(x, y) for x in range(75, wide, 150) for y in (52, high - 52)]
    bulbs += [(x, y) for y in range(194, high - 150, 150) for x in (52, wide - 52)]
    parts += [rectangle(52, 52, wide - 104, high - 104, fill="none", stroke="#b98a2f", stroke_width="34"),
              rectangle(52, 52, wide - 104, high - 104, fill="none", stroke="#e7c46a", stroke_width="20")]
    for x, y in bulbs:
        parts += [circle(x, y, 30, fill="#fff2b0", fill_opacity="0.35"), circle(x, y, 15, fill="#fffbe4")]
    return drawing(wide, high, parts)


def strung_lights(size):
    """Four strings that sag between the edges, with a clip above each photo and bulbs between them."""
    wide, high = size
    parts = [down_gradient("dusk", (0, "#39466f"), (0.5, "#6d6a98"), (0.8, "#b98da0"), (1, "#e9b996")),
             rectangle(0, 0, wide, high, fill="url(#dusk)"),
             glow("bulb", (0, "#fff4c4", 0.9), (0.3, "#ffe59a", 0.45), (1, "#ffe59a", 0))]
    for middle in (360, 1080, 1800, 2520):
        def height(x, middle=middle):
            return middle - 136 - 62 * ((x - 1000) / 470) ** 2
        parts.append(line(smooth([(x, height(x)) for x in range(-100, wide + 101, 100)]), "#2b2a3c", 7))
        for at in range(5):
            x = 60 + 470 * at
            parts += [circle(x, height(x) + 30, 84, fill="url(#bulb)"), rectangle(x - 9, height(x) - 4, 18, 20, fill="#2b2a3c"),
                      ellipse(x, height(x) + 32, 15, 21, fill="#fff6cf")]
        for at in range(4):
            x = 1000 + 470 * (at - 1.5)
            parts += [placed([rectangle(-12, -26, 24, 78, fill="#c98f4f", rx=5), rectangle(-12, -2, 24, 8, fill="#8a5c2c")],
                             x + side, height(x + side), 1, -7 * (at - 1.5)) for side in (-110, 110)]
    return drawing(wide, high, parts)


def windy_sky(size):
    """A pale sky, gusts that curl, leaves and a kite in them."""
    chance = random.Random(71)
    wide, high = size
    parts = [down_gradient("sky", (0, "#b9d9ea"), (0.6, "#dbecef"), (1, "#f3efdf")), rectangle(0, 0, wide, high, fill="url(#sky)")]
    for y in range(120, high + 300, 240):
        start = chance.uniform(-300, 100)
        gust = [(start + 170 * k, y - 22 * k - 40 * math.sin(k * 0.9 + y)) for k in range(15)]
        parts.append(line(smooth(gust), "#ffffff", chance.uniform(10, 26), stroke_opacity="0.7"))
        x, top = gust[-4][0] - 500, gust[-4][1] + 120
        parts.append(line(f"M{number(x - 420)},{number(top + 60)}C{number(x - 150)},{number(top)} {number(x + 120)},{number(top + 40)} "
                          f"{number(x + 110)},{number(top - 60)}C{number(x + 100)},{number(top - 130)} {number(x)},{number(top - 120)} "
                          f"{number(x + 10)},{number(top - 60)}", "#9fc3d6", 12, stroke_opacity="0.55"))
    for _ in range(80):
        parts.append(placed([path("M0,60 C-34,20 -34,-24 0,-60 C34,-24 34,20 0,60Z"),
                             line("M0,76 L0,-40", "#ffffff", 4, stroke_opacity="0.5")],
                            chance.uniform(0, wide), chance.uniform(0, high), chance.uniform(0.4, 0.95), chance.uniform(-120, -30),
                            fill=chance.choice(["#d98a3d", "#c4593a", "#8fa84c", "#e0b548"])))
    return drawing(wide, high, parts)


def brook(size):
    """Water that tumbles down a slope, to and fro."""
    wide, high = size
    parts = [down_gradient("bank", (0, "#dfe9d3"), (1, "#a9c59b")), rectangle(0, 0, wide, high, fill="url(#bank)")]
    chance = random.Random(73)
    for _ in range(150):
        x, y = chance.uniform(0, wide), chance.uniform(0, high)
        parts.append(line(f"M{number(x)},{number(y)}q-8,-40 -26,-62m26,62q6,-44 24,-58m-24,58q-2,-40 -1,-74", "#7fa56f", 7,
                          stroke_opacity="0.55"))
    def course(shift, swing=430):
        return smooth([(1000 + shift + swing * math.sin(y / 330 - 1.7), y) for y in range(-200, high + 201, 100)])
    parts += [line(course(0), "#6f9a86", 1000, stroke_opacity="0.5"), line(course(0), "#86c3d2", 930),
              line(course(-20), "#6fb3c9", 760, stroke_opacity="0.7"), line(course(30), "#a9dbe2", 420, stroke_opacity="0.5")]
    for shift in range(-400, 401, 80):
        parts.append(line(course(shift, 430 + chance.uniform(-40, 40)), "#ffffff", chance.uniform(5, 14),
                          stroke_opacity=number(chance.uniform(0.25, 0.6)), stroke_dasharray=f"{chance.randrange(160, 420)} "
                          f"{chance.randrange(90, 260)}"))
    return drawing(wide, high, parts)


def sprig(x, y, scale, degrees, tone):
    leaves = [line("M0,0 C-20,-160 20,-320 0,-500", tone, 10)]
    for at in range(7):
        base = -80 - 62 * at
        for side in (-1, 1):
            reach = 120 - 9 * at
            leaves.append(path(f"M0,{base} C{side * reach * 0.3:.0f},{base - 70} {side * reach:.0f},{base - 70} {side * reach * 1.2:.0f},"
                               f"{base - 96} C{side * reach * 0.9:.0f},{base - 6} {side * reach * 0.3:.0f},{base + 6} 0,{base}Z", fill=tone))
    return placed(leaves, x, y, scale, degrees)


def bouquet_paper(size):
    """Sprigs that spread from a bow."""
    chance = random.Random(77)
    below, above = washed(size, "#f7efe2", light="#ffffff", shine=0.6, shade=0.12, at=(0.5, 0.45))
    parts = []
    for turn in range(-150, 151, 10):
        angle = math.radians(turn)
        for reach in (560, 980):
            parts.append(sprig(1000 + reach * math.sin(angle), 1500 - reach * math.cos(angle) * 1.1, chance.uniform(0.7, 0.95),
                               turn + chance.uniform(-9, 9), chance.choice(["#8fae8b", "#a9c3a0", "#6f9474", "#b9cfa8"])))
    for _ in range(46):
        angle, reach = math.radians(chance.uniform(-150, 150)), chance.uniform(760, 1420)
        x, y = 1000 + reach * math.sin(angle), 1500 - reach * math.cos(angle)
        tone = chance.choice(["#e9a0a8", "#f2c0b5", "#f7d98f", "#ffffff"])
        parts += [circle(x + 17 * math.cos(leaf), y + 17 * math.sin(leaf), 15, fill=tone) for leaf in (0, 1.26, 2.51, 3.77, 5.03)]
        parts.append(circle(x, y, 9, fill="#d9a441"))
    bow = [path("M0,0 C-180,-150 -330,-120 -300,0 C-330,120 -180,130 0,0Z", fill="#c9606b"),
           path("M0,0 C180,-150 330,-120 300,0 C330,120 180,130 0,0Z", fill="#d2707a"),
           path("M-20,10 C-60,110 -150,190 -210,240 L-120,250 C-60,190 -10,120 10,20Z", fill="#b9525d"),
           path("M20,10 C60,110 150,190 210,240 L120,250 C60,190 10,120 -10,20Z", fill="#c9606b"), circle(0, 0, 46, fill="#b04a56")]
    return drawing(*size, below + parts + [placed(bow, 1000, 2780, 0.72)] + above)


def greeting(size):
    """A card of cream paper in a double line, with flourishes in its corners and below."""
    wide, high = size
    below, above = washed(size, "#faf3e6", light="#ffffff", shine=0.5, shade=0.12)
    curl = ("M0,0 C60,-10 130,-60 130,-130 C130,-180 70,-190 62,-146 C56,-110 96,-100 104,-126 "
            "M0,0 C10,-60 60,-130 130,-130 M30,-6 C80,20 150,20 200,-30 C220,-56 190,-80 172,-58")
    parts = [rectangle(46, 46, wide - 92, high - 92, fill="none", stroke="#b8863b", stroke_width="7"),
             rectangle(64, 64, wide - 128, high - 128, fill="none", stroke="#b8863b", stroke_width="2.5")]
    for x, y, across, down in ((80, 80, 1, -1), (wide - 80, 80, -1, -1), (80, high - 80, 1, 1), (wide - 80, high - 80, -1, 1)):
        parts.append(f'<g transform="translate({x},{y}) scale({across},{down})">' + line(curl, "#b8863b", 7) + "</g>")
    x, y = wide / 2, high - 178
    parts += [f'<g transform="translate({number(x + side * 60)},{number(y)}) scale({side},1)">'
              + line("M0,0 C90,-70 200,-60 250,0 C280,44 220,72 200,34 M0,0 C90,60 230,70 420,0 C480,-22 470,-60 440,-52", "#b8863b", 8)
              + "</g>" for side in (1, -1)]
    parts.append(placed([path(HEART, fill="#c8402f")], x, y, 0.5))
    return drawing(wide, high, below + parts + above)


def sunflower(size):
    """A flower whose seeds the photos are."""
    wide, high = size
    parts = [down_gradient("field", (0, "#9ccbe6"), (0.55, "#cfe6d2"), (1, "#86ad5f")), rectangle(0, 0, wide, high, fill="url(#field)"),
             glow("seeds", (0, "#7a4a22", 1), (0.8, "#5a3416", 1), (1, "#3f230e", 1))]
    for ring, (count, reach, tone) in enumerate(((26, 1.0, "#e59a1f"), (26, 0.95, "#f2b632"), (26, 0.88, "#fbcf4e"))):
        for at in range(count):
            turn = 360 * (at + ring / 3) / count
            angle = math.radians(turn)
            x, y = 1000 + 560 * math.sin(angle), 1500 - 980 * math.cos(angle)
            long_side = (470 + 190 * abs(math.cos(angle))) * reach
            lean = math.degrees(math.atan2(980 * math.sin(angle), 560 * math.cos(angle) * 1.75))
            parts.append(placed([path(f"M-70,40 C-120,{-0.4 * long_side:.0f} -50,{-0.8 * long_side:.0f} 0,{-long_side:.0f} "
                                      f"C50,{-0.8 * long_side:.0f} 120,{-0.4 * long_side:.0f} 70,40Z", fill=tone),
                                 line(f"M0,0 L0,{-0.7 * long_side:.0f}", "#c47f12", 5, stroke_opacity="0.5")], x, y, 1, lean))
    parts.append(ellipse(1000, 1500, 640, 1070, fill="url(#seeds)"))
    for at in range(420):
        turn, reach = math.radians(137.508 * at), math.sqrt((at + 0.5) / 420)
        parts.append(circle(1000 + 615 * reach * math.cos(turn), 1500 + 1035 * reach * math.sin(turn), 12, fill="#9a6a34",
                            fill_opacity="0.7"))
    return drawing(wide, high, parts)


def crossroads(size):
    """Two ribbons that cross, as the two rows of photos do."""
    wide, high = size
    below, above = washed(size, "#f0e7d8", light="#ffffff", shine=0.5, shade=0.14, at=(0.5, 0.5))
    dots = [circle(x, y, 7, fill="#c9b898", fill_opacity="0.6") for row, y in enumerate(range(60, high, 90))
            for x in range(60 + (row % 2) * 45, wide, 90)]
    parts = []
    for sign, dark, tone in ((1, "#2f7a78", "#4fa39c"), (-1, "#b5533f", "#d9765c")):
        ends = f"M{1000 - sign * 1000},{1500 - 1667}L{1000 + sign * 1000},{1500 + 1667}"
        parts += [line(ends, "#000000", 520, stroke_opacity="0.12", transform="translate(16,22)"), line(ends, dark, 520),
                  line(ends, tone, 480), line(ends, "#ffffff", 432, stroke_opacity="0.16"), line(ends, tone, 424)]
    return drawing(wide, high, below + dots + parts + above)


def spiral_sheet(size):
    """Squared paper with the spiral that the squares make."""
    wide, high = size
    below, above = washed(size, "#f4efe2", light="#ffffff", shine=0.4, shade=0.16)
    unit, left, top = 136, 116, 72
    squares = "".join(f"M{number(left % unit + unit * k)},0V{high}" for k in range(-1, 16)) + "".join(
        f"M0,{number(top % unit + unit * k)}H{wide}" for k in range(-1, 23))
    fine = "".join(f"M{x},0V{high}" for x in range(14, wide, 34)) + "".join(f"M0,{y}H{wide}" for y in range(4, high, 34))
    return drawing(wide, high, below + [path(fine, fill="none", stroke="#9db8c9", stroke_width="2", stroke_opacity="0.4"),
                                        path(squares, fill="none", stroke="#6f93ab", stroke_width="4", stroke_opacity="0.5")] + above)


def shelves(size):
    """A wall with two shelves for the frames of the layout."""
    wide, high = size
    below, above = washed(size, "#5f7565", light="#dcecd8", shine=0.5, shade=0.28, at=(0.5, 0.25))
    parts = []
    for left, right, y in ((210, 2790, 1104), (110, 2890, 1738)):
        parts += [rectangle(left + 30, y + 44, right - left - 40, 60, fill="#000000", fill_opacity="0.16"),
                  rectangle(left, y, right - left, 46, fill="#b98a58"), rectangle(left, y, right - left, 10, fill="#d9ae7c"),
                  rectangle(left, y + 40, right - left, 8, fill="#83592f")]
        parts += [path(f"M{x},{y + 46} h40 v40 q0,60 -40,60Z", fill="#8f6436") for x in (left + 160, right - 200)]
    pot = [path("M-70,0 L-52,120 L52,120 L70,0Z", fill="#c9704a"), rectangle(-80, -18, 160, 34, fill="#d98560", rx=6)]
    pot += [path(f"M0,-10 C{reach * 0.2:.0f},-90 {reach * 0.8:.0f},-130 {reach},{-150 + abs(reach) * 0.5:.0f} C{reach * 0.9:.0f},-90 "
                 f"{reach * 0.4:.0f},-40 0,-10Z", fill=tone) for reach, tone in ((-120, "#4f8a4c"), (120, "#5c9a55"), (-60, "#6fae63"),
                                                                          (70, "#4f8a4c"), (10, "#82bf70"))]
    parts += [placed(pot, 345, 987, 0.98), placed(pot, 2655, 987, 0.98)]
    return drawing(wide, high, below + parts + above)


def hall(size):
    """A wall with panels below, such as old halls have."""
    wide, high = size
    below, above = washed(size, "#7d4a45", light="#e9b9a0", shine=0.42, shade=0.36, at=(0.5, 0.3))
    chance = random.Random(83)
    motif = ['<defs><g id="motif">', path("M0,-60 C40,-30 40,20 0,60 C-40,20 -40,-30 0,-60Z", fill="#9a6058"),
             path("M0,-30 C16,-14 16,10 0,30 C-16,10 -16,-14 0,-30Z", fill="#7d4a45"), circle(0, -84, 9, fill="#9a6058"),
             circle(0, 84, 9, fill="#9a6058"), "</g></defs>"]
    for row, y in enumerate(range(0, high, 170)):
        for x in range((row % 2) * 100, wide + 100, 200):
            motif.append(f'<use xlink:href="#motif" opacity="{chance.uniform(0.5, 0.7):.2f}" transform="translate({x},{y}) scale(0.8)"/>')
    return drawing(wide, high, below + motif + above)


SHARED = {"rose": rose(SQUARE), "rose_tall": rose(TALL), "party": party(SQUARE), "day_sky": day_sky(TALL),
          "open_album": open_album(WIDE), "high_sea": high_sea(TALL), "dance_floor": dance_floor(TALL),
          "carousel_roof": carousel_roof(WIDE), "strung_lights": strung_lights(TALL), "windy_sky": windy_sky(TALL),
          "brook": brook(TALL), "bouquet_paper": bouquet_paper(TALL), "greeting": greeting(TALL), "sunflower": sunflower(TALL),
          "crossroads": crossroads(TALL), "spiral_sheet": spiral_sheet(TALL), "shelves": shelves(WIDE), "hall_tall": hall(TALL),
          "hall_wide": hall(WIDE)}
