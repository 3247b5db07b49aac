"""Photos of every kind, made by the tools of their formats, and what the tests of the intake share."""
import os
import struct
import subprocess
import sys
import tempfile

TURNS = range(1, 9)


def run(*words, **more):
    return subprocess.run([str(word) for word in words], check=True, capture_output=True, text=True, timeout=120, **more).stdout


def check(is_so, told):
    if not is_so:
        raise AssertionError(told)


def drawn(path, size='240x160'):
    """A picture of which no side or corner is like another."""
    run('convert', '-size', size, 'gradient:navy-gold', '-fill', 'red', '-draw', 'rectangle 0,0 70,40', '-fill', 'lime', '-draw',
        'circle 200,40 220,60', '-fill', 'white', '-draw', 'rectangle 10,120 60,150', '-blur', '0x2', '-depth', '8', path)
    return path


def with_turn(path, turn, *more):
    run('exiv2', f'-Mset Exif.Image.Orientation {turn}', *more, path)
    return path


def heic(source, path, *more):
    run('heif-enc', *more, source, '-o', path)
    return path


def likeness(path, other):
    """In decibels; 99 for the same picture."""
    told = subprocess.run(['compare', '-metric', 'PSNR', path, other, 'null:'], capture_output=True, text=True).stderr.split()[0]
    return 99.0 if told in ('inf', '0') else float(told)


def size_of(path):
    width, height = run('identify', '-format', '%w %h', path).split()
    return int(width), int(height)


def color_at(path, x, y):
    return tuple(int(each) for each in
                 run('convert', path, '-depth', '8', '-crop', f'1x1+{x}+{y}', '-format', '%[fx:round(255*u.r)] %[fx:round(255*u.g)] %[fx:round(255*u.b)]',
                     'info:').split())


# ---- profiles of colours

def fixed(value):
    return struct.pack('>i', round(value * 65536))


def profile(space, connection, kind, tags):
    body, table, at = b'', b'', 128 + 4 + 12 * len(tags)
    for name, data in tags:
        data += b'\0' * (-len(data) % 4)
        table += name + struct.pack('>II', at + len(body), len(data))
        body += data
    head = struct.pack('>I4sI4s4s4s', at + len(body), b'lcms', 0x02100000, kind, space, connection) + b'\0' * 12 + b'acsp' + b'\0' * 28
    return (head + fixed(0.9642) + fixed(1) + fixed(0.8249)).ljust(128, b'\0') + struct.pack('>I', len(tags)) + table + body


def described():
    return [(b'desc', b'desc' + b'\0' * 4 + struct.pack('>I', 5) + b'made\0' + b'\0' * 78), (b'cprt', b'text' + b'\0' * 4 + b'none\0'),
            (b'wtpt', b'XYZ ' + b'\0' * 4 + fixed(0.9642) + fixed(1) + fixed(0.8249))]


def rgb_profile(primaries, gamma):
    """A profile of three primaries, XYZ under the light of profiles, and a gamma."""
    curve = b'curv' + b'\0' * 4 + struct.pack('>IH', 1, round(gamma * 256))
    lights = [(name, b'XYZ ' + b'\0' * 4 + b''.join(fixed(each) for each in light))
              for name, light in zip((b'rXYZ', b'gXYZ', b'bXYZ'), primaries)]
    return profile(b'RGB ', b'XYZ ', b'mntr', described() + lights + [(name, curve) for name in (b'rTRC', b'gTRC', b'bTRC')])


WIDE = rgb_profile(((0.6097, 0.3111, 0.0195), (0.2053, 0.6257, 0.0609), (0.1492, 0.0632, 0.7446)), 2.19921875)
SCREEN = rgb_profile(((0.5151, 0.2412, -0.0011), (0.2919, 0.6922, 0.0419), (0.1572, 0.0666, 0.7841)), 2.2)
GREY = profile(b'GRAY', b'XYZ ', b'mntr', described() + [(b'kTRC', b'curv' + b'\0' * 4 + struct.pack('>IH', 1, round(1.8 * 256)))])


def ink_profile():
    """Four inks on white paper: a table with a corner for each mix of full inks."""
    corners = b''
    for mix in range(16):
        cyan, magenta, yellow, black = (mix >> bit & 1 for bit in (3, 2, 1, 0))
        light = 100 * (1 - 0.4 * cyan) * (1 - 0.5 * magenta) * (1 - 0.08 * yellow) * (1 - 0.85 * black)
        corners += struct.pack('>HHH', round(light * 652.8), round((128 + (70 * magenta - 35 * cyan) * (1 - 0.9 * black)) * 256),
                               round((128 + (85 * yellow - 45 * cyan) * (1 - 0.9 * black)) * 256))
    identity = b''.join(fixed(each) for each in (1, 0, 0, 0, 1, 0, 0, 0, 1))
    line = struct.pack('>HH', 0, 65535)
    table = b'mft2' + b'\0' * 4 + bytes((4, 3, 2, 0)) + identity + struct.pack('>HH', 2, 2) + line * 4 + corners + line * 3
    return profile(b'CMYK', b'Lab ', b'prtr', described() + [(b'A2B0', table)])


# ---- the program

class Intake:
    """The program with a data folder of its own."""

    def __init__(self, app, folder):
        self.program = os.path.join(app, 'tessaloom-intake')
        self.folder = folder
        self.data = os.path.join(folder, 'data')
        self.list = os.path.join(folder, 'list.pls')

    def command(self, *words):
        return [self.program, '--data', self.data, '--list', self.list, *map(str, words)]

    def start(self, *words):
        return subprocess.run(self.command(*words), capture_output=True, text=True, timeout=120)

    def take(self, *words):
        """Takes the photos and gives the files of the list, by their names."""
        told = self.start(*words)
        check(told.returncode == 0, f'{words}: {told.returncode} {told.stdout} {told.stderr}')
        self.table = told.stdout
        with open(self.list, encoding='utf-8') as file:
            self.lines = file.read().splitlines()
        return {os.path.basename(line[2:]): line[2:] for line in self.lines}

    def counts(self):
        return {line[:12].strip(): int(line[12:].split()[0]) for line in self.table.splitlines() if not line.startswith(' ')}


def play(*plays):
    """Runs each play with the program of the folder on the command line and a fresh folder; all, or those named behind it."""
    app, wanted = sys.argv[1], sys.argv[2:]
    for each in plays:
        if wanted and each.__name__ not in wanted:
            continue
        with tempfile.TemporaryDirectory(prefix='tessaloom_intake_') as folder:
            os.environ['TMPDIR'] = folder
            os.makedirs(os.path.join(folder, 'photos'))
            each(Intake(app, folder), os.path.join(folder, 'photos'))
        print(each.__name__, 'holds')
