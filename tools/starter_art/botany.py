"""Twigs, boughs and flowers for the pages' rims; what grows upwards from (0, 0) is turned and placed by its page."""
import math

from starter_art.roses import corner
from starter_art.svg import circle, ellipse, path, smooth


def turned_about(x, y, turn):
    """The place of a point that is given across and along a direction from (x, y); 0 is upwards."""
    c, s = math.cos(math.radians(turn)), math.sin(math.radians(turn))
    return lambda across, along: f"{x + across * c + along * s:.0f},{y + across * s - along * c:.0f}"


def leaf_shape(x, y, reach, turn, broad=0.3):
    """A leaf that begins at (x, y) and points that way; 0 is upwards."""
    at = turned_about(x, y, turn)
    return (f"M{x:.0f},{y:.0f}C{at(-broad * reach, 0.3 * reach)} {at(-0.8 * broad * reach, 0.75 * reach)} {at(0, reach)}"
            f"C{at(0.8 * broad * reach, 0.75 * reach)} {at(broad * reach, 0.3 * reach)} {x:.0f},{y:.0f}Z")


def half_leaf(x, y, reach, turn, broad=0.3):
    """The half of that leaf that looks away from its own left."""
    at = turned_about(x, y, turn)
    return (f"M{x:.0f},{y:.0f}Q{at(0.05 * reach, 0.5 * reach)} {at(0, reach)}"
            f"C{at(0.8 * broad * reach, 0.75 * reach)} {at(broad * reach, 0.3 * reach)} {x:.0f},{y:.0f}Z")


def lit_leaf(chance, x, y, reach, turn, color):
    """A leaf with its fold: one half in the light, the other not, and a shade of its own."""
    broad = chance.uniform(0.24, 0.36)
    change, strength = chance.choice((("#ffffff", 0.1), ("#ffffff", 0.05), ("#000000", 0.08), ("#000000", 0.2), ("#c9b060", 0.12)))
    whole, half = leaf_shape(x, y, reach, turn, broad), half_leaf(x, y, reach, turn, broad)
    return [path(whole, fill=color), path(whole, fill=change, fill_opacity=strength), path(half, fill="#000000", fill_opacity="0.17"),
            path(f"M{x:.0f},{y:.0f}L{x + 0.86 * reach * math.sin(math.radians(turn)):.0f},{y - 0.86 * reach * math.cos(math.radians(turn)):.0f}",
                 fill="none", stroke="#ffffff", stroke_opacity="0.16", stroke_width="3")]


def twig_of_leaves(chance, color):
    """A twig of about five hundred, leaves of many sizes and shades to both sides; on some the leaves stand by turns."""
    found, bend, by_turns = [], chance.uniform(-0.3, 0.3), chance.choice((0, 0, 26))
    for at in range(8):
        y = 60 + 56 * at
        for side in (-1, 1):
            along = y + (by_turns if side > 0 else 0)
            found += lit_leaf(chance, bend * along * along / 500, -along, chance.uniform(90, 155) * (1.05 - 0.07 * at),
                              side * chance.uniform(34, 70) + 30 * bend, color)
    found += lit_leaf(chance, bend * 500, -500, 120, bend * 60, color)
    return [path(f"M0,0Q{bend * 120:.0f},-260 {bend * 500:.0f},-510", fill="none", stroke=color, stroke_width="9", stroke_linecap="round")] + found


def garland_of_leaves(chance, pairs, color):
    """A sprig of laurel: even pairs of slim leaves."""
    found = []
    for at in range(pairs):
        y = 70 + 78 * at
        for side in (-1, 1):
            turn, reach = side * chance.uniform(36, 44), chance.uniform(120, 140) * (1.1 - 0.06 * at)
            found += [path(leaf_shape(0, -y, reach, turn, 0.25), fill=color), path(half_leaf(0, -y, reach, turn, 0.25), fill="#000000", fill_opacity="0.2")]
    found.append(path(leaf_shape(0, -70 - 78 * pairs, 120, 0, 0.25), fill=color))
    return [path(f"M0,0V{-90 - 78 * pairs}", fill="none", stroke=color, stroke_width="7", stroke_linecap="round")] + found


# Each a stem and what parts from it, from (0, 0) upwards.
BRANCHES = ((((0, 0), (-20, -200), (42, -420), (20, -640), (60, -860)), ((34, -420), (110, -520), (165, -590), (190, -700)),
             ((22, -620), (-50, -700), (-84, -740), (-100, -810))),
            (((0, 0), (40, -200), (-46, -400), (0, -600), (-20, -880)), ((-36, -340), (-110, -430), (-152, -510), (-160, -640)),
             ((-2, -570), (90, -640), (130, -710), (150, -790))))


def bough(chance, tones, bark):
    """A bough in blossom, of about eight hundred: along its branches flowers, seen from above or aslant, and buds."""
    branches = chance.choice(BRANCHES)
    found = [path(smooth(branch), fill="none", stroke=tone, stroke_width=width, stroke_opacity=opacity, stroke_linecap="round", transform=moved)
             for branch in branches for tone, width, opacity, moved in ((bark, 16, 1, "translate(0,0)"), ("#ffffff", 3, 0.13, "translate(-4,-3)"))]
    for _ in range(40):
        branch = chance.choice(branches + branches[:1])
        at = min(len(branch) - 2, int(chance.uniform(0.15, 1) * (len(branch) - 1)))
        (x, y), (next_x, next_y), share = branch[at], branch[at + 1], chance.random()
        x, y = x + share * (next_x - x) + chance.uniform(-24, 24), y + share * (next_y - y) + chance.uniform(-24, 24)
        size, turn, tall = chance.uniform(22, 46), chance.uniform(0, 72), chance.uniform(0.62, 1)
        if chance.random() < 0.2:
            found += bud(x, y, 0.4 * size, chance.uniform(-50, 50), tones[0])
            continue
        found.append(f'<g transform="translate({x:.0f},{y:.0f}) rotate({turn:.0f}) scale(1 {tall:.2f})">' + "".join(blossom(chance, size, tones)) + "</g>")
    return found


def blossom(chance, size, tones):
    """Five petals about a heart with stamens, its shadow below."""
    found = [circle(0.12 * size, 0.16 * size, 0.95 * size, fill="#000000", fill_opacity="0.14")]
    for at in range(5):
        turn = f"rotate({72 * at + chance.uniform(-8, 8):.0f})"
        found += [ellipse(0, -0.58 * size, 0.42 * size, 0.52 * size, fill=tones[chance.randrange(len(tones))], transform=turn),
                  ellipse(0, -0.36 * size, 0.16 * size, 0.34 * size, fill="#b4506c", fill_opacity="0.22", transform=turn)]
    for at in range(7):
        angle, reach = 0.9 * at, size * (0.3 + 0.06 * (at % 3))
        found.append(circle(reach * math.cos(angle), reach * math.sin(angle), 0.05 * size, fill="#f2d27a"))
    return found + [circle(0, 0, 0.15 * size, fill="#a8586a")]


def bud(x, y, size, turn, tone):
    return [f'<g transform="translate({x:.0f},{y:.0f}) rotate({turn:.0f})">' + ellipse(0, -size, 0.8 * size, 1.2 * size, fill=tone)
            + ellipse(0.3 * size, -size, 0.4 * size, 1.1 * size, fill="#b4506c", fill_opacity="0.3")
            + path(f"M{-0.7 * size:.1f},{-0.5 * size:.1f}Q0,{0.5 * size:.1f} {0.7 * size:.1f},{-0.5 * size:.1f}Q0,{-0.2 * size:.1f} {-0.7 * size:.1f},{-0.5 * size:.1f}Z",
                   fill="#5a6b3f") + "</g>"]


def petals(chance, size, tones, count):
    """Petals in the air."""
    found = []
    for _ in range(count):
        x, y = chance.uniform(0, size[0]), chance.uniform(0.1 * size[1], 0.9 * size[1])
        found.append(ellipse(x, y, chance.uniform(10, 18), chance.uniform(6, 11), fill=chance.choice(tones), fill_opacity="0.45",
                             transform=f"rotate({chance.uniform(0, 180):.0f} {x:.0f} {y:.0f})"))
    return found


def rose_corner(x, y, across, down, scale):
    """Roses in a corner of the page."""
    return f'<g transform="translate({x},{y}) scale({scale}) translate({-x},{-y})">' + corner(x, y, across, down) + "</g>"
