"""Quick scatters: tilted photos thrown so that they cover the poster and none of them is hidden.

A short hill climb over a coarse raster, whose points are the bits of whole numbers, from a fixed seed. All sizes in
pixels of the upright poster; a photo turns about its own top-left corner.
"""
import concurrent.futures
import math
import random
from dataclasses import dataclass, replace

from quick_tables.limits import scatter_totals
from quick_tables.prints import HANG, WIDTH, Photo, Raster, overhang

HANG_TURNED = 140     # how far a large photo that has been turned may leave the poster, beyond HANG
MOST_PRODUCT = 32767  # of a side and the tilt
HEAPS = (1.3, 1.24, 1.36, 1.2)  # areas of all photos to that of the poster: those that are tried in turn
FEW = 4               # photos up to which a poster is hardly covered without bare corners
FEW_HEAPS = (1.36, 1.28, 1.44, 1.22)  # the same for so few
SIZED = 8             # photos up to which some are larger than others, since equal ones can't share a poster well
LOOSE = 5             # photos up to which a lattice is no good beginning
MIDDLE_COUNTS = 10    # how much a hidden middle weighs; half of it in a photo's neighbour that has been turned
HIDDEN, HIDDEN_TURNED = 0.35, 0.45  # of a photo: what is hidden beyond it counts
TURNED_COUNTS = 0.7   # how much what is hidden by turns weighs
CLOSELY = 20          # pixels from point to point when the outcome is judged


def layers(spans):
    """Points under at least one, two and three photos."""
    one = two = three = 0
    for span in spans:
        three |= two & span
        two |= one & span
        one |= span
    return one, two, three


def hiding(order, spans, middles, middle_counts=MIDDLE_COUNTS, allowed=HIDDEN):
    """What is covered, and how bad it is that photos are hidden when they are drawn in this order."""
    above = hidden = 0
    for index in reversed(order):
        span, middle = spans[index], middles[index]
        points = span.bit_count()
        lacking = 1 - allowed - (span & ~above).bit_count() / max(1, points)
        if lacking > 0:
            hidden += points * (20 * lacking) ** 2
        hidden += points * (middle_counts * (middle & above).bit_count() / max(1, middle.bit_count())) ** 2
        above |= span
    return above, hidden


class Throw:
    def __init__(self, total, height, heap, chance):
        self.total, self.height, self.chance = total, height, chance
        self.worth_of_bare = 12 if total <= SIZED else 6
        area, self.worth_of_corner = WIDTH * height, 28 if total <= 16 else 14
        longest = WIDTH * (0.78 if total > 4 else 0.96 if height > WIDTH else 0.86)
        self.long_side = max(12, math.floor(min(math.sqrt(1.5 * heap * area / total), longest) / 12) * 12)
        self.short_side = self.long_side * 2 // 3
        self.raster = Raster(height, 50 if total <= SIZED else max(28, min(45, self.long_side / 11)))
        self.photos = self.start()
        self.strains = [self.strain(photo) for photo in self.photos]
        self.see()

    def see(self):
        """All photos as points of the raster."""
        self.spans = [self.span(photo) for photo in self.photos]
        self.turned_spans = [self.turned_span(photo) for photo in self.photos]
        self.middles = [self.raster.span(photo.middle().corners()) for photo in self.photos]

    def look_closely(self):
        self.raster = Raster(self.height, CLOSELY)
        self.see()

    def span(self, photo):
        return self.raster.span(photo.corners())

    def turned_span(self, photo):
        return self.raster.span(photo.turned().corners())

    def tilts(self):
        steepest = min(35, MOST_PRODUCT // self.long_side // 5 * 5) if self.total > SIZED else 10
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
        photos, loose = [], self.total <= LOOSE and self.chance.random() < 0.7
        for row, count in enumerate(counts):
            for column in range(count):
                x, y = (column + 0.5) / count * WIDTH, (row + 0.5) / rows * self.height
                if loose:
                    x, y = self.chance.uniform(0.2, 0.8) * WIDTH, self.chance.uniform(0.2, 0.8) * self.height
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
        costs = []
        for turned in self.turnings(order):
            covered, hidden = hiding(order, [self.turned_spans[index] if index in turned else span
                                             for index, span in enumerate(self.spans)], self.middles,
                                     MIDDLE_COUNTS / 2, HIDDEN_TURNED)
            bare = self.raster.all & ~covered
            costs.append(self.worth_of_bare * bare.bit_count() + self.worth_of_corner / 2 * (bare & self.raster.corners).bit_count()
                         + TURNED_COUNTS * hidden)
        return sum(costs) / len(costs) + max(costs)

    def badness(self, order):
        """What is wrong with the whole throw, drawn in this order: bare points, hidden photos."""
        above, hidden = hiding(order, self.spans, self.middles)
        bare = self.raster.all & ~above
        return self.worth_of_bare * bare.bit_count() + self.worth_of_corner * (bare & self.raster.corners).bit_count() + hidden + \
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
            if self.total <= SIZED and self.chance.random() < 0.3:
                new = self.resized(new)
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

    def resized(self, photo):
        long_side = max(photo.width, photo.height) + 12 * self.chance.randint(-8, 8)
        long_side = max(0.72 * self.long_side // 12 * 12, min(1.25 * self.long_side // 12 * 12, 1980, long_side))
        size = (round(long_side), round(long_side) * 2 // 3)
        return replace(photo, width=size[photo.width < photo.height], height=size[photo.width > photo.height])

    def strain(self, photo):
        pixels = 0.25 * photo.lack_of_room(self.height)
        if self.total <= 24:
            pixels += 3 * max(0, overhang(photo.turned().corners(), self.height) - HANG_TURNED)
        return self.cost_of_pixels(pixels)

    def leaves(self, new, old):
        """True for a step beyond the rim; whoever stands there may come back."""
        hang = overhang(new.corners(), self.height)
        return hang > 0 and hang >= overhang(old.corners(), self.height)

    def most_hidden_when_turned(self, order):
        worst = worst_middle = 0
        for turned in self.turnings(order):
            above = 0
            for index in reversed(order):
                span = self.turned_spans[index] if index in turned else self.spans[index]
                worst = max(worst, (span & above).bit_count() / max(1, span.bit_count()))
                worst_middle = max(worst_middle, (self.middles[index] & above).bit_count() / max(1, self.middles[index].bit_count()))
                above |= span
        return worst, worst_middle

    def most_bare_when_turned(self, order):
        """The greatest share of the poster that turns leave bare."""
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
    turned_hidden: float
    turned_middle_hidden: float

    def tall(self):
        return sum(place.height > place.width for place in self.places)

    def flaws(self):
        return 20 * max(0, 0.615 - self.least_shown) + 5 * max(0, self.middle_hidden - 0.06) + 2 * self.bare + 25 * max(0, self.bare - 0.045) + \
            2 * self.bare_corner ** 2 + 6 * max(0, self.bare_turned - 0.09) + 2 * max(0, self.turned_hidden - 0.5) + \
            max(0, self.turned_middle_hidden - 0.25) + self.breaches()

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
    for attempt in range(30 if total <= SIZED else 14 if total <= 24 else 2):
        chance = random.Random(f"{name} {attempt}")
        throw = Throw(total, height, (FEW_HEAPS if total <= FEW else HEAPS)[attempt % 4], chance)
        throw.improve(100 + 5 * total)
        for _ in range(3 if total <= 24 else 2):
            throw.settle(throw.in_order()[0], 1800 if total <= 5 else 900 + 30 * total if total <= 24 else 600 + 10 * total)
        order = throw.in_order()[0]
        throw.look_closely()
        share = min(throw.shown(order).values())
        found.append(Scatter(name, height, [throw.photos[index].place() for index in order], share, *throw.bare_share(),
                             throw.most_bare_when_turned(order), throw.most_middle_hidden(order), throw.furthest_turned(),
                             *throw.most_hidden_when_turned(order)))
        if found[-1].flaws() < (0.1 if total <= 24 else 0.14):
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
