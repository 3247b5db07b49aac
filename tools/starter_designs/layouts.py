"""The layouts of the starter designs, one function each."""
from dataclasses import replace

from starter_designs.cover import scattered
from starter_designs.mosaic import mosaic
from starter_designs.place import (LANDSCAPE, PORTRAIT, box, centred, grid, picture, rows, shape)

ALL_TILTS = [tilt for tilt in range(-35, 40, 5) if tilt]


def mosaic_wall():
    return mosaic(PORTRAIT, 200, [(6, 4, 1), (4, 3, 2), (3, 4, 2), (3, 2, 13), (2, 3, 13)], seed=23)


def panorama():
    """One large photo in the middle, twelve of the same shape around it."""
    around = [(x, y) for y in range(4) for x in range(4) if not (x in (1, 2) and y in (1, 2))]
    return [box(750, 500, 1500, 1000)] + [box(750 * x, 500 * y, 750, 500) for x, y in around]


def gallery_wall():
    return rows(PORTRAIT, 80, 60, [(800, [1210, 570]), (600, [1, 1, 1, 1]), (400, [1, 1, 1]), (860, [570, 1210])])


def thrown():
    return scattered(PORTRAIT, (630, 420), ALL_TILTS + [-20, -15, -10, -5, 0, 5, 10, 15, 20, 0, -5, 5], seed=3, hang=80)


def picnic():
    return scattered(LANDSCAPE, (620, 415), ALL_TILTS + [-15, -10, -10, -5, -5, 0, 5, 5, 10, 10, 15, 0], seed=11)


def polaroids():
    """Three by four cards, each a little off its place."""
    tilts = [-5, 10, -10, 5, -5, 10, -10, 5, 5, 10, -10, -5]
    across, down = [0, -20, 15, 25, 20, -10, -25, -5, 15, 25, 5, -20], [15, -25, 20, -10, 25, -15, 10]
    return [centred(345 + 655 * (i % 3) + across[i], 392 + 738 * (i // 3) + down[i % 7], 520, 640, tilts[i])
            for i in range(12)]


def contact_sheet():
    return grid(40, 40, 8, 4, 40, 40, 330, 450)


def contact_sheet_wide():
    return grid(45, 45, 6, 6, 42, 42, 284, 450)


def three_bands():
    """All cells stand upright: one layer of another kind would have to pass over photos that the next layer wants."""
    band = dict(rows=1, columns=4, row_gap=40, column_gap=40, height=620, width=440)
    return grid(60, 60, **band) + grid(740, 60, 1, 2, 40, 40, 1520, 920) + grid(2320, 60, **band)


def shaken_wall():
    return grid(90, 142, 5, 4, 25, 25, 525, 410, rotate=1, resize=1)


def seaside():
    page = [picture(0, 0, 2000, 1500, "images/sea_top.jpg"), picture(0, 1500, 2000, 1500, "images/sea_sand.jpg")]
    photos = [centred(560, 720, 760, 507, -5), centred(1450, 800, 740, 493, 5), centred(430, 1330, 460, 690, 10),
              centred(1010, 1330, 520, 780, -5), centred(1600, 1390, 460, 690, -10), centred(530, 2010, 780, 520, 5),
              centred(1420, 2060, 800, 533, -5)]
    return page + photos + [picture(1180, 2440, 600, 400, "images/postcard.jpg", -10)]


def autumn():
    return [centred(640, 640, 720, 480, -5), centred(1420, 720, 480, 720, 5), centred(500, 1290, 480, 720, 5),
            centred(1180, 1420, 560, 840, -5), centred(620, 2040, 760, 507, -10), centred(1450, 2130, 680, 453, 10),
            centred(1010, 2480, 640, 427, 0)]


def starry_night():
    """The shadows have the size that stands here, since the window doesn't offer one."""
    photos = [box(180, 180, 780, 520), box(1110, 180, 780, 520), box(2040, 180, 780, 520),
              box(400, 860, 440, 660), box(980, 860, 440, 660), box(1560, 860, 440, 660), box(2140, 860, 440, 660)]
    return [replace(photo, shadow=20) for photo in photos]


def sweethearts():
    """Hearts in four rows, the small coloured ones between them."""
    large = [(x, y) for row, y in enumerate((420, 1140, 1860, 2580))
             for x in ((400, 1000, 1600) if row % 2 == 0 else (700, 1300))]
    small = [(700, 780, 1), (1300, 780, 7), (1000, 1500, 1), (400, 1500, 7), (1600, 1500, 7), (700, 2220, 7), (1300, 2220, 1),
             (200, 1140, 1), (1800, 1140, 1), (200, 2580, 7), (1800, 2580, 7)]
    return [shape(x, y, 150, "heart.gif", color) for x, y, color in small] + [
        shape(x, y, 560, "heart.gif") for x, y in large]


# A mask is scaled once for each size, which takes longer than to draw a shape. So the sizes are few.
LARGE, SMALL = 800, 600
DISKS = {LARGE: (550, 450), SMALL: (450, 350)}  # the ring of a flower and the photo in it


def flower_garden():
    """A flower is petals of one colour, a ring and a photo in it; leaves fill the gaps."""
    flowers = [(430, 460, LARGE, 1, 4), (1290, 370, SMALL, 4, 6), (1640, 1010, SMALL, 7, 4), (860, 1130, LARGE, 5, 4),
               (330, 1640, SMALL, 2, 5), (1470, 1740, LARGE, 1, 4), (790, 2060, SMALL, 7, 4), (390, 2610, SMALL, 4, 6),
               (1080, 2640, SMALL, 5, 7), (1690, 2470, SMALL, 2, 5)]
    leaves = [(900, 660), (330, 1080), (1180, 1560), (560, 1380), (1830, 1390), (1120, 2210), (500, 2270), (160, 2150), (790, 2800),
              (1820, 540), (1560, 2880), (810, 160), (1740, 150)]
    places = [shape(x, y, 280, f"leaf_{(1, 5)[index % 2]}.gif", 3) for index, (x, y) in enumerate(leaves)]
    for x, y, size, color, ring in flowers:
        outer, inner = DISKS[size]
        places += [shape(x, y, size, "flower.gif", color), shape(x, y, outer, "circle.gif", ring),
                   shape(x, y, inner, "circle.gif")]
    return places


def celebration():
    """Stars and circles for photos, and small coloured ones like confetti."""
    photos = [(480, 480, 900, "star.gif"), (1510, 480, 660, "circle.gif"), (1000, 1230, 900, "star.gif"),
              (390, 1560, 660, "circle.gif"), (1610, 1640, 660, "circle.gif"), (560, 2380, 900, "star.gif"),
              (1430, 2450, 900, "star.gif")]
    colors = [1, 4, 7, 3, 5, 4]
    confetti = [(990, 150), (1010, 560), (1880, 150), (110, 130), (130, 960), (470, 1080), (1560, 930), (1830, 1150),
                (110, 2010), (760, 1740), (1210, 1760), (1870, 2080), (990, 2720), (130, 2860), (1890, 2860), (1000, 2060),
                (640, 2880), (1150, 2900)]
    dots = [shape(x, y, 160, "star.gif" if index % 2 else "circle.gif", colors[index % 6])
            for index, (x, y) in enumerate(confetti)]
    return dots + [shape(x, y, size, mask) for x, y, size, mask in photos]


def white_mats():
    return [box(170, 190, 780, 520), centred(1480, 500, 460, 690, 5), centred(420, 1250, 440, 660, -5),
            box(790, 990, 440, 660), centred(1620, 1240, 400, 600, -5), box(160, 1780, 740, 493),
            centred(1460, 2060, 740, 493, 5), centred(410, 2635, 380, 500, 5), box(880, 2400, 930, 520)]


def daydream():
    """Each photo reaches 80 pixels under its neighbours, where the soft edges melt."""
    cells = [(0, 0, 1240, 860), (1160, 0, 840, 860), (0, 780, 700, 1000), (620, 780, 760, 1000), (1300, 780, 700, 1000),
             (0, 1700, 1000, 700), (920, 1700, 1080, 700), (0, 2320, 680, 680), (600, 2320, 760, 680),
             (1280, 2320, 720, 680)]
    return [box(*cell) for cell in cells]


def best_wishes():
    """Room for one line of writing above and below."""
    return [box(120, 300, 860, 610), box(1020, 300, 860, 610), box(120, 950, 560, 860), box(720, 950, 560, 860),
            box(1320, 950, 560, 860), box(120, 1850, 1160, 850), box(1320, 1850, 560, 850)]
