"""Two scoops that begin to melt in a rolled waffle, a paper napkin around it, the sun behind on a glittering sea."""
from math import hypot, pi, sin

import numpy

import materials as m
import shapes as s
from common import camera, daylight, sheet
from film import Roll
from land import layered
from land import noise as waves
from nodes import material, surface

FORMAT = "portrait"
TALL, WIDE = 0.125, 0.0285  # of the cone


def ice(name, colour, deep, specks=None):
    """Scooped ice cream: torn and icy where the scoop went, wet where it melts; soft light inside."""
    made, nodes, shader = m.principled(name, colour, 0.4, Specular=0.4, Subsurface=0.25)
    shader.inputs["Subsurface Radius"].default_value = (0.012, 0.007, 0.005)
    where = nodes.place()
    torn = nodes.noise(m.stretched(nodes, (1, 1, 2.6)), 85.0, detail=9.0, roughness=0.62, distortion=0.9)
    crystals = nodes.noise(where, 700.0, detail=4.0)
    wet = nodes.rise(nodes.noise(where, 34.0, detail=4.0), 0.46, 0.60)
    tone = nodes.mix(m.ramp(nodes, torn, (0.35, 0.0), (0.68, 1.0)), m.rgb(deep), m.rgb(colour))
    if specks:
        dots = m.ramp(nodes, m.voronoi(nodes, where, 330.0), (0.14, 1.0), (0.24, 0.0))
        few = m.ramp(nodes, nodes.noise(where, 75.0), (0.50, 0.0), (0.58, 1.0))
        tone = nodes.mix(nodes.math("MULTIPLY", dots, few), tone, m.rgb(specks))
    height = nodes.math("MULTIPLY", nodes.math("MULTIPLY_ADD", crystals, 0.22, torn), nodes.math("MULTIPLY_ADD", wet, -0.7, 1.0))
    m.feed(nodes, shader, Base_Color=tone, Roughness=nodes.math("MULTIPLY_ADD", wet, -0.34, 0.52), Normal=m.relief(nodes, height, 0.0032, 0.9))
    return made


def scoop(radius, stuff, seed):
    """A ball with the ragged skirt that a scoop leaves below it, lumps where it broke."""
    t, a = numpy.linspace(0.0001, pi - 0.0001, 150)[:, None], numpy.linspace(0, 2 * pi, 300, endpoint=False)[None, :]
    x, y = numpy.cos(a), numpy.sin(a)
    ragged = 1.3 * waves(2.2 * x + seed, 2.2 * y, seed) + 0.8 * waves(6 * x, 6 * y + seed, seed + 1)
    skirt = numpy.maximum(0, 1 - numpy.abs(t - 2.22 - 0.10 * ragged) / (0.20 + 0.05 * ragged)) ** 1.1 * (0.11 + 0.07 * ragged)
    shell = waves(3.4 * x * numpy.sin(t) + seed, 3.4 * y * numpy.sin(t) + 2.6 * numpy.cos(t), seed + 4)
    furrow = layered(5.0 * x * numpy.sin(t) + 9, 5.5 * numpy.cos(t) + 4.0 * y, seed + 7, 5, 0.55)
    reach = radius * (1 + skirt + 0.035 * shell + 0.032 * furrow + 0.020 * numpy.minimum(furrow, 0))
    points = numpy.stack([reach * numpy.sin(t) * x, reach * numpy.sin(t) * y, reach * numpy.cos(t) * numpy.where(t < pi / 2, 0.93, 0.86) + 0 * a], axis=-1)
    made = sheet("scoop", points, stuff, closed=True)
    return s.wrinkled(made, radius * 0.035, radius * 0.07)


def waffle():
    made, nodes, shader = m.principled("waffle", "c08a4a", 0.62, Specular=0.25)
    where = nodes.place()
    ridge = nodes.add("ShaderNodeAttribute", _attribute_name="ridge").outputs["Fac"]
    baked = nodes.noise(where, 24.0, detail=6.0, roughness=0.62)
    fine = nodes.noise(where, 260.0, detail=5.0, roughness=0.7)
    tone = nodes.math("MULTIPLY_ADD", nodes.math("SUBTRACT", fine, 0.5), 0.45, nodes.math("MULTIPLY_ADD", ridge, -0.20, nodes.math("MULTIPLY_ADD", baked, 1.25, -0.08)))
    pores = m.ramp(nodes, m.voronoi(nodes, where, 850.0), (0.05, 0.0), (0.3, 1.0))
    m.feed(nodes, shader, Base_Color=m.ramp(nodes, tone, (0.15, "dcb272"), (0.45, "c48c4a"), (0.68, "9c6128"), (0.9, "6e3d16")), Subsurface=0.08,
           Normal=m.relief(nodes, nodes.math("MULTIPLY_ADD", pores, 0.5, fine), 0.0007, 0.9))
    shader.inputs["Subsurface Radius"].default_value = (0.004, 0.002, 0.001)
    return made


def cone():
    """A flat waffle that was rolled: its lattice runs askew around it, one edge laps over, the rim is broken by hand."""
    t, a = numpy.linspace(0, 1, 420)[:, None], numpy.linspace(0, 2 * pi, 620, endpoint=False)[None, :]
    slant = hypot(TALL, WIDE)
    turn = (a - 2.2) * WIDE / slant + 0.35
    u, v = t * slant * numpy.cos(turn), t * slant * numpy.sin(turn)
    u, v = u + 0.0010 * waves(u * 35, v * 35, 2), v + 0.0010 * waves(u * 35 + 9, v * 35, 3)
    lines = [numpy.abs((((u + sign * v) / 0.0098) % 1) - 0.5) * 2 for sign in (1, -1)]
    ridge = numpy.maximum(*(0.5 - 0.5 * numpy.cos(pi * numpy.clip((one - 0.76) / 0.24, 0, 1)) for one in lines))
    ridge = ridge * (0.85 + 0.25 * waves(u * 40, v * 40, 5))
    around = (a + 1.5 * t) % (2 * pi)
    lap = 0.0016 * numpy.clip(around / 0.06, 0, 1) * numpy.clip((3.3 - around) / 0.06, 0, 1)
    dent = 0.0011 * waves(2.0 * numpy.cos(a), 3 * t + numpy.sin(a), 8)
    reach = WIDE * (0.04 + 0.96 * t) + (0.0009 * ridge + lap + dent) * numpy.minimum(1, 4 * t)
    rim = 1 + 0.020 * waves(1.7 * numpy.cos(a) + 4, 1.7 * numpy.sin(a), 6) + 0.010 * waves(9 * numpy.cos(a), 9 * numpy.sin(a), 7)
    points = numpy.stack([reach * numpy.cos(a), reach * numpy.sin(a), TALL * (t * rim - 1)], axis=-1)
    made = sheet("cone", points, waffle(), closed=True)
    made.data.attributes.new("ridge", "FLOAT", "POINT").data.foreach_set("value", ridge.astype(numpy.float32).ravel())
    thick = made.modifiers.new("thick", "SOLIDIFY")
    thick.thickness, thick.offset = 0.0022, -1


def napkin():
    """A paper napkin wrapped around the lower end, its edge aslant, creased."""
    made, nodes = material("paper")
    where = nodes.place()
    embossed = m.ramp(nodes, m.voronoi(nodes, where, 520.0), (0.1, 0.0), (0.5, 1.0))
    normal = nodes.bump(nodes.math("MULTIPLY_ADD", embossed, 0.15, nodes.noise(where, 60.0, detail=6.0)), 0.6, 0.0016)
    front = nodes.add("ShaderNodeBsdfDiffuse", (0.78, 0.77, 0.74), Normal=normal)
    surface(nodes, nodes.add("ShaderNodeMixShader", 0.3, front, nodes.add("ShaderNodeBsdfTranslucent", (0.78, 0.76, 0.72))))
    t, a = numpy.linspace(0, 1, 120)[:, None], numpy.linspace(0, 2 * pi * 1.35, 400)[None, :]
    top = -0.068 + 0.017 * numpy.sin(a * 0.8 + 0.4) + 0.0012 * waves(a * 4, 0 * a, 3)
    z = -0.15 + t * (top + 0.15)
    crease = numpy.abs(waves(a * 2.1 + 1.5 * t, t * 3.0, 5)) + 0.5 * numpy.abs(waves(a * 5.0 - 2.0 * t, t * 6.0, 9))
    reach = WIDE * numpy.maximum(0.03, 1 + z / TALL) + 0.0044 + 0.0026 * crease * (0.4 + 0.9 * t) + 0.0004 * a
    sheet("napkin", numpy.stack([reach * numpy.cos(a + 2.6), reach * numpy.sin(a + 2.6), z], axis=-1), made)


def biscuit():
    """A thin wafer: a fine lattice pressed into it, browner where it stands up."""
    made, nodes, shader = m.principled("biscuit", "c08a4a", 0.75, Specular=0.15)
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place())
    lines = [nodes.math("ABSOLUTE", nodes.math("SINE", nodes.math("MULTIPLY", apart.outputs[k], 1150.0))) for k in (0, 2)]
    lattice = nodes.rise(nodes.math("MINIMUM", *lines), 0.1, 0.5)
    baked = nodes.math("MULTIPLY_ADD", nodes.noise(nodes.place(), 520.0, detail=4.0), 0.35, nodes.math("MULTIPLY", nodes.noise(nodes.place(), 60.0, detail=6.0), 0.9))
    tone = nodes.math("MULTIPLY_ADD", lattice, -0.16, baked)
    m.feed(nodes, shader, Base_Color=m.ramp(nodes, tone, (0.25, "e0bb80"), (0.5, "c08a48"), (0.8, "8a5424")), Normal=m.relief(nodes, nodes.math("MULTIPLY_ADD", baked, -0.8, lattice), -0.0009, 0.9))
    return made


def beach(dice):
    """Sand, sea and sky, far out of focus; where waves mirror the sun, discs of light."""
    s.box("sand", (60, 9.4, 0.1), m.plain("sand", "a58a60", 0.95), at=(0, 6.7, -1.35))
    s.box("wet sand", (80, 2.2, 0.1), m.plain("wet sand", "74644c", 0.3), at=(0, 12.3, -1.35))
    s.box("surf", (80, 0.7, 0.1), m.plain("surf", "e8ecec", 0.8), at=(0, 13.6, -1.33))
    s.box("sea", (900, 600, 0.1), m.plain("sea", "1c5870", 0.35), at=(0, 313.9, -1.34))
    glints = [m.glow("glint", tone, power) for tone, power in (("fff2d8", 5), ("ffe9c4", 9), ("ffffff", 14))]
    for _ in range(70):
        y = 15 + 60 * dice.random() ** 2
        s.ball("glint", 0.0034 * y * dice.uniform(0.4, 1.2), dice.choice(glints), (dice.gauss(0.02, 0.20) * y, y, -1.27), 1)
    for x, y, tone in ((-3.4, 11.0, "b03038"), (3.6, 12.5, "d9d2c2")):
        s.lathe("parasol", [(1.25, 0.55), (0.7, 0.9), (0, 1.05)], m.plain("cloth", tone, 0.8), steps=24).location = (x, y, -0.5)
        s.tube("pole", [(x, y, -1.3), (x, y, 0.5)], 0.03, m.plain("pole", "d9d4c8", 0.5))
    s.ridge([(x, 400, 3.5 + 5.0 * sin(x / 37.0) * sin(x / 90.0 + 1)) for x in range(-40, 240, 4)], -2, m.plain("cape", "51697a", 1.0))


def build():
    dice = s.dice(48)
    cone()
    napkin()
    pink = ice("strawberry", "e8a0a6", "c96a78", "8f1c30")
    scoop(0.0315, pink, 3).location = (0, 0, 0.019)
    upper = scoop(0.0290, ice("vanilla", "efe0bb", "dcc38a", "3a2614"), 8)
    upper.location, upper.rotation_euler = (0.0035, 0.001, 0.0610), (0.14, -0.12, 1.3)
    wafer = s.box("wafer", (0.021, 0.0034, 0.070), biscuit(), 0.0004, (0.020, 0.004, 0.099))
    wafer.rotation_euler = (0.1, 0.42, 0.3)
    beach(dice)
    daylight(33, -50, strength=0.16, dust=1.0, sun_size=1.5, low=((6.2, 6.8, 7.2), 0.10), clouds=dict(low=0.48, high=0.75, scale=0.6, light=(9, 9, 9), shade=(6.5, 7, 7.6), thick=0.7))
    m.window_light((0.45, -0.6, 0.15), (0, 0, 0.02), 0.6, 4.0, (1.0, 0.92, 0.82))
    camera((0.0, -0.55, 0.038), (0.004, 0, 0.017), 78, (0, -0.026, 0.02), 4.0)
    return Roll(samples=24, exposure=-0.55, warmth=0.02, saturation=1.08, glow=0.08, grain=0.010)
