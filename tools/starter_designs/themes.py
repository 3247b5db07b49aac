"""Layouts for the pages of the occasions: one for an upright poster and one for a wide one, neither the other's turn.
Each leaves the caption its place above and below."""
from starter_designs.compositions import (bleeding, cards, cascade, column_page, columns_that_hang, corner_hero, field, hero_above, pairs, panes, prints,
                                          ring, salon, spread, strips)
from starter_designs.justified import askew, justified, lying, standing
from starter_designs.place import PORTRAIT, box, centred, TAPES, roomy, shape, taped


def within(inset, *rows, wide=False, gap=40):
    """Rows that leave more of the page at their sides, for what is drawn there."""
    left, top, right, bottom = (inset, 270, 3000 - inset, 1730) if wide else (inset, 290, 2000 - inset, 2700)
    return justified((left, top, right, bottom), gap, rows)


def about_one():
    """Ten small photos round a large one on an upright page, none of them on another."""
    ends = [(x, 1500 + 890 * down, 500, 430, 0) for down in (-1, 1) for x in (440, 1000, 1560)]
    beside = [(1000 + 700 * side, 1500 + 320 * down, 430, 540, 0) for side in (-1, 1) for down in (-1, 1)]
    return prints(*ends, *beside, (1000, 1500, 860, 1180, 0))


def about_two(size, lean):
    """Ten small photos round two large ones on a wide page, none of them on another; the outer ones lean."""
    inner = [(x, y, *size, 0) for x in (1225, 1775) for y in (488, 1522)]
    outer = [(1500 + 920 * side, 1005 + 478 * down, *size, lean * side * down) for side in (-1, 1) for down in (-1, 1)]
    beside = [(1500 + 1070 * side, 1005, *size, 0) for side in (-1, 1)]
    return prints(*inner, *outer, *beside, (1140, 1005, 680, 600, 0), (1860, 1005, 680, 600, 0))


CREAM = TAPES[:1]
PAGES = {
    # Laid by hand: no two alike beside each other in the catalogue.
    "birthday": (cards(False), cards(True)),
    "wedding": (hero_above(False, 3, 0.76, inset=110), hero_above(True, 4, 0.54, inset=150)),
    "baby": (about_one(), about_two((530, 356), 0)),
    "graduation": (within(210, "L", "PLL", "PLP"), within(320, "LL", "LLPL", wide=True)),
    "spring": (columns_that_hang(False, [3, 3], [0, 230], inset=60), columns_that_hang(True, [2, 2, 2, 2], [0, 150, 0, 150], inset=60)),
    "summer": (prints((640, 700, 880, 720, -5), (1430, 900, 640, 760, 10), (520, 1500, 700, 840, 5), (1350, 1640, 800, 660, -5),
                      (660, 2300, 860, 700, -5), (1470, 2330, 640, 740, 5)),
               prints((520, 640, 720, 600, -5), (1240, 700, 620, 720, 5), (2020, 640, 760, 620, -5), (2600, 880, 520, 620, 10),
                      (620, 1330, 760, 620, 5), (1480, 1370, 740, 600, -10), (2270, 1350, 720, 600, 5))),
    "winter": (within(150, "PPPP", "LPL", "L"), within(230, "LPPL", "LPL", wide=True)),
    "christmas": (askew(within(170, "L", "PPP", "PLPL")), askew(within(260, "PPP", "PLPLP", wide=True))),
    "travel": (taped(cascade(False, 6, ((820, 660), (660, 790)), (-5, 5, -10, 5, 5, -5)), 240), taped(cascade(True, 6, ((760, 610), (600, 740)), (-5, 5, 5, -10, 5, -5)), 220)),
    "garden": (within(210, "LP", "L", "LLLL"), within(320, "LLP", "PPPP", wide=True)),
    "sports": (hero_above(False, 6, 0.6), hero_above(True, 6, 0.56)),
    "music": (askew(within(210, "PP", "PL", "PLP")), askew(within(320, "LL", "PLLP", wide=True))),
    "school": (taped(askew(field((170, 350, 1830, 2670), 76, [1.2, 1], [1, 1, 1])), 240, CREAM),
               taped(askew(field((230, 350, 2770, 1680), 84, [1, 1.15, 1.15, 1], [1, 1])), 210, CREAM)),
    "space": (ring(False, 8, (480, 430), (1, 760, 1120), 10, radii=(690, 930)), about_two((525, 350), 5)),
    "pets": (corner_hero(False, inset=50), corner_hero(True, inset=80)),
    "valentine": (within(170, "L", "PLL", "PLP"), within(200, "LLP", "PLLP", wide=True)),
    "mountains": (standing("PP", "LLL", "PL"), lying("LPPL", "PLL")),
    "pumpkin_night": (askew(standing("L", "PLL", "PLP"), (5, -5, 5)), askew(lying("LLLL", "PLP"))),
    "seaside": (bleeding(False), bleeding(True)),
    "autumn": (askew(within(210, "LL", "PLL", "L"), (5, -5, -5)), askew(within(260, "LLP", "PPPP", wide=True))),
    "starry_night": (standing("PPP", "PLP", "PP"), lying("LPL", "LPLP")),
    "best_wishes": (within(250, "LL", "L", "LL"), within(400, "LL", "LPL", wide=True)),
    "anniversary": (hero_above(False, 2, 0.6, inset=150), hero_above(True, 2, 0.62, inset=230)),
    "mothers_day": (within(250, "PLP", "PPP", "L"), within(400, "PPP", "LPLP", wide=True)),
    "fathers_day": (corner_hero(False, right_side=True, inset=40), corner_hero(True, right_side=True, inset=60)),
    "easter": (prints((700, 760, 860, 760, -5), (1440, 1130, 640, 760, 5), (580, 1600, 700, 760, 5), (1380, 1900, 760, 660, -5), (660, 2370, 800, 620, 5)),
               prints((560, 690, 700, 640, -5), (1330, 620, 700, 560, 5), (2140, 700, 780, 660, -5), (920, 1340, 760, 660, 5), (1740, 1340, 700, 620, -5),
                      (2520, 1340, 600, 640, 5))),
    "new_year": (askew(standing("PP", "PLP", "PPP")), askew(lying("LLPL", "LPL"))),
    "milestone": (salon(False), salon(True)),
    "memorial": (hero_above(False, 2, 0.64, inset=170), hero_above(True, 2, 0.66, inset=260)),
    # Photos about the road, which stays in sight below them.
    "road_trip": ([centred(560, 740, 900, 740, -5), centred(1440, 770, 760, 860, 5), centred(560, 1570, 740, 860, 5), centred(1440, 1570, 860, 720, -5),
                   centred(1000, 1170, 640, 560, 5)],
                  [centred(520, 630, 780, 640, -5), centred(560, 1310, 740, 620, 5), centred(2480, 630, 780, 640, 5), centred(2440, 1310, 740, 620, -5),
                   centred(1500, 710, 960, 740, 5)]),
    "city": (columns_that_hang(False, [3, 4, 3], [160, 0, 240]), columns_that_hang(True, [2, 3, 2, 3, 2], [130, 0, 100, 30, 150])),
    "open_sea": (hero_above(False, 4, 0.8), hero_above(True, 2, 0.67)),
    "recipe": ([box(170, 340, 1020, 940)] + [box(1230, 340 + 470 * at, 600, 450) for at in range(5)],
               [box(170, 330, 1060, 960), box(170, 1330, 510, 380), box(720, 1330, 510, 380)] + [box(2330, 330 + 465 * at, 500, 430) for at in range(3)]),
    "book_list": ([box(190 + 560 * x, 340 + 790 * y, 500, 600) for y in range(3) for x in range(3)],
                  [box(165 + 545 * x, 330 + 690 * y, 490, 530) for y in range(2) for x in range(5)]),
    "cover_story": ([box(0, 960, 1420, 1740)] + [box(1460, 960 + 593 * at, 540, 553) for at in range(3)],
                    [box(0, 600, 1450, 1110), box(1490, 600, 850, 1110), box(2380, 600, 620, 535), box(2380, 1175, 620, 535)]),
    "before_after": (pairs(False, 3), pairs(True, 4)),
    "our_class": (field((150, 900, 1850, 2680), 36, [1] * 4, [1] * 4), field((150, 340, 2850, 1690), 32, [1] * 7, [1] * 3)),
    "month_sheet": ([box(120, 320, 1300, 1080), box(1460, 320, 420, 520), box(1460, 880, 420, 520)],
                    [box(130, 310, 1240, 1000)] + [box(130 + 423 * at, 1350, 393, 350) for at in range(3)]),
    "year_in_review": ([box(570, 935, 860, 1130)] + [place for place in field((120, 350, 1880, 2650), 40, [1] * 4, [1] * 4)
                                                       if not (570 <= place.left < 1400 and 900 < place.top < 2000)],
                       [box(130, 310, 1060, 1390)] + field((1230, 310, 2870, 1700), 40, [1] * 4, [1] * 3)),
    "baby_months": (ring(False, 12, (380, 380), (1, 820, 1060), radii=(670, 990)), field((130, 310, 1000, 1700), 32, [1] * 2, [1] * 3) + field((1040, 310, 1960, 1700), 40, [1], [1] * 2)
                    + field((2000, 310, 2870, 1700), 32, [1] * 2, [1] * 3)),
    "photo_booth": (strips(False, [4, 4, 4], 480), strips(True, [3, 3, 3, 3, 3], 440, lean=0)),
    "window": (panes(False), panes(True)),
    "magazine": (column_page(), spread()),
    "postcards": (prints((640, 690, 980, 740, -5), (1380, 1200, 980, 740, 5), (620, 1770, 980, 740, 5), (1370, 2310, 980, 740, -5)),
                  prints((560, 670, 880, 660, -5), (1480, 620, 860, 640, 5), (2410, 700, 880, 660, -5), (980, 1350, 880, 660, 5), (2000, 1340, 880, 660, -5))),
    "white_space": ([box(640, 420, 1240, 1540), box(640, 2010, 600, 620), box(1280, 2010, 600, 620)],
                    [box(160, 330, 1500, 1350), box(1730, 820, 560, 420), box(1730, 1280, 560, 400)]),
    "light_table": ([box(150 + 600 * x, 368 + 605 * y, 500, 450) for y in range(4) for x in range(3)],
                    [box(120 + 720 * x, 388 + 705 * y, 600, 520) for y in range(2) for x in range(4)]),
    "panorama_page": ([box(0, 480, 2000, 680), box(120, 1260, 860, 660), box(1020, 1260, 860, 660), box(0, 2020, 2000, 680)],
                      [box(0, 300, 3000, 980), box(130, 1330, 440, 370), box(610, 1330, 1120, 370), box(1770, 1330, 440, 370), box(2250, 1330, 620, 370)]),
    "salon_wall": (salon(False), salon(True)),
    "cinema": ([box(left, 322 + 476 * at, 602, 452) for left in (259, 1139) for at in range(5)],
               [box(146 + 949 * at, top, 808, 606) for top in (322, 1072) for at in range(3)]),
    # Four grandparents, two parents, one child: the lines between them are the page's.
    "family_tree": ([box(x - 200, 290, 400, 450) for x in (310, 770, 1230, 1690)] + [box(x - 365, 900, 730, 660) for x in (540, 1460)]
                    + [box(380, 1760, 1240, 930)],
                    [box(x - 290, 290, 580, 440) for x in (480, 1140, 1860, 2520)] + [box(x - 360, 860, 720, 840) for x in (750, 2250)]
                    + [box(1160, 820, 680, 880)]),
}


def stamps():
    """Stamps on a dark card, close to each other: two large ones in opposite corners, small ones about them."""
    small = [(2, 0), (2, 1), (0, 2), (1, 2), (2, 2), (0, 3), (0, 4)]
    return roomy(PORTRAIT, [shape(695, 585, 1180, "stamp.gif")] + [shape(390 + 610 * column, 280 + 610 * line, 570, "stamp.gif") for column, line in small]
                 + [shape(1305, 2415, 1180, "stamp.gif")])