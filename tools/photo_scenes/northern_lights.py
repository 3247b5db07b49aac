"""Northern lights over a fjord: curtains of light, their image in the water, snow and firs."""
import numpy

from common import camera, random_turns, scatter, unwrapped
from film import Roll
from growth import Soup, fir
from land import ground, layered, noise, ridged, sea
from nodes import material, no_lamp, plain, surface
from skies import night
from surfaces import water

FORMAT = "landscape"


def curtain_light(strength, phase):
    """Green and sharp below, red and faint above, in rays."""
    made, nodes = material("curtain")
    no_lamp(nodes)
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place("UV"))
    along, up = apart.outputs[0], apart.outputs[1]
    fine = nodes.noise(nodes.add("ShaderNodeCombineXYZ", nodes.math("MULTIPLY", along, 130.0), nodes.math("MULTIPLY", up, 1.2), phase), 1.0, detail=4.0)
    broad = nodes.noise(nodes.add("ShaderNodeCombineXYZ", nodes.math("MULTIPLY", along, 11.0), nodes.math("MULTIPLY", up, 0.6), phase + 7.0), 1.0, detail=3.0)
    rays = nodes.math("MULTIPLY", nodes.math("MULTIPLY_ADD", nodes.rise(fine, 0.25, 0.75), 0.75, 0.25), nodes.rise(broad, 0.30, 0.66))
    foot = nodes.math("MULTIPLY_ADD", nodes.noise(nodes.add("ShaderNodeCombineXYZ", nodes.math("MULTIPLY", along, 30.0), 0.0, phase), 1.0), 0.10, 0.0)
    above = nodes.math("SUBTRACT", up, foot)
    level = nodes.math("MULTIPLY", nodes.rise(above, 0.0, 0.09), nodes.math("POWER", 2.718, nodes.math("MULTIPLY", above, -4.2)))
    level = nodes.math("MULTIPLY", nodes.math("MULTIPLY", level, rays), nodes.rise(up, 1.0, 0.6))
    level = nodes.math("MULTIPLY", level, nodes.math("MULTIPLY", nodes.rise(along, 0.0, 0.1), nodes.rise(along, 1.0, 0.9)))
    tone = nodes.ramp(above, (0.05, (0.10, 1.0, 0.34)), (0.3, (0.10, 0.75, 0.42)), (0.55, (0.30, 0.22, 0.55)), (0.9, (0.45, 0.08, 0.40)))
    glow = nodes.add("ShaderNodeEmission", tone, nodes.math("MULTIPLY", level, strength))
    surface(nodes, nodes.add("ShaderNodeAddShader", glow, nodes.add("ShaderNodeBsdfTransparent")))
    return made


def curtain(start, end, waves, tall, strength, seed):
    """A band that hangs from left to right, folded; so high that its end fades."""
    t = numpy.linspace(0, 1, 900)
    line = numpy.array(start)[None] * (1 - t[:, None]) + numpy.array(end)[None] * t[:, None]
    line[:, 1] += waves * (noise(t * 2.3, t * 0, seed) + 0.5 * noise(t * 6, t * 0, seed + 1) + 0.18 * noise(t * 17, t * 0, seed + 2))
    line[:, 0] += 0.8 * waves * (noise(t * 3, t * 0 + 5, seed) + 0.4 * noise(t * 9, t * 0 + 5, seed + 1))
    rows = numpy.linspace(0, 1, 24)[:, None, None]
    soup = Soup()
    soup.raster(line[None] + rows * numpy.array([0.05, -0.12, 1.0]) * tall)
    made = soup.made("curtain", [curtain_light(strength, seed * 3.7)])
    made.visible_shadow = False
    unwrapped(made, numpy.stack(numpy.broadcast_arrays(t[None], rows[..., 0]), axis=-1).reshape(-1, 2))


def peaks(x, y):
    shore = 1500 + 350 * noise(x / 900, x * 0, 3) - 0.28 * numpy.abs(x)
    inland = numpy.clip((y - shore) / 3800, 0, 1)
    return numpy.where(y < shore, -20.0, 2 + inland ** 0.9 * 950 * ridged(x / 3000 + 0.7, y / 3000, 5, 8, 0.48))


def snow(slopes):
    """Snow with rock where it is steep."""
    made, nodes = material("snow")
    form = nodes.noise(nodes.place(), 0.01 if slopes else 1.2, detail=9.0, roughness=0.62)
    up = nodes.add("ShaderNodeSeparateXYZ", nodes.add("ShaderNodeNewGeometry").outputs["Normal"]).outputs[2]
    bare = nodes.rise(nodes.math("MULTIPLY_ADD", form, 0.5, up), 1.06, 0.86) if slopes else 0.0
    tone = nodes.mix(bare, (0.78, 0.81, 0.86), (0.04, 0.04, 0.045))
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.7, Normal=nodes.bump(form, 0.6, 30.0 if slopes else 0.15)))
    return made


def shore(x, y):
    edge = 9 + 4 * noise(x / 14, x * 0, 8) + 0.25 * numpy.abs(x)
    return numpy.clip((edge - y) / 7, -1, 1) * 0.55 + 0.3 * layered(x / 5, y / 5, 3, 4, 0.45) * (y < edge + 2)


def build():
    chance = numpy.random.default_rng(25)
    night((0.012, 0.030, 0.034), (0.004, 0.008, 0.016), strength=1.0, star_light=1.0)
    ground("peaks", peaks, snow(True), near=900, far=9000, spread=44, rows=700, columns=1000)
    ground("shore", shore, snow(False), near=1.5, far=40, spread=60, rows=260, columns=260)
    sea("fjord", water((0.002, 0.006, 0.008), ripple=0.10, fine=0.9, roughness=0.04), chance, near=3, far=4000, spread=48, rows=400, columns=300, height=0.05, longest=5.0)
    trees = [fir(chance, plain("bark", (0.03, 0.022, 0.018)), plain("needles", (0.012, 0.018, 0.012), 0.8), tall, 24, plain("frost", (0.6, 0.63, 0.68))) for tall in (9, 11, 13)]
    spots = [(-14, 21), (-17, 25), (-11.8, 25), (-21, 24), (-24, 30), (18, 24), (21.5, 28), (25, 27), (28, 32), (-29, 34), (33, 36)]
    places = [(x, y, float(shore(numpy.array([x * 1.0]), numpy.array([y * 1.0]))[0]) - 0.2) for x, y in spots]
    scatter(trees, places, random_turns(chance, len(spots), 0.03), chance.uniform(0.6, 1.1, len(spots)))
    ground("banks", lambda x, y: numpy.clip((numpy.abs(x + 2) - 10.5) / 5, -1, 1.0) * 0.7 - 0.25 + 0.2 * layered(x / 4, y / 4, 9, 4), snow(False), near=18, far=46, spread=62, rows=120, columns=400)
    curtain((-5200, 6500, 1500), (5600, 7600, 1350), 1600, 4200, 1.5, 3)
    curtain((-4600, 9000, 1900), (6600, 8200, 1700), 2200, 4800, 1.1, 11)
    curtain((-900, 3600, 2300), (3600, 6400, 1800), 1200, 3600, 0.8, 19)
    camera((0, 0, 2.3), (0, 30, 9.2), lens=21)
    return Roll(samples=12, bounces=4, exposure=1.5, grain=0.013, glow=0.08, saturation=1.15, look="Medium High Contrast")
