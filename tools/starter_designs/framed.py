"""Layouts of custom frames: a frame picture and the photo inside it, in turn.

An "@" with a letter stands for a frame of that orientation. The photo leaves the same room in its frame as in a matrix
of frames: for the caption below and, in wide frames, for the ribbon at the left.
"""
from dataclasses import replace

from starter_designs.place import box

LONG, SHORT = 520, 347


def wide(left, top, width):
    """A landscape frame and its photo."""
    height = round(width * SHORT / LONG)
    return pair(left, top, width, height, "@/lframe", (0.75, 0.83, 0.051, 0.13))


def tall(left, top, width):
    """A portrait frame and its photo."""
    height = round(width * LONG / SHORT)
    return pair(left, top, width, height, "@/pframe", (0.79, 0.89, 0.04, 0.06))


def pair(left, top, width, height, picture, shares):
    down, across, below, beside = shares
    frame = replace(box(left, top, width, height), frame=0, shadow=0, file=picture)
    photo = replace(box(left + beside * width, top + below * height, across * width, down * height), frame=0, shadow=0)
    return [frame, photo]


def joined(*pairs):
    return [place for places in pairs for place in places]


def frames_tall_nine():
    return joined(*(tall(100 + 625 * x, 148 + 940 * y, 550) for y in range(3) for x in range(3)))


def frames_wide_eight():
    return joined(*(wide(90 + 930 * x, 170 + 685 * y, 890) for y in range(4) for x in range(2)))


def frames_family():
    """A wide one above, two tall ones, two wide ones below."""
    return joined(wide(300, 180, 1400), tall(310, 1175, 660), tall(1030, 1175, 660), wide(100, 2225, 870), wide(1030, 2225, 870))


def frames_staircase():
    """Three tall frames and three wide ones in turn."""
    return joined(wide(110, 160, 980), tall(1190, 120, 700), tall(110, 960, 700), wide(910, 1290, 980), wide(110, 2130, 980),
                  tall(1190, 2030, 560))


def frames_shelf():
    """A landscape poster: three tall frames above three wide ones."""
    return joined(*(tall(480 + 740 * at, 263, 560) for at in range(3)), *(wide(180 + 920 * at, 1202, 800) for at in range(3)))


def frames_duet():
    """A landscape poster: a pair of large frames, and two small ones between them."""
    return joined(tall(120, 228, 1030), wide(1250, 165, 1630), wide(1250, 1315, 784), wide(2096, 1315, 784))


def frames_wide_nine():
    return joined(*(wide(100 + 950 * x, 80 + 620 * y, 900) for y in range(3) for x in range(3)))


def frames_tall_eight():
    return joined(*(tall(180 + 680 * x, 75 + 950 * y, 600) for y in range(2) for x in range(4)))


def frames_medley():
    """A landscape poster: a large wide frame in the middle, tall ones below it and at both sides."""
    sides = [tall(left, top, 580) for left in (110, 2310) for top in (100, 1030)]
    return joined(*sides, wide(770, 100, 1460), *(tall(770 + 495 * at, 1195, 470) for at in range(3)))
