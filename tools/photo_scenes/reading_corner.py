"""An armchair with a cushion by a tall window, a plant and a lamp beside it."""
from math import cos, pi, sin

from mathutils import Vector, noise

import materials as m
import shapes as s
from common import camera
from film import Roll

FORMAT = "portrait"


def cloth(name, colour, dark, weave=900.0, sheen=0.5):
    """Upholstery: a weave that one feels, tones that wander a little."""
    made, nodes, shader = m.principled(name, colour, 0.9, Sheen=sheen, Specular=0.2)
    where = nodes.place("Object")
    thread = nodes.math("ADD", m.waves(nodes, where, weave / 12, 2.0), m.waves(nodes, where, weave / 12, 2.0, "Z"))
    tone = nodes.noise(where, 4.5, detail=4.0)
    m.feed(nodes, shader, Base_Color=nodes.mix(nodes.math("MULTIPLY", tone, 0.9), m.rgb(colour), m.rgb(dark)),
           Normal=m.relief(nodes, nodes.math("MULTIPLY_ADD", thread, 0.25, nodes.noise(where, 16.0)), 0.004, 0.6))
    return made


def stuffed(name, size, at, material, puff=0.12, turn=(0, 0, 0)):
    """A cushion: a box blown up towards its middle, with a seam around it and wrinkles."""
    wide, deep, high = size
    rows, columns = 30, 30
    points, faces = [], []
    for side in (1, -1):
        for j in range(rows + 1):
            for i in range(columns + 1):
                u, v = 2 * i / columns - 1, 2 * j / rows - 1
                full = (max(0.0, 1 - abs(u) ** 5) * max(0.0, 1 - abs(v) ** 5)) ** 0.5
                rough = noise.noise(Vector((3 * u + at[0] * 9, 3 * v, 5 + side))) * 0.035 * full
                points.append((u * wide / 2 * (1 - 0.02 * v * v), v * deep / 2 * (1 - 0.02 * u * u),
                               side * (high / 2 * full ** 0.7 * (1 + puff * full) + rough * high)))
    line = columns + 1
    for side in range(2):
        base = side * line * (rows + 1)
        for j in range(rows):
            for i in range(columns):
                corners = (base + j * line + i, base + j * line + i + 1, base + (j + 1) * line + i + 1,
                           base + (j + 1) * line + i)
                faces.append(corners if side == 0 else corners[::-1])
    made = s.mesh(name, points, faces, material)
    s.weld(made, 1e-4)
    s.subdivided(made, 1)
    made.location, made.rotation_euler = at, turn
    return made


def armchair(fabric, wood):
    """Seat, back with buttons of shade, arms, legs; faces -y."""
    parts = [stuffed("seat", (0.60, 0.64, 0.19), (0, -0.02, 0.42), fabric, 0.1),
             stuffed("back", (0.66, 0.62, 0.20), (0, 0.30, 0.72), fabric, 0.15, m.degrees(78, 0, 0)),
             stuffed("arm", (0.70, 0.36, 0.17), (-0.375, 0.0, 0.48), fabric, 0.06, m.degrees(90, 0, 90)),
             stuffed("arm", (0.70, 0.36, 0.17), (0.375, 0.0, 0.48), fabric, 0.06, m.degrees(90, 0, 90)),
             s.box("frame", (0.74, 0.66, 0.16), fabric, 0.03, (0, 0.02, 0.29))]
    for x in (-0.32, 0.32):
        for y, lean in ((-0.26, 0.03), (0.32, -0.04)):
            parts.append(s.tube("leg", [(x, y, 0.24), (x * 1.08, y - lean, 0.0)], 0.022, wood, radii=[1.0, 0.65]))
    return s.parent(parts, "armchair")


def plant(dice):
    """A fig with large leaves in a clay pot."""
    s.lathe("pot", [(0, 0), (0.12, 0), (0.155, 0.27), (0.165, 0.275), (0.165, 0.31), (0.15, 0.31), (0.145, 0.27), (0, 0.26)],
            m.plain("clay", "a8623f", 0.8)).location = (-0.80, 0.22, 0)
    made, nodes, shader = m.principled("leaf", "2d5a24", 0.35)
    where = nodes.place()
    m.feed(nodes, shader, Base_Color=m.ramp(nodes, nodes.noise(where, 8.0), (0.3, "24521e"), (0.7, "4f8a3c")),
           Normal=m.relief(nodes, m.waves(nodes, where, 14.0, 2.0, "DIAGONAL"), 0.004, 0.5))
    bark = m.plain("bark", "5a4632", 0.8)
    pattern = s.leaf("leaf", 0.24, 0.14, made, bend=0.35, fold=0.2)
    for k in range(4):
        top = (-0.80 + 0.10 * cos(2 * k), 0.22 + 0.08 * sin(2 * k), 1.15 + 0.12 * k)
        foot = (-0.80 + 0.02 * cos(k), 0.22, 0.26)
        s.tube("stem", [foot, tuple((a + b) / 2 + 0.02 for a, b in zip(foot, top)), top], 0.010, bark)
        for i in range(17):
            t = 0.25 + 0.75 * i / 16
            at = [a + (b - a) * t for a, b in zip(foot, top)]
            turn = 2.4 * i + k
            s.copy(pattern, (at[0] + 0.12 * cos(turn), at[1] + 0.12 * sin(turn), at[2] + 0.02),
                   (dice.uniform(-0.3, 0.3), dice.uniform(-0.5, 0.1), turn), dice.uniform(0.8, 1.3))
    s.gone(pattern)


def lamp_and_table(wood):
    """A round side table with books and a cup, a lamp behind."""
    s.lathe("top", [(0, 0.50), (0.21, 0.50), (0.215, 0.51), (0.215, 0.52), (0.21, 0.525), (0, 0.525)],
            wood).location = (0.86, -0.06, 0)
    for k in range(3):
        a = 2 * pi * k / 3 + 0.4
        s.tube("leg", [(0.86 + 0.07 * cos(a), -0.06 + 0.07 * sin(a), 0.5), (0.86 + 0.17 * cos(a), -0.06 + 0.17 * sin(a), 0)],
               0.014, wood)
    z = 0.525
    for tone, size, turn in (("7a3b2e", (0.20, 0.14, 0.032), 0.3), ("d9cdb4", (0.18, 0.13, 0.026), 0.5),
                             ("2f4858", (0.17, 0.12, 0.022), 0.2)):
        made = s.box("book", size, m.plain("cover", tone, 0.6), 0.003, (0.84, -0.05, z + size[2] / 2))
        made.rotation_euler.z = turn
        pages = s.box("pages", (size[0] * 0.985, size[1] * 1.0 - 0.004, size[2] * 0.8), m.plain("pages", "efe8d8", 0.9), 0,
                      (0.842, -0.052, z + size[2] / 2))
        pages.rotation_euler.z = turn
        z += size[2]
    s.lathe("mug", [(0, 0), (0.034, 0), (0.038, 0.01), (0.038, 0.085), (0.035, 0.085), (0.034, 0.01), (0, 0.008)],
            m.plain("mug", "e8e2d6", 0.25)).location = (0.835, -0.05, z)
    brass = m.plain("brass", "b08d4a", 0.3, Metallic=1.0)
    s.lathe("foot", [(0, 0), (0.13, 0), (0.13, 0.015), (0.02, 0.03), (0, 0.03)], brass).location = (0.72, 0.52, 0)
    s.tube("pole", [(0.72, 0.52, 0.02), (0.72, 0.52, 1.45)], 0.011, brass)
    made = m.plain("shade", "eadfc8", 0.9, Emission=(1.0, 0.72, 0.42, 1), Emission_Strength=0.8)
    s.lathe("shade", [(0.21, 1.36), (0.14, 1.66), (0.137, 1.66), (0.207, 1.36)], made).location = (0.72, 0.52, 0)
    m.lamp("POINT", (0.72, 0.52, 1.5), (0, 0, 0), 6, (1.0, 0.72, 0.42), shadow_soft_size=0.08)


def room(wood):
    """Floor, wall with three framed prints, skirting, rug."""
    for board in s.planks(m.wood("parquet", "5c3d22", "8f6237", "b88a58", 0.35, 0.8), 4.4, 5.0, 30, gap=0.002):
        board.location.y -= 0.6
    made, nodes, shader = m.principled("wall", "3f5d57", 0.85)
    where = nodes.place()
    m.feed(nodes, shader, Base_Color=m.ramp(nodes, nodes.noise(where, 1.4), (0.3, "44635c"), (0.7, "4f7068")),
           Normal=m.relief(nodes, nodes.noise(where, 90.0), 0.002, 0.4))
    s.box("wall", (5, 0.1, 3.2), made, 0, (0, 0.92, 1.6))
    s.box("skirting", (5, 0.025, 0.12), m.plain("skirting", "ebe6da", 0.5), 0.004, (0, 0.86, 0.06))
    for x, z, wide, high, tone in ((-0.36, 1.62, 0.36, 0.48, "c9744a"), (0.10, 1.72, 0.30, 0.40, "6f8f9a"),
                                   (0.10, 1.30, 0.30, 0.30, "c9a64a")):
        s.box("frame", (wide, 0.025, high), wood, 0.003, (x, 0.857, z))
        s.box("mount", (wide - 0.04, 0.01, high - 0.04), m.plain("mount", "f1ece0", 0.7), 0, (x, 0.842, z))
        print_, nodes, shader = m.principled("print", tone, 0.6)
        bands = nodes.noise(m.stretched(nodes, (1.5, 1, 7)), 2.2 + x, detail=2.0)
        m.feed(nodes, shader, Base_Color=m.ramp(nodes, bands, (0.35, "ede3cf"), (0.45, tone), (0.6, "2d3b40")))
        s.box("print", (wide - 0.13, 0.01, high - 0.15), print_, 0, (x, 0.838, z))
    rug = s.lathe("rug", [(0, 0.0), (0.92, 0.0), (0.93, 0.006), (0.92, 0.012), (0, 0.012)],
                  cloth("rug", "cfc2ab", "b5a488", 500.0))
    rug.location = (0.05, -0.25, 0)


def light_of_window():
    """Sun through a window with glazing bars at the left, and the sky's light from it."""
    frame = m.plain("bars", "f0ece2", 0.5)
    for y in (-1.7, -1.15, -0.6):
        s.box("bar", (0.05, 0.05, 2.4), frame, 0, (-2.2, y, 1.5))
    for z in (0.4, 1.1, 1.8, 2.6):
        s.box("bar", (0.05, 1.2, 0.045), frame, 0, (-2.2, -1.15, z))
    wall = m.plain("outer wall", "5a756e", 0.9)
    for size, at in (((0.1, 3.0, 7), (-2.2, 0.95, 3.5)), ((0.1, 4.0, 7), (-2.2, -3.75, 3.5)),
                     ((0.1, 1.3, 4), (-2.2, -1.15, 4.6)), ((0.1, 1.3, 0.4), (-2.2, -1.15, 0.2))):
        s.box("outer wall", size, wall, 0, at)
    m.lamp("SUN", (-4.2, -3.2, 3.3), (0, 0.0, 0.35), 6.5, (1.0, 0.86, 0.66), angle=0.012)
    m.lamp("AREA", (-2.4, -1.15, 1.6), (0, 0, 0.6), 42, (0.85, 0.92, 1.0), size=1.4)


def build():
    dice = s.dice(13)
    wood = m.wood("walnut", "2d1a0f", "533320", "7a5236", 0.4, 3.0)
    room(wood)
    chair = armchair(cloth("mustard", "b8873a", "966a26"), wood)
    chair.rotation_euler.z = -0.30
    pillow = stuffed("pillow", (0.40, 0.40, 0.14), (-0.06, 0.13, 0.63), cloth("linen", "e4dccb", "c9bda4"), 0.2,
                     m.degrees(66, 6, 8))
    pillow.parent = chair
    plant(dice)
    lamp_and_table(wood)
    light_of_window()
    m.ambient((0.75, 0.8, 0.9), 0.34)
    camera((0.12, -3.15, 1.12), (0.04, 0, 0.88), 38, (0, -0.1, 0.7), 4.0)
    return Roll(samples=24, exposure=0.75, clean=1.5)
