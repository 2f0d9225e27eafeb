"""What lines, tags and pictures of a page take in memory."""

from export_rows import peak_of, print_command
from index_rows import index_bench
from png_file import png_file
from table import DATA, LATIN, MEGABYTE, export, export_command, make_report, row

PIECES = 2_000_000
LARGE_SIDE = 4000  # pixels
ACROSS = 20  # pictures beside each other


def measure_pieces():
    for what, piece, aim in (("an empty line", b"\r\n", 96),
                             ("a line of 15 letters", b"fifteen letters\r\n", 200),
                             ("an open tag", b"<b>", 64)):
        report = DATA / "pieces.txt"
        report.write_bytes(piece * PIECES)
        each = index_bench("peak", report).values()["bytes"] / PIECES
        row(f"Peak memory of {what}, of {PIECES:,} on a page", f"{each:.0f} B", "", "",
            f"≤ {aim} B", each <= aim)
    report.unlink()


def large_png():
    rows = (bytes((0,)) + bytes((x * y + x) & 0xFF for x in range(LARGE_SIDE)) * 3
            for y in range(16))
    return png_file(LARGE_SIDE, LARGE_SIDE, b"".join(rows) * (LARGE_SIDE // 16))


def small_jpeg(page):
    export(page, LATIN, "small.jpeg")
    return next((DATA / "ours").iterdir()).read_bytes()


def page_of(name, ending, picture, count):
    """A page of pictures that are told apart by what follows their last byte."""
    tags = []
    for number in range(count):
        file = f"{name}{number}{ending}"
        (DATA / file).write_bytes(picture + str(number).encode())
        left, top = number % ACROSS * 10, number // ACROSS * 10
        tags.append(f'<img image="{file}" imgSS=1 left={left} top={top} right={left + 9} '
                    f'bottom={top + 9}/>')
    report = DATA / f"{name}.txt"
    report.write_text("\r\n".join(tags), newline="")
    return report


def measure_picture_pages():
    page = make_report("page.txt", "1")
    for what, report in (("400 pictures of 0.9 million pixels (JPEG)",
                          page_of("small", ".jpeg", small_jpeg(page), 400)),
                         ("20 pictures of 16 million pixels (PNG)",
                          page_of("large", ".png", large_png(), 20))):
        for way, command in (("PNG export", export_command(report, LATIN, "p.png")),
                             ("HTML export", export_command(report, LATIN, "p.html")),
                             ("PDF export", export_command(report, LATIN, "p.pdf")),
                             ("printing to a file", print_command(report))):
            peak = peak_of(command) / MEGABYTE
            row(f"Peak memory of {way}, a page of {what}", f"{peak:.0f} MB", "", "", "≤ 300 MB",
                peak <= 300)
        for file in DATA.glob(report.stem + "*"):
            file.unlink()
