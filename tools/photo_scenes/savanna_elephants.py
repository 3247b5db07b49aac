"""Elephants walk past the setting sun; a long lens, dust in the air."""
import math

import numpy

from common import camera, joined, limb, mesh_object, smooth, world
from film import Roll
from growth import Soup, blade, branches, stem
from land import layered, noise
from nodes import material, no_lamp, surface

FORMAT = "landscape"


def evening():
    """The sun's disk and the red haze around it: towards y, a degree and a half up."""
    nodes = world()
    ray = nodes.place("Generated")
    height = nodes.add("ShaderNodeSeparateXYZ", ray).outputs[2]
    tone = nodes.ramp(nodes.math("MULTIPLY", height, 7.0), (0.0, (0.62, 0.17, 0.03)), (0.25, (0.80, 0.26, 0.04)), (0.6, (0.55, 0.15, 0.035)), (1.0, (0.26, 0.075, 0.035)))
    sun = (0.020, 0.9995, 0.0245)
    off = nodes.math("ARCCOSINE", nodes.math("MINIMUM", nodes.vector("DOT_PRODUCT", nodes.vector("NORMALIZE", ray), sun), 1.0))
    round_ = nodes.math("POWER", 2.718, nodes.math("MULTIPLY", off, -26.0))
    tone = nodes.mix(round_, tone, (1.5, 0.62, 0.12))
    bars = nodes.noise(nodes.vector("MULTIPLY", ray, (9.0, 9.0, 210.0)), 1.0, detail=5.0)
    tone = nodes.mix(nodes.math("MULTIPLY", nodes.rise(bars, 0.5, 0.85), 0.35), tone, (0.34, 0.09, 0.035))
    disk = nodes.rise(off, 0.0106, 0.0100)
    lower = nodes.rise(height, 0.012, 0.036)
    tone = nodes.mix(disk, tone, nodes.mix(lower, (3.2, 1.15, 0.22), (7.0, 4.2, 1.5)))
    nodes.add("ShaderNodeOutputWorld", nodes.add("ShaderNodeBackground", tone, 1.0))


def ball(centre, reach, dark):
    u, v = numpy.meshgrid(numpy.linspace(0, 2 * math.pi, 28, endpoint=False), numpy.linspace(-math.pi / 2, math.pi / 2, 16))
    soup = Soup()
    soup.raster(numpy.stack([numpy.cos(v) * numpy.cos(u), numpy.cos(v) * numpy.sin(u), numpy.sin(v)], axis=-1) * reach + centre, closed=True)
    return soup.made("ball", [dark])


def elephant(dark, step=0.0, tusks=1.0, trunk=0.0):
    """About 3 m at the shoulder, walking towards +x; step shifts the legs."""
    parts = [limb([(-2.35, 0, 1.95), (-2.1, 0, 2.05), (-1.5, 0, 2.1), (-0.6, 0, 1.98), (0.4, 0, 2.0), (1.2, 0, 2.2), (1.75, 0, 2.45)],
                  [0.05, 0.55, 0.86, 0.98, 0.98, 0.86, 0.62], dark, 20),
             ball((2.15, 0, 2.62), (0.62, 0.5, 0.66), dark), ball((1.85, 0, 2.95), (0.42, 0.4, 0.34), dark), ball((2.5, 0, 2.35), (0.36, 0.34, 0.45), dark),
             limb([(2.55, 0, 2.35), (2.86, 0, 1.85), (2.98, 0, 1.2), (3.02 + trunk, 0, 0.65), (2.86 + 1.7 * trunk, 0, 0.28)], [0.36, 0.26, 0.19, 0.14, 0.09], dark),
             ball((2.42, 0, 1.98), (0.28, 0.2, 0.2), dark),
             limb([(-2.3, 0, 2.15), (-2.5, 0.05, 1.7), (-2.52, 0.08, 1.2), (-2.46, 0.08, 1.0), (-2.48, 0.08, 0.82)], [0.06, 0.04, 0.03, 0.055, 0.01], dark)]
    for side in (-1, 1):
        parts.append(ear(side, dark))
        parts.append(limb([(2.48, 0.28 * side, 2.1), (2.78, 0.34 * side, 1.72), (3.15, 0.34 * side, 1.56), (3.15 + 0.3 * tusks, 0.3 * side, 1.62)], [0.085, 0.075, 0.055, 0.012], dark))
        swing = step * side
        for x, knee, top in ((-1.62, -0.12, 0.52), (1.02, 0.1, 0.44)):
            way = swing if x > 0 else -swing
            parts.append(limb([(x, 0.45 * side, 1.75), (x + 0.35 * way + knee * 0.4, 0.45 * side, 1.05), (x + 0.75 * way - knee * 0.3, 0.45 * side, 0.45), (x + way, 0.45 * side, 0.12), (x + way, 0.45 * side, -0.03)],
                              [top, 0.34, 0.26, 0.27, 0.31], dark))
    return joined("elephant", parts)


def ear(side, dark):
    """A leaf of skin with a ragged lower edge."""
    rim = smooth([(2.0, 3.05), (1.62, 3.22), (1.22, 3.0), (1.02, 2.45), (1.2, 1.95), (1.48, 1.62), (1.72, 1.85), (1.98, 2.2), (2.0, 3.05)], 60)
    points = [(x, side * (0.55 + 0.22 * (2.0 - x)), z) for x, z in rim]
    return mesh_object("ear", numpy.array(points), [tuple(range(len(points)))], dark)


def acacia(chance, dark, tall):
    """Forks low, spreads into flat pads of leaves."""
    soup, twigs = Soup(), []
    for turn in (0.2, 2.5, 3.6, 5.4):
        branches(soup, chance, (0, 0, tall * 0.18), (0.62 * math.cos(turn), 0.62 * math.sin(turn), 1), tall * 0.42, 0.022 * tall, 3, twigs, 0.62, 0.3, 0.1, fork=(3, 5))
    stem(soup, numpy.array([(-0.02 * tall, 0, -0.06 * tall), (0, 0, 0.04 * tall), (0.01 * tall, 0, 0.12 * tall), (0, 0, 0.2 * tall)]), numpy.array([0.05, 0.034, 0.03, 0.03]) * tall)
    top = max(place[2] for place, _, _ in twigs)
    for place, _, _ in twigs:
        at = place * [1.1, 1.1, 0.62] + [0, 0, 0.38 * top]
        spot = at + chance.normal(0, 1, (700, 3)) * [0.05 * tall, 0.05 * tall, 0.009 * tall]
        out, aside = 0.0030 * tall * chance.standard_normal((2, 700, 3))
        soup.quads(numpy.stack([spot - out, spot - 0.35 * aside, spot + out, spot + 0.35 * aside], axis=1))
    return soup.made("acacia", [dark])


def plain_edge(dark, y, base, seed, grass=7000, tall=0.5):
    """A long rise as a sheet across the view, with grass on its edge."""
    x = numpy.linspace(-60, 60, 1200)

    def edge(at):
        return base + 0.35 * noise(at / 17, at * 0, seed) + 0.08 * layered(at / 2, at * 0, seed + 2, 4)
    soup = Soup()
    soup.raster(numpy.stack([numpy.stack([x, 0 * x + y, edge(x)], axis=-1), numpy.stack([x, 0 * x + y - 2, 0 * x - 30], axis=-1)]))
    chance = numpy.random.default_rng(seed)
    for at in chance.uniform(-50, 50, grass):
        blade(soup, chance, tall * (0.25 + chance.random() ** 3), 0.009, 0, (at, y + chance.uniform(-0.5, 0.5), edge(numpy.array([at]))[0] - 0.04), 0.8)
    soup.made("edge", [dark])


def dusty(share):
    """Dark, with as much of the red air before it."""
    made, nodes = material("dusty")
    no_lamp(nodes)
    air = nodes.add("ShaderNodeEmission", (0.60, 0.17, 0.03), 1.0)
    surface(nodes, nodes.add("ShaderNodeMixShader", share, nodes.add("ShaderNodeBsdfDiffuse", (0.012, 0.008, 0.007)), air))
    return made


def build():
    evening()
    chance = numpy.random.default_rng(27)
    near, middle, far = dusty(0.012), dusty(0.03), dusty(0.34)
    plain_edge(middle, 2, -0.05, 4, 9000, 0.28)
    plain_edge(near, -60, -1.25, 9, 9000, 0.8)
    plain_edge(far, 500, 5.6, 14, 0)
    for x, size, turn, step, trunk in ((-7.6, 1.0, 0.08, 0.34, 0.1), (-0.6, 0.84, -0.1, -0.3, -0.15), (4.3, 0.46, 0.05, 0.3, 0.2), (9.4, 0.92, 0.04, -0.34, 0.0)):
        one = elephant(middle, step, 1.0 if size > 0.6 else -0.5, trunk)
        one.location, one.scale, one.rotation_euler = (x, 0, -0.15), (size, size, 1.1 * size), (0, 0, turn)
    tree = acacia(chance, dusty(0.05), 8.5)
    tree.location = (-12.6, 30, -0.2)
    distant = acacia(chance, far, 8.0)
    distant.location, distant.scale = (31, 480, 5.5), (1.5, 1.5, 1.5)
    camera((0, -330, 1.0), (0.2, 0, 4.8), lens=420)
    return Roll(samples=14, bounces=4, exposure=0.05, warmth=0.07, glow=0.12, grain=0.014, saturation=1.2)
