"""A palm leans over a lagoon, the sun high."""
import math

import numpy

from common import camera, daylight, tube
from film import Roll
from growth import Soup, bent_line, stem, strip, unit
from land import ground, layered, noise, sea
from nodes import leafy, material, plain, surface

FORMAT = "portrait"
AIR = ((0.62, 0.74, 0.84), 9000.0)


def lagoon():
    """Clear over sand at the shore, turquoise, then deep blue; foam where it runs out."""
    made, nodes = material("lagoon")
    place = nodes.place()
    off = nodes.add("ShaderNodeSeparateXYZ", place).outputs[1]
    patches = nodes.noise(nodes.vector("MULTIPLY", place, (0.5, 1.6, 1.0)), 0.035, detail=6.0)
    depth = nodes.math("MULTIPLY_ADD", patches, 26.0, nodes.math("SUBTRACT", off, 13.0))
    tone = nodes.ramp(nodes.math("DIVIDE", depth, 260.0), (0.04, (0.42, 0.50, 0.38)), (0.10, (0.09, 0.42, 0.40)), (0.28, (0.015, 0.26, 0.30)), (0.6, (0.008, 0.13, 0.24)), (1.0, (0.006, 0.06, 0.15)))
    edge = nodes.math("MULTIPLY_ADD", nodes.noise(nodes.vector("MULTIPLY", place, (1.0, 0.4, 1.0)), 0.22, detail=3.0), 5.0, off)
    lace = nodes.noise(place, 2.4, detail=7.0, roughness=0.7, distortion=1.2)
    wash = nodes.math("MAXIMUM", nodes.math("MULTIPLY", nodes.rise(edge, 14.9, 13.6), nodes.rise(lace, 0.36, 0.50)), nodes.math("MULTIPLY", nodes.math("MULTIPLY", nodes.rise(edge, 19.2, 18.4), nodes.rise(edge, 17.4, 18.2)), nodes.rise(lace, 0.40, 0.52)))
    tone = nodes.mix(wash, tone, (0.85, 0.87, 0.87))
    far = nodes.add("ShaderNodeCameraData").outputs["View Distance"]
    normal = nodes.bump(nodes.noise(place, 1.9, detail=6.0, roughness=0.6), nodes.math("DIVIDE", 0.5, nodes.math("ADD", 1.0, nodes.math("DIVIDE", far, 80.0))), 0.12)
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=nodes.math("MULTIPLY_ADD", wash, 0.6, 0.12), IOR=1.33, Normal=normal), AIR)
    return made


def sand():
    made, nodes = material("sand")
    place = nodes.place()
    form = nodes.noise(place, 1.6, detail=10.0, roughness=0.6)
    grain = nodes.noise(place, 220.0, detail=2.0)
    off = nodes.math("MULTIPLY_ADD", nodes.noise(place, 0.25, detail=3.0), 3.0, nodes.add("ShaderNodeSeparateXYZ", place).outputs[1])
    wet = nodes.rise(off, 11.6, 12.6)
    tone = nodes.mix(form, (0.60, 0.49, 0.34), (0.76, 0.65, 0.48))
    tone = nodes.mix(nodes.math("MULTIPLY", grain, 0.4), tone, (0.42, 0.32, 0.21))
    tone = nodes.mix(nodes.math("MULTIPLY", wet, 0.62), tone, (0.24, 0.18, 0.11))
    normal = nodes.bump(grain, 0.2, 0.004, nodes.bump(form, nodes.math("MULTIPLY_ADD", wet, -0.85, 0.9), 0.16))
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=nodes.math("MULTIPLY_ADD", wet, -0.6, 0.9), Normal=normal))
    return made


def shore(x, y):
    return 0.06 * (13.2 - y) + 0.10 * layered(x / 3.5, y / 3.5, 4, 5, 0.5) * (y < 11.5) + 0.05 * noise(x / 0.7, y / 0.7, 9) * (y < 10.5)


def frond(soup, chance, root, way, length):
    """A rib that bends down, leaflets hanging from both its sides."""
    line = bent_line(root, way, length, [0, 0, -1.15 - 0.5 * (1 - way[2])], 22)
    stem(soup, line, 0.028 * numpy.linspace(1, 0.12, 22), 1, 5)
    out = unit(way * [1, 1, 0] + 1e-6)
    aside = numpy.array([-out[1], out[0], 0])
    along = numpy.gradient(line, axis=0)
    for n in numpy.linspace(2.5, 20.9, 58):
        at = int(n)
        place = line[at] + (line[min(at + 1, 21)] - line[at]) * (n - at)
        share = (n - 2.5) / 18.4
        reach = 0.78 * math.sin(math.pi * (0.16 + 0.80 * share)) ** 0.7 * chance.uniform(0.85, 1.1)
        for side in (-1, 1):
            leaf = aside * side * 0.85 + unit(along[at]) * 0.75 + [0, 0, chance.uniform(-0.15, 0.2)]
            blade = bent_line(place, leaf, reach, [0, 0, -chance.uniform(0.5, 1.1)], 6)
            strip(soup, blade, 0.021 * numpy.array([0.5, 1, 1, 0.85, 0.55, 0.05]), numpy.cross(leaf, [0, 0, 1]) + [0, 0, 0.2 * side], 0, -0.35)


def palm(chance, foot, lean, tall, fronds=26):
    """A trunk that bends up, rings on it, a crown, nuts."""
    leaves, rib = leafy("fronds", (0.05, 0.11, 0.018), (0.10, 0.15, 0.03), 0.42, 0.35), plain("rib", (0.20, 0.22, 0.07), 0.5)
    trunk, nut = palm_bark(), plain("nut", (0.16, 0.13, 0.03), 0.45)
    t = numpy.linspace(0, 1, 120)[:, None]
    line = numpy.asarray(foot) + numpy.array([*lean, 0]) * (0.35 * t + 0.65 * (1 - (1 - t) ** 2)) + numpy.array([0, 0, tall]) * (0.62 * t + 0.38 * t * t)
    rings = 1 + 0.05 * ((numpy.arange(120) % 3) == 0)
    tube("trunk", line, (0.13 + 0.08 * numpy.exp(-9 * t[:, 0]) - 0.03 * t[:, 0]) * rings, trunk, 18)
    soup, top = Soup(), line[-1]
    for n in range(fronds):
        turn, rise = n * 2.39996 + chance.uniform(-0.2, 0.2), 1.15 - 1.75 * (n / fronds) + chance.uniform(-0.1, 0.1)
        frond(soup, chance, top, unit(numpy.array([math.cos(turn), math.sin(turn), rise])), chance.uniform(2.3, 2.9))
    soup.made("crown", [leaves, rib])
    for n in range(8):
        turn = n * 0.9
        place = top + numpy.array([0.24 * math.cos(turn), 0.24 * math.sin(turn), -0.2 - 0.1 * (n % 2)])
        tube("nut", place + numpy.array([[0, 0, -0.14], [0, 0, -0.11], [0, 0, 0], [0, 0, 0.1], [0, 0, 0.13]]), [0.01, 0.08, 0.125, 0.08, 0.01], nut, 12)


def palm_bark():
    made, nodes = material("palm bark")
    place = nodes.place()
    form = nodes.noise(place, 7.0, detail=9.0, roughness=0.65)
    tone = nodes.mix(form, (0.13, 0.10, 0.075), (0.36, 0.30, 0.24))
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.9, Normal=nodes.bump(form, 0.8, 0.03)))
    return made


def build():
    chance = numpy.random.default_rng(28)
    ground("sand", shore, sand(), near=1.2, far=16, spread=44, rows=420, columns=420)
    sea("lagoon", lagoon(), chance, near=11.0, far=9000, spread=34, rows=700, columns=450, height=0.07, longest=7.0, shortest=0.5, wind=3.0)
    palm(chance, (-2.9, 8.2, 0.2), (3.3, 1.0), 5.0)
    palm(chance, (-6.4, 10.0, 0.2), (2.2, 2.0), 6.6, 22)
    island = leafy("island", (0.03, 0.07, 0.02), (0.06, 0.10, 0.03), 0.2, haze=((0.55, 0.68, 0.80), 2500.0))
    ground("island", lambda x, y: 60 * numpy.clip(1 - ((x - 330) / 260) ** 2, -0.1, 1) * numpy.clip(1 - ((y - 1650) / 140) ** 2, -0.1, 1) + 6 * layered(x / 25, y / 25, 8, 6, 0.6) - 5, island, near=1480, far=1800, spread=26, rows=80, columns=700)
    camera((0, 0, 1.65), (0.2, 12, 3.9), lens=25)
    daylight(52, -128, strength=0.11, dust=0.25, ozone=2.2, low=((6.0, 7.2, 8.2), 0.12),
             clouds=dict(low=0.5, high=0.68, scale=0.85, light=(12, 12, 12), shade=(7.5, 8, 9), thick=0.9, seed=14.0))
    return Roll(samples=24, exposure=-0.5, saturation=1.15)
