"""Takes one photo: blender -b -P take.py -- SCENE TARGET SCALE SAMPLES (0: as the scene says). Run by tools/make_photos."""
import importlib
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parent))

import common
import film


def main(scene, target, scale, samples):
    module = importlib.import_module(scene)
    common.clear_stage()
    roll = module.build()
    if int(samples):
        roll.samples = int(samples)
    film.take(roll, module.FORMAT, float(scale), target)


main(*sys.argv[sys.argv.index("--") + 1:])
