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
    pores = m.ramp(nodes, m.voronoi(nodes, where, 380.0), (0.0, 0.0), (0.4, 1.0))
    patches = nodes.noise(where, 22.0, detail=6.0, roughness=0.6)
    scars = nodes.math("MULTIPLY", nodes.rise(nodes.noise(where, 16.0, detail=8.0, roughness=0.7, distortion=1.0), 0.62, 0.70), 0.35)
    tone = nodes.mix(scars, nodes.mix(nodes.rise(patches, 0.3, 0.7), m.rgb(colour), m.rgb(deep)), m.rgb("9a7a4c"))
    lumps = nodes.math("MULTIPLY_ADD", nodes.noise(where, 30.0, detail=3.0), 1.6, pores)
    m.feed(nodes, shader, Base_Color=tone, Roughness=nodes.math("MULTIPLY_ADD", patches, 0.25, 0.30), Normal=m.relief(nodes, lumps, 0.0011, 0.8))
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


def vesicles(nodes, flat, away, turn):
    """The little bags of juice, drawn out from the peel towards the middle: how far a point is from the wall of its own, and
    a random number of its own."""
    bent = nodes.vector("SCALE", nodes.vector("SUBTRACT", nodes.add("ShaderNodeTexNoise", Vector=flat, Scale=5.5, Detail=3.0).outputs["Color"], (0.5, 0.5, 0.5)))
    nodes.put(bent.node.inputs["Scale"], 1.5)
    along = nodes.vector("ADD", nodes.add("ShaderNodeCombineXYZ", nodes.math("MULTIPLY", turn, 4.6), nodes.math("MULTIPLY", away, 4.2), nodes.math("MULTIPLY", nodes.chance(), 40.0)), bent)
    wall = m.voronoi(nodes, along, 1.0, "DISTANCE_TO_EDGE")
    own = nodes.add("ShaderNodeSeparateColor", m.voronoi(nodes, along, 1.0, output="Color")).outputs[0]
    return wall, own


def flesh(name, juicy, pale, peel, parts):
    """A cut face: peel, pith, thin membranes, bags of juice that bulge and are wet; the light within them is a faint glow."""
    made, nodes, shader = m.principled(name, juicy, 0.12, Specular=0.55)
    flat = m.stretched(nodes, (1, 1, 0))
    away, turn = polar(nodes, shaken(nodes, flat), parts)
    wall, own = vesicles(nodes, flat, away, turn)
    bulge = nodes.math("SUBTRACT", 1.0, nodes.math("POWER", nodes.math("SUBTRACT", 1.0, nodes.math("MULTIPLY", wall, 2.2, clamped=True)), 2.0))
    rough_edge = nodes.math("MULTIPLY_ADD", nodes.math("SUBTRACT", nodes.noise(flat, 9.0, detail=5.0), 0.5), 0.07, away)
    gap = nodes.math("SUBTRACT", from_membrane(nodes, away, turn, parts), nodes.math("MULTIPLY_ADD", nodes.math("POWER", away, 9.0), 0.04, 0.003))
    inside = nodes.math("MULTIPLY", m.ramp(nodes, gap, (0.0, 0.0), (0.020, 1.0)), m.ramp(nodes, rough_edge, (0.06, 0.0), (0.11, 1.0), (0.895, 1.0), (0.925, 0.0)))
    fibre = nodes.noise(nodes.add("ShaderNodeCombineXYZ", nodes.math("MULTIPLY", turn, 7.0), nodes.math("MULTIPLY", away, 9.0), 1.0), 1.0, detail=5.0)
    pith = nodes.mix(nodes.math("MULTIPLY", nodes.rise(away, 0.90, 0.6), 0.45), m.ramp(nodes, fibre, (0.3, "e6d3a6"), (0.7, "f6edd6")), m.rgb(pale))
    level = nodes.math("MULTIPLY_ADD", own, 0.55, nodes.math("MULTIPLY", nodes.noise(flat, 24.0, detail=5.0), 0.5))
    bag = nodes.mix(nodes.math("MULTIPLY", nodes.rise(wall, 0.07, 0.0), 0.55), m.ramp(nodes, level, (0.2, juicy), (0.85, pale)), m.rgb(pale))
    wedge = nodes.add("ShaderNodeTexWhiteNoise", nodes.add("ShaderNodeCombineXYZ", nodes.math("FLOOR", turn), nodes.chance(), 2.0)).outputs["Value"]
    bag = nodes.mix(nodes.math("MULTIPLY", wedge, 0.25), bag, m.rgb(pale))
    colour = nodes.mix(inside, pith, bag)
    colour = nodes.mix(m.ramp(nodes, nodes.math("MULTIPLY_ADD", fibre, 0.012, nodes.vector("LENGTH", flat)), (0.962, 0.0), (0.974, 1.0)), colour, m.rgb(peel))
    height = nodes.math("MULTIPLY_ADD", nodes.math("MULTIPLY", inside, bulge), 0.8, nodes.math("MULTIPLY", nodes.noise(flat, 60.0, detail=3.0), 0.12))
    m.feed(nodes, shader, Base_Color=colour, Roughness=m.ramp(nodes, inside, (0.0, 0.45), (1.0, 0.10)),
           Normal=m.relief(nodes, height, 0.0045, 0.55), Emission=colour, Emission_Strength=0.11)
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
    board = m.wood("board", "2a1c12", "563a22", "7d5a36", 0.38, 2.2)
    s.planks(board, 0.9, 1.2, 6, gap=0.003)
    orange = rind("orange", "ee7a08", "d95f02")
    lemon, lime = rind("lemon", "f3c40f", "e6ad08"), rind("lime", "5d8c1c", "3f7012")
    pink = rind("pink", "f0a23c", "e58a3e")
    o_cut = flesh("orange cut", "e86a04", "fbb24a", "e27d12", 10)
    g_cut = flesh("grapefruit cut", "c42e26", "ee8a70", "e0983c", 12)
    y_cut = flesh("lemon cut", "dcb92c", "f2e38e", "e0b81c", 9)
    l_cut = flesh("lime cut", "7f9f28", "c9d67c", "4f801c", 9)
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
    for at, turn in (((-0.060, 0.052, 0.006), (0.25, -0.1, 0.5)), ((0.008, 0.046, 0.005), (-0.2, 0.1, 3.3)),
                     ((0.112, -0.150, 0.005), (0.2, 0.0, 2.6)), ((-0.112, -0.045, 0.005), (0.1, 0.1, 1.1))):
        blade = s.leaf("leaf", 0.062, 0.028, green)
        blade.location, blade.rotation_euler = at, turn
    m.ambient((0.75, 0.8, 0.9), 0.2)
    m.window_light((-0.55, 0.75, 0.55), (0, 0, 0), 0.55, 30, (1.0, 0.96, 0.9))
    m.window_light((0.8, -0.2, 0.7), (0, 0, 0), 0.8, 1.6, (0.9, 0.95, 1.0))
    camera((0.012, -0.46, 0.33), (0.004, -0.012, 0.018), 76, (-0.01, -0.075, 0.035), 4.0)
    return Roll(samples=34, exposure=0.25, saturation=1.12, grain=0.010)
