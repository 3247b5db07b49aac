"""A tent with a lamp inside, firs, and the milky way above."""
import math

import numpy

from common import camera, random_turns, scatter, tube
from film import Roll
from growth import Soup, fir, tuft
from land import ground, layered, noise, seeded_places
from nodes import leafy, material, plain, surface
from skies import night
from surfaces import glowing, soil

FORMAT = "landscape"


def height(x, y):
    return 0.14 * layered(x / 6, y / 6, 3, 4) + numpy.clip((y - 22) / 60, 0, 1) * 3


def hills(x, y):
    return 60 * layered(x / 500, y / 500, 12, 5) + 0.05 * y - 28


def cloth():
    """Thin orange cloth; light comes through it, more where the lamp is near."""
    made, nodes = material("cloth")
    weave = nodes.noise(nodes.place(), 3.0, detail=5.0)
    tone = nodes.mix(weave, (0.80, 0.30, 0.05), (0.9, 0.42, 0.09))
    surface(nodes, nodes.add("ShaderNodeMixShader", 0.6, nodes.add("ShaderNodeBsdfDiffuse", tone), nodes.add("ShaderNodeBsdfTranslucent", tone)))
    return made


def tent():
    """A dome over two crossed poles, longer than wide, with a door."""
    fine = numpy.sin(numpy.linspace(-math.pi / 2, math.pi / 2, 161))  # closer at the foot, where the cloth stands steep
    across, along = numpy.meshgrid(fine, fine)
    # A square drawn to a rounded square; the cloth sags between the poles, which run over the diagonals.
    reach = numpy.maximum(numpy.abs(across), numpy.abs(along))
    sag = numpy.abs(numpy.abs(across) - numpy.abs(along))
    z = 1.28 * numpy.sqrt(numpy.clip(1 - reach ** 2.1, 0, 1)) * (1 - 0.10 * sag) + 0.01 * noise(across * 9, along * 9, 2)
    shrink = 1 - 0.12 * sag * reach
    soup = Soup()
    soup.raster(numpy.stack([1.25 * across * shrink, 1.25 * along * shrink, z], axis=-1))
    made = soup.made("tent", [cloth()])
    parts = [made]
    dark = plain("pole", (0.02, 0.02, 0.02))
    for side in (-1, 1):
        t = numpy.linspace(-1, 1, 40)
        parts.append(tube("pole", numpy.column_stack([1.26 * t, 1.26 * t * side, 1.30 * numpy.sqrt(numpy.clip(1 - numpy.abs(t) ** 2.1, 0, 1))]), 0.016, dark, 6))
    door = numpy.linspace(0, math.pi, 24)
    parts.append(tube("zip", [(0.42 * math.cos(a), -1.2 + 0.36 * math.sin(a) ** 1.5, 0.02 + 0.86 * math.sin(a)) for a in door], 0.009, dark, 6))
    lamp = tube("lamp", [(0.25, 0.1, 0.75), (0.25, 0.1, 0.8), (0.25, 0.1, 0.88), (0.25, 0.1, 0.92)], [0.03, 0.055, 0.055, 0.02], glowing((1.0, 0.62, 0.28), 150.0), 12)
    person = [tube("sitter", [(-0.35, 0.2, h) for h in (0.0, 0.3, 0.55, 0.68, 0.72, 0.8, 0.9, 0.96)], [0.3, 0.24, 0.22, 0.1, 0.06, 0.1, 0.1, 0.02], plain("sitter", (0.05, 0.04, 0.04)), 12)]
    for part in parts + [lamp] + person:
        part.location, part.rotation_euler = (2.3, 14.5, 0.02), (0, 0, 0.5)


def build():
    chance = numpy.random.default_rng(47)
    night((0.020, 0.021, 0.027), (0.005, 0.0065, 0.012), milky_way=(0.62, -0.05, -0.42), strength=1.0, star_light=2.2)
    tent()
    blades = leafy("grass", (0.05, 0.07, 0.02), (0.11, 0.11, 0.04), 0.3)
    ground("meadow", height, soil((0.03, 0.035, 0.014), (0.06, 0.06, 0.025), 2.0), near=1.5, far=120, spread=60, rows=200, columns=160)
    x, y = seeded_places(chance, 15000, 4, 26, 48)
    open_ = (numpy.hypot(x - 2.3, y - 14.5) > 1.75)
    x, y = x[open_], y[open_]
    scatter([tuft(chance, [blades], 16, 0.26, 0.004, 0.22) for _ in range(3)], numpy.column_stack([x, y, height(x, y)]), random_turns(chance, len(x)), chance.uniform(0.5, 1.2, len(x)))
    trees = [fir(chance, plain("bark", (0.02, 0.015, 0.012)), plain("needles", (0.012, 0.018, 0.010), 0.8), tall, 26) for tall in (9, 12, 15)]
    x = chance.uniform(-46, 46, 110)
    y = chance.uniform(27, 58, 110) + 0.004 * x * x
    thin = chance.random(110) < numpy.clip(0.25 + (numpy.abs(x - 3) / 26) ** 2, 0, 1)
    x, y = x[thin], y[thin]
    scatter(trees, numpy.column_stack([x, y, height(x, y) - 0.2]), random_turns(chance, len(x), 0.03), chance.uniform(0.45, 1.05, len(x)))
    ground("hills", hills, plain("hills", (0.012, 0.014, 0.016), 0.9), near=130, far=3000, spread=50, rows=160, columns=700)
    camera((0.6, 2.5, 1.3), (0.9, 20, 7.0), lens=22)
    return Roll(samples=14, bounces=4, exposure=2.3, grain=0.016, glow=0.07, saturation=1.15)
