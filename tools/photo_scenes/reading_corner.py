"""A velvet tub chair by a tall window in the last sun: an open book, a cushion; the room melts behind."""
from math import cos, pi, sin

import numpy
from mathutils import Vector, noise

import materials as m
import shapes as s
from common import camera, sheet, unwrapped
from film import Roll
from land import noise as waves
from nodes import material, surface

FORMAT = "portrait"
SEAT = 0.455  # height of the cushion's top


def velvet(name, colour):
    """A pile that lies this way and that, as hands have left it; lighter at the rims."""
    made, nodes, shader = m.principled(name, colour, 0.75, Sheen=1.0, Sheen_Tint=0.6, Specular=0.15)
    where = nodes.add("ShaderNodeNewGeometry").outputs["Position"]
    pile = nodes.rise(nodes.noise(where, 9.0, detail=5.0, roughness=0.62, distortion=0.8), 0.36, 0.64)
    fine = nodes.noise(where, 420.0, detail=3.0)
    base = m.rgb(colour)
    tone = nodes.mix(nodes.math("MULTIPLY_ADD", fine, 0.35, nodes.math("MULTIPLY", pile, 0.55)), tuple(0.42 * level for level in base), tuple(1.15 * level for level in base))
    m.feed(nodes, shader, Base_Color=tone, Normal=m.relief(nodes, nodes.math("MULTIPLY_ADD", fine, 0.05, pile), 0.0035, 0.6))
    return made


def linen(name, colour):
    """A plain weave with slubs; through is the light that comes from behind."""
    made, nodes, shader = m.principled(name, colour, 0.9, Specular=0.15)
    where = nodes.place()
    one = nodes.noise(nodes.vector("MULTIPLY", where, (90.0, 900.0, 90.0)), 1.0, detail=3.0)
    other = nodes.noise(nodes.vector("MULTIPLY", where, (900.0, 90.0, 90.0)), 1.0, detail=3.0)
    thread = nodes.math("ADD", one, other)
    tone = nodes.mix(nodes.math("MULTIPLY", nodes.rise(thread, 0.7, 1.3), 0.55), m.rgb(colour), tuple(0.5 * level for level in m.rgb(colour)))
    m.feed(nodes, shader, Base_Color=tone, Normal=m.relief(nodes, thread, 0.0012, 0.7))
    return made


def stuffed(name, size, stuff, wrinkle=0.035, seed=0.0):
    """A cushion about the origin: a box blown up towards its middle, wrinkled towards its corners, with a seam."""
    (wide, deep, high), count = size, 44
    points, faces = [], []
    for side in (1, -1):
        for j in range(count + 1):
            for i in range(count + 1):
                u, v = 2 * i / count - 1, 2 * j / count - 1
                full = (max(0.0, 1 - abs(u) ** 4) * max(0.0, 1 - abs(v) ** 4)) ** 0.5
                rough = noise.fractal(Vector((2.2 * u + seed, 2.2 * v, side)), 0.9, 2.1, 4) * wrinkle * (1.3 - full)
                rough += wrinkle * 1.3 * abs(u * v) * sin(11 * (u - v) * side + seed) * (1 - full)
                points.append((u * wide / 2 * (1 - 0.05 * (1 - v * v)), v * deep / 2 * (1 - 0.05 * (1 - u * u)), side * (high / 2 * full ** 0.75) + rough * min(1.0, 3 * full) * high * 2.2))
    line = count + 1
    for side in range(2):
        base = side * line * line
        for j in range(count):
            for i in range(count):
                corners = (base + j * line + i, base + j * line + i + 1, base + (j + 1) * line + i + 1, base + (j + 1) * line + i)
                faces.append(corners if side == 0 else corners[::-1])
    made = s.mesh(name, points, faces, stuff)
    s.weld(made, 1e-4)
    return s.subdivided(made, 1)


def chair(dice, fabric, wood):
    """A tub of upright pads, high at the back and low at the arms, a round seat; faces -y."""
    parts, count = [], 15
    for k in range(count):
        turn = (k / (count - 1) - 0.5) * 2 * 1.98
        share = 0.5 + 0.5 * cos(turn * 1.35)
        tall, lean = 0.31 + 0.33 * share ** 0.8, 0.10 * share
        pad = stuffed("pad", (0.124, tall, 0.115), fabric, 0.02, 3.1 * k)
        pad.rotation_euler = (pi / 2 - lean, dice.gauss(0, 0.012), -turn)
        pad.location = ((0.375 + 0.3 * lean) * sin(turn), (0.36 + 0.3 * lean) * cos(turn) + 0.02, 0.36 + tall / 2)
        parts.append(pad)
    shell = numpy.linspace(-2.0, 2.0, 60)
    rows = []
    for level in numpy.linspace(0, 1, 8):
        tall = 0.27 + 0.33 * (0.5 + 0.5 * numpy.cos(shell * 1.35)) ** 0.8
        rows.append(numpy.stack([(0.415 + 0.04 * level) * numpy.sin(shell), (0.40 + 0.04 * level) * numpy.cos(shell) + 0.02, 0.34 + level * tall], axis=-1))
    parts.append(sheet("shell", numpy.array(rows), fabric))
    seat = s.lathe("seat", [(0, 0.30), (0.30, 0.30), (0.335, 0.33), (0.345, 0.38), (0.33, 0.43), (0.27, 0.452), (0.12, SEAT + 0.003), (0, SEAT)], fabric, steps=72, finer=2)
    parts.append(s.wrinkled(s.wrinkled(seat, 0.022, 0.16), 0.007, 0.04))
    for height in (0.335, 0.428):
        ring = [(0.338 * cos(a), 0.338 * sin(a), height + 0.003 * sin(5 * a)) for a in numpy.linspace(0, 2 * pi, 90, endpoint=False)]
        parts.append(s.tube("piping", ring, 0.005, fabric, closed=True))
    parts.append(s.lathe("base", [(0, 0.16), (0.36, 0.16), (0.375, 0.18), (0.375, 0.30), (0.35, 0.32), (0, 0.32)], fabric, steps=72))
    parts += [s.tube("leg", [(0.27 * cos(a), 0.27 * sin(a), 0.18), (0.30 * cos(a), 0.30 * sin(a), 0)], 0.02, wood, radii=[1.0, 0.6]) for a in (0.8, 2.3, 3.9, 5.5)]
    return s.parent(parts, "chair")


def open_book(at, turn):
    """A book that lies open, its pages arched, lines of print on them too fine to read."""
    made, nodes, shader = m.principled("page", "e6dfce", 0.9, Specular=0.1)
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place("UV"))
    across, down = apart.outputs[0], nodes.math("MULTIPLY", apart.outputs[1], 31.0)
    words = nodes.noise(nodes.add("ShaderNodeCombineXYZ", nodes.math("MULTIPLY", across, 34.0), nodes.math("MULTIPLY", nodes.math("FLOOR", down), 9.7), 0.0), 1.0, detail=2.0)
    letters = nodes.noise(nodes.add("ShaderNodeCombineXYZ", nodes.math("MULTIPLY", across, 260.0), nodes.math("MULTIPLY", down, 5.0), 0.0), 1.0, detail=1.0)
    block = nodes.math("MULTIPLY", nodes.math("LESS_THAN", nodes.math("ABSOLUTE", nodes.math("SUBTRACT", across, 0.5)), 0.38), nodes.math("LESS_THAN", nodes.math("ABSOLUTE", nodes.math("SUBTRACT", apart.outputs[1], 0.5)), 0.41))
    ink = nodes.math("MULTIPLY", nodes.math("MULTIPLY", nodes.math("LESS_THAN", nodes.math("FRACT", down), 0.42), nodes.math("GREATER_THAN", words, 0.40)), nodes.math("MULTIPLY", block, nodes.rise(letters, 0.35, 0.6)))
    m.feed(nodes, shader, Base_Color=nodes.mix(nodes.math("MULTIPLY", ink, 0.8), nodes.mix(nodes.noise(nodes.place(), 12.0), m.rgb("dcd2bc"), m.rgb("ece6d8")), m.rgb("2a2826")))
    cover = m.plain("cover", "5a2a26", 0.6)
    t = numpy.linspace(0, 1, 22)[None, :]
    v = numpy.linspace(0, 1, 8)[:, None]
    parts = []
    for side in (-1, 1):
        for leaf in range(7):
            thick = 0.014 * (1 - leaf / 6) * (1.0 if side > 0 else 0.7)
            arch = thick + 0.013 * numpy.sin(pi * t ** 0.55) + (0.002 * waves(t * 2, v * 2 + leaf, leaf) if leaf == 0 else 0)
            points = numpy.stack([side * t * (0.118 - 0.0012 * leaf * 0) + 0 * v, (v - 0.5) * 0.185 + 0 * t, arch * (0.25 + 0.75 * numpy.minimum(1, t * 9)) + 0 * v], axis=-1)
            page = sheet("page", points, made)
            parts.append(unwrapped(page, numpy.stack(numpy.broadcast_arrays(t if side > 0 else 1 - t, 1 - v), axis=-1).reshape(-1, 2)))
        parts.append(s.box("cover", (0.123, 0.195, 0.003), cover, 0.001, (side * 0.0615, 0, 0.001)))
    handle = s.parent(parts, "book")
    handle.location, handle.rotation_euler = at, turn


def table(dice, wood):
    """A round side table behind the arm: books that somebody put down, a mug, reading glasses."""
    x, y = 0.70, 0.10
    s.lathe("top", [(0, 0.545), (0.20, 0.545), (0.208, 0.553), (0.208, 0.565), (0.20, 0.57), (0, 0.57)], wood).location = (x, y, 0)
    for k in range(3):
        a = 2 * pi * k / 3 + 0.4
        s.tube("leg", [(x + 0.07 * cos(a), y + 0.07 * sin(a), 0.55), (x + 0.17 * cos(a), y + 0.17 * sin(a), 0)], 0.014, wood, radii=[1, 0.7])
    z = 0.57
    for tone, size in (("3a4a3c", (0.21, 0.145, 0.034)), ("b9a888", (0.19, 0.13, 0.022)), ("7a3326", (0.20, 0.135, 0.03)), ("2c3a48", (0.165, 0.11, 0.018))):
        turn, at = dice.gauss(0.35, 0.22), (x - 0.02 + dice.gauss(0, 0.008), y + 0.02 + dice.gauss(0, 0.006))
        cloth, nodes, shader = m.principled("cover", tone, 0.7)
        m.feed(nodes, shader, Base_Color=nodes.mix(nodes.rise(nodes.noise(nodes.place(), 30.0, detail=7.0), 0.5, 0.75), m.rgb(tone), tuple(0.5 * level + 0.06 for level in m.rgb(tone))))
        for lift in (0, size[2] - 0.003):
            s.box("board", (size[0], size[1], 0.003), cloth, 0.001, (*at, z + lift + 0.0015)).rotation_euler.z = turn
        s.box("spine", (0.004, size[1], size[2]), cloth, 0.0015, (at[0] - size[0] / 2 * cos(turn), at[1] - size[0] / 2 * sin(turn), z + size[2] / 2)).rotation_euler.z = turn
        paper, nodes, shader = m.principled("paper", "e2d8c2", 0.95)
        m.feed(nodes, shader, Base_Color=m.ramp(nodes, nodes.noise(m.stretched(nodes, (2, 2, 900)), 1.0, detail=2.0), (0.3, "a89c84"), (0.6, "e8dfcb")))
        s.box("pages", (size[0] - 0.008, size[1] - 0.008, size[2] - 0.006), paper, 0, (*at, z + size[2] / 2)).rotation_euler.z = turn
        z += size[2]
    glaze, nodes, shader = m.principled("glaze", "5f7a80", 0.22, Specular=0.6)
    m.feed(nodes, shader, Base_Color=m.ramp(nodes, nodes.math("MULTIPLY_ADD", nodes.noise(nodes.place(), 30.0, detail=6.0), 0.03, nodes.add("ShaderNodeSeparateXYZ", nodes.place()).outputs[2]), (0.02, "b8a58a"), (0.035, "6f8a8c"), (0.10, "3f5a64")))
    mug = s.lathe("mug", [(0, 0), (0.034, 0), (0.040, 0.012), (0.042, 0.05), (0.040, 0.088), (0.0375, 0.088), (0.038, 0.05), (0.035, 0.014), (0, 0.012)], glaze, steps=64)
    mug.location = (x - 0.10, y - 0.12, 0.57)
    s.tube("handle", [(x - 0.10 + 0.04 + 0.026 * sin(pi * k / 12), y - 0.12 - 0.012 * k / 12, 0.57 + 0.074 - 0.052 * k / 12) for k in range(13)], 0.0055, glaze)


def lamp(x, y):
    """A floor lamp with a shade of pleated paper, lit."""
    brass = m.plain("brass", "9a7a40", 0.35, Metallic=1.0)
    s.lathe("foot", [(0, 0), (0.13, 0), (0.13, 0.015), (0.02, 0.03), (0, 0.03)], brass).location = (x, y, 0)
    s.tube("pole", [(x, y, 0.02), (x, y, 1.22)], 0.009, brass)
    made, nodes = material("shade")
    height = nodes.add("ShaderNodeSeparateXYZ", nodes.place()).outputs[2]
    level = nodes.math("MULTIPLY_ADD", nodes.rise(nodes.math("ABSOLUTE", nodes.math("SUBTRACT", height, 1.27)), 0.16, 0.0), 1.5, 0.45)
    surface(nodes, nodes.add("ShaderNodeAddShader", nodes.add("ShaderNodeBsdfDiffuse", m.rgb("d9cdb4")), nodes.add("ShaderNodeEmission", m.rgb("ffb866"), level)))
    s.lathe("shade", [(0.20, 1.15), (0.135, 1.42), (0.132, 1.42), (0.197, 1.15)], made, steps=120).location = (x, y, 0)
    m.lamp("POINT", (x, y, 1.27), (0, 0, 0), 5, (1.0, 0.66, 0.36), shadow_soft_size=0.06)


def plant(dice):
    """A fig behind the chair's left: leaves that hang each its own way."""
    made, nodes, shader = m.principled("leaf", "2d4a26", 0.38)
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place())
    rib = nodes.rise(nodes.math("ABSOLUTE", apart.outputs[1]), 0.004, 0.001)
    tone = m.ramp(nodes, nodes.math("MULTIPLY_ADD", nodes.chance(), 0.5, nodes.noise(nodes.place(), 14.0, detail=4.0)), (0.4, "16301a"), (0.8, "3d5c2c"), (1.0, "66803c"))
    m.feed(nodes, shader, Base_Color=nodes.mix(rib, tone, m.rgb("8a9a5c")), Normal=m.relief(nodes, m.waves(nodes, nodes.place(), 16.0, 2.0, "DIAGONAL"), 0.004, 0.5))
    kinds = [s.leaf("leaf", long, wide, made, bend=bend, fold=fold) for long, wide, bend, fold in ((0.20, 0.11, 0.5, 0.15), (0.17, 0.10, 0.3, 0.3), (0.23, 0.12, 0.75, 0.1))]
    bark = m.plain("bark", "4a3828", 0.85)
    for k in range(3):
        foot, top = (-0.62 + 0.04 * k, 0.55, 0.2), (-0.66 + 0.14 * k, 0.52 + 0.06 * sin(2 * k), 1.25 + 0.14 * k)
        s.tube("stem", [foot, ((foot[0] + top[0]) / 2 + 0.03, foot[1], 0.75), top], 0.009, bark)
        for i in range(20):
            t, turn = 0.25 + 0.75 * i / 19, 2.4 * i + k + dice.gauss(0, 0.3)
            at = [a + (b - a) * t for a, b in zip(foot, top)]
            s.copy(dice.choice(kinds), (at[0] + 0.11 * cos(turn), at[1] + 0.11 * sin(turn), at[2] + 0.02), (dice.gauss(0, 0.4), dice.uniform(-0.5, 0.7), turn), dice.uniform(0.65, 1.2))
    for kind in kinds:
        s.gone(kind)


def room():
    """Floor, a wall of rolled paint, two prints on it, a rug with a pile."""
    for board in s.planks(m.wood("parquet", "4a311c", "7d5631", "a17a4c", 0.4, 0.8), 4.4, 5.0, 30, gap=0.002):
        board.location.y -= 0.6
    made, nodes, shader = m.principled("wall", "4a5c56", 0.9)
    where = nodes.place()
    m.feed(nodes, shader, Base_Color=m.ramp(nodes, nodes.noise(where, 1.1, detail=5.0), (0.3, "46574f"), (0.7, "56685f")), Normal=m.relief(nodes, nodes.noise(where, 70.0, detail=4.0), 0.003, 0.5))
    s.box("wall", (5, 0.1, 3.2), made, 0, (0, 0.92, 1.6))
    s.box("skirting", (5, 0.025, 0.14), m.plain("skirting", "d9d4c8", 0.5), 0.006, (0, 0.86, 0.07))
    frame = m.wood("frame", "2d1a0f", "533320", "7a5236", 0.4, 3.0)
    for x, z, wide, high, tone in ((-0.22, 1.36, 0.34, 0.44, "a8634a"), (0.20, 1.44, 0.26, 0.34, "5f7a84")):
        s.box("frame", (wide, 0.025, high), frame, 0.003, (x, 0.857, z)).rotation_euler.y = 0.012
        s.box("mount", (wide - 0.03, 0.01, high - 0.03), m.plain("mount", "e6dfd0", 0.7), 0, (x, 0.842, z))
        print_, nodes, shader = m.principled("print", tone, 0.6)
        bands = nodes.noise(m.stretched(nodes, (1.5, 1, 7)), 2.2 + x, detail=3.0)
        m.feed(nodes, shader, Base_Color=m.ramp(nodes, bands, (0.35, "d9cdb6"), (0.45, tone), (0.6, "2d3b40")))
        s.box("print", (wide - 0.12, 0.01, high - 0.14), print_, 0, (x, 0.838, z))
    rug, nodes, shader = m.principled("rug", "a89a84", 1.0, Sheen=0.5)
    pile = nodes.noise(nodes.place(), 160.0, detail=5.0)
    m.feed(nodes, shader, Base_Color=nodes.mix(pile, m.rgb("7d705c"), m.rgb("c2b6a0")), Normal=m.relief(nodes, pile, 0.012, 0.9))
    s.lathe("rug", [(0, 0.0), (0.92, 0.0), (0.93, 0.006), (0.92, 0.014), (0, 0.014)], rug).location = (0.05, -0.25, 0)


def light_of_window():
    """A low sun through a window with bars at the left, branches before it, and the sky's light."""
    frame = m.plain("bars", "f0ece2", 0.5)
    for y in (-1.75, -1.2, -0.65):
        s.box("bar", (0.05, 0.05, 2.4), frame, 0, (-2.2, y, 1.5))
    for z in (0.4, 1.0, 1.6, 2.2):
        s.box("bar", (0.05, 1.2, 0.045), frame, 0, (-2.2, -1.2, z))
    wall = m.plain("outer wall", "5a756e", 0.9)
    for size, at in (((0.1, 3.0, 7), (-2.2, 0.88, 3.5)), ((0.1, 4.0, 7), (-2.2, -3.80, 3.5)), ((0.1, 1.3, 4), (-2.2, -1.2, 4.25)), ((0.1, 1.3, 0.4), (-2.2, -1.2, 0.2))):
        s.box("outer wall", size, wall, 0, at)
    m.lamp("SUN", (-4.4, -3.2, 2.5), (0, 0.0, 0.5), 5.5, (1.0, 0.78, 0.52), angle=0.018)
    m.lamp("AREA", (-2.05, -1.2, 1.5), (0, 0, 0.6), 34, (0.85, 0.92, 1.0), size=1.2)


def build():
    dice = s.dice(13)
    wood = m.wood("walnut", "2d1a0f", "533320", "7a5236", 0.4, 3.0)
    room()
    tub = chair(dice, velvet("velvet", "a8742c"), wood)
    cushion = stuffed("cushion", (0.36, 0.36, 0.15), linen("linen", "cfc4ae"), 0.05, 5.0)
    cushion.location, cushion.rotation_euler, cushion.parent = (-0.09, 0.17, SEAT + 0.165), m.degrees(66, 5, 14), tub
    tub.rotation_euler.z = -0.22
    open_book((0.03, -0.14, SEAT + 0.004), (0.02, 0.01, 0.35))
    plant(dice)
    table(dice, wood)
    lamp(0.50, 0.58)
    light_of_window()
    m.ambient((0.75, 0.8, 0.9), 0.16)
    camera((0.30, -1.95, 1.22), (0.06, 0, 0.755), 58, (0, -0.10, 0.55), 2.2)
    return Roll(samples=22, exposure=0.8, clean=1.0, saturation=1.0, grain=0.011)
