#!/usr/bin/env python3
"""A walk through the built program by mouse, from the empty stage to a finished poster, that leaves a picture of each moment in a
folder, and frames.json: for each its file, its window, how long it is looked at (milliseconds) and where the pointer is in it.

    walk.py APP PLUGINS FOLDER PHOTO...
"""
import json
import os
import shutil
import sys
import tempfile
import time

import screen
from collage import changed_preview, quit_by_mouse, welcomed
from designs import in_finishing_stage, shows

DESIGNS = ('Autumn walk', 'Starry night', 'At the seaside')  # looked at in the browser; the last one is taken
HOME = os.path.join(tempfile.gettempdir(), 'anna')  # always the same one: the windows show where the photos are
CAPTION = ('Sum', 'mer ', '2026')


class Reel:
    """The moments, in their order."""

    def __init__(self, program, folder):
        self.program, self.folder, self.frames = program, folder, []

    def shot(self, milliseconds, pointer=None):
        seen = self.program.look()
        at = seen['widgets'][0]
        name = '%02d.png' % len(self.frames)
        self.program.keep(at, os.path.join(self.folder, name))
        spot = self.program.find(pointer, seen) if pointer else None
        self.frames.append({'file': name, 'window': seen['window'] or seen['class'], 'milliseconds': milliseconds,
                            'pointer': [spot['x'] + spot['width'] // 2 - at['x'], spot['y'] + spot['height'] // 2 - at['y']] if spot else None})

    def click(self, name, milliseconds=700):
        """The pointer comes to rest, and then it clicks."""
        self.program.widget(name)
        self.shot(milliseconds, name)
        self.program.click(name)


def at_rest(p):
    """Waits until no preview is being made: each letter of a caption makes one."""
    before = None
    while before is None or before != p.finished():
        screen.until(lambda: (p.find('cmdFlurn') or {}).get('enabled') and p.finished(), 'the end of the preview')
        before = p.finished()
        time.sleep(0.5)


def choose_design(p, reel):
    reel.shot(900)
    reel.click('mnuDesigned')
    p.window('frmThemes')
    reel.shot(900)
    reel.click('optTheme', 500)
    for name in DESIGNS:
        p.click(name)
        time.sleep(0.3)
        reel.shot(900, name)
    reel.click('cmdOk', 600)


def choose_photos(p, reel):
    p.window('frmSelectPhotos')
    reel.click('cmdCards', 1000)
    p.window('QFileDialog')
    p.type_into('fileNameEdit', p.photos)
    p.keys('Return')
    in_finishing_stage(p)
    at_rest(p)


def finish(p, reel):
    reel.shot(1200)
    reel.click('txtCaption', 600)
    typed = ''
    for part in CAPTION:
        p.type(part)
        typed += part
        shows(p, 'txtCaption', typed)
        at_rest(p)
        reel.shot(450, 'txtCaption')
    for _ in range(2):
        reel.shot(600, 'cmdShuffle')
        changed_preview(p, lambda: p.click('cmdShuffle'), 'cmdShuffle')
        at_rest(p)
        reel.shot(900, 'cmdShuffle')
    reel.click('cmdFlurn', 800)
    screen.until(lambda: p.look().get('window') == 'frmImage' and p.look()['active'], 'the finished collage')
    time.sleep(0.5)
    reel.shot(3500)


def main():
    if len(sys.argv) < 5:
        sys.exit(__doc__)
    app, plugins, folder, *photos = sys.argv[1:]
    os.mkdir(HOME)  # there already: another walk or tour is under way, or died
    p = screen.Program(app, plugins, home=HOME)
    try:
        p.photos = os.path.join(HOME, 'Pictures', 'Summer by the sea')
        os.makedirs(p.photos)
        for path in photos:
            shutil.copy(path, p.photos)
        reel = Reel(p, folder)
        welcomed(p)
        choose_design(p, reel)
        choose_photos(p, reel)
        finish(p, reel)
        with open(os.path.join(folder, 'frames.json'), 'w') as file:
            json.dump(reel.frames, file, indent=1)
        p.click('cmdClose')
        p.window('frmMain')
        p.click('cmdCancel')
        screen.until(lambda: p.find('mnuMatrix'), 'the choosing stage')
        quit_by_mouse(p)
    except BaseException:
        p.keep(screen.WHOLE, os.path.join(folder, 'failed.png'))
        raise
    finally:
        p.close()


main()
