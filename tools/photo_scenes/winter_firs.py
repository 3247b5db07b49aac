"""Firs under fresh snow, towards a low sun; fine snow hangs in the air."""
import math

import numpy

from common import camera, daylight, random_turns, scatter
from film import Roll
from growth import Soup, bent_line, stem, unit
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


def needles(soup, chance, line, reach):
    """Little twigs to both sides of a line, full of needles."""
    along = unit(line[-1] - line[0])
    aside = unit(numpy.cross(along, [0, 0, 1]))
    count = 64
    at = chance.uniform(0.05, 1.0, count)
    spot = numpy.column_stack([numpy.interp(at, numpy.linspace(0, 1, len(line)), line[:, k]) for k in range(3)])
    side = chance.choice([-1, 1], count)
    spread = chance.uniform(0, 0.32, count) * reach * (1.1 - at)
    spot = spot + side[:, None] * spread[:, None] * aside + along * 0.6 * spread[:, None] - [0, 0, 0.25] * spread[:, None]
    way = along + side[:, None] * aside * chance.uniform(0.2, 1.2, (count, 1)) + chance.normal(0, 0.35, (count, 3))
    way *= (chance.uniform(0.04, 0.075, count) / numpy.linalg.norm(way, axis=1))[:, None]
    broad = numpy.cross(way, chance.normal(0, 1, (count, 3)) + [0, 0, 0.8])
    broad *= (0.007 / (numpy.linalg.norm(broad, axis=1) + 1e-9))[:, None]
    soup.quads(numpy.stack([spot - broad, spot + broad, spot + way + 0.4 * broad, spot + way - 0.4 * broad], axis=1), 1)


def burden(soup, chance, line, wide, tall):
    """Snow that lies along a line: an arch in section, lumpy."""
    count = len(line)
    along = unit(line[-1] - line[0])
    aside = unit(numpy.cross(along, [0, 0, 1]))
    angle = numpy.linspace(-0.35, math.pi + 0.35, 8)[None, :, None]
    taper = numpy.sqrt(numpy.clip(numpy.sin(numpy.linspace(0.04, math.pi - 0.04, count)), 0, 1))
    lump = (taper * chance.uniform(0.75, 1.25, count))[:, None, None] * chance.uniform(0.85, 1.15, (count, 8, 1))
    soup.raster(line[:, None] + lump * (aside * numpy.cos(angle) * wide + numpy.array([0, 0, 1.0]) * numpy.sin(angle) * tall), 2)


def bough(soup, chance, root, turn, reach):
    """A bough under its load, with twigs to both sides."""
    out = numpy.array([math.cos(turn), math.sin(turn), 0])
    aside = numpy.array([-out[1], out[0], 0])
    droop = [0, 0, -1.25]
    line = bent_line(root, out + [0, 0, 0.2], reach, droop, 9)
    stem(soup, line, 0.012 * reach * numpy.linspace(1.2, 0.3, 9), 0, 4)
    for at in numpy.linspace(0.14, 1, 10):
        place = bent_line(root, out + [0, 0, 0.2], reach * at, numpy.multiply(droop, at), 2)[-1]
        length = (reach * 0.40 * (1.15 - at) + 0.10) * chance.uniform(0.75, 1.2)
        for side in (-1, 1):
            way = out * 0.85 + aside * side * chance.uniform(0.7, 1.1) + [0, 0, chance.uniform(-0.5, -0.15)]
            twig = bent_line(place, way, length, [0, 0, -0.55], 6)
            needles(soup, chance, twig, length)
            if chance.random() < 0.62:
                wide = chance.uniform(0.035, 0.075) + 0.05 * length
                burden(soup, chance, twig[chance.integers(0, 2):] + [0, 0, 0.01], wide, 0.8 * wide)
    burden(soup, chance, line[1:] + [0, 0, 0.02], 0.05 + 0.045 * reach, 0.06 + 0.03 * reach)


def fir(chance, made_of, tall, layers):
    """Bark, needles, snow."""
    soup = Soup()
    axis = numpy.column_stack([numpy.zeros(6), numpy.zeros(6), numpy.linspace(-0.5, tall, 6)])
    stem(soup, axis, tall * numpy.linspace(0.016, 0.002, 6), 0, 7)
    for layer in range(layers):
        share = (layer + chance.uniform(0, 0.6)) / layers
        reach = tall * 0.185 * (1 - share) ** 0.75 * chance.uniform(0.85, 1.12) + 0.16
        count = 9 - int(4 * share)
        for number in range(count):
            turn = number * 2 * math.pi / count + layer * 0.9 + chance.uniform(-0.3, 0.3)
            bough(soup, chance, numpy.array([0, 0, tall * (0.05 + 0.93 * share + chance.uniform(-0.012, 0.012))]), turn, reach * chance.uniform(0.6, 1.15))
    return soup.made("fir", made_of)


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


def firs(chance, made_of):
    trees = [fir(chance, made_of, tall, layers) for tall, layers in ((9, 26), (12, 32), (15, 36))]
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
    firs(chance, [plain("bark", (0.05, 0.035, 0.025), haze=AIR), frosted(), white])
    flakes(chance)
    camera((0, 0, 1.62), (0.25, 20, 4.6), lens=34, focus=13, f_stop=2.2)
    daylight(7.5, 4, strength=0.20, dust=1.0, ozone=2.0, low=((2.6, 1.8, 1.35), 0.30))
    return Roll(samples=18, bounces=4, exposure=-0.1, look="High Contrast", glow=0.12, saturation=1.15)
