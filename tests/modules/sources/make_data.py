#!/usr/bin/env python3
"""Makes the homes beside this file: what Rhythmbox, Firefox and Chromium themselves write.

Runs each under Xvfb and a bus of its own, gives it songs or bookmarks, and keeps of what it wrote
what the helper reads, compressed as qUncompress() takes it. Home's path becomes "/HOME". Debian's
packages: rhythmbox, firefox-esr, chromium, xvfb, dbus, ffmpeg.

What lies there was written by Rhythmbox 3.4.6, Firefox ESR 153.7.0, Chromium 156.0.8078.79 and
ffmpeg 5.1.9.
"""

import json
import pathlib
import shutil
import struct
import subprocess
import sys
import tempfile
import time
import zlib

HERE = pathlib.Path(__file__).resolve().parent


def keep(name, contents):
    packed = struct.pack('>I', len(contents)) + zlib.compress(contents, 9)
    (HERE / (name + '.z')).write_bytes(packed)
    print(f'{name}: {len(contents)} bytes, {len(packed)} packed')


def environment(home):
    keys = {'HOME': str(home), 'PATH': '/usr/sbin:/usr/bin:/sbin:/bin', 'LANG': 'C.UTF-8',
            'XDG_RUNTIME_DIR': str(home / 'run'), 'GSETTINGS_BACKEND': 'keyfile'}
    (home / 'run').mkdir(mode=0o700, exist_ok=True)
    return keys


def start(home, *command):
    """The program on a screen and a bus of its own; the caller ends it."""
    return subprocess.Popen(['xvfb-run', '-a', 'dbus-run-session', '--', *command],
                            env=environment(home), start_new_session=True,
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def wait_for(what, limit=60):
    end = time.monotonic() + limit
    while not what():
        if time.monotonic() > end:
            sys.exit(f'nothing came of it in {limit} s')
        time.sleep(0.5)


def end(process):
    subprocess.run(['kill', '--', f'-{process.pid}'], check=False)
    process.wait()


def run(home, *command):
    subprocess.run(command, env=environment(home), check=True, stdout=subprocess.DEVNULL)


# --- Songs, as ffmpeg tags them

def make_song(path, *encoder, **tags):
    path.parent.mkdir(parents=True, exist_ok=True)
    options = [part for key, value in tags.items() for part in ('-metadata', f'{key}={value}')]
    subprocess.run(['ffmpeg', '-v', 'error', '-f', 'lavfi', '-i', 'sine=duration=1', '-b:a', '32k',
                    *encoder, *options, '-y', str(path)], check=True)


def make_songs(home):
    tags = {'artist': 'Bänd', 'album': 'Récord', 'disc': '2/3', 'track': '7/9'}
    short = ('-t', '0.05')
    make_song(home / 'tagged.mp3', *short, title='Sông', **tags)
    make_song(home / 'tagged.m4a', *short, title='Four', **tags)
    make_song(home / 'lossless.m4a', *short, '-c:a', 'alac', title='Lossless', **tags)
    make_song(home / 'tagged.wav', *short, title='Wave', **tags)
    make_song(home / 'tagged.aac', *short, '-write_id3v2', '1', title='Raw', **tags)
    for path in sorted(home.glob('*.*')):
        keep(path.name, path.read_bytes())


# --- Rhythmbox


RHYTHMBOX = '''
set -e
mkdir -p "$HOME/.config"
echo 'XDG_MUSIC_DIR="$HOME/Music"' >"$HOME/.config/user-dirs.dirs"
rhythmbox &
sleep 6
gsettings set org.gnome.rhythmbox.rhythmdb locations "['file://$HOME/Music']"
gsettings set org.gnome.rhythmbox.rhythmdb monitor-library true
sleep 8
manager() {
    gdbus call --session --dest org.gnome.Rhythmbox3 --object-path /org/gnome/Rhythmbox3/PlaylistManager \\
        --method "org.gnome.Rhythmbox3.PlaylistManager.$@"
}
manager CreatePlaylist Empty
sleep 3
rhythmbox-client --quit
wait
'''


# Taken over by the program, which writes all of its lists anew when one is made.
LISTS = '''<?xml version="1.0"?>
<rhythmdb-playlists>
  <playlist name="Träume &amp; &lt;More&gt;" type="static">
    <location>HOME/Music/B%C3%A4nd%20&amp;%20Co/2%20%23two.mp3</location>
    <location>HOME/Music/Other/3.m4a</location>
    <location>http://radio.example/stream.mp3</location>
    <location>HOME/Music/B%C3%A4nd%20&amp;%20Co/1.mp3</location>
  </playlist>
  <playlist name="Rock or Two" type="automatic" sort-key="Title" sort-direction="1"
            limit-count="2">
    <conjunction>
      <equals prop="type">song</equals>
      <subquery><conjunction>
        <like prop="genre-folded">rock</like><greater prop="track-number">2</greater>
        <disjunction/>
        <prefix prop="title-folded">on</prefix>
      </conjunction></subquery>
    </conjunction>
  </playlist>
  <playlist name="Noisy" type="automatic" sort-key="Artist" sort-direction="0" limit-size="100">
    <conjunction>
      <equals prop="type">song</equals>
      <subquery><conjunction><greater prop="bitrate">500</greater></conjunction></subquery>
    </conjunction>
  </playlist>
</rhythmdb-playlists>
'''


def make_rhythmbox(home):
    own = home / '.local/share/rhythmbox'
    own.mkdir(parents=True)
    (own / 'playlists.xml').write_text(LISTS.replace('HOME', f'file://{home}'))
    band = home / 'Music' / 'Bänd & Co'
    make_song(band / '1.mp3', title='Öne', artist='Bänd & Co', album='Récord', track='1/2',
              disc='1/2', genre='Rock')
    make_song(band / '2 #two.mp3', title='Two <2>', artist='Bänd & Co', album='Récord',
              track='2/2', disc='1/2', genre='Rock')
    make_song(home / 'Music' / 'Other' / '3.m4a', title='Three', artist='Other', genre='Jazz')
    (home / 'Music' / 'Other' / 'notes.mp3').write_text('no music at all\n')
    end_of = start(home, 'bash', '-c', RHYTHMBOX)
    end_of.wait(timeout=120)
    for name in ('rhythmdb.xml', 'playlists.xml'):
        contents = (own / name).read_bytes()
        keep(name, contents.replace(str(home).encode(), b'/HOME'))


# --- Firefox

PAGE = '''<!DOCTYPE NETSCAPE-Bookmark-file-1>
<META HTTP-EQUIV="Content-Type" CONTENT="text/html; charset=UTF-8">
<TITLE>Bookmarks</TITLE><H1>Bookmarks Menu</H1>
<DL><p>
    <DT><A HREF="https://menu.example/?a=1&amp;b=2">Menü</A>
    <DT><H3>News</H3>
    <DL><p>
        <DT><A HREF="https://news.example/">Daily &lt;News&gt;</A>
        <DT><H3>Local</H3>
        <DL><p><DT><A HREF="https://local.example/">Local</A></DL><p>
    </DL><p>
    <DT><H3 PERSONAL_TOOLBAR_FOLDER="true">Bookmarks Toolbar</H3>
    <DL><p><DT><A HREF="https://tool.example/">Tool</A></DL><p>
    <DT><H3 UNFILED_BOOKMARKS_FOLDER="true">Other Bookmarks</H3>
    <DL><p><DT><A HREF="https://other.example/">Other</A></DL><p>
</DL><p>
'''


def make_firefox(home):
    program = ('firefox-esr', '--headless', 'about:blank')

    def databases():
        return [path for root in ('.mozilla', '.config/mozilla')
                for path in (home / root).glob('firefox/*/places.sqlite')]

    process = start(home, *program)
    wait_for(databases)
    time.sleep(5)
    end(process)
    profile = databases()[0].parent
    (profile / 'bookmarks.html').write_text(PAGE)
    (profile / 'user.js').write_text('user_pref("browser.places.importBookmarksHTML", true);\n')
    process = start(home, *program)
    time.sleep(15)
    # As it lies there while the program runs: the newest rows are in the log.
    keep('places.sqlite', (profile / 'places.sqlite').read_bytes())
    keep('places.sqlite-wal', (profile / 'places.sqlite-wal').read_bytes())
    end(process)
    root = profile.parent
    for name in ('profiles.ini', 'installs.ini'):
        keep(name, (root / name).read_bytes().replace(profile.name.encode(), b'PROFILE'))


# --- Chromium

def node(name, **more):
    return {'name': name, 'type': 'folder' if 'children' in more else 'url', **more}


def make_chromium(home):
    bar = [node('Bär', url='https://bar.example/?a=1&b=2'),
           node('News', children=[node('Daily "News"', url='https://news.example/'),
                                  node('Local', children=[node('', url='https://local.example/')])])]
    roots = {'bookmark_bar': node('Bookmarks bar', children=bar),
             'other': node('Other bookmarks',
                           children=[node('Other', url='https://other.example/')]),
             'synced': node('Mobile bookmarks', children=[])}
    path = home / '.config/chromium/Default/Bookmarks'
    path.parent.mkdir(parents=True)
    path.write_text(json.dumps({'roots': roots, 'version': 1}))
    process = start(home, 'chromium', '--no-sandbox', '--no-first-run', '--disable-gpu', '--password-store=basic',
                    'about:blank')
    wait_for(lambda: b'checksum' in path.read_bytes())
    time.sleep(2)
    contents = path.read_bytes()
    end(process)
    keep('Bookmarks', contents)


def main():
    makers = {'songs': make_songs, 'rhythmbox': make_rhythmbox, 'firefox': make_firefox, 'chromium': make_chromium}
    for name in sys.argv[1:] or makers:
        home = pathlib.Path(tempfile.mkdtemp(prefix=f'caravel-{name}-'))
        try:
            makers[name](home)
        finally:
            shutil.rmtree(home, ignore_errors=True)


if __name__ == '__main__':
    main()
