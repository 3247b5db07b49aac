"""Layouts for the pages of the occasions: one for an upright poster and one for a wide one, neither the other's turn.
Each leaves the caption its place above and below."""
from starter_designs.justified import askew, justified, lying, standing
from starter_designs.place import box, shape


def within(inset, *rows, wide=False, gap=40):
    """Rows that leave more of the page at their sides, for what is drawn there."""
    left, top, right, bottom = (inset, 270, 3000 - inset, 1730) if wide else (inset, 290, 2000 - inset, 2700)
    return justified((left, top, right, bottom), gap, rows)


PAGES = {
    "birthday": (askew(standing("L", "PPP", "LLP")), askew(lying("PLP", "LLPL"), (5, -5, 5, -5))),
    "wedding": (within(250, "L", "LP", "PL"), within(400, "LL", "PLP", wide=True)),
    "baby": (standing("L", "LL", "PLP"), lying("LL", "PLPLP")),
    "graduation": (within(210, "PP", "LP", "LL"), within(320, "LL", "PPLP", wide=True)),
    "spring": (askew(within(170, "PP", "LL", "PLP")), askew(within(260, "PLP", "LPLP", wide=True))),
    "summer": (standing("PP", "LL", "LPL"), lying("LPL", "PPLP")),
    "winter": (askew(standing("PP", "LPL", "PLP")), askew(lying("PLP", "PLPLP"), (5, -5))),
    "christmas": (askew(within(170, "L", "PPP", "LPL")), askew(within(260, "PPPP", "LLPL", wide=True))),
    "travel": (standing("L", "PLP", "PLP"), lying("LPL", "PPLP")),
    "garden": (within(210, "L", "LP", "PLP"), within(320, "LPL", "PLP", wide=True)),
    "sports": (standing("L", "PL", "LPLP"), lying("LPL", "LPL")),
    "music": (askew(within(170, "L", "LP", "PLP")), askew(within(260, "LPL", "PLP", wide=True))),
    "school": (standing("LL", "PLP", "LL", "PLP"), lying("PLP", "LPLPL")),
    "space": (standing("LP", "PL", "LP"), within(200, "LL", "LPLP", wide=True)),
    "pets": (within(210, "PP", "LP", "LPL"), within(260, "LPL", "PPLP", wide=True)),
    "valentine": (within(170, "L", "LP", "PPLP"), within(200, "LL", "PPLPP", wide=True)),
    "mountains": (standing("L", "LP", "LPL"), lying("PLP", "LPLP")),
    "pumpkin_night": (askew(standing("L", "LL", "PPPP"), (5, -5, 5)), askew(lying("LLP", "PPLP"))),
    "seaside": (askew(standing("PP", "LL", "LLP")), askew(lying("LPL", "PPLPP"))),
    "autumn": (askew(within(210, "PP", "LP", "LL"), (5, -5, -5)), askew(within(260, "LL", "PPLP", wide=True))),
    "starry_night": (standing("LL", "PP", "LL"), lying("LLP", "PPLP")),
    "best_wishes": (within(210, "PP", "LL", "PLP"), within(320, "LP", "LPLPL", wide=True)),
    "anniversary": (within(250, "L", "PLP", "L"), within(400, "PL", "LPLL", wide=True)),
    "mothers_day": (within(170, "PP", "LP", "PLPL"), within(260, "PLP", "LPLP", wide=True)),
    "fathers_day": (standing("LL", "PP", "LPL"), lying("PLL", "PPLP")),
    "easter": (askew(within(210, "L", "PPLPP", "L"), (5, -5, 5)), askew(within(320, "LL", "PPLP", wide=True))),
    "new_year": (askew(standing("L", "PPP", "LPLPL")), askew(lying("PPPP", "LPLPL"))),
    "milestone": (within(210, "LP", "LL", "PPPP", "LL"), within(320, "LPLP", "LLPL", "LPLL", wide=True)),
    "memorial": (within(250, "L", "LP", "PL"), within(400, "LP", "PLL", wide=True)),
    "road_trip": (standing("LL", "PPP", "LLP", "LPL"), lying("LPLP", "PPLP")),
    "city": (standing("L", "PPP", "LPLP"), lying("PLP", "LLPL")),
    "open_sea": (standing("L", "LP", "LPLP"), lying("LLP", "LPL")),
    # Five frames on each of two strips of film; three on a wide page.
    "cinema": ([box(left, 322 + 476 * at, 680, 452) for left in (220, 1100) for at in range(5)],
               [box(96 + 949 * at, top, 909, 606) for top in (322, 1072) for at in range(3)]),
    # Four grandparents, two parents, one child: the lines between them are the page's.
    "family_tree": ([box(x - 190, 290, 380, 450) for x in (310, 770, 1230, 1690)] + [box(x - 230, 1010, 460, 550) for x in (540, 1460)]
                    + [box(380, 1830, 1240, 850)],
                    [box(x - 190, 270, 380, 420) for x in (480, 1140, 1860, 2520)] + [box(x - 270, 880, 540, 640) for x in (810, 2190)]
                    + [box(1190, 820, 620, 760)]),
}


def stamps():
    """Twelve stamps on a dark card, close to each other."""
    return [shape(390 + 610 * column, 590 + 610 * line, 570, "stamp.gif") for line in range(4) for column in range(3)]


def cloud_nine():
    """Seven clouds that fill the sky."""
    spots = [(620, 560, 900), (1450, 850, 900), (560, 1190, 760), (1400, 1530, 900), (540, 1850, 900), (1440, 2180, 760), (700, 2520, 900)]
    return [shape(x, y, size, "cloud.gif") for x, y, size in spots]
