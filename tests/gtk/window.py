"""Uses the GTK example like a shopper, on its own display, and checks what it shows.

    window.py QUORIX_GTK
"""

import base64
import json
import os
import pathlib
import shutil
import subprocess
import sys
import time

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "bus"))
import bus  # noqa: E402

if not shutil.which("import"):
    print("window: needs ImageMagick: skipped")
    sys.exit(bus.SKIPPED)
bus.enter("C.UTF-8")

WIDTH, HEIGHT = 375, 667
HOME = pathlib.Path(os.environ["HOME"])
OPENED = HOME / "opened"


def token():
    figures = {"base_fee_amount": 600, "discounted_fee_amount": 300, "fee_currency": "EUR", "score": 0.82}
    payload = base64.urlsafe_b64encode(json.dumps({"data": figures}).encode()).decode()
    return f"e30=.{payload}.e30="


def install_browser():
    """Writes the address that it gets into a file."""
    applications = HOME / ".local/share/applications"
    applications.mkdir(parents=True)
    program = HOME / "browser"
    program.write_text(f'#!/bin/sh\necho "$1" >{OPENED}\n')
    program.chmod(0o755)
    (applications / "browser.desktop").write_text(
        f"[Desktop Entry]\nType=Application\nName=Browser\nExec={program} %u\n")
    (applications / "mimeapps.list").write_text(
        "[Default Applications]\nx-scheme-handler/https=browser.desktop\n")


class Screen:
    """The content of the window, in shades of grey."""

    def __init__(self):
        self.pixels = subprocess.run(
            ["import", "-window", "root", "-crop", f"{WIDTH}x{HEIGHT}+0+0", "-depth", "8", "gray:-"],
            check=True, capture_output=True).stdout

    def at(self, x, y):
        return self.pixels[y * WIDTH + x]

    def ink(self, y):
        """The number of pixels in a line that are darker than the page."""
        return sum(shade < 128 for shade in self.pixels[y * WIDTH:(y + 1) * WIDTH])

    def is_dimmed(self):
        return self.at(5, 5) < 240

    def sheet_top(self):
        return next(y for y in range(HEIGHT) if self.at(WIDTH // 2, y) > 250)


def until(condition, what):
    end = time.monotonic() + 20
    while time.monotonic() < end:
        screen = Screen()
        if condition(screen):
            return screen
        time.sleep(0.1)
    subprocess.run(["import", "-window", "root", "gtk-window.png"])
    sys.exit(f"waited in vain for {what}; see gtk-window.png")


def at_rest():
    shown = []

    def stands(now):
        shown.append(now.pixels)
        time.sleep(0.2)
        return shown[-1:] == shown[-2:-1]

    return until(stands, "the motion to end")


def do(*actions):
    subprocess.run(["xdotool", *map(str, actions)], check=True)


def opened(what):
    until(lambda now: now.is_dimmed() and now.at(WIDTH // 2, HEIGHT - 5) > 250,
          f"the sheet after {what}")
    return at_rest()


def closed(what):
    until(lambda now: not now.is_dimmed(), f"the sheet to go after {what}")
    at_rest()


def main():
    install_browser()
    program = subprocess.Popen([sys.argv[1], token()], env={**os.environ, "GSK_RENDERER": "cairo"})
    try:
        # The row's texts, and the info widget with its border below.
        page = until(lambda now: sum(now.ink(y) > 300 for y in range(HEIGHT)) == 2, "the info widget")
        row = next(y for y in range(HEIGHT) if page.ink(y)) + 5
        box = next(y for y in range(HEIGHT) if page.ink(y) > 300)
        assert 40 < page.ink(row) < 200 and row < box, "no row above the info widget"

        do("mousemove", 60, row, "click", 1)
        opened("a click on the row")
        do("key", "Escape")
        closed("Escape")
        do("key", "Tab", "key", "Return")
        opened("Return")
        do("key", "Tab", "key", "space")  # the close button
        closed("the cross")
        do("mousemove", 60, row, "click", 1)
        top = opened("a second click").sheet_top()
        do("mousemove", 187, top + 30, "mousedown", 1, "mousemove", 187, top + 100,
           "mousemove", 187, HEIGHT - 10, "mouseup", 1)
        closed("the drag")
        do("mousemove", 60, box + 20, "click", 1)
        until(lambda now: OPENED.exists() and OPENED.read_text(), "the browser")
        address = OPENED.read_text().strip()
        assert address.startswith("https://") and "lang=en" in address, address
        closed("the browser came")
    finally:
        program.terminate()
        program.wait()


main()
