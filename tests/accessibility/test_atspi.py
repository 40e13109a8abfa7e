#!/usr/bin/env python3
"""Looks at the gallery as a screen reader does: test_atspi.py GALLERY

Runs on a session bus of its own (dbus-run-session) and an X server. Exit code 77 means that AT-SPI is not installed.
"""

import os
import subprocess
import sys
import time

try:
    import gi

    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError):
    print("AT-SPI for Python is not installed")
    sys.exit(77)

PATIENCE_S = 60
APPLICATION = "gallery"
# Desktops that stay without assistive tools do not start it; Qt would wait for it to be wanted.
ENVIRONMENT = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_ACCESSIBILITY": "1"}


def eventually(find, what):
    """Asks until there is an answer: programs take their time to show on the bus."""
    end = time.monotonic() + PATIENCE_S
    while time.monotonic() < end:
        try:
            found = find()
        except GLib.Error:  # what was asked has gone meanwhile
            found = None
        if found:
            return found
        time.sleep(0.2)
    raise AssertionError(f"there is no {what}")


def children(accessible):
    for index in range(accessible.get_child_count()):
        child = accessible.get_child_at_index(index)
        if child is not None:
            yield child


def all_below(accessible):
    for child in children(accessible):
        yield child
        yield from all_below(child)


def application():
    # Each call of the bus needs the latest state, not what was cached before the program was there.
    desktop = Atspi.get_desktop(0)
    desktop.clear_cache()
    return next((child for child in children(desktop) if child.get_name() == APPLICATION), None)


class Page:
    """The gallery, opened at a page."""

    def __init__(self, gallery, name):
        # This starts the bus's registry: a program that looks for it too early never shows there.
        eventually(lambda: application() is None, "bus without a gallery")
        self.process = subprocess.Popen([gallery, "--page", name], env={**os.environ, **ENVIRONMENT})
        self.application = None

    def __enter__(self):
        self.application = eventually(application, "gallery on the bus")
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()
        eventually(lambda: application() is None, "end of the gallery")

    def find(self, role, name):
        """The only visible part of that role and name."""

        def look():
            self.application.clear_cache()
            found = [part for part in all_below(self.application)
                     if part.get_role() == role and part.get_name() == name]
            return found[0] if found else None

        return eventually(look, f"{role.value_nick} {name!r}")


def is_in_state(part, state):
    part.clear_cache()
    return part.get_state_set().contains(state)


def check_slider_and_tabs(gallery):
    with Page(gallery, "Slider and tabs") as page:
        slider = page.find(Atspi.Role.SLIDER, "Position")
        value = slider.get_value_iface()
        assert value.get_current_value() == 80 and value.get_maximum_value() == 240, "the slider's value"
        value.set_current_value(120)
        eventually(lambda: value.get_current_value() == 120, "slider at 120")

        files = page.find(Atspi.Role.PAGE_TAB, "Files")
        branches = page.find(Atspi.Role.PAGE_TAB, "Branches")
        assert files.get_parent().get_role() == Atspi.Role.PAGE_TAB_LIST, "the strip of the tabs"
        assert files.get_parent().get_child_count() == 3, "three tabs and no underline"
        assert is_in_state(files, Atspi.StateType.SELECTED), "the first tab is selected"
        assert not is_in_state(branches, Atspi.StateType.SELECTED), "the second tab is not"
        branches.get_action_iface().do_action(0)
        eventually(lambda: is_in_state(branches, Atspi.StateType.SELECTED), "selected second tab")


def check_edits(gallery):
    with Page(gallery, "Edits") as page:
        toggle = page.find(Atspi.Role.CHECK_BOX, "Show password")
        assert not is_in_state(toggle, Atspi.StateType.CHECKED), "the password is masked"
        toggle.get_action_iface().do_action(0)
        eventually(lambda: is_in_state(toggle, Atspi.StateType.CHECKED), "checked password switch")


def check_busy(gallery):
    with Page(gallery, "Busy") as page:
        page.find(Atspi.Role.ANIMATION, "Busy")


def main(gallery):
    for check in (check_slider_and_tabs, check_edits, check_busy):
        check(gallery)
        print(f"{check.__name__}: passed", flush=True)


if __name__ == "__main__":
    main(sys.argv[1])
