"""The preview window."""

from table import BUILD, LATIN, VIEWER, make_pdf, make_report, row
from windows import Screen, alternating_values, open_window, press_keys

WATCH = str(BUILD / "window_watch")


def preview_command(report):
    return [VIEWER, "-f", str(report), "-codepage", LATIN]


def measure_opening(screen, report, pdf):
    """The memory is that of the program alone: what it shares with others costs nobody twice."""
    for peer, aim, rounds in (("mupdf", 1, 7), ("qpdfview", 1, 5), ("zathura", 1, 3)):
        ours, theirs = alternating_values(
            lambda: open_window(WATCH, preview_command(report), screen),
            lambda: open_window(WATCH, [peer, str(pdf)], screen), rounds)
        seconds = [values["open_seconds"] * 1e3 for values in (ours, theirs)]
        row(f"Window with the first of 10,000 pages; peer {peer}", f"{seconds[0]:.0f} ms",
            f"{seconds[1]:.0f} ms", f"{seconds[1] / seconds[0]:.2f}", f"≥ {aim}",
            seconds[0] * aim <= seconds[1])
        if peer == "qpdfview":
            memory = [values["private_kib"] / 1024 for values in (ours, theirs)]
            row("Memory of that window; peer qpdfview", f"{memory[0]:.0f} MiB",
                f"{memory[1]:.0f} MiB", f"{memory[0] / memory[1]:.2f}", "≤ 0.25",
                4 * memory[0] <= memory[1])


def measure_page_down(screen, report, pdf):
    press = lambda command: press_keys(WATCH, command, screen, "--count", "60")
    ours, peer = alternating_values(lambda: press(preview_command(report)),
                                    lambda: press(["mupdf", str(pdf)]), 3)
    rates = [values["held_per_second"] for values in (ours, peer)]
    row("Page Down held, 1920 by 1080; peer mupdf", f"{rates[0]:.0f} pages/s",
        f"{rates[1]:.0f} pages/s", f"{rates[0] / rates[1]:.2f}", "≥ 60 pages/s", rates[0] >= 60)


def measure_commands(screen):
    """From a command to its picture, in the process itself."""
    eight = make_report("8.txt", "8")
    values = screen.run([str(BUILD / "preview_bench"), str(eight)]).values()
    several, line = (values.pop(name) * 1e3 for name in ("several_pages", "line_step"))
    slowest = max(values.values()) * 1e3
    row("Slowest zoom step, 1920 by 1080", f"{slowest:.1f} ms", "", "", "≤ 16 ms", slowest <= 16)
    row("Step of dragging a line, 1920 by 1080", f"{line:.1f} ms", "", "", "≤ 4 ms", line <= 4)
    row("Several pages: 8 at 25 percent", f"{several:.1f} ms", "", "", "≤ 50 ms", several <= 50)


def measure_windows(many):
    pdf = make_pdf(many, LATIN)
    with Screen() as screen:
        measure_opening(screen, many, pdf)
        measure_page_down(screen, many, pdf)
        measure_commands(screen)


def measure_huge_window(huge):
    with Screen() as screen:
        values = open_window(WATCH, preview_command(huge), screen, 3)
    seconds = values["open_seconds"]
    row("Window with the first page of 1 GiB, cached", f"{seconds * 1e3:.0f} ms", "", "",
        "≤ 1,000 ms", seconds <= 1)
