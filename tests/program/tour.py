#!/usr/bin/env python3
"""A tour through the built program by mouse that leaves a picture of each stop in the folder TESSALOOM_SCREENS: what a
person sees who does the same. Only what chance has no hand in is shown, so that the next tour sees the same.

    TESSALOOM_SCREENS=FOLDER tour.py APP PLUGINS PHOTOS
"""
import glob
import os
import shutil
import sys
import tempfile
import time

import screen
from collage import changed_preview, check, quit_by_mouse, welcomed
from designs import changed_file, choose, entry, in_finishing_stage, kept, sample_of, shows

HOME = os.path.join(tempfile.gettempdir(), 'anna')  # always the same one: the windows show where the photos are


def started(app, plugins, photos):
    os.mkdir(HOME)  # there already: another tour is under way, or died
    program = screen.Program(app, plugins, home=HOME)
    program.photos = os.path.join(HOME, 'Pictures', 'Summer by the sea')
    os.makedirs(program.photos)
    for path in sorted(glob.glob(os.path.join(photos, '*.jpg')))[:24]:
        shutil.copy(path, program.photos)
    return program


def name_folder(p):
    p.window('QFileDialog')
    p.type_into('fileNameEdit', p.photos)
    p.keys('Return')


def choose_photos(p):
    p.window('frmSelectPhotos')
    p.click('cmdCards')
    name_folder(p)
    in_finishing_stage(p)


def finished(p, name):
    p.click('cmdFlurn')
    screen.until(lambda: p.look().get('window') == 'frmImage' and p.look()['active'], 'the finished collage')
    kept(p, name)
    p.click('cmdClose')
    back(p)


def at_rest(p):
    """Waits until no preview is being made: each letter of a caption makes one."""
    def stands():
        flurn = p.find('cmdFlurn')
        return flurn and flurn['enabled'] and p.finished()
    def rests():
        before = screen.until(stands, 'the end of the preview')
        time.sleep(0.5)
        return stands() == before
    screen.until(rests, 'the last preview')


def back(p):
    p.window('frmMain')
    p.click('cmdCancel')
    screen.until(lambda: p.find('mnuMatrix'), 'the choosing stage')


def see_design(p):
    p.click('mnuDesigned')
    p.window('frmThemes')
    p.click('optTheme')
    p.click('Autumn walk')
    kept(p, 'designs')
    p.click('cmdOk')
    choose_photos(p)
    p.type_into('txtCaption', 'Autumn')
    shows(p, 'txtCaption', 'Autumn')
    at_rest(p)
    kept(p, 'finishing')
    finished(p, 'finished')


def see_quick(p):
    p.click('mnuQuick')
    choose_photos(p)
    changed_preview(p, lambda: p.click('optLandscape'), 'optLandscape')
    at_rest(p)
    kept(p, 'quick')
    back(p)


def see_matrix(p):
    p.click('mnuMatrix')
    p.window('frmMatrix')
    choose(p, 'cmbRows', '4')
    shows(p, 'cmbColumns', '4')
    for name in ('chkResize', 'chkRotate'):
        changed_file(sample_of(p), lambda: p.click(name), name)
    kept(p, 'matrix')
    p.click('cmdCancel')
    p.window('frmMain')


def see_lettering(p):
    p.click('mnuLettering')
    p.window('frmLettering')
    p.click('txtLettering')
    for word in ('We', 'love', 'summer', '2026'):
        p.type(word)
        p.keys('Return')
    p.click('chkCenter')
    kept(p, 'lettering')  # not the collage: chance says which letter has which photo
    p.click('cmdCancel')
    p.window('frmMain')


def see_puzzle(p):
    p.click('mnuPuzzle')
    p.window('frmPuzzle')
    p.click('cmdOk')
    choose_photos(p)
    at_rest(p)
    kept(p, 'puzzle')
    back(p)


def see_list(p):
    entry(p, 'mnuPictures', 'mnuNewList')
    p.window('frmPictureName')
    p.type('Summer by the sea')
    p.click('cmdOk')
    p.window('frmPhotoList')
    p.click('cmdFolder')
    name_folder(p)
    p.window('frmPhotoList')
    shows(p, 'lblCount', 'Number of photos selected:   24')
    p.click('cmdDone')
    p.window('frmMain')
    entry(p, 'mnuPictures', 'mnuEditSelections')
    p.window('frmPictureList')
    p.click('Summer by the sea')
    p.click('cmdEdit')
    p.window('frmPictures')
    p.widget('cmdSave')
    kept(p, 'photo_list')
    p.click('cmdCancel')
    p.window('frmPictureList')
    p.click('cmdDone')
    p.window('frmMain')


def see_frames(p):
    entry(p, 'mnuFrames', 'mnuEditFrame')
    p.window('frmCustom')
    p.click('cardinals')
    p.click('cmdEdit')
    p.window('frmFrames')
    kept(p, 'frames')
    p.click('cmdCancel')
    p.window('frmMain')


def play(p):
    welcomed(p)
    kept(p, 'choosing')
    see_quick(p)
    see_matrix(p)
    see_lettering(p)
    see_puzzle(p)
    see_list(p)
    see_frames(p)
    see_design(p)  # last: its caption stays for the next collage
    quit_by_mouse(p)


def main():
    check('TESSALOOM_SCREENS' in os.environ and len(sys.argv) == 4, __doc__)
    program = started(*sys.argv[1:])
    try:
        play(program)
    except BaseException:
        program.keep(screen.WHOLE, os.path.join(os.environ['TESSALOOM_SCREENS'], 'failed.png'))
        raise
    finally:
        program.close()


main()
