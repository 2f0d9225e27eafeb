"""Exports and prints: speed, size and memory."""

import random
import re
import shutil

from png_file import png_file
from runs import Run, alternating_seconds, median_seconds, on_one_processor
from table import (BUILD, CYRILLIC, DATA, LATIN, MEGABYTE, VIEWER, as_utf8, emptied, export,
                   export_command, files_of, make_pdf, make_report, note, row, size_of, speed_row)


def is_gray(picture):
    """True if the header of the PNG says gray: the colour type stands at byte 25."""
    return picture.read_bytes()[25] == 0


def draw_with_peer(pdf):
    return Run(["mutool", "draw", "-q", "-r", "96", "-o", "p%d.png", str(pdf)], emptied("peer"))


def size_rows(name, pages):
    """Looks at the files that the last export as PNG and the last run of the peer left."""
    ours, peer = files_of("ours", pages), files_of("peer", pages)
    ratio = size_of(ours) / size_of(peer)
    row(f"Size of the PNG files, {name}", f"{size_of(ours) / MEGABYTE:.2f} MB",
        f"{size_of(peer) / MEGABYTE:.2f} MB", f"{ratio:.2f}", "≤ 1", ratio <= 1)
    gray = sum(map(is_gray, ours))
    row(f"PNG files that are gray, {name}", gray, f"of {pages}", "", "all", gray == pages)


@on_one_processor()
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


@on_one_processor()
def measure_pdf(thousand, many):
    race_pdf("latin", thousand, LATIN, 1000, pdf_peers(as_utf8(thousand, LATIN)))
    cyrillic = make_report("cyrillic.txt", "1000", "--cyrillic")
    race_pdf("cyrillic", cyrillic, CYRILLIC, 1000, pdf_peers(as_utf8(cyrillic, CYRILLIC))[:1])
    race_pdf("latin", many, LATIN, 10000, pdf_peers(as_utf8(many, LATIN))[:1])
    peak = peak_of(export_command(many, LATIN, "p.pdf")) / MEGABYTE
    row("Peak memory of PDF export, 10,000 pages", f"{peak:.1f} MB", "", "", "≤ 20 MB", peak <= 20)


def drawn_command(report, target="p.pdf"):
    return export_command(report, LATIN, target) + ["-drawn"]


def draw(report):
    emptied("ours")
    return Run(drawn_command(report), report.parent)


@on_one_processor()
def measure_printing(thousand):
    for name, aim in (("qt", 2), ("cairo", 2.8)):
        command = [str(BUILD / f"print_with_{name}"), str(thousand), str(DATA / f"{name}.pdf")]
        peer = "QPdfWriter" if name == "qt" else "a bare loop over Cairo"
        seconds = alternating_seconds(lambda: Run(print_command(thousand), DATA),
                                      lambda: Run(command), 5)
        speed_row(f"Printing to a file; peer {peer}", 1000, seconds, aim)
    seconds = alternating_seconds(lambda: draw(thousand),
                                  lambda: export(thousand, LATIN, "p.pdf"), 5)
    speed_row("PDF as drawn; peer the PDF export as told", 1000, seconds, 0.5)
    measure_drawn_size(thousand)
    measure_logo(thousand)


def measure_drawn_size(thousand):
    """With the bare loop over Cairo beside it, whose file is still there."""
    sizes = {}
    for name, tags in (("bare", []), ("tagged", ["tagged"])):
        target = DATA / f"{name}.pdf"
        Run([str(BUILD / "draw_pages"), str(thousand), str(target), *tags])
        sizes[name] = target.stat().st_size / 1000
    peer = (DATA / "cairo.pdf").stat().st_size / 1000
    ratio = sizes["bare"] / peer
    row("Size of a page as drawn, without tags; peer a bare loop over Cairo",
        f"{sizes['bare'] / 1e3:.2f} KB", f"{peer / 1e3:.2f} KB", f"{ratio:.2f}", "≤ 1", ratio <= 1)
    tags = sizes["tagged"] - sizes["bare"]
    row("Size of the tags of a page", f"{tags / 1e3:.2f} KB", "", "", "≤ 1 KB", tags <= 1024)


def measure_logo(thousand):
    """Photos can't be packed: noise, so that the file has the size that is told."""
    side = 1130
    random.seed(1)
    rows = b"".join(b"\0" + random.randbytes(3 * side) for _ in range(side))
    (DATA / "logo.png").write_bytes(png_file(side, side, rows))
    report = DATA / "logo.txt"
    item = b'<img image="logo.png" left=150 top=5 right=200 bottom=40 imgSS=1/>\r\n'
    report.write_bytes(b"\f".join(item + page for page in thousand.read_bytes().split(b"\f")))
    ours, peer = alternating_seconds(lambda: draw(report), lambda: draw(thousand), 5)
    ratio = ours / peer
    row("Time of 1,000 pages with one logo of 3.8 MB; peer without it", f"{ours * 1e3:.0f} ms",
        f"{peer * 1e3:.0f} ms", f"{ratio:.2f}", "≤ 2", ratio <= 2)


def peak_of(command):
    emptied("ours")
    return int(Run([str(BUILD / "peak_memory"), *command], DATA).output)


def measure_memory(many, small):
    ways = [("PNG export", lambda report: export_command(report, LATIN, "p.png")),
            ("TXT export", lambda report: export_command(report, LATIN, "p.txt")),
            ("printing to a file", print_command), ("PDF as drawn", drawn_command)]
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
