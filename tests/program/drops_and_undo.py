"""Photos dragged from another program into each window of the built one that takes them, and the way back by keys, with real mouse
and key events."""
import glob
import os
import shutil
import sys

import collage
import screen
from collage import check
from drag import Dragged, offer

SHOTS = os.environ.get('TESSALOOM_SCREENS')


def keep(program, name):
    if SHOTS:
        program.keep(screen.WHOLE, os.path.join(SHOTS, name))


def hovered(program, dragged, sentence, shot):
    at = program.widget('mnuQuick') if program.find('mnuQuick') else program.widget('cmdHelp')
    x, y = at['x'] + 60, at['y'] + (60 if program.find('mnuQuick') else 0)

    def said():
        dragged.over(x, y)  # a hand is never quite still
        return sentence in offer(program)
    screen.until(said, sentence)
    keep(program, shot)


def gathered(program, source, files, one_more):
    """A selection, and the editor of its list."""
    program.click('mnuPictures')
    program.window('QMenu')
    program.click('mnuNewList')
    program.window('frmPictureName')
    program.type('Sea')
    program.keys('Return')
    program.window('frmPhotoList')
    together = Dragged(program, source, *files)
    hovered(program, together, 'to the selection', 'drop_gathered.png')
    together.let_go('copied', lambda: program.find('lblCount')['text'].endswith(' %d' % len(files)))
    program.click('cmdEdit')
    program.window('frmPictures')
    program.widget('cmdAdd')
    added = Dragged(program, source, one_more)
    hovered(program, added, 'at this place', 'drop_edited.png')
    added.let_go('copied', lambda: program.find('cmdSave') and program.find('cmdSave')['enabled'])
    program.click('cmdSave')
    program.window('frmPhotoList')
    screen.until(lambda: program.find('lblCount')['text'].endswith(' %d' % (len(files) + 1)), 'one photo more in the list')
    program.click('cmdDone')
    program.window('frmMain')


def chosen(program, source, few):
    program.click('mnuQuick')
    program.window('frmSelectPhotos')
    those = Dragged(program, source, few)
    hovered(program, those, 'use these photos', 'drop_chosen.png')
    those.let_go('copied', program.finished)
    program.window('frmMain')
    program.widget('cmdFlurn')
    program.click('cmdCancel')
    program.widget('mnuQuick')


def play(program, source):
    collage.welcomed(program)
    files = sorted(glob.glob(os.path.join(program.photos, '*.jpg')))
    few = os.path.join(program.folder, 'few')
    os.makedirs(few)
    for path in files[:4]:
        shutil.copy(path, few)

    refused = Dragged(program, source, 'https://example.org/a.jpg')
    hovered(program, refused, 'Only files of this computer', 'drop_refused.png')
    refused.let_go('refused', lambda: not offer(program))

    away = Dragged(program, source, *files)
    hovered(program, away, 'quick collage', 'drop_quick.png')
    def gone():
        away.over(1540, 1000)
        return not offer(program)
    screen.until(gone, 'the sentence to go with the drag')
    away.let_go('refused', lambda: not offer(program))
    check(program.find('mnuQuick'), 'a drag that leaves begins nothing')

    gathered(program, source, files, os.path.join(few, os.path.basename(files[0])))
    chosen(program, source, few)

    begun = Dragged(program, source, *files)
    hovered(program, begun, 'quick collage', 'drop_quick.png')
    begun.let_go('copied', lambda: program.find('cmdFlurn'))  # a preview of before is there
    program.widget('cmdFlurn')
    check(all(os.path.exists(path) for path in files), 'the photos stay where they are')
    keep(program, 'drop_begun.png')

    before = program.finished()
    other = Dragged(program, source, few)
    hovered(program, other, 'instead of those', 'drop_instead.png')
    other.let_go('copied', lambda: program.finished() not in ('', before))
    program.widget('cmdFlurn')
    few_drawn = program.finished()
    keep(program, 'drop_taken.png')

    collage.changed_preview(program, lambda: program.click('optHuge'), 'a border')
    huge = program.finished()
    program.keys('ctrl+z')
    screen.until(lambda: program.finished() == few_drawn, 'the preview without the border')
    check(program.find('optNone')['checked'], 'the border is as it was')
    program.keys('ctrl+z')
    screen.until(lambda: program.finished() == before, 'the preview of the first photos, byte by byte')
    program.keys('ctrl+z')
    for back in (few_drawn, huge):
        program.keys('ctrl+shift+z')
        screen.until(lambda: program.finished() == back, 'the way forward')
    keep(program, 'undo_forward.png')

    program.click('txtCaption')
    program.type('Sea')
    screen.until(lambda: program.find('txtCaption')['text'] == 'Sea', 'the caption')
    program.keys('ctrl+z')
    screen.until(lambda: program.find('txtCaption')['text'] == '', 'the undo of the box itself')
    check(program.find('optHuge')['checked'], 'the keys were the box\'s')
    program.keys('ctrl+z')
    screen.until(lambda: program.find('optNone')['checked'], 'the undo of the window, from the box')


def main():
    program = collage.started(collage.screen.Program, 12)
    try:
        play(program, os.path.join(sys.argv[2], os.pardir, 'bin', 'drag_source'))
    except BaseException:
        keep(program, 'drop_failed.png')
        raise
    finally:
        program.close()


main()
