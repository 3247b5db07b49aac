"""A waterfall in a wooded gorge, drawn to veils by a long exposure; wet rock, moss, ferns."""
import math

import numpy

from common import camera, random_turns, scatter, sheet, smooth, unwrapped, world
from film import Roll
from growth import Soup, bent_line, stem, strip
from land import layered, ridged
from materials import lamp
from nodes import leafy, material, no_lamp, surface
from surfaces import puff
from trees import clump

FORMAT = "portrait"
AIR = ((0.42, 0.50, 0.44), 190.0)
# The wall in section: y and z. It falls in two steps.
WALL = [(12.4, -1.2), (12.7, 0), (12.9, 2), (13.2, 4.3), (14.3, 4.9), (14.6, 6), (14.8, 9), (15.1, 10.6), (16.8, 11.6), (22, 14), (30, 18)]


def rock(x, z):
    """How far the rock stands out, in metres: blocks, cracks, beds that dip to one side."""
    bed = z + 0.16 * x
    blocks = 0.75 * ridged(x / 3.1, bed / 1.7, 3, 7, 0.5) + 0.28 * ridged(x / 0.9 + 4, bed / 0.38, 12, 5, 0.5)
    return blocks + 0.5 * layered(x / 5, z / 5, 8, 4) - 0.75 * numpy.exp(-((x - 0.2) / 2.1) ** 2) + 0.018 * x * x


def wall(made_of):
    section = smooth(WALL, 900)
    x = numpy.linspace(-11, 11, 800)[None, :]
    y, z = section[:, :1], section[:, 1:]
    out = rock(x + 0 * z, z + 0 * x)
    return sheet("wall", numpy.stack(numpy.broadcast_arrays(x, y - out, z + 0.35 * out), axis=-1), made_of)


def stone():
    """Dark and wet by the water, moss where it looks up."""
    made, nodes = material("stone")
    place = nodes.place()
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.add("ShaderNodeNewGeometry").outputs["Position"])
    up = nodes.add("ShaderNodeSeparateXYZ", nodes.add("ShaderNodeNewGeometry").outputs["Normal"]).outputs[2]
    form = nodes.noise(place, 2.2, detail=11.0, roughness=0.66)
    fine = nodes.noise(place, 34.0, detail=6.0, roughness=0.7)
    tone = nodes.ramp(form, (0.3, (0.018, 0.016, 0.015)), (0.52, (0.060, 0.054, 0.048)), (0.75, (0.13, 0.115, 0.10)))
    off = nodes.math("ABSOLUTE", nodes.math("SUBTRACT", apart.outputs[0], 0.2))
    wet = nodes.math("MAXIMUM", nodes.rise(nodes.math("MULTIPLY_ADD", form, 4.0, off), 5.2, 3.4), nodes.rise(nodes.math("MULTIPLY_ADD", form, -1.0, apart.outputs[2]), -0.05, -0.42))
    green = nodes.mix(fine, (0.022, 0.045, 0.008), (0.10, 0.15, 0.025))
    moss = nodes.math("MULTIPLY", nodes.rise(nodes.math("MULTIPLY_ADD", form, 0.9, up), 0.62, 0.95), nodes.math("MULTIPLY_ADD", wet, -0.85, 1.0))
    tone = nodes.mix(moss, nodes.mix(nodes.math("MULTIPLY", wet, 0.6), tone, (0.010, 0.010, 0.011)), green)
    dry = nodes.math("MAXIMUM", moss, nodes.math("SUBTRACT", 1.0, wet))
    height = nodes.math("MULTIPLY_ADD", fine, nodes.math("MULTIPLY_ADD", moss, 0.6, 0.12), form)
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=nodes.math("MULTIPLY_ADD", dry, 0.62, 0.26), Specular=0.5, Normal=nodes.bump(height, 0.8, 0.12)), AIR)
    return made


def veil_cloth(seed, thick):
    """Water that fell for a second: streaks along its way, thin at both sides."""
    made, nodes = material("veil")
    no_lamp(nodes)
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place("UV"))
    across, down = apart.outputs[0], apart.outputs[1]

    def streaks(often, length, number):
        return nodes.noise(nodes.add("ShaderNodeCombineXYZ", nodes.math("MULTIPLY", across, often), nodes.math("MULTIPLY", down, length), seed + number), 1.0, detail=4.0, roughness=0.6)
    fine, broad = streaks(34.0, 0.9, 0.0), streaks(6.0, 0.5, 9.0)
    edge = nodes.math("ABSOLUTE", nodes.math("MULTIPLY_ADD", across, 2.0, -1.0))
    body = nodes.math("SUBTRACT", nodes.math("MULTIPLY_ADD", fine, 0.55, broad), nodes.math("MULTIPLY", nodes.math("POWER", edge, 2.0), 0.42))
    share = nodes.math("MULTIPLY", nodes.rise(body, 0.56 - 0.2 * thick, 1.06 - 0.2 * thick), nodes.rise(edge, 1.0, 0.8))
    tone = nodes.mix(fine, (0.62, 0.68, 0.72), (0.92, 0.94, 0.95))
    white = nodes.add("ShaderNodeMixShader", 0.45, nodes.add("ShaderNodeBsdfDiffuse", tone), nodes.add("ShaderNodeBsdfTranslucent", tone))
    surface(nodes, nodes.add("ShaderNodeMixShader", share, nodes.add("ShaderNodeBsdfTransparent"), white))
    return made


def veil(way, seed, thick, shift=0.0):
    """A fall along a way of (x, y, z, half its width), from above to below."""
    line = smooth(way, 160)
    across = numpy.linspace(-1, 1, 60)[None, :]
    down = numpy.linspace(0, 1, 160)[:, None]
    wave = 0.10 * layered(across * 3 + seed, down * 1.5, int(seed), 4)
    x = line[:, :1] + line[:, 3:] * across * (1 + 0.15 * layered(down * 4 + 0 * across, across * 0, int(seed) + 3, 3))
    y = line[:, 1:2] - shift - wave + 0.25 * across ** 2
    made = sheet("veil", numpy.stack(numpy.broadcast_arrays(x, y, line[:, 2:3]), axis=-1), veil_cloth(seed, thick))
    unwrapped(made, numpy.stack(numpy.broadcast_arrays((across + 1) / 2, down * 3), axis=-1).reshape(-1, 2))
    made.visible_shadow = False


def water_falls():
    upper = [(0.35, 16.4, 11.7, 0.75), (0.30, 15.3, 11.25, 0.62), (0.25, 14.55, 10.3, 0.62), (0.2, 14.15, 8.0, 0.78), (0.15, 13.9, 6.0, 0.95), (0.1, 13.75, 5.2, 1.15)]
    lower = [(0.1, 14.1, 5.5, 1.2), (0.1, 13.3, 5.25, 1.45), (0.05, 12.75, 4.6, 1.6), (-0.05, 12.45, 2.6, 1.85), (-0.1, 12.25, 0.6, 2.1), (-0.1, 12.1, -0.1, 2.3)]
    for way, strands in ((upper, ((-0.5, 0.5), (0.55, 0.35))), (lower, ((-2.2, 0.45), (1.9, 0.6), (2.7, 0.25)))):
        for layer in range(3):
            veil(way, 3.0 + 11 * layer + way[0][1], 0.9 - 0.35 * layer, 0.10 * layer)
        for aside, wide in strands:
            veil([(x + aside * (1 + 0.1 * n), y, z, wide * (0.6 + 0.12 * n)) for n, (x, y, z, _) in enumerate(way)], 40.0 + 7 * aside, 0.55, -0.12)


def mist():
    """Spray at the feet of both steps."""
    for x, y, z, wide, tall, level in ((0, 11.9, 0.5, 3.6, 1.5, 0.85), (-0.6, 11.2, 0.3, 3.0, 0.9, 0.6), (0.9, 11.4, 0.7, 3.2, 1.7, 0.5), (0.1, 13.4, 5.5, 1.9, 0.9, 0.7), (0.3, 12.6, 2.0, 5.0, 3.6, 0.25)):
        puff((x, y, z), wide, tall, level, (0.45, 0.49, 0.50))


def pool():
    """Clear and dark, white under the fall, with foam drawn out by the current."""
    made, nodes = material("pool")
    place = nodes.place()
    apart = nodes.add("ShaderNodeSeparateXYZ", place)
    x, y = apart.outputs[0], apart.outputs[1]
    off = nodes.vector("LENGTH", nodes.vector("MULTIPLY", nodes.vector("SUBTRACT", place, (0.0, 12.2, 0.0)), (0.55, 1.0, 0.0)))
    swirl = nodes.noise(nodes.add("ShaderNodeCombineXYZ", nodes.math("MULTIPLY", x, 1.5), nodes.math("MULTIPLY", off, 2.4), 2.0), 1.0, detail=7.0, roughness=0.6, distortion=0.9)
    drawn = nodes.noise(nodes.add("ShaderNodeCombineXYZ", nodes.math("MULTIPLY", x, 3.2), nodes.math("MULTIPLY", y, 0.5), 5.0), 1.0, detail=6.0, distortion=1.4)
    near = nodes.rise(nodes.math("MULTIPLY_ADD", swirl, -2.2, off), 1.3, -0.5)
    foam = nodes.math("MAXIMUM", near, nodes.math("MULTIPLY", nodes.rise(drawn, 0.56, 0.74), 0.5))
    tone = nodes.mix(foam, nodes.mix(nodes.rise(off, 2.0, 6.5), (0.03, 0.065, 0.06), (0.012, 0.022, 0.016)), (0.78, 0.82, 0.83))
    normal = nodes.bump(nodes.math("ADD", drawn, swirl), 0.22, 0.12)
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=nodes.math("MULTIPLY_ADD", foam, 0.5, 0.09), IOR=1.33, Normal=normal))
    sheet("pool", numpy.array([[(-12, -2, 0), (12, -2, 0)], [(-12, 16, 0), (12, 16, 0)]], dtype=float), made)


def boulder(chance, made_of):
    """A block with worn edges, about 1 m."""
    u, v = numpy.meshgrid(numpy.linspace(0, 2 * math.pi, 120, endpoint=False), numpy.linspace(-math.pi / 2, math.pi / 2, 80))
    way = numpy.stack([numpy.cos(v) * numpy.cos(u), numpy.cos(v) * numpy.sin(u), numpy.sin(v)], axis=-1)
    square = numpy.sum(numpy.abs(way) ** 3.4, axis=-1) ** (-1 / 3.4)
    a, b = chance.uniform(0, 50, 2)
    rough = 1 + 0.22 * layered(way[..., 0] * 1.3 + a, way[..., 1] * 1.3 + way[..., 2] * 1.1 + b, 4, 5) + 0.09 * ridged(way[..., 0] * 2 + way[..., 2] + b, way[..., 1] * 2 + way[..., 2] + a, 6, 5)
    return sheet("boulder", way * (0.5 * square * rough)[..., None] * [1.25, 1.0, 0.7], made_of, closed=True)


def boulders(chance, made_of):
    kinds = [boulder(chance, made_of) for _ in range(6)]
    spots = [(-3.4, 10.4, 2.3), (-2.2, 9.6, 1.2), (3.3, 10.6, 2.6), (2.3, 9.3, 1.0), (4.3, 8.6, 2.0), (-4.3, 8.0, 2.4), (-2.6, 6.9, 1.15), (-1.5, 6.1, 0.55), (2.5, 6.6, 1.5), (3.0, 5.2, 1.8),
             (1.15, 5.5, 0.6), (-2.5, 4.6, 1.6), (-1.35, 4.1, 0.6), (1.75, 3.9, 0.9), (-5.2, 11.2, 2.6), (5.4, 11.4, 3.0), (0.5, 8.3, 0.6), (-0.7, 7.7, 0.4), (-1.9, 3.0, 1.1), (1.9, 2.7, 1.2)]
    places = numpy.array([(x, y, 0.08 * size) for x, y, size in spots])
    scatter(kinds, places, random_turns(chance, len(spots), 0.25), numpy.array([size for _, _, size in spots]))


def fern(chance, made_of, fronds=9):
    """Fronds around a root, each with leaflets to both sides; 1 m across."""
    soup = Soup()
    for number in range(fronds):
        turn = number * 2 * math.pi / fronds + chance.uniform(-0.3, 0.3)
        out = numpy.array([math.cos(turn), math.sin(turn), 0])
        line = bent_line(numpy.zeros(3), out * chance.uniform(0.5, 1.0) + [0, 0, 1], chance.uniform(0.45, 0.7), out * 0.9 - [0, 0, 1.1], 22)
        stem(soup, line, numpy.linspace(0.004, 0.001, 22), 0, 4)
        aside = numpy.cross(out, [0, 0, 1])
        for n in range(3, 21):
            along = line[n] - line[n - 1]
            along /= numpy.linalg.norm(along)
            long = 0.13 * math.sin(math.pi * (0.16 + 0.8 * (n / 22) ** 0.8)) * chance.uniform(0.9, 1.1)
            for side in (-1, 1):
                leaf = bent_line(line[n], aside * side + along * 0.35, long, [0, 0, -0.35], 4)
                strip(soup, leaf, long * numpy.array([0.11, 0.13, 0.09, 0.01]), along, 0, 0.15)
    return soup.made("fern", [made_of])


def bush(chance, made_of):
    """A cloud of leaves, 1.6 m across."""
    return clump(chance, made_of, chance.normal(0, 0.33, (26, 3)) * [1, 1, 0.75], 46, 0.14, 0.034)


def greenery(chance):
    """Ferns on the ledges, bushes along the edge of the wall, and two ferns close to the lens."""
    green = leafy("fern", (0.035, 0.085, 0.012), (0.11, 0.19, 0.03), 0.4, haze=AIR)
    ferns = [fern(chance, green) for _ in range(3)]
    section = smooth(WALL, 900)
    x, at = chance.uniform(-8, 8, 260), chance.integers(60, 760, 260)
    clear = numpy.abs(x - 0.2) > 2.3 + 0.4 * chance.random(260)
    out = rock(x, section[at, 1])
    places = numpy.column_stack([x, section[at, 0] - out - 0.02, section[at, 1] + 0.35 * out])[clear]
    turns = random_turns(chance, len(places), 0.3)
    turns[:, 0] += 0.5
    scatter(ferns, places, turns, chance.uniform(0.5, 1.2, len(places)))
    leaves = leafy("leaves", (0.05, 0.10, 0.015), (0.17, 0.24, 0.045), 0.5, haze=AIR)
    x, y = chance.uniform(-11, 11, 900), chance.uniform(15.5, 32, 900)
    wooded = 1.3 * numpy.clip(numpy.abs(x) - 2, 0, 6) + numpy.clip(y - 19, 0, 12) * 0.75
    z = numpy.interp(y, section[:, 0], section[:, 1]) + chance.uniform(0.1, 1.0, 900) + wooded * chance.random(900)
    clear = (numpy.abs(x - 0.3) > 1.2) | (y > 19)
    sides = [(side * chance.uniform(5.0, 8.5), chance.uniform(8, 13), chance.uniform(1.5, 12)) for side in (-1, 1) for _ in range(60)]
    places = numpy.concatenate([numpy.column_stack([x, y, z])[clear], numpy.array(sides)])
    scatter([bush(chance, leaves) for _ in range(4)], places, random_turns(chance, len(places), 0.5), chance.uniform(0.5, 1.3, len(places)))
    near = numpy.array([(-0.66, 1.55, 0.90), (0.80, 1.7, 0.76), (-0.95, 2.2, 0.66)])
    scatter(ferns, near, random_turns(chance, 3, 0.2), numpy.array([0.75, 0.7, 0.8]))


def build():
    chance = numpy.random.default_rng(17)
    nodes = world()
    up = nodes.add("ShaderNodeSeparateXYZ", nodes.place("Generated")).outputs[2]
    tone = nodes.ramp(nodes.math("MULTIPLY_ADD", up, 0.5, 0.5), (0.45, (0.10, 0.12, 0.08)), (0.55, (0.62, 0.72, 0.66)), (0.8, (0.95, 1.0, 1.0)), (1.0, (1.3, 1.36, 1.4)))
    nodes.add("ShaderNodeOutputWorld", nodes.add("ShaderNodeBackground", tone, 1.0))
    rocks = stone()
    wall(rocks)
    boulders(chance, rocks)
    water_falls()
    mist()
    pool()
    greenery(chance)
    lamp("SUN", (-6, 2, 16), (0, 12, 3), 1.6, (1.0, 0.95, 0.85), angle=0.5)
    camera((0.1, 0, 1.45), (0.1, 12, 5.0), lens=28, focus=11, f_stop=2.4)
    return Roll(samples=22, bounces=5, exposure=0.65, look="High Contrast", glow=0.09, saturation=1.15)
