#!/usr/bin/env python3
"""Draws one device icon: the console with a month's motif on its screen, as an .icns file."""

import argparse
import os
import struct
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

SVG = "http://www.w3.org/2000/svg"

# Entry type of an .icns file for a PNG picture of each size.
ENTRIES = ((b"icp5", 32), (b"icp6", 64), (b"ic07", 128), (b"ic08", 256))


def composed(console: Path, motif: Path) -> str:
    """The whole drawing; the motif's root carries the screen's colours."""
    root = ElementTree.parse(motif).getroot()
    try:
        colours = {"@TOP@": root.attrib["data-top"], "@BOTTOM@": root.attrib["data-bottom"]}
    except KeyError as missing:
        raise ValueError(f"{motif}: the root element lacks {missing}") from missing
    parts = "".join(ElementTree.tostring(part, encoding="unicode") for part in root)
    drawing = console.read_text(encoding="utf-8")
    for place, text in {**colours, "@MOTIF@": parts}.items():
        if place not in drawing:
            raise ValueError(f"{console}: there is no {place}")
        drawing = drawing.replace(place, text)
    return drawing


def rendered(drawing: str, size: int, rsvg_convert: str) -> bytes:
    command = [rsvg_convert, "--width", str(size), "--height", str(size), "--format", "png"]
    return subprocess.run(command, input=drawing.encode(), stdout=subprocess.PIPE, check=True).stdout


def packed(pictures: list[tuple[bytes, bytes]]) -> bytes:
    """Each entry, and the file as a whole, begins with a type and its own big-endian length."""
    body = b"".join(kind + struct.pack(">I", 8 + len(png)) + png for kind, png in pictures)
    return b"icns" + struct.pack(">I", 8 + len(body)) + body


def replace(path: Path, content: bytes) -> None:
    """An interrupted build leaves no half-written icon that looks up to date."""
    with tempfile.NamedTemporaryFile(dir=path.parent, delete=False) as file:
        file.write(content)
    os.chmod(file.name, 0o644)
    os.replace(file.name, path)


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--console", type=Path, required=True, help="the SVG of the console")
    parser.add_argument("--motif", type=Path, required=True, help="the SVG of the month's motif")
    parser.add_argument("--output", type=Path, required=True, help="the .icns file to write")
    parser.add_argument("--rsvg-convert", default="rsvg-convert", help="the renderer")
    options = parser.parse_args()
    ElementTree.register_namespace("", SVG)
    try:
        drawing = composed(options.console, options.motif)
        pictures = [(kind, rendered(drawing, size, options.rsvg_convert)) for kind, size in ENTRIES]
        options.output.parent.mkdir(parents=True, exist_ok=True)
        replace(options.output, packed(pictures))
    except (OSError, ValueError, ElementTree.ParseError, subprocess.CalledProcessError) as error:
        print(f"make_icns.py: {options.motif}: {error}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
