"""Old painted houses along the quay of a small harbour, seen aslant in a low sun that rakes their fronts, boats before them."""
from math import atan2, hypot, pi

import numpy
from mathutils import Vector, noise

import materials as m
import shapes as s
from boats import boat
from common import camera, daylight
from film import Roll
from growth import Soup
from nodes import leafy

FORMAT = "landscape"
QUAY, DEPTH = 1.3, 9.0  # height of the quay, depth of a house
BOATS = (((-19.0, -9.3, 0.14, 0.85), ("5d6a60", "3a2c24", "8d8674"), False),
         ((-11.5, -9.9, 0.05, 1.05), ("33566e", "5a2620", "a8a291"), True),
         ((-3.2, -9.3, -0.06, 0.90), ("8f3a2e", "2a2c2c", "9c8f78"), False),
         ((5.0, -9.8, 0.08, 1.2), ("c4beb0", "35565a", "33503f"), True),
         ((12.5, -9.5, 0.02, 0.90), ("a07c38", "3a2c20", "463626"), False),
         ((20.5, -9.8, 0.04, 1.1), ("3f5a4c", "5a2620", "b0a892"), True))


def weathered(nodes, tone, colour, bare):
    """A painted tone after some winters: bleached, streaked below the sills, damp at the foot, off in places (bare)."""
    place, height = m.where_in_world(nodes)
    own = nodes.vector("ADD", place, nodes.add("ShaderNodeCombineXYZ", 0.0, nodes.math("MULTIPLY", nodes.chance(), 70.0), 0.0))
    bleached = nodes.rise(nodes.noise(own, 0.35, detail=5.0), 0.35, 0.7)
    tone = nodes.mix(nodes.math("MULTIPLY", bleached, 0.45), tone, tuple(0.55 * level + 0.22 for level in m.rgb(colour)))
    runs = nodes.noise(nodes.vector("MULTIPLY", own, (3.2, 3.2, 0.22)), 1.0, detail=6.0, roughness=0.6)
    tone = nodes.mix(nodes.math("MULTIPLY", nodes.rise(runs, 0.50, 0.78), 0.55), tone, tuple(0.30 * level + 0.012 for level in m.rgb(colour)))
    flaked = nodes.rise(nodes.noise(own, 0.8, detail=11.0, roughness=0.68), bare, bare + 0.03)
    tone = nodes.mix(nodes.math("MULTIPLY", flaked, 0.8), tone, (0.32, 0.28, 0.235))
    damp = nodes.rise(nodes.math("MULTIPLY_ADD", nodes.noise(own, 1.1, detail=6.0), -2.4, height), QUAY + 0.6, QUAY - 1.0)
    return nodes.mix(nodes.math("MULTIPLY", damp, 0.7), tone, (0.07, 0.065, 0.05)), flaked


def boards(name, colour):
    """Weatherboards, each a little of its own tone, a shadow under each; nails have bled."""
    made, nodes, shader = m.principled(name, colour, 0.7, Specular=0.25)
    place, height = m.where_in_world(nodes)
    up = nodes.math("MULTIPLY_ADD", nodes.noise(place, 0.25, detail=1.0), 0.25, nodes.math("MULTIPLY", height, 1 / 0.165))
    own = nodes.add("ShaderNodeTexWhiteNoise", nodes.add("ShaderNodeCombineXYZ", nodes.math("FLOOR", up), nodes.math(
        "FLOOR", nodes.math("MULTIPLY", nodes.add("ShaderNodeSeparateXYZ", place).outputs[0], 0.31)), nodes.chance())).outputs["Value"]
    tone = nodes.mix(nodes.math("MULTIPLY", own, 0.4), m.rgb(colour), tuple(0.6 * level for level in m.rgb(colour)))
    tone, flaked = weathered(nodes, tone, colour, 0.60)
    board = nodes.math("FRACT", up)
    tone = nodes.mix(m.ramp(nodes, board, (0.0, 0.75), (0.13, 0.0)), tone, (0.012, 0.010, 0.008))
    m.feed(nodes, shader, Base_Color=tone, Normal=m.relief(nodes, nodes.math("MULTIPLY_ADD", flaked, -0.15, board), 0.03, 0.8))
    return made


def plaster(name, colour):
    made, nodes, shader = m.principled(name, colour, 0.9, Specular=0.15)
    place, _ = m.where_in_world(nodes)
    tone, flaked = weathered(nodes, nodes.mix(nodes.noise(place, 6.0, detail=6.0), m.rgb(colour), tuple(0.8 * level for level in m.rgb(colour))), colour, 0.575)
    lumps = nodes.math("MULTIPLY_ADD", nodes.noise(place, 1.3, detail=7.0, roughness=0.62), 1.0, nodes.math("MULTIPLY", flaked, -0.25))
    m.feed(nodes, shader, Base_Color=tone, Normal=m.relief(nodes, lumps, 0.10, 0.7))
    return made


def tiles(name, dark, middle, light):
    """Clay tiles in rows: each burnt its own way, lichen in patches."""
    made, nodes, shader = m.principled(name, middle, 0.85, Specular=0.2)
    place, height = m.where_in_world(nodes)
    apart = nodes.add("ShaderNodeSeparateXYZ", place)
    up = nodes.math("MULTIPLY", height, 1 / 0.21)
    along = nodes.math("MULTIPLY", nodes.math("ADD", apart.outputs[0], apart.outputs[1]), 1 / 0.26)
    own = nodes.add("ShaderNodeTexWhiteNoise", nodes.add("ShaderNodeCombineXYZ", nodes.math("FLOOR", along), nodes.math("FLOOR", up), 3.0)).outputs["Value"]
    tone = m.ramp(nodes, nodes.math("MULTIPLY_ADD", nodes.noise(place, 0.7, detail=5.0), 0.9, nodes.math("MULTIPLY_ADD", own, 0.5, -0.2)), (0.2, dark), (0.5, middle), (0.8, light))
    tone = nodes.mix(nodes.math("MULTIPLY", nodes.rise(nodes.noise(place, 1.1, detail=9.0, roughness=0.7), 0.47, 0.64), 0.8), tone, (0.11, 0.10, 0.065))
    round_ = nodes.math("SINE", nodes.math("MULTIPLY", along, 2 * pi))
    lap = nodes.math("FRACT", up)
    tone = nodes.mix(m.ramp(nodes, lap, (0.0, 0.7), (0.16, 0.0)), tone, (0.02, 0.012, 0.008))
    m.feed(nodes, shader, Base_Color=tone, Normal=m.relief(nodes, nodes.math("MULTIPLY_ADD", round_, 0.35, nodes.math("ADD", lap, nodes.math("MULTIPLY", own, 0.4))), 0.06, 0.9))
    return made


def pane_stuff():
    """Behind a pane: curtains drawn apart each to its own width, a blind here and there, else the dark of a room."""
    made, nodes, shader = m.principled("pane", "101418", 0.04, Specular=0.9)
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place())
    off = nodes.math("ABSOLUTE", apart.outputs[0])
    width = nodes.math("MULTIPLY_ADD", nodes.math("FRACT", nodes.math("MULTIPLY", nodes.chance(), 17.0)), 0.42, 0.16)
    curtain = nodes.math("GREATER_THAN", nodes.math("MULTIPLY_ADD", apart.outputs[2], 0.12, off), width)
    blind = nodes.math("GREATER_THAN", apart.outputs[2], nodes.math("MULTIPLY_ADD", nodes.math("FRACT", nodes.math("MULTIPLY", nodes.chance(), 41.0)), 1.9, -0.55))
    folds = nodes.noise(m.stretched(nodes, (24.0, 1.0, 0.8)), 1.0, detail=2.0)
    tone = nodes.mix(nodes.math("MAXIMUM", curtain, blind), m.rgb("0c0e10"), m.ramp(nodes, folds, (0.3, "4a4a48"), (0.7, "9a978f")))
    m.feed(nodes, shader, Base_Color=tone)
    return made


def opening(dice, at, size, front, stuffs):
    """A window with frame, bars, sill, pane, at times shutters. At: x, z. Stuffs: frame, pane, shutter or None."""
    (x, z), (wide, high), (frame, glass, shutter) = at, size, stuffs
    pane = s.box("pane", (wide, 0.02, high), glass, 0, (x, front - 0.005, z))
    pane.rotation_euler = (dice.gauss(0, 0.012), 0, dice.gauss(0, 0.02))
    for u in (-1, 1):
        s.box("jamb", (0.085, 0.12, high + 0.1), frame, 0.006, (x + u * (wide / 2 + 0.03), front - 0.04, z))
        s.box("head", (wide + 0.16, 0.12, 0.09), frame, 0.006, (x, front - 0.045, z + u * (high / 2 + 0.03)))
    s.box("bar", (0.045, 0.05, high), frame, 0, (x, front - 0.02, z))
    for k in ((0.16,) if high < 1.25 else (-0.17, 0.17)):
        s.box("bar", (wide, 0.045, 0.03), frame, 0, (x, front - 0.02, z + k * high))
    s.box("sill", (wide + 0.26, 0.2, 0.05), frame, 0.006, (x, front - 0.08, z - high / 2 - 0.09))
    if shutter:
        for u in (-1, 1):
            made = s.box("shutter", (wide * 0.5, 0.035, high + 0.06), shutter, 0.004, (x + u * (wide * 0.77 + 0.06), front - 0.05, z))
            made.rotation_euler.z = -u * max(0.0, dice.gauss(0.06, 0.12))


def slope(corner, across, down, roof, dice):
    """One side of a roof: a raster from its upper corner, sagging and uneven as old rafters are."""
    t, u = numpy.meshgrid(numpy.linspace(0, 1, 12), numpy.linspace(0, 1, 16), indexing="ij")
    points = numpy.array(corner) + u[..., None] * numpy.array(across) + t[..., None] * numpy.array(down)
    sag = dice.uniform(0.05, 0.16)
    points[..., 2] -= sag * numpy.sin(pi * u) * numpy.sin(pi * (0.15 + 0.8 * t)) + 0.02 * numpy.sin(9 * u + 7 * t + dice.uniform(0, 6))
    soup = Soup()
    soup.raster(points)
    soup.made("roof", [roof]).modifiers.new("thick", "SOLIDIFY").thickness = 0.14


def gabled(dice, x, wide, front, top, stuffs):
    """A roof whose gable faces the water, with a window in it and boards along its edges."""
    wall, trim, roof, panes = stuffs
    pitch = wide * dice.uniform(0.46, 0.60)
    peak, half = top + pitch, wide / 2 + 0.3
    foot = top - 0.3 * pitch / (wide / 2)
    for u in (-1, 1):
        slope((x, front - 0.35, peak), (0, DEPTH + 0.35, 0), (u * half, 0, foot - peak), roof, dice)
        made = s.box("barge", (hypot(half, peak - foot), 0.04, 0.2), trim, 0.005, (x + u * half / 2, front - 0.37, (peak + foot) / 2 - 0.10))
        made.rotation_euler.y = u * atan2(peak - foot, half)
    corners = [(x - wide / 2, front, top), (x + wide / 2, front, top), (x, front, peak - 0.05)]
    s.mesh("gable", corners, [(0, 1, 2)], wall, smooth=False)
    opening(dice, (x + dice.uniform(-0.1, 0.1), top + pitch * 0.33), (0.8, 1.15), front, (trim, panes, None))


def eaved(dice, x, wide, front, top, stuffs):
    """A roof whose eaves run along the water, a gutter below it, a dormer or a skylight in it."""
    wall, trim, roof, panes = stuffs
    half, rise = wide / 2 + 0.06, dice.uniform(2.7, 3.6)
    slope((x - half, front + DEPTH / 2, top + rise), (2 * half, 0, 0), (0, -DEPTH / 2 - 0.4, -rise - 0.15), roof, dice)
    slope((x - half, front + DEPTH / 2, top + rise), (2 * half, 0, 0), (0, DEPTH / 2, -rise), roof, dice)
    for u in (x - wide / 2, x + wide / 2):
        s.mesh("side", [(u, front, top), (u, front + DEPTH, top), (u, front + DEPTH / 2, top + rise - 0.05)], [(0, 1, 2)], wall, smooth=False)
    s.box("eaves", (wide, 0.3, 0.16), trim, 0.01, (x, front - 0.14, top - 0.16))
    s.tube("gutter", [(x - half, front - 0.42, top - 0.14), (x + half, front - 0.42, top - 0.2)], 0.07, m.plain("zinc", "6b6f70", 0.5, Metallic=0.6))
    at = x + dice.uniform(-0.18, 0.18) * wide
    s.box("dormer", (1.5, 2.4, 1.5), wall, 0, (at, front + 1.7, top + 0.85))
    opening(dice, (at, top + 0.9), (0.8, 0.95), front + 0.5, (trim, panes, None))
    for u in (-1, 1):
        slope((at, front + 0.3, top + 2.25), (0, 3.4, 0), (u * 0.95, 0, -0.7), roof, dice)
    s.mesh("dormer gable", [(at - 0.75, front + 0.5, top + 1.6), (at + 0.75, front + 0.5, top + 1.6), (at, front + 0.5, top + 2.15)], [(0, 1, 2)], trim, smooth=False)


def aerial(dice, x, y, top):
    """An aerial of rods, a little bent by the wind."""
    metal, lean = m.plain("aerial", "55585a", 0.5), dice.gauss(0, 0.05)
    s.tube("mast", [(x, y, top - 3.0), (x + lean, y, top + 1.5)], 0.018, metal)
    for k in range(5):
        s.tube("rod", [(x + lean - 0.4 + 0.16 * k, y - 0.3, top + 1.4), (x + lean - 0.4 + 0.16 * k, y + 0.3, top + 1.4)], 0.007, metal)
    s.tube("boom", [(x + lean - 0.45, y, top + 1.4), (x + lean + 0.35, y, top + 1.4)], 0.01, metal)


def chimney(dice, x, y, low, high):
    brick, nodes, shader = m.principled("brick", "7a4434", 0.9)
    place, height = m.where_in_world(nodes)
    rows = nodes.math("FRACT", nodes.math("MULTIPLY", height, 1 / 0.085))
    tone = m.ramp(nodes, nodes.noise(nodes.vector("MULTIPLY", place, (4, 4, 12)), 1.0, detail=4.0), (0.3, "4a2c22"), (0.7, "8a5a44"))
    soot = nodes.rise(height, high - 0.6, high)
    tone = nodes.mix(nodes.math("MULTIPLY", soot, 0.7), nodes.mix(m.ramp(nodes, rows, (0.0, 0.6), (0.15, 0.0)), tone, (0.30, 0.27, 0.23)), (0.02, 0.018, 0.016))
    m.feed(nodes, shader, Base_Color=tone)
    wide = dice.uniform(0.55, 0.8)
    s.box("chimney", (wide, 0.6, high - low), brick, 0.01, (x, y, (low + high) / 2))
    s.box("cap", (wide + 0.14, 0.74, 0.1), m.plain("cap", "5e5a54", 0.9), 0.01, (x, y, high - 0.12))
    for k in range(dice.choice((1, 2))):
        s.lathe("pot", [(0.12, 0), (0.10, 0.34), (0.13, 0.38), (0.11, 0.38)], m.plain("pot", "7d4a34", 0.9), steps=16).location = (x + 0.3 * k - 0.12, y, high)


def door(dice, x, front, trim):
    """A door of panels with a light above, steps before it."""
    paint = m.plain("door", dice.choice(("33251c", "27443a", "5a2622", "263a52", "4a4a44")), 0.45)
    s.box("door", (0.95, 0.06, 2.05), paint, 0.01, (x, front - 0.01, QUAY + 1.32))
    for u in (-0.21, 0.21):
        for z, high in ((0.8, 0.7), (1.75, 0.9)):
            s.box("panel", (0.3, 0.03, high), paint, 0.012, (x + u, front - 0.04, QUAY + z))
    s.box("light", (0.9, 0.03, 0.32), m.plain("light", "0d1012", 0.05), 0, (x, front - 0.01, QUAY + 2.55))
    for u in (-1, 1):
        s.box("post", (0.12, 0.14, 2.6), trim, 0.006, (x + u * 0.54, front - 0.05, QUAY + 1.4))
    s.box("lintel", (1.35, 0.2, 0.12), trim, 0.006, (x, front - 0.07, QUAY + 2.78))
    for k in range(2):
        s.box("step", (1.4 + 0.2 * k, 0.4 + 0.35 * (1 - k), 0.15), m.plain("step", "6e6a62", 0.9), 0.015, (x, front - 0.4 - 0.17 * k, QUAY + 0.22 - 0.15 * k))


def flower_box(chance, x, front, z):
    """Geraniums under a sill."""
    s.box("trough", (1.0, 0.2, 0.16), m.plain("trough", "4a3020", 0.8), 0.01, (x, front - 0.2, z))
    soup = Soup()
    spot = chance.normal(0, 1, (420, 3)) * [0.27, 0.08, 0.09] + [x, front - 0.22, z + 0.16]
    out, aside = 0.035 * chance.standard_normal((2, 420, 3))
    corners = numpy.stack([spot - out, spot - aside, spot + out, spot + aside], axis=1)
    soup.quads(corners[:300], 0)
    soup.quads(corners[300:], 1)
    soup.made("flowers", [leafy("green", (0.03, 0.08, 0.015), (0.03, 0.08, 0.015)), leafy("red", (0.55, 0.02, 0.03), (0.55, 0.02, 0.03))], smooth=False)


def house(dice, chance, x, wide, look):
    """One house: front near y 0, floors of its own heights, windows that don't quite line up. Look: floors, wall, trim,
    roof, panes, shutter, gable."""
    floors, wall, trim, roof, panes, shutter, gable = look
    storey, front = dice.uniform(2.35, 2.95), dice.uniform(-0.7, 0.3)
    tall = 0.8 + storey * floors + dice.uniform(-0.2, 0.5)
    s.box("house", (wide, DEPTH, tall), wall, 0.012, (x, front + DEPTH / 2, QUAY + tall / 2))
    s.box("plinth", (wide + 0.04, 0.16, 0.5), m.plain("plinth", "66615a", 0.9), 0.02, (x, front - 0.02, QUAY + 0.25))
    columns = 3 if wide > 6.6 else 2
    step, entrance = wide / columns, dice.randrange(columns)
    offsets = [dice.gauss(0, 0.14) for _ in range(columns)]
    wide_window = dice.uniform(0.85, 1.1)
    for floor in range(floors):
        high = (1.55, 1.45, 1.2)[floor] * dice.uniform(0.94, 1.02)
        for column in range(columns):
            at = x + (column - (columns - 1) / 2) * step + offsets[column]
            if floor == 0 and column == entrance:
                door(dice, at, front, trim)
            elif dice.random() > 0.06:
                z = QUAY + 1.75 + storey * floor
                opening(dice, (at, z), (wide_window, high), front, (trim, panes, shutter if dice.random() > 0.1 else None))
                if dice.random() < 0.16:
                    flower_box(chance, at, front, z - high / 2 - 0.2)
    top = QUAY + tall
    (gabled if gable else eaved)(dice, x, wide, front, top, (wall, trim, roof, panes))
    chimney(dice, x + wide * dice.choice((-0.3, 0.28)), front + DEPTH * 0.4, top, top + dice.uniform(2.7, 4.3))
    if dice.random() < 0.6:
        aerial(dice, x + wide * dice.uniform(-0.2, 0.2), front + DEPTH * 0.45, top + 3.4)
    side = x + dice.choice((-1, 1)) * (wide / 2 - 0.12)
    s.tube("pipe", [(side, front - 0.1, QUAY + 0.1), (side, front - 0.1, top - 0.5), (side, front - 0.4, top - 0.2)], 0.05, m.plain("pipe", "57595a", 0.5, Metallic=0.5))


def row(dice, chance):
    """The houses, each of its colour, width and height."""
    roofs = [tiles("clay", "4a281e", "7d4632", "9a6248"), tiles("old clay", "3c2a24", "664338", "86604e"), tiles("slate", "2a2d30", "43474a", "5c6062")]
    trims = [m.plain("white", "d6d0c2", 0.6), m.plain("cream", "c2b597", 0.6), m.plain("grey", "8b8d88", 0.6)]
    shutters = [None, m.plain("green", "33493a", 0.6), None, m.plain("blue", "41566a", 0.6), None, m.plain("brown", "5a4030", 0.6)]
    panes = pane_stuff()
    tones = ("9c8f7a", "9a4034", "cfa85a", "d9d0bc", "6f8a94", "b0703f", "d6c8a2", "8c9a80", "8f3a30", "c9b380", "6a8488", "cabfa9", "a8513c", "c29748", "d5cbb6")
    x = -41.0
    for i, tone in enumerate(tones):
        wide = dice.uniform(4.6, 8.0)
        wall = boards("boards", tone) if i % 3 == 1 else plaster("plaster", tone)
        look = (dice.choice((2, 2, 3)), wall, trims[i * 2 % 3], roofs[dice.choice((0, 0, 1, 2))], panes, shutters[i % 6], i % 5 in (0, 2, 3))
        house(dice, chance, x + wide / 2, wide, look)
        x += wide + (dice.uniform(0.9, 1.6) if i % 4 == 2 else 0.03)


def stone():
    """Granite blocks: dark and green where the tide reaches, worn above."""
    made, nodes, shader = m.principled("granite", "7d766c", 0.85)
    place, height = m.where_in_world(nodes)
    apart = nodes.add("ShaderNodeSeparateXYZ", place)
    course = nodes.math("MULTIPLY", height, 1 / 0.42)
    along = nodes.math("MULTIPLY_ADD", nodes.math("FLOOR", course), 0.43, nodes.math("MULTIPLY", apart.outputs[0], 1 / 1.1))
    own = nodes.add("ShaderNodeTexWhiteNoise", nodes.add("ShaderNodeCombineXYZ", nodes.math("FLOOR", along), nodes.math("FLOOR", course), 1.0)).outputs["Value"]
    joint = nodes.math("MINIMUM", m.ramp(nodes, nodes.math("FRACT", course), (0.0, 0.0), (0.10, 1.0)), m.ramp(nodes, nodes.math("FRACT", along), (0.0, 0.0), (0.04, 1.0)))
    grain = nodes.noise(place, 1.9, detail=10.0, roughness=0.65)
    tone = m.ramp(nodes, nodes.math("MULTIPLY_ADD", own, 0.4, nodes.math("SUBTRACT", grain, 0.2)), (0.2, "4a453e"), (0.7, "938a7c"))
    tone = nodes.mix(nodes.math("SUBTRACT", 1.0, joint), tone, (0.03, 0.028, 0.024))
    weed = nodes.rise(nodes.math("MULTIPLY_ADD", nodes.noise(place, 1.4, detail=6.0), -0.8, height), 0.35, -0.05)
    m.feed(nodes, shader, Base_Color=nodes.mix(weed, tone, (0.018, 0.022, 0.010)), Normal=m.relief(nodes, nodes.math("MULTIPLY_ADD", joint, 0.8, grain), 0.08, 0.8))
    return made


def quay(dice):
    """Granite edge, timber fenders that lean, bollards, lanterns, crates and nets, tyres, a ladder."""
    s.box("quay", (120, 7, 3.2), stone(), 0.06, (0, -3.9, QUAY - 1.6))
    pile = m.wood("pile", "1c1610", "362a1e", "54453a", 0.85, 1.0)
    x = -42.0
    while x < 44:
        made = s.lathe("fender", [(0.14, -1.4), (0.13, 1.3), (0, 1.33)], pile, steps=14)
        made.location, made.rotation_euler = (x, -7.55, QUAY - 1.0 + dice.uniform(-0.2, 0.35)), (dice.gauss(0, 0.03), dice.gauss(0, 0.03), dice.uniform(0, 6))
        x += dice.uniform(1.8, 5.5)
    iron, lit = m.plain("iron", "17191a", 0.55), m.plain("lantern", "c9c4b4", 0.3)
    for i in range(9):
        s.lathe("bollard", [(0, 0), (0.16, 0), (0.13, 0.3), (0.2, 0.38), (0.2, 0.45), (0, 0.47)], iron, steps=20).location = (-34 + 8.1 * i + dice.uniform(-1, 1), -6.8, QUAY)
        x = -31 + 9.3 * i
        s.tube("pole", [(x, -5.9, QUAY), (x + 0.02, -5.9, QUAY + 3.4)], 0.045, iron)
        s.lathe("lantern", [(0.06, 0), (0.15, 0.34), (0.15, 0.36)], lit, steps=6).location = (x + 0.02, -5.9, QUAY + 3.4)
        s.lathe("hood", [(0.19, 0.36), (0.05, 0.52), (0, 0.56)], iron, steps=6).location = (x + 0.02, -5.9, QUAY + 3.4)
    for _ in range(16):
        tyre = s.lathe("tyre", [(0.2, -0.09), (0.32, -0.08), (0.34, 0), (0.32, 0.08), (0.2, 0.09), (0.19, 0), (0.2, -0.09)], iron, steps=28)
        tyre.location, tyre.rotation_euler = (dice.uniform(-36, 36), -7.52, QUAY - dice.uniform(0.5, 0.85)), (pi / 2, 0, dice.gauss(0, 0.05))
    for heap_at in (-27.0, -12.5, -2.0, 9.0, 15.5, 27.0):
        for _ in range(dice.randrange(2, 6)):
            wood = m.wood("crate", *dice.choice((("3a2c20", "5a4630", "75604a"), ("3a4a55", "4d6070", "64788a"), ("5a5850", "7a776c", "94907f"))), 0.85, 2.0)
            made = s.box("crate", (dice.uniform(0.5, 0.8), 0.45, dice.uniform(0.25, 0.4)), wood, 0.01, (heap_at + dice.gauss(0, 0.7), -5.2 + dice.gauss(0, 0.5), QUAY + dice.choice((0.18, 0.18, 0.5))))
            made.rotation_euler.z = dice.uniform(0, 3)
        net = s.ball("net", 0.55, m.plain("net", dice.choice(("1f3d36", "5a3a24", "28384a")), 0.95), (heap_at + dice.uniform(1.2, 2.0), -5.4, QUAY + 0.1), 4)
        net.scale.z = 0.55
        s.wrinkled(net, 0.35, 0.22)


def water():
    """The basin: long soft ripples that bend the mirrored fronts, a breath of wind in patches."""
    made, nodes, shader = m.principled("water", "07130f", 0.03, Specular=0.6)
    long = nodes.noise(m.stretched(nodes, (0.5, 0.9, 1)), 0.6, detail=3.0)
    fine = nodes.noise(m.stretched(nodes, (0.7, 1.0, 1)), 2.6, detail=5.0, distortion=0.4)
    breath = nodes.rise(nodes.noise(m.stretched(nodes, (0.4, 1.0, 1)), 0.10, detail=3.0), 0.40, 0.65)
    m.feed(nodes, shader, Roughness=nodes.math("MULTIPLY_ADD", breath, 0.10, 0.02),
           Normal=m.relief(nodes, nodes.math("MULTIPLY_ADD", nodes.math("MULTIPLY", fine, nodes.math("MULTIPLY_ADD", breath, 0.35, 0.10)), 1.0, long), 0.15, 0.6))
    s.sheet("water", (300, 160), (2, 2), lambda x, y: 0.0, made).location.y = -87.0


def hillside(y, rise, seed):
    green = m.principled("hill", "3d4a30", 0.95)
    m.feed(green[1], green[2], Base_Color=m.ramp(green[1], green[1].noise(m.where_in_world(green[1])[0], 0.12, detail=9.0, roughness=0.7), (0.35, "26331c"), (0.65, "5c6842")))
    line = [(x, y, rise + 0.8 * rise * noise.fractal(Vector((x / 60, seed, 0)), 0.9, 2.1, 7)) for x in range(-260, 261, 1)]
    s.ridge(line, -1, green[0])


def build():
    dice, chance = s.dice(83), numpy.random.default_rng(83)
    row(dice, chance)
    quay(dice)
    water()
    for place, colours, mast in BOATS:
        boat(dice, place, colours, mast, (place[0] + 4.2, -7.3, QUAY))
    hillside(95, 16, 1.0)
    hillside(-260, 22, 4.0)
    daylight(19, -117, strength=0.16, dust=1.6, sun_size=1.0,
             clouds=dict(low=0.46, high=0.75, scale=0.8, light=(7.5, 7.0, 6.5), shade=(4.4, 4.6, 5.2), seed=3.0))
    camera((-33, -29, 3.1), (-1.5, 0, 4.1), 42)
    return Roll(samples=22, exposure=-0.25, saturation=0.93, warmth=0.02, grain=0.011)
