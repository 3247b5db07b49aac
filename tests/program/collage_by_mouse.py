#!/usr/bin/env python3
"""A collage from a design and a folder of photos in the built program, by mouse: made, changed, saved in three sizes."""
import sys

from collage import changed_preview, folder_by_mouse, quit_by_mouse, run, save_each_way, welcomed
from screen import until


def choose_design(p):
    p.click('mnuDesigned')
    p.window('frmThemes')
    p.click('optBlock')
    p.click('optDesign_0')
    p.click('cmdOk')


def change_settings(p):
    for name in ('chkRounded', 'chkRounded', 'optTiny', 'optLarge', 'optNone'):
        changed_preview(p, lambda: p.click(name), name)
    for name, value in (('cmbFrame', '40'), ('cmbShadow', '30')):
        changed_preview(p, lambda: (p.type_into(name, value), p.keys('Tab')), name)
    changed_preview(p, lambda: p.type_into('txtCaption', 'Summer'), 'txtCaption')
    for name in ('optBottom', 'optTop', 'chkSoftEdge', 'cmdShuffle'):
        changed_preview(p, lambda: p.click(name), name)


def make_full_size(p):
    p.click('cmdFlurn')
    until(lambda: p.look().get('window') == 'frmImage', 'the finished collage')


def save(p, size, path, custom=None):
    p.click('cmdSave')
    p.window('frmSize')
    p.click(size)
    if custom:
        p.type_into('txtSize', custom)
    p.click('cmdOk')
    name_file(p, path)


def name_file(p, path):
    p.window('QFileDialog')
    p.type_into('fileNameEdit', path)
    p.keys('Return')


def answer(p, text):
    p.window('QMessageBox')
    p.click(text)


def play(p):
    welcomed(p)
    choose_design(p)
    folder_by_mouse(p)
    p.window('frmMain')
    p.widget('cmdFlurn')
    until(p.finished, 'the first preview')
    change_settings(p)
    make_full_size(p)
    save_each_way(p, sys.modules[__name__])
    p.click('cmdClose')
    p.window('frmMain')
    p.click('cmdCancel')
    quit_by_mouse(p)


if __name__ == '__main__':
    run(play)
