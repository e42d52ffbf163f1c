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
# What goes over the bus is written as calls, with a value of each type at each method.
VALUES = ["true", "byte 5", "int16 -5", "uint16 5", "-5", "uint32 5", "int64 -5", "uint64 5", "0.5",
          "'x'", "objectpath '/a'", "signature 'as'", "handle 0", "b'x'", "<5>", "['a']", "[1, 2]",
          "@ai []", "@aa{sv} []", "[{'title': <'x'>}, {}]", "{byte 5: 'y'}", "{objectpath '/a': 1}",
          "{-1: {int64 2: <(1, 'x')>}}", "(1, ['x'], {1.5: signature ''})"]
SERVED = {"echoBool": "(true,)", "echoInt": "(-5,)", "echoUInt": "(5,)", "echoLong": "(5,)",
          "echoReal": "(0.5,)", "echoText": "('x',)", "echoTexts": "(['x', ''],)",
          "echoPath": "('/a',)", "takeMap": "({'x': <%s>},)", "takeRows": "([{'x': <%s>}, {}],)",
          "takeTwo": "({'x': <%s>}, 'y')", "takeNone": "()", "hear": "({'x': <%s>},)",
          "GetLayout": "(0, 1, ['label'])", "GetGroupProperties": "([1, 9], @as [])",
          "GetProperty": "(1, 'label')", "Event": "(3, 'clicked', <%s>, 0)",
          "EventGroup": "([(0, 'opened', <%s>, 0), (9, 'x', <1>, 0)],)", "AboutToShow": "(0,)",
          "AboutToShowGroup": "([0, 1, 9],)", "GetAll": "('com.canonical.dbusmenu',)"}
PATHS = ["", ".", "..", "/", "/etc", "Film", "M4V00001", "M4V00001/Film", "M4V00001/../../letter.txt",
         "ULUS10041", "ULUS10041/1000", "ULUS10041/..", "../..", "../letter.txt", "../../letter.txt",
         "../../../letter.txt", "../../../../letter.txt", "../../../../../letter.txt"]
SENT = {"setApplication": "('/%s',)", "ejectPSP": "({'title': <%s>},)", "setIsInteractive": "(true,)",
        "setSelectedMusicIdentifiers": "([%s],)", "setSelectedPhotosIdentifiers": "([%s],)",
        "setSelectedBookmarksIdentifiers": "([%s],)", "addMoviesFromArray": "([%s],)",
        "setSelectedMoviesIdentifiers": "([%s],)", "setSelectedBackupIdentifiers": "([%s],)",
        "renameMovieItem": "({'identifier': <'M4V00001/Film'>}, %s)", "logChanged": "(%s,)",
        "removeMovieItem": "({'identifier': <%s>, 'identifier2': <%s>},)", "moviesItems": "()",
        "backupSubItemsForIdentifier": "(%s,)", "restoreBackupWithIdentifier": "(%s,)",
        "backupItems": "()", "deleteBackupWithIdentifier": "(%s,)", "refreshSyncBytesEstimate": "()",
        "changeStartOnLogin": "()", "syncNow": "({'title': <%s>},)", "stick": "()", "log": "()"}


def calls(target, name, methods, values):
    for method, arguments in methods.items():
        lines = [f"{method} {arguments.replace('%s', value)}" for value in values]
        lines += [f"{method} ({value},)" for value in values]  # of wrong types, most of them
        lines = list(dict.fromkeys(lines + [">" + lines[0], "!" + lines[0]]))
        write(target, f"{method}-{name}", "\n".join(lines) + "\n")


calls("BusArguments", "types", SERVED, VALUES)
calls("FrontEndProtocol", "types", SENT, VALUES)
calls("FrontEndProtocol", "paths", {name: sent for name, sent in SENT.items() if "%s" in sent},
      [f"'{path}'" for path in PATHS])
SYNC, CANCEL = "syncNow (@a{sv} {},)\n", "syncNow ({'title': <'Cancel Sync'>},)\n"
SELECT = "setSelectedBackupIdentifiers (['ULUS10041'],)\nsetSelectedMoviesIdentifiers (['M4V00001'],)\n"
for first in ("", "no stick", "profile"):
    write("FrontEndProtocol", "run " + first, first + "\n" + SELECT + SYNC + CANCEL + SYNC + "\n" +
          "restoreBackupWithIdentifier ('ULUS10041/1000',)\n" + SYNC + "applicationWillQuit ()\n" + SYNC)
