"""What the sturdy and the serif alphabet are made of: the widths of their strokes, stems, arms and serifs."""
import re
from dataclasses import dataclass

from starter_art.letterforms import BOTTOM, LEFT, OVER, RIGHT, TOP, Oval, band, bar, bent, leaning, serif
from starter_art.svg import closed, number


@dataclass(frozen=True)
class Style:
    """Widths of strokes: `stem` stands, `round` is that of a bow at its broadest, `flat` lies, `third` lies where three lie one
    above the other. `thick` and `thin` lean, measured level: as a pen held like that of a scribe gives them."""
    stem: int
    round: int
    flat: int
    third: int
    thick: int
    thin: int
    foot: int  # how thick a serif is, 0 for none
    reach: int  # how far it stands out
    bracket: int  # the curve into it
    power: float  # of ovals


STURDY = Style(stem=156, round=164, flat=116, third=106, thick=164, thin=152, foot=0, reach=0, bracket=0, power=2.35)
SERIF = Style(stem=138, round=150, flat=56, third=54, thick=150, thin=72, foot=32, reach=34, bracket=58, power=2.15)

TALL_TOP, TALL_BOTTOM = TOP - OVER, BOTTOM + OVER


def feet(style, left, right, reach=None, ends=(TOP, BOTTOM), leans=(0, 0)):
    """Both serifs of a stem, or those at the given ends."""
    if not style.foot:
        return []
    out = style.reach if reach is None else reach
    return [serif((left, right), end, style.foot, out, style.bracket, leans) for end in ends]


def leg(style, lower, upper, width, reach, end, bottom=BOTTOM, top=TOP):
    """A leaning stroke with a serif at one of its ends."""
    low, high = width if isinstance(width, tuple) else (width, width)
    slopes = ((upper - lower) / (bottom - top), (upper + high - lower - low) / (bottom - top))
    left, right = (lower, lower + low) if end == BOTTOM else (upper, upper + high)
    leans = slopes if end == BOTTOM else (-slopes[0], -slopes[1])
    return [leaning(lower, upper, width, bottom, top), *feet(style, left, right, reach, (end,), leans)]


def first_stem(style, at=None, ends=(TOP, BOTTOM)):
    """The stem at the left and its right edge."""
    left = LEFT + (style.reach if style.foot else 0) if at is None else at
    right = left + style.stem
    return [bar(left, TOP, right, BOTTOM), *feet(style, left, right, ends=ends)], left, right


def opened(outer, inner, upper, lower):
    """An oval open at the right between two heights, cut level."""
    return band(outer, inner, (outer.right_at(upper), inner.right_at(upper)),
                (outer.right_at(lower) - 360, inner.right_at(lower) - 360))


def big_oval(s, right=RIGHT + 4):
    outer = Oval(LEFT - 4, TALL_TOP, right, TALL_BOTTOM, s.power)
    return outer, outer.inside(s.round, s.flat)


def hollow(s):
    """The oval of C and G, and the inside of one whose stroke grows thin where it ends."""
    outer, inner = big_oval(s)
    if s.foot:
        inner = Oval(LEFT - 4 + s.round, TALL_TOP + s.flat, RIGHT - 30, TALL_BOTTOM - s.flat, s.power)
    return outer, inner


def beak(right, upper, lower):
    """The serif at the upper end of an open bow: upright at the right, with a curve into the stroke."""
    return closed([(right, upper), (right, lower), (right - 20, lower)]
                  + bent((right - 22, lower), (right - 40, lower - 60), (right - 80, upper + 70), (right - 150, upper + 46), 12)
                  + bent((right - 140, upper + 24), (right - 80, upper + 42), (right - 32, upper + 44), (right - 20, upper), 8))


def arms(s, right, rows):
    """Arms of E, F, L from the stem to the right: upper and lower edge, end, and how far a serif goes up and down there."""
    found = []
    for top, bottom, end, (up, down) in rows:
        found.append(bar(right - 20, top, end, bottom))
        if s.foot and up:
            found.append(wedge(end, top, -1, up))
        if s.foot and down:
            found.append(wedge(end, bottom, 1, down))
    return found


def wedge(end, edge, towards, long, side=1):
    """The serif at the end of an arm that lies: from its edge up (`towards` -1) or down, at its right end or (`side` -1) its
    left one, with a curve into the arm."""
    tip, base = edge + towards * long, edge - towards * 4
    inner = end - side * long * 0.86
    curve = bent((end - side * 22, tip), (end - side * 34, edge + towards * long * 0.5), (end - side * 52, edge), (inner, edge), 10)
    return closed([(end, base), (end, tip), (end - side * 20, tip), *curve, (inner, base)])


def turned_over(shape):
    """The same form turned by a half about the middle of the box."""
    return re.sub(r"(-?[0-9.]+),(-?[0-9.]+)", lambda pair: f"{number(500 - float(pair[1]))},{number(500 - float(pair[2]))}", shape)


def ball(x, y, radius):
    return closed(Oval(x - radius, y - radius, x + radius, y + radius, 2).arc(0, 360)[:-1])
