"""Rows of tulips that run to a windmill."""
import math

import numpy

from common import camera, daylight, joined, mesh_object, random_turns, scatter, tube, turned
from film import Roll
from flowers import tulip
from land import ground, noise
from nodes import leafy, plain
from surfaces import soil
from trees import far_tree

FORMAT = "landscape"
AIR = ((0.66, 0.70, 0.76), 2600.0)
COLOURS = [((0.62, 0.02, 0.02), (0.5, 0.012, 0.03)), ((0.85, 0.48, 0.02), (0.9, 0.6, 0.05)), ((0.78, 0.16, 0.26), (0.85, 0.32, 0.4)),
           ((0.30, 0.035, 0.24), (0.22, 0.02, 0.2)), ((0.85, 0.82, 0.74), (0.86, 0.8, 0.66)), ((0.82, 0.17, 0.015), (0.8, 0.26, 0.03))]


def rows(chance, plants, near, far, step, size=1.0):
    """Beds along y, 1.2 m wide, three of each colour side by side."""
    places, kinds = [], []
    for bed in range(-60, 61):
        reach = abs(bed) * 1.2 / math.tan(math.radians(31))
        first = max(near, reach - 3)
        if first >= far:
            continue
        for line in range(5):
            y = numpy.arange(first, far, step)
            x = bed * 1.2 + (line - 2) * 0.16 + chance.normal(0, 0.03, len(y))
            places.append(numpy.column_stack([x, y + chance.normal(0, 0.05, len(y)), 0 * y]))
            kinds.append((bed // 2 % len(COLOURS)) * 3 + chance.integers(0, 3, len(y)))
    places = numpy.concatenate(places)
    scatter(plants, places, random_turns(chance, len(places), 0.1), size * chance.uniform(0.88, 1.12, len(places)), numpy.concatenate(kinds))


def windmill(place):
    """Brick below, thatch above, a gallery, a cap, four sails."""
    thatch, brick = soil((0.045, 0.035, 0.028), (0.12, 0.095, 0.07), 3.0, haze=AIR), soil((0.16, 0.06, 0.04), (0.28, 0.12, 0.08), 5.0, haze=AIR)
    white, wood = plain("white", (0.75, 0.74, 0.7), haze=AIR), plain("wood", (0.10, 0.05, 0.03), haze=AIR)
    parts = [turned("base", [(4.6, 0), (4.3, 6)], brick, 8), turned("tower", [(4.4, 6), (3.6, 10), (2.7, 16.5), (2.6, 17)], thatch, 8),
             turned("gallery", [(4.2, 5.8), (6.4, 5.9), (6.4, 6.1), (4.2, 6.1)], wood, 16), turned("rail", [(6.35, 6.95), (6.4, 6.95), (6.4, 7.05), (6.35, 7.05)], white, 16),
             turned("collar", [(2.9, 16.8), (2.95, 17.3), (2.7, 17.5)], white, 8), turned("cap", [(2.75, 17.3), (2.6, 18.6), (1.7, 20), (0.3, 20.8), (0, 20.8)], thatch, 16),
             mesh_object("door", [(-0.7, -4.5, 0), (0.7, -4.5, 0), (0.7, -4.35, 2.4), (-0.7, -4.35, 2.4)], [(0, 1, 2, 3)], wood)]
    for n in range(16):
        angle = n * math.pi / 8
        parts.append(tube("post", [(6.35 * math.cos(angle), 6.35 * math.sin(angle), 6), (6.35 * math.cos(angle), 6.35 * math.sin(angle), 7)], 0.06, white, 4))
    for height in (8.5, 12.0):
        parts.append(mesh_object("window", [(-0.45, -3.99 + 0.24 * (height - 8.5), height), (0.45, -3.99 + 0.24 * (height - 8.5), height),
                                            (0.45, -3.72 + 0.24 * (height - 8.5), height + 1.3), (-0.45, -3.72 + 0.24 * (height - 8.5), height + 1.3)], [(0, 1, 2, 3)], white))
    for n in range(4):
        parts += sail(math.radians(28 + 90 * n), wood, white)
    made = joined("mill", parts)
    made.location, made.rotation_euler = place, (0, 0, 0.45)


def sail(angle, wood, white):
    """One arm: a beam, a lattice on its lee side."""
    along, aside = numpy.array([math.cos(angle), 0, math.sin(angle)]), numpy.array([-math.sin(angle), 0, math.cos(angle)])
    hub = numpy.array([0, -4.4, 18.6])
    parts = [tube("arm", [hub, hub + along * 12.2], [0.24, 0.13], wood, 4)]
    for edge in (0.9, 1.9):
        parts.append(tube("edge", [hub + along * 2.2 + aside * edge, hub + along * 12 + aside * edge], 0.05, wood, 4))
    for step in numpy.linspace(2.2, 12, 22):
        parts.append(tube("bar", [hub + along * step - aside * 0.45, hub + along * step + aside * 1.9], 0.04, wood, 4))
    face = [hub + along * 2.4 + aside * 0.1, hub + along * 12 + aside * 0.1, hub + along * 12 + aside * 1.85, hub + along * 2.4 + aside * 1.85]
    parts.append(mesh_object("cloth", numpy.array(face) + [0, 0.08, 0], [(0, 1, 2, 3)], white))
    return parts


def build():
    chance = numpy.random.default_rng(33)
    green = leafy("green", (0.06, 0.13, 0.035), (0.11, 0.18, 0.06), 0.35)
    plants = [tulip(chance, [leafy("petals", *pair, 0.45, 0.45), green], chance.uniform(0.38, 0.46)) for pair in COLOURS for _ in range(3)]
    rows(chance, plants, 1.0, 26, 0.13)
    rows(chance, plants, 26, 70, 0.22, 1.25)
    rows(chance, plants, 70, 210, 0.5, 1.7)
    ground("earth", lambda x, y: 0 * x, soil((0.035, 0.028, 0.015), (0.06, 0.075, 0.03), 3.0), near=0.5, far=4000, spread=42, rows=120, columns=60)
    trees = leafy("trees", (0.025, 0.05, 0.02), (0.055, 0.08, 0.03), 0.2, haze=AIR)
    x, y = chance.uniform(-270, 270, 900), chance.uniform(332, 375, 900)
    stands = noise(x / 60, y / 200, 5) > -0.12
    x, y = x[stands], y[stands]
    scatter([far_tree(chance, trees) for _ in range(4)], numpy.column_stack([x, y, 0 * x - 1]), random_turns(chance, len(x), 0.05), chance.uniform(0.9, 1.9, len(x)))
    windmill((-31, 225, 0))
    camera((0.6, 0, 1.55), (0, 60, 2.6), lens=35, focus=7, f_stop=8)
    daylight(24, -128, strength=0.15, dust=0.5, ozone=1.5, low=((5.0, 5.6, 6.2), 0.13),
             clouds=dict(low=0.48, high=0.66, scale=0.6, light=(10.5, 10.3, 10), shade=(6, 6.4, 7), thick=0.95, seed=23.0))
    return Roll(samples=24, exposure=-0.1, saturation=1.15)
