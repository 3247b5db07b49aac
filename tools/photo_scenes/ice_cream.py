"""Two scoops in a waffle cone, held up before a bright beach that is far out of focus."""
from math import cos, pi, sin

import materials as m
import shapes as s
from common import camera, daylight
from film import Roll

FORMAT = "portrait"


def ice(name, colour, deep, specks=None):
    """Scooped ice cream: torn and icy, soft light inside."""
    made, nodes, shader = m.principled(name, colour, 0.45, Specular=0.35, Subsurface=0.15)
    shader.inputs["Subsurface Radius"].default_value = (0.010, 0.006, 0.004)
    where = nodes.place()
    torn = nodes.noise(m.stretched(nodes, (1, 1, 2.2)), 70.0, detail=8.0, distortion=0.7)
    crystals = nodes.noise(where, 420.0, detail=4.0)
    tone = nodes.mix(m.ramp(nodes, torn, (0.35, 0.0), (0.7, 1.0)), m.rgb(deep), m.rgb(colour))
    if specks:
        dots = m.ramp(nodes, m.voronoi(nodes, where, 260.0), (0.16, 1.0), (0.22, 0.0))
        few = m.ramp(nodes, nodes.noise(where, 60.0), (0.5, 0.0), (0.56, 1.0))
        tone = nodes.mix(nodes.math("MULTIPLY", dots, few), tone, m.rgb(specks))
    m.feed(nodes, shader, Base_Color=tone,
           Normal=m.relief(nodes, nodes.math("MULTIPLY_ADD", crystals, 0.3, torn), 0.0035, 0.8))
    return made


def scoop(radius, material, seed):
    """A ball with the ragged skirt that a scoop leaves below it."""
    dice = s.dice(seed)
    waves = [(dice.uniform(0, 6), dice.uniform(0.5, 1)) for _ in range(9)]
    rows, around, points = 72, 180, []
    for row in range(rows + 1):
        t = pi * row / rows
        for k in range(around):
            a = 2 * pi * k / around
            ragged = sum(w * sin((i + 2) * a + p) for i, (p, w) in enumerate(waves)) / 5
            skirt = max(0.0, 1 - abs(t - 2.25 - 0.06 * ragged) / 0.22) ** 1.2 * (0.11 + 0.06 * ragged)
            r = radius * (1 + skirt)
            points.append((r * sin(t) * cos(a), r * sin(t) * sin(a), r * cos(t) * (0.94 if t < pi / 2 else 0.86)))
    made = s.net("scoop", points, around, material)
    s.subdivided(made, 1)
    s.wrinkled(made, radius * 0.10, radius * 0.28)
    return s.wrinkled(made, radius * 0.05, radius * 0.08)


def waffle():
    made, nodes, shader = m.principled("waffle", "d49a50", 0.5, Specular=0.3)
    where = nodes.place()
    ridge = nodes.add("ShaderNodeAttribute", _attribute_name="ridge").outputs["Fac"]
    tone = nodes.math("MULTIPLY_ADD", nodes.math("SUBTRACT", nodes.noise(where, 42.0), 0.5), 0.7, ridge)
    m.feed(nodes, shader, Base_Color=m.ramp(nodes, tone, (0.0, "bd6f22"), (0.45, "d08a35"), (0.8, "dd9d48"), (1.0, "b06a24")),
           Normal=m.relief(nodes, nodes.noise(where, 240.0), 0.0008, 0.6))
    return made


def biscuit():
    """A thin wafer: a fine lattice pressed into it, browner where it stands up."""
    made, nodes, shader = m.principled("biscuit", "cf9550", 0.7, Specular=0.2)
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place())
    lines = [nodes.math("ABSOLUTE", nodes.math("SINE", nodes.math("MULTIPLY", apart.outputs[k], 1150.0))) for k in (0, 2)]
    lattice = nodes.rise(nodes.math("MINIMUM", *lines), 0.1, 0.5)
    baked = nodes.noise(nodes.place(), 90.0, detail=5.0)
    tone = nodes.math("MULTIPLY_ADD", lattice, -0.25, baked)
    m.feed(nodes, shader, Base_Color=m.ramp(nodes, tone, (0.15, "efc98a"), (0.45, "d99f58"), (0.75, "b06f30")),
           Normal=m.relief(nodes, lattice, -0.0009, 0.8))
    return made


def cone(tall, wide):
    """A rolled wafer with crossing ridges and a rim."""
    rows, around, points, raised = 260, 300, [], []
    for row in range(rows + 1):
        t = row / rows
        for k in range(around):
            a = 2 * pi * k / around
            cross = [abs(((a / (2 * pi) * 9 + sign * t * 7.0 * (1.6 - 0.6 * t)) % 1) - 0.5) * 2 for sign in (1, -1)]
            ridge = max(max(0.0, (c - 0.74) / 0.26) for c in cross) ** 0.6
            lap = 0.0013 if (a + t * 0.9) % (2 * pi) < 3.6 else 0.0
            r = wide * (0.05 + 0.95 * t) + 0.0016 * ridge * min(1, 4 * t) + lap
            points.append((r * cos(a), r * sin(a), tall * (t - 1) + (0.004 * sin(a + 1) if row == rows else 0)))
            raised.append(ridge)
    made = s.net("cone", points, around, waffle())
    made.data.attributes.new("ridge", "FLOAT", "POINT").data.foreach_set("value", raised)
    thick = made.modifiers.new("thick", "SOLIDIFY")
    thick.thickness = 0.0022
    thick.offset = 1
    return made


def hand_of_paper():
    """A paper sleeve around the lower end."""
    made = s.lathe("sleeve", [(0.0065, -0.122), (0.019, -0.066), (0.0196, -0.065), (0.020, -0.066), (0.0075, -0.122)],
                   m.plain("paper", "f0ece2", 0.8))
    return made


def beach():
    """Sand, surf, sea and parasols, far behind: colours that the lens melts."""
    s.box("sand", (60, 26, 0.1), m.plain("sand", "b9985f", 0.95), at=(0, 12.6, -1.35))
    s.box("surf", (80, 1.6, 0.1), m.plain("surf", "ffffff", 0.8), at=(0, 26, -1.33))
    s.box("sea", (800, 500, 0.1), m.plain("sea", "1f8f9f", 0.25), at=(0, 276.5, -1.34))
    for x, y, tone in ((-2.6, 13, "d9363e"), (2.9, 17, "f0c03a"), (5.6, 22, "2f78c4"), (-6.5, 20, "f2efe6")):
        s.lathe("parasol", [(1.25, 0.75), (0.7, 1.1), (0, 1.25)], m.plain("cloth", tone, 0.8),
                steps=24).location = (x, y, -0.2)
        s.tube("pole", [(x, y, -1.3), (x, y, 1.0)], 0.03, m.plain("pole", "f4f4f4", 0.5))
        s.box("towel", (0.9, 1.7, 0.02), m.plain("towel", tone, 0.9), at=(x + 1.3, y - 1, -1.28))


def build():
    cone(0.125, 0.0285)
    hand_of_paper()
    lower = scoop(0.0315, ice("strawberry", "ee9aa6", "d9707f", "a81e34"), 3)
    lower.location = (0, 0, 0.019)
    upper = scoop(0.0295, ice("vanilla", "f7e6bd", "edd093", "5b3a1c"), 8)
    upper.location, upper.rotation_euler = (0.003, 0.001, 0.063), (0.12, -0.1, 1.3)
    wafer = s.box("wafer", (0.019, 0.0028, 0.062), biscuit(), 0.0005,
                  (0.021, 0.006, 0.104))
    wafer.rotation_euler = (0.1, 0.42, 0.3)
    beach()
    daylight(40, -128, strength=0.15, dust=0.5, sun_size=2.0)
    m.window_light((0.5, -0.5, 0.1), (0, 0, 0), 0.6, 2.2, (1.0, 0.95, 0.88))
    camera((0.0, -0.52, 0.035), (0.002, 0, 0.021), 78, (0, -0.027, 0.03), 4.0)
    return Roll(samples=14, exposure=-0.2)
