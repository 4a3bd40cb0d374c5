"""Plays another program, with a box for each offer: a click puts it on the clipboard, a drag carries it.

It prints "copied" after a click, "dragged" when a drag begins, "accepted" when a target accepts the drag, "asked" when
a program asks for the data of the clipboard or a drag, and "over" when a drag has ended in any way.
"""
import gi

gi.require_version("Gdk", "4.0")
gi.require_version("Gtk", "4.0")
from gi.repository import Gdk, Gio, GLib, Gtk  # noqa: E402

COLOUR = "application/x-color"
TEXT = "text/plain;charset=utf-8"
BOXES = {"whole": b"\x01\x02\x03", "silent": b"\x02\x03\x04", "endless": b"\x03\x04\x05", "huge": b"\x04\x05\x06"}
WHOLE = (0xC0, 0x00, 0xFF)
OPEN = []  # streams that would close if nothing held them


def say(word):
    print(word, flush=True)


def write(stream, data):
    """Returns whether somebody is still reading."""
    try:
        return stream.write_all(data, None)[0]
    except GLib.Error:
        return False


class Offer(Gdk.ContentProvider):
    def __init__(self, kind):
        super().__init__()
        self.kind = kind

    def do_ref_formats(self):
        return Gdk.ContentFormats.new([TEXT] if self.kind == "whole" else [COLOUR, TEXT])

    # Never calls back, and keeps the stream open: the toolkit closes a stream that nothing holds.
    def do_write_mime_type_async(self, _type, stream, *_):
        say("asked")
        if self.kind == "whole":
            write(stream, b"#%02X%02X%02X" % WHOLE)
            stream.close(None)
        elif self.kind == "endless":
            GLib.timeout_add(300, write, stream, b" ")
        elif self.kind == "huge":
            write(stream, b"1,2,3.." + bytes(100_000_000))
        else:
            OPEN.append(stream)


def box_of(kind):
    box = Gtk.Box(name=kind, width_request=60, height_request=60)

    def copy(*_):
        box.get_clipboard().set_content(Offer(kind))
        box.get_display().sync()  # sent now, since the compositor refuses it once another window has the focus
        say("copied")

    def begin(_, drag):
        drag.connect("notify::selected-action", lambda *_: say("accepted") if drag.get_selected_action() else None)
        say("dragged")

    click = Gtk.GestureClick()
    click.connect("released", copy)
    box.add_controller(click)
    source = Gtk.DragSource(actions=Gdk.DragAction.COPY)
    source.connect("prepare", lambda *_: Offer(kind))
    source.connect("drag-begin", begin)
    source.connect("drag-end", lambda *_: say("over"))
    box.add_controller(source)
    return box


def show(application):
    style = Gtk.CssProvider()
    style.load_from_data("".join(f"#{kind} {{ background: #{rgb.hex()}; }}" for kind, rgb in BOXES.items()).encode())
    Gtk.StyleContext.add_provider_for_display(Gdk.Display.get_default(), style, Gtk.STYLE_PROVIDER_PRIORITY_USER)
    row = Gtk.Box()
    for kind in BOXES:
        row.append(box_of(kind))
    Gtk.ApplicationWindow(application=application, title="Offers", child=row).present()


if __name__ == "__main__":
    client = Gtk.Application(flags=Gio.ApplicationFlags.NON_UNIQUE)
    client.connect("activate", show)
    client.run()
