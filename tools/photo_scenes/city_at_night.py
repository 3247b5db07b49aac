"""Towers on the far bank in the last blue of the evening, haze between them, their lights drawn out in the river."""
from math import sin

import bpy
import numpy
from mathutils import Vector, noise

import materials as m
import shapes as s
from common import camera, world
from film import Roll
from nodes import leafy, material, no_lamp, surface
from skies import veiled
from trees import clump

FORMAT = "landscape"
BANK = 760.0
HAZE = ((0.040, 0.030, 0.042), 1700.0)


def dusk():
    """The blue after sunset; its last orange and the glow of the town below, thin cloud that catches both."""
    nodes = world()
    tones = ((0.0, (0.46, 0.20, 0.10)), (0.035, (0.30, 0.15, 0.11)), (0.10, (0.105, 0.088, 0.125)), (0.22, (0.034, 0.050, 0.098)), (0.5, (0.010, 0.019, 0.050)))
    tone = veiled(nodes, nodes.place("Generated"), tones, (0.14, 0.082, 0.085), (1.2, 1.0, 7.0), 2.2, 0.50)
    nodes.add("ShaderNodeOutputWorld", nodes.add("ShaderNodeBackground", tone, 0.5))


def own_number(nodes, factor):
    """Another number of the house's own, 0 to 1."""
    return nodes.math("FRACT", nodes.math("MULTIPLY", nodes.chance(), factor))


def dice_of(nodes, *at):
    """A random number and colour for each cell of three counts."""
    return nodes.add("ShaderNodeTexWhiteNoise", nodes.add("ShaderNodeCombineXYZ", *at))


def inside(nodes, count, half):
    """1 in the middle of each whole step of a count, 0 near its ends."""
    return nodes.math("LESS_THAN", nodes.math("ABSOLUTE", nodes.math("SUBTRACT", nodes.math("FRACT", count), 0.5)), half)


def windows(nodes, across, up, seed):
    """Light behind the panes: offices in runs of one floor under lamps of one tint, flats one by one; bright under the
    ceiling."""
    own = nodes.math("MULTIPLY_ADD", nodes.chance(), 99.0, seed)
    cell = dice_of(nodes, nodes.math("FLOOR", across), nodes.math("FLOOR", up), own)
    run = dice_of(nodes, nodes.math("FLOOR", nodes.math("DIVIDE", across, 5.0)), nodes.math("FLOOR", up), nodes.math("ADD", own, 5.0))
    office = nodes.math("GREATER_THAN", own_number(nodes, 57.0), 0.45)
    likely = nodes.math("MULTIPLY_ADD", own_number(nodes, 91.0), 0.30, 0.10)
    in_run = nodes.math("LESS_THAN", run.outputs["Value"], nodes.math("MULTIPLY", likely, 1.2))
    likely = nodes.mix(office, likely, nodes.math("MULTIPLY_ADD", in_run, 0.78, 0.05))
    awake = nodes.math("LESS_THAN", cell.outputs["Value"], likely)
    tint = nodes.add("ShaderNodeSeparateColor", nodes.mix(office, cell.outputs["Color"], run.outputs["Color"]))
    tone = m.ramp(nodes, tint.outputs[1], (0.0, "ff9f4a"), (0.45, "ffc585"), (0.75, "fff0d8"), (1.0, "d5e6ff"))
    apart = nodes.add("ShaderNodeSeparateColor", cell.outputs["Color"])
    level = nodes.math("MULTIPLY", nodes.math("MULTIPLY_ADD", nodes.math("POWER", apart.outputs[0], 2.0), 4.2, 0.30), awake)
    ceiling = nodes.math("MULTIPLY_ADD", nodes.math("FRACT", up), 0.9, 0.35)
    scaled = nodes.vector("SCALE", tone)
    nodes.put(scaled.node.inputs["Scale"], nodes.math("MULTIPLY", level, ceiling))
    return scaled


def front(name, wall, seed, flooded):
    """A wall: windows in bays of the house's own width, as holes, ribbons or strips; light of the streets from below, at
    times (flooded: its strength) of lamps that light the crown."""
    made, nodes = material(name)
    no_lamp(nodes)
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place())
    across = nodes.math("DIVIDE", nodes.math("ADD", apart.outputs[0], apart.outputs[1]), nodes.math("MULTIPLY_ADD", own_number(nodes, 37.0), 1.5, 1.0))
    up = nodes.math("DIVIDE", apart.outputs[2], nodes.math("MULTIPLY_ADD", own_number(nodes, 23.0), 0.7, 2.7))
    kind = own_number(nodes, 71.0)
    half_across = nodes.math("MULTIPLY_ADD", nodes.math("GREATER_THAN", kind, 0.62), 0.22, 0.28)
    half_up = nodes.math("MULTIPLY_ADD", nodes.math("LESS_THAN", kind, 0.3), 0.22, 0.26)
    pane = nodes.math("MULTIPLY", inside(nodes, across, half_across), inside(nodes, up, half_up))
    plant = dice_of(nodes, nodes.math("FLOOR", nodes.math("DIVIDE", up, 1.0)), 3.0, nodes.math("MULTIPLY", nodes.chance(), 31.0)).outputs["Value"]
    pane = nodes.math("MULTIPLY", pane, nodes.math("GREATER_THAN", plant, 0.055))
    geometry = nodes.add("ShaderNodeNewGeometry")
    height = nodes.add("ShaderNodeSeparateXYZ", geometry.outputs["Position"]).outputs[2]
    low = nodes.math("POWER", 2.718, nodes.math("DIVIDE", height, -26.0))
    side = nodes.math("MULTIPLY_ADD", nodes.vector("DOT_PRODUCT", geometry.outputs["Normal"], (-0.8, -0.6, 0.0)), 0.5, 0.5)
    patchy = nodes.noise(geometry.outputs["Position"], 0.035, detail=3.0)
    street = nodes.vector("SCALE", (0.42, 0.22, 0.09))
    nodes.put(street.node.inputs["Scale"], nodes.math("MULTIPLY", nodes.math("MULTIPLY", low, patchy), nodes.math("MULTIPLY_ADD", side, 0.8, 0.2)))
    top = nodes.math("POWER", nodes.add("ShaderNodeSeparateXYZ", nodes.place("Generated")).outputs[2], 9.0)
    crown = nodes.vector("SCALE", (1.0, 0.72, 0.42))
    nodes.put(crown.node.inputs["Scale"], nodes.math("MULTIPLY", top, flooded))
    glow = nodes.mix(pane, nodes.vector("ADD", street, crown), windows(nodes, across, up, seed))
    rough = nodes.math("MULTIPLY_ADD", pane, -0.55, 0.65)
    tone = nodes.mix(pane, m.rgb(wall), (0.02, 0.025, 0.03))
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=rough, Emission=glow, Emission_Strength=1.0), HAZE)
    return made


def block(dice, at, size, turn, wall):
    """One piece of a house: four-cornered, or with its corners cut. At: x, y and its two heights."""
    x, y, low, high = at
    wide, deep = size
    if dice.random() < 0.72:
        made = s.box("block", (wide, deep, high - low), wall, 0, (x, y, (low + high) / 2))
    else:
        half, cut = (high - low) / 2, dice.uniform(0.12, 0.32)
        ring = [(u * wide / 2, v * deep / 2) for u, v in ((-1, -1 + cut * 2), (-1 + cut * 2, -1), (1 - cut * 2, -1), (1, -1 + cut * 2), (1, 1 - cut * 2), (1 - cut * 2, 1), (-1 + cut * 2, 1), (-1, 1 - cut * 2))]
        points = [(u, v, z) for z in (-half, half) for u, v in ring]
        faces = [(k, (k + 1) % 8, 8 + (k + 1) % 8, 8 + k) for k in range(8)] + [tuple(range(8, 16))]
        made = s.mesh("block", points, faces, wall, smooth=False)
        made.location = (x, y, (low + high) / 2)
    made.rotation_euler.z = turn
    return made


def roof(dice, x, y, top, wide, dark):
    """What stands on roofs: plant, tanks, aerials, a parapet's corner."""
    for _ in range(dice.randrange(2, 5)):
        size = dice.uniform(0.08, 0.3) * wide
        tall = dice.uniform(0.8, 0.025 * top + 1.5)
        s.box("plant", (size, size * dice.uniform(0.5, 1.4), tall), dark, 0, (x + dice.uniform(-0.3, 0.3) * wide, y + dice.uniform(-0.3, 0.3) * wide, top + tall / 2))
    for _ in range(dice.randrange(0, 4)):
        u = x + dice.uniform(-0.35, 0.35) * wide
        s.tube("aerial", [(u, y, top), (u, y, top + 0.12 * top + dice.uniform(0, 5))], 0.14, dark)


def tower(dice, at, tall, wide, walls, dark):
    """A tower: one shaft, or set back once to three times; what stands on its roof, at times a mast or a spire."""
    (x, y), turn = at, dice.gauss(0, 0.35)
    wall = dice.choice(walls["flooded" if tall > 80 and dice.random() < 0.3 else "plain"])
    steps, low, share = dice.choice((1, 1, 2, 2, 3)), 2.0, 1.0
    deep = wide * dice.uniform(0.6, 1.25)
    for step in range(steps):
        high = low + (tall - low) * (1.0 if step == steps - 1 else dice.uniform(0.45, 0.75))
        block(dice, (x + dice.gauss(0, 1.0) * (step > 0), y, low, high), (wide * share, deep * share), turn, wall)
        low, share = high, share * dice.uniform(0.62, 0.86)
    roof(dice, x, y, tall, wide * share, dark)
    if tall > 105 and dice.random() < 0.6:
        mast = tall + dice.uniform(12, 34)
        s.tube("mast", [(x, y, tall), (x, y, mast)], 0.5, dark, radii=[1.0, 0.3])
        s.ball("beacon", 0.55, m.glow("beacon", "ff2a1a", dice.uniform(4, 16)), (x, y, mast), 1)
    if tall > 80 and dice.random() < 0.28:
        s.box("sign", (wide * 0.36, 0.4, 2.4), m.glow("sign", dice.choice(("ffffff", "6fb6ff", "ff5a4a", "ffd9a0")), dice.uniform(1.5, 4)), 0, (x + dice.uniform(-3, 3), y - deep * 0.62, tall - 6))


def landmark(dice, at, walls, dark):
    """The tallest: slabs of five heights leaning on each other, a lit spire."""
    x, y = at
    for u, v, wide, tall in ((0, 0, 24, 214), (-15, -4, 18, 176), (14, 5, 17, 192), (6, -12, 20, 138), (-4, 10, 30, 158)):
        block(dice, (x + u, y + v, 2, tall), (wide, wide * 0.9), 0.28, walls[3])
    for radius, low, high in ((7.5, 214, 221), (4.5, 221, 229), (1.2, 229, 262)):
        s.lathe("spire", [(radius, low), (radius * 0.8, high), (0, high)], dark, steps=12).location = (x, y, 0)
    for radius, height in ((7.7, 220.0), (4.7, 228.0)):
        s.lathe("crown", [(radius, height), (radius, height + 0.7)], m.glow("crown", "ffd9a8", 1.6), steps=12).location = (x, y, 0)
    s.ball("beacon", 0.6, m.glow("beacon", "ff2a1a", 16), (x, y, 262), 1)


def crane(x, y, tall, dark):
    """A crane over a shell of concrete."""
    s.tube("crane", [(x, y, 0), (x, y, tall)], 0.6, dark)
    s.tube("jib", [(x - 14, y, tall - 2), (x + 46, y, tall + 3)], 0.45, dark)
    s.tube("stay", [(x, y, tall + 8), (x + 30, y, tall + 2)], 0.15, dark)
    s.tube("top", [(x, y, tall), (x, y, tall + 8)], 0.35, dark)
    s.ball("beacon", 0.5, m.glow("beacon", "ff2a1a", 9), (x + 45, y, tall + 4), 1)


def skyline(dice):
    """Three rows: low houses at the quay, blocks, towers that crowd about two middles."""
    tones = ("3d3f46", "54473c", "2c323c", "48423e", "5e5040")
    walls = {"plain": [front("wall", tone, i, 0.0) for i, tone in enumerate(tones)], "flooded": [front("lit wall", tone, i + 9, 0.4) for i, tone in enumerate(tones)]}
    dark, nodes = material("dark")
    surface(nodes, nodes.add("ShaderNodeBsdfDiffuse", (0.045, 0.042, 0.05)), HAZE)
    x = -560.0
    while x < 560:
        wide, tall = dice.uniform(11, 34), dice.uniform(9, 30)
        block(dice, (x, BANK + dice.uniform(22, 44), 0, tall), (wide, 18), dice.gauss(0, 0.08), dice.choice(walls["plain"]))
        roof(dice, x, BANK + 30, tall, wide, dark)
        x += wide * dice.uniform(0.75, 1.3)
    for _ in range(240):
        x = dice.uniform(-560, 560)
        near_middle = max(0.0, 1 - (abs(x - 70) / 230) ** 1.3) + 0.55 * max(0.0, 1 - (abs(x + 190) / 120) ** 1.5)
        tall = 20 + dice.random() ** 1.15 * (34 + 135 * near_middle)
        tower(dice, (x, BANK + dice.uniform(55, 640)), tall, dice.uniform(15, 36), walls, dark)
    landmark(dice, (100, BANK + 150), walls["plain"], dark)
    tower(dice, (-178, BANK + 210), 168, 30, walls, dark)
    crane(-52, BANK + 120, 92, dark)
    crane(208, BANK + 90, 74, dark)


def quay(dice, chance):
    """The embankment: lamps in groups, trees before them, shop fronts, cars that draw lines."""
    s.box("quay", (1400, 30, 5), m.plain("quay", "35312d", 0.9), 0, (0, BANK + 5, 0))
    lamps = [m.glow("lamp", tone, power) for tone, power in (("ffab55", 60), ("ffc98a", 45), ("fff0d8", 40))]
    x = -560.0
    while x < 560:
        s.ball("lamp", dice.uniform(0.4, 0.7), dice.choice((lamps[0], lamps[0], lamps[1], lamps[2])), (x, BANK - dice.uniform(6, 12), 7.5 + dice.gauss(0, 0.5)), 1)
        x += dice.choice((9.0, 11.0, 11.0, 26.0)) * dice.uniform(0.8, 1.2)
    for _ in range(85):
        wide = dice.uniform(2, 11)
        s.box("shop", (wide, 0.2, dice.uniform(1.6, 3.0)), m.glow("shop", dice.choice(("ffb870", "ffd9a8", "ff9a50", "fff2e0", "cfe2ff")), dice.uniform(0.3, 2.2)), 0, (dice.uniform(-420, 420), BANK + 12 + dice.uniform(0, 6), dice.uniform(4.0, 6.0)))
    for _ in range(46):
        long, tone = dice.uniform(6, 60), dice.choice(("ff3020", "ff3020", "fff0d0"))
        s.box("car", (long, 0.1, 0.22), m.glow("car", tone, dice.uniform(0.6, 2.2)), 0, (dice.uniform(-420, 420), BANK - 9.8, 3.6 + dice.uniform(0, 0.7)))
    for _ in range(14):
        s.box("neon", (dice.uniform(2, 8), 0.3, dice.uniform(0.8, 2.4)), m.glow("neon", dice.choice(("ff4a5a", "4ad0ff", "ffd24a", "c97aff", "5aff9a")), dice.uniform(2, 7)), 0, (dice.uniform(-330, 330), BANK + 10, dice.uniform(8, 22)))
    count = 95
    hearts = numpy.column_stack([chance.uniform(-430, 430, count), BANK - chance.uniform(-6, 8, count), chance.uniform(5, 10, count)])
    hearts = numpy.repeat(hearts, 8, axis=0) + chance.normal(0, 1.0, (count * 8, 3)) * [2.6, 2.0, 2.1]
    clump(chance, leafy("crowns", (0.012, 0.016, 0.008), (0.02, 0.02, 0.01)), hearts, 60, 0.9, 0.42)


def river():
    """Water in a long exposure: soft, waves only smear the lights towards us, a breeze in bands."""
    made, nodes, shader = m.principled("river", "04070d", 0.13, Specular=0.7)
    waves = nodes.math("ADD", nodes.noise(m.stretched(nodes, (0.35, 1, 1)), 0.055, detail=5.0),
                       nodes.math("MULTIPLY", nodes.noise(m.stretched(nodes, (0.4, 1, 1)), 0.5, detail=3.0), 0.12))
    breeze = nodes.noise(m.stretched(nodes, (0.25, 1, 1)), 0.012, detail=4.0)
    m.feed(nodes, shader, Normal=m.relief(nodes, waves, 2.2, 0.4), Roughness=nodes.math("MULTIPLY_ADD", nodes.rise(breeze, 0.4, 0.65), 0.10, 0.09))
    s.sheet("river", (3000, 1700), (2, 2), lambda x, y: 0.0, made).location.y = 600


def hills():
    dark, nodes = material("hill")
    surface(nodes, nodes.add("ShaderNodeBsdfDiffuse", (0.01, 0.011, 0.014)), ((0.13, 0.085, 0.085), 3200.0))
    line = [(x, 2600, 90 + 110 * noise.fractal(Vector((x / 700, 3, 0)), 1.0, 2.1, 6) + 3 * sin(x / 31)) for x in range(-1600, 1601, 10)]
    s.ridge(line, -5, dark)


def build():
    dice = s.dice(57)
    dusk()
    skyline(dice)
    quay(dice, numpy.random.default_rng(57))
    river()
    hills()
    camera((0, 0, 20), (14, BANK, 66), 48)
    bpy.context.scene.cycles.sample_clamp_indirect = 2.5  # a lamp that one ray in a thousand meets is a speck on the river
    return Roll(samples=24, exposure=1.15, glow=0.13, grain=0.012)
