"""checks.py PROGRAM PICTURES: tests the program in a session with two monitors of different sizes.

Prints OK or the difference for each case, and saves pictures of the monitors in the folder PICTURES.
"""
import os
import sys
import time

from assistive import allow, await_dialog, has_keyboard
from desktop import wait
from user import PATIENCE, Differs, User


class Checks(User):
    """The cases, in order."""

    def __init__(self, path, pictures):
        super().__init__(path)
        self.pictures = pictures

    def keep_picture(self, name):
        self.desktop.look().save(os.path.join(self.pictures, f"{name}.png"))

    def expect(self, is_so, what):
        if not is_so:
            raise Differs(what)

    def expect_all(self, take, rounds):
        right, difference = self.take_often(take, rounds)
        self.expect(right == rounds, f"{right} of {rounds} right; {difference}")

    def refused(self):
        """refused in the desktop's dialog"""
        self.desktop.press("ctrl", "f")
        await_dialog(self.program.window)
        self.keep_picture("asked")
        self.desktop.press("escape")
        wait(lambda: len(self.program.windows()) == 2, "a message", PATIENCE)
        time.sleep(0.5)
        self.keep_picture("refused")
        self.expect(not self.program.is_marked("Follow mouse"), "Follow mouse keeps its mark")
        self.desktop.press("return")
        wait(lambda: len(self.program.windows()) == 1, "the end of the message", PATIENCE)

    def first_poke(self):
        """a first Poke only asks; allowed for both monitors"""
        title = self.program.title()
        self.desktop.press("ctrl", "alt", "p")
        allow(await_dialog(self.program.window))
        self.program.await_keyboard()
        time.sleep(0.5)
        self.expect(self.program.title() == title, "it took a colour")

    def follow_places(self):
        """follow to places of both monitors, their border and their corners"""
        self.program.focus()
        self.follow(True)
        for left, top, width, height in self.desktop.monitors:
            right, bottom = left + width - 1, top + height - 1
            for place in ((right - 150, bottom - 30), (left, bottom), (right, bottom), (right, top), (right, top + 99)):
                self.desktop.move(*place)
                self.await_preview(*place)
                self.expect(self.program.shows("{%d, %d}" % place), f"no label says {place}")
        self.keep_picture("two-monitors")
        self.expect(has_keyboard(self.program.window), "the desktop asks a second time")

    def follow_bursts(self):
        """follow to where a burst of moves ends"""
        self.follow(True)
        for _ in range(5):
            for _ in range(40):
                place = self.place_outside()
                self.desktop.move(*place)
                time.sleep(0.01)
            self.await_preview(*place)

    def poke(self):
        """Poke over another window, right after a move"""
        for following in (True, False):
            self.follow(following)
            self.expect_all(self.take_by_poke, 10)

    def drag_out(self):
        """drag out of the preview, released right after a move"""
        self.follow(False)
        self.desktop.move(*self.program.preview_place(20, 20))
        time.sleep(0.2)
        self.desktop.button(True)
        for place in (self.place_outside(), self.place_outside()):
            self.desktop.move(*place)
            self.await_preview(*place)
        self.desktop.button(False)
        self.expect_all(self.take_by_drag, 10)

    def click(self):
        """click in the preview, right after a move, locked and not following"""
        self.show_in_preview()
        self.desktop.press("ctrl", "l")
        self.expect_all(self.take_by_click, 10)
        self.desktop.press("ctrl", "l")
        self.show_in_preview()
        self.follow(False)
        self.expect_all(self.take_by_click, 10)

    def hover(self):
        """hover over the preview"""
        self.show_in_preview()
        self.follow(False)
        for _ in range(5):
            place, colour = self.cell()
            self.desktop.move(*place)
            text = "#%02X%02X%02X" % colour
            self.expect(self.program.shows(text), f"no label says {text} at {place}")

    def uncovered(self):
        """covered by another window, and uncovered"""
        self.follow(True)
        self.colours.obey("cover")
        wait(lambda: not self.program.find(), "a window that covers the program's")
        # The program notices that it is covered within some seconds.
        spent = min(self.program.cpu(1, lambda: self.desktop.move(*self.place_outside())) for _ in range(5))
        place = self.place_outside()
        self.desktop.move(*place)
        self.colours.obey("uncover")
        wait(self.program.find, "the tool window, uncovered")
        self.await_preview(*place)
        self.expect(spent < 5, f"{spent:.1f} ms of CPU a second while covered")

    def brought_back(self):
        """minimised, and brought back"""
        self.program.focus()
        self.follow(True)
        self.desktop.press("super", "h")
        wait(lambda: not self.program.find(), "minimising")
        place = self.place_outside()
        self.desktop.move(*place)

        def is_back():
            self.desktop.press("shift", "alt", "tab")
            time.sleep(0.5)
            return self.program.find()

        wait(is_back, "the tool window")
        self.await_preview(*place)

    def quiet(self):
        """CPU over a still screen"""
        self.program.focus()
        for following, limit in ((True, 5), (False, 1)):
            self.follow(following)
            self.desktop.move(*self.place_outside())
            time.sleep(2)
            spent = self.program.cpu(3)
            print(f"      {spent:.2f} ms a second, {'following' if following else 'not following'}")
            self.expect(spent < limit, f"more than {limit} ms a second")

    def quit(self):
        """quit"""
        self.desktop.press("ctrl", "q")
        self.expect(self.program.process.wait(5) == 0, f"exit status {self.program.process.returncode}")


def main():
    checks = Checks(*sys.argv[1:])
    failures = 0
    for case in (checks.refused, checks.first_poke, checks.follow_places, checks.follow_bursts, checks.poke,
                 checks.drag_out, checks.click, checks.hover, checks.uncovered, checks.brought_back, checks.quiet,
                 checks.quit):
        start = time.monotonic()
        try:
            case()
            print(f"OK    {case.__doc__} ({time.monotonic() - start:.1f} s)", flush=True)
        except Exception as error:  # noqa: BLE001  # a case may fail in any way; the next one runs anyway
            failures += 1
            print(f"FAIL  {case.__doc__}: {error or type(error).__name__}", flush=True)
            checks.keep_picture(f"failed-{case.__name__}")
            checks.recover()
    return failures


if __name__ == "__main__":
    os._exit(1 if main() else 0)  # the accessibility library may take long to leave the bus
