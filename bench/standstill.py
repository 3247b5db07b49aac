#!/usr/bin/env python3
"""How long the built program lets no event through while it works, on a virtual display:
standstill.py [--slow MILLISECONDS] APP PLUGINS PHOTOS [DESIGN...]. Prints the longest time for counting and thumbnails,
for a change of a setting and for a full run. The thumbnails beside the photos are removed first. With --slow every look at
a photo's file takes that long, as on a share far away."""
import os
import shutil
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', 'tests', 'program'))
from screen import Program, until  # noqa: E402


def standstill(program):
    return int(program.ask('standstill'))


def choose_design(program, number):
    program.click('mnuDesigned')
    program.window('frmThemes')
    program.click('optDesign_%d' % number)
    program.click('cmdOk')
    program.window('frmSelectPhotos')


def choose_folder(program, photos):
    program.click('cmdCards')
    program.window('QFileDialog')
    program.type_into('fileNameEdit', photos)
    standstill(program)
    program.keys('Return')
    program.window('frmMain')
    until(program.finished, 'the first preview')
    program.widget('cmdFlurn')


def measure(program, photos, number):
    shutil.rmtree(os.path.join(photos, 'sample_thumbs'), ignore_errors=True)
    choose_design(program, number)
    choose_folder(program, photos)
    thumbnails = standstill(program)
    before = program.finished()
    program.click('cmdShuffle')
    until(lambda: program.finished() not in ('', before), 'another preview')
    change = standstill(program)
    program.click('cmdFlurn')
    program.window('frmImage')
    run = standstill(program)
    program.click('cmdClose')
    program.window('frmMain')
    program.click('cmdCancel')
    program.widget('mnuDesigned')
    print('design %d: thumbnails and preview %d ms, a change %d ms, full run %d ms' % (number, thumbnails, change, run),
          flush=True)


def main():
    words = sys.argv[1:]
    if words[0] == '--slow':
        os.environ['TESSALOOM_SLOW_PHOTOS'] = words[1]
        os.environ['TESSALOOM_SLOW_FOLDER'] = os.path.abspath(words[4])
        words = words[2:]
    app, plugins, photos = words[:3]
    program = Program(app, plugins)
    program.window('QMessageBox')
    program.keys('Return')
    program.window('frmMain')
    for number in [int(word) for word in words[3:]] or [0, 6]:
        measure(program, os.path.abspath(photos), number)
    program.close()


main()
