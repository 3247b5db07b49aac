#!/usr/bin/env python3
"""A matrix, a lettering and a puzzle in the built program by keyboard alone."""
from collage import check, focused_on, folder_by_keys, quit_by_keys, run, welcomed
from designs import in_finishing_stage, is_enabled, kept, lines_of, made_flurn, same, shows, stands, told


def enter(p, name, text):
    focused_on(p, name)
    p.keys('ctrl+a')
    p.type(text)
    p.keys('Tab')


def choose_folder(p):
    folder_by_keys(p)
    in_finishing_stage(p)


def flurn(p, size, name):
    made_flurn(p, size, lambda: p.shortcut('cmdFlurn'), name)


def make_matrix(p):
    p.shortcut('mnuMatrix')
    p.window('frmMatrix')
    p.keys('Escape')
    p.window('frmMain')
    p.shortcut('mnuMatrix')
    p.window('frmMatrix')
    check(p.find('cmbRows')['focus'], 'the keyboard is not at the rows')
    p.keys('Down')
    shows(p, 'cmbRows', '3')
    shows(p, 'cmbColumns', '3')
    p.shortcut('chkRowLock')
    stands(p, 'chkRowLock', False)
    enter(p, 'cmbColumns', '2')
    shows(p, 'cmbRows', '3')
    p.shortcut('optLandscapePhotos')
    p.shortcut('optLandscapePoster')
    p.shortcut('optPortraitPoster')
    p.shortcut('optPortraitPhotos')
    p.shortcut('chkLock')
    enter(p, 'cmbLeft', '60')
    for name in ('cmbTop', 'cmbBottom', 'cmbRight'):
        shows(p, name, '60')
    enter(p, 'cmbVGap', '30')
    focused_on(p, 'cmbRows')
    enter(p, 'cmbRows', '0')
    p.keys('Return')
    told(p, 'Please choose at least one row and one column.', lambda: p.keys('Return'))
    p.window('frmMatrix')
    enter(p, 'cmbRows', '3')
    p.keys('Return')
    choose_folder(p)
    shows(p, 'lblDesign', 'Matrix 3x2')
    same(lines_of(p, 'designs', '__matrix_'), ['60:60:3:2:0:0:0:0:', '30:20:940:930:0:-1:-1:0:'], 'the matrix')
    flurn(p, (2000, 3000), 'matrix_flurn_by_keys')


def make_lettering(p):
    p.shortcut('mnuLettering')
    p.window('frmLettering')
    check(p.find('txtLettering')['focus'], 'the keyboard is not at the text')
    p.type('Hi')
    p.keys('Return')
    p.type('Sea')
    p.shortcut('optSerpent')
    p.shortcut('optSerif')
    p.shortcut('optSquare')
    p.shortcut('chkOverlap')
    stands(p, 'chkOverlap', True)
    kept(p, 'lettering_by_keys')
    p.shortcut('cmdOk')
    choose_folder(p)
    lines = [line.split(':') for line in lines_of(p, 'designs', '__lettering')]
    same([line[8] for line in lines], ['alpha/serif/char_%s.gif' % letter for letter in 'hisea'], 'the letters')
    check(int(lines[2][0]) - int(lines[0][0]) > 400, 'the second line stands beside the first')
    flurn(p, (2000, 2000), 'lettering_flurn_by_keys')


def make_puzzle(p):
    p.shortcut('mnuPuzzle')
    p.window('frmPuzzle')
    check(p.find('cmbRows')['focus'], 'the keyboard is not at the rows')
    p.shortcut('optFour')
    p.shortcut('optLandscape')
    p.shortcut('chkBest')
    stands(p, 'chkBest', True)
    enter(p, 'cmbColumns', '6')
    shows(p, 'cmbRows', '4')
    p.keys('Return')
    choose_folder(p)
    is_enabled(p, 'optNone', False)
    pieces = lines_of(p, 'designs', '__puzzle')
    same(len(pieces), 24, 'pieces')
    check(all(piece.endswith(':/puzzle/puzzle4.gif') for piece in pieces), 'a piece is not one of four')
    flurn(p, (3000, 2000), 'puzzle_flurn_by_keys')


def play(p):
    welcomed(p)
    make_matrix(p)
    make_lettering(p)
    make_puzzle(p)
    quit_by_keys(p)


run(play)
