"""Scatters: tilted photos thrown so that they cover the page, none of them hidden.

A slow hill climb over a coarse raster, from a fixed seed, so that the same tables come out on each run.
"""
import math
import random
from dataclasses import replace

from starter_designs.place import centred

RASTER = 50


class Scatter:
    def __init__(self, size, photo, angles, seed, hang):
        self.size, self.photo, self.hang = size, photo, hang
        self.chance = random.Random(seed)
        self.columns, self.lines = size[0] // RASTER, size[1] // RASTER
        self.counts = [0] * (self.columns * self.lines)
        self.items = self.start(angles)
        self.spans = [self.span(item) for item in self.items]
        for span in self.spans:
            self.add(span, 1)

    def start(self, angles):
        """Middles on a loose grid, orientations in turn, angles dealt at random."""
        count = len(angles)
        across = max(1, round(math.sqrt(count * self.size[0] / self.size[1])))
        down = math.ceil(count / across)
        dealt = list(angles)
        self.chance.shuffle(dealt)
        spots = [((i % across + 0.5) / across * self.size[0], (i // across + 0.5) / down * self.size[1])
                 for i in range(count)]
        return [[x, y, index % 2 == 0, dealt[index]] for index, (x, y) in enumerate(spots)]

    def place(self, item):
        x, y, wide, angle = item
        long_side, short_side = self.photo
        return centred(x, y, long_side if wide else short_side, short_side if wide else long_side, angle)

    def span(self, item):
        """The raster points that the photo covers."""
        x, y, wide, angle = item
        width, height = self.photo if wide else self.photo[::-1]
        c, s = math.cos(math.radians(angle)), math.sin(math.radians(angle))
        reach_x, reach_y = (width * abs(c) + height * abs(s)) / 2, (width * abs(s) + height * abs(c)) / 2
        columns = range(max(0, int((x - reach_x) / RASTER)), min(self.columns, int((x + reach_x) / RASTER) + 1))
        covered = []
        for row in range(max(0, int((y - reach_y) / RASTER)), min(self.lines, int((y + reach_y) / RASTER) + 1)):
            dy = (row + 0.5) * RASTER - y
            for column in columns:
                dx = (column + 0.5) * RASTER - x
                if abs(dx * c + dy * s) <= width / 2 and abs(dy * c - dx * s) <= height / 2:
                    covered.append(row * self.columns + column)
        return covered

    def add(self, span, step):
        for index in span:
            self.counts[index] += step

    def overhang(self, item):
        corners = self.place(item).corners()
        xs, ys = [x for x, _ in corners], [y for _, y in corners]
        worst = max(-min(xs), -min(ys), max(xs) - self.size[0], max(ys) - self.size[1])
        return max(0, worst - self.hang)

    def cost(self, span, item):
        """What this photo adds, the others standing as they do: points it alone would leave bare count most."""
        total = self.overhang(item) * 3
        for index in span:
            others = self.counts[index]
            total += -5 if others == 0 else others * others
        return total

    def stays_mixed(self, item):
        """Whether it may turn the other way: two fifths of each kind at least."""
        alike = sum(other[2] == item[2] for other in self.items) - 1
        return alike >= 0.4 * len(self.items)

    def improve(self, rounds):
        for step in range(rounds):
            reach = 320 * (1 - step / rounds) + 15
            index = self.chance.randrange(len(self.items))
            old = self.items[index]
            new = [old[0] + self.chance.uniform(-reach, reach), old[1] + self.chance.uniform(-reach, reach), *old[2:]]
            if self.chance.random() < 0.1 and self.stays_mixed(old):
                new[2] = not new[2]
            self.add(self.spans[index], -1)
            span = self.span(new)
            if self.cost(span, new) <= self.cost(self.spans[index], old):
                self.items[index], self.spans[index] = new, span
            self.add(self.spans[index], 1)

    def from_rim(self):
        """From the rim inwards, so that the photos of the middle lie on top."""
        def nearness(index):
            x, y = self.items[index][0] / self.size[0] - 0.5, self.items[index][1] / self.size[1] - 0.5
            return -max(abs(x), abs(y))
        return sorted(range(len(self.items)), key=nearness)

    def in_drawing_order(self):
        """An order in which every photo can be seen, its middle above all, both upright and turned."""
        places = [self.place(item) for item in self.items]
        hiding = hidings(places, self.size)
        order = self.from_rim()
        best = burden(order, hiding)
        for _ in range(100 * len(order)):
            tried = list(order)
            tried.insert(self.chance.randrange(len(order)), tried.pop(self.chance.randrange(len(order))))
            worth = burden(tried, hiding)
            if worth <= best:
                order, best = tried, worth
        return [places[index] for index in order]


POINTS = 9  # of a photo, each way; those from a third to two thirds are its middle


def hidings(places, size):
    """For each two photos which points of the first the second hides, as bits: the first view's, then the turned one's.
    A photo with itself: the points that lie beyond the page."""
    edge = size[1]
    turns = [turned_place(place, edge) for place in places]
    found = []
    for at, place in enumerate(places):
        row = []
        for other, later in enumerate(places):
            if at == other:
                bits = points_beyond(place, size) | points_beyond(turns[at], size[::-1]) << POINTS ** 2
            else:
                bits = hidden_points(place, later) | hidden_points(turns[at], turns[other]) << POINTS ** 2
            row.append(bits)
        found.append(row)
    return found


def turned_place(place, edge):
    """As the program turns a location."""
    return replace(place, top=round(place.left - place.height * place.rotation * 0.0174), left=edge - (place.top + place.height),
                   height=place.width, width=place.height)


def points_beyond(place, size):
    page = replace(place, top=0, left=0, height=size[1], width=size[0], rotation=0)
    return ALL & ~hidden_points(place, page)


def hidden_points(place, later):
    c, s = math.cos(math.radians(place.rotation)), math.sin(math.radians(place.rotation))
    lc, ls = math.cos(math.radians(later.rotation)), math.sin(math.radians(later.rotation))
    reach = math.hypot(place.width, place.height) + math.hypot(later.width, later.height)
    if math.dist((place.left, place.top), (later.left, later.top)) > reach:
        return 0
    bits = 0
    for at in range(POINTS ** 2):
        x, y = (at % POINTS + 0.5) / POINTS * place.width, (at // POINTS + 0.5) / POINTS * place.height
        dx, dy = place.left + x * c - y * s - later.left, place.top + x * s + y * c - later.top
        if 0 <= dx * lc + dy * ls < later.width and 0 <= dy * lc - dx * ls < later.height:
            bits |= 1 << at
    return bits


def middle_points():
    third = range(POINTS // 3, POINTS - POINTS // 3)
    return sum(1 << (row * POINTS + column) for row in third for column in third)


ALL, MIDDLE = (1 << POINTS ** 2) - 1, middle_points()


def burden(order, hiding):
    """How much is hidden beyond what may be: a fifth of a middle, two fifths of a photo. One that is hidden much counts
    more than two that are hidden half as much."""
    total = 0.0
    for step, index in enumerate(order):
        bits = hiding[index][index]
        for later in order[step + 1:]:
            bits |= hiding[index][later]
        for view in (bits & ALL, bits >> POINTS ** 2):
            middle, whole = (view & MIDDLE).bit_count() / MIDDLE.bit_count(), view.bit_count() / POINTS ** 2
            total += 2 * max(0.0, middle - 0.2) ** 3 + 4 * max(0.0, whole - 0.4) ** 3
    return total


def scattered(size, photo, angles, seed, hang=60, rounds=20000):
    """`photo` is (long side, short side); `hang` is how far a corner may leave the page, in pixels."""
    scatter = Scatter(size, photo, angles, seed, hang)
    scatter.improve(rounds)
    return scatter.in_drawing_order()
