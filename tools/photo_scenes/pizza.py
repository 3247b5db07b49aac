"""A pizza from the oven on a round board, basil on top, seen as one sits down to it."""
from math import cos, pi, sin

from mathutils import Vector, noise

import materials as m
import shapes as s
from common import camera
from film import Roll

FORMAT = "portrait"


def dough():
    """Rim and bottom: pale, golden, with dark blisters."""
    made, nodes, shader = m.principled("dough", "d9a765", 0.6, Specular=0.3)
    where = nodes.place()
    baked = nodes.noise(where, 16.0, detail=5.0, distortion=0.5)
    spots = nodes.noise(where, 46.0, detail=4.0)
    tone = nodes.math("MULTIPLY_ADD", spots, 0.45, nodes.math("MULTIPLY", baked, 0.65))
    colour = m.ramp(nodes, tone, (0.36, "ecca90"), (0.52, "d8a058"), (0.64, "a9642a"), (0.76, "43240f"))
    m.feed(nodes, shader, Base_Color=colour, Normal=m.relief(nodes, nodes.noise(where, 170.0), 0.0012, 0.7))
    return made


def top():
    """Tomato sauce with islands of molten cheese, browned here and there, and drops of oil."""
    made, nodes, shader = m.principled("top", "b03a18", 0.3, Specular=0.5)
    where = nodes.place()
    cheese = nodes.add("ShaderNodeAttribute", _attribute_name="cheese").outputs["Fac"]
    fray = nodes.noise(where, 85.0, detail=5.0)
    share = m.ramp(nodes, nodes.math("MULTIPLY_ADD", nodes.math("SUBTRACT", fray, 0.5), 0.5, cheese), (0.36, 0.0), (0.5, 1.0))
    sauce = m.ramp(nodes, nodes.noise(where, 60.0), (0.3, "7d1608"), (0.55, "ac2e10"), (0.75, "c8521c"))
    brown = nodes.noise(where, 40.0, detail=6.0, distortion=0.4)
    melted = m.ramp(nodes, brown, (0.3, "f6e4b4"), (0.46, "f2d390"), (0.57, "dc9a46"), (0.68, "9a5222"))
    rough = m.ramp(nodes, nodes.noise(where, 24.0), (0.35, 0.16), (0.65, 0.42))
    height = nodes.math("ADD", nodes.math("MULTIPLY", share, 1.0), nodes.math("MULTIPLY", nodes.noise(where, 130.0), 0.35))
    m.feed(nodes, shader, Base_Color=nodes.mix(share, sauce, melted), Roughness=rough,
           Normal=m.relief(nodes, height, 0.003, 0.6))
    return made


def cheese_at(x, y):
    """Where cheese lies, 0 to 1."""
    return 0.5 + 0.9 * noise.noise(Vector((x * 26, y * 26, 3.0))) + 0.3 * noise.noise(Vector((x * 70, y * 70, 9.0)))


def pie(radius):
    """Flat inside, a puffed uneven rim outside."""
    bottom, topping = dough(), top()
    rows, around, points, cheese = 120, 300, [], []
    for row in range(rows + 1):
        t = row / rows
        for k in range(around):
            a = 2 * pi * k / around
            wave = noise.noise(Vector((3.0 * cos(a), 3.0 * sin(a), 5)))
            puff = 0.0145 + 0.006 * wave + 0.003 * noise.noise(Vector((11 * cos(a), 11 * sin(a), 2)))
            edge = radius * (1 + 0.025 * noise.noise(Vector((1.4 * cos(a), 1.4 * sin(a), 1))))
            if t < 0.7:
                r = edge * 0.875 * t / 0.7
                x, y = r * cos(a), r * sin(a)
                share = min(max(cheese_at(x, y), 0), 1)
                z = 0.0055 + 0.0028 * share + 0.0015 * noise.noise(Vector((x * 45, y * 45, 0)))
            else:
                turn = pi * ((t - 0.7) / 0.3) * 1.12
                r = edge * (0.945 - 0.072 * cos(turn))
                share, z = 0, max(0.0055 + puff * sin(turn) * (1.0 if turn < pi else 0.3), 0.0012)
            points.append((r * cos(a), r * sin(a), z))
            cheese.append(share)
    made = s.net("pizza", points, around, topping)
    made.data.materials.append(bottom)
    made.data.attributes.new("cheese", "FLOAT", "POINT").data.foreach_set("value", cheese)
    for index, polygon in enumerate(made.data.polygons):
        polygon.material_index = int(index // around >= rows * 0.695)
    return s.subdivided(made, 1)


def salami():
    made, nodes, shader = m.principled("salami", "a33324", 0.28, Specular=0.5)
    where = nodes.place()
    fat = m.ramp(nodes, m.voronoi(nodes, m.stretched(nodes, (1, 1, 0)), 340.0), (0.16, 1.0), (0.3, 0.0))
    some = m.ramp(nodes, nodes.noise(where, 120.0), (0.42, 0.0), (0.5, 1.0))
    rim = m.ramp(nodes, nodes.vector("LENGTH", m.stretched(nodes, (1, 1, 0))), (0.0, 0.0), (0.0145, 0.0), (0.019, 1.0))
    meat = nodes.mix(nodes.math("MULTIPLY", rim, 0.7), m.rgb("a83a26"), m.rgb("54140c"))
    m.feed(nodes, shader, Base_Color=nodes.mix(nodes.math("MULTIPLY", fat, some), meat, m.rgb("d99a80")),
           Normal=m.relief(nodes, nodes.noise(where, 210.0), 0.001, 0.6))
    return made


def slices(dice, height):
    """Rounds of salami, curled up a little, that don't cover each other."""
    meat, taken = salami(), []
    while len(taken) < 11:
        a, r = dice.uniform(0, 2 * pi), 0.118 * dice.random() ** 0.6
        x, y = r * cos(a), r * sin(a)
        if any((x - u) ** 2 + (y - v) ** 2 < 0.045 ** 2 for u, v in taken):
            continue
        taken.append((x, y))
        profile = [(0, 0), (0.008, 0.0002), (0.0155, 0.0016), (0.0185, 0.0034), (0.0188, 0.0024), (0.0155, 0.0004),
                   (0, -0.001)]
        made = s.lathe("salami", profile, meat, steps=48)
        made.location = (x, y, height + 0.0015)
        made.rotation_euler, made.scale = (dice.uniform(-0.12, 0.12), dice.uniform(-0.12, 0.12),
                                           dice.uniform(0, 6)), (1, dice.uniform(0.88, 1.0), dice.uniform(0.7, 1.5))
    return taken


def olives(dice, taken, height):
    skin = m.plain("olive", "1c1717", 0.2, Specular=0.6)
    for _ in range(16):
        a, r = dice.uniform(0, 2 * pi), 0.122 * dice.random() ** 0.5
        x, y = r * cos(a), r * sin(a)
        if any((x - u) ** 2 + (y - v) ** 2 < 0.024 ** 2 for u, v in taken):
            continue
        ring = [(0.0052 + 0.0021 * cos(t), 0.0022 * sin(t)) for t in (2 * pi * i / 16 for i in range(17))]
        made = s.lathe("olive", ring, skin, steps=40)
        made.location, made.rotation_euler = (x, y, height + 0.0035), (dice.uniform(-0.3, 0.3), dice.uniform(-0.3, 0.3), 0)


def basil(dice, height):
    made, nodes, shader = m.principled("basil", "2f6a1c", 0.34, Specular=0.5)
    where = nodes.place()
    m.feed(nodes, shader, Base_Color=m.ramp(nodes, nodes.noise(where, 70.0), (0.3, "1f5212"), (0.7, "4f8a2c")),
           Normal=m.relief(nodes, m.waves(nodes, where, 90.0, 3.0, "DIAGONAL"), 0.0012, 0.5))
    for x, y, turn, size in ((-0.005, 0.010, 0.4, 1.15), (0.012, 0.004, 2.6, 1.0), (-0.002, -0.014, 4.4, 0.95),
                             (0.075, 0.045, 1.2, 0.85), (-0.082, -0.034, 5.4, 0.9), (-0.05, 0.078, 3.3, 0.85),
                             (0.055, -0.075, 0.3, 0.85)):
        blade = s.leaf("basil", 0.040, 0.026, made, bend=0.30, fold=-0.32)
        blade.location, blade.rotation_euler = (x, y, height + 0.010), (dice.uniform(-0.2, 0.2), dice.uniform(-0.25, 0.0),
                                                                        turn)
        blade.scale = (size,) * 3


def tomato(skin, stalk, at, size, turn):
    """A small tomato with its green star."""
    body = s.lathe("tomato", [((max(cos(t), 0)) ** 0.85 if 0 < i < 30 else 0, sin(t) * 0.9 - 0.16 * max(sin(t), 0) ** 30)
                              for i, t in enumerate(pi * i / 30 - pi / 2 for i in range(31))], skin, steps=64)
    parts = [body]
    for k in range(5):
        blade = s.leaf("star", 0.9, 0.2, stalk, bend=0.12)
        a = 2 * pi * k / 5
        blade.location, blade.rotation_euler = (0.4 * cos(a), 0.4 * sin(a), 0.86), (0, 0.1, a)
        parts.append(blade)
    handle = s.parent(parts, "tomato")
    handle.location, handle.rotation_euler, handle.scale = at, turn, (size,) * 3


def table(dice):
    """The table around the pizza: board, flour, tomatoes, a jar of oil."""
    s.planks(m.wood("table", "23150c", "46301e", "6e5238", 0.5, 2.2), 1.4, 1.4, 9)
    board = s.lathe("board", [(0, 0), (0.186, 0), (0.19, 0.003), (0.19, 0.013), (0.186, 0.016), (0, 0.016)],
                    m.wood("maple", "8f6238", "b98a58", "d8b184", 0.5, 2.5), finer=0, steps=160)
    board.location.z = 0.0
    skin, stalk = m.plain("skin", "c31a10", 0.12, Specular=0.6, Clearcoat=0.4), m.plain("stalk", "4a7a28", 0.5)
    for at, turn in (((-0.115, -0.208, 0.018), (0.3, 0.2, 0)), ((-0.078, -0.226, 0.018), (-0.5, 0.3, 1)),
                     ((-0.115, -0.250, 0.018), (0.5, -0.4, 2)),
                     ((0.135, 0.205, 0.018), (0.5, 0.4, 2))):
        tomato(skin, stalk, at, 0.0195, turn)
    flour = m.plain("flour", "efe6d4", 0.9)
    for _ in range(260):
        a, r = dice.uniform(0, 2 * pi), dice.gauss(0.176, 0.012)
        speck = s.ball("flour", dice.uniform(0.0004, 0.0010), flour, (r * cos(a), r * sin(a),
                                                                      0.0164 if r < 0.187 else 0.0006), 1)
        speck.scale.z = 0.5


def build():
    dice = s.dice(21)
    table(dice)
    pie(0.158).location.z = 0.016
    height = 0.0245
    taken = slices(dice, height)
    olives(dice, taken, height)
    basil(dice, height)
    m.ambient((0.7, 0.75, 0.85), 0.14)
    m.window_light((-0.75, 0.75, 0.75), (0, 0, 0), 0.6, 30)
    m.window_light((0.8, -0.3, 0.8), (0, 0, 0), 0.9, 3.0, (0.9, 0.94, 1.0))
    camera((0.02, -0.56, 0.62), (0.0, -0.012, 0.01), 61, (0, -0.06, 0.025), 3.6)
    return Roll(samples=18, exposure=0.1)
