#!/usr/bin/env python3
"""Compares all that two builds of the program put out: samples, random reports, failing runs.

    tools/compare_outputs.py OLD_PROGRAM NEW_PROGRAM [--reports 500] [--seed 1]

Each run stands in a directory of its own; files, exit codes and what is said are compared byte by
byte. Exits with 1 where anything differs, and names it.
"""
import argparse
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

SAMPLES = Path(__file__).resolve().parent.parent / "samples"
EXTENSIONS = ["txt", "html", "pdf", "png", "jpeg", "gif", "bmp", "ico"]
PRINTER = "Microsoft Print to PDF"
CODE_PAGES = [437, 850, 852, 857, 866, 1250, 1251, 1252, 1254, 28591, 99999]
TEXT = [bytes([c]) for c in range(32, 256)]


def words(rng, most=12):
    return b"".join(rng.choice(TEXT) for _ in range(rng.randrange(most)))


def millimetres(rng):
    return rng.choice([str(rng.randrange(-5, 200)), f"{rng.randrange(200)}.{rng.randrange(100)}"])


def box(rng, keys="left top right bottom"):
    return " ".join(f"{key}={millimetres(rng)}" for key in keys.split() if rng.random() < 0.9)


def style(rng):
    key = rng.choice(["b", "i", "u", "s", "w1", "h1", "h4", "h6"])
    attributes = rng.choice(['fn="Arial"', "fc=RED", "height=14", "width=8", "od=300", "fb=1",
                             "vs=2", "hs=1", "fcRGB=10,20,30", "fp=600", "fi=1 fu=1 fso=1"])
    return rng.choice([f"<{key}>", f"<{key}/>", f"<font {attributes}>", "<font/>",
                       f"<font {attributes}/>"]).encode()


def text_item(rng):
    return f'<text tc="{rng.choice(["A", "Total [1]", "&x"])}" {box(rng)} '.encode() + \
        f"alignH={rng.randrange(4)} alignV={rng.randrange(4)} fb={rng.randrange(2)}/>".encode()


def shape(rng):
    return (f"<shape sh_type={rng.randrange(7)} pt={rng.randrange(7)} bt={rng.randrange(9)} "
            f"lw={rng.randrange(60)} rw=100 rh=200 pc=BLUE bcRGB=1,200,3 {box(rng)}/>").encode()


def image(rng):
    name = rng.choice(["pictures/logo.png", "none.png", "pictures\\logo.png", "r.txt"])
    return f'<img image="{name}" imgSS={rng.randrange(5)} sh_type={rng.randrange(4)} {box(rng)}/>'.encode()


def barcode(rng):
    value = rng.choice(["0123456", "590123412345", "ABC-12", "Parcel 7", "1234", "x/y", "9638507"])
    return (f'<barcode br_type={rng.randrange(14)} value="{value}" value_show={rng.randrange(2)} '
            f"orient={rng.randrange(5)} value_pos={rng.randrange(2)} size_set={rng.randrange(2)} "
            f"size_factor={rng.choice([80, 100, 150])} {box(rng)}/>").encode()


def sequence(rng):
    return rng.choice([b"\x1b(s10H", b"\x1b&l6C", b"\x1bE", b"\x0f", b"\x12", b"\x1b&l1O", b"\x1b4",
                       b"\x1b(s3B", b"\x1bCB\x0f"])


def line(rng):
    makers = [words] * 8 + [style] * 4 + [text_item, shape, image, barcode, sequence]
    return b"".join(rng.choice(makers)(rng) for _ in range(rng.randrange(7)))


def report(rng):
    end = rng.choice([b"\r\n", b"\r\n", b"\r\n", b"\r", b"\n"])
    pages = [end.join(line(rng) for _ in range(rng.randrange(40))) for _ in range(rng.randrange(5))]
    return rng.choice([b"", b"", b"\x1bE\x1b&l1O"]) + (end + b"\f").join(pages) + \
        rng.choice([b"", end, b"\f", b"\x1a"])


def set_file(rng):
    return "".join(text + "\r\n" for text in [
        '<ReportSetsIniFile Ver="1.0"/>', '<Set SetName="S">', "<Page>",
        f'<PaperSize = "{rng.choice([9, 8, 11, 1, 256])}"/>', f'<PaperWidth = "{rng.randrange(60, 300)}"/>',
        f'<Orientation = "{rng.randrange(3)}"/>', f'<MarginLeft = "{rng.randrange(-3, 20)}"/>',
        f'<MarginTop = "{rng.randrange(-3, 20)}"/>',
        f'<BaseCodePage = "{rng.choice(CODE_PAGES[:-1])}"/>', "<Page/>", "<Font>",
        f'<Name = "{rng.choice(["Arial", "Courier New", "Times New Roman"])}"/>',
        f'<Height = "{rng.choice(["8", "10", "12.5"])}"/>', "<Font/>", "<Set/>"]).encode()


def runs_of(rng, name):
    """Command lines, without the program, for a report."""
    common = ["-f", name]
    if rng.random() < 0.5:
        common += ["-codepage", str(rng.choice(CODE_PAGES))]
    if rng.random() < 0.4:
        common += ["-i", "s.vset#S"]
    if rng.random() < 0.5:
        common += ["-caption", "A caption é"]
    for extension in EXTENSIONS:
        yield common + ["-export", f"out/{rng.choice(['r', 'R 1'])}.{extension}"]
    yield common + ["-g", "-p", PRINTER]
    yield common + ["-g", "-dd"]
    yield common + ["-export", "out/gone.txt", "-dd"]


ODD_RUNS = [["-h"], ["--help"], ["--version"], ["-g"], ["-f", "none.txt", "-g"], ["-export", "a.pdf"],
            ["-f", "r.txt", "-export", "a.xls"], ["-f", "r.txt", "-export", "a.htm"],
            ["-f", "r.txt", "-export", "missing/a.pdf"], ["-f", "r.txt", "-g", "-p", "No such"],
            ["-f", "r.txt", "-export", "a.rtf", "-dd"], ["-f", "r.txt", "-i", "none.vset", "-g"],
            ["-f", "out", "-export", "a.txt"], ["-f", "r.txt", "-export", "out"]]


def outcome(program, place, arguments):
    environment = dict(os.environ, SOURCE_DATE_EPOCH="1", LC_ALL=os.environ.get("LC_ALL", "C"),
                       QOR_ANSI_CODEPAGE=os.environ.get("QOR_ANSI_CODEPAGE", "1251"))
    environment.pop("DISPLAY", None)
    done = subprocess.run([program, *arguments], cwd=place, env=environment, capture_output=True,
                          timeout=120)
    return done.returncode, done.stdout, done.stderr


def files_in(place):
    """The files by their names. Print jobs bear the time of their making, which is left out."""
    return {str(path.relative_to(place)): re.sub(rb"/CreationDate \([^)]*\)", b"", path.read_bytes())
            for path in sorted(place.rglob("*")) if path.is_file()}


def everything(program, place, make, lists):
    """What some runs, one behind the other in one directory, leave and say."""
    place.mkdir()
    make(place)
    (place / "out").mkdir()
    (place / "pictures").symlink_to(SAMPLES / "pictures")
    said = {}
    for arguments in lists:
        said[" ".join(arguments)] = outcome(program, place, arguments)
        # What a run deleted is there again for the next one.
        make(place)
    found = said, files_in(place)
    shutil.rmtree(place)
    return found


def random_case(seed):
    rng = random.Random(seed)
    content, settings = report(rng), set_file(rng)

    def make(place):
        (place / "r.txt").write_bytes(content)
        (place / "s.vset").write_bytes(settings)

    return f"random report {seed}", make, list(runs_of(rng, "r.txt"))


def cases(count, seed):
    for text in (SAMPLES / "samples.list").read_text().splitlines():
        name, code_page = text.split("\t")
        content = (SAMPLES / name).read_bytes()
        lists = [["-f", name, "-codepage", code_page, "-export", f"out/r.{e}"] for e in EXTENSIONS]
        lists.append(["-f", name, "-codepage", code_page, "-g", "-p", PRINTER])
        yield name, lambda place, n=name, c=content: (place / n).write_bytes(c), lists
    yield "odd runs", lambda place: (place / "r.txt").write_bytes(b"A\r\n\fB\r\n"), ODD_RUNS
    for number in range(count):
        yield random_case(seed * 100000 + number)


def differences(name, old, new):
    for kind, before, after in (("run", old[0], new[0]), ("file", old[1], new[1])):
        for key in sorted(before.keys() | after.keys()):
            if before.get(key) != after.get(key):
                yield f"{name}: {kind} {key!r} differs"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("old")
    parser.add_argument("new")
    parser.add_argument("--reports", type=int, default=500)
    parser.add_argument("--seed", type=int, default=1)
    options = parser.parse_args()
    programs = [os.path.abspath(options.old), os.path.abspath(options.new)]

    def compare(case):
        name, make, lists = case
        # Messages name the place, so it is the same one for both.
        with tempfile.TemporaryDirectory() as directory:
            place = Path(directory) / "place"
            old, new = (everything(program, place, make, lists) for program in programs)
        return list(differences(name, old, new)), len(lists), len(new[1])

    with ThreadPoolExecutor(os.cpu_count()) as pool:
        results = list(pool.map(compare, cases(options.reports, options.seed)))
    found = [text for texts, _, _ in results for text in texts]
    print(*found[:40], sep="\n")
    print(f"{len(results)} reports, {sum(r[1] for r in results)} runs, "
          f"{sum(r[2] for r in results)} files: {len(found)} differences")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
