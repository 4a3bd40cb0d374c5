"""figures.py PROGRAM: measures, on one monitor, what only a compositor shows, and prints rows of a Markdown table."""
import os
import statistics
import subprocess
import sys
import time

from assistive import allow, await_dialog
from checks import Checks
from colours import colour_at
from desktop import Recording
from program import PREVIEW, title_of

ROUNDS = int(os.environ.get("R", "50"))
CENTRE = (206, 98)  # in the preview, inside the marker


def row(what, figure):
    print(f"| {what} | {figure} |", flush=True)


def percentiles(times):
    ordered = sorted(times)
    return f"{statistics.median(ordered):.0f} ms, {ordered[int(len(ordered) * 0.95)]:.0f} ms"


class Figures(Checks):
    """Runs on the checks' own means. `tap` is a stream of the preview's pixels, as they come on screen."""

    def __init__(self, path):
        super().__init__(path, None)
        place = (self.program.left + PREVIEW[0], self.program.top + PREVIEW[1])
        self.tap = Recording(*place, *PREVIEW[2:])
        self.tap.start()
        self.pipeline, self.sink = self.tap.play()
        self.tap.next(self.sink)

    def await_centre(self, colour):
        """Gives the time of the first picture whose preview has this colour in the centre, or None within two seconds."""
        end = time.monotonic() + 2
        while time.monotonic() < end:
            picture = self.tap.next(self.sink, 0.1)
            if picture and picture.pixel(*CENTRE) == colour:
                return time.monotonic()
        return None

    def start_following(self):
        """Measures from the portal's answer, and what a stream takes."""
        before = self.program.memory()
        place = (600, 900)
        self.desktop.move(*place)
        self.program.desktop.press("ctrl", "f")
        dialog = await_dialog()
        answer = ("dbus-monitor", "--session", "--profile", "type='signal',interface='org.freedesktop.portal.Request'")
        with subprocess.Popen(answer, stdout=subprocess.PIPE, text=True) as monitor:
            time.sleep(0.5)
            allow(dialog)
            shown = self.await_centre(colour_at(*place)) + time.time() - time.monotonic()
            monitor.terminate()
            answered = [float(line.split()[1]) for line in monitor.stdout if "\\tResponse" in line or "Response" in line]
        row("from the portal's answer to the first preview on screen", f"{(shown - answered[-1]) * 1000:.0f} ms")
        time.sleep(1)
        row("memory with a stream against none", f"{self.program.memory() - before:.0f} MiB more")

    def latency(self):
        times = []
        for _ in range(ROUNDS):
            place = self.place_outside()
            start = time.monotonic()
            self.desktop.move(*place)
            shown = self.await_centre(colour_at(*place))
            if shown:
                times.append((shown - start) * 1000)
            time.sleep(0.1)
        row(f"from a move to the preview on screen, {len(times)} of {ROUNDS}: median, p95", percentiles(times))

    def cpu(self):
        self.move(600, 900)
        time.sleep(1)
        row("CPU, following, all still", f"{self.program.cpu(5) / 10:.2f} % of a core")
        moves = self.program.cpu(5, lambda: self.desktop.move(*self.place_outside()))
        row("CPU, following, pointer moving at 100 Hz", f"{moves / 10:.1f} % of a core")
        self.follow(False)
        time.sleep(1)
        row("CPU, not following", f"{self.program.cpu(5):.2f} ms a second")

    def rate(self):
        previews, last, end = 0, None, time.monotonic() + 3
        while time.monotonic() < end:
            self.desktop.move(*self.place_outside())
            picture = self.tap.next(self.sink, 0.01)
            previews += bool(picture and picture.data != last)
            last = picture.data if picture else last
        row("previews a second, pointer moving at 100 Hz", f"{previews / 3:.0f}")

    def count(self, what, take):
        right = 0
        for _ in range(ROUNDS):
            colour = take()
            end = time.monotonic() + 0.5
            while time.monotonic() < end and self.program.title() != title_of(colour):
                time.sleep(0.01)
            right += self.program.title() == title_of(colour)
            time.sleep(0.1)
        row(f"colour right, {what} right after a move", f"{right} of {ROUNDS}")

    def poke(self):
        place = self.place_outside()
        self.desktop.move(*place)
        self.desktop.press("ctrl", "alt", "p")
        return colour_at(*place)

    def drag(self):
        self.move(*self.program.preview_place(20, 20))
        self.desktop.button(True)
        self.desktop.move(*self.place_outside())
        time.sleep(0.1)
        place = self.place_outside()
        self.desktop.move(*place)
        self.desktop.button(False)
        return colour_at(*place)

    def click(self):
        place, colour = self.cell_of(self.preview)
        self.desktop.move(*place)
        self.desktop.click()
        return colour

    def measure(self):
        self.start_following()
        self.latency()
        self.rate()
        self.cpu()
        self.pipeline.set_state(1)  # Gst.State.NULL: the rest is counted, not timed
        self.follow(True)
        self.count("Poke", self.poke)
        self.desktop.move(600, 900)
        self.await_preview(600, 900)
        self.follow(False)
        self.preview = self.program.preview()
        self.count("click in the preview", self.click)
        self.count("drag released", self.drag)


if __name__ == "__main__":
    Figures(sys.argv[1]).measure()
    os._exit(0)
