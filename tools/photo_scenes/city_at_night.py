"""Towers on the far bank at night, their lights drawn out in the river."""
from math import sin

from mathutils import Vector, noise

import materials as m
import shapes as s
from common import camera, world
from film import Roll
from skies import veiled
from town import facade

FORMAT = "landscape"
BANK = 760.0


def night():
    """A clear night whose foot glows over the town; thin cloud catches the glow."""
    nodes = world()
    tones = ((0.0, (0.115, 0.070, 0.065)), (0.05, (0.062, 0.046, 0.062)), (0.15, (0.022, 0.027, 0.058)), (0.5, (0.006, 0.011, 0.034)))
    tone = veiled(nodes, nodes.place("Generated"), tones, (0.075, 0.055, 0.072), (1.5, 1.0, 5.0), 2.4, 0.48)
    nodes.add("ShaderNodeOutputWorld", nodes.add("ShaderNodeBackground", tone, 1.0))


def tower(dice, x, y, tall, wide, walls, trims):
    """A tower that steps back once or twice, some with a lit crown, a mast with its red lamp."""
    wall, low = dice.choice(walls), 2.0
    steps = dice.choice((1, 1, 2, 3))
    for step in range(steps):
        high = low + (tall - low) * ((step + 1) / steps) ** 0.75
        share = 1 - 0.2 * step
        s.box("tower", (wide * share, wide * share * dice.uniform(0.8, 1.1), high - low), wall, 0, (x, y, (low + high) / 2))
        low = high
    top = wide * (1 - 0.2 * (steps - 1))
    s.box("plant", (top * 0.5, top * 0.5, 5), wall, 0, (x, y, tall + 2))
    if tall > 95:
        kind = dice.random()
        if kind < 0.55:
            s.box("crown", (top * 1.01, top * 1.01, 1.6), dice.choice(trims), 0, (x, y, tall - 1.5))
        if kind > 0.35:
            s.tube("mast", [(x, y, tall), (x, y, tall + 24)], 0.4, trims[-1])
            s.ball("beacon", 0.9, m.glow("beacon", "ff2a1a", 30), (x, y, tall + 24), 1)


def skyline(dice):
    """Three rows: low houses at the quay, blocks, towers that crowd about the middle."""
    walls = [facade("wall", tone, i) for i, tone in enumerate(("757983", "8c7b6c", "5d6674", "7d7670"))]
    trims = [m.glow("trim", tone, 3.0) for tone in ("ffe0b0", "8fc4ff", "c99aff")] + [m.plain("mast", "55585e", 0.5)]
    x = -560.0
    while x < 560:
        wide = dice.uniform(16, 34)
        s.box("house", (wide, 20, dice.uniform(12, 30)), dice.choice(walls), 0, (x, BANK + 20 + dice.uniform(0, 8), 12))
        x += wide + dice.uniform(0, 5)
    for _ in range(120):
        x = dice.uniform(-560, 560)
        near_middle = max(0.0, 1 - (abs(x - 60) / 430) ** 1.4)
        tall = 24 + dice.random() ** 1.5 * (40 + 150 * near_middle)
        tower(dice, x, BANK + dice.uniform(50, 330), tall, dice.uniform(18, 32), walls, trims)
    tower(dice, 72, BANK + 120, 232, 38, walls, trims)


def quay():
    """The embankment with its lamps and a bright promenade."""
    s.box("quay", (1400, 30, 6), m.plain("quay", "4a443e", 0.9), 0, (0, BANK + 5, 0))
    lamp = m.glow("lamp", "ffb765", 110)
    pale = m.glow("pale lamp", "fff0d8", 90)
    for i in range(92):
        s.ball("lamp", 0.62, pale if i % 7 == 3 else lamp, (-560 + 12.3 * i, BANK - 9, 8.0), 1)
    strip = m.glow("promenade", "ff9a48", 0.9)
    s.box("promenade", (1400, 0.2, 1.6), strip, 0, (0, BANK - 10.2, 2.2))
    neon = [m.glow("sign", tone, 12) for tone in ("ff4a5a", "4ad0ff", "ffd24a", "ff7ae0")]
    for i in range(14):
        s.box("sign", (7 + 5 * sin(i), 0.3, 2.2), neon[i % 4], 0, (-470 + 71 * i + 20 * sin(3 * i), BANK + 9,
                                                                   13 + 5 * sin(2 * i)))


def river():
    """Water in a long exposure: soft, waves only smear the lights towards us."""
    made, nodes, shader = m.principled("river", "04070d", 0.13, Specular=0.7)
    waves = nodes.math("ADD", nodes.noise(m.stretched(nodes, (0.35, 1, 1)), 0.055, detail=5.0),
                       nodes.math("MULTIPLY", nodes.noise(m.stretched(nodes, (0.4, 1, 1)), 0.5, detail=3.0), 0.12))
    m.feed(nodes, shader, Normal=m.relief(nodes, waves, 2.2, 0.4))
    s.sheet("river", (3000, 1700), (2, 2), lambda x, y: 0.0, made).location.y = 600


def boat():
    """An excursion boat with lit windows."""
    hull, light = m.plain("hull", "30343c", 0.5), m.glow("cabin", "ffdca4", 6)
    s.box("hull", (44, 9, 3), hull, 0.6, (-120, 470, 1.4))
    s.box("cabin", (36, 8, 2.6), hull, 0.3, (-121, 470, 4.2))
    for i in range(15):
        s.box("window", (1.7, 0.2, 1.2), light, 0, (-137 + 2.3 * i, 465.9, 4.4))
    s.box("deck", (30, 7, 0.3), hull, 0, (-122, 470, 5.9))
    for i in range(12):
        s.ball("lamp", 0.22, m.glow("deck lamp", "fff0c8", 60), (-136 + 2.6 * i, 466.5, 7.4), 1)


def hills():
    dark = m.plain("hill", "0a0c12", 1.0)
    line = [(x, 2600, 70 + 120 * noise.fractal(Vector((x / 700, 3, 0)), 1.0, 2.1, 6)) for x in range(-1600, 1601, 20)]
    s.ridge(line, -5, dark)


def build():
    dice = s.dice(52)
    night()
    skyline(dice)
    quay()
    river()
    boat()
    hills()
    camera((0, 0, 22), (20, BANK, 74), 46)
    return Roll(samples=10, exposure=1.15, glow=0.12)
