"""What a reader of the screen hears of the program, and what it can do: the program on a bus of its own, asked as readers
ask. Nothing is remembered between two questions."""
import os
import subprocess
import sys
import tempfile

from gi.repository import Gio, GLib

from screen import Program, until

ANSWER_TIME = 5000  # milliseconds
BUS = 'org.a11y.Bus'
KIND = 'org.a11y.atspi.'
LABELLED_BY = 2
STATES = {1: 'active', 4: 'checked', 7: 'editable', 8: 'enabled', 11: 'focusable', 12: 'focused', 16: 'modal',
          24: 'sensitive', 25: 'showing', 30: 'visible', 43: 'read only'}


def on_own_bus():
    """Starts this play anew on a message bus that ends with it; returns there."""
    if 'TESSALOOM_OWN_BUS' in os.environ:
        return
    with tempfile.TemporaryDirectory(prefix='tessaloom_bus_') as folder:
        environment = dict(os.environ, TESSALOOM_OWN_BUS=folder, XDG_RUNTIME_DIR=folder, GIO_USE_VFS='local')
        sys.exit(subprocess.call(['dbus-run-session', '--', sys.executable, *sys.argv], env=environment))


class HeardProgram(Program):
    """The program as it is where a reader of the screen runs."""

    def start_program(self, plugins):
        self.environment['QT_LINUX_ACCESSIBILITY_ALWAYS_ON'] = '1'
        super().start_program(plugins)


class Heard:
    """A widget, a window or an entry of a menu as it is told to readers."""

    def __init__(self, bus, owner, path):
        self.bus, self.owner, self.path = bus, owner, path

    def ask(self, kind, question, words=None, answer=None):
        return self.bus.call_sync(self.owner, self.path, kind, question, words, answer and GLib.VariantType(answer),
                                  Gio.DBusCallFlags.NONE, ANSWER_TIME, None).unpack()

    def told(self, kind, name):
        return self.ask('org.freedesktop.DBus.Properties', 'Get', GLib.Variant('(ss)', (KIND + kind, name)), '(v)')[0]

    @property
    def name(self):
        return self.told('Accessible', 'Name')

    @property
    def role(self):
        return self.ask(KIND + 'Accessible', 'GetRoleName')[0]

    @property
    def states(self):
        low, high = self.ask(KIND + 'Accessible', 'GetState')[0]
        bits = low | high << 32
        return {STATES[bit] for bit in STATES if bits >> bit & 1}

    @property
    def parent(self):
        owner, path = self.told('Accessible', 'Parent')
        return Heard(self.bus, owner, path)

    @property
    def children(self):
        return [Heard(self.bus, owner, path) for owner, path in self.ask(KIND + 'Accessible', 'GetChildren')[0]
                if not path.endswith('/null')]

    @property
    def kinds(self):
        return {kind.removeprefix(KIND) for kind in self.ask(KIND + 'Accessible', 'GetInterfaces')[0]}

    @property
    def labels(self):
        """The names of what labels it."""
        return [Heard(self.bus, owner, path).name for kind, told in self.ask(KIND + 'Accessible', 'GetRelationSet')[0]
                if kind == LABELLED_BY for owner, path in told]

    @property
    def actions(self):
        return [name for name, _, _ in self.ask(KIND + 'Action', 'GetActions')[0]] if 'Action' in self.kinds else []

    @property
    def place(self):
        """Left, top, width and height on the screen."""
        if 'Component' not in self.kinds:
            return None
        return tuple(self.ask(KIND + 'Component', 'GetExtents', GLib.Variant('(u)', (0,)))[0])

    @property
    def text(self):
        return self.ask(KIND + 'Text', 'GetText', GLib.Variant('(ii)', (0, -1)))[0]

    def inside(self):
        """Itself and all below it that is showing."""
        yield self
        for child in self.children:
            if 'showing' in child.states or child.role in ('menu item', 'menu'):
                yield from child.inside()

    def act(self, name):
        """Does it as soon as it can be used, and doesn't wait: the answer comes when the window that this opens has gone."""
        until(lambda: 'sensitive' in self.states, self.name + ' to be usable')
        number = self.actions.index(name)
        self.bus.call(self.owner, self.path, KIND + 'Action', 'DoAction', GLib.Variant('(i)', (number,)), None,
                      Gio.DBusCallFlags.NONE, ANSWER_TIME, None, None)
        self.bus.flush_sync()

    def set_text(self, text):
        self.ask(KIND + 'EditableText', 'SetTextContents', GLib.Variant('(s)', (text,)))


class Reader:
    def __init__(self):
        session = Gio.bus_get_sync(Gio.BusType.SESSION)
        address = session.call_sync(BUS, '/org/a11y/bus', BUS, 'GetAddress', None, None, Gio.DBusCallFlags.NONE,
                                    ANSWER_TIME, None).unpack()[0]
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        self.bus = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)

    def windows(self):
        root = Heard(self.bus, KIND + 'Registry', '/org/a11y/atspi/accessible/root')
        return [window for program in root.children for window in program.children if 'showing' in window.states]

    def window(self, name):
        """Waits for the window that is called so."""
        return until(lambda: next((each for each in heard(self.windows) or [] if heard(lambda: each.name) == name), None), name)

    def find(self, window, role, name):
        """Waits for what has that role and that name there."""
        def there():
            return next((each for each in window.inside() if each.role == role and each.name == name), None)
        return until(lambda: heard(there), '%s %s' % (role, name))

    def press(self, window, role, name, action='Press'):
        self.find(window, role, name).act(action)

    def gone(self, name):
        until(lambda: name not in [heard(lambda: each.name) for each in heard(self.windows) or []], name + ' to close')


def heard(question):
    """The answer; nothing where what was asked has gone meanwhile."""
    try:
        return question()
    except GLib.Error:
        return None
