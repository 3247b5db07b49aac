"""Broad-leaved trees: branches as one mesh, leaves as instances at the ends of the twigs."""
import math

import numpy

from common import random_turns, scatter
from growth import Soup, branches, petal, stem


def leaf(materials, length=0.09, wide=0.055, name="leaf"):
    """A leaf that lies, its stalk at 0."""
    soup = Soup()
    petal(soup, (0, 0, 0), (0, 1, 0), length, wide, 0.15, -0.4, 0.22, 0, 0.05, 5)
    return soup.made(name, materials)


def trunk_and_twigs(chance, bark, foot, tall, radius, levels=4, spread=0.62, bare=0.3, fork=(4, 6), wander=0.3, up=0.2):
    """A tree whose trunk is bare up to a share of its height; the ends of its twigs, as (place, direction)."""
    soup, twigs = Soup(), []
    foot = numpy.asarray(foot, dtype=float)
    line = foot + numpy.column_stack([0.005 * tall * numpy.cumsum(chance.normal(0, 1, (9, 2)), axis=0) / 2, numpy.linspace(0, tall * bare, 9)])
    line[0, :2] = foot[:2]
    flare = 1 + 0.7 * numpy.exp(-numpy.linspace(0, 9, 9))
    stem(soup, line - [0, 0, 0.15], radius * flare * numpy.linspace(1, 0.85, 9), 0, 14)
    branches(soup, chance, line[-1] - [0, 0, 0.2], line[-1] - line[-3], tall * (1 - bare) * 0.52, radius * 0.84, levels, twigs, spread, wander, up, fork=fork)
    soup.made("tree", [bark])
    return twigs


def crown(chance, leaves, twigs, count, reach=0.35, size=(0.7, 1.2)):
    """So many leaves around each twig's end."""
    ends = numpy.array([place for place, _, _ in twigs])
    places = numpy.repeat(ends, count, axis=0)
    places = places + chance.normal(0, reach / 2, places.shape)
    turns = random_turns(chance, len(places), 1.1)
    scatter(leaves, places, turns, chance.uniform(*size, len(places)))


def litter(chance, leaves, x, y, z, size=(0.7, 1.2)):
    """Leaves that lie on the ground."""
    turns = random_turns(chance, len(x), 0.35)
    turns[:, 1] += numpy.where(chance.random(len(x)) < 0.5, math.pi, 0)
    scatter(leaves, numpy.column_stack([x, y, z + 0.015]), turns, chance.uniform(*size, len(x)))


def clump(chance, made_of, hearts, count, reach, size):
    """A crown seen from far, or a bush: so many leaves around each heart (n x 3)."""
    spot = numpy.repeat(hearts, count, axis=0) + chance.normal(0, reach, (len(hearts) * count, 3))
    out, aside = size * chance.standard_normal((2, len(spot), 3))
    soup = Soup()
    soup.quads(numpy.stack([spot - out, spot - 0.5 * aside, spot + out, spot + 0.5 * aside], axis=1))
    return soup.made("clump", [made_of])


def wood_edge(chance, made_of, count, near, far, wide, size=(0.8, 1.5)):
    """Trees side by side at the end of a meadow."""
    trees = [far_tree(chance, made_of) for _ in range(3)]
    places = numpy.column_stack([chance.uniform(-wide, wide, count), chance.uniform(near, far, count), numpy.full(count, -1.0)])
    scatter(trees, places, random_turns(chance, count, 0.05), chance.uniform(*size, count))


def far_tree(chance, made_of):
    """The crown of a tree of 8 m, down to the ground."""
    return clump(chance, made_of, chance.normal(0, 1, (60, 3)) * [1.7, 1.7, 1.9] + [0, 0, 4.2], 120, 0.5, 0.16)
