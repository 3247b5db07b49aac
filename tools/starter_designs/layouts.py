"""The layouts of the starter designs, one function each."""
from dataclasses import replace

from starter_designs.cover import scattered
from starter_designs.mosaic import mosaic
from starter_designs.place import (LANDSCAPE, PORTRAIT, box, centred, grid, picture, rows, shape)

ALL_TILTS = [tilt for tilt in range(-35, 40, 5) if tilt]


def mosaic_wall():
    return mosaic(PORTRAIT, 200, [(6, 4, 1), (4, 3, 2), (3, 4, 2), (3, 2, 13), (2, 3, 13)], seed=23)


def panorama():
    """One large photo in the middle, landscapes and pairs of portraits around it, wall to wall."""
    cells = [box(750, 500, 1500, 1000)] + [box(750 * x, y, 750, 500) for x in (1, 2) for y in (0, 1500)]
    for left, order in ((0, "LPPL"), (2250, "PLLP")):
        for at, letter in enumerate(order):
            cells += [box(left, 500 * at, 750, 500)] if letter == "L" else [box(left, 500 * at, 400, 500), box(left + 400, 500 * at, 350, 500)]
    return cells


def gallery_wall():
    return rows(PORTRAIT, 80, 60, [(800, [1210, 570]), (600, [1, 1, 1, 1]), (400, [1, 1, 1]), (860, [570, 1210])])


def thrown():
    return scattered(PORTRAIT, (605, 405), ALL_TILTS + [-20, -15, -10, -5, 0, 5, 10, 15, 20, 0, -5, 5], seed=8, hang=60)


def picnic():
    return scattered(PORTRAIT, (620, 415), ALL_TILTS + [-15, -10, -10, -5, -5, 0, 5, 5, 10, 10, 15, 0], seed=12, hang=60)


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
    """Hearts in four rows, close to each other."""
    return [shape(x, y, 600, "heart.gif") for row, y in enumerate((590, 1210, 1830, 2450))
            for x in ((370, 1000, 1630) if row % 2 == 0 else (685, 1315))]


# A mask is scaled once for each size, which takes longer than to draw a shape. So the sizes are few.
def flower_garden():
    """Eight large blossoms, each of them a photo."""
    spots = [(520, 600), (1480, 470), (1000, 1150), (430, 1580), (1570, 1660), (1000, 2080), (520, 2560), (1490, 2500)]
    return [shape(x, y, 760 if at in (2, 5) else 640, "flower.gif") for at, (x, y) in enumerate(spots)]


def celebration():
    """Four large stars and three disks, all of them photos."""
    return [shape(x, y, size, mask) for x, y, size, mask in (
        (560, 640, 900, "star.gif"), (1460, 600, 640, "circle.gif"), (1360, 1270, 900, "star.gif"), (500, 1400, 640, "circle.gif"),
        (1520, 1990, 640, "circle.gif"), (620, 2080, 900, "star.gif"), (1260, 2560, 640, "circle.gif"))]


def white_mats():
    return [box(170, 190, 780, 520), centred(1480, 500, 460, 690, 5), centred(420, 1250, 440, 660, -5),
            box(790, 990, 440, 660), centred(1620, 1240, 400, 600, -5), box(160, 1780, 740, 493),
            centred(1460, 2060, 740, 493, 5), centred(410, 2635, 380, 500, 5), box(880, 2400, 930, 520)]


def daydream():
    """Soft edges want a ground to fade into: a hand's breadth between the photos."""
    return rows(PORTRAIT, 130, 90, [(1080, [1]), (560, [1, 1]), (920, [1, 1, 1])])
