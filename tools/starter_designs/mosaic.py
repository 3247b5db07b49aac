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


def mosaic(size, module, tiles, seed):
    columns, rows = size[0] // module, size[1] // module
    return [box(x * module, y * module, width * module, height * module)
            for x, y, width, height in tiled(columns, rows, tiles, seed)]
