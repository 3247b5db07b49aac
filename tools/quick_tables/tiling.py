"""Tilings of a poster, wall to wall, found by trial and return.

A cell is (left, top, width, height, kind) with kind "P" for a portrait and "L" for a landscape; first in modules of a
raster, then in pixels of the poster as it hangs on the wall.
"""
import math


class Hopeless(Exception):
    """The search has taken more steps than it may."""


class Skyline:
    """Fills a raster from the top: always the highest free spot, the leftmost of them."""

    def __init__(self, columns, rows, steps):
        self.columns, self.rows, self.steps = columns, rows, steps
        self.depths = [0] * columns
        self.cells = []

    def spot(self):
        """The column and the row of the spot to fill next and how wide it is."""
        row = min(self.depths)
        left = self.depths.index(row)
        right = left
        while right < self.columns and self.depths[right] == row:
            right += 1
        return left, row, right - left

    def fits(self, width, height, room, row):
        return width <= room and row + height <= self.rows

    def put(self, left, row, width, height, kind):
        self.steps -= 1
        if self.steps < 0:
            raise Hopeless
        self.depths[left:left + width] = [row + height] * width
        self.cells.append((left, row, width, height, kind))

    def take_back(self):
        left, row, width, height, _ = self.cells.pop()
        self.depths[left:left + width] = [row] * width


def filled_by_sizes(columns, rows, pieces, chance, steps=1200):
    """A tiling by exactly these pieces, a dictionary {(width, height, kind): how many}, or None."""
    sky, left_over = Skyline(columns, rows, steps), dict(pieces)

    def order():
        waiting = [(piece, count) for piece, count in left_over.items() if count]
        keyed = [(chance.random() ** (1 / (count * math.sqrt(piece[0] * piece[1]))), piece) for piece, count in waiting]
        return [piece for _, piece in sorted(keyed, reverse=True)]

    def fill():
        if min(sky.depths) == rows:
            return True
        left, row, room = sky.spot()
        for piece in order():
            width, height, kind = piece
            if sky.fits(width, height, room, row):
                sky.put(left, row, width, height, kind)
                left_over[piece] -= 1
                if fill():
                    return True
                left_over[piece] += 1
                sky.take_back()
        return False

    try:
        return list(sky.cells) if fill() else None
    except Hopeless:
        return None


def shapes(columns, rows, module, least, most):
    """All sizes in modules that make a portrait of at most 1 to `most` or a landscape between `least` and `most`."""
    found = []
    for width in range(1, columns + 1):
        for height in range(1, rows + 1):
            ratio = width * module[0] / (height * module[1])
            if least <= ratio <= most:
                found.append((width, height, "L"))
            elif 1.03 <= 1 / ratio <= most:
                found.append((width, height, "P"))
    return found


def filled_by_counts(columns, rows, module, counts, limits, chance, steps=5000, wanted=10):
    """Tilings with so many portraits and landscapes of any size, `limits` being those of `shapes`: at most `wanted`
    of them."""
    sky, left_over, found = Skyline(columns, rows, steps), dict(counts), []
    total = sum(counts.values())
    mean = columns * rows / total
    choices = [shape for shape in shapes(columns, rows, module, *limits)
               if mean / 4 <= shape[0] * shape[1] <= mean * 3.2 and counts[shape[2]]]

    def fill(free):
        if not free:
            if sum(left_over.values()) == 0:
                found.append(list(sky.cells))
            return
        waiting = sum(left_over.values())
        if not waiting or not mean / 4 * waiting <= free <= mean * 3.2 * waiting:
            return
        left, row, room = sky.spot()
        for width, height, kind in chance.sample(choices, len(choices)):
            if left_over[kind] and sky.fits(width, height, room, row) and (waiting > 1 or width * height == free):
                sky.put(left, row, width, height, kind)
                left_over[kind] -= 1
                fill(free - width * height)
                left_over[kind] += 1
                sky.take_back()
                if len(found) >= wanted:
                    return

    try:
        fill(columns * rows)
    except Hopeless:
        pass
    return found


def in_pixels(cells, columns, rows, width, height):
    """The cells on the poster: edges at multiples of 4 across and 2 down, so that all can be cut and halved."""
    across = [round(width * at / columns / 4) * 4 for at in range(columns + 1)]
    down = [round(height * at / rows / 2) * 2 for at in range(rows + 1)]
    return [(across[x], down[y], across[x + w] - across[x], down[y + h] - down[y], kind) for x, y, w, h, kind in cells]


def turned_about(cells, columns, rows):
    return [(columns - x - w, rows - y - h, w, h, kind) for x, y, w, h, kind in cells]
