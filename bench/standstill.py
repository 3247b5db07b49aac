#!/usr/bin/env python3
"""How long the built program lets no event through while it works, on a virtual display:
standstill.py APP PLUGINS PHOTOS [DESIGN...]. Prints the longest time for counting and thumbnails, for a change of a
setting and for a full run. The thumbnails beside the photos are removed first."""
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
    app, plugins, photos = sys.argv[1:4]
    program = Program(app, plugins)
    program.window('QMessageBox')
    program.keys('Return')
    program.window('frmMain')
    for number in [int(word) for word in sys.argv[4:]] or [0, 6]:
        measure(program, os.path.abspath(photos), number)
    program.close()


main()
