"""Rows of photos that all end at the same margins, and leave a caption its place above and below."""
from starter_designs.place import LANDSCAPE, PORTRAIT, box, centred

# Width to height. A wide place bears an upright photo and an upright one a wide photo, so no design of theirs asks for either; W is
# a panorama.
SHAPES = {"L": 1.25, "P": 0.8, "S": 1.0, "W": 3.0}
STANDING, LYING = (130, 290, 1870, 2700), (140, 270, 2860, 1730)            # left, top, right, bottom
MOST_STRETCH = 1.08


def row_height(row, width, gap):
    return (width - gap * (len(row) - 1)) / sum(SHAPES[letter] for letter in row)


def justified(area, gap, rows):
    """A box for each letter of `rows`; the rows are stretched alike until they fill the area."""
    left, top, right, bottom = area
    heights = [row_height(row, right - left, gap) for row in rows]
    stretch = (bottom - top - gap * (len(rows) - 1)) / sum(heights)
    assert 1 / MOST_STRETCH <= stretch <= MOST_STRETCH, (rows, round(stretch, 2))
    places, at_y = [], top
    for row, high in zip(rows, heights):
        at_x = left
        for letter in row:
            wide = SHAPES[letter] * high
            places.append(box(at_x, at_y, round(at_x + wide) - round(at_x), round(at_y + high * stretch) - round(at_y)))
            at_x += wide + gap
        at_y += high * stretch + gap
    return places


def askew(places, tilts=(-5, 5, 5, -5, 5)):
    """The photos a little smaller and none of them straight, each about its own middle."""
    return [centred(place.left + place.width / 2, place.top + place.height / 2, round(place.width * 0.91), round(place.height * 0.91),
                    tilts[at % len(tilts)]) for at, place in enumerate(places)]


def standing(*rows, gap=40):
    return justified(STANDING, gap, rows)


def lying(*rows, gap=40):
    return justified(LYING, gap, rows)


def page(size, margin, gap, *rows):
    """The whole page within even margins."""
    assert size in (PORTRAIT, LANDSCAPE)
    return justified((margin, margin, size[0] - margin, size[1] - margin), gap, rows)
