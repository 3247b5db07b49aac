"""A skier far down in fresh powder, seen from behind; the track leads to where he is, peaks beyond the valley."""
import math

import numpy

from common import camera, daylight, joined, limb, tube
from film import Roll
from growth import Soup
from land import ground, layered, noise, ridged
from nodes import material, plain, surface
from surfaces import puff

FORMAT = "landscape"
AIR = ((0.30, 0.43, 0.68), 15000.0)
END = 16.5


def way(y, first=0.0, swing=1.0):
    """Where a track lies: turns that grow wider downhill."""
    return first + swing * (0.9 + 0.035 * y) * numpy.sin(0.62 * y + 0.011 * y * y + first) + 0.02 * y


def furrow(x, y, at, end):
    """Two skis close together: a furrow with a wall thrown up on either side."""
    slant = 1 / numpy.sqrt(1 + numpy.gradient(at, axis=0) ** 2 / numpy.gradient(y, axis=0) ** 2)
    off = (x - at) * slant
    share = numpy.clip((end - y) * 2, 0, 1)
    ragged = 1 + 0.35 * noise(x * 5, y * 5, 31)
    skis = numpy.exp(-((off - 0.15) / 0.10) ** 4) + numpy.exp(-((off + 0.15) / 0.10) ** 4)
    walls = numpy.exp(-((numpy.abs(off) - 0.42) / 0.13) ** 2)
    return share * (-0.17 * numpy.clip(skis, 0, 1) * ragged - 0.05 * numpy.exp(-(off / 0.3) ** 4) + 0.075 * walls * ragged)


def slope(x, y):
    """Powder before the lens, round over to a steeper pitch."""
    z = -0.24 * y - 0.0022 * numpy.clip(y - 14, 0, None) ** 2 + 0.03 * x + 0.004 * x * x * (x < 0) - 0.010 * x * numpy.abs(x) * (x > 0) * 0.6
    z = z + 0.9 * noise(x / 19, y / 23, 4) + 0.22 * layered(x / 5, y / 6, 7, 4) + 0.015 * layered(x / 0.5 + y, y / 1.2, 9, 3)
    z = z + furrow(x, y, way(y, 0.4), END)
    return z + furrow(x, y, way(y * 0.93 + 3, 0, 0.9) - 6.0 - 0.15 * y, 90) + furrow(x, y, way(y * 1.05 + 7, 0, 0.8) + 5.2 + 0.2 * y, 90)


def powder():
    """Snow that glitters, bluish where the sun does not come."""
    made, nodes = material("powder")
    place = nodes.place()
    fine = nodes.noise(place, 35.0, detail=5.0, roughness=0.7)
    grains = nodes.add("ShaderNodeTexVoronoi", Vector=place, Scale=260.0)
    spark = nodes.rise(nodes.add("ShaderNodeSeparateColor", grains.outputs["Color"]).outputs[0], 0.985, 0.995)
    normal = nodes.bump(fine, 0.45, 0.012)
    tone = nodes.mix(fine, (0.83, 0.85, 0.89), (0.92, 0.93, 0.95))
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.75, Specular=0.25, Normal=normal, Emission=(0.9, 0.95, 1.0), Emission_Strength=nodes.math("MULTIPLY", spark, 0.8)))
    return made


def peaks(x, y):
    """A valley, and the range beyond it."""
    inland = numpy.clip((y - 2600) / 5200, 0, 1)
    range_ = 1500 * inland ** 0.8 * ridged(x / 5600 + 2.3, y / 5600, 23, 11, 0.45)
    near = 330 * numpy.clip((y - 900) / 1200, 0, 1) * ridged(x / 2300, y / 2300, 9, 9, 0.42) * numpy.clip(numpy.abs(x + 150) / 1500, 0.1, 1)
    return -900 + range_ + near


def alps():
    """Snow, rock where it is steep, woods low down."""
    made, nodes = material("alps")
    place = nodes.place()
    up = nodes.add("ShaderNodeSeparateXYZ", nodes.add("ShaderNodeNewGeometry").outputs["Normal"]).outputs[2]
    tall = nodes.add("ShaderNodeSeparateXYZ", place).outputs[2]
    form = nodes.noise(place, 0.006, detail=13.0, roughness=0.70)
    stone = nodes.ramp(form, (0.35, (0.030, 0.028, 0.030)), (0.7, (0.13, 0.115, 0.105)))
    white = nodes.rise(nodes.math("MULTIPLY_ADD", form, 0.55, up), 0.78, 0.96)
    tone = nodes.mix(white, stone, (0.86, 0.88, 0.92))
    trees = nodes.math("MULTIPLY", nodes.rise(nodes.math("MULTIPLY_ADD", form, 500.0, tall), -160.0, -400.0), nodes.rise(nodes.noise(place, 0.02, detail=9.0, roughness=0.75), 0.36, 0.56))
    tone = nodes.mix(trees, tone, (0.022, 0.034, 0.028))
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.9, Specular=0.05, Normal=nodes.bump(form, 0.9, 40.0)), AIR)
    return made


def skis(board, boot):
    """A pair on edge, tips up, towards y, with the boots on them."""
    parts = []
    for side in (-0.15, 0.15):
        t = numpy.linspace(-0.95, 0.95, 30)
        rise = 0.16 * numpy.clip((t - 0.68) / 0.27, 0, 1) ** 2
        soup = Soup()
        soup.raster(numpy.stack([numpy.stack([side + 0 * t + edge * (0.05 + 0.02 * t * t), t, rise], axis=-1) for edge in (-1, 1)], axis=1))
        parts += [soup.made("ski", [board]), limb([(side, -0.12, 0.02), (side, -0.04, 0.16), (side, -0.05, 0.34)], [0.09, 0.08, 0.075], boot)]
    return parts


def skier():
    """From behind, deep in a turn to the right, arms out; 1.5 m as he stands."""
    jacket, trousers, dark = plain("jacket", (0.62, 0.035, 0.02), 0.7), plain("trousers", (0.018, 0.022, 0.03), 0.8), plain("dark", (0.015, 0.015, 0.017), 0.4)
    parts = skis(plain("board", (0.70, 0.50, 0.04), 0.4), dark)
    parts.append(limb([(0.0, -0.18, 0.74), (0.0, -0.13, 0.86), (0.015, -0.03, 1.04), (0.02, 0.08, 1.22), (0.02, 0.14, 1.33), (0.02, 0.17, 1.40)], [0.15, 0.185, 0.185, 0.205, 0.15, 0.07], jacket))
    parts.append(limb([(0.01, -0.10, 1.05), (0.015, -0.06, 1.12), (0.02, 0.02, 1.26), (0.02, 0.05, 1.32)], [0.05, 0.145, 0.15, 0.05], dark))
    parts.append(limb([(0.02, 0.17, 1.38), (0.02, 0.19, 1.44), (0.02, 0.21, 1.52), (0.02, 0.21, 1.60), (0.02, 0.21, 1.64)], [0.07, 0.11, 0.125, 0.095, 0.01], plain("helmet", (0.75, 0.75, 0.72), 0.3)))
    for side in (-1, 1):
        parts.append(limb([(0.10 * side, -0.16, 0.80), (0.155 * side, 0.06, 0.64), (0.165 * side, 0.12, 0.52), (0.15 * side, 0.0, 0.36), (0.15 * side, -0.04, 0.26)], [0.125, 0.115, 0.1, 0.092, 0.095], trousers))
        parts.append(limb([(0.2 * side, 0.12, 1.32), (0.35 * side, 0.12, 1.18), (0.46 * side, 0.2, 1.05), (0.52 * side, 0.36, 1.06), (0.54 * side, 0.44, 1.08)], [0.085, 0.075, 0.066, 0.058, 0.062], jacket))
        parts.append(tube("pole", [(0.54 * side, 0.46, 1.1), (0.62 * side, 0.05, 0.75), (0.72 * side, -0.45, 0.33)], 0.012, dark, 6))
    return joined("skier", parts)


def spray(chance, x, y, z):
    """Snow that the skis throw up, lit from aside."""
    count = 2600
    along = chance.random(count) ** 0.7
    spot = numpy.column_stack([x - 0.15 - 1.9 * along + chance.normal(0, 0.08, count) - 0.1 * along, y - 0.4 - 1.0 * along + chance.normal(0, 0.15, count),
                               z + (0.08 + 1.9 * along - 1.45 * along ** 2) * chance.random(count) ** 0.5])
    one, other = 0.012 * chance.standard_normal((2, count, 3)) * (1.3 - along)[:, None]
    soup = Soup()
    soup.quads(numpy.stack([spot - one, spot - other, spot + one, spot + other], axis=1))
    soup.made("spray", [plain("flake", (0.9, 0.92, 0.95), 0.8)])
    for off, wide, tall, level in ((-0.7, 0.9, 0.55, 0.75), (-1.5, 1.1, 0.7, 0.5), (-0.3, 0.6, 0.35, 0.8)):
        puff((x + off, y - 0.5 + 0.25 * off, z + 0.3 - 0.18 * off), wide, tall, level, (0.86, 0.90, 0.98))


def build():
    chance = numpy.random.default_rng(35)
    ground("slope", slope, powder(), near=1.2, far=130, spread=44, rows=1300, columns=1300)
    ground("range", peaks, alps(), near=900, far=15000, spread=40, rows=900, columns=1200)
    y = numpy.array([END + 0.2 * n for n in range(3)])
    x = way(y, 0.4)
    z = float(slope(numpy.stack([x, x]).T, numpy.stack([y, y]).T)[0, 0])
    one = skier()
    one.location = (x[0], y[0] + 0.2, z - 0.10)
    one.rotation_euler = (-0.26, 0.30, -math.atan2(x[1] - x[0], 0.2))
    spray(chance, x[0], y[0], z)
    camera((0, -0.4, 1.95), (0.3, 20, -1.45), lens=33, focus=16, f_stop=8)
    daylight(23, 62, strength=0.115, dust=0.3, air=0.8, ozone=2.2, sun=0.9,
             clouds=dict(low=0.56, high=0.9, scale=0.9, stretch=(0.35, 1.2), light=(9.0, 9.2, 9.6), shade=(4.5, 5.0, 5.8), thick=0.7, seed=12.0))
    return Roll(samples=14, bounces=4, exposure=0.0, look="High Contrast", glow=0.05, saturation=1.15)
