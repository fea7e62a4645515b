#!/usr/bin/env python3
"""Checks the catalogues of all languages against the texts of the sources: check_catalogues.py LUPDATE

Every text is translated, with the same placeholders, line breaks and mnemonics; nothing is left over;
no catalogue holds the letters of another language's script; and none calls a highlighted row ticked or the
other way round, since ticks alone decide what is deleted."""
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

# The stems of the glossary for ticking and for highlighting a row.
WORDS = {
    "zh_TW": ("勾選", "選取"),
    "en": ("check", "select"),
    "de": ("kreuz|häkchen", "markier"),
    "ja": ("チェック", "選択"),
    "fr": ("coch", "sélection"),
    "es": ("mar[cq]", "selecci"),
    "pt": ("mar[cq]", "sele[cç]"),
    "ko": ("체크", "선택"),
    "it": ("spunt", "selezion"),
    "nl": ("vink", "select"),
}
# What is about ticks without saying 勾选, and about highlighted rows without saying 选中.
TICKED = {"选择", "反选", "已反选", "全选重复项", "全选本组重复项", "删除所选",
          "您选择了系统盘。整盘扫描耗时较长，系统目录仍会排除。\n是否加入扫描列表？"}
HIGHLIGHTED = {"选择文件以预览", "对比图片 (选 2 个)", "复制所选", "恢复所选", "移除所选"}
# Starts of texts about the box of an option, which may as well be switched on and off.
OPTIONS = ("请先勾选启用", "勾选时", "勾选=", "关闭后点击")
# May name the list instead of the highlighted rows.
UNNAMED = {"移除所选"}
# English texts about ticks whose wording is fixed and says "select".
FIXED_ENGLISH = {
    "勾选要移除的副本，建议先备份再删除", "勾选重复项并进行清理", "未勾选任何磁盘。", "按规则自动勾选",
    "「其余文件」为只读视图；请切换到「重复文件」Tab 勾选处理。", "已按规则自动勾选待处理文件",
    "请先勾选要处理的文件。", "请先勾选要删除的文件。",
} | TICKED - {"全选本组重复项"}


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
        command = [lupdate, "-silent", "-locations", "none", "-I", ROOT, "core", "app", "actions", "ui", "program", "-ts", path]
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


def is_about_ticks(source):
    return source in TICKED or ("勾选" in source and not source.startswith(OPTIONS))


def wrong_words(language, source, text):
    """A tick called by the word for highlighting, or the other way round."""
    if is_about_ticks(source):
        own, other = WORDS[language]
    elif source in HIGHLIGHTED or "选中" in source:
        other, own = WORDS[language]
    else:
        return
    if language == "en" and source in FIXED_ENGLISH:
        return
    has_own = source in UNNAMED or re.search(own, text, re.IGNORECASE)
    if not has_own or re.search(other, text, re.IGNORECASE):
        yield f"wants {own!r}, not {other!r}: {source!r} -> {text!r}"


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
        yield from wrong_words(language, source, text)


def main():
    sources = texts_of_sources(sys.argv[1])
    count = 0
    for source in sorted((TICKED | HIGHLIGHTED | FIXED_ENGLISH) - sources):
        print(f"listed here, but no text: {source!r}")
        count += 1
    for language in LANGUAGES:
        for fault in faults(language, sources):
            print(f"mirrix_{language}: {fault}")
            count += 1
    print(f"{len(sources)} texts in {len(LANGUAGES)} catalogues, {count} faults")
    return 1 if count or not sources else 0


if __name__ == "__main__":
    sys.exit(main())
