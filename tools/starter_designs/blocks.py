"""Layouts of upright photos, wall to wall or with air between them."""
from starter_designs.mosaic import mosaic, shadows_beneath, tiled
from starter_designs.place import LANDSCAPE, PORTRAIT, box, grid, rows


def three_of_us():
    return rows(PORTRAIT, 80, 40, [(1240, [1]), (1560, [1, 1])])


def four_squared():
    return rows(PORTRAIT, 100, 50, [(1375, [1, 1]), (1375, [1, 1])])


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
    """Nine courses, every other one with half a brick at each end."""
    places = []
    for course in range(9):
        top, bottom = round(course * 3000 / 9), round((course + 1) * 3000 / 9)
        edges = [0, 500, 1000, 1500, 2000] if course % 2 == 0 else [0, 250, 750, 1250, 1750, 2000]
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
    around = [(x, y, 1, 1) for y in range(5) for x in range(5) if not (x in (1, 2, 3) and y in (1, 2, 3))]
    return raster(PORTRAIT, 50, 25, 5, 5, [(1, 1, 3, 3)] + around)


def checkers():
    """Large landscapes and clusters of four small ones in turn, like the fields of a board."""
    cells = []
    for y in range(4):
        for x in range(4):
            if (x + y) % 2 == 0:
                cells.append((2 * x, 2 * y, 2, 2))
            else:
                cells += [(2 * x + dx, 2 * y + dy, 1, 1) for dy in (0, 1) for dx in (0, 1)]
    return raster(LANDSCAPE, 30, 14, 8, 8, cells)


def large_and_small():
    small = [(x + dx, y + dy, 1, 1) for x, y in ((2, 0), (0, 2)) for dy in (0, 1) for dx in (0, 1)]
    return raster(PORTRAIT, 60, 30, 4, 4, [(0, 0, 2, 2), (2, 2, 2, 2)] + small)


def wall_of_fame():
    return raster(PORTRAIT, 110, 60, 3, 3, [(x, y, 1, 1) for y in range(3) for x in range(3)])


def album_page():
    """A tall photo on the left page, six landscapes on the right one."""
    right = [box(1420 + x * 735, 160 + y * 580, 675, 520) for y in range(3) for x in (0, 1)]
    return [box(160, 160, 1130, 1680)] + right


def headline():
    return rows(PORTRAIT, 100, 50, [(1200, [1]), (870, [1, 1, 1]), (630, [1, 1])])


def bookshelf():
    """Books of different widths on four boards."""
    return rows(PORTRAIT, 70, 20, [(700, [430, 520, 400, 450]), (700, [500, 400, 480, 420]), (700, [410, 470, 420, 500]),
                                   (700, [480, 420, 490, 410])])


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
    """Six photos that melt into each other."""
    cells = [(0, 0, 2000, 1060), (0, 980, 1060, 1100), (980, 980, 1020, 700), (980, 1600, 1020, 700), (0, 2000, 1060, 1000),
             (980, 2220, 1020, 780)]
    return [box(*cell) for cell in cells]


def soft_portraits():
    cells = [(0, 0, 1060, 1060), (980, 0, 1060, 1060), (1960, 0, 1040, 1060), (0, 980, 740, 1020), (660, 980, 860, 1020),
             (1440, 980, 860, 1020), (2220, 980, 780, 1020)]
    return [box(*cell) for cell in cells]


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
    """Two large photos, the small ones in an L around each."""
    cells = [(0, 0, 4, 4), (4, 0, 2, 2), (4, 2, 2, 2), (0, 4, 2, 2), (2, 4, 2, 2), (4, 4, 2, 2), (0, 6, 2, 2), (2, 6, 4, 4),
             (0, 8, 2, 2)]
    return raster(PORTRAIT, 70, 30, 6, 10, cells)


def fortnight():
    """Pairs of landscapes and rows of four portraits in turn: seven photos a week, twice."""
    return rows(PORTRAIT, 70, 35, [(500, [1, 1]), (610, [1] * 4), (500, [1, 1]), (610, [1] * 4), (500, [1, 1])])


def three_weeks():
    return raster(LANDSCAPE, 60, 24, 7, 3, [(x, y, 1, 1) for y in range(3) for x in range(7)])


def quilt():
    return grid(168, 50, 7, 5, 10, 10, 372, 372)


def class_photo():
    """Ten by five upright cells on a wide page."""
    return grid(40, 42, 5, 10, 14, 14, 372, 279)


def big_window():
    """A landscape of nine cells, the other twenty-seven around it."""
    around = [(x, y, 1, 1) for y in range(6) for x in range(6) if not (x in (1, 2, 3) and y in (1, 2, 3))]
    return raster(LANDSCAPE, 50, 22, 6, 6, [(1, 1, 3, 3)] + around)
