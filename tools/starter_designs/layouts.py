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
    return scattered(PORTRAIT, (660, 440), ALL_TILTS + [-20, -15, -10, -5, 0, 5, 10, 15, 20, 0, -5, 5], seed=3, hang=80)


def picnic():
    return scattered(LANDSCAPE, (660, 440), ALL_TILTS + [-15, -10, -10, -5, -5, 0, 5, 5, 10, 10, 15, 0], seed=11)


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
    return grid(290, 200, 5, 4, 30, 30, 470, 370, rotate=1, resize=1)


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
    large = [(x, y) for row, y in enumerate((420, 1130, 1840, 2550))
             for x in ((400, 1000, 1600) if row % 2 == 0 else (700, 1300))]
    small = [(1000, 775, 1), (1000, 1485, 7), (1000, 2195, 1), (240, 1090, 7), (1760, 1090, 1), (240, 2510, 1),
             (1760, 2510, 7)]
    return [shape(x, y, 240, "heart.gif", color) for x, y, color in small] + [
        shape(x, y, 620, "heart.gif") for x, y in large]


def flower_garden():
    """A flower is petals of one colour, a dark ring and a photo in it; leaves fill the gaps."""
    flowers = [(430, 460, 760, 1), (1290, 380, 640, 4), (1650, 1010, 620, 7), (860, 1120, 800, 5), (330, 1640, 600, 2),
               (1480, 1720, 780, 1), (800, 2080, 620, 7), (400, 2610, 660, 4), (1180, 2590, 640, 5),
               (1720, 2470, 480, 2)]
    leaves = [(900, 700, 330), (1240, 800, 260), (330, 1130, 380), (1190, 1580, 250), (560, 1340, 230),
              (1830, 1380, 260), (1140, 2180, 260), (540, 2310, 230), (170, 2130, 330), (800, 2760, 260),
              (1830, 480, 270), (1500, 2200, 240), (1480, 2870, 210), (790, 210, 240), (1730, 160, 240)]
    places = [shape(x, y, size, f"leaf_{index % 6 + 1}.gif", 3) for index, (x, y, size) in enumerate(leaves)]
    for x, y, size, color in flowers:
        middle = round(size * 0.56)
        places += [shape(x, y, size, "flower.gif", color), shape(x, y, middle + 30, "circle.gif", 6),
                   shape(x, y, middle, "circle.gif")]
    return places


def celebration():
    """Stars, clouds and circles for photos, and small coloured ones like confetti."""
    photos = [(480, 480, 860, "star.gif"), (1480, 560, 760, "circle.gif"), (1000, 1250, 980, "star.gif"),
              (380, 1500, 640, "circle.gif"), (1640, 1610, 640, "circle.gif"), (560, 2280, 900, "star.gif"),
              (1420, 2420, 880, "star.gif")]
    colors = [1, 4, 2, 7, 3, 5]
    confetti = [(950, 160, 170), (1010, 640, 150), (1860, 190, 190), (120, 150, 170), (130, 960, 200), (560, 960, 150),
                (1520, 1110, 170), (1840, 1090, 190), (180, 2000, 180), (830, 1830, 170), (1220, 1850, 190),
                (1650, 2050, 150), (980, 2740, 200), (160, 2790, 220), (1880, 2860, 190), (1880, 2060, 180),
                (620, 2830, 150), (1000, 2130, 140)]
    dots = [shape(x, y, size, "star.gif" if index % 2 else "circle.gif", colors[index % 6])
            for index, (x, y, size) in enumerate(confetti)]
    return dots + [shape(x, y, size, mask) for x, y, size, mask in photos]


def white_mats():
    return [box(170, 190, 780, 520), centred(1480, 500, 460, 690, 5), centred(420, 1250, 440, 660, -5),
            box(790, 990, 440, 660), centred(1620, 1240, 400, 600, -5), box(160, 1780, 740, 493),
            centred(1460, 2060, 740, 493, 5), centred(410, 2635, 380, 500, 5), box(880, 2420, 930, 480)]


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
