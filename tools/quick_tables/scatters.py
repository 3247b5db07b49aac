"""Quick scatters: tilted photos thrown so that they cover the poster and none of them is hidden.

A short hill climb over a coarse raster, whose points are the bits of whole numbers, from a fixed seed. All sizes in
pixels of the upright poster; a photo turns about its own top-left corner.
"""
import concurrent.futures
import math
import random
from dataclasses import dataclass, replace

from quick_tables.limits import scatter_totals
from starter_designs.place import centred

WIDTH = 2000
HANG = 130          # how far a corner may leave the poster
HANG_TURNED = 140   # the same, beyond the former, for a large photo that has been turned
ROOM = 85           # how far a turned photo may reach before the program takes a broader border
MOST_PRODUCT = 32767  # of a side and the tilt
HEAPS = (1.36, 1.28, 1.44, 1.22)  # areas of all photos to that of the poster: those that are tried in turn
FEW = 4               # photos up to which bare corners are worse than hidden middles
FEW_HEAPS = (1.5, 1.42, 1.58, 1.34)  # the same for so few
MIDDLE_COUNTS = 5     # how much a hidden middle weighs
TURNED_COUNTS = 0.3   # the same for what is hidden when photos are turned
MOST_TURNED = 24      # photos up to which the search looks at what turned photos leave bare; with more it hardly shows

# How far a turned photo reaches from its corner, in its longer side, by tilt from -35 in steps of 5 without 0: the
# program's own figures, by which it decides on the border.
REACH = {
    "wide": {"top": [-0.58, -0.50, -0.42, -0.34, -0.26, -0.18, -0.90] + [0.0] * 7,
             "bottom": [0.54, 0.57, 0.60, 0.62, 0.64, 0.65, 0.67, 0.76, 0.83, 0.90, 0.96, 1.02, 1.07, 1.12],
             "left": [0.0] * 7 + [-0.08, -0.13, -0.17, -0.23, -0.29, -0.34, -0.38],
             "right": [1.21, 1.20, 1.19, 1.16, 1.13, 1.09, 1.05, 0.99, 0.98, 0.97, 0.94, 0.90, 0.86, 0.82]},
    "tall": {"top": [-0.39, -0.34, -0.28, -0.23, -0.18, -0.13, -0.07] + [0.0] * 7,
             "bottom": [0.81, 0.86, 0.91, 0.93, 0.96, 0.97, 0.98, 1.06, 1.10, 1.13, 1.16, 1.18, 1.19, 1.20],
             "left": [0.0] * 7 + [-0.09, -0.18, -0.26, -0.34, -0.42, -0.50, -0.57],
             "right": [1.12, 1.08, 1.03, 0.97, 0.90, 0.83, 0.76, 0.67, 0.66, 0.64, 0.62, 0.60, 0.57, 0.54]},
}


@dataclass(frozen=True)
class Photo:
    """A photo by its middle."""
    x: float
    y: float
    width: int
    height: int
    tilt: int

    def place(self):
        return centred(self.x, self.y, self.width, self.height, self.tilt)

    def middle(self):
        """Its middle third, where faces are."""
        return replace(self, width=self.width / 3, height=self.height / 3)

    def corners(self):
        """The four corners as (x, y), clockwise."""
        angle = math.radians(self.tilt)
        c, s = math.cos(angle) / 2, math.sin(angle) / 2
        x1, y1 = self.width * c - self.height * s, self.width * s + self.height * c
        x2, y2 = self.width * c + self.height * s, self.width * s - self.height * c
        return [(self.x - x1, self.y - y1), (self.x + x2, self.y + y2), (self.x + x1, self.y + y1),
                (self.x - x2, self.y - y2)]

    def turned(self):
        """The photo turned from tall to wide or back, as the program does it."""
        place, quarter = self.place(), min(self.width, self.height) / 4
        if self.width > self.height:
            quarter = -self.width / 4
        return replace(place, top=round(place.top + quarter), left=round(place.left - quarter),
                       height=place.width, width=place.height)

    def lack_of_room(self, height):
        """How far the photo, turned, would reach beyond what the narrowest border allows."""
        place, long_side = self.turned(), max(self.width, self.height)
        reach = REACH["wide" if self.height > self.width else "tall"]
        index = round((self.tilt + 35) / 5)
        index -= index > 6
        low = min(place.top + long_side * reach["top"][index], place.left + long_side * reach["left"][index])
        high = max(place.top + long_side * reach["bottom"][index] - height,
                   place.left + long_side * reach["right"][index] - WIDTH)
        return max(0, -low - ROOM, high - ROOM)


class Raster:
    """The poster as points, one bit each."""

    def __init__(self, height, step):
        self.columns, self.rows = round(WIDTH / step), round(height / step)
        self.step_x, self.step_y = WIDTH / self.columns, height / self.rows
        self.all = (1 << self.columns * self.rows) - 1
        size = max(2, self.columns // 8)
        self.each_corner = [sum(((1 << size) - 1) << (row * self.columns + left) for row in range(top, top + size))
                            for top in (0, self.rows - size) for left in (0, self.columns - size)]
        self.corners = sum(self.each_corner)

    def span(self, corners):
        """The points inside a convex outline."""
        points, found = list(corners), 0
        ys = [y for _, y in points]
        first = max(0, math.ceil(min(ys) / self.step_y - 0.5))
        last = min(self.rows - 1, math.floor(max(ys) / self.step_y - 0.5))
        edges = list(zip(points, points[1:] + points[:1]))
        for row in range(first, last + 1):
            y = (row + 0.5) * self.step_y
            xs = [x1 + (x2 - x1) * (y - y1) / (y2 - y1) for (x1, y1), (x2, y2) in edges if (y1 > y) != (y2 > y)]
            if len(xs) < 2:
                continue
            left = max(0, math.ceil(min(xs) / self.step_x - 0.5))
            right = min(self.columns - 1, math.floor(max(xs) / self.step_x - 0.5))
            if right >= left:
                found |= ((1 << (right - left + 1)) - 1) << (row * self.columns + left)
        return found


def layers(spans):
    """Points under at least one, two and three photos."""
    one = two = three = 0
    for span in spans:
        three |= two & span
        two |= one & span
        one |= span
    return one, two, three


def overhang(corners, height):
    xs, ys = [x for x, _ in corners], [y for _, y in corners]
    return max(0, max(-min(xs), -min(ys), max(xs) - WIDTH, max(ys) - height) - HANG)


def hiding(order, spans, middles, middle_counts):
    """What is covered, and how bad it is that photos are hidden when they are drawn in this order."""
    above = hidden = 0
    for index in reversed(order):
        span, middle = spans[index], middles[index]
        points = span.bit_count()
        lacking = 0.66 - (span & ~above).bit_count() / max(1, points)
        if lacking > 0:
            hidden += points * (12 * lacking) ** 2
        hidden += points * (middle_counts * (middle & above).bit_count() / max(1, middle.bit_count())) ** 2
        above |= span
    return above, hidden


class Throw:
    def __init__(self, total, height, heap, chance):
        self.total, self.height, self.chance = total, height, chance
        self.middle_counts, self.turned_counts = (1, 0) if total <= FEW else (MIDDLE_COUNTS, TURNED_COUNTS)
        area, self.worth_of_corner = WIDTH * height, 28 if total <= 16 else 14
        longest = WIDTH * (0.78 if total > 4 else 0.96 if height > WIDTH else 0.86)
        self.long_side = max(12, math.floor(min(math.sqrt(1.5 * heap * area / total), longest) / 12) * 12)
        self.short_side = self.long_side * 2 // 3
        self.raster = Raster(height, max(28, self.long_side / (16 if total <= 12 else 11)))
        self.photos = self.start()
        self.spans = [self.span(photo) for photo in self.photos]
        self.strains = [self.strain(photo) for photo in self.photos]
        self.turned_spans = [self.turned_span(photo) for photo in self.photos]
        self.middles = [self.raster.span(photo.middle().corners()) for photo in self.photos]

    def span(self, photo):
        return self.raster.span(photo.corners())

    def turned_span(self, photo):
        return self.raster.span(photo.turned().corners()) if self.total <= MOST_TURNED else 0

    def tilts(self):
        steepest = min(35, MOST_PRODUCT // self.long_side // 5 * 5)
        if self.total < 9:
            steepest = min(steepest, 15)
        return [tilt for tilt in range(-steepest, steepest + 1, 5) if tilt]

    def start(self):
        """Middles on a loose lattice, tall and wide in turn, the tilts dealt so that each comes up as often."""
        across = max(1, round(math.sqrt(self.total * WIDTH / self.height)))
        rows = max(1, round(self.total / across))
        if self.total in (3, 4, 5):
            rows = self.total if self.height > WIDTH and self.total < 4 else 2
        counts = [self.total * (row + 1) // rows - self.total * row // rows for row in range(rows)]
        tilts = self.tilts()
        dealt = [tilts[index % len(tilts)] for index in range(self.total)]
        self.chance.shuffle(dealt)
        photos = []
        for row, count in enumerate(counts):
            for column in range(count):
                x, y = (column + 0.5) / count * WIDTH, (row + 0.5) / rows * self.height
                wide = len(photos) % 2 == 0 if count % 2 else (len(photos) + row) % 2 == 0
                size = (self.long_side, self.short_side) if wide else (self.short_side, self.long_side)
                photos.append(Photo(x, y, *size, dealt[len(photos)]))
        return [self.brought_in(photo) for photo in self.balanced(photos)]

    def brought_in(self, photo):
        """The photo moved until nothing of it hangs over by more than it may."""
        corners = photo.corners()
        xs, ys = [x for x, _ in corners], [y for _, y in corners]
        x = max(0, -HANG - min(xs)) - max(0, max(xs) - WIDTH - HANG)
        y = max(0, -HANG - min(ys)) - max(0, max(ys) - self.height - HANG)
        return replace(photo, x=photo.x + x, y=photo.y + y)

    def balanced(self, photos):
        """As many tall photos as wide ones, or one less."""
        tall = [index for index, photo in enumerate(photos) if photo.height > photo.width]
        wide = [index for index, photo in enumerate(photos) if photo.height < photo.width]
        many, few = (tall, wide) if len(tall) > len(wide) else (wide, tall)
        for index in self.chance.sample(many, (len(many) - len(few)) // 2):
            photos[index] = replace(photos[index], width=photos[index].height, height=photos[index].width)
        return photos

    def gain(self, strain, span, one, two, three):
        bare = span & ~one
        return (6 * bare.bit_count() + self.worth_of_corner * (bare & self.raster.corners).bit_count() - (span & one).bit_count()
                - 3 * (span & two).bit_count() - 6 * (span & three).bit_count()
                - strain)

    def cost_of_pixels(self, pixels):
        return pixels * (self.long_side / self.raster.step_x) * 6 / self.raster.step_x

    def improve(self, rounds):
        tilts = self.tilts()
        for step in range(rounds):
            index = self.chance.randrange(self.total)
            old = self.photos[index]
            reach = self.long_side * (0.5 * (1 - step / rounds) + 0.03)
            new = replace(old, x=old.x + self.chance.uniform(-reach, reach), y=old.y + self.chance.uniform(-reach, reach))
            if self.chance.random() < 0.15:
                new = replace(new, tilt=self.chance.choice(tilts))
            if self.leaves(new, old):
                continue
            rest = layers(self.spans[:index] + self.spans[index + 1:])
            span, strain = self.span(new), self.strain(new)
            if self.gain(strain, span, *rest) >= self.gain(self.strains[index], self.spans[index], *rest):
                self.photos[index], self.spans[index], self.strains[index] = new, span, strain
                self.turned_spans[index], self.middles[index] = self.turned_span(new), self.raster.span(new.middle().corners())

    def shown(self, order):
        """How much of each photo shows when they are drawn in this order, as {photo: share}."""
        above, shares = 0, {}
        for index in reversed(order):
            span = self.spans[index]
            shares[index] = (span & ~above).bit_count() / max(1, span.bit_count())
            above |= span
        return shares

    def in_order(self):
        """Those with room to turn first; among equals whoever is hidden most comes up. Gives the order and the least
        share that shows."""
        room = [math.ceil(photo.lack_of_room(self.height) / 40) for photo in self.photos]
        order = sorted(range(self.total), key=lambda index: (room[index], self.photos[index].y))
        best, best_share = order, min(self.shown(order).values())
        for _ in range(3 * self.total):
            shares = self.shown(order)
            for index in sorted(shares, key=shares.get):
                at = order.index(index)
                if at + 1 < self.total and room[order[at + 1]] == room[index]:
                    break
            else:
                break
            order = order[:at] + [order[at + 1], order[at]] + order[at + 2:]
            share = min(self.shown(order).values())
            if share > best_share:
                best, best_share = order, share
        return best, best_share

    def most_middle_hidden(self, order):
        above = worst = 0
        for index in reversed(order):
            worst = max(worst, (self.middles[index] & above).bit_count() / max(1, self.middles[index].bit_count()))
            above |= self.spans[index]
        return worst

    def furthest_turned(self):
        """How far a photo leaves the poster when it is turned, in pixels."""
        return max(overhang(photo.turned().corners(), self.height) for photo in self.photos) + HANG

    def turnings(self, order):
        """The sets of photos that are turned for other counts than those it is drawn for."""
        tall = [index for index in order if self.photos[index].height > self.photos[index].width]
        wide = [index for index in order if self.photos[index].height < self.photos[index].width]
        for kind in (tall, wide):
            step = 1 if self.total <= 8 else max(1, len(kind) // 2)
            yield from (set(kind[:count]) for count in range(len(kind), 0, -step))

    def bare_when_turned(self, order):
        """What stays bare in each of these cases, as points."""
        for turned in self.turnings(order):
            covered = 0
            for index in order:
                covered |= self.turned_spans[index] if index in turned else self.spans[index]
            yield self.raster.all & ~covered

    def cost_of_turns(self, order):
        if self.total > MOST_TURNED:
            return 0
        costs = []
        for turned in self.turnings(order):
            covered, hidden = hiding(order, [self.turned_spans[index] if index in turned else span
                                             for index, span in enumerate(self.spans)], self.middles,
                                     self.middle_counts)
            bare = self.raster.all & ~covered
            costs.append(6 * bare.bit_count() + self.worth_of_corner / 2 * (bare & self.raster.corners).bit_count()
                         + self.turned_counts * hidden)
        return sum(costs) / len(costs) + max(costs)

    def badness(self, order):
        """What is wrong with the whole throw, drawn in this order: bare points, hidden photos."""
        above, hidden = hiding(order, self.spans, self.middles, self.middle_counts)
        bare = self.raster.all & ~above
        return 6 * bare.bit_count() + self.worth_of_corner * (bare & self.raster.corners).bit_count() + hidden + \
            self.cost_of_turns(order)

    def settle(self, order, rounds):
        """Small moves, judged by what shows in the end."""
        tilts, bad = self.tilts(), self.badness(order)
        for step in range(rounds):
            index = self.chance.randrange(self.total)
            old, old_span = self.photos[index], self.spans[index]
            reach = self.long_side * (0.3 * (1 - step / rounds) + 0.02)
            new = replace(old, x=old.x + self.chance.uniform(-reach, reach), y=old.y + self.chance.uniform(-reach, reach))
            if self.chance.random() < 0.2:
                new = replace(new, tilt=self.chance.choice(tilts))
            if self.leaves(new, old):
                continue
            old_turned, old_middle = self.turned_spans[index], self.middles[index]
            self.photos[index], self.spans[index], self.turned_spans[index] = new, self.span(new), self.turned_span(new)
            self.middles[index] = self.raster.span(new.middle().corners())
            changed, strain = self.badness(order), self.strain(new)
            if changed + strain <= bad + self.strains[index]:
                bad, self.strains[index] = changed, strain
            else:
                self.photos[index], self.spans[index], self.turned_spans[index] = old, old_span, old_turned
                self.middles[index] = old_middle

    def strain(self, photo):
        pixels = 0.25 * photo.lack_of_room(self.height)
        if self.total <= 24:
            pixels += 3 * max(0, overhang(photo.turned().corners(), self.height) - HANG_TURNED)
        return self.cost_of_pixels(pixels)

    def leaves(self, new, old):
        """True for a step beyond the rim; whoever stands there may come back."""
        hang = overhang(new.corners(), self.height)
        return hang > 0 and hang >= overhang(old.corners(), self.height)

    def most_bare_when_turned(self, order):
        """The greatest share of the poster that turns leave bare."""
        if self.total > MOST_TURNED:
            return 0
        return max(bare.bit_count() for bare in self.bare_when_turned(order)) / self.raster.all.bit_count()

    def bare_share(self):
        """How much stays bare of the whole poster, and of the corner that is covered least."""
        bare = self.raster.all & ~layers(self.spans)[0]
        return (bare.bit_count() / self.raster.all.bit_count(),
                max((bare & corner).bit_count() / corner.bit_count() for corner in self.raster.each_corner))


@dataclass
class Scatter:
    name: str
    height: int
    places: list
    least_shown: float
    bare: float
    bare_corner: float
    bare_turned: float
    middle_hidden: float
    beyond_turned: float

    def tall(self):
        return sum(place.height > place.width for place in self.places)

    def flaws(self):
        return 10 * max(0, 0.61 - self.least_shown) + 2 * max(0, self.middle_hidden - 0.05) + 3 * self.bare + 25 * max(0, self.bare - 0.035) + \
            2.5 * self.bare_corner ** 2 + 8 * max(0, self.bare_turned - 0.06) + self.breaches()

    def breaches(self):
        """What a poster must not have: a bare corner, a hidden middle, a photo that is off it when it is turned."""
        few, many = len(self.places) <= FEW, len(self.places) >= 12
        return 20 * (max(0, self.bare_corner - (0.65 if few else 0.5)) + max(0, self.middle_hidden - 0.28)
                     + max(0, self.bare - (0.1 if len(self.places) == 3 else 0.05))) + max(0, self.beyond_turned - (320 if many else 530)) / 20

    def entry(self):
        return f"{len(self.places):02}:{self.tall():02}:{len(self.places) - self.tall():02}:{self.name}"

    def lines(self):
        return [f"[{self.name}]"] + [
            f"{index + 1}:{place.top}:{place.left}:{place.height}:{place.width}:{place.rotation}"
            for index, place in enumerate(self.places)]


def thrown(total, height, name):
    """The best of some throws; the first that is good enough ends the search."""
    found = []
    for attempt in range(60 if total <= 7 else 24 if total <= 16 else 16 if total <= 24 else 4):
        chance = random.Random(f"{name} {attempt}")
        throw = Throw(total, height, (FEW_HEAPS if total <= FEW else HEAPS)[attempt % 4], chance)
        throw.improve(100 + 5 * total)
        for _ in range(3 if total <= 24 else 2):
            throw.settle(throw.in_order()[0], 900 + 30 * total if total <= 24 else 200 + (14 if total <= 40 else 9) * total)
        order, share = throw.in_order()
        found.append(Scatter(name, height, [throw.photos[index].place() for index in order], share, *throw.bare_share(),
                             throw.most_bare_when_turned(order), throw.most_middle_hidden(order), throw.furthest_turned()))
        if found[-1].flaws() < (0.08 if total <= 24 else 0.11):
            break
    return min(found, key=Scatter.flaws)


def all_scatters():
    totals = scatter_totals()
    with concurrent.futures.ProcessPoolExecutor() as pool:
        tall = pool.map(thrown, totals, [3000] * len(totals), [f"scatter{total:02}" for total in totals])
        square = pool.map(thrown, totals, [2000] * len(totals), [f"square{total:02}" for total in totals])
        return list(tall), list(square)


def tables(tall, square):
    """The lines of quick_scatter.ini and of scatter_templates. The list of exact counts is empty: it would be asked on
    the square poster too, and no scatter covers both."""
    entries = [one.entry() for one in tall] + ["SQUARES"] + [one.entry() for one in square]
    return entries, [line for one in tall + square for line in one.lines()]
