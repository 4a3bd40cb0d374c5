"""compositor_figures.py PROGRAM: measures the figures that need a compositor, on one monitor. Prints table rows."""
import os
import statistics
import subprocess
import sys
import time

from assistive import allow, await_dialog
from colours import colour_at
from desktop import Recording
from program import PREVIEW
from user import User

ROUNDS = 50
CENTRE = (206, 98)  # in the preview, inside the marker


def row(what, wanted, figure):
    print(f"| {what} | {wanted} | {figure} |", flush=True)


class Figures(User):
    def start_recording(self):
        """Records the preview's pixels as they appear on screen."""
        place = (self.program.left + PREVIEW[0], self.program.top + PREVIEW[1])
        self.recording = Recording(*place, *PREVIEW[2:])
        self.recording.start()
        self.pipeline, self.sink = self.recording.play()
        self.recording.next(self.sink)

    def await_centre(self, colour):
        """Returns the time of the first picture with this colour in the preview's centre; None after two seconds."""
        end = time.time() + 2
        while time.time() < end:
            picture = self.recording.next(self.sink, 0.1)
            if picture and picture.pixel(*CENTRE) == colour:
                return time.time()
        return None

    def start_following(self):
        before = self.program.memory()
        place = self.place_outside()
        self.desktop.move(*place)
        self.desktop.press("ctrl", "f")
        dialog = await_dialog(self.program.window)
        self.start_recording()
        filters = "type='signal',interface='org.freedesktop.portal.Request',member='Response'"
        with subprocess.Popen(["dbus-monitor", "--profile", filters], stdout=subprocess.PIPE, text=True) as monitor:
            time.sleep(0.5)
            allow(dialog)
            shown = self.await_centre(colour_at(*place))
            monitor.terminate()
            answered = [float(line.split()[1]) for line in monitor.stdout if line.startswith("sig") and "Response" in line]
        row("from the portal's answer to the first preview on screen", "350 ms", f"{(shown - answered[-1]) * 1000:.0f} ms")
        time.sleep(1)
        row("memory with a stream against none", "30 MiB more at most", f"{self.program.memory() - before:.0f} MiB more")

    def time_moves(self):
        times = []
        for _ in range(ROUNDS):
            place = self.place_outside()
            start = time.time()
            self.desktop.move(*place)
            times.append((self.await_centre(colour_at(*place)) - start) * 1000)
            time.sleep(0.1)
        figure = f"{statistics.median(times):.0f} ms, {statistics.quantiles(times, n=20)[-1]:.0f} ms"
        row("from a move to the preview on screen, the compositor's share included: median, p95", "-", figure)

    def count_previews(self):
        previews, last, end = 0, None, time.time() + 3
        while time.time() < end:
            self.desktop.move(*self.place_outside())
            picture = self.recording.next(self.sink, 0.01)
            if picture and picture.data != last:
                previews, last = previews + 1, picture.data
        row("previews a second, pointer moving at 100 Hz", "-", f"{previews / 3:.0f}")
        self.recording.stop(self.pipeline)

    def spend(self):
        time.sleep(2)
        row("CPU, following, all still", "0.2 %", f"{self.program.cpu(5) / 10:.2f} % of a core")
        spent = self.program.cpu(5, lambda: self.desktop.move(*self.place_outside()))
        row("CPU, following, pointer moving at 100 Hz", "6 %", f"{spent / 10:.1f} % of a core")
        self.follow(False)
        time.sleep(2)
        row("CPU, not following", "0 ms a second", f"{self.program.cpu(5):.2f} ms a second")

    def count_colours(self):
        self.show_in_preview()
        self.follow(False)
        for name, take in (("click", self.take_by_click), ("release", self.take_by_drag), ("Poke", self.take_by_poke)):
            right, _ = self.take_often(take, ROUNDS)
            row(f"colour taken by {name} right after a move", f"{ROUNDS} of {ROUNDS}", f"{right} of {ROUNDS} right")


figures = Figures(sys.argv[1])
for measure in (figures.start_following, figures.time_moves, figures.count_previews, figures.spend,
                figures.count_colours):
    measure()
os._exit(0)  # the accessibility library may take long to leave the bus
