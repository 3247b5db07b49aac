"""A fruit stand at the market, close by: crates heaped with fruit in the soft light under an awning, the square behind in the
sun."""
from math import atan2, cos, hypot, pi, sin

import numpy

import materials as m
import shapes as s
from common import camera, daylight
from film import Roll

FORMAT = "landscape"
SIZE = (0.47, 0.35, 0.14)  # of a crate


def skin(name, tones, radius, rough=0.3, streaks=1.0, spots=0.0, bloom=0.0, pores=0.0):
    """The skin of a fruit, from three tones in streaks from stalk to flower; a blush on one side, russet about the stalk,
    bruises on a few. Spots: how plain its lenticels are; bloom: its wax; pores: how deep, in metres."""
    made, nodes, shader = m.principled(name, tones[0], rough, Specular=0.45)
    where, own = nodes.place(), nodes.math("MULTIPLY", nodes.chance(), 60.0)
    apart = nodes.add("ShaderNodeSeparateXYZ", where)
    shift = nodes.vector("ADD", where, nodes.add("ShaderNodeCombineXYZ", own, own, own))
    streaky = nodes.vector("MULTIPLY", shift, (1.0, 1.0, 0.22))
    streak = nodes.noise(streaky, 46.0 * streaks, detail=6.0, roughness=0.65)
    blush = nodes.noise(shift, 0.55 / radius, detail=2.0)
    level = nodes.math("MULTIPLY_ADD", nodes.math("SUBTRACT", streak, 0.5), 1.25, nodes.math("MULTIPLY_ADD", nodes.math("SUBTRACT", nodes.chance(), 0.5), 0.34, nodes.math("MULTIPLY_ADD", blush, 0.6, 0.2)))
    tone = m.ramp(nodes, level, (0.28, tones[0]), (0.5, tones[1]), (0.74, tones[2]))
    dots = nodes.math("MULTIPLY", m.ramp(nodes, m.voronoi(nodes, shift, 230.0), (0.10, 1.0), (0.22, 0.0)), spots)
    tone = nodes.mix(dots, tone, m.rgb("dcc79a"))
    stalk = nodes.math("MULTIPLY", nodes.rise(nodes.math("POWER", nodes.math("ADD", nodes.math("POWER", apart.outputs[0], 2.0), nodes.math("POWER", apart.outputs[1], 2.0)), 0.5), 0.42 * radius, 0.08 * radius), nodes.rise(apart.outputs[2], 0.2 * radius, 0.5 * radius))
    tone = nodes.mix(nodes.math("MULTIPLY", stalk, nodes.noise(shift, 180.0, detail=4.0)), tone, m.rgb("7d6233"))
    bruise = nodes.math("MULTIPLY", nodes.rise(nodes.noise(shift, 0.8 / radius, detail=5.0, roughness=0.6), 0.72, 0.76), 0.5)
    tone = nodes.mix(bruise, tone, m.rgb("5a3a1c"))
    wax = nodes.math("MULTIPLY", nodes.rise(nodes.noise(shift, 1.1 / radius, detail=6.0, roughness=0.6), 0.32, 0.66), bloom)
    tone = nodes.mix(wax, tone, (0.33, 0.36, 0.46))
    dust = nodes.noise(shift, 90.0, detail=5.0)
    gloss = nodes.math("MULTIPLY_ADD", wax, 0.4, nodes.math("MULTIPLY_ADD", dust, 0.30, nodes.math("MULTIPLY_ADD", nodes.chance(), 0.12, rough - 0.2)))
    height = nodes.math("MULTIPLY_ADD", m.ramp(nodes, m.voronoi(nodes, shift, 520.0), (0.0, 0.0), (0.45, 1.0)), pores, nodes.math("MULTIPLY", nodes.noise(shift, 1.6 / radius, detail=3.0), 0.05 * radius))
    m.feed(nodes, shader, Base_Color=tone, Roughness=gloss, Normal=m.relief(nodes, height, 1.0, 0.7))
    return made


def fruit(dice, name, radius, shape, material, stalk=None, lobes=0):
    """Three fruits of a kind, each grown its own way. Shape gives radius and height of the outline, -1 to 1 from below."""
    made = []
    for number in range(3):
        profile = [(0 if i in (0, 28) else shape(i / 14 - 1)[0] * radius, shape(i / 14 - 1)[1] * radius) for i in range(29)]
        one = s.lathe(name, profile, material, steps=36, finer=1)
        leaning, flat, phase = (dice.gauss(0, 0.05), dice.gauss(0, 0.05)), dice.gauss(0, 0.035), dice.uniform(0, 6)
        for vertex in one.data.vertices:
            x, y, z = vertex.co
            turn, below = atan2(y, x), max(0.0, 0.4 - z / radius)
            grown = 1 + flat * cos(2 * turn + phase) + 0.018 * cos(3 * turn - phase) + 0.025 * below * cos(lobes * turn) * (lobes > 0)
            vertex.co = (x * grown + leaning[0] * z, y * grown + leaning[1] * z, z * (1 + 0.06 * sin(phase)))
        s.wrinkled(one, radius * 0.05, radius * 0.9)
        if stalk:
            top, bent = profile[-1][1], dice.uniform(-0.12, 0.12)
            wood = s.tube("stalk", [(0, 0, top - 0.1 * radius), (bent * 0.3 * radius, 0, top + 0.2 * radius), (bent * 2 * radius, 0.05 * radius, top + dice.uniform(0.35, 0.6) * radius)], 0.038 * radius, stalk, radii=[0.8, 0.8, 1.3])
            wood.parent = one
        made.append(one)
    return made


def apple(t):
    dent = max(0, (abs(t) - 0.78) / 0.22) ** 1.5
    return cos(t * pi / 2) ** 0.62 * (1 + 0.08 * t), sin(t * pi / 2) * 0.90 - 0.30 * dent * (1 if t > 0 else -0.6)


def orange(t):
    return cos(t * pi / 2) ** 0.95, sin(t * pi / 2) * 0.95 - 0.05 * max(0, t) ** 18


def pear(t):
    return cos(t * pi / 2) ** 0.75 * (1 - 0.44 * max(0, t + 0.15)), sin(t * pi / 2) * (1.45 if t > 0 else 0.9)


def lemon(t):
    return cos(t * pi / 2) ** 0.9, sin(t * pi / 2) * 1.12 + 0.2 * (max(t, 0) ** 12 - max(-t, 0) ** 12)


def rounded_plum(t):
    return orange(t)[0], orange(t)[1] * 1.2


def flat_round(t):
    return orange(t)[0] * 1.06, orange(t)[1] * 0.86


def crate(dice, wood, at, lean):
    """A crate of thin boards, open above, leaning towards the street, knocked about."""
    wide, deep, high = SIZE
    parts = []
    for side in (-1, 1):
        for k in range(2):
            parts.append(s.box("board", (wide, 0.009, high * 0.42), wood, 0.002, (0, side * deep / 2, high * (0.24 + 0.52 * k) + dice.gauss(0, 0.002))))
            parts[-1].rotation_euler.y = dice.gauss(0, 0.006)
            parts.append(s.box("board", (deep, 0.009, high * 0.42), wood, 0.002, (side * wide / 2, 0, high * (0.24 + 0.52 * k))))
            parts[-1].rotation_euler.z = pi / 2
        for other in (-1, 1):
            parts.append(s.box("corner", (0.026, 0.026, high * dice.uniform(1.0, 1.08)), wood, 0.002, (side * (wide / 2 - 0.02), other * (deep / 2 - 0.02), high * 0.5)))
    parts.append(s.box("bottom", (wide, deep, 0.012), wood, 0, (0, 0, 0.01)))
    handle = s.parent(parts, "crate")
    handle.location, handle.rotation_euler = at, (lean, 0, dice.gauss(0, 0.015))
    return handle


def resting(chance, radius, count, heaped):
    """Places (n x 3) of balls that are dropped one by one into a crate and roll to where they lie lowest; heaped is how far
    they may rise above its rim in the middle."""
    wide, deep, high = SIZE
    low = high - 2.6 * radius  # crates are lined: nobody sees what is below
    lain = numpy.empty((0, 3))
    while len(lain) < count:
        spot = chance.uniform(-1, 1, (70, 2)) * [wide / 2 - radius * 1.1, deep / 2 - radius * 1.1]
        rest = numpy.full(70, low)
        if len(lain):
            away = numpy.hypot(*(spot[:, None] - lain[None, :, :2]).transpose(2, 0, 1))
            touch = numpy.sqrt(numpy.maximum((1.92 * radius) ** 2 - away ** 2, 0))
            rest = numpy.maximum(rest, numpy.where(away < 1.92 * radius, lain[None, :, 2] + touch, low).max(axis=1))
        room = high - 0.4 * radius + heaped * (1 - (2 * spot[:, 0] / wide) ** 2) * (1 - (2 * spot[:, 1] / deep) ** 2) - rest
        if room.max() < 0:
            break
        best = int(room.argmax())
        lain = numpy.vstack([lain, [*spot[best], rest[best]]])
    return lain


def heap(handle, kinds, dice, chance, radius, upright=0.7):
    """Fruit that was tipped in; upright: how far it may lean."""
    for x, y, z in resting(chance, radius, 140, 0.055):
        made = s.copy(dice.choice(kinds), (x, y, z), (dice.gauss(0, upright), dice.gauss(0, upright), dice.uniform(0, 6)), dice.uniform(0.93, 1.05))
        copied = [child for child in dice.choice(kinds).children]
        for child in copied:
            stalk = child.copy()
            made.users_collection[0].objects.link(stalk)
            stalk.parent = made
        made.parent = handle


def cherries(handle, dice, chance):
    """Cherries with their stalks, a handful thrown on a handful."""
    radius = 0.0125
    red = skin("cherry", ("2a0408", "560a10", "8f1a1a"), radius, 0.16)
    green = m.plain("cherry stalk", "5f6a2a", 0.6)
    ball = s.lathe("cherry", [(0 if i in (0, 20) else (1 + 0.05 * sin(3 * i)) * cos(i / 20 * pi - pi / 2) * radius, (sin(i / 20 * pi - pi / 2) * 0.92 - 0.22 * max(0, i / 10 - 1) ** 9) * radius) for i in range(21)], red, steps=24)
    stalks = [s.tube("stalk", [(0, 0, 0.007), (0.001, 0.002, 0.018), (0.004 + 0.003 * k, 0.003, 0.031), (0.012 + 0.004 * k, 0.001 * k, 0.044)], 0.0008, green, radii=[1, 0.8, 0.8, 1.7]) for k in range(3)]
    for x, y, z in resting(chance, radius, 900, 0.05):
        at, turn = (x, y, z), (dice.gauss(0, 0.9), dice.gauss(0, 0.9), dice.uniform(0, 6))
        made = s.copy(ball, at, turn, dice.uniform(0.9, 1.08))
        made.parent = handle
        if dice.random() < 0.6:
            s.copy(dice.choice(stalks), at, turn).parent = handle
    for one in (ball, *stalks):
        s.gone(one)


def foliage(handle, dice, count):
    """Leaves that came with the fruit."""
    green, nodes, shader = m.principled("leaf", "2f5a1e", 0.4)
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place())
    rib = nodes.rise(nodes.math("ABSOLUTE", apart.outputs[1]), 0.0016, 0.0004)
    tone = m.ramp(nodes, nodes.noise(nodes.place(), 60.0, detail=5.0), (0.3, "173a12"), (0.7, "47702a"))
    m.feed(nodes, shader, Base_Color=nodes.mix(rib, tone, m.rgb("93a65a")), Normal=m.relief(nodes, m.waves(nodes, nodes.place(), 70.0, 3.0, "DIAGONAL"), 0.0006, 0.6))
    blade = s.leaf("leaf", 0.075, 0.034, green, bend=0.25, fold=0.22)
    for _ in range(count):
        made = s.copy(blade, (dice.uniform(-0.18, 0.18), dice.uniform(-0.13, 0.13), SIZE[2] + dice.uniform(0.03, 0.055)), (dice.gauss(0, 0.4), dice.gauss(0, 0.4), dice.uniform(0, 6)), dice.uniform(0.8, 1.2))
        made.parent = handle
    s.gone(blade)


STROKES = {"1": [[(0, 0.7), (0.35, 1), (0.35, 0)]], "2": [[(0, 0.8), (0.3, 1), (0.55, 0.75), (0, 0), (0.6, 0.02)]], "3": [[(0, 0.95), (0.5, 0.9), (0.2, 0.55), (0.55, 0.3), (0.25, 0), (0, 0.1)]],
           "4": [[(0.4, 1), (0, 0.4), (0.6, 0.42)], [(0.42, 0.65), (0.4, 0)]], "5": [[(0.55, 1), (0.1, 0.97), (0.05, 0.55), (0.5, 0.5), (0.5, 0.1), (0, 0.03)]], "8": [[(0.3, 0.5), (0.05, 0.8), (0.3, 1), (0.5, 0.8), (0, 0.2), (0.3, 0), (0.55, 0.2), (0.3, 0.5)]],
           "0": [[(0.3, 1), (0, 0.6), (0.1, 0.1), (0.35, 0), (0.55, 0.4), (0.5, 0.85), (0.3, 1)]], ".": [[(0.1, 0.0), (0.12, 0.06)]]}


def card(handle, dice, price, at):
    """A small slate on a stick, the price chalked on it by hand."""
    slate, nodes, shader = m.principled("slate", "1d2022", 0.75)
    smeared = nodes.rise(nodes.noise(m.stretched(nodes, (1, 1, 3)), 26.0, detail=6.0), 0.42, 0.75)
    m.feed(nodes, shader, Base_Color=nodes.mix(nodes.math("MULTIPLY", smeared, 0.35), m.rgb("1b1e20"), m.rgb("8a8c8a")))
    chalk = m.plain("chalk", "dedbd0", 0.95)
    x, y, z = at
    parts = [s.box("slate", (0.12, 0.005, 0.075), slate, 0.002, (x, y, z)), s.tube("stick", [(x, y + 0.005, z - 0.14), (x, y + 0.005, z + 0.02)], 0.003, m.wood("stick", "8a6a45", "b8935f", "d6b684"))]
    left = x - 0.048
    for sign in price:
        for stroke in STROKES[sign]:
            line = [(left + u * 0.026 + dice.gauss(0, 0.0007), y - 0.0032, z - 0.022 + v * 0.045 + dice.gauss(0, 0.0009)) for u, v in stroke]
            parts.append(s.tube("stroke", line, 0.0014, chalk))
        left += 0.012 if sign == "." else 0.025
    tilt = s.parent(parts, "card")
    tilt.parent = handle
    tilt.rotation_euler = (dice.gauss(0, 0.05), dice.gauss(0, 0.07), dice.gauss(0, 0.12))


def kinds_of_fruit(dice):
    """Of each kind: three fruits, radius, how far they lean."""
    stalk = m.plain("stalk", "4a3820", 0.8)
    return {
        "red": (fruit(dice, "apple", 0.038, apple, skin("red", ("6a0c10", "a3181a", "c9903c"), 0.038, 0.26, 1.0, 0.22), stalk, 5), 0.038, 0.7),
        "green": (fruit(dice, "green apple", 0.037, apple, skin("green", ("6f9030", "8faa3c", "bdb25a"), 0.037, 0.28, 0.7, 0.25), stalk, 5), 0.037, 0.7),
        "orange": (fruit(dice, "orange", 0.041, orange, skin("orange", ("c95a08", "dc7410", "e59a2c"), 0.041, 0.42, 0.4, 0.0, 0.0, 0.0004)), 0.041, 2.0),
        "mandarin": (fruit(dice, "mandarin", 0.031, flat_round, skin("mandarin", ("cc4e08", "d8640c", "dd8420"), 0.031, 0.40, 0.4, 0.0, 0.0, 0.0004)), 0.031, 0.8),
        "lemon": (fruit(dice, "lemon", 0.031, lemon, skin("lemon", ("c9a41c", "dcbb28", "d9c860"), 0.031, 0.42, 0.4, 0.0, 0.0, 0.0004)), 0.034, 2.0),
        "pear": (fruit(dice, "pear", 0.036, pear, skin("pear", ("8d9434", "b3a848", "a8793c"), 0.036, 0.45, 0.6, 0.45), stalk), 0.042, 1.2),
        "plum": (fruit(dice, "plum", 0.024, rounded_plum, skin("plum", ("1c0f26", "351a3c", "6a2a3c"), 0.024, 0.40, 0.5, 0.1, 0.8)), 0.025, 2.0),
        "peach": (fruit(dice, "peach", 0.037, apple, skin("peach", ("9c2a20", "d4703a", "e0aa5c"), 0.037, 0.75, 0.5, 0.1, 0.1)), 0.037, 0.9)}


def stand(dice, chance):
    wood = m.wood("crate", "5f4a32", "927350", "b59a70", 0.75, 2.4)
    fruits = kinds_of_fruit(dice)
    rows = ((("plum", None), ("peach", "3.50"), ("red", "2.80"), ("orange", None), ("lemon", "1.50")),
            (("red", None), ("pear", "3.20"), ("cherry", "5.80"), ("green", "2.40"), ("plum", None)),
            (("lemon", None), ("orange", None), ("plum", "4.20"), ("mandarin", None), ("pear", None)),
            (("green", None), ("mandarin", None), ("lemon", None), ("red", None), ("orange", None)))
    for j, row in enumerate(rows):
        for i, (kind, price) in enumerate(row):
            at = ((i - 2) * 0.50 + dice.gauss(0, 0.006) + 0.16 * (j % 2), 0.385 * j + dice.gauss(0, 0.006), 0.62 + 0.12 * j)
            handle = crate(dice, wood, at, 0.30 + dice.gauss(0, 0.01))
            if kind == "cherry":
                cherries(handle, dice, chance)
            else:
                kinds, radius, upright = fruits[kind]
                heap(handle, kinds, dice, chance, radius, upright)
            if kind in ("mandarin", "peach", "lemon"):
                foliage(handle, dice, 5)
            if price:
                card(handle, dice, price, (dice.uniform(-0.12, 0.12), SIZE[1] / 2 - 0.03, SIZE[2] + 0.11))
    for kinds, _, _ in fruits.values():
        for one in kinds:
            for thing in (one, *one.children):
                s.gone(thing)
    s.box("table", (2.8, 1.9, 0.05), wood, 0, (0, 0.6, 0.48))
    s.box("rack", (3.2, 2.0, 0.01), m.plain("rack", "2a221a", 0.9), 0, (0, 0.6, 0.77)).rotation_euler.x = 0.302
    s.box("cloth", (2.8, 0.02, 0.6), m.plain("cloth", "2f4a2c", 0.9), 0, (0, -0.26, 0.28))


def street():
    """The awning above, and the sunny square behind, out of focus."""
    tones = [m.principled("awning", tone, 0.9)[0] for tone in ("35694a", "e6dfcd")]
    for k in range(18):
        made = s.box("awning", (0.24, 3.9, 0.02), tones[k % 2], 0, (-2.1 + 0.24 * k, 0.55, 2.15))
        made.rotation_euler.x = 0.12
    s.sheet("square", (80, 80), (2, 2), lambda x, y: 0.0, m.plain("stone", "8a8074", 0.8))
    for x, tone, tall in ((-11, "b9a58c", 12), (-6, "d8b98a", 9), (-1, "c98f6a", 11), (4, "e2d2b0", 10), (9, "b9a58c", 12)):
        s.box("house", (5, 3, tall), m.plain("plaster", tone, 0.9), 0, (x, 17, tall / 2))
        for u in (-1.4, 0, 1.4):
            for z in (1.6, 4.4, 7.2):
                s.box("window", (0.8, 0.1, 1.5), m.plain("pane", "3b4650", 0.2), 0, (x + u, 15.45, z))
    for x, tone in ((-3.2, "a83a2c"), (2.4, "3a5a7a")):
        s.lathe("parasol", [(1.5, 2.1), (0.8, 2.45), (0, 2.6)], m.plain("cloth", tone, 0.8), steps=24).location = (x, 9, 0)
    hoop = hypot(0.3, 0.4)
    s.lathe("bin", [(0.3 * hoop, 0), (0.45 * hoop, 0.9)], m.plain("bin", "3a3f44", 0.6), steps=24).location = (1.0, 7, 0)


def build():
    dice, chance = s.dice(31), numpy.random.default_rng(31)
    stand(dice, chance)
    street()
    daylight(67, -158, strength=0.14, dust=1.0, sun_size=1.5)
    m.window_light((-1.9, -1.3, 1.75), (0, 0.1, 0.7), 1.1, 44, (1.0, 0.97, 0.93))
    camera((-0.16, -0.92, 1.24), (0.06, 0.20, 0.775), 42, (-0.02, 0.0, 0.80), 4.0)
    return Roll(samples=40, exposure=0.0, saturation=1.0, grain=0.010)
