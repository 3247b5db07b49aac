"""A surfer walks home along the water, against the evening sun."""
import math

import numpy

from common import camera, daylight
from figures import person
from film import Roll
from growth import Soup
from land import ground, layered, noise, sea
from nodes import material, plain, surface
from shapes import parent

FORMAT = "landscape"


def wet_sand():
    """A film of water on sand: a mirror that the ripples of the sand break."""
    made, nodes = material("wet sand")
    place = nodes.place()
    off = nodes.add("ShaderNodeSeparateXYZ", place).outputs[1]
    pools = nodes.noise(nodes.vector("MULTIPLY", place, (0.35, 1.0, 1.0)), 0.5, detail=5.0)
    wet = nodes.rise(nodes.math("MULTIPLY_ADD", pools, 7.0, off), 5.2, 7.4)
    fine = nodes.noise(place, 26.0, detail=6.0, roughness=0.65)
    ripple = nodes.noise(nodes.vector("MULTIPLY", place, (0.5, 1.6, 1.0)), 3.0, detail=4.0)
    height = nodes.math("MULTIPLY_ADD", fine, 0.25, ripple)
    normal = nodes.bump(height, nodes.math("MULTIPLY_ADD", wet, -0.52, 0.6), 0.03)
    tone = nodes.mix(wet, nodes.mix(fine, (0.12, 0.085, 0.06), (0.22, 0.165, 0.12)), (0.035, 0.027, 0.022))
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=nodes.math("MULTIPLY_ADD", wet, -0.55, 0.68), Specular=0.6, Normal=normal))
    return made


def surf():
    """Water with foam on the backs of the waves that break, and lace where they run out."""
    made, nodes = material("surf")
    place = nodes.place()
    apart = nodes.add("ShaderNodeSeparateXYZ", place)
    lace = nodes.noise(place, 1.3, detail=9.0, roughness=0.7, distortion=0.8)
    crest = nodes.rise(nodes.math("MULTIPLY_ADD", lace, 0.55, apart.outputs[2]), 0.68, 0.86)
    run = nodes.math("MULTIPLY", nodes.rise(nodes.math("MULTIPLY_ADD", lace, 5.0, apart.outputs[1]), 17.5, 15.5), nodes.rise(lace, 0.42, 0.54))
    foam = nodes.math("MAXIMUM", crest, run)
    tone = nodes.mix(foam, (0.008, 0.022, 0.027), (0.62, 0.60, 0.58))
    normal = nodes.bump(nodes.math("MULTIPLY_ADD", foam, 0.6, nodes.noise(place, 3.0, detail=6.0)), 0.4, 0.09)
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=nodes.math("MULTIPLY_ADD", foam, 0.6, 0.07), IOR=1.33, Normal=normal))
    return made


def breakers(x, y):
    """Long waves towards the shore: steeper the nearer, broken ones low."""
    total = 0
    for at, tall, wide, seed in ((21, 0.35, 1.2, 1), (30, 0.75, 1.9, 2), (44, 1.05, 2.8, 3), (63, 0.9, 4.0, 4)):
        line = at + 2.2 * noise(x / 17, x * 0, seed) + 0.5 * noise(x / 4, x * 0, seed + 9)
        share = numpy.clip(0.55 + 1.1 * noise(x / 21 + 5, x * 0, seed + 4), 0.1, 1)
        off = (y - line) / wide
        total = total + tall * share * numpy.exp(-numpy.where(off < 0, 2.6, 0.8) * off ** 2)
    return total - 0.12


STRIDE = {"elbow_r": (0.31, 0.03, 1.16), "wrist_r": (0.30, -0.08, 0.93), "hand_r": (0.26, -0.13, 0.86), "elbow_l": (-0.23, 0.10, 1.15), "wrist_l": (-0.24, 0.0, 0.93),
          "hand_l": (-0.24, -0.03, 0.84), "knee_r": (0.10, 0.12, 0.49), "ankle_r": (0.10, 0.40, 0.17), "toe_r": (0.10, 0.33, 0.04), "knee_l": (-0.09, -0.21, 0.50),
          "ankle_l": (-0.09, -0.32, 0.09), "toe_l": (-0.10, -0.47, 0.05), "chin": (0, -0.01, 1.57), "crown": (0, -0.03, 1.67)}


def surfer(dark, board):
    """Walks to the left, seen from aside; the board under the arm that is nearer."""
    figure = person("surfer", dark, STRIDE)
    figure.rotation_euler.z = -math.pi / 2
    t = numpy.linspace(0, 1, 40)
    half = 0.255 * numpy.sin(math.pi * t ** 0.85) ** 0.62
    soup = Soup()
    across = numpy.linspace(-1, 1, 9)
    long = 2.0 * (t - 0.48)
    for side in (-1, 1):
        soup.raster(numpy.stack([numpy.broadcast_to(long[:, None], (40, 9)), side * 0.03 * (1 - across ** 2) * numpy.sin(math.pi * t)[:, None] + 0 * across - 0.23 + 0.08 * ((t - 0.5) ** 2)[:, None],
                                 0.98 + half[:, None] * across + 0.09 * long[:, None]], axis=-1))
    return parent([figure, soup.made("board", [board])], "surfer and board")


def build():
    chance = numpy.random.default_rng(45)
    ground("sand", lambda x, y: 0.018 * (13 - y) + 0.02 * layered(x / 3, y / 3, 3, 4), wet_sand(), near=1.2, far=24, spread=44, rows=200, columns=200)
    sea("surf", surf(), chance, near=12.5, far=9000, spread=32, rows=900, columns=700, shift=breakers, height=0.22, longest=9.0, shortest=0.6, wind=3.1, count=60)
    one = surfer(plain("dark", (0.015, 0.015, 0.018), 0.55), plain("board", (0.30, 0.28, 0.25), 0.25))
    one.location, one.scale = (-1.15, 9.2, 0.025), (1.0,) * 3
    camera((0, 0, 1.25), (0, 12, 1.42), lens=40, focus=9.2, f_stop=4)
    daylight(4.5, 13, strength=0.20, dust=2.0, ozone=2.0, low=((3.3, 1.75, 0.95), 0.25),
             clouds=dict(low=0.48, high=0.8, scale=0.8, stretch=(0.35, 1.3), light=(4.2, 2.3, 1.5), shade=(1.3, 0.95, 1.0), thick=0.85, seed=17.0))
    return Roll(samples=14, bounces=4, exposure=-0.2, warmth=0.05, glow=0.13, saturation=1.1)
