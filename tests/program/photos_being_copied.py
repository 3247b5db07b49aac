#!/usr/bin/env python3
"""Photos that are still being copied, and one that is replaced, while the built program looks at their folder, which lies
on a slow share: what isn't there yet is named once and taken as soon as it is, and a thumbnail shows what is there."""
import os
import shutil
import subprocess
import tempfile

import screen
from collage import check, check_saved, folder_by_mouse, quit_by_mouse, run, welcomed
from collage_by_mouse import choose_design, make_full_size, save

LOOK = '15'  # milliseconds that a look at a photo's file takes


def break_off(photos):
    """Leaves nothing of the first one and half of the others; gives what they were."""
    whole = {}
    for photo in photos:
        with open(photo, 'rb') as file:
            whole[photo] = file.read()
        with open(photo, 'wb') as file:
            file.write(whole[photo][:len(whole[photo]) // 2 if len(whole) > 1 else 0])
    return whole


def told_once(p, photos):
    """The one box that names them, and nothing else."""
    text = p.window('QMessageBox')['message']
    for photo in photos:
        check(text.count(photo + ': it was cut short or is still being copied') == 1, photo + ' in: ' + text)
    check('or wait until it is there' in text, text)
    p.keys('Return')


def level(path):
    """How bright a picture is on the whole, in percent."""
    return float(subprocess.run(['convert', path, '-format', '%[fx:100*mean]', 'info:'], check=True, capture_output=True,
                                text=True).stdout)


def is_looked_at(p):
    folder = os.path.join(p.photos, 'sample_thumbs')
    return os.path.isdir(folder) and any(name.endswith('.jpg') for name in os.listdir(folder))


def replace_in_the_midst(p, photo):
    """Each look takes its time, and the photo comes last: it is replaced behind the first look, or in the midst of it."""
    screen.until(lambda: is_looked_at(p), 'the first thumbnail')
    white = os.path.join(p.folder, 'white.jpg')
    subprocess.run(['convert', '-size', '900x600', 'xc:white', white], check=True)
    shutil.copystat(photo, white)
    os.replace(white, photo)


def play(p):
    photos = [os.path.join(p.photos, name) for name in sorted(os.listdir(p.photos))]
    coming, replaced = photos[1:3], photos[-1]
    welcomed(p)
    choose_design(p)
    whole = break_off(coming)
    folder_by_mouse(p)
    replace_in_the_midst(p, replaced)
    told_once(p, coming)
    p.window('frmMain')
    p.widget('cmdFlurn')
    screen.until(p.finished, 'the first preview')
    thumbnails = os.path.join(p.photos, 'sample_thumbs')
    check(level(os.path.join(thumbnails, os.path.basename(replaced))) > 99, 'a thumbnail of what was there before')
    for photo in coming:
        check(not os.path.exists(os.path.join(thumbnails, os.path.basename(photo))), photo + ' has a thumbnail')
        with open(photo, 'ab') as file:
            file.write(whole[photo][file.tell():])
    before = p.finished()
    p.click('cmdPhotos')
    p.window('frmSelectPhotos')
    p.click('cmdOk')
    p.window('frmMain')
    screen.until(lambda: p.finished() not in ('', before), 'a preview of all of them')
    for photo in coming:
        check(os.path.exists(os.path.join(thumbnails, os.path.basename(photo))), photo + ' was not looked at again')
    make_full_size(p)
    poster = os.path.join(p.folder, 'all.jpg')
    save(p, 'optFull', poster)
    check_saved(p, poster, (2000, 3000))
    p.window('frmImage')
    p.click('cmdClose')
    p.window('frmMain')
    p.click('cmdCancel')
    quit_by_mouse(p)


def far_away(app, plugins):
    home = tempfile.mkdtemp(prefix='tessaloom_')
    os.environ.update(TESSALOOM_SLOW_PHOTOS=LOOK, TESSALOOM_SLOW_FOLDER=os.path.join(home, 'my photos'))
    return screen.Program(app, plugins, home=home)


if __name__ == '__main__':
    run(play, far_away)
