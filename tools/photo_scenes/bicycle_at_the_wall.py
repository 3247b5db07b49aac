"""An old bicycle with a basket of flowers leans on a sunlit wall, below a window with shutters."""
from math import cos, pi, sin

from mathutils import Vector

import materials as m
import shapes as s
from common import camera, daylight
from film import Roll

FORMAT = "landscape"
WHEEL, HUBS = 0.34, ((-0.53, 0.34), (0.53, 0.34))  # radius; x and z of both hubs


def circle(radius, x, z, y=0.0, count=96):
    return [(x + radius * cos(a), y, z + radius * sin(a)) for a in (2 * pi * i / count for i in range(count))]


def wheel(x, z, steel, rubber):
    """Tyre, rim, hub and thirty-six crossed spokes."""
    parts = [s.tube("tyre", circle(WHEEL - 0.017, x, z), 0.0185, rubber, closed=True),
             s.tube("rim", circle(WHEEL - 0.040, x, z), 0.011, steel, closed=True),
             s.tube("hub", [(x, -0.045, z), (x, 0.045, z)], 0.018, steel)]
    for i in range(36):
        a, side = 2 * pi * i / 36, 1 if i % 2 else -1
        b = a + (0.62 if i % 4 < 2 else -0.62)
        outside = (x + (WHEEL - 0.045) * cos(a), 0, z + (WHEEL - 0.045) * sin(a))
        parts.append(s.tube("spoke", [(x + 0.022 * cos(b), side * 0.032, z + 0.022 * sin(b)), outside], 0.0010, steel))
    return parts


def guard(x, z, start, end, paint):
    """A mudguard over part of a wheel."""
    profile, points, faces = [(-0.028, -0.010), (-0.018, 0.004), (0, 0.009), (0.018, 0.004), (0.028, -0.010)], [], []
    steps = 48
    for i in range(steps + 1):
        a = start + (end - start) * i / steps
        points += [(x + (WHEEL + 0.022 + dr) * cos(a), y, z + (WHEEL + 0.022 + dr) * sin(a)) for y, dr in profile]
    for i in range(steps):
        faces += [(i * 5 + k, i * 5 + k + 1, i * 5 + k + 6, i * 5 + k + 5) for k in range(4)]
    made = s.mesh("guard", points, faces, paint)
    made.modifiers.new("thick", "SOLIDIFY").thickness = 0.0015
    return made


def frame(paint, steel, leather, rubber):
    """Tubes, fork, handlebar, saddle, cranks, chain case, carrier, lamp."""
    crank, seat, head, low = (-0.08, 0.29), (-0.25, 0.80), (0.36, 0.86), (0.395, 0.70)
    def bar(a, b, radius, material=paint, ya=0.0, yb=0.0):
        return s.tube("bar", [(a[0], ya, a[1]), (b[0], yb, b[1])], radius, material)
    rear, front = HUBS
    parts = [bar(crank, seat, 0.0155), bar((-0.235, 0.745), head, 0.0140), bar(crank, low, 0.0165),
             bar((0.345, 0.92), (0.405, 0.66), 0.0185), bar(seat, (-0.275, 0.92), 0.0125, steel)]
    for side in (-1, 1):
        parts += [bar(rear, crank, 0.0090, paint, side * 0.055, side * 0.03), bar(rear, (-0.245, 0.78), 0.0080, paint,
                                                                                  side * 0.055, side * 0.015)]
        parts.append(s.tube("fork", [(0.41, side * 0.02, 0.65), (0.43, side * 0.05, 0.60), (0.475, side * 0.052, 0.44),
                                     (front[0], side * 0.05, front[1])], 0.0105, paint, radii=[1.0, 1.0, 0.9, 0.65]))
    grip = [(0.34, 0, 0.985), (0.335, 0.10, 1.01), (0.30, 0.22, 1.03), (0.20, 0.275, 1.02), (0.10, 0.285, 0.995)]
    parts.append(s.tube("stem", [(0.347, 0, 0.90), (0.34, 0, 0.99)], 0.0125, steel))
    for side in (-1, 1):
        parts += [s.tube("handlebar", [(x, side * y, z) for x, y, z in grip], 0.0110, steel),
                  s.tube("grip", [(0.20, side * 0.275, 1.02), (0.085, side * 0.286, 0.992)], 0.0165, leather)]
    parts.append(saddle(leather))
    parts += [s.tube("spring", [(-0.30, side * 0.05, 0.90), (-0.33, side * 0.06, 0.945)], 0.014, steel) for side in (-1, 1)]
    parts += [s.tube("ring", circle(0.088, *crank, y=-0.05), 0.006, steel, closed=True),
              s.tube("axle", [(crank[0], -0.075, crank[1]), (crank[0], 0.075, crank[1])], 0.014, steel)]
    for side, turn in ((-1, -0.6), (1, pi - 0.6)):
        end = (crank[0] + 0.165 * cos(turn), crank[1] + 0.165 * sin(turn))
        parts += [bar(crank, end, 0.009, steel, side * 0.072, side * 0.080), s.box("pedal", (0.085, 0.075, 0.022), rubber,
                                                                                   0.005, (end[0], side * 0.125, end[1]))]
    case = s.box("chain case", (0.62, 0.014, 0.085), paint, 0.03, (-0.30, -0.052, 0.315))
    case.rotation_euler.y = 0.09
    parts += [case, s.lathe("case disc", [(0, -0.008), (0.098, -0.008), (0.105, 0.0), (0.098, 0.008), (0, 0.008)], paint,
                            finer=1)]
    parts[-1].location, parts[-1].rotation_euler.x = (crank[0], -0.052, crank[1]), pi / 2
    for y in (-0.05, 0.05):
        parts.append(s.tube("carrier", [(-0.24, y, 0.715), (-0.82, y, 0.715), (-0.84, 0, 0.715)], 0.0055, steel))
        parts.append(s.tube("strut", [(rear[0], y * 1.2, rear[1]), (-0.72, y, 0.715)], 0.005, steel))
    lamp = s.lathe("lamp", [(0, -0.05), (0.03, -0.035), (0.043, 0.0), (0.046, 0.022), (0.04, 0.026), (0, 0.028)], steel)
    lamp.location, lamp.rotation_euler.y = (0.43, 0, 0.80), pi / 2
    return parts + [lamp]


def saddle(leather):
    """Broad behind, a nose before."""
    points, rows = [], 24
    for i in range(rows + 1):
        t = i / rows
        wide = 0.092 * (1 - t) ** 0.7 * min(1, 4.5 * t + 0.45) + 0.022
        for k in range(11):
            u = (k - 5) / 5
            height = 0.955 - 0.045 * abs(u) ** 2.6 * (1.2 - 0.4 * t) + 0.014 * (1 - t) ** 2
            points.append((-0.40 + 0.27 * t, u * wide, height - (0.03 if i in (0, rows) else 0)))
    faces = [(i * 11 + k, i * 11 + k + 1, (i + 1) * 11 + k + 1, (i + 1) * 11 + k) for i in range(rows) for k in range(10)]
    made = s.subdivided(s.mesh("saddle", points, faces, leather), 1)
    made.modifiers.new("thick", "SOLIDIFY").thickness = 0.012
    return made


def basket(dice):
    """Wicker, woven of hoops and uprights, full of flowers."""
    reed = m.plain("reed", "9a6a3a", 0.7)
    parts, x, z = [], 0.60, 0.78
    for i in range(20):
        wide, high = 0.125 + 0.035 * i / 19, z + 0.235 * i / 19
        line = [(x + wide * cos(a) * (1.15 if abs(cos(a)) < 2 else 1),
                 (wide * 1.05 + 0.004 * (1 if (k + i) % 2 else -1)) * sin(a), high) for k,
                a in enumerate(2 * pi * k / 40 for k in range(40))]
        parts.append(s.tube("hoop", line, 0.0062 if i < 19 else 0.011, reed, closed=True))
    for k in range(20):
        a = 2 * pi * k / 20
        parts.append(s.tube("upright", [(x + 0.125 * 1.15 * cos(a), 0.125 * 1.05 * sin(a), z),
                                        (x + 0.160 * 1.15 * cos(a), 0.160 * 1.05 * sin(a), z + 0.235)], 0.005, reed))
    petals = [m.plain("petal", tone, 0.6, Sheen=0.3) for tone in ("d8486a", "f0e8e0", "e8a83a", "9a6ab8", "e88aa8")]
    leafs = s.leaf("leaf", 0.09, 0.035, m.plain("leaf", "4c7a34", 0.5), bend=0.4)
    blooms = [bloom(petal) for petal in petals]
    for _ in range(60):
        a, r = dice.uniform(0, 2 * pi), 0.15 * dice.random() ** 0.5
        parts.append(s.copy(leafs, (x + r * cos(a), r * sin(a), z + 0.23 + dice.uniform(0, 0.06)),
                            (dice.uniform(-0.4, 0.4), dice.uniform(-1.1, 0.1), dice.uniform(0, 6))))
    for _ in range(46):
        a, r = dice.uniform(0, 2 * pi), 0.17 * dice.random() ** 0.5
        parts.append(s.copy(dice.choice(blooms), (x + r * cos(a) * 1.1, r * sin(a),
                                                  z + 0.27 + 0.10 * (1 - (r / 0.17) ** 2) + dice.uniform(-0.02, 0.03)),
                            (r * sin(a) * -5, r * cos(a) * 5, dice.uniform(0, 6)), dice.uniform(0.75, 1.2)))
    for one in blooms + [leafs]:
        s.gone(one)
    return parts


def bloom(petal):
    """A full flower: three rings of petals, joined to one mesh."""
    points, faces = [], []
    for ring, (count, long, rise) in enumerate(((9, 0.034, 0.25), (7, 0.027, 0.75), (5, 0.017, 1.3))):
        for k in range(count):
            a = 2 * pi * k / count + 0.4 * ring
            base = len(points)
            for i in range(5):
                t = i / 4
                wide = 0.013 * sin(pi * (0.12 + 0.8 * t)) ** 0.7
                out, up = long * t * cos(rise * t), long * t * sin(rise * (0.4 + 0.6 * t)) + 0.002 * ring
                points += [(out * cos(a) - u * wide * sin(a), out * sin(a) + u * wide * cos(a),
                            up + 0.003 * abs(u)) for u in (-1, 0, 1)]
            faces += [(base + i * 3 + k2, base + i * 3 + k2 + 1, base + i * 3 + k2 + 4,
                       base + i * 3 + k2 + 3) for i in range(4) for k2 in range(2)]
    return s.subdivided(s.mesh("bloom", points, faces, petal), 1)


def wall():
    """Ochre plaster with stains and a few patches of brick, a stone plinth."""
    made, nodes, shader = m.principled("plaster", "c98a45", 0.9)
    where = nodes.place()
    broad, fine = nodes.noise(where, 0.9, detail=9.0, distortion=0.3), nodes.noise(where, 26.0, detail=6.0)
    rain = nodes.noise(m.stretched(nodes, (2.6, 1, 0.35)), 1.5, detail=6.0)
    tone = m.ramp(nodes, broad, (0.3, "b0702f"), (0.5, "cf9450"), (0.7, "dcae70"))
    tone = nodes.mix(m.ramp(nodes, rain, (0.5, 0.0), (0.75, 0.5)), tone, m.rgb("94683a"))
    gone = m.ramp(nodes, nodes.noise(where, 1.7, detail=8.0), (0.665, 0.0), (0.68, 1.0))
    apart = nodes.add("ShaderNodeSeparateXYZ", where)
    upright = nodes.add("ShaderNodeCombineXYZ", apart.outputs[0], apart.outputs[2], 0.0)
    brick = nodes.add("ShaderNodeTexBrick", Vector=nodes.vector("MULTIPLY", upright, (4.6, 4.6, 1)),
                      Color1=m.rgb("8a4a34"), Color2=m.rgb("a35c40"), Mortar=m.rgb("a89880"), Scale=1.0)
    height = nodes.math("ADD", nodes.math("MULTIPLY", fine, 0.35), nodes.math("MULTIPLY", gone, -1.2))
    m.feed(nodes, shader, Base_Color=nodes.mix(gone, tone, brick.outputs["Color"]),
           Normal=m.relief(nodes, nodes.math("ADD", height, broad), 0.014, 0.8))
    s.box("wall", (7, 0.3, 4), made, 0, (0, 0.45, 2.0))
    stone = m.plain("plinth", "85796a", 0.9)
    s.wrinkled(s.box("plinth", (7, 0.36, 0.28), stone, 0.015, (0, 0.44, 0.14)), 0.01, 0.1)


def cobbles(dice):
    """Setts, each a little other in tone, height and turn."""
    stones = [s.baked(s.wrinkled(s.subdivided(s.box("sett", (0.112, 0.112, 0.09), m.plain("stone", tone, 0.75), 0.022), 1),
                                 0.010, 0.05)) for tone in ("6f675d", "7d756a", "5f594f", "8a8074")]
    for j in range(24):
        for i in range(56):
            s.copy(dice.choice(stones), (-3.3 + 0.122 * i + (0.06 if j % 2 else 0) + dice.gauss(0, 0.003), 0.24 - 0.122 * j,
                                         -0.047 + dice.gauss(0, 0.004)), (dice.gauss(0, 0.03), dice.gauss(0, 0.03),
                                                                          dice.gauss(0, 0.05)), dice.uniform(0.95, 1.03))
    for one in stones:
        s.gone(one)
    s.sheet("joints", (9, 9), (2, 2), lambda x, y: -0.028, m.plain("joints", "4d463c", 0.95))


def window(dice):
    """A window with louvred shutters, sill, box of geraniums."""
    x, z = 1.18, 1.72
    white, blue = m.plain("frame", "e4ddcc", 0.5), m.plain("shutter", "3d6b7d", 0.55)
    s.box("hole", (0.92, 0.04, 1.26), m.plain("glass", "1b2429", 0.05, Specular=0.7), 0, (x, 0.285, z))
    for u in (-0.46, 0.0, 0.46):
        s.box("post", (0.055, 0.06, 1.3), white, 0.004, (x + u, 0.275, z))
    for w in (-0.63, 0.12, 0.63):
        s.box("rail", (0.96, 0.058, 0.05), white, 0.004, (x, 0.275, z + w))
    s.box("sill", (1.16, 0.2, 0.06), m.plain("sill", "b5a78f", 0.8), 0.008, (x, 0.22, z - 0.68))
    for side in (-1, 1):
        middle = x + side * 0.76
        for u in (-0.235, 0.235):
            s.box("stile", (0.055, 0.04, 1.32), blue, 0.004, (middle + u, 0.27, z))
        for w in (-0.635, 0.0, 0.635):
            s.box("crossbar", (0.5, 0.038, 0.065), blue, 0.004, (middle, 0.27, z + w))
        for k in range(29):
            slat = s.box("slat", (0.43, 0.030, 0.006), blue, 0, (middle, 0.272, z - 0.61 + 0.0436 * k))
            slat.rotation_euler.x = 0.75
    s.box("box", (0.95, 0.17, 0.16), m.plain("clay", "a35a38", 0.8), 0.01, (x, 0.19, z - 0.57))
    leafs = s.leaf("leaf", 0.075, 0.06, m.plain("geranium leaf", "3f7030", 0.5), bend=0.4)
    flowers = [bloom(m.plain("geranium", tone, 0.6)) for tone in ("c9202c", "e0506a")]
    for _ in range(170):
        s.copy(leafs, (x + dice.uniform(-0.47, 0.47), 0.16 + dice.gauss(0, 0.05), z - 0.50 + dice.uniform(-0.10, 0.16)),
               (dice.uniform(-0.5, 0.5), dice.uniform(-0.6, 0.5), dice.uniform(0, 6)))
    for _ in range(75):
        s.copy(dice.choice(flowers), (x + dice.uniform(-0.46, 0.46), 0.12 + dice.gauss(0, 0.05),
                                      z - 0.38 + dice.uniform(-0.12, 0.12)), (dice.uniform(-1, 1.2), dice.uniform(-0.8, 0.8),
                                                                              0), dice.uniform(0.7, 1.1))
    for one in flowers + [leafs]:
        s.gone(one)


def shade_of_leaves(dice):
    """A tree out of the picture, whose leaves let spots of sun through on the wall."""
    leafs = s.leaf("shade", 0.15, 0.09, m.plain("shade", "3a5a24", 0.7))
    for _ in range(1500):
        s.copy(leafs, (-3.6 + dice.gauss(0, 0.9), -2.4 + dice.gauss(0, 0.6), 4.3 + dice.gauss(0, 0.7)),
               (dice.uniform(0, 6), dice.uniform(0, 6), dice.uniform(0, 6)), dice.uniform(0.7, 1.5))
    s.gone(leafs)


def build():
    dice = s.dice(91)
    steel = m.plain("chrome", "cfd0d2", 0.18, Metallic=1.0)
    rubber, leather = m.plain("rubber", "1a1918", 0.7), m.plain("leather", "7a4424", 0.45)
    paint = m.plain("paint", "2f6f66", 0.25, Clearcoat=0.7)
    parts = [part for hub in HUBS for part in wheel(*hub, steel, rubber)] + frame(paint, steel, leather, rubber)
    parts += [guard(*HUBS[0], 0.5, 3.4, paint), guard(*HUBS[1], 0.7, 2.9, paint)] + basket(dice)
    bicycle = s.parent(parts, "bicycle")
    bicycle.location, bicycle.rotation_euler = (-0.42, -0.02, 0.0), (-0.10, 0, 0.06)
    wall()
    cobbles(dice)
    window(dice)
    shade_of_leaves(dice)
    daylight(42, -142, strength=0.14, dust=0.6, sun_size=0.8)
    camera((0.14, -4.3, 1.20), (0.14, 0, 0.96), 45, Vector((-0.3, 0, 0.7)), 5.6)
    return Roll(samples=12, exposure=-0.6, saturation=1.0)
