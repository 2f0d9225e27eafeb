"""Measures the viewer beside its peers: measure.py BUILD_DIRECTORY DATA_DIRECTORY

Prints a table in Markdown. Every number is a ratio or a difference of two runs on the same machine
in the same minutes; nothing here fails because a machine is slow.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys

from runs import Run, alternating_seconds, median_seconds
from windows import Screen, alternating_values, open_window, press_keys

BUILD, DATA = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
VIEWER = str(BUILD / "qorutlview")
LATIN, CYRILLIC = "850", "866"

HUGE_BYTES = 1 << 30
SPARE_BYTES = 1 << 30  # room for what the other rows write
MEGABYTE = 1e6


def note(text):
    print(text, file=sys.stderr, flush=True)


def row(what, ours, peer, ratio, aim, holds):
    verdict = "yes" if holds else "no"
    print(f"| {what} | {ours} | {peer} | {ratio} | {aim} | {verdict} |", flush=True)


def make_report(name, *arguments):
    path = DATA / name
    with open(path, "wb") as file:
        subprocess.run([str(BUILD / "make_report"), *arguments], stdout=file, check=True)
    return path


def index_bench(what, report):
    return Run([str(BUILD / "page_index_bench"), what, str(report)])


def emptied(name):
    folder = DATA / name
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir()
    return folder


def export_command(report, code_page, target):
    return [VIEWER, "-f", str(report), "-codepage", code_page, "-export",
            str(DATA / "ours" / target)]


def export(report, code_page, target):
    emptied("ours")
    return Run(export_command(report, code_page, target))


def files_of(folder, count):
    """The files of a folder; the peer's and ours must be one a page, or the race is not fair."""
    files = list((DATA / folder).iterdir())
    if len(files) != count:
        raise RuntimeError(f"{folder}: {len(files)} files instead of {count}")
    return files


def size_of(files):
    return sum(file.stat().st_size for file in files)


def is_gray(picture):
    """True if the header of the PNG says gray: the colour type stands at byte 25."""
    return picture.read_bytes()[25] == 0


# The rows of the table, in their order.


def measure_scan(huge):
    grep = ["grep", "-c", "\f", str(huge)]
    count = lambda: Run(["env", "LC_ALL=C", *grep])
    pages = int(count().output)  # warms the page cache too
    ours, peer = alternating_seconds(lambda: index_bench("scan", huge), count, 5)
    found = index_bench("scan", huge).values()
    if found["pages"] != pages:
        raise RuntimeError(f"{found['pages']} pages instead of {pages}")
    ratio = peer / ours
    row("Page index of 1 GiB, cached; peer `grep -c`", f"{ours:.3f} s", f"{peer:.3f} s",
        f"{ratio:.2f}", "≥ 0.7", ratio >= 0.7)
    memory = found["bytes_a_page"]
    row("Memory of the index for a page", f"{memory:.1f} B", "", "", "≤ 96 B", memory <= 96)


def measure_openings(huge, small):
    openings = lambda report: lambda: index_bench("open", report).values()
    of_huge, of_small = alternating_values(openings(huge), openings(small), 5, min)
    for what, ours, peer in (
            ("Opening a page of 1 GiB: last; peer: first", of_huge["last"], of_huge["first"]),
            ("Opening a page of 1 GiB: middle; peer: first", of_huge["middle"], of_huge["first"]),
            ("Opening the last page: of 1 GiB; peer: of 10 pages", of_huge["last"],
             of_small["last"])):
        row(what, f"{ours * 1e6:.1f} µs", f"{peer * 1e6:.1f} µs", f"{ours / peer:.2f}", "≤ 1.5",
            ours <= 1.5 * peer)


def measure_walk(many, thousand):
    best = lambda report: min(index_bench("walk", report).values()["seconds_a_page"]
                              for _ in range(5))
    ours, peer = best(many), best(thousand)
    row("Opening all pages, time a page: 10,000 pages; peer: 1,000", f"{ours * 1e6:.1f} µs",
        f"{peer * 1e6:.1f} µs", f"{ours / peer:.2f}", "≤ 1.2", ours <= 1.2 * peer)


def as_utf8(report, code_page):
    text = DATA / "utf8.txt"
    text.write_bytes(report.read_bytes().decode("cp" + code_page).encode())
    return text


def make_pdf(report, code_page):
    """The same pages as PDF."""
    pdf = report.with_suffix(".pdf")
    subprocess.run([str(BUILD / "make_pdf"), str(as_utf8(report, code_page)), str(pdf)], check=True)
    return pdf


def draw_with_peer(pdf):
    return Run(["mutool", "draw", "-q", "-r", "96", "-o", "p%d.png", str(pdf)], emptied("peer"))


def speed_row(what, pages, seconds, aim):
    ours, peer = seconds
    ratio = peer / ours
    row(what, f"{pages / ours:.0f} pages/s", f"{pages / peer:.0f} pages/s", f"{ratio:.2f}",
        f"≥ {aim}", ratio >= aim)


def size_rows(name, pages):
    """Looks at the files that the last export as PNG and the last run of the peer left."""
    ours, peer = files_of("ours", pages), files_of("peer", pages)
    ratio = size_of(ours) / size_of(peer)
    row(f"Size of the PNG files, {name}", f"{size_of(ours) / MEGABYTE:.2f} MB",
        f"{size_of(peer) / MEGABYTE:.2f} MB", f"{ratio:.2f}", "≤ 1", ratio <= 1)
    gray = sum(map(is_gray, ours))
    row(f"PNG files that are gray, {name}", gray, f"of {pages}", "", "all", gray == pages)


def measure_pictures(name, code_page, *options):
    pages = 200
    report = make_report(f"{name}.txt", str(pages), *options)
    pdf = make_pdf(report, code_page)
    race = lambda target: alternating_seconds(lambda: export(report, code_page, target),
                                              lambda: draw_with_peer(pdf), 5)
    speed_row(f"PNG export, {name}; peer `mutool draw`", pages, race("p.png"), 2)
    size_rows(name, pages)
    speed_row(f"JPEG export, {name}; peer `mutool draw` as PNG", pages, race("p.jpeg"), 3)


def print_command(report):
    """Prints on the printer that makes PDF files."""
    return [VIEWER, "-g", "-f", str(report), "-codepage", LATIN, "-p", "Microsoft Print to PDF"]


TEXTTOPDF = "/usr/lib/cups/filter/texttopdf"


def pdf_peers(text):
    """What else makes PDFs of plain text: names, commands, how often to run them, the aim."""
    layout = "media=A4 cpi=12 lpi=7 page-top=18 page-bottom=18"
    quoted = f"'{text}'"
    return [
        ("texttopdf", f"{TEXTTOPDF} 1 user title 1 '{layout}' {quoted} >peer.pdf", 5, 1),
        ("enscript and ps2pdf", f"enscript -q -B -M A4 --margins=20:20:10:10 -f Courier9 -p - "
         f"{quoted} | ps2pdf - peer.pdf", 2, 10),
        ("LibreOffice", f"soffice --headless --convert-to pdf {quoted}", 1, 10),
    ]


def race_pdf(name, report, code_page, pages, peers):
    ours = lambda: export(report, code_page, "p.pdf")
    for peer, command, rounds, aim in peers:
        quiet = ["sh", "-c", f"{command} 2>/dev/null"]
        seconds = alternating_seconds(ours, lambda: Run(quiet, DATA), rounds)
        speed_row(f"PDF export of {pages:,} pages, {name}; peer {peer}", pages, seconds, aim)
    size = size_of(files_of("ours", 1)) / pages
    row(f"Size of a page of the PDF, {name}", f"{size / 1e3:.2f} KB", "", "", "≤ 2.1 KB",
        size <= 2100)


def measure_pdf(thousand, many):
    race_pdf("latin", thousand, LATIN, 1000, pdf_peers(as_utf8(thousand, LATIN)))
    cyrillic = make_report("cyrillic.txt", "1000", "--cyrillic")
    race_pdf("cyrillic", cyrillic, CYRILLIC, 1000, pdf_peers(as_utf8(cyrillic, CYRILLIC))[:1])
    race_pdf("latin", many, LATIN, 10000, pdf_peers(as_utf8(many, LATIN))[:1])
    peak = peak_of(export_command(many, LATIN, "p.pdf")) / MEGABYTE
    row("Peak memory of PDF export, 10,000 pages", f"{peak:.1f} MB", "", "", "≤ 20 MB", peak <= 20)


def measure_printing(thousand):
    for name, aim in (("qt", 2), ("cairo", 0.8)):
        command = [str(BUILD / f"print_with_{name}"), str(thousand), str(DATA / f"{name}.pdf")]
        peer = "QPdfWriter" if name == "qt" else "a bare loop over Cairo"
        seconds = alternating_seconds(lambda: Run(print_command(thousand), DATA),
                                      lambda: Run(command), 5)
        speed_row(f"Printing to a file; peer {peer}", 1000, seconds, aim)


def peak_of(command):
    emptied("ours")
    return int(Run([str(BUILD / "peak_memory"), *command], DATA).output)


def measure_memory(many, small):
    ways = [("PNG export", lambda report: export_command(report, LATIN, "p.png")),
            ("TXT export", lambda report: export_command(report, LATIN, "p.txt")),
            ("printing to a file", print_command)]
    for what, command in ways:
        ours, peer = (peak_of(command(report)) for report in (many, small))
        growth = (ours - peer) / MEGABYTE
        row(f"Peak memory of {what}: 10,000 pages; peer: 10", f"{ours / MEGABYTE:.1f} MB",
            f"{peer / MEGABYTE:.1f} MB", f"+{growth:.1f} MB", "≤ 16 MB", growth <= 16)
    shutil.rmtree(DATA / "ours")


def libraries(program):
    listing = Run(["ldd", str(program)]).output
    return set(re.sub(r" \(0x\w+\)", "", listing).split("\n"))


def measure_start(page):
    empty = BUILD / "empty_program"
    if libraries(VIEWER) != libraries(empty):
        note("empty_program loads other libraries than the viewer: the last row is not fair")
    ours, peer = median_seconds(lambda: export(page, LATIN, "p.txt"), lambda: Run([str(empty)]), 50)
    more = (ours - peer) * 1e3
    row("Start to exit, one page as text; peer: an empty program with the same libraries",
        f"{ours * 1e3:.1f} ms", f"{peer * 1e3:.1f} ms", f"+{more:.1f} ms", "≤ 10 ms", more <= 10)


def measure_barcodes():
    """Each line: what, ours, peer, both in units a second, and the ratio that is aimed at."""
    for line in Run([str(BUILD / "barcode_bench")]).output.splitlines():
        what, ours, peer, aim = line.split("\t")
        ratio = float(ours) / float(peer)
        row(what, f"{float(ours):,.0f}/s", f"{float(peer):,.0f}/s", f"{ratio:.2f}", f"≥ {aim}",
            ratio >= float(aim))


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
    several = values.pop("several_pages") * 1e3
    slowest = max(values.values()) * 1e3
    row("Slowest zoom step, 1920 by 1080", f"{slowest:.1f} ms", "", "", "≤ 16 ms", slowest <= 16)
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


def measure_huge(small):
    free = shutil.disk_usage(DATA).free
    if free < HUGE_BYTES + SPARE_BYTES:
        note(f"The rows of 1 GiB are skipped: only {free / MEGABYTE:.0f} MB are free in {DATA}.")
        return
    huge = make_report("huge.txt", "--bytes", str(HUGE_BYTES))
    measure_scan(huge)
    measure_openings(huge, small)
    measure_huge_window(huge)
    huge.unlink()


def main():
    os.environ["LC_ALL"] = "C.UTF-8"
    os.environ["QT_QPA_PLATFORM"] = "offscreen"
    os.environ["CUPS_SERVER"] = "/nowhere"  # only the built-in printer
    load = os.getloadavg()[0]
    note(f"{os.cpu_count()} processors, load average {load:.1f}: other programs should rest.")
    page, small, thousand, many = (make_report(f"{count}.txt", str(count))
                                   for count in (1, 10, 1000, 10000))
    print("| What | Ours | Peer | Ratio | Aim | Holds |\n|---|---|---|---|---|---|")
    measure_huge(small)
    measure_walk(many, thousand)
    measure_pictures("latin", LATIN)
    measure_pictures("cyrillic", CYRILLIC, "--cyrillic")
    measure_pdf(thousand, many)
    measure_printing(thousand)
    measure_memory(many, small)
    measure_start(page)
    measure_windows(many)
    measure_barcodes()


main()
