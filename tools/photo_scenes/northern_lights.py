"""Northern lights over a fjord in a long exposure: soft curtains, their image in still water, firs, stones, a lit cabin."""
import math

import bpy
import numpy

import shapes
from common import camera, random_turns, scatter, unwrapped
from film import Roll
from growth import Soup, fir
from land import ground, layered, noise, ridged, sea
from nodes import material, no_lamp, plain, surface
from skies import night
from surfaces import glowing, water

FORMAT = "landscape"


def curtain_light(strength, phase):
    """Green, brightest a little above its soft foot, red and faint above; rays that an exposure of seconds has smeared."""
    made, nodes = material("curtain")
    no_lamp(nodes)
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place("UV"))
    along, up = apart.outputs[0], apart.outputs[1]
    fine = nodes.noise(nodes.add("ShaderNodeCombineXYZ", nodes.math("MULTIPLY", along, 70.0), nodes.math("MULTIPLY", up, 0.9), phase), 1.0, detail=2.0)
    broad = nodes.noise(nodes.add("ShaderNodeCombineXYZ", nodes.math("MULTIPLY", along, 9.0), nodes.math("MULTIPLY", up, 0.6), phase + 7.0), 1.0, detail=3.0)
    rays = nodes.math("MULTIPLY", nodes.math("MULTIPLY_ADD", nodes.rise(fine, 0.2, 0.8), 0.55, 0.45), nodes.rise(broad, 0.26, 0.72))
    foot = nodes.math("MULTIPLY", nodes.noise(nodes.add("ShaderNodeCombineXYZ", nodes.math("MULTIPLY", along, 12.0), 0.0, phase), 1.0, detail=3.0), 0.22)
    above = nodes.math("SUBTRACT", up, foot)
    tall = nodes.math("MULTIPLY_ADD", nodes.rise(broad, 0.3, 0.75), 4.5, -8.0)  # bright parts reach higher
    level = nodes.math("MULTIPLY", nodes.rise(above, -0.03, 0.13), nodes.math("POWER", 2.718, nodes.math("MULTIPLY", nodes.math("MAXIMUM", above, 0.0), tall)))
    level = nodes.math("MULTIPLY", nodes.math("MULTIPLY", level, rays), nodes.rise(up, 1.0, 0.55))
    level = nodes.math("MULTIPLY", level, nodes.math("MULTIPLY", nodes.rise(along, 0.0, 0.30), nodes.rise(along, 1.0, 0.70)))
    tone = nodes.ramp(above, (0.02, (0.16, 1.0, 0.36)), (0.25, (0.12, 0.85, 0.40)), (0.5, (0.28, 0.30, 0.42)), (0.8, (0.42, 0.10, 0.34)))
    glow = nodes.add("ShaderNodeEmission", tone, nodes.math("MULTIPLY", level, strength))
    surface(nodes, nodes.add("ShaderNodeAddShader", glow, nodes.add("ShaderNodeBsdfTransparent")))
    return made


def curtain(start, end, waves, tall, strength, seed, deep=5):
    """A band that hangs from left to right, folded, of some depth: sheets behind each other, none quite as the next; so high
    that its end fades."""
    t = numpy.linspace(0, 1, 700)
    rows = numpy.linspace(0, 1, 20)[:, None, None]
    for layer in range(deep):
        line = numpy.array(start)[None] * (1 - t[:, None]) + numpy.array(end)[None] * t[:, None]
        at = layer * 0.07
        line[:, 1] += waves * (noise(t * 2.0 + 0.4 * at, t * 0 + at, seed) + 0.35 * noise(t * 4.4, t * 0 + at, seed + 1)) + 130 * layer
        line[:, 0] += 0.7 * waves * (noise(t * 2.4, t * 0 + 5 + at, seed) + 0.25 * noise(t * 6, t * 0 + 5 + at, seed + 1))
        soup = Soup()
        soup.raster(line[None] + rows * numpy.array([0.06, -0.15, 1.0]) * tall)
        made = soup.made("curtain", [curtain_light(strength / deep, seed * 3.7 + 0.25 * layer)])
        made.visible_shadow = False
        unwrapped(made, numpy.stack(numpy.broadcast_arrays(t[None], rows[..., 0]), axis=-1).reshape(-1, 2))


def peaks(x, y):
    shore = 1500 + 350 * noise(x / 900, x * 0, 3) - 0.28 * numpy.abs(x)
    inland = numpy.clip((y - shore) / 3800, 0, 1)
    return numpy.where(y < shore, -20.0, 2 + inland ** 0.9 * 950 * ridged(x / 3000 + 0.7, y / 3000, 5, 8, 0.48))


def snow(slopes):
    """Snow with rock where it is steep."""
    made, nodes = material("snow")
    form = nodes.noise(nodes.place(), 0.01 if slopes else 1.2, detail=9.0, roughness=0.62)
    up = nodes.add("ShaderNodeSeparateXYZ", nodes.add("ShaderNodeNewGeometry").outputs["Normal"]).outputs[2]
    bare = nodes.rise(nodes.math("MULTIPLY_ADD", form, 0.5, up), 1.06, 0.86) if slopes else 0.0
    tone = nodes.mix(bare, (0.78, 0.81, 0.86), (0.04, 0.04, 0.045))
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.7, Normal=nodes.bump(form, 0.6, 30.0 if slopes else 0.15)))
    return made


def banks(x, y):
    """The near shores, left and right, rising from the water in lumps of snow."""
    left = (-x - 9.5 - 0.10 * y - 3.0 * noise(y / 9, y * 0, 8) - 0.8 * noise(y / 2.3, y * 0, 9)) / 9
    right = (x - 12.0 - 0.16 * y - 4.0 * noise(y / 11, y * 0 + 3, 8) - 0.8 * noise(y / 2.6, y * 0, 10)) / 9
    rise = numpy.clip(numpy.maximum(left, right), -0.4, 2.0)
    return numpy.sign(rise) * numpy.abs(rise) ** 0.6 * 1.5 + 0.28 * layered(x / 3.2, y / 3.2, 9, 5, 0.5) * (rise > -0.1)


def on_bank(x, y):
    return float(banks(numpy.array([x * 1.0]), numpy.array([y * 1.0]))[0])


def stones(chance):
    """Stones in the shallows, with caps of snow."""
    made, nodes = material("stone")
    up = nodes.add("ShaderNodeSeparateXYZ", nodes.add("ShaderNodeNewGeometry").outputs["Normal"]).outputs[2]
    form = nodes.noise(nodes.place(), 5.0, detail=8.0, roughness=0.65)
    cap = nodes.rise(nodes.math("MULTIPLY_ADD", form, 0.35, up), 0.72, 0.90)
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=nodes.mix(cap, (0.020, 0.021, 0.023), (0.78, 0.81, 0.86)), Roughness=nodes.math("MULTIPLY_ADD", cap, 0.45, 0.3), Normal=nodes.bump(form, 0.7, 0.06)))
    kinds = []
    for seed in range(5):
        one = shapes.ball("stone", 1.0, made, detail=4)
        points = numpy.array([vertex.co for vertex in one.data.vertices])
        lump = 1 + 0.35 * noise(points[:, 0] * 1.2 + 9 * seed, points[:, 1] * 1.2 + points[:, 2], seed) + 0.12 * noise(points[:, 0] * 3.5, points[:, 2] * 3.5 + points[:, 1], seed + 30)
        one.data.vertices.foreach_set("co", (points * lump[:, None] * [1.25, 1.0, 0.62]).astype(numpy.float32).ravel())
        one.data.update()
        kinds.append(one)
    spots = [(-3.4, 7.6, 0.62), (-2.2, 8.3, 0.34), (-4.6, 9.6, 0.8), (-5.3, 7.2, 0.4), (2.9, 9.0, 0.42), (3.7, 10.2, 0.75), (5.2, 9.6, 0.45), (6.8, 12.5, 0.9), (-7.4, 12.5, 0.7), (0.4, 11.8, 0.30), (8.6, 16.0, 0.8), (-9.5, 17.0, 0.9), (4.6, 7.4, 0.22), (-1.4, 6.6, 0.20)]
    scatter(kinds, [(x, y, -0.10 * size) for x, y, size in spots], random_turns(chance, len(spots), 0.15), [size for _, _, size in spots], chance.integers(0, 5, len(spots)))


def cabin(x, y):
    """A cabin of logs on the right shore, snow on its roof, a lamp within."""
    z, turn = on_bank(x, y) - 0.1, -0.5
    wood, white, lit = plain("logs", (0.045, 0.020, 0.012), 0.9), plain("roof", (0.78, 0.81, 0.86), 0.8), glowing((1.0, 0.55, 0.20), 0.22)
    parts = [shapes.box("walls", (4.6, 3.4, 2.3), wood, 0.02, (0, 0, 1.15)), shapes.box("pane", (0.8, 0.04, 0.75), lit, 0, (-0.9, -1.72, 1.35)), shapes.box("pane", (0.8, 0.04, 0.75), lit, 0, (0.9, -1.72, 1.35)),
             shapes.box("bar", (0.05, 0.08, 0.8), wood, 0, (-0.9, -1.73, 1.35)), shapes.box("bar", (0.05, 0.08, 0.8), wood, 0, (0.9, -1.73, 1.35)), shapes.box("chimney", (0.5, 0.5, 1.6), wood, 0.02, (1.3, 0.4, 3.5))]
    parts.append(shapes.mesh("gable", [(-2.3, -1.7, 2.3), (-2.3, 1.7, 2.3), (-2.3, 0, 3.4), (2.3, -1.7, 2.3), (2.3, 1.7, 2.3), (2.3, 0, 3.4)], [(0, 1, 2), (3, 4, 5)], wood, smooth=False))
    for side in (-1, 1):
        slab = shapes.box("snow", (5.4, 2.4, 0.34), white, 0.14, (0, side * 1.02, 3.0))
        slab.rotation_euler.x = -side * 0.57
        parts.append(slab)
    handle = shapes.parent(parts, "cabin")
    handle.location, handle.rotation_euler = (x, y, z), (0, 0, turn)


def build():
    chance = numpy.random.default_rng(25)
    night((0.014, 0.024, 0.034), (0.004, 0.008, 0.018), strength=1.0, star_light=1.3)
    ground("peaks", peaks, snow(True), near=900, far=9000, spread=44, rows=700, columns=1000)
    ground("banks", banks, snow(False), near=4, far=90, spread=62, rows=420, columns=700)
    sea("fjord", water((0.002, 0.005, 0.007), ripple=0.05, fine=0.9, roughness=0.07), chance, near=3, far=4000, spread=48, rows=400, columns=300, height=0.02, longest=4.0)
    trees = [fir(chance, plain("bark", (0.03, 0.022, 0.018)), plain("needles", (0.012, 0.018, 0.012), 0.8), tall, 26, plain("frost", (0.6, 0.63, 0.68))) for tall in (7, 9, 11, 13)]
    spots = [(-15.5, 20), (-19, 23), (-17.3, 27), (-23, 24), (-22, 32), (-27, 30), (-31, 36), (-20.5, 38), (-26, 45), (-34, 48), (22, 26), (26, 29), (31, 31), (29, 38), (35, 40), (38, 36), (27, 47), (34, 52), (43, 50), (-39, 44)]
    places = [(x, y, on_bank(x, y) - 0.25) for x, y in spots]
    scatter(trees, places, random_turns(chance, len(spots), 0.04), chance.uniform(0.45, 1.1, len(spots)), chance.integers(0, 4, len(spots)))
    stones(chance)
    cabin(19.5, 31)
    curtain((-7200, 7200, 1350), (7000, 8600, 1150), 2300, 4600, 1.5, 3)
    curtain((-3600, 10500, 2100), (8200, 9200, 1900), 2600, 5200, 1.0, 11)
    curtain((-2600, 4300, 2600), (5200, 7400, 2000), 1500, 4200, 0.7, 19, 4)
    bpy.context.scene.cycles.transparent_max_bounces = 40
    camera((0, 0, 2.1), (0.5, 30, 2.1 + 30 * math.tan(math.radians(12.5))), lens=21)
    return Roll(samples=14, bounces=4, exposure=1.6, grain=0.016, glow=0.08, saturation=1.0, look="Medium High Contrast")
