"""Paper lanterns that rise over a still lake at night, people on the shore."""
from math import pi, sin

import materials as m
import shapes as s
from common import camera, world
from figures import coat, long_hair, person
from film import Roll

FORMAT = "portrait"


def paper(name, power):
    """Thin paper lit by the flame below: bright at the mouth, orange and dim above, with folds."""
    made, nodes = m.material(name)
    where = nodes.place()
    height = nodes.add("ShaderNodeSeparateXYZ", where).outputs[2]
    folds = nodes.noise(m.stretched(nodes, (1, 1, 0.35)), 7.0, detail=4.0)
    share = nodes.math("MULTIPLY_ADD", nodes.math("SUBTRACT", folds, 0.5), 0.5, nodes.math("DIVIDE", height, 0.9))
    colour = m.ramp(nodes, share, (0.0, "ffd98c"), (0.25, "ff9e3d"), (0.65, "e8661a"), (1.0, "a83a0c"))
    level = m.ramp(nodes, share, (0.0, 1.0), (0.2, 0.55), (0.6, 0.2), (1.0, 0.08))
    own = nodes.math("MULTIPLY_ADD", nodes.chance(), 0.7, 0.55)
    shine = nodes.add("ShaderNodeEmission", colour, nodes.math("MULTIPLY", nodes.math("MULTIPLY", level, own), power))
    m.surface(nodes, shine)
    return made


def lantern(material):
    """A paper bag, mouth below, with its wire ring and the flame."""
    profile = [(0.235, 0.0), (0.265, 0.12), (0.30, 0.32), (0.315, 0.55), (0.295, 0.74), (0.22, 0.87), (0.10, 0.93), (0, 0.94)]
    bag = s.lathe("bag", profile, material, steps=40)
    s.wrinkled(bag, 0.05, 0.28)
    fire = s.ball("fire", 0.055, m.glow("fire", "fff0b8", 90), (0, 0, 0.03), 2)
    fire.scale.z = 1.5
    return bag, fire


def scattered(dice):
    """Over the whole sky, near ones few and large, far ones many and small."""
    places = []
    for _ in range(190):
        far, high = 10 + 150 * dice.random() ** 1.5, dice.random() ** 1.25
        places.append((dice.uniform(-0.40, 0.40) * far, far, 3.0 + (0.07 + 0.78 * high) * far))
    return places + [(-1.9, 7.5, 5.6), (1.75, 6.8, 7.2), (0.3, 10.5, 9.3), (3.0, 9, 4.6), (-3.1, 9.5, 9.9)]


def water():
    made, nodes, shader = m.principled("water", "02060c", 0.04, Specular=0.6)
    where = nodes.place()
    ripples = nodes.math("ADD", nodes.noise(m.stretched(nodes, (1.0, 0.8, 1)), 1.2, detail=4.0),
                         nodes.math("MULTIPLY", nodes.noise(where, 5.5, detail=3.0), 0.25))
    m.feed(nodes, shader, Normal=m.relief(nodes, ripples, 0.12, 0.35))
    return made


def people(cloth):
    """Four who look up after their lantern."""
    up = {"chin": (0, 0.02, 1.56), "crown": (0, -0.03, 1.69)}
    raised = {"elbow_l": (-0.22, 0.16, 1.50), "wrist_l": (-0.16, 0.26, 1.74), "hand_l": (-0.13, 0.27, 1.82),
              "elbow_r": (0.22, 0.16, 1.50), "wrist_r": (0.16, 0.26, 1.74), "hand_r": (0.13, 0.27, 1.82)}
    for x, y, size, pose, low in ((-1.05, 0.4, 1.0, raised, 0.80), (-0.30, 0.3, 0.66, up, 0.62), (0.30, 0.5, 0.95, up, 0.58),
                                  (1.45, 0.8, 1.0, up, 0.85)):
        made = person("guest", cloth, pose)
        made.location, made.scale, made.rotation_euler.z = (x, y - 2.6, -0.03 - 0.05 * (y + 0.4) ** 1.6), (size,) * 3, pi + 0.3 * sin(5 * x)
        coat(made, cloth, low)
        if low < 0.7:
            long_hair(made, cloth)


def hills():
    dark = m.plain("hill", "05080f", 1.0)
    for far, tall, seed in ((190, 5, 1), (240, 9, 2)):
        line = [(x, far, tall * (0.5 + 0.3 * sin(x / 41 + seed) + 0.2 * sin(x / 17 + 2 * seed) + 0.06 * sin(x / 3.1)))
                for x in range(-160, 161, 2)]
        s.ridge(line, -0.3, dark)


def night():
    """Deep blue that pales towards the hills."""
    nodes = world()
    height = nodes.add("ShaderNodeSeparateXYZ", nodes.place("Generated")).outputs[2]
    haze = nodes.noise(nodes.place("Generated"), 2.2, detail=6.0)
    tone = nodes.ramp(nodes.math("MULTIPLY_ADD", nodes.math("SUBTRACT", haze, 0.5), 0.12, height),
                      (0.0, (0.22, 0.11, 0.10)), (0.07, (0.085, 0.065, 0.105)), (0.25, (0.022, 0.030, 0.075)),
                      (0.6, (0.008, 0.013, 0.042)))
    nodes.add("ShaderNodeOutputWorld", nodes.add("ShaderNodeBackground", tone, 1.0))


def build():
    dice = s.dice(29)
    night()
    bag, fire = lantern(paper("paper", 6.0))
    for x, y, z in scattered(dice):
        lean = (dice.gauss(0, 0.07), dice.gauss(0, 0.07), dice.uniform(0, 6))
        s.copy(bag, (x, y, z), lean)
        s.copy(fire, (x, y, z + 0.03), lean, (1, 1, 1.5))
    s.gone(bag), s.gone(fire)
    s.sheet("lake", (500, 400), (2, 2), lambda x, y: -0.25, water()).location.y = 180
    shore = m.plain("shore", "14110e", 0.95, Specular=0.05)
    def bank(x, y):
        return -0.05 - 0.05 * max(y, 0) ** 1.6 + 0.03 * sin(3 * x) * sin(4 * y)
    ground = s.sheet("ground", (40, 12), (120, 60), bank, shore)
    ground.location.y = -3.0
    people(m.plain("coat", "0d0c0e", 0.9))
    hills()
    camera((0, -8.5, 1.15), (0, 6, 4.4), 33)
    return Roll(samples=12, exposure=0.5, glow=0.12)
