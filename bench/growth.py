"""How memory and time grow with the pages of a report."""

from export_rows import peak_of
from runs import alternating_seconds
from table import LATIN, MEGABYTE, export, export_command, row


def measure_growth(target, many, thousand, small, megabytes):
    """Of 10,000 pages beside 10 and 1,000: at most so much more memory, and 12 times the time."""
    kind = target.partition(".")[2].upper()
    peaks = [peak_of(export_command(report, LATIN, target)) / MEGABYTE for report in (many, small)]
    growth = peaks[0] - peaks[1]
    row(f"Peak memory of {kind}: 10,000 pages; peer: 10", f"{peaks[0]:.1f} MB",
        f"{peaks[1]:.1f} MB", f"+{growth:.1f} MB", f"≤ {megabytes} MB", growth <= megabytes)
    seconds = alternating_seconds(lambda: export(many, LATIN, target),
                                  lambda: export(thousand, LATIN, target), 3)
    ratio = seconds[0] / seconds[1]
    row(f"Time of {kind}: 10,000 pages; peer: 1,000", f"{seconds[0]:.2f} s", f"{seconds[1]:.2f} s",
        f"{ratio:.1f}", "≤ 12", ratio <= 12)
