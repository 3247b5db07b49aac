"""What all scenes share: a clean stage, camera, sky, meshes and many instances of them.

A scene is a file of its own, named as its photo without the number. It has FORMAT, "landscape" or "portrait", and
`build()`, which sets the scene up (1 unit = 1 m, z up, the camera looks along y where nothing else is said) and returns
the film it is taken on: `film.Roll`.
"""
import math

import bpy
import numpy
from mathutils import Vector

from nodes import Nodes


def clear_stage():
    """An empty scene for Cycles on the processor."""
    bpy.ops.wm.read_factory_settings(use_empty=True)
    scene = bpy.context.scene
    scene.render.engine = "CYCLES"
    cycles = scene.cycles
    cycles.device = "CPU"
    cycles.diffuse_bounces, cycles.glossy_bounces = 2, 3
    cycles.transmission_bounces, cycles.transparent_max_bounces = 6, 12
    cycles.caustics_reflective = cycles.caustics_refractive = False
    cycles.sample_clamp_indirect = 6
    scene.view_settings.view_transform = "Filmic"


def camera(place, target, lens=35, focus=None, f_stop=None):
    """A camera for 36 mm film. Focus: the distance that is sharp, or a place in the sharp plane; without f_stop all is."""
    data = bpy.data.cameras.new("camera")
    held = bpy.data.objects.new("camera", data)
    bpy.context.collection.objects.link(held)
    held.location = place
    held.rotation_euler = (Vector(target) - Vector(place)).to_track_quat("-Z", "Y").to_euler()
    data.lens, data.clip_start, data.clip_end = lens, 0.01, 100000
    if f_stop:
        far = focus if isinstance(focus, (int, float)) else (Vector(focus or target) - Vector(place)).dot((Vector(target) - Vector(place)).normalized())
        data.dof.use_dof, data.dof.focus_distance, data.dof.aperture_fstop = True, far, f_stop
        data.dof.aperture_blades = 9
    bpy.context.scene.camera = held
    return held


def world():
    made = bpy.data.worlds.new("world")
    bpy.context.scene.world = made
    made.use_nodes = True
    return Nodes(made.node_tree)


def daylight(elevation, turn, strength=0.2, dust=1.0, air=1.0, ozone=1.0, sun_size=0.545, sun=1.0, low=None, clouds=None):
    """The sky of a sun that stands `elevation` degrees high, `turn` degrees to the right of y (180: behind the camera).
    Low, (colour, height), is the haze over the horizon, in the units of the sky, up to that height of a ray of length 1.
    Clouds: a dict for `cloud_cover`."""
    nodes = world()
    sky = nodes.add("ShaderNodeTexSky", _sky_type="NISHITA", _sun_elevation=math.radians(elevation),
                    _sun_rotation=math.radians(turn), _sun_size=math.radians(sun_size), _sun_intensity=sun,
                    _dust_density=dust, _air_density=air, _ozone_density=ozone).outputs[0]
    if low:
        height = nodes.add("ShaderNodeSeparateXYZ", nodes.place("Generated")).outputs[2]
        sky = nodes.mix(nodes.rise(height, low[1], 0.0), sky, low[0])
    if clouds:
        sky = cloud_cover(nodes, sky, **clouds)
    nodes.add("ShaderNodeOutputWorld", nodes.add("ShaderNodeBackground", sky, strength))


def cloud_cover(nodes, sky, low=0.5, high=0.75, scale=1.0, light=(1, 1, 1), shade=(0.6, 0.65, 0.75), seed=0.0, thick=1.0,
                stretch=(1.0, 1.0)):
    """Clouds on a plane over the land: none below `low` of their noise, thick above `high`. `light` and `shade` are in the
    units of the sky."""
    ray = nodes.place("Generated")
    apart = nodes.add("ShaderNodeSeparateXYZ", ray)
    height = nodes.math("MAXIMUM", apart.outputs[2], 0.0)
    lift = nodes.math("ADD", height, 0.09)
    x = nodes.math("MULTIPLY", nodes.math("DIVIDE", apart.outputs[0], lift), stretch[0])
    y = nodes.math("MULTIPLY", nodes.math("DIVIDE", apart.outputs[1], lift), stretch[1])
    flat = nodes.add("ShaderNodeCombineXYZ", x, y, seed)
    form = nodes.noise(flat, scale, detail=9.0, roughness=0.56, distortion=0.25)
    cover = nodes.math("MULTIPLY", nodes.rise(form, low, high), nodes.rise(apart.outputs[2], 0.0, 0.06))
    belly = nodes.rise(form, low + 0.3 * (high - low), high + 0.25)
    return nodes.mix(nodes.math("MULTIPLY", cover, thick), sky, nodes.mix(belly, light, shade))


def mesh_object(name, points, faces, made_of=None, smooth=True):
    """An object of points (n x 3) and faces of equal numbers of corners (m x k), or of a list of any."""
    mesh = bpy.data.meshes.new(name)
    if isinstance(faces, numpy.ndarray):
        corners = faces.shape[1]
        mesh.vertices.add(len(points))
        mesh.vertices.foreach_set("co", numpy.asarray(points, dtype=numpy.float32).ravel())
        mesh.loops.add(faces.size)
        mesh.loops.foreach_set("vertex_index", faces.ravel().astype(numpy.int32))
        mesh.polygons.add(len(faces))
        mesh.polygons.foreach_set("loop_start", numpy.arange(0, faces.size, corners, dtype=numpy.int32))
        mesh.polygons.foreach_set("loop_total", numpy.full(len(faces), corners, dtype=numpy.int32))
        mesh.update(calc_edges=True)
    else:
        mesh.from_pydata([tuple(point) for point in points], [], faces)
    mesh.polygons.foreach_set("use_smooth", numpy.full(len(mesh.polygons), smooth))
    if made_of:
        mesh.materials.append(made_of)
    made = bpy.data.objects.new(name, mesh)
    bpy.context.collection.objects.link(made)
    return made


def sheet(name, points, made_of=None, closed=False):
    """An object of a raster of points (rows x columns x 3); closed joins the last column to the first."""
    rows, columns = points.shape[:2]
    index = numpy.arange(rows * columns).reshape(rows, columns)
    if closed:
        index = numpy.hstack([index, index[:, :1]])
    faces = numpy.stack([index[:-1, :-1], index[:-1, 1:], index[1:, 1:], index[1:, :-1]], axis=-1).reshape(-1, 4)
    return mesh_object(name, points.reshape(-1, 3), faces, made_of)


def unwrapped(made, places):
    """Gives each point of an object its place (n x 2) in a texture: the "UV" of its material."""
    corners = numpy.empty(len(made.data.loops), dtype=numpy.int32)
    made.data.loops.foreach_get("vertex_index", corners)
    made.data.uv_layers.new(name="places").data.foreach_set("uv", places[corners].astype(numpy.float32).ravel())
    return made


def smooth(points, count=28):
    """A curve through points: cubic pieces between them."""
    points = numpy.asarray(points, dtype=float)
    ends = numpy.vstack([2 * points[0] - points[1], points, 2 * points[-1] - points[-2]])
    where = numpy.linspace(0, len(points) - 1.0001, count)
    n, t = where.astype(int), (where - where.astype(int))[:, None]
    a, b, c, d = ends[n], ends[n + 1], ends[n + 2], ends[n + 3]
    return 0.5 * (2 * b + (c - a) * t + (2 * a - 5 * b + 4 * c - d) * t ** 2 + (3 * b - a - 3 * c + d) * t ** 3)


def limb(line, radii, made_of, sides=16):
    """A tube through points with radii, both as smooth curves."""
    both = smooth([(*place, radius) for place, radius in zip(line, radii)])
    return tube("limb", both[:, :3], numpy.maximum(both[:, 3], 0.004), made_of, sides)


def turned(name, profile, made_of=None, steps=48):
    """A body of revolution around z: profile is (radius, height) pairs from below to above."""
    profile = numpy.asarray(profile, dtype=float)
    angle = numpy.linspace(0, 2 * math.pi, steps, endpoint=False)
    points = numpy.stack([profile[:, :1] * numpy.cos(angle), profile[:, :1] * numpy.sin(angle),
                          numpy.repeat(profile[:, 1:], steps, axis=1)], axis=-1)
    return sheet(name, points, made_of, closed=True)


def tube(name, line, radii, made_of=None, sides=8):
    """A stem along a line of points, round, with a radius at each."""
    line = numpy.asarray(line, dtype=float)
    radii = numpy.broadcast_to(numpy.asarray(radii, dtype=float), len(line))
    along = numpy.gradient(line, axis=0)
    along /= numpy.linalg.norm(along, axis=1, keepdims=True)
    aside = numpy.cross(along, [0.31, 0.17, 0.94] if abs(along[:, 2]).mean() < 0.8 else [0.97, 0.13, 0.05])
    aside /= numpy.linalg.norm(aside, axis=1, keepdims=True)
    other = numpy.cross(along, aside)
    angle = numpy.linspace(0, 2 * math.pi, sides, endpoint=False)[None, :, None]
    points = line[:, None] + radii[:, None, None] * (aside[:, None] * numpy.cos(angle) + other[:, None] * numpy.sin(angle))
    return sheet(name, points, made_of, closed=True)


def joined(name, parts):
    """One object of several."""
    with bpy.context.temp_override(active_object=parts[0], selected_objects=parts, selected_editable_objects=parts):
        bpy.ops.object.join()
    parts[0].name = name
    return parts[0]


def scatter(prototypes, places, turns=None, sizes=None, kinds=None):
    """Many instances: at each place (n x 3) one of the prototypes, which themselves leave the scene, turned by Euler angles
    (n x 3) and scaled. Each instance has a random number for its material."""
    kept = bpy.data.collections.new("prototypes")
    for number, one in enumerate(prototypes):
        one.name = f"{number:03}_{one.name}"
        if one.name in bpy.context.collection.objects:  # not there: an earlier scatter has it as well
            bpy.context.collection.objects.unlink(one)
        kept.objects.link(one)
    count = len(places)
    mesh = bpy.data.meshes.new("places")
    mesh.vertices.add(count)
    mesh.vertices.foreach_set("co", numpy.asarray(places, dtype=numpy.float32).ravel())
    turns = numpy.zeros((count, 3)) if turns is None else turns
    sizes = numpy.ones(count) if sizes is None else sizes
    kinds = numpy.arange(count) % len(prototypes) if kinds is None else kinds
    mesh.attributes.new("turn", "FLOAT_VECTOR", "POINT").data.foreach_set("vector", numpy.asarray(turns, numpy.float32).ravel())
    mesh.attributes.new("size", "FLOAT", "POINT").data.foreach_set("value", numpy.asarray(sizes, numpy.float32))
    mesh.attributes.new("kind", "INT", "POINT").data.foreach_set("value", numpy.asarray(kinds, numpy.int32))
    made = bpy.data.objects.new("scattered", mesh)
    bpy.context.collection.objects.link(made)
    made.modifiers.new("scatter", "NODES").node_group = instance_tree(kept)
    return made


def instance_tree(kept):
    tree = bpy.data.node_groups.new("scatter", "GeometryNodeTree")
    nodes = Nodes(tree)
    tree.inputs.new("NodeSocketGeometry", "Geometry")
    tree.outputs.new("NodeSocketGeometry", "Geometry")
    given = nodes.add("NodeGroupInput")
    field = {name: nodes.add("GeometryNodeInputNamedAttribute", name, _data_type=kind)
             for name, kind in (("turn", "FLOAT_VECTOR"), ("size", "FLOAT"), ("kind", "INT"))}
    plants = nodes.add("GeometryNodeCollectionInfo", kept, True, True)
    made = nodes.add("GeometryNodeInstanceOnPoints", Points=given.outputs[0], Instance=plants.outputs[0], Pick_Instance=True,
                     Instance_Index=field["kind"], Rotation=field["turn"], Scale=field["size"])
    nodes.add("NodeGroupOutput", made.outputs[0])
    return tree


def random_turns(chance, count, lean=0.0):
    """Any direction around z, and up to `lean` radians off it."""
    return numpy.column_stack([chance.uniform(-lean, lean, count), chance.uniform(-lean, lean, count),
                               chance.uniform(0, 2 * math.pi, count)])
