#!/usr/bin/env python3
"""Turns the desktop dark and light again, and its font large, while the program runs: does its window follow?

Usage: follows_the_desktop.py PROGRAM FILE MODELS

A desktop tells programs of its appearance in one of two ways: by the portal for settings on the message bus, and by
the theme in the settings of the X server, where the font is, too. Each is turned on an X server and a bus of the
test's own.
"""

import os
import signal
import subprocess
import sys
import tempfile

from own_screen import picture_of, run_on_own_screen, running

# The window, the pane, the icons and the swatch of verbs.
COLOURS = {
    "light": ((0xF2, 0xF3, 0xF5), (0xFF, 0xFF, 0xFF), (0x1B, 0x1E, 0x23), (0xD7, 0x00, 0x15)),
    "dark": ((0x23, 0x27, 0x2D), (0x15, 0x18, 0x1C), (0xE7, 0xE9, 0xEC), (0xFF, 0x69, 0x61)),
}
PIXELS_WANTED = 15
FONT_GROWTH = 1.3
SCHEMES = {"dark": 1, "light": 2}
PORTAL = """<node><interface name="org.freedesktop.portal.Settings">
  <method name="Read"><arg type="s" direction="in"/><arg type="s" direction="in"/>
    <arg type="v" direction="out"/></method>
  <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
</interface></node>"""
PORTAL_PATH = "/org/freedesktop/portal/desktop"
SETTING = ("org.freedesktop.appearance", "color-scheme")


class Desktop:
    """A desktop for the time of a `with`, which `process` stands for."""

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()


class PortalDesktop(Desktop):
    """A desktop that tells by its portal, which this very script is when it is called with --portal."""

    def __init__(self):
        self.process = subprocess.Popen([sys.executable, os.path.abspath(__file__), "--portal"], text=True,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.process.stdout.readline()

    def turn(self, appearance):
        self.process.stdin.write(appearance + "\n")
        self.process.stdin.flush()


class ThemeDesktop(Desktop):
    """A desktop that names a theme in the settings of the X server."""

    def __init__(self):
        self.settings = tempfile.NamedTemporaryFile("w", encoding="utf-8")
        self.theme, self.font = "Adwaita", "Noto Sans 10"
        self.write()
        self.process = subprocess.Popen(["xsettingsd", "-c", self.settings.name], stderr=subprocess.DEVNULL)

    def write(self):
        self.settings.seek(0)
        self.settings.truncate()
        self.settings.write(f'Net/ThemeName "{self.theme}"\nGtk/FontName "{self.font}"\n')
        self.settings.flush()

    def tell(self):
        self.write()
        self.process.send_signal(signal.SIGHUP)

    def turn(self, appearance):
        self.theme = "Adwaita-dark" if appearance == "dark" else "Adwaita"
        self.tell()

    def enlarge_font(self):
        self.font = "Noto Sans 24"
        self.tell()


def serve_portal():
    """Answers on the bus, and takes the name of another appearance from each line of the standard input."""
    from gi.repository import Gio, GLib
    scheme = [SCHEMES["light"]]
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)

    def answer(_bus, _sender, _path, _interface, _method, _arguments, invocation):
        value = GLib.Variant("v", GLib.Variant("u", scheme[0]))
        invocation.return_value(GLib.Variant.new_tuple(GLib.Variant.new_variant(value)))

    def take_line(stream, _condition):
        line = stream.readline().strip()
        if not line:
            return False
        scheme[0] = SCHEMES[line]
        value = GLib.Variant("(ssv)", (*SETTING, GLib.Variant("u", scheme[0])))
        bus.emit_signal(None, PORTAL_PATH, "org.freedesktop.portal.Settings", "SettingChanged", value)
        return True

    bus.register_object(PORTAL_PATH, Gio.DBusNodeInfo.new_for_xml(PORTAL).interfaces[0], answer, None, None)
    Gio.bus_own_name_on_connection(bus, "org.freedesktop.portal.Desktop", Gio.BusNameOwnerFlags.NONE,
                                   lambda *_: print("ready", flush=True), None)
    GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, take_line)
    GLib.MainLoop().run()


def is_dressed(window, appearance):
    try:
        pixels = picture_of(window)[2]
    except subprocess.CalledProcessError:
        return False  # it is not on the screen yet
    counts = dict.fromkeys(COLOURS[appearance], 0)
    for at in range(0, len(pixels) - 2, 3):
        colour = tuple(pixels[at:at + 3])
        if colour in counts:
            counts[colour] += 1
    return all(count >= PIXELS_WANTED for count in counts.values())


def top_of_pane(window):
    """How far below the window's top its panes begin, which are white in the light: the bars grow with the font."""
    width, height, pixels = picture_of(window)
    column = (pixels[3 * (width * y + width // 4):][:3] for y in range(height))
    return next((y for y, colour in enumerate(column) if colour == b"\xff\xff\xff"), 0)


def coloured_pixels(window):
    """How much of the window is in the colour of verbs: more where the words are larger."""
    pixels = picture_of(window)[2]
    colour = bytes(COLOURS["light"][-1])
    return sum(pixels[at:at + 3] == colour for at in range(0, len(pixels), 3))


def follow_font(program, desktop, title):
    window = program.window(title)
    top = program.wait_for(lambda: top_of_pane(window), "pane")
    verbs = coloured_pixels(window)
    desktop.enlarge_font()
    program.wait_for(lambda: top_of_pane(window) > top * FONT_GROWTH, "larger bars")
    program.wait_for(lambda: coloured_pixels(window) > verbs * FONT_GROWTH, "larger words")
    print(f"{type(desktop).__name__}: bars and words are larger", flush=True)


def follow(program, desktop, title):
    window = program.window(title)
    for appearance in ("light", "dark", "light"):
        desktop.turn(appearance)
        program.wait_for(lambda: is_dressed(window, appearance), f"{appearance} window")  # noqa: B023
        print(f"{type(desktop).__name__}: the window is {appearance}", flush=True)


def look(program_path, file, models):
    os.environ.pop("GTK_THEME", None)
    for make_desktop, name in ((PortalDesktop, "none"), (ThemeDesktop, "XFCE")):
        with make_desktop() as desktop, running([program_path, file], models, XDG_CURRENT_DESKTOP=name) as program:
            follow(program, desktop, os.path.basename(file))
            if isinstance(desktop, ThemeDesktop):
                follow_font(program, desktop, os.path.basename(file))


if __name__ == "__main__":
    if sys.argv[1] == "--portal":
        sys.exit(serve_portal())
    run_on_own_screen(look, "import", "xsettingsd", around=("dbus-run-session", "--"))
