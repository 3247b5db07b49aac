"""Two rings on linen, roses behind them out of focus, in the light of a window."""
import math

import numpy

from common import camera, mesh_object, random_turns, scatter, sheet, tube, world
from film import Roll
from flowers import facing
from growth import Soup, bent_line, petal
from land import layered, noise
from materials import lamp
from nodes import leafy, material, surface

FORMAT = "portrait"
RING = 0.0098  # metres to the middle of the band


def gold(name, colour, brushed=0.0):
    """Polished metal with the fine scratches of wear."""
    made, nodes = material(name)
    place = nodes.place()
    scratch = nodes.noise(nodes.vector("MULTIPLY", place, (1.0, 1.0, 14.0)), 900.0, detail=3.0)
    rough = nodes.math("MULTIPLY_ADD", scratch, 0.10 + brushed, 0.08 + brushed)
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=colour, Metallic=1.0, Roughness=rough, Normal=nodes.bump(scratch, 0.06 + 0.3 * brushed, 0.0001)))
    return made


def band(made_of, reach, wide, thick):
    """A ring with a rounded outside, its axis along z."""
    turn = numpy.linspace(0, 2 * math.pi, 240, endpoint=False)[:, None]
    round_ = numpy.linspace(0, 2 * math.pi, 40, endpoint=False)[None, :]
    across = numpy.sign(numpy.sin(round_)) * numpy.abs(numpy.sin(round_)) ** 0.55 * wide / 2
    out = reach + thick / 2 * numpy.sign(numpy.cos(round_)) * numpy.abs(numpy.cos(round_)) ** 0.8
    points = numpy.stack(numpy.broadcast_arrays(out * numpy.cos(turn), out * numpy.sin(turn), across), axis=-1)
    rows = numpy.concatenate([points, points[:1]])
    return sheet("ring", rows, made_of, closed=True)


def stone(chance, ring_of):
    """A brilliant in six claws, its point at the origin, its table up."""
    clear, nodes = material("brilliant")
    surface(nodes, nodes.add("ShaderNodeBsdfGlass", (1, 1, 1), 0.0, 2.0))
    turn = numpy.linspace(0, 2 * math.pi, 16, endpoint=False)
    rows = [[(0, 0, 0)] * 16] + [[(r * math.cos(a + s), r * math.sin(a + s), z) for a in turn] for r, z, s in ((0.0026, 0.0024, 0), (0.0026, 0.00255, 0), (0.0020, 0.0033, 0.2), (0.0015, 0.0036, 0))]
    rows.append([(0, 0, 0.0036)] * 16)
    soup = Soup()
    soup.raster(numpy.array(rows), closed=True)
    parts = [soup.made("brilliant", [clear], smooth=False)]
    for n in range(6):
        out = numpy.array([math.cos(n * math.pi / 3), math.sin(n * math.pi / 3), 0])
        parts.append(tube("claw", [out * 0.0006 + [0, 0, -0.001], out * 0.0022 + [0, 0, 0.0012], out * 0.0029 + [0, 0, 0.0026], out * 0.0024 + [0, 0, 0.0031]], [0.0004, 0.00038, 0.00036, 0.0003], ring_of, 8))
    return parts


def rings(chance):
    """His lies; hers leans on it, its stone up."""
    yellow, white = gold("gold", (0.90, 0.58, 0.24)), gold("pale gold", (0.93, 0.66, 0.36))
    his = band(yellow, 0.0105, 0.0048, 0.0018)
    his.location, his.rotation_euler = (-0.0055, 0.004, 0.0030), (0.04, -0.03, 0.3)
    hers = band(white, RING, 0.0026, 0.0017)
    tilt = (math.radians(62), math.radians(-8), math.radians(-24))
    hers.rotation_euler, hers.location = tilt, (0.0062, -0.0078, 0.0100)
    parts = stone(chance, white)
    for part in parts:
        part.data.transform(lift())
        part.rotation_euler, part.location = tilt, hers.location


def lift():
    """From standing at the origin to the top of the ring, which is its +y."""
    from mathutils import Matrix
    return Matrix.Translation((0, RING + 0.0012, 0)) @ Matrix.Rotation(-math.pi / 2, 4, "X")


def linen():
    """Cloth in soft folds, with the weave of its threads."""
    made, nodes = material("linen")
    place = nodes.place()
    apart = nodes.add("ShaderNodeSeparateXYZ", place)
    threads = [nodes.math("ABSOLUTE", nodes.math("SINE", nodes.math("MULTIPLY", apart.outputs[k], 5200.0))) for k in (0, 1)]
    slub = nodes.noise(nodes.vector("MULTIPLY", place, (1.0, 0.06, 1.0)), 1400.0, detail=2.0)
    weave = nodes.math("ADD", nodes.math("MULTIPLY", threads[0], threads[1]), nodes.math("MULTIPLY", slub, 0.8))
    tone = nodes.mix(weave, (0.70, 0.66, 0.61), (0.88, 0.85, 0.81))
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.85, Sheen=0.4, Specular=0.15, Normal=nodes.bump(weave, 0.7, 0.00035)))
    return made


def cloth():
    x, y = numpy.meshgrid(numpy.linspace(-0.35, 0.35, 420), numpy.linspace(-0.16, 0.75, 520))
    folds = 0.010 * noise(x * 5 + 1.5 * y, y * 3 - x, 4) + 0.006 * noise(x * 11 - 5 * y, y * 5 + 2 * x, 6) ** 2 + 0.0012 * layered(x * 30, y * 30, 9, 3)
    flat = numpy.exp(-((x / 0.035) ** 2 + (y / 0.03) ** 2))
    sheet("cloth", numpy.stack([x, y, folds * (1 - flat) - 0.0004], axis=-1), linen())


def rose(chance, materials, opened=1.0):
    """Petals in a spiral, close in the middle, rolled out at the rim; about 9 cm across, the heart at the origin."""
    soup = Soup()
    for n in range(46):
        t = n / 45
        turn = n * 2.399
        out = numpy.array([math.cos(turn), math.sin(turn), 0])
        rise = 3.6 * (1 - t) ** 1.2 + 0.35 - 0.3 * opened * t
        long = 0.030 + 0.022 * t + 0.002 * chance.standard_normal()
        petal(soup, out * (0.001 + 0.011 * t) - [0, 0, 0.012 * t], out + chance.normal(0, 0.06, 3), long, 0.028 + 0.030 * t, rise, -0.25 - 0.9 * t * opened, 0.42 - 0.25 * t, 0, 0.75, 8)
    return soup.made("rose", materials)


def bouquet(chance):
    """Roses, small white stars, leaves."""
    ivory = leafy("ivory", (0.82, 0.70, 0.58), (0.86, 0.78, 0.68), 0.35)
    blush = leafy("blush", (0.80, 0.47, 0.42), (0.84, 0.58, 0.52), 0.35)
    green = leafy("green", (0.05, 0.10, 0.035), (0.13, 0.19, 0.08), 0.35)
    kinds = [rose(chance, [tone], opened) for tone, opened in ((ivory, 1.0), (blush, 0.9), (ivory, 0.6), (blush, 1.2))]
    spots = [(-0.075, 0.165, 0.055, 0.5), (0.02, 0.19, 0.062, 0.6), (0.105, 0.20, 0.05, 0.6), (-0.025, 0.25, 0.115, 0.5), (0.07, 0.27, 0.12, 0.5), (-0.13, 0.25, 0.10, 0.7), (0.15, 0.29, 0.11, 0.6), (0.02, 0.33, 0.175, 0.4),
             (-0.09, 0.34, 0.17, 0.5), (0.11, 0.36, 0.18, 0.4), (-0.17, 0.35, 0.05, 0.7), (0.19, 0.24, 0.03, 0.8)]
    count = len(spots)
    turns = numpy.array([(lean + chance.uniform(-0.2, 0.3), chance.uniform(-0.4, 0.4), chance.uniform(-0.5, 0.5)) for _, _, _, lean in spots])
    scatter(kinds, numpy.array(spots)[:, :3], turns, chance.uniform(0.9, 1.2, count))
    leaf = Soup()
    petal(leaf, (0, 0, 0), (0, 1, 0), 0.065, 0.034, 0.2, -0.35, 0.2, 0, 0.05, 8)
    spray = Soup()
    for _ in range(26):
        end = bent_line(numpy.zeros(3), [*chance.normal(0, 0.5, 2), 1], chance.uniform(0.04, 0.1), chance.normal(0, 0.3, 3), 2)[-1]
        head = len(spray.points)
        for n in range(5):
            petal(spray, (0, 0, 0), (math.cos(1.257 * n), math.sin(1.257 * n), 0), 0.006, 0.005, 0.4, -0.3, 0.2, 0, 0.7, 4)
        matrix = facing(chance.uniform(0, 1.2), chance.uniform(0, 6.3))
        for part in range(head, len(spray.points)):
            spray.points[part] = spray.points[part] @ matrix.T + end
    places = numpy.column_stack([chance.uniform(-0.2, 0.22, 110), chance.uniform(0.15, 0.42, 110), chance.uniform(0.0, 0.2, 110)])
    places[:, 2] *= numpy.clip((places[:, 1] - 0.12) / 0.14, 0, 1)
    turns = random_turns(chance, 110, 0.9)
    scatter([leaf.made("leaf", [green])], places[:70], turns[:70], chance.uniform(0.7, 1.3, 70))
    scatter([spray.made("spray", [leafy("star", (0.85, 0.83, 0.78), (0.9, 0.88, 0.84), 0.3)])], places[70:] + [0, -0.02, 0.0], 0.5 * turns[70:], chance.uniform(0.8, 1.2, 40))


def ribbon(chance):
    """A satin ribbon that runs from the bouquet past the rings."""
    made, nodes = material("satin")
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=(0.80, 0.66, 0.58), Roughness=0.28, Sheen=0.5, Anisotropic=0.6))
    t = numpy.linspace(0, 1, 200)
    x = 0.045 + 0.03 * numpy.sin(5.5 * t + 0.6) - 0.035 * t
    y = 0.17 - 0.27 * t
    z = 0.004 + 0.010 * numpy.abs(numpy.sin(6.5 * t + 0.3)) * (1 - 0.7 * t) + 0.05 * numpy.clip(0.15 - t, 0, 1)
    lean = 0.45 * numpy.sin(7 * t)
    across = numpy.linspace(-0.009, 0.009, 9)[None, :]
    points = numpy.stack([x[:, None] + across * numpy.cos(lean)[:, None], y[:, None] + 0.15 * across, z[:, None] + across * numpy.sin(lean)[:, None] * 0.8], axis=-1)
    sheet("ribbon", points + [0.055, 0, 0], made)


def window():
    """A bright window to the left, a dim room behind, lamps far off."""
    nodes = world()
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place("Generated"))
    room = nodes.ramp(nodes.math("MULTIPLY_ADD", apart.outputs[0], -0.5, 0.5), (0.0, (0.05, 0.042, 0.038)), (0.55, (0.13, 0.115, 0.10)), (1.0, (0.55, 0.53, 0.50)))
    nodes.add("ShaderNodeOutputWorld", nodes.add("ShaderNodeBackground", room, 0.8))
    lamp("AREA", (-0.9, 0.25, 0.75), (0, 0.05, 0), 15.0, (1.0, 0.96, 0.90), size=0.7)
    lamp("AREA", (0.7, 0.9, 0.5), (0, 0.1, 0.02), 3.0, (1.0, 0.80, 0.60), size=0.3)


def lights(chance):
    """Candles and a string of lamps at the far end of the room: discs."""
    made, nodes = material("lights")
    surface(nodes, nodes.add("ShaderNodeEmission", nodes.ramp(nodes.chance(), (0.0, (1.0, 0.55, 0.22)), (1.0, (1.0, 0.80, 0.55))), 14.0))
    dot = mesh_object("dot", numpy.array([(math.cos(n * math.pi / 4), 0, math.sin(n * math.pi / 4)) for n in range(8)]) * 0.0065, [tuple(range(8))], made)
    places = numpy.column_stack([chance.uniform(-0.75, 0.75, 46), chance.uniform(1.5, 2.1, 46), chance.uniform(0.0, 0.95, 46)])
    scatter([dot], places, None, chance.uniform(0.6, 1.2, 46))


def build():
    chance = numpy.random.default_rng(32)
    window()
    cloth()
    rings(chance)
    bouquet(chance)
    ribbon(chance)
    lights(chance)
    camera((0.006, -0.165, 0.070), (0.003, 0.05, 0.032), lens=58, focus=(0.003, -0.004, 0.008), f_stop=9.0)
    return Roll(samples=32, bounces=6, exposure=1.15, clean=1.6, glow=0.09, saturation=1.1, warmth=0.02)
