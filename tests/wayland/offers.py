"""offers.py PROGRAM: colours from another program's clipboard and drags, even if it sends endless data or none.

Runs in a session of session.sh. Prints OK or the difference for each case.
"""
import os
import sys
import time

from desktop import wait
from exchange import Exchange
import offers_client

PATIENCE = 8.0  # seconds: a bad source may take two, and the session needs some
MEMORY = 30_000  # KiB


class Offers(Exchange):
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
            except Exception as error:  # noqa: BLE001  # a case may fail in any way; the next one runs anyway
                failures += 1
                result = f"FAIL  {type(error).__name__}: {error}:"
            print(f"{result} {take.__name__}, {kind} ({time.monotonic() - begin:.1f} s)", flush=True)
    return failures


if __name__ == "__main__":
    os._exit(1 if main() else 0)  # the accessibility library may take long to leave the bus
