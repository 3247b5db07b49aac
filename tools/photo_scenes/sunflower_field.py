"""A field of sunflowers that look into the evening sun; one near the camera is sharp."""
import numpy

from common import camera, daylight, scatter
from film import Roll
from flowers import sunflower
from land import ground, layered, seeded_places
from nodes import leafy, material, surface
from surfaces import soil

FORMAT = "landscape"


def seeds(dark, light):
    made, nodes = material("seeds")
    place = nodes.place()
    spots = nodes.add("ShaderNodeTexVoronoi", Vector=place, Scale=170.0).outputs["Distance"]
    tone = nodes.ramp(spots, (0.1, light), (0.6, dark))
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=0.9, Normal=nodes.bump(spots, 1.0, -0.004)))
    return made


def build():
    chance = numpy.random.default_rng(12)
    greens = leafy("green", (0.07, 0.14, 0.025), (0.12, 0.19, 0.04), 0.4)
    parts = [leafy("petals", (0.86, 0.42, 0.012), (0.9, 0.55, 0.03), 0.45), seeds((0.004, 0.003, 0.002), (0.03, 0.02, 0.008)), seeds((0.02, 0.008, 0.003), (0.10, 0.045, 0.01)), greens]
    plants = [sunflower(chance, parts, tall) for tall in (1.45, 1.5, 1.55, 1.6, 1.65, 1.7)]
    ground("earth", lambda x, y: 0 * x, soil((0.05, 0.045, 0.02), (0.12, 0.12, 0.04), 2.0), near=0.5, far=900, spread=45, rows=60, columns=60)
    x, y = seeded_places(chance, 21000, 1.9, 75, 34)
    x2, y2 = seeded_places(chance, 26000, 75, 330, 31)
    x, y = numpy.append(x, x2), numpy.append(y, y2)
    turns = numpy.column_stack([chance.normal(0, 0.05, (len(x), 2)), chance.normal(0.45, 0.3, len(x))])
    scatter(plants, numpy.column_stack([x, y, 0 * x]), turns, chance.uniform(0.85, 1.12, len(x)))
    scatter([sunflower(chance, parts, 1.62)], [(0.42, 1.75, 0.0), (-0.75, 2.1, -0.08)], [(0, 0, 0.25), (0, 0, 0.5)], [1.0, 0.95])
    trees = leafy("trees", (0.025, 0.05, 0.02), (0.05, 0.07, 0.03), 0.2, haze=((0.75, 0.62, 0.5), 900.0))
    ground("wood", lambda x, y: numpy.clip(y - 420, 0, 10) + 5 * layered(x / 14, y / 14, 4, 6, 0.65), trees, near=400, far=470, spread=34, rows=60, columns=900)
    camera((0, 0, 2.0), (0, 10, 1.05), lens=35, focus=1.85, f_stop=2.2)
    daylight(16, 118, strength=0.17, dust=1.5, low=((5.2, 4.4, 3.8), 0.22),
             clouds=dict(low=0.5, high=0.8, scale=0.7, light=(9, 8, 7), shade=(5.2, 5, 5.2), thick=0.8, seed=5.0))
    return Roll(samples=24, exposure=-0.45, saturation=1.15)
