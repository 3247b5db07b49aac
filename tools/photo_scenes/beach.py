"""A beach late in the afternoon, against the sun: trampled sand, a faded parasol that glows, a towel, a bucket, long shadows."""
import math

import numpy

from common import camera, daylight, random_turns, scatter, tube, turned
from film import Roll
from growth import Soup
from land import ground, layered, noise, sea, seeded_places
from nodes import material, plain, surface
from palm_beach import lagoon

FORMAT = "landscape"
SAND = (0.50, 0.40, 0.27)


def dusted(nodes, tone, low, high):
    """Sand that clings to a thing: thick below `low` of its own height, none above `high`."""
    height = nodes.add("ShaderNodeSeparateXYZ", nodes.place()).outputs[2]
    grains = nodes.noise(nodes.place(), 60.0, detail=8.0, roughness=0.7)
    share = nodes.rise(nodes.math("MULTIPLY_ADD", nodes.rise(height, high, low), 0.5, grains), 0.62, 0.78)
    return nodes.mix(nodes.math("MULTIPLY", share, 0.85), tone, SAND)


def striped(colours, bands, axis, dust=(-9.0, -8.0), through=0.3):
    """Cloth with stripes around z ("turn") or along x ("across"), bleached unevenly; `through` is the light that it lets in."""
    made, nodes = material("striped")
    place = nodes.place()
    apart = nodes.add("ShaderNodeSeparateXYZ", place)
    way = nodes.math("DIVIDE", nodes.math("ARCTAN2", apart.outputs[0], apart.outputs[1]), 2 * math.pi) if axis == "turn" else apart.outputs[0]
    way = nodes.math("MULTIPLY_ADD", way, bands, 50.25)
    share = nodes.math("GREATER_THAN", nodes.math("FRACT", way), 0.5)
    seam = nodes.rise(nodes.math("ABSOLUTE", nodes.math("SUBTRACT", nodes.math("FRACT", nodes.math("MULTIPLY", way, 2.0)), 0.5)), 0.493, 0.499)
    bleached = nodes.noise(place, 2.6, detail=6.0, roughness=0.6)
    stains = nodes.rise(nodes.noise(place, 5.5, detail=8.0, roughness=0.7, distortion=0.5), 0.60, 0.80)
    weave = nodes.noise(place, 700.0, detail=2.0)
    tone = nodes.mix(nodes.math("MULTIPLY", bleached, 0.42), nodes.mix(share, *colours), (0.62, 0.55, 0.47))
    tone = nodes.mix(nodes.math("MULTIPLY", stains, 0.40), tone, (0.24, 0.20, 0.15))
    tone = nodes.mix(nodes.math("MULTIPLY", seam, 0.5), tone, (0.10, 0.06, 0.05))
    tone = dusted(nodes, nodes.mix(nodes.math("MULTIPLY", weave, 0.3), tone, (0, 0, 0)), *dust)
    normal = nodes.bump(nodes.math("MULTIPLY_ADD", weave, 0.25, nodes.noise(place, 7.0, detail=5.0)), 0.5, 0.02)
    surface(nodes, nodes.add("ShaderNodeMixShader", through, nodes.add("ShaderNodeBsdfDiffuse", tone, Normal=normal), nodes.add("ShaderNodeBsdfTranslucent", tone, normal)))
    return made


def sand():
    """Coarse sand: grains of several tones, darker where it is damp below the steps, dark and smooth where the sea has been."""
    made, nodes = material("sand")
    place = nodes.place()
    apart = nodes.add("ShaderNodeSeparateXYZ", place)
    form = nodes.noise(place, 1.1, detail=11.0, roughness=0.66)
    grain = nodes.add("ShaderNodeTexVoronoi", Vector=place, Scale=240.0)
    speck = nodes.add("ShaderNodeSeparateColor", grain.outputs["Color"]).outputs[0]
    off = nodes.math("MULTIPLY_ADD", nodes.noise(place, 0.25, detail=4.0), 3.0, apart.outputs[1])
    wet = nodes.rise(off, 11.2, 12.3)
    tone = nodes.mix(form, (0.33, 0.25, 0.16), (0.56, 0.46, 0.32))
    tone = nodes.mix(nodes.math("MULTIPLY", nodes.rise(speck, 0.55, 1.0), 0.55), tone, (0.72, 0.62, 0.48))
    tone = nodes.mix(nodes.math("MULTIPLY", nodes.rise(speck, 0.25, 0.0), 0.60), tone, (0.10, 0.07, 0.05))
    tone = nodes.mix(nodes.math("MULTIPLY", wet, 0.70), tone, (0.16, 0.12, 0.08))
    dry = nodes.math("MULTIPLY_ADD", wet, -0.9, 1.0)
    fine = nodes.noise(place, 38.0, detail=6.0, roughness=0.7)
    normal = nodes.bump(grain.outputs["Distance"], nodes.math("MULTIPLY", dry, 0.5), 0.004, nodes.bump(nodes.math("MULTIPLY_ADD", fine, 0.10, form), dry, 0.16))
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=nodes.math("MULTIPLY_ADD", wet, -0.68, 0.92), Specular=0.3, Normal=normal))
    return made


def trampled(x, y):
    """Dry sand after a day of bathers: dents of feet across each other, their rims crumbled; smooth where the sea has been."""
    dry = numpy.clip((11.0 - y) / 1.5, 0, 1)
    z = 0.06 * (13.2 - y) + dry * (0.10 * layered(x / 3.5, y / 3.5, 4, 5, 0.5) + 0.05 * noise(x / 0.7, y / 0.7, 9))
    for turn, seed in ((0.3, 3), (1.2, 8), (2.2, 13), (2.9, 21)):
        u, v = x * math.cos(turn) + y * math.sin(turn), y * math.cos(turn) - x * math.sin(turn)
        step = noise(u / 0.17 + 0.5 * noise(u, v, seed + 1), v / 0.34, seed)
        pit = numpy.clip((step - 0.18) / 0.45, 0, 1) ** 0.8
        rim = numpy.exp(-((step - 0.12) / 0.10) ** 2)
        z = z + dry * (0.012 * rim - 0.040 * pit) * numpy.clip(0.7 + noise(u / 2.2, v / 2.2, seed + 4), 0.15, 1.2)
    return z + dry * 0.010 * layered(x / 0.11, y / 0.11, 5, 4, 0.55)


def level(x, y):
    return float(trampled(numpy.array([x * 1.0]), numpy.array([y * 1.0]))[0])


def parasol(x, y):
    """Eight panels between ribs, hanging, lifted a little by the wind at one side, leaning."""
    cloth, pole = striped(((0.62, 0.06, 0.04), (0.80, 0.76, 0.68)), 4, "turn", through=0.5), plain("pole", (0.50, 0.47, 0.42), 0.4)
    angle = numpy.linspace(0, 2 * math.pi, 192, endpoint=False)[None, :]
    t = numpy.linspace(0.015, 1, 30)[:, None]
    rib = numpy.abs(numpy.sin(4 * angle))
    wind = 0.05 * numpy.cos(angle - 0.6) * t ** 2 + 0.03 * noise(2.2 * numpy.cos(angle) + 3, 2.2 * numpy.sin(angle), 4) * t
    reach = 1.25 * t * (1 - 0.07 * rib * t)
    sag = (0.075 + 0.03 * noise(1.7 * numpy.cos(angle), 1.7 * numpy.sin(angle), 9)) * rib * numpy.sin(math.pi * t * 0.75)
    soup = Soup()
    soup.raster(numpy.stack([reach * numpy.cos(angle), reach * numpy.sin(angle), 2.3 - 0.48 * t ** 1.8 - sag + wind], axis=-1), closed=True)
    down = numpy.linspace(0, 1, 6)[:, None]
    flutter = 0.035 * noise(5 * numpy.cos(angle) + 1, 5 * numpy.sin(angle), 6) + 0.02
    flap = 0.12 + 0.035 * numpy.abs(numpy.sin(16 * angle))
    ring = reach[-1] + flutter * down
    soup.raster(numpy.stack([ring * numpy.cos(angle), ring * numpy.sin(angle), (1.82 - sag[-1] + wind[-1])[None, :] - down * flap], axis=-1), closed=True)
    parts = [soup.made("cloth", [cloth]), tube("pole", [(0, 0, -0.4), (0, 0, 1), (0, 0, 2.42)], 0.019, pole), turned("knob", [(0.001, 2.43), (0.024, 2.40), (0.022, 2.33)], pole, 16)]
    for n in range(8):
        turn = n * math.pi / 4
        parts.append(tube("rib", [(math.cos(turn) * r, math.sin(turn) * r, 2.240 - 0.48 * (r / 1.25) ** 1.8) for r in (0.02, 0.4, 0.8, 1.24)], 0.005, pole, 5))
        parts.append(tube("stretcher", [(0, 0, 1.72), (math.cos(turn) * 0.62, math.sin(turn) * 0.62, 2.095)], 0.005, pole, 5))
    for part in parts:
        part.location, part.rotation_euler = (x, y, level(x, y)), (0.10, -0.16, 0.3)


def towel(x, y, turn):
    """Terry that somebody got up from: it follows the sand, pushed into folds, one corner turned in, sand on it."""
    u, v = numpy.meshgrid(numpy.linspace(-0.40, 0.40, 110), numpy.linspace(-0.80, 0.80, 200))
    push = 0.06 * noise(u * 2.0, v * 1.6, 14) + 0.03 * noise(u * 5, v * 5, 15)
    wave = 0.016 * layered(u * 3.0 + v, v * 2.2, 4, 4, 0.5) + 0.045 * numpy.exp(-((v - 0.30 - 0.45 * u - push) / 0.05) ** 2) + 0.04 * numpy.exp(-((v + 0.35 + 0.6 * u + 2 * push) / 0.045) ** 2)
    wave = wave + 0.03 * numpy.exp(-((u - 0.2 * v - 0.18) / 0.05) ** 2) * (v > 0)
    shrunk = u * (1 - 0.06 * numpy.cos(5 * v)) + push, v * 0.93 + push
    across, along = x + shrunk[0] * math.cos(turn) - shrunk[1] * math.sin(turn), y + shrunk[0] * math.sin(turn) + shrunk[1] * math.cos(turn)
    soup = Soup()
    soup.raster(numpy.stack([shrunk[0], shrunk[1], trampled(across, along) - level(x, y) + 0.018 + numpy.maximum(wave, 0)], axis=-1))
    made = soup.made("towel", [striped(((0.05, 0.17, 0.28), (0.70, 0.66, 0.57)), 7, "across", (-0.02, 0.09), 0.1)])
    made.location, made.rotation_euler = (x, y, level(x, y)), (0, 0, turn)
    made.modifiers.new("thick", "SOLIDIFY").thickness = 0.009


def plastic(name, tone, low, high):
    made, nodes = material(name)
    scuffed = nodes.noise(nodes.place(), 24.0, detail=7.0, roughness=0.65)
    colour = dusted(nodes, nodes.mix(nodes.math("MULTIPLY", scuffed, 0.35), tone, tuple(0.5 * part + 0.1 for part in tone)), low, high)
    surface(nodes, nodes.add("ShaderNodeMixShader", 0.25, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=colour, Roughness=nodes.math("MULTIPLY_ADD", scuffed, 0.5, 0.2)), nodes.add("ShaderNodeBsdfTranslucent", colour)))
    return made


def bucket(x, y):
    """A child's bucket, half sunk, filled with sand, a spade beside it, a ball farther off."""
    yellow, red = plastic("yellow", (0.75, 0.40, 0.03), 0.02, 0.17), plastic("red", (0.55, 0.05, 0.03), -0.05, 0.05)
    parts = [turned("bucket", [(0.001, 0), (0.085, 0), (0.115, 0.2), (0.122, 0.2), (0.122, 0.21), (0.108, 0.21), (0.100, 0.15), (0.05, 0.185), (0.001, 0.20)], yellow, 40),
             tube("handle", [(0.12 * math.cos(a), 0.02 + 0.10 * math.sin(a), 0.2 + 0.045 * math.sin(a)) for a in numpy.linspace(0, math.pi, 20)], 0.004, plain("white", (0.7, 0.68, 0.62), 0.4), 6)]
    for part in parts:
        part.location, part.rotation_euler = (x, y, level(x, y) - 0.035), (0.12, 0.16, 0.4)
    spade = [tube("shaft", [(0, 0, 0.05), (0.12, 0, 0.12), (0.26, 0, 0.20)], 0.010, red, 8), turned("blade", [(0.001, -0.012), (0.05, -0.004), (0.055, 0.006), (0.001, 0.0)], red, 24)]
    for part in spade:
        part.location, part.rotation_euler = (x + 0.32, y - 0.12, level(x + 0.32, y - 0.12)), (0.1, 0.2, 0.9)
    ball = turned("ball", [(0.15 * math.sin(a) + 0.0005, -0.15 * math.cos(a)) for a in numpy.linspace(0, math.pi, 30)], striped(((0.04, 0.18, 0.36), (0.74, 0.71, 0.64)), 3, "turn", (-0.16, 0.02)), 48)
    ball.location, ball.rotation_euler = (x - 1.1, y + 2.6, level(x - 1.1, y + 2.6) + 0.12), (0.9, 0.5, 0.0)


def strewn(chance):
    """Bits of shell, pebbles and dry weed."""
    shell, stone, weed = plain("shell", (0.72, 0.66, 0.57), 0.5), plain("stone", (0.16, 0.14, 0.12), 0.7), plain("weed", (0.05, 0.035, 0.02), 0.9)
    kinds = [turned("bit", [(0.0001, -0.003), (0.006, 0.0), (0.004, 0.003), (0.0001, 0.0035)], stuff, 7) for stuff in (shell, shell, stone)]
    kinds.append(tube("weed", [(0, 0, 0), (0.02, 0.01, 0.006), (0.05, 0, 0.002), (0.07, -0.02, 0.005)], 0.0025, weed, 5))
    x, y = seeded_places(chance, 5200, 1.6, 11.5, 40)
    scatter(kinds, numpy.column_stack([x, y, trampled(x, y) + 0.003]), random_turns(chance, len(x), 0.8), 0.35 + 1.3 * chance.random(len(x)) ** 3, chance.integers(0, 4, len(x)))


def build():
    chance = numpy.random.default_rng(2)
    ground("sand", trampled, sand(), near=1.2, far=16, spread=44, rows=1100, columns=1300)
    sea("lagoon", lagoon(), chance, near=11.0, far=9000, spread=36, rows=700, columns=450, height=0.16, longest=7.0, shortest=0.4, wind=3.0)
    parasol(1.55, 6.2)
    towel(0.55, 4.7, 0.7)
    bucket(-0.95, 4.3)
    strewn(chance)
    camera((0, 0, 1.35), (0.1, 12, 1.62), lens=32, focus=4.6, f_stop=2.8)
    daylight(27, 58, strength=0.11, dust=1.0, ozone=1.5, low=((7.2, 7.4, 7.4), 0.12),
             clouds=dict(low=0.47, high=0.72, scale=0.75, light=(12, 11.5, 11), shade=(7.0, 7.2, 7.8), thick=0.9, seed=31.0))
    return Roll(samples=20, bounces=4, exposure=-0.55, saturation=1.08, glow=0.06, grain=0.011)
