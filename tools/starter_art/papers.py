"""Light pages: paper, linen, snow or sand in the middle, and where a caption may stand something dark that belongs to the page:
a ribbon, a plate, a band, the desk below a sheet. Letters begin in white."""
import math
import random

from starter_art.scenery import light, mixed
from starter_art.surfaces import stuff
from starter_art.svg import circle, down_gradient, ellipse, number, path, rectangle

HEAD, FOOT = (50, 258), {True: (1752, 1960), False: (2742, 2950)}  # from above to below, the foot by whether the page is wide


def feet(size):
    """The two places of a caption as (top, bottom)."""
    return HEAD, FOOT[size[0] > size[1]]


def paper(size, color, shade="#5b4a32", seed=1):
    """A sheet that fills the page, a little darker towards its corners."""
    return [stuff("paper", seed=seed, color=color),
            '<radialGradient id="corners" cx="0.42" cy="0.36" r="0.85"><stop offset="45%" stop-color="' + shade
            + '" stop-opacity="0"/><stop offset="100%" stop-color="' + shade + '" stop-opacity="0.2"/></radialGradient>',
            rectangle(0, 0, *size, fill="url(#corners)")]


def shadow_below(name, wide, y, reach=46, strength=0.34, left=0):
    """The soft shadow that something across the page throws down on it."""
    fall = (f'<linearGradient id="{name}" x1="0" y1="0" x2="0" y2="1"><stop offset="0%" stop-color="#000000" stop-opacity="{strength}"/>'
            f'<stop offset="40%" stop-color="#000000" stop-opacity="{strength * 0.32:.2f}"/><stop offset="100%" stop-color="#000000" stop-opacity="0"/></linearGradient>')
    return [fall, rectangle(left, y, wide, reach, fill=f"url(#{name})")]


def ribbons(size, color, rim):
    """A ribbon of satin across the page, above and below, with a stitched rim."""
    found = []
    for at, (top, bottom) in enumerate(feet(size)):
        found += shadow_below(f"fall{at}", size[0], bottom)
        found += [down_gradient(f"satin{at}", (0, mixed(color, "#000000", 0.25)), (0.3, mixed(color, "#ffffff", 0.07)), (0.62, color),
                                (1, mixed(color, "#000000", 0.38))),
                  rectangle(0, top, size[0], bottom - top, fill=f"url(#satin{at})")]
        for y in (top + 14, bottom - 14):
            found.append(path(f"M0,{y}H{size[0]}", stroke=rim, stroke_width="4", stroke_opacity="0.75", stroke_dasharray="22 14", fill="none"))
    return found


def plates(size, color, rim, wide=1560):
    """A plate with hollowed corners in the middle, above and below."""
    found, middle = [], size[0] / 2
    for at, (top, bottom) in enumerate(feet(size)):
        left, right, cut = middle - wide / 2, middle + wide / 2, 34
        found += shadow_below(f"fall{at}", wide - 60, bottom - 4, 40, 0.3, left + 30)
        for inset, style in ((0, dict(fill=f"url(#plate{at})")), (16, dict(fill="none", stroke=rim, stroke_width="4"))):
            l, t, r, b = left + inset, top + inset, right - inset, bottom - inset
            found.append(path(f"M{number(l + cut)},{t}H{number(r - cut)}A{cut},{cut} 0 0 0 {number(r)},{t + cut}V{b - cut}A{cut},{cut} 0 0 0 {number(r - cut)},{b}"
                              f"H{number(l + cut)}A{cut},{cut} 0 0 0 {number(l)},{b - cut}V{t + cut}A{cut},{cut} 0 0 0 {number(l + cut)},{t}Z", **style))
        found.insert(0, down_gradient(f"plate{at}", (0, mixed(color, "#ffffff", 0.08)), (1, mixed(color, "#000000", 0.2))))
    return found


def bands(size, color, rim=None, head=270, foot=268):
    """Bands from edge to edge, above and below, with a fine line along each."""
    wide, high = size
    found = [rectangle(0, 0, wide, head, fill=color), rectangle(0, high - foot, wide, foot, fill=color)]
    found += shadow_below("fall", wide, head, 34, 0.28)
    if rim:
        found += [rectangle(0, head - 16, wide, 5, fill=rim), rectangle(0, high - foot + 11, wide, 5, fill=rim)]
    return found


def sheet(size, color, inset=90, head=268, foot=262, seed=3):
    """A sheet of paper that lies on what was drawn before, clear of the two places of a caption."""
    wide, high = size
    left, top, right, bottom = inset, head, wide - inset, high - foot
    found = [rectangle(left - 10 + at * 3, top + 4 + at * 3, right - left + 20 - at * 2, bottom - top + 24 - at * 4, rx=26 - at * 4, fill="#000000", fill_opacity="0.09")
             for at in range(6)]
    found += [rectangle(left, top, right - left, bottom - top, fill=color)]
    chance, dark = random.Random(seed), []
    for _ in range(420):
        x, y, turn, reach = chance.uniform(left + 40, right - 40), chance.uniform(top + 40, bottom - 40), chance.uniform(0, 6.3), chance.uniform(8, 34)
        dark.append(f"M{x:.0f},{y:.0f}l{reach * math.cos(turn):.0f},{reach * math.sin(turn):.0f}")
    return found + [path("".join(dark), fill="none", stroke="#5b4a32", stroke_opacity="0.09", stroke_width="2")]


def boards(size, color, seam, count, seed):
    """Dark boards across the page."""
    return [stuff("wood", seed=seed, board=number(size[1] / count), tones=[mixed(color, seam, share) for share in (0, 0.1, 0.2, 0.05, 0.15)], seam=seam)]


def pier(size, color, seam, count, top):
    """Boards across the foot of a page, from `top` down, each with a line of light."""
    wide, high = size[0], (size[1] - top) / count
    found = []
    for at in range(count):
        y = top + at * high
        found += [rectangle(0, y, wide, high + 1, fill=mixed(color, seam, 0.3 * (at % 2))), rectangle(0, y, wide, 6, fill=mixed(seam, "#000000", 0.4)),
                  rectangle(0, y + 8, wide, 3, fill="#ffffff", fill_opacity="0.12")]
    return found


def petals_in_air(chance, size, tones, count):
    """Petals along the two sides."""
    wide, high = size
    found = []
    for _ in range(count):
        x, y = chance.random() ** 1.7 * 0.14 * wide, chance.uniform(280, high - 280)
        found.append(ellipse(x if chance.random() < 0.5 else wide - x, y, chance.uniform(7, 17), chance.uniform(4, 8), fill=chance.choice(tones),
                             fill_opacity="0.8", transform=f"rotate({chance.uniform(0, 180):.0f} {x:.0f} {y:.0f})"))
    return found


def dots(chance, size, tones, count, large=12):
    """Specks of gold or colour that thin out towards the middle."""
    wide, high = size
    found = []
    for _ in range(count):
        x, y = chance.random() ** 2 * 0.12 * wide, chance.uniform(265, high - 265)
        found.append(circle(x if chance.random() < 0.5 else wide - x, y, chance.uniform(3, large), fill=chance.choice(tones),
                            fill_opacity=f"{chance.uniform(0.4, 0.95):.2f}"))
    return found


def glow_over(size, color, strength=0.5):
    return light(size, 0.45, 0.42, 1.1, color, strength, "glow_over")
