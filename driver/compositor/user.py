"""Plays a user who works with the program over a client with known colours."""
import os
import random
import subprocess
import sys
import time

from colours import colour_at, place_of
from desktop import Desktop, wait
from program import COLUMNS, HEIGHT, ROWS, WIDTH, Program, preview_of, title_of

PATIENCE = 3.0  # seconds
MARGIN = 70  # around the inside of the program's window: its frame and shadow, and half a sample


class Differs(Exception):
    """Its text says what differs from the expected result."""


class Colours:
    """The client that covers the monitors with known colours."""

    def __init__(self, desktop):
        self.desktop = desktop
        client = os.path.join(os.path.dirname(__file__), "colours_client.py")
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


class User:
    def __init__(self, path):
        self.desktop = Desktop()
        self.colours = Colours(self.desktop)
        self.program = Program(self.desktop, path)
        self.random = random.Random(1)
        self.preview = None  # set for take_by_click()

    def screen_at(self, x, y):
        """Returns the colour of the screen at a position outside the program's window."""
        inside = any(0 <= x - left < width and 0 <= y - top < height
                     for left, top, width, height in self.desktop.monitors)
        return colour_at(x, y) if inside else (0, 0, 0)

    def place_outside(self):
        """Returns a position whose whole sample is outside the program's window."""
        left, top, width, height = self.random.choice(self.desktop.monitors)
        x, y = self.random.randrange(left, left + width), self.random.randrange(top, top + height)
        is_near = (-MARGIN < x - self.program.left < WIDTH + MARGIN
                   and -2 * MARGIN < y - self.program.top < HEIGHT + MARGIN)
        return self.place_outside() if is_near else (x, y)

    def follow(self, on):
        if self.program.is_marked("Follow mouse") != on:
            self.desktop.press("ctrl", "f")
            wait(lambda: self.program.is_marked("Follow mouse") == on, "the mark of Follow mouse", PATIENCE)

    def await_preview(self, x, y):
        """Waits until the preview shows exactly the pixels around the position."""
        wanted = preview_of(self.screen_at, x, y)
        end = time.monotonic() + PATIENCE
        while (shown := self.program.preview()).data != wanted.data:
            if time.monotonic() > end:
                pixels = range(0, len(wanted.data), 3)
                wrong = sum(shown.data[at : at + 3] != wanted.data[at : at + 3] for at in pixels)
                centre = place_of(shown.pixel(206, 98))
                raise Differs(f"at {x}, {y} the preview has {wrong} wrong pixels; its centre is that of {centre}")

    def show_in_preview(self):
        """Makes the program follow, and fills its preview with known colours for take_by_click()."""
        self.follow(True)
        place = self.place_outside()
        self.desktop.move(*place)
        self.await_preview(*place)
        self.preview = self.program.preview()

    def cell(self):
        """Returns the position on screen of a cell of the preview, away from its frame and marker, and its colour."""
        column, row = self.random.randrange(1, COLUMNS - 1), self.random.choice((*range(1, 22), *range(27, ROWS - 1)))
        return self.program.preview_place(column, row), self.preview.pixel(column * 4 + 2, row * 4 + 2)

    # Each of these takes a colour right after a move, and returns the colour that was under the pointer.

    def take_by_poke(self):
        place = self.place_outside()
        self.desktop.move(*place)
        self.desktop.press("ctrl", "alt", "p")
        return colour_at(*place)

    def take_by_drag(self):
        self.desktop.move(*self.program.preview_place(20, 20))
        time.sleep(0.2)
        self.desktop.button(True)
        self.desktop.move(*self.place_outside())
        time.sleep(0.1)
        place = self.place_outside()
        self.desktop.move(*place)
        self.desktop.button(False)
        return colour_at(*place)

    def take_by_click(self):
        place, colour = self.cell()
        self.desktop.move(*place)
        self.desktop.click()
        return colour

    def take_often(self, take, rounds):
        """Returns how often the program took the right colour, and the last difference."""
        right, difference = 0, ""
        for _ in range(rounds):
            before, wanted = self.program.title(), title_of(take())
            end = time.monotonic() + 1
            while self.program.title() == before and time.monotonic() < end:
                time.sleep(0.01)
            time.sleep(0.1)
            title = self.program.title()
            right += title == wanted
            if title != wanted:
                difference = f"took {title} in place of {wanted}"
        return right, difference

    def recover(self):
        """Removes what a failure has left behind."""
        self.desktop.button(False)
        if len(self.program.windows()) > 1:
            self.desktop.press("return")
        if self.program.is_marked("Lock Position"):
            self.desktop.press("ctrl", "l")
