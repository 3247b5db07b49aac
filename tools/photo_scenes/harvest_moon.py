"""The moon rises behind a bare tree on a hill, seen through a long lens."""
import math

import numpy

from common import camera, world
from film import Roll
from growth import Soup, blade, branches
from land import layered, noise
from nodes import material, no_lamp, plain, surface

FORMAT = "landscape"


def evening():
    """From a last glow over the land to night blue."""
    nodes = world()
    height = nodes.add("ShaderNodeSeparateXYZ", nodes.place("Generated")).outputs[2]
    tone = nodes.ramp(nodes.math("MULTIPLY", height, 3.2), (0.0, (0.36, 0.12, 0.06)), (0.12, (0.26, 0.10, 0.085)), (0.35, (0.085, 0.05, 0.085)),
                      (0.8, (0.016, 0.02, 0.05)))
    veil = nodes.noise(nodes.vector("MULTIPLY", nodes.place("Generated"), (3.0, 3.0, 30.0)), 2.2, detail=6.0)
    tone = nodes.mix(nodes.math("MULTIPLY", nodes.rise(veil, 0.5, 0.8), 0.4), tone, (0.20, 0.09, 0.08))
    nodes.add("ShaderNodeOutputWorld", nodes.add("ShaderNodeBackground", tone, 1.0))


def moon_face():
    """Plains, highlands and craters with rays; redder and dimmer where it is low."""
    made, nodes = material("moon")
    no_lamp(nodes)
    place = nodes.place()
    low, detail = nodes.noise(place, 1.35, detail=5.0, roughness=0.55, distortion=0.4), nodes.noise(place, 9.0, detail=8.0, roughness=0.7)
    plains = nodes.rise(nodes.math("MULTIPLY_ADD", detail, 0.14, low), 0.48, 0.60)
    level = nodes.mix(plains, (0.80, 0.78, 0.72), (0.27, 0.265, 0.26))
    craters = nodes.add("ShaderNodeTexVoronoi", Vector=nodes.vector("ADD", place, (0.1, 0.2, 0.35)), Scale=5.5, Randomness=1.0).outputs["Distance"]
    level = nodes.mix(nodes.math("MULTIPLY", nodes.rise(craters, 0.17, 0.05), 0.45), level, (1.15, 1.13, 1.06))
    level = nodes.mix(0.6, level, nodes.ramp(detail, (0.3, 0.62), (0.7, 1.25)), "MULTIPLY")
    tall = nodes.add("ShaderNodeSeparateXYZ", place).outputs[2]
    tint = nodes.mix(nodes.rise(tall, -1.0, 1.0), (1.0, 0.50, 0.20), (1.0, 0.74, 0.44))
    surface(nodes, nodes.add("ShaderNodeEmission", nodes.mix(1.0, level, tint, "MULTIPLY"), 1.25))
    return made


def moon(place, radius):
    u, v = numpy.meshgrid(numpy.linspace(0, 2 * math.pi, 96, endpoint=False), numpy.linspace(-math.pi / 2, math.pi / 2, 64))
    soup = Soup()
    soup.raster(numpy.stack([numpy.cos(v) * numpy.cos(u), numpy.cos(v) * numpy.sin(u), numpy.sin(v)], axis=-1), closed=True)
    made = soup.made("moon", [moon_face()])
    made.location, made.scale, made.rotation_euler = place, (radius,) * 3, (0.0, 0.35, 0.6)


def hill(x):
    return 5.0 * numpy.exp(-((x + 6) / 26) ** 2) + 0.25 * noise(x / 5, x * 0, 4) + 0.08 * layered(x, x * 0, 5, 4)


def slope(dark):
    """The hill as a sheet that stands across the view, with grass on its edge."""
    x = numpy.linspace(-45, 45, 900)
    points = numpy.stack([numpy.stack([x, 0 * x + deep, hill(x) * share - (1 - share) * 30], axis=-1) for deep, share in ((0, 1), (-3, 0.0))])
    soup = Soup()
    soup.raster(points)
    chance = numpy.random.default_rng(3)
    for at in chance.uniform(-40, 40, 9000):
        blade(soup, chance, 0.06 + 0.3 * chance.random() ** 2, 0.007, 0, (at, chance.uniform(-0.5, 0.3), hill(numpy.array([at]))[0] - 0.03), 0.7)
    return soup.made("slope", [dark])


def build():
    evening()
    dark = plain("dark", (0.012, 0.010, 0.012), 0.9, Specular=0.0)
    chance = numpy.random.default_rng(24)
    soup, twigs = Soup(), []
    branches(soup, chance, (-8, 0, hill(numpy.array([-8.0]))[0] - 0.2), (0.06, 0, 1), 4.6, 0.42, 5, twigs, 0.72, 0.5, 0.12, fork=(4, 6))
    soup.made("tree", [dark])
    slope(dark)
    moon((-62, 3000, 205), 84)
    camera((0, -160, 3.0), (0, 0, 9.0), lens=175)
    return Roll(samples=16, exposure=0.2, glow=0.09, grain=0.012, clean=0.7)
