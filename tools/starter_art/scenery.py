"""What the pages of the occasions are made of: skies, ranges, woods, water, lights. All for a page of either orientation.

A page is dark where a white caption may stand: a band of the page's height by ten behind its upper and its lower edge.
"""
import math

from starter_art.svg import (circle, closed, down_gradient, ellipse, glow, number, path, rectangle, smooth)


def sky(size, *tones, name="sky"):
    """Tones from above to below, as (share of the height, colour)."""
    return [down_gradient(name, *tones), rectangle(0, 0, *size, fill=f"url(#{name})")]


def light(size, x, y, reach, color, strength=0.6, name="light"):
    """A soft light about a point; `x` and `y` are shares of the page, `reach` one of its shorter side."""
    spot = glow(name, (0, color, strength), (0.35, color, strength * 0.55), (0.7, color, strength * 0.16), (1, color, 0))
    return [spot, circle(x * size[0], y * size[1], reach * min(size), fill=f"url(#{name})")]


def disk(size, x, y, radius, color):
    return [circle(x * size[0], y * size[1], radius, fill=color)]


def stars(chance, size, count, low=1.0, color="#ffffff"):
    """Small ones and a few larger ones, down to `low` of the height."""
    found = []
    for _ in range(count):
        faint = chance.random() ** 3
        found.append(circle(chance.uniform(0, size[0]), chance.uniform(0, low * size[1]), 1.6 + 3.2 * faint, fill=color,
                            fill_opacity=f"{chance.uniform(0.25, 0.85):.2f}"))
    return found


def outline(chance, wide, base, swing, steps, rough=0.55):
    """A ridge by halving: points from the left edge to the right one, about `base`."""
    heights = [chance.uniform(-1, 1), chance.uniform(-1, 1)]
    reach = 1.0
    while len(heights) < steps:
        reach *= rough
        middles = [(one + other) / 2 + chance.uniform(-reach, reach) for one, other in zip(heights, heights[1:])]
        heights = [height for pair in zip(heights, middles) for height in pair] + heights[-1:]
    step = (wide + 80) / (len(heights) - 1)
    return [(at * step - 40, base + swing * height) for at, height in enumerate(heights)]


def range_of(chance, size, base, swing, color, steps=65, rough=0.55):
    """A range of hills or mountains in one tone, from its ridge down to the lower edge."""
    ridge = outline(chance, size[0], base * size[1], swing * size[1], steps, rough)
    return path(closed(ridge + [(size[0] + 60, size[1] + 20), (-60, size[1] + 20)]), fill=color), ridge


def mixed(one, other, share):
    """A colour between two."""
    levels = [(int(one[at:at + 2], 16), int(other[at:at + 2], 16)) for at in (1, 3, 5)]
    return "#" + "".join(f"{round(a + (b - a) * share):02x}" for a, b in levels)


def ranges(chance, size, first, last, far, near, count=6, swing=0.05, rough=0.55):
    """Ranges one before the other: from the haze's tone to the darkest, from `first` to `last` of the height."""
    found = []
    for at in range(count):
        share = at / (count - 1)
        found.append(range_of(chance, size, first + (last - first) * share, swing * (1.2 - 0.5 * share), mixed(far, near, share),
                              rough=rough)[0])
    return found


def spruce(chance, x, y, high, color):
    """A spruce as it stands against the light: boughs that are never quite alike."""
    left, right, tiers = [(x, y - high)], [(x, y - high)], max(7, int(high / 22))
    for tier in range(1, tiers + 1):
        share = tier / tiers
        reach = high * 0.23 * share ** 0.85
        level = y - high * (1 - share) * 0.97
        left += [(x - reach * chance.uniform(0.75, 1.1), level), (x - reach * chance.uniform(0.4, 0.55), level - high * 0.02)]
        right += [(x + reach * chance.uniform(0.75, 1.1), level), (x + reach * chance.uniform(0.4, 0.55), level - high * 0.02)]
    return path(closed(left + right[::-1]), fill=color)


def wood(chance, size, base, high, color, count, gap=None):
    """Spruces along a line; `gap` is what stays free of them, in shares of the width."""
    found = []
    for at in range(count):
        x = (at + chance.uniform(0.1, 0.9)) / count
        if gap and gap[0] < x < gap[1]:
            continue
        found.append(spruce(chance, x * size[0], base * size[1] + chance.uniform(0, 30), high * chance.uniform(0.55, 1.1), color))
    return found


def water(chance, size, first, color, shine, count=90, middle=0.5):
    """Ripples from `first` of the height down, shining below a light that stands at `middle` of the width."""
    found = []
    for at in range(count):
        share = (at + chance.random()) / count
        y = size[1] * (first + (1 - first) * share ** 1.4)
        long_side = size[0] * chance.uniform(0.03, 0.12) * (0.4 + share)
        x = size[0] * (chance.gauss(middle, 0.09 + 0.2 * share) if at % 3 else chance.random())
        found.append(ellipse(x, y, long_side, 2 + 5 * share, fill=shine if at % 3 else color,
                             fill_opacity=f"{chance.uniform(0.08, 0.3):.2f}"))
    return found


def bokeh(chance, size, colors, count, small=30, large=120, rim=0.0, opacity=(0.08, 0.3)):
    """Lights out of focus; with `rim` above 0 they keep to the sides of the page."""
    found = [glow(f"bokeh{at}", (0, color, 0.75), (0.8, color, 0.6), (0.93, color, 0.85), (1, color, 0))
             for at, color in enumerate(colors)]
    for _ in range(count):
        x = chance.random()
        if rim:
            x = chance.choice((x * rim, 1 - x * rim))
        found.append(circle(x * size[0], chance.random() * size[1], chance.uniform(small, large),
                            fill=f"url(#bokeh{chance.randrange(len(colors))})", opacity=f"{chance.uniform(*opacity):.2f}"))
    return found


def rule(size, inset, color, opacity="0.7", double=True):
    """A fine line, or two, along the edges."""
    wide, high = size
    found = [rectangle(inset, inset, wide - 2 * inset, high - 2 * inset, fill="none", stroke=color, stroke_width="5",
                       stroke_opacity=opacity)]
    if double:
        inner = inset + 16
        found.append(rectangle(inner, inner, wide - 2 * inner, high - 2 * inner, fill="none", stroke=color, stroke_width="2",
                               stroke_opacity=opacity))
    return found


def curve(points, color, width, opacity="1"):
    return path(smooth(points), fill="none", stroke=color, stroke_width=number(width), stroke_opacity=opacity,
                stroke_linecap="round", stroke_linejoin="round")


def contours(chance, size, color, count=34, opacity="0.28"):
    """Lines of equal height about two summits, as on a map."""
    wide, high = size
    found = []
    for x, y, turn in ((0.26, 0.34, 0.0), (0.8, 0.72, 1.9)):
        waves = [(chance.randrange(2, 6), chance.uniform(0.04, 0.13), chance.uniform(0, 6.3)) for _ in range(4)]
        for step in range(1, count // 2 + 1):
            ring = []
            for at in range(91):
                angle = 2 * math.pi * at / 90
                reach = (55 + 62 * step) * (1 + sum(size_ * math.sin(many * angle + phase + turn) for many, size_, phase in waves))
                ring.append((x * wide + reach * math.cos(angle) * wide / high ** 0.5 / wide ** 0.5, y * high + reach * math.sin(angle)))
            found.append(path(smooth(ring), fill="none", stroke=color, stroke_width="3", stroke_opacity=opacity))
    return found
