"""Prints what a workbook holds, as independent readers see it: openpyxl for .xlsx, xlrd for .xls.

A line for each cell: its place, its value, its number format, its font. Then the widths of columns, the
heights of rows that are not usual, and the places and sizes of pictures. Fails where a stricter program would call the file damaged."""

import io
import re
import struct
import sys
import zipfile

import openpyxl
import xlrd
from openpyxl.utils import get_column_letter
from openpyxl.utils.datetime import to_excel
from openpyxl.utils.escape import unescape
from PIL import Image
from xlrd.compdoc import CompDoc


def print_cell(sheet, row, column, value, code, font):
    name, size, bold, italic, colour, charset = font
    value = int(value) if isinstance(value, float) and value.is_integer() else value
    style = "bold " * bold + "italic " * italic
    print(f"{sheet} {get_column_letter(column + 1)}{row + 1} {value!r} {code} "
          f"{name} {size:g} {style}{colour}" + (f" {charset}" if charset else ""))


def look(file):
    """Format, size and first pixel of a picture."""
    image = Image.open(io.BytesIO(file))
    return "%s %dx%d %02X%02X%02X" % (image.format, *image.size,
                                      *image.convert("RGB").getpixel((0, 0)))


def check_package(path, cells):
    """Headers and types of parts; numbers, pictures and cells once; no blanks that get lost."""
    with open(path, "rb") as file, zipfile.ZipFile(file) as package:
        types = package.read("[Content_Types].xml").decode()
        sheets = re.findall(rb'sheetId="(\d+)"', package.read("xl/workbook.xml"))
        assert len(set(sheets)) == len(sheets)
        assert 'Extension="jpeg" ContentType="image/jpeg"' in types
        media = [part.CRC for part in package.infolist() if "media" in part.filename]
        assert len(set(media)) == len(media)
        for part in package.infolist():
            file.seek(part.header_offset + 14)
            assert file.read(12) == struct.pack("<3I", part.CRC, part.compress_size, part.file_size)
            if re.search(r"(sheet|drawing)\d+\.xml$", part.filename):
                assert f'"/{part.filename}"' in types
            if part.filename.startswith("xl/worksheets/sheet"):
                sheet = package.read(part)
                assert not re.search(rb"<t>(\s|[^<]*\s<)", sheet)
                cells -= len(re.findall(rb'<c r="', sheet))
    assert cells == 0


def print_xlsx(path):
    book = openpyxl.load_workbook(path)
    check_package(path, sum(len(sheet._cells) for sheet in book))
    for sheet in book:
        for cell in (cell for row in sheet.iter_rows() for cell in row if cell.value is not None):
            value = to_excel(cell.value) if cell.is_date else cell.value
            font = cell.font
            print_cell(sheet.title, cell.row - 1, cell.column - 1,
                       unescape(value) if isinstance(value, str) else value, cell.number_format,
                       (font.name, font.sz, bool(font.b), bool(font.i), font.color.rgb[2:],
                        font.charset))
        for letter, column in sheet.column_dimensions.items():
            print(f"{sheet.title} width {letter} {column.width:g}")
        for row, dimension in sheet.row_dimensions.items():
            if dimension.height:
                print(f"{sheet.title} height {row} {dimension.height:g}")
        for picture in sheet._images:
            place = picture.anchor._from
            size = picture.anchor.ext
            print(f"{sheet.title} picture {get_column_letter(place.col + 1)}{place.row + 1} "
                  f"{size.cx // 9525}x{size.cy // 9525} {look(picture._data())}")


def picture_of(group, number):
    """The file that the drawings of all sheets know by this number."""
    place = 24 + struct.unpack_from("<I", group, 12)[0]
    for _ in range(number - 1):
        place += 8 + struct.unpack_from("<I", group, place + 4)[0]
    size, kind = struct.unpack_from("<IB", group, place + 4)
    file = group[place + 69:place + 8 + size]
    assert group.count(file) == 1
    assert (kind, group[place + 46:place + 48], look(file)[:3]) in ((5, b"\x1D\xF0", "JPE"),
                                                                    (6, b"\x1E\xF0", "PNG"))
    return file


def print_xls_pictures(stream, sheets):
    """The cells that pictures reach from and to, and how far into the last ones: the anchors of the
    drawing records of the workbook's stream."""
    group, heads, place, shapes = b"", 0, 0, []
    while place < len(stream):
        record, length = struct.unpack_from("<HH", stream, place)
        assert length <= 8224
        sheet = sheets.get(place) if record == 0x809 else sheet
        before = record if record != 0x3C else before
        body = stream[place + 4:place + 4 + length]
        group += body if before == 0xEB else b""
        heads += record == 0xEB
        shapes += [(sheet, body[6:8])] if record == 0x5D else []
        if record == 0xEC:
            anchor = body.find(b"\x10\xF0\x12\x00\x00\x00")
            shapes.append(body[body.rfind(b"\x0A\xF0\x08\x00\x00\x00") + 6:][:4])
            number, = struct.unpack_from("<I", body, anchor - 6)
            _, left, _, top, _, right, across, bottom, down = struct.unpack_from("<9H", body,
                                                                                 anchor + 6)
            print(f"{sheet} picture {get_column_letter(left + 1)}{top + 1} to "
                  f"{get_column_letter(right + 1)}{bottom + 1} {across} {down} "
                  f"{look(picture_of(group, number))}")
        place += 4 + length
    assert heads <= 2 and place == len(stream) and len(set(shapes)) == len(shapes)


def print_xls(path):
    book = xlrd.open_workbook(path, formatting_info=True)
    assert book.datemode == 0 and len(book.font_list) <= 512
    for sheet in book.sheets():
        assert sheet.sheet_selected == (sheet.number == 0)
        assert (sheet._dimnrows, sheet._dimncols, sheet.defcolwidth,
                sheet.default_row_height) == (sheet.nrows, sheet.ncols, 8, 255)
        for row in range(sheet.nrows):
            for column in range(sheet.ncols):
                if sheet.cell_type(row, column) in (xlrd.XL_CELL_EMPTY, xlrd.XL_CELL_BLANK):
                    continue
                style = book.xf_list[sheet.cell_xf_index(row, column)]
                font = book.font_list[style.font_index]
                colour = "%02X%02X%02X" % book.colour_map[font.colour_index]
                print_cell(sheet.name, row, column, sheet.cell_value(row, column),
                           book.format_map[style.format_key].format_str,
                           (font.name, font.height / 20, font.weight >= 700, bool(font.italic),
                            colour, font.character_set))
        for column, info in sorted(sheet.colinfo_map.items()):
            print(f"{sheet.name} width {get_column_letter(column + 1)} {info.width / 256:g}")
        for row, info in sorted(sheet.rowinfo_map.items()):
            print(f"{sheet.name} height {row + 1} {info.height / 20:g}")
    starts = (start - book.base for start in book._sh_abs_posn)
    with open(path, "rb") as file:
        print_xls_pictures(CompDoc(file.read()).get_named_stream("Workbook"),
                           dict(zip(starts, book.sheet_names())))


for argument in sys.argv[1:]:
    print_xlsx(argument) if argument.endswith(".xlsx") else print_xls(argument)
