#!/usr/bin/env python3
"""Holds the documents against the tree: each file and heading that they link to exists, and each test that
holds a promise; the guide has every setting with its default, and the release is the same everywhere."""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
LINK = re.compile(r"\[[^\]]*\]\(([^)\s]+)\)|\bsrcset=\"([^\"]+)\"|\bsrc=\"([^\"]+)\"")
SETTING = re.compile(r"Setting<(\w+)>\s+\w+\{\s*u\"(\w+)\",\s*([^,}]+)")
TEST = re.compile(r"\bTEST(?:_F|_P)?\((\w+), (\w+)\)")
PROMISED = re.compile(r"`(?:[a-z]+\.(\w+))?\.([A-Z]\w+|\*)`")
ENUM = re.compile(r"enum class (\w+) : \w+ \{(.*?)\}", re.DOTALL)
ENUM_VALUE = re.compile(r"\b(\w+) = (\d+)")


def anchors(document: Path) -> set[str]:
    headings = re.findall(r"^#+ (.*)$", document.read_text(), re.MULTILINE)
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in headings}


def broken_links(document: Path) -> list[str]:
    broken = []
    for match in LINK.finditer(document.read_text()):
        target = next(group for group in match.groups() if group)
        if "://" in target:
            continue
        path, _, anchor = target.partition("#")
        file = document.parent / path if path else document
        if not file.exists() or (anchor and anchor not in anchors(file)):
            broken.append(f"{document.relative_to(ROOT)}: nothing is at {target}")
    return broken


def missing_tests() -> list[str]:
    """Those that the promises name. What begins with a dot goes on with the suite before it."""
    sources = [source for folder in ("tests", "bench") for source in (ROOT / folder).rglob("*.cpp")]
    suites: dict[str, set[str]] = {}
    for suite, test in TEST.findall("".join(source.read_text() for source in sources)):
        suites.setdefault(suite, set()).add(test)
    missing, suite = [], ""
    for named in PROMISED.finditer((ROOT / "docs/reliability.md").read_text()):
        suite = named[1] or suite
        if suite not in suites or named[2] not in {"*", *suites[suite]}:
            missing.append(f"docs/reliability.md: there is no test {suite}.{named[2]}")
    return missing


def defaults() -> dict[str, str]:
    """Of each setting that is no note of the helper's own, as the guide writes it."""
    text = (ROOT / "util/Settings.h").read_text().split("// --- Kept by the helper")[0]
    numbers = {
        f"{enum}::{name}": number
        for enum, body in ENUM.findall(text)
        for name, number in ENUM_VALUE.findall(body)
    }
    found = {}
    for _, key, value in SETTING.findall(text):
        value = value.strip()
        words = {"true": "yes", "false": "no", '""': "empty"}
        found[key] = words.get(value, numbers.get(value, value.replace('"', "`")))
    return found


def wrong_settings() -> list[str]:
    guide = (ROOT / "docs/guide/settings.md").read_text()
    rows = dict(re.findall(r"^\| `(\w+)` \|.*\| (.*) \|$", guide, re.MULTILINE))
    wanted = {key: value for key, value in defaults().items() if key in rows or f"`{key}`" not in guide}
    keys = sorted(wanted.keys() | rows.keys())
    absent = "not there"
    return [
        f"docs/guide/settings.md: the default of {key} is {rows.get(key, absent)}, in util/Settings.h {wanted.get(key, absent)}"
        for key in keys
        if wanted.get(key) != rows.get(key)
    ]


def wrong_release() -> list[str]:
    cmake = (ROOT / "CMakeLists.txt").read_text()
    release = re.search(r"project\(Caravel VERSION ([\d.]+)", cmake)[1]
    build = re.search(r"CARAVEL_BUILD (\d+)", cmake)[1]
    heads = {
        "CHANGELOG.md": r"^## (\S+ \(build \d+\)),",
        "packaging/debian/changelog": r"^caravel \((\S+?)\)",
    }
    wanted = {"CHANGELOG.md": f"{release} (build {build})", "packaging/debian/changelog": release}
    found = {name: re.search(head, (ROOT / name).read_text(), re.MULTILINE)[1] for name, head in heads.items()}
    return [
        f"{name} begins with {found[name]}, and this is {wanted[name]}"
        for name in heads
        if found[name] != wanted[name]
    ]


def main() -> int:
    documents = [*ROOT.glob("*.md"), *ROOT.glob("docs/**/*.md")]
    faults = [fault for document in sorted(documents) for fault in broken_links(document)]
    faults += missing_tests() + wrong_settings() + wrong_release()
    print("\n".join(faults) or f"Documents: {len(documents)} files are in order")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
