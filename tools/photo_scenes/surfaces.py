"""Surfaces that several scenes share."""
import numpy

from common import sheet, unwrapped
from nodes import material, no_lamp, surface


def water(deep=(0.004, 0.022, 0.035), ripple=0.25, fine=2.0, roughness=0.06, haze=None):
    """Open water: the depth's own colour below a mirror, with ripples too small for the mesh. They fade with distance into
    roughness, as they do to the eye."""
    made, nodes = material("water")
    place = nodes.place()
    far = nodes.add("ShaderNodeCameraData").outputs["View Distance"]
    near = nodes.math("DIVIDE", 1.0, nodes.math("ADD", 1.0, nodes.math("DIVIDE", far, 60.0)))
    coarse = nodes.noise(place, fine * 0.35, detail=4.0)
    small = nodes.noise(place, fine * 2.2, detail=5.0, roughness=0.6)
    height = nodes.math("ADD", coarse, nodes.math("MULTIPLY", small, 0.35))
    normal = nodes.bump(height, nodes.math("MULTIPLY_ADD", near, ripple, 0.15 * ripple), 0.4 / fine)
    rough = nodes.math("MULTIPLY_ADD", nodes.rise(far, 20.0, 1500.0), 0.16, roughness)
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=deep, Roughness=rough, IOR=1.33, Specular=0.5, Normal=normal), haze)
    return made


def bark(colour=(0.11, 0.075, 0.05), other=(0.22, 0.17, 0.13), scale=6.0, haze=None):
    made, nodes = material("bark")
    place = nodes.place()
    long = nodes.vector("MULTIPLY", place, (1.0, 1.0, 0.18))
    form = nodes.noise(long, scale, detail=8.0, roughness=0.65)
    normal = nodes.bump(form, 0.8, 0.06)
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=nodes.mix(form, colour, other), Roughness=0.9, Specular=0.1,
                             Normal=normal), haze)
    return made


def soil(dark, light, scale=3.0, rough=0.9, bump=0.6, haze=None):
    """Earth, sand, rock: two tones and grain."""
    made, nodes = material("soil")
    place = nodes.place()
    form = nodes.noise(place, scale, detail=10.0, roughness=0.62)
    normal = nodes.bump(form, bump, 0.3 / scale)
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=nodes.ramp(form, (0.3, dark), (0.7, light)), Roughness=rough,
                             Specular=0.15, Normal=normal), haze)
    return made


def glowing(colour, strength):
    """A lamp."""
    made, nodes = material("glowing")
    surface(nodes, nodes.add("ShaderNodeEmission", colour, strength))
    return made


def puff(place, wide, tall, level, light):
    """Spray or dust in the air: an upright sheet across y, thickest in its middle, as wide and tall to either side; level
    is how much of what lies behind it hides there."""
    made, nodes = material("puff")
    no_lamp(nodes)
    spot = nodes.place("UV")
    off = nodes.vector("LENGTH", nodes.vector("SUBTRACT", nodes.vector("MULTIPLY", spot, (2, 2, 0)), (1, 1, 0)))
    cloud = nodes.noise(nodes.vector("ADD", nodes.vector("MULTIPLY", spot, (2.5, 2.5, 0)), place), 1.0, detail=5.0)
    share = nodes.math("MULTIPLY", nodes.math("MULTIPLY", nodes.rise(off, 1.0, 0.0), nodes.rise(cloud, 0.2, 0.75)), level)
    glow = nodes.add("ShaderNodeEmission", light, 1.0)
    surface(nodes, nodes.add("ShaderNodeMixShader", share, nodes.add("ShaderNodeBsdfTransparent"), glow))
    corners = numpy.array([[(x, 0, z) for x in (-wide, wide)] for z in (-tall, tall)]) + place
    unwrapped(sheet("puff", corners, made), numpy.array([(0, 0), (1, 0), (0, 1), (1, 1)])).visible_shadow = False
