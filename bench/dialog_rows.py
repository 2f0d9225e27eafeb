"""The settings dialog, on a machine with many fonts and printers."""

import os
import pathlib
import statistics
import subprocess

from table import BUILD, DATA, emptied, make_report, row
from windows import Screen

FAMILIES = 500
QUEUES = 50
ROUNDS = 7
MODEL = pathlib.Path("/usr/share/fonts/truetype/liberation2/LiberationMono-Regular.ttf")
NAME = "Liberation Mono"


class Queues:
    """A print scheduler of our own."""

    def __enter__(self):
        self.process = subprocess.Popen([str(BUILD / "print_queues"), str(QUEUES)], text=True,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.server = self.process.stdout.readline().strip()
        if not self.server:
            self.__exit__()
            raise RuntimeError("the print scheduler did not start")
        return self

    def __exit__(self, *_):
        self.process.communicate()


def renamed(font, number):
    """A copy of the font as a family of its own. The new name is as long as the old one, so that it
    fits in its place: in UTF-16 for most programs, in Latin letters for the others, and without a
    blank as the name for PostScript."""
    for blank in (" ", ""):
        old = NAME.replace(" ", blank)
        new = f"Family{blank}{number}".ljust(len(old), "x")
        for code in ("utf-16-be", "latin-1"):
            font = font.replace(old.encode(code), new.encode(code))
    return font


def make_fonts():
    """Fonts beside those of the machine; gives the configuration that knows them. Its cache is
    filled, as it is on any machine."""
    fonts = emptied("fonts")
    model = MODEL.read_bytes()
    for number in range(FAMILIES):
        (fonts / f"{number}.ttf").write_bytes(renamed(model, number))
    configuration = DATA / "fonts.conf"
    configuration.write_text(f"<fontconfig><cachedir>{DATA}/font_cache</cachedir>"
                             f"<include>/etc/fonts/fonts.conf</include><dir>{fonts}</dir>"
                             "</fontconfig>")
    environment = {**os.environ, "FONTCONFIG_FILE": str(configuration)}
    subprocess.run(["fc-cache"], env=environment, check=True)
    return configuration


def measure_dialog():
    report = make_report("8.txt", "8")
    fonts = make_fonts()
    with Screen() as screen, Queues() as queues:
        command = ["env", f"FONTCONFIG_FILE={fonts}", f"CUPS_SERVER={queues.server}",
                   str(BUILD / "dialog_bench"), str(report), str(QUEUES), str(FAMILIES)]
        runs = [screen.run(command).values() for _ in range(ROUNDS)]
    for what, name, aim in (("first opening", "first", 250), ("second opening", "second", 50),
                            ("slowest tab when first shown", "tab", 50)):
        taken = statistics.median(run[f"{name}_seconds"] for run in runs) * 1e3
        row(f"Settings dialog, {what}; {FAMILIES} fonts, {QUEUES} queues", f"{taken:.0f} ms", "",
            "", f"≤ {aim} ms", taken <= aim)
