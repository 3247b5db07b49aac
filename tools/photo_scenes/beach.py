"""A beach in the afternoon: a parasol, a towel, a bucket, footprints to the water."""
import math

import numpy

from common import camera, daylight, tube, turned
from film import Roll
from growth import Soup
from land import ground, noise, sea
from nodes import material, plain, surface
from palm_beach import lagoon, sand, shore

FORMAT = "landscape"


def striped(colours, bands, axis):
    """Cloth with stripes around z ("turn") or along x ("across"); some light comes through."""
    made, nodes = material("striped")
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place())
    way = nodes.math("DIVIDE", nodes.math("ARCTAN2", apart.outputs[0], apart.outputs[1]), 2 * math.pi) if axis == "turn" else apart.outputs[0]
    share = nodes.math("GREATER_THAN", nodes.math("FRACT", nodes.math("MULTIPLY_ADD", way, bands, 50.25)), 0.5)
    weave = nodes.noise(nodes.place(), 900.0, detail=1.0)
    tone = nodes.mix(0.12, nodes.mix(share, *colours), nodes.mix(weave, (0, 0, 0), (1, 1, 1)))
    surface(nodes, nodes.add("ShaderNodeMixShader", 0.3, nodes.add("ShaderNodeBsdfDiffuse", tone), nodes.add("ShaderNodeBsdfTranslucent", tone)))
    return made


def walked(x, y):
    """The shore with two lines of footprints."""
    z = shore(x, y)
    for start, drift, phase in ((-2.9, 0.22, 0.0), (-2.2, 0.16, 0.4)):
        step = (y + phase) / 0.62
        middle = start + drift * y + 0.09 * numpy.where(numpy.floor(step) % 2 == 0, 1, -1)
        along = (step - numpy.floor(step) - 0.5) * 0.62
        print_ = ((x - middle) / 0.055) ** 2 + (along / 0.13) ** 2
        z = z - 0.035 * numpy.exp(-print_ ** 2) + 0.012 * numpy.exp(-((print_ - 2.2) / 0.9) ** 2)
    return z


def parasol(x, y):
    """Eight panels between ribs, hanging a little, leaning."""
    cloth, pole = striped(((0.72, 0.05, 0.035), (0.84, 0.82, 0.77)), 4, "turn"), plain("pole", (0.72, 0.70, 0.66), 0.3)
    angle = numpy.linspace(0, 2 * math.pi, 96, endpoint=False)[None, :]
    t = numpy.linspace(0.015, 1, 24)[:, None]
    rib = numpy.abs(numpy.sin(4 * angle))
    reach = 1.25 * t * (1 - 0.05 * rib * t)
    soup = Soup()
    soup.raster(numpy.stack([reach * numpy.cos(angle), reach * numpy.sin(angle), 2.3 - 0.48 * t ** 1.8 - 0.035 * rib * t], axis=-1), closed=True)
    edge = numpy.stack([reach[-1] * numpy.cos(angle[0]), reach[-1] * numpy.sin(angle[0]), 1.82 - 0.035 * rib[0]], axis=-1)
    flap = 0.11 + 0.04 * numpy.abs(numpy.sin(16 * angle[0]))
    soup.raster(numpy.stack([edge, edge * [1.01, 1.01, 1] - flap[:, None] * [0, 0, 1]]), closed=True)
    parts = [soup.made("cloth", [cloth]), tube("pole", [(0, 0, -0.4), (0, 0, 1), (0, 0, 2.42)], 0.021, pole), turned("knob", [(0.001, 2.46), (0.035, 2.42), (0.03, 2.34)], pole, 16)]
    for n in range(8):
        turn = n * math.pi / 4
        parts.append(tube("rib", [(math.cos(turn) * r, math.sin(turn) * r, 2.285 - 0.48 * (r / 1.25) ** 1.8) for r in (0.02, 0.4, 0.8, 1.24)], 0.006, pole, 5))
    for part in parts:
        part.location, part.rotation_euler = (x, y, level(x, y)), (0.10, -0.16, 0.3)


def level(x, y):
    return float(walked(numpy.array([x * 1.0]), numpy.array([y * 1.0]))[0])


def towel(x, y, turn):
    """Thick cloth that follows the sand, with folds."""
    u, v = numpy.meshgrid(numpy.linspace(-0.42, 0.42, 60), numpy.linspace(-0.85, 0.85, 110))
    wave = 0.016 * noise(u * 5, v * 3, 4) + 0.03 * numpy.exp(-((v - 0.3 - 0.3 * u) / 0.045) ** 2) + 0.022 * numpy.exp(-((v + 0.42 + 0.5 * u) / 0.05) ** 2)
    across, along = x + u * math.cos(turn) - v * math.sin(turn), y + u * math.sin(turn) + v * math.cos(turn)
    soup = Soup()
    soup.raster(numpy.stack([u, v, walked(across, along) - level(x, y) + 0.02 + numpy.abs(wave)], axis=-1))
    made = soup.made("towel", [striped(((0.03, 0.16, 0.30), (0.80, 0.78, 0.72)), 7, "across")])
    made.location, made.rotation_euler = (x, y, level(x, y)), (0, 0, turn)


def bucket(x, y):
    """A child's bucket, half sunk, and a ball."""
    yellow = plain("yellow", (0.80, 0.42, 0.02), 0.3)
    parts = [turned("bucket", [(0.001, 0), (0.085, 0), (0.115, 0.2), (0.122, 0.2), (0.122, 0.21), (0.108, 0.21), (0.08, 0.01)], yellow, 40),
             tube("handle", [(0.12 * math.cos(a), 0.02, 0.2 + 0.11 * math.sin(a)) for a in numpy.linspace(0, math.pi, 20)], 0.005, plain("white", (0.8, 0.8, 0.78), 0.3), 6)]
    for part in parts:
        part.location, part.rotation_euler = (x, y, level(x, y) - 0.02), (0.06, 0.09, 0.4)
    ball = turned("ball", [(0.16 * math.sin(a) + 0.0005, -0.16 * math.cos(a)) for a in numpy.linspace(0, math.pi, 30)], striped(((0.02, 0.20, 0.42), (0.82, 0.80, 0.75)), 3, "turn"), 48)
    ball.location, ball.rotation_euler = (x + 0.75, y + 1.0, level(x + 0.75, y + 1.0) + 0.14), (0.9, 0.5, 0.0)


def build():
    chance = numpy.random.default_rng(2)
    ground("sand", walked, sand(), near=1.4, far=16, spread=46, rows=900, columns=900)
    sea("lagoon", lagoon(), chance, near=11.0, far=9000, spread=36, rows=700, columns=450, height=0.10, longest=8.0, shortest=0.5, wind=3.0)
    parasol(1.7, 6.4)
    towel(0.9, 5.6, 0.5)
    bucket(-0.9, 5.0)
    camera((0, 0, 1.7), (0.1, 12, 1.75), lens=30, focus=6.0, f_stop=5.6)
    daylight(36, 128, strength=0.11, dust=0.3, ozone=2.0, low=((6.0, 7.2, 8.2), 0.12),
             clouds=dict(low=0.5, high=0.70, scale=0.75, light=(12, 12, 12), shade=(7.5, 8, 9), thick=0.9, seed=31.0))
    return Roll(samples=16, bounces=4, exposure=-0.6, saturation=1.15)
