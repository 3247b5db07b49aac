#!/usr/bin/env python3
"""Stands in for a desktop's portal: portal.py FOLDER, on the session's bus. Writes down what it is asked for in FOLDER/asked, a
line of JSON each, and answers with what FOLDER/answer says then: how it went (0 chosen, 1 given up) and the files."""
import json
import os
import sys

from gi.repository import Gio, GLib

NAME, PLACE = 'org.freedesktop.portal.Desktop', '/org/freedesktop/portal/desktop'
REQUEST = 'org.freedesktop.portal.Request'
CHOOSER = Gio.DBusNodeInfo.new_for_xml("""<node><interface name="org.freedesktop.portal.FileChooser">
  <method name="OpenFile">
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="a{sv}" direction="in"/><arg type="o" direction="out"/>
  </method>
  <property name="version" type="u" access="read"/>
</interface></node>""").interfaces[0]
AGAIN = 50  # milliseconds: one who asks may listen for the answer only when it knows where that will come from


class Portal:
    def __init__(self, folder):
        self.folder, self.count = folder, 0
        Gio.bus_own_name(Gio.BusType.SESSION, NAME, Gio.BusNameOwnerFlags.NONE, self.begin, None, None)

    def begin(self, bus, name):
        bus.register_object(PLACE, CHOOSER, self.asked, lambda *asked: GLib.Variant('u', 3), None)
        open(os.path.join(self.folder, 'asked'), 'w').close()

    def asked(self, bus, sender, place, interface, method, words, call):
        self.count += 1
        handle = '%s/request/%s/%d' % (PLACE, sender[1:].replace('.', '_'), self.count)
        with open(os.path.join(self.folder, 'answer')) as file:
            how, uris = json.load(file)
        answer = GLib.Variant('(ua{sv})', (how, {'uris': GLib.Variant('as', uris)}))
        call.return_value(GLib.Variant('(o)', (handle,)))
        number = self.count

        def tell():
            bus.emit_signal(sender, handle, REQUEST, 'Response', answer)
            return self.count == number
        GLib.timeout_add(AGAIN, tell)
        with open(os.path.join(self.folder, 'asked'), 'a') as file:
            file.write(json.dumps(words.unpack()) + '\n')


portal = Portal(sys.argv[1])
GLib.MainLoop().run()
