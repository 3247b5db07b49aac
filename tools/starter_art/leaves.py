"""Six leaves in a box of 500 by 500, stems at the bottom."""
import math

from starter_art.svg import turned


def from_profile(half_width, top=20, bottom=430, steps=60):
    """A leaf as wide as `half_width` says along its midrib, 0 at the tip and 1 at the stem, and there not narrower than
    the stem, so that no rim parts the two."""
    right = [(250 + max(half_width(i / steps), 8 if i > steps / 2 else 0), top + (bottom - top) * i / steps)
             for i in range(steps + 1)]
    left = [(500 - x, y) for x, y in reversed(right)]
    stem = [(242, bottom), (240, 488), (260, 488), (258, bottom)]
    return left[:-1] + right[:-1] + list(reversed(stem))


def beech(at):
    return 175 * math.sin(math.pi * at ** 0.85) ** 0.9


def oak(at):
    return 158 * math.sin(math.pi * at ** 0.85) ** 0.6 * (1 + 0.17 * math.cos(8.6 * math.pi * at + 0.9))


def birch(at):
    teeth = 8 * ((at * 14) % 1)
    return (195 * math.sin(math.pi * at ** 1.25) ** 0.95 + teeth * math.sin(math.pi * at))


def linden(at):
    return 205 * math.sin(math.pi * min(1, at * 0.93)) ** 0.75 * (0.55 + 0.55 * at)


def maple():
    right = [(250, 15), (285, 95), (325, 70), (318, 165), (372, 118), (385, 150), (470, 135), (445, 205), (485, 228),
             (405, 298), (422, 345), (335, 340), (285, 352), (264, 400), (261, 420), (262, 488)]
    return right + [(500 - x, y) for x, y in reversed(right)]


def ginkgo():
    fan = []
    for step in range(81):
        angle = math.radians(-165 + 150 * step / 80)
        notch = 0.78 + 0.22 * min(1, abs(step - 40) / 6)
        ripple = 1 + 0.025 * math.cos(step * 0.9)
        reach = 300 * notch * ripple
        fan.append((250 + reach * 0.83 * math.cos(angle), 350 + reach * 1.02 * math.sin(angle)))
    return [(242, 488), (240, 400)] + fan + [(260, 400), (258, 488)]


ALL = [
    turned(from_profile(beech), 18, (250, 250)),
    maple(),
    turned(from_profile(oak), -14, (250, 250)),
    turned(from_profile(birch), -28, (250, 250)),
    ginkgo(),
    turned(from_profile(linden, top=25, bottom=410), 10, (250, 250)),
]
