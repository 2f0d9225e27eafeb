"""Tells what a screen reader is told: listen.py PROGRAM REPORT.

Each step is a line with its name, and lines with what was heard of the page and of notices up to an
event that ends it. One that never comes ends the run by an alarm.
"""

import signal
import subprocess
import sys
import warnings

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 60  # seconds for a step
PAGE_DOWN, RETURN, F3 = 0xFF56, 0xFF0D, 0xFFC0
PAGE, NOTICE = Atspi.Role.DOCUMENT_FRAME, Atspi.Role.NOTIFICATION
MARK = "#FFAA3C"  # the ground of the present hit


def child(parent, role):
    """The first object of a role: this one, or one below it."""
    if parent is None or parent.get_role() == role:
        return parent
    below = (child(parent.get_child_at_index(i), role) for i in range(parent.get_child_count()))
    return next((found for found in below if found), None)


def give_up(*_):
    raise TimeoutError("nothing comes")


def until(comes):
    """Waits for something to be there."""
    signal.alarm(PATIENCE)
    while not (found := comes()):
        GLib.MainContext.default().iteration(True)
    signal.alarm(0)
    return found


def is_marked(place):
    """Whether a part of the screen has the colour of the present hit."""
    part = f"{place.width}x{place.height}+{place.x}+{place.y}"
    command = ["import-im6.q16", "-silent", "-window", "root", "-crop", part, "-depth", "8", "txt:-"]
    return MARK in subprocess.run(command, capture_output=True, text=True, check=True).stdout


class Listener:
    def __init__(self):
        self.heard = []
        self.listener = Atspi.EventListener.new(self.hear)
        for kind in ["text-caret-moved", "text-changed", "text-selection-changed",
                     "state-changed:showing", "state-changed:focused"]:
            self.listener.register("object:" + kind)
        GLib.timeout_add(50, lambda: True)  # waits look again
        self.page = until(lambda: child(Atspi.get_desktop(0), PAGE))
        self.text = self.page.get_text_iface()
        until(lambda: Atspi.Text.get_character_count(self.text) > 0)

    def hear(self, event):
        kind = event.type.removeprefix("object:")
        role = event.source.get_role()
        if kind == "state-changed:focused" and event.detail1:
            self.heard.append("focus " + event.source.get_name())
        elif role == NOTICE:
            self.heard.append("notice " + event.source.get_name())
        elif role == PAGE and kind.startswith("text"):
            news = str(event.any_data).split("\n")[0] if kind.startswith("text-changed") else ""
            self.heard.append(f"{kind} {event.detail1} {news}".strip())

    def step(self, name, end):
        """What was heard up to an event, but notices that came before."""
        until(lambda: end in self.heard)
        print(f"{name}:")
        for heard in self.heard[:self.heard.index(end) + 1]:
            if heard == end or not heard.startswith("notice"):
                print("  " + heard)
        self.heard.clear()

    def press(self, key, end):
        Atspi.generate_keyboard_event(key, None, Atspi.KeySynthType.SYM)
        self.step(hex(key), end)

    def has_focus(self):
        self.page.clear_cache()
        return self.page.get_state_set().contains(Atspi.StateType.FOCUSED)

    def tell_text(self):
        print(self.page.get_name())
        print(Atspi.Text.get_text(self.text, 0, -1), end="")

    def tell_hit(self):
        caret = Atspi.Text.get_caret_offset(self.text)
        extents = [Atspi.Text.get_character_extents(self.text, i, Atspi.CoordType.SCREEN)
                   for i in (caret - 1, caret)]
        until(lambda: is_marked(extents[1]))
        print("  in the mark" if is_marked(extents[0]) else "  before the mark", caret)

    def tell_selection(self):
        part = Atspi.Text.get_selection(self.text, 0)
        print(" ", Atspi.Text.get_text(self.text, part.start_offset, part.end_offset))


def listen():
    listener = Listener()
    until(listener.has_focus)
    listener.heard.clear()
    listener.tell_text()
    listener.press(PAGE_DOWN, "notice Page 2 of 3")
    listener.tell_text()
    listener.press(F3, "focus Find in the report")
    listener.press(ord("z"), "notice 1 of 2: a z b")
    listener.tell_hit()
    listener.press(RETURN, "notice 2 of 2: the third z")
    listener.tell_hit()
    Atspi.Text.add_selection(listener.text, 1, 6)
    listener.step("selection", "text-selection-changed 0")
    listener.tell_selection()


if __name__ == "__main__":
    warnings.simplefilter("ignore")
    signal.signal(signal.SIGALRM, give_up)
    program = subprocess.Popen([sys.argv[1], "-f", sys.argv[2]])
    try:
        listen()
    finally:
        program.kill()
