"""A dog sits in the high grass and looks into the evening sun; from behind, its fur lit along the edge."""
import numpy

import shapes as s
from common import camera, daylight, limb, random_turns, scatter
from figures import blended, oval
from film import Roll
from growth import Soup, bent_line, blade, stem, strip, tuft
from land import ground, layered, seeded_places
from nodes import leafy, material, plain, surface
from surfaces import soil
from trees import far_tree

FORMAT = "landscape"
AIR = ((0.95, 0.64, 0.36), 210.0)


def meadow(x, y):
    return 0.10 * layered(x / 6, y / 6, 3, 4) * numpy.clip(numpy.hypot(x - 0.25, y - 3.4) - 0.5, 0, 1) + numpy.clip(y - 12, 0, None) * 0.012


def fur(name, dark, light):
    """Hair that lets the sun through at its tips."""
    made, nodes = material(name)
    along = nodes.add("ShaderNodeHairInfo").outputs["Intercept"]
    tone = nodes.mix(along, dark, light)
    front = nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.45, Specular=0.4)
    surface(nodes, nodes.add("ShaderNodeMixShader", 0.45, front, nodes.add("ShaderNodeBsdfTranslucent", tone)))
    return made


def coated(thing, count, long, hair, seed, hang=-0.02):
    """Grows fur that lies backwards and down."""
    s.hair(thing, count, long, hair, seed=seed, brownian_factor=0.010, root_radius=1.0, tip_radius=0.1, radius_scale=0.0016, length_random=0.5,
           normal_factor=0.012, object_align_factor=(0, 0, hang), factor_random=0.006, child_type="INTERPOLATED", rendered_child_count=7, child_length=1.0,
           clump_factor=0.35, roughness_2=0.02, display_step=2, render_step=3, hair_step=4)


def dog():
    """A retriever, 0.72 m as it sits, its back to -y; head turned a little to the right."""
    skin = plain("skin", (0.13, 0.065, 0.025), 0.8)
    trunk = [limb([(0, -0.04, 0.02), (0, -0.05, 0.08), (0, -0.04, 0.18), (0, 0.03, 0.32), (0, 0.10, 0.44), (0, 0.13, 0.52), (0, 0.13, 0.58)], [0.08, 0.155, 0.165, 0.148, 0.125, 0.09, 0.04], skin)]
    for side in (-1, 1):
        trunk.append(oval((0.115 * side, 0.02, 0.11), (0.085, 0.15, 0.115), skin))
        trunk.append(limb([(0.13 * side, 0.10, 0.06), (0.16 * side, 0.16, 0.035), (0.17 * side, 0.25, 0.028), (0.17 * side, 0.3, 0.025)], [0.05, 0.045, 0.04, 0.02], skin))
        trunk.append(limb([(0.075 * side, 0.16, 0.42), (0.08 * side, 0.21, 0.28), (0.08 * side, 0.23, 0.12), (0.08 * side, 0.25, 0.02)], [0.07, 0.05, 0.036, 0.034], skin))
    coat_of = fur("fur", (0.30, 0.15, 0.055), (0.80, 0.54, 0.27))
    body = blended("dog", trunk, 0.010)
    coated(body, 9000, 0.042, coat_of, 3)
    skull = [oval((0, 0.14, 0.640), (0.083, 0.092, 0.078), skin), oval((0.012, 0.22, 0.615), (0.045, 0.075, 0.045), skin), oval((0, 0.13, 0.58), (0.075, 0.075, 0.08), skin)]
    head = blended("head", skull, 0.008)
    coated(head, 3500, 0.020, coat_of, 4)
    parts = [body, head]
    for side in (-1, 1):
        ear = limb([(0.055 * side, 0.125, 0.690), (0.088 * side, 0.125, 0.680), (0.110 * side, 0.13, 0.630), (0.116 * side, 0.14, 0.580), (0.108 * side, 0.15, 0.548)], [0.012, 0.022, 0.034, 0.034, 0.010], skin)
        parts.append(blended("ear", [ear], 0.006))
        coated(parts[-1], 1800, 0.026, fur("ear", (0.22, 0.10, 0.035), (0.62, 0.36, 0.16)), 6 + side, -0.03)
    tail = limb([(0, -0.17, 0.05), (0.10, -0.24, 0.04), (0.26, -0.25, 0.05), (0.38, -0.19, 0.06), (0.44, -0.14, 0.07)], [0.03, 0.032, 0.028, 0.022, 0.008], skin)
    parts.append(blended("tail", [tail], 0.008))
    coated(parts[-1], 2600, 0.060, coat_of, 9, -0.012)
    collar = s.lathe("collar", [(0.088, -0.011), (0.0905, 0.0), (0.088, 0.011)], plain("collar", (0.40, 0.03, 0.02), 0.5))
    collar.location, collar.rotation_euler = (0, 0.132, 0.535), (-0.35, 0, 0)
    return s.parent([*parts, collar], "sitting dog")


def seed_head(chance, made_of, height):
    """A stalk of meadow grass with its panicle."""
    soup = Soup()
    line = bent_line(numpy.zeros(3), [*chance.normal(0, 0.1, 2), 1], height, [*chance.normal(0, 0.3, 2), -0.05], 10)
    stem(soup, line, numpy.linspace(0.0016, 0.0007, 10), 0, 4)
    for at in numpy.linspace(0.72, 1.0, 34):
        place = numpy.array([numpy.interp(at, numpy.linspace(0, 1, 10), line[:, k]) for k in range(3)])
        way = numpy.array([*chance.normal(0, 0.6, 2), 1.0])
        long = chance.uniform(0.010, 0.026) * (1.25 - at) * 2.2
        strip(soup, bent_line(place, way, long, [0, 0, -0.5], 3), numpy.array([0.0008, 0.0018, 0.0004]), numpy.cross(way, [0.3, 0.8, 0.1]), 0)
    for _ in range(3):
        blade(soup, chance, height * chance.uniform(0.4, 0.7), 0.0032, 0, (0, 0, 0), 0.8)
    return soup.made("stalk", [made_of])


def grass(chance):
    """Green below, ripe stalks above; the nearest are out of focus before the lens."""
    green = leafy("green", (0.10, 0.13, 0.025), (0.22, 0.21, 0.06), 0.5, haze=AIR)
    ripe = leafy("ripe", (0.36, 0.25, 0.10), (0.52, 0.38, 0.17), 0.5, haze=AIR)
    tufts = [tuft(chance, [green], 26, tall, 0.0036, 0.2, 0.9) for tall in (0.26, 0.34, 0.40)]
    stalks = [seed_head(chance, ripe, tall) for tall in (0.5, 0.58, 0.66, 0.74)]
    x, y = seeded_places(chance, 15000, 0.7, 19, 34)
    clear = (numpy.hypot((x - 0.27) / 0.36, (y - 3.45) / 0.40) > 1) 
    x, y = x[clear], y[clear]
    before = (numpy.abs(x - 0.27 * y / 3.4) < 0.36) & (y < 3.4)
    size = chance.uniform(0.6, 1.1, len(x)) * numpy.where(before, 0.48, numpy.where(y < 3.6, 0.72, 1))
    scatter(tufts, numpy.column_stack([x, y, meadow(x, y) - 0.02]), random_turns(chance, len(x), 0.12), size)
    x, y = seeded_places(chance, 9000, 0.75, 24, 34)
    clear = (numpy.hypot((x - 0.27) / 0.34, (y - 3.45) / 0.36) > 1) & ~((numpy.abs(x - 0.27 * y / 3.4) < 0.36) & (y < 3.4)) & (layered(x / 1.5, y / 1.5, 4, 3) > -0.25)
    x, y = x[clear], y[clear]
    size = chance.uniform(0.65, 1.1, len(x)) * numpy.where((y < 3.6) & (numpy.abs(x) < 0.9), 0.7, 1)
    scatter(stalks, numpy.column_stack([x, y, meadow(x, y) - 0.02]), random_turns(chance, len(x), 0.1), size)


def wood_edge(chance):
    """Trees at the end of the meadow, soft with distance."""
    leaves = leafy("wood", (0.035, 0.05, 0.012), (0.10, 0.10, 0.03), 0.4, haze=AIR)
    tree = far_tree(chance, leaves)
    x = chance.uniform(-42, 42, 70)
    y = chance.uniform(48, 66, 70) + 0.3 * numpy.clip(6 - numpy.abs(x + 7), 0, 6) * 4
    places = numpy.column_stack([x, y, meadow(x, y) - 1.2])
    scatter([tree], places, random_turns(chance, 70, 0.1), chance.uniform(0.5, 1.0, 70) * numpy.clip(0.45 + numpy.abs(x + 7) / 14, 0, 1))


def midges(chance):
    """Insects and seeds in the air that catch the sun."""
    count = 90
    y = chance.uniform(4.0, 12, count)
    spot = numpy.column_stack([chance.uniform(-0.5, 0.45, count) * y, y, chance.uniform(0.3, 0.55, count) + 0.16 * y * chance.random(count)])
    size = chance.uniform(0.0012, 0.0030, count)[:, None]
    soup = Soup()
    soup.quads(numpy.stack([spot - size * [1, 0, 0], spot - size * [0, 0, 1], spot + size * [1, 0, 0], spot + size * [0, 0, 1]], axis=1))
    made, nodes = material("midges")
    surface(nodes, nodes.add("ShaderNodeEmission", (1.0, 0.72, 0.38), 9.0))
    soup.made("midges", [made])


def build():
    chance = numpy.random.default_rng(22)
    ground("meadow", meadow, soil((0.05, 0.045, 0.015), (0.12, 0.10, 0.04), 4.0, haze=AIR), near=0.6, far=120, spread=48, rows=260, columns=260)
    sitting = dog()
    sitting.location, sitting.rotation_euler = (0.27, 3.4, 0.0), (0, 0, -0.16)
    grass(chance)
    wood_edge(chance)
    midges(chance)
    camera((0, 0, 0.62), (0, 3.4, 0.50), lens=62, focus=3.32, f_stop=2.0)
    daylight(11, -14, strength=0.13, dust=1.4, ozone=1.6, sun=1.3, low=((6.0, 4.1, 2.4), 0.25))
    return Roll(samples=22, bounces=5, exposure=0.3, look="High Contrast", glow=0.12, saturation=1.1, warmth=0.03)
