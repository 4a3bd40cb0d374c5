"""checks.py PROGRAM PICTURES: tries the program in a session with monitors of 1280x1024 and 1024x768.

Says OK or what differs for each case, and leaves pictures of the monitors in the folder PICTURES.
"""
import os
import random
import subprocess
import sys
import time

from assistive import allow, await_dialog, dialogs, refuse
from colours import colour_at, place_of
from desktop import Desktop, wait
from program import COLUMNS, ROWS, Program, preview_of, title_of

PATIENCE = 2.0  # seconds
PLACES = ((640, 800), (700, 500), (51, 900), (0, 1023), (1228, 300), (1279, 0), (1280, 767), (1300, 40), (2303, 0))
PLACES += ((1279, 767), (1800, 400), (2303, 767))


class Differs(Exception):
    """Says what differs from what is wanted."""


class Colours:
    """The client that covers the monitors with known colours."""

    def __init__(self, desktop):
        client = os.path.join(os.path.dirname(__file__), "colours_client.py")
        self.desktop = desktop
        self.process = subprocess.Popen([sys.executable, client], stdin=subprocess.PIPE, text=True)
        wait(self.cover_all, "the client with known colours", 20)

    def cover_all(self):
        picture = self.desktop.look()
        corners = [(x, y) for left, top, width, height in self.desktop.monitors
                   for x in (left, left + width - 1) for y in (top, top + height - 1)]
        return all(picture.pixel(*place) == colour_at(*place) for place in corners)

    def obey(self, command):
        self.process.stdin.write(command + "\n")
        self.process.stdin.flush()


class Checks:
    def __init__(self, path, pictures):
        self.pictures = pictures
        self.desktop = Desktop()
        self.colours = Colours(self.desktop)
        self.program = Program(self.desktop, path)
        self.random = random.Random(1)

    def keep_picture(self, name):
        self.desktop.look().save(os.path.join(self.pictures, f"{name}.png"))

    def screen_at(self, x, y):
        """The colour of the screen at a place where the program's window isn't."""
        inside = any(0 <= x - left < width and 0 <= y - top < height
                     for left, top, width, height in self.desktop.monitors)
        return colour_at(x, y) if inside else (0, 0, 0)

    def place_outside(self):
        """A place whose whole sample shows the known colours."""
        left, top, width, height = self.random.choice(self.desktop.monitors)
        return self.random.randrange(left, left + width), self.random.randrange(max(top, 420), top + height)

    def await_preview(self, x, y):
        """Waits until the preview shows exactly what is around the place."""
        wanted = preview_of(self.screen_at, x, y)
        shown = None

        def is_shown():
            nonlocal shown
            shown = self.program.preview()
            return shown.data == wanted.data

        try:
            wait(is_shown, "the preview", PATIENCE)
        except TimeoutError:
            pixels = range(0, len(wanted.data), 3)
            wrong = sum(shown.data[at : at + 3] != wanted.data[at : at + 3] for at in pixels)
            centre = place_of(shown.pixel(206, 98))
            raise Differs(f"at {x}, {y}: {wrong} pixels of the preview, whose centre is {centre}") from None

    def await_title(self, colour, what):
        """Waits until the program has taken the colour."""
        try:
            wait(lambda: self.program.title() == title_of(colour), "the colour", PATIENCE)
        except TimeoutError:
            raise Differs(f"{what}: {self.program.title()} in place of {title_of(colour)}") from None

    def expect(self, is_so, what):
        if not is_so:
            raise Differs(what)

    def follow(self, on):
        if self.program.follows() != on:
            self.desktop.press("ctrl", "f")
            wait(lambda: self.program.follows() == on, "the mark of Follow mouse", PATIENCE)

    def move(self, x, y):
        """Moves the pointer, and lets it and the screen come to rest."""
        self.desktop.move(x, y)
        time.sleep(0.2)

    # The cases, in their order.

    def refused(self):
        self.desktop.press("ctrl", "f")
        await_dialog()
        self.keep_picture("asked")
        refuse(self.desktop)
        wait(lambda: len(self.program.windows()) > 1, "a message", PATIENCE)
        self.keep_picture("refused")
        self.expect(not self.program.follows(), "Follow mouse keeps its mark")
        self.desktop.press("return")
        wait(lambda: len(self.program.windows()) == 1, "the end of the message", PATIENCE)

    def first_poke_asks(self):
        title = self.program.title()
        self.desktop.press("ctrl", "alt", "p")
        allow(await_dialog())
        wait(lambda: not dialogs(), "the end of the portal's dialog")
        time.sleep(0.5)
        self.expect(self.program.title() == title, "the first Poke took a colour")

    def follows_pointer(self):
        self.program.focus()
        self.follow(True)
        for place in PLACES:
            self.desktop.move(*place)
            self.await_preview(*place)
            self.expect(self.program.shows("{%d, %d}" % place), f"the label of {place}")
        self.keep_picture("two-monitors")
        self.expect(not dialogs(), "the desktop asks a second time")

    def follows_to_end_of_burst(self):
        for _ in range(5):
            for _ in range(40):
                place = self.place_outside()
                self.desktop.move(*place)
                time.sleep(0.01)
            self.await_preview(*place)

    def pokes(self):
        for turn in range(20):
            if turn in (0, 10):
                self.follow(turn == 0)
            place = self.place_outside()
            self.desktop.move(*place)
            self.desktop.press("ctrl", "alt", "p")
            self.await_title(colour_at(*place), "following" if turn < 10 else "not following")
            time.sleep(0.1)

    def drags_out(self):
        self.follow(False)
        for _ in range(10):
            self.move(*self.program.preview_place(20, 20))
            self.desktop.button(True)
            stop, end = self.place_outside(), self.place_outside()
            self.desktop.move(*stop)
            self.await_preview(*stop)
            self.desktop.move(*end)
            self.desktop.button(False)
            self.await_title(colour_at(*end), "released right after a move")

    def cell_of(self, preview):
        """The place on screen of a cell of the preview, away from its frame and marker, and the cell's colour."""
        column, row = self.random.randrange(1, COLUMNS - 1), self.random.choice((*range(1, 22), *range(27, ROWS - 1)))
        return self.program.preview_place(column, row), preview.pixel(column * 4 + 2, row * 4 + 2)

    def clicks(self):
        for locked in (False, True):
            self.desktop.move(700, 700)
            self.follow(True)
            self.await_preview(700, 700)
            self.desktop.press("ctrl", "l") if locked else self.follow(False)
            time.sleep(0.2)
            preview = self.program.preview()
            for _ in range(10):
                place, colour = self.cell_of(preview)
                self.desktop.move(*place)
                self.desktop.click()
                self.await_title(colour, "locked" if locked else "not following")
        self.desktop.press("ctrl", "l")

    def hovers(self):
        self.follow(True)
        self.desktop.move(900, 700)
        self.await_preview(900, 700)
        self.follow(False)
        for column, row in ((3, 3), (90, 40), (20, 30)):
            self.desktop.move(*self.program.preview_place(column, row))
            wanted = "#%02X%02X%02X" % self.program.preview().pixel(column * 4 + 2, row * 4 + 2)
            wait(lambda: self.program.label().endswith(wanted), f"{wanted} in the label", PATIENCE)

    def comes_back_uncovered(self):
        self.follow(True)
        self.colours.obey("cover")
        wait(lambda: not self.program.find(), "a window that covers the program's")
        time.sleep(1.5)
        spent = self.program.cpu(1, lambda: self.desktop.move(*self.place_outside()))
        self.move(1500, 600)
        self.colours.obey("uncover")
        wait(self.program.find, "the tool window, uncovered")
        self.await_preview(1500, 600)
        self.expect(spent < 5, f"{spent:.1f} ms of CPU a second while covered")

    def comes_back_minimised(self):
        self.program.focus()
        self.desktop.press("super", "h")
        wait(lambda: not self.program.find(), "minimising")
        self.move(500, 600)

        def is_back():
            self.desktop.press("shift", "alt", "tab")
            time.sleep(0.5)
            return self.program.find()

        self.expect(wait(is_back, "the tool window") == (self.program.left, self.program.top), "its place")
        self.await_preview(500, 600)

    def rests(self):
        self.program.focus()
        for on, limit in ((True, 5), (False, 1)):
            self.follow(on)
            self.move(600, 600)
            time.sleep(1)
            spent = self.program.cpu(3)
            print(f"      {spent:.2f} ms of CPU a second, {'following a still screen' if on else 'not following'}")
            self.expect(spent < limit, f"more than {limit} ms")

    def quits(self):
        self.desktop.press("ctrl", "q")
        self.program.process.wait(5)
        self.expect(self.program.process.returncode == 0, f"exit status {self.program.process.returncode}")


CASES = (
    ("refused in the desktop's dialog", Checks.refused),
    ("a first Poke only asks; allowed for both monitors", Checks.first_poke_asks),
    ("follows to each place of two monitors and their border", Checks.follows_pointer),
    ("stands where a burst of moves ended", Checks.follows_to_end_of_burst),
    ("Poke over another window, right after a move", Checks.pokes),
    ("drag out of the preview, released right after a move", Checks.drags_out),
    ("click in the preview, right after a move", Checks.clicks),
    ("hovering over the preview", Checks.hovers),
    ("covered and back", Checks.comes_back_uncovered),
    ("minimised and back", Checks.comes_back_minimised),
    ("quiet", Checks.rests),
    ("quits", Checks.quits),
)


def main():
    checks = Checks(*sys.argv[1:])
    failures = 0
    for name, case in CASES:
        start = time.monotonic()
        try:
            case(checks)
            print(f"OK    {name} ({time.monotonic() - start:.1f} s)", flush=True)
        except Exception as error:  # noqa: BLE001  # A case may fail in any way, and the next is tried all the same.
            failures += 1
            print(f"FAIL  {name}: {type(error).__name__}: {error}", flush=True)
            checks.keep_picture(f"failed-{failures}")
    return failures


if __name__ == "__main__":
    os._exit(1 if main() else 0)  # The library of the assistive technologies may take its time to leave the bus.
