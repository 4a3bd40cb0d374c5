"""The exchange of colours with another program in a session of session.sh, by clipboard and by drag."""
import os
import re
import subprocess
import sys

from desktop import Desktop, wait
import offers_client
from program import Program, title_of

GROUND = (1200, 1000)  # a position without a window
SWATCH = (29, 16)


class Exchange:
    """The program, and another program that offers colours."""

    def __init__(self, path):
        self.desktop = Desktop()
        client = offers_client.__file__
        self.client = subprocess.Popen([sys.executable, client], stdout=subprocess.PIPE)
        os.set_blocking(self.client.stdout.fileno(), False)
        self.boxes = {kind: wait(lambda: self.find(rgb), f"the box {kind}") for kind, rgb in offers_client.BOXES.items()}
        self.desktop.move(*GROUND)
        self.desktop.press("shift")  # clients see no pointer and no keyboard before their first use
        self.program = Program(self.desktop, path)
        self.swatch = (self.program.left + SWATCH[0], self.program.top + SWATCH[1])
        self.pasted = 0

    def find(self, rgb):
        """Returns the middle of the area with a colour."""
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
        """Returns whether the keys had an effect; they have none on a window that is just getting the focus."""
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
        self.client.stdout.read()  # the compositor may have read too, to keep the contents of the clipboard
        wait(lambda: self.press_paste(lambda: self.await_word(b"asked", 0.5)), "a request for the clipboard")

    def drop(self, kind):
        left, top = self.boxes[kind]
        self.desktop.move(left, top)
        self.desktop.button(True)
        self.desktop.move(left + 20, top)
        self.await_word(b"dragged")
        self.desktop.move(*GROUND)
        self.desktop.look()  # takes time; a late refusal by the client would count as the next target's
        self.desktop.move(*self.swatch)
        self.await_word(b"accepted")
        self.desktop.button(False)
        self.await_word(b"over")
        self.program.focus()

    def paste_another(self):
        """A colour from a correct clipboard, to see that the program still works."""
        self.pasted += 1
        colour = (18, 52, self.pasted)
        subprocess.run(["wl-copy", "#%02X%02X%02X" % colour], check=True)
        is_taken = lambda: wait(lambda: self.takes(colour), "the colour", 0.5)
        wait(lambda: self.press_paste(is_taken), "a pasted colour")

    def peak_memory(self):
        with open(f"/proc/{self.program.process.pid}/status", encoding="ascii") as status:
            return int(re.search(r"VmHWM:\s+(\d+)", status.read())[1])
