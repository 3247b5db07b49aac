"""What letters are built of: bars, leaning strokes, rings and bands with strokes of two widths, ribbons, serifs.

Each form is the text of a path, and what it leaves out runs the other way round. A box of 500 by 500, y counting down.
"""
import math

from starter_art.svg import closed

LEFT, RIGHT, TOP, BOTTOM = 18, 482, 18, 482
MIDDLE = 250
OVER = 7  # by which what is round leaves the lines on which what is flat stands


def bar(left, top, right, bottom):
    return closed([(left, top), (right, top), (right, bottom), (left, bottom)])


def leaning(lower, upper, width, bottom=BOTTOM, top=TOP):
    """A straight stroke from x `lower` at the bottom to x `upper` at the top, its left edge; cut level at both ends.
    A pair as width: at the bottom and at the top."""
    low, high = width if isinstance(width, tuple) else (width, width)
    return closed([(upper, top), (upper + high, top), (lower + low, bottom), (lower, bottom)])


class Oval:
    """An ellipse that comes nearer to its box as `power` grows beyond 2. Angles in degrees, 0 right, 90 below."""

    def __init__(self, left, top, right, bottom, power=2.25):
        self.middle, self.reach = ((left + right) / 2, (top + bottom) / 2), ((right - left) / 2, (bottom - top) / 2)
        self.power = power

    def at(self, degrees):
        def pulled(value):
            return math.copysign(abs(value) ** (2 / self.power), value)
        angle = math.radians(degrees)
        return (self.middle[0] + self.reach[0] * pulled(math.cos(angle)),
                self.middle[1] + self.reach[1] * pulled(math.sin(angle)))

    def right_at(self, y):
        """The angle of the point of the right half at that height."""
        share = max(-1, min(1, (y - self.middle[1]) / self.reach[1]))
        return math.degrees(math.asin(math.copysign(abs(share) ** (self.power / 2), share)))

    def left_at(self, y):
        return 180 - self.right_at(y)

    def arc(self, first, last, step=2.5):
        count = max(2, math.ceil(abs(last - first) / step))
        return [self.at(first + (last - first) * at / count) for at in range(count + 1)]

    def inside(self, across, down, power=None):
        """The oval within a stroke that is `across` wide at the sides and `down` at top and bottom."""
        (x, y), (w, h) = self.middle, self.reach
        return Oval(x - w + across, y - h + down, x + w - across, y + h - down, power or self.power)


def ring(outer, inner):
    return closed(outer.arc(0, 360)[:-1]) + closed(inner.arc(360, 0)[:-1])


def band(outer, inner, first, last):
    """The part of a ring between two cuts, each a pair of angles: of the outer and of the inner oval."""
    return closed(outer.arc(first[0], last[0]) + inner.arc(last[1], first[1]))


def bow(left, top, right, bottom, bend, stroke, stem=None, power=2.25):
    """What D has: flat at the left, round at the right from x `bend` on; `stroke` is its width across and down.
    With `stem` as wide a stroke at the left, without one the inside is open there."""
    across, down = stroke
    outer = Oval(2 * bend - right, top, right, bottom, power)
    inner = Oval(2 * bend - right + across, top + down, right - across, bottom - down, power)
    shape = [(left, top), *outer.arc(-90, 90), (left, bottom)]
    inside = [*inner.arc(90, -90)]
    if stem is None:
        return closed(shape + [(left, bottom - down)] + inside + [(left, top + down)])
    return closed(shape) + closed([(left + stem, bottom - down)] + inside + [(left + stem, top + down)])


def bent(one, two, three, four, steps=24):
    """A cubic curve, its last point included."""
    return [tuple((1 - t) ** 3 * a + 3 * (1 - t) ** 2 * t * b + 3 * (1 - t) * t * t * c + t ** 3 * d
                  for a, b, c, d in zip(one, two, three, four)) for t in (at / steps for at in range(steps + 1))]


def curves(start, *each):
    """Cubic curves one behind the other, each given by its two handles and its end, their points as one line."""
    found = []
    for one, two, end in each:
        found += bent(start, one, two, end)
        start = end
    return found


def ribbon(points, across, down, lean=0):
    """A stroke along the points as a broad pen leaves it, which is turned by `lean` degrees: `across` wide where it goes
    down, `down` where it goes along."""
    sides = ([], [])
    turn = math.radians(lean)
    for at, (x, y) in enumerate(points):
        (a, b), (c, d) = points[max(0, at - 1)], points[min(len(points) - 1, at + 1)]
        angle = math.atan2(d - b, c - a)
        half = math.hypot(across * math.sin(angle - turn), down * math.cos(angle - turn)) / 2
        sides[0].append((x - half * math.sin(angle), y + half * math.cos(angle)))
        sides[1].append((x + half * math.sin(angle), y - half * math.cos(angle)))
    return closed(sides[0] + sides[1][::-1])


def serif(stem, end, thick, reach, bracket, leans=(0, 0)):
    """The foot of a stem: its left and right edge where it ends, at the bottom or at the top of the box. `reach`: how far it
    stands out at the left and at the right, 0 for not at all; `bracket`: how high the curve into it is; `leans`: by how
    much each edge moves to the right for a step into the letter."""
    out_left, out_right = reach if isinstance(reach, tuple) else (reach, reach)
    into = -1 if end > MIDDLE else 1
    inner, top = end + into * thick, end + into * (thick + bracket)

    def side(edge, out, lean):
        """From the outer corner to where the curve has become the stem."""
        at = edge + lean * thick, edge + lean * (thick + bracket)
        if not out:
            return [(edge, end), (at[1], top)]
        upright = (at[0] + (at[1] - at[0]) * 0.4, inner + into * bracket * 0.4)
        return [(edge + out, end), (edge + out, inner)] + bent((edge + out * 0.86, inner), (edge + out * 0.3, inner), upright, (at[1], top), 10)

    return closed(side(stem[1], out_right, leans[1]) + side(stem[0], -out_left, leans[0])[::-1])
