#!/usr/bin/env python3
"""A frame set in the built program by keyboard alone: made, chosen for a matrix, changed, deleted."""
import os

from collage import check, focused_on, folder_by_keys, quit_by_keys, run, welcomed
from designs import in_finishing_stage, is_enabled, kept, lines_of, made_flurn, same, shows, stands, told, walk_down


def entry(p, menu, name):
    p.shortcut(menu)
    p.window('QMenu')
    p.shortcut(name)


def enter(p, name, text):
    focused_on(p, name)
    p.keys('ctrl+a')
    p.type(text)


def write_captions(p):
    p.shortcut('cmdCaptions')
    p.window('frmCaptions')
    check(p.find('txtCaptions_0')['focus'], 'the keyboard is not at the first caption')
    for text in ('One', 'Two'):
        p.type(text)
        p.keys('Return')
    shows(p, 'lblCaptions_2', '>')
    p.keys('shift+Tab')
    p.shortcut('cmdInsert')
    shows(p, 'txtCaptions_2', 'Two')
    kept(p, 'captions_by_keys')
    p.shortcut('cmdDone')
    p.window('frmFrames')


def make_set(p):
    entry(p, 'mnuFrames', 'mnuNewFrame')
    p.window('frmFrames')
    enter(p, 'txtCaption', 'By the sea')
    focused_on(p, 'cmbIcons')
    walk_down(p, lambda: p.find('cmbIcons')['text'], 'Boat')
    write_captions(p)
    p.shortcut('cmdSave')
    p.window('frmFrameName')
    p.type('../away')
    p.keys('Return')
    p.window('QMessageBox')
    p.keys('Return')
    p.window('frmFrameName')
    p.keys('Escape')
    p.window('frmFrames')
    p.shortcut('cmdSave')
    p.window('frmFrameName')
    p.type('Sea')
    p.keys('Return')
    p.window('frmMain')
    check(not os.path.exists(os.path.join(p.data, 'away')), 'a set lies beside its folder')
    check('Number of Captions=3' in lines_of(p, 'frames', 'Sea', 'design.ini'), 'the captions are not counted')


def go_to_set(p):
    p.window('frmCustom')
    focused_on(p, 'lstFrames')
    walk_down(p, lambda: [each['text'] for each in p.look()['widgets'] if each.get('selected')], ['Sea'])
    is_enabled(p, 'cmdDone')


def wear_in_matrix(p):
    p.shortcut('mnuMatrix')
    p.window('frmMatrix')
    enter(p, 'cmbVGap', '100')
    p.shortcut('chkFrames')
    p.window('frmCustom')
    p.keys('Escape')
    p.window('frmMatrix')
    stands(p, 'chkFrames', False)
    p.shortcut('chkFrames')
    go_to_set(p)
    p.keys('Return')
    p.window('frmMatrix')
    stands(p, 'chkFrames', True)
    p.keys('Return')
    folder_by_keys(p)
    in_finishing_stage(p)
    shows(p, 'lblDesign', 'Custom Frame Matrix 2x2')
    same([line.rsplit('\\', 1)[1] for line in lines_of(p, 'designs', '__matrix_')[::2]],
         ['pframe01.jpg', 'pframe02.jpg', 'pframe03.jpg', 'pframe01.jpg'], 'the frames in turn')
    made_flurn(p, (2000, 3000), lambda: p.shortcut('cmdFlurn'), 'frame_matrix_flurn_by_keys')


def change_and_delete(p):
    entry(p, 'mnuFrames', 'mnuEditFrame')
    go_to_set(p)
    p.shortcut('cmdEdit')
    p.window('frmFrames')
    enter(p, 'txtCaption', 'Sample')
    p.shortcut('cmdSave')
    told(p, "It looks like you haven't changed the default caption.", lambda: p.keys('Escape'))
    p.window('frmFrames')
    p.shortcut('cmdCancel')
    p.window('frmMain')
    check('Caption Text=By the sea' in lines_of(p, 'frames', 'Sea', 'design.ini'), 'Cancel changed the set')
    entry(p, 'mnuFrames', 'mnuEditFrame')
    go_to_set(p)
    p.shortcut('cmdDelete')
    is_enabled(p, 'cmdDelete', False)
    p.keys('Escape')
    p.window('frmMain')
    check(not os.path.exists(os.path.join(p.data, 'frames', 'Sea')), 'the set is still there')


def play(p):
    welcomed(p)
    make_set(p)
    wear_in_matrix(p)
    change_and_delete(p)
    quit_by_keys(p)


run(play)
