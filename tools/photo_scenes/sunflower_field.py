"""Sunflowers against the evening sun: one near the camera is sharp, its petals glow, the field melts behind it."""
import math

import numpy

from common import camera, daylight, joined, scatter, unwrapped
from film import Roll
from flowers import circle_of, dome, facing, sunflower
from growth import Soup, bent_line, petal, stem
from land import ground, layered, noise, seeded_places
from nodes import leafy, material, surface
from surfaces import soil

FORMAT = "landscape"
ROWS, COLUMNS = 16, 11  # of a ray's raster
AIR = ((0.95, 0.62, 0.33), 260.0)


def ray_stuff():
    """A ray of the flower: deeper at its root, fine veins along it, dry specks, light through it."""
    made, nodes = material("rays")
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place("UV"))
    across, along = apart.outputs[0], apart.outputs[1]
    long = nodes.add("ShaderNodeCombineXYZ", nodes.math("MULTIPLY", across, 26.0), nodes.math("MULTIPLY", along, 2.2), nodes.math("MULTIPLY", nodes.chance(), 50.0))
    veins = nodes.noise(long, 1.0, detail=3.0)
    tone = nodes.ramp(along, (0.0, (0.72, 0.24, 0.004)), (0.35, (0.86, 0.42, 0.010)), (1.0, (0.90, 0.54, 0.022)))
    tone = nodes.mix(nodes.rise(veins, 0.5, 0.78), tone, (0.62, 0.27, 0.006))
    dry = nodes.math("MULTIPLY", nodes.rise(nodes.noise(nodes.place(), 55.0, detail=4.0), 0.60, 0.72), nodes.rise(along, 0.55, 1.0))
    tone = nodes.mix(nodes.math("MULTIPLY", dry, 0.7), tone, (0.30, 0.13, 0.02))
    normal = nodes.bump(veins, 0.7, 0.0012)
    front = nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.62, Specular=0.2, Normal=normal)
    behind = nodes.add("ShaderNodeBsdfTranslucent", tone, normal)
    surface(nodes, nodes.add("ShaderNodeMixShader", 0.55, front, behind))
    return made


def leaf_stuff():
    """A rough leaf: ribs that run out from the middle one, holes of light between them."""
    made, nodes = material("leaf")
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place("UV"))
    off = nodes.math("ABSOLUTE", nodes.math("SUBTRACT", apart.outputs[0], 0.5))
    way = nodes.math("FRACT", nodes.math("MULTIPLY", nodes.math("SUBTRACT", apart.outputs[1], nodes.math("MULTIPLY", off, 0.55)), 7.0))
    ribs = nodes.math("MAXIMUM", nodes.rise(nodes.math("ABSOLUTE", nodes.math("SUBTRACT", way, 0.5)), 0.09, 0.02), nodes.rise(off, 0.035, 0.01))
    cells = nodes.noise(nodes.place(), 90.0, detail=5.0, roughness=0.65)
    tone = nodes.mix(nodes.noise(nodes.place(), 14.0, detail=4.0), (0.030, 0.075, 0.012), (0.085, 0.13, 0.022))
    tone = nodes.mix(nodes.math("MULTIPLY", ribs, 0.6), tone, (0.17, 0.23, 0.07))
    normal = nodes.bump(nodes.math("MULTIPLY_ADD", ribs, -0.6, cells), 0.8, 0.004)
    front = nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.65, Specular=0.25, Normal=normal)
    surface(nodes, nodes.add("ShaderNodeMixShader", 0.4, front, nodes.add("ShaderNodeBsdfTranslucent", tone, normal)))
    return made


def floret_stuff(dark, light):
    made, nodes = material("florets")
    tone = nodes.mix(nodes.rise(nodes.noise(nodes.place(), 260.0, detail=3.0), 0.35, 0.7), dark, light)
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.85, Specular=0.15))
    return made


def ray(chance, out, root, length, width, rise):
    """One ray from its root: bent, twisted, a gutter along it, its edges waved; none as the next."""
    t, u = numpy.linspace(0, 1, ROWS)[:, None], numpy.linspace(-1, 1, COLUMNS)[None, :]
    lean = rise + chance.normal(0, 0.16) + chance.normal(-0.15, 0.45) * t + chance.normal(0, 0.25) * t * t
    reach = numpy.cumsum(numpy.cos(lean), axis=0) * length / ROWS
    lift = numpy.cumsum(numpy.sin(lean), axis=0) * length / ROWS
    wide = width / 2 * numpy.sin(math.pi * (0.10 + 0.894 * t)) ** 0.62 * (0.72 + 0.5 * t - 0.30 * t ** 3)
    wave = 0.10 * noise(3.0 * t + chance.uniform(0, 99), u * 0 + chance.uniform(0, 99)) * wide
    twist = chance.normal(0, 0.35) * t
    side = u * wide * (1 + 0.12 * noise(4 * t + chance.uniform(0, 99), u * 0)) + chance.normal(0, 0.10) * length * t * t
    gutter = wide * (chance.uniform(0.15, 0.5) * u * u + 0.07 * numpy.cos(2.5 * math.pi * u)) + 2.2 * wave * u * numpy.abs(u)
    across, up = side * numpy.cos(twist) - gutter * numpy.sin(twist), side * numpy.sin(twist) + gutter * numpy.cos(twist)
    aside = numpy.cross([0, 0, 1.0], out)
    bent_reach, bent_lift = reach - up * numpy.sin(lean), lift + up * numpy.cos(lean)
    return root + bent_reach[..., None] * out + across[..., None] * aside + bent_lift[..., None] * numpy.array([0, 0, 1.0])


def rays(chance, stuff):
    """All rays of a head that lies: two loose rings; some are short, some are gone."""
    soup = Soup()
    for count, rise, share in ((23, 0.02, 1.0), (20, 0.36, 0.92), (8, 0.75, 0.75)):
        for out in circle_of(count, chance.uniform(0, 6.3)):
            out = out + chance.normal(0, 0.10, 3) * [1, 1, 0]
            out /= numpy.linalg.norm(out)
            if chance.random() > 0.06:
                length = 0.128 * share * chance.uniform(0.78, 1.12)
                soup.raster(ray(chance, out, out * 0.078 + [0, 0, chance.uniform(-0.006, 0.004)], length, length * chance.uniform(0.22, 0.31), rise))
    made = soup.made("rays", [stuff])
    u, v = numpy.meshgrid(numpy.linspace(0, 1, COLUMNS), numpy.linspace(0, 1, ROWS))
    return unwrapped(made, numpy.tile(numpy.stack([u, v], axis=-1).reshape(-1, 2), (len(soup.points), 1)))


def florets(soup, chance, count=620, reach=0.086):
    """The disk: florets in the spirals of growth; buds in the middle, then dark ones, at the rim those that bloom."""
    dome(soup, reach, 0.013, 1, -0.001)
    number = numpy.arange(count) + 0.5
    away, turn = reach * numpy.sqrt(number / count), number * 2.399963
    for r, a in zip(away, turn):
        share = r / reach + chance.normal(0, 0.05)
        kind = 0 if share < 0.36 else 1 if share < 0.74 else 2
        tall = (0.006, 0.010, 0.013)[kind] * chance.uniform(0.7, 1.25)
        foot = numpy.array([r * math.cos(a), r * math.sin(a), 0.016 * (1 - (r / reach) ** 2) - 0.012 * math.exp(-(r / 0.02) ** 2)])
        way = numpy.array([math.cos(a), math.sin(a), 0]) * (0.45 * share) + [0, 0, 1] + chance.normal(0, 0.16, 3)
        line = bent_line(foot, way, tall, [0, 0, 0], 3)
        stem(soup, line, (0.0018, 0.0021, 0.0006) if kind < 2 else (0.0013, 0.0011, 0.0017), kind, 5)
        if kind and chance.random() < 0.55:
            stem(soup, bent_line(line[-1], way + chance.normal(0, 0.5, 3), 0.004, [0, 0, 0], 2), (0.0007, 0.0004), 2, 4)


def fuzz(soup, chance, line, radius, count, kind):
    """The bristles of a stem, which catch the light from behind."""
    at = chance.uniform(0, len(line) - 1.001, count)
    low, share = at.astype(int), (at % 1)[:, None]
    spot = line[low] * (1 - share) + line[low + 1] * share
    way = numpy.column_stack([chance.normal(0, 1, (count, 2)), chance.normal(0, 0.4, count)])
    way /= numpy.linalg.norm(way, axis=1, keepdims=True)
    thin = numpy.cross(way, [0.2, 0.1, 1.0]) * 0.00022
    tip = spot + way * (radius + chance.uniform(0.001, 0.004, count)[:, None])
    soup.quads(numpy.stack([spot - thin, spot + thin, tip + 0.3 * thin, tip - 0.3 * thin], axis=1), kind)


def toothed_leaf(chance, stuff, root, out, length):
    """A broad leaf with teeth, its edges up or down, its end hanging."""
    t, u = numpy.linspace(0, 1, 40)[:, None], numpy.linspace(-1, 1, 13)[None, :]
    teeth = 1 + 0.07 * ((t * 13) % 1.0)
    wide = 0.40 * length * numpy.sin(math.pi * numpy.clip(0.04 + 0.95 * t, 0, 1) ** 0.72) ** 0.85 * teeth
    lean = chance.uniform(0.1, 0.6) - chance.uniform(1.0, 1.8) * t
    reach, lift = numpy.cumsum(numpy.cos(lean), axis=0) * length / 40, numpy.cumsum(numpy.sin(lean), axis=0) * length / 40
    crease = wide * (0.22 * numpy.abs(u) ** 1.3) + 0.035 * length * noise(t * 3.5 + chance.uniform(0, 50), u * 1.8) * numpy.abs(u)
    aside = numpy.cross([0, 0, 1.0], out)
    soup = Soup()
    soup.raster(root + reach[..., None] * out + (u * wide)[..., None] * aside + (lift + crease)[..., None] * numpy.array([0, 0, 1.0]))
    places = numpy.stack(numpy.broadcast_arrays((u + 1) / 2, t), axis=-1).reshape(-1, 2)
    return unwrapped(soup.made("leaf", [stuff]), places)


def near_sunflower(chance, stuffs, height, lean, turn):
    """A whole plant, fine enough for the sharp plane. Stuffs: rays, leaf, green, then buds, dark and blooming florets. The
    head faces `turn` (radians from -y), `lean` off the zenith."""
    rays_of, leaf_of, green, *inner = stuffs
    line = bent_line(numpy.zeros(3), [*chance.normal(0, 0.03, 2), 1], height, [0.16 * math.sin(turn), -0.16, 0], 12)
    parts, body = [rays(chance, rays_of)], Soup()
    florets(body, chance)
    for out in circle_of(19, 0.1):
        petal(body, out * 0.05 - [0, 0, 0.024], out + chance.normal(0, 0.1, 3), chance.uniform(0.05, 0.085), 0.032, 0.05, chance.uniform(-0.9, 0.1), 0.25, 3, 0.02, 7)
    parts.append(body.made("disk", [*inner, green]))
    stalk = Soup()
    stem(stalk, line, 0.013 * numpy.linspace(1.25, 0.85, 12), 0, 12)
    fuzz(stalk, chance, line, 0.012, 2600, 0)
    set_on(parts, facing(lean, turn), line[-1])
    parts.append(stalk.made("stalk", [green]))
    way = chance.uniform(0, 6)
    for at in numpy.linspace(0.35, 0.9, 8):
        way += 2.4
        parts.append(toothed_leaf(chance, leaf_of, line[int(at * 11)], numpy.array([math.cos(way), math.sin(way), 0]), 0.27 * chance.uniform(0.7, 1.15)))
    return joined("near sunflower", parts)


def set_on(parts, matrix, at):
    """Turns the parts of a head that lies and moves them to the end of its stem."""
    for part in parts:
        count = len(part.data.vertices)
        points = numpy.empty(count * 3, dtype=numpy.float32)
        part.data.vertices.foreach_get("co", points)
        part.data.vertices.foreach_set("co", (points.reshape(-1, 3) @ matrix.T + at).astype(numpy.float32).ravel())
        part.data.update()


def field(chance, near_ones, parts):
    """The field: fine plants where they can be told apart, simple ones beyond."""
    x, y = seeded_places(chance, 170, 1.75, 6.0, 30)
    apart = [n for n in range(len(x)) if all((x[n] - x[k]) ** 2 + (y[n] - y[k]) ** 2 > 0.05 for k in range(n))]
    x, y = x[apart], y[apart]
    turns = numpy.column_stack([chance.normal(0, 0.06, (len(x), 2)), chance.normal(0.1, 0.4, len(x))])
    scatter(near_ones, numpy.column_stack([x, y, chance.uniform(-0.24, -0.02, len(x))]), turns, chance.uniform(0.9, 1.06, len(x)))
    plants = [sunflower(chance, parts, tall) for tall in (1.4, 1.45, 1.5, 1.55, 1.6, 1.65)]
    x, y = numpy.hstack([seeded_places(chance, 9000, 6.0, 60, 28), seeded_places(chance, 16000, 60, 330, 26)])
    turns = numpy.column_stack([chance.normal(0, 0.08, (len(x), 2)), chance.normal(0.1, 0.4, len(x))])
    scatter(plants, numpy.column_stack([x, y, -0.1 + 0.5 * layered(x / 30, y / 30, 2, 2)]), turns, chance.uniform(0.82, 1.08, len(x)))


def build():
    chance = numpy.random.default_rng(12)
    green = leafy("green", (0.10, 0.14, 0.018), (0.14, 0.18, 0.03), 0.35, haze=AIR)
    buds, dark, bloom = (floret_stuff(*tones) for tones in (((0.045, 0.040, 0.008), (0.13, 0.10, 0.02)), ((0.010, 0.005, 0.002), (0.055, 0.022, 0.006)), ((0.10, 0.035, 0.004), (0.55, 0.24, 0.012))))
    stuffs = (ray_stuff(), leaf_stuff(), green, buds, dark, bloom)
    petals = leafy("petals", (0.86, 0.40, 0.012), (0.9, 0.52, 0.03), 0.5, haze=AIR)
    heads = [near_sunflower(chance, stuffs, tall, lean, turn) for tall, lean, turn in ((1.60, 1.25, 0.15), (1.52, 1.0, -0.4), (1.46, 1.35, 0.5), (1.55, 0.85, 0.1), (1.5, 1.15, -0.1))]
    field(chance, heads, [petals, dark, dark, green])
    scatter(heads[:2], [(-0.16, 1.22, -0.03), (0.27, 1.72, -0.13)], [(0, 0, 0.12), (0.03, 0.02, -0.25)], [1.0, 0.97], [0, 1])
    ground("earth", lambda x, y: 0.5 * layered(x / 30, y / 30, 2, 2) * numpy.clip(y / 40, 0, 1), soil((0.05, 0.045, 0.02), (0.12, 0.12, 0.04), 2.0), near=0.5, far=900, spread=45, rows=60, columns=60)
    trees = leafy("trees", (0.025, 0.045, 0.018), (0.05, 0.07, 0.03), 0.2, haze=AIR)
    ground("wood", lambda x, y: numpy.clip((y - 420) / 2, 0, 7) + 6 * layered(x / 26, y / 60, 4, 6, 0.6), trees, near=400, far=470, spread=34, rows=60, columns=900)
    camera((0, 0, 1.66), (0.0, 10, 1.50), lens=60, focus=1.20, f_stop=3.5)
    daylight(11, 21, strength=0.12, dust=2.0, low=((10.5, 6.6, 3.2), 0.30), sun_size=1.2)
    return Roll(samples=44, bounces=5, exposure=0.1, saturation=1.08, warmth=0.02, glow=0.10, grain=0.011)
