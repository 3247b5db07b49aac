"""Wooden boats at their moorings: clinker hulls, some with a wheelhouse and what fishing leaves on deck."""
from math import cos, pi, sin

import numpy

import materials as m
import shapes as s
from growth import Soup


def hull_paint(colour, below):
    """Paint over planks, scuffed, slime where it floats."""
    made, nodes, shader = m.principled("paint", colour, 0.45, Specular=0.4)
    place, height = m.where_in_world(nodes)
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place())
    planks = nodes.math("FRACT", nodes.math("MULTIPLY", apart.outputs[2], 1 / 0.145))
    worn = nodes.noise(nodes.vector("MULTIPLY", place, (0.8, 0.8, 2.5)), 2.4, detail=9.0, roughness=0.66)
    tone = nodes.mix(nodes.math("MULTIPLY", nodes.rise(worn, 0.42, 0.75), 0.7), m.rgb(colour), tuple(0.45 * level + 0.06 for level in m.rgb(colour)))
    slime = nodes.rise(nodes.math("MULTIPLY_ADD", worn, -0.12, height), 0.06, -0.02)
    tone = nodes.mix(slime, nodes.mix(nodes.math("LESS_THAN", height, 0.12), tone, m.rgb(below)), (0.02, 0.024, 0.014))
    tone = nodes.mix(m.ramp(nodes, planks, (0.0, 0.55), (0.12, 0.0)), tone, (0.01, 0.01, 0.01))
    m.feed(nodes, shader, Base_Color=tone, Normal=m.relief(nodes, planks, 0.03, 0.8))
    return made


def hull(colours, long, broad):
    """A clinker hull, its stem raked, its transom upright; points of its edges as well."""
    rows, columns = 36, 17
    a, b = numpy.meshgrid(numpy.linspace(0, 1, rows), numpy.linspace(-1, 1, columns), indexing="ij")
    beam = broad / 2 * numpy.minimum(1.0, 0.74 + 0.75 * a) * (1 - a ** 3.4) ** 0.75 + 0.015
    sheer = 0.55 + 0.75 * (a - 0.35) ** 2 + 0.25 * a ** 3
    z = -0.30 + 0.12 * a ** 3 + (sheer + 0.30) * numpy.abs(b) ** (2.2 + 1.6 * (1 - a))
    y = beam * numpy.sign(b) * numpy.abs(b) ** (0.62 + 0.45 * a ** 2)
    x = long * (a - 0.5) + 0.45 * (z + 0.3) * a ** 4
    points = numpy.stack([x, y, z], axis=-1)
    soup = Soup()
    soup.raster(points)
    paint = hull_paint(*colours[:2])
    made = soup.made("hull", [paint])
    made.modifiers.new("thick", "SOLIDIFY").thickness = 0.045
    transom = s.mesh("transom", points[0], [tuple(range(columns))], paint, smooth=False)
    return [made, transom], points[:, 0], points[:, -1]


def gear(dice):
    """What lies about on the deck of a boat that fishes: a heap of net, floats, fish boxes, coils."""
    net = s.wrinkled(s.ball("net", 0.42, m.plain("net", dice.choice(("2a4a44", "5f4630", "38485a")), 0.95), (-1.5, 0.1, 0.5), 4), 0.4, 0.16)
    net.scale.z = 0.6
    parts = [net] + [s.ball("float", 0.085, m.plain("float", dice.choice(("b8502a", "c9b04a", "b9b5a8")), 0.6), (-1.5 + dice.gauss(0, 0.3), dice.gauss(0.1, 0.25), 0.72 + dice.uniform(-0.05, 0.05)), 3) for _ in range(7)]
    for k in range(2):
        parts.append(s.box("fish box", (0.6, 0.36, 0.2), m.plain("box", dice.choice(("4f6a80", "8d8a80", "8a4a34")), 0.6), 0.02, (-0.95 + dice.gauss(0, 0.05), -0.3, 0.56 + 0.2 * k)))
    coil = [(-2.05 + (0.20 - 0.0018 * k) * cos(0.55 * k), 0.1 + (0.20 - 0.0018 * k) * sin(0.55 * k), 0.46 + 0.0016 * k) for k in range(70)]
    return [*parts, s.tube("coil", coil, 0.018, m.plain("rope", "a3957a", 0.95))]


def boat(dice, place, colours, mast, moored):
    """A wooden boat: hull, gunwale, thwarts or a wheelhouse with its mast. Place: x, y, the way it heads, its
    size; colours: paint, below the water, edge; moored: where its line goes to."""
    x, y, turn, size = place
    long, broad = 5.4, 2.0 if mast else 1.7
    parts, left, right = hull(colours, long, broad)
    wood = m.wood("deck", "4a3826", "755a3e", "96785a", 0.7, 1.2)
    for edge in (left, right):
        parts.append(s.tube("gunwale", [(x, y, z + 0.02) for x, y, z in edge], 0.04, m.plain("gunwale", colours[2], 0.5)))
        for _ in range(2):
            u, v, w = edge[dice.randrange(6, 24)]
            parts.append(s.tube("fender", [(u, v * 1.1, w - 0.05), (u, v * 1.12, w - 0.12), (u, v * 1.12, w - 0.5)], 0.085, m.plain("rubber", dice.choice(("8f8b80", "2f3f55", "99562f")), 0.5), radii=[0.2, 1, 0.9]))
    if mast:
        dark = m.plain("windows", "14191c", 0.1)
        house_, nodes, shader = m.principled("cabin", "b9b2a0", 0.55)
        rust = nodes.rise(nodes.noise(m.stretched(nodes, (5.0, 5.0, 1.2)), 1.6, detail=9.0, roughness=0.66), 0.48, 0.72)
        m.feed(nodes, shader, Base_Color=nodes.mix(nodes.math("MULTIPLY", rust, 0.7), m.rgb("c4bdab"), m.rgb("5f5140")))
        parts += [s.box("deck", (2.6, broad * 0.62, 0.05), wood, 0.01, (-0.2, 0, 0.45)), s.box("cabin", (1.5, 1.15, 1.25), house_, 0.05, (0.5, 0, 1.05)),
                  s.box("windows", (1.3, 1.17, 0.38), dark, 0.02, (0.52, 0, 1.36)), s.box("windows", (1.52, 0.9, 0.38), dark, 0.02, (0.5, 0, 1.36)),
                  s.box("roof", (1.75, 1.35, 0.06), wood, 0.03, (0.52, 0, 1.70)), s.tube("mast", [(-0.5, 0, 0.5), (-0.52, 0, 4.0)], 0.05, wood, radii=[1, 0.7]),
                  s.tube("stay", [(-0.52, 0, 3.9), (2.6, 0, 1.0)], 0.012, wood), s.tube("stay", [(-0.52, 0, 3.9), (-2.6, 0, 0.8)], 0.012, wood),
                  s.tube("boom", [(-0.55, 0, 1.5), (-2.3, 0.1, 2.1)], 0.035, wood), *gear(dice)]
    else:
        parts += [s.box("thwart", (0.26, broad * 0.86, 0.04), wood, 0.01, (dx, 0, 0.34)) for dx in (-1.5, -0.2, 1.1)]
        parts += [s.tube("oar", [(-1.8, k, 0.42), (1.4, 0.6 * k, 0.46)], 0.025, wood) for k in (-0.2, 0.25)]
        parts.append(s.ball("tarpaulin", 0.3, m.plain("tarpaulin", "3d5a4a", 0.8), (-1.9, 0.1, 0.4), 3))
    handle = s.parent(parts, "boat")
    handle.location, handle.rotation_euler, handle.scale = (x, y, 0), (dice.gauss(0, 0.03), dice.gauss(0, 0.015), turn), (size,) * 3
    rope(dice, (x + 2.5 * size * cos(turn), y + 2.5 * size * sin(turn), 0.85 * size), moored)


def rope(dice, start, end):
    """A mooring line that hangs."""
    line = [tuple(a + (b - a) * k / 12 for a, b in zip(start, end)) for k in range(13)]
    deep = dice.uniform(0.3, 0.6)
    s.tube("rope", [(x, y, z - deep * sin(pi * k / 12)) for k, (x, y, z) in enumerate(line)], 0.022, m.plain("rope", "b3a588", 0.9))
