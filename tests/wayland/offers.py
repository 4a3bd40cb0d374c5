"""offers.py PROGRAM: colours from another program by clipboard and by drag, also where it sends without end or nothing.

Runs in a session of session.sh. Says OK or what differs for each case.
"""
import os
import re
import subprocess
import sys
import time

from desktop import Desktop, wait
import offers_client
from program import Program, title_of

GROUND = (1200, 1000)  # where no window is
SWATCH = (29, 16)
PATIENCE = 8.0  # seconds: two that a bad source may take, and what the session does by itself
MEMORY = 30_000  # KiB


class Offers:
    def __init__(self, path):
        self.desktop = Desktop()
        client = offers_client.__file__
        self.client = subprocess.Popen([sys.executable, client], stdout=subprocess.PIPE)
        os.set_blocking(self.client.stdout.fileno(), False)
        self.boxes = {kind: wait(lambda: self.find(rgb), f"the box {kind}") for kind, rgb in offers_client.BOXES.items()}
        self.desktop.move(*GROUND)
        self.desktop.press("shift")  # a client finds no pointer and no keyboard before they are used
        self.program = Program(self.desktop, path)
        self.swatch = (self.program.left + SWATCH[0], self.program.top + SWATCH[1])
        self.pasted = 0

    def find(self, rgb):
        """The middle of the area that has a colour."""
        picture = self.desktop.look()
        hits = [hit.start() // 3 for hit in re.finditer(re.escape(rgb), picture.data) if hit.start() % 3 == 0]
        places = [(hit % picture.width, hit // picture.width) for hit in hits]
        return tuple((min(axis) + max(axis)) // 2 for axis in zip(*places))

    def await_word(self, word, seconds=10.0):
        said = b""

        def is_said():
            nonlocal said
            said += self.client.stdout.read() or b""
            return word in said

        wait(is_said, word.decode(), seconds)

    def takes(self, colour):
        return self.program.title() == title_of(colour)

    def press_paste(self, await_effect):
        """Gives whether the keys had their effect; they have none on a window that is only just getting the keyboard."""
        self.desktop.press("ctrl", "v")
        try:
            await_effect()
            return True
        except TimeoutError:
            return False

    def clipboard(self, kind):
        self.desktop.move(*self.boxes[kind])
        self.desktop.click()
        self.await_word(b"copied")
        self.program.focus()
        self.client.stdout.read()  # the compositor may have asked too, to keep what is on the clipboard
        wait(lambda: self.press_paste(lambda: self.await_word(b"asked", 0.5)), "a request for the clipboard")

    def drop(self, kind):
        left, top = self.boxes[kind]
        self.desktop.move(left, top)
        self.desktop.button(True)
        self.desktop.move(left + 20, top)
        self.await_word(b"dragged")
        self.desktop.move(*GROUND)
        self.desktop.look()  # takes its time: a late refusal by the client itself would count as the next target's
        self.desktop.move(*self.swatch)
        self.await_word(b"accepted")
        self.desktop.button(False)
        self.await_word(b"over")
        self.program.focus()

    def paste_another(self):
        """A colour from a clipboard that does no wrong, to see that the program goes on."""
        self.pasted += 1
        colour = (18, 52, self.pasted)
        subprocess.run(["wl-copy", "#%02X%02X%02X" % colour], check=True)
        is_taken = lambda: wait(lambda: self.takes(colour), "the colour", 0.5)
        wait(lambda: self.press_paste(is_taken), "a pasted colour")

    def peak_memory(self):
        with open(f"/proc/{self.program.process.pid}/status", encoding="ascii") as status:
            return int(re.search(r"VmHWM:\s+(\d+)", status.read())[1])

    def try_whole(self, take):
        self.paste_another()
        take("whole")
        wait(lambda: self.desktop.look().pixel(*self.swatch) == offers_client.WHOLE, "the colour on the button")

    def try_bad(self, take, kind):
        self.paste_another()
        memory, begin = self.peak_memory(), time.monotonic()
        take(kind)
        self.paste_another()
        taken, grown = time.monotonic() - begin, self.peak_memory() - memory
        if taken > PATIENCE or grown > MEMORY:
            raise AssertionError(f"{taken:.1f} s, {grown} KiB")


def main():
    offers = Offers(sys.argv[1])
    failures = 0
    for kind in offers_client.BOXES:
        for take in (offers.clipboard, offers.drop):
            begin = time.monotonic()
            try:
                offers.try_whole(take) if kind == "whole" else offers.try_bad(take, kind)
                result = "OK   "
            except Exception as error:  # noqa: BLE001  # A case may fail in any way, and the next is tried all the same.
                failures += 1
                result = f"FAIL  {type(error).__name__}: {error}:"
            print(f"{result} {take.__name__}, {kind} ({time.monotonic() - begin:.1f} s)", flush=True)
    return failures


if __name__ == "__main__":
    os._exit(1 if main() else 0)  # The library of the assistive technologies may take its time to leave the bus.
