"""The pieces of the jigsaw, which interlock at the steps by which the puzzle designer sets them.

All pieces are scaled to the same square. In that square every piece ends at the same right and lower line, and begins
so far before them as its row or column follows the last one: so any piece meets the same neighbours' lines, whether the
counts of rows and columns are even or odd. What a boundary looks like is settled by the code that both its pieces share:
the column's for one above the other, the row's for one beside the other. Knobs point down in odd columns and up in even
ones, to the right in odd rows and to the left in even ones, so each piece has one knob across and one along.

Measures are shares of the square's side.
"""
import math

from starter_art.svg import drawing

UNITS = 10000  # of the drawing, for numbers without a point
# A bevel: lighter than the photo at the upper left, where the light comes from, black across.
RIM = "#333333"  # dark: half a pixel of it still counts as the piece's, so that two pieces share a line evenly
SHADOW = "#ffff00"  # the key for black
GROUND = "#ffff99"  # between it and the key there is nothing that would count as a rim
LIT, DARK = 0.0046, 0.0052
DARK_OF_FOUR = 0.0068  # they are drawn smaller

RIGHT, BOTTOM = 0.8575, 0.84
# Where the body begins: `ACROSS` and `DOWN` follow the steps of the designer; edges are straight at the outer side.
LEFT = {"l": RIGHT - 0.7, "1": RIGHT - 0.715, "2": RIGHT - 0.638, "r": RIGHT - 0.632}
TOP = {"t": BOTTOM - 0.68, "1": BOTTOM - 0.68, "2": BOTTOM - 0.62, "b": BOTTOM - 0.62}
LAST_RIGHT, LAST_BOTTOM = 0.875, 0.89

HEAD = 0.062


def arc(middle, radius, first, last, steps):
    angles = (math.radians(first + (last - first) * at / steps) for at in range(steps + 1))
    return [(middle[0] + radius * math.cos(angle), middle[1] + radius * math.sin(angle)) for angle in angles]


def bent(one, two, three, four, steps=14):
    """A cubic curve without its last point."""
    return [tuple((1 - t) ** 3 * a + 3 * (1 - t) ** 2 * t * b + 3 * (1 - t) * t * t * c + t ** 3 * d
                  for a, b, c, d in zip(one, two, three, four)) for t in (at / steps for at in range(steps))]


def boundary(length, at, head=HEAD, swing=0.012, side=1):
    """A boundary along x from 0 to `length` with a knob around `at`, towards positive y for `side` 1, as points.
    The line itself swings a little, like something that was sawn."""
    high = head * 1.06
    round_head = arc((at, high), head, 215, -35, 40)
    start, end = (at - head * 1.55, 0), (at + head * 1.55, 0)
    left = bent(start, (start[0] + head * 0.85, 0), (round_head[0][0] + head * 0.22, round_head[0][1] - head * 0.36),
                round_head[0])
    right = bent(end, (end[0] - head * 0.85, 0), (round_head[-1][0] - head * 0.22, round_head[-1][1] - head * 0.36),
                 round_head[-1])
    knob = left + round_head + right[::-1]
    before = [(start[0] * step / 16, 0) for step in range(16)]
    after = [(end[0] + (length - end[0]) * step / 16, 0) for step in range(1, 17)]
    return [(x, side * y + swing * math.sin(2 * math.pi * x / length)) for x, y in before + knob + after]


def along(code):
    """The lower boundary of a piece of that column, from its left to its right end."""
    length = RIGHT - LEFT[code]
    return boundary(length, length * (0.5 if code in "1r" else 0.52), side=1 if code in "1l" else -1)


def across(code):
    """The right boundary of a piece of that row, from its upper to its lower end; y counts to the right."""
    length = BOTTOM - TOP[code]
    return boundary(length, length * (0.5 if code in "1b" else 0.48), side=1 if code in "1t" else -1)


def outline(row, column):
    """A piece, clockwise from its upper left corner."""
    left, top = LEFT[column], TOP[row]
    right, bottom = (LAST_RIGHT if column == "r" else RIGHT), (LAST_BOTTOM if row == "b" else BOTTOM)
    flat = {"t": row == "t", "b": row == "b", "l": column == "l", "r": column == "r"}
    seam = along(column) if column != "r" else stretched(along("r"), right - left)
    side = across(row) if row != "b" else stretched(across("b"), bottom - top)
    upper = [(left, top), (right, top)] if flat["t"] else [(left + x, top + y) for x, y in seam]
    lower = [(left, bottom), (right, bottom)] if flat["b"] else [(left + x, bottom + y) for x, y in seam]
    near = [(left, top), (left, bottom)] if flat["l"] else [(left + x, top + y) for y, x in side]
    far = [(right, top), (right, bottom)] if flat["r"] else [(right + x, top + y) for y, x in side]
    return upper[:-1] + far[:-1] + lower[:0:-1] + near[:0:-1]


def stretched(seam, length):
    """A boundary that ends at a straight edge further out."""
    return seam[:-1] + [(length, 0)]


def with_corners(points, near=0.003):
    """The outline with a point close to each end of a long side, so that a corner bends nothing but itself."""
    found = []
    for (x, y), (a, b) in zip(points, points[1:] + points[:1]):
        found.append((x, y))
        long = math.hypot(a - x, b - y)
        if long > 4 * near:
            found += [(x + (a - x) * share, y + (b - y) * share) for share in (near / long, 1 - near / long)]
    return found


def bevelled(points, dark, lit):
    """The outline moved inwards, given clockwise as seen: by `dark` where it faces away from the light at the upper left, by
    `lit` where it faces it, by less where it lies along it."""
    points, found = with_corners(points), []
    for (a, b), (x, y), (c, d) in zip(points[-1:] + points[:-1], points, points[1:] + points[:1]):
        one, two = math.atan2(y - b, x - a), math.atan2(d - y, c - x)
        half = math.remainder(two - one, 2 * math.pi) / 2
        faced = 1.3 * math.cos(one + half + math.radians(45))
        by = (dark if faced < 0 else lit) * max(0.5, min(1, abs(faced)))
        reach = by / max(0.3, math.cos(half))
        found.append((x - reach * math.sin(one + half), y + reach * math.cos(one + half)))
    return found


def drawn(points, color):
    text = " ".join(f"{round(x * UNITS)},{round(y * UNITS)}" for x, y in points)
    return f'<polygon points="{text}" fill="{color}"/>'


def line(points, color, width, moved):
    text = " ".join(f"{round((x + moved) * UNITS)},{round((y + moved) * UNITS)}" for x, y in points)
    return f'<polyline points="{text}" fill="none" stroke="{color}" stroke-width="{round(width * UNITS)}"/>'


def piece(points, dark=DARK, seams=()):
    """Its shadow, on that its rim, on that its inside; within it the seams of four."""
    shadows = [line(seam, SHADOW, dark, -dark * 0.35) for seam in seams]
    rims = [line(seam, RIM, dark, dark * 0.35) for seam in seams]
    ground = f'<rect width="{UNITS}" height="{UNITS}" fill="{GROUND}"/>'
    return drawing(UNITS, UNITS, [ground, drawn(points, SHADOW), drawn(bevelled(points, dark, 0), RIM),
                                  drawn(bevelled(points, dark, LIT), "#000000"), *rims, *shadows])


def four():
    """Four pieces as one shape, which follows itself by 0.82 across and 0.78 down."""
    wide, high, head = 0.41, 0.39, 0.041
    left, top = 0.5 - wide, 0.5 - high
    seam = boundary(wide, wide / 2, head, 0.008), boundary(wide, wide / 2, head, 0.008, side=-1)
    side = boundary(high, high / 2, head, 0.008), boundary(high, high / 2, head, 0.008, side=-1)

    def level(y):
        """A boundary of the whole width: a knob down, a knob up."""
        one = [(left + x, y + dy) for x, dy in seam[0]]
        return one[:-1] + [(left + wide + x, y + dy) for x, dy in seam[1]]

    def upright(x):
        one = [(x + dx, top + y) for y, dx in side[0]]
        return one[:-1] + [(x + dx, top + high + y) for y, dx in side[1]]

    edge = level(top)[:-1] + upright(left + 2 * wide)[:-1] + level(top + 2 * high)[:0:-1] + upright(left)[:0:-1]
    return piece(edge, DARK_OF_FOUR, [level(top + high), upright(left + wide)])


def all_pieces():
    found = {f"puz_{row}{column}": piece(outline(row, column)) for row in "tb12" for column in "lr12"}
    return {**found, "puzzle4": four()}
