"""Mosaics: a page tiled wall to wall with photos of several sizes."""
import random

from starter_designs.place import box


def tiled(columns, rows, tiles, seed):
    """A tiling of the page as (column, row, width, height), all in modules, from the top left.

    `tiles` holds (width, height, how many of it at most). Tries them in random order at the first free module
    and goes back where nothing fits.
    """
    chance = random.Random(seed)
    taken = [[False] * columns for _ in range(rows)]
    left = [count for _, _, count in tiles]
    found = []

    def fits(column, row, width, height):
        return column + width <= columns and row + height <= rows and not any(
            taken[y][x] for y in range(row, row + height) for x in range(column, column + width))

    def mark(column, row, width, height, value):
        for y in range(row, row + height):
            taken[y][column:column + width] = [value] * width

    def lonely(width, height):
        """Never three photos of the same size in turn, or the page becomes a table."""
        return [item[2:] for item in found[-2:]] != [(width, height)] * 2

    def fill():
        spot = next(((x, y) for y in range(rows) for x in range(columns) if not taken[y][x]), None)
        if spot is None:
            return True
        order = list(range(len(tiles)))
        chance.shuffle(order)
        for index in order:
            width, height, _ = tiles[index]
            if left[index] and lonely(width, height) and fits(*spot, width, height):
                mark(*spot, width, height, True)
                left[index] -= 1
                found.append((*spot, width, height))
                if fill():
                    return True
                found.pop()
                left[index] += 1
                mark(*spot, width, height, False)
        return False

    assert fill(), "no tiling"
    return found


def shadows_beneath(cells):
    """The cells in an order in which each shadow, which falls right and down, falls under the next photo."""
    left = sorted(cells)
    ordered = []

    def shades(one, other):
        x, y, width, height = one
        left_x, top_y, other_width, other_height = other
        beside = y < top_y + other_height and top_y < y + height
        above = x < left_x + other_width and left_x < x + width
        return (beside and x + width <= left_x) or (above and y + height <= top_y)

    while left:
        first = next(one for one in left if not any(shades(other, one) for other in left if other != one))
        left.remove(first)
        ordered.append(first)
    return ordered


def mosaic(size, columns, rows, tiles, seed):
    """Modules a little wider than high, so that of tiles of few modules each way none is far from a square."""
    return laid(size, columns, rows, shadows_beneath(tiled(columns, rows, tiles, seed)))


def laid(size, columns, rows, cells):
    xs, ys = ([round(size[axis] * at / count) for at in range(count + 1)] for axis, count in ((0, columns), (1, rows)))
    return [box(xs[x], ys[y], xs[x + width] - xs[x], ys[y + height] - ys[y]) for x, y, width, height in cells]
