"""A minimal screen reader: the content of a window on the accessibility bus, as lines of text."""

import re
import subprocess
import warnings

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib

import bus

State = Atspi.StateType
# Printed if they are set. Being disabled is printed separately.
STATES = [State.CHECKED, State.MODAL]
SILENT = ("filler", "panel", "layered pane")
WEB = ("document web", "document frame")


def listen():
    """Switches the desktop's accessibility on, like a screen reader at the start of the session."""
    warnings.simplefilter("ignore", DeprecationWarning)
    status = Gio.DBusProxy.new_for_bus_sync(
        Gio.BusType.SESSION, 0, None, "org.a11y.Bus", "/org/a11y/bus",
        "org.freedesktop.DBus.Properties", None)
    known = status.call_sync("GetAll", GLib.Variant("(s)", ("org.a11y.Status",)), 0, -1, None)
    for name in known.unpack()[0]:  # newer desktops have no "ScreenReaderEnabled"
        value = GLib.Variant("(ssv)", ("org.a11y.Status", name, GLib.Variant("b", True)))
        status.call_sync("Set", value, 0, -1, None)
    Atspi.init()


def children(element):
    try:
        element.clear_cache()  # Qt does not report every change
        every = [element.get_child_at_index(i) for i in range(element.get_child_count())]
    except GLib.Error:  # it has disappeared
        return []
    return [child for child in every if child]


def shown(element):
    try:
        element.clear_cache()
        return element.get_state_set().contains(State.SHOWING)
    except GLib.Error:
        return False


def role(element):
    """The name of its role. Newer libraries call a push button "button"."""
    return "push button" if element.get_role() == Atspi.Role.PUSH_BUTTON else element.get_role_name()


def walk(element):
    """The visible elements in reading order, without the content of pages."""
    if not shown(element):
        return
    yield element
    if role(element) not in WEB:
        for child in children(element):
            yield from walk(child)


def words(element):
    """Its label, its name and its description. Nothing for a page: the title is not ours, and older engines
    lack it."""
    if role(element) in WEB:
        return []
    label = [relation.get_target(0).get_name() for relation in element.get_relation_set()
             if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY]
    return list(dict.fromkeys(label + [element.get_name(), element.get_description()]))


def line(element):
    states = element.get_state_set()
    said = [role(element)] + [f'"{text}"' for text in words(element) if text]
    said += [state.value_nick for state in STATES if states.contains(state)]
    if not states.contains(State.ENABLED):
        said.append("disabled")
    if {"Press", "Toggle"} & set(actions(element)):
        said.append("acts, yet read-only" if states.contains(State.READ_ONLY) else "acts")
        if not states.contains(State.FOCUSABLE):  # texts of Qt Quick are focusable, without effect
            said.append("out of the keyboard's reach")
    return " ".join(said)


def actions(element):
    count = Atspi.Action.get_n_actions(element) if element.get_action_iface() else 0
    return [Atspi.Action.get_action_name(element, i) for i in range(count)]


def read(element):
    """One line for each element in it that speaks. Containers do not."""
    return [line(each) for child in children(element) for each in walk(child) if speaks(each)]


def speaks(element):
    return role(element) not in SILENT or any(words(element))


def press(element):
    Atspi.Action.do_action(element, actions(element).index("Press"))


class Window:
    """A window of a program, by its title, with its elements and events."""

    def __init__(self, title):
        self.title = title
        self.events = []
        self.hidden = []
        self.root = bus.until(self._find, f"the window {title}")
        self._listener = Atspi.EventListener.new(self._hear)
        for event in ("object:state-changed:focused", "object:state-changed:showing", "object:property-change:accessible-name",
                      "object:property-change:accessible-description",
                      "object:announcement"):
            self._listener.register(event)

    def _find(self):
        desktop = Atspi.get_desktop(0)
        return next((window for program in children(desktop) for window in children(program)
                     if window.get_name() == self.title and shown(window)), None)

    def _hear(self, event):
        if event.type.endswith("showing") and not event.detail1:
            self.hidden.append(event.source)
        if event.type.endswith("showing") or (event.type.endswith("focused") and not event.detail1):
            return
        kind = event.type.split(":")[-1]
        try:
            if not speaks(event.source):
                return
            said = f"{kind}: {line(event.source)}"
            above = event.source
            while above and above != self.root:
                above = above.get_parent()
        except GLib.Error:
            return
        if above and self.events[-1:] != [said]:  # repeated events count once
            self.events.append(said)

    def take_keyboard(self):
        """Gives the window the keyboard focus, like a window manager."""
        search = ["xdotool", "search", "--name", f"^{re.escape(self.title)}$", "windowfocus"]
        subprocess.run(search, check=True)
        bus.until(self._is_active, "the keyboard")
        self.forget()

    def _is_active(self):
        self.root.clear_cache()
        return self.root.get_state_set().contains(State.ACTIVE)

    def forget(self):
        while GLib.MainContext.default().iteration(False):
            pass
        self.events.clear()

    def all(self, kind, *names):
        return (each for each in walk(self.root) if role(each) == kind
                and (not names or each.get_name() in names))

    def find(self, start, description=""):
        return next((each for each in walk(self.root) if each.get_name().startswith(start)
                     and description in each.get_description()), None)

    def dialog(self):
        return next(self.all("dialog"), None)

    def heard_until(self, focused):
        """The events up to the one that focuses that line."""
        last = [f"focused: {focused}"]
        bus.until(lambda: self.events[-1:] == last, last[0])
        events, self.events = self.events, []
        return events
