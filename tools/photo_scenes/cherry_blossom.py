"""Cherry blossom against the sky, a few clusters sharp, the others dissolved."""
import numpy

from common import camera, daylight, scatter
from film import Roll
from flowers import circle_of
from growth import Soup, bent_line, petal, stem, unit
from nodes import leafy, material, plain, surface
from surfaces import bark

FORMAT = "portrait"


def petals():
    """Nearly white, rosy towards the root."""
    made, nodes = material("petals")
    reach = nodes.vector("LENGTH", nodes.place("Object"))
    tone = nodes.ramp(nodes.math("MULTIPLY", reach, 45.0), (0.08, (0.80, 0.26, 0.38)), (0.35, (0.88, 0.64, 0.70)), (0.9, (0.90, 0.76, 0.79)))
    tone = nodes.mix(nodes.math("MULTIPLY", nodes.chance(), 0.35), tone, (0.86, 0.50, 0.60))
    front = nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.6, Specular=0.2, Sheen=0.3)
    surface(nodes, nodes.add("ShaderNodeMixShader", 0.48, front, nodes.add("ShaderNodeBsdfTranslucent", tone)))
    return made


def blossom(chance, materials, opened=1.0):
    """Five round petals, a star of stamens; looks along z, its stalk below. Materials: petals, stamens, their tips, green."""
    soup = Soup()
    for out in circle_of(5, chance.uniform(0, 1)):
        petal(soup, out * 0.0012, out + chance.normal(0, 0.06, 3), 0.0165 * chance.uniform(0.92, 1.08), 0.0165, 0.35 + 1.6 * (1 - opened) + chance.uniform(-0.1, 0.15), -0.35 * opened + 0.2,
              0.5, 0, 1.0, 10)
    for _ in range(int(22 * opened)):
        out = unit(chance.normal(0, 0.55, 3) * [1, 1, 0] + [0, 0, 1])
        line = bent_line(numpy.zeros(3), out, chance.uniform(0.007, 0.0115), chance.normal(0, 0.15, 3), 4)
        stem(soup, line, [0.00012] * 4, 1, 4)
        stem(soup, line[-1] + numpy.array([[0, 0, -0.0003], [0, 0, 0], [0, 0, 0.0003]]), [0.0002, 0.0004, 0.0002], 2, 5)
    stem(soup, numpy.array([[0, 0, -0.007], [0, 0, -0.003], [0, 0, 0.0006]]), [0.0009, 0.0018, 0.0015], 3, 7)
    stem(soup, bent_line(numpy.array([0, 0, -0.03]), [0, 0, 1], 0.024, [0.1, 0, 0], 4), [0.0005] * 4, 3, 5)
    return soup.made("blossom", materials)


def turns_to(ways):
    """The Euler angles that lay z along each direction."""
    return numpy.column_stack([numpy.zeros(len(ways)), numpy.arccos(numpy.clip(ways[:, 2], -1, 1)), numpy.arctan2(ways[:, 1], ways[:, 0])])


def clusters(chance, lines, gap, count):
    """Places and directions of blossoms: bunches along the twigs."""
    places, ways = [], []
    for line in lines:
        length = numpy.linalg.norm(numpy.diff(line, axis=0), axis=1).sum()
        for at in numpy.arange(gap * chance.random(), length, gap * chance.uniform(0.8, 1.3)):
            where = at / length * (len(line) - 1)
            n = min(int(where), len(line) - 2)
            root = line[n] + (line[n + 1] - line[n]) * (where - n)
            main = unit(chance.standard_normal(3) + [0, -0.7, 0.35])
            for _ in range(chance.integers(*count)):
                way = unit(main + 0.75 * chance.standard_normal(3))
                places.append(root + way * 0.033)
                ways.append(way)
    return numpy.array(places), numpy.array(ways)


def twig_lines(chance, start, way, length, depth):
    """A bough and its side twigs as lines."""
    line = [numpy.asarray(start, dtype=float)]
    way = unit(numpy.asarray(way, dtype=float))
    for _ in range(9):
        way = unit(way + 0.16 * chance.standard_normal(3) * [1, 0.5, 1] + [0, 0, 0.03])
        line.append(line[-1] + way * length / 9)
    lines = [(numpy.array(line), 0.0042 * length / 0.45 if depth else 0.0018)]
    for at in (2, 4, 5, 7) if depth else ():
        side = unit(way + chance.normal(0, 0.9, 3) * [1, 0.35, 1])
        lines += twig_lines(chance, line[at], side, length * chance.uniform(0.3, 0.5), depth - 1)
    return lines


def bough(chance, wood, blossoms, start, way, length, depth=1, gap=0.035):
    soup, lines = Soup(), twig_lines(chance, start, way, length, depth)
    for line, radius in lines:
        stem(soup, line, radius * numpy.linspace(1, 0.4, len(line)), 0, 8)
    soup.made("bough", [wood])
    places, ways = clusters(chance, [line for line, _ in lines], gap, (3, 6))
    scatter(blossoms, places, turns_to(ways), chance.uniform(0.85, 1.12, len(places)), chance.choice(len(blossoms), len(places), p=[0.28, 0.27, 0.27, 0.12, 0.06]))


def build():
    chance = numpy.random.default_rng(36)
    parts = [petals(), plain("stamen", (0.75, 0.42, 0.45)), plain("tip", (0.75, 0.48, 0.10)), leafy("calyx", (0.22, 0.09, 0.06), (0.16, 0.16, 0.05), 0.2)]
    blossoms = [blossom(chance, parts, opened) for opened in (1.0, 1.0, 0.95, 0.6, 0.15)]
    wood = bark((0.035, 0.022, 0.018), (0.12, 0.085, 0.07), 60.0)
    bough(chance, wood, blossoms, (-0.22, 0.02, -0.20), (0.75, 0.0, 0.72), 0.52)
    bough(chance, wood, blossoms, (0.20, 0.03, 0.30), (-0.7, 0.05, -0.22), 0.26, 1)
    for _ in range(11):
        start = (chance.uniform(-0.9, 0.6), chance.uniform(0.55, 1.5), chance.uniform(-0.8, 0.5))
        bough(chance, wood, blossoms, start, (chance.uniform(0.2, 1), chance.normal(0, 0.3), chance.uniform(-0.1, 0.9)), chance.uniform(0.4, 0.7))
    camera((0, -0.62, -0.05), (0, 0, 0.0), lens=75, focus=0.615, f_stop=3.2)
    daylight(42, -112, strength=0.14, dust=0.4, ozone=2.0, low=((4.4, 5.6, 7.2), 0.5))
    return Roll(samples=24, exposure=0.15, saturation=1.1, glow=0.08)
