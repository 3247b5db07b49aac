"""A cat on the window sill looks out into a green garden."""
from math import cos, pi, sin

import bpy
from mathutils import Vector, noise

import materials as m
import shapes as s
from common import camera, world
from figures import body
from film import Roll

FORMAT = "portrait"

SITTING = {"rump": (0, 0.0, 0.085, (0.092, 0.085)), "back": (0, 0.012, 0.165, (0.080, 0.078)),
           "shoulders": (0, 0.035, 0.245, (0.062, 0.062)),
           "neck": (0, 0.045, 0.300, 0.043), "head": (0.004, 0.050, 0.345, 0.047), "muzzle": (0.012, 0.085, 0.338, 0.024),
           "hip_l": (-0.062, 0.010, 0.055, 0.058), "hip_r": (0.062, 0.010, 0.055, 0.058),
           "foot_l": (-0.072, 0.065, 0.018, 0.020), "foot_r": (0.072, 0.065, 0.018, 0.020),
           "paw_l": (-0.028, 0.085, 0.10, 0.022), "paw_r": (0.028, 0.085, 0.10, 0.022),
           "toe_l": (-0.028, 0.095, 0.016, 0.019), "toe_r": (0.028, 0.095, 0.016, 0.019)}
BONES = [("rump", "back"), ("back", "shoulders"), ("shoulders", "neck"), ("neck", "head"), ("head", "muzzle"),
         ("rump", "hip_l"), ("rump", "hip_r"),
         ("hip_l", "foot_l"), ("hip_r", "foot_r"), ("shoulders", "paw_l"), ("shoulders", "paw_r"), ("paw_l", "toe_l"),
         ("paw_r", "toe_r")]


def fur():
    """Dark hair whose tips let the light of the window through."""
    made, nodes, shader = m.principled("fur", "2a2420", 0.6, Specular=0.25)
    along = nodes.add("ShaderNodeHairInfo").outputs["Intercept"]
    m.feed(nodes, shader, Base_Color=m.ramp(nodes, along, (0.0, "15110f"), (0.6, "2d241e"), (1.0, "6b5646")))
    return made


def hairy(thing, count, long, seed):
    return s.hair(thing, count, long, fur(), seed=seed, brownian_factor=0.004, root_radius=0.6, tip_radius=0.05,
                  radius_scale=0.0011, length_random=0.4,
                  normal_factor=0.010, object_align_factor=(0, 0, -0.010), factor_random=0.004, display_step=2, render_step=3,
                  hair_step=3)


def cat():
    """From behind, ears up, tail along the sill."""
    skin = m.plain("skin", "17120f", 0.8)
    sitting = s.baked(body("cat", SITTING, BONES, skin, 3))
    hairy(sitting, 52000, 0.017, 4)
    skull = s.ball("skull", 0.056, skin, (0.004, 0.052, 0.347), 4)
    skull.scale = (1.0, 0.95, 0.86)
    hairy(skull, 16000, 0.012, 5)
    for side in (-1, 1):
        ear = s.lathe("ear", [(0.027, -0.012), (0.024, 0.016), (0.015, 0.042), (0.004, 0.062), (0, 0.065)], skin, steps=32)
        ear.scale = (1.0, 0.42, 1.0)
        ear.location, ear.rotation_euler = (0.004 + side * 0.036, 0.048, 0.385), (-0.1, side * 0.26, side * -0.3)
        s.hair(s.baked(ear), 2200, 0.004, fur(), seed=6 + side, root_radius=0.5, tip_radius=0.05, radius_scale=0.001,
               display_step=2, render_step=2, hair_step=2)
    line = [(0.05, -0.045, 0.034), (0.10, -0.055, 0.024), (0.155, -0.045, 0.021), (0.205, -0.015, 0.020),
            (0.240, 0.028, 0.021), (0.252, 0.065, 0.028)]
    tail = s.tube("tail", [tuple(Vector(a).lerp(Vector(b), t)) for a,
                           b in zip(line, line[1:]) for t in (0, 0.33, 0.67)] + [line[-1]], 0.017, skin,
                  radii=[1.1 - 0.03 * i for i in range(16)])
    hairy(tail_mesh(tail), 14000, 0.015, 9)


def tail_mesh(curve):
    """The tail as a mesh, on which hair can grow."""
    data = bpy.data.meshes.new_from_object(curve.evaluated_get(bpy.context.evaluated_depsgraph_get()))
    s.gone(curve)
    return s.put("tail", data)


def window():
    """A wooden casement, panes with old rain on them, sill and reveal."""
    white = m.plain("frame", "e6e0d4", 0.45)
    s.box("sill", (1.6, 0.42, 0.045), m.wood("sill", "6e4a2c", "9a6c42", "c19565", 0.4, 2.0), 0.006, (0, 0.02, -0.0225))
    for x in (-0.56, 0.0, 0.56):
        s.box("post", (0.055, 0.054, 1.5), white, 0.006, (x, 0.20, 0.72))
    for z in (0.03, 0.80, 1.44):
        s.box("rail", (1.16, 0.05, 0.055), white, 0.006, (0, 0.20, z))
    plaster = m.plain("plaster", "cbbfae", 0.9)
    for x in (-0.85, 0.85):
        s.box("reveal", (0.5, 0.5, 3.0), plaster, 0.01, (x, 0.06, 0.6))
    s.box("wall", (3, 0.5, 1.2), plaster, 0.01, (0, 0.06, -0.65))


def curtains():
    """Thin cotton at both sides, lit from behind."""
    made, nodes = m.material("curtain")
    front = nodes.add("ShaderNodeBsdfDiffuse", (0.82, 0.77, 0.68))
    behind = nodes.add("ShaderNodeBsdfTranslucent", (0.9, 0.84, 0.72))
    clear = nodes.add("ShaderNodeBsdfTransparent")
    weave = nodes.add("ShaderNodeMixShader", 0.6, front, behind)
    m.surface(nodes, nodes.add("ShaderNodeMixShader", 0.18, weave, clear))
    for side in (-1, 1):
        def fold(x, y, side=side):
            return 0.032 * sin(58 * x + 1.5 * noise.noise(Vector((2 * y, side, 0)))) + 0.012 * sin(121 * x + y)
        cloth = s.sheet("curtain", (0.36, 2.0), (160, 60), fold, made)
        cloth.location, cloth.rotation_euler = (side * 0.43, -0.02, 0.98), (pi / 2, 0, 0)


def garden(dice):
    """Leaves, sun between them, a lawn, flowers: all far out of focus."""
    greens = [s.ball("leaves", 0.1, m.plain("leaf", tone, 0.6), detail=2) for tone in ("3f6b22", "557f2c", "7aa83a", "2c5220",
                                                                                       "94b84a", "37601f")]
    clumps = [(dice.uniform(-4.5, 4.5), dice.uniform(6, 13), dice.uniform(-0.9, 4.6),
               dice.choice(greens)) for _ in range(130)]
    for x, y, z, tone in clumps:
        for _ in range(34):
            one = tone if dice.random() < 0.7 else dice.choice(greens)
            s.copy(one, (x + dice.gauss(0, 0.34), y + dice.gauss(0, 0.3), z + dice.gauss(0, 0.28)),
                   (dice.uniform(0, 3), dice.uniform(0, 3), 0), (dice.uniform(0.4, 1.1), dice.uniform(0.3, 0.9), 0.25))
    for one in greens:
        s.gone(one)
    lights = [m.glow("gap", tone, power) for tone, power in (("fff6d0", 9), ("f4ffc8", 6), ("ffffff", 10))]
    for _ in range(75):
        y = dice.uniform(5, 9)
        s.ball("gap", dice.uniform(0.025, 0.06), dice.choice(lights), (dice.uniform(-2.6, 2.6) * y / 7, y,
                                                                       dice.uniform(0.5, 3.6) * y / 7), 1)
    for tone in ("e0607a", "f0c84a", "f4f0ea"):
        flower = m.plain("flower", tone, 0.6)
        for _ in range(16):
            s.ball("flower", dice.uniform(0.05, 0.11), flower, (dice.uniform(-2.4, 2.4), dice.uniform(4, 7),
                                                                dice.uniform(-0.7, 0.25)), 1)
    s.sheet("lawn", (60, 40), (2, 2), lambda x, y: -1.2, m.plain("lawn", "6f9a3a", 0.9)).location.y = 21


def build():
    dice = s.dice(70)
    nodes = world()
    height = nodes.add("ShaderNodeSeparateXYZ", nodes.place("Generated")).outputs[2]
    tone = nodes.ramp(height, (0.0, (0.85, 0.88, 0.70)), (0.5, (0.75, 0.86, 1.0)))
    nodes.add("ShaderNodeOutputWorld", nodes.add("ShaderNodeBackground", tone, 0.9))
    cat()
    window()
    curtains()
    garden(dice)
    s.lathe("pot", [(0, 0), (0.045, 0), (0.058, 0.085), (0.063, 0.087), (0.063, 0.105), (0.056, 0.105), (0.052, 0.08),
                    (0, 0.08)], m.plain("clay", "b06a44", 0.8)).location = (-0.225, 0.04, 0)
    green = m.plain("herb", "4f8030", 0.5)
    for k in range(34):
        blade = s.leaf("herb", 0.085, 0.022, green, bend=0.45)
        a = 2.4 * k
        blade.location, blade.rotation_euler = (-0.225 + 0.035 * cos(a), 0.04 + 0.035 * sin(a),
                                                0.12 + 0.0016 * k), (0, -0.9 + 0.02 * k, a)
    m.lamp("SUN", (2.2, 4.0, 3.0), (0, 0, 0), 4.0, (1.0, 0.88, 0.68), angle=0.03)
    m.window_light((0.2, -2.6, 1.4), (0, 0, 0.3), 1.6, 14, (0.85, 0.9, 1.0))
    camera((0.10, -1.75, 0.40), (0.015, 0, 0.36), 58, 1.72, 1.3)
    return Roll(samples=12, exposure=0.05, glow=0.08)
