"""A suspension bridge whose towers rise out of the fog of a bay, early in the morning."""
from math import pi, sin

from mathutils import Vector, noise

import materials as m
import shapes as s
from common import camera, world
from film import Roll

FORMAT = "landscape"
HAZE = ((0.56, 0.50, 0.49), 1500.0)
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


def fog(height, density, thickness, seed):
    """A layer of fog: a sheet that hides more where its noise is thick."""
    made, nodes = m.material("fog")
    cloud = nodes.noise(nodes.vector("ADD", m.stretched(nodes, (0.0042, 0.0026, 1)), (seed, 2 * seed, 0)), 1.0, detail=9.0,
                        distortion=0.3)
    cover = nodes.math("MULTIPLY", nodes.rise(cloud, density, density + thickness), 0.62)
    tone = nodes.ramp(cloud, (density, (0.60, 0.53, 0.52)), (0.8, (0.92, 0.80, 0.74)))
    m.surface(nodes, nodes.add("ShaderNodeMixShader", cover, nodes.add("ShaderNodeBsdfTransparent"),
                               nodes.add("ShaderNodeEmission", tone, 0.85)))
    sheet = s.sheet("fog", (5000, 4600), (2, 2), lambda x, y: 0.0, made)
    sheet.location = (0, 1800, height)


def hills():
    """Headlands behind, bluer the farther they are."""
    for far, tall, wide, tone in ((1500, 210, 2600, (0.40, 0.39, 0.43)), (2400, 330, 4200, (0.50, 0.47, 0.50))):
        made, nodes = m.material("hill")
        m.surface(nodes, nodes.add("ShaderNodeEmission", tone, 1.0))
        line = [(x, far, tall * (0.42 + 0.55 * noise.fractal(Vector((x / 760, far, 0)), 1.0, 2.1,
                                                             7))) for x in range(-wide // 2, wide // 2, 12)]
        points = line + [(x, y, -40) for x, y, _ in line]
        count = len(line)
        s.mesh("hill", points, [(i, i + 1, count + i + 1, count + i) for i in range(count - 1)], made)


def morning():
    """Pale blue above, peach over the fog."""
    nodes = world()
    ray = nodes.place("Generated")
    height = nodes.add("ShaderNodeSeparateXYZ", ray).outputs[2]
    veil = nodes.noise(nodes.vector("MULTIPLY", ray, (1.2, 1.2, 6.0)), 2.6, detail=8.0, distortion=0.5)
    base = nodes.ramp(height, (0.0, (0.78, 0.62, 0.55)), (0.06, (0.86, 0.66, 0.55)), (0.16, (0.68, 0.62, 0.66)),
                      (0.42, (0.34, 0.43, 0.60)))
    tone = nodes.mix(nodes.math("MULTIPLY", nodes.rise(veil, 0.5, 0.8), 0.55), base, (0.98, 0.80, 0.70))
    nodes.add("ShaderNodeOutputWorld", nodes.add("ShaderNodeBackground", tone, 0.9))


def build():
    morning()
    red = painted("red", "b5402a", 0.5)
    towers = (120.0, 120.0 + SPAN)
    for y in towers:
        tower(y, red)
    deck(red, 1300)
    cables(red, towers)
    hills()
    water = m.plain("bay", "59606a", 0.2)
    s.sheet("bay", (6000, 6000), (2, 2), lambda x, y: -16.0, water).location.y = 2000
    for i in range(9):
        fog(-6 + 3.6 * i, 0.40 + 0.016 * i, 0.28, 3.1 * i)
    m.lamp("SUN", (400, -150, 190), (0, 300, 60), 3.2, (1.0, 0.80, 0.62), angle=0.02)
    camera((-285, -215, 74), (30, 300, 62), 38)
    return Roll(samples=12, exposure=0.2, look="High Contrast", glow=0.08, warmth=0.03, saturation=1.25)
