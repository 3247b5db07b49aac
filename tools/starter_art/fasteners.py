"""What photos hang by or are stuck down with, with the light from the upper left: a clothes peg, drawn about the point where it
holds the line, and strips of paper tape, which are pictures of their own that a design lays over its photos."""
import random

from starter_art.svg import drawing, down_gradient, group, number, path, rectangle

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


TAPES = {"tape_cream": ("#e6d8b4", "#f0e6ca", None), "tape_sage": ("#a9b79a", "#b9c5ab", "#dfe6d2"), "tape_clay": ("#c08a72", "#cb9a84", "#e9cdbd")}


def tape(name):
    """A strip of crinkled paper tape with cut ends: it fills its picture, since a fixed picture hides all that lies below it."""
    chance, (wide, high), (ground, lit, printed) = random.Random(name), (420, 120), TAPES[name]
    parts = [down_gradient("lit", (0, lit), (0.35, ground), (1, ground)), rectangle(0, 0, wide, high, fill="url(#lit)")]
    if printed:
        slants = "".join(f"M{x},{high + 4}l{high * 0.55:.0f},-{high + 8}" for x in range(-60, wide + 20, 36))
        parts.append(path(slants, stroke=printed, stroke_width="9", stroke_opacity="0.55", fill="none"))
    for _ in range(90):  # the crinkles run across the strip
        x, lean, reach, top = chance.uniform(0, wide), chance.uniform(-7, 7), chance.uniform(0.2, 0.9) * high, chance.uniform(-0.1, 0.6) * high
        tone = chance.choice(["#ffffff", "#5a4630"])
        parts.append(path(f"M{number(x)},{number(top)}q{number(lean)},{number(reach / 2)} {number(lean / 3)},{number(reach)}", fill="none", stroke=tone,
                          stroke_width=number(chance.uniform(1, 3)), stroke_opacity=number(chance.uniform(0.05, 0.17))))
    parts += [rectangle(0, 0, wide, 3, fill="#ffffff", fill_opacity="0.5"), rectangle(0, 0, 3, high, fill="#ffffff", fill_opacity="0.4"),
              rectangle(0, high - 4, wide, 4, fill="#3a2c1c", fill_opacity="0.22"), rectangle(wide - 4, 0, 4, high, fill="#3a2c1c", fill_opacity="0.18")]
    return drawing(wide, high, parts)
