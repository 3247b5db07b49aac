#!/usr/bin/env python3
"""A quick collage of each style in the built program by keyboard alone, in letters of 14 points, from the picture on the first page to
the saved poster."""
import os

from collage import changed, check, check_saved, focused_on, folder_by_keys, name_by_keys, place_of_keyboard, quit_by_keys, run, welcomed
from designs import in_finishing_stage, shows
from screen import Program, until

LARGEST_OF_USUAL = 86  # pixels of a way to begin in letters of 12 points


class LargeProgram(Program):
    """The program on a desktop whose letters have 14 points: one that keeps its settings in a file, as the toolkit knows them."""

    def start_program(self, plugins, *words):
        settings = os.path.join(self.folder, '.config')
        os.makedirs(settings, exist_ok=True)
        with open(os.path.join(settings, 'kdeglobals'), 'w') as file:
            file.write('[General]\nfont=DejaVu Sans,14,-1,5,50,0,0,0,0,0\n')
        self.environment.update(XDG_CURRENT_DESKTOP='KDE', KDE_SESSION_VERSION='5', KDE_FULL_SESSION='true')
        super().start_program(plugins, *words)


def keyboard_at(p, name):
    until(lambda: (place_of_keyboard(p) or [''])[0] == name, 'the keyboard at ' + name)


def begin(p):
    """With the picture that has the keyboard when the first page comes up."""
    keyboard_at(p, 'mnuQuick_area')
    p.keys('space')
    folder_by_keys(p)
    in_finishing_stage(p)


def caption(p, text):
    """Each letter draws, or several together where the machine is busy. The text is another than the one that the window kept, so
    that each way a picture comes that is another."""
    focused_on(p, 'txtCaption')
    p.keys('ctrl+a')
    changed(p, lambda: p.type(text), 'the caption')
    shows(p, 'txtCaption', text)
    p.keys('Tab')


def style(p, option):
    if not p.find(option)['checked']:
        changed(p, lambda: p.shortcut(option), option)
    until(lambda: p.find('cmdFlurn')['enabled'], 'the preview')


def save(p, path):
    p.shortcut('cmdFlurn')
    p.window('frmImage')
    p.shortcut('cmdSave')
    p.window('frmSize')
    p.keys('Return')
    name_by_keys(p, path)
    p.window('frmImage')
    check_saved(p, path, (2000, 3000))
    p.keys('Escape')
    p.window('frmMain')
    p.shortcut('cmdCancel')


def in_shapes(p):
    """The list of the shapes is gone through by the arrow keys."""
    focused_on(p, 'cmbShapes')
    before = p.find('cmbShapes')['text']
    changed(p, lambda: p.keys('Down'), 'another shape')
    until(lambda: p.find('cmbShapes')['text'] != before, 'the next shape')


def in_matrix(p):
    changed(p, lambda: p.shortcut('chkRotate'), 'tilted photos')


def play(p):
    welcomed(p)
    check(p.widget('mnuQuick_area')['height'] > LARGEST_OF_USUAL, 'the letters are not large')
    for option, change in (('optBlock', None), ('optScatter', None), ('optMatrix', in_matrix), ('optShapes', in_shapes)):
        begin(p)
        style(p, option)
        if change:
            change(p)
        caption(p, 'Summer by the sea, ' + option)
        save(p, os.path.join(p.folder, option + '.jpg'))
        until(lambda: p.find('mnuQuick'), 'the choosing stage')
    quit_by_keys(p)


run(play, LargeProgram)
