"""Spreadsheets: speed, size and memory."""

import subprocess

from growth import measure_growth
from runs import Run, alternating_seconds
from table import (BUILD, DATA, LATIN, MEGABYTE, export, files_of, row, size_of, speed_row)

PEER = str(BUILD / "sheets_with_libxlsxwriter")


def make_placed(pages):
    path = DATA / f"placed{pages}.txt"
    with open(path, "wb") as file:
        subprocess.run([str(BUILD / "make_placed"), str(pages)], stdout=file, check=True)
    return path


def race(name, report, peer_arguments):
    """Both formats beside a bare loop over libxlsxwriter, which writes XLSX."""
    peer = DATA / "peer.xlsx"
    for target, aim in (("s.xlsx", 3), ("s.xls", 5)):
        seconds = alternating_seconds(lambda: export(report, LATIN, target),
                                      lambda: Run([PEER, *peer_arguments, str(peer)], DATA), 5)
        speed_row(f"{target[2:].upper()} of 1,000 pages, {name}; peer libxlsxwriter", 1000, seconds,
                  aim)
        if aim == 3:
            ours, other = size_of(files_of("ours", 1)), peer.stat().st_size
            row(f"Size of the XLSX, {name}", f"{ours / MEGABYTE:.2f} MB",
                f"{other / MEGABYTE:.2f} MB", f"{ours / other:.2f}", "≤ 1", ours <= other)


def measure_sheets(thousand, many, small):
    race("a text a line", thousand, [str(thousand)])
    race("ten placed cells a line", make_placed(1000), ["--placed", "1000"])
    csv, txt = alternating_seconds(lambda: export(thousand, LATIN, "s.csv"),
                                   lambda: export(thousand, LATIN, "s.txt"), 9)
    row("CSV of 1,000 pages; peer: as text", f"{csv * 1e3:.0f} ms", f"{txt * 1e3:.0f} ms",
        f"{csv / txt:.2f}", "≤ 1.5", csv / txt <= 1.5)
    for target in ("s.xlsx", "s.xls"):
        measure_growth(target, many, thousand, small, megabytes=40)
