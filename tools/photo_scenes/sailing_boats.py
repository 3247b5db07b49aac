"""Sailing boats on a fresh wind, light from the side."""
import math

import numpy

from common import camera, daylight, joined, limb, tube
from film import Roll
from growth import Soup
from land import sea
from nodes import leafy, plain
from surfaces import water

FORMAT = "landscape"


def hull(paint, deck, long=9.5):
    """Sections from stern to stem, each a curve from one edge of the deck below the keel to the other."""
    soup = Soup()
    t = numpy.linspace(0, 1, 26)
    beam = 1.5 * numpy.sin(math.pi * (0.22 + 0.78 * t)) ** 0.75 * numpy.where(t > 0.97, (1 - t) / 0.03 * 0.9 + 0.1, 1)
    sheer = 0.95 + 0.35 * (t - 0.4) ** 2 * 2
    draft = -0.45 * numpy.sin(math.pi * numpy.clip(t * 0.96 + 0.02, 0, 1)) ** 0.6
    angle = numpy.linspace(-math.pi / 2, math.pi / 2, 15)
    x = beam[:, None] * numpy.sin(angle) / 1.0
    z = sheer[:, None] + (draft - sheer)[:, None] * numpy.cos(angle) ** 0.55
    y = numpy.broadcast_to((t * long - long / 2)[:, None], x.shape) + 0.35 * (z - 0.3) * (t[:, None] > 0.8)
    soup.raster(numpy.stack([x, y, z], axis=-1), 0)
    middle = numpy.array([0, -long / 2, 0.4])
    soup.raster(numpy.stack([numpy.stack([x[0], 0 * x[0] - long / 2, z[0]], axis=-1), numpy.broadcast_to(middle, (15, 3))]), 0)
    across = numpy.linspace(-1, 1, 5)
    soup.raster(numpy.stack([beam[:, None] * across, numpy.broadcast_to((t * long - long / 2)[:, None], (26, 5)),
                             sheer[:, None] + 0.06 * (1 - across ** 2)], axis=-1) - [0, 0, 0.05], 1)
    return soup.made("hull", [paint, deck])


def sail(cloth, tack, head, clew, belly):
    """A triangle of cloth filled by the wind, which blows to the right (+x)."""
    tack, head, clew = (numpy.array(corner, dtype=float) for corner in (tack, head, clew))
    v, u = numpy.meshgrid(numpy.linspace(0, 1, 24), numpy.linspace(0, 1, 16), indexing="ij")
    luff = tack + (head - tack) * v[..., None]
    leech = clew + (head - clew) * v[..., None]
    points = luff + (leech - luff) * u[..., None]
    points[..., 0] += belly * numpy.sin(math.pi * u ** 0.8) * numpy.sin(math.pi * (0.1 + 0.85 * v)) ** 0.7
    points[..., 1] -= 0.35 * numpy.sin(math.pi * v) * u ** 3
    soup = Soup()
    soup.raster(points)
    return soup.made("sail", [cloth])


def sloop(paint, cloth, stripe):
    wood, metal = plain("deck", (0.45, 0.30, 0.17)), plain("spar", (0.75, 0.76, 0.78), 0.3, Metallic=0.6)
    dark = plain("crew", (0.03, 0.04, 0.07))
    red = plain("coat", (0.5, 0.05, 0.03))
    parts = [hull(paint, wood), sail(cloth, (0.1, 0.75, 2.0), (0.05, 0.55, 13.2), (0.9, -3.9, 2.0), 0.75),
             sail(cloth, (0.0, 4.6, 1.3), (0.05, 1.0, 11.6), (1.2, -0.2, 1.7), 0.8),
             tube("mast", [(0, 0.8, 0.8), (0, 0.7, 7), (0, 0.5, 13.4)], 0.07, metal), tube("boom", [(0.05, 0.8, 1.9), (0.9, -4.0, 1.9)], 0.06, metal),
             tube("stay", [(0, 4.7, 1.2), (0, 0.5, 13.3)], 0.012, metal), tube("backstay", [(0, -4.6, 1.1), (0, 0.5, 13.3)], 0.012, metal),
             tube("cabin", [(0, -0.9, 1.15), (0, -0.6, 1.3), (0, 2.0, 1.3), (0, 3.0, 1.05)], [0.5, 0.62, 0.6, 0.3], plain("cabin", (0.85, 0.85, 0.82), 0.3), 12)]
    for y, coat in ((-2.6, red), (-3.4, dark)):
        parts += [limb([(-0.55, y, 0.8), (-0.6, y, 1.15), (-0.62, y - 0.03, 1.42), (-0.62, y, 1.52)], [0.19, 0.21, 0.19, 0.06], coat),
                  limb([(-0.62, y, 1.5), (-0.62, y, 1.58), (-0.63, y, 1.67), (-0.63, y, 1.76)], [0.07, 0.10, 0.10, 0.02], dark),
                  limb([(-0.62, y + 0.05, 1.42), (-0.35, y + 0.25, 1.25), (-0.1, y + 0.5, 1.3)], [0.08, 0.07, 0.05], coat)]
    return joined("sloop", parts)


def at_sea(boat, place, course, heel):
    boat.location = place
    boat.rotation_euler = (0, math.radians(heel), math.radians(course))


def build():
    chance = numpy.random.default_rng(5)
    air = ((0.62, 0.72, 0.82), 9000.0)
    sea("sea", water((0.003, 0.018, 0.03), ripple=0.55, fine=1.6, roughness=0.05, haze=air), chance, near=4, far=12000, spread=25, rows=1100, columns=800,
        height=0.95, longest=24.0, shortest=0.7, wind=1.1, count=90)
    cloth = leafy("cloth", (0.86, 0.85, 0.81), (0.86, 0.85, 0.81), 0.45, 0.7)
    white, blue = plain("white", (0.82, 0.82, 0.8), 0.15), plain("blue", (0.02, 0.05, 0.14), 0.15)
    at_sea(sloop(blue, cloth, None), (-5, 62, -0.28), 112, 15)
    at_sea(sloop(white, cloth, None), (34, 170, -0.25), 118, 13)
    at_sea(sloop(white, cloth, None), (-62, 330, -0.25), 105, 14)
    camera((0, 0, 3.2), (0, 60, 5.6), lens=62)
    daylight(32, -125, strength=0.12, dust=0.3, ozone=2.0, low=((5.0, 6.0, 7.0), 0.12),
             clouds=dict(low=0.5, high=0.72, scale=0.55, light=(11, 11, 11), shade=(6.5, 7, 7.8), thick=0.9, seed=8.0, stretch=(0.7, 1.1)))
    return Roll(samples=18, exposure=0.0, saturation=1.2)
