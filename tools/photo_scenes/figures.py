"""People and animals for silhouettes and for backs: limbs of changing thickness around joints."""
import math

import bpy
import numpy
from mathutils import Matrix, Vector

import shapes
from common import joined, limb, sheet, smooth


def body(name, joints, bones, material, finer=2):
    """A skin around bones. Joints: name to (x, y, z, thickness); bones: pairs of names."""
    names = list(joints)
    data = bpy.data.meshes.new(name)
    data.from_pydata([joints[n][:3] for n in names], [(names.index(a), names.index(b)) for a, b in bones], [])
    made = shapes.put(name, data, material)
    made.modifiers.new("skin", "SKIN").use_smooth_shade = True
    layer = data.skin_vertices[0].data
    for i, joint in enumerate(names):
        thick = joints[joint][3]
        layer[i].radius = thick if isinstance(thick, tuple) else (thick, thick)
    layer[0].use_root = True
    return shapes.subdivided(made, finer)


STANDING = {"hips": (0, 0, 0.94, (0.15, 0.11)), "waist": (0, 0, 1.10, (0.125, 0.095)), "chest": (0, 0, 1.32, (0.16, 0.105)),
            "neck": (0, 0, 1.49, 0.052), "chin": (0, 0.01, 1.58, 0.048), "crown": (0, 0, 1.68, 0.06),
            "shoulder_l": (-0.185, 0, 1.42, 0.062), "elbow_l": (-0.24, 0.02, 1.14, 0.042),
            "wrist_l": (-0.26, -0.03, 0.90, 0.026),
            "hand_l": (-0.265, -0.05, 0.80, 0.034), "shoulder_r": (0.185, 0, 1.42, 0.062),
            "elbow_r": (0.24, 0.02, 1.14, 0.042),
            "wrist_r": (0.26, -0.03, 0.90, 0.026), "hand_r": (0.265, -0.05, 0.80, 0.034),
            "hip_l": (-0.09, 0, 0.86, 0.095), "knee_l": (-0.10, -0.01, 0.48, 0.058), "ankle_l": (-0.10, 0.02, 0.09, 0.034),
            "toe_l": (-0.115, -0.14, 0.04, 0.035), "hip_r": (0.09, 0, 0.86, 0.095), "knee_r": (0.10, -0.01, 0.48, 0.058),
            "ankle_r": (0.10, 0.02, 0.09, 0.034), "toe_r": (0.115, -0.14, 0.04, 0.035)}

FINGERS = ((-0.026, 0.070), (-0.009, 0.082), (0.009, 0.078), (0.027, 0.060))  # aside, length


ARM = ((0, 0.052), (0.12, 0.062), (0.3, 0.056), (0.6, 0.047), (0.9, 0.039))  # share of the way to the elbow, thickness
FOREARM = ((0.05, 0.038), (0.3, 0.043), (0.7, 0.034), (0.95, 0.026), (1.05, 0.025))
THIGH = ((-0.1, 0.06), (0.08, 0.092), (0.35, 0.084), (0.7, 0.064), (0.95, 0.054))
CALF = ((0.08, 0.054), (0.3, 0.058), (0.5, 0.051), (0.75, 0.038), (1.0, 0.033))
TRUNK = (("hips", -0.11, 0.03, 0.03), ("hips", -0.06, 0.125, 0.095), ("hips", 0.01, 0.165, 0.115), ("waist", 0, 0.133, 0.096), ("chest", -0.05, 0.155, 0.11),
         ("chest", 0.05, 0.160, 0.106), ("chest", 0.115, 0.125, 0.082), ("neck", 0.0, 0.066, 0.060), ("neck", 0.05, 0.04, 0.04))  # joint, above it, wide, deep


def person(name, material, moved=None, slim=1.0):
    """A grown person who faces -y, 1.78 m tall, feet at 0; `moved` gives joints another place (x, y, z)."""
    joints = standing(moved)
    parts = [trunk(joints, slim, material), yoke(joints, slim, material)] + skull(joints, material)
    for side in "lr":
        shoulder, elbow, wrist, hip, knee, ankle = (joints[f"{one}_{side}"] for one in ("shoulder", "elbow", "wrist", "hip", "knee", "ankle"))
        bend = numpy.array([0, 0.014, 0])
        parts += [oval(shoulder, (0.06 * slim,) * 3, material), fleshed([(shoulder, elbow, ARM), (elbow, wrist, FOREARM)], slim, material),
                  fleshed([(hip, knee, THIGH), (knee, ankle + bend, CALF)], slim, material), foot(knee, ankle, joints["toe_" + side], material)]
        parts += hand(wrist, joints["hand_" + side], side, material)
    made = blended(name, parts)
    scalp(joints, material).parent = made
    return made


def standing(moved=None):
    """The places of the joints of one who stands, but for those that are moved."""
    return {joint: numpy.array((moved or {}).get(joint, at[:3]), dtype=float) for joint, at in STANDING.items()}


def blended(name, parts, grain=0.006):
    """One skin over parts that reach into each other."""
    for part in parts:
        shapes.weld(part, closed=True)  # what is open or inside out would be cut away
    made = joined(name, parts)
    skin = made.modifiers.new("skin", "REMESH")
    skin.mode, skin.voxel_size, skin.use_smooth_shade = "VOXEL", grain, True
    soft = made.modifiers.new("soft", "SMOOTH")
    soft.factor, soft.iterations = 0.5, 12
    return shapes.baked(made)


def trunk(joints, slim, material):
    """From the hips to the neck, deeper than wide nowhere."""
    rows = smooth([(*(joints[joint] + [0, 0, up]), wide * slim, deep * slim) for joint, up, wide, deep in TRUNK], 40)
    turn = numpy.linspace(0, 2 * math.pi, 32, endpoint=False)[None, :]
    return sheet("trunk", numpy.stack([rows[:, :1] + rows[:, 3:4] * numpy.cos(turn), rows[:, 1:2] + rows[:, 4:] * numpy.sin(turn),
                                       rows[:, 2:3] + 0 * turn], axis=-1), material, closed=True)


def yoke(joints, slim, material):
    """From shoulder to shoulder, over the root of the neck."""
    left, right, root = joints["shoulder_l"], joints["shoulder_r"], joints["neck"] - [0, 0, 0.035]
    line = [left + 0.03 * (left - root), left, left + 0.5 * (root - left), root, right + 0.5 * (root - right), right, right + 0.03 * (right - root)]
    return limb(line, [0.03, 0.055 * slim, 0.064 * slim, 0.062 * slim, 0.064 * slim, 0.055 * slim, 0.03], material)


def fleshed(bones, slim, material):
    """A limb over bones: (from, to, thickness along it)."""
    line = [(first + (last - first) * share, thick * slim) for first, last, flesh in bones for share, thick in flesh]
    ends = [(line[0][0], 0.01), *line, (line[-1][0] + 0.3 * (line[-1][0] - line[-2][0]), 0.01)]
    return limb([place for place, _ in ends], [thick for _, thick in ends], material)


def oval(place, radii, material):
    made = shapes.ball("oval", 1.0, material, detail=4)
    made.data.transform(Matrix.Translation(place) @ Matrix.Diagonal((*radii, 1)))
    return made


def head_of(joints):
    return (joints["chin"] + joints["crown"]) / 2


def skull(joints, material):
    """Head and neck."""
    middle = head_of(joints)
    return [oval(middle + [0, 0.012, 0.032], (0.082, 0.102, 0.096), material), oval(middle + [0, -0.026, -0.05], (0.059, 0.072, 0.072), material),
            limb([joints["neck"] - [0, 0, 0.05], joints["neck"], middle + [0, 0.01, -0.06], middle], [0.05, 0.058, 0.052, 0.05], material)]


def scalp(joints, material):
    """Short hair."""
    made = oval(head_of(joints) + [0, 0.026, 0.048], (0.081, 0.092, 0.084), material)
    shapes.hair(made, 4500, 0.014, material, seed=int(1000 * abs(joints["crown"][0])) + 1, brownian_factor=0.003, root_radius=1.0, tip_radius=0.2,
                radius_scale=0.0022, length_random=0.5, factor_random=0.004, normal_factor=0.006, object_align_factor=(0, 0.006, -0.010),
                display_step=2, render_step=2, hair_step=3)
    return made


def hand(wrist, end, side, material):
    """An open hand, fingers a little spread, its palm square to y; the thumb towards the body."""
    along = (end - wrist) / numpy.linalg.norm(end - wrist)
    across = numpy.cross(along, [0, 1, 0])
    across /= numpy.linalg.norm(across) + 1e-9
    across *= -1 if (across[0] > 0) == (side == "r") else 1

    def at(aside, far, back=0.0):
        return wrist + across * aside + along * far + [0, back, 0]
    parts = [limb([at(0, -0.03), at(0, 0.0), at(0.004, 0.04), at(0, 0.085), at(0, 0.1)], [0.02, 0.027, 0.036, 0.037, 0.02], material)]
    for aside, long in FINGERS:
        parts.append(limb([at(aside, 0.08), at(aside * 1.3, 0.08 + 0.5 * long, 0.004), at(aside * 1.55, 0.085 + long, -0.004), at(aside * 1.58, 0.092 + long)], [0.0105, 0.0100, 0.0085, 0.003], material))
    return parts + [limb([at(0.018, 0.02), at(0.048, 0.055), at(0.064, 0.088), at(0.068, 0.096)], [0.018, 0.0135, 0.0095, 0.003], material)]


def foot(knee, ankle, toe, material):
    """A shoe from the heel to the toe."""
    down, way = (ankle - knee) / numpy.linalg.norm(ankle - knee), toe - ankle
    line = [ankle + 0.035 * down - 0.42 * way, ankle + 0.035 * down - 0.30 * way, ankle + 0.03 * down + 0.1 * way, ankle + 0.6 * way, toe + 0.1 * way, toe + 0.3 * way]
    return limb(line, [0.012, 0.040, 0.046, 0.042, 0.036, 0.012], material)


def sleeve(wearer, joints, ends, share, radii, material):
    """Cloth around a limb: from joint ends[0] a share of the way to ends[1], as wide as the radii at both ends."""
    first, last = Vector(joints[ends[0]]), Vector(joints[ends[1]])
    line = [first.lerp(last, share * t) for t in (-0.06, 0.3, 0.7, 1.0)]
    wide = [radii[0] + (radii[1] - radii[0]) * t for t in (0, 0.3, 0.7, 1.0)]
    made = shapes.tube("sleeve", line, 1.0, material, radii=wide)
    made.parent = wearer
    return made


def dressed(wearer, moved, material, wind=0.0):
    """A loose shirt with short sleeves and short trousers, blown a little to one side."""
    joints = standing(moved)
    for side in "lr":
        sleeve(wearer, joints, ("shoulder_" + side, "elbow_" + side), 0.50, (0.066, 0.064), material)
        sleeve(wearer, joints, ("hip_" + side, "knee_" + side), 0.72, (0.100, 0.086), material)
    shirt = shapes.lathe("shirt", [(0.05, 1.50), (0.10, 1.478), (0.155, 1.445), (0.182, 1.395), (0.178, 1.25), (0.165, 1.10), (0.172, 0.96),
                                   (0.195, 0.84), (0.18, 0.84), (0.1, 1.3)], material, steps=48)
    for vertex in shirt.data.vertices:
        low = max(0.0, 1.12 - vertex.co.z) / 0.28
        turn = math.atan2(vertex.co.y, vertex.co.x)
        vertex.co.x = vertex.co.x * (1 + 0.10 * low * math.sin(5 * turn)) + wind * low * low
        vertex.co.y *= 0.66
        vertex.co.z += 0.02 * low * math.sin(4 * turn + 1)
    shirt.parent = wearer


def coat(wearer, material, low=0.72):
    """A loose coat around one who stands, down to a height."""
    profile = [(0.07, 1.50), (0.15, 1.44), (0.185, 1.36), (0.18, 1.20), (0.185, 1.0), (0.20, low + 0.06), (0.205, low),
               (0.19, low), (0.12, 1.3)]
    made = shapes.lathe(wearer.name + " coat", profile, material, steps=40)
    made.scale = (1.05, 0.72, 1)
    made.parent = wearer
    return made


def long_hair(wearer, material):
    """Hair that falls to the shoulders, at the back (+y)."""
    made = shapes.lathe(wearer.name + " hair", [(0, 1.775), (0.07, 1.76), (0.115, 1.68), (0.125, 1.58), (0.135, 1.46),
                                                (0.10, 1.42), (0, 1.46)],
                        material, steps=32)
    made.location.y = 0.03
    made.parent = wearer
    return made
