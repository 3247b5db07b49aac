"""The built program on a display of its own, watched through the probe and driven by real mouse and key events."""
import hashlib
import json
import os
import shutil
import socket
import subprocess
import tempfile
import time

PATIENCE = 60.0
WHOLE = {'x': 0, 'y': 0, 'width': 1600, 'height': 1200}


def until(what, told):
    """Waits until `what()` gives something true, and gives that."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        result = what()
        if result:
            return result
        time.sleep(0.02)
    raise AssertionError('waited in vain for ' + told)


def another_machine(plugins):
    """What makes a program wait for its disk, or for that of its photos, and take the machine for one of another number
    of cores; nothing where it isn't asked for."""
    asked, loaded = {}, []
    for beginning, stand_in in (('TESSALOOM_SLOW_', 'slow_disk.so'), ('TESSALOOM_TOLD_', 'told_cores.so')):
        found = {name: value for name, value in os.environ.items() if name.startswith(beginning)}
        if found:
            asked.update(found)
            loaded.append(os.path.join(plugins, stand_in))
    return {'LD_PRELOAD': ':'.join(loaded), **asked} if loaded else {}


def those_of_no_desktop(variables):
    """Without what the machine's desktop and its language have set up for programs."""
    desktops = ('QT_', 'XDG_', 'KDE_', 'GNOME_', 'GTK_', 'WAYLAND_', 'DESKTOP_', 'LC_', 'LANG')
    return {name: value for name, value in variables.items() if not name.startswith(desktops)}


class Display:
    """A screen that no one else has."""

    def __init__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ['Xvfb', '-displayfd', str(write), '-screen', '0', '%(width)dx%(height)dx24' % WHOLE, '-nolisten', 'tcp',
             '-noreset'],  # it would reset itself when its only program was killed, and refuse the next one meanwhile
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as told:
            number = told.readline().strip()  # the whole line: a pipe closed in its middle ends the display
        self.name = ':' + number

    def close(self):
        self.server.kill()
        self.server.wait()


class Program:
    """A program that was started, with a home of its own, or in the home and on the display of another one."""

    def __init__(self, app, plugins, *words, beside=None, home=None):
        self.app = app
        self.beside = beside
        self.folder = home or (beside.folder if beside else tempfile.mkdtemp(prefix='tessaloom_'))
        self.data = os.path.join(self.folder, '.local', 'share', 'tessaloom4')
        self.display = self.process = None
        try:
            self.display = beside.display if beside else Display()
            self.environment = dict(those_of_no_desktop(os.environ), DISPLAY=self.display.name, HOME=self.folder,
                                    XDG_RUNTIME_DIR=self.folder, TMPDIR=self.folder, QT_QPA_PLATFORMTHEME='')
            self.start_program(plugins, *words)
        except BaseException:
            self.close()
            raise

    def start_program(self, plugins, *words):
        self.socket_path = tempfile.mktemp(prefix='probe_', dir=self.folder)
        self.process = subprocess.Popen(
            [os.path.join(self.app, 'tessaloom'), *words], stderr=subprocess.DEVNULL,
            env=dict(self.environment, **self.shown_by(), QT_PLUGIN_PATH=plugins, QT_QPA_GENERIC_PLUGINS='probe',
                     TESSALOOM_PROBE=self.socket_path, LC_ALL='C.UTF-8', **another_machine(plugins)))
        self.probe = until(self.reached, 'the program')
        self.answers = self.probe.makefile('r')
        self.focused = None

    def shown_by(self):
        """What tells the program how to reach its display."""
        return {'QT_QPA_PLATFORM': 'xcb'}

    def reached(self):
        """The line to the probe, once it listens: its socket is there a moment before."""
        line = socket.socket(socket.AF_UNIX)
        line.settimeout(PATIENCE)
        try:
            line.connect(self.socket_path)
        except OSError:
            line.close()
            return None
        return line

    def close(self):
        if self.process:
            self.process.kill()
            self.process.wait()
        if self.beside:
            return
        if self.display:
            self.display.close()
        shutil.rmtree(self.folder, ignore_errors=True)

    # ---- what is seen

    def ask(self, line):
        self.probe.sendall(line.encode() + b'\n')
        return self.answers.readline()

    def look(self):
        """The window that can be reached. Gives it the focus once, as a window manager would."""
        seen = json.loads(self.ask('look'))
        if seen and seen['id'] != self.focused and seen['class'] != 'QMenu':
            if self.focus(seen['id']):
                self.focused = seen['id']
        return seen

    def focus(self, window):
        """False where the window is on its way in or out."""
        try:
            told = subprocess.run(['xdotool', 'windowfocus', '--sync', str(window)], env=self.environment, timeout=5,
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        except subprocess.TimeoutExpired:
            return False
        return told.returncode == 0

    def window(self, name):
        """Waits for the window of that name or class, or with that title, until it takes the keys."""
        def there():
            seen = self.look()
            return seen if seen and seen['active'] and name in (seen['window'], seen['class'], seen['title']) else None
        return until(there, name)

    def find(self, name, seen=None):
        for widget in (seen or self.look()).get('widgets', []):
            if widget['name'] == name or widget['text'].replace('&', '') == name:
                return widget
        return None

    def widget(self, name):
        """Waits until the widget or menu entry of that name, or else with that text, can be used. An entry of a list
        that is out of sight is brought there by the wheel."""
        def ready():
            found = self.find(name)
            if found and 'wheel' in found:
                self.point_at(found)
                self.tool('click', str(found['wheel']))
                return None
            return found if found and found.get('enabled') else None
        return until(ready, name)

    def pixels(self, name):
        """A digest of what the screen shows of the widget."""
        at = self.widget(name)
        return self.ask('see %d %d %d %d' % (at['x'], at['y'], at['width'], at['height'])).strip()

    def keep(self, at, path):
        """Writes what the screen shows at that place to a file."""
        told = self.ask('see %d %d %d %d %s' % (at['x'], at['y'], at['width'], at['height'], path)).strip()
        if not os.path.exists(path):
            raise AssertionError('%s: %s' % (path, told))

    def finished(self):
        """A digest of the picture that the session made last; empty while there is none."""
        path = os.path.join(self.data, 'tmp', 'finished.jpg')
        try:
            with open(path, 'rb') as file:
                return hashlib.sha1(file.read()).hexdigest()
        except OSError:
            return ''

    # ---- what is done

    def tool(self, *words):
        subprocess.run(['xdotool', *words], env=self.environment, check=True, stdout=subprocess.DEVNULL)

    def point_at(self, at):
        self.tool('mousemove', '--sync', str(at['x'] + at['width'] // 2), str(at['y'] + at['height'] // 2))

    def click(self, name, button=1, times=1):
        at = self.widget(name)
        # Check boxes and options are hit at their mark, which stands at the left.
        x = at['x'] + (10 if 'checked' in at and at['width'] > 60 and at['height'] < 40 else at['width'] // 2)
        self.tool('mousemove', '--sync', str(x), str(at['y'] + at['height'] // 2))
        self.tool('click', '--repeat', str(times), '--delay', '60', str(button))

    def keys(self, *names):
        for name in names:
            self.tool('key', '--clearmodifiers', name)

    def shortcut(self, name):
        """Presses the letter that the text of the widget or menu entry underlines."""
        found = self.widget(name)
        text = found['text'].replace('&&', '')
        if '&' not in text:
            raise AssertionError(name + ' has no letter of its own: ' + text)
        letter = text[text.index('&') + 1].lower()
        in_menu = self.look()['class'] == 'QMenu'
        self.keys(letter if in_menu else 'alt+' + letter)
        if found.get('option'):
            until(lambda: self.find(name)['checked'], name)  # the toolkit shows it pressed for a while

    def type(self, text):
        self.tool('type', '--delay', '8', text)

    def type_into(self, name, text):
        self.click(name)
        self.keys('ctrl+a')
        self.type(text)

    def picture_of(self, path):
        """Width and height of a JPEG file."""
        with open(path, 'rb') as file:
            data = file.read()
        at = 2
        while data[at] == 0xFF:
            marker, length = data[at + 1], int.from_bytes(data[at + 2:at + 4], 'big')
            if 0xC0 <= marker <= 0xC3:
                return (int.from_bytes(data[at + 7:at + 9], 'big'), int.from_bytes(data[at + 5:at + 7], 'big'))
            at += 2 + length
        raise AssertionError('no frame in ' + path)
