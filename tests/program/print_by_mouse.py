#!/usr/bin/env python3
"""A collage printed from the built program, by mouse: the page is shown, the system's dialog asks, the printer gets one
sheet, and the program tells where it went. Runs beside a print server of its own."""
import os

from collage import check, folder_by_mouse, quit_by_mouse, run, welcomed
from screen import WHOLE, until


def has_come(path):
    return os.path.exists(path) and open(path, 'rb').read().rstrip().endswith(b'%%EOF')


def keep(p, name):
    """What is seen, where somebody wants to look at it."""
    folder = os.environ.get('TESSALOOM_SCREENS')
    if folder:
        p.widget('Print')
        p.keep(WHOLE, os.path.join(folder, name + '.png'))


def told_and_come(p):
    """The program says where the sheet went, and there it is."""
    told = p.window('QMessageBox')['message']
    check(told.startswith('The collage was sent to the printer paper_'), told)
    printed = os.path.join(os.environ['PRINTED'], told.split()[-1].rstrip('.') + '.pdf')
    until(lambda: has_come(printed), 'the printed sheet')
    p.keys('Return')
    p.window('frmImage')


def play(p):
    welcomed(p)
    p.click('mnuDesigned')
    p.window('frmThemes')
    p.click('optBlock')
    p.click('optDesign_0')
    p.click('cmdOk')
    folder_by_mouse(p)
    p.window('frmMain')
    p.click('cmdFlurn')
    p.window('frmImage')
    p.click('cmdPrint')
    p.window('print_preview')
    keep(p, 'print_preview')
    p.click('Print')
    p.window('QPrintDialog')
    keep(p, 'print_dialog')
    p.keys('Return')
    told_and_come(p)
    p.click('cmdClose')
    p.window('frmMain')
    p.click('cmdCancel')
    quit_by_mouse(p)


if __name__ == '__main__':
    run(play)
