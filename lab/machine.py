#!/usr/bin/env python3
"""Plays one story in a virtual machine, and does with its hardware what the story asks for.

machine.py STORY FOLDER, with LAB_KERNEL, LAB_INITRD, LAB_PROJECT and what else begins with LAB_ in the
environment, which the guest sees. FOLDER takes the disks and the log. Prints a line for each scenario:
name, seconds, outcome, reason, with tabs between."""

import json
import os
import socket
import subprocess
import sys
import threading
import time
from pathlib import Path

DISK_BYTES = 8 << 30  # sparse


class Machine:
    def __init__(self, story: str, folder: Path):
        self.story, self.folder = story, folder
        self.boots, self.plugged, self.scenario = 0, 0, ""
        self.limit = float(os.environ.get("LAB_LIMIT", "3600"))

    def disk(self, name: str) -> str:
        path = self.folder / f"{name}.img"
        if not path.exists():
            path.touch()
            os.truncate(path, DISK_BYTES)
        return str(path)

    def boot(self) -> None:
        self.boots += 1
        said = {key: value for key, value in os.environ.items() if key.startswith("LAB_")}
        said.update(LAB_STORY=self.story, LAB_BOOT=str(self.boots), LAB_SCENARIO=self.scenario)
        words = " ".join(f'{key}="{value}"' for key, value in sorted(said.items()) if value)
        channel = self.folder / "qmp"
        channel.unlink(missing_ok=True)
        self.qemu = subprocess.Popen(
            ["qemu-system-x86_64", "-accel", "tcg,thread=multi", "-cpu", "max", "-m", "2560", "-smp", "2",
             "-display", "none", "-serial", "stdio", "-monitor", "none", "-no-reboot", "-net", "none",
             "-kernel", os.environ["LAB_KERNEL"], "-initrd", os.environ["LAB_INITRD"],
             "-append", f"console=ttyS0 quiet loglevel=1 panic=-1 mitigations=off {words}",
             "-virtfs", "local,path=/,mount_tag=host,security_model=none,readonly=on,multidevs=remap",
             "-drive", f"if=virtio,file={self.disk('home')},format=raw,cache=unsafe",
             "-device", "qemu-xhci,id=usb", "-qmp", f"unix:{channel},server=on,wait=off"],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        self.qmp = self.connect(channel)
        self.ask("qmp_capabilities")

    @staticmethod
    def connect(channel: Path):
        for _ in range(200):
            connection = socket.socket(socket.AF_UNIX)
            try:
                connection.connect(str(channel))
            except OSError:
                time.sleep(0.05)
                continue
            stream = connection.makefile("rw")
            stream.readline()  # the greeting
            return stream
        raise RuntimeError("qemu doesn't answer")

    def ask(self, command: str, **arguments) -> None:
        self.qmp.write(json.dumps({"execute": command, "arguments": arguments}) + "\n")
        self.qmp.flush()
        while True:
            answer = json.loads(self.qmp.readline())
            if "error" in answer:
                raise RuntimeError(f"{command}: {answer['error']['desc']}")
            if "return" in answer:
                return

    # --- What a story asks for

    def plug(self, name: str, *options: str) -> None:
        """Puts the disk of that name in, "readonly", or with limits such as "bps-write=1000000"."""
        self.plugged += 1
        node = f"disk{self.plugged}"
        file = {"driver": "file", "filename": self.disk(name), "locking": "off"}
        disk = {"driver": "raw", "file": file, "read-only": "readonly" in options,
                "cache": {"no-flush": True}}
        limits = {key: int(value) for key, _, value in (option.partition("=") for option in options) if value}
        if limits:
            self.ask("object-add", **{"qom-type": "throttle-group", "id": f"limit{node}", "limits": limits})
            disk = {"driver": "throttle", "throttle-group": f"limit{node}", "file": disk}
        self.ask("blockdev-add", **{"node-name": node, **disk})
        self.ask("device_add", driver="usb-storage", bus="usb.0", drive=node, id=name, serial=name,
                 removable=True)

    def empty_slot(self) -> None:
        self.ask("device_add", driver="usb-bot", bus="usb.0", id="reader", serial="reader")
        self.ask("device_add", driver="scsi-cd", bus="reader.0", id="slot", lun=0)

    def pull(self, name: str) -> None:
        self.ask("device_del", id=name)

    def cut(self) -> None:
        """The power goes, and comes again."""
        self.qemu.kill()
        self.qemu.wait()
        self.boot()

    # --- What it tells

    def play(self) -> None:
        self.boot()
        began = start = time.monotonic()
        alarm = threading.Timer(self.limit, lambda: self.qemu.kill())
        alarm.start()
        with open(self.folder / "log", "w", encoding="utf-8") as log:
            while line := self.qemu.stdout.readline().decode(errors="replace"):
                print(f"{time.monotonic() - start:8.2f} {line.rstrip()}", file=log, flush=True)
                kind, *words = line.strip().split(" ") if line.startswith("lab") else ("",)
                if kind == "lab!":
                    getattr(self, words[0])(*words[1:])
                    if words[0] != "cut":
                        self.qemu.stdin.write(b"done\n")
                        self.qemu.stdin.flush()
                elif kind == "lab:" and words[0] == "begins":
                    self.scenario, began = " ".join(words[1:]), time.monotonic()
                elif kind == "lab:":
                    self.ended(words[0], " ".join(words[1:]), time.monotonic() - began)
        alarm.cancel()
        if self.scenario or start == began:
            self.ended("failed", "the machine ended, or took too long", time.monotonic() - began)

    def ended(self, outcome: str, reason: str, seconds: float) -> None:
        print(f"{self.story} {self.scenario}\t{seconds:.0f}\t{outcome}\t{reason}", flush=True)
        self.scenario = ""


if __name__ == "__main__":
    Machine(sys.argv[1], Path(sys.argv[2])).play()
