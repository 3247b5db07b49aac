"""From light to photograph: two exposures of a scene, their noise taken out, glow, tone curve, dark corners, grain, JPEG."""
import dataclasses
import os
import pathlib
import tempfile

import bpy
import numpy

LARGEST = 400_000  # bytes
SIZE = {"landscape": (1620, 1080), "portrait": (1080, 1620)}


@dataclasses.dataclass
class Roll:
    """How a photo is taken and developed."""
    samples: int = 24
    bounces: int = 6  # fewer are quicker: leaves and grass look the same with 4
    exposure: float = 0.0  # stops
    look: str = "Medium High Contrast"  # of the Filmic view; "None" is flat
    clean: float = 1.0  # how much the noise of rendering is taken out; 0 leaves all
    glow: float = 0.04  # share of the light that spills
    saturation: float = 1.1
    warmth: float = 0.0  # above 0 warmer, below colder
    vignette: float = 0.18
    grain: float = 0.008
    seed: int = 1
    retouch: object = None  # a function on the linear light (rows from below x columns x 3), before the tone curve


def take(roll, form, scale, target):
    """Renders the scene and writes the photo; scale below 1 for a draft."""
    scene = bpy.context.scene
    scene.render.resolution_x, scene.render.resolution_y = SIZE[form]
    scene.render.resolution_percentage = round(100 * scale)
    with tempfile.TemporaryDirectory() as folder:
        folder = pathlib.Path(folder)
        light = cleaned(*(exposed(roll, half, folder / f"{half}.exr") for half in (0, 1)), roll.clean)
        if roll.retouch:
            light = roll.retouch(light)
        light = light * (1 - roll.glow) + spilled(light) * roll.glow
        save(finished(toned(light, roll, folder / "toned.png"), roll), target)


def exposed(roll, half, path):
    """One half of the exposure: linear light."""
    scene = bpy.context.scene
    scene.cycles.samples, scene.cycles.seed = max(1, roll.samples // 2), roll.seed + 1000 * half
    scene.cycles.max_bounces = roll.bounces
    scene.cycles.use_adaptive_sampling = False
    scene.cycles.use_denoising = False
    scene.render.image_settings.file_format, scene.render.image_settings.color_depth = "OPEN_EXR", "32"
    scene.render.filepath = str(path)
    bpy.ops.render.render(write_still=True)
    return pixels(path, "Linear")


def pixels(path, space):
    image = bpy.data.images.load(str(path))
    image.colorspace_settings.name = space
    width, height = image.size
    values = numpy.empty(width * height * 4, dtype=numpy.float32)
    image.pixels.foreach_get(values)
    bpy.data.images.remove(image)
    return values.reshape(height, width, 4)[..., :3]


def as_image(values, depth):
    height, width = values.shape[:2]
    image = bpy.data.images.new("photo", width, height, float_buffer=depth > 8)
    whole = numpy.ones((height, width, 4), dtype=numpy.float32)
    whole[..., :3] = values
    image.pixels.foreach_set(whole.ravel())
    return image


def boxed(values, reach):
    """The mean over a square of 2 reach + 1 pixels."""
    for axis in (0, 1):
        room = [(0, 0)] * values.ndim
        room[axis] = (reach + 1, reach)
        total = numpy.cumsum(numpy.pad(values, room, mode="edge"), axis=axis, dtype=numpy.float64)
        side = 2 * reach + 1
        length = values.shape[axis]
        later, sooner = [slice(None)] * values.ndim, [slice(None)] * values.ndim
        later[axis], sooner[axis] = slice(side, side + length), slice(0, length)
        values = ((total[tuple(later)] - total[tuple(sooner)]) / side).astype(numpy.float32)
    return values


def shifted(values, down, right):
    return numpy.roll(values, (down, right), axis=(0, 1))


def cleaned(one, other, strength, reach=3):
    """The mean of two exposures without their noise: each pixel becomes a mean of those around it that look alike, where the
    difference of the two exposures says how much unlikeness is noise. Levels are compared as the eye sees them."""
    one, other = (numpy.log1p(4 * numpy.maximum(half, 0)) for half in (one, other))
    mean = (one + other) / 2
    if strength <= 0:
        return numpy.expm1(mean) / 4
    noise = boxed(((one - other) ** 2).mean(axis=-1) / 4, 2) * strength ** 2 + 1e-7
    total, weights = mean.copy(), numpy.ones(mean.shape[:2], dtype=numpy.float32)
    for down in range(-reach, reach + 1):
        for right in range(-reach, reach + 1):
            if (down, right) == (0, 0):
                continue
            beside = shifted(mean, down, right)
            apart = boxed(((mean - beside) ** 2).mean(axis=-1), 1)
            weight = numpy.exp(-numpy.maximum(apart - 2 * noise, 0) / (0.6 * noise))
            total += weight[..., None] * beside
            weights += weight
    return numpy.expm1(total / weights[..., None]) / 4


def spilled(light):
    """Light that the lens spreads: near, and far."""
    bright = numpy.minimum(light, 30)
    side = max(light.shape)
    near, far = bright, bright
    for _ in range(3):
        near = boxed(near, max(1, side // 400))
        far = boxed(far, max(2, side // 60))
    return 0.6 * near + 0.4 * far


def toned(light, roll, path):
    """Through the Filmic tone curve, 0 to 1."""
    view, settings = bpy.context.scene.view_settings, bpy.context.scene.render.image_settings
    view.view_transform, view.look, view.exposure = "Filmic", roll.look, roll.exposure
    settings.file_format, settings.color_depth = "PNG", "16"
    as_image(light, 32).save_render(str(path))
    return pixels(path, "Non-Color")


def finished(photo, roll):
    """Colour, corners, grain."""
    height, width = photo.shape[:2]
    grey = photo @ numpy.array([0.3, 0.59, 0.11], dtype=numpy.float32)
    photo = grey[..., None] + (photo - grey[..., None]) * roll.saturation
    photo = photo * numpy.array([1 + roll.warmth, 1, 1 - roll.warmth], dtype=numpy.float32)
    y, x = numpy.mgrid[-1:1:height * 1j, -1:1:width * 1j].astype(numpy.float32)
    photo = photo * (1 - roll.vignette * numpy.clip((x * x + y * y) / 2, 0, 1) ** 1.5)[..., None]
    chance = numpy.random.default_rng(roll.seed)
    speck = boxed(chance.standard_normal((height, width, 1)).astype(numpy.float32), 1) * 1.6
    speck = speck + 0.6 * chance.standard_normal((height, width, 1)).astype(numpy.float32)
    return numpy.clip(photo + speck * roll.grain * (0.45 + 1.1 * numpy.sqrt(numpy.clip(grey * (1 - grey), 0, 1)))[..., None], 0, 1)


def save(photo, target):
    """As JPEG, as good as fits."""
    scene = bpy.context.scene
    scene.view_settings.view_transform, scene.view_settings.look, scene.view_settings.exposure = "Standard", "None", 0
    scene.render.image_settings.file_format = "JPEG"
    image = as_image(photo, 8)
    for quality in range(91, 60, -3):
        scene.render.image_settings.quality = quality
        image.save_render(str(target))
        bare = without_notes(pathlib.Path(target).read_bytes())
        if len(bare) <= LARGEST:
            break
    pathlib.Path(target).write_bytes(bare)
    print(f"{os.path.basename(target)}: quality {quality}, {len(bare)} bytes")


def without_notes(jpeg):
    """Without comments and other segments that tell of the machine."""
    kept, at = jpeg[:2], 2
    while jpeg[at + 1] != 0xDA:
        length = 2 + int.from_bytes(jpeg[at + 2:at + 4], "big")
        if jpeg[at + 1] != 0xFE and not 0xE1 <= jpeg[at + 1] <= 0xEF:
            kept += jpeg[at:at + length]
        at += length
    return kept + jpeg[at:]
