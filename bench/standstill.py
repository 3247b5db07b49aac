#!/usr/bin/env python3
"""How long the built program lets no event through while it works, on a virtual display:
standstill.py [--slow MILLISECONDS] [--workers N] APP PLUGINS PHOTOS [DESIGN...]. Prints the longest time for counting and
thumbnails, for a change of a setting and for a full run. The thumbnails beside the photos are removed first. With --slow
every look at a photo's file takes that long, as on a share far away; with --workers that many work, however few cores
there are."""
import argparse
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


def given():
    words = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    words.add_argument('--slow', metavar='MILLISECONDS')
    words.add_argument('--workers', metavar='N')
    words.add_argument('app')
    words.add_argument('plugins')
    words.add_argument('photos', type=os.path.abspath)
    words.add_argument('designs', nargs='*', type=int, default=[0, 6])
    return words.parse_args()


def main():
    words = given()
    if words.slow:
        os.environ['TESSALOOM_SLOW_PHOTOS'] = words.slow
        os.environ['TESSALOOM_SLOW_FOLDER'] = words.photos
    if words.workers:
        os.environ['TESSALOOM_TOLD_CORES'] = words.workers
    program = Program(words.app, words.plugins)
    try:
        program.window('QMessageBox')
        program.keys('Return')
        program.window('frmMain')
        for number in words.designs:
            measure(program, words.photos, number)
    finally:
        program.close()


main()
