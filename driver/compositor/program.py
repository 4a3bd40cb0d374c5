"""The built program in a session as its user sees it."""
import os
import subprocess
import time

from gi.repository import Atspi

from assistive import called, has_keyboard, has_state, windows
from desktop import Picture, wait

WIDTH, HEIGHT = 448, 262  # the inside of the folded window
GREY = b"\xcc\xcc\xcc"
PREVIEW = (20, 33, 408, 192)
CELL = 4
COLUMNS, ROWS = 102, 48
MARKER = (204, 96, 5)
DARK_MARKER, LIGHT_MARKER, FRAME = b"\x00\x00\x00", b"\xf9\x73\x24", b"\xff\xff\xff"


def title_of(colour):
    return "Color: %d.%d.%d, #%02X%02X%02X" % (*colour, *colour)


def outline(rows, left, top, width, height, colour):
    for x in range(left, left + width):
        for y in (top, top + height - 1):
            rows[y][x * 3 : x * 3 + 3] = colour
    for y in range(top, top + height):
        for x in (left, left + width - 1):
            rows[y][x * 3 : x * 3 + 3] = colour


def preview_of(colour_at, x, y):
    """Returns what the preview must show at zoom 1 while it follows the pointer at this position."""
    rows = []
    for row in range(ROWS):
        places = ((x - COLUMNS // 2 + column, y - ROWS // 2 + row) for column in range(COLUMNS))
        cells = b"".join(bytes(colour_at(*place)) * CELL for place in places)
        rows += [bytearray(cells) for _ in range(CELL)]
    left, top, size = MARKER
    outline(rows, left, top, size, size, LIGHT_MARKER if max(colour_at(x, y)) / 255 < 0.5 else DARK_MARKER)
    outline(rows, 0, 0, *PREVIEW[2:], FRAME)
    return Picture(*PREVIEW[2:], b"".join(rows))


class Program:
    """Starts the program and waits for its window. The top left corner of its inside is at `left`, `top`."""

    def __init__(self, desktop, path):
        self.desktop = desktop
        settings = {"QT_QPA_PLATFORM": "wayland", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        with open(os.path.join(os.environ["SESSION_LOGS"], "program.log"), "ab") as log:
            self.process = subprocess.Popen([path], env=os.environ | settings, stdout=log, stderr=log)
        self.window = wait(self.tool_window, "the tool window's title")
        self.left, self.top = wait(self.find, "the tool window")
        self.await_keyboard()

    def windows(self):
        return windows(lambda program: program.get_process_id() == self.process.pid)

    def tool_window(self):
        return next((window for window in self.windows() if window.get_name().startswith("Color: ")), None)

    def find(self):
        """Returns the top left corner of the window's inside, or None if it is not fully visible."""
        picture = self.desktop.look()
        at = picture.data.find(GREY * WIDTH)
        if at < 0:
            return None
        left, top = at // 3 % picture.width, at // 3 // picture.width
        bottom_is_seen = picture.row(left, top + HEIGHT - 1, WIDTH) == GREY * WIDTH
        return (left, top) if bottom_is_seen else None

    def focus(self):
        """Gives the window the focus by a click beside its controls."""
        self.desktop.move(self.left + 8, self.top + HEIGHT - 4)
        self.desktop.click()
        self.await_keyboard()

    def await_keyboard(self):
        wait(lambda: has_keyboard(self.window), "the keyboard for the tool window")

    def title(self):
        self.window.clear_cache()
        return self.window.get_name()

    def shows(self, text):
        """Returns whether a label soon shows the text."""
        try:
            return bool(wait(lambda: called(self.window, "label", text), text, 2))
        except TimeoutError:
            return False

    def is_marked(self, command):
        """Returns whether the menu's command has a mark."""
        return has_state(called(self.window, "menu item", command), Atspi.StateType.CHECKED)

    def preview(self):
        left, top, width, height = PREVIEW
        return self.desktop.look().part(self.left + left, self.top + top, width, height)

    def preview_place(self, column, row):
        """Returns the middle of a cell of the preview, as a position on the screen."""
        return self.left + PREVIEW[0] + column * CELL + 2, self.top + PREVIEW[1] + row * CELL + 2

    def cpu(self, seconds, meanwhile=lambda: None):
        """Returns the CPU time of all its threads, in milliseconds a second."""

        def run():
            tasks = f"/proc/{self.process.pid}/task"
            ran = (open(f"{tasks}/{task}/schedstat").read().split()[0] for task in os.listdir(tasks))
            return sum(map(int, ran)) / 1e6

        before, start = run(), time.monotonic()
        while time.monotonic() < start + seconds:
            meanwhile()
            time.sleep(0.01)
        return (run() - before) / (time.monotonic() - start)

    def memory(self):
        """Returns its resident memory in MiB."""
        status = open(f"/proc/{self.process.pid}/status").read()
        return int(status.split("VmRSS:")[1].split()[0]) / 1024
