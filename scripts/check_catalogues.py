#!/usr/bin/env python3
"""Checks the catalogues of all languages against the texts of the sources: check_catalogues.py LUPDATE

Every text is translated, with the same placeholders, line breaks and mnemonics; nothing is left over;
no catalogue holds the letters of another language's script."""
import collections
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDER = ROOT / "resources" / "translations"
LANGUAGES = ["zh_TW", "en", "de", "ja", "fr", "es", "pt", "ko", "it", "nl"]
# The hints of the steps are shown as they are in every language.
GAPS = {"请选择要扫描的位置", "配置规则后点击「开始扫描」"}
# A text of one of these languages fits into the character set of old that had its letters and no others.
CHARACTER_SETS = {"zh_TW": "big5hkscs", "ja": "cp932", "ko": "cp949"}


def read(path):
    """Source and translation of each message; a translation is None when the catalogue calls it unfinished."""
    texts = {}
    for message in ElementTree.parse(path).iter("message"):
        translation = message.find("translation")
        is_finished = translation.get("type") is None
        texts[message.findtext("source")] = translation.text if is_finished else None
    return texts


def texts_of_sources(lupdate):
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "all.ts"
        command = [lupdate, "-silent", "-locations", "none", "-I", ROOT, "core", "app", "actions", "ui", "-ts", path]
        subprocess.run(command, cwd=ROOT, check=True)
        return set(read(path))


def shape(text):
    """What a translation must keep."""
    return {
        "placeholders": collections.Counter(re.findall(r"%\d+", text)),
        "line breaks": text.count("\n"),
        "blank at the start": text.startswith(" "),
        "mnemonics": len(re.findall(r"&\w", text)),
    }


def is_foreign(language, text):
    """Whether a text has letters that the language does not write. Signs outside the letters do not count."""
    letters = "".join(c for c in text if c.isalpha() and not "\u2100" <= c <= "\u214f")
    if language in CHARACTER_SETS:
        has_han = re.search(r"[\u4e00-\u9fff]", letters)
        return bool(has_han) and (language == "ko" or not encodes(letters, CHARACTER_SETS[language]))
    return not encodes(letters, "cp1252")


def encodes(text, character_set):
    try:
        text.encode(character_set)
        return True
    except UnicodeEncodeError:
        return False


def faults(language, sources):
    catalogue = read(FOLDER / f"mirrix_{language}.ts")
    for source in sorted(set(catalogue) - sources):
        yield f"left over: {source!r}"
    for source in sorted(sources - GAPS):
        text = catalogue.get(source)
        if not text:
            yield f"not translated: {source!r}"
            continue
        wanted, found = shape(source), shape(text)
        yield from (f"other {name}: {source!r} -> {text!r}" for name in wanted if wanted[name] != found[name])
        if is_foreign(language, text):
            yield f"letters of another script: {source!r} -> {text!r}"


def main():
    sources = texts_of_sources(sys.argv[1])
    count = 0
    for language in LANGUAGES:
        for fault in faults(language, sources):
            print(f"mirrix_{language}: {fault}")
            count += 1
    print(f"{len(sources)} texts in {len(LANGUAGES)} catalogues, {count} faults")
    return 1 if count or not sources else 0


if __name__ == "__main__":
    sys.exit(main())
