"""A football in the wet grass of an evening pitch, seen from the ground; the lights of the stand out of focus."""
from math import atan2, sqrt

import bmesh
import bpy
from mathutils import Vector

import materials as m
import shapes as s
from common import camera
from film import Roll

FORMAT = "landscape"
RADIUS = 0.11


def panels():
    """The twelve pentagons and twenty hexagons of a football, each finely divided: (points, faces, material, edge)."""
    golden = (1 + sqrt(5)) / 2
    corners = [Vector(p).normalized() for a in (-1, 1) for b in (-golden, golden)
               for p in ((0, a, b), (a, b, 0), (b, 0, a))]
    near = [[j for j in range(12) if j != i and (corners[i] - corners[j]).length < 1.06] for i in range(12)]
    found = []
    for i in range(12):
        found.append((ring([corners[i] * 2 / 3 + corners[j] / 3 for j in near[i]]), 1))
        for j in near[i]:
            for k in near[i]:
                if i < j < k and k in near[j]:
                    three = (corners[i], corners[j], corners[k])
                    found.append((ring([a * 2 / 3 + b / 3 for a in three for b in three if a is not b]), 0))
    return found


def ring(points):
    """The points in their order about their middle."""
    middle = sum(points, Vector()) / len(points)
    first = (points[0] - middle).normalized()
    second = middle.normalized().cross(first)
    return sorted(points, key=lambda p: atan2((p - middle).dot(second), (p - middle).dot(first)))


def leather(name, colour):
    made, nodes, shader = m.principled(name, colour, 0.33, Clearcoat=0.25, Clearcoat_Roughness=0.2)
    where = nodes.place()
    grain = m.voronoi(nodes, where, 520.0)
    dirt = nodes.noise(where, 26.0, distortion=0.6)
    worn = m.ramp(nodes, dirt, (0.5, 0.0), (0.72, 1.0))
    m.feed(nodes, shader, Normal=m.relief(nodes, grain, 0.0004, 0.5),
           Base_Color=nodes.mix(nodes.math("MULTIPLY", worn, 0.35), m.rgb(colour), m.rgb("6b6a48")))
    return made


def football():
    """Panels puffed up between their seams."""
    work = bmesh.new()
    for outline, kind in panels():
        middle = sum(outline, Vector()) / len(outline)
        grid = fan(middle, outline, 9)
        made = [[work.verts.new(puffed(p, edge)) for p, edge in row] for row in grid]
        for a, b in zip(made, made[1:]):
            join(work, a, b, len(outline), kind)
    data = bpy.data.meshes.new("football")
    work.to_mesh(data)
    work.free()
    for polygon in data.polygons:
        polygon.use_smooth = True
    thing = s.put("football", data, leather("white", "e9e9e4"))
    data.materials.append(leather("black", "15161a"))
    s.weld(thing, 1e-6)
    return s.subdivided(thing, 1)


def fan(middle, outline, steps):
    """Rows of points from the middle outward; with each, how near the edge it is (0 middle, 1 edge)."""
    rows = [[(middle, 0.0)]]
    for step in range(1, steps + 1):
        share = 1 - (1 - step / steps) ** 1.7
        row = []
        for a, b in zip(outline, outline[1:] + outline[:1]):
            row += [(middle.lerp(a.lerp(b, i / step), share), share) for i in range(step)]
        rows.append(row)
    return rows


def puffed(point, edge):
    seam = max(0.0, (edge - 0.86) / 0.14)
    return point.normalized() * RADIUS * (1 - 0.028 * seam ** 2.2)


def join(work, inner, outer, sides, kind):
    """Triangles between two rings of a fan."""
    few, many = len(inner) // sides if len(inner) > 1 else 0, len(outer) // sides
    for side in range(sides):
        for i in range(many):
            low = inner[(side * few + min(i, few)) % len(inner)] if few else inner[0]
            face(work, (outer[side * many + i], outer[(side * many + i + 1) % len(outer)], low), kind)
            if few and i < few:
                face(work, (inner[side * few + i], outer[(side * many + i + 1) % len(outer)],
                            inner[(side * few + i + 1) % len(inner)]), kind)


def face(work, corners, kind):
    if len(set(corners)) == 3:
        work.faces.new(corners).material_index = kind


def blades():
    made, nodes, shader = m.principled("grass", "3f7d1e", 0.45, Specular=0.4)
    tone = nodes.add("ShaderNodeHairInfo")
    colour = m.ramp(nodes, tone.outputs["Random"], (0.0, "2c5c14"), (0.6, "5f9a2c"), (0.93, "a2cb55"), (1.0, "cfc27a"))
    root = m.ramp(nodes, tone.outputs["Intercept"], (0.0, 0.25), (0.6, 1.0))
    m.feed(nodes, shader, Base_Color=nodes.mix(1.0, colour, root, "MULTIPLY"))
    return made


def turf(name, size, middle, count, length):
    """A patch of lawn."""
    made = s.sheet(name, size, (20, 20), lambda x, y: 0.0, m.plain("earth", "2a3514", 0.9))
    made.location = (*middle, 0)
    s.hair(made, count, length, blades(), seed=3, brownian_factor=0.012, root_radius=0.9, tip_radius=0.12,
           radius_scale=0.0034,
           length_random=0.65, use_rotations=False, normal_factor=0.02, factor_random=0.012, display_step=2, render_step=3,
           child_type="NONE", hair_step=3)
    return made


def lights():
    """The floodlights, the boards at the far side and the stand behind, all far out of focus."""
    white = m.glow("flood", "fff4dc", 90)
    for x in (-13, -4.5, 6, 15):
        for i in range(5):
            s.box("flood", (0.45, 0.1, 0.45), white, at=(x + 0.65 * (i - 2), 38, 8.6 + 0.7 * (i % 2)))
    dice = s.dice(12)
    stand = m.plain("stand", "252b3a", 0.9)
    s.box("stand", (70, 4, 7), stand, at=(0, 36, 3.6))
    colours = [m.plain("shirt", tone, 0.8) for tone in ("b03030", "d8d8d8", "2c4fa0", "c9a86a", "7a2230", "3a3a44", "d9b03c")]
    for _ in range(900):
        s.box("guest", (0.4, 0.3, 0.6), dice.choice(colours), at=(dice.uniform(-24, 24), 33.6, dice.uniform(1.6, 7.0)))
    for i, tone in enumerate(("e8e8ee", "d23a2e", "f2c53a", "2f66c8", "ececf2", "2f8a50")):
        s.box("board", (7.6, 0.1, 0.95), m.plain("board", tone, 0.4, Emission=m.rgb(tone) + (1,), Emission_Strength=0.25),
              at=(-20 + 8 * i, 31, 0.5))


def goal():
    white = m.plain("post", "f2f2f2", 0.3)
    for a, b in (((-2.2, 12, 0), (-2.2, 12, 2.44)), ((5.12, 12, 0), (5.12, 12, 2.44)), ((-2.2, 12, 2.44), (5.12, 12, 2.44))):
        s.tube("post", [a, b], 0.06, white)


def build():
    ball = football()
    ball.location = (-0.16, 0, RADIUS - 0.006)
    ball.rotation_euler = (0.5, 0.25, 0.9)
    s.sheet("pitch", (60, 60), (2, 2), lambda x, y: -0.004, m.plain("pitch", "33681c", 0.9)).location = (0, 25, 0)
    turf("near", (1.5, 1.5), (0, 0.15), 26000, 0.034)
    turf("far", (5.0, 5.5), (0, 3.6), 45000, 0.036)
    lights()
    goal()
    m.ambient((0.16, 0.24, 0.42), 0.7)
    m.lamp("AREA", (-5, 3.5, 4.5), (0, 0, 0.1), 900, (1.0, 0.95, 0.85), size=0.9)
    m.lamp("AREA", (5, 6, 5), (0, 0, 0.1), 700, (1.0, 0.96, 0.9), size=0.9)
    m.lamp("AREA", (-3.5, -3.5, 3.5), (0, 0, 0.1), 420, (1.0, 0.96, 0.9), size=0.7)
    camera((0.10, -1.02, 0.16), (0.02, 0, 0.185), 58, (-0.16, -0.10, 0.11), 2.4)
    return Roll(samples=18, exposure=0.2)
