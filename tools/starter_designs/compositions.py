"""Compositions: one large photo and few small ones, prints that lap over each other, rings, strips, spreads.

No place is longer than four to three, unless it is meant for a panorama, so that each bears an upright photo as well as a wide one,
and a design takes the photos in their order: none is shown twice while another stays out. Each is there for an upright page and for
a wide one, and leaves the caption its places above and below.
"""
import math

from starter_designs.place import box, centred

TALL_AREA, WIDE_AREA = (120, 310, 1880, 2690), (130, 310, 2870, 1700)  # left, top, right, bottom


def area_of(wide, inset=0):
    left, top, right, bottom = WIDE_AREA if wide else TALL_AREA
    return left + inset, top, right - inset, bottom


def split(start, end, gap, shares):
    """Spans from start to end in these shares, with gaps between them, as (from, to)."""
    room, found, at = end - start - gap * (len(shares) - 1), [], start
    for share in shares:
        length = room * share / sum(shares)
        found.append((at, at + length))
        at += length + gap
    return found


def cell(across, down):
    return box(round(across[0]), round(down[0]), round(across[1]) - round(across[0]), round(down[1]) - round(down[0]))


def field(area, gap, columns, lines):
    """Columns and lines of cells in these shares, line by line."""
    left, top, right, bottom = area
    return [cell(across, down) for down in split(top, bottom, gap, lines) for across in split(left, right, gap, columns)]


def hero_above(wide, count, share=0.64, gap=40, inset=0):
    """A large photo, a strip of small ones below it; on a wide page beside it, in two columns."""
    left, top, right, bottom = area_of(wide, inset)
    if wide:
        large, rest = split(left, right, gap, [share, 1 - share])
        return [cell(large, (top, bottom))] + field((rest[0], top, rest[1], bottom), gap, [1] * (2 if count > 3 else 1), [1] * math.ceil(count / (2 if count > 3 else 1)))
    large, rest = split(top, bottom, gap, [share, 1 - share])
    columns = count if count <= 4 else math.ceil(count / 2)
    return [cell((left, right), large)] + field((left, rest[0], right, rest[1]), gap, [1] * columns, [1] * math.ceil(count / columns))


def corner_hero(wide, gap=36, right_side=False, inset=0):
    """A large photo in a corner, small ones at its side and in rows below."""
    left, top, right, bottom = area_of(wide, inset)
    xs, ys = split(left, right, gap, [1] * (5 if wide else 3)), split(top, bottom, gap, [1] * (3 if wide else 4))
    if right_side:
        xs = xs[::-1]
    spots = [(x, y) for y in range(len(ys)) for x in range(len(xs)) if x > 1 or y > 1]
    return [cell((min(xs[0][0], xs[1][0]), max(xs[0][1], xs[1][1])), (ys[0][0], ys[1][1]))] + [cell(xs[x], ys[y]) for x, y in spots]


def bleeding(wide, tilts=(-5, 5, -5, 5)):
    """A photo from edge to edge, and prints that lie over its lower rim."""
    if wide:
        return [box(0, 300, 1800, 1400)] + [centred(*spot) for spot in ((1790, 640, 600, 560, tilts[0]), (2480, 560, 620, 540, tilts[1]),
                                                                      (1860, 1330, 560, 600, tilts[2]), (2520, 1270, 640, 560, tilts[3]))]
    return [box(0, 300, 2000, 1540)] + [centred(*spot) for spot in ((430, 1890, 640, 560, tilts[0]), (1150, 1960, 560, 660, tilts[1]),
                                                                  (1640, 2390, 540, 500, tilts[2]), (560, 2440, 620, 480, tilts[3]))]


def ring(wide, count, print_size, heroes, lean=0.0, radii=None):
    """Photos evenly along an oval, leaning as they go round, and one large photo or two side by side in the middle: `heroes` is how many
    and how wide and high."""
    middle = (1500, 1005) if wide else (1000, 1500)
    across, down = radii or ((1130, 500) if wide else (670, 950))
    walk = [(across * math.sin(at * math.pi / 360), -down * math.cos(at * math.pi / 360)) for at in range(720)]
    lengths = [math.dist(walk[at], walk[at - 1]) for at in range(720)]
    step, travelled, found = sum(lengths) / count, 0.0, []
    for spot, length in zip(walk, lengths):
        if len(found) < count and travelled >= len(found) * step:
            tilt = 5 * round(lean * math.sin(2 * math.atan2(spot[0], -spot[1])) / 5)
            found.append(centred(middle[0] + spot[0], middle[1] + spot[1], *print_size, tilt))
        travelled += length
    many, width, height = heroes
    return found + [centred(middle[0] + (at - (many - 1) / 2) * (width + 40), middle[1], width, height, 0) for at in range(many)]


def columns_that_hang(wide, counts, drops, gap=44, inset=0):
    """Columns of photos, each hung lower or higher than its neighbour."""
    left, top, right, bottom = area_of(wide, inset)
    most, found = max(drops), []
    for across, count, drop in zip(split(left, right, gap, [1] * len(counts)), counts, drops):
        found += [cell(across, down) for down in split(top + drop, bottom - most + drop, gap, [1] * count)]
    return found


def prints(*spots):
    """Prints as (x, y, width, height, tilt) by their middles; a later one lies on an earlier."""
    return [centred(*spot) for spot in spots]


def spread(gap=40):
    """A wide page like a magazine that lies open: a photo over the whole left page, a column and a row on the right one."""
    return [box(0, 300, 1460, 1400), box(1600, 310, 760, 830), box(2400, 310, 470, 395), box(2400, 745, 470, 395)] + [
        box(1600 + 430 * at, 1180, 400, 500) for at in range(3)]


def column_page():
    """An upright page of a magazine: a tall photo at the left edge, a column beside it, a row at its foot."""
    return [box(0, 300, 1290, 1660)] + [box(1340, 300 + 567 * at, 540, 526) for at in range(3)] + [box(120 + 600 * at, 2010, 560, 660) for at in range(3)]


def strips(wide, counts, width, gap=26, lean=0):
    """Strips as they come from a booth: squares below each other."""
    left, top, right, bottom = area_of(wide)
    step = (right - left - width * len(counts)) / (len(counts) + 1)
    found = []
    for at, count in enumerate(counts):
        x = left + step * (at + 1) + width * at
        room = (bottom - top - 80 - gap * (count - 1)) / count
        off = lean * (1 if at % 2 else -1)
        found += [box(round(x), round(top + 40 + off + line * (room + gap)), width, round(room)) for line in range(count)]
    return found


def pairs(wide, count, gap=16, between=90):
    """Two and two, close to each other: before at the left, after at the right."""
    left, top, right, bottom = area_of(wide)
    columns = 2 if wide else 1
    found = []
    for down in split(top, bottom, between, [1] * (count // columns)):
        for across in split(left, right, between, [1] * columns):
            found += [cell(span, down) for span in split(*across, gap, [1, 1])]
    return found


def cascade(wide, count, sizes, tilts):
    """Prints that change sides as they go down the page, or along it, and lap over by a hand's breadth."""
    spots = [(520 + 1960 * at / (count - 1), (700, 1290)[at % 2]) if wide else ((620, 1370)[at % 2], 700 + 1610 * at / (count - 1)) for at in range(count)]
    return [centred(*spot, *sizes[at % len(sizes)], tilts[at % len(tilts)]) for at, spot in enumerate(spots)]


def salon(wide):
    """A wall of pictures of many sizes about a large one, none of them in line with its neighbour."""
    if wide:
        return [box(1020, 420, 960, 800), box(150, 330, 380, 470), box(580, 400, 390, 330), box(580, 780, 390, 480), box(150, 850, 380, 320),
                box(330, 1310, 470, 390), box(850, 1270, 350, 430), box(1250, 1270, 420, 420), box(1720, 1270, 330, 410), box(2030, 330, 350, 430),
                box(2430, 420, 420, 340), box(2030, 810, 430, 410), box(2510, 810, 340, 430), box(2100, 1270, 420, 330), box(2570, 1290, 290, 360)]
    return [box(560, 960, 900, 1080), box(150, 330, 470, 390), box(670, 400, 410, 500), box(1130, 330, 400, 310), box(1580, 410, 290, 360),
            box(1130, 670, 370, 282), box(150, 770, 360, 450), box(150, 1270, 360, 300), box(1510, 830, 360, 430), box(1510, 1310, 360, 300),
            box(150, 1620, 360, 420), box(1510, 1660, 360, 460), box(200, 2100, 500, 420), box(750, 2100, 420, 520), box(1220, 2170, 480, 400)]


def panes(wide, gap=60):
    """A window: panes of one size, with the bars between them."""
    left, top, right, bottom = area_of(wide, 120)
    return field((left, top + 40, right, bottom - 40), gap, [1] * (3 if wide else 2), [1] * (2 if wide else 3))


def cards(wide):
    """A large card, smaller ones tucked below its rim on all sides, as a pile of post comes to lie."""
    if wide:
        return prints((560, 660, 760, 610, -10), (2420, 690, 740, 600, 5), (640, 1360, 700, 580, 5), (2380, 1340, 780, 620, -10), (1490, 1010, 1180, 960, -5))
    return prints((560, 680, 820, 660, -5), (1460, 800, 720, 860, 5), (520, 2250, 740, 860, -5), (1440, 2330, 820, 660, 5), (1000, 1500, 1180, 960, -5))
