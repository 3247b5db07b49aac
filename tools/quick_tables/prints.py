"""Prints of a scatter: where a photo lies, how it turns, how far it may reach; and the poster as points.

All sizes in pixels of the upright poster; a photo turns about its own top-left corner.
"""
import math
from dataclasses import dataclass, replace

from starter_designs.place import centred

WIDTH = 2000
HANG = 130          # how far a corner may leave the poster
ROOM = 85           # how far a turned photo may reach before the program takes a broader border

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


def photo_of(place):
    corners = place.corners()
    x, y = (sum(point[axis] for point in corners) / 4 for axis in (0, 1))
    return Photo(x, y, place.width, place.height, place.rotation)


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

    def reach_beyond(self, height):
        """How far the photo, turned, reaches beyond the poster by the program's reckoning."""
        place, long_side = self.turned(), max(self.width, self.height)
        reach = REACH["wide" if self.height > self.width else "tall"]
        index = round((self.tilt + 35) / 5)
        index -= index > 6
        low = min(place.top + long_side * reach["top"][index], place.left + long_side * reach["left"][index])
        high = max(place.top + long_side * reach["bottom"][index] - height,
                   place.left + long_side * reach["right"][index] - WIDTH)
        return max(0, -low, high)

    def lack_of_room(self, height):
        """How far the photo, turned, would reach beyond what leaves the user every border."""
        return max(0, self.reach_beyond(height) - ROOM)


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

    def span(self, photo):
        """The points inside a photo."""
        angle = math.radians(photo.tilt)
        c, s = math.cos(angle), math.sin(angle)
        half_width, half_height, steep = photo.width / 2, photo.height / 2, abs(s) > 1e-9
        reach, found = half_width * abs(s) + half_height * c, 0
        first = max(0, math.ceil((photo.y - reach) / self.step_y - 0.5))
        last = min(self.rows - 1, math.floor((photo.y + reach) / self.step_y - 0.5))
        for row in range(first, last + 1):
            down = (row + 0.5) * self.step_y - photo.y  # between its left and right edge, and between its upper and lower one
            low, high = (-half_width - down * s) / c, (half_width - down * s) / c
            if steep:
                ends = (down * c - half_height) / s, (down * c + half_height) / s
                low, high = max(low, min(ends)), min(high, max(ends))
            left = max(0, math.ceil((photo.x + low) / self.step_x - 0.5))
            right = min(self.columns - 1, math.floor((photo.x + high) / self.step_x - 0.5))
            if right >= left:
                found |= ((1 << (right - left + 1)) - 1) << (row * self.columns + left)
        return found


def overhang(corners, height):
    xs, ys = [x for x, _ in corners], [y for _, y in corners]
    return max(0, max(-min(xs), -min(ys), max(xs) - WIDTH, max(ys) - height) - HANG)


def leaves(new, old, height):
    """True for a step beyond the rim; whoever stands there may come back."""
    hang = overhang(new.corners(), height)
    return hang > 0 and hang >= overhang(old.corners(), height)


def overlap(one, other):
    """By how many pixels two photos would have to part so as not to overlap; 0 and less where they don't."""
    least = math.inf
    for tilt in (one.tilt, other.tilt):
        for angle in (math.radians(tilt), math.radians(tilt + 90)):
            spans = [[x * math.cos(angle) + y * math.sin(angle) for x, y in photo.corners()] for photo in (one, other)]
            least = min(least, *(max(spans[at]) - min(spans[1 - at]) for at in (0, 1)))
    return least
