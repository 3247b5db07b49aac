#!/usr/bin/env python3
"""Photos that go and come while the built program is open: the preview and the poster without them, no poster without any, and "Ok" in the
choice of photos, which looks at the folder again."""
import os
import shutil
import subprocess

import screen
from collage import changed_preview, check, check_saved, folder_by_mouse, quit_by_mouse, run, welcomed
from collage_by_mouse import choose_design, make_full_size, save


def keep(p, name):
    folder = os.environ.get('TESSALOOM_SCREENS')
    if folder:
        p.keep(screen.WHOLE, os.path.join(folder, name + '.png'))


def message(p):
    return p.window('QMessageBox')['message']


def confirmed(p, shot):
    keep(p, shot)
    p.keys('Return')


def black_share(path):
    """Percent of the picture that is black."""
    told = subprocess.run(['convert', path, '-fuzz', '2%', '-fill', 'white', '+opaque', 'black', '-format', '%[fx:100*(1-mean)]', 'info:'],
                          check=True, capture_output=True, text=True).stdout
    return float(told)


def one_vanishes_from_the_preview(p, photo):
    """The preview that follows lacks it and one box names it; no other change names it again, nor does an undo show it."""
    os.rename(photo, photo + '.away')
    p.click('optSmall')
    told = message(p)
    check(told.count(photo + ": it isn't there any more") == 1, told)
    confirmed(p, 'vanished_preview')
    p.window('frmMain')
    p.widget('cmdFlurn')
    changed_preview(p, lambda: p.click('optLarge'), 'a change after a photo has gone')
    keep(p, 'vanished_preview_without')
    changed_preview(p, lambda: p.keys('ctrl+z'), 'an undo after a photo has gone')
    p.widget('cmdFlurn')
    os.rename(photo + '.away', photo)
    changed_preview(p, lambda: p.click('optMedium'), 'a change after the photo has come back')
    shutil.rmtree(os.path.join(p.photos, 'sample_thumbs'))
    changed_preview(p, lambda: p.click('optNone'), 'a change after the thumbnails have gone')
    check(os.path.isdir(os.path.join(p.photos, 'sample_thumbs')), 'there are no thumbnails')
    p.widget('cmdFlurn')


def some_vanish(p, photos):
    """One is deleted, one renamed, one cut short: the poster has the others."""
    deleted, renamed, cut = (os.path.join(p.photos, name) for name in photos[:3])
    os.remove(deleted)
    os.rename(renamed, renamed + '.old')
    os.truncate(cut, os.path.getsize(cut) // 2)
    p.click('cmdFlurn')
    told = message(p)
    for line in (deleted + ": it isn't there any more", renamed + ": it isn't there any more", cut + ': it was cut short'):
        check(told.count(line) == 1, line + ' in: ' + told)
    confirmed(p, 'vanished_some')
    screen.until(lambda: p.look().get('window') == 'frmImage', 'the finished collage')
    poster = os.path.join(p.folder, 'without.jpg')
    save(p, 'optFull', poster)
    check_saved(p, poster, (2000, 3000))
    p.window('frmImage')
    check(black_share(poster) < 5, 'black: %s' % black_share(poster))
    p.click('cmdClose')
    p.window('frmMain')
    p.widget('cmdFlurn')


def all_vanish(p):
    shutil.move(p.photos, p.photos + ' gone')
    for _ in range(2):
        p.click('cmdFlurn')
        told = message(p)
        check('None of your photos can be used:' in told, told)
        confirmed(p, 'vanished_all')
        p.window('frmMain')
        p.widget('cmdFlurn')


def new_ones_come(p, kept, cut):
    """The folder is there again, with two photos less, the one that was cut short whole, and a new one."""
    shutil.move(p.photos + ' gone', p.photos)
    shutil.copy(kept, cut)
    shutil.copy(kept, os.path.join(p.photos, 'zz new.jpg'))
    before = p.finished()
    p.click('cmdPhotos')
    p.window('frmSelectPhotos')
    p.click('cmdOk')
    check(message(p) == cut + ' IS NEWER', message(p))
    p.keys('Return')
    p.window('frmMain')
    screen.until(lambda: p.finished() not in ('', before), 'a preview of the photos that are there')
    check(os.path.exists(os.path.join(p.photos, 'sample_thumbs', 'zz new.jpg')), 'the new photo was not seen')
    p.widget('cmdFlurn')
    keep(p, 'vanished_back')
    make_full_size(p)
    p.click('cmdClose')
    p.window('frmMain')
    p.widget('cmdFlurn')


def play(p):
    photos = sorted(os.listdir(p.photos))
    kept = os.path.join(p.folder, 'kept.jpg')
    shutil.copy(os.path.join(p.photos, photos[5]), kept)
    welcomed(p)
    choose_design(p)
    folder_by_mouse(p)
    p.window('frmMain')
    p.widget('cmdFlurn')
    screen.until(p.finished, 'the first preview')
    one_vanishes_from_the_preview(p, os.path.join(p.photos, photos[4]))
    some_vanish(p, photos)
    all_vanish(p)
    new_ones_come(p, kept, os.path.join(p.photos, photos[2]))
    p.click('cmdCancel')
    quit_by_mouse(p)


if __name__ == '__main__':
    run(play, photos=24)  # though some vanish, as many as the first design has places
