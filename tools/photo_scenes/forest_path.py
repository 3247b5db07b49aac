"""A path through beeches in spring, mist between the trunks, the sun behind them."""
import numpy

from common import camera, daylight, random_turns, scatter
from film import Roll
from growth import tuft
from land import ground, layered, noise, seeded_places
from nodes import leafy
from surfaces import bark, soil
from trees import crown, leaf, litter, trunk_and_twigs, wood_edge

FORMAT = "portrait"
AIR = ((0.56, 0.62, 0.36), 190.0)


def path(y):
    return 1.1 * numpy.sin(y / 9.0) - 0.35


def height(x, y):
    off = numpy.abs(x - path(y))
    return 0.35 * numpy.clip((off - 0.8) / 3, 0, 1) + 0.10 * layered(x / 2, y / 2, 3, 4) * numpy.clip(off / 1.5, 0.2, 1) + 0.7 * noise(x / 18, y / 18, 6) * numpy.clip(off / 6, 0, 1) + 0.015 * y


def level(x, y):
    return float(height(numpy.array([x * 1.0]), numpy.array([y * 1.0]))[0])


def build():
    chance = numpy.random.default_rng(5)
    wood = bark((0.055, 0.05, 0.042), (0.17, 0.16, 0.13), 3.0, AIR)
    greens = [leaf([leafy("leaf", (0.10, 0.24, 0.015), (0.22, 0.36, 0.03), 0.6, haze=AIR)], 0.13, 0.085), leaf([leafy("dark", (0.05, 0.15, 0.012), (0.12, 0.24, 0.02), 0.55, haze=AIR)], 0.12, 0.08)]
    count = 0
    while count < 58:
        y = 4 + 62 * chance.random() ** 0.8
        x = chance.uniform(-0.55, 0.55) * (y + 7)
        if abs(x - path(y)) < 1.7:
            continue
        count += 1
        twigs = trunk_and_twigs(chance, wood, (x, y, level(x, y)), chance.uniform(15, 19), chance.uniform(0.17, 0.34), 4, 0.8, chance.uniform(0.24, 0.4), (4, 6), 0.2, 0.22)
        low = sorted(twigs, key=lambda one: one[0][2])[:900]
        crown(chance, greens, low, 14 if y < 25 else 9, 0.9, (1.0, 1.7) if y < 25 else (1.8, 2.8))
    ground("earth", height, soil((0.05, 0.036, 0.02), (0.15, 0.11, 0.06), 4.0, haze=AIR), near=1.0, far=200, spread=42, rows=300, columns=220)
    brown = leaf([leafy("brown", (0.20, 0.095, 0.035), (0.36, 0.20, 0.08), 0.15, haze=AIR)], 0.09, 0.06)
    x, y = seeded_places(chance, 30000, 1.3, 24, 38)
    litter(chance, [brown], x, y, height(x, y), (0.5, 1.1))
    ferns = [tuft(chance, [leafy("fern", (0.07, 0.17, 0.02), (0.15, 0.26, 0.04), 0.5, haze=AIR)], 22, 0.42, 0.012, 0.14, 1.1) for _ in range(3)]
    x, y = seeded_places(chance, 16000, 1.6, 45, 38)
    off = numpy.abs(x - path(y))
    kept = (off > 1.0) & (layered(x / 3, y / 3, 12, 3) > -0.25)
    x, y = x[kept], y[kept]
    scatter(ferns, numpy.column_stack([x, y, height(x, y)]), random_turns(chance, len(x), 0.1), chance.uniform(0.4, 1.0, len(x)))
    wood_edge(chance, leafy("far", (0.05, 0.11, 0.015), (0.13, 0.20, 0.03), 0.5, haze=AIR), 110, 72, 130, 75)
    camera((path(0) + 0.2, 0, 1.6), (0.4, 16, 3.6), lens=30, focus=9, f_stop=4)
    daylight(24, 14, strength=0.22, dust=1.0, low=((4.6, 4.8, 3.6), 0.6), sun_size=1.5)
    return Roll(samples=10, bounces=4, exposure=0.3, look="High Contrast", glow=0.12, saturation=1.05)
