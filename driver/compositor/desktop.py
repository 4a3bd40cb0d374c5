"""Plays the user of a session that session.sh started: moves the pointer, presses buttons and keys, takes pictures.

All positions are in pixels of the whole screen, and each monitor has scale 1. Debian's own python3 runs it.

    desktop = Desktop()
    desktop.move(100, 200)
    desktop.click()
    desktop.press("ctrl", "f")
    desktop.look().pixel(100, 200)  # (red, green, blue)
"""
import time

import gi

gi.require_version("GdkPixbuf", "2.0")
gi.require_version("Gst", "1.0")
from gi.repository import GdkPixbuf, Gio, GLib, Gst  # noqa: E402

PREFIX = "org.gnome.Mutter."
HIDDEN = 0  # mutter's value for pictures without the pointer
LEFT_BUTTON = 0x110
# The kernel's key codes on a US keyboard.
KEYS = {"escape": 1, "tab": 15, "return": 28, "ctrl": 29, "shift": 42, "alt": 56, "space": 57, "super": 125}
for first, letters in ((16, "qwertyuiop"), (30, "asdfghjkl"), (44, "zxcvbnm")):
    KEYS |= {letter: first + index for index, letter in enumerate(letters)}


def wait(happened, what, seconds=10.0):
    """Waits until the function returns a true value, and returns that. Raises TimeoutError."""
    end = time.monotonic() + seconds
    while True:
        while GLib.MainContext.default().iteration(False):
            pass
        result = happened()
        if result:
            return result
        if time.monotonic() > end:
            raise TimeoutError(f"{what}: not within {seconds:g} s")
        time.sleep(0.01)


class Picture:
    """Pixels, row by row, three bytes each."""

    def __init__(self, width, height, data):
        self.width, self.height, self.data = width, height, data

    def pixel(self, x, y):
        return tuple(self.row(x, y, 1))

    def row(self, x, y, width):
        at = (y * self.width + x) * 3
        return self.data[at : at + width * 3]

    def part(self, x, y, width, height):
        return Picture(width, height, b"".join(self.row(x, y + row, width) for row in range(height)))

    def save(self, path):
        layout = (GdkPixbuf.Colorspace.RGB, False, 8, self.width, self.height, self.width * 3)
        GdkPixbuf.Pixbuf.new_from_bytes(GLib.Bytes.new(self.data), *layout).savev(path, "png", [], [])


class Service:
    """One of mutter's own D-Bus interfaces."""

    def __init__(self, name):
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.name = PREFIX + name
        self.root = "/" + self.name.replace(".", "/")

    def call(self, method, signature="()", *arguments, path=None, interface=""):
        place = (self.name, path or self.root, self.name + interface, method)
        return self.bus.call_sync(*place, GLib.Variant(signature, arguments), None, 0, 30000, None).unpack()


class Recording:
    """A stream of pictures of an area, without the pointer. `remote` is the session of a remote desktop."""

    def __init__(self, left, top, width, height, remote=None):
        self.size = (width, height)
        self.service = Service("ScreenCast")
        options = {"remote-desktop-session-id": GLib.Variant("s", remote)} if remote else {}
        (self.session,) = self.service.call("CreateSession", "(a{sv})", options)
        area = (left, top, width, height, {"cursor-mode": GLib.Variant("u", HIDDEN)})
        (self.path,) = self.service.call("RecordArea", "(iiiia{sv})", *area, path=self.session, interface=".Session")
        self.node = None
        signal = (None, PREFIX + "ScreenCast.Stream", "PipeWireStreamAdded", self.path, None, 0)
        self.service.bus.signal_subscribe(*signal, self.added)

    def added(self, *signal):
        self.node = signal[-1].unpack()[0]

    def start(self):
        self.service.call("Start", path=self.session, interface=".Session")

    def play(self):
        """Starts a pipeline, which the caller must stop(). Returns it and the sink for next()."""
        wait(lambda: self.node, "a stream of pictures")
        pipeline = Gst.parse_launch(
            f"pipewiresrc path={self.node} always-copy=true ! videoconvert ! video/x-raw,format=RGB "
            "! appsink name=sink sync=false")
        pipeline.set_state(Gst.State.PLAYING)
        return pipeline, pipeline.get_by_name("sink")

    def next(self, sink, seconds=5.0):
        """Returns the next picture, or None if none comes in this time."""
        sample = sink.emit("try-pull-sample", int(seconds * Gst.SECOND))
        if not sample:
            return None
        width, height = self.size
        buffer = sample.get_buffer()
        stride = (width * 3 + 3) // 4 * 4
        data = buffer.extract_dup(0, buffer.get_size())
        return Picture(width, height, b"".join(data[y * stride :][: width * 3] for y in range(height)))

    @staticmethod
    def stop(pipeline):
        pipeline.set_state(Gst.State.NULL)

    def look(self):
        """Returns a picture of the present moment."""
        pipeline, sink = self.play()
        try:
            return self.next(sink) or self.next(sink)
        finally:
            self.stop(pipeline)


class Desktop:
    """`monitors` has the rectangle (left, top, width, height) of each monitor."""

    def __init__(self):
        Gst.init(None)
        self.monitors = self.read_monitors()
        self.remote = Service("RemoteDesktop")
        (self.session,) = self.remote.call("CreateSession")
        place = (self.remote.name, self.session, "org.freedesktop.DBus.Properties", "Get")
        arguments = GLib.Variant("(ss)", (self.remote.name + ".Session", "SessionId"))
        (session_id,) = self.remote.bus.call_sync(*place, arguments, None, 0, -1, None).unpack()
        right = max(left + width for left, _, width, _ in self.monitors)
        bottom = max(top + height for _, top, _, height in self.monitors)
        self.recording = Recording(0, 0, right, bottom, session_id)
        self.act("Start")
        # Clients see no pointer and no keyboard until their first use, and miss that use.
        self.move(right / 2, bottom / 2)
        self.press("shift")

    @staticmethod
    def read_monitors():
        _, monitors, layout, _ = Service("DisplayConfig").call("GetCurrentState")
        sizes = {names[0]: mode[1:3] for names, modes, _ in monitors for mode in modes if mode[6].get("is-current")}
        return [(left, top, *sizes[members[0][0]]) for left, top, _, _, _, members, _ in layout]

    def act(self, method, signature="()", *arguments):
        self.remote.call(method, signature, *arguments, path=self.session, interface=".Session")

    def move(self, x, y):
        self.act("NotifyPointerMotionAbsolute", "(sdd)", self.recording.path, x, y)

    def button(self, pressed):
        self.act("NotifyPointerButton", "(ib)", LEFT_BUTTON, pressed)

    def click(self):
        self.button(True)
        self.button(False)

    def press(self, *keys):
        """Presses the keys in order, and releases them in the opposite order."""
        for key in keys:
            self.act("NotifyKeyboardKeycode", "(ub)", KEYS[key], True)
        for key in reversed(keys):
            self.act("NotifyKeyboardKeycode", "(ub)", KEYS[key], False)

    def look(self):
        """Returns a picture of all monitors. A gap between them is black."""
        return self.recording.look()
