"""A suspension bridge whose towers rise out of the fog of a bay; the sun comes through behind it, firs stand before the lens."""
from math import pi, sin

import numpy
from mathutils import Vector, noise

import materials as m
import shapes as s
from common import camera, random_turns, scatter, sheet, world
from film import Roll
from growth import fir, tuft
from land import layered
from skies import veiled

FORMAT = "landscape"
HAZE = ((0.50, 0.33, 0.22), 2600.0)
EYE, AIM = (-285.0, -215.0, 74.0), (30.0, 300.0, 60.0)
SUN = (0.452, 0.884, 0.118)
SPAN, DECK, TOP = 620.0, 34.0, 118.0


def painted(name, colour, rough=0.5):
    made, nodes = m.material(name)
    where = nodes.place()
    tone = nodes.mix(nodes.noise(m.stretched(nodes, (1, 1, 0.2)), 0.5), m.rgb(colour),
                     tuple(0.62 * level for level in m.rgb(colour)))
    shader = nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=rough,
                       Normal=nodes.bump(nodes.noise(where, 1.0), 0.1))
    m.surface(nodes, shader, HAZE)
    return made


def sag(y, low, high, half):
    """Height of the cable, y from the middle of a span."""
    return low + (high - low) * (y / half) ** 2


def tower(y, paint):
    """Two legs that step back towards the top, with braces."""
    for x in (-13, 13):
        for low, high, wide in ((-40, DECK - 6, 10.5), (DECK - 6, 62, 8.6), (62, 92, 7.4), (92, TOP, 6.2)):
            s.box("leg", (wide * 0.62, wide, high - low), paint, 0.25, (x, y, (low + high) / 2))
            for u in (-0.31, 0.31):
                for v in (-0.25, 0.25):
                    s.box("rib", (0.35, 0.6, high - low), paint, 0, (x + u * wide, y + v * wide, (low + high) / 2))
    for z, tall in ((DECK - 9, 4.5), (60, 6.5), (89, 5.5), (TOP - 4, 5.5)):
        s.box("brace", (26, 5.0, tall), paint, 0.3, (0, y, z))
        for x in range(-7, 8, 2):
            s.box("relief", (0.5, 5.5, tall), paint, 0, (x, y, z))


def deck(paint, far):
    """The roadway on its truss."""
    long = far + 500
    middle = (far - 500) / 2
    s.box("road", (27, long, 1.2), painted("road", "5a5552", 0.8), 0, (0, middle, DECK))
    for x in (-13, 13):
        s.box("girder", (0.8, long, 1.1), paint, 0, (x, middle, DECK - 0.4))
        s.box("girder", (0.8, long, 0.9), paint, 0, (x, middle, DECK - 7.2))
        s.box("rail", (0.15, long, 0.15), paint, 0, (x, middle, DECK + 2.0))
        y = -500.0
        while y < far:
            s.tube("post", [(x, y, DECK), (x, y, DECK - 7)], 0.28, paint)
            s.tube("slant", [(x, y, DECK - 7), (x, y + 7.6, DECK)], 0.25, paint)
            s.tube("stay", [(x, y, DECK), (x, y, DECK + 2)], 0.09, paint)
            y += 7.6


def cables(paint, towers):
    """The main cables and the hangers from them."""
    first, last = towers
    half = (last - first) / 2
    for x in (-13, 13):
        line = [(x, first + half + t, sag(t, DECK + 5, TOP, half)) for t in (half * i / 40 for i in range(-40, 41))]
        before = [(x, first - 330 * (1 - i / 30),
                   TOP - (TOP - DECK - 3) * (1 - i / 30) - 13 * sin(pi * i / 30)) for i in range(30)]
        after = [(x, last + 330 * i / 30, TOP - (TOP - DECK - 3) * i / 30 - 13 * sin(pi * i / 30)) for i in range(1, 31)]
        s.tube("cable", before + line + after, 0.75, paint)
        y = first + 15.2
        while y < last:
            s.tube("hanger", [(x, y, DECK), (x, y, sag(y - first - half, DECK + 5, TOP, half))], 0.16, paint)
            y += 15.2
        for side, foot in ((-1, first), (1, last)):
            for i in range(1, 20):
                t = 1 - i * 15.2 / 330
                top = TOP - (TOP - DECK - 3) * (1 - t) - 13 * sin(pi * t)
                s.tube("hanger", [(x, foot + side * i * 15.2, DECK), (x, foot + side * i * 15.2, max(top, DECK))], 0.16,
                       paint)


def warmth(nodes, ray):
    """How near a ray passes by the sun: a wide glow, and a narrow one."""
    near = nodes.math("MAXIMUM", nodes.vector("DOT_PRODUCT", nodes.vector("NORMALIZE", ray), SUN), 0.0)
    return nodes.math("POWER", near, 14.0), nodes.math("POWER", near, 160.0)


def looked_along(nodes):
    """The way of the ray that meets a surface."""
    return nodes.vector("MULTIPLY", nodes.add("ShaderNodeNewGeometry").outputs["Incoming"], (-1, -1, -1))


def fog(height, density, thickness, seed):
    """A layer of fog: a sheet that hides more where its noise is thick, and shines towards the sun."""
    made, nodes = m.material("fog")
    cloud = nodes.noise(nodes.vector("ADD", m.stretched(nodes, (0.0042, 0.0026, 1)), (seed, 2 * seed, 0)), 1.0, detail=9.0,
                        distortion=0.3)
    cover = nodes.math("MULTIPLY", nodes.rise(cloud, density, density + thickness), 0.62)
    wide, narrow = warmth(nodes, looked_along(nodes))
    tone = nodes.ramp(cloud, (density, (0.13, 0.125, 0.15)), (0.8, (0.36, 0.31, 0.31)))
    lit = nodes.ramp(cloud, (density, (0.75, 0.44, 0.22)), (0.8, (1.7, 1.12, 0.66)))
    tone = nodes.mix(nodes.math("ADD", nodes.math("MULTIPLY", wide, 0.75), nodes.math("MULTIPLY", narrow, 0.5)), tone, lit)
    m.no_lamp(nodes)
    m.surface(nodes, nodes.add("ShaderNodeMixShader", cover, nodes.add("ShaderNodeBsdfTransparent"),
                               nodes.add("ShaderNodeEmission", tone, 1.0)))
    layer = s.sheet("fog", (5000, 4600), (2, 2), lambda x, y: 0.0, made)
    layer.location = (0, 1800, height)
    layer.visible_shadow = False


def hills():
    """Headlands behind, paler the farther they are."""
    for far, tall, wide, tone in ((1500, 210, 4800, (0.19, 0.15, 0.17)), (2400, 330, 7600, (0.36, 0.27, 0.25))):
        made, nodes = m.material("hill")
        warm = warmth(nodes, looked_along(nodes))[0]
        m.no_lamp(nodes)
        m.surface(nodes, nodes.add("ShaderNodeEmission", nodes.mix(warm, tone, (0.85, 0.50, 0.27)), 1.0))
        line = [(x, far, tall * (0.42 + 0.55 * noise.fractal(Vector((x / 760, far, 0)), 1.0, 2.1,
                                                             7))) for x in range(-wide // 2, wide // 2, 12)]
        s.ridge(line, -40, made)


def morning():
    """The sun a few degrees up behind a veil, grey blue above."""
    nodes = world()
    ray = nodes.place("Generated")
    tones = ((0.0, (0.50, 0.36, 0.28)), (0.06, (0.46, 0.34, 0.29)), (0.16, (0.27, 0.25, 0.28)), (0.42, (0.085, 0.115, 0.19)))
    tone = veiled(nodes, ray, tones, (0.50, 0.37, 0.32), (1.2, 1.2, 6.0))
    wide, narrow = warmth(nodes, ray)
    tone = nodes.mix(nodes.math("MULTIPLY", wide, 0.8), tone, (1.25, 0.70, 0.33))
    tone = nodes.mix(nodes.math("MULTIPLY", narrow, 0.8), tone, (3.6, 2.3, 1.2))
    disk = nodes.rise(nodes.vector("DOT_PRODUCT", nodes.vector("NORMALIZE", ray), SUN), 0.99993, 0.99996)
    tone = nodes.mix(disk, tone, (22.0, 16.0, 9.0))
    nodes.add("ShaderNodeOutputWorld", nodes.add("ShaderNodeBackground", tone, 0.9))


def headland():
    """The slope on which the camera stands, with firs at its edge."""
    on = numpy.array(AIM) - EYE
    on = on * [1, 1, 0] / numpy.hypot(*on[:2])
    right = numpy.array([on[1], -on[0], 0])

    def place(far, aside):
        fall = 6.2 + 0.11 * far + 0.0016 * far ** 2 + 0.055 * (aside + 22) * (aside > -22) + 2.2 * layered(aside / 17, far / 17, 4, 5)
        return numpy.array(EYE) + far[..., None] * on + aside[..., None] * right - fall[..., None] * [0, 0, 1.0]

    far, aside = numpy.meshgrid(numpy.linspace(6, 130, 160), numpy.linspace(-110, 110, 260), indexing="ij")
    sheet("headland", place(far, aside), m.plain("heath", "2a2618", 0.9))
    chance = numpy.random.default_rng(39)
    grass = [tuft(chance, [m.plain("grass", "2b2613", 0.9)], 22, 0.75, 0.012, 0.6, 0.9) for _ in range(3)]
    near = numpy.column_stack([chance.uniform(20, 90, 9000), chance.uniform(-55, 55, 9000)])
    scatter(grass, place(near[:, 0], near[:, 1]), random_turns(chance, 9000, 0.15), chance.uniform(0.4, 1.3, 9000))
    spots = [(58, -34, 1.15), (50, -27.5, 0.72), (66, -29, 0.95), (47, -35, 0.8), (72, -37, 1.25), (60, -22.5, 0.45), (78, 33, 0.5), (70, 38, 0.8), (84, 41, 0.95), (64, 34, 0.33), (56, -18, 0.25), (52, -24.5, 0.5), (63, -37.5, 1.0), (74, -25.5, 0.6), (81, 37, 0.62)]
    trees = [fir(chance, m.plain("bark", "1c1612", 0.9), m.plain("needles", "141a12", 0.9), 17, 34, name="tree") for _ in range(3)]
    spots = numpy.array(spots)
    scatter(trees, place(spots[:, 0], spots[:, 1]) - [0, 0, 0.5], random_turns(chance, len(spots), 0.03), spots[:, 2])


def build():
    morning()
    red = painted("red", "b5402a", 0.5)
    towers = (120.0, 120.0 + SPAN)
    for y in towers:
        tower(y, red)
    deck(red, 1300)
    cables(red, towers)
    hills()
    headland()
    water = m.plain("bay", "30363e", 0.45, Specular=0.12)
    s.sheet("bay", (6000, 6000), (2, 2), lambda x, y: -16.0, water).location.y = 2000
    for i in range(9):
        fog(-6 + 3.6 * i, 0.40 + 0.016 * i, 0.28, 3.1 * i)
    m.lamp("SUN", tuple(400 * part for part in SUN), (0, 0, 0), 3.0, (1.0, 0.74, 0.48), angle=0.02)
    camera(EYE, AIM, 38)
    return Roll(samples=16, exposure=0.1, look="High Contrast", glow=0.10, warmth=0.03, saturation=1.1)
