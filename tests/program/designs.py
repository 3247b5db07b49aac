"""What the ways through the special designers and the frame sets share."""
import os
import struct

from collage import check
from screen import until


def entry(p, menu, name):
    p.click(menu)
    p.window('QMenu')
    p.click(name)


def shows(p, name, text):
    """Waits until the widget has that text."""
    until(lambda: (p.find(name) or {}).get('text', '').replace('&', '') == text,
          '%s to show %r, not %r' % (name, text, (p.find(name) or {}).get('text')))


def walk_down(p, at, wanted):
    """Presses Down in a list until `at` tells that it stands at the entry. Letters would choose it as well, but they count
    as one word only while they come quickly."""
    while at() != wanted:
        before = at()
        p.keys('Down')
        until(lambda: at() != before, 'the list to go on from %r to %r' % (before, wanted))


def stands(p, name, on):
    """Waits until the box or option is ticked, or isn't."""
    until(lambda: (p.find(name) or {}).get('checked') == on, '%s to be %s' % (name, 'on' if on else 'off'))


def is_enabled(p, name, on=True):
    until(lambda: (p.find(name) or {}).get('enabled') == on, '%s to be %s' % (name, 'enabled' if on else 'disabled'))


def told(p, text, press):
    """Waits for a message box with that text and lets `press` close it."""
    box = p.window('QMessageBox')
    check(box['message'].startswith(text), 'the box says %r, not %r' % (box['message'], text))
    press()
    until(lambda: p.look().get('message') != box['message'] or p.look().get('id') != box['id'], 'the box to go')


def choose(p, name, text):
    """Opens a list by its arrow and clicks an entry."""
    at = p.widget(name)
    p.tool('mousemove', '--sync', str(at['x'] + at['width'] - 8), str(at['y'] + at['height'] // 2))
    p.tool('click', '1')
    p.window('QComboBoxPrivateContainer')
    p.click(text)
    shows(p, name, text)


def changed_file(path, act, what):
    """Does something and waits until the file is another one."""
    before = stamp(path)
    act()
    until(lambda: stamp(path) not in (None, before), what)


def stamp(path):
    try:
        return os.stat(path).st_mtime_ns
    except OSError:
        return None


def sample_of(p):
    return os.path.join(p.data, 'tmp', 'matrix_sample.bmp')


def lines_of(p, *names):
    """The lines of a file of the data folder, line ends taken off."""
    with open(os.path.join(p.data, *names), newline='') as file:
        text = file.read()
    check(text == '' or text.endswith('\r\n'), '%s has no line end' % (names,))
    return text.split('\r\n')[:-1]


def same(found, wanted, told_as):
    check(found == wanted, '%s:\n  found  %r\n  wanted %r' % (told_as, found, wanted))


def in_finishing_stage(p):
    """Answers the question whether photos are to be shuffled, if it comes, with No, and waits for the preview."""
    def there():
        seen = p.look()
        if seen.get('class') == 'QMessageBox' and seen['active']:
            check('shuffle the photos' in seen['message'], 'the program asks ' + seen['message'])
            p.keys('alt+n')
            return False
        flurn = p.find('cmdFlurn', seen) if seen.get('window') == 'frmMain' and seen['active'] else None
        return flurn and flurn['enabled']
    until(there, 'the finishing stage')
    until(p.finished, 'the preview')


def made_flurn(p, size, start, name):
    """Makes the Flurn, checks its size and goes back to the choosing stage."""
    start()
    def there():
        seen = p.look()
        if seen.get('class') == 'QMessageBox' and seen['active']:
            p.keys('alt+n')
        return seen.get('window') == 'frmImage' and seen['active']
    until(there, 'the finished collage')
    path = os.path.join(p.data, 'tmp', 'finished.jpg')
    same(p.picture_of(path), size, 'size of ' + name)
    keep = os.environ.get('TESSALOOM_SCREENS')
    if keep:
        with open(path, 'rb') as picture, open(os.path.join(keep, name + '.jpg'), 'wb') as kept:
            kept.write(picture.read())
    p.keys('Escape')
    p.window('frmMain')
    p.shortcut('cmdCancel')
    until(lambda: p.find('mnuMatrix'), 'the choosing stage')


def kept(p, name):
    """A picture of what the screen shows, where somebody wants it."""
    keep = os.environ.get('TESSALOOM_SCREENS')
    if keep:
        p.keep(p.look()['widgets'][0], os.path.join(keep, name + '.png'))


def bitmap(p, name, width, height):
    """A disc on white, in a file of 24 bits."""
    path = os.path.join(p.folder, name)
    rows = bytearray()
    for y in range(height):
        row = bytearray()
        for x in range(width):
            inside = (x - width / 2) ** 2 + (y - height / 2) ** 2 < (height / 2.5) ** 2
            row += b'\x20\x80\xf0' if inside else b'\xff\xff\xff'
        rows += row + bytes(-len(row) % 4)
    with open(path, 'wb') as file:
        file.write(b'BM' + struct.pack('<IHHI', 54 + len(rows), 0, 0, 54) +
                   struct.pack('<IiiHHIIiiII', 40, width, height, 1, 24, 0, len(rows), 2835, 2835, 0, 0) + rows)
    return path
