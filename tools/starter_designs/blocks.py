"""Layouts of upright photos, wall to wall or with air between them."""
from starter_designs.mosaic import mosaic, shadows_beneath, tiled
from starter_designs.place import LANDSCAPE, PORTRAIT, box, grid, rows


def three_of_us():
    return rows(PORTRAIT, 80, 40, [(1240, [1]), (1560, [1, 1])])


def four_squared():
    """Four squares in the middle of the page, which may stand or lie."""
    return [box(120 + 900 * x, 620 + 900 * y, 860, 860) for y in (0, 1) for x in (0, 1)]


def windmills():
    """Six windmills of four photos round a small square one."""
    gap, wide, high = 24, 564, 350
    places = []
    for middle_y in (530, 1500, 2470):
        for middle_x in (530, 1470):
            left, top, side = middle_x - 450, middle_y - 450, 900
            long_side = side - gap - high
            places += [box(left, top, long_side, high), box(left + long_side + gap, top, high, long_side),
                       box(left + high + gap, top + long_side + gap, long_side, high),
                       box(left, top + high + gap, high, long_side),
                       box(left + high + gap, top + high + gap, side - 2 * high - 2 * gap, side - 2 * high - 2 * gap)]
    assert wide > high
    return places


def brick_wall():
    """Nine courses, every other one with halves of bricks at its ends and in the middle."""
    places = []
    for course in range(9):
        top, bottom = round(course * 3000 / 9), round((course + 1) * 3000 / 9)
        edges = [0, 500, 1000, 1500, 2000] if course % 2 == 0 else [0, 250, 750, 1000, 1250, 1750, 2000]
        places += [box(left, top, right - left, bottom - top) for left, right in zip(edges, edges[1:])]
    return places


def golden_spiral():
    """Squares of the sides 13, 8, 5 and 3, and what is left inside them, two by three."""
    unit, left, top, gap = 136, 116, 72, 24
    cells = [(0, 0, 13, 13), (5, 13, 8, 8), (0, 16, 5, 5), (0, 13, 3, 3), (3, 13, 2, 3)]
    return [box(left + x * unit + gap / 2, top + y * unit + gap / 2, w * unit - gap, h * unit - gap) for x, y, w, h in cells]


def raster(size, margin, gap, columns, lines, cells):
    """Cells (column, line, columns, lines) of a raster with even gaps."""
    wide = (size[0] - 2 * margin - gap * (columns - 1)) / columns
    high = (size[1] - 2 * margin - gap * (lines - 1)) / lines
    places = []
    for x, y, across, down in cells:
        left, right = round(margin + x * (wide + gap)), round(margin + (x + across) * (wide + gap) - gap)
        top, bottom = round(margin + y * (high + gap)), round(margin + (y + down) * (high + gap) - gap)
        places.append(box(left, top, right - left, bottom - top))
    return places


def centre_stage():
    """A portrait of eight modules by twelve, upright photos at its sides, landscapes above and below."""
    sides = [(x, y, 2, 3) for x in (0, 10) for y in (3, 6, 9, 12)]
    ends = [(x, y, 4, 3) for y in (0, 15) for x in (0, 4, 8)]
    return raster(PORTRAIT, 50, 25, 12, 18, [(2, 3, 8, 12)] + sides + ends)


def checkers():
    """Large landscapes and pairs of portraits in turn, like the fields of a board."""
    cells = []
    for y in range(4):
        for x in range(4):
            if (x + y) % 2 == 0:
                cells.append((2 * x, y, 2, 1))
            else:
                cells += [(2 * x + at, y, 1, 1) for at in (0, 1)]
    return raster(LANDSCAPE, 40, 18, 8, 4, cells)


def large_and_small():
    """Two large portraits that face each other across two pairs of landscapes."""
    return [box(70, 70, 920, 1415), box(1010, 1515, 920, 1415)] + [
        box(left, top, 920, 692) for left, first in ((1010, 70), (70, 1515)) for top in (first, first + 723)]


def wall_of_fame():
    """Nine portraits with room for the name of the team above."""
    return [box(110 + 610 * x, 480 + 790 * y, 560, 740) for y in range(3) for x in range(3)]


def album_page():
    """A tall photo on the left page; on the right one three portraits between two pairs of landscapes."""
    pairs = [box(1450 + x * 735, y, 690, 460) for y in (280, 1310) for x in (0, 1)]
    return [box(170, 280, 1110, 1490)] + pairs + [box(1450 + x * 490, 785, 445, 480) for x in range(3)]


def headline():
    return rows(PORTRAIT, 100, 50, [(1200, [1]), (870, [1, 1, 1]), (630, [1, 1])])


def bookshelf():
    """Two books that stand and one that lies on each of four boards."""
    return rows(PORTRAIT, 70, 20, [(700, [430, 470, 920]), (700, [930, 440, 450]), (700, [450, 920, 450]), (700, [470, 430, 920])])


def zigzag():
    return rows(PORTRAIT, 80, 50, [(913, [1270, 600]), (914, [600, 1270]), (913, [1270, 600])])


def columns(size, margin, gap, orders):
    """Columns of equal width, each an order of "L" and "P", stretched to the same height."""
    wide = (size[0] - 2 * margin - gap * (len(orders) - 1)) / len(orders)
    places = []
    for index, order in enumerate(orders):
        wanted = [wide * (1.5 if letter == "P" else 2 / 3) for letter in order]
        stretch = (size[1] - 2 * margin - gap * (len(order) - 1)) / sum(wanted)
        left, top = round(margin + index * (wide + gap)), margin
        right = round(margin + index * (wide + gap) + wide)
        for high in wanted:
            places.append(box(left, round(top), right - left, round(top + high * stretch) - round(top)))
            top += high * stretch + gap
    return places


def three_columns():
    return columns(PORTRAIT, 80, 40, ["LPLP", "PLPL", "LPLP"])


def four_columns():
    return columns(PORTRAIT, 60, 30, ["PLPPL", "LPPLP", "PLPLP", "LPLPP"])


def wide_columns():
    return columns(LANDSCAPE, 80, 40, ["PLL", "PP", "LPL", "PP", "LLP"])


def square_tiles():
    return grid(75, 55, 6, 4, 30, 30, 450, 450)


def mixed_matrix():
    """Upright cells of which a landscape takes two."""
    return grid(70, 60, 3, 6, 40, 40, 593, 446, both=1)


def heart_wall():
    """Small portraits in the shape of a heart."""
    lines = [(1, 2, 3, 6, 7, 8), range(0, 10), range(0, 10), range(0, 10), range(0, 10), range(1, 9), range(2, 8), range(3, 7),
             (4, 5)]
    wide, high, gap = 172, 240, 14
    left, top = (2000 - 10 * wide - 9 * gap) / 2, (3000 - 9 * high - 8 * gap) / 2
    return [box(left + x * (wide + gap), top + y * (high + gap), wide, high) for y, line in enumerate(lines) for x in line]


def diamond():
    """Rows of one to five landscapes and back again."""
    places = []
    for line in range(9):
        count = 5 - abs(4 - line)
        left = 1000 - (count * 342 + (count - 1) * 26) / 2
        places += [box(left + x * 368, 205 + line * 290, 342, 264) for x in range(count)]
    return places


def soft_clouds():
    """Six photos with soft edges in three rows, each with air around it."""
    return rows(PORTRAIT, 130, 90, [(800, [1030, 620]), (960, [640, 640]), (800, [620, 1030])])


def soft_portraits():
    """Seven photos with soft edges on a wide page: three above four."""
    return rows(LANDSCAPE, 130, 90, [(900, [1, 2, 1]), (750, [620, 480, 480, 800])])


def little_mosaic():
    return mosaic(PORTRAIT, 250, [(5, 4, 1), (4, 5, 1), (4, 3, 2), (3, 4, 2), (3, 3, 1), (3, 2, 8), (2, 3, 8)], seed=5)


def wide_mosaic():
    return mosaic(LANDSCAPE, 200, [(6, 4, 1), (4, 6, 1), (4, 3, 3), (3, 4, 2), (3, 2, 10), (2, 3, 10)], seed=14)


def many_photos():
    """Three bands of nineteen, tiled each for itself: the whole wall would take the search too long."""
    small, unit = [(3, 2, 40), (2, 3, 40), (2, 2, 2)], 125
    cells = []
    for band, (large, seed, mirrored) in enumerate((((6, 4, 1), 14, 0), ((4, 6, 1), 5, 0), ((6, 4, 1), 3, 1))):
        cells += [(16 - x - wide if mirrored else x, y + 8 * band, wide, high)
                  for x, y, wide, high in tiled(16, 8, [large] + small, seed)]
    return [box(x * unit, y * unit, wide * unit, high * unit) for x, y, wide, high in shadows_beneath(cells)]


def forty_wide():
    return mosaic(LANDSCAPE, 125, [(8, 6, 1), (6, 8, 1), (6, 4, 4), (4, 6, 4), (3, 2, 30), (2, 3, 30)], seed=4)


def ladder():
    """Four wide rungs between two rails of small photos."""
    rails = [(x, y, 1, 1) for y in range(8) for x in (0, 5)]
    return raster(PORTRAIT, 60, 30, 6, 8, [(1, y, 4, 2) for y in (0, 2, 4, 6)] + rails)


def window_seat():
    """A large landscape and a large portrait in opposite corners, small ones beside each."""
    cells = [(0, 0, 8, 5), (8, 0, 4, 5), (0, 5, 4, 5), (0, 10, 4, 5), (4, 5, 8, 10), (0, 15, 4, 5), (4, 15, 8, 5)]
    return raster(PORTRAIT, 70, 26, 12, 20, cells)


def fortnight():
    """Pairs of landscapes and rows of four portraits in turn: seven photos a week, twice."""
    return rows(PORTRAIT, 70, 35, [(500, [1, 1]), (610, [1] * 4), (500, [1, 1]), (610, [1] * 4), (500, [1, 1])])


def three_weeks():
    """Seven squares a week, with room for the name of the month above."""
    return [box(80 + 408 * x, 540 + 408 * y, 384, 384) for y in range(3) for x in range(7)]


def quilt():
    return grid(168, 50, 7, 5, 10, 10, 372, 372)


def class_photo():
    """Ten by five upright cells on a wide page."""
    return grid(40, 42, 5, 10, 14, 14, 372, 279)


def big_window():
    """A landscape of nine cells; of the others every third is parted into two portraits."""
    around = [(x, y) for y in range(6) for x in range(6) if not (x in (1, 2, 3) and y in (1, 2, 3))]
    cells = [(2, 1, 6, 3)]
    for at, (x, y) in enumerate(around):
        cells += [(2 * x, y, 1, 1), (2 * x + 1, y, 1, 1)] if at % 3 == 1 else [(2 * x, y, 2, 1)]
    return raster(LANDSCAPE, 50, 22, 12, 6, cells)
