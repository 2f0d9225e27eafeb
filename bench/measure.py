"""Measures the viewer beside its peers: measure.py BUILD_DIRECTORY DATA_DIRECTORY

Prints a table in Markdown. Every number is a ratio or a difference of two runs on the same machine
in the same minutes; nothing here fails because a machine is slow.
"""

import os
import shutil

from bulk_rows import measure_bulk, measure_one_report
from dialog_rows import measure_dialog
from export_rows import (measure_barcodes, measure_memory, measure_pdf, measure_pictures,
                         measure_printing, measure_start)
from find_rows import measure_finding, measure_huge_finding
from index_rows import measure_openings, measure_scan, measure_walk
from memory_rows import measure_picture_pages, measure_pieces
from sheet_rows import measure_sheets
from table import CYRILLIC, DATA, LATIN, MEGABYTE, make_report, note
from window_rows import measure_huge_window, measure_windows
from word_rows import measure_words

HUGE_BYTES = 1 << 30
SPARE_BYTES = 1 << 30  # room for what the other rows write


def measure_huge(small):
    free = shutil.disk_usage(DATA).free
    if free < HUGE_BYTES + SPARE_BYTES:
        note(f"The rows of 1 GiB are skipped: only {free / MEGABYTE:.0f} MB are free in {DATA}.")
        return
    huge = make_report("huge.txt", "--bytes", str(HUGE_BYTES))
    measure_scan(huge)
    measure_openings(huge, small)
    measure_huge_window(huge)
    measure_huge_finding(huge)
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
    measure_sheets(thousand, many, small)
    measure_words(thousand, many, small)
    measure_memory(many, small)
    measure_pieces()
    measure_picture_pages()
    measure_start(page)
    measure_bulk()
    measure_one_report(many)
    measure_windows(many)
    measure_finding(many)
    measure_dialog()
    measure_barcodes()


main()
