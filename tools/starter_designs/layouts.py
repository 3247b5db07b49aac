"""The layouts of the starter designs, one function each."""
from dataclasses import replace

from starter_designs.cover import scattered
from starter_designs.mosaic import laid, mosaic
from starter_designs.place import (LANDSCAPE, PORTRAIT, box, centred, grid, picture, roomy, rows, shape)

ALL_TILTS = [tilt for tilt in range(-35, 40, 5) if tilt]


def mosaic_wall():
    return mosaic(PORTRAIT, 10, 18, [(5, 6, 1), (4, 5, 2), (4, 4, 2), (3, 4, 8), (3, 3, 8), (2, 3, 6)], seed=1)


def panorama():
    """One large photo in the middle of seven columns and five rows, wall to wall."""
    cells = [(2, 1, 3, 3)] + [(x, y, 1, 1) for y in range(5) for x in range(7) if not (1 < x < 5 and 0 < y < 4)]
    return laid(LANDSCAPE, 7, 5, cells)


def gallery_wall():
    return roomy(PORTRAIT, rows(PORTRAIT, 80, 60, [(860, [1020, 760]), (490, [1, 1.1, 1]), (560, [1.1, 1, 1.1]), (750, [790, 930])]))


def thrown():
    return scattered(PORTRAIT, (553, 442), ALL_TILTS + [-20, -15, -10, -5, 0, 5, 10, 15, 20, 0, -5, 5], seed=8, hang=60)


def picnic():
    return scattered(PORTRAIT, (566, 453), ALL_TILTS + [-15, -10, -10, -5, -5, 0, 5, 5, 10, 10, 15, 0], seed=7, hang=60)


def polaroids():
    """Three by four cards, each a little off its place."""
    tilts = [-5, 10, -10, 5, -5, 10, -10, 5, 5, 10, -10, -5]
    across, down = [0, -20, 15, 25, 20, -10, -25, -5, 15, 25, 5, -20], [15, -25, 20, -10, 25, -15, 10]
    return [centred(345 + 655 * (i % 3) + across[i], 392 + 738 * (i // 3) + down[i % 7], 520, 640, tilts[i])
            for i in range(12)]


def contact_sheet():
    """Upright cells, of which a landscape takes two, so that all photos stand in their order."""
    return grid(50, 50, 7, 6, 24, 24, 393, 296, both=1)


def contact_sheet_wide():
    return grid(50, 50, 4, 9, 24, 24, 457, 300, both=1)


def three_bands():
    """Squares: two large ones between bands of small ones."""
    band = dict(rows=2, columns=4, row_gap=40, column_gap=40, height=440, width=440)
    return grid(60, 60, **band) + grid(1020, 60, 1, 2, 40, 40, 960, 920) + grid(2020, 60, **band)


def shaken_wall():
    return grid(90, 142, 5, 4, 25, 25, 525, 410, rotate=1, resize=1)


def sweethearts():
    """Hearts in five rows, each point between two below it."""
    return roomy(PORTRAIT, [shape(x, y, 600, "heart.gif") for row, y in enumerate((420, 960, 1500, 2040, 2580))
            for x in ((370, 1000, 1630) if row % 2 == 0 else (685, 1315))])


# A mask is scaled once for each size, which takes longer than to draw a shape. So the sizes are few.


def white_mats():
    return [box(170, 190, 780, 640), centred(1440, 520, 560, 690, 5), centred(440, 1210, 540, 640, -5),
            box(800, 960, 520, 600), centred(1640, 1250, 400, 500, -5), box(160, 1640, 740, 600),
            centred(1440, 1990, 700, 600, 5), centred(430, 2620, 460, 520, 5), box(880, 2370, 680, 540)]


def daydream():
    """Soft edges want a ground to fade into: a hand's breadth between the photos."""
    return rows(PORTRAIT, 130, 90, [(1310, [1]), (480, [1, 1.1, 1]), (770, [1, 1.1])])
