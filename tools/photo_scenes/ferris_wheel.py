"""A ferris wheel lit for the evening, in front of the last light of the sky."""
from math import cos, pi, sin

import materials as m
import shapes as s
from common import camera, daylight
from figures import person
from film import Roll

FORMAT = "portrait"
HUB, RADIUS = 31.0, 26.0


def ring(name, radius, y, thick, material):
    return s.tube(name, [(radius * cos(a), y, HUB + radius * sin(a)) for a in (2 * pi * i / 120 for i in range(120))], thick,
                  material, closed=True)


def wheel(steel):
    """Two rims with lattice between them, spokes of wire."""
    for y in (-1.1, 1.1):
        ring("rim", RADIUS, y, 0.16, steel)
        ring("rim", RADIUS - 1.7, y, 0.11, steel)
        ring("rim", RADIUS * 0.45, y, 0.07, steel)
    count = 48
    for i in range(count):
        a, b = 2 * pi * i / count, 2 * pi * (i + 1) / count
        outer, inner = RADIUS, RADIUS - 1.7
        for y in (-1.1, 1.1):
            s.tube("brace", [(outer * cos(a), y, HUB + outer * sin(a)), (inner * cos(b), y, HUB + inner * sin(b))], 0.05,
                   steel)
            s.tube("brace", [(inner * cos(a), y, HUB + inner * sin(a)), (outer * cos(a), y, HUB + outer * sin(a))], 0.05,
                   steel)
        if i % 2 == 0:
            for y in (-1.1, 1.1):
                s.tube("spoke", [(0.8 * cos(a), y * 1.6, HUB + 0.8 * sin(a)), (inner * cos(a), y, HUB + inner * sin(a))],
                       0.045, steel)
    s.tube("axle", [(0, -2.6, HUB), (0, 2.6, HUB)], 0.75, steel)


def feet(steel):
    for y in (-2.6, 2.6):
        for x in (-11, 11):
            s.tube("leg", [(0, y, HUB), (x, y * 1.9, 0)], 0.42, steel)
        s.tube("tie", [(-6.2, y * 1.5, HUB * 0.44), (6.2, y * 1.5, HUB * 0.44)], 0.2, steel)


def cabins(steel):
    """Cabins that hang from the rim, lit inside."""
    paints = [m.plain("paint", tone, 0.35) for tone in ("b3282d", "d9a02c", "2a5f9e", "e4dfd2", "2f7d5b")]
    inside = m.glow("inside", "ffdfae", 2.2)
    for i in range(24):
        a = 2 * pi * (i + 0.5) / 24
        x, z = (RADIUS + 0.2) * cos(a), HUB + (RADIUS + 0.2) * sin(a)
        s.tube("hanger", [(x, -1.2, z), (x, 1.2, z)], 0.07, steel)
        paint = paints[i % 5]
        s.box("floor", (1.9, 2.0, 0.85), paint, 0.12, (x, 0, z - 2.05))
        s.box("roof", (2.0, 2.1, 0.3), paint, 0.12, (x, 0, z - 0.55))
        s.box("inside", (1.5, 1.6, 0.10), inside, 0, (x, 0, z - 0.78))
        for u in (-0.88, 0.88):
            for v in (-0.92, 0.92):
                s.tube("post", [(x + u, v, z - 1.7), (x + u, v, z - 0.6)], 0.05, paint)
        s.tube("arm", [(x, 0, z - 0.5), (x, 0, z)], 0.06, steel)


def bulbs():
    """Strings of lamps on rims and spokes."""
    kinds = [s.ball("bulb", 0.15, m.glow("bulb", tone, power), detail=1) for tone, power in
             (("ffcf8a", 22), ("ff6a4a", 15), ("7ab0ff", 17), ("ffe6c0", 20))]
    for i in range(144):
        a = 2 * pi * i / 144
        s.copy(kinds[0 if i % 6 else 3], (RADIUS * cos(a), -1.35, HUB + RADIUS * sin(a)))
    for i in range(72):
        a = 2 * pi * i / 72
        s.copy(kinds[1], (RADIUS * 0.45 * cos(a), -1.3, HUB + RADIUS * 0.45 * sin(a)))
    for i in range(24):
        a = 2 * pi * i / 24
        for k in range(2, 17):
            r = (RADIUS - 1.8) * k / 17
            s.copy(kinds[2 if (i % 2) else 0], (r * cos(a), -1.5, HUB + r * sin(a)), scale=0.8)
    for kind in kinds:
        s.gone(kind)


def fair(dice):
    """Booths with striped awnings and lamps at the foot, and those who stroll there."""
    warm = m.glow("warm", "ffc27a", 7)
    front = m.plain("front", "6b4630", 0.7)
    for i in range(9):
        x = -21 + 5.3 * i
        tone = ("b3302f", "2f6a8f", "c99a3a", "3f7d4a")[i % 4]
        s.box("booth", (4.4, 3, 2.9), front, at=(x, -9, 1.45))
        s.box("opening", (3.6, 0.05, 1.2), warm, at=(x, -10.53, 1.75))
        for k in range(8):
            made = s.box("awning", (0.56, 1.7, 0.06), m.plain("cloth", tone if k % 2 else "ece6da", 0.8),
                         at=(x - 1.95 + 0.557 * k, -11.0, 2.95))
            made.rotation_euler.x = 0.42
        for k in range(9):
            s.ball("lamp", 0.07, m.glow("lamp", "ffdca0", 60), (x - 2.1 + 0.52 * k, -11.8, 2.62), 1)
    coats = [m.plain("coat", tone, 0.9) for tone in ("14151a", "201a1c", "1a2028", "2a2320")]
    for i in range(46):
        slow = dice.uniform(-0.14, 0.14)
        made = person("guest", dice.choice(coats), {"knee_l": (-0.10, -0.10 - slow, 0.48),
                                                    "ankle_l": (-0.10, -0.16 - slow, 0.10),
                                                    "toe_l": (-0.11, -0.33 - slow, 0.05),
                                                    "ankle_r": (0.10, 0.20 + slow, 0.12), "toe_r": (0.11, 0.05 + slow, 0.04)},
                      1.12)
        made.location = (dice.uniform(-15, 15), dice.uniform(-26, -13), 0)
        made.rotation_euler.z, made.scale = dice.choice((1.3, -1.4, 3.1, 3.3, 2.6, 0.2)), (dice.uniform(0.9, 1.04),) * 3


def build():
    dice = s.dice(8)
    steel = m.plain("steel", "c9ccd2", 0.4, Metallic=0.3)
    wheel(steel)
    feet(steel)
    cabins(steel)
    bulbs()
    fair(dice)
    made, nodes, shader = m.principled("square", "3a3634", 0.3)
    wet = nodes.noise(nodes.place(), 0.25, detail=5.0)
    m.feed(nodes, shader, Roughness=m.ramp(nodes, wet, (0.4, 0.08), (0.62, 0.5)),
           Normal=m.relief(nodes, nodes.noise(nodes.place(), 5.0), 0.02, 0.3))
    s.sheet("square", (400, 300), (2, 2), lambda x, y: 0.0, made)
    for x, r in ((-34, 5), (-27, 4), (29, 5), (36, 6), (-42, 6), (43, 5)):
        tree = s.ball("tree", r, m.plain("tree", "0b100b", 0.95), (x, 22, r * 1.1), 5)
        s.wrinkled(tree, r * 0.7, r * 0.35)
    daylight(-1.6, 14, strength=1.0, dust=2.5, ozone=4.0,
             clouds=dict(low=0.50, high=0.80, scale=0.8, light=(0.34, 0.13, 0.10), shade=(0.055, 0.05, 0.085),
                         stretch=(0.4, 1.0)))
    camera((-7, -62, 2.0), (-1.0, 0, 26.5), 27)
    return Roll(samples=12, exposure=0.6, glow=0.10)
