#!/usr/bin/env python3
"""What people bring: every format, every orientation, every colour; what becomes of it on its way into a collage.

    tests/intake/formats.py PROGRAM_FOLDER [PLAY...]
"""
import os
import shutil
import subprocess

from photo_files import (GREY, SCREEN, TURNS, WIDE, check, color_at, drawn, heic, ink_profile, likeness, play, run, size_of,
                         with_turn)


def in_folder(folder, name):
    return os.path.join(folder, name)


def every_turn_of_every_format_comes_upright(intake, photos):
    plain = drawn(in_folder(intake.folder, 'plain.png'))
    for turn in TURNS:
        jpeg = in_folder(photos, f'jpeg{turn}.jpg')
        run('convert', plain, '-quality', '95', jpeg)
        with_turn(jpeg, turn)
        run('convert', jpeg, '-auto-orient', in_folder(intake.folder, f'upright{turn}.png'))
        heic(jpeg, in_folder(photos, f'heic{turn}.heic'))
        heic(jpeg, in_folder(photos, f'avif{turn}.avif'), '-A')
        for ending in ('png', 'tif', 'webp'):
            run('convert', plain, '-quality', '95', in_folder(photos, f'{ending}{turn}.{ending}'))
            with_turn(in_folder(photos, f'{ending}{turn}.{ending}'), turn)
        run('convert', plain, '-compress', 'jpeg', '-quality', '95', in_folder(photos, f'inner{turn}.tif'))
        with_turn(in_folder(photos, f'inner{turn}.tif'), turn)
    ready = intake.take(photos)
    check(len(ready) == 8 * 7, intake.table)
    for turn in TURNS:
        for kind in ('jpeg', 'heic', 'avif', 'png', 'tif', 'webp', 'inner'):
            found = likeness(ready[f'{kind}{turn}.jpg'], in_folder(intake.folder, f'upright{turn}.png'))
            check(found > 32, f'{kind} with orientation {turn}: {found} dB')
    portraits = {os.path.basename(line[2:]) for line in intake.lines if line.startswith('P ')}
    check(portraits == {name for name in ready if name[-5] in '5678'}, f'portraits: {sorted(portraits)}')


def turned_jpegs_lose_nothing(intake, photos):
    plain = drawn(in_folder(intake.folder, 'plain.png'))
    ways = {2: ['-flip', 'horizontal'], 3: ['-rotate', '180'], 4: ['-flip', 'vertical'], 5: ['-transpose'], 6: ['-rotate', '90'],
            7: ['-transverse'], 8: ['-rotate', '270']}
    for turn, way in ways.items():
        jpeg = in_folder(photos, f'{turn}.jpg')
        run('convert', plain, '-quality', '80', '-sampling-factor', '2x2', jpeg)
        run('jpegtran', *way, '-perfect', '-outfile', in_folder(intake.folder, f'{turn}.jpg'), jpeg)
        with_turn(jpeg, turn)
    run('convert', plain, '-crop', '233x151+0+0', '+repage', '-quality', '80', in_folder(photos, 'odd.jpg'))
    with_turn(in_folder(photos, 'odd.jpg'), 6)
    ready = intake.take(photos)
    for turn in ways:
        run('djpeg', '-outfile', in_folder(intake.folder, 'a.ppm'), in_folder(intake.folder, f'{turn}.jpg'))
        run('djpeg', '-outfile', in_folder(intake.folder, 'b.ppm'), ready[f'{turn}.jpg'])
        same = subprocess.run(['cmp', '-s', in_folder(intake.folder, 'a.ppm'), in_folder(intake.folder, 'b.ppm')])
        check(same.returncode == 0, f'orientation {turn} lost something')
    # Blocks that end inside the picture allow no lossless turn; the whole picture is what counts.
    check(size_of(ready['odd.jpg']) == (151, 233), 'a strip of the odd photo is gone')
    how = run('identify', '-format', '%Q %[jpeg:sampling-factor]', ready['odd.jpg'])
    check(how == '95 1x1,1x1,1x1', how)


def dates_and_names_stay_and_people_do_not(intake, photos):
    plain = drawn(in_folder(intake.folder, 'plain.png'))
    jpeg = in_folder(photos, 'Ich & Du (2).jpg')
    run('convert', plain, jpeg)
    with_turn(jpeg, 6, '-Mset Exif.Photo.DateTimeOriginal 2026:07:31 18:05:09', '-Mset Exif.Image.Artist Somebody',
              '-Mset Exif.GPSInfo.GPSLatitude 47/1 30/1 0/1', '-Mset Exif.Image.Make Maker', '-c', 'a remark')
    run('convert', plain, in_folder(photos, 'whole.jpeg'))
    run('exiv2', '-Mset Exif.Photo.DateTimeOriginal 2026:07:31 18:05:09', in_folder(photos, 'whole.jpeg'))
    shutil.copy(in_folder(photos, 'whole.jpeg'), in_folder(photos, 'told.jpeg'))
    run('exiv2', '-Mset Exif.GPSInfo.GPSLatitude 47/1 30/1 0/1', '-Mset Iptc.Application2.City Somewhere', '-c', 'a remark',
        in_folder(photos, 'told.jpeg'))
    heic(jpeg, in_folder(photos, 'phone.heic'))
    for name in os.listdir(photos):
        os.utime(in_folder(photos, name), ns=(1_700_000_000_123_456_789, 1_700_000_000_123_456_789))
    before = {name: open(in_folder(photos, name), 'rb').read() for name in os.listdir(photos)}
    ready = intake.take(photos)
    check(sorted(ready) == ['Ich & Du (2).jpg', 'phone.jpg', 'told.jpg', 'whole.jpg'], sorted(ready))
    for name, copy in ready.items():
        check(os.stat(copy).st_mtime_ns == 1_700_000_000_123_456_789, f'{name}: its time is gone')
        told = run('exiv2', '-pa', copy)
        check('Exif.Photo.DateTimeOriginal' in told and '2026:07:31 18:05:09' in told, f'{name}: its date is gone')
        rest = [line.split()[0] for line in told.splitlines() if not line.startswith(('Exif.Photo.', 'Exif.Image.ExifTag'))]
        check(not rest, f'{name} tells of {rest}')
        bytes_of_copy = open(copy, 'rb').read()
        for word in (b'Somebody', b'a remark', b'Somewhere', b'Maker'):
            check(word not in bytes_of_copy, f'{name} holds {word}')
    check(open(ready['whole.jpg'], 'rb').read() == before['whole.jpeg'], 'a .jpeg that needs nothing was changed')
    check(likeness(ready['told.jpg'], in_folder(photos, 'told.jpeg')) == 99, 'a .jpeg lost more than its remarks')
    check({name: open(in_folder(photos, name), 'rb').read() for name in os.listdir(photos)} == before, 'an original was changed')


def patches(folder, name, colors, *more):
    """A picture of flat squares, 16 pixels each."""
    parts = [word for color in colors for word in ('(', '-size', '16x16', f'xc:{color}', ')')]
    run('convert', *parts, '+append', *more, os.path.join(folder, name))


def as_told_by_transicc(profile, values):
    told = subprocess.run(['transicc', '-n', '-t0', '-i', profile, '-o', '*sRGB'], capture_output=True, text=True, timeout=20,
                          input='\n'.join(' '.join(map(str, each)) for each in values) + '\n').stdout
    numbers = [float(word) for line in told.splitlines() for word in line.split() if word.replace('.', '', 1).lstrip('-').isdigit()]
    return [tuple(min(max(each, 0), 255) for each in numbers[i:i + 3]) for i in range(0, 3 * len(values), 3)]


def check_patches(path, expected, told):
    for i, color in enumerate(expected):
        found = color_at(path, 16 * i + 8, 8)
        check(all(abs(a - b) <= 2 for a, b in zip(found, color)), f'{told}, patch {i}: {found}, not {color}')


RGB = [(200, 60, 40), (30, 180, 70), (20, 40, 220), (128, 128, 128), (250, 240, 230), (90, 20, 120), (10, 10, 10)]
INKS = [(0, 0, 0, 0), (255, 0, 0, 0), (0, 255, 0, 0), (0, 0, 255, 0), (0, 0, 0, 255), (100, 50, 20, 10), (0, 120, 200, 60)]
GREYS = [0, 40, 128, 200, 255]


def icc_file(intake, name, profile):
    path = in_folder(intake.folder, name + '.icc')
    with open(path, 'wb') as file:
        file.write(profile)
    return path


def rgb_colors_come_as_their_profiles_say(intake, photos):
    """What a file's own coding makes of the colours is no fault of the conversion: they are read from it again."""
    lossless = ['-quality', '100', '-sampling-factor', '1x1']
    for name, profile in (('wide', WIDE), ('screen', SCREEN)):
        icc = icc_file(intake, name, profile)
        for ending, more in (('plain.png', ['-define', 'png:color-type=2']), ('deep.png', ['-define', 'png:bit-depth=16']), ('page.tif', []), ('photo.jpg', lossless),
                             ('web.webp', ['-define', 'webp:lossless=true'])):
            patches(photos, name + '_' + ending, [f'rgb{color}' for color in RGB], '-profile', icc, *more)
        for ending, more in (('phone.heic', []), ('later.avif', ['-A'])):
            heic(in_folder(photos, name + '_plain.png'), in_folder(photos, name + '_' + ending), *more, '-q', '100', '-p', 'chroma=444')
    ready = intake.take(photos)
    check(len(ready) == 14, intake.table)
    for name in ('wide', 'screen'):
        for ending in ('plain.png', 'deep.png', 'page.tif', 'photo.jpg', 'web.webp', 'phone.heic', 'later.avif'):
            source = in_folder(photos, name + '_' + ending)
            if ending in ('phone.heic', 'later.avif'):
                source = in_folder(intake.folder, name + '_' + ending + '.png')
                run('heif-convert', in_folder(photos, name + '_' + ending), source)
            values = [color_at(source, 16 * i + 8, 8) for i in range(len(RGB))]
            expected = as_told_by_transicc(in_folder(intake.folder, name + '.icc'), values)
            check(any(abs(a - b) > 4 for a, b in zip(expected[0], values[0])), 'the profile changes nothing')
            check_patches(ready[name + '_' + ending.split('.')[0] + '.jpg'], expected, name + ' ' + ending)


def other_colors_come_as_their_profiles_say(intake, photos):
    grey, inks = icc_file(intake, 'grey', GREY), icc_file(intake, 'inks', ink_profile())
    patches(photos, 'grey.png', [f'gray({value})' for value in GREYS], '-colorspace', 'gray', '-profile', grey)
    words = ['cmyk(%d,%d,%d,%d)' % color for color in INKS]
    more = ['-colorspace', 'cmyk', '-profile', inks]
    patches(photos, 'photo.jpg', words, *more, '-quality', '100', '-sampling-factor', '1x1')
    patches(photos, 'page.tif', words, *more)
    ready = intake.take(photos)
    check_patches(ready['grey.jpg'], as_told_by_transicc(grey, [(value,) for value in GREYS]), 'grey')
    expected = as_told_by_transicc(inks, [tuple(value / 2.55 for value in color) for color in INKS])
    check_patches(ready['page.jpg'], expected, 'inks of a page')
    check_patches(ready['photo.jpg'], expected, 'inks of a photo')


def what_shows_through_is_white(intake, photos):
    for name in ('clear.png', 'clear.webp', 'clear.tif', 'clear.gif'):
        run('convert', '-size', '64x64', 'xc:none', '-fill', 'blue', '-draw', 'rectangle 32,0 63,63', in_folder(photos, name))
    run('convert', '-size', '64x64', 'xc:rgba(255,0,0,0.5)', '-depth', '16', in_folder(photos, 'half.png'))
    ready = intake.take(photos)
    for line in intake.lines:
        path = line[2:]
        if 'half' in path:
            check(all(abs(a - b) <= 2 for a, b in zip(color_at(path, 20, 20), (255, 128, 128))), 'half: %s' % (color_at(path, 20, 20),))
        else:
            check(min(color_at(path, 8, 30)) >= 253, f'{path} is not white')
            check(color_at(path, 56, 30)[2] > 200 > color_at(path, 56, 30)[0] + 100, f'{path} is not blue')
    check(len(intake.lines) == 5 and ready, intake.table)


def other_kinds_come_too(intake, photos):
    plain = drawn(in_folder(intake.folder, 'plain.png'))
    for name in ('bmp3:short.bmp', 'long.bmp', 'png48:deep.png', 'deep.tif', 'colors.gif', 'web.webp'):
        kind, _, file = name.rpartition(':')
        run('convert', plain, '-depth', '16' if 'deep' in name else '8', (kind + ':' if kind else '') + in_folder(photos, file))
    run('convert', plain, '-rotate', '90', '-colors', '200', plain, in_folder(photos, 'two.gif'))
    run('convert', plain, '-resize', '50%', in_folder(photos, 'pages.tif'))
    run('convert', plain, in_folder(photos, 'pages.tif'), in_folder(photos, 'pages.tif'))
    intake.take(photos)
    for line in intake.lines:
        upright = os.path.basename(line[2:]) != 'two.jpg'
        check(size_of(line[2:]) == ((240, 160) if upright else (160, 240)), f'{line}: {size_of(line[2:])}')
        if upright:
            check(likeness(line[2:], plain) > 30, f'{line}: {likeness(line[2:], plain)} dB')
    check(len(intake.lines) == 8, intake.table)


if __name__ == '__main__':
    play(every_turn_of_every_format_comes_upright, turned_jpegs_lose_nothing, dates_and_names_stay_and_people_do_not,
         rgb_colors_come_as_their_profiles_say, other_colors_come_as_their_profiles_say, what_shows_through_is_white, other_kinds_come_too)
