#!/usr/bin/env python3
"""A first collage where the desktop has choosers of its own: the built program asks the portal for a folder and for a photo, on
a bus and a display that nobody else has, and shows no chooser itself."""
import glob
import json
import os
import pathlib
import subprocess
import sys

import collage
from collage import check, quit_by_keys, welcomed
from reader import on_own_bus
from screen import Program, until


class PortalProgram(Program):
    def start_program(self, plugins):
        self.told = os.path.join(self.folder, 'portal')
        os.makedirs(self.told)
        portal = os.path.join(os.path.dirname(__file__), 'portal.py')
        self.portal = subprocess.Popen([sys.executable, portal, self.told], env=dict(os.environ, **self.environment))
        until(lambda: os.path.exists(os.path.join(self.told, 'asked')), 'the portal')
        del self.environment['QT_QPA_PLATFORMTHEME']  # which would go before
        super().start_program(plugins)

    def close(self):
        self.portal.kill()
        self.portal.wait()
        super().close()

    def requests(self):
        with open(os.path.join(self.told, 'asked')) as file:
            return [json.loads(line) for line in file.read().splitlines()]

    def answered(self, act, how, *paths):
        """What the portal is asked for when that is done; it answers with these paths."""
        with open(os.path.join(self.told, 'answer'), 'w') as file:
            json.dump([how, [pathlib.Path(path).as_uri() for path in paths]], file)
        before = len(self.requests())
        act()
        return until(lambda: self.requests()[before:], 'a request to the portal')[0]


def play(p):
    welcomed(p)
    p.shortcut('mnuDesigned')
    p.window('frmThemes')
    p.shortcut('optBlock')
    p.click('optDesign_0')
    p.click('cmdOk')
    p.window('frmSelectPhotos')
    parent, title, wanted = p.answered(lambda: p.click('cmdCards'), 1)
    check(parent.startswith('x11:'), 'the portal knows no window to stand before: ' + parent)
    check(title, 'the portal has no title')
    check(wanted.get('directory') is True and not wanted.get('multiple'), 'no folder is asked for: %s' % wanted)
    p.window('frmSelectPhotos')
    p.widget('cmdCards')  # can be used again
    p.answered(lambda: p.click('cmdCards'), 0, p.photos)
    p.window('frmMain')
    p.widget('cmdFlurn')
    until(p.finished, 'the first preview')
    photo = sorted(glob.glob(os.path.join(p.photos, '*.jpg')))[0]
    p.click('optBGimage')
    parent, title, wanted = p.answered(lambda: p.click('cmdBGimage'), 0, photo)
    check(not wanted.get('directory') and not wanted.get('multiple'), 'no single file is asked for: %s' % wanted)
    check('*.jpg' in json.dumps(wanted['filters']), 'the kind of file is not told: %s' % wanted)
    p.window('frmMain')
    until(lambda: p.widget('txtBGimage')['text'] == photo, 'the photo behind the collage')
    p.shortcut('cmdCancel')
    quit_by_keys(p)


on_own_bus()
collage.run(play, PortalProgram)
