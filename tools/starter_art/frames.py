"""Two plain frames that stand for a set of the user's in the samples: wood, a mat, and a band for the caption."""
from starter_art.svg import drawing, path, rectangle


def frame(width, height, band, extra=()):
    left, top, across, down = band
    return drawing(width, height, [rectangle(0, 0, width, height, fill="#6d4a30"), rectangle(8, 8, width - 16, height - 16, fill="#f4ead8"),
                                   *extra, rectangle(left, top, across, down, fill="#b5533c"),
                                   *(rectangle(left + 60 + at * 34, top + down / 2 - 5, 24, 10, rx=5, fill="#fbeee0")
                                     for at in range(int((across - 110) / 34)))])


def lframe():
    return frame(520, 347, (19, 289, 461, 41), [path("M19,297 V120 L59,80 V297Z", fill="#b5533c")])


def pframe():
    return frame(347, 520, (16, 444, 314, 60))
