"""Grounds drawn for one design or two: what its photos lie on takes up how they lie."""
import math
import random

from starter_art.fasteners import peg
from starter_art.roses import line
from starter_art.pages import placed
from starter_art.surfaces import SQUARE, TALL, WIDE, washed
from starter_art.svg import (circle, closed, down_gradient, drawing, ellipse, glow, number, path, rectangle, smooth)


def scattered_spots(chance, size, count, apart):
    """Spots that keep their distance."""
    found = []
    for _ in range(count * 40):
        spot = (chance.uniform(0, size[0]), chance.uniform(0, size[1]))
        if len(found) < count and all(math.dist(spot, other) > apart for other in found):
            found.append(spot)
    return found


def party(size):
    """A dark room full of soft lights."""
    chance = random.Random(63)
    below, above = washed(size, "#2d1b4a", light="#8a55c8", shine=0.55, shade=0.5, at=(0.5, 0.45))
    lights = [glow(f"light{at}", (0, color, 0.5), (0.72, color, 0.34), (0.86, color, 0.42), (1, color, 0))
              for at, color in enumerate(("#ffb45e", "#ff6f91", "#7fd4ff", "#c79bff", "#ffe29a"))]
    for x, y in scattered_spots(chance, size, 90, 120):
        lights.append(circle(x, y, chance.uniform(30, 130), fill=f"url(#light{chance.randrange(5)})",
                             opacity=number(chance.uniform(0.1, 0.35))))
    return drawing(*size, below + lights + above)


def open_album(size):
    """An album that lies open: two pages of black paper, the gutter between them."""
    wide, high = size
    middle = 1355
    below, _ = washed(size, "#5b3d2e")
    parts = [f'<linearGradient id="left" x1="0" y1="0" x2="1" y2="0">'
             '<stop offset="0%" stop-color="#34302d"/><stop offset="86%" stop-color="#322e2b"/>'
             '<stop offset="100%" stop-color="#191715"/></linearGradient>',
             f'<linearGradient id="right" x1="0" y1="0" x2="1" y2="0">'
             '<stop offset="0%" stop-color="#141210"/><stop offset="9%" stop-color="#302c29"/>'
             '<stop offset="100%" stop-color="#37332f"/></linearGradient>']
    parts += [rectangle(26 + 8 * leaf, 40 + 3 * leaf, wide - 52 - 16 * leaf, high - 80 + 2 * leaf, fill=tone, rx=16)
              for leaf, tone in enumerate(("#453f39", "#4d4640", "#3f3a34"))]
    parts += [rectangle(60, 44, middle - 60, high - 88, fill="url(#left)", rx=10),
              rectangle(middle, 44, wide - 60 - middle, high - 88, fill="url(#right)", rx=10),
              rectangle(middle - 2, 44, 4, high - 88, fill="#0c0b0a", fill_opacity="0.7")]
    for left, right in ((100, middle - 50), (middle + 40, wide - 100)):
        parts.append(rectangle(left, 90, right - left, high - 180, fill="none", stroke="#8a7a5c", stroke_width="3",
                               stroke_dasharray="2 16", stroke_linecap="round"))
    return drawing(wide, high, below + parts)


def high_sea(size):
    """Bands of waves, from pale to deep, as the four rows of photos run."""
    wide, high = size
    parts = [down_gradient("sky", (0, "#3a6478"), (1, "#2f586e")), rectangle(0, 0, wide, high, fill="url(#sky)")]
    tones = ["#355f75", "#2f586f", "#295068", "#234860", "#1e4057", "#19384e", "#143045", "#10283c"]
    for at, tone in enumerate(tones):
        base = 300 + at * 350
        crest = [(x, base + 120 * math.sin(2 * math.pi * x / 1540 + at * 0.6) + 16 * math.sin(x / 90 + at))
                 for x in range(-60, wide + 61, 60)]
        shape = smooth(crest)
        parts += [path(shape + f" L{wide + 60},{high} L-60,{high}Z", fill=tone, fill_opacity="0.88"),
                  line(shape, "#ffffff", 7, stroke_opacity="0.25"),
                  line(shape, "#ffffff", 4, stroke_opacity="0.12", transform="translate(0,34)")]
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
    parts = rays(size, "#3f2f4d", "#463555") + [glow("middle", (0, "#a58ab0", 0.6), (1, "#a58ab0", 0)),
                                                ellipse(wide / 2, high / 2, wide * 0.75, high * 0.6, fill="url(#middle)")]
    for ring, (count, color) in enumerate(((48, "#c98a6f"), (60, "#c9a968"), (72, "#7f9f98"))):
        for step in range(count):
            turn = 2 * math.pi * (step + ring / 2) / count
            parts.append(circle(wide / 2 + (0.46 + 0.1 * ring) * wide * math.cos(turn),
                                high / 2 - (0.45 + 0.065 * ring) * high * math.sin(turn), 11 if ring != 1 else 8, fill=color,
                                fill_opacity="0.6"))
    return drawing(wide, high, parts)


def carousel_roof(size):
    """The roof of a carousel seen from below, with bulbs along its edge."""
    wide, high = size
    parts = rays(size, "#6e2a26", "#571f1d", 28) + [
        glow("dome", (0, "#f0c896", 0.5), (0.6, "#c98a6a", 0.15), (1, "#2a0a0a", 0.4)),
        rectangle(0, 0, wide, high, fill="url(#dome)")]
    bulbs = [(x, y) for x in range(75, wide, 150) for y in (34, high - 34)]
    bulbs += [(x, y) for y in range(194, high - 150, 150) for x in (34, wide - 34)]
    parts += [rectangle(34, 34, wide - 68, high - 68, fill="none", stroke="#b98a2f", stroke_width="34"),
              rectangle(34, 34, wide - 68, high - 68, fill="none", stroke="#e7c46a", stroke_width="20")]
    for x, y in bulbs:
        parts += [circle(x, y, 24, fill="#fff2b0", fill_opacity="0.35"), circle(x, y, 15, fill="#fffbe4")]
    return drawing(wide, high, parts)


def strung_lights(size):
    """Four strings that sag between the edges, with a clip above each photo and bulbs between them."""
    wide, high = size
    parts = [down_gradient("dusk", (0, "#232c4a"), (0.5, "#454566"), (0.8, "#6d5670"), (1, "#5c4358")),
             rectangle(0, 0, wide, high, fill="url(#dusk)"),
             glow("bulb", (0, "#fff4c4", 0.9), (0.3, "#ffe59a", 0.45), (1, "#ffe59a", 0))]
    for middle in (460, 1120, 1780, 2440):
        def height(x, middle=middle):
            return middle - 136 - 62 * ((x - 1000) / 470) ** 2
        parts.append(line(smooth([(x, height(x)) for x in range(-100, wide + 101, 100)]), "#2b2a3c", 7))
        for at in range(5):
            x = 60 + 470 * at
            parts += [circle(x, height(x) + 30, 84, fill="url(#bulb)"), rectangle(x - 9, height(x) - 4, 18, 20, fill="#2b2a3c"),
                      ellipse(x, height(x) + 32, 15, 21, fill="#fff6cf")]
        for at in range(4):
            x = 1000 + 470 * (at - 1.5)
            parts += [peg(x + side, height(x + side), -7 * (at - 1.5)) for side in (-110, 110)]
    return drawing(wide, high, parts)


def windy_sky(size):
    """A pale sky, gusts that curl, leaves and a kite in them."""
    chance = random.Random(71)
    wide, high = size
    parts = [down_gradient("sky", (0, "#2e4254"), (0.6, "#4d6474"), (1, "#3d4a52")), rectangle(0, 0, wide, high, fill="url(#sky)")]
    for y in range(120, high + 300, 240):
        start = chance.uniform(-300, 100)
        gust = [(start + 170 * k, y - 22 * k - 40 * math.sin(k * 0.9 + y)) for k in range(15)]
        parts.append(line(smooth(gust), "#ffffff", chance.uniform(10, 26), stroke_opacity="0.08"))
        x, top = gust[-4][0] - 500, gust[-4][1] + 120
        parts.append(line(f"M{number(x - 420)},{number(top + 60)}C{number(x - 150)},{number(top)} {number(x + 120)},{number(top + 40)} "
                          f"{number(x + 110)},{number(top - 60)}C{number(x + 100)},{number(top - 130)} {number(x)},{number(top - 120)} "
                          f"{number(x + 10)},{number(top - 60)}", "#9fc3d6", 8, stroke_opacity="0.14"))
    for _ in range(80):
        parts.append(placed([path("M0,60 C-34,20 -34,-24 0,-60 C34,-24 34,20 0,60Z"),
                             line("M0,76 L0,-40", "#ffffff", 4, stroke_opacity="0.15")],
                            chance.uniform(0, wide), chance.uniform(0, high), chance.uniform(0.4, 0.95), chance.uniform(-120, -30),
                            fill=chance.choice(["#8a5c30", "#7f4230", "#5f6d38", "#8f7838"])))
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
    """Sprigs that spread from the middle."""
    chance = random.Random(77)
    below, above = washed(size, "#3a2f38", light="#a58a98", shine=0.3, shade=0.3, at=(0.5, 0.45))
    parts = []
    for turn in range(-150, 151, 10):
        angle = math.radians(turn)
        for reach in (560, 980):
            parts.append(sprig(1000 + reach * math.sin(angle), 1500 - reach * math.cos(angle) * 1.1, chance.uniform(0.7, 0.95),
                               turn + chance.uniform(-9, 9), chance.choice(["#4a5f4a", "#566b52", "#3f5442", "#5f7358"])))
    for _ in range(46):
        angle, reach = math.radians(chance.uniform(-150, 150)), chance.uniform(760, 1420)
        x, y = 1000 + reach * math.sin(angle), 1500 - reach * math.cos(angle)
        tone = chance.choice(["#8f5f68", "#94706a", "#937f52", "#8a8280"])
        parts += [circle(x + 17 * math.cos(leaf), y + 17 * math.sin(leaf), 15, fill=tone) for leaf in (0, 1.26, 2.51, 3.77, 5.03)]
        parts.append(circle(x, y, 9, fill="#7a5c28"))
    return drawing(*size, below + parts + above)


def spiral_sheet(size):
    """Dark squared paper, whose squares the photos stand on."""
    wide, high = size
    below, above = washed(size, "#243444", light="#7f9ab0", shine=0.2, shade=0.25)
    unit, left, top = 136, 116, 72
    squares = "".join(f"M{number(left % unit + unit * k)},0V{high}" for k in range(-1, 16)) + "".join(
        f"M0,{number(top % unit + unit * k)}H{wide}" for k in range(-1, 23))
    fine = "".join(f"M{x},0V{high}" for x in range(14, wide, 34)) + "".join(f"M0,{y}H{wide}" for y in range(4, high, 34))
    return drawing(wide, high, below + [path(fine, fill="none", stroke="#9db8c9", stroke_width="2", stroke_opacity="0.1"),
                                        path(squares, fill="none", stroke="#9db8c9", stroke_width="4", stroke_opacity="0.16")] + above)


def shelves(size):
    """A wall with two shelves for the frames of the layout."""
    wide, high = size
    below, above = washed(size, "#4a5f50", light="#cfe3cf", shine=0.24, shade=0.34, at=(0.5, 0.42))
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
    below, above = washed(size, "#6b3f3b", light="#d9a890", shine=0.26, shade=0.36, at=(0.5, 0.42))
    chance = random.Random(83)
    motif = ['<defs><g id="motif">', path("M0,-60 C40,-30 40,20 0,60 C-40,20 -40,-30 0,-60Z", fill="#9a6058"),
             path("M0,-30 C16,-14 16,10 0,30 C-16,10 -16,-14 0,-30Z", fill="#7d4a45"), circle(0, -84, 9, fill="#9a6058"),
             circle(0, 84, 9, fill="#9a6058"), "</g></defs>"]
    for row, y in enumerate(range(0, high, 170)):
        for x in range((row % 2) * 100, wide + 100, 200):
            motif.append(f'<use xlink:href="#motif" opacity="{chance.uniform(0.5, 0.7):.2f}" transform="translate({x},{y}) scale(0.8)"/>')
    return drawing(wide, high, below + motif + above)


SHARED = {"party": party(SQUARE), "open_album": open_album(WIDE), "high_sea": high_sea(TALL), "dance_floor": dance_floor(TALL),
          "carousel_roof": carousel_roof(WIDE), "strung_lights": strung_lights(TALL), "windy_sky": windy_sky(TALL),
          "bouquet_paper": bouquet_paper(TALL), "spiral_sheet": spiral_sheet(TALL), "shelves": shelves(WIDE), "hall_tall": hall(TALL),
          "hall_wide": hall(WIDE)}
