"""Plays the assistive technology of a user who can't see the screen. AccessibilityTest.cpp lists its commands."""
import os
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

PATIENCE = 8  # seconds
STATES = ("focused", "selected", "showing")
PROPERTIES = ("accessible-name", "accessible-description", "accessible-value")
EVENTS = [f"object:property-change:{name}" for name in PROPERTIES] + [
    f"object:state-changed:{name}" for name in STATES[:2]
]


def await_result(ask):
    end = time.monotonic() + PATIENCE
    while True:
        result = ask()
        if result or time.monotonic() > end:
            return result
        time.sleep(0.02)


def turn_on():
    value = GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", True)))
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    place = ("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set")
    bus.call_sync(*place, value, None, Gio.DBusCallFlags.NONE, -1, None)


def children(parent):
    found = [parent.get_child_at_index(i) for i in range(parent.get_child_count())]
    return [child for child in found if child]


def windows():
    Atspi.get_desktop(0).clear_cache()
    return [window for program in children(Atspi.get_desktop(0)) for window in children(program)]


def below(part):
    yield part
    for child in children(part):
        yield from below(child)


def line(part):
    value = "%g" % part.get_current_value() if "Value" in part.get_interfaces() else ""
    states = [state.value_nick for state in part.get_state_set().get_states() if state.value_nick in STATES]
    return "|".join([part.get_role_name(), part.get_name(), part.get_description(), value, " ".join(states)])


def tree(title):
    for window in await_result(lambda: [each for each in windows() if each.get_name().startswith(title)]):
        for part in below(window):
            print(line(part))


def called(name):
    found = await_result(lambda: [part for window in windows() for part in below(window) if part.get_name() == name])
    if not found:
        sys.exit(f"Nothing is called {name}.")
    return found[-1]


def press(name):
    part = called(name)
    part.do_action([part.get_action_name(i) for i in range(part.get_n_actions())].index("Press"))


def tell(event):
    if event.type.startswith("object:state-changed") and not event.detail1:
        return
    print(event.type.removeprefix("object:"), line(event.source), sep="|", flush=True)


def listen():
    await_result(windows)
    listener = Atspi.EventListener.new(tell)
    for event in EVENTS:
        listener.register(event)
    print("listening", flush=True)
    Atspi.event_main()


def main():
    turn_on()
    Atspi.init()
    commands = {
        "tree": tree,
        "press": press,
        "set": lambda name, value: called(name).set_current_value(float(value)),
        "focus": lambda name: called(name).grab_focus(),
        "listen": listen,
    }
    commands[sys.argv[1]](*sys.argv[2:])
    sys.stdout.flush()
    os._exit(0)  # the accessibility library may take long to leave the bus


main()
