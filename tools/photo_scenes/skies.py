"""Night skies, and skies behind thin cloud."""
import math

from common import world


def stars(nodes, ray, density=1.0):
    """Points of three sizes; few are bright. Each has a tint between blue and gold."""
    total = None
    for scale, size, bright in ((70.0, 0.035, 2.2), (150.0, 0.06, 0.55), (260.0, 0.10, 0.2)):
        cell = nodes.add("ShaderNodeTexVoronoi", Vector=ray, Scale=scale)
        own = nodes.add("ShaderNodeSeparateColor", cell.outputs["Color"])
        spot = nodes.rise(cell.outputs["Distance"], size, size * 0.25)
        level = nodes.math("MULTIPLY", nodes.math("POWER", own.outputs[0], 5.0 / density), bright)
        tint = nodes.ramp(own.outputs[1], (0.0, (0.62, 0.76, 1.0)), (0.6, (1, 1, 1)), (1.0, (1.0, 0.80, 0.55)))
        light = nodes.vector("SCALE", tint)
        nodes.put(light.node.inputs["Scale"], nodes.math("MULTIPLY", spot, level))
        total = light if total is None else nodes.vector("ADD", total, light)
    return total


def veiled(nodes, ray, tones, veil, stretch, scale=2.5, thin=0.5):
    """A sky whose tones, (height, colour), change with height, behind thin cloud of one colour; `stretch` draws it out."""
    height = nodes.add("ShaderNodeSeparateXYZ", ray).outputs[2]
    cloud = nodes.noise(nodes.vector("MULTIPLY", ray, stretch), scale, detail=8.0, distortion=0.45)
    return nodes.mix(nodes.math("MULTIPLY", nodes.rise(cloud, thin, 0.8), 0.5), nodes.ramp(height, *tones), veil)


def night(low, high, milky_way=None, strength=1.0, star_light=1.0):
    """Stars over two tones, at the horizon and above. Milky way: the direction its band is square to."""
    nodes = world()
    ray = nodes.place("Generated")
    height = nodes.add("ShaderNodeSeparateXYZ", ray).outputs[2]
    tone = nodes.ramp(nodes.math("POWER", nodes.math("MAXIMUM", height, 0.0), 0.5), (0.05, low), (0.75, high))
    points = stars(nodes, ray)
    if milky_way:
        band, dust = river(nodes, ray, milky_way)
        tone = nodes.vector("ADD", tone, band)
        points = nodes.mix(nodes.math("MULTIPLY", dust, 0.7), points, (0, 0, 0))
    fade = nodes.vector("SCALE", points)
    nodes.put(fade.node.inputs["Scale"], nodes.math("MULTIPLY", nodes.rise(height, 0.0, 0.16), star_light))
    nodes.add("ShaderNodeOutputWorld", nodes.add("ShaderNodeBackground", nodes.vector("ADD", tone, fade), strength))


def river(nodes, ray, square):
    """The milky way: clouds of stars on either side of dark dust, brighter towards its middle; light, and how dusty."""
    length = math.sqrt(sum(part * part for part in square))
    off = nodes.vector("DOT_PRODUCT", ray, tuple(part / length for part in square))
    bent = nodes.math("MULTIPLY_ADD", nodes.noise(ray, 3.0, detail=6.0), 0.2, nodes.math("SUBTRACT", off, 0.1))
    near = nodes.math("POWER", 2.718, nodes.math("MULTIPLY", nodes.math("MULTIPLY", bent, bent), -55.0))
    heart = nodes.math("POWER", 2.718, nodes.math("MULTIPLY", nodes.math("MULTIPLY", bent, bent), -260.0))
    cloud = nodes.noise(ray, 7.0, detail=10.0, roughness=0.62, distortion=0.4)
    glow = nodes.math("MULTIPLY", near, nodes.math("MULTIPLY_ADD", nodes.rise(cloud, 0.32, 0.72), 0.8, 0.2))
    lanes = nodes.noise(nodes.vector("ADD", ray, (3.1, 1.7, 0.4)), 6.0, detail=10.0, roughness=0.66, distortion=0.9)
    dust = nodes.math("MULTIPLY", nodes.rise(lanes, 0.47, 0.60), nodes.math("MINIMUM", nodes.math("MULTIPLY", heart, 1.3), 1.0))
    tint = nodes.mix(heart, (0.030, 0.034, 0.052), (0.085, 0.066, 0.062))
    light = nodes.vector("SCALE", tint)
    nodes.put(light.node.inputs["Scale"], nodes.math("MULTIPLY", glow, nodes.math("MULTIPLY_ADD", dust, -0.88, 1.0)))
    return light, dust
