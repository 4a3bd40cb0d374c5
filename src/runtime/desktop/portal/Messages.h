#pragma once

// The messages that tell the user why the screen of a Wayland session can't be read.
namespace tavrelkin::message {

constexpr auto kNoPortal =
    "This desktop session runs on Wayland, and its desktop offers no way to share the screen with a program.\n\n"
    "Following the mouse and Poke need a desktop portal for screen sharing (xdg-desktop-portal, with the part for your "
    "desktop, and PipeWire), or a session on X11 (X.Org). Many login screens offer such a session, often as the name "
    "of the desktop with \"on Xorg\" or \"X11\".\n\n"
    "You can still mix colours on the bars, copy and paste.";

constexpr auto kNoPointer =
    "This desktop does not report where the pointer is, so Tavrelkin can't follow the mouse or read the screen.\n\n"
    "Following the mouse and Poke work in a session on X11, and on Wayland in desktops that report the pointer, such "
    "as GNOME.\n\n"
    "You can still mix colours on the bars, copy and paste.";

constexpr auto kOnlyPicks =
    "This desktop does not report where the pointer is, so Tavrelkin can't follow the mouse.\n\n"
    "Poke works: choose it, and then click the colour that you want.\n\n"
    "Following the mouse works in a session on X11, and on Wayland in desktops that report the pointer, such as GNOME.";

constexpr auto kOnlyPicksWithoutPortal =
    "This desktop offers no way to share the screen with a program, so Tavrelkin can't follow the mouse.\n\n"
    "Poke works: choose it, and then click the colour that you want.\n\n"
    "Following the mouse needs a desktop portal for screen sharing (xdg-desktop-portal, with the part for your "
    "desktop, and PipeWire), or a session on X11.";

constexpr auto kPointerNotSeen =
    "The desktop shares the screen, but has not reported where the pointer is, so Tavrelkin can't follow the mouse.\n\n"
    "If you have several monitors, choose Follow mouse again and share all of them.";

constexpr auto kRefused =
    "The screen was not shared, so Tavrelkin can't read it.\n\n"
    "To be asked again, choose Follow mouse or Poke.";

constexpr auto kFailed =
    "The desktop could not share the screen.\n\n"
    "To try again, choose Follow mouse or Poke.";

constexpr auto kLost =
    "The desktop has stopped sharing the screen, so Tavrelkin can't read it any more.\n\n"
    "To try again, choose Follow mouse or Poke.";

}  // namespace tavrelkin::message
