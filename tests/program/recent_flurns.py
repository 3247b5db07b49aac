#!/usr/bin/env python3
"""Flurns opened again in the built program, by mouse: made, kept beside the picture, the program started once more, chosen in
"Recent flurns", dropped, and given on the command line."""
import glob
import hashlib
import os
import shutil
import subprocess
import sys

import collage
import screen
from collage import check, run
from drag import Dragged, offer

SHOTS = os.environ.get('TESSALOOM_SCREENS')
PLUGINS = sys.argv[2]
SOURCE = os.path.join(PLUGINS, os.pardir, 'bin', 'drag_source')


def keep(program, name):
    if SHOTS:
        program.keep(screen.WHOLE, os.path.join(SHOTS, name))


def bytes_of(path):
    with open(path, 'rb') as file:
        return file.read()


def make(program):
    """Clicks Flurn and gives the bytes of the poster."""
    program.click('cmdFlurn')
    screen.until(lambda: program.look().get('window') == 'frmImage', 'the finished collage')
    return bytes_of(os.path.join(program.data, 'tmp', 'finished.jpg'))


def save_with_recipe(program, path):
    program.click('cmdSave')
    program.window('frmSize')
    program.click('chkRecipe')
    keep(program, 'recent_save.png')
    program.click('cmdOk')
    program.window('QFileDialog')
    program.type_into('fileNameEdit', path)
    program.keys('Return')
    screen.until(lambda: os.path.exists(path[:-4] + '.flurn'), 'the recipe beside the picture')


def back_to_choosing(program):
    program.click('cmdClose')
    program.window('frmMain')
    program.click('cmdCancel')
    program.widget('mnuQuick')


def started_again(program, *words):
    collage.quit_by_mouse(program)
    program.start_program(PLUGINS, *words)
    program.window('frmMain')


def open_recent(program):
    program.click('mnuFile')
    program.click('mnuRecent')
    program.window('frmRecent')


def hand_over(program, flurn):
    """A second start with a flurn: the window that is open takes it, and the second program ends without a word."""
    told = subprocess.run([os.path.join(program.app, 'tessaloom'), os.path.relpath(flurn, program.folder)], cwd=program.folder,
                          env=dict(program.environment, **program.shown_by()), timeout=screen.PATIENCE)
    check(told.returncode == 0, 'the second program ended with %d' % told.returncode)
    program.focused = None
    program.window('frmMain')
    program.widget('cmdFlurn')


def refuse_at_work(program, flurn):
    """The same while a collage is made: it stays, and the second program says what to do."""
    preview = program.finished()
    second = screen.Program(program.app, PLUGINS, flurn, beside=program)
    try:
        box = second.window('QMessageBox')
        check(box['message'].startswith('Tessaloom is open already, and at work.') and flurn in box['message'],
              'the box says ' + box['message'])
        keep(second, 'recent_at_work.png')
        second.keys('Return')
        screen.until(lambda: second.process.poll() is not None, 'the end of the second program')
        check(second.process.returncode == 1, 'it ended with %d' % second.process.returncode)
    finally:
        second.close()
    program.focused = None
    program.window('frmMain')
    program.widget('cmdFlurn')
    check(program.finished() == preview, 'another collage than before')


def expect_same(program, preview, poster, pixels, shot):
    program.widget('cmdFlurn')
    screen.until(lambda: program.finished() == preview, 'the preview of then, byte by byte')
    screen.until(lambda: program.pixels('picSample') == pixels, 'the preview of then on the screen')
    check(program.find('optLarge')['checked'] and program.find('optScatter')['checked'], 'other settings than then')
    keep(program, shot)
    check(make(program) == poster, 'another poster')
    back_to_choosing(program)


def play(program):
    collage.welcomed(program)
    open_recent(program)
    check('No flurn yet' in program.find('lblEmpty')['text'], 'the empty list says nothing')
    keep(program, 'recent_empty.png')
    program.click('cmdCancel')
    program.window('frmMain')

    program.click('mnuQuick')
    collage.folder_by_mouse(program)
    program.window('frmMain')
    program.widget('cmdFlurn')
    screen.until(program.finished, 'the first preview')
    for name in ('optScatter', 'optLarge', 'cmdShuffle'):
        collage.changed_preview(program, lambda: program.click(name), name)
    collage.changed_preview(program, lambda: program.type_into('txtCaption', 'Summer'), 'a caption')
    screen.until(lambda: program.find('txtCaption')['text'] == 'Summer', 'the caption')
    poster = make(program)
    # What was on show when Flurn was clicked lies beside the recipe.
    preview = hashlib.sha1(bytes_of(glob.glob(os.path.join(program.data, 'recipes', '*.jpg'))[0])).hexdigest()
    kept = os.path.join(program.folder, 'holiday.jpg')
    save_with_recipe(program, kept)
    check(b'/my photos' not in bytes_of(kept), 'the picture tells where the photos are')
    program.window('frmImage')
    program.click('cmdClose')
    program.window('frmMain')
    pixels = program.pixels('picSample')
    program.click('cmdCancel')
    program.widget('mnuQuick')

    started_again(program)
    open_recent(program)
    keep(program, 'recent_list.png')
    program.keys('Return')
    program.window('frmMain')
    expect_same(program, preview, poster, pixels, 'recent_opened.png')

    # Another computer would have the batch program.
    again = os.path.join(program.folder, 'again.jpg')
    flurn = os.path.join(program.folder, 'holiday.flurn')
    subprocess.run([os.path.join(program.app, 'tessaloom-batch'), '--recipe', flurn, '--out', again], check=True,
                   env=program.environment)
    check(bytes_of(again) == poster, 'another poster without a window')

    started_again(program, flurn)
    program.widget('cmdFlurn')
    check(make(program) == poster, 'another poster from the command line')
    back_to_choosing(program)

    hand_over(program, flurn)
    refuse_at_work(program, flurn)
    check(make(program) == poster, 'another poster of the flurn that a second start brought')
    back_to_choosing(program)

    moved = os.path.join(program.folder, 'moved')
    os.rename(program.photos, moved)
    drag = Dragged(program, SOURCE, flurn)
    at = program.widget('mnuQuick')

    def said():
        drag.over(at['x'] + 60, at['y'] + 60)
        return 'open this flurn' in offer(program)
    screen.until(said, 'the offer to open it')
    keep(program, 'recent_drop.png')
    drag.let_go('copied', lambda: program.look().get('class') == 'QMessageBox')
    check('12 of the 12 photos' in program.look()['message'], 'what is gone is not named')
    keep(program, 'recent_moved.png')
    program.window('QMessageBox')
    program.click('Yes')
    program.window('QFileDialog')
    program.type_into('fileNameEdit', moved)
    program.keys('Return')
    program.widget('cmdFlurn')
    check(make(program) == poster, 'another poster of the photos that have moved')
    back_to_choosing(program)

    shutil.rmtree(moved)
    open_recent(program)
    program.click('cmdOk')
    program.window('QMessageBox')
    program.click('No')
    screen.until(lambda: 'None of the photos' in program.look().get('message', ''), 'that there is none')
    keep(program, 'recent_none.png')
    program.keys('Return')
    program.window('frmMain')
    open_recent(program)
    entries = len(os.listdir(os.path.join(program.data, 'recipes')))
    program.click('cmdRemove')
    screen.until(lambda: len(os.listdir(os.path.join(program.data, 'recipes'))) == entries - 2, 'the removal')
    keep(program, 'recent_removed.png')
    program.click('cmdCancel')
    program.window('frmMain')
    collage.quit_by_mouse(program)


run(play, photos=12)
