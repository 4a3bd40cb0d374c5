"""The user of a session that session.sh brought up: Desktop moves the pointer, presses buttons and keys, and looks.

All places are global and in pixels; monitors have scale 1. Debian's own python3 runs it (python3-gi).

    desktop = Desktop()
    desktop.move(100, 200)
    desktop.click()
    desktop.press("ctrl", "f")
    picture = desktop.look()
    picture.pixel(100, 200)  # (red, green, blue)
"""
import time

import gi

gi.require_version("Gst", "1.0")
from gi.repository import Gio, GLib, Gst  # noqa: E402

MUTTER = "org.gnome.Mutter."
HIDDEN = 0  # the pointer, in pictures
BUTTONS = {"left": 0x110, "right": 0x111}
# The kernel's codes, as for a US keyboard.
KEYS = {"escape": 1, "tab": 15, "return": 28, "ctrl": 29, "f": 33, "shift": 42, "alt": 56, "space": 57, "p": 25}
KEYS |= {"v": 47, "c": 46, "h": 35, "n": 49, "super": 125, "down": 108, "up": 103, "f4": 62, "f9": 67}


class Picture:
    """What all monitors show, without the pointer."""

    def __init__(self, width, height, data):
        self.width, self.height, self.data = width, height, data

    def pixel(self, x, y):
        at = (y * self.width + x) * 3
        return tuple(self.data[at : at + 3])

    def row(self, x, y, width):
        at = (y * self.width + x) * 3
        return self.data[at : at + width * 3]

    def save(self, path):
        gi.require_version("GdkPixbuf", "2.0")
        from gi.repository import GdkPixbuf

        size = (self.width, self.height, self.width * 3)
        bytes_of = GLib.Bytes.new(self.data)
        GdkPixbuf.Pixbuf.new_from_bytes(bytes_of, GdkPixbuf.Colorspace.RGB, False, 8, *size).savev(path, "png", [], [])


class Desktop:
    def __init__(self):
        Gst.init(None)
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.width, self.height = self.extent()
        self.remote = self.call("RemoteDesktop", "/org/gnome/Mutter/RemoteDesktop", "", "CreateSession")[0]
        (remote_id,) = self.call(
            "RemoteDesktop", self.remote, "org.freedesktop.DBus.Properties", "Get",
            GLib.Variant("(ss)", (MUTTER + "RemoteDesktop.Session", "SessionId")))
        options = GLib.Variant("(a{sv})", ({"remote-desktop-session-id": GLib.Variant("s", remote_id)},))
        cast = self.call("ScreenCast", "/org/gnome/Mutter/ScreenCast", "", "CreateSession", options)[0]
        area = GLib.Variant("(iiiia{sv})", (0, 0, self.width, self.height, {"cursor-mode": GLib.Variant("u", HIDDEN)}))
        self.stream = self.call("ScreenCast", cast, ".Session", "RecordArea", area)[0]
        self.node = None
        self.bus.signal_subscribe(
            None, MUTTER + "ScreenCast.Stream", "PipeWireStreamAdded", self.stream, None, 0, self.stream_added)
        self.call("RemoteDesktop", self.remote, ".Session", "Start")
        self.wait(lambda: self.node is not None, "the stream of the pictures")

    def call(self, service, path, interface, method, arguments=None):
        if interface.startswith(".") or not interface:
            interface = MUTTER + service + interface
        answer = self.bus.call_sync(MUTTER + service, path, interface, method, arguments, None, 0, 10000, None)
        return answer.unpack()

    def stream_added(self, *signal):
        self.node = signal[5].unpack()[0]

    def wait(self, happened, what, seconds=10):
        """Waits until it happened, and gives what that returned. Raises TimeoutError."""
        end = time.monotonic() + seconds
        while True:
            while GLib.MainContext.default().iteration(False):
                pass
            result = happened()
            if result:
                return result
            if time.monotonic() > end:
                raise TimeoutError(what)
            time.sleep(0.005)

    def extent(self):
        """The size of all monitors together."""
        state = self.call("DisplayConfig", "/org/gnome/Mutter/DisplayConfig", "", "GetCurrentState")
        sizes = {}
        for (connector, *_), modes, _ in state[1]:
            sizes[connector] = next(mode[1:3] for mode in modes if mode[6].get("is-current"))
        self.monitors = []
        for x, y, _, _, _, members, _ in state[2]:
            self.monitors.append((x, y, *sizes[members[0][0]]))
        return max(x + w for x, y, w, h in self.monitors), max(y + h for x, y, w, h in self.monitors)

    def session(self, method, signature, *arguments):
        self.call("RemoteDesktop", self.remote, ".Session", method, GLib.Variant(signature, arguments))

    def move(self, x, y):
        self.session("NotifyPointerMotionAbsolute", "(sdd)", self.stream, x, y)

    def button(self, pressed, name="left"):
        self.session("NotifyPointerButton", "(ib)", BUTTONS[name], pressed)

    def click(self):
        self.button(True)
        self.button(False)

    def press(self, *keys):
        """Presses the keys one after the other, and lets them go in the opposite order."""
        for key in keys:
            self.session("NotifyKeyboardKeycode", "(ub)", KEYS[key], True)
        for key in reversed(keys):
            self.session("NotifyKeyboardKeycode", "(ub)", KEYS[key], False)

    def look(self):
        """Takes a Picture."""
        pipeline = Gst.parse_launch(
            f"pipewiresrc path={self.node} num-buffers=1 ! videoconvert ! video/x-raw,format=RGB ! appsink name=sink sync=false")
        pipeline.set_state(Gst.State.PLAYING)
        try:
            sample = pipeline.get_by_name("sink").emit("try-pull-sample", 5 * Gst.SECOND)
            if not sample:
                raise TimeoutError("a picture of the monitors")
            buffer = sample.get_buffer()
            stride = (self.width * 3 + 3) // 4 * 4
            data = buffer.extract_dup(0, buffer.get_size())
            rows = (data[y * stride : y * stride + self.width * 3] for y in range(self.height))
            return Picture(self.width, self.height, b"".join(rows))
        finally:
            pipeline.set_state(Gst.State.NULL)
