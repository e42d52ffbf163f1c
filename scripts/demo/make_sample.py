#!/usr/bin/env python3
"""Makes the demo's home folder (music and photo libraries, contacts, bookmarks, a movie) and its Memory
Stick, with game saves."""

import argparse
import base64
import datetime
import hashlib
import plistlib
import struct
import subprocess
import sys
from dataclasses import dataclass
from pathlib import Path
from urllib.parse import quote

RATE = 44100


@dataclass(frozen=True)
class Track:
    number: int  # the library's "Track ID"
    artist: str
    album: str
    name: str
    position: tuple[int, int]  # disc and track; (0, track) for a record of one disc without a number
    codec: str  # a key of CODECS
    seconds: int
    tones: tuple[int, ...]  # Hz


@dataclass(frozen=True)
class Codec:
    extension: str
    kind: str  # the library's "Kind"
    options: tuple[str, ...]  # ffmpeg's


CODECS = {
    "mp3": Codec("mp3", "MPEG audio file", ("-c:a", "libmp3lame", "-b:a", "128k", "-id3v2_version", "3")),
    "aac": Codec("m4a", "AAC audio file", ("-c:a", "aac", "-b:a", "128k")),
    "wav": Codec("wav", "WAV audio file", ("-c:a", "pcm_s16le")),
    "lossless": Codec("m4a", "Apple Lossless audio file", ("-c:a", "alac")),
}

LANTERNS = ("The Paper Lanterns", "Harbour Lights")
QUILL = ("Ada Quill", "Slow Mornings")
TRIO = ("Northbound Trio", "Live at the Mill")

TRACKS = (
    Track(35, *LANTERNS, "Casting Off", (0, 1), "mp3", 4, (220, 277, 330)),
    Track(37, *LANTERNS, "Who's at the Helm?", (0, 2), "mp3", 3, (247, 311, 370)),
    Track(39, *LANTERNS, "Night / Day", (0, 3), "mp3", 2, (262, 330, 392)),
    Track(41, *QUILL, "Café at Seven", (1, 1), "aac", 3, (294, 370)),
    Track(43, *QUILL, "Second Cup", (1, 2), "aac", 4, (330, 415)),
    Track(45, *QUILL, "Glass Rivers", (1, 3), "lossless", 3, (349, 440)),
    Track(47, *TRIO, "Sawdust", (2, 1), "wav", 2, (392,)),
    Track(49, *TRIO, "The Wheel Turns", (2, 2), "mp3", 3, (440, 554)),
)
STREAM_NUMBER = 51

# What the dropbox holds: dropped in by hand, unknown to the library.
DROPPED = Track(0, *TRIO, "Encore", (0, 0), "aac", 2, (523, 659, 784))


@dataclass(frozen=True)
class Playlist:
    name: str
    tracks: tuple[int, ...]
    marks: tuple[tuple[str, object], ...] = ()


PLAYLISTS = (
    Playlist("Library", (*(track.number for track in TRACKS), STREAM_NUMBER),
             (("Master", True), ("Visible", False))),
    Playlist("Party Shuffle", (37, 47), (("Party Shuffle", True),)),
    Playlist("Recently Added", (37, 39, 43),
             (("Smart Info", b"\x01\x01\x00\x03" + bytes(100)), ("Smart Criteria", b"SLst" + bytes(132)))),
    Playlist("AC/DC: Live?", (47, 49)),
    Playlist("Road Trip", (35, 37, 41, 45, STREAM_NUMBER)),
)


def persistent_id(*parts: object) -> str:
    return hashlib.sha256(repr(parts).encode()).hexdigest()[:16].upper()


def make_sound(track: Track, path: Path) -> None:
    path.parent.mkdir(parents=True, exist_ok=True)
    tones = "+".join(f"sin(2*PI*{tone}*t)" for tone in track.tones)
    source = f"aevalsrc='0.6/{len(track.tones)}*({tones})':s={RATE}:d={track.seconds}"
    disc, number = track.position
    tags = {"title": track.name, "artist": track.artist, "album": track.album,
            "track": str(number), "disc": str(disc)}
    tag_options = [part for key, value in tags.items() if value != "0"
                   for part in ("-metadata", f"{key}={value}")]
    subprocess.run(["ffmpeg", "-nostdin", "-v", "error", "-y", "-f", "lavfi", "-i", source,
                    "-ac", "2", "-bitexact", *tag_options, *CODECS[track.codec].options, str(path)],
                   check=True)


def location(path: Path) -> str:
    return "file://localhost" + quote(str(path))


def sound_path(music_folder: Path, track: Track) -> Path:
    name = track.name.replace("/", "_").replace("?", "_")
    extension = CODECS[track.codec].extension
    return music_folder / track.artist / track.album / f"{track.position[1]:02} {name}.{extension}"


def track_record(track: Track, path: Path) -> dict:
    disc, number = track.position
    record = {
        "Track ID": track.number,
        "Name": track.name,
        "Artist": track.artist,
        "Album": track.album,
        "Genre": "Demo",
        "Kind": CODECS[track.codec].kind,
        "Size": path.stat().st_size,
        "Total Time": track.seconds * 1000,
        "Track Number": number,
        "Date Added": datetime.datetime(2026, 1, track.position[1], 12),
        "Sample Rate": RATE,
        "Persistent ID": persistent_id("track", track.number),
        "Track Type": "File",
        "Location": location(path),
    }
    if disc:
        record["Disc Number"] = disc
    return record


def stream_record() -> dict:
    return {
        "Track ID": STREAM_NUMBER,
        "Name": "Harbour Radio",
        "Genre": "Radio",
        "Kind": "MPEG audio stream",
        "Persistent ID": persistent_id("track", STREAM_NUMBER),
        "Track Type": "URL",
        "Location": "http://radio.invalid/harbour.mp3",
    }


def playlist_record(index: int, playlist: Playlist) -> dict:
    return {
        "Name": playlist.name,
        "Playlist ID": 100 + index,
        "Playlist Persistent ID": persistent_id("playlist", playlist.name),
        **dict(playlist.marks),
        "All Items": True,
        "Playlist Items": [{"Track ID": number} for number in playlist.tracks],
    }


def make_library(home: Path) -> None:
    folder = home / "Music" / "iTunes"
    music_folder = folder / "iTunes Music"
    records = {}
    for track in TRACKS:
        path = sound_path(music_folder, track)
        make_sound(track, path)
        records[str(track.number)] = track_record(track, path)
    records[str(STREAM_NUMBER)] = stream_record()
    library = {
        "Major Version": 1,
        "Minor Version": 1,
        "Application Version": "7.0",
        "Music Folder": location(music_folder) + "/",
        "Library Persistent ID": persistent_id("library"),
        "Tracks": records,
        "Playlists": [playlist_record(index, playlist) for index, playlist in enumerate(PLAYLISTS)],
    }
    with open(folder / "iTunes Music Library.xml", "wb") as file:
        plistlib.dump(library, file, sort_keys=False)


@dataclass(frozen=True)
class Photo:
    key: str
    caption: str
    file: str
    source: str  # one of ffmpeg's test pictures


PHOTOS = (
    Photo("1", "Beach", "Roll 1/IMG_0001.JPG", "testsrc=size=640x480"),
    Photo("2", "Beach", "Roll 1/IMG_0002.JPG", "testsrc2=size=640x480"),
    Photo("3", "The Boat", "Roll 1/boat.mov", "smptebars=size=320x240"),
    Photo("4", "Map: harbour/bay", "Roll 2/map.png", "rgbtestsrc=size=480x272"),
    Photo("5", "Left Behind", "Roll 2/IMG_0003.jpeg", "yuvtestsrc=size=320x240"),
)
ALBUMS = (
    ("Photos", "99", ("1", "2", "3", "4", "5"), {"Master": True}),
    ("Holiday", "Regular", ("1", "3", "2"), {}),
    ("Trip / 2006", "Smart", ("4", "1"), {}),
    ("Unwanted", "Regular", ("5",), {}),
)


def make_video(source: str, seconds: int, path: Path, options: tuple[str, ...] = ()) -> None:
    path.parent.mkdir(parents=True, exist_ok=True)
    frames = ("-t", str(seconds)) if seconds else ("-frames:v", "1")
    subprocess.run(["ffmpeg", "-nostdin", "-v", "error", "-y", "-f", "lavfi", "-i", source, *options,
                    "-bitexact", *frames, str(path)], check=True)


def make_photo_library(home: Path) -> None:
    folder = home / "Pictures" / "iPhoto Library"
    images = {}
    for photo in PHOTOS:
        path = folder / photo.file
        make_video(photo.source, 1 if path.suffix == ".mov" else 0, path)
        images[photo.key] = {"MediaType": "Movie" if path.suffix == ".mov" else "Image",
                             "Caption": photo.caption, "ImagePath": str(path)}
    albums = [{"AlbumId": number, "AlbumName": name, "Album Type": kind, "KeyList": list(keys), **marks}
              for number, (name, kind, keys, marks) in enumerate(ALBUMS, 1)]
    with open(folder / "AlbumData.xml", "wb") as file:
        plistlib.dump({"Application Version": "6.0", "List of Albums": albums,
                       "Master Image List": images}, file, sort_keys=False)


def folded(line: str) -> str:
    """A vCard's line, in pieces of which each but the first begins with a blank."""
    return "\r\n ".join(line[start:start + 74] for start in range(0, len(line), 74))


def card(*lines: str) -> str:
    return "\r\n".join(("BEGIN:VCARD", "VERSION:3.0", *map(folded, lines), "END:VCARD", ""))


def make_contacts(home: Path) -> None:
    folder = home / ".contacts"
    portrait = folder / "portraits" / "ada.png"
    make_video("gradients=size=200x200:c0=orange:c1=purple", 0, portrait)
    inline = home / "portrait.jpg"
    make_video("testsrc=size=120x160", 0, inline)
    photo = base64.b64encode(inline.read_bytes()).decode()
    inline.unlink()
    cards = (
        card("UID:ada", "N:Quill;Ada;;;", "FN:Ada Quill", "TEL;TYPE=CELL,PREF:+49 170 5550100",
             "TEL;TYPE=HOME:+49 30 5550101", "EMAIL;TYPE=HOME:ada@example.org",
             "IMPP;TYPE=HOME:xmpp:ada@jabber.example.org",
             "ADR;TYPE=HOME:;;7 Café Lane;Seaside;Coast;12345;Germany",
             "NOTE:Sings on Thursdays.\\nLikes tea.",
             f"PHOTO;VALUE=uri:{portrait.as_uri()}"),
        card("UID:joao", "N:Conceição;João;;;", "FN:João Conceição", "ORG:Harbour Lights",
             "TEL;TYPE=WORK:+351 21 555 0102", "EMAIL;TYPE=WORK:joao@example.org",
             f"PHOTO;ENCODING=b;TYPE=JPEG:{photo}"),
        card("UID:mill", "ORG:The Mill & Sons", "FN:The Mill & Sons", "TEL;TYPE=MAIN:+44 20 5550103",
             "ADR;TYPE=WORK:;;1 Mill Road;Millbridge;;AB1 2CD;UK"),
        card("UID:nobody", "EMAIL:unnamed@example.org"),
    )
    (folder / "people.vcf").write_text("".join(cards), newline="")


def bookmark(title: str, address: str) -> dict:
    return {"WebBookmarkType": "WebBookmarkTypeLeaf", "URLString": address,
            "URIDictionary": {"title": title, "": address}}


def bookmark_folder(title: str, *children: dict) -> dict:
    return {"WebBookmarkType": "WebBookmarkTypeList", "Title": title, "Children": list(children)}


def make_bookmarks(home: Path) -> None:
    folder = home / "Library" / "Safari"
    folder.mkdir(parents=True)
    root = bookmark_folder(
        "",
        bookmark_folder("BookmarksBar", bookmark("Tides", "http://tides.example.org/?port=7&unit=m")),
        bookmark_folder("BookmarksMenu"),
        bookmark_folder("News", bookmark("Harbour News", "http://news.example.org/"),
                        bookmark_folder("Far", bookmark("海の天気", "http://weather.example.org/"))),
        bookmark("Not in a folder", "http://loose.example.org/"),
    )
    with open(folder / "Bookmarks.plist", "wb") as file:
        plistlib.dump(root, file, fmt=plistlib.FMT_BINARY)


def make_home(home: Path) -> None:
    make_library(home)
    make_photo_library(home)
    make_contacts(home)
    make_bookmarks(home)
    make_video("mandelbrot=size=240x160:rate=25", 0,
               home / "Documents/Caravel/Dropboxes/Photos/Cards/front.png")
    make_video("testsrc2=size=640x360:rate=25", 8, home / "Movies/Sailing Day.avi",
               ("-f", "lavfi", "-i", "sine=frequency=330", "-c:v", "mpeg4", "-c:a", "mp2"))
    make_sound(DROPPED, home / "Documents/Caravel/Dropboxes/Music/Live/Encore.m4a")


PARAMETER_SIZES = {"SAVEDATA_DETAIL": 1024, "SAVEDATA_TITLE": 128, "TITLE": 128, "CATEGORY": 4}


def parameters(values: dict[str, str]) -> bytes:
    """A PARAM.SFO: a header, an entry for each key in order, the keys, the values."""
    entries, keys, data = b"", b"", b""
    for key, value in sorted(values.items()):
        text = value.encode() + b"\0"
        entries += struct.pack("<HBBIII", len(keys), 4, 2, len(text), PARAMETER_SIZES[key], len(data))
        keys += key.encode() + b"\0"
        data += text.ljust(PARAMETER_SIZES[key], b"\0")
    keys += bytes(-len(keys) % 4)
    keys_at = 20 + len(entries)
    return struct.pack("<4sIIII", b"\0PSF", 0x101, keys_at, keys_at + len(keys), len(values)) + \
        entries + keys + data


def make_save(folder: Path, game: str, title: str, detail: str, picture: str, data: bytes) -> None:
    make_video(picture, 0, folder / "ICON0.PNG")
    (folder / "PARAM.SFO").write_bytes(parameters({
        "CATEGORY": "MS", "TITLE": game, "SAVEDATA_TITLE": title, "SAVEDATA_DETAIL": detail}))
    (folder / "DATA.BIN").write_bytes(data)


def make_saves(stick: Path) -> None:
    saves = stick / "PSP/SAVEDATA"
    make_save(saves / "ULUS10001SLOT0", "Lighthouse Keeper", "Slot 1", "Night 3, 12 ships home",
              "gradients=size=144x80:c0=navy:c1=gold", bytes(range(256)) * 4)
    make_save(saves / "UCES00002", "Puzzle Harbour", "", "Level 7",
              "testsrc=size=144x80", b"level 7" * 100)


def make_stick(stick: Path) -> None:
    """A stick that has been in use: other programs' files, and music that nobody selects any more."""
    files = {
        "MEMSTICK.IND": b"",
        "PSP/GAME/PUZZLE/EBOOT.PBP": b"\0PBP" + bytes(2044),
        "PSP/MUSIC/Old Record/Gone.mp3": b"ID3\3" + bytes(4092),
        "PSP/MUSIC/.DS_Store": b"\0\0\0\1Bud1" + bytes(248),
        "PSP/PHOTO/Old Album/gone.jpg": b"\xff\xd8" + bytes(1022),
    }
    for name, content in files.items():
        path = stick / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)
    (stick / "PSP/MUSIC/Empty").mkdir()
    make_saves(stick)


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("home", type=Path, help="the home folder to fill")
    parser.add_argument("stick", type=Path, help="the stick's folder to fill")
    options = parser.parse_args()
    try:
        make_home(options.home.absolute())
        make_stick(options.stick)
    except (OSError, subprocess.CalledProcessError) as error:
        print(f"make_sample.py: {error}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
