"""Walks through the demo shop like the user of a screen reader, over the accessibility bus alone, and compares
the spoken texts with the file in heard/. Both toolkits must say the same.

    listen.py SHOP LANGUAGE ICU     QUORIX_UPDATE_HEARD=1 writes the file again (with ICU before 76)
"""

import difflib
import json
import os
import pathlib
import re
import subprocess
import sys

sys.dont_write_bytecode = True
import bus  # noqa: E402

HERE = pathlib.Path(__file__).parent
SHOP, LANGUAGE, ICU = sys.argv[1:]
LOCALES = {"en": "en_GB", "es": "es_ES", "de": "de_DE", "ar": "ar_EG", "ja": "ja_JP"}
WINDOWS = {"Qt Quick": "Fjord & Thread", "Qt Widgets": "Fjord & Thread (Qt Widgets)"}

bus.enter(LOCALES[LANGUAGE] + ".UTF-8")

import reader  # noqa: E402  (it needs the session)


def table(folder):
    return json.loads((HERE / "../../examples/shop" / folder / f"{LANGUAGE}.json").read_text())


WORDS, ROW = table("words"), table("translations")
STRINGS = HERE / f"../../QuorixWidgets/resources/{LANGUAGE}.lproj/Localizable.strings"
LINK, CLOSE = (re.search(f'"{key}" = "(.*)"', STRINGS.read_text())[1]
               for key in ("widget-read-more", "close"))
CLOSES = (ROW["actions"]["close"], CLOSE)


class Walk:
    def __init__(self, title):
        self.window = reader.Window(title)
        self.lines = []

    def say(self, title, lines):
        self.lines += ["", f"== {title}", *lines]

    def sheet_of(self, opener, title):
        """Opens the sheet of `opener`, reads it, closes it, and checks where the focus is."""
        window = self.window
        itself = reader.line(opener)
        window.forget()
        opener.get_component_iface().grab_focus()
        self.say(title, window.heard_until(itself))
        reader.press(opener)
        sheet = bus.until(window.dialog, f"the sheet of {title}")
        self.lines += ["-- opens", *window.heard_until(reader.line(sheet))]
        # During a load, the engine replaces the first document.
        self.lines += bus.until(lambda: reader.read(sheet), "what is in the sheet")
        bus.until(lambda: opener in window.hidden and not reader.shown(opener),
                  "what is behind the sheet to go")
        window.hidden.clear()
        reader.press(next(window.all("push button", *CLOSES)))
        bus.until(lambda: not window.dialog(), "the sheet to close")
        self.lines += ["-- closes", *window.heard_until(itself)]

    def go(self):
        window = self.window
        window.take_keyboard()
        row = bus.until(lambda: window.find(ROW["returns"]["title"], ROW["labels"]["hint"]), "the row")
        self.say("The product", reader.read(window.root))
        self.sheet_of(row, "The row")
        self.sheet_of(window.find(LINK), "The info widget")
        reader.press(window.find(WORDS["bagOf"].replace("%1", "0")))
        link = bus.until(lambda: next(window.all("link"), None), "the bag")
        bus.until(lambda: window.find(WORDS["keepShopping"]), "the way back")
        self.say("The bag", reader.read(window.root))
        self.sheet_of(link, "The link")
        reader.press(window.find(WORDS["back"]))
        bus.until(lambda: not window.find(WORDS["keepShopping"]), "the product")
        return "\n".join(self.lines).strip() + "\n"

    def walked(self):
        try:
            return self.go()
        except TimeoutError as late:
            sys.exit("\n".join([f"{self.window.title}: {late}", *self.lines, "== And at last",
                                *self.window.events, *reader.read(self.window.root)]))


def main():
    reader.listen()
    shop = subprocess.Popen([SHOP, "--widgets", "--language", LANGUAGE])
    try:
        heard = {toolkit: Walk(title).walked() for toolkit, title in WINDOWS.items()}
    finally:
        shop.terminate()
        shop.wait()
    golden = HERE / "heard" / f"{LANGUAGE}.txt"
    if os.environ.get("QUORIX_UPDATE_HEARD"):
        golden.write_text(heard["Qt Quick"])
    expected = golden.read_text()
    if int(ICU.split(".")[0]) >= 76:  # these versions write Arabic amounts in Latin digits
        expected = expected.translate(str.maketrans("٠١٢٣٤٥٦٧٨٩٫", "0123456789."))
    differences = [difflib.unified_diff(expected.splitlines(True), text.splitlines(True),
                                        golden.name, toolkit) for toolkit, text in heard.items()]
    said = "".join(line for difference in differences for line in difference)
    sys.exit(said or 0)


main()
