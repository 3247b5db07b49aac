"""Flowers as meshes, stem included, standing at 0, 0, 0."""
import math

import numpy

from growth import Soup, bent_line, petal, stem, strip


def circle_of(number, turn=0.0):
    """Directions around z."""
    return [numpy.array([math.cos(turn + n * 2 * math.pi / number), math.sin(turn + n * 2 * math.pi / number), 0.0]) for n in range(number)]


def turned_soup(soup, first, matrix, at):
    """The parts added since `first` turned and moved: a head is made lying and then set on its stem."""
    for n in range(first, len(soup.points)):
        soup.points[n] = soup.points[n] @ matrix.T + at


def facing(lean, turn):
    """The matrix that leans z by `lean` towards the direction `turn`."""
    about_x = numpy.array([[1, 0, 0], [0, math.cos(lean), -math.sin(lean)], [0, math.sin(lean), math.cos(lean)]])
    about_z = numpy.array([[math.cos(turn), -math.sin(turn), 0], [math.sin(turn), math.cos(turn), 0], [0, 0, 1]])
    return about_z @ about_x


def leaf(soup, root, out, length, width, kind, droop=-0.9, rise=0.7):
    petal(soup, root, out, length, width, rise, droop, 0.15, kind, 0.05)


def sunflower(chance, materials, height=1.6):
    """Materials: petals, disk, rim of the disk, green. The head leans towards -y."""
    soup = Soup()
    line = bent_line(numpy.zeros(3), [0, 0, 1], height, [0, -0.12, 0], 8)
    stem(soup, line, [0.016] * 8, 3, 7)
    turn = 2.4
    for at in numpy.linspace(0.25, 0.88, 8):
        turn += 2.4
        leaf(soup, line[int(at * 7)], [math.cos(turn), math.sin(turn), 0], 0.3 * chance.uniform(0.8, 1.2), 0.24, 3)
    first, side = len(soup.points), 0.16 * chance.uniform(0.85, 1.1)
    for ring, (count, rise, share) in enumerate(((19, 0.10, 1.0), (17, 0.35, 0.9))):
        for out in circle_of(count, ring * 0.17):
            wild = chance.uniform(0.85, 1.15)
            petal(soup, out * 0.085, out + chance.normal(0, 0.08, 3), side * share * wild, 0.05, rise + chance.uniform(-0.12, 0.15), chance.uniform(-0.5, 0.3), 0.3, 0, 0.05, 6)
    dome(soup, 0.05, 0.012, 1, 0.014)
    dome(soup, 0.082, 0.02, 2, 0.0)
    for out in circle_of(12, 0.1):
        petal(soup, out * 0.03 - [0, 0, 0.015], out, 0.11, 0.045, 0.05, -0.4, 0.1, 3, 0.02, 5)
    turned_soup(soup, first, facing(1.05 + chance.uniform(-0.2, 0.25), chance.uniform(-0.5, 0.5)), line[-1])
    return soup.made("sunflower", materials)


def dome(soup, radius, tall, kind, lift):
    """A flat dome."""
    angle = numpy.linspace(0, 2 * math.pi, 24, endpoint=False)[None, :]
    t = numpy.linspace(1, 0.02, 6)[:, None]
    soup.raster(numpy.stack([radius * t * numpy.cos(angle), radius * t * numpy.sin(angle), lift + tall * (1 - t * t) + 0 * angle], axis=-1), kind, closed=True)


def poppy(chance, materials, height=0.5):
    """Materials: petals, heart, green."""
    soup = Soup()
    line = bent_line(numpy.zeros(3), [*chance.normal(0, 0.12, 2), 1], height, [*chance.normal(0, 0.25, 2), 0], 7)
    stem(soup, line, [0.0022] * 7, 2, 5)
    first = len(soup.points)
    open_ = chance.uniform(0.5, 1.3)
    for ring in (0, 1):
        for out in circle_of(2, ring * math.pi / 2):
            petal(soup, out * 0.003, out, 0.042, 0.062, open_ + 0.15 * ring, chance.uniform(-0.5, 0.5), 0.55, 0, 0.9, 7)
    for _ in range(14):
        out = chance.standard_normal(3) * [1, 1, 0]
        strip(soup, bent_line(numpy.zeros(3), out + [0, 0, 1.2], 0.014, [0, 0, 0], 3), numpy.array([0.6, 0.6, 1.6]) * 0.0008, [out[1], -out[0], 0.1], 1)
    dome(soup, 0.005, 0.008, 2, 0.002)
    turned_soup(soup, first, facing(chance.uniform(0, 0.7), chance.uniform(0, 6.3)), line[-1])
    return soup.made("poppy", materials)


def tulip(chance, materials, height=0.42):
    """Materials: petals, green."""
    soup = Soup()
    line = bent_line(numpy.zeros(3), [0, 0, 1], height, [*chance.normal(0, 0.08, 2), 0], 6)
    stem(soup, line, [0.004] * 6, 1, 6)
    for turn in (chance.uniform(0, 3), chance.uniform(3, 6.3), chance.uniform(0, 6.3)):
        out = numpy.array([math.cos(turn), math.sin(turn), 0])
        leaf(soup, line[0], out * 0.5, height * chance.uniform(0.6, 0.85), 0.05, 1, -0.15, 1.6)
    first, opened = len(soup.points), chance.uniform(0.0, 0.35)
    for ring in (0, 1):
        for out in circle_of(3, ring * math.pi / 3):
            tulip_petal(soup, out, 0.068 - 0.004 * ring, opened + 0.1 * (1 - ring))
    turned_soup(soup, first, facing(chance.uniform(0, 0.15), chance.uniform(0, 6.3)), line[-1])
    return soup.made("tulip", materials)


def tulip_petal(soup, out, tall, opened):
    """A cup's third: out from the stem, up, and a little in at the tip."""
    t = numpy.linspace(0, 1, 9)
    reach = 0.026 * numpy.sin(math.pi * numpy.clip(0.12 + 0.62 * t, 0, 1)) + 0.02 * opened * t * t
    aside = numpy.cross([0, 0, 1.0], out)
    wide = 0.027 * numpy.sin(math.pi * numpy.clip(0.08 + 0.86 * t, 0, 1)) ** 0.6
    across = numpy.linspace(-1, 1, 7)[None, :]
    angle = across * (wide / 0.024)[:, None]
    points = reach[:, None, None] * (out * numpy.cos(angle)[..., None] + aside * numpy.sin(angle)[..., None])
    soup.raster(points + [0, 0, 1.0] * (t * tall)[:, None, None], 0)


def lavender(chance, materials, stems=26, height=0.55):
    """A bush. Materials: blossom, green."""
    soup = Soup()
    for _ in range(stems):
        turn, lean = chance.uniform(0, 6.3), abs(chance.normal(0, 0.42))
        way = numpy.array([math.cos(turn) * lean, math.sin(turn) * lean, 1])
        line = bent_line(chance.normal(0, 0.05, 3) * [1, 1, 0], way, height * chance.uniform(0.75, 1.05), [0, 0, 0.1], 5)
        strip(soup, line, [0.0015] * 5, [way[1], -way[0], 0.2], 1)
        along = line[-1] - line[-2]
        along /= numpy.linalg.norm(along)
        for at in numpy.linspace(0, 0.11, 9):
            spot = line[-1] + along * (at - 0.05)
            for out in circle_of(5, chance.uniform(0, 6)):
                petal(soup, spot, out, 0.011 * (1.25 - 3.5 * at), 0.010, chance.uniform(0.3, 1.3), -0.5, 0.3, 0, 0.4, 3)
    for _ in range(46):
        turn = chance.uniform(0, 6.3)
        out = numpy.array([math.cos(turn), math.sin(turn), 0])
        strip(soup, bent_line(chance.normal(0, 0.05, 3) * [1, 1, 0], out * chance.uniform(0.2, 1.1) + [0, 0, 1], height * chance.uniform(0.3, 0.6), [0, 0, -0.1], 4),
              numpy.array([0.5, 1, 0.8, 0.1]) * 0.004, [-out[1], out[0], 0], 1)
    return soup.made("lavender", materials)
