"""Quick scatters: tilted photos thrown so that they cover the poster and none of them is hidden.

Each throw spreads photos over a coarse raster, whose points are the bits of whole numbers, and is eased then; the best of
some throws from fixed seeds is taken. All sizes in pixels of the upright poster; a photo turns about its own top-left corner.
"""
import concurrent.futures
import itertools
import math
import random
import sys
from dataclasses import replace

from quick_tables.cleared import cleared, rank
from quick_tables.eased import LARGE, SIZED, Easing
from quick_tables.judged import FEW, Scatter, judged
from quick_tables.limits import scatter_totals
from quick_tables.prints import HANG, WIDTH, Photo, Raster, leaves

MOST_PRODUCT = 32767  # of a side and the tilt
HEAPS = (1.3, 1.24, 1.27, 1.2)  # areas of all photos to that of the poster: those that are tried in turn
FEW_HEAPS = (1.36, 1.28, 1.44, 1.22)  # the same for so few
LOOSE = 5             # photos up to which a lattice is no good beginning
STEEPEST = (35, 25, 15)  # degrees: those that are tried in turn up to LARGE photos, since steep ones leave corners bare
# From so many photos on: how many throws at most, and the flaws that end the search.
ATTEMPTS = {61: (3, 0.15), 41: (4, 0.12), 25: (10, 0.1), 6: (36, 0.1), 3: (60, 0.125)}
CLEARED = 6           # throws at most that are cleared, the best of them
FURTHER = 6           # throws at most that are made and cleared where none of those can be
EASED = ((12, 120, 0.4), (19, 80, 0.1))  # points along a photo, steps for each photo, the longest in photos


def layers(spans):
    """Points under at least one, two and three photos."""
    one = two = three = 0
    for span in spans:
        three |= two & span
        two |= one & span
        one |= span
    return one, two, three


class Throw:
    def __init__(self, total, height, attempt, chance):
        self.total, self.height, self.chance = total, height, chance
        heap, self.worth_of_corner = (FEW_HEAPS if total <= FEW else HEAPS)[attempt % 4], 28 if total <= 16 else 14
        longest = WIDTH * (0.78 if total > 4 else 0.96 if height > WIDTH else 0.86)
        self.long_side = max(12, math.floor(min(math.sqrt(1.5 * heap * WIDTH * height / total), longest) / 12) * 12)
        self.short_side = self.long_side * 2 // 3
        steepest = 10 if total <= SIZED else min(STEEPEST[attempt % 3] if total <= LARGE else 35, MOST_PRODUCT // self.long_side // 5 * 5)
        self.tilts = [tilt for tilt in range(-steepest, steepest + 1, 5) if tilt]
        self.raster = Raster(height, 50 if total <= SIZED else max(28, min(45, self.long_side / 11)))
        self.photos = self.start()
        self.strains = [self.strain(photo) for photo in self.photos]
        self.spans = [self.raster.span(photo) for photo in self.photos]

    def start(self):
        """Middles on a loose lattice, tall and wide in turn, the tilts dealt so that each comes up as often."""
        across = max(1, round(math.sqrt(self.total * WIDTH / self.height)))
        rows = max(1, round(self.total / across))
        if self.total in (3, 4, 5):
            rows = self.total if self.height > WIDTH and self.total < 4 else 2
        counts = [self.total * (row + 1) // rows - self.total * row // rows for row in range(rows)]
        dealt = [self.tilts[index % len(self.tilts)] for index in range(self.total)]
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

    def strain(self, photo):
        return 1.5 * photo.lack_of_room(self.height) * self.long_side / self.raster.step_x ** 2

    def spread(self, rounds):
        """Moves photos to where they cover most of what is bare."""
        for step in range(rounds):
            index = self.chance.randrange(self.total)
            old = self.photos[index]
            reach = self.long_side * (0.5 * (1 - step / rounds) + 0.03)
            new = replace(old, x=old.x + self.chance.uniform(-reach, reach), y=old.y + self.chance.uniform(-reach, reach))
            if self.chance.random() < 0.15:
                new = replace(new, tilt=self.chance.choice(self.tilts))
            if leaves(new, old, self.height):
                continue
            rest = layers(self.spans[:index] + self.spans[index + 1:])
            span, strain = self.raster.span(new), self.strain(new)
            if self.gain(strain, span, *rest) >= self.gain(self.strains[index], self.spans[index], *rest):
                self.photos[index], self.spans[index], self.strains[index] = new, span, strain

    def eased(self):
        """The photos in the order in which they are drawn."""
        photos = sorted(self.photos, key=lambda photo: photo.lack_of_room(self.height))
        for points, rounds, far in EASED:
            rounds *= self.total * (3 if self.total <= SIZED else 1)
            photos = Easing(photos, self.height, self.tilts, self.chance, points).run(rounds, far)
        return photos


def thrown(total, height, name):
    """Throws without end."""
    for attempt in itertools.count():
        throw = Throw(total, height, attempt, random.Random(f"{name} {attempt}"))
        throw.spread(100 + 5 * total)
        yield judged(name, height, [photo.place() for photo in throw.eased()])


def best_thrown(throws, total):
    """Some throws, the best first; one that is good enough ends the search."""
    found, (most, good) = [], next(limits for least, limits in ATTEMPTS.items() if total >= least)
    while len(found) < most and (not found or found[-1].flaws() >= good):
        found.append(next(throws))
    return sorted(found, key=Scatter.flaws)


def scatter(total, height, name):
    """The best throw that can be cleared; more are thrown if none can."""
    throws, found = thrown(total, height, name), []
    for throw in itertools.chain(best_thrown(throws, total)[:CLEARED], itertools.islice(throws, FURTHER)):
        found.append(cleared(throw))
        if found[-1].is_clear():
            break
    print(name, file=sys.stderr)
    return min(found, key=rank)


def all_scatters():
    totals = scatter_totals()
    with concurrent.futures.ProcessPoolExecutor() as pool:
        tall = pool.map(scatter, totals, [3000] * len(totals), [f"scatter{total:02}" for total in totals])
        square = pool.map(scatter, totals, [2000] * len(totals), [f"square{total:02}" for total in totals])
        return list(tall), list(square)


def tables(tall, square):
    """The lines of quick_scatter.ini and of scatter_templates. The list of exact counts is empty: it would be asked on
    the square poster too, and no scatter covers both."""
    entries = [one.entry() for one in tall] + ["SQUARES"] + [one.entry() for one in square]
    return entries, [line for one in tall + square for line in one.lines()]
