"""Layouts of upright photos, wall to wall or with air between them."""
from starter_designs.mosaic import laid, mosaic, shadows_beneath, tiled
from starter_designs.place import LANDSCAPE, PORTRAIT, box, grid, roomy, rows


def three_of_us():
    return roomy(PORTRAIT, rows(PORTRAIT, 80, 40, [(1640, [1]), (1160, [1, 1])]))


def four_squared():
    """Four squares in the middle of the page, which may stand or lie."""
    return roomy(PORTRAIT, [box(120 + 900 * x, 620 + 900 * y, 860, 860) for y in (0, 1) for x in (0, 1)])


def windmills():
    """Six windmills of four photos, which let the cloth show at the hub: a photo there would be too small to see."""
    gap, wide, high = 24, 498, 378
    places = []
    for middle_y in (530, 1500, 2470):
        for middle_x in (530, 1470):
            left, top = middle_x - 450, middle_y - 450
            places += [box(left, top, wide, high), box(left + wide + gap, top, high, wide),
                       box(left + high + gap, top + wide + gap, wide, high), box(left, top + high + gap, high, wide)]
    return roomy(PORTRAIT, places)


def brick_wall():
    """Eight courses of four bricks and of five in turn, so that no joint stands above another."""
    places = []
    for course in range(8):
        count = 4 + course % 2
        edges = [round(2000 * at / count) for at in range(count + 1)]
        places += [box(left, 375 * course, right - left, 375) for left, right in zip(edges, edges[1:])]
    return places


def golden_spiral():
    """Squares of the sides 13, 8, 5 and 3, and what is left inside them, two by three."""
    unit, left, top, gap = 136, 116, 72, 16
    cells = [(0, 0, 13, 13), (5, 13, 8, 8), (0, 16, 5, 5), (0, 13, 3, 3), (3, 13, 2, 3)]
    return roomy(PORTRAIT, [box(left + x * unit + gap / 2, top + y * unit + gap / 2, w * unit - gap, h * unit - gap) for x, y, w, h in cells])


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
    """A large photo of three columns and three rows among small ones, a row more below it than above."""
    around = [(x, y, 1, 1) for y in range(6) for x in range(5) if not (0 < x < 4 and 0 < y < 4)]
    return raster(PORTRAIT, 50, 25, 5, 6, [(1, 1, 3, 3)] + around)


def checkers():
    """Large fields and fields of four small ones in turn, like a board."""
    cells = []
    for y in range(3):
        for x in range(4):
            if (x + y) % 2 == 0:
                cells.append((2 * x, 2 * y, 2, 2))
            else:
                cells += [(2 * x + at, 2 * y + down, 1, 1) for down in (0, 1) for at in (0, 1)]
    return raster(LANDSCAPE, 40, 18, 8, 6, cells)


def large_and_small():
    """Two large photos in opposite corners and four small ones beside them."""
    return roomy(PORTRAIT, [box(70, 70, 1140, 1415), box(790, 1515, 1140, 1415)] + [
        box(left, top, 680, 692) for left, first in ((1250, 70), (70, 1515)) for top in (first, first + 723)])


def wall_of_fame():
    """Nine portraits in three rows with room for the name of the team above."""
    return [box(110 + 610 * x, 480 + 770 * y, 560, 720) for y in range(3) for x in range(3)]


def album_page():
    """A tall photo on the left page; on the right one three small photos between two pairs."""
    pairs = [box(1450 + x * 735, y, 690, 520) for y in (240, 1240) for x in (0, 1)]
    return [box(170, 280, 1110, 1440)] + pairs + [box(1450 + x * 490, 800, 445, 400) for x in range(3)]


def headline():
    return roomy(PORTRAIT, rows(PORTRAIT, 100, 50, [(1350, [1]), (690, [1, 1, 1]), (660, [1, 1])]))


def bookshelf():
    """Three books of different breadth on each of four boards."""
    return roomy(PORTRAIT, rows(PORTRAIT, 70, 20, [(700, [550, 600, 670]), (700, [680, 560, 580]), (700, [580, 670, 570]), (700, [560, 560, 700])]))


def zigzag():
    return roomy(PORTRAIT, rows(PORTRAIT, 80, 50, [(913, [1120, 720]), (914, [720, 1120]), (913, [1120, 720])]))


def columns(size, margin, gap, orders):
    """Columns of equal width, each an order of "L" and "P", stretched to the same height."""
    wide = (size[0] - 2 * margin - gap * (len(orders) - 1)) / len(orders)
    places = []
    for index, order in enumerate(orders):
        wanted = [wide * (1.25 if letter == "P" else 0.8) for letter in order]
        stretch = (size[1] - 2 * margin - gap * (len(order) - 1)) / sum(wanted)
        left, top = round(margin + index * (wide + gap)), margin
        right = round(margin + index * (wide + gap) + wide)
        for high in wanted:
            places.append(box(left, round(top), right - left, round(top + high * stretch) - round(top)))
            top += high * stretch + gap
    return places


def three_columns():
    return roomy(PORTRAIT, columns(PORTRAIT, 80, 40, ["LPLP", "PLPL", "LPLP"]))


def four_columns():
    return columns(PORTRAIT, 60, 30, ["PLPPLL", "LPPLPL", "PLPLLP", "LPLPLP"])


def wide_columns():
    return roomy(LANDSCAPE, columns(LANDSCAPE, 80, 40, ["PLL", "LPL", "LLP", "LPL", "PLL"]))


def square_tiles():
    return grid(75, 55, 6, 4, 30, 30, 450, 450)


def mixed_matrix():
    """Upright cells of which a landscape takes two."""
    return grid(70, 60, 3, 6, 40, 40, 593, 446, both=1)


def heart_wall():
    """Small portraits in the shape of a heart."""
    lines = [(1, 2, 3, 6, 7, 8), range(0, 10), range(0, 10), range(0, 10), range(0, 10), range(1, 9), range(2, 8), range(3, 7),
             (4, 5)]
    wide, high, gap = 178, 232, 14
    left, top = (2000 - 10 * wide - 9 * gap) / 2, (3000 - 9 * high - 8 * gap) / 2
    return [box(left + x * (wide + gap), top + y * (high + gap), wide, high) for y, line in enumerate(lines) for x in line]


def diamond():
    """Rows of one to five landscapes and back again."""
    places = []
    for line in range(9):
        count = 5 - abs(4 - line)
        left = 1000 - (count * 342 + (count - 1) * 26) / 2
        places += [box(left + x * 368, 205 + line * 290, 342, 264) for x in range(count)]
    return roomy(PORTRAIT, places)


def soft_clouds():
    """Six photos with soft edges in three rows, each with air around it."""
    return rows(PORTRAIT, 130, 90, [(830, [920, 730]), (900, [780, 870]), (830, [730, 920])])


def soft_portraits():
    """Seven photos with soft edges on a wide page: three above four."""
    return rows(LANDSCAPE, 130, 90, [(880, [760, 1040, 760]), (770, [620, 580, 580, 690])])


def little_mosaic():
    return mosaic(PORTRAIT, 8, 15, [(5, 6, 1), (4, 5, 1), (3, 3, 2), (3, 4, 2), (2, 2, 8), (2, 3, 8)], seed=5)


def wide_mosaic():
    return mosaic(LANDSCAPE, 15, 12, [(6, 6, 1), (5, 6, 1), (4, 4, 3), (3, 4, 2), (3, 3, 10), (2, 3, 10)], seed=14)


def banded(size, columns, rows, bands):
    """Bands of ten rows as (tiles, seed, whether mirrored), each tiled for itself: the whole wall would take the search too long."""
    cells = []
    for band, (tiles, seed, mirrored) in enumerate(bands):
        cells += [(columns - x - wide if mirrored else x, y + 10 * band, wide, high) for x, y, wide, high in tiled(columns, 10, tiles, seed)]
    return laid(size, columns, rows, shadows_beneath(cells))


def many_photos():
    small = [(2, 2, 40), (2, 3, 40), (3, 3, 3), (3, 4, 2)]
    return banded(PORTRAIT, 16, 30, [([(5, 6, 1)] + small, 1, False), ([(6, 6, 1)] + small, 1, False), ([(5, 6, 1)] + small, 1, True)])


def forty_wide():
    small = [(3, 3, 20), (3, 4, 20), (2, 3, 6)]
    return banded(LANDSCAPE, 24, 20, [([(6, 7, 1), (5, 5, 1), (4, 5, 3)] + small, 13, False), ([(7, 7, 1), (4, 5, 2), (4, 4, 2)] + small, 1, True)])


def ladder():
    """Three large rungs between two rails of small photos."""
    rails = [(x, y, 1, 1) for y in range(6) for x in (0, 4)]
    return raster(PORTRAIT, 60, 30, 5, 6, [(1, y, 3, 2) for y in (0, 2, 4)] + rails)


def window_seat():
    """Two large photos in opposite corners, small ones beside each."""
    cells = [(0, 0, 4, 4), (4, 0, 2, 2), (4, 2, 2, 2), (0, 4, 2, 2), (0, 6, 2, 2), (2, 4, 4, 4)]
    return raster(PORTRAIT, 70, 26, 6, 8, cells)


def fortnight():
    """Rows of three and of four in turn: seven photos a week, twice."""
    return roomy(PORTRAIT, rows(PORTRAIT, 70, 35, [(500, [1] * 4), (620, [1, 1.1, 1]), (1180, [1, 1]), (455, [1, 1.1, 1.1, 1])]))


def three_weeks():
    """Seven squares a week, with room for the name of the month above."""
    return [box(80 + 408 * x, 540 + 408 * y, 384, 384) for y in range(3) for x in range(7)]


def quilt():
    return grid(359, 50, 6, 5, 10, 10, 372, 372)


def class_photo():
    """Ten by five upright cells on a wide page."""
    return grid(40, 42, 5, 10, 14, 14, 372, 279)


def big_window():
    """A large photo of nine cells in a wall of small ones."""
    around = [(x, y, 1, 1) for y in range(5) for x in range(6) if not (x in (1, 2, 3) and y in (1, 2, 3))]
    return raster(LANDSCAPE, 50, 22, 6, 5, [(1, 1, 3, 3)] + around)