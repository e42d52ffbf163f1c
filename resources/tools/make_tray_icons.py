#!/usr/bin/env python3
"""Draws the pictures of the status item, each as NAME.png (22 by 22) and NAME@2x.png (44 by 44).

    make_tray_icons.py --console icons/tray/console.svg --absent icons/tray/absent.svg \\
                       --output DIRECTORY

The console's drawing serves every picture but the one of no console: the tool fills in the colours
of the look ("Inactive" as it normally shows, "Active" while its menu is open) and where on the
screen the light stands that sweeps while a sync runs. Shown forwards and then backwards, the
thirteen frames are one swing from edge to edge.
"""

import argparse
import os
import re
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

SIZES = (("", 22), ("@2x", 44))

FRAMES = 13

LOOKS = {
    "Inactive": {
        "RIM": "#ffffff",
        "BODY": "#2a2e37",
        "KEYS": "#c9ced8",
        "LIT": "#7cc4ff",
        "DIM": "#14405f",
        "LIGHT": "#a5e3ff",
    },
    "Active": {
        "RIM": "#ffffff",
        "BODY": "#1b6ad6",
        "KEYS": "#ffffff",
        "LIT": "#e6f3ff",
        "DIM": "#0b2c5c",
        "LIGHT": "#ffffff",
    },
}


def connected(template: str, look: dict[str, str], light: int | None = None) -> str:
    """The console; while it syncs, `light` is where the light's middle stands."""
    values = {key: look[key] for key in ("RIM", "BODY", "KEYS", "LIGHT")}
    values["SCREEN"] = look["LIT" if light is None else "DIM"]
    values["SWEEP"] = "hidden" if light is None else "visible"
    values["AT"] = str(light or 0)
    for place, value in values.items():
        if f"@{place}@" not in template:
            raise ValueError(f"there is no @{place}@")
        template = template.replace(f"@{place}@", value)
    unknown = re.search("@[A-Z]+@", template)
    if unknown:
        raise ValueError(f"nothing is known to put in the place of {unknown.group()}")
    return template


def frame_light(frame: int) -> int:
    """Whole units keep the light's edges sharp. The screen lies around unit 11, and the first and the
    last frame show the light's edge at the screen's left and right edge."""
    return frame + 4


def drawings(console: Path, absent: Path) -> dict[str, str]:
    """Every picture's drawing by the picture's name."""
    source = absent
    try:
        pictures = {"InactiveNoPSPIcon": absent.read_text(encoding="utf-8")}
        source = console
        template = console.read_text(encoding="utf-8")
        for name, look in LOOKS.items():
            pictures[f"{name}Icon"] = connected(template, look)
            for frame in range(1, FRAMES + 1):
                light = frame_light(frame)
                pictures[f"{name}SyncingIcon{frame}"] = connected(template, look, light)
    except ValueError as error:  # what can't be decoded is one, too
        raise ValueError(f"{source}: {error}") from error
    return pictures


def rendered(drawing: str, size: int, rsvg_convert: str) -> bytes:
    command = [rsvg_convert, "--width", str(size), "--height", str(size), "--format", "png"]
    return subprocess.run(command, input=drawing.encode(), stdout=subprocess.PIPE, check=True).stdout


def replace(path: Path, content: bytes) -> None:
    """An interrupted build leaves no half-written picture that looks up to date."""
    with tempfile.NamedTemporaryFile(dir=path.parent, delete=False) as file:
        file.write(content)
    os.chmod(file.name, 0o644)
    os.replace(file.name, path)


def draw(path: Path, drawing: str, size: int, rsvg_convert: str) -> None:
    try:
        replace(path, rendered(drawing, size, rsvg_convert))
    except (OSError, subprocess.CalledProcessError) as error:
        raise RuntimeError(f"{path}: {error}") from error


def main() -> int:
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter
    )
    parser.add_argument("--console", type=Path, required=True, help="the SVG of the console")
    parser.add_argument("--absent", type=Path, required=True, help="the SVG for no console")
    parser.add_argument("--output", type=Path, required=True, help="the directory to write into")
    parser.add_argument("--rsvg-convert", default="rsvg-convert", help="the renderer")
    options = parser.parse_args()
    try:
        pictures = drawings(options.console, options.absent)
        options.output.mkdir(parents=True, exist_ok=True)
        with ThreadPoolExecutor(os.cpu_count()) as pool:
            runs = [
                pool.submit(draw, options.output / f"{name}{suffix}.png", drawing, size,
                            options.rsvg_convert)
                for name, drawing in pictures.items()
                for suffix, size in SIZES
            ]
            for run in runs:
                run.result()
    except (OSError, ValueError, RuntimeError) as error:
        print(f"make_tray_icons.py: {error}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
