#!/usr/bin/env python3
"""Holds the translation catalogues against the texts that the sources look up."""

import re
import sys
import xml.etree.ElementTree as ElementTree
from collections.abc import Iterator
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
CATALOGUES = ROOT / "resources" / "translations"
DESKTOP = ROOT / "resources" / "desktop"
FOLDERS = ("app", "cli", "frontend", "modules", "platform", "protocol", "sync", "util", "window")
LANGUAGES = {"de", "en", "es", "fr", "ja"}

TOKEN = re.compile(
    r"""(?P<skipped>\s+|//[^\n]*|/\*.*?\*/)
      | (?P<raw>(?:u8|[uUL])?R"(?P<fence>[^(\s]*)\((?P<verbatim>.*?)\)(?P=fence)")
      | (?P<string>(?:u8|[uUL])?"(?P<escaped>(?:\\.|[^"\\\n])*)")
      | (?P<other>'(?:\\.|[^'\\\n])+' | \d(?:'?[\w.])* | \w+ | .)""",
    re.VERBOSE | re.DOTALL,
)
ESCAPE = re.compile(r"\\(?:x([0-9a-fA-F]+)|u([0-9a-fA-F]{4})|U([0-9a-fA-F]{8})|([0-7]{1,3})|(.))")
NAMED_ESCAPES = {"a": "\a", "b": "\b", "f": "\f", "n": "\n", "r": "\r", "t": "\t", "v": "\v"}

# Places for values: they are filled in order, by what the program knows and not by their names.
PLACEHOLDER = re.compile(r"%(?:@|%|[0-9.]*[a-zA-Z])")


def unescaped(literal: str) -> str:
    def character(escape: re.Match) -> str:
        hexadecimal = escape[1] or escape[2] or escape[3]
        if hexadecimal:
            return chr(int(hexadecimal, 16))
        return chr(int(escape[4], 8)) if escape[4] else NAMED_ESCAPES.get(escape[5], escape[5])

    return ESCAPE.sub(character, literal)


def tokens(source: str) -> list[tuple[int, str, str | None]]:
    """Line, text, and for a string literal what it says; adjacent literals are one."""
    found: list[tuple[int, str, str | None]] = []
    for match in TOKEN.finditer(source):
        if match["skipped"]:
            continue
        value = match["verbatim"] if match["raw"] else None
        if match["string"]:
            value = unescaped(match["escaped"])
        if value is not None and found and found[-1][2] is not None:
            line, text, before = found.pop()
            found.append((line, text + match[0], before + value))
        else:
            found.append((source.count("\n", 0, match.start()) + 1, match[0], value))
    return found


def arguments(source: list, opening: int) -> list:
    """The tokens between the parenthesis at that index and the one that closes it."""
    depth = 0
    for index in range(opening, len(source)):
        depth += {"(": 1, ")": -1}.get(source[index][1], 0)
        if depth == 0:
            return source[opening + 1 : index]
    return source[opening + 1 :]


def calls(source: list) -> Iterator[tuple[int, str, list]]:
    for index in range(len(source) - 1):
        line, name, _ = source[index]
        if name in ("localized", "QT_TRANSLATE_NOOP") and source[index + 1][1] == "(":
            yield line, name, arguments(source, index + 1)


def texts_of_file(path: Path, place: str, problems: list[str]) -> dict[str, str]:
    """The texts that one source looks up, and where; complains of one that shows none of its own."""
    found: dict[str, str] = {}
    hidden = []
    for line, name, parts in calls(tokens(path.read_text(encoding="utf-8"))):
        literals = [value for _, _, value in parts if value is not None]
        if name == "QT_TRANSLATE_NOOP":
            if len(literals) != 2 or literals[0]:
                problems.append(f'{place}:{line}: QT_TRANSLATE_NOOP takes "" and one text')
            literals = literals[1:]
        elif not literals and "char" not in (text for _, text, _ in parts):
            hidden.append(line)
        for text in literals:
            found.setdefault(text, f"{place}:{line}")
    if hidden and not found:
        problems.append(
            f"{place}:{hidden[0]}: localized() of texts that stand elsewhere: keep them in this"
            " file, marked with QT_TRANSLATE_NOOP"
        )
    return found


def texts_of_sources(problems: list[str]) -> dict[str, str]:
    found: dict[str, str] = {}
    for folder in FOLDERS:
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix in (".cpp", ".h"):
                place = path.relative_to(ROOT).as_posix()
                for text, where in texts_of_file(path, place, problems).items():
                    found.setdefault(text, where)
    return found


def quoted(text: str) -> str:
    return '"' + text.replace("\n", "\\n") + '"'


def ends_open(text: str) -> bool:
    return text.endswith(("...", "…"))


def outer_blanks(text: str) -> tuple[str, str]:
    return text[: len(text) - len(text.lstrip())], text[len(text.rstrip()) :]


def faults(source: str, translation: str) -> Iterator[str]:
    if not translation.strip():
        yield "is empty"
        return
    if PLACEHOLDER.findall(source) != PLACEHOLDER.findall(translation):
        yield f"has other places for values: {quoted(translation)}"
    if outer_blanks(source) != outer_blanks(translation):
        yield f"begins or ends with other blanks: {quoted(translation)}"
    if ends_open(source) != ends_open(translation):
        yield f'ends with "..." in one language only: {quoted(translation)}'


def message_faults(message: ElementTree.Element) -> Iterator[str]:
    translation = message.find("translation")
    if message.find("comment") is not None or message.get("numerus") == "yes":
        yield "has a comment or plural forms, with which no text is looked up"
    if translation is None:
        yield "has no translation"
        return
    if translation.get("type"):
        yield f"is {translation.get('type')}"
    yield from faults(message.findtext("source", ""), "".join(translation.itertext()))


def check_catalogue(path: Path, used: dict[str, str]) -> Iterator[str]:
    try:
        root = ElementTree.parse(path).getroot()
    except ElementTree.ParseError as error:
        yield f"can't be read: {error}"
        return
    if root.get("language") != path.stem.removeprefix("caravel_"):
        yield f"is marked as language {root.get('language')}"
    if root.get("language") == "en":
        if root.find("context") is not None:
            yield "holds texts: the English ones are those in the sources"
        return
    if [name.text for name in root.iterfind("context/name")] != [None]:
        yield "has more than one context, or one with a name: nothing in it is found then"
    known: set[str] = set()
    for message in root.iter("message"):
        source = message.findtext("source", "")
        if source in known:
            yield f"{quoted(source)} is there twice"
        known.add(source)
        for fault in message_faults(message):
            yield f"{quoted(source)} {fault}"
    for text in used.keys() - known:
        yield f"lacks {quoted(text)} of {used[text]}"
    for text in known - used.keys():
        yield f"{quoted(text)} is used by no source"


def unevenly_translated() -> Iterator[str]:
    """The desktop's own files: what is in one language there is in each."""
    entry = DESKTOP / "org.caravel.Caravel.desktop"
    metadata = DESKTOP / "org.caravel.Caravel.metainfo.xml.in"
    for path, pattern in [
        (entry, r"^(\w+)\[(\w+)\]="),
        (metadata, r'<(\w+) xml:lang="(\w+)"'),
    ]:
        found = re.findall(pattern, path.read_text(), re.MULTILINE)
        for name in sorted({name for name, _ in found}):
            counts = {language: found.count((name, language)) for language in LANGUAGES - {"en"}}
            for language in sorted(counts):
                if counts[language] < max(counts.values()):
                    yield f"{path.name}: lacks {name} in {language}"


def main() -> int:
    problems: list[str] = []
    used = texts_of_sources(problems)
    catalogues = sorted(CATALOGUES.glob("*.ts"))
    absent = LANGUAGES - {path.stem.removeprefix("caravel_") for path in catalogues}
    problems += [f"caravel_{language}.ts is missing" for language in sorted(absent)]
    for path in catalogues:
        problems += [f"{path.name}: {problem}" for problem in sorted(check_catalogue(path, used))]
    problems += unevenly_translated()
    for problem in problems:
        print(problem, file=sys.stderr)
    if not problems:
        print(f"Translations: {len(used)} texts in {len(catalogues)} catalogues are in order")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
