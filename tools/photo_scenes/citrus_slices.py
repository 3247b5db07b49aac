"""Halved oranges, grapefruits, lemons and limes with leaves on a board, close by a window."""
from math import cos, pi, sin

import materials as m
import shapes as s
from common import camera
from film import Roll

FORMAT = "portrait"


def rind(name, colour, deep):
    """Oily peel with pores."""
    made, nodes, shader = m.principled(name, colour, 0.36, Clearcoat=0.15)
    where = nodes.place()
    pores = m.ramp(nodes, m.voronoi(nodes, where, 430.0), (0.0, 0.0), (0.4, 1.0))
    m.feed(nodes, shader, Base_Color=nodes.mix(nodes.noise(where, 28.0), m.rgb(colour), m.rgb(deep)),
           Normal=m.relief(nodes, pores, 0.0007, 0.8))
    return made


def polar(nodes, where, parts):
    """Of a face of unit radius: distance from the middle, and the turn in wedges."""
    apart = nodes.add("ShaderNodeSeparateXYZ", where)
    angle = nodes.math("ARCTAN2", apart.outputs[1], apart.outputs[0])
    return nodes.vector("LENGTH", where), nodes.math("MULTIPLY_ADD", angle, parts / (2 * pi), 100.0)


def from_membrane(nodes, away, turn, parts):
    """How far a point of the face is from the membrane between two wedges."""
    side = nodes.math("SUBTRACT", 0.5, nodes.math("ABSOLUTE", nodes.math("SUBTRACT", nodes.math("FRACT", turn), 0.5)))
    return nodes.math("MULTIPLY", nodes.math("MULTIPLY", side, away), 2 * pi / parts)


def shaken(nodes, where):
    """The face a little out of shape, each fruit in its own way."""
    cloud = nodes.add("ShaderNodeTexNoise", Vector=where, W=nodes.math("MULTIPLY", nodes.chance(), 9.0), Scale=2.6,
                      Detail=2.0, _noise_dimensions="4D").outputs["Color"]
    push = nodes.vector("MULTIPLY", nodes.vector("SUBTRACT", cloud, (0.5, 0.5, 0.5)), (0.2, 0.2, 0))
    return nodes.vector("ADD", where, push)


def flesh(name, juicy, pale, peel, parts):
    """A cut face: peel, white pith, membranes, wedges of wet pulp."""
    made, nodes, shader = m.principled(name, juicy, 0.12, Specular=0.6)
    flat = m.stretched(nodes, (1, 1, 0))
    away, turn = polar(nodes, shaken(nodes, flat), parts)
    along = nodes.add("ShaderNodeCombineXYZ", nodes.math("MULTIPLY", turn, 52.0 / parts), nodes.math("MULTIPLY", away, 6.0))
    cells = m.voronoi(nodes, along, 1.0)
    gap = nodes.math("SUBTRACT", from_membrane(nodes, away, turn, parts),
                     nodes.math("MULTIPLY_ADD", nodes.math("POWER", away, 6.0), 0.035, 0.008))
    inside = nodes.math("MULTIPLY", m.ramp(nodes, gap, (0.0, 0.0), (0.016, 1.0)),
                        m.ramp(nodes, away, (0.07, 0.0), (0.10, 1.0), (0.865, 1.0), (0.89, 0.0)))
    pith = m.ramp(nodes, nodes.noise(flat, 30.0), (0.3, "f4e6c4"), (0.7, "fff6e2"))
    colour = nodes.mix(inside, pith, m.ramp(nodes, cells, (0.05, juicy), (0.9, pale)))
    colour = nodes.mix(m.ramp(nodes, nodes.vector("LENGTH", flat), (0.945, 0.0), (0.965, 1.0)), colour, m.rgb(peel))
    height = nodes.math("MULTIPLY", inside, nodes.math("MULTIPLY_ADD", cells, -0.9, 1.25))
    m.feed(nodes, shader, Base_Color=colour, Roughness=m.ramp(nodes, inside, (0.0, 0.55), (1.0, 0.14)),
           Normal=m.relief(nodes, height, 0.008, 0.4), Emission=colour, Emission_Strength=0.10)
    return made


def half(name, radius, long, skin, cut):
    """Half a fruit, cut face up (scaled so that its face has radius 1)."""
    bowl = [(cos(a) ** 0.95 if a < pi / 2 else 0, -sin(a) * long) for a in (pi / 2 * i / 24 for i in range(24))]
    body = s.lathe(name, bowl + [(0, -long)], skin, finer=1)
    face = s.lathe(name + " face", [(0, -0.015), (0.4, -0.012), (0.8, -0.006), (0.985, 0.0), (1.0, -0.012)], cut)
    handle = s.parent([body, face], name)
    handle.scale = (radius,) * 3
    return handle


def slice_of(name, radius, thick, skin, cut):
    """A round slice."""
    rim = s.lathe(name, [(0.985, 0.0), (1.0, -0.012), (1.0, -thick), (0.985, -thick), (0, -thick)], skin, finer=1)
    face = s.lathe(name + " face", [(0, 0), (0.5, 0), (0.985, 0.0), (1.0, -0.012)], cut)
    handle = s.parent([rim, face], name)
    handle.scale = (radius,) * 3
    return handle


def whole(name, radius, long, skin, at, nub=0.0):
    """A whole fruit with a small dent at its stalk, and a nub at its end if it is a lemon."""
    profile = []
    for i in range(41):
        a = pi * i / 40 - pi / 2
        up = sin(a) * long + nub * (max(sin(a), 0) ** 14 - max(-sin(a), 0) ** 14)
        profile.append((max(cos(a), 0) if 0 < i < 40 else 0, up - 0.06 * max(sin(a), 0) ** 60))
    made = s.lathe(name, [(r * radius, z * radius) for r, z in profile], skin, finer=1)
    made.location = at
    return s.wrinkled(made, radius * 0.06, radius * 1.2)


def leaf_material():
    made, nodes, shader = m.principled("leaf", "2f5a1e", 0.35)
    where = nodes.place()
    veins = m.waves(nodes, where, 60.0, 2.5, "DIAGONAL")
    m.feed(nodes, shader, Normal=m.relief(nodes, veins, 0.0006, 0.5),
           Base_Color=m.ramp(nodes, nodes.noise(where, 60.0), (0.3, "1d4514"), (0.7, "4a7a2a")))
    return made


def put(handle, at, turn):
    handle.location, handle.rotation_euler = at, turn


def build():
    s.planks(m.wood("board", "4a3220", "86623f", "b8946a", 0.5, 1.6), 0.9, 1.2, 6)
    orange = rind("orange", "ee7a08", "d95f02")
    lemon, lime = rind("lemon", "f3c40f", "e6ad08"), rind("lime", "5d8c1c", "3f7012")
    pink = rind("pink", "f0a23c", "e58a3e")
    o_cut = flesh("orange cut", "ee7206", "fbaa38", "ef8412", 10)
    g_cut = flesh("grapefruit cut", "d43a2c", "f08068", "f0a040", 12)
    y_cut = flesh("lemon cut", "ecc93c", "f9ea94", "f4cc1c", 9)
    l_cut = flesh("lime cut", "9db53a", "d3de86", "5f901e", 9)
    put(half("orange half", 0.040, 0.92, orange, o_cut), (-0.012, -0.052, 0.0345), (0.30, 0.0, 0.4))
    put(half("grapefruit half", 0.052, 0.92, pink, g_cut), (0.072, 0.038, 0.047), (0.62, 0.08, 1.1))
    put(half("lemon half", 0.030, 1.2, lemon, y_cut), (-0.070, 0.004, 0.031), (0.95, -0.3, 0.2))
    put(slice_of("orange slice", 0.039, 0.16, orange, o_cut), (0.070, -0.084, 0.0065), (0.0, 0.0, 1.0))
    put(slice_of("lime slice", 0.025, 0.18, lime, l_cut), (0.046, -0.116, 0.0155), (0.10, -0.42, 2.0))
    put(half("lime half", 0.026, 0.98, lime, l_cut), (-0.062, -0.096, 0.023), (0.35, -0.25, 0.0))
    put(slice_of("lemon slice", 0.028, 0.16, lemon, y_cut), (-0.036, -0.136, 0.005), (0.0, 0.0, 0.4))
    whole("orange whole", 0.041, 0.95, orange, (-0.032, 0.085, 0.039)).rotation_euler = (0.5, 0.3, 0)
    whole("orange far", 0.040, 0.95, orange, (0.075, 0.17, 0.039)).rotation_euler = (-0.6, 0.5, 0)
    whole("lemon whole", 0.030, 1.15, lemon, (-0.115, 0.11, 0.030), 0.22).rotation_euler = (1.5, 0.2, 0.9)
    whole("lime whole", 0.027, 1.1, lime, (0.135, -0.045, 0.027), 0.1).rotation_euler = (1.5, 0.1, 0.4)
    green = leaf_material()
    for at, turn in (((-0.055, 0.045, 0.075), (0.2, -0.2, 0.5)), ((-0.005, 0.055, 0.078), (-0.3, 0.15, 3.6)),
                     ((0.105, -0.135, 0.014), (0.2, 0.1, 2.6)), ((-0.115, -0.06, 0.014), (0.1, 0.1, 1.1))):
        blade = s.leaf("leaf", 0.062, 0.028, green)
        blade.location, blade.rotation_euler = at, turn
    m.ambient((0.75, 0.8, 0.9), 0.2)
    m.window_light((-0.75, 0.55, 0.6), (0, 0, 0), 0.5, 26)
    m.window_light((0.8, -0.2, 0.7), (0, 0, 0), 0.8, 2.0, (0.9, 0.95, 1.0))
    camera((0.012, -0.46, 0.38), (0.004, -0.006, 0.018), 72, (-0.01, -0.07, 0.035), 4.5)
    return Roll(samples=16, exposure=0.4)
