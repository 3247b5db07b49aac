"""Layouts of custom frames: a frame picture and the photo inside it, in turn.

A frame has 520 by 347 pixels, so none is drawn larger than 700. A photo leaves the same room in its frame as in a matrix
of frames: for the caption below and, in wide frames, for the ribbon at the left.
"""
from dataclasses import replace

from starter_designs.place import box

LONG, SHORT, LARGEST = 520, 347, 700


def wide(left, top, width):
    """A landscape frame and its photo."""
    height = round(width * SHORT / LONG)
    return pair(left, top, width, height, "@/lframe", (0.75, 0.83, 0.051, 0.13))


def tall(left, top, width):
    """A portrait frame and its photo."""
    height = round(width * LONG / SHORT)
    return pair(left, top, width, height, "@/pframe", (0.79, 0.89, 0.04, 0.06))


def pair(left, top, width, height, picture, shares):
    assert max(width, height) <= LARGEST, (width, height)
    down, across, below, beside = shares
    frame = replace(box(left, top, width, height), frame=0, shadow=0, file=picture)
    photo = replace(box(left + beside * width, top + below * height, across * width, down * height), frame=0, shadow=0)
    return [frame, photo]


def rows_of(size, gap, *rows):
    """Rows of frames about the middle of the page: (T or W, width) each, standing on one line."""
    heights = [max(round(width * (LONG / SHORT if kind == "T" else SHORT / LONG)) for kind, width in row) for row in rows]
    top, found = round((size[1] - sum(heights) - gap * (len(rows) - 1)) / 2), []
    for row, high in zip(rows, heights):
        left = (size[0] - sum(width for _, width in row) - gap * (len(row) - 1)) / 2
        for kind, width in row:
            own = round(width * (LONG / SHORT if kind == "T" else SHORT / LONG))
            found += (tall if kind == "T" else wide)(round(left), top + (high - own) // 2, width)
            left += width + gap
        top += high + gap
    return found


PORTRAIT, LANDSCAPE = (2000, 3000), (3000, 2000)
T, W = ("T", 440), ("W", 660)


def frames_tall_nine():
    """Portraits and landscapes in turn."""
    return rows_of(PORTRAIT, 60, (T, W, T), (W, T, W), (T, W, T))


def frames_wide_eight():
    return rows_of(PORTRAIT, 60, (W, W), (T, T, T), (W, W), (T, T, T))


def frames_family():
    """The parents above, their children below them, and theirs at the foot."""
    return rows_of(PORTRAIT, 72, (("T", 465), ("T", 465)), (("W", 700), ("W", 700)), (T, T, T), (("W", 480), ("W", 480), ("W", 480)))


def frames_shelf():
    """A landscape poster: three tall frames on a board above three wide ones."""
    return [place for at in range(3) for place in tall(600 + 680 * at, 443, 440)] + [
        place for at in range(3) for place in wide(330 + 840 * at, 1271, 700)]


def frames_duet():
    """A landscape poster: a row with one wide frame above one with two."""
    one, other = ("T", 430), ("W", 660)
    return rows_of(LANDSCAPE, 72, (one, other, one, one), (other, one, one, other))


def frames_wide_nine():
    return rows_of(LANDSCAPE, 60, (W, T, W, T), (T, W, T, W))


def frames_tall_eight():
    return rows_of(LANDSCAPE, 60, (T, T, T, T, T), (W, W, W))


def frames_medley():
    """A landscape poster: small frames in three rows."""
    one, other = ("T", 292), ("W", 650)
    return rows_of(LANDSCAPE, 50, (other, one, other, one, one), (one, other, one, one, other), (other, one, one, other, one))
