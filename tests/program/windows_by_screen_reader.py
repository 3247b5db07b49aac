#!/usr/bin/env python3
"""Every window of the built program as a reader of the screen is told of it: each widget's role, name, states and value, held
against what stands on the screen at its place."""
import os

import collage
from by_screen_reader import checked, group_of
from collage import check, folder_by_mouse, name_by_keys
from designs import bitmap, entry, in_finishing_stage
from reader import HeardProgram, Reader, on_own_bus
from screen import until

WAYS = ('Quick flurn', 'Designed flurn', 'Matrix flurn', 'Lettering flurn', 'Puzzle flurn')
BUTTONS, BOXES = {'push button'}, {'text'}
ROLES = {'cmd': BUTTONS, 'OKB': BUTTONS, 'Can': BUTTONS, 'chk': {'check box'}, 'opt': {'radio button'}, 'cmb': {'combo box'},
         'txt': {'text', 'label'}, 'lbl': {'text', 'label'}, 'lst': {'list'}, 'Scr': {'slider'},
         'pic': {'push button', 'graphic', 'panel', 'filler'}}


def heard_by_place(window):
    """What is told of the window, by where it stands."""
    places = {}
    for one in window.inside():
        places.setdefault(one.place, []).append(one)
    return places


def value_fault(one, seen):
    """What is told otherwise than it stands there; nothing when all is told right."""
    text, role = seen['text'].replace('&', ''), one.role
    if role in ('check box', 'radio button') and ('checked' in one.states) != seen['checked']:
        return 'ticked'
    if role == 'radio button' and not group_of(one):
        return 'without a group'
    if role == 'text' and one.text != seen['text']:
        return 'told as %r' % one.text
    if role == 'label' and ''.join(text.split()) != ''.join(one.name.split()):
        return 'told as %r' % one.name
    if role == 'combo box':
        inside = [each.text for each in one.inside() if each.role == 'text'] or [one.name]
        if seen['text'] not in inside:
            return 'told as %r' % inside
    if ('sensitive' in one.states) != seen['enabled']:
        return 'enabled'
    if ('focused' in one.states) != seen['focus'] and role != 'combo box':
        return 'focused'
    return ''


def unspaced(title):
    """A title that is spaced out letter by letter as a reader says it."""
    words = [word.split(' ') for word in title.split('   ')]
    return ' '.join(''.join(word) for word in words) if all(len(each) == 1 for word in words for each in word) else title


def looked_at(program, reader, name):
    """Holds what is told of a window against what the screen shows."""
    window = reader.window(unspaced(program.window(name)['title']))
    checked(window)

    def compared():
        places, faults, count = heard_by_place(window), [], 0
        for seen in program.look()['widgets']:
            roles = ROLES.get(seen['name'][:3])
            if not roles or 'focus' not in seen or seen['window'] != name or seen['name'].endswith('_area'):
                continue
            at = (seen['x'], seen['y'], seen['width'], seen['height'])
            there = [one for one in places.get(at, []) if one.role in roles]
            count += 1
            if not there:
                faults.append('%s is told as %s' % (seen['name'], [one.role for one in places.get(at, [])]))
            elif value_fault(there[0], seen):
                faults.append('%s is %s' % (seen['name'], value_fault(there[0], seen)))
        return count, faults
    # A window that has just come up may still be on its way.
    last = []

    def agrees():
        last[:] = compared()
        return not last[1]
    try:
        until(agrees, 'what is told of ' + name)
    except AssertionError as error:
        raise AssertionError('%s: %s' % (name, last[1])) from error
    check(last[0] > 0, name + ' has no widgets')
    print('%s: %d widgets' % (name, last[0]))


def lists(p, reader):
    entry(p, 'mnuPictures', 'mnuNewList')
    looked_at(p, reader, 'frmPictureName')
    p.type('Sea')
    p.keys('Return')
    looked_at(p, reader, 'frmPhotoList')
    p.click('cmdFolder')
    name_by_keys(p, p.photos)
    p.window('frmPhotoList')
    until(lambda: p.find('cmdEdit'), 'photos to be edited')
    looked_at(p, reader, 'frmPhotoList')
    p.click('cmdEdit')
    p.window('frmPictures')
    p.widget('cmdCancel')
    looked_at(p, reader, 'frmPictures')
    p.click('cmdCancel')
    p.window('frmPhotoList')
    p.click('cmdDone')
    p.window('frmMain')
    entry(p, 'mnuPictures', 'mnuEditSelections')
    p.window('frmPictureList')
    p.click('Sea')
    looked_at(p, reader, 'frmPictureList')
    p.keys('Escape')


def designers(p, reader):
    for menu, name in (('mnuMatrix', 'frmMatrix'), ('mnuLettering', 'frmLettering'), ('mnuPuzzle', 'frmPuzzle')):
        p.window('frmMain')
        p.click(menu)
        looked_at(p, reader, name)
        p.keys('Escape')
    p.window('frmMain')
    p.click('mnuDesigned')
    looked_at(p, reader, 'frmThemes')
    p.click('cmdCancel')


def frames(p, reader):
    p.window('frmMain')
    entry(p, 'mnuFrames', 'mnuIcon')
    p.window('QFileDialog')
    p.type_into('fileNameEdit', bitmap(p, 'glow.bmp', 100, 90))
    p.keys('Return')
    looked_at(p, reader, 'frmIconName')
    p.keys('Escape')
    p.window('frmMain')
    entry(p, 'mnuFrames', 'mnuNewFrame')
    looked_at(p, reader, 'frmFrames')
    p.click('cmdFont')
    looked_at(p, reader, 'frmFont')
    p.keys('Escape')
    p.window('frmFrames')
    p.type_into('txtCaption', 'By the sea')
    p.click('cmdCaptions')
    looked_at(p, reader, 'frmCaptions')
    p.click('cmdDone')
    p.window('frmFrames')
    p.click('cmdSave')
    looked_at(p, reader, 'frmFrameName')
    p.type('Sea')
    p.keys('Return')
    p.window('frmMain')
    entry(p, 'mnuFrames', 'mnuEditFrame')
    looked_at(p, reader, 'frmCustom')
    p.click('cmdDone')


def collages(p, reader):
    p.window('frmMain')
    p.click('mnuQuick')
    looked_at(p, reader, 'frmSelectPhotos')
    folder_by_mouse(p)
    p.window('frmMain')
    until(lambda: p.finished() and p.find('cmdFlurn') and p.find('cmdFlurn').get('enabled'), 'the first preview')
    for style in ('optScatter', 'optMatrix', 'optShapes', 'optBlock'):
        collage.changed(p, lambda: p.click(style), style)
        until(lambda: p.find('cmdFlurn').get('enabled'), 'the preview')
        looked_at(p, reader, 'frmMain')
    p.click('cmdFont')
    looked_at(p, reader, 'frmFont')
    p.keys('Escape')
    p.window('frmMain')
    p.click('cmdFlurn')
    looked_at(p, reader, 'frmImage')
    p.click('cmdSave')
    looked_at(p, reader, 'frmSize')
    p.keys('Escape')
    p.window('frmImage')
    p.click('cmdClose')
    p.window('frmMain')
    p.click('cmdCancel')


def recent(p, reader):
    """The flurn that was just made is opened again by accessible actions alone."""
    p.window('frmMain')
    entry(p, 'mnuFile', 'mnuRecent')
    looked_at(p, reader, 'frmRecent')
    window = reader.window('Recent Flurns')
    flurns = [one for one in window.inside() if one.role == 'list item']
    check(len(flurns) == 1 and 'Quick Block' in flurns[0].name, 'the flurns are %s' % [one.name for one in flurns])
    check(not {'Help', 'Open file...', 'Remove from list', 'Cancel', 'Open'} -
          {one.name for one in window.inside() if one.role == 'push button'}, 'a button has no name')
    before = p.finished()
    reader.press(window, 'push button', 'Open')
    reader.gone('Recent Flurns')
    main = reader.window('Finishing touches')
    until(lambda: 'sensitive' in reader.find(main, 'push button', 'Flurn').states, 'the flurn to be open')
    check(p.finished() != before, 'no preview was made')
    reader.press(main, 'push button', 'Cancel')


def designed(p, reader):
    """From the picture on the first page: the ways to begin are buttons that do what their menus do."""
    p.window('frmMain')
    main = reader.window('Flurns')
    for way in WAYS:
        one = reader.find(main, 'push button', way)
        check({'Press'} <= set(one.actions) and {'focusable', 'showing', 'sensitive'} <= one.states, way + ' is no button')
    reader.press(main, 'push button', 'Designed flurn')
    p.window('frmThemes')
    p.keys('Return')
    p.window('frmSelectPhotos')
    folder_by_mouse(p)
    in_finishing_stage(p)
    looked_at(p, reader, 'frmMain')
    group = p.widget('frmCaption')
    p.tool('mousemove', '--sync', str(group['x'] + group['width'] - 12), str(group['y'] + group['height'] - 12))
    p.tool('click', '1')
    looked_at(p, reader, 'frmCaptionText')
    p.keys('Escape')
    p.window('frmMain')
    p.click('cmdCancel')


def asked(p, reader):
    """A question: its box, its text and its answers are told without spaced letters, and the keyboard is on an answer."""
    box = p.window('QMessageBox')
    window = reader.window(unspaced(box['title']))
    checked(window)
    texts = [one.name for one in window.inside() if one.role == 'label']
    check(box['message'] in texts, 'the text is told as %r' % texts)
    answers = [one for one in window.inside() if one.role == 'push button']
    check({'Yes', 'No'} <= {one.name for one in answers}, 'the answers are %s' % [one.name for one in answers])
    check(any('focused' in one.states for one in answers), 'the keyboard is on no answer')
    reader.press(window, 'push button', 'No')
    reader.gone(window.name)


def own_designs(p, reader):
    p.window('frmMain')
    entry(p, 'mnuDesign', 'mnuSaveDesign')
    looked_at(p, reader, 'frmNewDesign')
    p.type_into('txtName', 'My summer')
    p.click('OKButton')
    p.window('frmMain')
    entry(p, 'mnuDesign', 'mnuEditDesigns')
    looked_at(p, reader, 'frmDesigns')
    p.keys('Home', 'space')
    p.click('cmdDelete')
    asked(p, reader)
    p.window('frmDesigns')
    p.click('cmdDone')
    p.window('frmMain')
    entry(p, 'mnuHelp', 'mnuHelpAbout')
    looked_at(p, reader, 'frmAbout')
    p.keys('Return')


def play(p):
    reader = Reader()
    p.window('QMessageBox')
    checked(reader.window('Tessaloom Configuration'))
    p.keys('Return')
    p.window('frmMain')
    checked(reader.window('Flurns'))
    looked_at(p, reader, 'frmMain')
    lists(p, reader)
    designers(p, reader)
    frames(p, reader)
    designed(p, reader)
    collages(p, reader)
    own_designs(p, reader)
    recent(p, reader)


if __name__ == '__main__':
    on_own_bus()
    collage.run(play, HeardProgram)
