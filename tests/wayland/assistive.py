"""What an assistive technology sees of the session's windows, and the portal's dialog by its means."""
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
    """The windows of those programs for which is_owner says so."""
    Atspi.get_desktop(0).clear_cache()
    return [window for program in children(Atspi.get_desktop(0)) if is_owner(program) for window in children(program)]


def called(window, role, name):
    """The part of the window with this role, and a name that has `name` in it; None where there is none."""
    parts = (part for part in below(window) if part.get_role_name() == role and name in part.get_name())
    return next(parts, None)


def has_state(part, state):
    part.clear_cache()
    return part.get_state_set().contains(state)


def dialogs():
    return windows(lambda program: program.get_name() == PORTAL)


def await_dialog():
    """Waits until the portal asks which monitors to share, and gives its dialog."""
    (dialog,) = wait(lambda: [each for each in dialogs() if called(each, "push button", "Share")], "the portal's dialog")
    return dialog


def allow(dialog):
    """Shares all monitors."""
    monitors = called(dialog, "list", "")
    for index in range(monitors.get_child_count()):
        monitors.select_child(index)
    share = called(dialog, "push button", "Share")
    wait(lambda: has_state(share, Atspi.StateType.SENSITIVE), "a button that shares")
    share.do_action(0)


def refuse(desktop):
    """Presses Escape in the dialog that is up."""
    desktop.press("escape")
    wait(lambda: not dialogs(), "the end of the portal's dialog")
