"""Scatters: tilted photos thrown so that they cover the page, none of them hidden.

A slow hill climb over a coarse raster, from a fixed seed, so that the same tables come out on each run.
"""
import math
import random

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

    def improve(self, rounds):
        for step in range(rounds):
            reach = 320 * (1 - step / rounds) + 15
            index = self.chance.randrange(len(self.items))
            old = self.items[index]
            new = [old[0] + self.chance.uniform(-reach, reach), old[1] + self.chance.uniform(-reach, reach), *old[2:]]
            if self.chance.random() < 0.1:
                new[2] = not new[2]
            self.add(self.spans[index], -1)
            span = self.span(new)
            if self.cost(span, new) <= self.cost(self.spans[index], old):
                self.items[index], self.spans[index] = new, span
            self.add(self.spans[index], 1)

    def least_visible(self, order):
        """The photo of which the smallest share shows when they are drawn in this order, and that share."""
        owner = {}
        for index in order:
            owner.update(dict.fromkeys(self.spans[index], index))
        shown = [0] * len(self.items)
        for index in owner.values():
            shown[index] += 1
        shares = [shown[index] / max(1, len(self.spans[index])) for index in range(len(self.items))]
        worst = min(range(len(shares)), key=shares.__getitem__)
        return worst, shares[worst]

    def in_drawing_order(self):
        """From the rim inwards, so that the photos of the middle lie on top; then whoever hides most comes up."""
        def from_rim(index):
            x, y = self.items[index][0] / self.size[0] - 0.5, self.items[index][1] / self.size[1] - 0.5
            return -max(abs(x), abs(y))
        order = sorted(range(len(self.items)), key=from_rim)
        best, best_share = order, self.least_visible(order)[1]
        for _ in range(len(order) * 3):
            worst, _ = self.least_visible(order)
            at = order.index(worst)
            order = order[:at] + order[at + 1:]
            order.insert(min(at + 2, len(order)), worst)
            share = self.least_visible(order)[1]
            if share > best_share:
                best, best_share = order, share
        return [self.place(self.items[index]) for index in best]


def scattered(size, photo, angles, seed, hang=110, rounds=6000):
    """`photo` is (long side, short side); `hang` is how far a corner may leave the page, in pixels."""
    scatter = Scatter(size, photo, angles, seed, hang)
    scatter.improve(rounds)
    return scatter.in_drawing_order()
