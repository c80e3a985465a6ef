"""Checks that a sheet is at its place as soon as it is announced, if the desktop asks for less motion. The
program's own settings service says so, and the bus has the sheet's position.

    motion.py SHOP
"""

import subprocess
import sys

sys.dont_write_bytecode = True
import bus  # noqa: E402

bus.enter("en_GB.UTF-8")

import reader  # noqa: E402
from gi.repository import Atspi, Gio, GLib  # noqa: E402

SERVICE = "org.freedesktop.portal.Desktop"
SETTINGS = Gio.DBusNodeInfo.new_for_xml("""<node><interface name="org.freedesktop.portal.Settings">
  <method name="Read"><arg type="s" direction="in"/><arg type="s" direction="in"/>
    <arg type="v" direction="out"/></method></interface></node>""").interfaces[0]
READS = []


def serve(session, wishes):
    """Replaces the desktop's settings service."""
    def read(_bus, _who, _path, _interface, _method, key, call):
        READS.append(key.unpack())
        value = wishes.get(READS[-1][1])
        if value is None:
            call.return_dbus_error("org.freedesktop.portal.Error.NotFound", "none")
        else:
            call.return_value(GLib.Variant("(v)", (GLib.Variant("v", value),)))
    return session.register_object("/org/freedesktop/portal/desktop", SETTINGS, read, None, None)


def extents(element):
    return Atspi.Component.get_extents(element, Atspi.CoordType.SCREEN)


def late(shop):
    """The windows whose sheet was still below them when it was announced."""
    READS.clear()
    program = subprocess.Popen([shop, "--widgets"])
    try:
        for title in ("Fjord & Thread", "Fjord & Thread (Qt Widgets)"):
            window = reader.Window(title)
            row = bus.until(lambda: window.find("Your return fee"), "the row")
            bus.until(lambda: len(READS) > 1, "the shop to ask about motion")
            reader.press(row)
            sheet = bus.until(window.dialog, "the sheet")
            lowest = extents(reader.children(sheet)[-1])
            below = extents(window.root)
            if lowest.y + lowest.height > below.y + below.height:
                yield title
    finally:
        program.terminate()
        program.wait()


def main():
    reader.listen()
    session = Gio.bus_get_sync(Gio.BusType.SESSION)
    Gio.bus_own_name_on_connection(session, SERVICE, 0, None, None)
    faults = []
    for wishes in ({"enable-animations": GLib.Variant("b", False)},
                   {"reduced-motion": GLib.Variant("u", 1)}):
        serving = serve(session, wishes)
        faults += [f"{title} moved in spite of {wishes}" for title in late(sys.argv[1])]
        session.unregister_object(serving)
    sys.exit("\n".join(faults) or 0)


main()
