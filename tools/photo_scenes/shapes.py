"""Shapes of the rendered sample photos: meshes from profiles, paths and heights."""
import math
import random

import bpy


def mesh(name, points, faces, material=None, smooth=True):
    """An object from points and faces, in the scene."""
    data = bpy.data.meshes.new(name)
    data.from_pydata([tuple(p) for p in points], [], faces)
    data.update()
    for polygon in data.polygons:
        polygon.use_smooth = smooth
    return put(name, data, material)


def put(name, data, material=None):
    """An object of a mesh or curve, in the scene."""
    made = bpy.data.objects.new(name, data)
    bpy.context.scene.collection.objects.link(made)
    if material:
        data.materials.append(material)
    return made


def net(name, points, around, material=None):
    """A closed net: points row by row, `around` of them in each; faces look outward where rows rise and points turn left."""
    rows = len(points) // around - 1
    corners = [(row * around + k, row * around + (k + 1) % around) for row in range(rows) for k in range(around)]
    return mesh(name, points, [(a, a + around, b + around, b) for a, b in corners], material)


def ridge(line, foot, material):
    """Hills as their outline: a sheet from a line of points down to the height `foot`."""
    count = len(line)
    points = line + [(x, y, foot) for x, y, _ in line]
    return mesh("hill", points, [(i, i + 1, count + i + 1, count + i) for i in range(count - 1)], material)


def lathe(name, profile, material=None, steps=96, finer=1):
    """Turns a profile of (radius, height) about the z axis; a radius of 0 closes an end."""
    points, faces, count = [], [], len(profile)
    for step in range(steps):
        angle = 2 * math.pi * step / steps
        points += [(r * math.cos(angle), r * math.sin(angle), z) for r, z in profile]
    for step in range(steps):
        here, there = step * count, (step + 1) % steps * count
        faces += [(here + i, there + i, there + i + 1, here + i + 1) for i in range(count - 1)]
    made = mesh(name, points, faces, material)
    weld(made)
    if finer:
        subdivided(made, finer)
    return made


def weld(thing, distance=1e-5, closed=False):
    """Joins points that lie on one another, turns all faces outward, and may put a lid on what is open."""
    import bmesh
    work = bmesh.new()
    work.from_mesh(thing.data)
    bmesh.ops.remove_doubles(work, verts=work.verts, dist=distance)
    if closed:
        bmesh.ops.holes_fill(work, edges=work.edges)
    bmesh.ops.recalc_face_normals(work, faces=work.faces)
    work.to_mesh(thing.data)
    work.free()


def subdivided(thing, levels):
    """Rounds a thing by subdivision."""
    finer = thing.modifiers.new("finer", "SUBSURF")
    finer.levels = finer.render_levels = levels
    return thing


def box(name, size, material=None, edge=0.0, at=(0, 0, 0)):
    """A box about its middle, with edges rounded by `edge`."""
    x, y, z = (s / 2 for s in size)
    points = [(a, b, c) for a in (-x, x) for b in (-y, y) for c in (-z, z)]
    faces = [(0, 1, 3, 2), (4, 6, 7, 5), (0, 4, 5, 1), (2, 3, 7, 6), (0, 2, 6, 4), (1, 5, 7, 3)]
    made = mesh(name, points, faces, material, smooth=False)
    made.location = at
    if edge:
        rounded(made, edge)
    return made


def rounded(thing, edge, segments=3):
    """Rounds the edges of a thing."""
    bevel = thing.modifiers.new("edge", "BEVEL")
    bevel.width, bevel.segments = edge, segments
    for polygon in thing.data.polygons:
        polygon.use_smooth = True
    thing.data.use_auto_smooth = True
    return thing


def ball(name, radius, material=None, at=(0, 0, 0), detail=4):
    """A ball of even triangles."""
    import bmesh
    data = bpy.data.meshes.new(name)
    work = bmesh.new()
    bmesh.ops.create_icosphere(work, subdivisions=detail, radius=radius)
    work.to_mesh(data)
    work.free()
    for polygon in data.polygons:
        polygon.use_smooth = True
    made = put(name, data, material)
    made.location = at
    return made


def tube(name, points, radius, material=None, closed=False, radii=None):
    """A round tube along points; `radii` are shares of the radius at each."""
    data = bpy.data.curves.new(name, "CURVE")
    data.dimensions = "3D"
    data.bevel_depth, data.bevel_resolution = radius, 3
    data.use_fill_caps = True
    line = data.splines.new("POLY")
    line.points.add(len(points) - 1)
    for i, point in enumerate(points):
        line.points[i].co = (*point, 1)
        line.points[i].radius = radii[i] if radii else 1
    line.use_cyclic_u = closed
    line.use_smooth = True
    return put(name, data, material)


def sheet(name, size, counts, height, material=None):
    """A sheet about the origin whose height at (x, y) is height(x, y)."""
    (wide, deep), (columns, rows) = size, counts
    points = []
    for j in range(rows + 1):
        for i in range(columns + 1):
            x, y = (i / columns - 0.5) * wide, (j / rows - 0.5) * deep
            points.append((x, y, height(x, y)))
    line = columns + 1
    faces = [(j * line + i, j * line + i + 1, (j + 1) * line + i + 1, (j + 1) * line + i)
             for j in range(rows) for i in range(columns)]
    return mesh(name, points, faces, material)


def wrinkled(thing, strength, size, kind="CLOUDS"):
    """Displaces a thing by noise of its own coordinates."""
    texture = bpy.data.textures.new(thing.name, kind)
    texture.noise_scale = size
    moved = thing.modifiers.new("wrinkles", "DISPLACE")
    moved.texture, moved.strength, moved.texture_coords = texture, strength, "LOCAL"
    return thing


def baked(thing):
    """Makes the modifiers part of the mesh, so that copies share it."""
    data = bpy.data.meshes.new_from_object(thing.evaluated_get(bpy.context.evaluated_depsgraph_get()))
    thing.modifiers.clear()
    thing.data = data
    return thing


def copy(thing, at, turn=(0, 0, 0), scale=1.0):
    """The same thing once more, elsewhere; the mesh is shared."""
    if thing.modifiers:
        baked(thing)
    made = thing.copy()
    bpy.context.scene.collection.objects.link(made)
    made.location, made.rotation_euler = at, turn
    made.scale = (scale,) * 3 if isinstance(scale, (int, float)) else scale
    return made


def gone(thing):
    """Hides the pattern of copies."""
    thing.hide_render = True
    return thing


def parent(things, name="group"):
    """One handle for several things."""
    handle = bpy.data.objects.new(name, None)
    bpy.context.scene.collection.objects.link(handle)
    for thing in things:
        thing.parent = handle
    return handle


def hair(thing, count, length, material, seed=1, **settings):
    """Grows strands on a thing (grass, needles, fur); settings are those of the particles."""
    thing.data.materials.append(material)
    thing.modifiers.new("hair", "PARTICLE_SYSTEM")
    system = thing.particle_systems[-1]
    system.seed = seed
    strands = system.settings
    strands.type, strands.count, strands.hair_length = "HAIR", count, length
    strands.material = len(thing.data.materials)
    strands.use_advanced_hair = True
    for name, value in settings.items():
        setattr(strands, name, value)
    return strands


def leaf(name, length, width, material, bend=0.3, fold=0.25):
    """A pointed leaf along x, folded along its rib and bent down."""
    def height(x, y):
        along = x / length + 0.5
        return fold * abs(y) - bend * along * along * length
    made = sheet(name, (length, width), (16, 8), height, material)
    for vertex in made.data.vertices:
        along = min(max(vertex.co.x / length + 0.5, 0), 1)
        vertex.co.y *= math.sin(math.pi * along ** 0.8) ** 0.8
    return subdivided(made, 1)


def dice(seed):
    """Our own random numbers, the same each time."""
    return random.Random(seed)


def planks(material, across, long, count, thick=0.03, gap=0.004):
    """A board of planks along x, top at 0, middle at the origin."""
    wide = across / count
    made = []
    for i in range(count):
        plank = box("plank", (long, wide - gap, thick), material, 0.003,
                    (0.02 * (i % 3), (i + 0.5) * wide - across / 2, -thick / 2))
        made.append(plank)
    return made
