#!/usr/bin/env python3
"""Makes the helper's two chimes, SyncCompleted.wav and ConvertCompleted.wav: 44.1 kHz, 16 bits, mono.

    make_sounds.py --output DIRECTORY
"""

import argparse
import io
import math
import os
import struct
import sys
import tempfile
import wave
from dataclasses import dataclass
from pathlib import Path

RATE = 44100
PEAK = 0.5  # of full scale: -6 dBFS
FADE = 0.08  # seconds at the end over which what still sounds goes to nothing


@dataclass(frozen=True)
class Partial:
    ratio: float  # to the note's pitch
    level: float
    decay: float  # seconds until it has fallen to 1/e


@dataclass(frozen=True)
class Chime:
    seconds: float
    attack: float  # seconds
    notes: tuple[tuple[float, float, float], ...]  # start in seconds, pitch in hertz, level
    partials: tuple[Partial, ...]


CHIMES = {
    # A glassy bell that climbs a major chord: C, E, G, C.
    "SyncCompleted": Chime(
        seconds=1.4,
        attack=0.006,
        notes=((0.0, 523.25, 0.8), (0.11, 659.26, 0.8), (0.22, 783.99, 0.85), (0.33, 1046.5, 1.0)),
        partials=(
            Partial(1.0, 1.0, 0.34),
            Partial(2.0, 0.28, 0.2),
            Partial(3.01, 0.12, 0.1),
            Partial(5.4, 0.05, 0.05),
        ),
    ),
    # Two low, wooden strokes, a fifth up: G, D.
    "ConvertCompleted": Chime(
        seconds=0.9,
        attack=0.004,
        notes=((0.0, 392.0, 0.9), (0.17, 587.33, 1.0)),
        partials=(Partial(1.0, 1.0, 0.17), Partial(3.93, 0.22, 0.06), Partial(9.2, 0.05, 0.025)),
    ),
}


def note(chime: Chime, pitch: float, at: float) -> float:
    """A note's value `at` seconds after its stroke."""
    rise = math.sin(0.5 * math.pi * at / chime.attack) ** 2 if at < chime.attack else 1.0
    return rise * sum(
        part.level * math.exp(-at / part.decay) * math.sin(2 * math.pi * pitch * part.ratio * at)
        for part in chime.partials
    )


def samples(chime: Chime) -> list[float]:
    mixed = [0.0] * round(chime.seconds * RATE)
    for start, pitch, level in chime.notes:
        first = round(start * RATE)
        for index in range(first, len(mixed)):
            mixed[index] += level * note(chime, pitch, (index - first) / RATE)
    fade = round(FADE * RATE)
    for index in range(fade):
        mixed[-1 - index] *= 0.5 - 0.5 * math.cos(math.pi * index / fade)
    loudest = max(abs(value) for value in mixed)
    return [PEAK * value / loudest for value in mixed]


def encoded(values: list[float]) -> bytes:
    content = io.BytesIO()
    with wave.open(content, "wb") as sound:
        sound.setnchannels(1)
        sound.setsampwidth(2)
        sound.setframerate(RATE)
        sound.writeframes(struct.pack(f"<{len(values)}h", *(round(32767 * v) for v in values)))
    return content.getvalue()


def replace(path: Path, content: bytes) -> None:
    """An interrupted build leaves no half-written sound that looks up to date."""
    with tempfile.NamedTemporaryFile(dir=path.parent, delete=False) as file:
        file.write(content)
    os.chmod(file.name, 0o644)
    os.replace(file.name, path)


def main() -> int:
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter
    )
    parser.add_argument("--output", type=Path, required=True, help="the directory to write into")
    options = parser.parse_args()
    path = options.output
    try:
        options.output.mkdir(parents=True, exist_ok=True)
        for name, chime in CHIMES.items():
            path = options.output / f"{name}.wav"
            replace(path, encoded(samples(chime)))
    except OSError as error:
        print(f"make_sounds.py: {path}: {error}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
