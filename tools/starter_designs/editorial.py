"""Calm pages with a clear order: few photos in broad margins, pages for a year, a team, a journey. All upright, none touching
another, and with room above for a title where the page is meant to have one."""
from starter_designs.justified import justified, lying, page, standing
from starter_designs.place import PORTRAIT, box, roomy


def squares(area, columns, lines, gap):
    """As large as the area takes them, about its middle."""
    left, top, right, bottom = area
    side = min((right - left - gap * (columns - 1)) // columns, (bottom - top - gap * (lines - 1)) // lines)
    left += (right - left - columns * side - gap * (columns - 1)) // 2
    top += (bottom - top - lines * side - gap * (lines - 1)) // 2
    return [box(left + x * (side + gap), top + y * (side + gap), side, side) for y in range(lines) for x in range(columns)]


def title_page():
    """A large photo below a third of the page that is the title's, and four small ones at its foot."""
    return [box(130, 700, 1740, 1380)] + [box(130 + 445 * at, 2120, 405, 520) for at in range(4)]


def quiet_page():
    return justified((330, 500, 1670, 2480), 60, ["L", "PP"])


def gallery_sheet():
    """One large photo, three small ones below it."""
    return [box(230, 480, 1540, 1220)] + [box(230 + 530 * at, 1780, 480, 600) for at in range(3)]


def left_column():
    """A tall photo, three small ones beside it and three below."""
    return [box(120, 330, 1180, 1560)] + [box(1340, 330 + 533 * at, 540, 494) for at in range(3)] + [box(120 + 600 * at, 1930, 560, 720) for at in range(3)]


def contact_strip():
    """A strip of five small photos between two pairs of large ones."""
    return [box(left, top, 860, 900) for top in (300, 1798) for left in (120, 1020)] + [box(120 + 356 * at, 1279, 336, 440) for at in range(5)]


def broadsheet():
    """Columns of a large newspaper."""
    return roomy(PORTRAIT, page(PORTRAIT, 110, 36, "LP", "PLP", "LL", "PPP"))


def double_portrait():
    return standing("PP", "PPP", "PLP")


def lookbook():
    """Six photos of the same size in three rows."""
    return [box(270 + 760 * x, 330 + 800 * y, 700, 740) for y in range(3) for x in (0, 1)]


def nine_squares():
    return squares((150, 560, 1850, 2600), 3, 3, 40)


def sixteen_squares():
    return squares((150, 560, 1850, 2600), 4, 4, 30)


def ten_squares():
    return squares((140, 430, 2860, 1730), 5, 2, 40)


def long_weekend():
    """Rows of three in which the upright place changes sides."""
    return standing("LLP", "LLL", "PLL", "LLL", "LPL")


def twelve_months():
    return squares((130, 360, 1870, 2700), 3, 4, 40)


def twelve_months_wide():
    return [box(150 + 456 * x, 340 + 690 * y, 420, 640) for y in (0, 1) for x in range(6)]


def first_year():
    """A large photo of today above a square for each month."""
    return [box(280, 300, 1440, 1080)] + squares((130, 1420, 1870, 2700), 4, 3, 30)


def first_year_wide():
    return [box(140, 290, 1180, 1440)] + squares((1360, 290, 2860, 1730), 4, 3, 30)


def calendar_page():
    """The picture of the month and four weeks below it."""
    return [box(330, 320, 1340, 1100)] + squares((130, 1470, 1870, 2720), 7, 5, 20)[:31]


def team_page():
    """The whole team above, its members in two rows below."""
    return [box(130, 300, 1740, 1300)] + [box(130 + 445 * x, 1640 + 540 * y, 405, 500) for y in (0, 1) for x in range(4)]


def team_page_wide():
    return [box(140, 290, 1180, 1440)] + [box(1360 + 510 * x, 290 + 735 * y, 480, 640) for y in (0, 1) for x in range(3)]


def panoramas_four():
    """Four real panoramas, three times as wide as high."""
    return standing("W", "W", "W", "W")


def panorama_and_portraits():
    """A panorama above four portraits, another below them."""
    return standing("W", "PPPP", "W", "LL")


def panoramas_wide():
    """A landscape poster: two panoramas over its whole width."""
    return [box(120, 290, 2760, 920), box(120, 1250, 1360, 480), box(1520, 1250, 1360, 480)]


def before_and_after():
    """Three pairs of squares, a pair closer together than the pairs are."""
    return [box(left, 320 + 810 * line, 850, 750) for line in range(3) for left in (140, 1010)]


def mats_on_charcoal():
    """Five photos in broad frames of one size."""
    return [box(300, 400, 1400, 1120), box(300, 1610, 780, 940), box(1170, 1610, 530, 425), box(1170, 2125, 530, 425)]


def black_frames():
    """Five photos in black frames on a wall."""
    return justified((290, 430, 1710, 2560), 90, ["PL", "LP", "PL"])


def triptych():
    """A landscape poster: three tall photos, the middle one the largest."""
    return [box(160, 480, 790, 1040), box(1000, 330, 1000, 1330), box(2050, 480, 790, 1040)]


def story_board():
    """A landscape poster: a large picture and the steps that led to it."""
    return [box(140, 280, 1200, 980)] + [box(1380 + 500 * at, 280 + 500 * down, 480, 480) for down in (0, 1) for at in range(3)] + [
        box(140 + 549 * at, 1300, 524, 430) for at in range(5)]


def family_row():
    """A landscape poster: four upright photos above a row of five."""
    return justified((140, 290, 2860, 1730), 40, ["PPPP", "PPPPP"])


def travel_notes():
    """A landscape poster in three rows."""
    return lying("LPLPL", "PLPLPL", "LPLPL", gap=36)