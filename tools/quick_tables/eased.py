"""A scatter eased: small steps until no photo is hidden by much and little is bare, whichever photos are turned.

The program turns photos from the first of the list on: any number of the tall ones, or of the wide ones. What a photo
shows depends on those about it alone, so a step looks at a handful of photos, but at each number of turns. A hill climb
over a raster, whose points are the bits of whole numbers. All sizes in pixels of the upright poster.
"""
import math
from dataclasses import dataclass, replace

from quick_tables.prints import HANG, WIDTH, Photo, Raster, leaves, overhang, photo_of

ALLOWED, ALLOWED_MIDDLE = 0.33, 0.02                # shares of a photo and of its middle: what is hidden beyond them counts
ALLOWED_TURNED, ALLOWED_MIDDLE_TURNED = 0.36, 0.05  # the same of the worst number of turns
# How the border that turned photos bring in moves lefts, to how it makes photos smaller.
DRAWN_NEARER, DRAWN_NEARER_FEW = 0.85 / 0.9, 0.8 / 0.87
BARE, CORNER, HOLE = 12, 28, 12  # how much a bare point weighs, more in a corner, more in a wide hole
BARE_FEW, BARE_SOME = 10, 1.6  # how much more all that weighs where photos are few
BARE_TURNED = 0.35    # how much a poster with turned photos weighs
FROM_RIM = 60         # pixels that may stay bare along the rim there
MIDDLE = 300          # how much a hidden middle weighs
LACK_COUNTS = 0.5     # how much a pixel weighs by which a turned photo asks for a border
# A large border draws the photos of a square poster nearer to each other, and few have no other room: those that ask for it.
SQUEEZED, MOST_LACK, SQUEEZED_COUNTS = 16, 190, 5
MOST_BEYOND = 150     # pixels that a turned photo may leave the poster
SIZED = 8             # photos up to which some are larger than others, since equal ones can't share a poster well
# From so many photos on: the share of the list in which none may ask for a border.
EARLY = {41: 0.75, 9: 0.5, 3: 0}
LARGE = 24            # photos up to which most turns bring in a border


@dataclass(frozen=True)
class Lying:
    """A photo, its place in the order, and its points: as it is, and nearer to the others as it is and turned."""
    photo: Photo
    key: float
    span: int
    middle: int
    nearer: tuple
    nearer_middle: tuple
    reach: int
    strain: float
    crowded: float

    @property
    def tall(self):
        return self.photo.height > self.photo.width


@dataclass(frozen=True)
class Turns:
    """Photos that are turned together: the tall ones or the wide ones, up to a key."""
    tall: bool
    limit: float

    def turn(self, lying):
        return lying.tall == self.tall and lying.key < self.limit


def over(share, allowed):
    return max(0, share - allowed) ** 2


class Easing:
    def __init__(self, photos, height, tilts, chance, points=12):
        self.height, self.tilts, self.chance, self.total = height, tilts, chance, len(photos)
        self.early = self.total * next(share for least, share in EARLY.items() if self.total >= least)
        self.nearer = DRAWN_NEARER if self.total > LARGE else DRAWN_NEARER_FEW
        self.long_side = max(max(photo.width, photo.height) for photo in photos)
        self.raster = Raster(height, max(12, min(40, self.long_side / points)))
        self.within = self.raster.span(Photo(WIDTH / 2, height / 2, WIDTH - 2 * FROM_RIM, height - 2 * FROM_RIM, 0))
        self.turns = [Turns(tall, limit) for tall in (True, False) for limit in (math.inf, self.total / 2)]
        self.weight = BARE_FEW if self.total <= SIZED else BARE_SOME if self.total <= LARGE else 1
        self.all = [self.lying(photo, index + 0.5) for index, photo in enumerate(photos)]
        self.near = [self.neighbours(index) for index in range(self.total)]
        self.costs = [self.cost(index) for index in range(self.total)]
        self.bare = self.bare_points()
        self.bare_cost = self.cost_of_bare(self.bare)

    def lying(self, photo, key):
        span, turned = self.raster.span, photo.turned()
        outline, middle = span(photo), span(self.middle(photo))
        nearer = [(outline, middle)]
        if self.height > WIDTH:
            standing = photo_of(self.moved_nearer(photo.place()))
            nearer, turned = [(span(standing), span(standing.middle()))], self.moved_nearer(turned)
        turned = photo_of(turned)
        spans, middles = zip(*nearer, (span(turned), span(turned.middle())))
        return Lying(photo, key, outline, middle, spans, middles, outline | spans[0] | spans[1], *self.strains(photo, key))

    def middle(self, photo):
        return photo.middle()

    def moved_nearer(self, place):
        return replace(place, left=WIDTH / 2 * (1 - self.nearer) + place.left * self.nearer)

    def strains(self, photo, key):
        """The cost of a photo that turns off the poster, and the pixels by which it asks for a border too early."""
        lack = photo.lack_of_room(self.height)
        squeezed = max(0, lack - MOST_LACK) * SQUEEZED_COUNTS if self.height == WIDTH and self.total <= SQUEEZED else 0
        beyond = max(0, overhang(photo.turned().corners(), self.height) + HANG - MOST_BEYOND)
        early = 3 if self.total <= LARGE and key < self.total / 2 else 1
        pixels = squeezed + lack * LACK_COUNTS + beyond * early
        return pixels * self.long_side / self.raster.step_x / self.raster.step_y * BARE, lack if key < self.early else 0

    def neighbours(self, index):
        reach = self.all[index].reach
        return {other for other, lying in enumerate(self.all) if other != index and lying.reach & reach}

    def cost(self, index):
        """How bad it is what is hidden of a photo."""
        own = self.all[index]
        above = sorted((lying for lying in map(self.all.__getitem__, self.near[index]) if lying.key > own.key),
                       key=lambda lying: lying.key)
        covered = 0
        for lying in above:
            covered |= lying.span
        points, middle_points = own.span.bit_count() or 1, own.middle.bit_count() or 1
        hidden, middle = (own.span & covered).bit_count() / points, (own.middle & covered).bit_count() / middle_points
        turned = [self.hidden_when_turned(own, above, tall) for tall in (True, False)]
        return points * self.harm(hidden, middle, *map(max, zip(*turned)))

    def harm(self, hidden, middle, hidden_turned, middle_turned):
        """Of the shares of a photo and of its middle that are hidden as it stands, and of the worst number of turns."""
        return (400 * (over(hidden, ALLOWED) + over(hidden_turned, ALLOWED_TURNED))
                + MIDDLE * (over(middle, ALLOWED_MIDDLE) + over(middle_turned, ALLOWED_MIDDLE_TURNED)))

    def hidden_when_turned(self, own, above, tall):
        """The greatest shares of a photo and of its middle that are hidden, of all numbers of tall or of wide photos that
        may be turned. A photo of that kind is turned before those above it."""
        kind = [lying for lying in above if lying.tall == tall]
        turns = own.tall == tall
        span, middle = own.nearer[turns], own.nearer_middle[turns]
        turned, standing = 0, [0]
        for lying in above:
            if lying.tall != tall:
                turned |= lying.nearer[0]
        for lying in reversed(kind):
            standing.append(standing[-1] | lying.nearer[0])
        hidden = hidden_middle = 0
        for count in range(len(kind) + 1):
            if count:
                turned |= kind[count - 1].nearer[1]
            covered = turned | standing[len(kind) - count]
            if count or turns:
                hidden = max(hidden, (span & covered).bit_count())
                hidden_middle = max(hidden_middle, (middle & covered).bit_count())
        return hidden / (span.bit_count() or 1), hidden_middle / (middle.bit_count() or 1)

    def spans(self, lying):
        """Its points as it stands and at each of the numbers of turns that are looked at."""
        return [lying.span] + [lying.nearer[turns.turn(lying)] for turns in self.turns]

    def bare_points(self):
        bare = [self.raster.all] + [self.within] * len(self.turns)
        for lying in self.all:
            bare = [points & ~span for points, span in zip(bare, self.spans(lying))]
        return bare

    def cost_of_bare(self, bare):
        return self.weight * (self.badly_bare(bare[0]) + BARE_TURNED * sum(map(self.badly_bare, bare[1:])))

    def badly_bare(self, bare):
        columns = self.raster.columns
        wide = bare & bare >> 1 & bare << 1 & bare >> columns & bare << columns
        wide &= wide >> 1 & wide << 1 & wide >> columns & wide << columns
        return BARE * bare.bit_count() + CORNER * (bare & self.raster.corners).bit_count() + HOLE * wide.bit_count()

    def bare_after(self, old, touched):
        """What is bare when some photos have left their places; `touched` are all that lie there now."""
        left = [0] * len(self.bare)
        for lying in old:
            left = [points | span for points, span in zip(left, self.spans(lying))]
        left[1:] = [points & self.within for points in left[1:]]
        bare = [points | others for points, others in zip(self.bare, left)]
        for other in touched:
            bare = [points & ~span for points, span in zip(bare, self.spans(self.all[other]))]
        return bare

    def try_step(self, changed):
        """Takes the photos of {index: lying} if that is no worse."""
        if any(lying.crowded and lying.crowded >= self.all[index].crowded for index, lying in changed.items()):
            return
        old, old_near = {index: self.all[index] for index in changed}, {index: self.near[index] for index in changed}
        touched = set(changed).union(*old_near.values())
        self.lay(changed)
        touched.update(*(self.near[index] for index in changed))
        costs, bare = {index: self.cost(index) for index in touched}, self.bare_after(old.values(), touched)
        bare_cost = self.cost_of_bare(bare)
        gained = bare_cost - self.bare_cost + sum(cost - self.costs[index] for index, cost in costs.items()) + \
            sum(lying.strain - old[index].strain for index, lying in changed.items())
        if gained > 0:
            self.lay(old)
            return
        self.bare, self.bare_cost = bare, bare_cost
        for index, cost in costs.items():
            self.costs[index] = cost

    def lay(self, changed):
        for index, lying in changed.items():
            self.all[index] = lying
        for index in changed:
            near = self.neighbours(index)
            for other in self.near[index] - near:
                self.near[other].discard(index)
            for other in near - self.near[index]:
                self.near[other].add(index)
            self.near[index] = near

    def chosen(self):
        """Any photo, or one that is hidden, or one that lies about it."""
        if self.chance.random() < 0.6:
            return self.chance.randrange(self.total)
        index = max((self.chance.randrange(self.total) for _ in range(4)), key=self.costs.__getitem__)
        if self.near[index] and self.chance.random() < 0.5:
            return self.chance.choice(sorted(self.near[index]))
        return index

    def run(self, rounds, far=0.25):
        for step in range(rounds):
            index, kind = self.chosen(), self.chance.random()
            if kind < 0.12:
                self.reorder(index)
            elif kind < 0.18:
                self.change_kinds(index)
            else:
                self.move(index, self.long_side * (far * (1 - step / rounds) + 0.02))
        return [self.all[index].photo for index in sorted(range(self.total), key=lambda index: self.all[index].key)]

    def move(self, index, reach):
        old = self.all[index].photo
        new = replace(old, x=old.x + self.chance.uniform(-reach, reach), y=old.y + self.chance.uniform(-reach, reach))
        if self.chance.random() < 0.25:
            new = replace(new, tilt=self.chance.choice(self.tilts))
        if self.total <= SIZED and self.chance.random() < 0.3:
            new = self.resized(new)
        if not leaves(new, old, self.height):
            self.try_step({index: self.lying(new, self.all[index].key)})

    def resized(self, photo):
        long_side = max(photo.width, photo.height) + 12 * self.chance.randint(-8, 8)
        long_side = round(max(0.6 * self.long_side // 12 * 12, min(1.2 * self.long_side // 12 * 12, 1980, long_side)))
        size = (long_side, long_side * 2 // 3)
        return replace(photo, width=size[photo.width < photo.height], height=size[photo.width > photo.height])

    def reorder(self, index):
        """The photo just above or below another of those about it."""
        if self.near[index]:
            other = self.all[self.chance.choice(sorted(self.near[index]))]
            self.try_step({index: self.at_key(self.all[index], other.key + self.chance.choice((-1, 1)) * self.chance.uniform(1e-6, 1e-3))})

    def at_key(self, lying, key):
        strain, crowded = self.strains(lying.photo, key)
        return replace(lying, key=key, strain=strain, crowded=crowded)

    def change_kinds(self, index):
        """A tall photo and a wide one change places."""
        other = self.chance.randrange(self.total)
        one, two = self.all[index], self.all[other]
        if one.tall == two.tall:
            return
        first, second = [replace(to.photo, x=at.photo.x, y=at.photo.y) for to, at in ((one, two), (two, one))]
        if not (leaves(first, one.photo, self.height) or leaves(second, two.photo, self.height)):
            self.try_step({index: self.lying(first, one.key), other: self.lying(second, two.key)})
