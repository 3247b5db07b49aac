#!/usr/bin/env python3
"""A poster of turned HEIC photos is the poster of their upright JPEGs: posters.py PROGRAM_FOLDER PHOTOS, the staged programs and
the sample photos."""
import glob
import os
import subprocess
import sys
import tempfile

from photo_files import check, heic, likeness, run, with_turn

APP, PHOTOS = sys.argv[1:3]


def poster(folder, photos, *more):
    out = os.path.join(folder, 'poster.jpg')
    if os.path.exists(out):
        os.remove(out)
    told = subprocess.run([os.path.join(APP, 'tessaloom-batch'), '--data', os.path.join(folder, 'data'), '--photos', *photos, '--design',
                           'Three of us', '--random', '1', '--preview', '--out', out, *more], capture_output=True, text=True, timeout=120)
    if told.returncode == 0:
        os.rename(out, out + '.' + os.path.basename(photos[0]) + '.jpg')
    return told, out + '.' + os.path.basename(photos[0]) + '.jpg'


def main(folder):
    for name in ('turned', 'upright'):
        os.makedirs(os.path.join(folder, name))
    for i, photo in enumerate(sorted(glob.glob(os.path.join(PHOTOS, '*.jpg')))[:8]):
        lying = os.path.join(folder, f'{i}.jpg')
        run('convert', photo, '-resize', '600x600', '-rotate', '-90' if i % 2 else '180', '-quality', '97', lying)
        with_turn(lying, 6 if i % 2 else 3)
        heic(lying, os.path.join(folder, 'turned', f'{i}.heic'), '-q', '90')
        run('convert', lying, '-auto-orient', '-quality', '95', os.path.join(folder, 'upright', f'{i}.jpg'))
    turned, upright = os.path.join(folder, 'turned'), os.path.join(folder, 'upright')
    told, _ = poster(folder, [turned])
    check(told.returncode == 1 and 'has no .jpg files' in told.stderr, 'without --intake a folder of HEICs is as ever: %s' % told)
    told, expected = poster(folder, [upright])
    check(told.returncode == 0, told)
    told, made = poster(folder, [turned], '--intake')
    check(told.returncode == 0 and not told.stderr.strip(), told)
    found = likeness(made, expected)
    check(found > 30, f'the posters differ: {found} dB')
    with open(os.path.join(turned, 'broken.heic'), 'wb') as file:
        file.write(b'no picture')
    told, _ = poster(folder, [turned], '--intake')
    check(told.returncode == 0 and 'broken.heic is left out: it is no picture.' in told.stderr, told)
    told = subprocess.run([os.path.join(APP, 'tessaloom-batch'), '--data', os.path.join(folder, 'data'), '--photos', lying, '--intake',
                           '--design', 'Three of us', '--out', lying], capture_output=True, text=True, timeout=120)
    check(told.returncode == 2 and 'would be replaced' in told.stderr, told)
    print('turned HEICs: %.1f dB from the upright photos' % found)


if __name__ == '__main__':
    with tempfile.TemporaryDirectory(prefix='tessaloom_posters_') as place:
        os.environ['TMPDIR'] = place
        main(place)
