"""People and animals for silhouettes and for backs: limbs of changing thickness around joints."""
import math

import bpy
from mathutils import Matrix, Vector, noise

import shapes


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


PERSON = [("hips", "waist"), ("waist", "chest"), ("chest", "neck"), ("neck", "chin"),
          ("chest", "shoulder_l"), ("shoulder_l", "elbow_l"), ("elbow_l", "wrist_l"),
          ("chest", "shoulder_r"), ("shoulder_r", "elbow_r"), ("elbow_r", "wrist_r"),
          ("hips", "hip_l"), ("hip_l", "knee_l"), ("knee_l", "calf_l"), ("calf_l", "ankle_l"),
          ("hips", "hip_r"), ("hip_r", "knee_r"), ("knee_r", "calf_r"), ("calf_r", "ankle_r")]

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


def person(name, material, moved=None, slim=1.0):
    """A grown person who faces -y, 1.78 m tall, feet at 0; `moved` gives joints another place (x, y, z)."""
    joints = {}
    for joint, (x, y, z, thick) in STANDING.items():
        thick = tuple(t * slim for t in thick) if isinstance(thick, tuple) else thick * slim
        joints[joint] = (*(moved or {}).get(joint, (x, y, z)), thick)
    for side in "lr":
        knee, ankle = Vector(joints["knee_" + side][:3]), Vector(joints["ankle_" + side][:3])
        joints["calf_" + side] = (*(knee.lerp(ankle, 0.32) + Vector((0, 0.012, 0))), 0.060 * slim)
    made = body(name, {joint: at for joint, at in joints.items() if joint[:4] not in ("hand", "toe_", "crow")}, PERSON,
                material)
    for part in [head(joints, material)] + [part for side in "lr" for part in (hand(joints, side, material),
                                                                               shoe(joints, side, material))]:
        part.parent = made
    return made


def head(joints, material):
    """A head with short hair that stands off a little."""
    middle = (Vector(joints["chin"][:3]) + Vector(joints["crown"][:3])) / 2 + Vector((0, 0, 0.02))
    made = shapes.ball("head", 0.105, material, middle, 4)
    made.scale = (0.80, 0.98, 1.20)
    for vertex in made.data.vertices:
        up = max(0.0, vertex.co.z / 0.105)
        tuft = noise.noise(vertex.co * 38 + middle * 9)
        vertex.co *= 1 + 0.10 * up + 0.09 * up * tuft
    return made


def along(made, place, way, turn=0.0):
    """Turns a thing whose length is z into a way, at a place."""
    turned = Vector(way).to_track_quat("Z", "Y").to_matrix().to_4x4()
    made.matrix_world = Matrix.Translation(place) @ turned @ Matrix.Rotation(turn, 4, "Z")
    return made


def hand(joints, side, material):
    """An open hand from the wrist on, fingers a little spread."""
    bones, places = [("wrist", "palm")], {"wrist": (0, 0, -0.01, 0.025), "palm": (0, 0, 0.055, (0.036, 0.016)),
                                          "thumb": (-0.046, 0, 0.075, 0.012), "tip": (-0.070, 0, 0.112, 0.009)}
    bones += [("palm", "thumb"), ("thumb", "tip")]
    for k, (aside, long) in enumerate(FINGERS):
        places[f"knuckle_{k}"], places[f"tip_{k}"] = (aside, 0, 0.098, 0.0115), (aside * 1.65, 0, 0.098 + long, 0.008)
        bones += [("palm", f"knuckle_{k}"), (f"knuckle_{k}", f"tip_{k}")]
    wrist, end = Vector(joints["wrist_" + side][:3]), Vector(joints["hand_" + side][:3])
    made = body("hand", places, bones, material)
    made.data.transform(Matrix.Scale(1.12, 4))
    return along(made, wrist, end - wrist, 0 if side == "r" else math.pi)


def shoe(joints, side, material):
    """A shoe from the heel to the toe."""
    ankle, toe = Vector(joints["ankle_" + side][:3]), Vector(joints["toe_" + side][:3])
    way = toe - ankle
    made = shapes.ball("shoe", 0.5, material, detail=3)
    made.data.transform(Matrix.Diagonal((0.088, 0.085, 0.285, 1)))
    return along(made, ankle + way * 0.42, way)


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
    joints = {joint: (moved or {}).get(joint, at[:3]) for joint, at in STANDING.items()}
    for side in "lr":
        sleeve(wearer, joints, ("shoulder_" + side, "elbow_" + side), 0.55, (0.064, 0.066), material)
        sleeve(wearer, joints, ("hip_" + side, "knee_" + side), 0.72, (0.104, 0.090), material)
    shirt = shapes.lathe("shirt", [(0.05, 1.50), (0.13, 1.46), (0.185, 1.40), (0.185, 1.25), (0.165, 1.10), (0.172, 0.96),
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
