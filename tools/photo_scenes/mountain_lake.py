"""A lake before mountains in the last sun, firs on the far shore, still water."""
import numpy

from common import camera, daylight, random_turns, scatter
from film import Roll
from growth import fir
from land import ground, layered, noise, ridged, seeded_places, sea
from nodes import leafy, material, plain, surface
from surfaces import water

FORMAT = "landscape"
AIR = ((0.30, 0.27, 0.38), 42000.0)


def height(x, y):
    """Shore at about 900 m, with bays; foothills; the range."""
    shore = 900 + 260 * noise(x / 700, y / 2500, 3) - 0.22 * numpy.abs(x)
    inland = y - shore
    hills = numpy.clip(inland / 1500, 0, 1) ** 1.2 * (110 + 110 * layered(x / 900, y / 900, 8, 5))
    range_ = numpy.clip((inland - 700) / 6500, 0, 1) ** 1.1 * 1900 * ridged(x / 5200 + 0.3, y / 5200, 11, 10, 0.47)
    return numpy.where(inland < 0, inland * 0.1, 1 + hills + range_)


def rock():
    made, nodes = material("mountain")
    place = nodes.place()
    up = nodes.add("ShaderNodeSeparateXYZ", nodes.add("ShaderNodeNewGeometry").outputs["Normal"]).outputs[2]
    tall = nodes.add("ShaderNodeSeparateXYZ", place).outputs[2]
    form = nodes.noise(place, 0.004, detail=12.0, roughness=0.68)
    stone = nodes.ramp(form, (0.3, (0.075, 0.066, 0.062)), (0.7, (0.24, 0.21, 0.19)))
    woods = nodes.ramp(nodes.noise(place, 0.06, detail=4.0), (0.35, (0.010, 0.018, 0.010)), (0.7, (0.035, 0.05, 0.025)))
    lower = nodes.rise(nodes.math("MULTIPLY_ADD", form, 420.0, tall), 780.0, 560.0)
    stone = nodes.mix(nodes.math("MULTIPLY", lower, nodes.rise(up, 0.35, 0.6)), stone, woods)
    white = nodes.math("MULTIPLY", nodes.rise(nodes.math("MULTIPLY_ADD", form, 900.0, tall), 1250.0, 1450.0), nodes.rise(up, 0.42, 0.62))
    tone = nodes.mix(white, stone, (0.78, 0.80, 0.84))
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.9, Specular=0.05, Normal=nodes.bump(form, 0.9, 60.0)), AIR)
    return made


def woods(chance):
    needles = leafy("needles", (0.012, 0.022, 0.012), (0.03, 0.042, 0.02), 0.1, haze=AIR)
    trees = [fir(chance, plain("bark", (0.05, 0.035, 0.025), haze=AIR), needles, size, 18) for size in (17, 21, 26)]
    x, y = seeded_places(chance, 60000, 600, 2900, 30)
    z = height(x, y)
    stands = (z > 1.5) & (z < 330) & (layered(x / 200, y / 200, 5, 3) > -0.35)
    x, y, z = x[stands], y[stands], z[stands]
    scatter(trees, numpy.column_stack([x, y, z - 0.5]), random_turns(chance, len(x), 0.03), chance.uniform(0.6, 1.15, len(x)),
            chance.integers(0, 3, len(x)))


def build():
    chance = numpy.random.default_rng(11)
    ground("range", height, rock(), near=550, far=14000, spread=33, rows=1000, columns=1100)
    sea("lake", water((0.006, 0.016, 0.02), ripple=0.05, fine=1.2, roughness=0.01), chance, near=1.5, far=2600, spread=36, rows=400, columns=300,
        height=0.035, longest=6.0, shortest=0.5)
    woods(chance)
    camera((0, 0, 2.4), (0, 100, 9.5), lens=32)
    daylight(3.6, 122, strength=0.32, dust=0.8, ozone=1.5, sun=1.5, low=((1.15, 0.72, 0.66), 0.5),
             clouds=dict(low=0.5, high=0.85, scale=1.1, stretch=(0.4, 1.2), light=(1.5, 0.75, 0.66), shade=(0.5, 0.4, 0.5), thick=0.8, seed=3.0))
    return Roll(samples=20, exposure=1.9, look="High Contrast", saturation=1.25, warmth=0.05)
