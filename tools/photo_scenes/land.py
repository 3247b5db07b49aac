"""Land: noise on whole arrays, and ground that is fine before the camera and coarse far off."""
import math

import numpy

from common import sheet


def lattice(x, y, seed):
    """A gradient for each point of a lattice of whole numbers, from a hash."""
    mixed = (x.astype(numpy.int64) * 374761393 + y.astype(numpy.int64) * 668265263 + seed * 1442695041) & 0xFFFFFFFF
    mixed = ((mixed ^ (mixed >> 13)) * 1274126177) & 0xFFFFFFFF
    angle = ((mixed ^ (mixed >> 16)) & 0xFFFF) * (2 * math.pi / 65536)
    return numpy.cos(angle), numpy.sin(angle)


def noise(x, y, seed=0):
    """Gradient noise, about -1 to 1, one hill per unit."""
    left, below = numpy.floor(x), numpy.floor(y)
    u, v = x - left, y - below
    total = 0
    ease_u, ease_v = (t * t * t * (t * (t * 6 - 15) + 10) for t in (u, v))
    for right, share_u in ((0, 1 - ease_u), (1, ease_u)):
        for up, share_v in ((0, 1 - ease_v), (1, ease_v)):
            across, along = lattice(left + right, below + up, seed)
            total = total + share_u * share_v * (across * (u - right) + along * (v - up))
    return 1.5 * total


def layered(x, y, seed=0, octaves=6, gain=0.5):
    """Noise of finer and finer grain."""
    return sum(gain ** n * noise(x * 2 ** n, y * 2 ** n, seed + n) for n in range(octaves))


def ridged(x, y, seed=0, octaves=7, gain=0.5):
    """Mountains: sharp ridges, rough where it is high, smooth in the valleys; 0 to about 1.5."""
    total, share, weight = 0, 1.0, 1.0
    for n in range(octaves):
        ridge = (1 - numpy.abs(noise(x * 2 ** n + 7.3 * n, y * 2 ** n, seed + n))) ** 2
        ridge = ridge * weight
        total = total + share * ridge
        weight = numpy.clip(ridge * 1.6, 0, 1)
        share *= gain
    return total - 0.5


def ground(name, height, made_of, near=1.0, far=1000.0, spread=35.0, rows=500, columns=500, middle=(0, 0)):
    """Land before a camera at `middle` that looks along y: height is a function of arrays x and y, spread in degrees to
    either side. Rows stand in the same proportion to each other, so all look equally fine."""
    distance = near * (far / near) ** numpy.linspace(0, 1, rows)[:, None]
    angle = numpy.radians(numpy.linspace(-spread, spread, columns))[None, :]
    x = middle[0] + distance * numpy.sin(angle)
    y = middle[1] + distance * numpy.cos(angle)
    return sheet(name, numpy.stack([x, y, height(x, y)], axis=-1), made_of)


def seeded_places(chance, count, near, far, spread, middle=(0, 0)):
    """Places before the camera, as many for each square metre everywhere; x and y."""
    distance = numpy.sqrt(chance.uniform(near ** 2, far ** 2, count))
    angle = numpy.radians(chance.uniform(-spread, spread, count))
    return middle[0] + distance * numpy.sin(angle), middle[1] + distance * numpy.cos(angle)


def swell(x, y, spacing, chance, wind=0.5, longest=30.0, shortest=0.6, height=0.5, count=70):
    """The sea: how far each point of it is moved. Waves run mostly along the wind (radians off y); those finer than the
    raster, whose spacing is an array, are left out."""
    length = longest * (shortest / longest) ** chance.uniform(0, 1, count) ** 0.8
    turn = wind + chance.normal(0, 0.55, count)
    phase = chance.uniform(0, 2 * math.pi, count)
    steep = chance.uniform(0.4, 1.0, count)
    tall = steep * length ** 0.85
    tall *= height / math.sqrt((tall ** 2).sum() / 2) / 4
    moved = [numpy.zeros_like(x) for _ in range(3)]
    for wave in range(count):
        across, along = math.sin(turn[wave]), math.cos(turn[wave])
        step = 2 * math.pi / length[wave]
        share = tall[wave] * numpy.clip(length[wave] / (3 * spacing) - 1, 0, 1)
        angle = step * (x * across + y * along) + phase[wave]
        moved[0] += share * across * numpy.sin(angle) * 0.9
        moved[1] += share * along * numpy.sin(angle) * 0.9
        moved[2] += share * numpy.cos(angle)
    return moved


def sea(name, made_of, chance, near=2.0, far=9000.0, spread=35.0, rows=900, columns=700, shift=None, **waves):
    """The sea before a camera at 0, 0; shift(x, y) lifts it where something else shapes it."""
    distance = near * (far / near) ** numpy.linspace(0, 1, rows)[:, None]
    angle = numpy.radians(numpy.linspace(-spread, spread, columns))[None, :]
    x, y = distance * numpy.sin(angle), distance * numpy.cos(angle)
    spacing = numpy.broadcast_to(distance * max(math.log(far / near) / rows, math.radians(2 * spread) / columns), x.shape)
    right, on, up = swell(x, y, spacing, chance, **waves)
    lift = shift(x, y) if shift else 0
    return sheet(name, numpy.stack([x + right, y + on, up + lift], axis=-1), made_of)
