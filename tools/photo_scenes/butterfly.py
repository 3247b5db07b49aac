"""An orange butterfly drinks from a pink flower, its wings open, the garden behind out of focus."""
import math

import numpy

from common import camera, daylight, mesh_object, tube
from film import Roll
from flower_close_up import garden, heart, petals
from flowers import circle_of, facing, turned_soup
from growth import Soup, bent_line, petal, stem
from land import layered, noise
from nodes import leafy, material, plain, surface

FORMAT = "portrait"

# Outlines round the joint: angle in degrees (0: straight aside, 90: to the head), reach in cm.
FORE = ((72, 0.2), (62, 3.6), (52, 4.55), (44, 4.75), (34, 4.35), (22, 3.75), (10, 3.25), (0, 2.95), (-10, 2.75), (-22, 0.2))
HIND = ((20, 0.2), (10, 2.5), (-4, 3.1), (-20, 3.3), (-36, 3.25), (-52, 3.15), (-66, 2.9), (-78, 2.2), (-88, 0.2))
FORE_VEINS, HIND_VEINS = (60, 51, 41, 31, 21, 9, -4), (8, -8, -22, -36, -50, -64, -76)


def wing_tone(angle, share, reach, veins, border):
    """Colour at an angle and share of the way to the edge: orange, black along veins and edge, white spots in two rows."""
    off = numpy.min([numpy.abs(angle - vein) for vein in veins], axis=0) * math.pi / 180 * reach
    grain = layered(angle / 3, share * 14, 5, 4)
    dark = numpy.clip(1.5 - off / (0.035 + 0.02 * share), 0, 1)
    dark = numpy.maximum(dark, numpy.clip((share - border + 0.03 * grain) / 0.035, 0, 1))
    lead = max(veins) + 3
    dark = numpy.maximum(dark, numpy.clip((angle - lead) / 2.5, 0, 1))
    orange = numpy.stack([0.76 - 0.12 * share + 0.05 * grain, 0.15 + 0.07 * share * (1 - share) * 4 - 0.10 * share + 0.03 * grain, 0.012 + 0 * share], axis=-1)
    tone = orange * (1 - dark[..., None]) + numpy.array([0.012, 0.009, 0.008]) * dark[..., None]
    for row, size in ((0.955, 0.055), (0.895, 0.05)):
        for n in range(len(veins) - 1):
            for part in (0.3, 0.7):
                middle = veins[n] + (veins[n + 1] - veins[n]) * part
                gap = numpy.hypot((angle - middle) * math.pi / 180 * reach, (share - row) * reach)
                spot = numpy.clip((size - gap) / 0.02, 0, 1)[..., None]
                tone = tone * (1 - spot) + numpy.array([0.82, 0.80, 0.74]) * spot
    return tone


def wing(name, outline, veins, border, side, lift, shift):
    """A wing as a raster of angle and reach; lift is the angle that it is raised by."""
    known = numpy.array(outline, dtype=float)[::-1]
    angle = numpy.linspace(known[0, 0], known[-1, 0], 420)
    edge = numpy.interp(angle, known[:, 0], known[:, 1])
    for _ in range(3):
        edge[8:-8] = numpy.convolve(edge, numpy.ones(17) / 17, "same")[8:-8]
    edge = edge * (1 + 0.012 * numpy.cos(angle * 0.9)) + 0.02 * noise(angle / 6, angle * 0, 3)
    share = numpy.linspace(0.02, 1, 260)
    angles, shares = numpy.meshgrid(angle, share, indexing="ij")
    reach = shares * edge[:, None]
    off = numpy.min([numpy.abs(angles - vein) for vein in veins], axis=0)
    x, y = reach * numpy.cos(numpy.radians(angles)), reach * numpy.sin(numpy.radians(angles))
    z = 0.02 * numpy.clip(1 - off / 4, 0, 1) * shares - 0.02 * reach ** 1.6 + 0.03 * noise(x, y, 8)
    lifted = numpy.stack([side * (x * math.cos(lift) - z * math.sin(lift) + 0.12), y + shift, x * math.sin(lift) + z * math.cos(lift)], axis=-1)
    soup = Soup()
    soup.raster(lifted)
    made = soup.made(name, [scales()])
    tone = numpy.ones((angles.size, 4), dtype=numpy.float32)
    tone[:, :3] = wing_tone(angles, shares, reach, veins, border).reshape(-1, 3)
    made.data.attributes.new("tone", "FLOAT_COLOR", "POINT").data.foreach_set("color", tone.ravel())
    return made


def scales():
    """Dusty, a little light comes through."""
    made, nodes = material("scales")
    tone = nodes.add("ShaderNodeAttribute", _attribute_name="tone").outputs["Color"]
    grain = nodes.noise(nodes.place(), 28.0, detail=3.0)
    front = nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.55, Sheen=0.5, Normal=nodes.bump(grain, 0.25, 0.02))
    surface(nodes, nodes.add("ShaderNodeMixShader", 0.32, front, nodes.add("ShaderNodeBsdfTranslucent", tone)))
    return made


def fur():
    made, nodes = material("fur")
    hairs = nodes.noise(nodes.vector("MULTIPLY", nodes.place(), (9.0, 3.0, 9.0)), 3.0, detail=6.0, roughness=0.7)
    tone = nodes.mix(nodes.rise(hairs, 0.4, 0.7), (0.012, 0.010, 0.009), (0.09, 0.065, 0.045))
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.9, Sheen=0.6, Normal=nodes.bump(hairs, 0.9, 0.06)))
    return made


def butterfly(place, turn):
    """In centimetres, then brought to size: head along y, back up."""
    hair, dark = fur(), plain("horn", (0.012, 0.01, 0.01), 0.4)
    parts = [tube("body", [(0, y, z) for y, z in ((-2.0, -0.32), (-1.6, -0.22), (-1.0, -0.1), (-0.3, 0.02), (0.1, 0.05), (0.5, 0.07), (0.8, 0.03), (0.95, 0.02), (1.15, 0.02), (1.28, 0.0))],
                  [0.03, 0.12, 0.15, 0.14, 0.21, 0.23, 0.14, 0.12, 0.14, 0.02], hair, 20)]
    for side in (-1, 1):
        parts.append(wing("fore", FORE, FORE_VEINS, 0.86, side, 0.42, 0.35))
        parts.append(wing("hind", HIND, HIND_VEINS, 0.86, side, 0.30, 0.05))
        line = bent_line(numpy.array([0.06 * side, 1.2, 0.08]), [0.42 * side, 1, 0.45], 1.7, [0.1 * side, 0.1, -0.25], 16)
        parts.append(tube("feeler", line, 0.018 + 0.03 * numpy.clip(numpy.linspace(-12, 1.4, 16), 0, 1), dark, 6))
        parts.append(tube("eye", [(0.1 * side, 1.02, 0.03), (0.12 * side, 1.08, 0.05), (0.12 * side, 1.14, 0.05), (0.1 * side, 1.2, 0.04)], [0.01, 0.07, 0.07, 0.01], dark, 10))
        for y in (0.2, 0.45, 0.7):
            parts.append(tube("leg", [(0.1 * side, y, -0.1), (0.5 * side, y + 0.1, -0.25), (0.45 * side, y + 0.2, -0.75)], 0.022, dark, 5))
    for part in parts:
        part.location, part.scale, part.rotation_euler = place, (0.0088,) * 3, turn


def flower(chance):
    """One row of petals that hang a little, seen from above and before."""
    soup = Soup()
    line = bent_line(numpy.array([0.0, 0.03, -0.22]), [0, -0.1, 1], 0.22, [0, 0.05, 0], 8)
    stem(soup, line, [0.0023] * 8, 3, 10)
    first = len(soup.points)
    for ring, (count, rise) in enumerate(((18, 0.02), (17, 0.12))):
        for out in circle_of(count, ring * 0.17):
            petal(soup, out * 0.009, out + chance.normal(0, 0.04, 3), 0.045 * chance.uniform(0.93, 1.05), 0.0125, rise + chance.uniform(-0.05, 0.05), chance.uniform(-0.6, -0.3), 0.4, 0, 0.8, 12)
    heart(soup, chance)
    turned_soup(soup, first, facing(0.62, 0.1), line[-1])
    soup.made("flower", [petals(), plain("florets", (0.55, 0.28, 0.03), 0.6), plain("open", (0.85, 0.42, 0.03), 0.55), leafy("stem", (0.07, 0.14, 0.03), (0.1, 0.2, 0.04), 0.2)])
    return line[-1]


def build():
    chance = numpy.random.default_rng(42)
    head = flower(chance)
    butterfly(head + numpy.array([0.0, -0.004, 0.0125]), (0.95, 0.10, 0.16))
    garden(chance)
    mesh_object("ground", [(-3, -1, -0.6), (3, -1, -0.6), (3, 5, -0.6), (-3, 5, -0.6)], [(0, 1, 2, 3)], plain("ground", (0.03, 0.06, 0.012)))
    mesh_object("hedge", [(-3, 1.6, -1), (3, 1.6, -1), (3, 1.6, 0.75), (-3, 1.6, 0.75)], [(0, 1, 2, 3)], plain("hedge", (0.02, 0.055, 0.014)))
    camera((0.0, -0.30, head[2] + 0.13), (0.0, 0, head[2] - 0.004), lens=72, focus=0.325, f_stop=9)
    daylight(46, -130, strength=0.15, dust=0.6, sun_size=1.5)
    return Roll(samples=16, bounces=4, exposure=-0.35, saturation=1.15, glow=0.05)
