"""A lighthouse on a rocky cape after sunset, its lamp lit, the sea made smooth by a long exposure."""
import math

import numpy

from common import camera, daylight, mesh_object, tube, turned
from film import Roll
from land import ground, layered, noise, ridged, sea
from nodes import material, plain, surface
from surfaces import glowing, water

FORMAT = "portrait"
TOWER = (6.0, 96.0)


def height(x, y):
    """A cape that comes in from the right, with cliffs."""
    axis = numpy.clip((x + 16) / 30, 0, 1)
    wide = 12 + 15 * axis + 4 * noise(x / 11, y / 11, 5)
    off = numpy.abs(y - 96 - 0.25 * (x - 6)) / wide
    body = numpy.clip((1 - off) * 3.2, -1.5, 1) * numpy.clip((x + 22 + 5 * noise(y / 7, y * 0, 3)) / 6, -1.5, 1)
    return numpy.where(body > 0, numpy.abs(body) ** 0.7, body) * 9.5 + (1.9 * ridged(x / 9, y / 9, 6, 6, 0.55) + 0.5 * layered(x / 2.3, y / 2.3, 9, 5, 0.6)) * numpy.clip(1.7 - body, 0.12, 1)


def rocks(x, y):
    """Before the camera: boulders in the water."""
    return 0.95 * layered(x / 3.4 + 4, y / 4.2, 21, 6, 0.45) + 0.35 * ridged(x / 2.2, y / 2.6, 5, 5, 0.5) - 0.25 - 0.07 * numpy.abs(y - 9) ** 1.25 + 0.09 * numpy.abs(x + 1)


def stone(wet):
    made, nodes = material("stone")
    place = nodes.place()
    form = nodes.noise(place, 0.9, detail=11.0, roughness=0.66)
    up = nodes.add("ShaderNodeSeparateXYZ", nodes.add("ShaderNodeNewGeometry").outputs["Normal"]).outputs[2]
    tall = nodes.add("ShaderNodeSeparateXYZ", place).outputs[2]
    tone = nodes.ramp(form, (0.3, (0.045, 0.038, 0.033)), (0.7, (0.17, 0.145, 0.125)))
    grass = nodes.mix(form, (0.035, 0.05, 0.018), (0.10, 0.105, 0.045))
    tone = nodes.mix(nodes.math("MULTIPLY", nodes.rise(up, 0.80, 0.93), nodes.rise(tall, 6.0, 8.0)), tone, grass)
    damp = nodes.rise(nodes.math("MULTIPLY_ADD", form, -1.2, tall), 0.9, -0.2)
    tone = nodes.mix(nodes.math("MULTIPLY", damp, 0.6), tone, (0.012, 0.012, 0.013))
    rough = nodes.math("MULTIPLY_ADD", damp, -0.62, 0.88)
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=rough, Normal=nodes.bump(form, 0.8, 0.35 if wet else 0.8)))
    return made


def plaster():
    """White and red bands, streaked by rain."""
    made, nodes = material("plaster")
    place = nodes.place()
    tall = nodes.add("ShaderNodeSeparateXYZ", place).outputs[2]
    band = nodes.math("GREATER_THAN", nodes.math("FRACT", nodes.math("MULTIPLY_ADD", tall, 1 / 8.8, 0.06)), 0.5)
    streak = nodes.noise(nodes.vector("MULTIPLY", place, (2.2, 2.2, 0.16)), 1.5, detail=7.0)
    tone = nodes.mix(band, (0.72, 0.70, 0.66), (0.42, 0.028, 0.022))
    tone = nodes.mix(nodes.math("MULTIPLY", nodes.rise(streak, 0.46, 0.75), 0.45), tone, (0.20, 0.17, 0.14))
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.75, Normal=nodes.bump(streak, 0.15, 0.05)))
    return made


def lighthouse(x, y, z):
    dark, lamp = plain("iron", (0.02, 0.022, 0.025), 0.4), glowing((1.0, 0.78, 0.42), 130.0)
    parts = [turned("tower", [(3.1, -1), (3.0, 0.5), (2.75, 6), (2.45, 13), (2.2, 20), (2.1, 22), (2.55, 22.5), (2.6, 22.9), (0.2, 22.9)], plaster(), 64),
             turned("deck", [(2.3, 22.9), (3.1, 23.0), (3.1, 23.2), (1.4, 23.2)], dark, 40), turned("wall", [(1.45, 23.2), (1.45, 24.0), (1.3, 24.05)], plain("wall", (0.6, 0.58, 0.55)), 24),
             turned("lamp", [(0.05, 24.3), (0.42, 24.5), (0.5, 25.0), (0.42, 25.5), (0.05, 25.7)], lamp, 24),
             turned("dome", [(1.65, 26.2), (1.6, 26.4), (1.3, 27.1), (0.7, 27.6), (0.16, 27.8), (0.12, 28.3), (0.02, 29.6)], plain("dome", (0.28, 0.03, 0.02), 0.35), 32)]
    for n in range(20):
        angle = n * math.pi / 10
        at = numpy.array([math.cos(angle), math.sin(angle)])
        parts.append(tube("post", [(*at * 3.02, 23.2), (*at * 3.02, 24.2)], 0.03, dark, 5))
        if n % 2:
            parts.append(tube("bar", [(*at * 1.38, 24.0), (*at * 1.38, 26.25)], 0.045, dark, 5))
    for level in (23.7, 24.2):
        parts.append(turned("rail", [(3.0, level), (3.05, level), (3.05, level + 0.05), (3.0, level + 0.05)], dark, 40))
    for level, turn in ((5.5, -1.7), (11.0, -1.35), (16.5, -1.75)):
        reach = 2.98 - 0.041 * level
        at, side = numpy.array([math.cos(turn), math.sin(turn)]), numpy.array([-math.sin(turn), math.cos(turn)])
        corners = [(*(at * (reach + 0.03) + side * a), level + b) for a, b in ((-0.27, 0), (0.27, 0), (0.27, 1.0), (-0.27, 1.0))]
        parts.append(mesh_object("window", numpy.array(corners), [(0, 1, 2, 3)], glowing((1.0, 0.6, 0.25), 2.2)))
    for part in parts:
        part.location = (x, y, z)


def cottage(x, y, z):
    """The keeper's house: white walls, slate, two lit windows, a chimney."""
    white, slate, warm = plain("white", (0.62, 0.60, 0.56), 0.8), plain("slate", (0.05, 0.052, 0.06), 0.6), glowing((1.0, 0.62, 0.26), 4.0)
    box = [(-5, -3, -1), (5, -3, -1), (5, 3, -1), (-5, 3, -1), (-5, -3, 3), (5, -3, 3), (5, 3, 3), (-5, 3, 3), (-5, 0, 5.4), (5, 0, 5.4)]
    walls = mesh_object("walls", numpy.array(box, dtype=float), [(0, 1, 5, 4), (1, 2, 6, 9, 5), (2, 3, 7, 6), (3, 0, 4, 8, 7)], white, smooth=False)
    roof = [(-5.3, -3.4, 2.8), (5.3, -3.4, 2.8), (5.3, 0, 5.6), (-5.3, 0, 5.6), (5.3, 3.4, 2.8), (-5.3, 3.4, 2.8)]
    tiles = mesh_object("roof", numpy.array(roof), [(0, 1, 2, 3), (3, 2, 4, 5)], slate, smooth=False)
    parts = [walls, tiles, tube("chimney", [(3.4, 0, 4.5), (3.4, 0, 6.7)], 0.5, white, 4)]
    for left in (-3.2, 1.4):
        parts.append(mesh_object("pane", numpy.array([(left, -3.02, 0.9), (left + 1.1, -3.02, 0.9), (left + 1.1, -3.02, 2.3), (left, -3.02, 2.3)]), [(0, 1, 2, 3)], warm))
        parts.append(tube("cross", [(left + 0.55, -3.05, 0.9), (left + 0.55, -3.05, 2.3)], 0.05, white, 4))
        parts.append(tube("cross", [(left, -3.05, 1.6), (left + 1.1, -3.05, 1.6)], 0.05, white, 4))
    for part in parts:
        part.location, part.rotation_euler = (x, y, z), (0, 0, -0.25)


def build():
    chance = numpy.random.default_rng(20)
    ground("cape", height, stone(False), near=60, far=150, spread=28, rows=620, columns=620)
    ground("rocks", rocks, stone(True), near=2.6, far=30, spread=32, rows=420, columns=420)
    sea("sea", water((0.006, 0.014, 0.018), ripple=0.08, fine=0.35, roughness=0.13), chance, near=1.5, far=9000, spread=32, rows=420, columns=300, height=0.10, longest=14.0, shortest=2.0)
    x, y = TOWER
    level = float(height(numpy.array([x]), numpy.array([y]))[0])
    lighthouse(x, y, level - 0.3)
    cottage(19.5, 98, float(height(numpy.array([19.5]), numpy.array([96.0]))[0]) - 0.4)
    camera((0, 0, 2.6), (2.0, 60, 9.8), lens=36)
    daylight(0.6, -48, strength=0.5, dust=1.6, ozone=1.2, low=((0.72, 0.33, 0.20), 0.28),
             clouds=dict(low=0.47, high=0.85, scale=0.75, stretch=(0.35, 1.3), light=(0.75, 0.32, 0.24), shade=(0.15, 0.12, 0.17), thick=0.85, seed=6.0))
    return Roll(samples=14, bounces=4, exposure=1.35, glow=0.14, saturation=1.05)
