#!/usr/bin/env python3
"""Fills a home with files of awkward names: names.py SEED[-LAST] HOME. Seed 0 takes the names that are
known to be awkward, any other rolls eight; those of several seeds lie side by side. Each file has contents of its own, and is wanted on the stick: it lies in
a dropbox, or in the playlist "All" or the album "All"."""

import plistlib
import random
import sys
from pathlib import Path
from urllib.parse import quote

LISTED = ["...", "..", ".hidden", "dots...", " lead", "trail ", "both. .", "con", "aux", "nul", "a\x7fb", "a\x01b",
          'q"*:<>?\\|', "a:b", "a_b", "a*b", "Ä", "ä", "SS", "ß", "ss", "Mix", "MIX", "mix", "\U0001f3b5",
          "Caf\u00e9", "Cafe\u0301", "CAF\u00c9", "é" * 125, "日" * 83, "x" * 251, "X" * 251, "Jr.", "Jr", "Jr_",
          "R.E.M.", "R.E.M", "r.e.m_", "Live.", "Live. ", "Live", "-n", "~", "%41", "&amp;", "%@", "\U0001f600" * 60]
LETTERS = 'aAbBéÉ ..__:?*"\\|<>~%\x01\x7f日ßs\u0301\U0001f3b5-'


class Home:
    def __init__(self, seeds: range, home: Path):
        self.home, self.count, self.names = home, 0, []
        for seed in seeds:
            self.random = random.Random(seed)
            self.names += LISTED if seed == 0 else [self.rolled() for _ in range(8)]

    def rolled(self) -> str:
        name = "".join(self.random.choice(LETTERS) for _ in range(self.random.randint(1, 9)))
        if name.startswith("._"):  # the companion of another file, and no medium
            name = "-" + name
        return name * 40 if self.random.random() < 0.05 else name

    def write(self, path: Path) -> bool:
        """Whether there is a new file; a name that the computer can't hold is none to be wanted."""
        try:
            if path.exists():
                return False
            path.parent.mkdir(parents=True, exist_ok=True)
            self.count += 1
            path.write_text(f"{self.count:06}")
            return True
        except OSError:
            return False

    def fill_dropboxes(self) -> None:
        boxes = self.home / "Documents/Caravel/Dropboxes"
        for index, name in enumerate(self.names):
            name = name[:240].encode()[:240].decode(errors="ignore")
            other = self.random.choice(self.names)[:60]
            self.write(boxes / "Music" / (name + ".mp3"))
            if name.strip(".") and other.strip("."):
                self.write(boxes / "Music" / name / (other + ".MP3"))
                self.write(boxes / "Music" / name / other / "deep.mp3")
            self.write(boxes / "Photos" / name / f"{index}.jpg" if name.strip(".") else boxes / "Photos/none.jpg")
            self.write(boxes / "Movies" / (name + ".mp4"))

    def fill_libraries(self) -> None:
        printable = [name for name in self.names if "\x01" not in name]
        tracks, images = {}, {}
        for number, name in enumerate(printable, 1):
            song, photo = self.home / f"Music/{number}.mp3", self.home / f"Pictures/{number}.jpg"
            self.write(song)
            self.write(photo)
            tracks[str(number)] = {"Track ID": number, "Name": name, "Artist": self.random.choice(printable),
                                   "Album": self.random.choice(printable), "Track Type": "File",
                                   "Kind": "MPEG audio file", "Location": "file://localhost" + quote(str(song))}
            images[str(number)] = {"MediaType": "Image", "Caption": name, "ImagePath": str(photo)}
        playlist = {"Name": "All", "Playlist ID": 1, "All Items": True,
                    "Playlist Items": [{"Track ID": int(number)} for number in tracks]}
        album = {"AlbumName": "All", "Album Type": "Regular", "KeyList": list(images)}
        self.save("Music/iTunes/iTunes Music Library.xml", {"Tracks": tracks, "Playlists": [playlist]})
        self.save("Pictures/iPhoto Library/AlbumData.xml",
                  {"List of Albums": [album], "Master Image List": images})

    def save(self, path: str, contents: dict) -> None:
        file = self.home / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(plistlib.dumps(contents, sort_keys=False))


first, _, last = sys.argv[1].partition("-")
home = Home(range(int(first), int(last or first) + 1), Path(sys.argv[2]))
home.fill_dropboxes()
home.fill_libraries()
