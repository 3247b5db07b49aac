"""A birthday cake with lit candles in a dim room, strings of lights far behind it."""
from math import cos, pi, sin

import materials as m
import shapes as s
from common import camera
from film import Roll

FORMAT = "portrait"


def cream(name, colour, deep):
    """Whipped cream: soft; the knife has left its strokes."""
    made, nodes, shader = m.principled(name, colour, 0.42, Specular=0.4)
    where = nodes.place()
    strokes = nodes.noise(m.stretched(nodes, (1, 1, 9)), 9.0, detail=4.0, distortion=0.4)
    m.feed(nodes, shader, Base_Color=nodes.mix(nodes.noise(where, 14.0), m.rgb(colour), m.rgb(deep)),
           Normal=m.relief(nodes, strokes, 0.0022, 0.7))
    return made


def tier(radius, low, high, material):
    """A round layer with soft edges, not quite even."""
    profile = [(0, low), (radius * 0.97, low), (radius, low + 0.006), (radius * 1.004, (low + high) / 2),
               (radius * 0.998, high - 0.012), (radius * 0.985, high - 0.004), (radius * 0.955, high),
               (radius * 0.7, high + 0.001), (0, high)]
    made = s.lathe("tier", profile, material, steps=128, finer=1)
    return s.wrinkled(made, 0.0016, 0.03)


def rosette(radius, material):
    """A piped dab of cream: a star-shaped section that turns as it narrows."""
    rows, around, points = 30, 40, []
    for row in range(rows + 1):
        t = row / rows
        wide = radius * (1 - t) ** 0.75 * (1.0 + 0.18 * sin(pi * min(t * 2.2, 1)))
        for k in range(around):
            a = -2 * pi * k / around
            ridge = 1 + 0.16 * (abs(sin(4 * a)) ** 0.7 - 0.5)
            points.append((wide * ridge * cos(a + 2.0 * t), wide * ridge * sin(a + 2.0 * t), radius * 1.35 * t ** 0.9))
    return s.net("rosette", points, around, material)


def strawberry(material, seeds, green):
    """A berry point down on its side, with seeds in dimples and its leaves."""
    def wide(t):
        return 0.0155 * (sin(pi * t ** 0.62)) ** 0.75
    profile = [(wide(i / 30) if 0 < i < 30 else 0, 0.036 * i / 30) for i in range(31)]
    parts = [s.lathe("berry", profile, material, steps=64, finer=1)]
    seed = s.ball("seed", 0.0008, seeds, detail=2)
    for row in range(3, 26, 2):
        t = row / 28
        count = max(3, int(wide(t) * 560))
        for k in range(count):
            a = 2 * pi * (k + 0.5 * (row // 2 % 2)) / count
            grain = s.copy(seed, (wide(t) * 1.0 * cos(a), wide(t) * 1.0 * sin(a), 0.036 * t), (0, 0, a), (0.5, 0.8, 1.3))
            parts.append(grain)
    s.gone(seed)
    for k in range(7):
        blade = s.leaf("sepal", 0.015, 0.006, green, bend=0.35)
        a = 2 * pi * k / 7
        blade.location, blade.rotation_euler = (0.006 * cos(a), 0.006 * sin(a), 0.0365), (0, 0.25, a)
        parts.append(blade)
    return s.parent(parts, "strawberry")


def berry_skin():
    made, nodes, shader = m.principled("berry", "b5121b", 0.2, Specular=0.55, Clearcoat=0.5)
    where = nodes.place()
    height = nodes.add("ShaderNodeSeparateXYZ", where).outputs[2]
    tone = nodes.math("MULTIPLY_ADD", height, 27.0, nodes.math("MULTIPLY", nodes.noise(where, 90.0), 0.22))
    m.feed(nodes, shader, Base_Color=m.ramp(nodes, tone, (0.1, "8f0812"), (0.75, "c81a1e"), (1.12, "e8804a")),
           Normal=m.relief(nodes, m.voronoi(nodes, where, 330.0), 0.0016, 0.5))
    return made


def candle(at, wax, dice):
    """A thin candle with its wick and flame."""
    lean = (dice.uniform(-0.03, 0.03), dice.uniform(-0.03, 0.03), 0)
    tall = 0.062
    body = s.lathe("candle", [(0, 0), (0.0031, 0), (0.0031, tall - 0.001), (0.0024, tall), (0.0008, tall - 0.0012),
                              (0, tall - 0.0012)], wax, steps=32)
    wick = s.tube("wick", [(0, 0, tall - 0.002), (0.0004, 0, tall + 0.004), (0.0012, 0, tall + 0.007)], 0.0005,
                  m.plain("wick", "17110c", 0.9))
    bright = s.lathe("flame", [(0.0, 0.0), (0.0026, 0.0028), (0.0036, 0.0065), (0.0031, 0.011), (0.0017, 0.017),
                               (0.0006, 0.0215), (0, 0.0235)],
                     flame(), steps=32)
    bright.location.z = tall + 0.002
    bright.visible_shadow = False
    group = s.parent([body, wick, bright], "candle")
    group.location, group.rotation_euler = at, lean


def flame():
    """Blue and thin below, bright and yellow above."""
    made, nodes = m.material("flame")
    height = nodes.add("ShaderNodeSeparateXYZ", nodes.place()).outputs[2]
    share = nodes.math("MULTIPLY", height, 42.0)
    colour = m.ramp(nodes, share, (0.0, "2a3cff"), (0.18, "ff9a3c"), (0.5, "ffd98a"), (1.0, "ffb24a"))
    power = m.ramp(nodes, share, (0.0, 0.04), (0.3, 1.0), (0.7, 1.0), (1.0, 0.35))
    shine = nodes.add("ShaderNodeEmission", colour, nodes.math("MULTIPLY", power, 34.0))
    clear = nodes.add("ShaderNodeBsdfTransparent")
    facing = nodes.add("ShaderNodeLayerWeight", 0.35).outputs["Facing"]
    hidden = nodes.math("MULTIPLY", m.ramp(nodes, facing, (0.55, 0.0), (1.0, 0.9)), 1.0)
    m.surface(nodes, nodes.add("ShaderNodeMixShader", hidden, shine, clear))
    return made


def striped(first, second):
    """Wax with a stripe that winds around."""
    made, nodes, shader = m.principled("wax", first, 0.35, Subsurface=0.2)
    shader.inputs["Subsurface Radius"].default_value = (0.004, 0.003, 0.002)
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place())
    angle = nodes.math("ARCTAN2", apart.outputs[1], apart.outputs[0])
    phase = nodes.math("FRACT", nodes.math("MULTIPLY_ADD", apart.outputs[2], 75.0, nodes.math("MULTIPLY", angle,
                                                                                              1 / (2 * pi))))
    m.feed(nodes, shader, Base_Color=nodes.mix(m.ramp(nodes, phase, (0.5, 0.0), (0.54, 1.0)), m.rgb(first), m.rgb(second)))
    return made


def sprinkles(dice, top, count):
    """Sugar strands on the edge of the lower tier."""
    colours = [m.plain("sugar", tone, 0.3) for tone in ("e84a6f", "f4c542", "57b8c9", "f5f0e6", "8fc45a")]
    for _ in range(count):
        a, r = dice.uniform(0, 2 * pi), dice.uniform(0.093, 0.123)
        strand = s.tube("strand", [(-0.0022, 0, 0), (0.0022, 0, 0)], 0.0006, dice.choice(colours))
        strand.location, strand.rotation_euler = (r * cos(a), r * sin(a), top + 0.0012), (0, dice.uniform(-0.2, 0.2),
                                                                                          dice.uniform(0, 6))


def room(dice):
    """Warm lights on strings, boxes with bows, all far out of focus."""
    tones = ["ffcf8a", "ffb45e", "ffdfb0", "ff9f6a", "ffd27a", "ff7f8a", "8ab8ff"]
    glows = [m.glow("bulb", tone, 26) for tone in tones]
    for _ in range(70):
        size = dice.uniform(0.010, 0.017)
        s.ball("bulb", size, dice.choice(glows), (dice.uniform(-1.3, 1.3), dice.uniform(1.4, 2.6), dice.uniform(0.0, 1.35)),
               2)
    s.box("wall", (8, 0.1, 5), m.plain("wall", "5c3b2e", 0.9), at=(0, 3.2, 1))
    for x, y, size, tone in ((-0.32, 0.42, 0.17, "a32638"), (0.36, 0.5, 0.2, "2f5f6b"), (0.16, 0.62, 0.13, "d9b45a")):
        s.box("present", (size, size, size * 0.8), m.plain("paper", tone, 0.5), 0.004,
              (x, y, size * 0.4 - 0.005)).rotation_euler.z = x * 3
        s.box("ribbon", (size * 0.18, size * 1.01, size * 0.81), m.plain("ribbon", "efe3c4", 0.35), 0,
              (x, y, size * 0.4 - 0.005)).rotation_euler.z = x * 3


def build():
    dice = s.dice(7)
    s.planks(m.wood("table", "2a170d", "57341d", "855a35", 0.4, 1.2), 1.6, 2.2, 9)
    foot = [(0, 0), (0.07, 0), (0.066, 0.006), (0.03, 0.014), (0.018, 0.03), (0.02, 0.05), (0.07, 0.060), (0.155, 0.064),
            (0.160, 0.068), (0.156, 0.071), (0.14, 0.068), (0, 0.067)]
    s.lathe("stand", foot, m.plain("china", "e9e4da", 0.12, Specular=0.6), finer=2)
    rose, white = cream("rose", "f2b8bd", "eaa3ab"), cream("white", "f7efe2", "f2e4d0")
    tier(0.125, 0.068, 0.150, rose)
    tier(0.088, 0.148, 0.222, white)
    dab, small = rosette(0.0135, white), rosette(0.0105, rose)
    for k in range(26):
        a = 2 * pi * k / 26
        s.copy(dab, (0.131 * cos(a), 0.131 * sin(a), 0.069), (0, 0, dice.uniform(0, 6)), dice.uniform(0.93, 1.05))
    for k in range(22):
        a = 2 * pi * k / 22
        s.copy(small, (0.094 * cos(a), 0.094 * sin(a), 0.150), (0, 0, dice.uniform(0, 6)), dice.uniform(0.93, 1.05))
        s.copy(small, (0.076 * cos(a), 0.076 * sin(a), 0.222), (0, 0, dice.uniform(0, 6)), dice.uniform(0.85, 1.0))
    s.gone(dab), s.gone(small)
    sprinkles(dice, 0.150, 150)
    skin, seeds, green = berry_skin(), m.plain("seeds", "e3b04a", 0.4), m.plain("sepals", "4d7a22", 0.5)
    for x, y, turn in ((0.0, -0.012, 0.2), (-0.034, 0.006, 1.9), (0.030, 0.012, 4.0)):
        berry = strawberry(skin, seeds, green)
        berry.location, berry.rotation_euler = (x, y, 0.263), (pi + dice.uniform(-0.25, 0.25), dice.uniform(-0.3, 0.3), turn)
        berry.scale = (1.1,) * 3
    waxes = [striped("f4efe4", tone) for tone in ("d8526e", "4f9fb5", "e0aa3c")]
    for k in range(9):
        a = 2 * pi * (k + 0.3) / 9
        candle((0.058 * cos(a), 0.058 * sin(a), 0.221), waxes[k % 3], dice)
    for x, y in ((-0.045, -0.03), (0.05, -0.02), (0.0, 0.05)):  # the light of three flames each: one lamp is less noise
        m.lamp("POINT", (x, y, 0.298), (0, 0, 0), 0.66, (1.0, 0.62, 0.28), shadow_soft_size=0.02)
    room(dice)
    m.ambient((0.35, 0.28, 0.30), 0.12)
    m.window_light((-1.1, -0.5, 1.0), (0, 0, 0.15), 0.6, 15, (1.0, 0.9, 0.8))
    m.window_light((1.0, -0.2, 0.6), (0, 0, 0.15), 0.5, 4, (1.0, 0.75, 0.5))
    camera((0.05, -0.92, 0.40), (0.0, 0, 0.19), 66, (0, -0.075, 0.22), 2.8)
    return Roll(samples=20, exposure=0.6, clean=1.5)
