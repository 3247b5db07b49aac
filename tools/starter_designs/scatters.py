"""Layouts of tilted photos. A later photo lies on an earlier one; tilts are multiples of five."""
import math

from starter_designs.cover import scattered
from starter_designs.place import LANDSCAPE, PORTRAIT, centred

TILTS = [tilt for tilt in range(-35, 40, 5) if tilt]
GENTLE = [-10, -5, 5, 10, -5, 5]


def five(angle):
    """The nearest tilt that there is."""
    return max(-35, min(35, 5 * round(angle / 5)))


def fan():
    """Seven upright photos like a hand of cards, on a wide page."""
    places = []
    for tilt in range(-30, 35, 10):
        angle = math.radians(tilt)
        places.append(centred(1500 + 1950 * math.sin(angle), 2790 - 1950 * math.cos(angle), 520, 780, tilt))
    return places


def two_fans():
    """A hand of five above, one of five below that points down, and the card that was played."""
    places = []
    for middle, sign in ((2390, 1), (610, -1)):
        for tilt in range(-20, 25, 10):
            angle = math.radians(tilt)
            places.append(centred(1000 + 1700 * math.sin(angle), middle - sign * 1700 * math.cos(angle), 490, 735, tilt * sign))
    return places + [centred(1000, 1500, 640, 427, -5)]


def waves():
    """Four waves of six photos, each tilted as the wave runs."""
    places = []
    for line, middle in enumerate((430, 1140, 1850, 2560)):
        for at in range(6):
            x = 240 + at * 304
            phase = 2 * math.pi * (x / 1540) + line * 1.2
            places.append(centred(x, middle + 150 * math.sin(phase), 490, 367, five(28 * math.cos(phase))))
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
    places = [centred(1000 + apart(x, y), 1340 + y, 390, 292, tilt)
              for (x, y), tilt in zip(heart_line(19, 470), tilts + [0] + [-tilt for tilt in reversed(tilts)])]
    from_tip = sorted(places, key=lambda place: -place.top)
    return from_tip + [centred(1000, 1340, 780, 585, -5)]


def ring():
    """Twelve photos round a large one."""
    places = []
    for at in range(12):
        angle = math.radians(30 * at)
        places.append(centred(1000 + 690 * math.sin(angle), 1500 - 1160 * math.cos(angle), 470, 352, five(24 * math.sin(2 * angle))))
    return places + [centred(1000, 1500, 860, 1060, 5)]


def pile():
    """Nine large photos, one on the other, all still to be seen."""
    spots = [(560, 560, 1, -15), (1440, 520, 0, 10), (420, 1280, 0, 10), (1560, 1250, 1, -5), (560, 2350, 1, 15), (1420, 2480, 0, -10),
             (1590, 1900, 1, 10), (470, 1860, 1, -10), (1000, 1520, 0, 5)]
    return [centred(x, y, *((780, 560) if wide else (560, 780)), tilt) for x, y, wide, tilt in spots]


def card_table():
    """Fifteen instant pictures on a table."""
    tilts = [5, -10, 10, -5, 5, -5, 10, -10, 5, -5, 10, -5, -10, 5, -5]
    across, down = [0, 14, -18, 20, -12, 10, -20], [12, -16, 20, -8, 0, -20, 14]
    return [centred(320 + 590 * (at % 5) + across[at % 7], 380 + 620 * (at // 5) + down[at % 7], 430, 520, tilts[at])
            for at in range(15)]


def big_five():
    spots = [(640, 520, 1080, 720, -5), (1330, 1080, 1080, 720, 5), (560, 1620, 720, 1000, -10), (1420, 1870, 760, 1040, 5),
             (760, 2540, 1080, 720, -5)]
    return [centred(*spot) for spot in spots]


def four_friends():
    return [centred(*spot) for spot in ((590, 760, 760, 1080, -10), (1440, 720, 740, 1060, 10), (570, 2200, 760, 1100, 5),
                                        (1430, 2240, 760, 1080, -5))]


def cascade():
    """Eight photos that tumble to and fro on their way down."""
    places = []
    for at in range(8):
        y = 360 + 325 * at
        places.append(centred(1000 + 400 * math.sin(y / 330 - 1.7), y, 760, 507, five(-20 * math.cos(y / 330 - 1.7))))
    return places


def confetti():
    return scattered(PORTRAIT, (410, 275), TILTS * 4 + [0, -5, 5, 10], seed=49, hang=70, rounds=9000)


def forty():
    return scattered(LANDSCAPE, (505, 338), (TILTS * 3)[:36] + [0, 0, -5, 5], seed=21, hang=60, rounds=9000)


def thirty():
    return scattered(PORTRAIT, (560, 385), (GENTLE * 5), seed=30, hang=100, rounds=8000)


def twenty_wide():
    return scattered(LANDSCAPE, (700, 475), ([-15, 15, -20, 20] + GENTLE * 3)[:20], seed=12, hang=110, rounds=6000)


def loose_rows():
    """Twelve landscapes in rows, each a little askew, with air between them."""
    tilts = [-5, 5, 5, -5, -5, 5, 5, -5, 5, -5, -5, 5]
    return [centred(520 + 960 * (at % 2) + (14, -10, 6)[at % 3], 300 + 480 * (at // 2) + (-10, 12)[at % 2], 690, 420, tilts[at])
            for at in range(12)]


def loose_portraits():
    """Ten portraits in two rows."""
    tilts = [-5, 5, -5, 5, -5, 5, -5, 5, -5, 5]
    return [centred(330 + 585 * (at % 5) + (10, -8, 12)[at % 3], 520 + 960 * (at // 5) + (-16, 14)[at % 2], 460, 740, tilts[at])
            for at in range(10)]


def spiral():
    """Eighteen photos as seeds stand in a flower, small in the middle, where they lie on top."""
    places = []
    for at in reversed(range(18)):
        turn, reach = math.radians(137.5 * at), math.sqrt((at + 0.3) / 18)
        size = 400 + 14 * at
        places.append(centred(1000 + 640 * reach * math.cos(turn), 1500 + 1220 * reach * math.sin(turn), size, size * 0.75,
                              five(25 * math.sin(turn * 2))))
    return places


def bouquet():
    """Petals of portraits around one large photo, with two leaves below."""
    places = []
    for tilt, x, y in ((-30, 430, 1120), (30, 1570, 1120), (-15, 690, 640), (15, 1310, 640), (-35, 480, 1900), (35, 1520, 1900)):
        places.append(centred(x, y, 490, 735, tilt))
    return places + [centred(660, 2500, 720, 500, 15), centred(1340, 2500, 720, 500, -15), centred(1000, 1400, 760, 1080, 0)]


def pinboard():
    """Fifteen photos that don't touch each other."""
    tilts = [5, -5, 10, -5, 5, -10, 10, -5, 5, 5, -10, -5, -5, 5, -5]
    places = []
    for at in range(15):
        column, line = at % 3, at // 3
        size = (360, 500) if (column + line) % 2 == 0 else (530, 380)
        places.append(centred(355 + 645 * column, 330 + 585 * line, *size, tilts[at]))
    return places


def garlands():
    """Four strings of photos that sag from edge to edge."""
    places = []
    for line, middle in enumerate((360, 1080, 1800, 2520)):
        for at in range(4):
            off = at - 1.5
            places.append(centred(1000 + 470 * off, middle + 150 - 62 * off * off, 390, 520, five(-12 * off)))
    return places


def windy_day():
    """All photos are blown the same way, more and more."""
    places = []
    for at in range(18):
        column, line = at % 3, at // 3
        tilt = five(-5 - 5 * column - 2 * line)
        places.append(centred(360 + 640 * column, 300 + 480 * line + 30 * (1 - column), 560, 400, tilt))
    return places


def crossing():
    """Two rows of photos that cross in the middle."""
    places = []
    for at in (-3, 3, -2, 2, -1, 1):
        places.append(centred(1000 + 225 * at, 1500 + 375 * at, 520, 390, -20))
        places.append(centred(1000 - 225 * at, 1500 + 375 * at, 520, 390, 20))
    return places + [centred(1000, 1500, 900, 675, 0)]


def six_cards():
    tilts = [-5, 5, 5, -10, -5, 10]
    return [centred(540 + 920 * (at % 2), 530 + 970 * (at // 2), 700, 840, tilts[at]) for at in range(6)]


def carousel():
    """A wide ring of nine photos."""
    places = []
    for at in range(10):
        angle = math.radians(36 * at - 90)
        places.append(centred(1500 + 1130 * math.cos(angle), 1000 + 660 * math.sin(angle), 560, 420, five(-20 * math.sin(2 * angle))))
    return places + [centred(1500, 1000, 1080, 760, -5)]


def round_table():
    """Six large photos on a wide page, three above and three below."""
    tilts = [-5, 5, -10, 5, -5, 5]
    return [centred(540 + 960 * (at % 3), 540 + 920 * (at // 3) + (20, -20)[at % 2], *((820, 560) if at % 2 == 0 else (560, 780)), tilts[at])
            for at in range(6)]


def five_cards():
    """Two large landscapes and three portraits that lap over each other."""
    return [centred(*spot) for spot in ((620, 620, 900, 600, -5), (2350, 640, 940, 627, 5), (560, 1390, 640, 900, 10),
                                        (2430, 1400, 620, 880, -10), (1490, 1060, 880, 1240, 0))]


def on_the_line():
    """Eight photos in two rows, each a little askew."""
    tilts = [-5, 5, -5, 5, 5, -5, 5, -5]
    return [centred(400 + 733 * (at % 4), 530 + 940 * (at // 4) + (16, -16)[at % 2], *((470, 660), (620, 450))[(at + at // 4) % 2], tilts[at])
            for at in range(8)]


def travel_desk():
    return scattered(LANDSCAPE, (800, 535), (GENTLE + [-15, 15] + GENTLE)[:14], seed=14, hang=90, rounds=6000)


def half_a_hundred():
    return scattered(PORTRAIT, (450, 302), (TILTS * 4)[:44] + [0, -5, 5, 0, 10, -10], seed=50, hang=70, rounds=9000)
