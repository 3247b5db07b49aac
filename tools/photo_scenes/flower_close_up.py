"""A pink flower with drops on its petals, close, before the blur of a garden."""
import math

import numpy

from common import camera, daylight, mesh_object, scatter
from film import Roll
from flowers import circle_of, dome, facing, turned_soup
from growth import Soup, bent_line, petal, stem, strip
from nodes import leafy, material, plain, surface

FORMAT = "portrait"


def petals():
    """Lighter towards the root, with veins along the petal and soft light from within."""
    made, nodes = material("petals")
    reach = nodes.vector("LENGTH", nodes.place())
    place = nodes.place()
    apart = nodes.add("ShaderNodeSeparateXYZ", place)
    turn = nodes.math("ARCTAN2", apart.outputs[0], apart.outputs[1])
    vein = nodes.noise(nodes.add("ShaderNodeCombineXYZ", nodes.math("MULTIPLY", turn, 40.0), nodes.math("MULTIPLY", reach, 12.0), 0.0), 1.0, detail=3.0)
    tone = nodes.ramp(nodes.math("MULTIPLY", reach, 18.0), (0.1, (0.88, 0.62, 0.70)), (0.45, (0.80, 0.28, 0.46)), (1.0, (0.66, 0.10, 0.30)))
    tone = nodes.mix(nodes.math("MULTIPLY", nodes.rise(vein, 0.45, 0.7), 0.35), tone, (0.55, 0.05, 0.25))
    bump = nodes.bump(vein, 0.35, 0.0006)
    front = nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.45, Specular=0.3, Sheen=0.4, Normal=bump)
    surface(nodes, nodes.add("ShaderNodeMixShader", 0.38, front, nodes.add("ShaderNodeBsdfTranslucent", tone)))
    return made


def heart(soup, chance):
    """Hundreds of small florets in the spiral of all such flowers, the inner ones still closed."""
    dome(soup, 0.0098, 0.0043, 2, 0.0)
    for n in range(330):
        radius = 0.0092 * math.sqrt(n / 330)
        turn = n * 2.39996
        out = numpy.array([math.cos(turn), math.sin(turn), 0])
        root = out * radius + [0, 0, 0.0042 * (1 - (radius / 0.0095) ** 2)]
        tall = 0.0012 + 0.0022 * (n / 330) ** 2
        line = bent_line(root, out * (0.15 + 0.5 * radius / 0.009) + [0, 0, 1], tall, [0, 0, 0], 3)
        stem(soup, line, numpy.array([0.8, 1.0, 0.55]) * 0.00042, 1 if n < 190 else 2, 5)


def dew():
    """Clear, with a bright rim: light isn't traced through it, which would need far more samples."""
    made, nodes = material("dew")
    edge = nodes.add("ShaderNodeLayerWeight", 0.35).outputs["Facing"]
    share = nodes.math("MULTIPLY_ADD", nodes.math("POWER", edge, 2.0), 0.5, 0.06)
    surface(nodes, nodes.add("ShaderNodeMixShader", share, nodes.add("ShaderNodeBsdfTransparent"), nodes.add("ShaderNodeBsdfGlossy", (1, 1, 1), 0.02)))
    return made


def drops(chance, spots):
    """Dew as small flat balls of water."""
    u, v = numpy.meshgrid(numpy.linspace(0, 2 * math.pi, 16, endpoint=False), numpy.linspace(-math.pi / 2, math.pi / 2, 9))
    soup = Soup()
    soup.raster(numpy.stack([numpy.cos(v) * numpy.cos(u), numpy.cos(v) * numpy.sin(u), 0.6 * numpy.sin(v)], axis=-1), closed=True)
    ball = soup.made("drop", [dew()])
    scatter([ball], spots, None, 0.0004 + 0.0009 * chance.random(len(spots)) ** 2)


def flower(chance):
    soup = Soup()
    line = bent_line(numpy.array([0.012, 0.0, -0.2]), [-0.12, 0, 1], 0.2, [0.12, 0, 0], 8)
    stem(soup, line, [0.0021] * 8, 3, 10)
    first, spots = len(soup.points), []
    for ring, (count, rise) in enumerate(((17, 0.12), (16, 0.27), (13, 0.5))):
        for out in circle_of(count, ring * 0.19):
            length = 0.047 * (1 - 0.1 * ring) * chance.uniform(0.93, 1.06)
            petal(soup, out * 0.0075 + [0, 0, 0.0006 * ring], out + chance.normal(0, 0.045, 3), length, 0.0138, rise + chance.uniform(-0.06, 0.08),
                  chance.uniform(-0.55, -0.15), 0.42, 0, 0.85, 14)
            if chance.random() < 0.6:
                spots.append(soup.points[-1].reshape(14, 7, 3)[chance.integers(5, 12), chance.integers(2, 5)])
    heart(soup, chance)
    matrix = facing(1.02, 0.25)
    turned_soup(soup, first, matrix, line[-1])
    drops(chance, numpy.array(spots) @ matrix.T + line[-1] + [0, -0.0003, 0.0003])
    made = soup.made("flower", [petals(), plain("florets", (0.62, 0.42, 0.03), 0.6), plain("open", (0.9, 0.5, 0.03), 0.55), leafy("stem", (0.07, 0.14, 0.03), (0.1, 0.2, 0.04), 0.2)])
    made.data.polygons.foreach_set("use_smooth", [True] * len(made.data.polygons))
    return line[-1]


def garden(chance):
    """What the blur is made of: leaves, blades and other blossoms a little way behind."""
    greens = [leafy("leaf", (0.03, 0.09, 0.012), (0.15, 0.26, 0.04), 0.5), leafy("far", (0.62, 0.16, 0.34), (0.8, 0.42, 0.5), 0.4), leafy("light", (0.75, 0.72, 0.5), (0.8, 0.7, 0.2), 0.4)]
    soup = Soup()
    for _ in range(900):
        at = numpy.array([chance.uniform(-0.55, 0.55), chance.uniform(0.3, 1.3), chance.uniform(-0.75, 0.42)])
        out = chance.standard_normal(3) * [1, 0.6, 0.8] + [0, 0, 0.6]
        strip(soup, bent_line(at, out, chance.uniform(0.08, 0.22), [0, 0, -0.6], 5), numpy.array([0.3, 0.9, 1, 0.7, 0.05]) * chance.uniform(0.008, 0.022), chance.standard_normal(3), 0, 0.2)
    for _ in range(26):
        at = numpy.array([chance.uniform(-0.5, 0.5), chance.uniform(0.35, 1.1), chance.uniform(-0.4, 0.3)])
        kind = 1 + (chance.random() < 0.35)
        for out in circle_of(9, chance.uniform(0, 6)):
            petal(soup, at, out, 0.036, 0.02, 0.3, -0.3, 0.2, kind, 0.4, 4)
    soup.made("garden", greens)


def build():
    chance = numpy.random.default_rng(9)
    head = flower(chance)
    garden(chance)
    mesh_object("ground", [(-3, -1, -0.6), (3, -1, -0.6), (3, 5, -0.6), (-3, 5, -0.6)], [(0, 1, 2, 3)], plain("ground", (0.03, 0.06, 0.012)))
    mesh_object("hedge", [(-3, 1.6, -1), (3, 1.6, -1), (3, 1.6, 0.75), (-3, 1.6, 0.75)], [(0, 1, 2, 3)], plain("hedge", (0.02, 0.055, 0.014)))
    camera((0.004, -0.31, head[2] + 0.08), (0.004, 0, head[2] - 0.022), lens=70, focus=0.312, f_stop=6.3)
    daylight(40, -108, strength=0.13, dust=0.6, sun_size=1.5)
    return Roll(samples=16, bounces=4, exposure=0.15, saturation=1.12, glow=0.06)
