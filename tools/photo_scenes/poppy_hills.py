"""A meadow full of poppies: some sharp before the lens, the others a red veil up to the hills."""
import numpy

from common import camera, daylight, random_turns, scatter
from film import Roll
from flowers import poppy
from growth import tuft
from land import ground, layered, noise, seeded_places
from nodes import leafy, plain
from surfaces import soil

FORMAT = "landscape"
AIR = ((0.62, 0.68, 0.74), 1800.0)


def height(x, y):
    return 0.25 * noise(x / 9, y / 9, 3) * numpy.clip(y / 8, 0, 1) + numpy.clip((y - 40) / 300, 0, 1) * (16 + 14 * noise(x / 160, y / 160, 6)) + \
        numpy.clip((y - 500) / 1500, 0, 1) * (70 + 90 * layered(x / 700, y / 700, 9, 4))


def sown(chance, plants, count, near, far, bare=-9.0, size=(0.8, 1.2)):
    x, y = seeded_places(chance, count, near, far, 33)
    stands = layered(x / 5, y / 5, 17, 3) > bare
    x, y = x[stands], y[stands]
    scatter(plants, numpy.column_stack([x, y, height(x, y)]), random_turns(chance, len(x), 0.15), chance.uniform(*size, len(x)))


def build():
    chance = numpy.random.default_rng(21)
    petals = leafy("petals", (0.72, 0.025, 0.008), (0.62, 0.06, 0.015), 0.5, 0.6)
    heart, green = plain("heart", (0.01, 0.008, 0.01), 0.8), leafy("green", (0.06, 0.12, 0.03), (0.11, 0.15, 0.05), 0.3)
    poppies = [poppy(chance, [petals, heart, green], chance.uniform(0.42, 0.62)) for _ in range(7)]
    blades = leafy("grass", (0.07, 0.13, 0.022), (0.19, 0.20, 0.06), 0.4)
    straw = leafy("straw", (0.33, 0.28, 0.12), (0.2, 0.22, 0.07), 0.4)
    tufts = [tuft(chance, [blades, blades, straw], 18, 0.34, 0.0022, 0.16) for _ in range(4)]
    ground("meadow", height, soil((0.05, 0.09, 0.02), (0.13, 0.16, 0.045), 0.2, haze=AIR), near=0.6, far=3500, spread=40, rows=300, columns=200)
    sown(chance, tufts, 9000, 0.8, 14)
    sown(chance, tufts, 26000, 14, 70, size=(1.2, 1.9))
    sown(chance, poppies, 3600, 1.1, 10, -0.45)
    sown(chance, poppies, 24000, 10, 60, -0.3, (1.0, 1.3))
    sown(chance, poppies, 26000, 60, 220, -0.1, (1.3, 2.0))
    trees = leafy("trees", (0.02, 0.045, 0.015), (0.05, 0.075, 0.025), 0.2, haze=AIR)
    ground("wood", lambda x, y: height(x, y) + numpy.clip(30 * noise(x / 120, y / 90, 5) - 3, -6, 6) + 5 * layered(x / 9, y / 9, 4, 6, 0.65), trees,
           near=300, far=620, spread=34, rows=120, columns=1000)
    camera((0, 0, 0.74), (0, 10, 0.75), lens=40, focus=1.75, f_stop=3.2)
    daylight(26, -118, strength=0.14, dust=0.6, ozone=1.5, low=((5.0, 5.6, 6.2), 0.15),
             clouds=dict(low=0.49, high=0.68, scale=0.75, light=(10, 10, 10), shade=(6.2, 6.6, 7.3), thick=0.95, seed=11.0))
    return Roll(samples=10, bounces=4, exposure=-0.1, saturation=1.15)
