#!/usr/bin/env python3
"""A collage printed from the built program by keyboard alone: each window has the keyboard where Enter leads on, and Escape leads
back without a sheet. Runs beside a print server of its own."""
import os

from collage import check, folder_by_keys, quit_by_keys, run, welcomed
from designs import in_finishing_stage
from print_by_mouse import told_and_come
from screen import until


def printed_sheets():
    return sorted(os.listdir(os.environ['PRINTED']))


def to_the_dialog(p):
    p.shortcut('cmdPrint')
    p.window('print_preview')
    p.keys('Return')
    p.window('QPrintDialog')


def play(p):
    before = printed_sheets()
    welcomed(p)
    p.shortcut('mnuQuick')
    folder_by_keys(p)
    in_finishing_stage(p)
    p.shortcut('cmdFlurn')
    p.window('frmImage')
    p.shortcut('cmdPrint')
    p.window('print_preview')
    p.keys('Escape')
    p.window('frmImage')
    to_the_dialog(p)
    p.keys('Escape')
    until(lambda: p.look().get('class') != 'QPrintDialog', 'the dialog to go')
    check(printed_sheets() == before, 'Escape printed a sheet')
    if p.look().get('window') != 'frmImage':
        p.keys('Escape')
    p.window('frmImage')
    to_the_dialog(p)
    p.keys('Return')
    told_and_come(p)
    p.keys('Escape')
    p.window('frmMain')
    p.shortcut('cmdCancel')
    until(lambda: p.find('mnuQuick'), 'the choosing stage')
    quit_by_keys(p)


if __name__ == '__main__':
    run(play)
