"""Plays a graphics program with boxes of 60 by 60 pixels; colours can be dragged from them. See ExchangeTest.cpp."""
import time

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, Gtk  # noqa: E402

COLOUR = "application/x-color"
TEXT = "text/plain;charset=utf-8"
FILES = "text/uri-list"
ADDRESS = b"file:///tmp/photo.v1.png"


def colour_button():
    button = Gtk.ColorButton()
    button.set_rgba(Gdk.RGBA(0x12 / 255, 0xAB / 255, 0xF0 / 255, 1))

    def tell(*_):
        rgba = button.get_rgba()
        print("".join("%04X" % round(part * 65535) for part in (rgba.red, rgba.green, rgba.blue)), flush=True)

    button.connect("color-set", tell)
    return button


def source(payloads):
    box = Gtk.EventBox()
    box.drag_source_set(Gdk.ModifierType.BUTTON1_MASK, [], Gdk.DragAction.COPY)
    box.drag_source_set_target_list([Gtk.TargetEntry.new(kind, 0, i) for i, (kind, _) in enumerate(payloads)])

    def give(_widget, _context, data, info, _time):
        kind, payload = payloads[info]
        if payload is None:
            time.sleep(60)
            return
        data.set(Gdk.Atom.intern(kind, False), 16 if kind == COLOUR else 8, payload)

    box.connect("drag-data-get", give)
    return box


def main():
    window = Gtk.Window(type=Gtk.WindowType.POPUP)
    grid = Gtk.Grid()
    for i, widget in enumerate((
        colour_button(),
        source([(COLOUR, b"\x12\x34\x56")]),
        source([(COLOUR, bytes(30)), (TEXT, b"#00C0FF")]),
        source([(TEXT, b"#C000FF")]),
        source([(FILES, ADDRESS + b"\r\n"), (TEXT, ADDRESS)]),
        source([(TEXT, b"1,2,3.." + bytes(100_000_000))]),
        source([(COLOUR, None), (TEXT, None)]),
    )):
        widget.set_size_request(60, 60)
        widget.connect("drag-end", lambda *_: print("over", flush=True))
        grid.attach(widget, i % 4, i // 4, 1, 1)
    window.add(grid)
    window.move(900, 600)
    window.show_all()
    window.connect("map-event", lambda *_: print("ready", flush=True))
    Gtk.main()


main()
