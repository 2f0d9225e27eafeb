"""Finding texts."""

from runs import Run, alternating_seconds
from table import BUILD, DATA, LATIN, MEGABYTE, make_pdf, row
from windows import Screen, alternating_values

RARE = "Copper washer, 14 mm"
HITS = 20


def find_bench(what, report, text):
    return Run([str(BUILD / "find_bench"), what, str(report), text]).values()


def with_rare_text(report):
    """The same report with twenty articles, far from each other, that no other row has."""
    name = b"Hex bolt, zinc plated"
    parts = report.read_bytes().split(name)
    step = (len(parts) - 1) // HITS
    joints = [name] * (len(parts) - 1)
    joints[step // 2:step * HITS:step] = [RARE.encode().ljust(len(name))] * HITS
    made = DATA / "rare.txt"
    with open(made, "wb") as file:
        for part, joint in zip(parts, joints + [b""]):
            file.write(part + joint)
    return made


def measure_list(report):
    """The peers read the same pages as PDF; each is told to be the only one on its processor."""
    pdf = make_pdf(report, LATIN)
    search = lambda: find_bench("list", report, RARE.lower())
    found = search()
    if found["hits"] != HITS:
        raise RuntimeError(f"{found['hits']} hits instead of {HITS}")
    row("Twenty hits in 10,000 pages: all of them", f"{found['seconds'] * 1e3:.0f} ms", "", "",
        "≤ 250 ms", found["seconds"] <= 0.25)
    peers = ((["mutool", "draw", "-q", "-F", "txt", "-o", "/dev/null", str(pdf)], 30, 2),
             (["pdfgrep", "-i", "-c", RARE, str(pdf)], 200, 1))
    for command, aim, rounds in peers:
        pairs = [(search()["seconds"], Run(command).seconds) for _ in range(rounds)]
        ours, peer = (min(column) for column in zip(*pairs))
        row(f"Twenty hits in 10,000 pages; peer {command[0]}", f"{ours:.3f} s", f"{peer:.1f} s",
            f"{peer / ours:.0f}", f"≥ {aim}", peer >= aim * ours)


def measure_marks(screen):
    page = DATA / "marks.txt"
    page.write_bytes((b"x " * 83 + b"x\r\n") * 60)
    command = [str(BUILD / "find_bench"), "marks", str(page), "x"]
    values = screen.run(command).values()
    seconds = values["seconds"]
    row(f"Repainting a page with {values['hits']:.0f} marks, beyond that without",
        f"{seconds * 1e3:.1f} ms", "", "", "≤ 8 ms", seconds <= 0.008)


def measure_finding(many):
    report = with_rare_text(many)
    measure_list(report)
    with Screen() as screen:
        measure_marks(screen)


def measure_huge_finding(huge):
    """A text that stands in every thousandth row or so."""
    with Screen() as screen:
        command = [str(BUILD / "find_bench"), "window", str(huge), "ar-1234"]
        values = screen.run(command).values()
    for name, what, aim in (("first_hit", "the first hit seen", 0.05), ("all", "all hits", 6),
                            ("longest", "longest time without an answer", 0.016)):
        seconds = values[name]
        row(f"Finding in 1 GiB, cached: {what}", f"{seconds * 1e3:.1f} ms", "", "",
            f"≤ {aim * 1e3:,.0f} ms", seconds <= aim)
    memory = find_bench("memory", huge, "ar-1234")["bytes"]
    row("Memory of these hits", f"{memory / MEGABYTE:.2f} MB", "", "", "≤ 8 MB",
        memory <= 8 * MEGABYTE)
