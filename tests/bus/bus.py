"""A private desktop for one program: a display, a session bus and its accessibility bus."""

import importlib.util
import os
import shutil
import subprocess
import sys
import tempfile
import time

INSIDE = "QUORIX_BUS_INSIDE"
SKIPPED = 77  # the exit code that ctest counts as skipped


def enter(locale):
    """Runs this program again inside its own session, which ends with it. The session's locale is `locale`."""
    if INSIDE in os.environ:
        return
    needed = ("Xvfb", "dbus-run-session", "xdotool")
    if not all(map(shutil.which, needed)) or not importlib.util.find_spec("gi"):
        print("bus: needs", *needed, "python3-gi and gir1.2-atspi-2.0: skipped")
        sys.exit(SKIPPED)
    read, write = os.pipe()
    display = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write), "-noreset", "-nolisten", "tcp",
         "-screen", "0", "1280x1024x24"],
        pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(write)
    with os.fdopen(read) as told, tempfile.TemporaryDirectory() as home:
        number = told.readline().strip()
        if not number:
            sys.exit("bus: no display")
        env = {name: value for name, value in os.environ.items()
               if not name.startswith(("QT_", "XDG_", "LC_", "WAYLAND_", "DBUS_", "AT_SPI_"))}
        env |= {INSIDE: "1", "DISPLAY": f":{number}", "HOME": home, "XDG_RUNTIME_DIR": home,
                "LC_ALL": locale, "QT_QPA_PLATFORM": "xcb", "QT_QUICK_BACKEND": "software", "GSETTINGS_BACKEND": "memory"}
        try:
            code = subprocess.call(["dbus-run-session", "--", sys.executable] + sys.argv, env=env)
        finally:
            display.terminate()
            display.wait()
    sys.exit(code)


def until(condition, what, seconds=30):
    """Waits until `condition` returns a true value, and returns it. Checks it again after each event from the bus,
    and if one of its elements has disappeared."""
    from gi.repository import GLib
    context = GLib.MainContext.default()
    end = time.monotonic() + seconds
    while True:
        try:
            said = condition()
        except GLib.Error:
            said = None
        if said:
            return said
        if time.monotonic() > end:
            raise TimeoutError(f"waited in vain for {what}")
        wake = GLib.timeout_add(50, lambda: True)  # some changes cause no event
        context.iteration(True)
        GLib.source_remove(wake)
