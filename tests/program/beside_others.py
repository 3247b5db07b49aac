#!/usr/bin/env python3
"""One open window that keeps designs, and many batch programs beside it on the same data folder and the same photos: each
makes the picture that it makes alone, and nothing of the user's is lost, whoever is killed.

    beside_others.py APP PLUGINS SAMPLE_PHOTOS [JOBS [KILLS]]
"""
import concurrent.futures
import glob
import hashlib
import itertools
import os
import random
import shutil
import subprocess
import sys
import tempfile
import time

import screen
from collage import check, folder_by_mouse, run, welcomed
from designs import in_finishing_stage, is_enabled, lines_of, told
from screen import until

JOBS = int(sys.argv[4]) if len(sys.argv) > 4 else 200
KILLS = int(sys.argv[5]) if len(sys.argv) > 5 else 200
FIRST_STARTS = 3
AT_ONCE = 8
PHOTOS = 8
KINDS = [
    ['--quick', 'block'],
    ['--quick', 'scattered'],
    ['--quick', 'matrix'],
    ['--quick', 'shapes', '--set', 'cmbShapes=Stars'],
    ['--quick', 'matrix', '--set', 'chkRotate=1', '--orientation', 'landscape'],
    ['--design', 'Mosaic wall'],
    ['--design', 'Three bands', '--caption', 'Beside others'],
    ['--design', 'Valentine', '--orientation', 'portrait'],
    ['--design', 'Framed duet', '--frames', 'soccer'],
    ['--design', 'Kept first'],
]


class Jobs:
    """Batch programs on the data folder of the window."""

    def __init__(self, p):
        self.p = p
        self.out = os.path.join(p.folder, 'out')
        self.numbers = itertools.count()
        os.makedirs(self.out)
        self.environment = dict(p.environment, LC_ALL='C.UTF-8', **screen.another_machine(sys.argv[2]))

    def fresh_photos(self):
        """Photos in a folder that no program has seen yet, so that its thumbnails are still to be made."""
        folder = os.path.join(self.p.folder, 'photos', '%04d' % next(self.numbers))
        os.makedirs(folder)
        for path in sorted(glob.glob(os.path.join(self.p.photos, '*.jpg')))[:PHOTOS]:
            shutil.copy(path, folder)
        return folder

    def start(self, kind, folder):
        target = os.path.join(self.out, '%04d.jpg' % next(self.numbers))
        words = [os.path.join(self.p.app, 'tessaloom-batch'), '--photos', folder, *KINDS[kind], '--preview', '--random',
                 '7', '--out', target]
        return target, subprocess.Popen(words, env=self.environment, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.PIPE)

    def make(self, kind, folder):
        """Runs one to its end; gives its picture."""
        target, process = self.start(kind, folder)
        complaints = process.communicate()[1].decode()
        check(process.returncode == 0, '%r ended with %d: %s' % (KINDS[kind], process.returncode, complaints))
        with open(target, 'rb') as file:
            return hashlib.sha1(file.read()).hexdigest()

    def leftovers(self):
        """What is left of batch programs that have ended."""
        scratch = glob.glob(os.path.join(self.p.folder, 'tessaloom-*', '*', ''))
        return scratch + glob.glob(os.path.join(self.out, '*.part'))


class Keeper:
    """The user at the window, who keeps one design after the other, all from the same collage."""

    def __init__(self, p):
        self.p = p
        self.names = []

    def keep(self, name):
        self.begin(name)
        self.p.click('OKButton')
        self.p.window('frmMain')
        self.names.append(name)

    def begin(self, name):
        """All but the last click."""
        p = self.p
        p.click('mnuQuick')
        folder_by_mouse(p)
        in_finishing_stage(p)
        p.click('cmdFlurn')
        p.window('frmImage')
        p.keys('Escape')
        p.window('frmMain')
        p.shortcut('cmdCancel')
        until(lambda: p.find('mnuMatrix'), 'the choosing stage')
        p.click('mnuDesign')
        p.window('QMenu')
        p.click('mnuSaveDesign')
        p.window('frmNewDesign')
        p.type_into('txtName', name)
        p.type_into('txtDescription', 'Kept beside others')

    def keep_until(self, is_over):
        while not is_over():
            self.keep('Kept %d' % (len(self.names) + 1))


def expect_whole(p, names):
    """Each of these designs is in the catalogue, once, with its files whole."""
    catalogue = lines_of(p, 'designs.ini')
    template = sample = None
    for name in names:
        check(catalogue.count('Name=' + name) == 1, name + ' is not in the catalogue')
        section = catalogue[catalogue.index('Name=' + name):]
        values = dict(line.split('=', 1) for line in itertools.takewhile(lambda line: not line.startswith('['), section)
                      if '=' in line)
        layout = lines_of(p, 'designs', values['File'])
        check(layout and template in (None, layout), 'the template of ' + name + ' is another one')
        with open(os.path.join(p.data, 'samples', values['Sample']), 'rb') as file:
            picture = file.read()
        check(sample in (None, picture), 'the sample of ' + name + ' is another one')
        template, sample = layout, picture
        check(lines_of(p, 'descriptions', values['Description']) == ['Kept beside others'], 'description of ' + name)


def work_beside(p, jobs, keeper, alone):
    """All jobs, eight at once, those of a round on one fresh folder, while the user goes on."""
    rounds = range(0, JOBS, AT_ONCE)
    def one_round(first, pool):
        folder = jobs.fresh_photos()
        kinds = [number % len(KINDS) for number in range(first, first + AT_ONCE)]
        made = pool.map(lambda kind: jobs.make(kind, folder), kinds)
        for kind, picture in zip(kinds, made):
            check(picture == alone[kind], 'a picture of %r is not the one it makes alone' % KINDS[kind])
    with concurrent.futures.ThreadPoolExecutor(AT_ONCE) as pool, concurrent.futures.ThreadPoolExecutor(1) as driver:
        all_rounds = driver.submit(lambda: [one_round(first, pool) for first in rounds])
        keeper.keep_until(all_rounds.done)
        all_rounds.result()
    check(not jobs.leftovers(), 'left over: %r' % jobs.leftovers())
    return len(rounds) * AT_ONCE


def kill_at_random(p, jobs, keeper, alone):
    """Kills batch programs, and the window now and then, at any moment of their work."""
    chance = random.Random(11)
    print('kills: seed 11')
    folder = jobs.fresh_photos()
    window_kills = 0
    for number in range(KILLS):
        if number % 20 == 19:
            window_kills += 1
            kill_window(p, keeper, chance)
            continue
        kind = chance.randrange(len(KINDS))
        fresh = jobs.fresh_photos() if number % 4 == 0 else folder
        started = [jobs.start(kind, fresh) for _ in range(2)]
        time.sleep(chance.uniform(0.0, 0.35))
        started[0][1].kill()
        for _, process in started:
            complaints = process.communicate()[1].decode()
        check(started[1][1].returncode == 0, 'beside a killed one %r ended with %d: %s' % (KINDS[kind], started[1][1].returncode, complaints))
        with open(started[1][0], 'rb') as file:
            check(hashlib.sha1(file.read()).hexdigest() == alone[kind],
                  'beside a killed one %r made another picture: %s' % (KINDS[kind], complaints))
    jobs.make(0, folder)  # it clears away what the killed ones left in the scratch place
    check(not glob.glob(os.path.join(p.folder, 'tessaloom-*', '*', '')), 'scratch folders are left over')
    return window_kills


def kill_window(p, keeper, chance):
    """In the middle of keeping a design: that one is there whole or not at all, all others are there."""
    name = 'Kept %d' % (len(keeper.names) + 1)
    keeper.begin(name)
    p.click('OKButton')
    time.sleep(chance.uniform(0.0, 0.15))
    p.process.kill()
    p.process.wait()
    p.start_program(sys.argv[2])
    p.window('frmMain')
    if 'Name=' + name in lines_of(p, 'designs.ini'):
        keeper.names.append(name)
    expect_whole(p, keeper.names)
    named = [line[len('File='):] for line in lines_of(p, 'designs.ini') if line.startswith('File=saved')]
    check(sorted(named) == sorted(saved(p)), 'files %r for designs %r' % (saved(p), named))


def saved(p):
    return [name for name in os.listdir(os.path.join(p.data, 'designs')) if name.startswith('saved')]


def first_starts(p, alone, folder):
    """Eight programs at once that find no data folder, one of them the window: each does its work, and the folder is as
    one of them alone makes it."""
    home = tempfile.mkdtemp(prefix='first_', dir=p.folder)
    window = screen.Program(*sys.argv[1:3], beside=p, home=home)
    try:
        first = Jobs(window)
        with concurrent.futures.ThreadPoolExecutor(AT_ONCE - 1) as pool:
            kinds = [number % (len(KINDS) - 1) for number in range(AT_ONCE - 1)]
            made = [pool.submit(first.make, kind, folder) for kind in kinds]
            seen = until(window.look, 'the window')
            if seen['class'] == 'QMessageBox':
                welcomed(window)
            window.window('frmMain')
            check([each.result() for each in made] == [alone[kind] for kind in kinds], 'a first start made another picture')
        check(supplied(window.data) == supplied(p.data), 'the data folder is another one')
    finally:
        window.close()


def supplied(data):
    """Digests of what the program supplies to a data folder."""
    found = {}
    for place, _, names in os.walk(data):
        for name in names:
            path = os.path.join(place, name)
            inner = os.path.relpath(path, data)
            if inner.split(os.sep)[0] in ('icons', 'frames', 'alpha', 'puzzle', 'designs.supplied', '3_1_install'):
                with open(path, 'rb') as file:
                    found[inner] = hashlib.sha1(file.read()).hexdigest()
    return found


def play(p):
    welcomed(p)
    small_photos(p)
    jobs, keeper = Jobs(p), Keeper(p)
    keeper.keep('Kept first')
    alone = [jobs.make(kind, jobs.fresh_photos()) for kind in range(len(KINDS))]
    check(len(set(alone)) == len(KINDS), 'two kinds of job make one picture')
    selection = os.path.join(p.data, 'piclists', 'last_photos.pls')
    with open(selection, 'w') as file:
        file.write('U the selection of the open window\r\n')
    made = work_beside(p, jobs, keeper, alone)
    expect_whole(p, keeper.names)
    with open(selection) as file:
        check('of the open window' in file.read(), 'the selection of the window is gone')
    print('%d batch programs, %d designs kept meanwhile' % (made, len(keeper.names) - 1))
    for _ in range(FIRST_STARTS):
        first_starts(p, alone, jobs.fresh_photos())
    print('%d times %d first starts at once' % (FIRST_STARTS, AT_ONCE))
    p.focused = None
    windows = kill_at_random(p, jobs, keeper, alone)
    expect_whole(p, keeper.names)
    print('%d kills, %d of them of the window' % (KILLS, windows))


def small_photos(p):
    """Photos that a job is done with quickly."""
    for path in glob.glob(os.path.join(p.photos, '*.jpg'))[PHOTOS:]:
        os.remove(path)


run(play)
