#!/usr/bin/env python3
"""Five hundred odd files: whole ones of every kind, cut short, with bytes flipped and under wrong names. Each is prepared or named
with a reason, and nothing is taken along with it.

    tests/intake/odd_files.py PROGRAM_FOLDER
"""
import collections
import os
import random
import re
import subprocess
import time

from photo_files import check, drawn, heic, play, run, with_turn
from raw_files import made_raw
from whole_way import in_folder

COUNT = 500


def whole_ones(folder):
    plain = drawn(in_folder(folder, 'plain.png'), '96x64')
    jpeg = in_folder(folder, 'turned.jpg')
    run('convert', plain, jpeg)
    with_turn(jpeg, 6)
    for name in ('a.tif', 'a.gif', 'a.bmp', 'a.webp', 'deep.tif'):
        run('convert', plain, '-depth', '16' if 'deep' in name else '8', in_folder(folder, name))
    heic(plain, in_folder(folder, 'a.heic'))
    heic(plain, in_folder(folder, 'a.avif'), '-A')
    made_raw(in_folder(folder, 'a.dng'), 6)
    return [in_folder(folder, name) for name in sorted(os.listdir(folder)) if name != 'photos']


def odd(data, chance):
    """The bytes, damaged in one of several ways."""
    data = bytearray(data)
    way = chance.randrange(4)
    if way == 0:
        return bytes(data[:chance.randrange(len(data))])
    for _ in range(chance.choice((1, 3, 30))):
        place = chance.randrange(min(len(data), 200) if way == 1 else len(data))
        data[place] = chance.choice((0, 255, 127, data[place] ^ 1 << chance.randrange(8)))
    return bytes(data)


def odd_files_are_prepared_or_named(intake, photos):
    chance = random.Random(7)
    sources = [(os.path.splitext(path)[1], open(path, 'rb').read()) for path in whole_ones(intake.folder)]
    for i in range(COUNT):
        ending, data = chance.choice(sources)
        if chance.random() < 0.15:
            ending = chance.choice(sources)[0]
        with open(in_folder(photos, f'{i}{ending}'), 'wb') as file:
            file.write(odd(data, chance))
    before = {name: os.stat(in_folder(photos, name)).st_mtime_ns for name in os.listdir(photos)}
    begun = time.monotonic()
    told = intake.start(photos)
    took = time.monotonic() - begun
    check(told.returncode == 0, told)
    intake.table = told.stdout
    counts = intake.counts()
    check(counts['taken'] + counts['prepared'] + counts['refused'] + counts['doubles'] == COUNT, told.stdout)
    check(counts['prepared'] > COUNT // 10 and counts['refused'] > COUNT // 10, told.stdout)
    with open(intake.list, encoding='utf-8') as file:
        for line in file.read().splitlines():
            if line[2:].startswith(intake.data):
                seen = subprocess.run(['djpeg', '-fast', '-outfile', os.devnull, line[2:]], capture_output=True, text=True)
                check(seen.returncode == 0 and not seen.stderr, f'{line}: {seen.stderr}')
    check(before == {name: os.stat(in_folder(photos, name)).st_mtime_ns for name in os.listdir(photos)}, 'an original was changed')
    reasons = collections.Counter(re.findall(r'^  \S+/\d+\.\w+: (.*)$', told.stdout, re.M))
    print('%d prepared, %d refused in %.1f s' % (counts['prepared'], counts['refused'], took), dict(reasons.most_common(6)))


if __name__ == '__main__':
    play(odd_files_are_prepared_or_named)
