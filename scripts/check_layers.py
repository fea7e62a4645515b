#!/usr/bin/env python3
"""Checks what a linker cannot: which folder includes which, and where platform code may stand.

Prints file:line for each fault and ends with 1 when there is one. Then lists the longest files, for a reader's eye."""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent

# Folder -> folders it may include from, besides itself.
ALLOWED = {
    "core": set(),
    "app": {"core"},
    "actions": {"core", "app"},
    "ui": {"core", "app", "actions"},
    "program": {"core", "app", "actions", "ui"},
    "cli": {"core", "app", "actions"},
    "bench": {"core", "app", "actions", "ui"},
    "tests": {"core", "app", "actions", "ui", "cli"},
}
# Wing -> its floors, each of which may include from those before it, and from itself; folders on one floor are
# neighbours, which may not include from each other; "" is the wing's own folder.
FLOORS = {
    "core": [["model"], ["platform"], ["threads"], ["walk", "hash", "media", "cache"], ["match"], ["scan"]],
    "actions": [["files"], ["records"], ["cleaning"], ["export"]],
    "ui": [["texts"], ["state"], ["models"], ["window"], ["locations", "rules", "results"], ["dialogs"], [""]],
}

WIDGET = re.compile(
    r"<Q(Application|Widget|MainWindow|Dialog|Action|Menu\w*|.*(View|Button|Box|Layout|Label|Edit|Bar|Dialog|Delegate"
    r"|Splitter|Style\w*|TrayIcon|Item(Delegate|Editor)\w*|TreeWidget\w*|TableWidget\w*|ListWidget\w*))>"
)
# Headers of Core and Gui whose names look like widgets'.
NOT_WIDGETS = {"<QByteArrayView>", "<QStringView>", "<QUtf8StringView>", "<QAnyStringView>", "<QLatin1StringView>"}
PLATFORM = re.compile(r"\b(Q_OS_\w+|_WIN32|_WIN64|__linux__|__unix__|__APPLE__)\b|<windows\.h>")
FORBIDDEN = {
    re.compile(r"\bQSettings\b"): "settings live in one JSON file (app/settings.h)",
    re.compile(r"\bstd::[io]?fstream\b"): "use Qt's or the project's file classes",
    re.compile(r"toStdString\(\)\s*\.\s*c_str\(\)"): "loses characters of paths on Windows",
    re.compile(r"\btoLocal8Bit\("): "loses characters; use pathBytes for paths",
    re.compile(r"\bprocessEvents\("): "let the event loop run instead",
}


def is_platform_source(path: str) -> bool:
    return path.endswith(("_windows.cpp", "_posix.cpp")) or path.startswith("core/platform/")


def floor_of(path: str) -> int | None:
    """The number of the floor that a file stands on; None where the wing has no floors."""
    wing, _, rest = path.partition("/")
    folder = rest.rpartition("/")[0]
    for number, folders in enumerate(FLOORS.get(wing, [])):
        if folder in folders:
            return number
    return None


def breaks_floors(path: str, target: str) -> bool:
    """Whether the file at `path` includes `target` from a floor above its own or from a neighbour."""
    if path.split("/")[0] != target.split("/")[0] or path.split("/")[0] not in FLOORS:
        return False
    own, other = floor_of(path), floor_of(target)
    if own is None or other is None:
        return True
    return other > own or (other == own and path.rpartition("/")[0] != target.rpartition("/")[0])


def faults_of(path: str, lines: list[str]) -> list[str]:
    wing = path.split("/")[0]
    allowed = ALLOWED[wing] | {wing}
    found = []
    for number, line in enumerate(lines, 1):
        include = re.match(r'\s*#\s*include\s*(["<][^">]+[">])', line)
        if include:
            name = include.group(1)
            target = name.strip('"<>').split("/")[0]
            if name.startswith('"') and ".." in name:
                found.append(f"{path}:{number}: include from the root, not through ..")
            elif name.startswith('"') and target in ALLOWED and target not in allowed:
                found.append(f"{path}:{number}: {wing}/ must not include from {target}/")
            elif name.startswith('"') and breaks_floors(path, name.strip('"')):
                found.append(f"{path}:{number}: {path.rpartition('/')[0]}/ must not include {name}")
            if wing not in ("ui", "program", "tests", "bench"):
                if WIDGET.match(name) and name not in NOT_WIDGETS:
                    found.append(f"{path}:{number}: widget header below ui/")
        if PLATFORM.search(line) and not is_platform_source(path):
            found.append(f"{path}:{number}: platform code outside a platform source")
        for pattern, reason in FORBIDDEN.items():
            if pattern.search(line) and wing != "tests":
                found.append(f"{path}:{number}: {reason}")
    return found


def main() -> int:
    faults, sizes = [], []
    for wing in ALLOWED:
        for file in sorted((ROOT / wing).rglob("*")):
            if file.suffix not in (".cpp", ".h"):
                continue
            path = file.relative_to(ROOT).as_posix()
            lines = file.read_text(encoding="utf-8").splitlines()
            faults += faults_of(path, lines)
            sizes.append((len(lines), path))
    print("\n".join(faults) if faults else f"{len(sizes)} files, no fault")
    print("longest:", ", ".join(f"{path} {count}" for count, path in sorted(sizes, reverse=True)[:5]))
    return 1 if faults or not sizes else 0


if __name__ == "__main__":
    sys.exit(main())
