"""Calm pages with a clear order: few photos in broad margins, pages for a year, a team, a journey. All upright, none touching
another, and with room above for a title where the page is meant to have one."""
from starter_designs.justified import justified, lying, page, standing
from starter_designs.place import PORTRAIT, box


def squares(area, columns, lines, gap):
    """As large as the area takes them, about its middle."""
    left, top, right, bottom = area
    side = min((right - left - gap * (columns - 1)) // columns, (bottom - top - gap * (lines - 1)) // lines)
    left += (right - left - columns * side - gap * (columns - 1)) // 2
    top += (bottom - top - lines * side - gap * (lines - 1)) // 2
    return [box(left + x * (side + gap), top + y * (side + gap), side, side) for y in range(lines) for x in range(columns)]


def title_page():
    """A large photo below a third of the page that is the title's, and four small ones at its foot."""
    return [box(130, 760, 1740, 1270)] + [box(130 + 445 * at, 2070, 405, 540) for at in range(4)]


def quiet_page():
    return justified((330, 420, 1670, 2600), 60, ["L", "PP"])


def gallery_sheet():
    """One large landscape, three small squares below it."""
    return [box(230, 560, 1540, 1080)] + [box(230 + 530 * at, 1720, 480, 640) for at in range(3)]


def left_column():
    """A portrait over the height of the page, four landscapes beside it."""
    return [box(120, 330, 1080, 1680)] + [box(1240, 330 + 427 * at, 640, 399) for at in range(4)] + [
        box(120 + 600 * at, 2050, 560, 620) for at in range(3)]


def contact_strip():
    """A strip of five squares between two large landscapes."""
    return [box(120, 300, 1760, 940)] + [box(120 + 356 * at, 1280, 336, 448) for at in range(5)] + [box(120, 1768, 1760, 930)]


def broadsheet():
    """Columns of a large newspaper."""
    return page(PORTRAIT, 110, 36, "LP", "PPPP", "LL", "PL")


def double_portrait():
    return standing("PP", "LLL", "LPL")


def lookbook():
    """Six portraits of the same size."""
    return [box(120 + 600 * x, 420 + 1100 * y, 560, 1040) for y in (0, 1) for x in range(3)]


def nine_squares():
    return squares((150, 560, 1850, 2600), 3, 3, 40)


def sixteen_squares():
    return squares((150, 560, 1850, 2600), 4, 4, 30)


def ten_squares():
    return squares((140, 430, 2860, 1730), 5, 2, 40)


def long_weekend():
    """Rows of three in which the portrait changes sides."""
    return standing("LLP", "PLL", "LPL", "LLP", "PLL")


def twelve_months():
    return squares((130, 360, 1870, 2700), 3, 4, 40)


def twelve_months_wide():
    return [box(150 + 456 * x, 340 + 690 * y, 420, 640) for y in (0, 1) for x in range(6)]


def first_year():
    """A large photo of today above a square for each month."""
    return [box(130, 300, 1740, 1080)] + squares((130, 1420, 1870, 2700), 4, 3, 30)


def first_year_wide():
    return [box(140, 290, 1180, 1440)] + squares((1360, 290, 2860, 1730), 4, 3, 30)


def calendar_page():
    """The picture of the month and four weeks below it."""
    return [box(130, 330, 1740, 1100)] + squares((130, 1470, 1870, 2720), 7, 5, 20)[:31]


def team_page():
    """The whole team above, its members in two rows below."""
    return [box(130, 300, 1740, 1160)] + [box(130 + 445 * x, 1500 + 605 * y, 405, 565) for y in (0, 1) for x in range(4)]


def team_page_wide():
    return [box(140, 290, 1180, 1440)] + [box(1360 + 510 * x, 290 + 735 * y, 480, 705) for y in (0, 1) for x in range(3)]


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
    return [box(250, 430, 1500, 1000), box(250, 1590, 680, 940), box(1070, 1590, 680, 400), box(1070, 2130, 680, 400)]


def black_frames():
    """Five photos in black frames on a wall."""
    return justified((290, 340, 1710, 2640), 90, ["L", "LP", "PL"])


def triptych():
    """A landscape poster: three tall photos, the middle one the widest."""
    return [box(160, 320, 780, 1380), box(1000, 320, 1000, 1380), box(2060, 320, 780, 1380)]


def story_board():
    """A landscape poster: a large picture and the steps that led to it."""
    return [box(140, 280, 1750, 980)] + [box(1930, 280 + 505 * at, 930, 475) for at in (0, 1)] + [
        box(140 + 688 * at, 1300, 656, 430) for at in range(4)]


def family_row():
    """A landscape poster: four portraits above a row of landscapes."""
    return justified((140, 290, 2860, 1730), 40, ["PPPP", "LLLL"])


def travel_notes():
    """A landscape poster in three rows."""
    return lying("LPLPL", "PLPLP", "LPLPL", gap=36)
