"""Dunes in low light: sharp crests, slopes in shade, ripples that the wind draws."""
import numpy

from common import camera, daylight
from film import Roll
from land import ground, layered, noise
from nodes import material, surface

FORMAT = "landscape"


def dune(x, y, length, seed):
    """Waves of sand whose windward side rises slowly and whose lee side falls steeply, with crests that wander."""
    wander = 0.9 * noise(x / length * 0.35, y / length * 0.35, seed) + 0.22 * noise(x / length, y / length, seed + 5)
    phase = (x * 0.8 + y * 0.5) / length + wander
    t = phase - numpy.floor(phase)
    rise = numpy.where(t < 0.74, (t / 0.74) ** 1.35, ((1 - t) / 0.26) ** 1.1)
    rise = numpy.minimum(rise, 0.97 + 0.25 * (rise - 0.97))
    tall = 0.55 + 0.45 * noise(x / length * 0.45 + 3, y / length * 0.45, seed + 9)
    return rise * tall


def height(x, y):
    large = 26 * dune(x, y, 150, 4) + 7 * dune(x + 60, y * 0.9, 52, 21)
    far = numpy.clip((y - 250) / 900, 0, 1)
    return large * (1 + 1.5 * far) + 1.2 * layered(x / 90, y / 90, 3, 4) - 20


def sand():
    made, nodes = material("sand")
    place = nodes.place()
    bent = nodes.noise(place, 0.12, detail=3.0)
    wave = nodes.add("ShaderNodeTexWave", Vector=place, Scale=1.1, Distortion=7.0, Detail=3.0, Detail_Scale=0.6, Detail_Roughness=0.6,
                     _bands_direction="DIAGONAL").outputs["Fac"]
    near = nodes.rise(nodes.add("ShaderNodeCameraData").outputs["View Distance"], 160.0, 8.0)
    ripples = nodes.bump(wave, nodes.math("MULTIPLY", near, 0.5), 0.09)
    grains = nodes.bump(nodes.noise(place, 90.0, detail=2.0), 0.25, 0.02, ripples)
    tone = nodes.mix(bent, (0.56, 0.30, 0.13), (0.66, 0.40, 0.20))
    speck = nodes.mix(nodes.math("MULTIPLY", nodes.noise(place, 300.0, detail=1.0), 0.35), tone, (0.30, 0.15, 0.07))
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=speck, Roughness=0.85, Specular=0.15, Normal=grains),
            haze=((0.62, 0.49, 0.4), 3000.0))
    return made


def build():
    """From a crest over the valleys, the sun low at the left."""
    eye = float(height(numpy.array([0.0]), numpy.array([0.0]))[0]) + 30
    ground("dunes", height, sand(), near=25, far=4500, spread=21, rows=1700, columns=1000)
    camera((0, 0, eye), (0, 100, eye - 14), lens=55)
    daylight(7, -70, strength=0.2, dust=0.4, ozone=4.0, low=((3.1, 2.45, 2.0), 0.13))
    return Roll(samples=24, exposure=0.1, warmth=0.02)
