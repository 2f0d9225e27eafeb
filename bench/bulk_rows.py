"""Many reports in one run."""

import os
import shutil

from runs import Run, alternating_seconds, on_one_processor, peak_of_tree
from table import (BUILD, DATA, LATIN, MEGABYTE, VIEWER, as_utf8, emptied, export, export_command,
                   files_of, make_report, row)

REPORTS = 5000
OFFICE_REPORTS = 20


def spool():
    """Reports of three pages, all alike."""
    report = make_report("three.txt", "3")
    folder = emptied("spool")
    for number in range(REPORTS):
        shutil.copy(report, folder / f"{number}.txt")
    return report, folder


def export_all(folder):
    emptied("ours")
    names = DATA / "names"
    names.write_text("".join(f"{folder}/{number}.txt\n" for number in range(REPORTS)))
    return Run([str(BUILD / "qorexport"), "-c", LATIN, "-f", str(names), "-o",
                f"{DATA}/ours/{{stem}}.pdf"])


def view_all(folder):
    emptied("peer")
    command = (f"seq 0 {REPORTS - 1} | xargs -P {os.cpu_count()} -I@ {VIEWER} -f {folder}/@.txt "
               f"-codepage {LATIN} -export {DATA}/peer/@.pdf")
    return Run(["sh", "-c", command])


def rates_of_office(report):
    """Reports a second: a run for each, and many in one run."""
    text = as_utf8(report, LATIN)
    folder = emptied("office")
    names = [f"{number}.txt" for number in range(OFFICE_REPORTS)]
    for name in names:
        shutil.copy(text, folder / name)
    convert = ["soffice", "--headless", "--convert-to", "pdf"]
    one = min(Run([*convert, names[0]], folder).seconds for _ in range(2))
    return 1 / one, OFFICE_REPORTS / Run([*convert, *names], folder).seconds


def measure_bulk():
    report, folder = spool()
    ours, peer = alternating_seconds(lambda: export_all(folder), lambda: view_all(folder), 2)
    files_of("ours", REPORTS)
    files_of("peer", REPORTS)
    rate = REPORTS / ours
    row(f"{REPORTS:,} reports of three pages to PDF; peer a run of the viewer each",
        f"{rate:.0f} reports/s", f"{REPORTS / peer:.0f} reports/s", f"{peer / ours:.2f}", "≥ 4",
        peer >= 4 * ours)
    for way, office, aim in zip(("a run each", f"{OFFICE_REPORTS} in a run"),
                                rates_of_office(report), (300, 50)):
        row(f"Reports of three pages to PDF; peer LibreOffice, {way}", f"{rate:.0f} reports/s",
            f"{office:.2f} reports/s", f"{rate / office:.0f}", f"≥ {aim}", rate >= aim * office)


def on_one(run):
    with on_one_processor():
        return run()


def peak_of_export(report, target):
    emptied("ours")
    return peak_of_tree(export_command(report, LATIN, target)) / MEGABYTE


def measure_one_report(many):
    processors = os.cpu_count()
    for target, rounds in (("p.pdf", 3), ("p.png", 1)):
        run = lambda: export(many, LATIN, target)
        ours, peer = alternating_seconds(run, lambda: on_one(run), rounds)
        what = f"10,000 pages to {target[2:].upper()}, {processors} processors; peer one of them"
        row(what, f"{ours:.2f} s", f"{peer:.2f} s", f"{peer / ours:.2f}", "≥ 1.8",
            peer >= 1.8 * ours)
        ours, peer = peak_of_export(many, target), on_one(lambda: peak_of_export(many, target))
        row("Memory of all processes at that; peer those on one processor", f"{ours:.1f} MB",
            f"{peer:.1f} MB", f"+{ours - peer:.1f} MB", "≤ 64 MB", ours - peer <= 64)
