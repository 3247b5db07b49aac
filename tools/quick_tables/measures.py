"""What a scatter hides and leaves bare, as it stands and with any number of its photos turned.

Counted in points of a raster; all sizes in pixels of the upright poster. A turned photo that reaches beyond the poster
brings in a border, and that draws photos nearer to each other: they are measured as they lie then. On a square poster the program
overlooks what reaches beyond the lower edge; here it counts all the same.
"""
from dataclasses import dataclass, replace

from quick_tables.prints import HANG, Raster, overhang, photo_of

CLOSELY = 20  # pixels from point to point
CROWDED = 150  # pixels by which a turned photo leaves the poster by much
LEAST_REACH = (285, 185, 85)  # pixels beyond the poster at which the program takes a large, medium, small border

# By border: factor of sizes, of tops and of lefts, and what is added to tops and to lefts.
UPRIGHT = {285: (0.835, 0.835, 0.75, 247, 250), 185: (0.87, 0.87, 0.8, 195, 200), 85: (0.9, 0.9, 0.85, 145, 150), 0: (1, 1, 1, 0, 0)}
SQUARE = {285: (0.75, 0.65, 0.75, 247, 250), 185: (0.8, 0.8, 0.8, 195, 200), 85: (0.85, 0.85, 0.85, 145, 150), 0: (1, 1, 1, 0, 0)}


@dataclass
class Measured:
    """Shares of a photo, of its middle third and of the poster, and the side of a bare square; each the worst there is."""
    hidden: float
    middle: float
    bare: float
    hole: int

    def worse(self, other):
        return Measured(max(self.hidden, other.hidden), max(self.middle, other.middle), max(self.bare, other.bare),
                        max(self.hole, other.hole))


def hole_side(bare, raster):
    """Points along the side of the largest bare square."""
    column = sum(1 << row * raster.columns for row in range(raster.rows))
    not_last = raster.all & ~(column << raster.columns - 1)
    side = 0
    while bare:
        side += 1
        pairs = bare & bare >> 1 & not_last
        bare = pairs & pairs >> raster.columns
    return side


def measured(raster, views):
    """Of photos in the order in which they are drawn, each as its points and those of its middle."""
    above, hidden, hidden_middle = 0, 0, 0
    for span, middle in reversed(views):
        hidden = max(hidden, (span & above).bit_count() / max(1, span.bit_count()))
        hidden_middle = max(hidden_middle, (middle & above).bit_count() / max(1, middle.bit_count()))
        above |= span
    bare = raster.all & ~above
    return Measured(hidden, hidden_middle, bare.bit_count() / raster.all.bit_count(),
                    round(hole_side(bare, raster) * raster.step_x))


def least_border(reach):
    return next((least for least in LEAST_REACH if reach > least), 0)


def bordered(place, height, border):
    size, down, across, top, left = (SQUARE if height == 2000 else UPRIGHT)[border]
    return replace(place, top=round(down * place.top + top), left=round(across * place.left + left),
                   height=round(size * place.height), width=round(size * place.width))


class Turning:
    """A scatter whose photos are turned one after the other."""

    def __init__(self, places, height):
        self.height, self.raster, self.places, self.seen = height, Raster(height, CLOSELY), places, {}
        photos = [photo_of(place) for place in places]
        self.turned = [photo.turned() for photo in photos]
        self.reach = [photo.reach_beyond(height) for photo in photos]
        self.beyond = [overhang(photo_of(turned).corners(), height) + HANG for turned in self.turned]

    def view(self, index, turned, border):
        key = index, turned, border
        if key not in self.seen:
            photo = photo_of(bordered(self.turned[index] if turned else self.places[index], self.height, border))
            self.seen[key] = self.raster.span(photo), self.raster.span(photo.middle())
        return self.seen[key]

    def measured(self, turned, border=0):
        return measured(self.raster, [self.view(index, index in turned, border) for index in range(len(self.places))])

    def each(self):
        """(border, measures) for each count of tall photos and of wide photos that may be turned; bare is
        what is bare without the border."""
        for tall in (True, False):
            turned, reach = set(), 0
            for index, place in enumerate(self.places):
                if (place.height > place.width) == tall:
                    turned.add(index)
                    reach = max(reach, self.reach[index])
                    plain, border = self.measured(turned), least_border(reach)
                    found = self.measured(turned, border) if border else plain
                    yield border, replace(found, bare=plain.bare, hole=plain.hole)


    def off_the_poster(self):
        """How far photos leave the poster when they are turned: at most, and how many more of those that leave it by much stand in
        the first half, where turns begin, than in the second."""
        crowded, half = [beyond > CROWDED for beyond in self.beyond], len(self.places) // 2
        return max(self.beyond), max(0, sum(crowded[:half]) - sum(crowded[half:]))


def as_it_stands_and_turned(turning):
    """Measures as it stands, the worst of all turns, and the share of turns that ask for a border."""
    worst, borders = None, []
    for border, found in turning.each():
        borders.append(border > 0)
        worst = found.worse(worst) if worst else found
    return turning.measured(set()), worst, sum(borders) / len(borders)
