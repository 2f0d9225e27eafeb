"""Prints what a document holds, as LibreOffice reads it: its sheet, its paragraphs with the style of
each piece of text, and where inks of given colours (RRGGBB) lie on its pages, in whole millimetres."""

import subprocess
import sys
import tempfile
import xml.etree.ElementTree as tree
from pathlib import Path

from PIL import Image, ImageChops

SPACES = {"office": "urn:oasis:names:tc:opendocument:xmlns:office:1.0",
          "style": "urn:oasis:names:tc:opendocument:xmlns:style:1.0",
          "text": "urn:oasis:names:tc:opendocument:xmlns:text:1.0",
          "fo": "urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"}
DPI = 200


def name(prefixed):
    prefix, local = prefixed.split(":")
    return f"{{{SPACES[prefix]}}}{local}"


def converted(path, kind, place):
    subprocess.run(["soffice", f"-env:UserInstallation=file://{place}/profile", "--headless",
                    "--convert-to", kind, "--outdir", place, path], check=True, capture_output=True)
    return Path(place, Path(path).stem + "." + kind)


class Styles:
    def __init__(self, root):
        self.known = {style.get(name("style:name")): style
                      for style in root.iter(name("style:style"))}

    def value(self, style, key):
        """What the style, or the nearest one that it stands on, has there."""
        while style in self.known:
            for properties in self.known[style]:
                if properties.get(name(key)) is not None:
                    return properties.get(name(key))
            style = self.known[style].get(name("style:parent-style-name"))
        return None

    def look(self, *styles):
        def first(key):
            return next((found for style in styles if (found := self.value(style, key))), "")
        words = [first("style:font-name"), first("fo:font-size").removesuffix("pt")]
        words += ["bold"] * (first("fo:font-weight") == "bold")
        words += ["italic"] * (first("fo:font-style") == "italic")
        words += ["underline"] * (first("style:text-underline-style") == "solid")
        return " ".join(words)


def pieces(element, styles, above):
    """Texts of a paragraph with the styles that they stand in."""
    own = [element.get(name("text:style-name"))] + above
    yield element.text or "", own
    for child in element:
        if child.tag == name("text:span"):
            yield from pieces(child, styles, own)
        elif child.tag == name("text:s"):
            yield " " * int(child.get(name("text:c"), "1")), own
        elif child.tag in (name("text:tab"), name("text:line-break")):
            yield "\\t" if child.tag == name("text:tab") else "\\n", own
        yield child.tail or "", own


def print_text(root):
    styles = Styles(root)
    look = None
    for paragraph in root.find(f".//{name('office:text')}").findall(name("text:p")):
        own = paragraph.get(name("text:style-name"))
        line = "---" if styles.value(own, "fo:break-before") == "page" else ""
        for text, above in pieces(paragraph, styles, []):
            if text and (now := styles.look(*above)) != look:
                look = now
                line += f"{{{look}}}"
            line += text
        print(line)


def print_sheet(root):
    sheet = next(layout for layout in root.iter(name("style:page-layout-properties"))
                 if layout.get(name("fo:page-width")))
    keys = ("page-width", "page-height", "margin-top", "margin-bottom", "margin-left", "margin-right")
    print("sheet", *(round(float(sheet.get(name("fo:" + key)).removesuffix("in")) * 25.4, 1)
                     for key in keys),
          sheet.get(name("style:print-orientation")))


def print_inks(pdf, colours):
    place = pdf.parent
    subprocess.run(["pdftoppm", "-r", str(DPI), "-png", pdf, place / "page"], check=True)
    for number, page in enumerate(sorted(place.glob("page*.png")), 1):
        picture = Image.open(page).convert("RGB")
        for colour in colours:
            bands = ImageChops.difference(
                picture, Image.new("RGB", picture.size, "#" + colour)).split()
            other = ImageChops.lighter(ImageChops.lighter(bands[0], bands[1]), bands[2])
            box = other.point(lambda value: 255 * (value <= 2)).getbbox()
            if box:
                print("ink", number, colour, *(round(dot * 25.4 / DPI) for dot in box))
    print("pages", len(list(place.glob("page*.png"))))


with tempfile.TemporaryDirectory() as scratch:
    document = tree.parse(converted(sys.argv[1], "fodt", scratch)).getroot()
    print_sheet(document)
    print_text(document)
    print_inks(converted(sys.argv[1], "pdf", scratch), sys.argv[2:])
