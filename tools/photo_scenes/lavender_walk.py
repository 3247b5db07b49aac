"""Rows of lavender towards the setting sun."""
import numpy

from common import camera, daylight, random_turns, scatter
from film import Roll
from flowers import lavender
from growth import branches, Soup
from land import ground, layered
from nodes import leafy, plain
from surfaces import soil

FORMAT = "portrait"
AIR = ((0.85, 0.55, 0.38), 1500.0)


def height(x, y):
    return 0.05 * numpy.cos(x * 2 * numpy.pi / 1.7) + 0.00022 * y * y * (y > 0) * (y < 220) + numpy.clip((y - 300) / 1200, 0, 1) * (90 + 90 * layered(x / 900, y / 900, 5, 5))


def rows(chance, plants, near, far, step, size):
    places = []
    for row in range(-40, 41):
        x = row * 1.7 + 0.85
        y = numpy.arange(max(near, abs(x) / 0.5 - 4), far, step)
        places.append(numpy.column_stack([x + chance.normal(0, 0.07, len(y)), y + chance.normal(0, step / 4, len(y)), 0 * y]))
    places = numpy.concatenate(places)
    places[:, 2] = height(places[:, 0], places[:, 1])
    scatter(plants, places, random_turns(chance, len(places), 0.08), size * chance.uniform(0.8, 1.15, len(places)))


def tree(chance):
    """A lone round tree."""
    soup, twigs = Soup(), []
    branches(soup, chance, (0, 0, 0), (0, 0, 1), 3.4, 0.28, 4, twigs, 0.7)
    for place, _, _ in twigs:
        for _ in range(9):
            at, out, aside = place + chance.normal(0, 0.35, 3), 0.13 * chance.standard_normal(3), 0.13 * chance.standard_normal(3)
            soup.raster(numpy.array([[at - out - aside, at + out - aside], [at - out + aside, at + out + aside]]), 1)
    return soup.made("tree", [plain("bark", (0.05, 0.035, 0.03)), leafy("leaves", (0.04, 0.07, 0.02), (0.08, 0.09, 0.025), 0.4)])


def build():
    chance = numpy.random.default_rng(46)
    violet, green = leafy("violet", (0.27, 0.14, 0.55), (0.40, 0.22, 0.62), 0.5), leafy("green", (0.12, 0.16, 0.07), (0.16, 0.18, 0.10), 0.35)
    bushes = [lavender(chance, [violet, green], 42) for _ in range(5)]
    rows(chance, bushes, 0.9, 30, 0.22, 1.4)
    rows(chance, bushes, 30, 110, 0.36, 1.5)
    rows(chance, bushes, 110, 300, 0.9, 1.7)
    ground("earth", height, soil((0.14, 0.09, 0.06), (0.32, 0.23, 0.16), 5.0, haze=AIR), near=0.5, far=6000, spread=36, rows=500, columns=500)
    lone = tree(chance)
    lone.location, lone.scale = (14, 128, float(height(numpy.array([14.0]), numpy.array([128.0]))[0])), (1.1,) * 3
    camera((0, 0, 1.5), (0, 12, 0.75), lens=30, focus=4.5, f_stop=4)
    daylight(8, 42, strength=0.16, dust=1.2, ozone=2.0, low=((4.2, 2.7, 1.9), 0.25),
             clouds=dict(low=0.5, high=0.8, scale=0.9, stretch=(0.4, 1.2), light=(6.5, 3.8, 2.9), shade=(3.0, 2.2, 2.5), thick=0.8, seed=2.0))
    return Roll(samples=12, bounces=4, exposure=0.75, saturation=1.15, glow=0.09)
