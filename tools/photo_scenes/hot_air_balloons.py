"""Hot-air balloons over misty hills, early in the morning."""
import math

import numpy

from common import camera, daylight, joined, random_turns, scatter, tube, turned
from film import Roll
from growth import Soup, branches
from land import ground, layered, noise, seeded_places
from nodes import leafy, material, plain, surface
from surfaces import soil

FORMAT = "portrait"
AIR = ((0.74, 0.58, 0.45), 3400.0)


def profile(steps=60):
    """Half a balloon: a ball above, a cone to the mouth below; height 1, mouth at 0."""
    t = numpy.linspace(0, 1, steps)
    ball = 0.43 * numpy.sqrt(numpy.clip(1 - ((t - 0.6) / 0.4) ** 2, 0, 1))
    cone = 0.09 + (0.405 - 0.09) * (t / 0.45) ** 0.86
    return numpy.where(t > 0.6, ball, numpy.where(t < 0.42, cone, ball * 0.5 + numpy.minimum(cone, 0.43) * 0.5)), t


def envelope(cloth, tall, gores=24):
    """Cloth that bulges between the tapes, and hangs slack a little."""
    radius, t = profile()
    angle = numpy.linspace(0, 2 * math.pi, gores * 8, endpoint=False)
    bulge = 1 + 0.028 * numpy.abs(numpy.sin(angle * gores / 2))[None, :] * numpy.clip(radius / 0.3, 0, 1)[:, None]
    bulge = bulge + 0.006 * noise(angle[None, :] * 5, t[:, None] * 40, 3)
    points = numpy.stack([radius[:, None] * bulge * numpy.cos(angle), radius[:, None] * bulge * numpy.sin(angle),
                          numpy.broadcast_to(t[:, None], bulge.shape)], axis=-1) * tall
    soup = Soup()
    soup.raster(points, closed=True)
    return soup.made("envelope", [cloth])


def cloth(colours, bands, slope=0.0):
    """Gores in turn of these colours; slope lets them run round the balloon as spirals. The burner's glow shines through."""
    made, nodes = material("cloth")
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place())
    turn = nodes.math("DIVIDE", nodes.math("ARCTAN2", apart.outputs[0], apart.outputs[1]), 2 * math.pi)
    share = nodes.math("FRACT", nodes.math("ADD", nodes.math("MULTIPLY_ADD", apart.outputs[2], slope, 0.0), nodes.math("MULTIPLY_ADD", turn, bands, 50.0)))
    stops = [(n / len(colours), colour) for n, colour in enumerate(colours)]
    tone = nodes.ramp(share, *stops, kind="CONSTANT")
    seam = nodes.math("GREATER_THAN", nodes.math("FRACT", nodes.math("MULTIPLY", apart.outputs[2], 0.55)), 0.035)
    tone = nodes.mix(nodes.math("MULTIPLY_ADD", seam, 0.25, 0.75), (0, 0, 0), tone)
    front = nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.45, Sheen=0.3)
    surface(nodes, nodes.add("ShaderNodeMixShader", 0.3, front, nodes.add("ShaderNodeBsdfTranslucent", tone)), (AIR[0], 6000.0))
    return made


def wicker():
    made, nodes = material("wicker")
    weave = nodes.add("ShaderNodeTexBrick", Vector=nodes.place("Generated"), Scale=14.0, _offset=0.5, Color1=(0.28, 0.15, 0.06), Color2=(0.2, 0.1, 0.04),
                      Mortar=(0.03, 0.015, 0.008)).outputs[0]
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=weave, Roughness=0.7), (AIR[0], 6000.0))
    return made


def balloon(place, tall, painted, turn):
    """Envelope, scoop, ropes, basket with three people."""
    dark, metal = plain("people", (0.025, 0.02, 0.03)), plain("burner", (0.3, 0.3, 0.3), 0.4)
    parts = [envelope(painted, tall)]
    low, half = -0.20 * tall, 0.042 * tall
    basket = turned("basket", [(0, low), (half * 1.15, low), (half * 1.3, low + 0.062 * tall), (half * 1.2, low + 0.062 * tall), (half * 1.1, low + 0.01)], wicker(), 4)
    parts.append(basket)
    for n in range(16):
        angle = n * math.pi / 8
        corner = round(angle / (math.pi / 2)) * math.pi / 2
        parts.append(tube("rope", [(0.092 * tall * math.cos(angle), 0.092 * tall * math.sin(angle), 0.01 * tall),
                                   (half * 1.2 * math.cos(corner), half * 1.2 * math.sin(corner), low + 0.062 * tall)], 0.0011 * tall, dark, 4))
    parts.append(tube("burner", [(0, 0, low + 0.115 * tall), (0, 0, low + 0.14 * tall)], 0.012 * tall, metal))
    for x, y in ((-0.4, 0.2), (0.35, -0.1), (0.0, -0.4)):
        parts.append(tube("person", [(x * half, y * half, low + h * tall) for h in (0.02, 0.07, 0.085, 0.09, 0.105, 0.112)],
                          numpy.array([0.011, 0.012, 0.008, 0.006, 0.0075, 0.001]) * tall, dark, 8))
    made = joined("balloon", parts)
    made.location = place
    made.rotation_euler = (0.02, 0.015, turn)


def height(x, y):
    hills = 130 * layered(x / 900, y / 900, 6, 6, 0.45) + 90 * noise(x / 2400, y / 2400, 2)
    return hills + 0.06 * y - 210


def tree(chance):
    soup, twigs = Soup(), []
    branches(soup, chance, (0, 0, 0), (0, 0, 1), 4.5, 0.22, 3, twigs, 0.75)
    for place, _, _ in twigs:
        for _ in range(5):
            at = place + chance.normal(0, 0.5, 3)
            out, aside = chance.standard_normal(3), chance.standard_normal(3)
            soup.raster(numpy.array([[at - out * 0.3 - aside * 0.3, at + out * 0.3 - aside * 0.3], [at - out * 0.3 + aside * 0.3, at + out * 0.3 + aside * 0.3]]), 1)
    return soup.made("tree", [plain("bark", (0.06, 0.045, 0.03), haze=AIR), leafy("leaves", (0.03, 0.06, 0.015), (0.09, 0.10, 0.02), 0.3, haze=AIR)])


def build():
    chance = numpy.random.default_rng(7)
    fields = soil((0.05, 0.085, 0.02), (0.20, 0.17, 0.06), 0.012, haze=AIR)
    ground("hills", height, fields, near=60, far=9000, spread=22, rows=700, columns=500)
    x, y = seeded_places(chance, 26000, 120, 4200, 20)
    stands = layered(x / 260, y / 260, 31, 4) > 0.22
    x, y = x[stands], y[stands]
    scatter([tree(chance) for _ in range(3)], numpy.column_stack([x, y, height(x, y)]), random_turns(chance, len(x)), chance.uniform(0.8, 1.9, len(x)))
    red, cream, orange, gold = (0.55, 0.03, 0.02), (0.85, 0.74, 0.5), (0.8, 0.2, 0.02), (0.85, 0.45, 0.04)
    teal, white, blue, violet = (0.02, 0.22, 0.24), (0.8, 0.78, 0.72), (0.03, 0.08, 0.35), (0.22, 0.03, 0.25)
    balloon((-9, 118, 38), 27, cloth([red, orange, gold, cream, gold, orange], 4), 0.3)
    balloon((34, 230, 92), 25, cloth([teal, white], 8, 0.04), 1.0)
    balloon((-74, 420, 96), 26, cloth([blue, gold, white, gold], 6), 0.5)
    balloon((70, 560, 40), 26, cloth([violet, orange, cream], 4, 0.09), 0.1)
    balloon((-130, 900, 120), 26, cloth([red, white], 6), 0.9)
    camera((0, 0, 22), (0, 120, 45.5), lens=34)
    daylight(7, -52, strength=0.2, dust=1.6, ozone=2.0, low=((4.4, 3.3, 2.4), 0.2),
             clouds=dict(low=0.5, high=0.9, scale=0.8, stretch=(0.4, 1.3), light=(5.5, 4.4, 3.6), shade=(4, 3.4, 3.3), thick=0.4, seed=1.0))
    return Roll(samples=24, exposure=0.3, saturation=1.2)
