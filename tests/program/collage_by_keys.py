#!/usr/bin/env python3
"""The same collage in the built program by keyboard alone."""
import sys

from collage import (changed_preview, focused_on, folder_by_keys, name_by_keys, quit_by_keys, run, save_each_way,
                     welcomed)
from screen import until


def choose_design(p):
    p.shortcut('mnuDesigned')
    p.window('frmThemes')
    p.shortcut('optBlock')
    focused_on(p, 'optDesign_0')
    p.keys('Down', 'Up', 'Return')


def choose(p, name, *keys):
    """Goes to a control with the Tab key and presses keys there."""
    def act():
        focused_on(p, name)
        p.keys(*keys)
    changed_preview(p, act, name)


def enter(p, name, text):
    def act():
        focused_on(p, name)
        p.keys('ctrl+a')
        p.type(text)
        p.keys('Tab')
    changed_preview(p, act, name)


def change_settings(p):
    choose(p, 'chkRounded', 'space')
    choose(p, 'chkRounded', 'space')
    enter(p, 'cmbFrame', '40')
    enter(p, 'cmbShadow', '30')
    enter(p, 'txtCaption', 'Summer')
    for name in ('chkSoftEdge', 'cmdShuffle', 'chkSoftEdge', 'cmdShuffle'):
        choose(p, name, 'space')
    enter(p, 'cmbFrame', '10')
    enter(p, 'cmbShadow', '0')
    enter(p, 'txtCaption', 'Summer by the sea')


def save(p, kind, path, custom=None):
    p.shortcut('cmdSave')
    p.window('frmSize')
    p.shortcut(kind)
    if custom:
        focused_on(p, 'txtSize')
        p.keys('ctrl+a')
        p.type(custom)
    p.keys('Return')
    name_file(p, path)


def name_file(p, path):
    name_by_keys(p, path)


def answer(p, text):
    """With the letter that the button underlines; Escape is the answer Cancel."""
    p.window('QMessageBox')
    if text == 'Cancel':
        p.keys('Escape')
    else:
        p.shortcut(text)


def play(p):
    welcomed(p)
    choose_design(p)
    folder_by_keys(p)
    p.window('frmMain')
    p.widget('cmdFlurn')
    until(p.finished, 'the first preview')
    change_settings(p)
    p.shortcut('cmdFlurn')
    p.window('frmImage')
    save_each_way(p, sys.modules[__name__])
    p.keys('Escape')
    p.window('frmMain')
    p.shortcut('cmdCancel')
    quit_by_keys(p)


run(play)
