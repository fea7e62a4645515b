#!/usr/bin/env python3
"""Copies into FOLDER every library that its programs and plugins import, directly or not.

collect.py FOLDER SEARCH...: SEARCH are the folders to find libraries in, first match wins. Ends with 1 and names the
library when one is neither found there nor one of Windows' own. Uses objdump to read the import tables."""

import re
import shutil
import subprocess
import sys
from pathlib import Path

# What every Windows 10 (1809 or later) brings along.
OF_WINDOWS = set("""
    advapi32 authz bcrypt comctl32 comdlg32 crypt32 cryptbase d2d1 d3d11 d3d9 dwmapi dwrite dxgi gdi32 imm32 kernel32
    mpr msvcrt netapi32 ntdll ole32 oleaut32 powrprof psapi rpcrt4 setupapi shcore shell32 shlwapi user32 userenv
    uxtheme version winmm winspool.drv wtsapi32 ws2_32
""".split())


def is_of_windows(lower: str) -> bool:
    return lower.removesuffix(".dll") in OF_WINDOWS or lower.startswith("api-ms-win-")


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
    strange = []
    while waiting:
        importer = waiting.pop()
        for name in imports_of(importer):
            lower = name.lower()
            if lower in have or is_of_windows(lower):
                continue
            if lower in known:
                have.add(lower)
                waiting.append(Path(shutil.copy2(known[lower], folder / known[lower].name)))
            else:
                strange.append(f"{importer.relative_to(folder)} imports {name}, which is neither here nor in Windows")
    if strange:
        sys.exit("\n".join(strange))


if __name__ == "__main__":
    main()
