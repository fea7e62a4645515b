#!/usr/bin/env python3
"""Copies into FOLDER every library that its programs and plugins import, directly or not.

collect.py FOLDER SEARCH...: SEARCH are the folders to find libraries in, first match wins. A library found in none of
them is taken for one of Windows' own. Uses objdump to read the import tables."""

import re
import shutil
import subprocess
import sys
from pathlib import Path


def imports_of(binary: Path) -> list[str]:
    table = subprocess.run(["x86_64-w64-mingw32-objdump", "-p", binary], capture_output=True, text=True, check=True).stdout
    return re.findall(r"DLL Name: (\S+)", table)


def main() -> None:
    folder, search = Path(sys.argv[1]), [Path(name) for name in sys.argv[2:]]
    known = {}
    for place in reversed(search):
        known.update({file.name.lower(): file for file in place.glob("*.dll")})
    waiting = [*folder.rglob("*.exe"), *folder.rglob("*.dll")]
    have = {file.name.lower() for file in folder.glob("*.dll")}
    while waiting:
        for name in imports_of(waiting.pop()):
            source = known.get(name.lower())
            if source and name.lower() not in have:
                have.add(name.lower())
                waiting.append(Path(shutil.copy2(source, folder / source.name)))


if __name__ == "__main__":
    main()
