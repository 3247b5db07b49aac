"""Painted houses along the quay of a small harbour, boats before them, the morning sun on the fronts."""
from math import pi, sin

import numpy
from mathutils import Vector, noise

import materials as m
import shapes as s
from common import camera, daylight
from film import Roll

FORMAT = "landscape"
QUAY, DEPTH = 1.3, 9.0  # height of the quay, depth of a house


def boards(name, colour):
    """Painted weatherboards: a shadow line under each, paint that weathers and runs."""
    made, nodes, shader = m.principled(name, colour, 0.65)
    where = nodes.place()
    height = nodes.add("ShaderNodeSeparateXYZ", where).outputs[2]
    board = nodes.math("FRACT", nodes.math("MULTIPLY", height, 1 / 0.17))
    worn = nodes.noise(m.stretched(nodes, (2.2, 2.2, 0.5)), 1.3, detail=7.0)
    tone = nodes.mix(m.ramp(nodes, worn, (0.35, 0.0), (0.7, 0.9)), m.rgb(colour),
                     tuple(0.55 * level + 0.05 for level in m.rgb(colour)))
    tone = nodes.mix(m.ramp(nodes, board, (0.0, 0.55), (0.07, 0.0)), tone, tuple(0.2 * level for level in m.rgb(colour)))
    m.feed(nodes, shader, Base_Color=tone, Normal=m.relief(nodes, board, 0.02, 0.7))
    return made


def plaster(name, colour):
    made, nodes, shader = m.principled(name, colour, 0.85)
    stains = nodes.noise(m.stretched(nodes, (0.8, 0.8, 0.3)), 1.0, detail=8.0, distortion=0.3)
    m.feed(nodes, shader, Base_Color=nodes.mix(m.ramp(nodes, stains, (0.38, 0.0), (0.7, 0.85)), m.rgb(colour),
                                               tuple(0.6 * level + 0.02 for level in m.rgb(colour))),
           Normal=m.relief(nodes, nodes.noise(nodes.place(), 14.0), 0.01, 0.5))
    return made


def tiles():
    made, nodes, shader = m.principled("tiles", "8a4a34", 0.8)
    where = nodes.place()
    rows = m.waves(nodes, where, 1.9, 0.6, "X")
    tone = nodes.noise(where, 2.4, detail=6.0)
    m.feed(nodes, shader, Base_Color=m.ramp(nodes, tone, (0.3, "5c2f24"), (0.5, "8a4632"), (0.75, "a86a4a")),
           Normal=m.relief(nodes, rows, 0.06, 0.9))
    return made


def opening(x, z, size, front, frame, glass):
    """A window with frame, bars, sill and a curtain behind the pane, all before the front."""
    wide, high = size
    s.box("pane", (wide, 0.02, high), glass, 0, (x, front - 0.01, z))
    for u in (-1, 1):
        s.box("jamb", (0.10, 0.12, high + 0.2), frame, 0.006, (x + u * (wide / 2 + 0.05), front - 0.04, z))
        s.box("head", (wide + 0.3, 0.12, 0.11), frame, 0.006, (x, front - 0.05, z + u * (high / 2 + 0.05)))
    s.box("bar", (0.05, 0.06, high), frame, 0, (x, front - 0.03, z))
    for k in (-0.17, 0.17):
        s.box("bar", (wide, 0.06, 0.04), frame, 0, (x, front - 0.03, z + k * high))
    s.box("sill", (wide + 0.36, 0.22, 0.06), frame, 0.006, (x, front - 0.08, z - high / 2 - 0.1))


def gabled(x, wide, front, top, stuffs):
    """A roof whose gable faces the water, with a window in it. Stuffs: wall, trim, roof, glass."""
    wall, trim, roof, glass = stuffs
    points = [(x - wide / 2 - 0.3, front - 0.35, top - 0.15), (x, front - 0.35, top + wide * 0.52),
              (x + wide / 2 + 0.3, front - 0.35, top - 0.15)]
    back = [(u, front + DEPTH, w) for u, _, w in points]
    made = s.mesh("roof", points + back, [(0, 1, 4, 3), (1, 2, 5, 4)], roof, smooth=False)
    made.modifiers.new("thick", "SOLIDIFY").thickness = 0.18
    corners = [(x - wide / 2, front, top), (x + wide / 2, front, top), (x, front, top + wide * 0.5)]
    s.mesh("gable", corners, [(0, 1, 2)], wall, smooth=False)
    opening(x, top + wide * 0.16, (0.9, 1.2), front, trim, glass)


def eaved(x, wide, front, top, stuffs):
    """A roof whose eaves run along the water, with a dormer. Stuffs: wall, trim, roof, glass."""
    wall, trim, roof, glass = stuffs
    half = wide / 2 + 0.15
    points = [(x - half, front - 0.4, top - 0.1), (x + half, front - 0.4, top - 0.1),
              (x + half, front + DEPTH / 2, top + 3.0), (x - half, front + DEPTH / 2, top + 3.0)]
    made = s.mesh("roof", points, [(0, 1, 2, 3)], roof, smooth=False)
    made.modifiers.new("thick", "SOLIDIFY").thickness = 0.18
    s.box("eaves", (wide + 0.2, 0.2, 0.18), trim, 0.01, (x, front - 0.3, top - 0.12))
    s.box("dormer", (1.7, 2.2, 1.6), wall, 0, (x, front + 1.4, top + 0.9))
    opening(x, top + 0.95, (0.9, 1.0), front + 0.3, trim, glass)
    ridge = [(x - 1.05, 1.65), (x, 2.35), (x + 1.05, 1.65)]
    points = [(u, front + y, top + z) for y in (0.1, 3) for u, z in ridge]
    s.mesh("dormer roof", points, [(0, 1, 4, 3), (1, 2, 5, 4)], roof, smooth=False)


def house(dice, x, wide, floors, wall, trim, roof, gable):
    """One house of the row: front at y 0, windows in columns, door, gable or eaves with dormer, chimney."""
    tall, front = 1.0 + 2.75 * floors, dice.uniform(-0.15, 0.15)
    glass = m.plain("glass", "27323a", 0.05, Specular=0.8)
    s.box("house", (wide, DEPTH, tall), wall, 0, (x, front + DEPTH / 2, QUAY + tall / 2))
    for u in (-1, 1):
        s.box("corner", (0.18, 0.1, tall), trim, 0.005, (x + u * (wide / 2 - 0.09), front - 0.03, QUAY + tall / 2))
    s.box("plinth", (wide, 0.16, 0.6), m.plain("plinth", "77716a", 0.9), 0.01, (x, front - 0.03, QUAY + 0.3))
    columns = 3 if wide > 6.4 else 2
    step = wide / columns
    for floor in range(floors):
        for column in range(columns):
            at = x + (column - (columns - 1) / 2) * step
            if floor == 0 and column == columns // 2:
                s.box("door", (1.05, 0.1, 2.2), m.plain("door", dice.choice(("3a2a20", "274a3c", "6b2420", "22384f")), 0.4),
                      0.01, (at, front - 0.03, QUAY + 1.25))
                s.box("lintel", (1.4, 0.16, 0.16), trim, 0.005, (at, front - 0.06, QUAY + 2.45))
                continue
            opening(at, QUAY + 1.85 + 2.75 * floor, (1.0 if columns == 3 else 1.15, 1.45), front, trim, glass)
    top = QUAY + tall
    (gabled if gable else eaved)(x, wide, front, top, (wall, trim, roof, glass))
    s.box("chimney", (0.75, 0.75, 2.4), m.plain("brick", "7a4434", 0.9), 0.02, (x + wide * 0.26, front + DEPTH * 0.42,
                                                                                top + 2.6))


def row(dice):
    """Twelve houses, each of its colour."""
    roofs = [tiles(), m.plain("slate", "4a4c50", 0.7)]
    white = m.plain("trim", "ece8de", 0.5)
    tones = ("b5362c", "e0b04a", "ece4d2", "4a7f9a", "c9703c", "e6dcc0", "8fae8a", "a83f34", "d9c08a", "5d8a8f", "dcd2c0",
             "c2553c", "d6a03c")
    x = -39.0
    for i, tone in enumerate(tones):
        wide = dice.uniform(5.2, 7.6)
        wall = boards("boards", tone) if i % 3 else plaster("plaster", tone)
        house(dice, x + wide / 2, wide, dice.choice((2, 3, 3)), wall, white, roofs[i % 4 == 3], i % 2 == 0)
        x += wide + 0.05


def quay(dice):
    """Granite edge, timber fenders, bollards, lamps, barrels and crates."""
    stone, nodes, shader = m.principled("granite", "7d766c", 0.85)
    where = nodes.place()
    m.feed(nodes, shader, Base_Color=m.ramp(nodes, nodes.noise(where, 1.6, detail=8.0), (0.3, "4d4842"), (0.7, "8d857a")),
           Normal=m.relief(nodes, nodes.noise(where, 5.0), 0.06, 0.7))
    s.box("quay", (120, 7, 3.2), stone, 0.05, (0, -3.4, QUAY - 1.6))
    pile = m.wood("pile", "2a1f16", "4a3a2a", "6b5a44", 0.8, 1.0)
    for i in range(48):
        s.box("fender", (0.28, 0.28, 2.6), pile, 0.03, (-42 + 1.8 * i, -7.05, QUAY - 1.0))
    iron = m.plain("iron", "1a1c1e", 0.5)
    for i in range(9):
        s.lathe("bollard", [(0, 0), (0.16, 0), (0.13, 0.35), (0.2, 0.42), (0.2, 0.5), (0, 0.52)], iron,
                steps=20).location = (-34 + 8.4 * i, -6.4, QUAY)
        s.tube("pole", [(-30 + 8.4 * i, -5.6, QUAY), (-30 + 8.4 * i, -5.6, QUAY + 3.9)], 0.06, iron)
        s.ball("globe", 0.24, m.plain("globe", "f2efe6", 0.3), (-30 + 8.4 * i, -5.6, QUAY + 4.1), 3)
    for _ in range(26):
        wood = m.wood("crate", "5a4028", "86623e", "a88458", 0.7, 2.0)
        made = s.box("crate", (dice.uniform(0.5, 0.9), 0.6, dice.uniform(0.4, 0.7)), wood, 0.01,
                     (dice.uniform(-32, 32), dice.uniform(-5, -2.5), QUAY + 0.3))
        made.rotation_euler.z = dice.uniform(0, 1)


def boat(at, turn, size, colours, mast):
    """A wooden boat: hull from ribs, gunwale, thwarts or a cabin, mast."""
    rows, columns = 28, 15
    t, u = numpy.linspace(0, 1, rows), numpy.linspace(-1, 1, columns)
    points = []
    for a in t:
        beam = 1.05 * (sin(pi * (0.06 + 0.90 * a) ** 0.85)) ** 0.6 + 0.02
        sheer = 0.75 + 0.55 * (a - 0.4) ** 2
        for b in u:
            points.append((6.0 * (a - 0.5) + 0.35 * (abs(b) ** 2) * (1 if a > 0.9 else 0),
                           beam * numpy.sign(b) * abs(b) ** 0.55, -0.35 + (sheer + 0.35) * abs(b) ** 2.6))
    faces = [(i * columns + j, i * columns + j + 1, (i + 1) * columns + j + 1,
              (i + 1) * columns + j) for i in range(rows - 1) for j in range(columns - 1)]
    hull = s.mesh("hull", points, faces, m.plain("paint", colours[0], 0.35, Clearcoat=0.3))
    hull.modifiers.new("thick", "SOLIDIFY").thickness = 0.06
    parts = [hull]
    for side in (0, columns - 1):
        edge = [points[i * columns + side] for i in range(rows)]
        parts.append(s.tube("gunwale", [(x, y, z + 0.02) for x, y, z in edge], 0.05, m.plain("gunwale", colours[1], 0.4)))
    deck = m.wood("deck", "6b4a2c", "94693f", "b58c5c", 0.5, 1.2)
    if mast:
        parts += [s.box("deck", (4.0, 1.15, 0.06), deck, 0.01, (0, 0, 0.5)), s.box("cabin", (1.7, 1.25, 1.15),
                                                                                  m.plain("cabin", "e9e5da", 0.4), 0.06,
                                                                                  (-0.7, 0, 1.1)),
                  s.box("windows", (1.72, 1.27, 0.36), m.plain("windows", "1d262c", 0.1), 0.02, (-0.7, 0, 1.32)),
                  s.box("roof", (2.0, 1.45, 0.08), m.plain("roof", colours[1], 0.4), 0.03, (-0.7, 0, 1.7)),
                  s.tube("mast", [(0.6, 0, 0.5), (0.6, 0, 4.6)], 0.06, deck, radii=[1, 0.7]),
                  s.tube("stay", [(0.6, 0, 4.5), (2.9, 0, 0.9)], 0.012, deck), s.tube("boom", [(0.6, 0, 1.9), (-1.9, 0, 2.4)],
                                                                                      0.04, deck)]
    else:
        parts += [s.box("thwart", (0.3, 1.25, 0.05), deck, 0.01, (dx, 0, 0.42)) for dx in (-1.5, 0.0, 1.4)]
        parts += [s.tube("oar", [(-1.4, 0.15, 0.52), (1.3, 0.25, 0.60)], 0.03, deck)]
    handle = s.parent(parts, "boat")
    handle.location, handle.rotation_euler, handle.scale = at, (0.03, 0.02, turn), (size,) * 3


def water():
    """The basin: hardly a breath of wind, long soft ripples that bend the mirrored fronts."""
    made, nodes, shader = m.principled("water", "0c1f22", 0.03, Specular=0.6)
    long = nodes.noise(m.stretched(nodes, (0.35, 1.0, 1)), 0.55, detail=3.0)
    fine = nodes.noise(m.stretched(nodes, (0.5, 1.0, 1)), 3.2, detail=4.0, distortion=0.3)
    m.feed(nodes, shader, Normal=m.relief(nodes, nodes.math("MULTIPLY_ADD", fine, 0.13, long), 0.16, 0.6))
    s.sheet("water", (300, 160), (2, 2), lambda x, y: 0.0, made).location.y = -70


def build():
    dice = s.dice(83)
    row(dice)
    quay(dice)
    water()
    boat((-13, -10.5, 0), 0.12, 1.15, ("2f5f86", "efe8d8"), True)
    boat((3.5, -9.6, 0), -0.08, 0.85, ("b3342c", "f0e6d2"), False)
    boat((14.5, -11.2, 0), 3.05, 1.2, ("e9e4d6", "2c5a4a"), True)
    boat((-3.6, -14.0, 0), 0.35, 0.8, ("d9a83c", "4a3222"), False)
    green = m.plain("hill", "47583a", 0.95)
    line = [(x, 90, 9 + 15 * noise.fractal(Vector((x / 45, 1, 0)), 0.9, 2.1, 7)) for x in range(-130, 131, 1)]
    s.ridge(line, 0, green)
    daylight(26, -152, strength=0.16, dust=1.0, sun_size=1.0,
             clouds=dict(low=0.5, high=0.75, scale=1.1, light=(7.5, 7.5, 7.6), shade=(4.6, 5.0, 5.8)))
    camera((-2.0, -36, 3.4), (0.5, 0, 4.0), 35)
    return Roll(samples=12, exposure=-1.2)
