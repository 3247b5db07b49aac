#!/usr/bin/env python3
"""The life of a frame set in the built program by mouse: an icon, a list, colours, font and captions, the set in a frame
design and in a matrix, changed, deleted."""
import os

from collage import check, quit_by_mouse, run, welcomed
from designs import (bitmap, choose, entry, in_finishing_stage, is_enabled, kept, lines_of, made_flurn, same, shows, stands,
                     told)
from screen import until


def make_list(p):
    """A folder's photos become a list; the list editor finds out how they stand."""
    entry(p, 'mnuPictures', 'mnuNewList')
    p.window('frmPictureName')
    p.type('holiday')
    p.click('cmdOk')
    p.window('frmPhotoList')
    p.click('cmdFolder')
    p.window('QFileDialog')
    p.type_into('fileNameEdit', p.photos)
    p.keys('Return')
    p.window('frmPhotoList')
    shows(p, 'lblCount', 'Number of photos selected:   12')
    p.click('cmdDone')
    p.window('frmMain')
    entry(p, 'mnuPictures', 'mnuEditSelections')
    p.window('frmPictureList')
    p.click('holiday')
    p.click('cmdEdit')
    p.window('frmPictures')
    p.click('cmdSave')
    p.window('QMessageBox')
    p.click('Yes')
    p.window('frmPictureList')
    p.click('cmdDone')
    p.window('frmMain')
    return lines_of(p, 'piclists', 'holiday.pls')


def import_icon(p, path):
    entry(p, 'mnuFrames', 'mnuIcon')
    p.window('QFileDialog')
    p.type_into('fileNameEdit', path)
    p.keys('Return')


def make_icons(p):
    import_icon(p, bitmap(p, 'wide.bmp', 101, 90))
    told(p, 'The image needs to be 100 pixels wide by 90 pixels high or smaller.', lambda: p.click('Ok'))
    glow = bitmap(p, 'glow.bmp', 100, 90)
    for name, file in (('glow', 'glow.bmp'), ('gleam', 'glow1.bmp')):
        import_icon(p, glow)
        p.window('frmIconName')
        is_enabled(p, 'cmdOk', False)
        p.type('HEART')
        p.click('cmdOk')
        told(p, "You already have an icon named 'HEART'", lambda: p.click('Ok'))
        p.window('frmIconName')
        p.type_into('txtName', name)
        kept(p, 'icon_name')
        p.click('cmdOk')
        if file != 'glow.bmp':
            told(p, 'New icon file imported with the name:  ' + file, lambda: p.click('Ok'))
        p.window('frmMain')
        same(lines_of(p, 'icons', 'icons')[-1], name + ' ' + file, 'the list of icons')
        check(os.path.exists(os.path.join(p.data, 'icons', file)), file + ' is missing')


def changed_frame(p, act, what):
    """Does something and waits until the frame in the editor looks different."""
    p.window('frmFrames')
    before = p.pixels('picFrame')
    act()
    p.window('frmFrames')
    until(lambda: p.pixels('picFrame') != before, 'another frame after ' + what)


def choose_color(p, name, color):
    def act():
        p.click(name)
        p.window('QColorDialog')
        p.keys('alt+h', 'ctrl+a')
        p.type(color)
        p.keys('Return')
    changed_frame(p, act, name)


def choose_font(p):
    def act():
        p.click('cmdFont')
        p.window('frmFont')
        p.click('Serif')
        p.click('chkItalic')
        p.click('cmdOk')
    changed_frame(p, act, 'cmdFont')
    shows(p, 'lblFont', 'Serif')


def write_captions(p):
    p.click('cmdCaptions')
    p.window('frmCaptions')
    for box, text in enumerate(('Jumping for joy', '', 'Up and away', 'Seven candles')):
        p.click('txtCaptions_%d' % box)
        shows(p, 'lblCaptions_%d' % box, '>')
        p.type(text)
    check(not p.find('txtCaptions_12'), 'there is a box without a photo')
    p.click('txtCaptions_1')
    p.click('cmdInsert')
    shows(p, 'txtCaptions_4', 'Seven candles')
    p.click('cmdRemove')
    shows(p, 'txtCaptions_3', 'Seven candles')
    p.type_into('txtCaptions_11', 'The last one')
    p.click('txtCaptions_1')
    p.click('cmdInsert')
    told(p, 'Inserting will push the last caption out of the set.', lambda: p.click('Ok'))
    p.window('frmCaptions')
    p.type_into('txtCaptions_11', ' ')
    p.keys('BackSpace')
    p.click('txtCaptions_0')
    kept(p, 'captions')
    p.click('cmdDone')
    p.window('frmFrames')


def make_set(p):
    entry(p, 'mnuFrames', 'mnuNewFrame')
    p.window('frmFrames')
    shows(p, 'txtCaption', 'Sample')
    shows(p, 'cmbIcons', 'None')
    shows(p, 'cmbPhotos', 'None')
    p.click('cmdSave')
    told(p, "It looks like you haven't changed the default caption.", lambda: p.click('No'))
    choose_color(p, 'cmdOutside', '#7a1f1f')
    choose_color(p, 'picInside', '#fff4e0')
    choose_color(p, 'cmdCaption', '#e8c070')
    choose_color(p, 'picFont_FG', '#401008')
    choose_font(p)
    changed_frame(p, lambda: p.type_into('txtCaption', 'Summer 2026'), 'txtCaption')
    changed_frame(p, lambda: choose(p, 'cmbIcons', 'gleam'), 'cmbIcons')
    choose(p, 'cmbPhotos', 'holiday')
    write_captions(p)
    kept(p, 'frame_editor')
    p.click('cmdSave')
    p.window('frmFrameName')
    p.type('soccer')
    p.click('cmdOk')
    told(p, 'You already have a custom frame named:  soccer', lambda: p.click('Ok'))
    p.window('frmFrameName')
    p.type_into('txtName', 'Our summer')
    kept(p, 'frame_name')
    p.click('cmdOk')
    p.window('frmMain')


def check_set(p):
    same(lines_of(p, 'frames', 'Our summer', 'design.ini'),
         ['[Frame Design]', 'Outside Color=%d' % 0x1f1f7a, 'Inside Color=%d' % 0xe0f4ff, 'Caption Color=%d' % 0x70c0e8,
          'Font Color=%d' % 0x081040, 'Font Name=Serif', 'Font Bold=False', 'Font Italic=True',
          'Caption Text=Summer 2026', 'Icon=gleam', 'Picture List=holiday', 'Number of Captions=4'], 'the settings')
    same(lines_of(p, 'frames', 'Our summer', 'captions'),
         ['Jumping for joy', '', 'Up and away', 'Seven candles'] + [''] * 32, 'the captions')
    check('_named_.not' not in os.listdir(os.path.join(p.data, 'frames')), 'the unnamed set is still there')
    for number in range(5):
        for letter, size in (('p', (347, 520)), ('l', (520, 347))):
            path = os.path.join(p.data, 'frames', 'Our summer', '%sframe%02d.jpg' % (letter, number))
            same(p.picture_of(path), size, path)


def choose_set(p):
    p.window('frmCustom')
    is_enabled(p, 'cmdDone', False)
    p.click('Our summer')
    is_enabled(p, 'cmdDone')
    kept(p, 'frame_chooser')
    p.click('cmdDone')


def take_list(p):
    """The chooser of photos opens with the set's list."""
    p.window('frmSelectPhotos')
    stands(p, 'optList', True)
    shows(p, 'txtCards', 'holiday')
    p.click('cmdOk')
    in_finishing_stage(p)


def frames_of(p, name):
    files = [line.split(':')[8] for line in lines_of(p, 'designs', name) if line.count(':') == 8]
    return [file.rsplit('\\', 1)[1] for file in files if file.startswith('frames\\Our summer\\')]


def wear_in_design(p, orientation, design, size):
    p.click('mnuDesigned')
    p.window('frmThemes')
    p.click(orientation)
    p.click('optFrames')
    p.click(design)
    p.click('cmdOk')
    choose_set(p)
    take_list(p)
    shows(p, 'lblDesign', design)
    kept(p, 'frame_design_%s' % orientation)
    made_flurn(p, size, lambda: p.click('cmdFlurn'), 'frame_design_flurn_%s' % orientation)


def numbers_by_photo(p, photos, frames):
    """Each frame has the number of the next photo of its kind, 00 where that one has no caption."""
    turns = {letter: [n for n, line in enumerate(photos, 1) if line[0].lower() == letter] for letter in 'lp'}
    used = {'l': 0, 'p': 0}
    for frame in frames:
        kind = turns[frame[0]]
        photo = kind[used[frame[0]] % len(kind)]
        used[frame[0]] += 1
        same(int(frame[6:8]), photo if photo <= 4 else 0, 'number of ' + frame)


def wear_in_matrix(p, photos, orientation, gap, size):
    p.click('mnuMatrix')
    p.window('frmMatrix')
    p.click('opt%sPhotos' % orientation)
    p.click('opt%sPoster' % orientation)
    p.click('chkFrames')
    choose_set(p)
    p.window('frmMatrix')
    stands(p, 'chkFrames', True)
    choose(p, 'cmbRows', '3')
    shows(p, 'cmbColumns', '3')
    p.type_into(gap, '150')
    kept(p, 'frame_matrix_' + orientation)
    p.click('cmdOk')
    take_list(p)
    shows(p, 'lblDesign', 'Custom Frame Matrix 3x3')
    lines = lines_of(p, 'designs', '__matrix_')
    same(len(lines), 18, 'two lines for each cell')
    frames = frames_of(p, '__matrix_')
    same(len(frames), 9, 'frames of the matrix')
    same({frame[0] for frame in frames}, {orientation[0].lower()}, 'shape of the frames')
    numbers_by_photo(p, photos, frames)
    kept(p, 'frame_matrix_finishing_' + orientation)
    made_flurn(p, size, lambda: p.click('cmdFlurn'), 'frame_matrix_flurn_' + orientation)


def change_and_delete(p):
    entry(p, 'mnuFrames', 'mnuEditFrame')
    p.window('frmCustom')
    for name in ('cmdEdit', 'cmdDelete'):
        is_enabled(p, name, False)
    p.click('Our summer')
    p.click('cmdEdit')
    p.window('frmFrames')
    for name, text in (('txtCaption', 'Summer 2026'), ('cmbIcons', 'gleam'), ('cmbPhotos', 'holiday'),
                       ('lblFont', 'Serif')):
        shows(p, name, text)
    changed_frame(p, lambda: choose(p, 'cmbIcons', 'None'), 'cmbIcons')
    p.click('cmdSave')
    p.window('frmMain')
    check('Icon=None' in lines_of(p, 'frames', 'Our summer', 'design.ini'), 'the change is not saved')
    entry(p, 'mnuFrames', 'mnuEditFrame')
    p.window('frmCustom')
    p.click('Our summer')
    kept(p, 'frame_manager')
    p.click('cmdDelete')
    is_enabled(p, 'cmdDelete', False)
    p.click('cmdDone')
    p.window('frmMain')
    check(not os.path.exists(os.path.join(p.data, 'frames', 'Our summer')), 'the set is still there')


def play(p):
    welcomed(p)
    photos = make_list(p)
    make_icons(p)
    make_set(p)
    check_set(p)
    wear_in_design(p, 'optPortrait', 'Framed family', (2000, 3000))
    numbers_by_photo(p, photos, frames_of(p, '__frames'))
    wear_in_design(p, 'optLandscape', 'Framed medley', (3000, 2000))
    wear_in_matrix(p, photos, 'Portrait', 'cmbVGap', (2000, 3000))
    wear_in_matrix(p, photos, 'Landscape', 'cmbHGap', (3000, 2000))
    change_and_delete(p)
    quit_by_mouse(p)


run(play, photos=12)
