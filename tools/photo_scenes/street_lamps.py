"""Someone with a red umbrella walks home through a wet street at night; the lights beyond are out of focus."""
from math import cos, pi, sin

import materials as m
import shapes as s
from common import camera, world
from figures import coat, person
from film import Roll
from town import facade

FORMAT = "portrait"


def wet_road():
    """Asphalt under a film of rain: puddles that mirror, stones that glitter between."""
    made, nodes, shader = m.principled("road", "1c1c1e", 0.3)
    where = nodes.place()
    pools = nodes.noise(m.stretched(nodes, (1, 0.55, 1)), 0.55, detail=5.0, distortion=0.3)
    depth = nodes.rise(pools, 0.44, 0.56)
    grit = nodes.noise(where, 60.0, detail=4.0)
    drops = nodes.noise(where, 9.0, detail=2.0)
    height = nodes.math("ADD", nodes.math("MULTIPLY", nodes.math("SUBTRACT", 1.0, depth), grit),
                        nodes.math("MULTIPLY", drops, 0.22))
    m.feed(nodes, shader, Roughness=nodes.ramp(depth, (0.0, 0.36), (1.0, 0.035)),
           Base_Color=nodes.ramp(grit, (0.35, m.rgb("131315")), (0.7, m.rgb("2f2f31"))),
           Normal=m.relief(nodes, height, 0.010, 0.5))
    return made


def umbrella(at):
    """Eight panels of red cloth between ribs, a stick and a handle; light comes through the cloth."""
    made, nodes = m.material("umbrella")
    face = nodes.add("ShaderNodeBsdfPrincipled", Base_Color=m.rgb("b3121c"), Roughness=0.45, Specular=0.4)
    through = nodes.add("ShaderNodeBsdfTranslucent", m.rgb("d8202a"))
    m.surface(nodes, nodes.add("ShaderNodeMixShader", 0.35, face, through))
    rows, around, points = 14, 96, []
    for row in range(rows + 1):
        t = row / rows
        for k in range(around):
            a = 2 * pi * k / around
            scallop = abs(sin(4 * a))
            r = 0.56 * sin(t * pi / 2 * 0.95) * (1 - 0.07 * t * scallop)
            points.append((r * cos(a), r * sin(a),
                           0.26 * cos(t * pi / 2 * 1.0) - 0.012 * scallop * sin(pi * t) + 0.03 * t * t * scallop))
    dark = m.plain("stick", "15130f", 0.3)
    parts = [s.net("cloth", points, around, made), s.tube("stick", [(0, 0, 0.33), (0, 0, -0.52)], 0.007, dark)]
    for k in range(8):
        a = 2 * pi * k / 8
        rib = [(0.56 * sin(t * pi / 2 * 0.95) * cos(a), 0.56 * sin(t * pi / 2 * 0.95) * sin(a),
                0.26 * cos(t * pi / 2) - 0.006) for t in (i / 8 for i in range(9))]
        parts.append(s.tube("rib", rib, 0.0025, dark))
    handle = s.parent(parts, "umbrella")
    handle.location, handle.rotation_euler = at, m.degrees(20, 8, 8)


def walker():
    """From behind, in a dark coat, one heel up."""
    cloth = m.plain("coat", "20242c", 0.75, Sheen=0.3)
    made = person("walker", cloth, {"elbow_r": (0.27, -0.10, 1.22), "wrist_r": (0.16, -0.26, 1.40),
                                    "hand_r": (0.15, -0.27, 1.48), "knee_l": (-0.09, -0.16, 0.50),
                                    "ankle_l": (-0.09, -0.20, 0.11),
                                    "toe_l": (-0.10, -0.38, 0.06), "knee_r": (0.09, 0.06, 0.49),
                                    "ankle_r": (0.09, 0.26, 0.16), "toe_r": (0.10, 0.16, 0.03)})
    made.rotation_euler.z = pi
    coat(made, cloth, 0.55)


def shop_window(tone, power):
    """A lit window full of goods, which the lens melts into spots; brighter above, where the lamps are."""
    made, nodes = m.material("shop")
    where = nodes.place()
    goods = nodes.noise(m.stretched(nodes, (1, 1.6, 1.9)), 1.3, detail=4.0, distortion=0.6)
    lamps = nodes.rise(m.voronoi(nodes, where, 0.9), 0.32, 0.08)
    up = nodes.add("ShaderNodeSeparateXYZ", where).outputs[2]
    level = nodes.math("MULTIPLY", nodes.math("ADD", m.ramp(nodes, goods, (0.36, 0.06), (0.62, 1.0)), nodes.math("MULTIPLY", lamps, 3.0)), nodes.rise(up, -1.4, 0.9))
    colour = nodes.mix(nodes.rise(nodes.noise(where, 0.8), 0.45, 0.65), m.rgb(tone), m.rgb("ff8a4a"))
    m.no_lamp(nodes)
    m.surface(nodes, nodes.add("ShaderNodeEmission", colour, nodes.math("MULTIPLY", level, power)))
    return made


def street(dice):
    """House fronts on both sides with shop windows, kerbs, parked cars, lamps that shrink into the distance."""
    walls = [facade("front", tone, i) for i, tone in enumerate(("7a6e62", "5f646e", "84705e"))]
    shops = [shop_window(tone, power) for tone, power in (("ffc477", 3.2), ("ffe2b8", 3.6), ("7fc0ff", 2.2),
                                                             ("ff8f5a", 2.4), ("ffd28a", 3.0))]
    signs = [m.glow("sign", tone, 9) for tone in ("ff3a4a", "46c8ff", "7aff9a", "ffcf3a", "ff6ad0")]
    kerb = m.plain("kerb", "5a5855", 0.35)
    for side in (-1, 1):
        s.box("pavement", (3.4, 130, 0.14), kerb, 0.02, (side * 5.7, 55, 0.05))
        y = -4.0
        while y < 110:
            deep = dice.uniform(7, 13)
            tall = dice.uniform(10, 17)
            s.box("house", (6, deep - 0.2, tall), dice.choice(walls), 0, (side * 10.4, y + deep / 2, tall / 2 + 3.1))
            s.box("ground floor", (6, deep - 0.2, 3.2), m.plain("stone", "4a453f", 0.6), 0, (side * 10.4, y + deep / 2, 1.6))
            if y > 3:
                s.box("shop", (0.1, deep * 0.66, 1.9), dice.choice(shops), 0, (side * 7.38, y + deep / 2, 1.45))
                s.box("sign", (0.7, 0.12, dice.uniform(0.4, 1.2)), dice.choice(signs), 0, (side * 6.9, y + deep * 0.2,
                                                                                           dice.uniform(3.0, 4.2)))
                m.lamp("AREA", (side * 7.2, y + deep / 2, 1.6), (0, y + deep / 2, 0.4), 60, (1.0, 0.78, 0.5), size=2.0)
            y += deep
    pole, light = m.plain("pole", "16171a", 0.4), m.glow("lantern", "ffc46a", 70)
    for i in range(9):
        for side in (-1, 1):
            y = 5.5 + 9.5 * i + 2 * side
            s.tube("pole", [(side * 4.5, y, 0), (side * 4.5, y, 4.4)], 0.05, pole)
            s.lathe("lantern", [(0, 0), (0.10, 0.03), (0.16, 0.42), (0.10, 0.5), (0, 0.52)], light, steps=12,
                    finer=0).location = (side * 4.5, y, 4.4)
            if i < 4:
                m.lamp("POINT", (side * 4.4, y, 4.4), (0, 0, 0), 330, (1.0, 0.70, 0.36), shadow_soft_size=0.16)


def traffic():
    """Cars that come towards us and cars that leave: only their lamps matter."""
    white, red, body = m.glow("headlamp", "fff2da", 220), m.glow("rear lamp", "ff1e14",
                                                                 70), m.plain("car", "121417", 0.2, Clearcoat=1.0)
    for x, y, kind in ((-1.7, 24, white), (-1.9, 38, white), (1.9, 20, red), (1.7, 33, red), (2.0, 52, red),
                       (-1.7, 60, white)):
        s.box("car", (1.8, 4.2, 0.8), body, 0.2, (x, y + 2.2, 0.65))
        s.box("roof", (1.5, 2.2, 0.6), body, 0.2, (x, y + 2.4, 1.25))
        for side in (-0.66, 0.66):
            s.ball("lamp", 0.10, kind, (x + side, y, 0.68), 1)
    for x, z, tone in ((3.0, 3.4, "ff2a1e"), (-3.0, 3.4, "46ff8a")):
        s.ball("signal", 0.13, m.glow("signal", tone, 120), (x, 44, z), 1)


def rain(dice):
    """Streaks of drops that catch the light."""
    drop = m.plain("rain", "c8d0dc", 0.1, Alpha=0.35)
    streak = s.tube("rain", [(0, 0, 0), (0.012, 0, 0.16)], 0.0011, drop)
    for _ in range(900):
        y = dice.uniform(-1.8, 7)
        s.copy(streak, (dice.uniform(-2.6, 2.6), y, dice.uniform(0, 4.5)))
    s.gone(streak)


def build():
    dice = s.dice(61)
    nodes = world()
    nodes.add("ShaderNodeOutputWorld", nodes.add("ShaderNodeBackground", (0.020, 0.024, 0.042), 1.0))
    s.sheet("road", (30, 160), (2, 2), lambda x, y: 0.0, wet_road()).location.y = 60
    walker()
    umbrella((-0.15, 0.26, 1.84))
    street(dice)
    traffic()
    rain(dice)
    m.lamp("AREA", (-2.2, 1.6, 3.2), (0, 0, 1.4), 60, (1.0, 0.8, 0.55), size=0.5)
    m.lamp("AREA", (2.4, 2.0, 2.6), (0, 0, 1.2), 45, (0.6, 0.8, 1.0), size=0.5)
    camera((0.25, -5.2, 1.15), (0.0, 0, 1.28), 52, 5.15, 1.6)
    return Roll(samples=16, exposure=0.4, glow=0.12)
