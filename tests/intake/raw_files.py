#!/usr/bin/env python3
"""Raw files of cameras of the simplest kind, with and without the camera's own picture, and what becomes of them.

    tests/intake/raw_files.py PROGRAM_FOLDER [PLAY...]
"""
import os
import struct

from photo_files import TURNS, check, color_at, play, run, size_of

SIZE = (96, 64)  # of the sensor
OWN = (1600, 1200)  # of the camera's own picture
MODEL = b'Made by a test\0'
# Which corners are red: those at the left and right above, then those below.
RED_CORNERS = {1: 'Rbbb', 2: 'bRbb', 3: 'bbbR', 4: 'bbRb', 5: 'Rbbb', 6: 'bRbb', 7: 'bbbR', 8: 'bbRb'}


def in_folder(folder, name):
    return os.path.join(folder, name)


def sensor_rows():
    """A sensor's values under a mosaic: red in the quarter at the left above, else blue."""
    rows = b''
    for y in range(SIZE[1]):
        for x in range(SIZE[0]):
            red, blue = (50000, 3000) if x < SIZE[0] // 2 and y < SIZE[1] // 2 else (3000, 50000)
            rows += struct.pack('<H', {(0, 0): red, (1, 1): blue}.get((y % 2, x % 2), 9000))
    return rows


def tag_folder(at, tags):
    """The bytes of a folder of tags that lies there; values that don't fit in follow behind it."""
    head, body, end = struct.pack('<H', len(tags)), b'', at + 2 + 12 * len(tags) + 4
    for tag, kind, count, value in tags:
        if isinstance(value, bytes):
            head += struct.pack('<HHII', tag, kind, count, end + len(body))
            body += value + b'\0' * (len(value) % 2)
        else:
            head += struct.pack('<HHII', tag, kind, count, value)
    return head + b'\0' * 4 + body


def camera_tags(orientation):
    matrix = b''.join(struct.pack('<ii', round(each * 10000), 10000) for each in (
        3.1339, -1.6169, -0.4906, -0.9788, 1.9161, 0.0335, 0.0719, -0.2290, 1.4052))
    return [(271, 2, 5, b'Made\0'), (272, 2, len(MODEL), MODEL), (274, 3, 1, orientation), (50706, 1, 4, 1 | 4 << 8),
            (50708, 2, len(MODEL), MODEL), (50721, 10, 9, matrix), (50728, 5, 3, struct.pack('<6I', 1, 1, 1, 1, 1, 1))]


def sensor_tags(rows_at, length, size=SIZE):
    return [(254, 4, 1, 0), (256, 4, 1, size[0]), (257, 4, 1, size[1]), (258, 3, 1, 16), (259, 3, 1, 1), (262, 3, 1, 32803),
            (273, 4, 1, rows_at), (277, 3, 1, 1), (278, 4, 1, size[1]), (279, 4, 1, length), (33421, 3, 2, 2 | 2 << 16),
            (33422, 1, 4, 0 | 1 << 8 | 1 << 16 | 2 << 24), (50717, 4, 1, 65535)]


def own_picture_tags(at, length, sensor_at):
    return [(254, 4, 1, 1), (256, 4, 1, OWN[0]), (257, 4, 1, OWN[1]), (258, 3, 3, struct.pack('<HHH', 8, 8, 8)), (259, 3, 1, 7),
            (262, 3, 1, 6), (273, 4, 1, at), (277, 3, 1, 3), (278, 4, 1, OWN[1]), (279, 4, 1, length), (330, 4, 1, sensor_at)]


def written(path, *parts):
    with open(path, 'wb') as file:
        file.write(b'II*\0' + struct.pack('<I', 8) + b''.join(parts))


def made_raw(path, orientation, told_size=SIZE):
    """With the sensor's values alone; its head may tell of another size."""
    rows = sensor_rows()

    def tags(rows_at):
        return tag_folder(8, sorted(sensor_tags(rows_at, len(rows), told_size) + camera_tags(orientation)))
    written(path, tags(8 + len(tags(0))), rows)


def made_raw_with_picture(path, orientation, jpeg):
    """With the camera's own picture, a JPEG without an orientation of its own, before the sensor's values."""
    rows = sensor_rows()

    def tags(sensor_at, at):
        return tag_folder(8, sorted(own_picture_tags(at, len(jpeg), sensor_at) + camera_tags(orientation)))
    sensor_at = 8 + len(tags(0, 0))
    rows_at = sensor_at + len(tag_folder(sensor_at, sensor_tags(0, len(rows))))
    written(path, tags(sensor_at, rows_at + len(rows)), tag_folder(sensor_at, sensor_tags(rows_at, len(rows))), rows, jpeg)


def red_corners(path):
    width, height = size_of(path)
    places = [(x, y) for y in (8, height - 8) for x in (8, width - 8)]
    colors = [color_at(path, *place) for place in places]
    return ''.join('R' if red > blue else 'b' for red, _, blue in colors)


def check_upright(ready, turn, size):
    found = ready[f'{turn}.jpg']
    check(red_corners(found) == RED_CORNERS[turn], f'orientation {turn}: {red_corners(found)}')
    check(size_of(found) == (size if turn < 5 else size[::-1]), f'orientation {turn}: {size_of(found)}')


def raw_files_are_developed_upright(intake, photos):
    for turn in TURNS:
        made_raw(in_folder(photos, f'{turn}.dng'), turn)
    ready = intake.take(photos)
    for turn in TURNS:
        check_upright(ready, turn, SIZE)


def the_camera_s_own_picture_comes_upright(intake, photos):
    own = in_folder(intake.folder, 'own.jpg')
    run('convert', '-size', '%dx%d' % OWN, 'xc:blue', '-fill', 'red', '-draw', 'rectangle 0,0 799,599', own)
    jpeg = open(own, 'rb').read()
    for turn in TURNS:
        made_raw_with_picture(in_folder(photos, f'{turn}.dng'), turn, jpeg)
    ready = intake.take(photos)
    for turn in TURNS:
        check_upright(ready, turn, OWN)


if __name__ == '__main__':
    play(raw_files_are_developed_upright, the_camera_s_own_picture_comes_upright)
