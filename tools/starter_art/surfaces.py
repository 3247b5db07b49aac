"""Grounds that photos lie or hang on: wood, cloth, cork, felt, paper, plaster. What turns has a square page, which is
stretched by half either way, so its pattern stands it."""
import math
import random

from starter_art.svg import (circle, closed, drawing, ellipse, number, path, rectangle, smooth)

TALL, WIDE, SQUARE = (2000, 3000), (3000, 2000), (2400, 2400)
TILE = 500


def washed(size, color, light="#ffffff", shine=0.28, shade=0.3, at=(0.45, 0.38)):
    """A plain page with light on it: bright about a point, darker towards the corners."""
    def round_gradient(name, reach, stops):
        listed = "".join(f'<stop offset="{number(100 * where)}%" stop-color="{tone}" stop-opacity="{opacity}"/>'
                         for where, tone, opacity in stops)
        return f'<radialGradient id="{name}" cx="{at[0]}" cy="{at[1]}" r="{reach}">{listed}</radialGradient>'
    whole = (0, 0, *size)
    return ([round_gradient("shine", 0.7, [(0, light, shine), (1, light, 0)]),
             round_gradient("shade", 0.95, [(0.2, "#000000", 0), (0.5, "#000000", 0.16 * shade), (0.75, "#000000", 0.5 * shade),
                                       (1, "#000000", shade)]), rectangle(*whole, fill=color)],
            [rectangle(*whole, fill="url(#shine)"), rectangle(*whole, fill="url(#shade)")])


def tiles(size, name, parts, chance):
    """One square of specks, defined once and laid side by side, each turned another way."""
    found = [f'<defs><g id="{name}">\n' + "\n".join(parts) + "\n</g></defs>"]
    middle = TILE / 2
    for top in range(0, size[1], TILE):
        for left in range(0, size[0], TILE):
            turn = chance.choice((0, 90, 180, 270))
            found.append(f'<use xlink:href="#{name}" transform="translate({left},{top}) rotate({turn} {number(middle)} '
                         f'{number(middle)})"/>')
    return found


def lines_across(size, step, swing, chance, upright):
    """Threads as one path for each strength: threads of a cloth are of uneven colour."""
    buckets = [[], [], []]
    length, across = (size[1], size[0]) if upright else (size[0], size[1])
    at = 0.0
    while at < across:
        buckets[chance.randrange(3)].append(f"M{number(at)},0V{length}" if upright else f"M0,{number(at)}H{length}")
        at += step + chance.uniform(-swing, swing)
    return ["".join(one) for one in buckets]


def cloth(size, color, dark, light, seed, step=8.0):
    """A woven cloth."""
    chance = random.Random(seed)
    below, above = washed(size, color)
    threads = []
    for upright in (False, True):
        for thread, opacity in zip(lines_across(size, step, 1.6, chance, upright), ("0.10", "0.18", "0.26")):
            threads.append(path(thread, stroke=dark, stroke_opacity=opacity, stroke_width="3", fill="none"))
        for thread, opacity in zip(lines_across(size, step * 1.7, 3, chance, upright), ("0.06", "0.12", "0.2")):
            threads.append(path(thread, stroke=light, stroke_opacity=opacity, stroke_width="3", fill="none"))
    return drawing(*size, below + threads + above)


def gingham(size):
    """A picnic blanket of two reds."""
    chance = random.Random(7)
    below, above = washed(size, "#87403a", shine=0.1, shade=0.3)
    check = 120
    bands = [rectangle(x, 0, check, size[1], fill="#561b1b", fill_opacity="0.6") for x in range(check // 2, size[0], 2 * check)]
    bands += [rectangle(0, y, size[0], check, fill="#561b1b", fill_opacity="0.6") for y in range(check // 2, size[1], 2 * check)]
    threads = [path(thread, stroke="#ffffff", stroke_opacity="0.12", stroke_width="3", fill="none")
               for upright in (False, True) for thread in lines_across(size, 9, 1, chance, upright)]
    return drawing(*size, below + bands + threads + above)


def wood(size, planks, tones, seam, seed, knots=True):
    """Planks that run across the page, each with a grain of its own."""
    chance = random.Random(seed)
    below, above = washed(size, tones[0], light="#fff2d8", shine=0.22, shade=0.34)
    high, parts, last = size[1] / planks, [], None
    for plank in range(planks):
        top, tone = plank * high, chance.choice([tone for tone in tones if tone != last])
        last = tone
        parts.append(rectangle(0, top, size[0], high + 1, fill=tone))
        joint = chance.uniform(0.15, 0.85) * size[0]
        parts.append(rectangle(joint, top, size[0] - joint, high + 1, fill=chance.choice(tones), fill_opacity="0.55"))
        knot = (chance.uniform(0.05, 0.95) * size[0], top + chance.uniform(0.3, 0.7) * high)
        parts += grain(chance, size[0], top, high, seam, knot if knots and chance.random() < 0.6 else None)
        parts += [path(f"M0,{number(top)}H{size[0]}M{number(joint)},{number(top)}V{number(top + high)}", stroke=seam,
                       stroke_width="6", stroke_opacity="0.75", fill="none"),
                  path(f"M0,{number(top + 6)}H{size[0]}", stroke="#ffffff", stroke_width="3", stroke_opacity="0.16", fill="none")]
    return drawing(*size, below + parts + above)


def grain(chance, wide, top, high, color, knot):
    """Lines along a plank, which give way to a knot."""
    found = []
    for step in range(13):
        base = top + high * (step + 0.5) / 13
        phase, swing = chance.uniform(0, 6.3), high * 0.022
        line = []
        for x in range(-60, wide + 61, 120):
            y = base + swing * math.sin(x / 310 + phase) + swing * 0.5 * math.sin(x / 130 + 2 * phase)
            if knot:
                near = math.exp(-((x - knot[0]) / 130) ** 2)
                y += (1 if base >= knot[1] else -1) * near * high * 0.09
            line.append((x, y))
        found.append(path(smooth(line), stroke=color, stroke_opacity=number(chance.uniform(0.1, 0.4)),
                          stroke_width=number(chance.uniform(1.5, 4)), fill="none"))
    if knot:
        found += [ellipse(*knot, 34 - 9 * ring, 15 - 4 * ring, fill=color, fill_opacity="0.32") for ring in range(3)]
    return found


OAK = ["#7d5a35", "#74522e", "#86613a", "#6f4d2a", "#7f5c37"]
WALNUT = ["#5d4030", "#664736", "#543a2b", "#6d4d3a", "#5a3d2e"]
DRIFTWOOD = ["#5f5c56", "#66635c", "#58554f", "#636059", "#5c5953"]


def oak(size):
    return wood(size, size[1] // 270, OAK, "#3a2410", seed=3)


def walnut(size):
    return wood(size, size[1] // 270, WALNUT, "#2a1910", seed=5)


def driftwood(size):
    return wood(size, size[1] // 240, DRIFTWOOD, "#2f2c28", seed=9)


def linen(size):
    return cloth(size, "#5a5143", "#383127", "#b5a88f", seed=2)


def slate(size):
    return cloth(size, "#45525f", "#262f39", "#8fa0b0", seed=4, step=10)


def denim(size):
    return cloth(size, "#34496b", "#1b2b49", "#86a0c8", seed=6, step=7)


def sage(size):
    return cloth(size, "#4c5a45", "#2f3a2b", "#93a287", seed=8, step=9)


def blush(size):
    return cloth(size, "#6d4744", "#472c2a", "#b58a83", seed=12, step=9)


def specks(chance, count, colors, large, stretch=1.0, opacity=(0.3, 0.9)):
    found = []
    for _ in range(count):
        x, y, size = chance.uniform(0, TILE), chance.uniform(0, TILE), large * chance.uniform(0.35, 1)
        found.append(ellipse(x, y, size * stretch, size, fill=chance.choice(colors),
                             fill_opacity=f"{chance.uniform(*opacity):.2f}",
                             transform=f"rotate({number(chance.uniform(0, 180))} {number(x)} {number(y)})"))
    return found


def fibres(chance, count, colors, length, width, opacity):
    found = []
    for _ in range(count):
        x, y, turn = chance.uniform(0, TILE), chance.uniform(0, TILE), chance.uniform(0, 6.3)
        reach = length * chance.uniform(0.4, 1)
        found.append(path(f"M{number(x)},{number(y)}q{number(reach * math.cos(turn + 0.4) / 2)},"
                          f"{number(reach * math.sin(turn + 0.4) / 2)} {number(reach * math.cos(turn))},"
                          f"{number(reach * math.sin(turn))}", stroke=chance.choice(colors), stroke_width=number(width),
                          stroke_opacity=opacity, fill="none", stroke_linecap="round"))
    return found


def cork(size, rim=44):
    """A board of cork in a wooden frame."""
    chance = random.Random(15)
    below, above = washed(size, "#7d5a36", shine=0.1, shade=0.24)
    grains = tiles(size, "cork", specks(chance, 330, ["#664626", "#503418", "#93704a", "#70502c", "#9a7850", "#3f2812"], 13, 1.5, (0.25, 0.7)),
                   chance)
    edge = [rectangle(rim / 2, rim / 2, size[0] - rim, size[1] - rim, fill="none", stroke="#7c522c", stroke_width=number(rim)),
            rectangle(rim / 4, rim / 4, size[0] - rim / 2, size[1] - rim / 2, fill="none", stroke="#9a6c3f",
                      stroke_width=number(rim / 2)),
            rectangle(rim, rim, size[0] - 2 * rim, 16, fill="#3a2310", fill_opacity="0.3"),
            rectangle(rim, rim, 12, size[1] - 2 * rim, fill="#3a2310", fill_opacity="0.22")]
    return drawing(*size, below + grains + above + edge)


def felt(size):
    """The green cloth of a card table, with its edge of wood."""
    chance = random.Random(21)
    below, above = washed(size, "#195f43", light="#7ac79f", shine=0.28, shade=0.42, at=(0.5, 0.45))
    hairs = tiles(size, "felt", fibres(chance, 300, ["#0f5638", "#3b9a70", "#17694a"], 34, 2.5, "0.4"), chance)
    wide, high = size
    edge = [rectangle(24, 24, wide - 48, high - 48, fill="none", stroke="#4a2b18", stroke_width="48"),
            rectangle(14, 14, wide - 28, high - 28, fill="none", stroke="#6d4326", stroke_width="18"),
            rectangle(92, 92, wide - 184, high - 184, fill="none", stroke="#d9c37a", stroke_width="5", stroke_opacity="0.25", rx="40")]
    return drawing(*size, below + hairs + above + edge)


def kraft(size):
    """Brown wrapping paper."""
    chance = random.Random(27)
    below, above = washed(size, "#7d603c", shine=0.12, shade=0.24)
    hairs = tiles(size, "kraft", fibres(chance, 170, ["#5f4525", "#9c7d55", "#4f381c"], 46, 2.2, "0.42")
                  + specks(chance, 60, ["#4a341a", "#a88a62"], 3.5), chance)
    return drawing(*size, below + hairs + above)


def lawn(size):
    """Grass seen from above, with clover in it."""
    chance = random.Random(33)
    below, above = washed(size, "#1f4a29", light="#8fbf7a", shine=0.2, shade=0.4)
    blades = tiles(size, "lawn", fibres(chance, 420, ["#143a1c", "#2b5f33", "#3c7343", "#1d4a26", "#4a824c"], 62, 5, "0.55"), chance)
    clover = []
    for _ in range(90):
        x, y, reach = chance.uniform(0, size[0]), chance.uniform(0, size[1]), chance.uniform(9, 16)
        clover += [circle(x + reach * math.cos(turn), y + reach * math.sin(turn), reach * 0.72, fill="#5f9a55", fill_opacity="0.4")
                   for turn in (0.5, 2.6, 4.7)]
    return drawing(*size, below + blades + clover + above)


def plaster(size, color, light, seed):
    """A painted wall in the light of two lamps."""
    chance = random.Random(seed)
    below, above = washed(size, color, light=light, shine=0.24, shade=0.34, at=(0.5, 0.42))
    strokes = tiles(size, "plaster", fibres(chance, 70, ["#ffffff", "#000000"], 150, 9, "0.035"), chance)
    return drawing(*size, below + strokes + above)


def stone_wall(size):
    return plaster(size, "#5d5b57", "#cfc9bd", 41)


def blue_wall(size):
    return plaster(size, "#3d5163", "#a9c6dd", 43)


def green_wall(size):
    return plaster(size, "#4a5f50", "#cfe3cf", 45)


def charcoal(size):
    return plaster(size, "#2d2d2f", "#8f8f92", 46)


def ink(size):
    return plaster(size, "#1f2b3d", "#7f97b5", 47)


def wine(size):
    return plaster(size, "#43232b", "#b5808c", 48)


def forest(size):
    return plaster(size, "#22352b", "#86a892", 49)


def sand(size):
    return plaster(size, "#665844", "#d6c4a0", 50)


def wallpaper(size):
    """Striped wallpaper with small sprigs, and a rail above the skirting board."""
    chance = random.Random(51)
    below, above = washed(size, "#3f5350", light="#a9c4bf", shine=0.2, shade=0.34)
    wide, high = size
    stripes = [rectangle(x, 0, 100, high, fill="#475d5a", fill_opacity="0.8") for x in range(0, wide, 200)]
    sprig = [path("M0,46 C-6,16 6,-14 0,-44", fill="none", stroke="#7d928a", stroke_width="5")]
    for side in (-1, 1):
        for y, reach in ((26, 26), (2, 24), (-22, 20)):
            sprig.append(path(f"M0,{y} C{side * reach * 0.5:g},{y - 20} {side * reach:g},{y - 18} {side * reach:g},{y - 26} "
                              f"C{side * reach * 0.6:g},{y - 4} {side * reach * 0.3:g},{y} 0,{y}Z", fill="#7d928a"))
    sprig.append(circle(0, -52, 8, fill="#9a7a6a"))
    defined = ['<defs><g id="sprig">' + "".join(sprig) + "</g></defs>"]
    for column, x in enumerate(range(50, wide, 100)):
        for y in range(90 + (column % 2) * 120, high, 240):
            turn = chance.uniform(-4, 4)
            defined.append(f'<use xlink:href="#sprig" opacity="0.6" transform="translate({x},{y}) rotate({number(turn)})"/>')
    board = [rectangle(0, high - 96, wide, 96, fill="#3d4a48"), rectangle(0, high - 104, wide, 12, fill="#566663"),
             rectangle(0, high - 112, wide, 8, fill="#000000", fill_opacity="0.16"),
             rectangle(0, high - 30, wide, 5, fill="#2b3533")]
    return drawing(*size, below + stripes + defined + above + board)


def stock_page(size):
    """A dark page of a stamp album: fine squares inside a double line."""
    below, above = washed(size, "#2f3a40", shine=0.1, shade=0.25)
    wide, high = size
    step = 40
    squares = "".join(f"M{x},90V{high - 90}" for x in range(100, wide - 80, step)) + "".join(
        f"M90,{y}H{wide - 90}" for y in range(100, high - 80, step))
    edge = [rectangle(60, 60, wide - 120, high - 120, fill="none", stroke="#86764f", stroke_width="5"),
            rectangle(78, 78, wide - 156, high - 156, fill="none", stroke="#86764f", stroke_width="2")]
    return drawing(*size, below + [path(squares, fill="none", stroke="#9fb0b8", stroke_width="2", stroke_opacity="0.14")] + edge + above)


def argyle(size):
    """Diamonds of two blues with fine lines across."""
    below, above = washed(size, "#243a5e", light="#a9c8ff", shine=0.26, shade=0.42, at=(0.5, 0.5))
    wide, high = size
    across, down, parts = 200, 300, []
    for row, y in enumerate(range(0, high + down, down // 2)):
        for column, x in enumerate(range((row % 2) * across // 2, wide + across, across)):
            corners = [(x, y - down / 2), (x + across / 2, y), (x, y + down / 2), (x - across / 2, y)]
            if row % 2 == 0:
                parts.append(path(closed(corners), fill="#2f4c7a" if column % 2 else "#1c2f4e", fill_opacity="0.8"))
    lines = []
    for row, y in enumerate(range(0, high + down, down // 2)):
        for x in range((row % 2) * across // 2, wide + across, across):
            lines.append(f"M{x - across // 2},{y - down // 2}L{x + across // 2},{y + down // 2}"
                         f"M{x + across // 2},{y - down // 2}L{x - across // 2},{y + down // 2}")
    return drawing(*size, below + parts + [path("".join(lines[::2]), fill="none", stroke="#d9c37a", stroke_width="2.5",
                                                stroke_opacity="0.35", stroke_dasharray="14 10")] + above)


# A square page is for designs that turn; one that stays has its ground in its own shape.
TURNING = (oak, walnut, linen, slate, denim, sage, blush, gingham, kraft, lawn, stone_wall, green_wall, stock_page, charcoal,
           sand)
STANDING = (oak, walnut, slate, sage, cork, felt, kraft, blush, stone_wall, blue_wall, green_wall, charcoal, ink, wine, forest)
LYING = (driftwood, slate, felt, blush, blue_wall, charcoal, ink, wine, forest, sage, sand)
ALONE = {"wallpaper": wallpaper(TALL), "argyle": argyle(TALL)}
SHARED = {**ALONE, **{ground.__name__: ground(SQUARE) for ground in TURNING},
          **{f"{ground.__name__}_tall": ground(TALL) for ground in STANDING},
          **{f"{ground.__name__}_wide": ground(WIDE) for ground in LYING}}
