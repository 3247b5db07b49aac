#!/usr/bin/env python3
"""The program for photos as people use it: folders, lists, copies that are found again, damage, a stop in the middle.

    tests/intake/whole_way.py PROGRAM_FOLDER [PLAY...]
"""
import os
import shutil
import signal
import struct
import subprocess
import time

from photo_files import check, drawn, heic, play, run, size_of, with_turn
from raw_files import made_raw


def in_folder(folder, name):
    return os.path.join(folder, name)


def turned(folder, name, size='240x160'):
    path = in_folder(folder, name)
    drawn(path, size)
    return with_turn(path, 6)


def copies_of(intake):
    return sorted(name for name in os.listdir(in_folder(intake.data, 'prepared')) if name != 'in_use')


def copies_are_found_again(intake, photos):
    for i in range(3):
        turned(photos, f'{i}.jpg', f'{240 + 16 * i}x160')
    first = intake.take(photos)
    check('3 (3 made now)' in intake.table, intake.table)
    check(intake.take(photos) == first and '3 (0 made now)' in intake.table, intake.table)
    os.utime(in_folder(photos, '1.jpg'), ns=(1, os.stat(in_folder(photos, '1.jpg')).st_mtime_ns + 1))
    check(intake.take(photos)['1.jpg'] != first['1.jpg'] and '3 (1 made now)' in intake.table, intake.table)


def copies_keep_to_their_room(intake, photos):
    for i in range(4):
        turned(photos, f'{i}.jpg', f'{640 + 16 * i}x480')
    for i in range(4):
        intake.take(in_folder(photos, f'{i}.jpg'), '--limit', '1')
    check(len(copies_of(intake)) == 1, copies_of(intake))
    check(os.path.exists(intake.take(in_folder(photos, '3.jpg'))['3.jpg']) and '1 (0 made now)' in intake.table, intake.table)


def copies_have_two_gibibytes_unless_told(intake, photos):
    copies = []
    for i in range(3):
        copies.append(intake.take(turned(photos, f'{i}.jpg', f'{240 + 16 * i}x160'))[f'{i}.jpg'])
        os.truncate(copies[-1], 700_000_000)  # which takes no room on the disk
        os.utime(os.path.dirname(copies[-1]), (1_000_000_000 + i, 1_000_000_000 + i))
    check(all(map(os.path.exists, copies)), copies)
    last = intake.take(turned(photos, '3.jpg', '320x160'))['3.jpg']
    check(len(copies_of(intake)) == 4, copies_of(intake))
    os.truncate(last, 700_000_000)
    intake.take(turned(photos, '4.jpg', '336x160'))
    check(not os.path.exists(copies[0]) and all(map(os.path.exists, [*copies[1:], last])), copies_of(intake))


def progress_is_told_on_a_terminal_and_nowhere_else(intake, photos):
    for i in range(3):
        turned(photos, f'{i}.jpg', f'{240 + 16 * i}x160')
    seen, terminal = os.openpty()
    running = subprocess.Popen(intake.command(photos), stdout=subprocess.PIPE, stderr=terminal)
    os.close(terminal)
    shown = b''
    try:
        while piece := os.read(seen, 1000):
            shown += piece
    except OSError:  # the terminal's other end is closed
        pass
    os.close(seen)
    running.communicate(timeout=60)
    check(running.returncode == 0 and b'of 3 photos' in shown and shown.endswith(b'\r\x1b[K'), shown)
    check(intake.start(photos).stderr == '', 'progress where nobody looks')


def folders_are_walked_when_asked(intake, photos):
    os.makedirs(in_folder(photos, 'b/c'))
    os.makedirs(in_folder(photos, 'b/sample_thumbs'))
    os.makedirs(in_folder(photos, '.hidden'))
    for name in ('a10.jpg', 'a2.jpg', 'b/c/d.jpg', 'b/sample_thumbs/a.jpg', '.hidden/e.jpg'):
        drawn(in_folder(photos, name), '%dx64' % (64 + len(name) * 8 + ord(name[1])))
    os.symlink(photos, in_folder(photos, 'b/loop'))
    with open(in_folder(photos, 'film.mov'), 'wb') as file:
        file.write(b'\0\0\0\x14ftypqt  ' + b'\0' * 100)
    check(list(intake.take(photos)) == ['a2.jpg', 'a10.jpg'], intake.lines)
    check(list(intake.take('--deep', photos)) == ['a2.jpg', 'a10.jpg', 'd.jpg'], intake.lines)
    check(list(intake.take(intake.list)) == ['a2.jpg', 'a10.jpg', 'd.jpg'], intake.lines)


def what_is_wrong_is_named_and_the_rest_goes_on(intake, photos):
    plain = drawn(in_folder(intake.folder, 'plain.png'), '480x480')
    heic(plain, in_folder(photos, 'whole.heic'))
    shutil.copy(in_folder(photos, 'whole.heic'), in_folder(photos, 'wrong name.jpg'))
    shutil.copy(plain, in_folder(photos, 'also wrong.heic'))
    drawn(in_folder(photos, 'tiny.png'), '20x30')
    for name in ('cut.heic', 'cut.tif', 'cut.png', 'cut.bmp', 'cut.webp'):
        run('convert', plain, in_folder(intake.folder, 'x' + name)) if name != 'cut.heic' else heic(plain, in_folder(intake.folder, 'x' + name))
        data = open(in_folder(intake.folder, 'x' + name), 'rb').read()
        with open(in_folder(photos, name), 'wb') as file:
            file.write(data[:len(data) * 2 // 3])
    turned(intake.folder, 'turned.jpg', '480x480')
    data = open(in_folder(intake.folder, 'turned.jpg'), 'rb').read()
    for name, text in (('cut.jpg', data[:len(data) // 2]), ('empty.heic', b''), ('text.png', b'no picture'), ('head.jpg', data[:30])):
        with open(in_folder(photos, name), 'wb') as file:
            file.write(text)
    ready = intake.take(photos, in_folder(photos, 'missing.jpg'))
    counts = intake.counts()
    check(sorted(ready) == ['also wrong.jpg', 'tiny.jpg', 'whole.jpg'], intake.table)
    check(counts == {'taken': 0, 'prepared': 3, 'refused': 10, 'doubles': 1, 'very small': 1}, intake.table)
    for name, why in (('cut.heic', 'damaged'), ('cut.jpg', 'damaged'), ('empty.heic', 'empty'), ('text.png', 'no picture'),
                      ('head.jpg', 'damaged'), ('missing.jpg', 'no such file'), ('wrong name.jpg', 'the same bytes as')):
        check(any(name + ': ' in line and why in line for line in intake.table.splitlines()), f'{name}: {intake.table}')
    check('tiny.png: 20 x 30' in intake.table, intake.table)
    none = intake.start(in_folder(photos, 'text.png'))
    check(none.returncode == 1 and 'there is no photo that could be used' in none.stderr, none)


def png_chunk(name, data):
    import zlib
    return struct.pack('>I', len(data)) + name + data + struct.pack('>I', zlib.crc32(name + data))


def heads_that_lie(intake, photos):
    """Small pictures that say that they are huge."""
    plain = drawn(in_folder(intake.folder, 'plain.png'))
    for name, more in (('bomb.heic', []), ('bomb.avif', ['-A'])):
        heic(plain, in_folder(intake.folder, name), *more)
        data = open(in_folder(intake.folder, name), 'rb').read()
        at = data.index(b'ispe') + 8
        with open(in_folder(photos, name), 'wb') as file:
            file.write(data[:at] + struct.pack('>II', 60000, 60000) + data[at + 8:])
    run('convert', plain, in_folder(intake.folder, 'bomb.webp'))
    data = open(in_folder(intake.folder, 'bomb.webp'), 'rb').read()
    at = data.index(b'\x9d\x01\x2a') + 3
    with open(in_folder(photos, 'bomb.webp'), 'wb') as file:
        file.write(data[:at] + struct.pack('<HH', 16383, 16383) + data[at + 4:])
    made_raw(in_folder(photos, 'bomb.dng'), 1, (60000, 60000))


def bombs_are_refused_soon(intake, photos):
    import zlib
    head = png_chunk(b'IHDR', struct.pack('>IIBBBBB', 60000, 60000, 8, 2, 0, 0, 0))
    packed = zlib.compress(b'\0' * 10_000_000)
    files = {'bomb.png': b'\x89PNG\r\n\x1a\n' + head + png_chunk(b'IDAT', packed) + png_chunk(b'IEND', b''),
             'bomb.bmp': b'BM' + struct.pack('<IHHIIiiHHIIiiII', 1000, 0, 0, 54, 40, 60000, 60000, 1, 24, 0, 0, 0, 0, 0, 0) + b'\0' * 900,
             'bomb.gif': b'GIF89a' + struct.pack('<HHBBB', 60000, 60000, 0xF0, 0, 0) + b'\0' * 6 + b',' + struct.pack('<HHHHB', 0, 0, 60000, 60000, 0) + b'\2\2L\1\0;'}
    # Pictures without an end, and folders of a page that lead back to themselves.
    frame = b'!\xf9\4\4\n\0\0\0,' + struct.pack('<HHHHB', 0, 0, 1, 1, 0) + b'\2\2L\1\0'
    files['endless.gif'] = b'GIF89a' + struct.pack('<HHBBB', 500, 500, 0xF0, 0, 0) + b'\0' * 6 + frame * 200_000
    entries = [(256, 4, 1, 60000), (257, 4, 1, 60000), (258, 3, 1, 8), (259, 3, 1, 1), (262, 3, 1, 1), (273, 4, 1, 8), (277, 3, 1, 1),
               (278, 4, 1, 60000), (279, 4, 1, 100)]
    files['bomb.tif'] = b'II*\0' + struct.pack('<I', 8) + struct.pack('<H', len(entries)) + b''.join(
        struct.pack('<HHII', *each) for each in entries) + struct.pack('<I', 8)
    files['loop.tif'] = b'II*\0' + struct.pack('<I', 8) + struct.pack('<HHHIII', 1, 330, 4, 1, 8, 8)
    for name, data in files.items():
        with open(in_folder(photos, name), 'wb') as file:
            file.write(data)
    big = in_folder(photos, 'claims.jpg')
    turned(photos, 'claims.jpg', '64x64')
    data = bytearray(open(big, 'rb').read())
    at = data.index(b'\xff\xc0') + 5
    data[at:at + 4] = struct.pack('>HH', 32000, 32000)
    with open(big, 'wb') as file:
        file.write(data)
    heads_that_lie(intake, photos)
    begun = time.monotonic()
    told = intake.start(photos)
    refused = [line for line in told.stdout.splitlines() if line.startswith('  ') and ': ' in line]
    for name in ('bomb.png', 'bomb.bmp', 'bomb.gif', 'bomb.tif', 'loop.tif', 'claims.jpg', 'bomb.heic', 'bomb.avif', 'bomb.webp', 'bomb.dng'):
        check(any('/' + name + ': ' in line for line in refused), f'{name} was not refused: {told.stdout}')
    check('too long' not in told.stdout, told.stdout)
    print('bombs: %.1f s' % (time.monotonic() - begun))


def the_decoder_is_shut_in_before_it_reads(intake, photos):
    """It waits for its file, with no end of ours but the two it was given."""
    program = os.path.join(os.path.dirname(intake.program), 'tessaloom-decode')
    secret = open(in_folder(photos, 'open file'), 'w', encoding='utf-8')
    os.set_inheritable(secret.fileno(), True)
    running = subprocess.Popen([program, 'png'], stdin=subprocess.PIPE, stdout=subprocess.PIPE, close_fds=False)
    place = f'/proc/{running.pid}'
    try:
        end = time.monotonic() + 60
        while 'Seccomp:\t2' not in open(place + '/status', encoding='utf-8').read():
            check(time.monotonic() < end, open(place + '/status', encoding='utf-8').read())
            time.sleep(0.005)
        status = open(place + '/status', encoding='utf-8').read()
        check('NoNewPrivs:\t1' in status, status)
        check(sorted(os.listdir(place + '/fd')) in (['0', '1', '2'], ['0', '1']), os.listdir(place + '/fd'))
        limits = open(place + '/limits', encoding='utf-8').read()
        for word in ('Max file size             0 ', 'Max core file size        0 ', 'Max address space         4294967296 ', 'Max cpu time              60 '):
            check(word in limits, limits)
    finally:
        told, _ = running.communicate(b'no picture', timeout=60)
        secret.close()
    check(told == b'ad', told)


def a_stop_leaves_nothing_half(intake, photos):
    plain = drawn(in_folder(intake.folder, 'plain.png'), '1600x1200')
    for i in range(12):
        run('convert', plain, '-crop', f'{1600 - i}x1200+0+0', '+repage', '-define', 'png:compression-level=1', in_folder(photos, f'{i}.png'))
    running = subprocess.Popen(intake.command(photos), stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    end = time.monotonic() + 60
    while time.monotonic() < end and not (os.path.isdir(in_folder(intake.data, 'prepared')) and copies_of(intake)):
        time.sleep(0.002)
    running.send_signal(signal.SIGINT)
    running.communicate(timeout=30)
    check(running.returncode == 130, f'status {running.returncode}')
    left = [name for _, _, names in os.walk(intake.folder) for name in names if name.endswith('.part')]
    check(not left and not os.path.exists(intake.list), left)
    for place in copies_of(intake):
        names = os.listdir(in_folder(intake.data, 'prepared/' + place))
        check('origin' in names and len(names) == 2, names)
    check(len(intake.take(photos)) == 12, intake.table)
    for i, copy in enumerate(intake.lines):
        check(size_of(copy[2:]) == (1600 - i, 1200), copy)


def many_at_once_share_a_data_folder(intake, photos):
    for i in range(6):
        turned(photos, f'{i}.jpg', f'{320 + 16 * i}x160')
    running = [subprocess.Popen(intake.command(photos, '--limit', '1')[:3] + [photos, '--limit', '1'], stdout=subprocess.PIPE, text=True)
               for _ in range(6)]
    for each in running:
        told, _ = each.communicate(timeout=60)
        check(each.returncode == 0 and 'refused         0' in told, told)
    check(len(intake.take(photos)) == 6, intake.table)


def a_place_that_cannot_be_written_is_told(intake, photos):
    turned(photos, 'a.jpg')
    with open(intake.data, 'w', encoding='utf-8') as file:
        file.write('no folder')
    told = intake.start(photos)
    check(told.returncode == 1 and intake.data in told.stderr, told)
    os.remove(intake.data)
    intake.list = in_folder(intake.folder, 'no/such/place.pls')
    told = intake.start(photos)
    check(told.returncode == 1 and intake.list in told.stderr, told)


if __name__ == '__main__':
    play(copies_are_found_again, copies_keep_to_their_room, copies_have_two_gibibytes_unless_told,
         progress_is_told_on_a_terminal_and_nowhere_else, folders_are_walked_when_asked, what_is_wrong_is_named_and_the_rest_goes_on,
         bombs_are_refused_soon, the_decoder_is_shut_in_before_it_reads, a_stop_leaves_nothing_half, many_at_once_share_a_data_folder,
         a_place_that_cannot_be_written_is_told)
