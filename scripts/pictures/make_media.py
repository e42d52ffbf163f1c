#!/usr/bin/env python3
"""Makes the home folder of the guide's pictures (songs with playlists, albums of photos, a browser's bookmarks,
contacts, movies) and a Memory Stick with game saves and with music of its own."""

import json
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parents[1] / "demo"))
import make_sample  # noqa: E402

MEGABYTE = 1 << 20

ALBUMS = {
    "Ada Quill/Slow Mornings": ("Café at Seven", "Second Cup", "Glass Rivers", "Window Seat", "Half Past"),
    "Northbound Trio/Live at the Mill": ("Sawdust", "The Wheel Turns", "Millpond", "Encore"),
    "Paper Lanterns/Harbour Lights": ("Casting Off", "Who’s at the Helm", "Night and Day", "Low Tide", "Home Again"),
    "Paper Lanterns/Far Shores": ("Compass Rose", "Trade Winds", "Landfall"),
    "Tin Roof Orchestra/Rain on Sunday": ("First Drops", "Gutter Song", "Umbrellas", "Clearing Up"),
    "The Verge/Kilometre Stones": ("Milestone", "Hard Shoulder", "Roadside", "Long Way Round", "Last Exit"),
}
PLAYLISTS = {
    "Evening": ("Ada Quill/Slow Mornings", "Tin Roof Orchestra/Rain on Sunday"),
    "Road Trip": ("The Verge/Kilometre Stones", "Paper Lanterns/Far Shores", "Northbound Trio/Live at the Mill"),
    "Running": ("The Verge/Kilometre Stones",),
    "Sunday Morning": ("Ada Quill/Slow Mornings", "Paper Lanterns/Harbour Lights"),
}
PHOTOS = {
    "Garden": ("seagreen", "khaki", 9),
    "Harbour 2025": ("steelblue", "orange", 24),
    "Mountains": ("slategray", "skyblue", 17),
    "Street Fair": ("firebrick", "gold", 31),
    "Winter Walk": ("lightsteelblue", "white", 12),
}
MOVIES = {
    "Lighthouse": ("navy", "orange", 246),
    "Skipping Stones": ("teal", "lavender", 131),
    "The Long Jetty": ("maroon", "khaki", 318),
}
SAVES = (
    ("ULUS10001SLOT0", "Lighthouse Keeper", "Slot 1", "Night 3, 12 ships home", "navy", "gold"),
    ("ULUS10001SLOT1", "Lighthouse Keeper", "Slot 2", "Night 11, 48 ships home", "navy", "tomato"),
    ("UCES00002DATA", "Puzzle Harbour", "", "Level 7", "teal", "lightyellow"),
    ("UCES00417PROFILE", "Regatta Manager", "Season 2", "Third in the league", "darkgreen", "white"),
)


def padded(path: Path, size: int) -> None:
    """To a size that such a file has; what is added takes no room here."""
    with open(path, "r+b") as file:
        file.truncate(size)


def gradient(size: str, first: str, second: str, seed: int = 1) -> str:
    return f"gradients=size={size}:c0={first}:c1={second}:seed={seed}"


def make_music(home: Path) -> None:
    for album, titles in ALBUMS.items():
        artist, record = album.split("/")
        for number, title in enumerate(titles, 1):
            track = make_sample.Track(0, artist, record, title, (0, number), "mp3", 1, (220 + 20 * number,))
            path = home / "Music" / album / f"{number:02} {title}.mp3"
            make_sample.make_sound(track, path)
            padded(path, (3 * MEGABYTE) + number * 437_000)
    for name, albums in PLAYLISTS.items():
        songs = [song.relative_to(home / "Music") for album in albums
                 for song in sorted((home / "Music" / album).iterdir())]
        (home / "Music" / f"{name}.m3u8").write_text("".join(f"{song}\n" for song in songs))


def make_photos(home: Path) -> None:
    for album, (first, second, count) in PHOTOS.items():
        for number in range(1, count + 1):
            path = home / "Pictures" / album / f"IMG_{number:04}.jpg"
            if number == 1:
                make_sample.make_video(gradient("640x480", first, second), 0, path)
                picture = path.read_bytes()
            path.write_bytes(picture)
            padded(path, 2 * MEGABYTE + number * 70_000)


def make_movies(home: Path) -> None:
    for number, (title, (first, second, size)) in enumerate(MOVIES.items(), 1):
        identifier = f"M4V{number:05}"
        folder = home / "Documents/Caravel/Movies" / identifier / title
        jpeg = folder / "thumbnail.jpg"
        make_sample.make_video(gradient("160x120", first, second), 0, jpeg)
        jpeg.rename(folder / f"{identifier}.THM")
        movie = folder / f"{identifier}.MP4"
        movie.touch()
        padded(movie, size * MEGABYTE)
    make_sample.make_video("testsrc2=size=1280x720:rate=25", 180, home / "Videos/Regatta.avi",
                           ("-c:v", "mpeg4", "-q:v", "9"))


def make_bookmarks(home: Path) -> None:
    def folder(name: str, *children: dict) -> dict:
        return {"type": "folder", "name": name, "children": list(children)}

    def page(name: str) -> dict:
        return {"type": "url", "name": name, "url": f"https://{name.lower().replace(' ', '-')}.example.org/"}

    path = home / ".config/chromium/Default/Bookmarks"
    path.parent.mkdir(parents=True)
    roots = {
        "bookmark_bar": folder("Bookmarks bar", page("Tides"), page("Timetables"),
                               folder("News", page("Harbour News"), page("Weather")),
                               folder("Recipes", page("Soups"), page("Bread"), page("Cakes"))),
        "other": folder("Other bookmarks", folder("Games", page("Walkthroughs"))),
        "synced": folder("Mobile bookmarks"),
    }
    path.write_text(json.dumps({"roots": roots, "version": 1}))


def make_home(home: Path) -> None:
    make_music(home)
    make_photos(home)
    make_movies(home)
    make_bookmarks(home)
    make_sample.make_contacts(home)


def make_stick(stick: Path) -> None:
    files = {
        "MEMSTICK.IND": 0,
        "PSP/GAME/PUZZLE/EBOOT.PBP": 38 * MEGABYTE,
        "PSP/MUSIC/Demo Tape/Garage.mp3": 4 * MEGABYTE,
        "PSP/MUSIC/Demo Tape/Kitchen.mp3": 5 * MEGABYTE,
        "PSP/MUSIC/From Sam/Mixtape.mp3": 41 * MEGABYTE,
    }
    for name, size in files.items():
        path = stick / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(bytes(size))
    for name, game, title, detail, first, second in SAVES:
        make_sample.make_save(stick / "PSP/SAVEDATA" / name, game, title, detail,
                              gradient("144x80", first, second), name.encode() * 9000)


def main() -> int:
    try:
        home, stick = map(Path, sys.argv[1:])
    except ValueError:
        print("Usage: make_media.py HOME STICK", file=sys.stderr)
        return 2
    try:
        make_home(home)
        make_stick(stick)
    except (OSError, subprocess.CalledProcessError) as error:
        print(f"make_media.py: {error}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
