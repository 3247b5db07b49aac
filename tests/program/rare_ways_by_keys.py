#!/usr/bin/env python3
"""What is needed now and then, in the built program by keyboard alone: photos that need copies, a list that is gathered
and arranged, a design of one's own, printing, and flurns opened again."""
import os
import shutil

from collage import check, focused_on, folder_by_keys, name_by_keys, place_of_keyboard, quit_by_keys, run, welcomed
from designs import in_finishing_stage, is_enabled, lines_of, made_flurn, same, shows, told
from phone_photos_by_mouse import made_phone_photos, prepared
from screen import until


def entry(p, menu, name):
    p.window('frmMain')
    p.shortcut(menu)
    p.window('QMenu')
    p.shortcut(name)


def keyboard_at(p, name):
    until(lambda: (place_of_keyboard(p) or [''])[0] == name, 'the keyboard at ' + name)


def gather_list(p, folder):
    entry(p, 'mnuPictures', 'mnuNewList')
    p.window('frmPictureName')
    p.type('Sea')
    p.keys('Return')
    p.window('frmPhotoList')
    p.shortcut('cmdFolder')
    name_by_keys(p, folder)
    p.window('frmPhotoList')
    until(lambda: p.find('cmdEdit'), 'photos to be edited')
    p.shortcut('cmdEdit')
    arrange(p, folder)
    p.window('frmPhotoList')
    p.shortcut('cmdDone')
    p.window('frmMain')


def arrange(p, folder):
    """The first photo goes behind the second one, and the third is taken out."""
    photos = [os.path.join(folder, name) for name in sorted(os.listdir(folder)) if name.endswith('.jpg')]
    p.window('frmPictures')
    p.widget('cmdSave')
    keyboard_at(p, 'picIn_0')
    p.keys('ctrl+Right')
    keyboard_at(p, 'picIn_1')
    p.keys('Right')
    keyboard_at(p, 'picIn_2')
    p.keys('Delete')
    p.shortcut('cmdSave')
    p.window('frmPhotoList')
    wanted = [photos[1], photos[0], *photos[3:]]
    same([line[2:] for line in lines_of(p, 'piclists', 'Sea.pls')], wanted, 'the list')


def answer_copies(p, count):
    """The question is read before it is answered: the keyboard is on an answer and Escape says no."""
    asked = p.window('QMessageBox')
    check(asked['message'].startswith('4 of the %d photos' % count), asked['message'])
    p.shortcut('Yes')
    until(lambda: len(prepared(p)) == 4, 'the copies')
    in_finishing_stage(p)


def print_it(p):
    """Where there is no printer the window says so, and the keyboard comes back to where it was."""
    before = until(lambda: place_of_keyboard(p), 'the keyboard')
    p.shortcut('cmdPrint')
    seen = p.window('QMessageBox')
    check(seen['message'].startswith('There is no printer.'), seen['message'])
    p.keys('Return')
    p.window('frmImage')
    keyboard_at(p, before[0])


def make_quick(p, count):
    p.shortcut('mnuQuick')
    folder_by_keys(p)
    answer_copies(p, count)
    p.shortcut('cmdFlurn')
    p.window('frmImage')
    print_it(p)
    p.keys('Escape')
    p.window('frmMain')
    p.shortcut('cmdCancel')
    until(lambda: p.find('mnuQuick'), 'the choosing stage')


def keep_design(p):
    entry(p, 'mnuDesign', 'mnuSaveDesign')
    p.window('frmNewDesign')
    p.keys('ctrl+a')
    p.type('My summer')
    focused_on(p, 'txtDescription')
    p.type('By the sea')
    p.shortcut('OKButton')
    p.window('frmMain')
    check('Name=My summer' in lines_of(p, 'designs.ini'), 'the design was not kept')


def wear_design(p):
    p.shortcut('mnuDesigned')
    p.window('frmThemes')
    p.shortcut('optSaved')
    focused_on(p, 'optDesign_0')
    shows(p, 'optDesign_0', 'My summer')
    p.keys('Return')
    folder_by_keys(p)
    p.window('QMessageBox')
    p.keys('Escape')
    in_finishing_stage(p)
    made_flurn(p, (2000, 3000), lambda: p.shortcut('cmdFlurn'), 'own_flurn_by_keys')


def delete_design(p):
    entry(p, 'mnuDesign', 'mnuEditDesigns')
    p.window('frmDesigns')
    keyboard_at(p, 'lstDesigns')
    p.keys('space')
    is_enabled(p, 'cmdDelete')
    p.shortcut('cmdDelete')
    told(p, 'Deleting the My summer design... Ok?', lambda: p.shortcut('Yes'))
    p.window('frmMain')
    check('Name=My summer' not in lines_of(p, 'designs.ini'), 'the design is still there')


def selected(p):
    return [each['text'] for each in p.look()['widgets'] if each.get('selected')]


def open_recent(p):
    entry(p, 'mnuFile', 'mnuRecent')
    p.window('frmRecent')
    keyboard_at(p, 'lstFlurns')
    first = until(lambda: selected(p), 'a flurn to be chosen')
    check('My summer' in first[0], 'the last flurn is %s' % first)
    p.keys('Down')
    until(lambda: 'Quick Block' in ''.join(selected(p)), 'the flurn before it')
    p.keys('Return')
    in_finishing_stage(p)
    shows(p, 'lblDesign', 'Quick Block')
    p.shortcut('cmdCancel')
    until(lambda: p.find('mnuQuick'), 'the choosing stage')


def remove_recent(p):
    entry(p, 'mnuFile', 'mnuRecent')
    p.window('frmRecent')
    for left in (1, 0):
        p.shortcut('cmdRemove')
        until(lambda: len(recipes(p)) == left, '%d flurns' % left)
    is_enabled(p, 'cmdOk', False)
    keyboard_at(p, 'lstFlurns')
    p.keys('Escape')
    p.window('frmMain')


def recipes(p):
    return [name for name in os.listdir(os.path.join(p.data, 'recipes')) if not name.endswith('.jpg')]


def play(p):
    plain = shutil.copytree(p.photos, os.path.join(p.folder, 'plain photos'))
    welcomed(p)
    gather_list(p, plain)
    count = made_phone_photos(p)
    make_quick(p, count)
    keep_design(p)
    wear_design(p)
    delete_design(p)
    open_recent(p)
    remove_recent(p)
    quit_by_keys(p)


run(play)
