#!/usr/bin/env python3
"""A second start of the program on a data folder that a window is open on: it says so, ends, and leaves all as it was.
After a kill the next start is a first one again."""
import os
import sys

import screen
from collage import check, quit_by_mouse, run, welcomed
from screen import until


def contents(folder):
    """Every file below the folder, with its time and size."""
    found = {}
    for place, _, names in os.walk(folder):
        for name in names:
            path = os.path.join(place, name)
            found[path] = (os.stat(path).st_mtime_ns, os.stat(path).st_size)
    return found


def refused(p):
    before = contents(p.data)
    second = screen.Program(*sys.argv[1:3], beside=p)
    try:
        box = second.window('QMessageBox')
        check(box['message'].startswith('Tessaloom is open already, with the data folder') and p.data in box['message'],
              'the box says ' + box['message'])
        second.keys('Return')
        until(lambda: second.process.poll() is not None, 'the end of the second program')
        check(second.process.returncode == 1, 'it ended with %d' % second.process.returncode)
    finally:
        second.close()
    check(contents(p.data) == before, 'the second program changed the data folder')


def play(p):
    welcomed(p)
    with open(os.path.join(p.data, 'piclists', 'last_photos.pls'), 'w') as selection:
        selection.write('U the selection of the open window\r\n')
    refused(p)
    p.focused = None
    p.window('frmMain')
    p.process.kill()
    p.process.wait()
    p.start_program(sys.argv[2])
    p.window('frmMain')
    refused(p)
    p.focused = None
    p.window('frmMain')
    quit_by_mouse(p)


run(play)
