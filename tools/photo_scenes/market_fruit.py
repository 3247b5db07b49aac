"""A fruit stand at the market in the morning: crates heaped with fruit, under an awning, in the sun."""
from math import cos, pi, sin

import materials as m
import shapes as s
from common import camera, daylight
from film import Roll

FORMAT = "landscape"


def skin(name, first, second, third, rough=0.25, streaks=2.0):
    """Fruit skin of three tones in streaks from the stalk; each fruit has its own share of them."""
    made, nodes, shader = m.principled(name, first, rough, Specular=0.5, Clearcoat=0.2)
    where = nodes.vector("ADD", m.stretched(nodes, (1, 1, 0.35)), nodes.vector("MULTIPLY", (3.0, 7.0, 5.0),
                                                                               nodes.add("ShaderNodeCombineXYZ",
                                                                                         nodes.chance(), nodes.chance(),
                                                                                         nodes.chance())))
    tone = nodes.noise(where, 14.0 * streaks, detail=5.0, distortion=0.6)
    tone = nodes.math("MULTIPLY_ADD", nodes.math("SUBTRACT", nodes.chance(), 0.5), 0.35, tone)
    m.feed(nodes, shader, Base_Color=m.ramp(nodes, tone, (0.3, first), (0.5, second), (0.72, third)),
           Normal=m.relief(nodes, nodes.noise(nodes.place(), 260.0, detail=2.0), 0.0004, 0.4))
    return made


def fruit(name, radius, shape, material, stalk=None):
    """A round fruit: shape gives radius and height of the outline, -1 to 1 from below."""
    profile = [(0 if i in (0, 28) else shape(i / 14 - 1)[0] * radius, shape(i / 14 - 1)[1] * radius) for i in range(29)]
    made = s.lathe(name, profile, material, steps=36, finer=1)
    if stalk:
        top = profile[-1][1]
        wood = s.tube("stalk", [(0, 0, top - 0.1 * radius), (0.03 * radius, 0, top + 0.12 * radius),
                                (0.1 * radius, 0, top + 0.3 * radius)], 0.045 * radius, stalk)
        wood.parent = made
    return made


def apple(t):
    dent = max(0, (abs(t) - 0.78) / 0.22) ** 1.5
    return cos(t * pi / 2) ** 0.62 * (1 + 0.06 * t), sin(t * pi / 2) * 0.88 - 0.30 * dent * (1 if t > 0 else -0.6)


def orange(t):
    return cos(t * pi / 2) ** 0.95, sin(t * pi / 2) * 0.95


def pear(t):
    return cos(t * pi / 2) ** 0.75 * (1 - 0.36 * max(0, t + 0.15)), sin(t * pi / 2) * (1.25 if t > 0 else 0.9)


def lemon(t):
    return cos(t * pi / 2) ** 0.9, sin(t * pi / 2) * 1.12 + 0.2 * (max(t, 0) ** 12 - max(-t, 0) ** 12)


def crate(wood, size, at, lean):
    """A crate of thin boards, open above, leaning towards the street."""
    wide, deep, high = size
    parts = []
    for side in (-1, 1):
        for k in range(2):
            parts.append(s.box("board", (wide, 0.012, high * 0.44), wood, 0.002,
                               (0, side * deep / 2, high * (0.24 + 0.52 * k))))
            parts.append(s.box("board", (deep, 0.012, high * 0.44), wood, 0.002,
                               (side * wide / 2, 0, high * (0.24 + 0.52 * k))))
            parts[-1].rotation_euler.z = pi / 2
        for other in (-1, 1):
            parts.append(s.box("corner", (0.03, 0.03, high * 1.04), wood, 0.002, (side * (wide / 2 - 0.02),
                                                                                  other * (deep / 2 - 0.02), high * 0.5)))
    parts.append(s.box("bottom", (wide, deep, 0.012), wood, 0, (0, 0, 0.01)))
    handle = s.parent(parts, "crate")
    handle.location, handle.rotation_euler.x = at, lean
    return handle


def heap(handle, kinds, size, dice, radius):
    """Fruit in layers, each in the hollows of the one below, in no order of turn."""
    wide, deep, high = size
    layer, base = 0, high - radius * 0.95
    while layer < 3:
        step = radius * 1.96
        inset = radius * (1.02 + 0.9 * layer)
        columns, rows = int((wide - 2 * inset) / step) + 1, int((deep - 2 * inset) / (step * 0.88)) + 1
        for row in range(rows):
            for column in range(columns):
                x = (column - (columns - 1) / 2 + 0.25 * (1 if (row + layer) % 2 else -1)) * step
                y = (row - (rows - 1) / 2) * step * 0.88
                if dice.random() < 0.02 + 0.10 * layer:
                    continue
                jitter = radius * 0.10
                made = s.copy(dice.choice(kinds), (x + dice.gauss(0, jitter), y + dice.gauss(0, jitter),
                                                   base + layer * radius * 1.45 + dice.gauss(0, jitter * 0.5)),
                              (dice.gauss(0, 0.55), dice.gauss(0, 0.55), dice.uniform(0, 6)), dice.uniform(0.9, 1.06))
                made.parent = handle
        layer += 1


def card(handle, size, paper, slate):
    """A small slate on a stick; what is chalked on it can't be read from here."""
    deep, high = size[1:]
    board = s.box("slate", (0.115, 0.006, 0.075), slate, 0.002, (0.02, -deep / 2 + 0.03, high + 0.085))
    lines = [s.box("chalk", (length, 0.001, 0.006), paper, 0, (0.02 + shift, -deep / 2 + 0.0262, high + z))
             for length, shift, z in ((0.07, -0.008, 0.103), (0.045, -0.02, 0.087), (0.03, 0.02, 0.068))]
    stick = s.tube("stick", [(0.02, -deep / 2 + 0.035, high - 0.05), (0.02, -deep / 2 + 0.035, high + 0.06)], 0.003, paper)
    for part in (board, stick, *lines):
        part.parent = handle


def grapes(handle, size, dice, material):
    """Bunches: balls around a spine."""
    wide, deep, high = size
    berry = s.ball("berry", 0.0125, material, detail=3)
    for _ in range(15):
        x, y, turn = dice.uniform(-wide / 2 + 0.09, wide / 2 - 0.09), dice.uniform(-deep / 2 + 0.08,
                                                                                   deep / 2 - 0.08), dice.uniform(0, 6)
        for _ in range(75):
            along = dice.random()
            reach = 0.048 * (1 - along * 0.75)
            a, r = dice.uniform(0, 2 * pi), reach * dice.random() ** 0.4
            u, v = (along - 0.4) * 0.19, r * cos(a)
            made = s.copy(berry, (x + u * cos(turn) - v * sin(turn), y + u * sin(turn) + v * cos(turn),
                                  high + 0.008 + r * sin(a) * 0.8),
                          (0, 0, 0), (dice.uniform(0.85, 1.05),) * 2 + (dice.uniform(0.95, 1.2),))
            made.parent = handle
    s.gone(berry)


def stand(dice):
    wood = m.wood("crate", "8a6a45", "b8935f", "d6b684", 0.65, 3.0)
    stalk = m.plain("stalk", "5a4024", 0.7)
    red = fruit("apple", 0.038, apple, skin("red", "7d0d10", "b3161a", "d2552c", 0.16), stalk)
    gold = fruit("yellow apple", 0.038, apple, skin("gold", "c9a82a", "d9c23e", "d98a3a", 0.18), stalk)
    green = fruit("green apple", 0.038, apple, skin("green", "5c9020", "86b22e", "a9c44a", 0.15), stalk)
    round_ = fruit("orange", 0.040, orange, skin("orange", "e06a08", "ee860e", "f29a22", 0.33))
    small = fruit("mandarin", 0.032, lambda t: (orange(t)[0] * 1.06, orange(t)[1] * 0.86),
                  skin("mandarin", "e55a06", "ee740c", "f08c1a", 0.3))
    sour = fruit("lemon", 0.031, lemon, skin("lemon", "e0b40c", "efcb1e", "f3d64a", 0.3))
    pears = fruit("pear", 0.038, pear, skin("pear", "9aa02c", "c2b83a", "c78f3c", 0.32), stalk)
    plum = fruit("plum", 0.026, lambda t: (orange(t)[0], orange(t)[1] * 1.22), skin("plum", "22102e", "3d1a44", "6a4a78",
                                                                                    0.42))
    peach = fruit("peach", 0.037, apple, skin("peach", "c23a22", "e07a3a", "eeb058", 0.6))
    size = (0.47, 0.35, 0.15)
    paper, slate = m.plain("chalk", "e8e6df", 0.9), m.plain("slate", "1d2022", 0.7)
    rows = [[("heap", [peach], 0.037), ("heap", [red], 0.038), ("heap", [round_], 0.040), ("heap", [green], 0.038),
             ("heap", [sour], 0.031)],
            [("heap", [small], 0.032), ("heap", [pears], 0.037), ("grapes", None, 0), ("heap", [red, gold], 0.038),
             ("heap", [plum], 0.026)],
            [("heap", [gold], 0.038), ("heap", [plum], 0.026), ("heap", [round_], 0.040), ("heap", [green], 0.038),
             ("heap", [small], 0.032)]]
    for j, row in enumerate(rows):
        for i, (kind, kinds, radius) in enumerate(row):
            handle = crate(wood, size, ((i - 2) * 0.495 + 0.012 * ((i * 7 + j) % 3 - 1), 0.40 * j, 0.62 + 0.19 * j), 0.36)
            if kind == "heap":
                heap(handle, kinds, size, dice, radius)
            else:
                grapes(handle, size, dice, skin("grape", "3a0f2e", "5a1840", "7d3a5a", 0.3))
            card(handle, size, paper, slate)
    for one in (red, gold, green, round_, small, sour, pears, plum, peach):
        s.gone(one)
        for child in one.children:
            s.gone(child)
    s.box("table", (2.8, 1.4, 0.05), wood, 0, (0, 0.4, 0.48))
    s.box("cloth", (2.8, 0.02, 0.6), m.plain("cloth", "2f4a2c", 0.9), 0, (0, -0.26, 0.28))


def street():
    """The awning above, and the sunny square behind, out of focus."""
    for k in range(14):
        made = s.box("awning", (0.24, 1.9, 0.02), m.plain("awning", "2f6b45" if k % 2 else "efe9da", 0.85), 0,
                     (-1.6 + 0.24 * k, 0.75, 1.98))
        made.rotation_euler.x = 0.2
        s.box("fringe", (0.24, 0.015, 0.14), m.plain("fringe", "2f6b45" if k % 2 else "efe9da", 0.85), 0,
              (-1.6 + 0.24 * k, -0.19, 1.73))
    s.sheet("square", (60, 60), (2, 2), lambda x, y: 0.0, m.plain("stone", "5a534b", 0.8))
    for x, tone, tall in ((-7, "d8b98a", 9), (-2, "c98f6a", 11), (3, "e2d2b0", 10), (8, "b9a58c", 12)):
        s.box("house", (5, 3, tall), m.plain("plaster", tone, 0.9), 0, (x, 15, tall / 2))
        for u in (-1.4, 0, 1.4):
            for z in (1.6, 4.4, 7.2):
                s.box("window", (0.8, 0.1, 1.5), m.plain("pane", "3b4650", 0.2), 0, (x + u, 13.45, z))


def build():
    dice = s.dice(31)
    stand(dice)
    street()
    daylight(38, -118, strength=0.16, dust=0.8, sun_size=1.5)
    m.window_light((0.8, -2.4, 2.2), (0, 0.3, 0.8), 1.6, 26, (1.0, 0.97, 0.92))
    camera((-0.32, -1.38, 1.66), (0.0, 0.30, 0.84), 40, (0, 0.06, 0.85), 4.5)
    return Roll(samples=12, exposure=-0.85)
