"""What photos hang by, drawn about the point where it holds: a clothes peg on a line, with the light from the upper left."""
from starter_art.svg import group, number, path, rectangle

WOOD, SHADED, DARK, WIRE = "#c99a63", "#a87743", "#5a3a1c", "#a9abb0"


def peg(x, y, degrees=0):
    """A wooden peg over a line at (x, y): two legs, thicker where the spring holds them, and its shadow on what hangs."""
    leg = "M-13,-62 Q-14,-70 -7,-70 L-2,-70 L-1,-14 L-1,96 Q-8,96 -9,88 L-12,10 Q-17,2 -14,-8Z"
    legs = [path(leg, fill=WOOD), path(leg, fill=SHADED, transform="matrix(-1 0 0 1 0 0)"),
            path("M-9,-60L-10,-12M-8,14L-6,84", fill="none", stroke="#ecc893", stroke_width="2.4", stroke_opacity="0.8", stroke_linecap="round"),
            path("M0,-70V96", fill="none", stroke=DARK, stroke_width="2.2", stroke_opacity="0.75")]
    grain = [path("M-5,-58C-6,-30 -4,20 -4,80M6,-56C7,-24 5,26 4,78", fill="none", stroke=DARK, stroke_width="1", stroke_opacity="0.35")]
    spring = [rectangle(-17, -8 + 5 * turn, 34, 4, rx=2, fill=WIRE, stroke="#55575c", stroke_width="1") for turn in range(3)]
    shadow = path(leg + "M13,-62 Q14,-70 7,-70 L2,-70 L1,96 Q8,96 9,88 L12,10 Q17,2 14,-8Z", fill="#000000", fill_opacity="0.28", transform="translate(7,8)")
    return group([shadow] + legs + grain + spring, transform=f"translate({number(x)},{number(y)}) rotate({number(degrees)})")
