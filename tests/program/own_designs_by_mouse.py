#!/usr/bin/env python3
"""A design of one's own in the built program by mouse: kept from a quick collage, packed, chosen, deleted, taken in
again from its package, and made into a collage once more."""
import os
import subprocess

from collage import check, folder_by_mouse, quit_by_mouse, run, welcomed
from designs import entry, in_finishing_stage, is_enabled, kept, lines_of, made_flurn, same, told
from screen import until


def choose_folder(p):
    folder_by_mouse(p)
    in_finishing_stage(p)


def make_quick_flurn(p):
    p.click('mnuQuick')
    choose_folder(p)
    made_flurn(p, (2000, 3000), lambda: p.click('cmdFlurn'), 'quick_flurn')


def keep(p):
    """A name that a supplied design has is refused; the window stays open for another one."""
    entry(p, 'mnuDesign', 'mnuSaveDesign')
    p.window('frmNewDesign')
    p.type_into('txtName', 'three BANDS')
    p.type_into('txtDescription', 'Twelve photos of the summer')
    p.click('OKButton')
    told(p, 'There already is a design named:', lambda: p.click('Ok'))
    p.window('frmNewDesign')
    p.type_into('txtName', 'My summer')
    kept(p, 'new_design')
    p.click('OKButton')
    p.window('frmMain')
    catalogue = lines_of(p, 'designs.ini')
    same(catalogue[catalogue.index('[Design600]'):],
         ['[Design600]', 'Name=My summer', 'Ratio=2x3', 'File=saved600', 'System=No', 'Design=Saved', 'Style=Place',
          'Match=Yes', 'Turn BG=No', 'Background=Portrait', 'Sample=saved600.jpg', 'Description=saved600'],
         'the section')
    same(p.picture_of(os.path.join(p.data, 'samples', 'saved600.jpg')), (300, 450), 'the sample')
    same(lines_of(p, 'descriptions', 'saved600'), ['Twelve photos of the summer'], 'the description')
    return lines_of(p, 'designs', 'saved600')


def pack(p):
    package = os.path.join(p.folder, 'summer.zip')
    program = os.path.join(p.app, 'tessaloom-pack')
    subprocess.run([program, '--data', p.data, '--design', 'My summer', '--out', package], check=True)
    subprocess.run([program, '--check', package], check=True)
    return package


def make_flurn_of_it(p, name):
    p.click('mnuDesigned')
    p.window('frmThemes')
    p.click('optSaved')
    p.click('optDesign_0')
    kept(p, name + '_chosen')
    p.click('cmdOk')
    choose_folder(p)
    made_flurn(p, (2000, 3000), lambda: p.click('cmdFlurn'), name)


def delete(p, before):
    """The window closes with its last entry."""
    entry(p, 'mnuDesign', 'mnuEditDesigns')
    p.window('frmDesigns')
    is_enabled(p, 'cmdDelete', False)
    p.click('My summer')
    kept(p, 'own_designs')
    p.click('cmdDelete')
    told(p, 'Deleting the My summer design... Ok?', lambda: p.click('No'))
    p.window('frmDesigns')
    p.click('cmdDelete')
    told(p, 'Deleting the My summer design... Ok?', lambda: p.click('Yes'))
    p.window('frmMain')
    same([line for line in lines_of(p, 'designs.ini') if line], [line for line in before if line], 'the catalogue')
    for folder, name in (('designs', 'saved600'), ('samples', 'saved600.jpg'), ('descriptions', 'saved600')):
        check(not os.path.exists(os.path.join(p.data, folder, name)), name + ' is still there')
    entry(p, 'mnuDesign', 'mnuEditDesigns')
    told(p, "    You don't have any designs to edit.    ", lambda: p.click('Ok'))
    p.window('frmMain')


def take_in(p, package):
    entry(p, 'mnuDesign', 'mnuImport')
    p.window('QFileDialog')
    p.type_into('fileNameEdit', package)
    p.keys('Return')
    told(p, '\nMy summer has been successfully imported.\n', lambda: p.click('Ok'))
    p.window('frmMain')
    check(not os.path.exists(package), 'the package is still there')


def play(p):
    welcomed(p)
    before = lines_of(p, 'designs.ini')
    make_quick_flurn(p)
    layout = keep(p)
    make_flurn_of_it(p, 'kept_flurn')
    package = pack(p)
    delete(p, before)
    take_in(p, package)
    catalogue = lines_of(p, 'designs.ini')
    section = catalogue[catalogue.index('Name=My summer'):]
    file = next(line[len('File='):] for line in section if line.startswith('File='))
    same(lines_of(p, 'designs', file), layout, 'the template that came back')
    make_flurn_of_it(p, 'imported_flurn')
    quit_by_mouse(p)


run(play)
