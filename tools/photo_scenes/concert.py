"""A concert seen from the crowd: raised hands against the beams of the stage."""
from math import cos, pi, radians

from mathutils import Vector

import materials as m
import shapes as s
from common import camera, world
from figures import ARM, blended, body, fleshed, oval, person, skull, standing, trunk, yoke
from film import Roll

FORMAT = "landscape"


def beam(origin, target, long, wide, colour, power):
    """A beam in the haze: a cone whose light dies with its length and at its edge, so that it hides nothing."""
    made, nodes = m.material("beam")
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place())
    along = nodes.math("DIVIDE", apart.outputs[2], long)
    dying = nodes.math("POWER", nodes.math("SUBTRACT", 1.0, along, clamped=True), 1.6)
    facing = nodes.math("SUBTRACT", 1.0, nodes.add("ShaderNodeLayerWeight", 0.5).outputs["Facing"])
    soft = nodes.math("POWER", facing, 2.2)
    drift = nodes.noise(nodes.vector("MULTIPLY", nodes.add("ShaderNodeNewGeometry").outputs["Position"], (0.5, 0.5, 0.5)),
                        1.0, detail=5.0)
    level = nodes.math("MULTIPLY", nodes.math("MULTIPLY", dying, soft), nodes.rise(drift, 0.15, 0.75))
    light = nodes.add("ShaderNodeEmission", m.rgb(colour), nodes.math("MULTIPLY", level, power))
    m.surface(nodes, nodes.add("ShaderNodeAddShader", light, nodes.add("ShaderNodeBsdfTransparent")))
    cone = s.lathe("beam", [(0.12, 0.0), (wide * 0.5, long * 0.5), (wide, long)], made, steps=40, finer=0)
    cone.location = origin
    cone.rotation_euler = (Vector(target) - Vector(origin)).to_track_quat("Z", "Y").to_euler()
    cone.visible_shadow = cone.visible_diffuse = cone.visible_glossy = False


def rig():
    """Trusses with moving heads, each with its lens that dazzles, and the light that they throw."""
    steel = m.plain("truss", "15161a", 0.5)
    for z, y in ((9.5, 15), (8.2, 19)):
        for low in (0, 0.5):
            s.tube("bar", [(-13, y, z + low), (13, y, z + low)], 0.06, steel)
        for i in range(52):
            s.tube("web", [(-13 + 0.5 * i, y, z), (-12.5 + 0.5 * i, y, z + 0.5)], 0.025, steel)
    tones = ("8a4bff", "ff3fa8", "3f7bff", "ff9a3c")
    for i in range(9):
        x = -10.4 + 2.6 * i
        tone = tones[(i * 3) % 4]
        spread = (i - 4) * 0.9
        beam((x, 15, 9.2), (x * 0.35 - spread, 4 - abs(spread), 0.4), 15, 1.25, tone, 0.85)
        s.ball("lens", 0.16, m.glow("lens", tone, 130), (x, 14.8, 9.2), 2)
        m.lamp("SPOT", (x, 15, 9.1), (x * 0.35 - spread, 4, 0), 1500, m.rgb(tone), spot_size=radians(24),
               shadow_soft_size=0.15)
    for i in range(8):
        x = -9.1 + 2.6 * i
        beam((x, 19, 8.0), (x + 4.5 * cos(i * 1.7), 20, 0), 11, 0.8, tones[i % 4], 0.6)
        beam((x, 20.5, 1.3), (x * 2.2, 16, 15), 16, 0.8, tones[(i + 1) % 4], 0.5)
        s.ball("lens", 0.13, m.glow("lens", tones[i % 4], 90), (x, 18.8, 8.0), 2)


def stage():
    """The platform, amplifiers, drums and the band in the back light."""
    black = m.plain("black", "0b0b0d", 0.5)
    s.box("stage", (28, 9, 1.3), black, 0, (0, 20, 0.65))
    for x in (-12, 12):
        for k in range(6):
            made = s.box("speaker", (1.5, 1.0, 0.75), black, 0.03, (x, 15.5 - 0.12 * k * (k / 3), 8.4 - 0.78 * k))
            made.rotation_euler.x = -0.06 * k
    for x in (-5.5, -4.2, 4.2, 5.6):
        s.box("amplifier", (1.1, 0.5, 1.3), black, 0.02, (x, 22, 1.95))
    for x, y, z, r in ((0, 22, 1.9, 0.42), (-0.7, 21.8, 2.2, 0.22), (0.75, 21.8, 2.2, 0.24), (0.3, 21.9, 2.45, 0.18)):
        s.lathe("drum", [(0, -0.2), (r, -0.2), (r, 0.2), (0, 0.2)], black, steps=32, finer=0).location = (x, y, z)
    for x, y, pose in ((-3.1, 18.6, guitarist(1)), (3.0, 18.8, guitarist(-1)), (0.0, 17.6, singer()), (0.1, 22.5, {})):
        made = person("band", black, pose)
        made.location = (x, y, 1.3)
        if y in (18.6, 18.8):
            neck = s.tube("neck", [(x - 0.3, y - 0.2, 2.25), (x + 0.55, y - 0.25, 2.62)], 0.03, black)
            neck.name = "guitar"
            s.ball("guitar", 0.2, black, (x - 0.2, y - 0.2, 2.28), 2).scale = (1.2, 0.3, 0.9)
    s.tube("stand", [(0.12, 17.35, 1.3), (0.06, 17.35, 2.85)], 0.015, black)


def guitarist(side):
    return {"elbow_l": (-0.34, -0.08, 1.18), "wrist_l": (-0.18, -0.22, 1.02), "hand_l": (-0.12, -0.24, 1.0),
            "elbow_r": (0.34, -0.1, 1.22), "wrist_r": (0.42, -0.24, 1.30),
            "hand_r": (0.46, -0.25, 1.32), "knee_l": (-0.2, -0.06, 0.48), "ankle_l": (-0.28, 0.0, 0.09),
            "toe_l": (-0.32, -0.14, 0.04),
            "knee_r": (0.18, -0.04, 0.48), "ankle_r": (0.26, 0.02, 0.09), "toe_r": (0.3 * side if side > 0 else 0.3, -0.12,
                                                                                    0.04)}


def singer():
    return {"elbow_r": (0.34, 0, 1.60), "wrist_r": (0.44, -0.02, 1.86), "hand_r": (0.47, -0.02, 1.95),
            "elbow_l": (-0.26, -0.14, 1.24), "wrist_l": (-0.10, -0.25, 1.46),
            "hand_l": (-0.05, -0.27, 1.52), "knee_l": (-0.2, 0, 0.48), "ankle_l": (-0.27, 0.02, 0.09),
            "toe_l": (-0.31, -0.12, 0.04)}


HAND = [("wrist", "palm"), ("palm", "knuckle_1"), ("knuckle_1", "tip_1"), ("palm", "knuckle_2"), ("knuckle_2", "tip_2"),
        ("palm", "knuckle_3"), ("knuckle_3", "tip_3"),
        ("palm", "knuckle_4"), ("knuckle_4", "tip_4"), ("palm", "thumb"), ("thumb", "tip_0"), ("elbow", "wrist")]


def arm(cloth, spread):
    """A forearm with an open hand, elbow at the origin."""
    joints = {"elbow": (0, 0, 0, 0.048), "wrist": (0.01, 0, 0.25, 0.030), "palm": (0.015, 0, 0.31, (0.036, 0.018)),
              "thumb": (-0.045, 0, 0.335, 0.013), "tip_0": (-0.075, 0, 0.375, 0.010)}
    for k, (x, long) in enumerate(((-0.026, 0.075), (-0.008, 0.085), (0.012, 0.08), (0.032, 0.062)), 1):
        joints[f"knuckle_{k}"] = (0.015 + x, 0, 0.365, 0.0125)
        joints[f"tip_{k}"] = (0.015 + x * (1 + spread), 0, 0.365 + long, 0.0085)
    return body("arm", joints, HAND, cloth)


# What covers a head: balls (place, radii), from short hair to long, a bun, a cap with its shade turned back.
HAIR = (
    [((0, 0.024, 1.672), (0.086, 0.096, 0.090))],
    [((0, 0.026, 1.675), (0.094, 0.104, 0.096)), ((0, 0.055, 1.58), (0.096, 0.062, 0.12)), ((0, 0.075, 1.46), (0.088, 0.045, 0.12))],
    [((0, 0.024, 1.672), (0.086, 0.096, 0.090)), ((0, 0.085, 1.755), (0.048, 0.046, 0.042))],
    [((0, 0.015, 1.690), (0.089, 0.102, 0.078)), ((0, 0.110, 1.675), (0.062, 0.055, 0.014))],
    [((0, 0.026, 1.680), (0.112, 0.112, 0.104)), ((-0.05, 0.04, 1.60), (0.062, 0.075, 0.08)), ((0.05, 0.04, 1.60), (0.062, 0.075, 0.08))],
)


def guest(cloth, hair):
    """Down to the elbows, facing -y."""
    joints = standing()
    parts = [trunk(joints, 1.08, cloth), yoke(joints, 1.12, cloth)] + skull(joints, cloth) + [oval(*ball, cloth) for ball in hair]
    parts += [fleshed([(joints["shoulder_" + side], joints["elbow_" + side], ARM)], 1.2, cloth) for side in "lr"]
    return blended("guest", parts, 0.010)


def crowd(dice):
    """Heads and shoulders, row behind row, every second one with a hand or two up; some hold a telephone."""
    dark = m.plain("crowd", "0a0a0c", 0.8)
    heads = [guest(dark, hair) for hair in HAIR]
    arms = [s.baked(arm(dark, spread)) for spread in (0.1, 0.6, 0.9)]
    screen = m.glow("screen", "a8c4ff", 2.5)
    for row in range(11):
        y = 0.9 + 0.85 * row + 0.02 * row * row
        for column in range(-9 - row, 10 + row):
            x = 0.62 * column + dice.gauss(0, 0.1) + 0.31 * (row % 2)
            z = 1.44 + dice.gauss(0, 0.07)
            if row < 2 and abs(x) < 0.45:
                z -= 0.12
            s.copy(dice.choice(heads), (x, y, z - 1.44), (0, 0, pi + dice.uniform(-0.5, 0.5)), dice.uniform(0.97, 1.02))
            if dice.random() < 0.42:
                for side in ((-1, 1) if dice.random() < 0.4 else (dice.choice((-1, 1)),)):
                    lift = dice.uniform(-0.12, 0.16)
                    s.copy(dice.choice(arms), (x + side * 0.24, y, z + 0.12 + lift),
                           (dice.gauss(0, 0.15), side * dice.uniform(-0.05, 0.4), dice.uniform(-0.6, 0.6)), (side, 1, 1))
            if row > 1 and dice.random() < 0.04:
                s.box("telephone", (0.15, 0.01, 0.075), screen, 0.004, (x + 0.15, y - 0.02, z + 0.52))
    for thing in heads + arms:
        s.gone(thing)
    s.sheet("floor", (60, 30), (2, 2), lambda x, y: 0.9, dark).location.y = 14  # below the elbows nothing is seen but the dark


def build():
    dice = s.dice(40)
    nodes = world()
    nodes.add("ShaderNodeOutputWorld", nodes.add("ShaderNodeBackground", (0.02, 0.014, 0.035), 0.6))
    rig()
    stage()
    crowd(dice)
    made, nodes = m.material("haze")
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place("Generated"))
    cloud = nodes.noise(nodes.place("Generated"), 3.0, detail=6.0)
    tone = nodes.ramp(apart.outputs[0], (0.0, m.rgb("3a2ab0")), (0.4, m.rgb("a02a90")), (0.7, m.rgb("d0503a")),
                      (1.0, m.rgb("2a4ab8")))
    level = nodes.math("MULTIPLY", nodes.rise(cloud, 0.2, 0.9), nodes.rise(apart.outputs[1], 1.05, 0.05))
    m.surface(nodes, nodes.add("ShaderNodeEmission", tone, nodes.math("MULTIPLY", level, 0.75)))
    haze = s.sheet("haze", (60, 16), (2, 2), lambda x, y: 0.0, made)
    haze.location, haze.rotation_euler.x = (0, 25, 7), pi / 2
    camera((0.0, -1.6, 1.92), (0, 12, 3.9), 30, 9.0, 2.4)
    return Roll(samples=14, exposure=0.9, glow=0.14)
