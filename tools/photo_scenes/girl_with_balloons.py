"""A girl with a bunch of balloons on a hill, against the low sun."""
from math import atan2, cos, pi, sin

from mathutils import Vector, noise

import materials as m
import shapes as s
from common import camera, daylight
from figures import person
from film import Roll

FORMAT = "portrait"


def rubber(name, colour):
    """Thin rubber: light comes through, a window mirrors in it."""
    made, nodes = m.material(name)
    skin = nodes.add("ShaderNodeBsdfPrincipled", Base_Color=m.rgb(colour), Roughness=0.12, Specular=0.5)
    through = nodes.add("ShaderNodeBsdfTranslucent", m.rgb(colour))
    clear = nodes.add("ShaderNodeBsdfTransparent", m.rgb(colour))
    body = nodes.add("ShaderNodeMixShader", 0.55, skin, through)
    m.surface(nodes, nodes.add("ShaderNodeMixShader", 0.42, body, clear))
    return made


def balloon(material):
    """A balloon, knot at the origin, top 0.36 m above."""
    profile = []
    for i in range(41):
        t = i / 40
        angle = pi * t
        wide = 0.135 * sin(angle) * (0.80 + 0.28 * t)
        profile.append((wide if 0 < i < 40 else 0, 0.02 + 0.34 * (1 - cos(angle)) / 2))
    profile = [(0.0, -0.012), (0.014, -0.010), (0.005, 0.004)] + [(max(r, 0.006), z) for r,
                                                                  z in profile[1:-1]] + [profile[-1]]
    return s.lathe("balloon", profile, material, steps=48)


def bunch(hand, dice):
    tones = ["f04a3a", "ffc83a", "5aa0f0", "6ac46a", "ff9040", "b070d0", "f783ac", "ffe060"]
    kinds = [balloon(rubber("rubber", tone)) for tone in tones]
    cord = m.plain("cord", "0c0b0a", 0.8)
    middle = (hand[0] + 0.12, hand[1], hand[2] + 1.25)
    for i in range(17):
        a, r, lift = 2.4 * i, 0.34 * (i / 17) ** 0.5 + 0.03, 0.30 * cos(0.9 * i) + 0.1
        at = (middle[0] + r * cos(a) * 1.15, middle[1] + r * sin(a), middle[2] + lift - 0.5 * (r * r) / 0.1 * 0.35)
        lean = (at[0] - hand[0]) * 0.55
        s.copy(kinds[i % 8], at, (-(at[1] - hand[1]) * 0.5, lean, dice.uniform(0, 6)), dice.uniform(0.92, 1.05))
        middle_cord = ((at[0] + hand[0]) / 2 + 0.02, (at[1] + hand[1]) / 2, (at[2] + hand[2]) / 2 - 0.03)
        s.tube("cord", [hand, middle_cord, at], 0.0016, cord)
    for kind in kinds:
        s.gone(kind)


def girl(cloth):
    """From behind, on her toes, one arm up."""
    figure = person("girl", cloth, {
        "shoulder_r": (0.15, 0, 1.44), "elbow_r": (0.25, 0.0, 1.64), "wrist_r": (0.30, 0.0, 1.86), "hand_r": (0.315, 0, 1.96),
        "elbow_l": (-0.27, 0.03, 1.17), "wrist_l": (-0.36, 0.0, 0.97), "hand_l": (-0.40, 0.0, 0.89),
                                    "shoulder_l": (-0.15, 0, 1.41),
        "knee_l": (-0.10, 0, 0.48), "ankle_l": (-0.13, -0.02, 0.10), "toe_l": (-0.22, 0.05, 0.04),
        "knee_r": (0.10, 0.0, 0.48), "ankle_r": (0.11, 0.02, 0.10), "toe_r": (0.19, 0.09, 0.04)}, slim=0.9)
    skirt = s.lathe("skirt", [(0.105, 1.10), (0.115, 1.02), (0.165, 0.88), (0.225, 0.72), (0.262, 0.60), (0.255, 0.60),
                              (0.1, 1.05)], cloth, steps=56)
    for vertex in skirt.data.vertices:
        low = max(0.0, 1.05 - vertex.co.z) / 0.45
        wave = 1 + 0.10 * low * sin(9 * atan2(vertex.co.y, vertex.co.x))
        vertex.co.x = vertex.co.x * wave + 0.10 * low * low
        vertex.co.y *= wave
    hair = s.ball("hair", 0.108, cloth, (0, -0.02, 1.655))
    tail = s.tube("tail", [(0.0, -0.06, 1.70), (0.03, -0.10, 1.62), (0.055, -0.11, 1.52), (0.09, -0.11, 1.42),
                           (0.15, -0.11, 1.34), (0.20, -0.11, 1.31)],
                  0.085, cloth, radii=[0.8, 1.0, 0.95, 0.75, 0.45, 0.1])
    return s.parent([hair, tail, figure, skirt], "girl")


def build():
    dice = s.dice(5)
    dark = m.plain("dark", "060505", 0.95, Specular=0.0)
    hill = s.sheet("hill", (60, 40), (160, 120), lambda x,
                   y: 0.9 * noise.noise(Vector((x * 0.11, y * 0.11, 2))) - 0.004 * x * x - 0.01 * max(y, 0) ** 2,
                   m.plain("meadow", "2c2a14", 0.95))
    top = 0.9 * noise.noise(Vector((0, 0, 2)))
    hill.location.z = -top
    blade = m.plain("blade", "4a4a1c", 0.7, Specular=0.2)
    s.hair(hill, 90000, 0.16, blade, seed=2, brownian_factor=0.03, root_radius=1.0, tip_radius=0.1, radius_scale=0.006,
           length_random=0.7, factor_random=0.06, display_step=2, render_step=3, hair_step=3)
    child = girl(dark)
    child.scale = (0.82,) * 3
    child.location = (-0.12, 0, -0.01)
    bunch((-0.12 + 0.315 * 0.82, 0, 1.95 * 0.82), dice)
    daylight(3.2, 9, strength=0.16, dust=2.0, ozone=2.5, sun_size=1.2, sun=0.55,
             clouds=dict(low=0.50, high=0.78, scale=0.9, light=(9.0, 5.2, 3.2), shade=(3.0, 2.1, 2.3), stretch=(0.5, 1.0)))
    m.window_light((-4, -5, 5), (0, 0, 2.5), 2.0, 110, (1.0, 0.9, 0.8))
    camera((0, -7.2, 0.95), (0, 0, 1.72), 62, (0, 0, 1.5), 2.8)
    return Roll(samples=16, exposure=0.25, warmth=0.02, glow=0.08)
