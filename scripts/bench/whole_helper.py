#!/usr/bin/env python3
"""The helper as users run it, on a session bus of its own: system calls per item of each kind of run
beside those of the commands that do the same, and resident memory.

Usage: whole_helper.py BUNDLE (the folder Caravel/Contents of a build)
"""

import collections
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

FEW, MANY = 500, 1500  # what differs between the two is the items' own
PER_FOLDER, SIZE = 20, 8192
LINE = re.compile(r"^(\d+) +(?:(\w+)\(|<\.\.\. (\w+) resumed>)")


class Sample:
    """A home with so many songs in its dropbox, and a stick."""

    def __init__(self, songs):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.home = self.folder / "home"
        self.songs = self.home / "Documents/Caravel/Dropboxes/Music"
        self.stick = self.folder / "volumes/STICK"
        for number in range(songs):
            folder = self.songs / f"Some Album {number // PER_FOLDER}"
            folder.mkdir(parents=True, exist_ok=True)
            (folder / f"105. A Song {number}.mp3").write_bytes(bytes([number % 251]) * SIZE)
        self.music = self.stick / "PSP/MUSIC"
        self.music.mkdir(parents=True)
        (self.stick / "MEMSTICK.IND").touch()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.folder)


class Helper:
    def __init__(self, bundle, sample, before=()):
        self.caravel = bundle / "bin/caravel"
        self.environment = {**os.environ, "HOME": str(sample.home)}
        for variable in ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"):
            self.environment.pop(variable, None)
        program = bundle / "Helpers/CaravelHelper/Contents/bin/caravel-helper"
        self.log = open(sample.folder / "log", "w")
        self.process = subprocess.Popen(
            [*before, program, "--volumes-folder", sample.stick.parent],
            env=self.environment, stderr=self.log)
        end = time.monotonic() + 60
        while not self.is_on_bus():  # before that, the command would start another
            if self.process.poll() is not None or time.monotonic() > end:
                sys.exit("whole_helper.py: the helper doesn't start")
            time.sleep(0.1)

    @staticmethod
    def is_on_bus():
        names = subprocess.run(
            ["dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus",
             "/org/freedesktop/DBus", "org.freedesktop.DBus.ListNames"],
            check=True, capture_output=True, text=True).stdout
        return "org.caravel.CaravelHelper_" in names

    def ask(self, *words):
        done = subprocess.run([self.caravel, *words], env=self.environment, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        if done.returncode != 0:
            sys.exit(f"whole_helper.py: caravel {' '.join(words)}: {done.stdout}")

    def memory(self, field):
        text = pathlib.Path(f"/proc/{self.process.pid}/status").read_text()
        return int(re.search(rf"{field}:\s+(\d+)", text)[1]) / 1024

    def quit(self):
        self.process.terminate()
        if self.process.wait(60) != 0:
            sys.exit("whole_helper.py: the helper failed")
        self.log.close()


def calls_by_thread(trace):
    counts = collections.defaultdict(collections.Counter)
    for line in trace.read_text(errors="replace").splitlines():
        found = LINE.match(line)
        if found and found[2]:
            counts[int(found[1])][found[2]] += 1
    return counts


def run_thread(trace):
    """The one that writes the index."""
    return next(int(line.split()[0]) for line in trace.read_text(errors="replace").splitlines()
                if ".MusicSyncIndex.plist.new" in line)


def calls_of_helper(bundle, sample, settings):
    trace = sample.folder / "trace"
    helper = Helper(bundle, sample, ["strace", "-D", "-f", "-o", trace])  # -D: its pid is the helper's
    for setting in settings:
        helper.ask("prefs", *setting)
    helper.ask("sync")
    helper.quit()
    ended = re.compile(rf"^{helper.process.pid} +\+\+\+ exited", re.MULTILINE)  # in columns
    while not ended.search(trace.read_text(errors="replace")):
        time.sleep(0.1)
    counts = calls_by_thread(trace)
    own = counts[run_thread(trace)]
    main = counts[min(counts)]
    return own, main


def calls_of_command(sample, command):
    trace = sample.folder / "trace"
    subprocess.run(["strace", "-f", "-o", trace, *command], check=True)
    return sum(calls_by_thread(trace).values(), collections.Counter())


def rsync(source, sample):
    return ["rsync", "-rt", "--delete", f"{source}/", f"{sample.music}/"]


def measure(bundle, songs):
    """The counters of each kind of run, by (run, whose)."""
    found = {}
    kinds = [("first copy", [("syncOnMount", "no")]), ("nothing to do", []), ("clean-up", [("syncDropboxes", "no")])]
    with Sample(songs) as sample:
        for kind, settings in kinds:
            own, main = calls_of_helper(bundle, sample, settings)
            found[kind, "the run's thread"] = own
            found[kind, "the main thread"] = main
    with Sample(songs) as sample:
        nothing = sample.folder / "nothing"
        nothing.mkdir()
        for kind, source in zip((kind for kind, _ in kinds), (sample.songs, sample.songs, nothing)):
            found[kind, "rsync"] = calls_of_command(sample, rsync(source, sample))
        found["first copy", "cp -r"] = calls_of_command(
            sample, ["cp", "-r", f"{sample.songs}/.", sample.music])
        found["clean-up", "rm -rf"] = calls_of_command(sample, ["rm", "-rf", sample.music])
    return found


def print_calls(bundle):
    few, many = measure(bundle, FEW), measure(bundle, MANY)
    print(f"\nsystem calls per item (strace, from {FEW} to {MANY} songs)")
    for key in sorted(many):
        each = {name: (count - few[key][name]) / (MANY - FEW) for name, count in many[key].items()}
        top = sorted(each.items(), key=lambda pair: -pair[1])[:7]
        text = ", ".join(f"{name} {count:.1f}" for name, count in top if count >= 0.05)
        print(f"{key[0]:14} {key[1]:17} {sum(each.values()):6.1f}  {text}")


def print_memory(bundle, songs=20000):
    with Sample(songs) as sample:
        helper = Helper(bundle, sample)
        time.sleep(2)  # the first estimate
        idle = helper.memory("VmRSS")
        helper.ask("sync")
        peak = helper.memory("VmHWM")
        time.sleep(2)
        after = helper.memory("VmRSS")
        helper.quit()
        print(f"\nresident memory (MiB), {songs:,} songs: idle {idle:.1f}, peak {peak:.1f}, "
              f"after the sync {after:.1f}")
        for command in (rsync(sample.songs, sample),
                        ["rclone", "--config=", "sync", sample.songs, sample.music]):
            shutil.rmtree(sample.music)
            sample.music.mkdir()
            if shutil.which(command[0]):
                print(f"{command[0]}: peak {peak_of(command):.1f}")


def peak_of(command):
    """Of the largest process that the command starts."""
    _, status, usage = os.wait4(subprocess.Popen(command).pid, 0)
    if status != 0:
        sys.exit(f"whole_helper.py: {command[0]} failed")
    return usage.ru_maxrss / 1024


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    bundle = pathlib.Path(sys.argv[1]).resolve()
    print_calls(bundle)
    print_memory(bundle)


if __name__ == "__main__":
    main()
