"""Layouts of tilted photos. A later photo lies on an earlier one; tilts are multiples of five."""
import math

from starter_designs.cover import scattered
from starter_designs.justified import askew, lying, standing
from starter_designs.place import PORTRAIT, centred, taped

TILTS = [tilt for tilt in range(-35, 40, 5) if tilt]
GENTLE = [-10, -5, 5, 10, -5, 5]


def five(angle):
    """The nearest tilt that there is."""
    return max(-35, min(35, 5 * round(angle / 5)))


def fan():
    """Seven cards in a hand, on a wide page."""
    places = []
    for tilt in range(-30, 35, 10):
        angle = math.radians(tilt)
        places.append(centred(1500 + 2150 * math.sin(angle), 3120 - 2150 * math.cos(angle), 560, 820, tilt))
    return places


def two_fans():
    """A hand of five above, one of five below that points down, and the card that was played."""
    places = []
    for middle, sign in ((2500, 1), (500, -1)):
        for tilt in range(-20, 25, 10):
            angle = math.radians(tilt)
            places.append(centred(1000 + 1800 * math.sin(angle), middle - sign * 1700 * math.cos(angle), 490, 710, tilt * sign))
    return places + [centred(1000, 1500, 660, 660, -5)]


def waves():
    """Four waves of five photos, wide and tall in turn, each tilted as the wave runs."""
    places = []
    for line, middle in enumerate((520, 1175, 1830, 2480)):
        for at in range(5):
            x = 260 + at * 370
            phase = 2 * math.pi * (x / 1540) + line * 1.2
            size = (480, 350) if (at + line) % 2 == 0 else (340, 460)
            places.append(centred(x, middle + 110 * math.sin(phase), *size, five(18 * math.cos(phase))))
    return places


def heart_line(count, cleft, steps=2000):
    """Points at even distances along a heart about (0, 0); the first and the last leave `cleft` pixels to its cleft."""
    line = []
    for at in range(steps + 1):
        t = 2 * math.pi * at / steps
        line.append((47 * 16 * math.sin(t) ** 3,
                     -74 * (13 * math.cos(t) - 5 * math.cos(2 * t) - 2 * math.cos(3 * t) - math.cos(4 * t))))
    lengths = [math.dist(one, other) for one, other in zip(line, line[1:])]
    found, walked, gap = [], 0.0, (sum(lengths) - 2 * cleft) / (count - 1)
    for point, length in zip(line, lengths):
        if len(found) < count and walked + length >= cleft + len(found) * gap:
            found.append(point)
        walked += length
    return found


def heart_ring():
    """Nineteen photos along a heart, leaning as its two sides do, and a large one inside."""
    tilts = [-10, 10, -5, 10, -10, 5, -5, 10, -5]
    def apart(x, y):
        """The two next to the tip would lie on each other."""
        return x if abs(x) < 20 or y < 800 else math.copysign(max(abs(x), 205), x)
    places = [centred(1000 + apart(x, y), 1440 + y, 320, 320, tilt)
              for (x, y), tilt in zip(heart_line(19, 470), tilts + [0] + [-tilt for tilt in reversed(tilts)])]
    from_tip = sorted(places, key=lambda place: -place.top)
    return from_tip + [centred(1000, 1400, 760, 760, -5)]


def ring():
    """Twelve photos round a large one, wide and tall in turn."""
    places = []
    for at in range(12):
        angle = math.radians(30 * at)
        size = (470, 350) if at % 2 == 0 else (350, 470)
        places.append(centred(1000 + 730 * math.sin(angle), 1500 - 1040 * math.cos(angle), *size, five(16 * math.sin(2 * angle))))
    return places + [centred(1000, 1500, 780, 1080, 5)]


def pile():
    """Nine large photos, one on the other, all still to be seen."""
    spots = [(560, 560, 1, -15), (1440, 520, 0, 10), (420, 1280, 0, 10), (1560, 1250, 1, -5), (560, 2350, 1, 15), (1420, 2480, 0, -10),
             (1590, 1900, 1, 10), (470, 1860, 1, -10), (1000, 1520, 0, 5)]
    return [centred(x, y, *((840, 620) if wide else (620, 840)), tilt) for x, y, wide, tilt in spots]


def card_table():
    """Fifteen instant pictures on a table."""
    tilts = [5, -10, 10, -5, 5, -5, 10, -10, 5, -5, 10, -5, -10, 5, -5]
    across, down = [0, 14, -18, 20, -12, 10, -20], [12, -16, 20, -8, 0, -20, 14]
    return [centred(320 + 590 * (at % 5) + across[at % 7], 380 + 620 * (at // 5) + down[at % 7], 430, 520, tilts[at])
            for at in range(15)]


def big_five():
    """Five very large photos, hardly askew, that lap over a hand's breadth."""
    spots = [(690, 640, 1080, 720, -5), (1480, 1180, 760, 1040, 5), (560, 1420, 760, 1040, 5), (1380, 1960, 1060, 707, -5),
             (660, 2330, 1020, 680, 5)]
    return [centred(*spot) for spot in spots]


def four_friends():
    """Two portraits and two landscapes about the middle, like the sails of a mill."""
    return [centred(*spot) for spot in ((560, 930, 800, 1120, -5), (1440, 760, 840, 740, 5), (1440, 2030, 800, 1120, 5),
                                        (560, 2200, 840, 740, -5))]


def confetti():
    return scattered(PORTRAIT, (353, 282), TILTS * 4 + [0, -5, 5, 10], seed=1, hang=50)


def forty():
    return scattered(PORTRAIT, (443, 355), (TILTS * 3)[:36] + [0, 0, -5, 5], seed=24, hang=50)


def thirty():
    return scattered(PORTRAIT, (508, 406), (GENTLE * 5), seed=1, hang=60)


def twenty_wide():
    return scattered(PORTRAIT, (646, 516), ([-15, 15, -20, 20] + GENTLE * 3)[:20], seed=13, hang=60)


def loose_rows():
    """Three rows of upright and wide photos, each a little askew."""
    return askew(standing("PP", "LLL", "PL"), (-5, 5, 5, -5, -5))


def loose_portraits():
    """Two rows of upright and wide photos, none of them quite straight."""
    return askew(lying("PLP", "LPLPL"), (-5, 5))


def bouquet():
    """Petals of portraits above one large photo, leaves of landscapes below."""
    places = []
    for tilt, x, y in ((-25, 420, 1170), (25, 1580, 1170), (-10, 660, 700), (10, 1340, 700)):
        places.append(centred(x, y, 490, 700, tilt))
    for tilt, x, y in ((15, 480, 1800), (-15, 1520, 1800), (20, 660, 2370), (-20, 1340, 2370)):
        places.append(centred(x, y, 720, 490, tilt))
    return places + [centred(1000, 1440, 740, 1040, 0)]


def pinboard():
    """Fifteen photos that don't touch each other."""
    tilts = [5, -5, 10, -5, 5, -10, 10, -5, 5, 5, -10, -5, -5, 5, -5]
    places = []
    for at in range(15):
        column, line = at % 3, at // 3
        size = (385, 470) if (column + line) % 2 == 0 else (550, 385)
        places.append(centred(345 + 655 * column, 520 + 495 * line, *size, tilts[at]))
    return taped(places, 150)


def garlands():
    """Four strings of photos that sag from edge to edge."""
    places = []
    for line, middle in enumerate((460, 1120, 1780, 2440)):
        for at in range(4):
            off = at - 1.5
            size, lower = ((370, 480), 0) if (at + line) % 2 else ((420, 310), -85)
            places.append(centred(1000 + 470 * off, middle + 135 + lower - 62 * off * off, *size, five(-12 * off)))
    return places


def windy_day():
    """All photos are blown the same way, more and more."""
    places = []
    for at in range(18):
        column, line = at % 3, at // 3
        tilt = five(-5 - 2.5 * column - line)
        size = (540, 380) if (column + line) % 2 == 0 else (380, 480)
        places.append(centred(360 + 640 * column, 340 + 465 * line + 30 * (1 - column), *size, tilt))
    return places


def six_cards():
    tilts = [-5, 5, 5, -10, -5, 10]
    return [centred(540 + 920 * (at % 2), 530 + 970 * (at // 2), 700, 840, tilts[at]) for at in range(6)]


def carousel():
    """A wide ring of ten photos round a large one."""
    places = []
    for at in range(10):
        angle = math.radians(36 * at - 90)
        size = (500, 360) if at % 2 else (350, 480)
        places.append(centred(1500 + 1090 * math.cos(angle), 1000 + 580 * math.sin(angle), *size, five(-12 * math.sin(2 * angle))))
    return places + [centred(1500, 1000, 1040, 720, -5)]


def round_table():
    """Six large photos on a wide page, three above and three below."""
    tilts = [-5, 5, -10, 5, -5, 5]
    return [centred(540 + 960 * (at % 3), 540 + 920 * (at // 3) + (20, -20)[at % 2], *((900, 640) if at % 2 == 0 else (600, 820)), tilts[at])
            for at in range(6)]


def five_cards():
    """Two large landscapes and three portraits that lap over each other."""
    return [centred(*spot) for spot in ((620, 620, 900, 600, -5), (2350, 640, 940, 627, 5), (560, 1390, 640, 900, 10),
                                        (2430, 1400, 620, 880, -10), (1490, 1060, 880, 1240, 0))]


def on_the_line():
    """Eight photos in two rows, each a little askew."""
    tilts = [-5, 5, -5, 5, 5, -5, 5, -5]
    return [centred(450 + 700 * (at % 4), 540 + 920 * (at // 4) + (16, -16)[at % 2], *((550, 710), (640, 570))[(at + at // 4) % 2], tilts[at])
            for at in range(8)]


def travel_desk():
    return scattered(PORTRAIT, (731, 585), (GENTLE + [-15, 15] + GENTLE)[:14], seed=14, hang=60)


def half_a_hundred():
    return scattered(PORTRAIT, (380, 304), (TILTS * 4)[:44] + [0, -5, 5, 0, 10, -10], seed=1, hang=50)
