"""Prints what a workbook holds, as independent readers see it: openpyxl for .xlsx, xlrd for .xls.

A line for each cell: its place, its value, its number format, its font. Then the widths of columns,
and the places and sizes of pictures."""

import struct
import sys

import openpyxl
import xlrd
from openpyxl.utils import get_column_letter
from openpyxl.utils.datetime import to_excel
from xlrd.compdoc import CompDoc


def print_cell(sheet, row, column, value, code, font):
    name, size, bold, italic, colour = font
    style = "bold " * bold + "italic " * italic
    print(f"{sheet} {get_column_letter(column + 1)}{row + 1} {value!r} {code} "
          f"{name} {size:g} {style}{colour}")


def number(value):
    return int(value) if isinstance(value, float) and value.is_integer() else value


def print_xlsx(path):
    book = openpyxl.load_workbook(path)
    for sheet in book:
        for cell in (cell for row in sheet.iter_rows() for cell in row if cell.value is not None):
            value = to_excel(cell.value) if cell.is_date else cell.value
            font = cell.font
            print_cell(sheet.title, cell.row - 1, cell.column - 1, number(value),
                       cell.number_format, (font.name, font.sz, bool(font.b), bool(font.i),
                                            font.color.rgb[2:]))
        for letter, column in sheet.column_dimensions.items():
            print(f"{sheet.title} width {letter} {column.width:g}")
        for picture in sheet._images:
            place = picture.anchor._from
            size = picture.anchor.ext
            print(f"{sheet.title} picture {get_column_letter(place.col + 1)}{place.row + 1} "
                  f"{size.cx // 9525}x{size.cy // 9525} {picture.format} "
                  f"{picture.width}x{picture.height}")


def print_xls_pictures(path):
    """The cells that pictures of the first sheet reach from and to, and how far into the last ones:
    the anchors of the drawing records of the workbook's stream."""
    with open(path, "rb") as file:
        stream = CompDoc(file.read()).get_named_stream("Workbook")
    place = 0
    while place + 4 <= len(stream):
        record, length = struct.unpack_from("<HH", stream, place)
        body = stream[place + 4:place + 4 + length]
        anchor = body.find(b"\x10\xF0\x12\x00\x00\x00") if record == 0xEC else -1
        if anchor >= 0:
            _, left, _, top, _, right, across, bottom, down = struct.unpack_from("<9H", body,
                                                                                 anchor + 6)
            print(f"Sheet1 picture {get_column_letter(left + 1)}{top + 1} to "
                  f"{get_column_letter(right + 1)}{bottom + 1} {across} {down}")
        place += 4 + length


def print_xls(path):
    book = xlrd.open_workbook(path, formatting_info=True)
    for sheet in book.sheets():
        for row in range(sheet.nrows):
            for column in range(sheet.ncols):
                if sheet.cell_type(row, column) in (xlrd.XL_CELL_EMPTY, xlrd.XL_CELL_BLANK):
                    continue
                style = book.xf_list[sheet.cell_xf_index(row, column)]
                font = book.font_list[style.font_index]
                colour = "%02X%02X%02X" % book.colour_map[font.colour_index]
                print_cell(sheet.name, row, column, number(sheet.cell_value(row, column)),
                           book.format_map[style.format_key].format_str,
                           (font.name, font.height / 20, font.weight >= 700, bool(font.italic),
                            colour))
        for column, info in sorted(sheet.colinfo_map.items()):
            print(f"{sheet.name} width {get_column_letter(column + 1)} {info.width / 256:g}")
    print_xls_pictures(path)


for argument in sys.argv[1:]:
    print_xlsx(argument) if argument.endswith(".xlsx") else print_xls(argument)
