"""Fireworks over a town on the water, the shutter open for some seconds."""
from math import pi

import numpy

import materials as m
import shapes as s
from common import camera, mesh_object, world
from film import Roll
from town import facade

FORMAT = "portrait"


def spark(name, tones, power):
    """The trail of a spark: white hot at first, then its colour, then dying; the share of its life is an attribute."""
    made, nodes = m.material(name)
    age = nodes.add("ShaderNodeAttribute", _attribute_name="age").outputs["Fac"]
    colour = m.ramp(nodes, age, *tones)
    level = m.ramp(nodes, age, (0.0, 0.2), (0.3, 1.0), (0.7, 0.6), (0.95, 0.12), (1.0, 0.0))
    m.surface(nodes, nodes.add("ShaderNodeEmission", colour, nodes.math("MULTIPLY", level, power)))
    return made


def directions(chance, count):
    """Evenly over a ball, a little shaken."""
    i = numpy.arange(count) + 0.5
    z, turn = 1 - 2 * i / count, i * pi * (3 - 5 ** 0.5)
    flat = numpy.sqrt(1 - z * z)
    rays = numpy.stack([flat * numpy.cos(turn), flat * numpy.sin(turn), z], axis=1) + chance.normal(0, 0.05, (count, 3))
    return rays / numpy.linalg.norm(rays, axis=1, keepdims=True)


def paths(chance, middle, size, count, life, droop):
    """For each spark its way: the air brakes it, the ground draws it. (sparks x steps x 3), and the age at each step."""
    t = numpy.linspace(life[0], life[1], 26)
    reach = size * (1 - numpy.exp(-2.6 * t))
    ways = directions(chance, count)[:, None, :] * reach[None, :, None] * chance.uniform(0.86, 1.06, count)[:, None, None]
    ways[:, :, 2] -= (droop * size * t ** 2.2)[None, :]
    return ways + numpy.asarray(middle), numpy.linspace(0, 1, 26)


def ribbon(name, ways, age, width, material):
    """Crossed strips along each way, thinner with age; one mesh for all."""
    count, steps = ways.shape[:2]
    points, faces = [], []
    thin = (width * (1 - 0.75 * age))[None, :, None]
    for aside in (numpy.array([1.0, 0, 0]), numpy.array([0, 0, 1.0])):
        base = sum(len(p) for p in points)
        both = numpy.stack([ways - aside * thin, ways + aside * thin], axis=2).reshape(-1, 3)
        points.append(both)
        one = numpy.arange(count)[:, None] * steps * 2 + numpy.arange(steps - 1)[None, :] * 2 + base
        faces.append(numpy.stack([one, one + 1, one + 3, one + 2], axis=-1).reshape(-1, 4))
    made = mesh_object(name, numpy.concatenate(points), numpy.concatenate(faces), material)
    ages = numpy.tile(numpy.repeat(numpy.tile(age, count), 2), 2).astype(numpy.float32)
    made.data.attributes.new("age", "FLOAT", "POINT").data.foreach_set("value", ages)
    return made


def shell(chance, middle, size, tones, count=150, life=(0.12, 1.0), droop=0.16, power=3.4):
    """One burst, and the faint smoke that it lights."""
    ways, age = paths(chance, middle, size, count, life, droop)
    burning = spark("spark", tones, power)
    ribbon("shell", ways, age, 0.12, burning)
    late = chance.random(count) < 0.5  # these crackle as they die
    embers = numpy.repeat(ways[late, -6:].reshape(-1, 1, 3), 2, axis=1) + chance.normal(0, 0.35, (6 * late.sum(), 2, 3))
    ribbon("embers", embers, numpy.array([0.3, 0.5]), 0.16, burning)
    m.lamp("POINT", middle, (0, 0, 0), 6e5, m.rgb(tones[1][1]), shadow_soft_size=10)


def rising(foot, top):
    """The track of a rocket."""
    t = numpy.linspace(0, 1, 26)
    way = numpy.array(foot) + (numpy.array(top) - numpy.array(foot)) * (1 - (1 - t) ** 1.6)[:, None]
    way[:, 0] += 1.2 * numpy.sin(5 * t + foot[0])
    ribbon("track", way[None], 1 - t * 0.8, 0.14, spark("track", [(0.0, "ffd9a0"), (1.0, "c06a28")], 0.9))


def smoke():
    """Clouds of earlier bursts, lit by the later ones: thin sheets that let light through."""
    made, nodes = m.material("smoke")
    where = nodes.place("Generated")
    cloud = nodes.noise(where, 5.0, detail=8.0, distortion=0.4)
    from_middle = nodes.vector("LENGTH", nodes.vector("SUBTRACT", where, (0.5, 0.5, 0.0)))
    cover = nodes.math("MULTIPLY", nodes.rise(cloud, 0.42, 0.85), nodes.rise(from_middle, 0.5, 0.1))
    lit = nodes.add("ShaderNodeBsdfDiffuse", (0.8, 0.8, 0.8))
    through = nodes.add("ShaderNodeBsdfTranslucent", (0.8, 0.8, 0.8))
    body = nodes.add("ShaderNodeMixShader", 0.5, lit, through)
    m.surface(nodes, nodes.add("ShaderNodeMixShader", nodes.math("MULTIPLY", cover, 0.55),
                               nodes.add("ShaderNodeBsdfTransparent"), body))
    for x, z, wide in ((-60, 150, 190), (50, 190, 210), (0, 105, 230), (70, 110, 150)):
        sheet = s.sheet("smoke", (wide, wide * 0.7), (2, 2), lambda x, y: 0.0, made)
        sheet.location, sheet.rotation_euler = (x, 430, z), (pi / 2, 0, 0)


def water():
    made, nodes, shader = m.principled("water", "03060c", 0.06, Specular=0.6)
    waves = nodes.math("ADD", nodes.noise(m.stretched(nodes, (0.55, 1, 1)), 0.22, detail=5.0),
                       nodes.math("MULTIPLY", nodes.noise(nodes.place(), 1.3), 0.2))
    m.feed(nodes, shader, Normal=m.relief(nodes, waves, 0.9, 0.4))
    return made


def town(dice):
    """A row of houses on the far bank with towers, lamps on the quay."""
    walls = [facade("wall", tone, i) for i, tone in enumerate(("6b6c73", "857468", "5c626c"))]
    x = -190.0
    while x < 190:
        wide, tall = dice.uniform(9, 17), dice.uniform(9, 20) if dice.random() < 0.86 else dice.uniform(26, 46)
        s.box("house", (wide, 12, tall), dice.choice(walls), at=(x, 330 + dice.uniform(-6, 12), tall / 2 + 1.5))
        x += wide + dice.uniform(0, 2)
    s.box("quay", (500, 30, 3), m.plain("quay", "2b2825", 0.9), at=(0, 334, 0))
    lamp = m.glow("lamp", "ffb866", 40)
    for i in range(45):
        s.ball("lamp", 0.42, lamp, (-190 + 8.7 * i, 317, 5.0), 1)


def build():
    dice, chance = s.dice(3), numpy.random.default_rng(11)
    nodes = world()
    height = nodes.add("ShaderNodeSeparateXYZ", nodes.place("Generated")).outputs[2]
    tone = nodes.ramp(height, (0.0, (0.030, 0.020, 0.022)), (0.12, (0.010, 0.010, 0.020)), (0.6, (0.003, 0.004, 0.011)))
    nodes.add("ShaderNodeOutputWorld", nodes.add("ShaderNodeBackground", tone, 1.0))
    gold = [(0.0, "fff2d0"), (0.3, "ffc25a"), (0.8, "e08a2a")]
    red = [(0.0, "fff0d8"), (0.18, "ff5a3a"), (0.8, "e02020")]
    blue = [(0.0, "f0f4ff"), (0.2, "6a9aff"), (0.8, "3a5ae0")]
    green = [(0.0, "f4fff0"), (0.2, "6ae08a"), (0.8, "2aa050")]
    violet = [(0.0, "fff0ff"), (0.2, "e070e8"), (0.8, "9a3ac0")]
    shell(chance, (-10, 400, 196), 70, gold, 420, (0.04, 1.35), 0.24, 6.5)
    shell(chance, (-60, 410, 128), 41, red, 300, (0.03, 1.0), 0.15, 7.5)
    shell(chance, (54, 405, 144), 44, blue, 320, (0.25, 1.15), 0.17, 8.0)
    shell(chance, (-66, 420, 226), 36, violet, 260, (0.5, 1.3), 0.22, 5.0)
    shell(chance, (70, 415, 232), 30, green, 240, (0.02, 0.75), 0.10, 7.0)
    shell(chance, (14, 395, 100), 24, [(0.0, "ffffff"), (0.3, "fff0dc"), (0.8, "ffd0a0")], 260, (0.02, 0.9), 0.16, 6.0)
    for foot, top in (((-8, 400, 6), (-10, 400, 194)), ((-40, 410, 6), (-62, 410, 124)), ((30, 405, 6), (52, 405, 138)),
                      ((5, 395, 6), (12, 395, 102))):
        rising(foot, top)
    smoke()
    town(dice)
    s.sheet("river", (900, 700), (2, 2), lambda x, y: 0.0, water()).location.y = 300
    camera((0, 0, 9), (0, 400, 108), 42)
    return Roll(samples=12, exposure=0.4, glow=0.15)
