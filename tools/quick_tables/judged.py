"""A scatter, and how far it is from what one should be. All sizes in pixels of the upright poster."""
from dataclasses import dataclass

from quick_tables.eased import LARGE, SIZED
from quick_tables.measures import CLOSELY, Measured, Turning, as_it_stands_and_turned
from quick_tables.prints import Raster, overlap, photo_of

FEW = 4               # photos up to which a poster is hardly covered without bare corners


@dataclass
class Scatter:
    name: str
    height: int
    places: list
    stands: Measured
    turned: Measured
    bordered: float
    furthest: float
    crowded_first: int
    bare_corner: float
    over_middle: float  # pixels

    def tall(self):
        return sum(place.height > place.width for place in self.places)

    def flaws(self):
        """How far it is from what a scatter should be: 0 is all one can wish for."""
        few = len(self.places) <= SIZED
        return 10 * over(self.stands.hidden, 0.36) + 10 * over(self.turned.hidden, 0.4) + 5 * over(self.stands.middle, 0.06) + \
            3 * over(self.turned.middle, 0.16) + 20 * over(self.stands.bare, 0.1 if len(self.places) == 3 else 0.04) + \
            5 * over(self.turned.bare, 0.1) + over(self.stands.hole / 2000, 0.07) + over(self.turned.hole / 2000, 0.14 if few else 0.1) + \
            over(self.furthest, 540 if len(self.places) < 12 else 330) / 100 + self.crowded_first + 3 * over(self.bare_corner, 0.45) + 0.3 * over(self.bordered, 0.6 if len(self.places) <= LARGE else 0.25)

    def flaws_when_cleared(self):
        """The same where middles have to be in sight."""
        return self.flaws() + 0.04 * self.over_middle + 4 * self.turned.middle

    def is_clear(self):
        """No photo lies over the middle of another as it stands, and nothing else is given up for it."""
        few, early = len(self.places) <= FEW, len(self.places) < 12
        return self.over_middle == 0 and self.stands.hidden < 0.39 and self.turned.hidden < 0.435 and self.turned.middle < 0.2 and \
            self.stands.bare < (0.115 if len(self.places) == 3 else 0.058) and self.turned.bare < (0.245 if few else 0.155) and \
            self.furthest < (550 if early else 340) and not self.crowded_first and self.bare_corner < (0.74 if few else 0.59)

    def entry(self):
        return f"{len(self.places):02}:{self.tall():02}:{len(self.places) - self.tall():02}:{self.name}"

    def lines(self):
        return [f"[{self.name}]"] + [
            f"{index + 1}:{place.top}:{place.left}:{place.height}:{place.width}:{place.rotation}"
            for index, place in enumerate(self.places)]


def over(value, limit):
    return max(0, value - limit)


def bare_corner(places, height):
    """The share that stays bare of the corner that is covered least."""
    raster, covered = Raster(height, CLOSELY), 0
    for place in places:
        covered |= raster.span(photo_of(place))
    return max((corner & ~covered).bit_count() / corner.bit_count() for corner in raster.each_corner)


def over_middle(places):
    """By how much a photo lies over the middle of another at most: exactly, where the shares are counted in points."""
    photos = [photo_of(place) for place in places]
    return max(max(0, overlap(photo.middle(), above)) for index, photo in enumerate(photos[:-1]) for above in photos[index + 1:])


def judged(name, height, places):
    turning = Turning(places, height)
    return Scatter(name, height, places, *as_it_stands_and_turned(turning), *turning.off_the_poster(),
                   bare_corner(places, height), over_middle(places))
