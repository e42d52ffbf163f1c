#!/usr/bin/env python3
"""Writes the seeds that are no text, or are many alike, into the folder "corpus" beside it."""

import pathlib
import plistlib
import struct
import zlib

CORPUS = pathlib.Path(__file__).resolve().parent / "corpus"


def write(target, name, contents):
    path = CORPUS / target / name
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(contents if isinstance(contents, bytes) else contents.encode())


def psf(entries):
    """entries: (key, type, data, length)"""
    keys = data = table = b""
    for key, kind, value, length in entries:
        table += struct.pack("<HBBIII", len(keys), 4, kind, length, len(value), len(data))
        keys += key + b"\0"
        data += value
    start = 20 + len(table)
    return b"\0PSF\1\1\0\0" + struct.pack("<III", start, start + len(keys), len(entries)) + \
        table + keys + data


def archive(start, version, code, number):
    return b"\x04\x0b" + start + version + b"\x84\x01@\x84\x84\x84\x08NSNumber\0" \
        b"\x84\x84\x07NSValue\0\x84\x84\x08NSObject\0\x85\x84\x01*\x84\x84\x01" + code + \
        b"\x97" + number + b"\x86"


def png():
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + \
            struct.pack(">I", zlib.crc32(kind + data))
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", 2, 2, 8, 2, 0, 0, 0)) + \
        chunk(b"IDAT", zlib.compress(b"\0\1\2\3\4\5\6" * 2)) + chunk(b"IEND", b"")


LEAF = {"WebBookmarkType": "WebBookmarkTypeLeaf", "URLString": "http://example.org/",
        "URIDictionary": {"title": "Example"}}
SAFARI = {"Children": [{"WebBookmarkType": "WebBookmarkTypeList", "Title": "BookmarksBar",
                        "Children": [LEAF, {"WebBookmarkType": "WebBookmarkTypeList",
                                            "Children": [LEAF]}]}]}
CAMINO = {"Children": [{"Title": "News", "Children": [
    {"Title": "Example", "URL": "http://example.org/"},
    {"FolderType": 1, "Children": [{"URL": "http://example.org/2"}]}]}]}
MUSIC = {"Tracks": {"1": {"Track ID": 1, "Name": "Song", "Artist": "Someone", "Album": "Record",
                          "Kind": "MPEG audio file", "Track Type": "File", "Track Number": 3,
                          "Disc Number": 1, "Location": "file://localhost/music/Song.mp3"}},
         "Playlists": [{"Name": "Library", "Master": True, "Playlist Items": [{"Track ID": 1}]},
                       {"Name": "Smart", "Smart Info": b"\0\1", "Playlist Items": []}]}
PHOTOS = {"List of Albums": [{"AlbumName": "Holidays", "Album Type": "Regular",
                              "KeyList": ["1", "2"]},
                             {"AlbumName": "Library", "Master": True, "KeyList": ["1"]}],
          "Master Image List": {"1": {"Caption": "Beach", "ImagePath": "/pictures/beach.jpg"}}}
VALUES = {"text": "a & <b> \u00e9", "number": -5, "large": 2 ** 63 + 1, "real": 1.5, "yes": True,
          "data": b"\0\1\2", "list": ["x", {"y": []}]}


def lists(target, **values):
    for name, value in values.items():
        write(target, name + ".plist", plistlib.dumps(value))
        write(target, name + ".bplist", plistlib.dumps(value, fmt=plistlib.FMT_BINARY))


for each in ("PropertyList", "PropertyListReader"):
    lists(each, values=VALUES, strings=["one", "two"], text="only")
lists("Bookmarks", safari=SAFARI, camino=CAMINO)
lists("Libraries", music=MUSIC, photos=PHOTOS)
write("PSF", "save", psf([(b"TITLE", 2, b"Game\0\0\0\0", 5), (b"LEVEL", 4, b"\7\0\0\0", 4),
                          (b"FILES", 0, b"\1\2\3\4", 4), (b"LONG", 2, b"x" * 600, 600)]))
write("PSF", "empty", psf([]))
write("NumberArchive", "little", archive(b"streamtyped", b"\x81\xe8\x03", b"Q", b"\x81\0\x40"))
write("NumberArchive", "big", archive(b"typedstream", b"\x81\x03\xe8", b"q",
                                      b"\x87\0\0\0\1\0\0\0\0"))
write("NumberArchive", "char", archive(b"streamtyped", b"\x81\xe8\x03", b"C", b"\x90"))
write("ContactPicture", "small.png", png())
write("ContactPicture", "small.ppm", "P3 2 1 255 0 0 0 255 255 255\n")
write("ContactPicture", "small.xpm", '/* XPM */\nstatic char *x[] = {"1 1 1 1","a c #fff","a"};\n')
write("ConversionProgress", "clock", b"1Duration: 00:10:05.2, start: 0.0\nOutput #0\0"
      b"frame=  150 fps=30 q=2.0\0frame= 9000 q=1")
write("ConversionProgress", "movinfo", b"0Duration: x MOVINFO: 6000, 1, 2, 600 :MOVINFO Output\0"
      b"frame=75 q=0\0frame=-1 q=0")
# Numbers are taken from the end of the input: the preference, whether a stick is there, then each
# call's method and arguments, and whether to wait for what it has started. Before a run comes the
# number of its pause in which the next call is made, or 0.
TEXT, MAP = (0, 1), (0, 1, 0, 0, 1)  # a text of the table, and a dictionary with one as identifier
CALLS = {"select-movies": (30, 0, 1, 1, 8), "add-movies": (32, 0, 1, 1, 4),
         "remove-movie": (33, *MAP, 8), "rename-movie": (34, *MAP, 8, *TEXT, 6),
         "backups-of": (38, *TEXT, 10), "restore": (39, *TEXT, 11), "delete": (40, *TEXT, 11),
         "sync": (4, *MAP, 5, 1, 0), "cancel": (4, *MAP, 5, 1, 20, 4, 0, 1, 3, 0, 1, 5, 0),
         "select-backups": (36, 0, 1, 1, 10),
         # The same with paths that lead out.
         "remove-movie-out": (33, *MAP, 9), "rename-movie-out": (34, *MAP, 8, *TEXT, 15),
         "backups-of-out": (38, *TEXT, 13), "restore-out": (39, *TEXT, 16),
         "delete-out": (40, *TEXT, 16)}
for name, call in CALLS.items():
    write("FrontEndProtocol", name, bytes(reversed((0, 1, *call, 1, 35, 1))))
# The same for values of any type: the method, three times 0 for a call as it should be, the arguments,
# and the byte order. The texts are "title", "label", "clicked" and "Cancel Sync", the item the first.
TITLE, LABEL, CLICKED, CANCEL, ITEM = (1, 1), (1, 5), (1, 2), (1, 8), (1, 3)
MAP = (2, *TITLE, 0, 9, *CANCEL, *LABEL, 2, 0, 4, 1, *ITEM)  # a text and a list of numbers
EVENT = (*ITEM, *CLICKED, 0, 4, *ITEM, 0, 0, 0, 9)
ARGUMENTS = {"bool": (0, 1), "int": (1, *ITEM), "uint": (2, 0, 0, 0, 7), "long": (3, *range(8)),
             "real": (4, *range(8)), "text": (5, *TITLE), "texts": (6, 2, *TITLE, *LABEL),
             "map": (7, *MAP), "rows": (8, 2, *MAP, *MAP), "path": (9, 1, 0),
             "two": (10, *MAP, *TITLE), "none": (11,), "oneway": (12, *MAP),
             "layout": (13, *ITEM, *ITEM, 0), "properties": (14, 1, *ITEM, 1, *LABEL),
             "property": (15, *ITEM, *LABEL), "event": (16, *EVENT),
             "events": (17, 2, *EVENT, *EVENT), "show": (18, *ITEM), "show-group": (19, 1, *ITEM)}
for name, (method, *values) in ARGUMENTS.items():
    write("BusArguments", name, bytes(reversed((method, 0, 0, 0, *values, 0))))
