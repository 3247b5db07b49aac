"""Five friends who jump on the wet sand, against the evening sky."""
from math import atan2, sin

from mathutils import Vector, noise

import materials as m
import shapes as s
from common import camera, daylight
from figures import dressed, person
from film import Roll

FORMAT = "landscape"

# Joints of a jump, off the ground: spread, tucked, striding, arched, star.
JUMPS = [
    {"elbow_l": (-0.40, 0, 1.62), "wrist_l": (-0.52, 0, 1.86), "hand_l": (-0.55, 0, 1.95), "elbow_r": (0.38, 0, 1.63),
     "wrist_r": (0.46, 0, 1.88),
     "hand_r": (0.48, 0, 1.97), "knee_l": (-0.34, -0.1, 0.60), "ankle_l": (-0.30, 0.28, 0.34), "toe_l": (-0.31, 0.34, 0.20),
     "knee_r": (0.34, -0.12, 0.62), "ankle_r": (0.32, 0.26, 0.36), "toe_r": (0.33, 0.32, 0.22)},
    {"elbow_l": (-0.44, 0, 1.50), "wrist_l": (-0.62, 0, 1.70), "hand_l": (-0.68, 0, 1.76), "elbow_r": (0.44, 0, 1.52),
     "wrist_r": (0.60, 0, 1.74),
     "hand_r": (0.66, 0, 1.81), "knee_l": (-0.36, 0, 0.52), "ankle_l": (-0.62, 0, 0.20), "toe_l": (-0.74, 0, 0.16),
     "knee_r": (0.36, 0, 0.52), "ankle_r": (0.62, 0, 0.20), "toe_r": (0.74, 0, 0.16)},
    {"elbow_l": (-0.30, 0, 1.68), "wrist_l": (-0.30, 0, 1.94), "hand_l": (-0.29, 0, 2.03), "elbow_r": (0.42, 0, 1.34),
     "wrist_r": (0.60, 0, 1.50),
     "hand_r": (0.67, 0, 1.56), "knee_l": (-0.44, 0, 0.76), "ankle_l": (-0.56, 0, 0.38), "toe_l": (-0.68, 0, 0.36),
     "knee_r": (0.28, 0, 0.50), "ankle_r": (0.60, 0, 0.34), "toe_r": (0.70, 0, 0.26)},
    {"elbow_l": (-0.36, 0, 1.66), "wrist_l": (-0.44, 0, 1.90), "hand_l": (-0.46, 0, 1.99), "elbow_r": (0.32, 0, 1.68),
     "wrist_r": (0.38, 0, 1.93),
     "hand_r": (0.40, 0, 2.02), "knee_l": (-0.14, -0.1, 0.52), "ankle_l": (-0.30, 0.2, 0.22), "toe_l": (-0.38, 0.25, 0.14),
     "knee_r": (0.10, -0.1, 0.52), "ankle_r": (-0.06, 0.2, 0.20), "toe_r": (-0.14, 0.25, 0.12)},
    {"elbow_l": (-0.42, 0, 1.40), "wrist_l": (-0.60, 0, 1.60), "hand_l": (-0.66, 0, 1.67), "elbow_r": (0.34, 0, 1.66),
     "wrist_r": (0.42, 0, 1.91),
     "hand_r": (0.44, 0, 2.0), "knee_l": (-0.26, 0, 0.50), "ankle_l": (-0.56, 0, 0.30), "toe_l": (-0.66, 0, 0.23),
     "knee_r": (0.42, 0, 0.74), "ankle_r": (0.50, 0, 0.34), "toe_r": (0.62, 0, 0.31)},
]


def sand():
    """Wet where the wave has just gone, with a film of water that mirrors the sky."""
    made, nodes, shader = m.principled("sand", "6b5a48", 0.4)
    wet = nodes.noise(m.stretched(nodes, (0.35, 0.12, 1)), 1.0, detail=4.0)
    ripples = nodes.noise(m.stretched(nodes, (1.2, 5, 1)), 2.0, detail=5.0, distortion=0.5)
    m.feed(nodes, shader, Roughness=m.ramp(nodes, wet, (0.42, 0.05), (0.6, 0.42)),
           Base_Color=m.ramp(nodes, wet, (0.4, "2f2720"), (0.62, "6b5845")),
           Normal=m.relief(nodes, ripples, 0.012, 0.5))
    return made


def sea():
    made, nodes, shader = m.principled("sea", "0b1a22", 0.06, Specular=0.6)
    waves = nodes.noise(m.stretched(nodes, (0.12, 0.6, 1)), 1.0, detail=7.0, distortion=0.3)
    m.feed(nodes, shader, Normal=m.relief(nodes, waves, 0.6, 0.5))
    return made


def surf():
    """Lines of foam where the waves run out."""
    foam = m.plain("foam", "f4efe8", 0.7, Subsurface=0.1)
    for far, tall, seed in ((13.0, 0.05, 1), (17.0, 0.10, 5), (26.0, 0.14, 9)):
        def height(x, y, tall=tall, seed=seed):
            rough = noise.fractal(Vector((x * 0.8, y * 2.4, seed)), 0.8, 2.1, 6)
            shape = max(0.0, 1 - abs(y + 0.5 * noise.noise(Vector((x * 0.14, seed, 0)))) / 0.45)
            return tall * shape * (0.6 + 0.7 * rough) - 0.03
        strip = s.sheet("foam", (60, 3), (700, 60), height, foam)
        strip.location = (0, far, 0.0)


def flying(friend, cloth):
    """A skirt and long hair in the air."""
    for k in range(7):
        lean = 0.035 * (k - 3)
        lock = s.tube("lock", [(0, 0.02, 1.74), (0.05, 0.08, 1.79 + lean * 0.4), (0.14, 0.12, 1.80 + lean),
                               (0.24, 0.13, 1.74 + 1.7 * lean), (0.33 + 0.02 * (k % 3), 0.12, 1.66 + 2.4 * lean)],
                      0.040, cloth, radii=[1.2, 1.2, 0.8, 0.45, 0.06])
        lock.parent = friend
    skirt = s.lathe("skirt", [(0.135, 1.10), (0.165, 0.98), (0.24, 0.86), (0.33, 0.76), (0.325, 0.755), (0.12, 1.05)], cloth,
                    steps=64)
    for vertex in skirt.data.vertices:
        low = max(0.0, 1.0 - vertex.co.z) / 0.25
        fold = 0.05 * low * sin(8 * atan2(vertex.co.y, vertex.co.x))
        vertex.co.x *= 1 + fold
        vertex.co.y *= 0.75 + fold
        vertex.co.z += fold + 0.05 * low * vertex.co.x / 0.3
    skirt.parent = friend
    top = s.lathe("top", [(0.05, 1.49), (0.12, 1.45), (0.165, 1.39), (0.165, 1.28), (0.14, 1.1), (0.15, 1.0), (0.1, 1.2)],
                  cloth, steps=40)
    top.scale.y, top.parent = 0.66, friend


def build():
    dice = s.dice(6)
    dark = m.plain("dark", "080605", 0.9, Specular=0.1)
    for i, (pose, x, lift) in enumerate(zip(JUMPS, (-2.75, -1.35, 0.02, 1.36, 2.7), (0.42, 0.62, 0.50, 0.66, 0.46))):
        friend = person("friend", dark, pose, 0.92 if i % 2 else 1.05)
        friend.location, friend.rotation_euler.z = (x, 0.4 * sin(4 * x), lift), dice.uniform(-0.25, 0.25)
        friend.scale = (0.95 if i % 2 else 1.0,) * 3
        if i % 2:
            flying(friend, dark)
        else:
            dressed(friend, pose, dark, dice.uniform(-0.05, 0.05))
    s.sheet("beach", (120, 26), (2, 2), lambda x, y: 0.0, sand()).location.y = 4
    s.sheet("sea", (8000, 6000), (2, 2), lambda x, y: -0.02, sea()).location.y = 3011
    surf()
    daylight(2.6, -7, strength=0.13, dust=2.2, ozone=3.0, sun_size=1.4, sun=0.5,
             clouds=dict(low=0.47, high=0.72, scale=0.75, light=(8.5, 4.2, 2.6), shade=(2.2, 1.5, 1.9), stretch=(0.4, 1.0)))
    camera((0, -9.5, 0.62), (0, 0, 1.40), 44)
    return Roll(samples=12, exposure=0.1, warmth=0.02, glow=0.08)
