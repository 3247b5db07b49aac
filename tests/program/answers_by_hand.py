#!/usr/bin/env python3
"""Every control of the finishing stage answers in the built program: lists that are typed into, the wheel, the
preview's switch, and the keys of a desktop."""
import os

from collage import changed_preview, check, ended, focused_on, folder_by_keys, place_of_keyboard, run, welcomed
from screen import until


def begin_quick(p):
    """To the finishing stage, pressing the space bar as somebody does who waits."""
    p.shortcut('mnuQuick')
    folder_by_keys(p)
    p.window('frmMain')
    until(lambda: p.finished() and p.find('cmdFlurn') and p.find('cmdFlurn').get('enabled'), 'the first preview')
    until(lambda: place_of_keyboard(p), 'the keyboard')
    check(place_of_keyboard(p)[0] == 'optBlock', 'the keyboard begins at %s' % (place_of_keyboard(p),))
    p.keys('space')
    check(p.find('picSample'), 'the space bar dropped the collage')


def typed(p, name, *keys):
    focused_on(p, name)
    p.keys('End', *['BackSpace'] * 4)
    p.keys(*keys)


def lists_take_what_is_typed(p):
    for name, emptied in (('cmbFrame', '0'), ('cmbShadow', '0'), ('cmbSize', '40')):
        typed(p, name)
        until(lambda: p.find(name)['text'] == emptied, '%s in the emptied %s, not %s' % (emptied, name, p.find(name)['text']))
        until(lambda: p.find('cmdFlurn').get('enabled'), 'the preview')
        p.keys('2', '5')
        until(lambda: p.find(name)['text'] == '25', '25 in %s, not %s' % (name, p.find(name)['text']))
        until(lambda: p.find('cmdFlurn').get('enabled'), 'the preview')
    for keys in (('0', 'period', '5'), ('minus', '5')):
        typed(p, 'cmbFrame', *keys)
        until(lambda: p.find('cmbFrame')['text'] == '0', '0 in cmbFrame, not ' + p.find('cmbFrame')['text'])


def wheel_leaves_lists_alone(p):
    focused_on(p, 'chkMatch')
    for name in ('cmbFrame', 'cmbShadow', 'cmbSize', 'cmbSpace', 'cmbBlanks'):
        before, keyboard = p.find(name)['text'], place_of_keyboard(p)
        p.point_at(p.widget(name))
        p.tool('click', '5')
        p.tool('click', '4')
        p.tool('click', '4')
        p.ask('look')
        check(p.find(name)['text'] == before, 'the wheel changed ' + name)
        check(place_of_keyboard(p) == keyboard, 'the wheel took the keyboard')


def caption_takes_what_is_typed(p):
    """Faster than previews are made."""
    text = 'by the sea a b c d e f and all the way back'
    p.type_into('txtCaption', text)
    until(lambda: p.find('txtCaption')['text'] == text or len(p.find('txtCaption')['text']) >= len(text), 'the caption')
    until(lambda: p.find('cmdFlurn').get('enabled'), 'the preview')
    check(p.find('txtCaption')['text'] == text, 'the caption is %r' % p.find('txtCaption')['text'])
    p.type_into('txtCaption', ' ')
    p.keys('BackSpace')
    until(lambda: p.find('txtCaption')['text'] == '' and p.find('cmdFlurn').get('enabled'), 'the caption to go')


def preview_goes_on(p):
    for option in ('optLandscape', 'optSquare', 'optPortrait'):
        changed_preview(p, lambda: p.click(option), option)
        check(p.find('optPreview')['checked'] and not p.find('optSample')['checked'], 'the preview is off')


def background_goes(p):
    """A photo behind the collage, and its box emptied again."""
    photo = os.path.join(p.photos, sorted(os.listdir(p.photos))[0])

    def choose():
        p.click('optBGimage')
        p.window('QFileDialog')
        p.type_into('fileNameEdit', photo)
        p.keys('Return')
        p.window('frmMain')
    plain = p.finished()
    changed_preview(p, choose, 'the photo behind')

    def empty():
        p.click('txtBGimage')
        p.keys('ctrl+a', 'Delete')
    changed_preview(p, empty, 'the box emptied')
    until(lambda: p.finished() == plain, 'the picture of the plain ground')
    check(p.find('optSolid')['checked'] and p.find('optPreview')['checked'], 'another ground, or no preview')
    p.click('optBGimage')
    p.window('QFileDialog')
    p.keys('Escape')
    p.window('frmMain')
    until(lambda: p.find('optSolid')['checked'], 'the plain ground after a cancel')


def keys_of_a_desktop(p):
    p.keys('ctrl+q')
    until(lambda: p.find('mnuQuick'), 'the choosing stage')
    p.keys('F10')
    p.window('QMenu')
    check(p.find('mnuQuit'), 'no menu')
    p.keys('Escape', 'Escape')
    p.window('frmMain')
    p.shortcut('mnuDesigned')
    p.window('frmThemes')
    p.keys('Escape')
    p.window('frmMain')
    p.keys('ctrl+q')
    ended(p)


def play(p):
    welcomed(p)
    begin_quick(p)
    lists_take_what_is_typed(p)
    wheel_leaves_lists_alone(p)
    caption_takes_what_is_typed(p)
    preview_goes_on(p)
    background_goes(p)
    keys_of_a_desktop(p)


if __name__ == '__main__':
    run(play)
