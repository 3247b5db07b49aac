#!/usr/bin/env python3
"""A collage from a design and a folder of photos in the built program, by mouse: made, changed, saved in three sizes."""
import os

from collage import changed_preview, check, check_saved, ended, run
from screen import until


def choose_design(p):
    p.click('mnuDesigned')
    p.window('frmThemes')
    p.click('optBlock')
    p.click('optDesign_0')
    p.click('cmdOk')


def choose_folder(p):
    p.window('frmSelectPhotos')
    p.click('cmdCards')
    p.window('QFileDialog')
    p.type_into('fileNameEdit', p.photos)
    p.keys('Return')


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


def overwrite(p, target, second):
    before = os.stat(target)
    save(p, 'optFull', target)
    answer(p, 'Cancel')
    p.window('frmImage')
    check(os.stat(target).st_mtime_ns == before.st_mtime_ns, 'Cancel changed the file')
    save(p, 'optFull', target)
    answer(p, 'No')
    name_file(p, second)
    check_saved(p, second, (2000, 3000))
    p.window('frmImage')
    check(os.stat(target).st_mtime_ns == before.st_mtime_ns, 'No changed the file')
    save(p, 'optWeb', target)
    answer(p, 'Yes')
    until(lambda: os.stat(target).st_mtime_ns != before.st_mtime_ns, 'the file to be replaced')
    check_saved(p, target, (500, 750))


def play(p):
    p.window('QMessageBox')
    p.keys('Return')
    p.window('frmMain')
    choose_design(p)
    choose_folder(p)
    p.window('frmMain')
    p.widget('cmdFlurn')
    until(p.finished, 'the first preview')
    change_settings(p)
    make_full_size(p)
    full, web, custom = (os.path.join(p.folder, name) for name in ('full.jpg', 'web.jpg', 'custom.jpg'))
    save(p, 'optFull', full)
    check_saved(p, full, (2000, 3000))
    save(p, 'optWeb', web)
    check_saved(p, web, (500, 750))
    save(p, 'optCustom', custom, '1200')
    check_saved(p, custom, (800, 1200))
    overwrite(p, full, os.path.join(p.folder, 'second.jpg'))
    p.click('cmdClose')
    p.window('frmMain')
    p.click('cmdCancel')
    p.click('mnuFile')
    p.click('mnuQuit')
    ended(p)


run(play)
