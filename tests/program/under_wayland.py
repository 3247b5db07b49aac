#!/usr/bin/env python3
"""A first collage by keyboard alone in the built program as a client of Wayland: of a compositor that has its own screen,
keyboard and mouse on the display that nobody sees. Where its windows stand no client is told, so nothing is clicked."""
import os
import re
import subprocess

from collage import check, check_saved, focused_on, folder_by_keys, name_by_keys, quit_by_keys, run, welcomed
from screen import Program, until


class WaylandProgram(Program):
    def start_program(self, plugins):
        os.chmod(self.folder, 0o700)
        self.compositor = None
        told = os.path.join(self.folder, 'weston.log')
        with open(told, 'w') as log:
            self.compositor = subprocess.Popen(
                ['weston', '--backend=x11-backend.so', '--use-pixman', '--socket=' + self.socket_name(), '--idle-time=0',
                 '--width=1500', '--height=1100'], env=self.environment, stdout=log, stderr=subprocess.STDOUT)
        until(lambda: os.path.exists(os.path.join(self.folder, self.socket_name())), 'the compositor')
        window = until(lambda: re.findall(r'window id (\d+)', open(told).read()), 'the window of the compositor')
        self.tool('windowfocus', '--sync', window[0])
        super().start_program(plugins)

    def socket_name(self):
        return 'wayland-of-test'

    def shown_by(self):
        return {'QT_QPA_PLATFORM': 'wayland', 'WAYLAND_DISPLAY': self.socket_name()}

    def focus(self, window):
        """The compositor gives the keys to the window that came last."""
        return True

    def close(self):
        if self.process:
            self.process.kill()
            self.process.wait()
        if self.compositor:
            self.compositor.kill()
            self.compositor.wait()
        super().close()


def is_client(p):
    """Whether the program has loaded what speaks to the compositor, and nothing that would speak to the display."""
    with open('/proc/%d/maps' % p.process.pid) as maps:
        loaded = maps.read()
    return 'libQt6WaylandClient' in loaded and 'libqxcb' not in loaded


def play(p):
    welcomed(p)
    check(is_client(p), 'the program is no client of Wayland')
    p.shortcut('mnuDesigned')
    p.window('frmThemes')
    p.shortcut('optBlock')
    focused_on(p, 'optDesign_0')
    p.keys('Down', 'Up', 'Return')
    folder_by_keys(p)
    p.window('frmMain')
    p.widget('cmdFlurn')
    until(p.finished, 'the first preview')
    p.shortcut('cmdFlurn')
    p.window('frmImage')
    p.shortcut('cmdSave')
    p.window('frmSize')
    p.keys('Return')
    path = os.path.join(p.folder, 'flurn.jpg')
    name_by_keys(p, path)
    check_saved(p, path, (2000, 3000))
    p.window('frmImage')
    p.keys('Escape')
    p.window('frmMain')
    p.shortcut('cmdCancel')
    quit_by_keys(p)


run(play, WaylandProgram)
