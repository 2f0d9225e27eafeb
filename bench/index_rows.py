"""The page index and the pages of reports of any size."""

from runs import Run, alternating_seconds
from table import BUILD, row
from windows import alternating_values


def index_bench(what, report):
    return Run([str(BUILD / "page_index_bench"), what, str(report)])


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
