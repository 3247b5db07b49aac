"""What things are made of: a principled surface with a few words, wood, emission; and the lamps that light them."""
import math

import bpy
from mathutils import Vector

from nodes import material, no_lamp, surface


def rgb(text):
    """A linear colour from "rrggbb" as a screen shows it."""
    levels = [int(text[i:i + 2], 16) / 255 for i in (0, 2, 4)]
    return tuple(x / 12.92 if x < 0.04045 else ((x + 0.055) / 1.055) ** 2.4 for x in levels)


def principled(name, colour, rough=0.5, **inputs):
    """A material of one principled shader, a colour as rgb() takes it: (material, nodes, shader). More inputs by name,
    with underlines for blanks."""
    made, nodes = material(name)
    shader = nodes.add("ShaderNodeBsdfPrincipled", Base_Color=rgb(colour), Roughness=rough, **inputs)
    surface(nodes, shader)
    return made, nodes, shader


def plain(name, colour, rough=0.5, **inputs):
    """Only the material of principled()."""
    return principled(name, colour, rough, **inputs)[0]


def feed(nodes, shader, **inputs):
    """Feeds inputs of a shader that exists already."""
    for name, value in inputs.items():
        nodes.put(shader.inputs[name.replace("_", " ")], value)


def glow(name, colour, strength):
    """A surface that shines by itself."""
    made, nodes = material(name)
    surface(nodes, nodes.add("ShaderNodeEmission", rgb(colour), strength))
    return made


def ramp(nodes, factor, *stops):
    """Colours along a factor: stops are (level, "rrggbb" or a grey level)."""
    return nodes.ramp(factor, *((level, rgb(colour) if isinstance(colour, str) else colour) for level, colour in stops))


def stretched(nodes, factors, kind="Object"):
    """Coordinates of the object, each axis times its factor."""
    return nodes.vector("MULTIPLY", nodes.place(kind), factors)


def where_in_world(nodes):
    """The place of a point in the world, whatever it is part of, and its height."""
    place = nodes.add("ShaderNodeNewGeometry").outputs["Position"]
    return place, nodes.add("ShaderNodeSeparateXYZ", place).outputs[2]


def relief(nodes, height, distance, strength=1.0):
    """A normal that makes a height felt; distance in metres of a height of 1."""
    return nodes.bump(height, strength, distance)


def voronoi(nodes, where, scale, feature="F1", output="Distance"):
    return nodes.add("ShaderNodeTexVoronoi", Vector=where, Scale=scale, _feature=feature).outputs[output]


def waves(nodes, where, scale, distortion=0.0, direction="X", detail=2.0):
    return nodes.add("ShaderNodeTexWave", Vector=where, Scale=scale, Distortion=distortion, Detail=detail,
                     _bands_direction=direction).outputs["Fac"]


def wood(name, dark, middle, light, rough=0.45, scale=1.0):
    """Planed wood whose grain runs along the x axis of the object; every object has its own cut of it."""
    made, nodes, shader = principled(name, "808080", rough)
    apart = nodes.math("MULTIPLY", nodes.chance(), 50.0)
    where = nodes.vector("ADD", stretched(nodes, (0.35 * scale, 3 * scale, 3 * scale)),
                         nodes.add("ShaderNodeCombineXYZ", apart, apart, apart))
    rings = nodes.noise(where, 2.2, detail=3.0, distortion=1.2)
    lines = nodes.noise(nodes.vector("MULTIPLY", where, (0.55, 7.0, 7.0)), 1.6, detail=9.0, roughness=0.68, distortion=0.35)
    pores = nodes.noise(nodes.vector("MULTIPLY", where, (2, 26, 26)), 3.0, detail=3.0)
    tone = nodes.math("ADD", nodes.math("MULTIPLY", rings, 0.40), nodes.math("MULTIPLY", lines, 0.55))
    tone = nodes.math("MULTIPLY_ADD", nodes.math("SUBTRACT", pores, 0.5), 0.55, tone)
    tone = nodes.math("MULTIPLY_ADD", nodes.math("SUBTRACT", nodes.chance(), 0.5), 0.22, tone)
    feed(nodes, shader, Base_Color=ramp(nodes, tone, (0.18, dark), (0.45, middle), (0.78, light)),
         Roughness=nodes.math("MULTIPLY_ADD", pores, 0.25, rough - 0.12), Normal=relief(nodes, tone, 0.0015 / scale))
    return made


def ambient(colour, strength):
    """Even light from all around."""
    made = bpy.data.worlds.new("ambient")
    bpy.context.scene.world = made
    made.use_nodes = True
    shader = made.node_tree.nodes["Background"]
    shader.inputs[0].default_value, shader.inputs[1].default_value = (*colour, 1), strength


def lamp(kind, place, target, power, colour=(1, 1, 1), **settings):
    """A lamp ("AREA", "SPOT", "POINT", "SUN") that shines from a place to a target and is itself out of the picture."""
    data = bpy.data.lights.new("lamp", kind)
    data.energy, data.color = power, colour
    for name, value in settings.items():
        setattr(data, name, value)
    made = bpy.data.objects.new("lamp", data)
    bpy.context.collection.objects.link(made)
    made.location = place
    made.rotation_euler = (Vector(target) - Vector(place)).to_track_quat("-Z", "Y").to_euler()
    made.visible_camera = False
    return made


def window_light(place, target, size, power, colour=(1.0, 0.94, 0.85)):
    """The soft light of a window, square."""
    return lamp("AREA", place, target, power, colour, size=size)


def degrees(*angles):
    return tuple(math.radians(angle) for angle in angles)
