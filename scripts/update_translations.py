#!/usr/bin/env python3
"""Keeps the translation tables in step with the texts of the program.

Collects every literal in localized("..."), localizedAs("...", "meaning") and QT_TRANSLATE_NOOP("Zelvor", "...") under
src/ and the names of resources/MainMenu.plist, and merges them into each resources/translations/zelvor_*.ts: sorted by text, with the
translations that are there; a new text comes in empty, a vanished one goes.

    scripts/update_translations.py            merges, and lists what still wants a translation
    scripts/update_translations.py --check    changes nothing; exit code 1 when a table is out of date, a text has no
                                              finished translation, or a translation differs from its text in
                                              placeholders, ends of lines or the blanks around it
"""

import plistlib
import re
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path
from xml.sax.saxutils import escape

CONTEXT = "Zelvor"
ROOT = Path(__file__).resolve().parent.parent
TABLES = ROOT / "resources" / "translations"

# Comments go, string and character literals stay whole.
TOKEN = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:[^"\\\n]|\\.)*"|\'(?:[^\'\\\n]|\\.)*\'', re.DOTALL)
LITERALS = r'((?:"(?:[^"\\\n]|\\.)*"\s*)+)'
CALL = re.compile(r'\blocalized(?:As)?\(\s*(?=[^\s"])([^)]{0,80})')
TEXT = re.compile(r"\blocalized\(\s*" + LITERALS + r"\)")
MEANT = re.compile(r"\blocalizedAs\(\s*" + LITERALS + r",\s*" + LITERALS + r"\)")
MARK = re.compile(r'\bQT_TRANSLATE_NOOP\(\s*"' + CONTEXT + r'"\s*,\s*' + LITERALS + r"\)")
ESCAPE = re.compile(r"\\(n|t|\"|'|\\|u[0-9a-fA-F]{4}|x[0-9a-fA-F]{2})")
PLACEHOLDER = re.compile(r"%(?:L?\d+|n)")

# localized() with something else than a literal is right where the text is marked elsewhere: in a table beside the
# call, or as a name of the menu.
NAMES = {"const char* english", "entry.name.toUtf8"}
PLAIN = ""  # the meaning of a text that has one only


def without_comments(code):
    return TOKEN.sub(lambda token: " " if token[0].startswith("/") else token[0], code)


def joined(literals):
    """The text of adjacent literals, as the compiler reads them."""
    simple = {"n": "\n", "t": "\t"}

    def unescaped(match):
        word = match[1]
        return chr(int(word[1:], 16)) if len(word) > 1 else simple.get(word, word)

    parts = re.findall(r'"((?:[^"\\\n]|\\.)*)"', literals)
    return "".join(ESCAPE.sub(unescaped, part) for part in parts)


def collect():
    """The texts of the program, each with its meaning, and what is handed to localized() without being collected."""
    texts, loose = set(), []
    for path in sorted((ROOT / "src").rglob("*")):
        if path.suffix not in (".cpp", ".h"):
            continue
        code = without_comments(path.read_text(encoding="utf-8"))
        texts.update((joined(match[1]), PLAIN) for match in TEXT.finditer(code))
        texts.update((joined(match[1]), joined(match[2])) for match in MEANT.finditer(code))
        marked = [(joined(match[1]), PLAIN) for match in MARK.finditer(code)]
        texts.update(marked)
        for match in CALL.finditer(code):
            if not marked and not any(name in match[1] for name in NAMES):
                loose.append(f"{path.relative_to(ROOT)}: localized({match[1].strip()}")
    menu = plistlib.loads((ROOT / "resources" / "MainMenu.plist").read_bytes())
    texts.update((item["name"], PLAIN) for item in menu["items"])
    texts.discard(("", PLAIN))
    return texts, loose


def read_table(path):
    table = {}
    for message in ElementTree.parse(path).iter("message"):
        translation = message.find("translation")
        if translation.get("type") is None and translation.text:
            table[message.findtext("source"), message.findtext("comment", PLAIN)] = translation.text
    return table


def written(table, texts, language):
    lines = ['<?xml version="1.0" encoding="utf-8"?>', "<!DOCTYPE TS>",
             f'<TS version="2.1" language="{language}" sourcelanguage="en">', "<context>",
             f"    <name>{CONTEXT}</name>"]
    for text, meaning in sorted(texts):
        translation = table.get((text, meaning), "")
        unfinished = "" if translation else ' type="unfinished"'
        lines += ["    <message>", f"        <source>{escape(text)}</source>"]
        if meaning:
            lines.append(f"        <comment>{escape(meaning)}</comment>")
        lines += [f"        <translation{unfinished}>{escape(translation)}</translation>", "    </message>"]
    return "\n".join(lines + ["</context>", "</TS>", ""])


def frame(text):
    """What a translation must share with its text."""
    start = len(text) - len(text.lstrip())
    end = len(text.rstrip())
    return sorted(PLACEHOLDER.findall(text)), text.count("\n"), text[:start], text[end:]


def faults(table, texts):
    for text, meaning in sorted(texts):
        translation = table.get((text, meaning), "")
        named = repr(text) + (f" ({meaning})" if meaning else "")
        if not translation.strip():
            yield f"no translation: {named}"
        elif frame(translation) != frame(text):
            yield f"other placeholders, ends of lines or blanks: {named} -> {translation!r}"


def main(arguments):
    if arguments not in ([], ["--check"]):
        print(__doc__, file=sys.stderr)
        return 2
    texts, found = collect()
    found = [f"not a literal: {call}" for call in found]
    tables = sorted(TABLES.glob("zelvor_*.ts"))
    if not tables:
        found.append(f"no tables in {TABLES.relative_to(ROOT)}")
    for path in tables:
        table = read_table(path)
        content = written(table, texts, path.stem.removeprefix("zelvor_"))
        if not arguments:
            path.write_text(content, encoding="utf-8")
        elif content != path.read_text(encoding="utf-8"):
            found.append(f"{path.name} is out of date; call scripts/update_translations.py")
        found += [f"{path.name}: {fault}" for fault in faults(table, texts)]
    print("\n".join(found) if found else f"{len(texts)} texts, all translated")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
