"""Sailing boats on a fresh wind against the light: sails glow, the sea glitters, foam at the bows."""
import math

import numpy

from common import camera, daylight, joined, limb, tube, turned
from film import Roll
from growth import Soup
from land import sea
from nodes import material, plain, surface

FORMAT = "landscape"
AIR = ((0.95, 0.84, 0.68), 5200.0)
BOATS = ((-2.6, 78.0, 104, 17), (12.5, 175.0, 112, 15), (-27.0, 290.0, 99, 14), (39.0, 430.0, 108, 14), (-62.0, 620.0, 104, 13))  # x, y, course, heel


def from_boat(nodes, place, boat):
    """How far a place is ahead of a boat's middle, and how far off its line."""
    x, y, course, _ = boat
    turn = math.radians(course)
    off = nodes.vector("SUBTRACT", place, (x, y, 0.0))
    ahead = nodes.vector("DOT_PRODUCT", off, (-math.sin(turn), math.cos(turn), 0.0))
    return ahead, nodes.math("ABSOLUTE", nodes.vector("DOT_PRODUCT", off, (math.cos(turn), math.sin(turn), 0.0)))


def wake(nodes, place, boat):
    """Where a boat leaves foam: along its side, in two lines that part behind the bow, and behind the stern."""
    ahead, off = from_boat(nodes, place, boat)
    behind = nodes.math("SUBTRACT", 4.4, ahead)
    line = nodes.math("ABSOLUTE", nodes.math("SUBTRACT", off, nodes.math("MULTIPLY_ADD", behind, 0.17, 0.75)))
    arms = nodes.math("MULTIPLY", nodes.rise(line, 0.75, 0.1), nodes.math("MULTIPLY", nodes.rise(behind, -0.6, 0.6), nodes.rise(behind, 15.0, 3.0)))
    stern = nodes.math("MULTIPLY", nodes.rise(off, 1.6, 0.3), nodes.math("MULTIPLY", nodes.rise(behind, 7.5, 10.0), nodes.rise(behind, 34.0, 11.0)))
    return nodes.math("MAXIMUM", arms, stern)


def rough_sea():
    """Dark water full of small waves; foam on crests that break, streaks of old foam along the wind, wakes."""
    made, nodes = material("sea")
    place = nodes.place()
    height = nodes.add("ShaderNodeSeparateXYZ", place).outputs[2]
    far = nodes.add("ShaderNodeCameraData").outputs["View Distance"]
    lace = nodes.noise(place, 1.7, detail=9.0, roughness=0.68, distortion=0.7)
    crest = nodes.math("MULTIPLY", nodes.rise(height, 0.30, 0.62), nodes.rise(nodes.noise(place, 0.12, detail=3.0), 0.50, 0.62))
    old = nodes.math("MULTIPLY", nodes.rise(nodes.noise(nodes.vector("MULTIPLY", place, (0.12, 0.7, 0.3)), 0.5, detail=5.0), 0.60, 0.72), 0.35)
    foam = nodes.math("MAXIMUM", crest, old)
    for boat in BOATS[:3]:
        foam = nodes.math("MAXIMUM", foam, wake(nodes, place, boat))
    foam = nodes.rise(nodes.math("MULTIPLY_ADD", foam, 0.62, lace), 0.80, 0.98)
    ripples = nodes.math("MULTIPLY_ADD", nodes.noise(place, 8.0, detail=5.0, roughness=0.65), 0.35, nodes.noise(place, 1.5, detail=6.0, roughness=0.6))
    near = nodes.math("DIVIDE", 1.0, nodes.math("ADD", 1.0, nodes.math("DIVIDE", far, 90.0)))
    normal = nodes.bump(ripples, nodes.math("MULTIPLY_ADD", near, 0.8, 0.15), 0.32)
    rough = nodes.math("MULTIPLY_ADD", nodes.rise(far, 40.0, 1500.0), 0.14, 0.05)
    sea_ = nodes.add("ShaderNodeBsdfPrincipled", Base_Color=(0.006, 0.020, 0.024), Roughness=rough, IOR=1.33, Normal=normal)
    white = nodes.add("ShaderNodeMixShader", 0.35, nodes.add("ShaderNodeBsdfDiffuse", (0.75, 0.77, 0.78)), nodes.add("ShaderNodeBsdfTranslucent", (0.75, 0.77, 0.78)))
    surface(nodes, nodes.add("ShaderNodeMixShader", foam, sea_, white), AIR)
    return made


def sailcloth():
    """Dacron in panels: seams across, patches and battens that stand dark against the light, old creases."""
    made, nodes = material("cloth")
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place())
    slant = nodes.math("MULTIPLY_ADD", apart.outputs[1], 0.18, apart.outputs[2])
    panel = nodes.math("FRACT", nodes.math("MULTIPLY", slant, 1 / 0.92))
    seam = nodes.math("LESS_THAN", panel, 0.055)
    batten = nodes.math("MULTIPLY", nodes.math("LESS_THAN", nodes.math("FRACT", nodes.math("MULTIPLY", slant, 1 / 2.76)), 0.035), nodes.math("LESS_THAN", apart.outputs[1], -0.2))
    creases = nodes.noise(nodes.vector("MULTIPLY", nodes.place(), (1.0, 1.6, 0.5)), 1.3, detail=6.0, roughness=0.6)
    dark = nodes.math("MAXIMUM", nodes.math("MULTIPLY", seam, 0.28), nodes.math("MULTIPLY", batten, 0.5))
    tone = nodes.mix(dark, nodes.mix(creases, (0.80, 0.77, 0.70), (0.88, 0.86, 0.81)), (0.25, 0.23, 0.2))
    normal = nodes.bump(creases, 0.5, 0.12)
    front = nodes.add("ShaderNodeBsdfDiffuse", tone, Normal=normal)
    surface(nodes, nodes.add("ShaderNodeMixShader", 0.5, front, nodes.add("ShaderNodeBsdfTranslucent", tone, normal)), AIR)
    return made


def hull(paint, deck, long=9.5):
    """Sections from stern to stem, each a curve from one edge of the deck below the keel to the other."""
    soup = Soup()
    t = numpy.linspace(0, 1, 26)
    beam = 1.5 * numpy.sin(math.pi * (0.22 + 0.78 * t)) ** 0.75 * numpy.where(t > 0.97, (1 - t) / 0.03 * 0.9 + 0.1, 1)
    sheer = 0.95 + 0.35 * (t - 0.4) ** 2 * 2
    draft = -0.45 * numpy.sin(math.pi * numpy.clip(t * 0.96 + 0.02, 0, 1)) ** 0.6
    angle = numpy.linspace(-math.pi / 2, math.pi / 2, 15)
    x = beam[:, None] * numpy.sin(angle) / 1.0
    z = sheer[:, None] + (draft - sheer)[:, None] * numpy.cos(angle) ** 0.55
    y = numpy.broadcast_to((t * long - long / 2)[:, None], x.shape) + 0.35 * (z - 0.3) * (t[:, None] > 0.8)
    soup.raster(numpy.stack([x, y, z], axis=-1), 0)
    middle = numpy.array([0, -long / 2, 0.4])
    soup.raster(numpy.stack([numpy.stack([x[0], 0 * x[0] - long / 2, z[0]], axis=-1), numpy.broadcast_to(middle, (15, 3))]), 0)
    across = numpy.linspace(-1, 1, 5)
    soup.raster(numpy.stack([beam[:, None] * across, numpy.broadcast_to((t * long - long / 2)[:, None], (26, 5)),
                             sheer[:, None] + 0.06 * (1 - across ** 2)], axis=-1) - [0, 0, 0.05], 1)
    return soup.made("hull", [paint, deck])


def sail(cloth, tack, head, clew, belly):
    """A triangle of cloth filled by the wind, which blows to the right (+x)."""
    tack, head, clew = (numpy.array(corner, dtype=float) for corner in (tack, head, clew))
    v, u = numpy.meshgrid(numpy.linspace(0, 1, 24), numpy.linspace(0, 1, 16), indexing="ij")
    luff = tack + (head - tack) * v[..., None]
    leech = clew + (head - clew) * v[..., None]
    points = luff + (leech - luff) * u[..., None]
    points[..., 0] += belly * numpy.sin(math.pi * u ** 0.8) * numpy.sin(math.pi * (0.1 + 0.85 * v)) ** 0.7
    points[..., 1] -= 0.35 * numpy.sin(math.pi * v) * u ** 3
    soup = Soup()
    soup.raster(points)
    return soup.made("sail", [cloth])


def rigging(metal):
    """Mast, boom, spreaders, stays, shrouds, guard rails."""
    parts = [tube("mast", [(0, 0.8, 0.8), (0, 0.7, 7), (0, 0.5, 13.4)], 0.07, metal), tube("boom", [(0.05, 0.8, 1.9), (0.9, -4.0, 1.9)], 0.06, metal),
             tube("stay", [(0, 4.7, 1.2), (0, 0.5, 13.3)], 0.014, metal), tube("backstay", [(0, -4.6, 1.1), (0, 0.5, 13.3)], 0.012, metal),
             tube("vane", [(0, 0.5, 13.4), (0, 0.5, 13.9)], 0.012, metal), tube("vane", [(0, 0.2, 13.9), (0, 0.8, 13.9)], 0.012, metal)]
    for side in (-1, 1):
        parts += [tube("shroud", [(1.25 * side, 0.6, 1.0), (0.62 * side, 0.65, 7.2), (0, 0.5, 13.2)], 0.010, metal), tube("spreader", [(0, 0.68, 7.2), (0.62 * side, 0.65, 7.2)], 0.03, metal)]
        rail = [(side * 1.42 * (1 - max(0, (y - 0.8) / 4.6) ** 2.2), y, 1.52 + 0.02 * max(0, y)) for y in numpy.linspace(-4.5, 4.5, 9)]
        parts += [tube("rail", rail, 0.012, metal), tube("rail", [(x, y, z - 0.28) for x, y, z in rail], 0.010, metal)]
        parts += [tube("stanchion", [(x, y, 0.95), (x, y, z)], 0.014, metal) for x, y, z in rail]
    return parts


def cabin(white, dark, wood):
    """A coach roof with its windows, a hatch, winches, a hood over the way down."""
    outline = [(-1.0, 0.52, 0.40), (-0.9, 0.66, 0.52), (1.2, 0.62, 0.46), (2.6, 0.42, 0.32), (3.1, 0.30, 0.06)]
    soup = Soup()
    soup.raster(numpy.array([[(-w, y, 0.9), (-0.94 * w, y, 0.9 + 0.8 * h), (-0.75 * w, y, 0.9 + h), (0.75 * w, y, 0.9 + h), (0.94 * w, y, 0.9 + 0.8 * h), (w, y, 0.9)] for y, w, h in outline]))
    parts = [soup.made("cabin", [white], smooth=False)]
    for side in (-1, 1):
        for y in (-0.55, 0.25, 1.05, 1.75):
            parts.append(tube("window", [(side * (0.685 - 0.05 * max(0, y)), y, 1.18), (side * (0.68 - 0.05 * max(0, y)), y + 0.5, 1.17)], 0.075, dark, 6))
        parts.append(turned("winch", [(0.001, 0.98), (0.09, 0.98), (0.07, 1.1), (0.085, 1.16), (0.001, 1.17)], dark, 14))
        parts[-1].location = (side * 1.05, -1.5, 0)
    parts += [tube("hood", [(-0.6, -1.0, 1.0), (-0.55, -1.1, 1.75), (0, -1.15, 1.85), (0.55, -1.1, 1.75), (0.6, -1.0, 1.0)], 0.05, dark),
              tube("tiller", [(0, -4.2, 1.0), (-0.2, -3.2, 1.15)], 0.03, wood), tube("coil", [(0.3 * math.cos(a), -2.0 + 0.2 * math.sin(a), 1.0) for a in numpy.linspace(0, 6, 12)], 0.03, wood)]
    return parts


def striped(paint, line, below):
    """A topside with a line under the deck and another where the water begins, salt and scuffs on it."""
    made, nodes = material("topside")
    height = nodes.add("ShaderNodeSeparateXYZ", nodes.place()).outputs[2]
    salt = nodes.noise(nodes.vector("MULTIPLY", nodes.place(), (1.0, 1.0, 3.5)), 1.6, detail=8.0, roughness=0.65)
    tone = nodes.mix(nodes.math("MULTIPLY", nodes.rise(salt, 0.45, 0.75), 0.30), paint, (0.45, 0.45, 0.44))
    tone = nodes.mix(nodes.math("MULTIPLY", nodes.math("GREATER_THAN", height, 0.80), nodes.math("LESS_THAN", height, 0.87)), tone, line)
    tone = nodes.mix(nodes.math("LESS_THAN", height, 0.30), tone, line)
    tone = nodes.mix(nodes.math("LESS_THAN", height, 0.20), tone, below)
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=nodes.math("MULTIPLY_ADD", salt, 0.3, 0.05)), AIR)
    return made


def crew(parts, dark, red):
    for y, coat in ((-2.6, red), (-3.4, dark)):
        parts += [limb([(-0.55, y, 0.8), (-0.6, y, 1.15), (-0.62, y - 0.03, 1.42), (-0.62, y, 1.52)], [0.19, 0.21, 0.19, 0.06], coat),
                  limb([(-0.62, y, 1.5), (-0.62, y, 1.58), (-0.63, y, 1.67), (-0.63, y, 1.76)], [0.07, 0.10, 0.10, 0.02], dark),
                  limb([(-0.62, y + 0.05, 1.42), (-0.35, y + 0.25, 1.25), (-0.1, y + 0.5, 1.3)], [0.08, 0.07, 0.05], coat)]


def sloop(paint, cloth):
    wood, metal = plain("deck", (0.35, 0.24, 0.14)), plain("spar", (0.45, 0.46, 0.48), 0.3, Metallic=0.6)
    dark, white = plain("crew", (0.02, 0.025, 0.035)), plain("cabin", (0.72, 0.72, 0.68), 0.25)
    parts = [hull(paint, wood), sail(cloth, (0.1, 0.75, 2.0), (0.05, 0.55, 13.2), (0.9, -3.9, 2.0), 0.75), sail(cloth, (0.0, 4.6, 1.3), (0.05, 1.0, 11.6), (1.2, -0.2, 1.7), 0.8)]
    parts += rigging(metal) + cabin(white, dark, wood)
    crew(parts, dark, plain("coat", (0.45, 0.05, 0.03)))
    return joined("sloop", parts)


def at_sea(boat, place, course, heel):
    boat.location = place
    boat.rotation_euler = (0, math.radians(heel), math.radians(course))


def build():
    chance = numpy.random.default_rng(5)
    sea("sea", rough_sea(), chance, near=14, far=12000, spread=14, rows=1500, columns=900, height=0.62, longest=13.0, shortest=0.32, wind=1.1, count=170)
    cloth = sailcloth()
    paints = [striped(tone, line, below) for tone, line, below in (((0.012, 0.025, 0.06), (0.6, 0.58, 0.52), (0.22, 0.03, 0.02)), ((0.55, 0.55, 0.52), (0.03, 0.05, 0.12), (0.02, 0.03, 0.05)),
                                                                  ((0.25, 0.03, 0.025), (0.6, 0.58, 0.52), (0.02, 0.02, 0.02)), ((0.55, 0.55, 0.52), (0.3, 0.04, 0.03), (0.02, 0.03, 0.05)), ((0.1, 0.12, 0.14), (0.5, 0.5, 0.5), (0.1, 0.02, 0.02)))]
    for (x, y, course, heel), paint in zip(BOATS, paints):
        at_sea(sloop(paint, cloth), (x, y, -0.25), course, heel)
    camera((0, 0, 2.9), (0.6, 78, 7.4), lens=98)
    daylight(14, 11.6, strength=0.10, dust=1.2, low=((12.5, 9.2, 6.2), 0.16),
             clouds=dict(low=0.46, high=0.72, scale=0.5, light=(15, 13, 10.5), shade=(6.0, 6.0, 6.2), thick=0.9, seed=8.0, stretch=(0.7, 1.2)))
    return Roll(samples=20, bounces=4, exposure=-1.25, saturation=1.05, glow=0.09, look="High Contrast", grain=0.011)
