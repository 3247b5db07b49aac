"""What both ways through the program share: photos, the welcome, saved files and their sizes."""
import glob
import os
import shutil
import subprocess
import sys

import screen


def started(kind, photos_brought):
    app, plugins, photos = sys.argv[1:4]
    program = kind(app, plugins)
    program.photos = os.path.join(program.folder, 'my photos')
    os.makedirs(program.photos)
    for path in sorted(glob.glob(os.path.join(photos, '*.jpg')))[:photos_brought]:
        shutil.copy(path, program.photos)
    return program


def check(is_so, told):
    if not is_so:
        raise AssertionError(told)


def check_saved(program, path, size):
    screen.until(lambda: os.path.exists(path) and os.path.getsize(path) > 0, path)
    check(program.picture_of(path) == size, '%s is %s, not %s' % (path, program.picture_of(path), size))


def check_told(path, dpi):
    """A saved poster tells its size on paper, sRGB and the program, and nothing else."""
    told = subprocess.run(['identify', '-units', 'PixelsPerInch', '-format', '%x %y %[icc:description]', path],
                          check=True, capture_output=True, text=True).stdout
    check(told.replace(' PixelsPerInch', '').split(' ', 2) == [str(dpi), str(dpi), 'sRGB built-in'], '%s tells %s' % (path, told))
    notes = subprocess.run(['exiv2', '-PEIXkt', 'pr', path], capture_output=True, text=True).stdout.split()
    check(notes == ['Exif.Image.Software', 'Tessaloom'], '%s tells %s' % (path, notes))


def changed(program, act, told):
    """Does something and waits until a new preview is on disk."""
    file = program.finished()
    act()
    screen.until(lambda: program.finished() not in ('', file), 'a new preview after ' + told)


def changed_preview(program, act, told):
    """Does something and waits until a new preview is on disk and on the screen."""
    pixels = program.pixels('picSample')
    changed(program, act, told)
    screen.until(lambda: program.pixels('picSample') != pixels, 'the new preview on the screen after ' + told)


def place_of_keyboard(program):
    """Which widget has the keyboard, by name and place; nothing where it is one that the program doesn't tell of."""
    return next(((each['name'], each['x'], each['y']) for each in program.look().get('widgets', []) if each.get('focus')), None)


def focused_on(program, name):
    """Presses Tab until the widget of that name has the keyboard, as somebody without a mouse does."""
    for _ in range(120):
        if screen.until(lambda: program.find(name), name).get('focus'):
            return
        before = place_of_keyboard(program)
        program.keys('Tab')
        # A second Tab before the first has arrived would lead past the widget.
        if before is not None:
            screen.until(lambda: place_of_keyboard(program) != before, 'the keyboard to leave %s' % before[0])
    raise AssertionError('the Tab key never comes to ' + name)


def welcomed(program):
    """Answers the welcome of the first start."""
    program.window('QMessageBox')
    program.keys('Return')
    program.window('frmMain')


def folder_by_mouse(program):
    program.window('frmSelectPhotos')
    program.click('cmdCards')
    program.window('QFileDialog')
    program.type_into('fileNameEdit', program.photos)
    program.keys('Return')


def name_by_keys(program, path):
    program.window('QFileDialog')
    focused_on(program, 'fileNameEdit')
    program.keys('ctrl+a')
    program.type(path)
    program.keys('Return')


def folder_by_keys(program):
    program.window('frmSelectPhotos')
    program.shortcut('cmdCards')
    name_by_keys(program, program.photos)


def quit_by_mouse(program):
    program.click('mnuFile')
    program.click('mnuQuit')
    ended(program)


def quit_by_keys(program):
    program.shortcut('mnuFile')
    program.window('QMenu')
    program.shortcut('mnuQuit')
    ended(program)


def save_each_way(program, way):
    """Saves the collage that is open in three sizes, and over a file with each answer to the question."""
    full, web, custom, second = (os.path.join(program.folder, name + '.jpg')
                                 for name in ('full', 'web', 'custom', 'second'))
    way.save(program, 'optFull', full)
    check_saved(program, full, (2000, 3000))
    check_told(full, 100)
    way.save(program, 'optWeb', web)
    check_saved(program, web, (500, 750))
    check_told(web, 25)
    way.save(program, 'optCustom', custom, '1200')
    check_saved(program, custom, (800, 1200))
    check_told(custom, 40)
    before = os.stat(full).st_mtime_ns
    way.save(program, 'optFull', full)
    way.answer(program, 'Cancel')
    program.window('frmImage')
    check(os.stat(full).st_mtime_ns == before, 'Cancel changed the file')
    way.save(program, 'optFull', full)
    way.answer(program, 'No')
    way.name_file(program, second)
    check_saved(program, second, (2000, 3000))
    program.window('frmImage')
    check(os.stat(full).st_mtime_ns == before, 'No changed the file')
    way.save(program, 'optWeb', full)
    way.answer(program, 'Yes')
    screen.until(lambda: os.stat(full).st_mtime_ns != before, 'the file to be replaced')
    check_saved(program, full, (500, 750))
    program.window('frmImage')


def ended(program):
    screen.until(lambda: program.process.poll() is not None, 'the end of the program')
    check(program.process.returncode == 0, 'the program ended with %d' % program.process.returncode)


def run(play, kind=screen.Program, photos=20):
    # As a rule as many photos as the first design has places, and more: nothing is asked.
    program = started(kind, photos)
    try:
        play(program)
    except BaseException:
        seen = program.look() if program.process.poll() is None else {}
        print('in front:', seen.get('window'), seen.get('class'), repr(seen.get('title')), repr(seen.get('message', '')))
        keep = os.environ.get('TESSALOOM_SCREENS')
        if keep and seen:
            program.keep(screen.WHOLE, os.path.join(keep, 'failed.png'))
        raise
    finally:
        program.close()
    print('the program did all that was asked of it')
