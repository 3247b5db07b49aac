"""The sturdy and the serif alphabet: the same letters, built of strokes with other widths, with feet or without."""
from starter_art import built_digits
from starter_art.letter_parts import TALL_BOTTOM, TALL_TOP, arms, ball, beak, big_oval, feet, first_stem, hollow, leg, opened, turned_over, wedge
from starter_art.letterforms import BOTTOM, LEFT, MIDDLE, RIGHT, TOP, Oval, band, bar, bow, curves, leaning, ribbon, ring, serif
from starter_art.masks import LIT, RIM
from starter_art.svg import closed, drawing, group, path, rectangle

RIM_WIDTH = 16  # half of it lies within, below the letter


def letter_a(s):
    low = 40 if s.foot else 0
    top, bottom = (338, 338 + 0.86 * s.flat) if not s.foot else (322, 322 + s.flat)
    return leg(s, LEFT + low, MIDDLE - 0.62 * s.thick, s.thin, (40, 40), BOTTOM) + [bar(150, top, 350, bottom)] \
        + leg(s, RIGHT - low - s.thick, MIDDLE - 0.38 * s.thick, s.thick, (40, 40), BOTTOM)


def letter_b(s):
    parts, left, right = first_stem(s)
    waist = 244
    return parts + [bow(left, TOP, 448, waist + s.third / 2, 246, (s.round - 10, s.third), s.stem, s.power),
                    bow(left, waist - s.third / 2, RIGHT, BOTTOM, 262, (s.round, s.third), s.stem, s.power)]


def letter_c(s):
    outer, inner = hollow(s)
    if s.foot:
        return [opened(outer, inner, 110, 372), beak(RIGHT - 4, TOP, 186)]
    return [opened(outer, inner, 186, 322)]


def letter_d(s):
    parts, left, _ = first_stem(s)
    return parts + [bow(left, TOP, RIGHT + 2, BOTTOM, 250, (s.round, s.flat), s.stem, s.power)]


def letter_e(s):
    parts, _, right = first_stem(s)
    middle = 246
    return parts + arms(s, right, [(TOP, TOP + s.third, 466, (0, 84)), (middle - s.third / 2, middle + s.third / 2, 424, (56, 56)),
                                   (BOTTOM - s.third, BOTTOM, 476, (92, 0))])


def letter_f(s):
    parts, _, right = first_stem(s)
    return parts + arms(s, right, [(TOP, TOP + s.flat, 476, (0, 98)), (232, 232 + s.flat * 0.94, 428, (58, 58))])


def letter_g(s):
    outer, inner = hollow(s)
    if s.foot:
        inner = Oval(LEFT - 4 + s.round, TALL_TOP + s.flat, RIGHT - 60, TALL_BOTTOM - s.flat, s.power)
        stem = (RIGHT - 30 - s.stem, RIGHT - 30)
        return [opened(outer, inner, 92, 420), beak(RIGHT - 18, TOP, 178), bar(stem[0], 246, stem[1], 428),
                serif(stem, 240, s.foot, (52, 30), s.bracket)]
    return [opened(outer, inner, 172, 248), bar(272, 248, RIGHT - 3, 248 + s.flat * 0.72)]


def letter_h(s):
    parts, left, right = first_stem(s)
    other = RIGHT - (left - LEFT)
    return parts + [bar(other - s.stem, TOP, other, BOTTOM), *feet(s, other - s.stem, other),
                    bar(right - 10, 246 - s.flat / 2, other - s.stem + 10, 246 + s.flat / 2)]


def letter_i(s):
    left, right = MIDDLE - s.stem / 2 - 2, MIDDLE + s.stem / 2 + 2
    if s.foot:
        return [bar(left, TOP, right, BOTTOM), *feet(s, left, right, 74)]
    return [bar(left, TOP, right, BOTTOM), bar(92, TOP, 408, TOP + s.third), bar(92, BOTTOM - s.third, 408, BOTTOM)]


def letter_j(s):
    right = 436 if s.foot else 450
    left = right - s.stem
    outer, inner = Oval(58, 150, right, TALL_BOTTOM, s.power), Oval(58 + s.round, 150 + s.flat, left, TALL_BOTTOM - s.flat, s.power)
    hook = band(outer, inner, (0, 0), (outer.left_at(338), inner.left_at(338)))
    if s.foot:
        hook = band(outer, Oval(58 + 96, 150 + s.flat, left, TALL_BOTTOM - s.flat, s.power), (0, 0), (182, 182))
        return [bar(left, TOP, right, 322), hook, *feet(s, left, right, (60, 34), (TOP,)), ball(119, 328, 62)]
    return [bar(left, TOP, right, 322), hook, bar(196, TOP, left + 10, TOP + s.flat * 0.94)]


def letter_k(s):
    parts, left, right = first_stem(s)
    edge = RIGHT - (26 if s.foot else 0)
    arm = closed([(edge - s.thin - 8, TOP), (edge, TOP), (right, 336), (right - 30, 336), (right - 30, 230)])
    knee, wide = 184, s.thick * 1.08
    slopes = [(right + 30 - edge - 6 + wide) / (BOTTOM - knee - 76), (right + 116 - edge - 6) / (BOTTOM - knee)]
    return parts + [arm, closed([(right + 30, knee + 76), (right + 116, knee), (edge + 6, BOTTOM), (edge + 6 - wide, BOTTOM)])] \
        + feet(s, edge - s.thin - 8, edge, (30, 26), (TOP,), (-0.78, -0.78)) + feet(s, edge + 6 - wide, edge + 6, (22, 20), (BOTTOM,), slopes)


def letter_l(s):
    left = LEFT + (30 if s.foot else 24)
    parts, _, right = first_stem(s, left)
    return parts + arms(s, right, [(BOTTOM - s.flat, BOTTOM, 468, (104, 0))])


def letter_m(s):
    if s.foot:
        left, right = LEFT + 24, RIGHT - 24
        return [bar(left, TOP, left + 58, BOTTOM), bar(right - 112, TOP, right, BOTTOM),
                closed([(left, TOP), (left + 118, TOP), (262, 330), (232, 470), (220, 470)]),
                closed([(right - 112, TOP), (right, TOP), (244, 470), (220, 470), (226, 400)]),
                *feet(s, left, left + 58, (24, 28), (BOTTOM,)), *feet(s, right - 112, right, 24, (BOTTOM,)),
                *feet(s, left, left + 100, (24, 0), (TOP,)), *feet(s, right - 112, right, (0, 24), (TOP,))]
    stem = 126
    return [bar(LEFT - 4, TOP, LEFT - 4 + stem, BOTTOM), bar(RIGHT + 4 - stem, TOP, RIGHT + 4, BOTTOM),
            closed([(LEFT - 4, TOP), (LEFT + 132, TOP), (MIDDLE, 226), (RIGHT - 132, TOP), (RIGHT + 4, TOP), (RIGHT - 60, 140),
                    (306, 446), (194, 446), (LEFT + 60, 140)])]


def letter_n(s):
    if s.foot:
        left, right = LEFT + 26, RIGHT - 26
        return [bar(left, TOP, left + 62, BOTTOM), bar(right - 62, TOP, right, BOTTOM),
                leaning(right - 150, left, (150, 156)), *feet(s, left, left + 62, 26, (BOTTOM,)),
                *feet(s, left, left + 100, (26, 0), (TOP,)), *feet(s, right - 62, right, 26, (TOP,))]
    stem = 142
    return [bar(LEFT, TOP, LEFT + stem, BOTTOM), bar(RIGHT - stem, TOP, RIGHT, BOTTOM), leaning(RIGHT - 172, LEFT, 172)]


def letter_o(s):
    return [ring(*big_oval(s))]


def letter_p(s):
    parts, left, _ = first_stem(s)
    return parts + [bow(left, TOP, RIGHT - 4, 318, 264, (s.round, s.flat * 0.96), s.stem, s.power)]


def letter_q(s):
    wide = 96 if s.foot else 112
    return [ring(*big_oval(s)), ribbon([(292, 306), (442, 450)], wide, wide)]


def letter_r(s):
    parts, left, right = first_stem(s)
    if s.foot:
        wide = s.thick
        return parts + [bow(left, TOP, 452, 274, 256, (s.round - 6, s.flat), s.stem, s.power)] \
            + leg(s, 466 - wide, 214, (wide, 150), (0, 20), BOTTOM, BOTTOM, 236)
    return parts + [bow(left, TOP, 470, 312, 258, (s.round, s.flat * 0.94), s.stem, s.power),
                    closed([(212, 280), (366, 252), (484, BOTTOM), (484 - s.thick * 1.1, BOTTOM)])]


def letter_s(s):
    """Clockwise from its upper end; the spine is broad, what lies at top and bottom is flat."""
    wide, low = s.round, s.flat - 4
    over, under = (196, 298) if not s.foot else (176, 322)
    left, right, high, deep = 30 + wide, 476 - wide, TALL_TOP + low, TALL_BOTTOM - low
    if s.foot:
        upper, lower = [(440, 128), (424, 128)], [(60, 372), (76, 372)]
    else:
        upper, lower = [(464, 164), (right + 10, 164)], [(26, 334), (left - 14, 334)]
    waist, chest = 0.55 * under + 0.45 * deep, 0.55 * over + 0.45 * high  # where the inner bows are at their broadest
    shape = curves(upper[0], ((456, 62), (374, TALL_TOP), (252, TALL_TOP)), ((118, TALL_TOP), (30, 62), (30, 152)),
                   ((30, 242), (98, under - 22), (226, under)), ((288, under + 11), (right, under + 20), (right, waist)),
                   ((right, deep - 12), (290, deep), (250, deep)), ((206, deep), (lower[1][0] + 4, deep - 14), lower[1]))
    shape += curves(lower[0], ((34, 436), (124, TALL_BOTTOM), (254, TALL_BOTTOM)), ((394, TALL_BOTTOM), (476, 434), (476, 344)),
                    ((476, 246), (398, over + 21), (272, over)), ((212, over - 11), (left, over - 20), (left, chest)),
                    ((left, high + 12), (212, high), (254, high)), ((298, high), (upper[1][0] - 4, high + 14), upper[1]))
    if s.foot:
        return [closed(shape), beak(RIGHT - 26, TOP, 176), turned_over(beak(RIGHT - 26, TOP, 176))]
    return [closed(shape)]


def letter_t(s):
    left, right = MIDDLE - s.stem / 2 - 3, MIDDLE + s.stem / 2 + 3
    parts = [bar(left, TOP, right, BOTTOM), bar(LEFT, TOP, RIGHT, TOP + s.flat)]
    if s.foot:
        parts += [wedge(RIGHT, TOP + s.flat, 1, 96), wedge(LEFT, TOP + s.flat, 1, 96, -1)]
    return parts + feet(s, left, right, 56, (BOTTOM,))


def letter_u(s):
    if s.foot:
        left, right, thin = LEFT + 24, RIGHT - 24, 66
        outer, inner = Oval(left, 130, right, TALL_BOTTOM, 2.3), Oval(left + s.stem, 130, right - thin, TALL_BOTTOM - s.flat - 16, 2.3)
        return [bar(left, TOP, left + s.stem, 312), bar(right - thin, TOP, right, 312), band(outer, inner, (0, 0), (180, 180)),
                *feet(s, left, left + s.stem, 24, (TOP,)), *feet(s, right - thin, right, 24, (TOP,))]
    outer = Oval(LEFT, 100, RIGHT, TALL_BOTTOM, s.power)
    return [bar(LEFT, TOP, LEFT + s.stem, 298), bar(RIGHT - s.stem, TOP, RIGHT, 298),
            band(outer, outer.inside(s.stem, s.flat + 8), (0, 0), (180, 180))]


def letter_v(s):
    low = 34 if s.foot else 0
    left, right = LEFT + low, RIGHT - low
    return leg(s, MIDDLE - 0.62 * s.thick, left, s.thick, (34, 34), TOP) \
        + leg(s, MIDDLE + 0.38 * s.thick - s.thin, right - s.thin, s.thin, (34, 34), TOP)


def letter_w(s):
    if s.foot:
        thick, thin = 108, 54
        return leg(s, 112, LEFT + 14, thick, (14, 18), TOP) + [leaning(166, 236, thin), leaning(286, 186, thick)] \
            + leg(s, 340, RIGHT - 14 - thin, thin, (28, 14), TOP)
    wide = 122
    return [leaning(86, LEFT - 6, wide), leaning(96, 190, (112, 116)), leaning(292, 194, (112, 116)),
            leaning(292, RIGHT + 6 - wide, wide)]


def letter_x(s):
    low, thick, thin = 28 if s.foot else 0, s.thick * 1.06, s.thin * 1.06
    found = [leaning(RIGHT - low - thick, LEFT + low, thick), leaning(LEFT + low, RIGHT - low - thin, thin)]
    if s.foot:
        fall, rise = (RIGHT - LEFT - 2 * low - thick) / (BOTTOM - TOP), (RIGHT - LEFT - 2 * low - thin) / (BOTTOM - TOP)
        found += feet(s, LEFT + low, LEFT + low + thick, (28, 20), (TOP,), (fall, fall)) \
            + feet(s, RIGHT - low - thick, RIGHT - low, (20, 28), (BOTTOM,), (-fall, -fall)) \
            + feet(s, LEFT + low, LEFT + low + thin, (28, 34), (BOTTOM,), (rise, rise)) \
            + feet(s, RIGHT - low - thin, RIGHT - low, (34, 28), (TOP,), (-rise, -rise))
    return found


def letter_y(s):
    low = 28 if s.foot else -4
    left, right, fork, x = LEFT + low, RIGHT - low, 296, MIDDLE - s.stem / 2 - 2
    stem = s.stem + 4
    return leg(s, x, left, (stem, s.thick * 1.04), (28, 26), TOP, fork) + [bar(x, fork - 1, x + stem, BOTTOM)] \
        + leg(s, x + stem - s.thin * 0.9, right - s.thin * 1.04, (s.thin * 0.9, s.thin * 1.04), (32, 28), TOP, fork) \
        + feet(s, x, x + stem, 54, (BOTTOM,))


def letter_z(s):
    wide = 176 if s.foot else 210
    found = [bar(LEFT + 8, TOP, RIGHT - 6, TOP + s.flat), bar(LEFT, BOTTOM - s.flat, RIGHT, BOTTOM), leaning(LEFT, RIGHT - 6 - wide, wide)]
    if s.foot:
        found += [wedge(LEFT + 8, TOP + s.flat, 1, 90, -1), wedge(RIGHT, BOTTOM - s.flat, -1, 96)]
    return found


DRAWN = {"a": letter_a, "b": letter_b, "c": letter_c, "d": letter_d, "e": letter_e, "f": letter_f, "g": letter_g, "h": letter_h,
         "i": letter_i, "j": letter_j, "k": letter_k, "l": letter_l, "m": letter_m, "n": letter_n, "o": letter_o, "p": letter_p,
         "q": letter_q, "r": letter_r, "s": letter_s, "t": letter_t, "u": letter_u, "v": letter_v, "w": letter_w, "x": letter_x,
         "y": letter_y, "z": letter_z, **built_digits.DRAWN}


def letter(name, style):
    """A letter or a digit: its forms, and how they are placed in the box, with some room at both sides."""
    if name == "9":
        return [path(shape) for shape in DRAWN["6"](style)], "translate(250,250) scale(-0.96,-1) translate(-250,-250)"
    return [path(shape) for shape in DRAWN[name](style)], "translate(10,0) scale(0.96,1)"


def all_built(style):
    ground = rectangle(0, 0, 500, 500, fill="#ffffff")
    found = {}
    for name in (*DRAWN, "9"):
        parts, placed = letter(name, style)
        rims = group(parts, fill=RIM, stroke=RIM, stroke_width=RIM_WIDTH, stroke_linejoin="round", transform=placed)
        inside = group([group(parts, transform=placed)], transform=f"translate({LIT},{LIT})")
        found[f"char_{name}"] = drawing(500, 500, [ground, rims, inside])
    return found


def shown(name, style):
    """The letter alone, to be coloured by what it stands in."""
    parts, placed = letter(name, style)
    return group(parts, transform=placed)
