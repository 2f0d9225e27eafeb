"""The rows of the table, and what they are measured on: reports, commands and files of the two
directories, which the command line of measure.py names."""

import pathlib
import shutil
import subprocess
import sys

from runs import Run

BUILD, DATA = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
VIEWER = str(BUILD / "qorutlview")
LATIN, CYRILLIC = "850", "866"
MEGABYTE = 1e6


def note(text):
    print(text, file=sys.stderr, flush=True)


def row(what, ours, peer, ratio, aim, holds):
    verdict = "yes" if holds else "no"
    print(f"| {what} | {ours} | {peer} | {ratio} | {aim} | {verdict} |", flush=True)


def speed_row(what, pages, seconds, aim):
    ours, peer = seconds
    ratio = peer / ours
    row(what, f"{pages / ours:.0f} pages/s", f"{pages / peer:.0f} pages/s", f"{ratio:.2f}",
        f"≥ {aim}", ratio >= aim)


def make_report(name, *arguments):
    path = DATA / name
    with open(path, "wb") as file:
        subprocess.run([str(BUILD / "make_report"), *arguments], stdout=file, check=True)
    return path


def as_utf8(report, code_page):
    text = DATA / "utf8.txt"
    text.write_bytes(report.read_bytes().decode("cp" + code_page).encode())
    return text


def make_pdf(report, code_page):
    """The same pages as PDF."""
    pdf = report.with_suffix(".pdf")
    subprocess.run([str(BUILD / "make_pdf"), str(as_utf8(report, code_page)), str(pdf)], check=True)
    return pdf


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
