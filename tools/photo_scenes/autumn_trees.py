"""An avenue of maples in autumn, leaves on the path, the sun through the mist at its end."""
import numpy

from common import camera, daylight
from film import Roll
from land import ground, layered, noise, seeded_places
from nodes import leafy
from surfaces import bark, soil
from trees import crown, leaf, litter, trunk_and_twigs, wood_edge

FORMAT = "portrait"
AIR = ((0.80, 0.60, 0.38), 190.0)


def height(x, y):
    return 0.25 * numpy.clip((numpy.abs(x) - 2.2) / 3, 0, 1) + 0.05 * layered(x / 1.3, y / 1.3, 3, 4) + 0.25 * noise(x / 14, y / 14, 6)


def build():
    chance = numpy.random.default_rng(23)
    wood = bark((0.035, 0.026, 0.02), (0.10, 0.08, 0.062), 5.0, AIR)
    reds = [leafy("red", (0.55, 0.06, 0.012), (0.68, 0.16, 0.015), 0.55, haze=AIR), leafy("gold", (0.80, 0.36, 0.02), (0.85, 0.50, 0.05), 0.55, haze=AIR),
            leafy("orange", (0.72, 0.20, 0.015), (0.80, 0.32, 0.02), 0.55, haze=AIR)]
    large = [leaf([one], 0.115, 0.09) for one in reds]
    for row, (first, step) in enumerate(((4.2, 6.0), (6.8, 6.0))):
        side = -1 if row == 0 else 1
        for n in range(9):
            y = first + n * step
            x = side * (3.1 + chance.uniform(-0.2, 0.3))
            twigs = trunk_and_twigs(chance, wood, (x, y, float(height(numpy.array([x]), numpy.array([y]))[0])), chance.uniform(9, 11), 0.24, 4, 0.75, 0.24, (4, 6), 0.35, 0.12)
            few = chance.permutation(len(twigs))[:700]
            main = chance.integers(0, 3)
            crown(chance, [large[main], large[(main + 1) % 3]], [twigs[k] for k in few], 15 if n < 4 else 8, 0.6, (0.8, 1.5) if n < 4 else (1.3, 2.0))
    ground("earth", height, soil((0.07, 0.045, 0.022), (0.16, 0.105, 0.05), 4.0, haze=AIR), near=1.0, far=160, spread=40, rows=260, columns=200)
    brown = leaf([leafy("brown", (0.28, 0.10, 0.025), (0.42, 0.19, 0.04), 0.2, haze=AIR)], 0.12, 0.095)
    x, y = seeded_places(chance, 42000, 1.3, 30, 36)
    kept = (numpy.abs(x) > 1.5 + 0.4 * noise(y / 3, y * 0, 4)) | (chance.random(len(x)) < 0.42)
    x, y = x[kept], y[kept]
    litter(chance, large + [brown], x, y, height(x, y), (0.7, 1.2))
    x, y = seeded_places(chance, 30000, 30, 75, 18)
    litter(chance, large + [brown], x, y, height(x, y), (0.9, 1.6))
    wood_edge(chance, leafy("far", (0.30, 0.13, 0.03), (0.45, 0.24, 0.05), 0.4, haze=AIR), 90, 80, 130, 75, (0.6, 1.1))
    camera((0.15, 0, 1.55), (0.0, 20, 3.3), lens=30, focus=8, f_stop=4)
    daylight(15, 9, strength=0.2, dust=2.0, low=((5.6, 4.3, 2.9), 0.5), sun_size=1.5)
    return Roll(samples=10, bounces=4, exposure=0.6, look="High Contrast", glow=0.11, saturation=1.05)
