#!/usr/bin/env python3
"""Photos of phones in the built program: what is asked when a folder holds some, and what comes of yes and of no."""
import os
import shutil
import subprocess
import sys

import screen
from collage import check, folder_by_mouse, quit_by_mouse, run, welcomed


def made_phone_photos(p):
    """Two of the photos lie on their side, one is a HEIC, one has another name; the rest stays as it is."""
    names = sorted(os.listdir(p.photos))
    for name in names[:2]:
        subprocess.run(['exiv2', '-Mset Exif.Image.Orientation 6', os.path.join(p.photos, name)], check=True)
    first, second = (os.path.join(p.photos, name) for name in names[2:4])
    subprocess.run(['heif-enc', first, '-o', first[:-4] + '.heic'], check=True, capture_output=True)
    os.remove(first)
    os.rename(second, second[:-4] + '.jpeg')
    return len(names)


def keep(p, name):
    folder = os.environ.get('TESSALOOM_SCREENS')
    if folder:
        p.keep(screen.WHOLE, os.path.join(folder, name + '.png'))


def choose_design(p):
    p.click('mnuDesigned')
    p.window('frmThemes')
    p.click('optBlock')
    p.click('optDesign_0')
    p.click('cmdOk')


def asked(p, count):
    seen = p.window('QMessageBox')
    check(seen['message'] == f'4 of the {count} photos are turned or in another format. Prepare copies that fit?', seen['message'])


def answered(p, text):
    p.shortcut(text)
    p.window('frmMain')
    p.widget('cmdFlurn')
    return screen.until(p.finished, 'the preview')


def prepared(p):
    place = os.path.join(p.data, 'prepared')
    return sorted(name for each in os.listdir(place) if each != 'in_use'
                  for name in os.listdir(os.path.join(place, each)) if name.endswith('.jpg')) if os.path.isdir(place) else []


def poster(p):
    p.click('cmdFlurn')
    screen.until(lambda: p.look().get('window') == 'frmImage', 'the finished collage')
    made = p.finished()
    p.click('cmdClose')
    p.window('frmMain')
    p.widget('cmdFlurn')
    return made


def opened_again_without_its_copies(p):
    """The copies are cleared between two starts: the flurn opens all the same."""
    made = poster(p)
    p.click('cmdCancel')
    p.widget('mnuQuick')
    quit_by_mouse(p)
    shutil.rmtree(os.path.join(p.data, 'prepared'))
    p.start_program(sys.argv[2])
    p.window('frmMain')
    p.click('mnuFile')
    p.click('mnuRecent')
    p.window('frmRecent')
    keep(p, 'phone_recent')
    p.click('cmdOk')
    p.window('frmMain')
    p.widget('cmdFlurn')
    check(len(prepared(p)) == 4, prepared(p))
    check(poster(p) == made, 'another poster')
    keep(p, 'phone_again')


def play(p):
    count = made_phone_photos(p)
    welcomed(p)
    choose_design(p)
    folder_by_mouse(p)
    asked(p, count)
    keep(p, 'phone_question')
    without = answered(p, 'No')
    keep(p, 'phone_no')
    check(prepared(p) == [], prepared(p))
    p.click('cmdPhotos')
    folder_by_mouse(p)
    asked(p, count)
    p.shortcut('Yes')
    screen.until(lambda: len(prepared(p)) == 4, 'the copies')
    p.window('frmMain')
    screen.until(lambda: p.finished() not in ('', without), 'a preview with the copies')
    p.widget('cmdFlurn')
    keep(p, 'phone_yes')
    opened_again_without_its_copies(p)
    p.click('cmdCancel')
    quit_by_mouse(p)


if __name__ == '__main__':
    run(play)
