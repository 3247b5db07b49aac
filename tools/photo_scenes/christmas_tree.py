"""Baubles on the boughs of a Christmas tree, its lights and the room behind them melting away."""
from math import cos, pi, sin

import numpy
from mathutils import Vector

import materials as m
import shapes as s
from common import camera, mesh_object
from film import Roll

FORMAT = "portrait"


def needle_twigs(name, chance, long, material, wood):
    """A twig with its needles all around, along x."""
    count = int(long * 3000)
    t = chance.uniform(0.02, 1.0, count)
    turn, lean = chance.uniform(0, 2 * pi, count), chance.uniform(0.45, 1.25, count)
    size = chance.uniform(0.013, 0.022, count) * (1.0 - 0.30 * t)
    root = numpy.stack([t * long, numpy.zeros(count), -0.10 * long * t * t], axis=1)
    out = numpy.stack([lean * 0.62, numpy.cos(turn) * 0.8, numpy.sin(turn) * 0.8 + 0.18], axis=1)
    out /= numpy.linalg.norm(out, axis=1, keepdims=True)
    aside = numpy.cross(out, chance.normal(0, 1, (count, 3)))
    aside *= 0.00080 / numpy.linalg.norm(aside, axis=1, keepdims=True)
    tip, belly = root + out * size[:, None], root + out * (size * 0.55)[:, None]
    points = numpy.stack([root - aside * 0.6, root + aside * 0.6, belly + aside, tip, belly - aside], axis=1).reshape(-1, 3)
    faces = (numpy.arange(count)[:, None] * 5 + numpy.arange(5)[None, :])
    twig = mesh_object(name, points, faces, material)
    stem = s.tube("stem", [(long * i / 8, 0, -0.10 * long * (i / 8) ** 2) for i in range(9)], 0.0022, wood,
                  radii=[1 - 0.07 * i for i in range(9)])
    stem.parent = twig
    return twig


def bough(twigs, root, turn, droop, long, dice, scale=1.0):
    """A branch with twigs to both sides and upward."""
    def at(t):
        return Vector(root) + Vector((cos(turn), sin(turn), 0)) * long * t + Vector((0, 0, -droop * long * t * t))
    for i in range(19):
        t = 0.10 + 0.90 * i / 18 + dice.uniform(-0.02, 0.02)
        for side in (-1, 1, 0):
            if side == 0 and i % 3:
                continue
            size = scale * (1.2 - 0.75 * t) * dice.uniform(0.7, 1.15)
            lean = side * dice.uniform(0.6, 0.95) * (1 - 0.25 * t)
            place(twigs[dice.randrange(len(twigs))], at(t), (dice.uniform(-0.6, 0.6), droop * t - (0.5 if side == 0 else 0.1),
                                                             turn + lean), size)
    place(twigs[0], at(0.93), (0, droop * 1.6, turn), scale * 0.75)
    for i in range(6):
        place(twigs[0], at(i / 6.5), (dice.uniform(0, 6), droop * 1.2 * i / 6, turn), scale * 0.9)


def place(twig, at, turn, size):
    made = s.copy(twig, at, turn, size)
    for child in twig.children:
        stem = child.copy()
        made.users_collection[0].objects.link(stem)
        stem.parent = made


def foil(name, colour, rough):
    """Lacquered glass, handled: fine scratches and the haze of fingers."""
    made, nodes, shader = m.principled(name, colour, rough, Metallic=1.0, Clearcoat=1.0, Clearcoat_Roughness=0.02)
    where = nodes.place()
    touched = nodes.rise(nodes.noise(where, 38.0, detail=5.0, distortion=0.6), 0.48, 0.70)
    dust = nodes.rise(nodes.noise(where, 420.0, detail=2.0), 0.64, 0.72)
    m.feed(nodes, shader, Roughness=nodes.math("MULTIPLY_ADD", touched, 0.10, rough), Clearcoat_Roughness=nodes.math("MULTIPLY_ADD", touched, 0.12, 0.02),
           Base_Color=nodes.mix(nodes.math("MULTIPLY", dust, 0.25), m.rgb(colour), (0.5, 0.46, 0.42)), Normal=m.relief(nodes, nodes.noise(where, 9.0, detail=2.0), 0.0015, 0.5))
    return made


def painted(name, colour, line):
    """A frosted ball with a band of painted scrolls, the brush uneven."""
    made, nodes, shader = m.principled(name, colour, 0.42, Metallic=0.9)
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place())
    around = nodes.math("MULTIPLY", nodes.math("ARCTAN2", apart.outputs[1], apart.outputs[0]), 7.0)
    up = nodes.math("MULTIPLY", apart.outputs[2], 1 / 0.042)
    scroll = nodes.math("ABSOLUTE", nodes.math("SUBTRACT", up, nodes.math("MULTIPLY", nodes.math("SINE", around), 0.2)))
    brush = nodes.math("MULTIPLY_ADD", nodes.noise(nodes.place(), 160.0, detail=4.0), 0.05, -0.02)
    band = nodes.math("LESS_THAN", nodes.math("ADD", scroll, brush), 0.045)
    rims = nodes.math("LESS_THAN", nodes.math("ABSOLUTE", nodes.math("SUBTRACT", nodes.math("ABSOLUTE", nodes.math("ADD", up, brush)), 0.36)), 0.022)
    on = nodes.math("MAXIMUM", band, rims)
    sparkle = m.voronoi(nodes, nodes.place(), 900.0, output="Color")
    m.feed(nodes, shader, Base_Color=nodes.mix(on, m.rgb(colour), nodes.mix(0.4, m.rgb(line), sparkle)), Roughness=nodes.math("MULTIPLY_ADD", on, -0.2, 0.42))
    return made


def glitter(name, colour):
    """Glued-on glitter: each flake its own mirror."""
    made, nodes, shader = m.principled(name, colour, 0.22, Metallic=1.0)
    tilt = m.voronoi(nodes, nodes.place(), 520.0, output="Color")
    normal = nodes.vector("NORMALIZE", nodes.vector("ADD", nodes.add("ShaderNodeNewGeometry").outputs["Normal"],
                                                    nodes.vector("MULTIPLY", nodes.vector("SUBTRACT", tilt, (0.5, 0.5, 0.5)),
                                                                 (0.9, 0.9, 0.9))))
    m.feed(nodes, shader, Normal=normal)
    return made


def bauble(at, size, material, gold):
    """A glass ball with its cap and loop, hung from a thread."""
    s.ball("bauble", size, material, at, 5)
    cap = s.lathe("cap", [(0.24, 0.93), (0.25, 0.97), (0.24, 1.14), (0.20, 1.18), (0, 1.19)], gold, steps=32)
    cap.location, cap.scale = at, (size,) * 3
    loop = s.tube("loop",
                  [(at[0] + 0.1 * size * cos(a), at[1],
                    at[2] + size * (1.27 + 0.1 * sin(a))) for a in (2 * pi * i / 16 for i in range(16))], 0.02 * size, gold,
                  closed=True)
    s.tube("thread", [(at[0], at[1], at[2] + 1.35 * size), (at[0], at[1] + 0.01, at[2] + 2.6 * size)], 0.0006, gold)
    return loop


def candles_of_light(dice):
    """The chain of little lamps: some near and sharp, most far behind."""
    warm = m.glow("lamp", "ffb45c", 26)
    places = ((-0.17, 0.06, -0.05), (-0.13, 0.02, 0.10), (-0.02, 0.06, 0.27), (-0.08, 0.05, 0.36), (0.10, 0.07, 0.39), (0.12, 0.05, 0.19), (0.15, 0.02, -0.10), (0.03, 0.08, -0.20))
    wire = m.plain("wire", "12301a", 0.5)
    for one, other in zip(places, places[1:]):
        line = [tuple(a + (b - a) * k / 10 for a, b in zip(one, other)) for k in range(11)]
        s.tube("wire", [(x, y + 0.012, z - 0.010 - 0.030 * sin(pi * k / 10)) for k, (x, y, z) in enumerate(line)], 0.0012, wire)
    for x, y, z in places:
        s.lathe("socket", [(0, -0.014), (0.0032, -0.013), (0.0036, -0.004), (0, -0.003)], wire, steps=16).location = (x, y, z)
        bulb = s.ball("lamp", 0.0035, warm, (x, y, z), 2)
        bulb.scale.z = 2
        m.lamp("POINT", (x, y, z), (0, 0, 0), 0.10, (1.0, 0.72, 0.4), shadow_soft_size=0.004)
    tones = [m.glow("far lamp", tone, power) for tone, power in (("ffc064", 30), ("ffb04e", 26), ("ffd590", 30),
                                                                 ("ff6a4a", 18), ("ffe0b0", 26))]
    for _ in range(120):
        s.ball("far lamp", dice.uniform(0.004, 0.011), dice.choice(tones), (dice.uniform(-0.75, 0.75), dice.uniform(0.7, 1.7),
                                                                            dice.uniform(-0.9, 1.0)), 1)


def mirrored_room():
    """What the balls mirror: a window in its frame with the blue of the evening, a lamp, furniture, the floor."""
    panes = [m.glow("pane", tone, power) for tone, power in (("bcd0ee", 5.0), ("d8e2f2", 6.5))]
    for i in range(2):
        for k in range(3):
            s.box("pane", (0.42, 0.02, 0.5), panes[k == 2], 0, (-1.9 + 0.47 * i, -2.4, 0.1 + 0.55 * k))
    s.box("curtain", (0.35, 0.05, 2.2), m.plain("curtain", "8a5a44", 0.9), 0, (-2.4, -2.3, 0.6))
    s.lathe("shade", [(0.26, 0.0), (0.16, 0.34)], m.glow("shade", "ffb060", 7.0), steps=32).location = (1.5, -2.0, 0.35)
    s.box("floor", (7, 6, 0.1), m.wood("floor", "3a2416", "6b4628", "8f6a44", 0.4, 1.0), 0, (0, -1.5, -1.3))
    s.box("wall", (8, 0.1, 4), m.plain("wall", "9a7a5c", 0.9), 0, (0, -3.2, 0.6))
    s.box("sofa", (1.8, 0.8, 0.7), m.plain("sofa", "3a4a52", 0.9), 0.1, (0.5, -2.5, -0.9))
    s.box("ceiling", (8, 8, 0.1), m.plain("ceiling", "b8a890", 0.9), 0, (0, -1.0, 1.9))
    for k in range(14):
        s.ball("mirrored lamp", 0.014, m.glow("mirrored lamp", "ffb45c", 22), (-1.2 + 0.2 * k, -1.6, 1.0 - 0.12 * sin(k)), 1)


def build():
    dice, chance = s.dice(19), numpy.random.default_rng(19)
    needles, nodes, shader = m.principled("needles", "1f4a22", 0.45, Specular=0.4)
    m.feed(nodes, shader, Base_Color=m.ramp(nodes, nodes.chance(), (0.0, "2a4630"), (0.6, "446644"), (1.0, "768f5a")))
    wood = m.plain("twig", "5a3f28", 0.8)
    twigs = [needle_twigs("twig", chance, long, needles, wood) for long in (0.11, 0.13, 0.095)]
    for root, turn, droop, long in (((-0.34, 0.10, 0.25), -0.25, 0.30, 0.42), ((0.36, 0.12, 0.34), pi + 0.25, 0.32, 0.40),
                                    ((0.02, 0.30, 0.50), -pi / 2, 0.45, 0.36),
                                    ((-0.38, 0.12, 0.02), -0.12, 0.28, 0.36), ((0.40, 0.14, 0.06), pi + 0.1, 0.30, 0.38),
                                    ((0.0, 0.34, 0.18), -pi / 2 + 0.3, 0.5, 0.34),
                                    ((-0.30, 0.16, -0.20), 0.05, 0.25, 0.40), ((0.34, 0.18, -0.16), pi - 0.1, 0.25, 0.36),
                                    ((-0.22, 0.25, 0.44), -0.6, 0.35, 0.34),
                                    ((0.24, 0.3, -0.34), pi + 0.4, 0.2, 0.4), ((-0.2, 0.3, -0.42), 0.1, 0.2, 0.45)):
        bough(twigs, root, turn, droop, long, dice, 1.15)
    for twig in twigs:
        s.gone(twig)
        for child in twig.children:
            s.gone(child)
    gold = foil("gold", "e0b04a", 0.18)
    bauble((-0.055, -0.035, 0.045), 0.056, foil("red", "b80f18", 0.05), gold)
    bauble((0.105, 0.0, -0.055), 0.046, glitter("gold glitter", "e8b850"), gold)
    bauble((0.070, 0.02, 0.235), 0.040, foil("matt red", "a8141c", 0.35), gold)
    bauble((-0.135, 0.03, -0.150), 0.042, painted("champagne", "c9ae84", "f4ead6"), gold)
    bauble((-0.140, 0.05, 0.285), 0.036, glitter("silver glitter", "d8dce2"), gold)
    bauble((0.17, 0.08, 0.10), 0.036, foil("deep", "7a0c22", 0.06), gold)
    candles_of_light(dice)
    mirrored_room()
    s.box("room", (6, 0.1, 5), m.plain("room", "2c1d16", 0.9), 0, (0, 2.9, 0))
    m.lamp("POINT", (0.75, 2.35, -0.35), (0, 0, 0), 4.5, (1.0, 0.62, 0.32), shadow_soft_size=0.1)
    m.lamp("POINT", (-1.0, 2.5, 0.9), (0, 0, 0), 1.2, (1.0, 0.7, 0.45), shadow_soft_size=0.1)
    m.ambient((0.5, 0.36, 0.26), 0.14)
    for place_, power, size, tone in (((-0.9, -0.9, 0.9), 22, 0.7, (1.0, 0.9, 0.78)), ((1.0, -0.4, 0.3), 6, 0.4, (1.0, 0.75, 0.5))):
        m.window_light(place_, (0, 0, 0), size, 1.4 * power, tone).visible_glossy = False
    camera((0.0, -0.78, 0.09), (0.0, 0, 0.055), 56, (-0.04, -0.07, 0.03), 2.8)
    return Roll(samples=24, exposure=0.7, clean=0.75, saturation=1.0, glow=0.06, grain=0.012)
