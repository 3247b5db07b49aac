"""The digits of the sturdy and the serif alphabet; the 9 is the 6 turned over."""
from starter_art.letter_parts import TALL_BOTTOM, TALL_TOP, ball, feet, wedge
from starter_art.letterforms import BOTTOM, RIGHT, TOP, Oval, band, bar, curves, leaning, ring
from starter_art.svg import closed


def digit_0(s):
    outer = Oval(52, TALL_TOP, 448, TALL_BOTTOM, s.power)
    return [ring(outer, outer.inside(s.round - 6, s.flat - 8))]


def digit_1(s):
    if s.foot:
        left, right = 188, 188 + s.stem
        return [bar(left, TOP, right, BOTTOM), closed([(left + 70, TOP), (left + 70, 128), (104, 128), (104, 88), (178, 70)]),
                *feet(s, left, right, 84, (BOTTOM,))]
    return [bar(186, TOP, 186 + s.stem, BOTTOM), closed([(236, TOP), (300, TOP), (300, 204), (84, 204), (84, 112)]),
            bar(84, BOTTOM - s.third, 436, BOTTOM)]


def digit_2(s):
    wide, low = s.round, s.flat
    right, high, deep = 460 - wide, TALL_TOP + low, BOTTOM - low
    end = (36 + wide, 184) if not s.foot else (92, 150)
    start = (40, 184) if not s.foot else (52, 150)
    foot = 268 if not s.foot else 226
    shape = curves(start, ((44, 72), (122, TALL_TOP), (250, TALL_TOP)), ((382, TALL_TOP), (460, 74), (460, 168)),
                   ((460, 264), (372, 0.45 * deep + 160), (foot, deep))) + [(462, deep), (462, BOTTOM), (40, BOTTOM)]
    shape += curves((40, deep + 14), ((150, deep - 70), (right, 262), (right, 178)), ((right, high + 18), (282, high), (248, high)),
                    ((214, high), (end[0], high + 20), end))
    return [closed(shape)] + ([ball(108, 142, 60), wedge(462, deep, -1, 84)] if s.foot else [])


def digit_3(s):
    wide, low = s.round - 8, s.third
    upper, lower = Oval(48, TALL_TOP, 442, 246 + low / 2, s.power), Oval(30, 246 - low / 2, 468, TALL_BOTTOM, s.power)
    tail = 126 if not s.foot else 40
    above = Oval(48 + tail, TALL_TOP + low, 442 - wide, 246 - low / 2, s.power)
    below = Oval(30 + tail, 246 + low / 2, 468 - wide, TALL_BOTTOM - low, s.power)
    cuts = (138, 346) if not s.foot else (126, 364)
    found = [band(upper, above, (upper.left_at(cuts[0]) - 360, above.left_at(cuts[0]) - 360), (90, 90)),
             band(lower, below, (-90, -90), (lower.left_at(cuts[1]), below.left_at(cuts[1]))), bar(184, 246 - low / 2, 262, 246 + low / 2)]
    return found + ([ball(105, 126, 57), ball(91, 364, 61)] if s.foot else [])


def digit_4(s):
    left, top, bottom = 262, 314, 314 + s.flat * 0.92
    slant = closed([(left - 8, TOP), (left + s.stem, TOP), (left + s.stem - 10, 60), (150 if not s.foot else 76, top + 10), (24, bottom), (24, top)])
    return [bar(left, TOP, left + s.stem, BOTTOM), slant, bar(24, top, RIGHT, bottom), *feet(s, left, left + s.stem, 50, (BOTTOM,))]


def digit_5(s):
    wide, low = s.round, s.flat
    bowl = Oval(22, 176, 468, TALL_BOTTOM, s.power)
    tail = 134 if not s.foot else 44
    inner = Oval(22 + tail, 176 + low * 0.96, 468 - wide, TALL_BOTTOM - low * 0.96, s.power)
    cut = 352 if not s.foot else 362
    if s.foot:
        return [bar(84, TOP, 424, TOP + 104), closed([(84, TOP), (146, TOP), (136, 250), (74, 282)]),
                band(bowl, inner, (-138, -132), (bowl.left_at(cut), inner.left_at(cut))), ball(85, 362, 63)]
    return [bar(64, TOP, 440, TOP + low), closed([(64, TOP), (64 + s.stem * 0.9, TOP), (58 + s.stem * 0.86, 250), (250, 214), (250, 287), (48, 287)]),
            band(bowl, inner, (-118, -124), (bowl.left_at(cut), inner.left_at(cut)))]


def digit_6(s):
    wide, low = s.round - 6, s.flat - 6
    bowl = Oval(36, 188, 464, TALL_BOTTOM, s.power)
    whole = Oval(36, TALL_TOP, 476, 560, s.power)
    tail = 116 if not s.foot else 40
    inner = Oval(36 + wide, TALL_TOP + low, 476 - tail, 560 - low, s.power)
    cut = 134 if not s.foot else 104
    found = [ring(bowl, bowl.inside(wide, low)), bar(36, 284, 36 + wide, 342),
             band(whole, inner, (180, 180), (360 + whole.right_at(cut), 360 + inner.right_at(cut)))]
    return found + ([ball(392, 118, 60)] if s.foot else [])


def digit_7(s):
    found = [bar(40, TOP, 462, TOP + s.flat), leaning(140, 462 - s.thick * 1.1, (s.thick * 1.06, s.thick * 1.1))]
    return found + ([wedge(40, TOP + s.flat, 1, 92, -1)] if s.foot else [])


def digit_8(s):
    low = s.third - 4
    upper = Oval(62, TALL_TOP, 438, 240 + low / 2, s.power)
    lower = Oval(36, 240 - low / 2, 464, TALL_BOTTOM, s.power)
    return [ring(upper, upper.inside(s.round - 14, low)), ring(lower, lower.inside(s.round - 6, low))]


DRAWN = {"0": digit_0, "1": digit_1, "2": digit_2, "3": digit_3, "4": digit_4, "5": digit_5, "6": digit_6, "7": digit_7, "8": digit_8}
