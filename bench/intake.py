#!/usr/bin/env python3
"""What it costs to prepare a photo, as a ratio to decoding it: the work of all cores together, so that a machine that others use
too hardly changes it.

    bench/intake.py PROGRAM_FOLDER PHOTO [RUNS]

PHOTO is a large JPEG. Each kind is made of it by the tools of the formats; the least of RUNS (5 without a number) counts.
"""
import os
import resource
import shutil
import subprocess
import sys
import tempfile

sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir, 'tests', 'intake'))
from photo_files import SCREEN  # the wide colours of phones

TOOLS = {'jpg': ['djpeg', '-outfile', os.devnull], 'webp': ['dwebp', '-quiet', '-ppm', '-o', os.devnull]}


def work_of(*command):
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    subprocess.run(command, check=True, capture_output=True, env=dict(os.environ, MAGICK_THREAD_LIMIT='1'))
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime


def made_files(photo, folder):
    jpeg = os.path.join(folder, 'turned.jpg')
    shutil.copy(photo, jpeg)
    subprocess.run(['exiv2', '-Mset Exif.Image.Orientation 6', jpeg], check=True)
    odd = os.path.join(folder, 'odd.jpg')
    subprocess.run(['convert', photo, '-crop', '-7-5', '+repage', odd], check=True)
    subprocess.run(['exiv2', '-Mset Exif.Image.Orientation 6', odd], check=True)
    profile = os.path.join(folder, 'screen.icc')
    with open(profile, 'wb') as file:
        file.write(SCREEN)
    subprocess.run(['convert', photo, '-profile', profile, os.path.join(folder, 'wide.jpg')], check=True)
    subprocess.run(['heif-enc', photo, '-o', os.path.join(folder, 'phone.heic')], check=True, capture_output=True)
    subprocess.run(['heif-enc', '-A', photo, '-o', os.path.join(folder, 'phone.avif')], check=True, capture_output=True)
    for name in ('screen.png', 'page.tif', 'web.webp', 'old.bmp'):
        subprocess.run(['convert', photo, os.path.join(folder, name)], check=True)
    return ['turned.jpg', 'odd.jpg', 'wide.jpg', 'phone.heic', 'phone.avif', 'screen.png', 'page.tif', 'web.webp', 'old.bmp']


def decoding(path, folder):
    """The format's own tool; for HEIC and AVIF there is none that only decodes, so its planes are written as they are."""
    kind = path.rpartition('.')[2]
    if kind in ('heic', 'avif'):
        return ['heif-convert', path, os.path.join(folder, 'planes.y4m')]
    return [*TOOLS[kind], path] if kind in TOOLS else ['convert', path, 'ppm:' + os.devnull]


def main(programs, photo, runs):
    with tempfile.TemporaryDirectory() as folder:
        print('%-12s %10s %10s %8s' % ('', 'decoding', 'preparing', 'ratio'))
        for name in made_files(photo, folder):
            path = os.path.join(folder, name)
            decode, prepare = [], []
            for i in range(runs):
                decode.append(work_of(*decoding(path, folder)))
                prepare.append(work_of(os.path.join(programs, 'tessaloom-intake'), '--data', os.path.join(folder, f'data{name}{i}'), path))
            again = min(work_of(os.path.join(programs, 'tessaloom-intake'), '--data', os.path.join(folder, f'data{name}0'), path)
                        for _ in range(runs))
            print('%-12s %8.0f ms %7.0f ms %8.2f    found again %.2f' % (
                name, 1000 * min(decode), 1000 * min(prepare), min(prepare) / min(decode), again / min(decode)))


if __name__ == '__main__':
    main(sys.argv[1], sys.argv[2], int(sys.argv[3]) if len(sys.argv) > 3 else 5)
