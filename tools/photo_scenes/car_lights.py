"""A motorway at dusk from a bridge, open long enough for the cars to become lines of light."""
from math import sin

import numpy

import materials as m
import shapes as s
from common import camera, daylight, random_turns, scatter
from film import Roll
from nodes import leafy
from town import facade
from trees import far_tree

FORMAT = "landscape"


def bend(y):
    """How far the road has swung to the right at a distance."""
    return 0.00042 * y * y if y < 260 else 28.4 + 0.2184 * (y - 260)


def asphalt():
    made, nodes, shader = m.principled("asphalt", "2a2b2e", 0.38)
    where = nodes.place()
    wet = nodes.noise(m.stretched(nodes, (1, 0.08, 1)), 0.9, detail=5.0)
    m.feed(nodes, shader, Roughness=m.ramp(nodes, wet, (0.3, 0.22), (0.7, 0.5)),
           Base_Color=m.ramp(nodes, nodes.noise(where, 3.0), (0.3, "1d1e21"), (0.7, "303236")),
           Normal=m.relief(nodes, nodes.noise(where, 40.0, detail=3.0), 0.01, 0.5))
    return made


def strip(name, left, right, material, height=0.0, step=4, far=900, dashes=None):
    """A band of the road between two distances from its middle; dashes: (length, gap)."""
    points, faces, y = [], [], -12.0
    while y < far:
        reach = dashes[0] if dashes else step
        for at in (y, y + reach):
            points += [(left + bend(at), at, height), (right + bend(at), at, height)]
        n = len(points)
        faces.append((n - 4, n - 3, n - 1, n - 2))
        y += reach + (dashes[1] if dashes else 0)
    return s.mesh(name, points, faces, material)


def trails(dice):
    """Lamps of cars that passed: white and yellow towards us at the left, red away from us at the right."""
    white = [m.glow("white", tone, power) for tone, power in (("fff1d6", 7), ("ffe2b0", 5), ("ffd694", 3.2), ("eef2ff", 6))]
    red = [m.glow("red", tone, power) for tone, power in (("ff2a12", 5), ("ff3c1a", 3.2), ("d8180c", 2.4), ("ff7a26", 2.2))]
    for side, kinds in ((-1, white), (1, red)):
        for lane in range(3):
            for _ in range(5):
                drive(dice, side * (3.6 + 3.7 * lane) + dice.gauss(0, 0.25), dice.choice(kinds))


def drive(dice, middle, material):
    """The two lines of one car; some change the lane, all rock a little."""
    height, start, end = dice.uniform(0.55, 0.85), -15, dice.uniform(500, 900)
    swing, phase, change = dice.uniform(0.03, 0.12), dice.uniform(0, 6), dice.choice((0, 0, 0, 0, 3.7, -3.7))
    at, when = dice.uniform(80, 320), dice.uniform(40, 90)
    for side in (-0.68, 0.68):
        line = []
        for y in numpy.linspace(start, end, 130):
            moved = change / (1 + numpy.exp(-(y - at) / when * 4)) if 3 < abs(middle + change) < 12 else 0
            line.append((middle + side + moved + bend(y) + swing * sin(y / 17 + phase), y,
                         height + 0.02 * sin(y / 6 + phase)))
        s.tube("trail", line, 0.035 + dice.uniform(-0.012, 0.02), material)


def barrier(x):
    """A guard rail."""
    steel = m.plain("rail", "8d9196", 0.4, Metallic=0.8)
    s.tube("rail", [(x + bend(y), y, 0.65) for y in range(-12, 700, 6)], 0.11, steel)
    for y in range(-10, 400, 4):
        s.box("post", (0.08, 0.08, 0.65), steel, at=(x + bend(y), y, 0.32))


def lanterns():
    pole, light = m.plain("pole", "3a3d42", 0.5), m.glow("lantern", "ffb55a", 60)
    for i in range(26):
        y = 14 + 30 * i
        s.tube("pole", [(bend(y), y, 0), (bend(y), y, 10.5)], 0.09, pole)
        for side in (-1, 1):
            s.tube("arm", [(bend(y), y, 10.4), (bend(y) + side * 2.4, y, 10.9)], 0.05, pole)
            s.box("head", (0.75, 0.3, 0.08), light, at=(bend(y) + side * 2.6, y, 10.86))
            if i < 7:
                m.lamp("SPOT", (bend(y) + side * 2.6, y, 10.7), (bend(y) + side * 4.0, y, 0), 2200, (1.0, 0.62, 0.28),
                       spot_size=2.3, shadow_soft_size=0.3)


def town(dice):
    """Houses and towers along the road, thinning out of sight."""
    walls = [facade("wall", tone, i) for i, tone in enumerate(("6a6e78", "8a7a6c", "5d6470"))]
    for _ in range(190):
        y = dice.uniform(240, 1000)
        x = bend(y) + dice.choice((-1, 1)) * (34 + dice.random() ** 1.5 * 330)
        tall = dice.uniform(10, 24) if dice.random() < 0.7 else dice.uniform(26, 78) * min(1, y / 500)
        wide = dice.uniform(12, 24)
        made = s.box("house", (wide, dice.uniform(12, 26), tall), dice.choice(walls), at=(x, y, tall / 2 - 1))
        made.rotation_euler.z = dice.choice((0, 0, -0.2))


def verge(chance):
    """Trees and bushes along the road, nearly black."""
    leaves = leafy("leaves", (0.006, 0.009, 0.004), (0.014, 0.018, 0.008), 0.3)
    y = 30 + 620 * chance.random(520) ** 1.3
    off = 19 + 70 * chance.random(520) ** 1.5
    x = numpy.array([bend(at) for at in y]) + off * chance.choice([-1, 1], 520)
    trees = [far_tree(chance, leaves) for _ in range(4)]
    scatter(trees, numpy.column_stack([x, y, 0 * x - 1.2]), random_turns(chance, 520, 0.06), chance.uniform(0.35, 1.15, 520))


def build():
    dice = s.dice(17)
    s.sheet("land", (3000, 2600), (2, 2), lambda x, y: -0.4, m.plain("land", "10130f", 0.9)).location.y = 1000
    strip("road", -14.6, 14.6, asphalt())
    white = m.plain("paint", "c9c9c4", 0.6)
    for x in (-14.0, -2.0, 2.0, 14.0):
        strip("line", x - 0.1, x + 0.1, white, 0.012)
    for x in (-9.3, -5.6, 5.6, 9.3):
        strip("dashes", x - 0.08, x + 0.08, white, 0.012, far=500, dashes=(6, 12))
    strip("middle", -1.3, 1.3, m.plain("middle", "23281c", 0.95), 0.02)
    for x in (-15, -1.5, 1.5, 15):
        barrier(x)
    trails(dice)
    lanterns()
    town(dice)
    verge(numpy.random.default_rng(19))
    daylight(-2.4, 8, strength=1.2, dust=2.5, ozone=5.0,
             clouds=dict(low=0.48, high=0.75, scale=0.7, light=(0.075, 0.045, 0.055), shade=(0.022, 0.024, 0.045),
                         stretch=(0.35, 1.0)))
    camera((-0.4, -14, 7.6), (4.0, 60, 4.4), 38)
    return Roll(samples=12, exposure=0.9, glow=0.10)
