"""Measuring windows: programs on a screen of their own, which nobody sees."""

import statistics
import subprocess
import tempfile

from runs import Run


class Screen:
    """An X server without a window manager, so that no frame and no place is anybody's choice."""

    def __enter__(self):
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", "1", "-screen", "0", "1920x1080x24", "-dpi", "96", "-noreset",
             "-nolisten", "tcp"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.number = self.server.stdout.readline().decode().strip()
        if not self.number:
            self.__exit__()
            raise RuntimeError("Xvfb did not start")
        return self

    def __exit__(self, *_):
        self.server.terminate()
        self.server.wait()
        self.server.stdout.close()

    def run(self, command):
        """Runs a program with an empty home: viewers keep where a document was left and how big
        the window was, and the next run would start there."""
        with tempfile.TemporaryDirectory() as home:
            settings = [f"DISPLAY=:{self.number}", f"HOME={home}", f"XDG_CONFIG_HOME={home}/config",
                        f"XDG_RUNTIME_DIR={home}", "LC_ALL=C.UTF-8"]
            unset = ["QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "XDG_CACHE_HOME", "XDG_DATA_HOME"]
            return Run(["env", *(f"--unset={name}" for name in unset), *settings, *command])


def open_window(watch, command, screen, rounds=1):
    """The seconds until the first page stands in the window of the program, and its memory."""
    return screen.run([watch, "open", "--rounds", str(rounds), "--", *command]).values()


def press_keys(watch, command, screen, *options):
    """How soon a key replaces the page; options are those of "window_watch keys"."""
    return screen.run([watch, "keys", *options, "--", *command]).values()


def alternating_values(ours, peer, rounds, pick=statistics.median):
    """Calls both (functions that return values by name) in turn, so that a disturbance of the
    machine falls on both, and picks from the values of each name."""
    pairs = [(ours(), peer()) for _ in range(rounds)]
    return tuple({name: pick([values[name] for values in column]) for name in column[0]}
                 for column in zip(*pairs))
