"""Many reports in one run."""

import os
import shutil

from runs import Run, alternating_seconds
from table import BUILD, DATA, LATIN, VIEWER, as_utf8, emptied, files_of, make_report, row

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


def rate_of_office(report):
    text = as_utf8(report, LATIN)
    folder = emptied("office")
    for number in range(OFFICE_REPORTS):
        shutil.copy(text, folder / f"{number}.txt")
    seconds = Run(["sh", "-c", f"cd {folder} && soffice --headless --convert-to pdf *.txt"]).seconds
    return OFFICE_REPORTS / seconds


def measure_bulk():
    report, folder = spool()
    ours, peer = alternating_seconds(lambda: export_all(folder), lambda: view_all(folder), 2)
    files_of("ours", REPORTS)
    files_of("peer", REPORTS)
    rate = REPORTS / ours
    row(f"{REPORTS:,} reports of three pages to PDF; peer a run of the viewer each",
        f"{rate:.0f} reports/s", f"{REPORTS / peer:.0f} reports/s", f"{peer / ours:.2f}", "≥ 4",
        peer >= 4 * ours)
    office = rate_of_office(report)
    row("Reports of three pages to PDF; peer LibreOffice", f"{rate:.0f} reports/s",
        f"{office:.1f} reports/s", f"{rate / office:.0f}", "≥ 300", rate >= 300 * office)
