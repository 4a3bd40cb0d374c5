"""Reads the session's windows as an assistive technology does, and uses the portal's dialog in the same way."""
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

from desktop import wait  # noqa: E402

PORTAL = "xdg-desktop-portal-gnome"


def children(part):
    found = [part.get_child_at_index(index) for index in range(part.get_child_count())]
    return [child for child in found if child]


def below(part):
    yield part
    for child in children(part):
        yield from below(child)


def windows(is_owner):
    """Returns the windows of the programs for which is_owner returns true."""
    Atspi.get_desktop(0).clear_cache()
    return [window for program in children(Atspi.get_desktop(0)) if is_owner(program) for window in children(program)]


def called(window, role, name):
    """Returns the part of the window with this role and with `name` in its name, or None."""
    parts = (part for part in below(window) if part.get_role_name() == role and name in part.get_name())
    return next(parts, None)


def has_state(part, state):
    part.clear_cache()
    return part.get_state_set().contains(state)


def await_dialog(asking):
    """Waits until the portal's dialog asks which monitors to share, over the window that caused it. Returns the dialog.

    The portal of GNOME 43 may crash if its windows are read while the dialog opens or closes. The window below loses
    the focus at that time, so this waits for that instead.
    """
    wait(lambda: not has_keyboard(asking), "the portal's dialog")
    time.sleep(0.5)
    dialogs = windows(lambda program: program.get_name() == PORTAL)
    return next(dialog for dialog in dialogs if called(dialog, "push button", "Share"))


def has_keyboard(window):
    return has_state(window, Atspi.StateType.ACTIVE)


def allow(dialog):
    """Selects all monitors in the dialog and shares them."""
    monitors = called(dialog, "list", "")
    for index in range(monitors.get_child_count()):
        monitors.select_child(index)
    share = called(dialog, "push button", "Share")
    wait(lambda: has_state(share, Atspi.StateType.SENSITIVE), "a button that shares")
    share.do_action(0)
