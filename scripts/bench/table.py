#!/usr/bin/env python3
"""The benchmarks' medians as a table: ours beside each peer's, what the last release was seen at, and the goal.

Usage: table.py RESULT [--keep]
RESULT is what the benchmarks' program wrote with --benchmark_out. --keep makes it the last release's
figures, in bench/figures.tsv; goals stay, and rows that weren't measured.
"""

import csv
import json
import re
import sys
from pathlib import Path

FIGURES = Path(__file__).resolve().parents[2] / "bench/figures.tsv"
FIELDS = ["what", "beside", "us", "peer", "goal"]
# What the library adds to a benchmark's name.
SUFFIX = re.compile(r"(/(iterations|repeats|min_time|threads):[^/]*|/(manual|real|process)_time)*$")
MILLISECONDS = {"ns": 1e-6, "us": 1e-3, "ms": 1, "s": 1e3}
LOSS = 1.15  # below that two runs of one build differ as well

Rows = dict[tuple[str, str], dict]


def medians(result: Path) -> Rows:
    ours: dict[str, float] = {}
    peers: dict[tuple[str, str], float] = {}
    for run in json.loads(result.read_text())["benchmarks"]:
        if run.get("aggregate_name") != "median":
            continue
        what, who = SUFFIX.sub("", run["run_name"]).split("/", 1)
        time = run["real_time"] * MILLISECONDS[run["time_unit"]]
        if who.startswith("peer: "):
            peers[what, who.removeprefix("peer: ")] = time
        else:
            ours[what] = time
    rows = {key: {"us": ours[key[0]], "peer": time} for key, time in peers.items() if key[0] in ours}
    alone = ours.keys() - {what for what, _ in rows}
    return rows | {(what, ""): {"us": ours[what], "peer": 0} for what in alone}


def figures() -> Rows:
    with FIGURES.open(newline="") as file:
        rows = csv.DictReader(file, delimiter="\t")
        return {
            (row["what"], row["beside"]): {name: float(row[name] or 0) for name in FIELDS[2:]}
            for row in rows
        }


def ratio(row: dict) -> float:
    """Without a peer the time itself."""
    return row["us"] / row["peer"] if row.get("peer") else row.get("us", 0)


def number(value: float) -> str:
    return f"{value:.2f}" if value else ""


def show(rows: Rows, last: Rows) -> None:
    print(f"\n{'medians':40} {'beside':28} {'us (ms)':>9} {'peer':>9} {'ratio':>6} {'last':>6} {'goal':>5}")
    for key in sorted(rows):
        now, before = ratio(rows[key]), ratio(last.get(key, {}))
        goal = last.get(key, {}).get("goal", 0)
        notes = ["slower"] if before and now > LOSS * before else []
        notes += ["missed"] if goal and now > goal else []
        print(
            f"{key[0]:40} {key[1]:28} {rows[key]['us']:9.1f} {rows[key]['peer']:9.1f} {number(now):>6} "
            f"{number(before):>6} {number(goal):>5} {', '.join(notes)}".rstrip()
        )


def keep(rows: Rows, last: Rows) -> None:
    with FIGURES.open("w", newline="") as file:
        table = csv.writer(file, delimiter="\t", lineterminator="\n")
        table.writerow(FIELDS)
        for key in sorted(rows.keys() | last.keys()):
            row = {"goal": 0} | last.get(key, {"us": 0, "peer": 0}) | rows.get(key, {})
            table.writerow([*key, *(f"{row[name]:.4g}" if row[name] else "" for name in FIELDS[2:])])


def main() -> None:
    rows, last = medians(Path(sys.argv[1])), figures()
    show(rows, last)
    if "--keep" in sys.argv:
        keep(rows, last)


if __name__ == "__main__":
    main()
