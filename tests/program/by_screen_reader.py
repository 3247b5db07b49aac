#!/usr/bin/env python3
"""A collage from its design to its file by what a reader of the screen can do alone, and what every widget on that way says
of itself."""
import os
import sys

import collage
from collage import check, check_saved
from reader import HeardProgram, Reader, heard, on_own_bus
from screen import until

USED = {'push button', 'check box', 'radio button', 'combo box', 'text', 'menu item', 'slider', 'list', 'entry', 'list item'}
STANDS_IN = {'option pane', 'panel', 'grouping', 'dialog', 'frame', 'filler'}


def spaced_out(name):
    letters = name.split()
    return len(letters) > 2 and all(len(letter) == 1 for letter in letters)


def group_of(one):
    """The name of the nearest group or window around it."""
    above = one.parent
    while not above.name:
        above = above.parent
    check(above.role in STANDS_IN, '%s is named by a %s' % (one.name, above.role))
    return above.name


def checked(window):
    """Every widget says what it is and how it is called."""
    roles = {}
    check(window.name and not spaced_out(window.name), 'a window called "%s"' % window.name)
    for one in window.inside():
        name, role, states = one.name, one.role, one.states
        roles[role] = roles.get(role, 0) + 1
        check(not spaced_out(name), '%s "%s" is spelt' % (role, name))
        if role in USED and 'focusable' in states:
            # The toolkit calls a list by its entry, and says what its label is.
            called = one.labels if role == 'combo box' else name.strip()
            check(called, 'a %s in %s has no name: %s' % (role, window.name, name))
        if role in ('push button', 'radio button', 'check box') and 'sensitive' in states:
            check({'Press', 'Toggle'} & set(one.actions), '%s can be pressed' % name)
        if role == 'radio button':
            check(group_of(one), name + ' belongs to no group')
        if role == 'text':
            check('Text' in one.kinds, name + ' can be read')
    return roles


def line_of(window):
    """Where a chooser takes the name."""
    return next((one for one in window.inside() if one.role == 'text' and 'editable' in one.states), None)


def choose_file(reader, path, button):
    def there():
        return next((each for each in reader.windows() if line_of(each)
                     and any(one.name == button for one in each.inside() if one.role == 'push button')), None)
    chooser = until(lambda: heard(there), 'a chooser of files')
    title = chooser.name
    checked(chooser)
    line_of(chooser).set_text(path)
    reader.press(chooser, 'push button', button)
    reader.gone(title)


def choose_design(reader):
    browser = reader.window('Flurn Designs')
    told = checked(browser)
    check(told.get('radio button', 0) >= 20 and 'check box' in told, 'the browser has %s' % told)
    style = reader.find(browser, 'radio button', 'Solid Block')
    check(group_of(style) == 'Style', 'the style belongs to ' + group_of(style))
    style.act('Press')
    until(lambda: 'checked' in style.states, 'the style to be selected')
    second = until(lambda: heard(lambda: [one for one in browser.inside() if one.role == 'radio button'
                                          and group_of(one) == 'Available Designs'][1]), 'a second design')
    second.act('Press')
    until(lambda: 'checked' in second.states, 'the design to be selected')
    reader.press(browser, 'push button', 'Ok')


def play(program):
    reader = Reader()
    checked(reader.window('Tessaloom Configuration'))
    reader.press(reader.window('Tessaloom Configuration'), 'push button', 'Ok')
    main = reader.window('Flurns')
    checked(main)
    reader.press(main, 'menu item', ' Designed flurn')
    choose_design(reader)
    photos = reader.window('Select Photos')
    checked(photos)
    reader.press(photos, 'push button', 'Browse')
    choose_file(reader, program.photos, 'Choose')
    main = reader.window('Finishing touches')
    until(program.finished, 'the first preview')
    told = checked(main)
    check(told.get('radio button', 0) >= 6 and told.get('combo box', 0) >= 3, 'the main window has %s' % told)
    change_settings(program, reader, main)
    reader.press(main, 'push button', 'Flurn')
    save(program, reader)
    reader.press(reader.window('Save Flurn'), 'push button', 'Cancel')
    reader.press(reader.window('Finishing touches'), 'push button', 'Cancel')
    reader.window('Flurns')


def change_settings(program, reader, main):
    caption = reader.find(main, 'text', 'Caption of the collage')
    collage.changed(program, lambda: caption.set_text('Summer by the sea'), 'the caption')
    check(caption.text == 'Summer by the sea', 'the caption is ' + caption.text)
    soft = reader.find(main, 'check box', 'Soft')
    collage.changed(program, lambda: soft.act('Toggle'), 'soft edges')
    check('checked' in soft.states, 'the photos have soft edges')
    bottom = reader.find(main, 'radio button', 'Caption bottom')
    check(group_of(bottom) == 'Collage Caption', 'the caption\'s place belongs to ' + group_of(bottom))
    collage.changed(program, lambda: bottom.act('Press'), 'a caption at the bottom')
    check('checked' in bottom.states, 'the caption stands at the bottom')


def save(program, reader):
    window = reader.window('Save Flurn')
    checked(window)
    reader.press(window, 'push button', 'Save')
    size = reader.window('Collage Size')
    checked(size)
    full = next(one for one in size.inside() if one.role == 'radio button' and one.name.startswith('Full size'))
    full.act('Press')
    until(lambda: 'checked' in full.states, 'the full size')
    reader.press(size, 'push button', 'Ok')
    path = os.path.join(program.folder, 'heard.jpg')
    choose_file(reader, path, 'Save')
    check_saved(program, path, (2000, 3000))


if __name__ == '__main__':
    on_own_bus()
    collage.run(play, HeardProgram, photos=48)
