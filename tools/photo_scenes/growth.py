"""What grows: trees by branching, blades, petals and needles as strips, gathered into one mesh each."""
import math

import numpy

from common import mesh_object


class Soup:
    """Parts of one mesh, quads only, with the number of the material of each."""

    def __init__(self):
        self.points, self.faces, self.kinds, self.count = [], [], [], 0

    def raster(self, points, kind=0, closed=False):
        """A raster of points, rows x columns x 3."""
        rows, columns = points.shape[:2]
        index = self.count + numpy.arange(rows * columns).reshape(rows, columns)
        if closed:
            index = numpy.hstack([index, index[:, :1]])
        faces = numpy.stack([index[:-1, :-1], index[:-1, 1:], index[1:, 1:], index[1:, :-1]], axis=-1).reshape(-1, 4)
        self.points.append(points.reshape(-1, 3))
        self.faces.append(faces)
        self.kinds.append(numpy.full(len(faces), kind))
        self.count += rows * columns

    def quads(self, corners, kind=0):
        """Single faces (n x 4 x 3) that share no points: needles, leaves, grains."""
        count = len(corners)
        self.points.append(corners.reshape(-1, 3))
        self.faces.append(self.count + numpy.arange(4 * count).reshape(count, 4))
        self.kinds.append(numpy.full(count, kind))
        self.count += 4 * count

    def made(self, name, materials, smooth=True):
        made = mesh_object(name, numpy.concatenate(self.points), numpy.concatenate(self.faces), smooth=smooth)
        for one in materials:
            made.data.materials.append(one)
        made.data.polygons.foreach_set("material_index", numpy.concatenate(self.kinds).astype(numpy.int32))
        return made


def unit(vector):
    return vector / (numpy.linalg.norm(vector) + 1e-9)


def beside(along):
    """Two directions square to a direction and to each other."""
    aside = unit(numpy.cross(along, [0.3, 0.2, 0.93] if abs(along[2]) < 0.8 else [0.95, 0.3, 0.1]))
    return aside, numpy.cross(along, aside)


def stem(soup, line, radii, kind=0, sides=6):
    """A round stem along a line of points."""
    along = numpy.gradient(line, axis=0)
    aside, other = beside(unit(along.mean(axis=0)))
    angle = numpy.linspace(0, 2 * math.pi, sides, endpoint=False)[None, :, None]
    soup.raster(line[:, None] + numpy.asarray(radii)[:, None, None] * (aside * numpy.cos(angle) + other * numpy.sin(angle)),
                kind, closed=True)


def strip(soup, line, widths, aside, kind=0, fold=0.0):
    """A blade along a line, as wide to either side of it as `widths`; fold lifts its edges."""
    line, widths = numpy.asarray(line, dtype=float), numpy.asarray(widths, dtype=float)[:, None]
    along = unit(line[-1] - line[0])
    aside = unit(numpy.asarray(aside, dtype=float))
    lift = unit(numpy.cross(aside, along)) * widths * fold
    soup.raster(numpy.stack([line - aside * widths + lift, line, line + aside * widths + lift], axis=1), kind)


def bent_line(start, along, length, bend, points=6):
    """From start in a direction; bend is what is added to the direction over the whole length."""
    t = numpy.linspace(0, 1, points)[:, None]
    return start + length * (unit(numpy.asarray(along, dtype=float)) * t + numpy.asarray(bend, dtype=float) * t * t / 2)


def branches(soup, chance, start, along, length, radius, levels, twigs, spread=0.7, wander=0.35, up=0.15, kind=0, fork=(4, 7)):
    """A branch and all that grow from it; the ends of the finest are added to twigs: (place, direction)."""
    count = 7 if levels > 1 else 5
    line, way = [numpy.asarray(start, dtype=float)], unit(numpy.asarray(along, dtype=float))
    ways = [way]
    for _ in range(count - 1):
        way = unit(way + wander * chance.standard_normal(3) / math.sqrt(count) + numpy.array([0, 0, up / count]))
        line.append(line[-1] + way * length / (count - 1))
        ways.append(way)
    line = numpy.array(line)
    stem(soup, line, radius * numpy.linspace(1, 0.45 if levels else 0.2, count), kind, sides=8 if levels > 2 else 5 if levels else 4)
    if levels == 0:
        twigs.append((line[-1], ways[-1], line[count // 2]))
        return
    turn = chance.uniform(0, 6.3)
    for number in range(chance.integers(*fork)):
        turn += 2.4 + chance.uniform(-0.4, 0.4)
        at = chance.uniform(0.35, 1.0) if number else 1.0
        place = min(count - 1, int(at * (count - 1) + 0.5))
        aside, other = beside(ways[place])
        out = aside * math.cos(turn) + other * math.sin(turn)
        lean = spread * chance.uniform(0.7, 1.2) * (0.5 if number == 0 else 1)
        branches(soup, chance, line[place], ways[place] * math.cos(lean) + out * math.sin(lean), length * chance.uniform(0.55, 0.8),
                 radius * (0.62 if number == 0 else 0.45) * (1 - 0.25 * at), levels - 1, twigs, spread, wander, up, kind, fork)


def blade(soup, chance, height, width, kind=0, at=(0, 0, 0), lean=0.5):
    """One blade of grass."""
    turn = chance.uniform(0, 2 * math.pi)
    out = numpy.array([math.cos(turn), math.sin(turn), 0])
    line = bent_line(numpy.asarray(at, dtype=float), out * 0.15 * lean + [0, 0, 1], height, out * lean * chance.uniform(0.3, 1.2) - [0, 0, 0.2 * lean], 5)
    strip(soup, line, width * numpy.array([0.8, 1, 0.85, 0.55, 0.05]), [-out[1], out[0], 0], kind, 0.3)


def tuft(chance, materials, blades=14, height=0.35, width=0.005, reach=0.12, lean=0.7, name="tuft"):
    """A tuft of grass."""
    soup = Soup()
    for _ in range(blades):
        at = (*chance.normal(0, reach / 2, 2), 0)
        blade(soup, chance, height * chance.uniform(0.5, 1.1), width * chance.uniform(0.7, 1.2), chance.integers(len(materials)), at, lean)
    return soup.made(name, materials)


def needles(soup, chance, line, reach):
    """Little twigs to both sides of a line, full of needles."""
    along = unit(line[-1] - line[0])
    aside = unit(numpy.cross(along, [0, 0, 1]))
    count = 64
    at = chance.uniform(0.05, 1.0, count)
    spot = numpy.column_stack([numpy.interp(at, numpy.linspace(0, 1, len(line)), line[:, k]) for k in range(3)])
    side = chance.choice([-1, 1], count)
    spread = chance.uniform(0, 0.32, count) * reach * (1.1 - at)
    spot = spot + side[:, None] * spread[:, None] * aside + along * 0.6 * spread[:, None] - [0, 0, 0.25] * spread[:, None]
    way = along + side[:, None] * aside * chance.uniform(0.2, 1.2, (count, 1)) + chance.normal(0, 0.35, (count, 3))
    way *= (chance.uniform(0.04, 0.075, count) / numpy.linalg.norm(way, axis=1))[:, None]
    broad = numpy.cross(way, chance.normal(0, 1, (count, 3)) + [0, 0, 0.8])
    broad *= (0.007 / (numpy.linalg.norm(broad, axis=1) + 1e-9))[:, None]
    soup.quads(numpy.stack([spot - broad, spot + broad, spot + way + 0.4 * broad, spot + way - 0.4 * broad], axis=1), 1)


def burden(soup, chance, line, wide, tall):
    """Snow that lies along a line: an arch in section, lumpy."""
    count = len(line)
    along = unit(line[-1] - line[0])
    aside = unit(numpy.cross(along, [0, 0, 1]))
    angle = numpy.linspace(-0.35, math.pi + 0.35, 8)[None, :, None]
    taper = numpy.sqrt(numpy.clip(numpy.sin(numpy.linspace(0.04, math.pi - 0.04, count)), 0, 1))
    lump = (taper * chance.uniform(0.75, 1.25, count))[:, None, None] * chance.uniform(0.85, 1.15, (count, 8, 1))
    soup.raster(line[:, None] + lump * (aside * numpy.cos(angle) * wide + numpy.array([0, 0, 1.0]) * numpy.sin(angle) * tall), 2)


def bough(soup, chance, root, turn, reach, loaded):
    """A bough with twigs to both sides; loaded is the share of twigs on which snow lies."""
    out = numpy.array([math.cos(turn), math.sin(turn), 0])
    aside = numpy.array([-out[1], out[0], 0])
    droop = [0, 0, -1.25]
    line = bent_line(root, out + [0, 0, 0.2], reach, droop, 9)
    stem(soup, line, 0.012 * reach * numpy.linspace(1.2, 0.3, 9), 0, 4)
    for at in numpy.linspace(0.14, 1, 10):
        place = bent_line(root, out + [0, 0, 0.2], reach * at, numpy.multiply(droop, at), 2)[-1]
        length = (reach * 0.40 * (1.15 - at) + 0.10) * chance.uniform(0.75, 1.2)
        for side in (-1, 1):
            way = out * 0.85 + aside * side * chance.uniform(0.7, 1.1) + [0, 0, chance.uniform(-0.5, -0.15)]
            twig = bent_line(place, way, length, [0, 0, -0.55], 6)
            needles(soup, chance, twig, length)
            if chance.random() < loaded:
                wide = chance.uniform(0.035, 0.075) + 0.05 * length
                burden(soup, chance, twig[chance.integers(0, 2):] + [0, 0, 0.01], wide, 0.8 * wide)
    if loaded:
        burden(soup, chance, line[1:] + [0, 0, 0.02], 0.05 + 0.045 * reach, 0.06 + 0.03 * reach)


def fir(chance, bark, needle, height=12.0, layers=26, snow=None, name="fir"):
    """A fir: whorls of drooping boughs full of needles, none like the next; snow lies on them where it is given."""
    soup = Soup()
    axis = numpy.column_stack([numpy.zeros(6), numpy.zeros(6), numpy.linspace(-0.5, height, 6)])
    stem(soup, axis, height * numpy.linspace(0.016, 0.002, 6), 0, 7)
    for layer in range(layers):
        share = (layer + chance.uniform(0, 0.6)) / layers
        reach = height * 0.185 * (1 - share) ** 0.75 * chance.uniform(0.85, 1.12) + 0.16
        count = 9 - int(4 * share)
        for number in range(count):
            turn = number * 2 * math.pi / count + layer * 0.9 + chance.uniform(-0.3, 0.3)
            root = numpy.array([0, 0, height * (0.05 + 0.93 * share + chance.uniform(-0.012, 0.012))])
            bough(soup, chance, root, turn, reach * chance.uniform(0.6, 1.15), 0.62 if snow else 0.0)
    return soup.made(name, [bark, needle] + ([snow] if snow else []))


def petal(soup, root, out, length, width, rise=0.5, curl=-0.6, cup=0.3, kind=0, tip=0.2, rows=7):
    """A petal from its root outwards: rise lifts it, curl bends its end up or down, cup lifts its edges."""
    out = unit(numpy.asarray(out, dtype=float))
    aside = numpy.cross([0, 0, 1], out)
    t = 1 - (1 - numpy.linspace(0, 1, rows)) ** 1.5  # closer towards the tip, which is round
    line = numpy.asarray(root, dtype=float) + length * (unit(out + [0, 0, rise]) * t[:, None] + numpy.array([0, 0, curl]) * (t * t / 2)[:, None])
    shape = width / 2 * (numpy.sin(math.pi * numpy.clip(t * (1 - 0.12) + 0.06, 0, 1)) ** 0.7) * (1 - (1 - tip) * t ** 6) * (0.55 + 0.45 * t)
    shape = shape * numpy.sqrt(1 - 0.985 * t ** 9)
    across = numpy.linspace(-1, 1, 7)[None, :, None]
    up = numpy.array([0, 0, 1.0])
    soup.raster(line[:, None] + aside * across * shape[:, None, None] + up * cup * across ** 2 * shape[:, None, None], kind)
