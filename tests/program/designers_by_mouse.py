#!/usr/bin/env python3
"""A matrix, a lettering and a puzzle in the built program by mouse: chosen, laid out, filled with photos, finished."""
from collage import changed_preview, check, folder_by_mouse, quit_by_mouse, run, welcomed
from designs import (changed_file, choose, in_finishing_stage, is_enabled, kept, lines_of, made_flurn, sample_of, same,
                     shows, stands, told)


def choose_folder(p):
    folder_by_mouse(p)
    in_finishing_stage(p)


def flurn(p, size, name):
    made_flurn(p, size, lambda: p.click('cmdFlurn'), name)


def drawn(p, act, what):
    changed_file(sample_of(p), act, 'a new sample after ' + what)


def count_photos(p):
    """The locked count leads the other one."""
    for name, text in (('cmbRows', '2'), ('cmbColumns', '2'), ('cmbTop', '100'), ('cmbHGap', '20')):
        shows(p, name, text)
    for name, on in (('chkRowLock', True), ('chkColumnLock', False), ('optPortraitPhotos', True), ('chkFrames', False)):
        stands(p, name, on)
    drawn(p, lambda: choose(p, 'cmbRows', '4'), 'four rows')
    shows(p, 'cmbColumns', '4')
    drawn(p, lambda: p.click('chkColumnLock'), 'the lock of the columns')
    stands(p, 'chkRowLock', False)
    p.click('cmbColumns')
    p.type_into('cmbColumns', '3')
    shows(p, 'cmbRows', '3')
    drawn(p, lambda: choose(p, 'cmbRows', '4'), 'four rows again')
    shows(p, 'cmbColumns', '3')


def set_room(p):
    """Borders move together, gaps by themselves; what can't be laid out is told and stays."""
    p.click('chkLock')
    drawn(p, lambda: p.type_into('cmbTop', '150'), 'a border')
    for name in ('cmbTop', 'cmbBottom', 'cmbLeft', 'cmbRight'):
        shows(p, name, '150')
    drawn(p, lambda: p.type_into('cmbHGap', '2000'), 'a gap')
    p.click('cmdOk')
    told(p, 'There is no room for the photos.', lambda: p.click('Ok'))
    p.window('frmMatrix')
    drawn(p, lambda: choose(p, 'cmbHGap', '40'), 'a gap from its list')


def shake(p):
    for name in ('optBoth', 'optPortraitPhotos', 'optLandscapePoster', 'optPortraitPoster', 'chkResize', 'chkRotate'):
        drawn(p, lambda: p.click(name), name)
        stands(p, name, True)
        is_enabled(p, 'chkFrames', name != 'optBoth')


def make_matrix(p):
    p.click('mnuMatrix')
    p.window('frmMatrix')
    kept(p, 'matrix_at_first')
    p.click('cmdCancel')
    p.window('frmMain')
    p.click('mnuMatrix')
    p.window('frmMatrix')
    count_photos(p)
    set_room(p)
    shake(p)
    # The counts follow the poster's turn and back; the user's own count comes last.
    p.type_into('cmbRows', '4')
    shows(p, 'cmbColumns', '3')
    kept(p, 'matrix')
    p.click('cmdOk')
    choose_folder(p)
    shows(p, 'lblDesign', 'Matrix 4x3')
    same(lines_of(p, 'designs', '__matrix_'), ['150:150:4:3:0:1:1:0:', '20:40:660:540:0:-1:-1:0:'], 'the full size')
    same(lines_of(p, 'designs', '__matrix'), ['250:250:4:3:0:1:1:0:', '20:40:610:473:0:-1:-1:0:'], 'the preview')
    for name in ('cmdShuffle', 'chkSoftEdge'):
        changed_preview(p, lambda: p.click(name), name)
    kept(p, 'matrix_finishing')
    flurn(p, (2000, 3000), 'matrix_flurn')


def write_caption(p):
    """A click beside the controls of the caption's group opens a window for it."""
    at = p.widget('frmCaption')
    p.tool('mousemove', '--sync', str(at['x'] + at['width'] // 2), str(at['y'] + at['height'] - 4))
    p.tool('click', '1')
    p.window('frmCaptionText')
    is_enabled(p, 'cmdClear', False)
    p.type('By the sea')
    kept(p, 'caption_text')
    p.click('cmdClear')
    shows(p, 'txtCaption', '')
    is_enabled(p, 'cmdClear', False)
    p.type_into('txtCaption', 'Our summer')
    p.click('cmdOk')
    p.window('frmMain')
    shows(p, 'txtCaption', 'Our summer')


def make_lettering(p):
    p.click('mnuLettering')
    p.window('frmLettering')
    is_enabled(p, 'cmdOk', False)
    p.type_into('txtLettering', '?!')
    p.click('cmdOk')
    told(p, 'There are no letters or digits in that text.', lambda: p.click('Ok'))
    p.window('frmLettering')
    tall = p.find('txtLettering')
    p.type_into('txtLettering', 'Summer 2026')
    for name in ('optSerpent', 'optOffset', 'chkCenter', 'optSquare', 'optLandscape'):
        p.click(name)
        stands(p, name, True)
    stands(p, 'optRounded', True)
    for picture, name in (('picSerif', 'optSerif'), ('picSturdy', 'optSturdy')):
        p.click(picture)
        stands(p, name, True)
    wide = p.find('txtLettering')
    check(wide['width'] == tall['height'], 'the box has not the shape of the poster')
    kept(p, 'lettering')
    p.click('cmdOk')
    choose_folder(p)
    shows(p, 'lblDesign', 'Lettering')
    letters = [line.split(':')[8] for line in lines_of(p, 'designs', '__lettering')]
    same(letters, ['alpha/sturdy/char_%s.gif' % letter for letter in 'summer2026'], 'the letters')
    changed_preview(p, lambda: p.click('chkOutline'), 'chkOutline')
    changed_preview(p, lambda: p.click('optMedium'), 'optMedium')
    changed_preview(p, lambda: write_caption(p), 'a caption')
    kept(p, 'lettering_finishing')
    flurn(p, (3000, 2000), 'lettering_flurn')
    p.click('mnuLettering')
    p.window('frmLettering')
    for name, on in (('optOffset', True), ('chkCenter', True), ('optLandscape', True), ('chkOverlap', False),
                     ('optSturdy', True)):
        stands(p, name, on)
    is_enabled(p, 'cmdOk')
    p.click('cmdCancel')
    p.window('frmMain')


def make_puzzle(p):
    p.click('mnuPuzzle')
    p.window('frmPuzzle')
    shows(p, 'cmbRows', '6')
    shows(p, 'cmbColumns', '4')
    p.click('chkBest')
    choose(p, 'cmbColumns', '6')
    shows(p, 'cmbRows', '9')
    p.click('chkEdges')
    shows(p, 'cmbRows', '8')
    p.click('optFour')
    shows(p, 'cmbRows', '8')
    p.click('optLandscape')
    shows(p, 'cmbRows', '4')
    p.click('optOne')
    p.click('optPortrait')
    shows(p, 'cmbRows', '8')
    choose(p, 'cmbBlanks', '4')
    kept(p, 'puzzle')
    p.click('cmdOk')
    choose_folder(p)
    shows(p, 'lblDesign', 'Puzzle')
    is_enabled(p, 'optMedium', False)
    pieces = [line.split(':') for line in lines_of(p, 'designs', '__puzzle')]
    same(len(pieces), 44, 'pieces of 48 with one missing in each run of 12')
    codes = {piece[8][11:13] for piece in pieces}
    same(codes - {row + column for row in 'tb12' for column in 'lr12'}, set(), 'codes that there are')
    check(all(piece[8].startswith('puzzle/puz_') for piece in pieces), 'a piece has no picture')
    kept(p, 'puzzle_finishing')
    flurn(p, (2000, 3000), 'puzzle_flurn')


def play(p):
    welcomed(p)
    make_matrix(p)
    make_lettering(p)
    make_puzzle(p)
    quit_by_mouse(p)


run(play)
