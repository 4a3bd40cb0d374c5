"""Covers every monitor with the known colours of colours.py.

The line "cover" on its standard input opens such windows in front of all others, and "uncover" closes these.
"""
import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, GdkPixbuf, GLib, Gtk  # noqa: E402

from colours import colours_of  # noqa: E402


class Client:
    def __init__(self):
        self.display = Gdk.Display.get_default()
        self.covers = []
        for index in range(self.display.get_n_monitors()):
            self.open(index)

    def open(self, index):
        geometry = self.display.get_monitor(index).get_geometry()
        size = (geometry.width, geometry.height)
        colours = GLib.Bytes.new(colours_of(geometry.x, geometry.y, *size))
        picture = GdkPixbuf.Pixbuf.new_from_bytes(
            colours, GdkPixbuf.Colorspace.RGB, False, 8, *size, size[0] * 3)
        window = Gtk.Window(title="Colours")
        window.add(Gtk.Image.new_from_pixbuf(picture))
        window.fullscreen_on_monitor(self.display.get_default_screen(), index)
        window.show_all()
        return window

    def obey(self, channel, _):
        line = channel.readline()
        if line == "cover\n":
            self.covers = [self.open(index) for index in range(self.display.get_n_monitors())]
        elif line == "uncover\n":
            for window in self.covers:
                window.destroy()
        elif not line:
            Gtk.main_quit()
        return bool(line)


client = Client()
GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, client.obey)
Gtk.main()
