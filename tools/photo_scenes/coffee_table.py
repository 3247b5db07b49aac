"""A cappuccino with a heart of milk and a croissant on an old table, by a window."""
from math import cos, pi, sin

import materials as m
import shapes as s
from common import camera
from film import Roll

FORMAT = "landscape"


def heart(nodes, where):
    """Distance from the middle of a heart, 1 at its edge, with ripples where the milk was poured."""
    wobble = nodes.add("ShaderNodeTexNoise", Vector=where, Scale=60.0, Detail=3.0).outputs["Color"]
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.vector("ADD", where, nodes.vector("MULTIPLY", wobble,
                                                                                       (0.006, 0.006, 0))))
    x = nodes.math("ABSOLUTE", nodes.math("MULTIPLY", nodes.math("SUBTRACT", apart.outputs[0], 0.003), 46.0))
    y = nodes.math("MULTIPLY", nodes.math("SUBTRACT", apart.outputs[1], 0.001), 46.0)
    raised = nodes.math("SUBTRACT", y, nodes.math("MULTIPLY", nodes.math("SQRT", x), 0.72))
    away = nodes.math("SQRT", nodes.math("ADD", nodes.math("MULTIPLY", x, x), nodes.math("MULTIPLY", raised, raised)))
    return nodes.math("MULTIPLY_ADD", nodes.math("SINE", nodes.math("MULTIPLY", away, 15.0)), 0.06, away)


def coffee():
    """Coffee with a heart of milk foam."""
    made, nodes, shader = m.principled("coffee", "a0643a", 0.35)
    where = nodes.place()
    brown = m.ramp(nodes, nodes.noise(where, 90.0), (0.3, "6b3413"), (0.55, "96562a"), (0.75, "b97a45"))
    milk = m.ramp(nodes, heart(nodes, where), (0.66, 1.0), (0.78, 0.0))
    m.feed(nodes, shader, Base_Color=nodes.mix(milk, brown, m.rgb("f1e0c4")),
           Normal=m.relief(nodes, nodes.noise(where, 500.0, detail=2.0), 0.0004, 0.5))
    return made


def crust():
    """Baked dough: golden in the hollows, dark on the ridges and tips."""
    made, nodes, shader = m.principled("crust", "c07830", 0.42, Specular=0.4)
    where = nodes.place()
    baked = nodes.add("ShaderNodeAttribute", _attribute_name="baked").outputs["Fac"]
    spots = nodes.noise(where, 55.0, distortion=0.4)
    streaks = nodes.noise(where, 190.0, detail=5.0, distortion=1.0)
    tone = nodes.math("MULTIPLY_ADD", nodes.math("SUBTRACT", spots, 0.5), 0.9, baked)
    colour = m.ramp(nodes, tone, (0.0, "eac27a"), (0.3, "cf8a38"), (0.62, "9c5319"), (1.0, "54270c"))
    m.feed(nodes, shader, Base_Color=colour, Normal=m.relief(nodes, nodes.math("ADD", spots, streaks), 0.0011, 0.7))
    return made


def croissant():
    """A crescent of rolled layers, each ending in a step."""
    rows, around, points, baked = 220, 64, [], []
    for row in range(rows + 1):
        along = row / rows * 2 - 1
        bow = along * 1.25
        layer = abs(along) * 5.2
        step = layer - int(layer)
        thick = 0.031 * (1 - 0.86 * abs(along) ** 1.5) * (0.86 + 0.2 * (1 - step) ** 0.6)
        for k in range(around):
            angle = -2 * pi * k / around
            lean = 0.10 * sin(angle * 2 + along * 9)
            shift = (0.012 * cos(angle)) * (1 if along > 0 else -1)
            reach = 0.058 + thick * cos(angle) * 1.05
            points.append((reach * sin(bow + shift) , reach * cos(bow + shift) - 0.05,
                           max(thick * sin(angle) * (0.95 + lean) + 0.024, 0.001)))
            baked.append(0.25 + 0.55 * (1 - step) * max(sin(angle), 0) + 0.35 * abs(along) ** 4)
    made = s.net("croissant", points, around, crust())
    made.data.attributes.new("baked", "FLOAT", "POINT").data.foreach_set("value", baked)
    return s.subdivided(made, 1)


def china():
    return m.plain("china", "efebe4", 0.12, Specular=0.6)


def cup(material):
    """A cup on its saucer, coffee in it."""
    outside = [(0, 0.006), (0.022, 0.006), (0.024, 0.004), (0.027, 0.004), (0.028, 0.008), (0.036, 0.022),
               (0.044, 0.042), (0.0475, 0.060), (0.0483, 0.0625)]
    inside = [(0.0470, 0.0630), (0.0455, 0.061), (0.042, 0.044), (0.034, 0.024), (0.022, 0.012), (0, 0.010)]
    body = s.lathe("cup", outside + inside, material, finer=2)
    body.location.z = 0.008
    handle = [(0.043 - 0.013 * t + 0.022 * sin(pi * t) ** 0.8, 0, 0.054 - 0.034 * t) for t in (i / 24 for i in range(25))]
    ear = s.tube("handle", handle, 0.0048, material)
    ear.data.bevel_resolution = 8
    ear.location.z = 0.008
    full = s.lathe("coffee", [(0, 0.0560), (0.040, 0.0560), (0.0436, 0.0562), (0.0446, 0.0575)], coffee())
    full.location.z = 0.008
    full.rotation_euler.z = -0.5
    ear.rotation_euler.z = body.rotation_euler.z = -0.35


def dish(name, size, material):
    """A plate whose rim rises in a soft bend."""
    top = [(0, 0.004), (0.45, 0.004), (0.52, 0.006), (0.62, 0.010), (0.85, 0.018), (0.99, 0.024), (1.0, 0.0255)]
    low = [(0.995, 0.0265), (0.985, 0.0262)]
    up = [(0.985, 0.0285), (0.84, 0.0222), (0.62, 0.0142), (0.5, 0.0085), (0.44, 0.0075), (0, 0.0075)]
    profile = [(r * size, z * size / 0.08) for r, z in top + low[:1] + up]
    return s.lathe(name, profile, material, finer=2)


def spoon(material):
    """A tea spoon from a lengthwise net: bowl, neck, flat grip."""
    def width(t):
        return 0.0135 * max(1 - ((t - 0.14) / 0.15) ** 2,
                            0) ** 0.5 if t < 0.26 else 0.0025 + 0.0045 * ((t - 0.26) / 0.74) ** 2
    points, faces = [], []
    for i in range(81):
        t = i / 80
        for k in range(9):
            side = (k - 4) / 4
            bowl = -0.006 * (1 - side * side) * max(1 - ((t - 0.14) / 0.15) ** 2, 0)
            points.append((t * 0.13, side * max(width(t), 0.0004),
                           bowl + 0.010 * (t - 0.2) * (t > 0.2) + 0.0022 * (1 - side * side) * (t > 0.3)))
    faces = [(i * 9 + k, (i + 1) * 9 + k, (i + 1) * 9 + k + 1, i * 9 + k + 1) for i in range(80) for k in range(8)]
    made = s.subdivided(s.mesh("spoon", points, faces, material), 2)
    thick = made.modifiers.new("thick", "SOLIDIFY")
    thick.thickness = 0.0012
    return made


def crumbs():
    """Flakes of crust that fell on plate and table."""
    random, material = s.dice(4), crust()
    for _ in range(46):
        flake = s.ball("crumb", random.uniform(0.0006, 0.0019), material, detail=1)
        flake.location = (random.gauss(0.18, 0.05), random.gauss(-0.05, 0.04), 0.0016)
        away = ((flake.location.x - 0.192) ** 2 + (flake.location.y + 0.012) ** 2) ** 0.5
        if away < 0.085:
            flake.location.z = 0.0105
        flake.scale = (1, random.uniform(0.5, 1), 0.5)
        flake.rotation_euler = (0, 0, random.uniform(0, 6))


def napkin():
    """A linen cloth with soft folds, half under the plate."""
    made, nodes, shader = m.principled("linen", "9fb0b8", 0.9, Sheen=0.4)
    where = nodes.place()
    weave = nodes.math("ADD", m.waves(nodes, where, 260.0, 1.0), m.waves(nodes, where, 260.0, 1.0, "Y"))
    m.feed(nodes, shader, Normal=m.relief(nodes, weave, 0.0005, 0.6),
           Base_Color=m.ramp(nodes, nodes.noise(where, 30.0), (0.3, "c9c2b2"), (0.7, "e2ddd0")))

    def fold(x, y):
        return 0.003 + 0.0035 * sin(x * 38 + y * 17) + 0.0025 * sin(y * 55 - x * 20 + 1) + 0.002 * sin(x * 90)
    cloth = s.sheet("napkin", (0.24, 0.17), (120, 90), fold, made)
    cloth.location, cloth.rotation_euler.z = (0.235, 0.06, 0.001), 0.35


def build():
    china_, steel = china(), m.plain("steel", "d8d4cc", 0.14, Metallic=1.0)
    s.planks(m.wood("oak", "2c1a0e", "5d3a1f", "8a5f38", 0.42, 2.4), 0.96, 1.6, 7)
    cup(china_)
    dish("saucer", 0.078, china_).location.z = 0.001
    plate = dish("plate", 0.105, china_)
    plate.location = (0.192, -0.012, 0.001)
    roll = croissant()
    roll.location, roll.rotation_euler.z = (0.195, -0.006, 0.010), 2.6
    napkin()
    crumbs()
    lying = spoon(steel)
    lying.location, lying.rotation_euler = (0.085, -0.128, 0.0075), (0.0, 0.06, 3.0)
    m.ambient((0.55, 0.62, 0.75), 0.16)
    m.window_light((-0.75, 0.55, 0.65), (0.05, 0, 0), 0.7, 28)
    m.window_light((0.9, -0.3, 0.8), (0.1, 0, 0), 1.0, 3.0, (0.85, 0.9, 1.0))
    camera((0.06, -0.47, 0.36), (0.082, -0.002, 0.02), 58, (0.0, -0.02, 0.06), 5.0)
    return Roll(samples=26, exposure=0.1)
