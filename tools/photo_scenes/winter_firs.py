"""Firs under fresh snow, towards a low sun; fine snow hangs in the air."""
import math

import numpy

from common import camera, daylight, random_turns, scatter
from film import Roll
from growth import Soup, fir
from land import ground, layered
from nodes import material, plain, surface
from surfaces import glowing

FORMAT = "portrait"
AIR = ((0.62, 0.54, 0.52), 150.0)
TRACK = [(0.55 + 0.5 * math.sin(0.33 * y) - 0.05 * y, y) for y in numpy.arange(3.0, 26.0, 0.36)]


def height(x, y):
    """Drifts, and the prints of one who walked in."""
    z = 0.25 * layered(x / 7, y / 7, 5, 4) + 0.035 * layered(x / 0.7, y / 0.9, 8, 4) + 0.0012 * x * x + 0.012 * y
    ragged = layered(x / 0.11, y / 0.11, 21, 3)
    for step, (at, on) in enumerate(TRACK):
        off = ((x - at - (0.11 if step % 2 else -0.11)) / 0.062) ** 2 + ((y - on) / 0.145) ** 2 + 0.5 * ragged
        z = z - 0.17 * numpy.exp(-numpy.clip(off, 0, None) ** 1.3) + 0.018 * numpy.exp(-(numpy.sqrt(numpy.clip(off, 0, None)) - 2.0) ** 2 * 3) * (1 + ragged)
    return z


def snow():
    """White that light goes into, with a glitter of grains."""
    made, nodes = material("snow")
    fine = nodes.noise(nodes.place(), 60.0, detail=3.0)
    tone = nodes.mix(fine, (0.80, 0.82, 0.86), (0.90, 0.90, 0.92))
    normal = nodes.bump(fine, 0.35, 0.01)
    front = nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.6, Specular=0.4, Normal=normal)
    shader = nodes.add("ShaderNodeMixShader", 0.22, front, nodes.add("ShaderNodeBsdfTranslucent", tone))
    surface(nodes, shader, AIR)
    return made


def frosted():
    """Needles, dark from below, white where they look up."""
    made, nodes = material("needles")
    up = nodes.add("ShaderNodeSeparateXYZ", nodes.add("ShaderNodeNewGeometry").outputs["Normal"]).outputs[2]
    tone = nodes.mix(nodes.noise(nodes.place(), 2.0), (0.010, 0.020, 0.012), (0.028, 0.045, 0.024))
    white = nodes.math("MULTIPLY", nodes.rise(up, 0.35, 0.9), nodes.rise(nodes.noise(nodes.place(), 1.3), 0.42, 0.6))
    tone = nodes.mix(white, tone, (0.78, 0.80, 0.84))
    front = nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.7, Specular=0.2)
    surface(nodes, nodes.add("ShaderNodeMixShader", 0.25, front, nodes.add("ShaderNodeBsdfTranslucent", tone)), AIR)
    return made


def flakes(chance):
    """Snow in the air, lit from behind: discs of blur before the camera, dust farther on."""
    soup = Soup()
    count = 260
    y = chance.uniform(1.6, 14, count)
    spot = numpy.column_stack([chance.uniform(-0.42, 0.42, count) * y, y, 1.6 + chance.uniform(-0.5, 0.75, count) * y])
    size = chance.uniform(0.002, 0.0042, count)[:, None]
    right, up = size * [1, 0, 0], size * [0, 0, 1]
    soup.quads(numpy.stack([spot - right - up, spot + right - up, spot + right + up, spot - right + up], axis=1))
    return soup.made("flakes", [glowing((1.0, 0.86, 0.70), 3.5)])


def firs(chance, bark, needle, white):
    trees = [fir(chance, bark, needle, tall, layers, white) for tall, layers in ((9, 26), (12, 32), (15, 36))]
    near = [(-4.6, 12.5, 1, 0.95), (-8.2, 16, 2, 1.0), (5.4, 14.5, 2, 0.92), (9.6, 19, 1, 1.1), (-2.5, 21, 0, 0.52), (3.2, 25, 0, 0.75), (2.0, 19.5, 0, 0.2),
            (-6.3, 9.3, 0, 0.26), (4.9, 9.2, 0, 0.3)]
    x, y = chance.uniform(-40, 40, 130), chance.uniform(27, 95, 130)
    open_ = numpy.abs(x - 0.02 * y - 1.2) > 2.2 + 0.02 * y
    places = [(*one[:2], height(numpy.array([one[0] * 1.0]), numpy.array([one[1] * 1.0]))[0] - 0.1) for one in near]
    places += list(numpy.column_stack([x, y, height(x, y) - 0.2])[open_])
    count = len(places) - len(near)
    sizes = [one[3] for one in near] + list(chance.uniform(0.6, 1.15, count))
    kinds = [one[2] for one in near] + list(chance.integers(0, 3, count))
    scatter(trees, numpy.array(places), random_turns(chance, len(places), 0.03), numpy.array(sizes), numpy.array(kinds))


def build():
    chance = numpy.random.default_rng(10)
    white = snow()
    ground("snow", height, white, near=1.6, far=140, spread=40, rows=900, columns=700)
    firs(chance, plain("bark", (0.05, 0.035, 0.025), haze=AIR), frosted(), white)
    flakes(chance)
    camera((0, 0, 1.62), (0.25, 20, 4.6), lens=34, focus=13, f_stop=2.2)
    daylight(7.5, 4, strength=0.20, dust=1.0, ozone=2.0, low=((2.6, 1.8, 1.35), 0.30))
    return Roll(samples=18, bounces=4, exposure=-0.1, look="High Contrast", glow=0.12, saturation=1.15)
