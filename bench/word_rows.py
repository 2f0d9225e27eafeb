"""Documents of text: speed, and how memory and time grow."""

from growth import measure_growth
from runs import Run, alternating_seconds
from table import DATA, LATIN, as_utf8, export, row, speed_row

FASTEST_ASKED = 10000  # pages a second


def measure_words(thousand, many, small):
    ours, txt = alternating_seconds(lambda: export(thousand, LATIN, "w.rtf"),
                                    lambda: export(thousand, LATIN, "w.txt"), 9)
    speed, aim = 1000 / ours, min(FASTEST_ASKED, 1000 / txt / 4)
    row("RTF of 1,000 pages; peer: as text", f"{speed:.0f} pages/s", f"{1000 / txt:.0f} pages/s",
        f"{txt / ours:.2f}", f"≥ {aim:.0f} pages/s", speed >= aim)
    text = as_utf8(thousand, LATIN)
    other = Run(["soffice", "--headless", "--convert-to", "rtf", "--outdir", str(DATA / "peer"),
                 str(text)], DATA)
    speed_row("RTF of 1,000 pages; peer LibreOffice", 1000, (ours, other.seconds), 50)
    measure_growth("w.rtf", many, thousand, small, megabytes=20)
